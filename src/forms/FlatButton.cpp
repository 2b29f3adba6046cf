#include "forms/FlatButton.h"

#include <utility>

#include "forms/Surface.h"

namespace corvelle::forms {

FlatButton::FlatButton(Surface& container, std::string name) : Graphic(container, std::move(name)) {
  MouseDown = [this](MouseButton button, ShiftState, float, float) {
    if (button != MouseButton::Left) return;
    pressed_ = true;
    SetDown(true);
  };
  MouseMove = [this](MouseButton, ShiftState, float x, float y) {
    SetDown(pressed_ && IsOver(x, y));
  };
  CaptureLost = [this] {
    pressed_ = false;
    SetDown(false);
  };
  MouseUp = [this](MouseButton button, ShiftState, float x, float y) {
    if (button != MouseButton::Left || !std::exchange(pressed_, false)) return;
    SetDown(false);
    if (!IsOver(x, y)) return;
    const std::function<void()> click = Click;
    if (click) click();
  };
}

void FlatButton::SetCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  Changed();
}

bool FlatButton::IsOver(float x, float y) const noexcept {
  return x >= 0 && y >= 0 && x < Width() && y < Height();
}

void FlatButton::SetDown(bool down) {
  if (down == down_) return;
  down_ = down;
  Changed();
}

void FlatButton::EnabledChanged() {
  pressed_ = down_ = false;
  Graphic::EnabledChanged();
}

void FlatButton::VisibleChanged() {
  pressed_ = down_ = false;
  Graphic::VisibleChanged();
}

void FlatButton::Paint(Canvas& canvas) const {
  const WindowSystem& windows = Container().Windows();
  const PixelRect box = PaintBounds();
  const Rgb light = Resolve(windows, color::Highlight3D);
  const Rgb dark = Resolve(windows, color::ButtonShadow);
  const Rgb first = down_ ? dark : light;
  const Rgb last = down_ ? light : dark;
  canvas.FillBox({box.left, box.top, box.right - 1, box.top + 1}, first);
  canvas.FillBox({box.left, box.top, box.left + 1, box.bottom - 1}, first);
  canvas.FillBox({box.left, box.bottom - 1, box.right, box.bottom}, last);
  canvas.FillBox({box.right - 1, box.top, box.right, box.bottom}, last);
  const PixelSize words = Container().MeasureText(caption_);
  const int shift = down_ ? 1 : 0;
  canvas.DrawString({(box.left + box.right - words.width) / 2 + shift,
                     (box.top + box.bottom - words.height) / 2 + shift},
                    caption_, Container().Scaled(),
                    Resolve(windows, Enabled() ? color::ButtonText : color::GrayText));
}

}  // namespace corvelle::forms
