#pragma once

#include "forms/Types.h"
#include "toolbar/singles/RowHost.h"

namespace corvelle {

class Program;
class SingleRow;
class StripPull;

/// The date at the far end of the single buttons: when it is to be seen, its place and its text;
/// the hint over it is the clock.
class DateLabel {
 public:
  DateLabel(Program& program, RowHost& strip, StripPull& pull, const RowControls& controls,
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

  Program& program_;
  RowHost& strip_;
  RowControls controls_;
  SingleRow& row_;
};

}  // namespace corvelle
