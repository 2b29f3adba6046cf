#pragma once

#include <span>
#include <string_view>

#include "menus/items/MenuItem.h"

namespace corvelle {

// Typing the first letter of an item: pure rules.

/// True if the title begins with the character, ignoring case.
[[nodiscard]] bool BeginsWith(std::string_view title, char32_t character) noexcept;

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

/// Searches the titles (`items[0]` is item 1) from `curItem` to the end, then from item 1 on. With
/// `curItem` 0 the search starts at `firstLabel`.
[[nodiscard]] TypeAheadHit FindTypeAhead(std::span<const MenuItem> items, int curItem,
                                         int firstLabel, char32_t character);

}  // namespace corvelle
