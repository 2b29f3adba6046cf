#include "win32/Win32ToolTips.h"

#include <string>

#include "win32/CommonControls.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

TTTOOLINFOW InfoOf(HWND window) {
  TTTOOLINFOW info{};
  // The size that every version of the library knows.
  info.cbSize = TTTOOLINFOW_V2_SIZE;
  info.uFlags = TTF_IDISHWND;
  info.hwnd = window;
  info.uId = reinterpret_cast<UINT_PTR>(window);
  return info;
}

}  // namespace

// A window that is known already would keep its tip from coming up again before the pointer has
// been elsewhere.
void Win32ToolTips::Set(HWND window, std::string_view text) {
  Forget(window);
  if (text.empty()) return;
  if (!tips_) {
    StartCommonControls();
    tips_.Reset(CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, TOOLTIPS_CLASSW, L"",
                                WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, 0, 0, 0, 0, nullptr,
                                nullptr, Module(), nullptr));
  }
  std::wstring wide = Wide(text);
  TTTOOLINFOW info = InfoOf(window);
  info.lpszText = wide.data();
  SendMessageW(tips_.Get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&info));
}

void Win32ToolTips::Forget(HWND window) {
  if (!tips_) return;
  if (window == pressed_) pressed_ = nullptr;
  TTTOOLINFOW info = InfoOf(window);
  SendMessageW(tips_.Get(), TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&info));
}

void Win32ToolTips::Relay(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (!tips_ || message < WM_MOUSEFIRST || message > WM_MBUTTONDBLCLK) return;
  if (message == WM_MOUSEMOVE && window == pressed_) return;
  pressed_ = message == WM_MOUSEMOVE ? nullptr : window;
  MSG relayed{};
  relayed.hwnd = window;
  relayed.message = message;
  relayed.wParam = wParam;
  relayed.lParam = lParam;
  relayed.time = static_cast<DWORD>(GetMessageTime());
  GetCursorPos(&relayed.pt);
  SendMessageW(tips_.Get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

}  // namespace corvelle::win32
