#include "menus/items/TypeAhead.h"

#include "base/Text.h"
#include "base/Utf8.h"

namespace corvelle {

bool BeginsWith(std::string_view title, char32_t character) noexcept {
  const Utf8Step first = NextCharacter(title, 0);
  return first.Length > 0 && LowerCharacter(first.Character) == LowerCharacter(character);
}

TypeAheadHit FindTypeAhead(std::span<const MenuItem> items, int curItem, int firstLabel,
                           char32_t character) {
  const int labels = static_cast<int>(items.size());
  const int start = curItem == 0 ? firstLabel : curItem;
  const auto search = [&](int from, int to) {
    for (int item = from < 1 ? 1 : from; item <= to && item <= labels; ++item) {
      const MenuItem& at = items[static_cast<std::size_t>(item) - 1];
      if (BeginsWith(at.Title, character)) return TypeAheadHit{item, at.Page, item + 1};
    }
    return TypeAheadHit{};
  };
  const TypeAheadHit hit = search(start, labels);
  return hit.Item != 0 ? hit : search(1, start);
}

}  // namespace corvelle
