// A program with one window and nothing else: what the start of any program costs.

#include <windows.h>

namespace {

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_DESTROY) PostQuitMessage(0);
  return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
  WNDCLASSW look = {};
  look.lpfnWndProc = Procedure;
  look.hInstance = instance;
  look.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  look.lpszClassName = L"bare";
  RegisterClassW(&look);
  CreateWindowExW(WS_EX_TOOLWINDOW, look.lpszClassName, L"", WS_POPUP | WS_VISIBLE, 0, 0, 400, 30,
                  nullptr, nullptr, instance, nullptr);
  MSG message = {};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}
