#pragma once

#include <functional>

#include "forms/WindowSystem.h"

namespace corvelle::forms {

/// Calls its Tick every Interval milliseconds while it is enabled. Interval 0 never ticks. Setting
/// the interval, to the same value too, or switching the timer on starts the wait again; switching
/// on one that is on changes nothing.
class Timer {
 public:
  explicit Timer(WindowSystem& windows) : windows_(windows) {}
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;
  ~Timer();

  std::function<void()> Tick;

  int Interval() const noexcept { return interval_; }
  void SetInterval(int milliseconds);
  bool Enabled() const noexcept { return enabled_; }
  void SetEnabled(bool enabled);

 private:
  void Restart();

  WindowSystem& windows_;
  int interval_ = 0;
  bool enabled_ = false;
  TimerId running_ = 0;
};

}  // namespace corvelle::forms
