#include "forms/Graphic.h"

#include <utility>

#include "forms/Scale.h"
#include "forms/Surface.h"

namespace corvelle::forms {

Graphic::Graphic(Surface& container, std::string name)
    : Control(std::move(name)), container_(&container) {
  container_->Add(*this);
}

Graphic::~Graphic() {
  if (Visible()) container_->Invalidate(Graphic::PaintBounds());
  container_->Remove(*this);
}

void Graphic::ZOrder(ZPlace place) {
  container_->Restack(*this, place);
  Changed();
}

PixelRect Graphic::PaintBounds() const {
  return ToPixels(Left(), Top(), Width(), Height(), container_->Scale());
}

void Graphic::Changed() {
  if (Visible()) container_->Invalidate(PaintBounds());
}

void Graphic::VisibleChanged() {
  if (!Visible()) container_->DropCapture(*this);
  container_->Invalidate(PaintBounds());
}

void Graphic::EnabledChanged() {
  if (!Enabled()) container_->DropCapture(*this);
  Changed();
}

void Graphic::BoundsChanged(float oldLeft, float oldTop, float oldWidth, float oldHeight) {
  if (!Visible()) return;
  const PixelRect before = ToPixels(oldLeft, oldTop, oldWidth, oldHeight, container_->Scale());
  if (before == PaintBounds()) return;
  container_->Invalidate(before);
  container_->Invalidate(PaintBounds());
}

}  // namespace corvelle::forms
