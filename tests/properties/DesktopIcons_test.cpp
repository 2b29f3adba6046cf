#include "properties/DesktopIcons.h"

#include <gtest/gtest.h>

#include "sim/World.h"

namespace corvelle {
namespace {

constexpr int kDesktop = 0;
using Icons = std::vector<int>;

class DesktopIconsTest : public testing::Test {
 protected:
  DesktopIconsTest() { world.Files.MakeFolders("C:\\Corvelle\\Menus"); }

  Icons Listed() { return DesktopIcons(world.Folders, world.Files, "C:\\Corvelle\\Menus\\"); }

  sim::World world;
};

TEST_F(DesktopIconsTest, AreTheIconsOfItsEntriesInTheOrderOfTheirNames) {
  world.Folders.Put(kDesktop, {{"Zebra", 5}, {"apple", 7}, {"Mango|x", 0}});
  EXPECT_EQ(Listed(), (Icons{7, 0, 5}));
}

TEST_F(DesktopIconsTest, TwoShortcutsWithOneIconAreOnePicture) {
  world.Folders.Put(kDesktop, {{"a", 5}, {"b", 7}, {"c", 5}, {"d", -1}});
  EXPECT_EQ(Listed(), (Icons{5, 7}));
}

TEST_F(DesktopIconsTest, AnEmptyDesktopAndOneThatCannotBeReadHaveNone) {
  world.Folders.Put(kDesktop, {});
  EXPECT_EQ(Listed(), Icons{});
  world.Folders.Put(kDesktop, {{"a", 5}});
  world.Folders.Break(kDesktop);
  EXPECT_EQ(Listed(), Icons{});
}

TEST_F(DesktopIconsTest, NoTemporaryFileIsThereAfterwardsWhateverFails) {
  const std::string names[] = {"dtf", "dtf.mfd", "dtf.tmp"};
  for (int n = 0; n < 8; ++n) {
    world.Files.ClearLog();
    if (n > 0) world.Files.FailCall(n);
    if (n == 7) world.Folders.Break(kDesktop);
    static_cast<void>(Listed());
    world.Files.StopFailing();
    EXPECT_TRUE(world.Files.Names("C:\\Corvelle\\Menus").empty()) << n;
    EXPECT_EQ(world.Files.Count("Write") + world.Files.Count("Replace"), 0) << n;
  }
  for (const std::string& name : names) world.Files.Put("C:\\Corvelle\\Menus\\" + name, "left");
  world.Files.Put("C:\\Corvelle\\Menus\\BMENU001.MNU", "menu");
  static_cast<void>(Listed());
  EXPECT_EQ(world.Files.Names("C:\\Corvelle\\Menus"), std::vector<std::string>{"BMENU001.MNU"});
}

}  // namespace
}  // namespace corvelle
