#include "e2e/Heartbeat.h"

#include <algorithm>
#include <utility>

namespace corvelle::e2e {

namespace {

constexpr DWORD kBetweenKnocks = 5;      // milliseconds
constexpr UINT kLongestAnswer = 60'000;  // longer than any road
constexpr int kTries = 200;
constexpr DWORD kBetweenPieces = 100;  // milliseconds

/// Some work that nothing can be left out of. Milliseconds that it took.
double Count(int rounds) {
  const double before = NowInMilliseconds();
  volatile unsigned sum = 0;
  for (int i = 0; i < rounds; ++i) sum = sum * 31U + static_cast<unsigned>(i);
  return NowInMilliseconds() - before;
}

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

SameWork::SameWork() : thread_([this] { Work(); }) {}

void SameWork::Stop() {
  over_ = true;
  if (thread_.joinable()) thread_.join();
}

void SameWork::Work() {
  // The quickest of many tries is one that nobody interrupted.
  constexpr int kRounds = 100'000;
  double quickest = Count(kRounds);
  for (int i = 0; i < kTries; ++i) quickest = std::min(quickest, Count(kRounds));
  const int rounds = static_cast<int>(kAlone / std::max(quickest, 0.001) * kRounds);
  for (; !over_; Sleep(kBetweenPieces)) longest_ = std::max(longest_.load(), Count(rounds));
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
