#include "properties/DesktopIcons.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "sim/World.h"

namespace corvelle {
namespace {

using Icons = std::vector<int>;

TEST(DesktopIconsTest, AreTheIconsOfItsEntriesInTheOrderOfTheirNames) {
  EXPECT_EQ(DesktopIcons({{"Zebra", 5}, {"apple", 7}, {"Mango|x", 0}}), (Icons{7, 0, 5}));
}

TEST(DesktopIconsTest, TwoShortcutsWithOneIconAreOnePicture) {
  EXPECT_EQ(DesktopIcons({{"a", 5}, {"b", 7}, {"c", 5}, {"d", -1}}), (Icons{5, 7}));
}

TEST(DesktopIconsTest, AnEmptyDesktopHasNone) { EXPECT_EQ(DesktopIcons({}), Icons{}); }

TEST(DesktopIconsTest, ListsOfAnEarlierVersionGoWhateverFails) {
  const std::string menus = "C:\\Corvelle\\Menus\\";
  sim::World world;
  world.Files.MakeFolders("C:\\Corvelle\\Menus");
  const auto leave = [&] {
    for (const char* name : {"dtf", "dtf.mfd", "dtf.tmp", "BMENU001.MNU"})
      world.Files.Put(menus + name, "left");
  };
  for (int n = 1; n <= 3; ++n) {
    leave();
    world.Files.FailCall(n);
    RemoveDesktopLists(world.Files, menus);
    world.Files.StopFailing();
    EXPECT_EQ(world.Files.Names(menus).size(), 2U) << n << ": the others have gone";
  }
  leave();
  RemoveDesktopLists(world.Files, menus);
  EXPECT_EQ(world.Files.Names(menus), std::vector<std::string>{"BMENU001.MNU"});
}

}  // namespace
}  // namespace corvelle
