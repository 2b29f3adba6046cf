#include "menus/items/ShownPages.h"

#include <utility>

#include "menus/items/MenuRules.h"

namespace corvelle {

void ShownPages::Show(std::shared_ptr<BuiltMenu> menu) {
  menu_ = std::move(menu);
  curMenu_ = menu_->MenuInfo.CurMenu;
  prevPage_ = curMenu_;
}

void ShownPages::Clear() { Show(std::make_shared<BuiltMenu>()); }

int ShownPages::FirstOf(int page) const noexcept {
  const auto index = static_cast<std::size_t>(page);
  return index < menu_->SlideList.size() ? menu_->SlideList[index].FirstLabel : 0;
}

int ShownPages::LastOf(int page) const noexcept {
  const auto index = static_cast<std::size_t>(page);
  return index < menu_->SlideList.size() ? menu_->SlideList[index].LastLabel : 0;
}

void ShownPages::TurnTo(int page) {
  prevPage_ = curMenu_;
  curMenu_ = page;
  menu_->MenuInfo.CurMenu = page;
}

std::optional<int> ShownPages::PageToReturnTo() const noexcept {
  return ReturnPage(savedPage_, Slides());
}

}  // namespace corvelle
