#include "win32/Win32Input.h"

#include "win32/Sys.h"

namespace corvelle::win32 {

PixelPoint Win32Input::PointerPosition() const noexcept {
  POINT at{};
  if (GetCursorPos(&at) == 0) return {};
  return {static_cast<int>(at.x), static_cast<int>(at.y)};
}

void Win32Input::SetPointerPosition(PixelPoint at) { SetCursorPos(at.x, at.y); }

bool Win32Input::IsKeyDown(int virtualKey) const noexcept {
  if (GetSystemMetrics(SM_SWAPBUTTON) != 0) {
    if (virtualKey == VK_LBUTTON) {
      virtualKey = VK_RBUTTON;
    } else if (virtualKey == VK_RBUTTON) {
      virtualKey = VK_LBUTTON;
    }
  }
  return GetAsyncKeyState(virtualKey) < 0;
}

void Win32Input::Beep() { MessageBeep(MB_OK); }

}  // namespace corvelle::win32
