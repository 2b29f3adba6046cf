#include "menus/items/MenuItem.h"

#include <utility>

#include "base/Text.h"
#include "core/MenuFile.h"

namespace corvelle {

namespace {

constexpr std::string_view kHiddenTitle = "Corvelle";

/// StripAtNull of a text that most often stays as it is.
std::string Stripped(std::string text) {
  const bool bare =
      text.find('\0') == std::string::npos && !text.starts_with(' ') && !text.ends_with(' ');
  return bare ? std::move(text) : StripAtNull(text);
}

}  // namespace

bool IsHiddenTitle(std::string_view title) {
  return EqualNoCase(title.substr(0, title.find('\0')), kHiddenTitle);
}

MenuItem ItemOf(MenuRecord record, int place) {
  MenuItem item;
  item.Hidden = IsHiddenTitle(record.FTitle);
  item.Separator = IsSeparatorIcon(TrimView(record.FIcon));
  item.Title = Stripped(std::move(record.FTitle));
  item.Icon = Stripped(std::move(record.FIcon));
  item.Command = Stripped(std::move(record.FName));
  item.Origin = {place, {}};
  return item;
}

std::vector<MenuItem> ItemsOf(const std::vector<MenuRecord>& records) {
  std::vector<MenuItem> items;
  items.reserve(records.size());
  for (const MenuRecord& record : records) {
    items.push_back(ItemOf(record, static_cast<int>(items.size()) + 1));
  }
  return items;
}

std::vector<MenuItem> ReadItems(std::string_view stored, const CodePage& ansi) {
  return ItemsOf(ParseRecords(stored, ansi));
}

}  // namespace corvelle
