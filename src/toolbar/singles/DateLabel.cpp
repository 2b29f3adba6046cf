#include "toolbar/singles/DateLabel.h"

#include "core/Carry.h"
#include "core/GuardFlags.h"
#include "core/MenuState.h"
#include "core/OptionFlags.h"
#include "core/WindowPorts.h"
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

DateLabel::DateLabel(const DateParts& with, RowHost& strip, StripPull& pull,
                     const RowControls& controls, SingleRow& row)
    : with_(with), strip_(strip), controls_(controls), row_(row) {
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
  if (!with_.Options.Is(Option::ShowDate)) {
    if (!controls_.lblDate.Visible()) return;
    HideDate();
    forms::PictureBox& box = controls_.Box;
    box.FillBox(row_.LastEnd() + shape.Scale.TwipsX, 0, box.Width(), box.Height(),
                forms::color::ButtonFace);
    return;
  }
  if (with_.Guards.RestoreBusy) return;
  UpdateLabelDate();
  ShowDate();
}

void DateLabel::ShowDate() {
  forms::Label& label = controls_.lblDate;
  forms::Line& line1 = controls_.Line1[0];
  forms::Line& line2 = controls_.Line2[0];
  FontSpec font = label.Font();
  font.Bold = with_.Options.Is(Option::LargeIcons);
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
  if (!with_.Options.Is(Option::ShowDate) || shape.Scale.Vertical || with_.Guards.RestoreBusy ||
      shape.Where == Placement::TopHugging) {
    return;
  }
  const std::string today = with_.System.ShortDate();
  if (controls_.lblDate.Caption() == today) return;
  controls_.lblDate.SetCaption(today);
  // A longer date moves to the left, so that its end stays on the strip.
  if (controls_.lblDate.Visible()) ShowDate();
}

void DateLabel::lblDate_MouseDown() {
  const QMenuPort* const menu = with_.Ports.QMenu;
  if (with_.Menu.MenuOpen || (menu != nullptr && menu->MenuVisible())) strip_.ResetMenu();
  with_.Ports.SetHint("");
  with_.Menu.CurSingle = MenuState::kDateArea;
}

// The strip shows the date alone; the hint over it is the clock.
void DateLabel::lblDate_MouseMove(forms::MouseButton down) {
  if (down != forms::MouseButton::None || with_.Carry.IsCarrying()) return;
  const HintPort* const hint = with_.Ports.Hint;
  const bool hintUp = hint != nullptr && with_.Desktop.IsVisible(hint->WindowHandle());
  if (hintUp && with_.Menu.CurSingle == MenuState::kDateArea) return;
  with_.Menu.CurSingle = MenuState::kDateArea;
  const SystemInfo& system = with_.System;
  with_.Ports.SetHint(system.TimeOfDay() + ", " + system.LongDate());
  UpdateLabelDate();
  row_.EnterDate();
}

void DateLabel::lblDate_DblClick() {
  if (with_.Carry.IsCarrying()) return;
  LaunchItem(with_.Launch, kDatePanel);
}

}  // namespace corvelle
