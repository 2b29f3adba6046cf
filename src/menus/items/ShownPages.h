#pragma once

#include <memory>
#include <optional>

#include "menus/items/MenuCache.h"

namespace corvelle {

/// The pages of the menu on show: which one is up, which one was before, and to which one a rebuilt
/// menu returns. Pages are numbered from 0, items from 1 across all of them. No window.
class ShownPages {
 public:
  /// Takes a menu, on the page on which it was left.
  void Show(std::shared_ptr<BuiltMenu> menu);
  /// No menu: no page, no item. The page to return to stays.
  void Clear();

  /// Number of the last page; 0 for a single one.
  [[nodiscard]] int Slides() const noexcept { return menu_->MenuInfo.Slides; }
  [[nodiscard]] int CurMenu() const noexcept { return curMenu_; }
  /// The page that the last turn left.
  [[nodiscard]] int PrevPage() const noexcept { return prevPage_; }
  /// First and last item of the page that is up; 0 without a menu.
  [[nodiscard]] int FirstLabel() const noexcept { return FirstOf(curMenu_); }
  [[nodiscard]] int LastLabel() const noexcept { return LastOf(curMenu_); }
  [[nodiscard]] int FirstOf(int page) const noexcept;
  [[nodiscard]] int LastOf(int page) const noexcept;
  /// True for an item of the page that is up.
  [[nodiscard]] bool IsUp(int item) const noexcept {
    return item > 0 && item >= FirstLabel() && item <= LastLabel();
  }
  /// The page that is up, of a menu that has been taken.
  [[nodiscard]] clsMenu& Current() { return menu_->SlideList[static_cast<std::size_t>(curMenu_)]; }

  [[nodiscard]] bool Has(int page) const noexcept { return page >= 0 && page <= Slides(); }
  /// Makes another page the one that is up; a menu that is shown again comes back to it.
  void TurnTo(int page);

  /// Keeps the page that is up as the one to return to; forgets it.
  void Save() noexcept { savedPage_ = curMenu_; }
  void ForgetSaved() noexcept { savedPage_ = 0; }
  [[nodiscard]] int SavedPage() const noexcept { return savedPage_; }
  /// The page to which a rebuilt menu returns; nothing for the first one.
  [[nodiscard]] std::optional<int> PageToReturnTo() const noexcept;

 private:
  std::shared_ptr<BuiltMenu> menu_ = std::make_shared<BuiltMenu>();  // never null
  int curMenu_ = 0;
  int prevPage_ = 0;
  int savedPage_ = 0;
};

}  // namespace corvelle
