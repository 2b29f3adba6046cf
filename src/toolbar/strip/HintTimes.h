#pragma once

#include <cstdint>

namespace corvelle {

/// When the hint of a menu button comes up and goes, by the clock's milliseconds. The answers that
/// tell of a moment tell of it once.
class HintTimes {
 public:
  static constexpr std::int64_t kDelay = 500;
  static constexpr std::int64_t kTime = 1500;

  /// A hint is due in a moment.
  void Announce(std::int64_t now) noexcept { TipDueAt = now + kDelay; }
  /// A hint has come up.
  void Shown(std::int64_t now) noexcept { TipHideAt = now + kTime; }
  /// No hint is due, and none is to be taken down.
  void Forget() noexcept { TipDueAt = TipHideAt = 0; }
  [[nodiscard]] bool IsWaiting() const noexcept { return TipDueAt != 0 || TipHideAt != 0; }

  /// True when the hint has been up for its time.
  [[nodiscard]] bool TakeEnd(std::int64_t now) noexcept { return Take(TipHideAt, now); }
  /// True when the hint is due.
  [[nodiscard]] bool TakeDue(std::int64_t now) noexcept { return Take(TipDueAt, now); }

  /// When a hint is to come up, and when it is to go; 0 for never.
  std::int64_t TipDueAt = 0;
  std::int64_t TipHideAt = 0;

 private:
  [[nodiscard]] static bool Take(std::int64_t& moment, std::int64_t now) noexcept {
    if (moment == 0 || now <= moment) return false;
    moment = 0;
    return true;
  }
};

}  // namespace corvelle
