// Drags of other programs over a surface, and which control on it they are for.

#include "forms/Surface.h"

namespace corvelle::forms {

DropEffect Surface::CallDrag(DragHandler Graphic::*ofGraphic, const DragHandler& ofSurface,
                             DragData& data, DropEffect allowed, const DragPoint& where) {
  const PixelScale scale = Scale();
  const PixelPoint inside{where.At.x - BorderPixels(), where.At.y - BorderPixels()};
  float x = static_cast<float>(inside.x) * scale.TwipsPerPixelX;
  float y = static_cast<float>(inside.y) * scale.TwipsPerPixelY;
  const Graphic* const target = GraphicAt(inside);
  const bool own = target != nullptr && target->*ofGraphic;
  if (own) {
    x -= target->Left();
    y -= target->Top();
  }
  // A copy, since a handler may destroy the control that it belongs to.
  const DragHandler handler = own ? target->*ofGraphic : ofSurface;
  if (!handler) return DropEffect::None;
  DropEffect effect = allowed;
  handler(data, effect, where.Down, where.Shift, x, y);
  return effect & allowed;
}

DropEffect Surface::OnDragOver(DragData& data, DropEffect allowed, const DragPoint& where) {
  return CallDrag(&Graphic::OLEDragOver, OLEDragOver, data, allowed, where);
}

void Surface::OnDragLeave() {
  const std::function<void()> handler = OLEDragLeave;
  if (handler) handler();
}

DropEffect Surface::OnDrop(DragData& data, DropEffect allowed, const DragPoint& where) {
  return CallDrag(&Graphic::OLEDragDrop, OLEDragDrop, data, allowed, where);
}

}  // namespace corvelle::forms
