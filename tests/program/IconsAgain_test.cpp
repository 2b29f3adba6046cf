// Icons of a place that did not answer come when the user wants all to be looked at again.

#include <gtest/gtest.h>

#include "program/ProgramDesk.h"
#include "sim/SimShellIcons.h"

namespace corvelle {
namespace {

/// A menu whose button and first item have their icons on a disk that was called back, and answers
/// again: it rests, and nothing tells that it would answer.
class IconsAgain : public ::testing::Test {
 protected:
  IconsAgain() {
    World().Files.AddDrive('D');
    World().Files.Put("D:\\tool.exe", "x");
    World().Files.Put("D:\\button.exe", "x");
    World().Icons.SetIndex("D:\\tool.exe", 30);
    World().Icons.SetIndex("D:\\button.exe", 31);
    World().Desktop.Advance(3000);
    std::string bytes = FormatRecord({"Menu", "D:\\button.exe", ""}, World().Ansi);
    bytes += FormatRecord({"Tool", "D:\\tool.exe", "D:\\tool.exe"}, World().Ansi);
    World().Files.Put(kMenus + MenuFileName(1), bytes);
    World().SlowAnswers.Hang("D:*");
    desk_.parts->Toolbar.InitNewButtons();
    World().Desktop.Advance(3000);
    World().SlowAnswers.Resume("D:*");
    World().Desktop.Advance(1000);
  }

  sim::World& World() { return desk_.world; }
  /// The colour in the middle of menu button 2.
  Rgb OfButton() {
    desk_.PointAt({500, 600});
    World().Desktop.Advance(300);
    return World().Desktop.Picture().PixelAt(desk_.MenuButton(2));
  }

  ProgramDesk desk_;
};

TEST_F(IconsAgain, TheyRestAtFirst) { EXPECT_NE(OfButton(), sim::SimShellIcons::ColourOf(31)); }

TEST_F(IconsAgain, F5OnAMenuBringsThem) {
  desk_.OpenMenu(2);
  World().Desktop.PressKey(forms::key::F5);
  World().Desktop.Advance(500);
  World().Desktop.PressKey(forms::key::Escape);
  World().Desktop.Advance(500);
  EXPECT_EQ(OfButton(), sim::SimShellIcons::ColourOf(31));
}

TEST_F(IconsAgain, RefreshAllBringsThem) {
  desk_.OpenMenu(1);
  desk_.PointAt(desk_.Item(2));
  World().Desktop.Click();
  World().Desktop.Advance(500);
  EXPECT_EQ(OfButton(), sim::SimShellIcons::ColourOf(31));
}

}  // namespace
}  // namespace corvelle
