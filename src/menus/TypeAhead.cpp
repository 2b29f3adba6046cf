#include "menus/TypeAhead.h"

#include "base/Text.h"
#include "base/Utf8.h"

namespace corvelle {
namespace {

/// The page number of an entry as text, behind its letter.
std::string_view PageText(std::string_view key) noexcept { return SkipCharacters(key, 1); }

bool StartsWithLetter(std::string_view key, char32_t lowerLetter) noexcept {
  const Utf8Step first = NextCharacter(key, 0);
  return first.Length > 0 && LowerCharacter(first.Character) == lowerLetter;
}

}  // namespace

std::string TypeAheadKey(std::string_view title, int page) {
  const std::string shown = StripAtNull(title);
  std::string key;
  const Utf8Step first = NextCharacter(shown, 0);
  if (first.Length == 0) {
    key.push_back('\0');
  } else {
    AppendUtf8(key, LowerCharacter(first.Character));
  }
  return key + std::to_string(page);
}

int TypeAheadPage(std::string_view key) noexcept { return ParseNumber(PageText(key)).value_or(0); }

TypeAheadHit FindTypeAhead(std::span<const std::string> keys, int curItem, int firstLabel,
                           char32_t character) {
  const int labels = static_cast<int>(keys.size());
  const int start = curItem == 0 ? firstLabel : curItem;
  const char32_t letter = LowerCharacter(character);
  const auto search = [&](int from, int to) {
    for (int item = from < 1 ? 1 : from; item <= to && item <= labels; ++item) {
      const std::string& key = keys[static_cast<std::size_t>(item) - 1];
      if (StartsWithLetter(key, letter)) return TypeAheadHit{item, TypeAheadPage(key), item + 1};
    }
    return TypeAheadHit{};
  };
  const TypeAheadHit hit = search(start, labels);
  return hit.Item != 0 ? hit : search(1, start);
}

}  // namespace corvelle
