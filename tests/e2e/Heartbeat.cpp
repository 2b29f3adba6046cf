#include "e2e/Heartbeat.h"

#include <algorithm>
#include <utility>

namespace corvelle::e2e {

namespace {

constexpr DWORD kBetweenKnocks = 5;      // milliseconds
constexpr UINT kLongestAnswer = 60'000;  // longer than any road

}  // namespace

double NowInMilliseconds() {
  LARGE_INTEGER now = {};
  LARGE_INTEGER frequency = {};
  QueryPerformanceCounter(&now);
  QueryPerformanceFrequency(&frequency);
  return static_cast<double>(now.QuadPart) * 1000 / static_cast<double>(frequency.QuadPart);
}

Heartbeat::Heartbeat(std::wstring className)
    : className_(std::move(className)), thread_([this] { Knock(); }) {}

void Heartbeat::Stop() {
  over_ = true;
  if (thread_.joinable()) thread_.join();
}

void Heartbeat::Forget() {
  longest_ = 0;
  answers_ = 0;
}

void Heartbeat::Note(double waited) { longest_ = std::max(longest_.load(), waited); }

double Heartbeat::Longest() const {
  const double since = since_;
  return std::max(longest_.load(), since > 0 ? NowInMilliseconds() - since : 0);
}

void Heartbeat::Knock() {
  for (; !over_; Sleep(kBetweenKnocks)) {
    const HWND window = FindWindowW(className_.c_str(), nullptr);
    if (window == nullptr) continue;
    const double before = NowInMilliseconds();
    since_ = before;
    DWORD_PTR answer = 0;
    const LRESULT answered =
        SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, kLongestAnswer, &answer);
    since_ = 0;
    // A window that went meanwhile has not kept anybody waiting.
    if (answered == 0 && IsWindow(window) == FALSE) continue;
    Note(NowInMilliseconds() - before);
    ++answers_;
  }
}

IdleWindow::IdleWindow()
    : thread_([this] {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = &DefWindowProcW;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.lpszClassName = kClass;
        RegisterClassW(&windowClass);
        HWND window = CreateWindowExW(0, kClass, nullptr, WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                      windowClass.hInstance, nullptr);
        id_ = GetCurrentThreadId();
        MSG message{};
        while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
        DestroyWindow(window);
      }) {
  while (id_ == 0) Sleep(1);
}

IdleWindow::~IdleWindow() {
  PostThreadMessageW(id_, WM_QUIT, 0, 0);
  thread_.join();
}

}  // namespace corvelle::e2e
