#include "forms/Timer.h"

#include <utility>

namespace corvelle::forms {

Timer::~Timer() {
  if (running_ != 0) windows_.StopTimer(running_);
}

void Timer::SetInterval(int milliseconds) {
  interval_ = milliseconds;
  Restart();
}

void Timer::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  Restart();
}

void Timer::Restart() {
  if (running_ != 0) windows_.StopTimer(std::exchange(running_, TimerId{0}));
  if (!enabled_ || interval_ <= 0) return;
  running_ = windows_.StartTimer(interval_, [this] {
    // A copy, since the tick may destroy the timer and its handler.
    const std::function<void()> tick = Tick;
    if (tick) tick();
  });
}

}  // namespace corvelle::forms
