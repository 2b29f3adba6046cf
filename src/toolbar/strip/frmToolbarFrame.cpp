// The strip's frame and its grip, by which the strip is moved.

#include "core/Program.h"
#include "toolbar/strip/frmToolbar.h"

namespace corvelle {
namespace {

constexpr int kGrip = 0;  // index of the grip among the separators

}  // namespace

void frmToolbar::lblSep_MouseDown(int index, forms::MouseButton button, float x, float y) {
  if (index != kGrip || button == forms::MouseButton::None) return;
  Timer2.SetEnabled(false);
  Pull.MouseDown(button, x + lblSep[kGrip].Left(), y + lblSep[kGrip].Top());
}

void frmToolbar::lblSep_MouseMove(int index, forms::MouseButton down, float x, float y) {
  if (down == forms::MouseButton::None) {
    program_.Ports.SetHint("");
    if (MenuUp()) Pull.FrameDragging = true;
    return;
  }
  if (index != kGrip || !Pull.FrameHeld || !forms::Has(down, forms::MouseButton::Left)) return;
  // While the grip is held nothing else may place the strip.
  program_.Guards.RestoreBusy = true;
  if (program_.Guards.AppBarBusy) return;
  Pull.Follow(down, x + lblSep[kGrip].Left(), y + lblSep[kGrip].Top());
}

void frmToolbar::lblSep_MouseUp(int index, forms::MouseButton button, float x, float y) {
  program_.Guards.RestoreBusy = false;
  const forms::Label& label = lblSep[index];
  const bool inside = x >= 0 && y >= 0 && x < label.Width() && y < label.Height();
  if (button == forms::MouseButton::Right && !program_.Entry.ItemDragging && !Pull.FrameMoved &&
      inside) {
    Pull.ShowFramePopup("B1");
  } else if (index == kGrip) {
    Pull.MouseUp(button);
  }
}

// The second press of a quick pair takes hold of the strip like any other press.
void frmToolbar::Form_DblClick() {
  const TwipPoint at = PressPlace();
  Pull.MouseDown(forms::MouseButton::Left, at.X, at.Y);
}

void frmToolbar::FrameMouseMove(forms::MouseButton down, float x, float y) {
  if (program_.Strip.AutoHide && !picToolbar.Visible() && Visible()) Hiding.RevealFromLine();
  Pull.MouseMove(down, x, y);
}

}  // namespace corvelle
