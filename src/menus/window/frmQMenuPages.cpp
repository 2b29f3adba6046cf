// The two arrow buttons and the turning of pages.

#include "core/Program.h"
#include "menus/window/frmQMenu.h"
#include "platform/DesktopWindows.h"

namespace corvelle {

using forms::MouseButton;

void frmQMenu::LblButton_MouseDown(int index, MouseButton button) {
  TakeFocus();
  if (button == MouseButton::Left) picMouseDown(index);
}

void frmQMenu::LblButton_DblClick(int index) {
  // The second press of a double click comes as this event instead of a press.
  picMouseDown(index);
}

void frmQMenu::LblButton_MouseMove(int index, MouseButton down) {
  if (down != MouseButton::None || program_.Guards.MenuBuilding) return;
  rebuilt_ = false;
  program_.Menu.KeyboardOnToolbar = false;
  if (program_.Services.Desktop.ActiveWindow() != hWnd()) SetFocus();
  if (ActiveArrow == index) return;
  picMouseMove(index);
  ActiveArrow = index;
  DropSelection();
}

void frmQMenu::LblButton_MouseUp(int index, MouseButton button, float x, float y) {
  if (program_.Entry.ItemDragging) {
    // What is carried is put down here as on any other place without an item.
    Form_MouseUp(button, {}, x + LblButton[index].Left(), y + LblButton[index].Top());
    return;
  }
  picMouseUp(index);
  if (pages_.Slides() == 0 || button != MouseButton::Left) return;
  const forms::Label& arrow = LblButton[index];
  if (x < 0 || y < 0 || x >= arrow.Width() || y >= arrow.Height()) return;
  const int page = pages_.CurMenu() + (index == 0 ? -1 : 1);
  if (pages_.Has(page)) TurnTo(page);
}

void frmQMenu::TurnTo(int page) {
  // A page that is being drawn stays until it is done.
  if (drawingPage_) return;
  DropSelection();
  HoldUpForIcons();
  pages_.TurnTo(page);
  ShowSlide();
  const int used = page < pages_.PrevPage() ? 0 : 1;
  if (!LblButton[used].Enabled()) HideUpDownButton();
  AwaitHeldKeys();
}

void frmQMenu::GetCurMenu() {
  if (const std::optional<int> page = pages_.PageToReturnTo()) TurnTo(*page);
  for (int i = std::max(pages_.FirstLabel(), 1); i <= pages_.LastLabel(); ++i) SetNormal(i);
  DropSelection();
  rebuilt_ = true;
}

// ---- the frame of an arrow button ----

void frmQMenu::picMouseMove(int index) { DrawArrowFrame(index, false); }
void frmQMenu::picMouseDown(int index) { DrawArrowFrame(index, true); }
void frmQMenu::picMouseUp(int index) {
  if (LineLeft.Visible()) DrawArrowFrame(index, false);
}

void frmQMenu::DrawArrowFrame(int index, bool sunken) {
  const forms::Label& arrow = LblButton[index];
  const ButtonFrame frame =
      FrameOf({arrow.Left(), arrow.Top(), arrow.Width(), arrow.Height()}, TwipsX);
  const forms::OleColor lit = sunken ? forms::color::ButtonShadow : forms::color::Highlight3D;
  const forms::OleColor dark = sunken ? forms::color::Highlight3D : forms::color::ButtonShadow;
  for (forms::Line* line : {&LineLeft, &LineTop}) line->SetBorderColor(lit);
  for (forms::Line* line : {&LineRight, &LineDown}) line->SetBorderColor(dark);
  SetLine(LineLeft, frame.LineLeft);
  SetLine(LineTop, frame.LineTop);
  SetLine(LineRight, frame.LineRight);
  SetLine(LineDown, frame.LineDown);
  for (forms::Line* line : {&LineLeft, &LineTop, &LineRight, &LineDown}) {
    line->ZOrder(forms::ZPlace::Front);
  }
}

void frmQMenu::HideUpDownButton() {
  for (forms::Line* line : {&LineLeft, &LineTop, &LineRight, &LineDown}) line->SetVisible(false);
}

}  // namespace corvelle
