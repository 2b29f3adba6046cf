#include "menus/items/MenuItem.h"

#include "base/Text.h"
#include "core/MenuFile.h"

namespace corvelle {

namespace {

constexpr std::string_view kHiddenTitle = "Corvelle";

}  // namespace

bool IsHiddenTitle(std::string_view title) {
  return EqualNoCase(title.substr(0, title.find('\0')), kHiddenTitle);
}

MenuItem ItemOf(const MenuRecord& record, int place) {
  return {.Title = StripAtNull(record.FTitle),
          .Icon = StripAtNull(record.FIcon),
          .Command = StripAtNull(record.FName),
          .Origin = {place, {}},
          .Hidden = IsHiddenTitle(record.FTitle),
          .Separator = IsSeparatorIcon(Trim(record.FIcon))};
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
