#pragma once

#include <functional>
#include <string>

#include "forms/Graphic.h"

namespace corvelle::forms {

/// A flat button without a window of its own: a caption in a raised frame, which sinks while the
/// left button is down on it. It takes no focus.
class FlatButton final : public Graphic {
 public:
  FlatButton(Surface& container, std::string name);

  const std::string& Caption() const noexcept { return caption_; }
  void SetCaption(std::string caption);
  [[nodiscard]] bool IsDown() const noexcept { return down_; }

  /// Pressed and released on it with the left button. It may destroy the button.
  std::function<void()> Click;

  void Paint(Canvas& canvas) const override;
  bool TakesMouse() const noexcept override { return true; }

 protected:
  void EnabledChanged() override;
  void VisibleChanged() override;

 private:
  [[nodiscard]] bool IsOver(float x, float y) const noexcept;
  void SetDown(bool down);

  std::string caption_;
  bool pressed_ = false;  // the left button went down on it and is still held
  bool down_ = false;     // and the pointer is over it
};

}  // namespace corvelle::forms
