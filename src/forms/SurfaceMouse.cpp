// The controls on a surface: their order, and who gets the mouse.

#include <algorithm>
#include <utility>

#include "forms/Surface.h"

namespace corvelle::forms {

void Surface::Add(Graphic& graphic) { graphics_.push_back(&graphic); }

void Surface::Remove(Graphic& graphic) {
  DropCapture(graphic);
  std::erase(graphics_, &graphic);
}

void Surface::Restack(Graphic& graphic, ZPlace place) {
  const auto at = std::find(graphics_.begin(), graphics_.end(), &graphic);
  if (at == graphics_.end()) return;
  if (place == ZPlace::Front) {
    std::rotate(at, at + 1, graphics_.end());
  } else {
    std::rotate(graphics_.begin(), at, at + 1);
  }
}

void Surface::DropCapture(const Graphic& graphic) noexcept {
  if (captured_ != &graphic) return;
  captured_ = nullptr;
  down_ = MouseButton::None;
}

Graphic* Surface::GraphicAt(PixelPoint inside) const {
  for (auto at = graphics_.rbegin(); at != graphics_.rend(); ++at) {
    const Graphic& graphic = **at;
    if (graphic.Visible() && graphic.Enabled() && graphic.TakesMouse() &&
        graphic.PaintBounds().Contains(inside)) {
      return *at;
    }
  }
  return nullptr;
}

Graphic* Surface::TargetAt(PixelPoint at) const {
  if (down_ != MouseButton::None) return captured_;
  return GraphicAt({at.x - BorderPixels(), at.y - BorderPixels()});
}

void Surface::StartPress(MouseButton button, Graphic* target) noexcept {
  if (down_ == MouseButton::None) captured_ = target;
  down_ = down_ | button;
}

TwipPoint Surface::InsideTwips(PixelPoint at) const {
  const PixelScale scale = Scale();
  const int border = BorderPixels();
  return {static_cast<float>(at.x - border) * scale.TwipsPerPixelX,
          static_cast<float>(at.y - border) * scale.TwipsPerPixelY};
}

TwipPoint Surface::PressPlace() const { return InsideTwips(pressedAt_); }

void Surface::CallMouse(Graphic* target, MouseHandler Graphic::*ofGraphic,
                        MouseHandler Surface::*ofSurface, MouseButton button, ShiftState shift,
                        PixelPoint at) {
  auto [x, y] = InsideTwips(at);
  if (target != nullptr) {
    x -= target->Left();
    y -= target->Top();
  }
  // A copy, since a handler may destroy the control that it belongs to.
  const MouseHandler handler = target != nullptr ? target->*ofGraphic : this->*ofSurface;
  if (handler) handler(button, shift, x, y);
}

void Surface::OnMouseDown(MouseButton button, ShiftState shift, PixelPoint at) {
  Graphic* const target = TargetAt(at);
  StartPress(button, target);
  pressedAt_ = at;
  CallMouse(target, &Graphic::MouseDown, &Surface::MouseDown, button, shift, at);
}

void Surface::ToolTipChanged() {
  shownToolTip_ = ToolTip();
  Window::ToolTipChanged();
}

void Surface::ShowToolTipOf(const Graphic* graphic) {
  const bool own = graphic == nullptr || graphic->ToolTip().empty();
  const std::string& wanted = own ? ToolTip() : graphic->ToolTip();
  if (wanted == shownToolTip_ || Peer() == nullptr) return;
  shownToolTip_ = wanted;
  Peer()->SetToolTip(shownToolTip_);
}

void Surface::OnMouseMove(MouseButton down, ShiftState shift, PixelPoint at) {
  Graphic* const target = TargetAt(at);
  ShowToolTipOf(target);
  CallMouse(target, &Graphic::MouseMove, &Surface::MouseMove, down, shift, at);
}

void Surface::OnMouseUp(MouseButton button, ShiftState shift, PixelPoint at) {
  Graphic* const target = TargetAt(at);
  down_ = static_cast<MouseButton>(static_cast<unsigned>(down_) & ~static_cast<unsigned>(button));
  if (down_ == MouseButton::None) captured_ = nullptr;
  CallMouse(target, &Graphic::MouseUp, &Surface::MouseUp, button, shift, at);
}

void Surface::OnCaptureLost() {
  down_ = MouseButton::None;
  const Graphic* const pressed = std::exchange(captured_, nullptr);
  const std::function<void()> handler = pressed != nullptr ? pressed->CaptureLost : CaptureLost;
  if (handler) handler();
}

void Surface::OnDoubleClick(PixelPoint at) {
  Graphic* const target = TargetAt(at);
  StartPress(MouseButton::Left, target);
  pressedAt_ = at;
  const std::function<void()> handler = target != nullptr ? target->DblClick : DblClick;
  if (handler) handler();
}

}  // namespace corvelle::forms
