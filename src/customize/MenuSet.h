#pragma once

#include <vector>

#include "core/MenuRecord.h"

namespace corvelle {

/// One menu button: its own record, and those of the items of its menu in their order.
struct Menu {
  MenuRecord Head;
  std::vector<MenuRecord> Items;

  friend bool operator==(const Menu&, const Menu&) = default;
};

/// All that the folder of menu files holds: the menu buttons and the single buttons, in their
/// order.
struct MenuSet {
  std::vector<Menu> Menus;
  std::vector<MenuRecord> Singles;

  friend bool operator==(const MenuSet&, const MenuSet&) = default;
};

}  // namespace corvelle
