#pragma once

#include "core/LaunchParts.h"
#include "forms/Types.h"
#include "toolbar/singles/RowHost.h"

namespace corvelle {

class DesktopWindows;
class EntryCarry;
class OptionFlags;
class SystemInfo;
struct GuardFlags;
struct MenuState;
struct WindowPorts;
class SingleRow;
class StripPull;

/// What the date works with. All of it outlives it.
struct DateParts {
  const OptionFlags& Options;
  const GuardFlags& Guards;
  const SystemInfo& System;
  const DesktopWindows& Desktop;
  const WindowPorts& Ports;
  MenuState& Menu;
  const EntryCarry& Carry;
  LaunchParts Launch;
};

/// The date at the far end of the single buttons: when it is to be seen, its place and its text;
/// the hint over it is the clock.
class DateLabel {
 public:
  DateLabel(const DateParts& with, RowHost& strip, StripPull& pull, const RowControls& controls,
            SingleRow& row);
  DateLabel(const DateLabel&) = delete;
  DateLabel& operator=(const DateLabel&) = delete;

  /// Shows, hides and places it by the options and the strip's place.
  void DoLabelDate();
  /// Shows the text of today, where the date is to be seen.
  void UpdateLabelDate();
  void HideDate();
  /// True if a press at `x` in the row's box counts as one on the date.
  [[nodiscard]] bool IsUnder(float x) const;

  void lblDate_DblClick();

 private:
  void lblDate_MouseDown();
  void lblDate_MouseMove(forms::MouseButton down);
  void ShowDate();

  DateParts with_;
  RowHost& strip_;
  RowControls controls_;
  SingleRow& row_;
};

}  // namespace corvelle
