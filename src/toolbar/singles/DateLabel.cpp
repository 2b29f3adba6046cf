#include "toolbar/singles/DateLabel.h"

#include "core/Program.h"
#include "forms/Form.h"
#include "forms/Graphic.h"
#include "forms/PictureBox.h"
#include "launch/LaunchItem.h"
#include "platform/DesktopWindows.h"
#include "platform/SystemInfo.h"
#include "toolbar/docking/StripPull.h"
#include "toolbar/singles/SingleLayout.h"
#include "toolbar/singles/SingleRow.h"

namespace corvelle {
namespace {

constexpr std::string_view kDatePanel = "rundll32.exe shell32.dll,Control_RunDLL timedate.cpl,,0";

}  // namespace

DateLabel::DateLabel(Program& program, RowHost& strip, StripPull& pull, const RowControls& controls,
                     SingleRow& row)
    : program_(program), strip_(strip), controls_(controls), row_(row) {
  using forms::MouseButton;
  using forms::ShiftState;
  forms::Label& label = controls_.lblDate;
  label.MouseDown = [this](MouseButton, ShiftState, float, float) { lblDate_MouseDown(); };
  label.MouseMove = [this](MouseButton down, ShiftState, float, float) { lblDate_MouseMove(down); };
  label.MouseUp = [&pull](MouseButton button, ShiftState, float, float) {
    if (button == MouseButton::Right) pull.MouseUp(button);
  };
  label.DblClick = [this] { lblDate_DblClick(); };
  label.SetAutoSize(true);
  HideDate();
}

void DateLabel::HideDate() {
  controls_.lblDate.SetVisible(false);
  controls_.Line1[0].SetVisible(false);
  controls_.Line2[0].SetVisible(false);
}

bool DateLabel::IsUnder(float x) const {
  return controls_.lblDate.Visible() && IsOnDateArea(x, controls_.lblDate.Left());
}

void DateLabel::DoLabelDate() {
  const StripShape shape = strip_.Shape();
  if (shape.Where == Placement::TopHugging || shape.Scale.Vertical) {
    HideDate();
    return;
  }
  if (!program_.OptionFlags.Is(Option::ShowDate)) {
    if (!controls_.lblDate.Visible()) return;
    HideDate();
    forms::PictureBox& box = controls_.Box;
    box.FillBox(row_.LastEnd() + shape.Scale.TwipsX, 0, box.Width(), box.Height(),
                forms::color::ButtonFace);
    return;
  }
  if (program_.Guards.RestoreBusy) return;
  UpdateLabelDate();
  ShowDate();
}

void DateLabel::ShowDate() {
  forms::Label& label = controls_.lblDate;
  forms::Line& line1 = controls_.Line1[0];
  forms::Line& line2 = controls_.Line2[0];
  FontSpec font = label.Font();
  font.Bold = program_.OptionFlags.Is(Option::LargeIcons);
  label.SetFont(font);
  const DateSpot spot = PlaceDate({.Box = {controls_.Box.Width(), controls_.Box.Height()},
                                   .Label = {label.Width(), label.Height()},
                                   .SingleCount = row_.SingleCount,
                                   .LastRight = row_.LastEnd(),
                                   .WindowWidth = strip_.AsForm().Width(),
                                   .ButtonsWidth = strip_.ButtonsBox().Width(),
                                   .TwipsX = strip_.Shape().Scale.TwipsX});
  label.Move(spot.Left, spot.Top, label.Width(), label.Height());
  line1.SetPoints(spot.Line1.X1, spot.Line1.Y1, spot.Line1.X2, spot.Line1.Y2);
  line2.SetPoints(spot.Line2.X1, spot.Line2.Y1, spot.Line2.X2, spot.Line2.Y2);
  line1.SetBorderColor(forms::color::Highlight3D);
  line2.SetBorderColor(forms::color::ButtonShadow);
  label.SetVisible(spot.Visible);
  line1.SetVisible(spot.Visible);
  line2.SetVisible(spot.Visible);
}

void DateLabel::UpdateLabelDate() {
  const StripShape shape = strip_.Shape();
  if (!program_.OptionFlags.Is(Option::ShowDate) || shape.Scale.Vertical ||
      program_.Guards.RestoreBusy || shape.Where == Placement::TopHugging) {
    return;
  }
  const std::string today = program_.Services.System.ShortDate();
  if (controls_.lblDate.Caption() == today) return;
  controls_.lblDate.SetCaption(today);
  // A longer date moves to the left, so that its end stays on the strip.
  if (controls_.lblDate.Visible()) ShowDate();
}

void DateLabel::lblDate_MouseDown() {
  const QMenuPort* const menu = program_.Ports.QMenu;
  if (program_.Menu.MenuOpen || (menu != nullptr && menu->MenuVisible())) strip_.ResetMenu();
  program_.Ports.SetHint("");
  program_.Menu.CurSingle = MenuState::kDateArea;
}

// The strip shows the date alone; the hint over it is the clock.
void DateLabel::lblDate_MouseMove(forms::MouseButton down) {
  if (down != forms::MouseButton::None || program_.Entry.ItemDragging) return;
  const HintPort* const hint = program_.Ports.Hint;
  const bool hintUp = hint != nullptr && program_.Services.Desktop.IsVisible(hint->WindowHandle());
  if (hintUp && program_.Menu.CurSingle == MenuState::kDateArea) return;
  program_.Menu.CurSingle = MenuState::kDateArea;
  const SystemInfo& system = program_.Services.System;
  program_.Ports.SetHint(system.TimeOfDay() + ", " + system.LongDate());
  UpdateLabelDate();
  row_.EnterDate();
}

void DateLabel::lblDate_DblClick() {
  if (program_.Entry.ItemDragging) return;
  LaunchItem(program_.Launch, kDatePanel);
}

}  // namespace corvelle
