#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Geometry.h"
#include "forms/DragDrop.h"
#include "forms/Timer.h"
#include "forms/Types.h"
#include "launch/FileDrops.h"
#include "platform/WindowId.h"
#include "toolbar/layout/CarryRules.h"
#include "toolbar/layout/StripWindow.h"

namespace corvelle {

class ButtonRow;
class MenuTracking;
class DesktopWindows;
class EntryCarry;
class EntryCommands;
class Input;
class MessageBoxes;
struct DragState;
struct GuardFlags;
struct MenuState;
struct StripPlacement;
struct WindowPorts;
class SingleRow;
namespace forms {
class PictureBox;
}

/// What drops on the strip work with. All of it outlives them.
struct StripDropParts {
  FileDrops Files;
  EntryCommands& Commands;
  const StripPlacement& Strip;
  DesktopWindows& Desktop;
  Input& Pointer;
  const WindowPorts& Ports;
  MessageBoxes& Messages;
  GuardFlags& Guards;
  MenuState& Menu;
  DragState& Drag;
  EntryEdit& Entry;
  EntryCarry& Carry;
};

/// What is dropped on the strip: entries carried over its buttons, and what other programs drag
/// over its two boxes.
class StripDrops {
 public:
  StripDrops(const StripDropParts& with, StripWindow& strip, ButtonRow& buttons,
             MenuTracking& menus, SingleRow& singles, forms::PictureBox& picToolbar,
             forms::PictureBox& picSingleButton, forms::Timer& timer2, forms::Timer& tmrDragDrop,
             forms::Timer& tmrRefused);
  StripDrops(const StripDrops&) = delete;
  StripDrops& operator=(const StripDrops&) = delete;

  // ---- entries that are carried (StripDrops.cpp) ----

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
  /// Tells the user, once the current event is over, that these files were not taken.
  void TellRefused(std::vector<std::string> files);

  // ---- drags of other programs (StripDropsOle.cpp) ----

  void picToolbar_OLEDragOver(forms::DragData& data, forms::DropEffect& effect,
                              forms::MouseButton down, float x, float y);
  void picToolbar_OLEDragDrop(forms::DragData& data, forms::DropEffect& effect);
  void picSingleButton_OLEDragOver(forms::DragData& data, forms::DropEffect& effect,
                                   forms::MouseButton down);
  void picSingleButton_OLEDragDrop(forms::DragData& data, forms::DropEffect& effect);
  /// Looks each 100 ms whether a drag that came over the strip is still there.
  void tmrDragDrop_Timer();
  /// The drag is over; nothing is closed or given back.
  void StopDrag();

  /// The window in front when a drag came over the strip.
  WindowId SavedForeground = kNoWindow;

 private:
  void WireDrags();
  void AbandonDrag();
  void ShowDroppedMenu(int button);
  void tmrRefused_Timer();
  /// True if there is something for the strip, and it is not being worked on.
  [[nodiscard]] bool TakesDrag(const forms::DragData& data) const;
  void NoteDrag(const forms::DragData& data, forms::MouseButton down);
  void EnterDrag();
  /// The drag is over without a drop here.
  void EndDragOver();
  void GiveForegroundBack();
  void DropFiles(std::vector<std::string> names, int button);
  void ShowDropped(int button);
  void DropAddress(const forms::DragData& data, int button);
  void OfferAddress(const forms::DragData& data, std::string_view tag, const std::string& file);

  StripDropParts with_;
  forms::Form& window_;
  ButtonRow& buttons_;
  MenuTracking& menus_;
  SingleRow& singles_;
  forms::PictureBox& picToolbar_;
  forms::PictureBox& picSingleButton_;
  forms::Timer& timer2_;
  forms::Timer& tmrDragDrop_;
  forms::Timer& tmrRefused_;
  AbandonWatch carryWatch_;
  std::vector<std::string> refused_;  // of a drop, not told yet
  int quietTicks_ = 0;                // of tmrDragDrop, since the drag was last heard of
};

}  // namespace corvelle
