#include "win32/Win32Timers.h"

#include <algorithm>
#include <utility>

namespace corvelle::win32 {

namespace {

constexpr wchar_t kTimersClass[] = L"CorvelleTimers";

void RegisterTimerClass(WNDPROC procedure) {
  WNDCLASSEXW known{};
  known.cbSize = sizeof(known);
  if (GetClassInfoExW(Module(), kTimersClass, &known) != 0) return;
  WNDCLASSEXW made{};
  made.cbSize = sizeof(made);
  made.lpfnWndProc = procedure;
  made.hInstance = Module();
  made.lpszClassName = kTimersClass;
  RegisterClassExW(&made);
}

}  // namespace

Win32Timers::Win32Timers() {
  RegisterTimerClass(&Win32Timers::Procedure);
  window_ = CreateWindowExW(0, kTimersClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, Module(),
                            nullptr);
  if (window_ != nullptr)
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

Win32Timers::~Win32Timers() {
  // The timers of a window end with it.
  if (window_ != nullptr) DestroyWindow(window_);
}

forms::TimerId Win32Timers::Start(int milliseconds, std::function<void()> tick) {
  const forms::TimerId id = ++lastId_;
  ticks_[id] = std::make_shared<const std::function<void()>>(std::move(tick));
  SetTimer(window_, id, static_cast<UINT>(std::max(milliseconds, USER_TIMER_MINIMUM)), nullptr);
  return id;
}

void Win32Timers::Stop(forms::TimerId timer) {
  if (ticks_.erase(timer) > 0) KillTimer(window_, timer);
}

void Win32Timers::Tick(forms::TimerId timer) {
  // A message of a timer that was stopped since may still arrive.
  const auto at = ticks_.find(timer);
  if (at == ticks_.end()) return;
  const auto tick = at->second;
  (*tick)();
}

LRESULT CALLBACK Win32Timers::Procedure(HWND window, UINT message, WPARAM wParam,
                                        LPARAM lParam) noexcept {
  if (message == WM_TIMER) {
    auto* const timers = reinterpret_cast<Win32Timers*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (timers != nullptr) timers->Tick(static_cast<forms::TimerId>(wParam));
    return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace corvelle::win32
