#pragma once

#include "core/HeldButton.h"
#include "forms/Timer.h"
#include "forms/Types.h"
#include "toolbar/layout/StripWindow.h"

namespace corvelle {

class ButtonRow;
class DesktopWindows;
class EntryCarry;
class EntryCommands;
class Input;
class MenuTracking;
struct DragState;
struct EntryEdit;
struct GuardFlags;
struct MenuState;
struct StripPlacement;
struct WindowPorts;
namespace forms {
class PictureBox;
}

/// What carrying over the strip works with. All of it outlives it.
struct StripCarryParts {
  EntryCommands& Commands;
  const StripPlacement& Strip;
  const DesktopWindows& Desktop;
  Input& Pointer;
  const WindowPorts& Ports;
  const GuardFlags& Guards;
  MenuState& Menu;
  DragState& Drag;
  EntryEdit& Entry;
  EntryCarry& Carry;
};

/// Entries of ours that are carried over the menu buttons of the strip and put down there. What
/// other programs drag there is StripDrops.
class StripCarry {
 public:
  StripCarry(const StripCarryParts& with, StripWindow& strip, ButtonRow& buttons,
             MenuTracking& menus, forms::PictureBox& picToolbar, forms::Timer& timer2);
  StripCarry(const StripCarry&) = delete;
  StripCarry& operator=(const StripCarry&) = delete;

  /// Follows what is carried: opens the menu of the button under the pointer, or ends a carry whose
  /// release went to another program. Returns the index of that button, 0 for none.
  int dragCurButton();
  /// Drops the carried entry on a button: appended to its menu, and taken away from where it came
  /// unless `released` is the right button, which copies.
  void DoButtonDrag(int button, forms::MouseButton released);
  /// Gives up a carry when no button has been down for a moment (AbandonWatch): its release went to
  /// another program. The loss of the mouse does not tell that. An entry of a menu is picked up
  /// with the menu's press, and the menu hides and comes up again on the way: each time it loses
  /// the mouse, though the button is still down. From then on a release over another program is
  /// told to nobody. A carry from the row of single buttons needs no such look (CaptureLost).
  void WatchCarry();

 private:
  void ShowDroppedMenu(int button);

  StripCarryParts with_;
  forms::Form& window_;
  ButtonRow& buttons_;
  MenuTracking& menus_;
  forms::PictureBox& picToolbar_;
  forms::Timer& timer2_;
  AbandonWatch carryWatch_;
};

}  // namespace corvelle
