#include "forms/Control.h"

#include <utility>

namespace corvelle::forms {

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  VisibleChanged();
}

void Control::SetToolTip(std::string text) {
  if (text == toolTip_) return;
  toolTip_ = std::move(text);
  ToolTipChanged();
}

void Control::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  EnabledChanged();
}

void Control::Move(float left, float top, float width, float height) {
  const float oldLeft = left_;
  const float oldTop = top_;
  const float oldWidth = width_;
  const float oldHeight = height_;
  AdoptBounds(left, top, width, height);
  if (left == oldLeft && top == oldTop && width == oldWidth && height == oldHeight) return;
  BoundsChanged(oldLeft, oldTop, oldWidth, oldHeight);
}

void Control::AdoptBounds(float left, float top, float width, float height) noexcept {
  left_ = left;
  top_ = top;
  width_ = width;
  height_ = height;
}

}  // namespace corvelle::forms
