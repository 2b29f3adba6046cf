#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>

#include "platform/Lookups.h"

namespace corvelle::desk {

/// The answers that came last, so that something can be shown at once. When they take more room
/// than they may, those go first that were not asked for the longest.
class KeptAnswers {
 public:
  struct Kept {
    LookupValue Value;
    std::int64_t At = 0;  // when the answer came, in milliseconds of the desk's clock
    std::size_t Room = 0;
    std::uint64_t Turn = 0;
  };

  explicit KeptAnswers(std::size_t room) : room_(room) {}

  /// The answer to the question of that key (see KeyOfLookup); null when none is kept. Counts as
  /// use of it.
  [[nodiscard]] const Kept* Find(const std::string& key);
  void Keep(const std::string& key, LookupValue value, std::int64_t now);
  void Forget(const std::string& key);

  [[nodiscard]] std::size_t Count() const noexcept { return kept_.size(); }
  /// Bytes that all of them take, roughly.
  [[nodiscard]] std::size_t Room() const noexcept { return used_; }

 private:
  std::map<std::string, Kept> kept_;
  std::map<std::uint64_t, std::string> turns_;  // keys, the one not used for the longest first
  std::size_t room_;
  std::size_t used_ = 0;
  std::uint64_t last_ = 0;
};

/// Bytes that a value takes, roughly.
[[nodiscard]] std::size_t RoomOf(const LookupValue& value);

}  // namespace corvelle::desk
