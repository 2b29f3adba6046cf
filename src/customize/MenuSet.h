#pragma once

#include <vector>

#include "core/MenuRecord.h"

namespace corvelle {

/// One menu: the button and its items in their order.
struct Menu {
  MenuRecord Head;
  std::vector<MenuRecord> Items;

  friend bool operator==(const Menu&, const Menu&) = default;
};

/// All menus and single buttons, each row in its order: what the Customize window shows and saves.
struct MenuSet {
  std::vector<Menu> Menus;
  std::vector<MenuRecord> Singles;

  friend bool operator==(const MenuSet&, const MenuSet&) = default;
};

}  // namespace corvelle
