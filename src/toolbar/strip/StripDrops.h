#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/DragDrop.h"
#include "forms/Timer.h"
#include "forms/Types.h"
#include "launch/FileDrops.h"
#include "platform/WindowId.h"
#include "toolbar/layout/StripWindow.h"

namespace corvelle {

class ButtonRow;
class MenuTracking;
class DesktopWindows;
class EntryCarry;
class Input;
struct DragState;
struct GuardFlags;
struct MenuState;
struct StripPlacement;
struct WindowPorts;
class RefusedFiles;
class SingleRow;
namespace forms {
class PictureBox;
}

/// What drops on the strip work with. All of it outlives them.
struct StripDropParts {
  FileDrops Files;
  const StripPlacement& Strip;
  DesktopWindows& Desktop;
  const Input& Pointer;
  const WindowPorts& Ports;
  const GuardFlags& Guards;
  MenuState& Menu;
  DragState& Drag;
  EntryEdit& Entry;
  EntryCarry& Carry;
};

/// What other programs drag over the two boxes of the strip and drop on them. Entries of ours are
/// carried by StripCarry.
class StripDrops {
 public:
  StripDrops(const StripDropParts& with, StripWindow& strip, ButtonRow& buttons,
             MenuTracking& menus, SingleRow& singles, forms::PictureBox& picToolbar,
             forms::PictureBox& picSingleButton, forms::Timer& timer2, forms::Timer& tmrDragDrop,
             RefusedFiles& refused);
  StripDrops(const StripDrops&) = delete;
  StripDrops& operator=(const StripDrops&) = delete;

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
  RefusedFiles& refused_;
  int quietTicks_ = 0;  // of tmrDragDrop, since the drag was last heard of
};

}  // namespace corvelle
