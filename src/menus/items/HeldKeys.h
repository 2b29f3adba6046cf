#pragma once

#include <cstddef>
#include <deque>
#include <optional>

namespace corvelle {

/// A key or a character that came while a menu was being built.
struct HeldKey {
  int Code = 0;            // of a key; 0 for a character
  char32_t Character = 0;  // of a character
  bool FromStrip = false;  // the strip had the focus

  friend bool operator==(const HeldKey&, const HeldKey&) = default;
};

/// Keys in their order until the menu is up and they can act on it. No window.
class HeldKeys {
 public:
  /// More than anyone types ahead; what comes after these is dropped.
  static constexpr std::size_t kMost = 32;

  void Hold(const HeldKey& key) {
    if (keys_.size() < kMost) keys_.push_back(key);
  }
  [[nodiscard]] bool IsEmpty() const noexcept { return keys_.empty(); }
  /// The one that came first, which is held no longer.
  [[nodiscard]] std::optional<HeldKey> Take() {
    if (keys_.empty()) return std::nullopt;
    const HeldKey first = keys_.front();
    keys_.pop_front();
    return first;
  }
  void Forget() noexcept { keys_.clear(); }

 private:
  std::deque<HeldKey> keys_;
};

}  // namespace corvelle
