#pragma once

#include <windows.h>

// What the bare programs share: a window of no use, and the messages that it gets.
namespace corvelle::bare {

inline LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wParam, lParam);
}

/// A window of a class of its own, found by that name. Null when the system refuses it.
inline HWND MakeWindow(HINSTANCE instance, const wchar_t* name, DWORD style) {
  WNDCLASSW look = {};
  look.lpfnWndProc = Procedure;
  look.hInstance = instance;
  look.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  look.lpszClassName = name;
  RegisterClassW(&look);
  return CreateWindowExW(WS_EX_TOOLWINDOW, name, L"", WS_POPUP | style, 0, 0, 400, 30, nullptr,
                         nullptr, instance, nullptr);
}

/// Until the window is destroyed.
inline void RunMessages() {
  MSG message = {};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
}

}  // namespace corvelle::bare
