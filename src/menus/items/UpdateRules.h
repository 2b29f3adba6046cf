#pragma once

#include <cstdint>

namespace corvelle {

/// What decides whether a menu that is up may change now. Milliseconds.
struct UpdateScene {
  bool Busy = false;         // a button is down, something is carried, a question is asked
  bool PointerOver = false;  // the menu
  std::int64_t SinceMove = 0;
  std::int64_t Waited = 0;  // since there is something new to show
};

/// How long a pointer has been still that rests.
inline constexpr std::int64_t kPointerRest = 100;
/// How long a pointer that moves over the menu holds a change up.
inline constexpr std::int64_t kLongestWait = 300;

/// Nothing moves under a pointer that is about to press, and never between press and release.
[[nodiscard]] constexpr bool MayUpdate(const UpdateScene& s) noexcept {
  if (s.Busy) return false;
  return !s.PointerOver || s.SinceMove >= kPointerRest || s.Waited >= kLongestWait;
}

}  // namespace corvelle
