#pragma once

#include "base/Geometry.h"

namespace corvelle {

/// The pointer and the keyboard as they are now, wherever on the screen.
class Input {
 public:
  virtual ~Input() = default;

  /// Screen pixels; (0, 0) when the system does not tell.
  [[nodiscard]] virtual PixelPoint PointerPosition() const noexcept = 0;
  virtual void SetPointerPosition(PixelPoint at) = 0;

  /// True while the key or mouse button with this virtual-key code is down (1 left, 2 right
  /// button).
  [[nodiscard]] virtual bool IsKeyDown(int virtualKey) const noexcept = 0;

  virtual void Beep() = 0;
};

}  // namespace corvelle
