#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>

#include "forms/WindowSystem.h"

namespace corvelle::sim {

/// Time that moves only when it is told to, and the timers that hang on it.
class SimClock {
 public:
  [[nodiscard]] std::int64_t Now() const noexcept { return now_; }
  /// Moves on to `time`; never goes back. Runs nothing.
  void MoveTo(std::int64_t time) noexcept;

  /// Timers faster than this tick at this pace, as on Windows, where it is 10 ms; 1 at first, so
  /// that tests can count.
  void SetShortestInterval(int milliseconds) noexcept { shortest_ = milliseconds; }

  forms::TimerId Start(int milliseconds, std::function<void()> tick);
  void Stop(forms::TimerId timer) { timers_.erase(timer); }
  [[nodiscard]] int Running() const noexcept { return static_cast<int>(timers_.size()); }

  /// When the next timer is due; nothing when none runs.
  [[nodiscard]] std::optional<std::int64_t> NextDue() const;

  /// Runs the timer that has been due longest. False when none is due.
  bool FireOne();

 private:
  struct Entry {
    int Interval = 0;
    std::int64_t Due = 0;
    std::uint64_t Order = 0;  // settles which of two timers due at once comes first
    std::shared_ptr<std::function<void()>> Tick;
  };
  [[nodiscard]] std::map<forms::TimerId, Entry>::const_iterator Earliest() const;

  std::int64_t now_ = 1'000'000;
  int shortest_ = 1;
  forms::TimerId lastId_ = 0;
  std::uint64_t lastOrder_ = 0;
  std::map<forms::TimerId, Entry> timers_;
};

}  // namespace corvelle::sim
