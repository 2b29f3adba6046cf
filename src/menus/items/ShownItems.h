#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/RecordEdits.h"
#include "menus/items/MenuCache.h"
#include "menus/items/TypeAhead.h"

namespace corvelle {

class CodePage;

/// The items of the menu on show, numbered from 1, and what each stands for. No window. Of an item
/// that is not there every text is empty and every number 0.
class ShownItems {
 public:
  explicit ShownItems(const CodePage& ansi) : ansi_(ansi) {}

  void Show(std::shared_ptr<BuiltMenu> menu) { menu_ = std::move(menu); }
  void Clear() { menu_ = std::make_shared<BuiltMenu>(); }

  [[nodiscard]] int Count() const noexcept { return static_cast<int>(menu_->Items.size()); }
  [[nodiscard]] bool Has(int index) const noexcept { return index >= 1 && index <= Count(); }
  [[nodiscard]] const MenuItem& operator[](int index) const;

  /// What an item is called: its title, or its whole name in a folder of the shell; empty for a
  /// folder that waits, which stands for itself.
  [[nodiscard]] const std::string& NameOf(int index) const;
  /// The entry that an item stands for, as popups and edits take it.
  [[nodiscard]] EntryEdit EntryOf(int index) const;
  /// Gives an item another icon for as long as the menu is kept; true if it is another.
  bool SetIcon(int index, std::string_view icon);

  [[nodiscard]] TypeAheadHit Find(int curItem, int firstLabel, char32_t character) const {
    return FindTypeAhead(menu_->Items, curItem, firstLabel, character);
  }

  /// Key of the menu, and the file that it was built from before its folder items expanded.
  [[nodiscard]] const std::string& Key() const noexcept { return menu_->MenuInfo.Key; }
  [[nodiscard]] const std::string& Source() const noexcept { return menu_->Source; }

 private:
  const CodePage& ansi_;
  std::shared_ptr<BuiltMenu> menu_ = std::make_shared<BuiltMenu>();  // never null
};

}  // namespace corvelle
