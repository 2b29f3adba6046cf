#pragma once

#include "forms/Types.h"
#include "win32/Sys.h"

namespace corvelle::win32 {

/// What is held down, by the key flags of a mouse message or of OLE. Alt is in neither.
inline forms::MouseButton ButtonsDown(WPARAM keys) noexcept {
  using forms::MouseButton;
  auto down = MouseButton::None;
  if ((keys & MK_LBUTTON) != 0) down = down | MouseButton::Left;
  if ((keys & MK_RBUTTON) != 0) down = down | MouseButton::Right;
  if ((keys & MK_MBUTTON) != 0) down = down | MouseButton::Middle;
  return down;
}

inline forms::ShiftState ShiftOfMouse(WPARAM keys) noexcept {
  return {.Shift = (keys & MK_SHIFT) != 0,
          .Ctrl = (keys & MK_CONTROL) != 0,
          .Alt = GetKeyState(VK_MENU) < 0};
}

}  // namespace corvelle::win32
