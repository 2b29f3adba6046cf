#pragma once

#include <windows.h>

#include <cstdint>

#include "forms/WindowSystem.h"

namespace corvelle {

/// Lets events run for a while.
inline void RunEvents(forms::WindowSystem& windows, int milliseconds) {
  const std::int64_t end = windows.Now() + milliseconds;
  windows.DoEvents();
  while (windows.Now() < end) {
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
    windows.DoEvents();
  }
}

/// Runs the events of a test beside the test's own lines, on the same thread but another stack.
/// Some presses have a loop of the system's own, which ends with the release only: in a tree, on
/// the frame of a window. The test goes on in the meantime and can let the button go.
class EventFiber {
 public:
  explicit EventFiber(forms::WindowSystem& windows) : windows_(windows) {
    static_cast<void>(TestFiber());
    events_ = CreateFiber(0, &Body, this);
    current_ = this;
    timer_ = SetTimer(nullptr, 0, kTick, &Tick);
  }
  EventFiber(const EventFiber&) = delete;
  EventFiber& operator=(const EventFiber&) = delete;
  ~EventFiber() {
    // A loop of the system may be about to end.
    for (int tries = 0; tries < kMostTries && !AtRest(); ++tries) Run(kTick);
    KillTimer(nullptr, timer_);
    current_ = nullptr;
    DeleteFiber(events_);
  }

  /// Lets events run for a while, and comes back though one of them has not ended yet.
  void Run(int milliseconds) {
    if (inEvents_) {
      // Asked for by what an event does.
      ++inside_;
      RunEvents(windows_, milliseconds);
      --inside_;
      return;
    }
    end_ = windows_.Now() + milliseconds;
    inEvents_ = true;
    SwitchToFiber(events_);
    inEvents_ = false;
  }
  /// True unless an event has not ended yet.
  [[nodiscard]] bool AtRest() const noexcept { return atRest_; }

 private:
  static constexpr UINT kTick = 10;     // milliseconds
  static constexpr int kPatience = 40;  // milliseconds in which the events end by themselves
  static constexpr int kSlice = 5;      // milliseconds
  static constexpr int kMostTries = 200;

  static void CALLBACK Body(void* self) {
    auto& fiber = *static_cast<EventFiber*>(self);
    while (true) {
      fiber.atRest_ = false;
      // The end is another one when an event has waited for the test.
      do {
        RunEvents(fiber.windows_, kSlice);
      } while (fiber.windows_.Now() < fiber.end_);
      fiber.atRest_ = true;
      SwitchToFiber(TestFiber());
    }
  }

  // The thread becomes one once.
  static void* TestFiber() {
    static void* const fiber = ConvertThreadToFiber(nullptr);
    return fiber;
  }

  // Loops of the system let timers through.
  static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
    const EventFiber* const fiber = current_;
    if (fiber == nullptr || !fiber->inEvents_ || fiber->inside_ > 0) return;
    if (fiber->windows_.Now() >= fiber->end_ + kPatience) SwitchToFiber(TestFiber());
  }

  inline static const EventFiber* current_ = nullptr;

  forms::WindowSystem& windows_;
  void* events_ = nullptr;
  UINT_PTR timer_ = 0;
  std::int64_t end_ = 0;
  bool inEvents_ = false;  // this stack is the one of the events
  int inside_ = 0;
  bool atRest_ = true;
};

}  // namespace corvelle
