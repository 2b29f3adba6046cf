#pragma once

#include <span>
#include <string>
#include <string_view>

namespace corvelle {

// Typing the first letter of an item: pure rules.

/// The entry of an item: the first letter of its title in lower case, or a NUL for a blank one,
/// followed by the number of its page.
[[nodiscard]] std::string TypeAheadKey(std::string_view title, int page);

/// The page number in an entry; 0 when there is none.
[[nodiscard]] int TypeAheadPage(std::string_view key) noexcept;

/// True for the characters that a search may be made for.
[[nodiscard]] constexpr bool IsTypeAheadCharacter(char32_t character) noexcept {
  return character >= 33 && character <= 126;
}

/// What a search found.
struct TypeAheadHit {
  int Item = 0;  // 0 for nothing
  int Page = 0;
  int NextItem = 0;  // where the next search starts

  friend bool operator==(const TypeAheadHit&, const TypeAheadHit&) = default;
};

/// Searches the entries (`keys[0]` is item 1) from `curItem` to the end, then from item 1 on. With
/// `curItem` 0 the search starts at `firstLabel`. Case apart.
[[nodiscard]] TypeAheadHit FindTypeAhead(std::span<const std::string> keys, int curItem,
                                         int firstLabel, char32_t character);

}  // namespace corvelle
