#pragma once

#include <string>

#include "base/Geometry.h"
#include "base/Twips.h"
#include "forms/Types.h"

namespace corvelle::forms {

class Surface;
class WindowSystem;

/// What all controls share: a name, a tag, a place on their container. All measures are twips. A
/// change of what can be seen repaints it once, at the next paint.
class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const std::string& Name() const noexcept { return name_; }

  std::string Tag;

  bool Visible() const noexcept { return visible_; }
  bool Enabled() const noexcept { return enabled_; }
  float Left() const noexcept { return left_; }
  float Top() const noexcept { return top_; }
  float Width() const noexcept { return width_; }
  float Height() const noexcept { return height_; }
  float Right() const noexcept { return left_ + width_; }
  float Bottom() const noexcept { return top_ + height_; }
  TwipRect Bounds() const noexcept { return {left_, top_, width_, height_}; }

  /// The text that comes up when the pointer rests on the control; none when it is empty. A
  /// disabled control shows none, nor one that takes no mouse events.
  [[nodiscard]] const std::string& ToolTip() const noexcept { return toolTip_; }
  void SetToolTip(std::string text);

  void SetVisible(bool visible);
  void SetEnabled(bool enabled);
  void SetLeft(float left) { Move(left, top_, width_, height_); }
  void SetTop(float top) { Move(left_, top, width_, height_); }
  void SetWidth(float width) { Move(left_, top_, width, height_); }
  void SetHeight(float height) { Move(left_, top_, width_, height); }
  void Move(float left, float top, float width, float height);

  /// Before or behind all others of its kind in the container (controls without a window lie behind
  /// those with one).
  virtual void ZOrder(ZPlace place) = 0;

 protected:
  explicit Control(std::string name) : name_(std::move(name)) {}

  /// Called after the property has its new value.
  virtual void VisibleChanged() = 0;
  virtual void EnabledChanged() = 0;
  virtual void ToolTipChanged() {}
  virtual void BoundsChanged(float oldLeft, float oldTop, float oldWidth, float oldHeight) = 0;

  /// Takes new bounds without telling anyone: they came from the window system.
  void AdoptBounds(float left, float top, float width, float height) noexcept;
  void AdoptVisible(bool visible) noexcept { visible_ = visible; }

 private:
  std::string name_;
  std::string toolTip_;
  bool visible_ = true;
  bool enabled_ = true;
  float left_ = 0;
  float top_ = 0;
  float width_ = 0;
  float height_ = 0;
};

}  // namespace corvelle::forms
