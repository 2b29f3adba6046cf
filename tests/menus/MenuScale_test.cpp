// A menu has the scale of the strip that it belongs to.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "menus/MenuDesk.h"

namespace corvelle {
namespace {

/// What a user sees of a menu, in its twips.
struct MenuLook {
  TwipSize Size;
  std::vector<TwipRect> Items;

  friend bool operator==(const MenuLook&, const MenuLook&) = default;
};

MenuLook LookOf(const frmQMenu& menu) {
  MenuLook look{.Size = menu.MenuSize(), .Items = {}};
  for (int i = 1; i <= menu.Lbl.Last(); ++i) look.Items.push_back(menu.Lbl[i].Bounds());
  return look;
}

const std::vector<MenuRecord>& ThreeItems() {
  static const std::vector<MenuRecord> items{Item("Alpha"), Item("A title that is rather long"),
                                             Item("Gamma")};
  return items;
}

TEST(MenuScale, AMenuOfAStripOf144DotsIsThatOfADesktopOf144Dots) {
  MenuDesk large({.TwipsPerPixel = 10});
  large.Open(1, ThreeItems());
  MenuDesk desk;
  desk.Strip.SetDpi(144);
  desk.Open(1, ThreeItems());
  EXPECT_EQ(desk.Menu.Dpi(), 144);
  EXPECT_EQ(LookOf(desk.Menu), LookOf(large.Menu));
  EXPECT_EQ(desk.World.Desktop.BoundsOf(desk.Menu.hWnd()).Size(),
            large.World.Desktop.BoundsOf(large.Menu.hWnd()).Size());
}

TEST(MenuScale, AMenuThatWasBuiltForAnotherScaleIsBuiltAgain) {
  MenuDesk large({.TwipsPerPixel = 10});
  large.Open(1, ThreeItems());
  MenuDesk desk;
  desk.Open(1, ThreeItems());
  desk.Menu.HideMenu();
  desk.Strip.SetDpi(144);
  desk.Reopen(1);
  EXPECT_EQ(LookOf(desk.Menu), LookOf(large.Menu));
}

}  // namespace
}  // namespace corvelle
