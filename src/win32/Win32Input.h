#pragma once

#include "platform/Input.h"

namespace corvelle::win32 {

/// The pointer and the keyboard of the machine. Buttons are those of the user: for one who has
/// swapped them, button 1 is the right one.
class Win32Input final : public Input {
 public:
  PixelPoint PointerPosition() const noexcept override;
  void SetPointerPosition(PixelPoint at) override;
  bool IsKeyDown(int virtualKey) const noexcept override;
  void Beep() override;
};

}  // namespace corvelle::win32
