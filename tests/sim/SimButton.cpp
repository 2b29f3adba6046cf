#include "sim/SimButton.h"

#include <string>

#include "sim/SimControlPainting.h"

namespace corvelle::sim {

using forms::ButtonLook;

namespace {

constexpr int kBox = 13;

}  // namespace

void SimButton::SetChecked(bool checked) {
  checked_ = checked;
  Changed();
}

void SimButton::SetDefault(bool isDefault) {
  default_ = isDefault;
  Changed();
}

// A control is pressed by a press and a release on it.
void SimButton::Release(forms::MouseButton button, forms::ShiftState /*shift*/, PixelPoint /*at*/,
                        bool over) {
  if (over && button == forms::MouseButton::Left && TakesFocus()) events_.OnPress();
}

void SimButton::Key(int keyCode, forms::ShiftState shift) {
  if (keyCode == forms::key::Space && !shift.Alt && TakesFocus()) events_.OnPress();
}

void SimButton::PaintMark(SimCanvas& canvas, PixelSize size, Rgb ink) const {
  const int top = (size.height - kBox) / 2;
  canvas.FillBox({0, top, kBox, top + kBox}, Desktop().SystemColor(21));
  canvas.FillBox({1, top + 1, kBox - 1, top + kBox - 1}, Desktop().SystemColor(5));
  if (!checked_) return;
  if (look_ == ButtonLook::Option) {
    canvas.FillBox({4, top + 4, kBox - 4, top + kBox - 4}, ink);
  } else {
    canvas.DrawLine({3, top + 6}, {6, top + 9}, ink, 2);
    canvas.DrawLine({6, top + 9}, {11, top + 3}, ink, 2);
  }
}

void SimButton::Paint(SimCanvas& canvas, const SimWindow& window, bool focused) const {
  const SimDesktop& desktop = Desktop();
  const PixelSize size = window.Bounds.Size();
  canvas.FillBox({0, 0, size.width, size.height}, desktop.SystemColor(15));
  const std::string text = WithoutAccessKey(window.Text);
  const PixelSize words = TextSize(text, {{}, window.Dpi});
  const Rgb ink = desktop.SystemColor(window.Enabled ? 18 : 17);
  PixelPoint place{(size.width - words.width) / 2, (size.height - words.height) / 2};
  switch (look_) {
    case ButtonLook::Command:
      PaintEdge(desktop, canvas, {0, 0, size.width, size.height}, true);
      break;
    case ButtonLook::Frame:
      PaintEdge(desktop, canvas, {0, words.height / 2, size.width, size.height}, false);
      place = {8, 0};
      canvas.FillBox(RectAt(place, words), desktop.SystemColor(15));
      break;
    case ButtonLook::Check:
    case ButtonLook::Option:
      PaintMark(canvas, size, ink);
      place.x = kBox + 4;
      break;
  }
  canvas.DrawString(place, text, {{}, window.Dpi}, ink);
  if (!focused) return;
  const int under = place.y + words.height;
  canvas.DrawLine({place.x, under}, {place.x + words.width, under}, desktop.SystemColor(16), 1);
}

}  // namespace corvelle::sim
