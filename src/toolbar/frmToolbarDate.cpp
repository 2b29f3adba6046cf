// The date at the far end of the single buttons.

#include "core/Program.h"
#include "launch/LaunchItem.h"
#include "platform/DesktopWindows.h"
#include "platform/SystemInfo.h"
#include "toolbar/SingleLayout.h"
#include "toolbar/frmToolbar.h"

namespace corvelle {
namespace {

constexpr std::string_view kDatePanel = "rundll32.exe shell32.dll,Control_RunDLL timedate.cpl,,0";

}  // namespace

void frmToolbar::HideDate() {
  lblDate.SetVisible(false);
  Line1[0].SetVisible(false);
  Line2[0].SetVisible(false);
}

void frmToolbar::DoLabelDate() {
  ReadTwips();
  if (Where() == Placement::TopHugging || program_.Strip.ToolbarVertical) {
    HideDate();
    return;
  }
  if (!program_.OptionFlags.Is(Option::ShowDate)) {
    if (!lblDate.Visible()) return;
    HideDate();
    picSingleButton.FillBox(Singles.LastEnd() + TwipsX, 0, picSingleButton.Width(),
                            picSingleButton.Height(), forms::color::ButtonFace);
    return;
  }
  if (program_.Guards.RestoreBusy) return;
  UpdateLabelDate();
  ShowDate();
}

void frmToolbar::ShowDate() {
  FontSpec font = lblDate.Font();
  font.Bold = program_.OptionFlags.Is(Option::LargeIcons);
  lblDate.SetFont(font);
  const DateSpot spot = PlaceDate({.Box = {picSingleButton.Width(), picSingleButton.Height()},
                                   .Label = {lblDate.Width(), lblDate.Height()},
                                   .SingleCount = SingleCount,
                                   .LastRight = Singles.LastEnd(),
                                   .WindowWidth = Width(),
                                   .ButtonsWidth = picToolbar.Width(),
                                   .TwipsX = TwipsX});
  lblDate.Move(spot.Left, spot.Top, lblDate.Width(), lblDate.Height());
  Line1[0].SetPoints(spot.Line1.X1, spot.Line1.Y1, spot.Line1.X2, spot.Line1.Y2);
  Line2[0].SetPoints(spot.Line2.X1, spot.Line2.Y1, spot.Line2.X2, spot.Line2.Y2);
  Line1[0].SetBorderColor(forms::color::Highlight3D);
  Line2[0].SetBorderColor(forms::color::ButtonShadow);
  lblDate.SetVisible(spot.Visible);
  Line1[0].SetVisible(spot.Visible);
  Line2[0].SetVisible(spot.Visible);
}

void frmToolbar::UpdateLabelDate() {
  if (!program_.OptionFlags.Is(Option::ShowDate) || program_.Strip.ToolbarVertical ||
      program_.Guards.RestoreBusy || Where() == Placement::TopHugging) {
    return;
  }
  const std::string today = program_.Services.System.ShortDate();
  if (lblDate.Caption() == today) return;
  lblDate.SetCaption(today);
  // A longer date moves to the left, so that its end stays on the strip.
  if (lblDate.Visible()) ShowDate();
}

void frmToolbar::lblDate_MouseDown(forms::MouseButton /*button*/, forms::ShiftState /*shift*/,
                                   float /*x*/, float /*y*/) {
  if (program_.Menu.MenuOpen || MenuUp()) ResetMenu();
  program_.SetHint("");
  program_.Menu.CurSingle = MenuState::kDateArea;
}

// The strip shows the date alone; the hint over it is the clock.
void frmToolbar::lblDate_MouseMove(forms::MouseButton down, forms::ShiftState /*shift*/,
                                   float /*x*/, float /*y*/) {
  if (down != forms::MouseButton::None || program_.Entry.ItemDragging) return;
  const HintPort* const hint = program_.Ports.Hint;
  const bool hintUp = hint != nullptr && program_.Services.Desktop.IsVisible(hint->WindowHandle());
  if (hintUp && program_.Menu.CurSingle == MenuState::kDateArea) return;
  program_.Menu.CurSingle = MenuState::kDateArea;
  const SystemInfo& system = program_.Services.System;
  program_.SetHint(system.TimeOfDay() + ", " + system.LongDate());
  UpdateLabelDate();
  Singles.EnterDate();
}

void frmToolbar::lblDate_MouseUp(forms::MouseButton button, forms::ShiftState shift, float x,
                                 float y) {
  if (button == forms::MouseButton::Right) Form_MouseUp(button, shift, x, y);
}

void frmToolbar::lblDate_DblClick() {
  if (program_.Entry.ItemDragging) return;
  LaunchItem(program_, kDatePanel);
}

}  // namespace corvelle
