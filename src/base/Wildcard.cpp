#include "base/Wildcard.h"

#include <cstddef>
#include <string>

#include "base/Text.h"
#include "base/Utf8.h"

namespace corvelle {

namespace {

/// True if one place of the pattern takes the character at `at`, or, for "?", nothing in its stead.
struct Taken {
  bool Fits = false;
  std::size_t Characters = 0;
};

Taken Take(char16_t place, std::u16string_view name, std::size_t at) {
  const bool end = at == name.size();
  if (place == u'?') return {true, end || name[at] == u'.' ? 0U : 1U};
  return {!end && name[at] == place, 1U};
}

// After a wrong turn it goes on from the last "*", which then takes one character more. An earlier
// one never needs to be asked again.
bool Fits(std::u16string_view name, std::u16string_view pattern) {
  constexpr std::size_t kNone = std::u16string_view::npos;
  std::size_t at = 0;
  std::size_t place = 0;
  std::size_t star = kNone;
  std::size_t starAt = 0;
  while (at < name.size() || place < pattern.size()) {
    if (place < pattern.size() && pattern[place] == u'*') {
      star = place++;
      starAt = at;
      continue;
    }
    const Taken taken = place < pattern.size() ? Take(pattern[place], name, at) : Taken{};
    if (taken.Fits) {
      at += taken.Characters;
      ++place;
    } else if (star != kNone && starAt < name.size()) {
      at = ++starAt;
      place = star + 1;
    } else {
      return false;
    }
  }
  return true;
}

}  // namespace

bool FitsPattern(std::string_view name, std::string_view pattern) {
  if (pattern == "*.*" || pattern == "*") return true;
  if (pattern.ends_with('.')) {
    if (name.find('.') != std::string_view::npos) return false;
    pattern.remove_suffix(1);
  }
  return Fits(ToWide(UpperCase(name)), ToWide(UpperCase(pattern)));
}

}  // namespace corvelle
