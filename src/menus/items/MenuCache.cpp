#include "menus/items/MenuCache.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "base/Text.h"

namespace corvelle {

std::shared_ptr<BuiltMenu> MenuCache::Find(std::string_view menuKey) const {
  const auto found = menus_.find(UpperCase(menuKey));
  return found != menus_.end() ? found->second : nullptr;
}

void MenuCache::Add(std::shared_ptr<BuiltMenu> menu) {
  if (!menu) return;
  std::string key = UpperCase(menu->MenuInfo.Key);
  menus_.insert_or_assign(std::move(key), std::move(menu));
}

void MenuCache::Remove(std::string_view menuKey) { menus_.erase(UpperCase(menuKey)); }

void MenuCache::DropPictures() {
  for (auto& [key, menu] : menus_) {
    for (clsMenu& page : menu->SlideList) {
      page.Init = 0;
      page.MenuPicture.reset();
    }
  }
}

void LimitPictures(BuiltMenu& menu, int current, int most) {
  std::vector<int> kept;
  for (int page = 1; page < static_cast<int>(menu.SlideList.size()); ++page) {
    const bool drawn = menu.SlideList[static_cast<std::size_t>(page)].Init != 0;
    if (drawn && page != current) kept.push_back(page);
  }
  std::sort(kept.begin(), kept.end(),
            [current](int a, int b) { return std::abs(a - current) < std::abs(b - current); });
  for (std::size_t i = static_cast<std::size_t>(std::max(most, 0)); i < kept.size(); ++i) {
    clsMenu& page = menu.SlideList[static_cast<std::size_t>(kept[i])];
    page.Init = 0;
    page.MenuPicture.reset();
  }
}

}  // namespace corvelle
