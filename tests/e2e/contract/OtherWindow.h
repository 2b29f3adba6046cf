#pragma once

#include <windows.h>

#include <atomic>
#include <thread>

namespace corvelle {

inline constexpr wchar_t kOtherClass[] = L"CorvelleOther";

/// What the other window answers with 7, and what it never answers in time.
inline constexpr UINT kAnswered = WM_APP;
inline constexpr UINT kNotAnswered = WM_APP + 1;
inline constexpr DWORD kTooLong = 4000;

/// A window that a thread of its own runs, as another program would.
class OtherWindow {
 public:
  OtherWindow() : thread_([this] { Run(); }) {
    while (handle_ == nullptr) Sleep(1);
  }
  OtherWindow(const OtherWindow&) = delete;
  OtherWindow& operator=(const OtherWindow&) = delete;
  ~OtherWindow() {
    Close();
    thread_.join();
  }

  HWND Handle() const { return handle_; }
  void Close() { SendMessageW(handle_, WM_CLOSE, 0, 0); }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) PostQuitMessage(0);
    if (message == kAnswered) return 7;
    if (message == kNotAnswered) Sleep(kTooLong);
    return DefWindowProcW(window, message, wParam, lParam);
  }

  void Run() {
    WNDCLASSW made{};
    made.lpfnWndProc = &Procedure;
    made.hInstance = GetModuleHandleW(nullptr);
    made.lpszClassName = kOtherClass;
    RegisterClassW(&made);
    const HWND window =
        CreateWindowExW(0, kOtherClass, L"Contract other", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100,
                        100, 200, 150, nullptr, nullptr, made.hInstance, nullptr);
    UpdateWindow(window);
    handle_ = window;
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  }

  std::atomic<HWND> handle_ = nullptr;
  std::thread thread_;
};

}  // namespace corvelle
