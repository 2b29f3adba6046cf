// The row of menu buttons, on a strip that is no more than its controls.

#include "toolbar/strip/ButtonRow.h"

#include <gtest/gtest.h>

#include "core/MenuRecord.h"
#include "sim/SimShellIcons.h"
#include "toolbar/PlainStrip.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {
namespace {

using Paths = std::vector<std::string>;

struct RowDesk : PlainDesk {
  RowDesk() { Row.MakeTemplates(); }

  ButtonRow Row{ButtonRowPartsOf(TheProgram), Strip, Strip.ForButtons()};

  void PutThree() {
    PutMenu(1, "One");
    PutMenu(2, "Two & Half");
    PutMenu(3, "Three");
    Row.DoToolbarButtons();
  }
  Paths Files() const {
    Paths files;
    for (int i = 1; i <= Row.ButtonCount; ++i) files.push_back(Row.PathOf(i));
    return files;
  }
};

TEST(ButtonRow, TheProgramsOwnButtonComesFirstAndTheOthersInTheOrderOfTheirFiles) {
  RowDesk desk;
  desk.PutMenu(20, "B");
  desk.PutMenu(3, "A");
  desk.Row.DoToolbarButtons();
  // The files are numbered without gaps.
  EXPECT_EQ(desk.Files(), (Paths{std::string(kMainMenuPath), "C:\\Corvelle\\Menus\\BMENU001.MNU",
                                 "C:\\Corvelle\\Menus\\BMENU002.MNU"}));
  EXPECT_EQ(desk.Row.HintOf(1), "Corvelle");
  EXPECT_EQ(desk.Row.HintOf(2), "A");
  EXPECT_EQ(desk.Row.HintOf(3), "B");
  EXPECT_EQ(desk.Row.HintOf(4), "");
}

TEST(ButtonRow, TheBoxIsAsWideAsItsButtons) {
  RowDesk desk;
  desk.Row.DoToolbarButtons();
  const float one = desk.Strip.picToolbar.Width();
  desk.PutThree();
  EXPECT_EQ(desk.Strip.picToolbar.Width() - one,
            desk.Row.ToolbarButtons[4].Left - desk.Row.ToolbarButtons[1].Left);
  EXPECT_GT(desk.Strip.picToolbar.Width(), desk.Row.ToolbarButtons[4].Left);
  EXPECT_TRUE(desk.Strip.picToolbar.Visible());
}

TEST(ButtonRow, RefreshMakesTheButtonsAgainInABoxThatKeepsItsSize) {
  RowDesk desk;
  desk.PutThree();
  const TwipRect box = desk.Strip.picToolbar.Bounds();
  desk.PutMenu(4, "Four");
  desk.Row.Refresh();
  EXPECT_EQ(desk.Row.ButtonCount, 5);
  EXPECT_EQ(desk.Strip.picToolbar.Bounds(), box);
}

TEST(ButtonRow, AFileThatCannotBeReadIsLeftOutAndTheOthersCome) {
  RowDesk desk;
  desk.World.Files.HoldOpen(desk.PutMenu(1, "Held"));
  const std::string second = desk.PutMenu(2, "Free");
  desk.Row.DoToolbarButtons();
  EXPECT_EQ(desk.Files(), (Paths{std::string(kMainMenuPath), second}));
}

TEST(ButtonRow, ASeparatorStandsBetweenTwoButtonsAndIsNone) {
  RowDesk desk;
  desk.PutMenu(1, "One");
  desk.PutMenu(2, Entry("Separator", std::string(kSeparatorIcon)));
  desk.PutMenu(3, "Three");
  desk.Row.DoToolbarButtons();
  EXPECT_EQ(desk.Row.ButtonCount, 3);
  EXPECT_EQ(desk.Row.SepCount, 1);
  const forms::Label& separator = desk.Strip.lblSep[1];
  EXPECT_GE(separator.Left(), desk.Row.ToolbarButtons[2].Left + desk.Row.ToolbarButtons[2].Width);
  EXPECT_LE(separator.Right(), desk.Row.ToolbarButtons[3].Left);
}

TEST(ButtonRow, TheTemplateFollowsTheCaptionOfWindows) {
  RowDesk desk;
  EXPECT_EQ(desk.Row.TopCut, 7);
  desk.World.System.Caption = 30;
  desk.Row.MakeTemplates();
  EXPECT_EQ(desk.Row.TopCut, 4);
}

TEST(ButtonRow, FindsTheButtonAtAPointOfTheScreen) {
  RowDesk desk;
  desk.PutThree();
  for (int i = 1; i <= 4; ++i) EXPECT_EQ(desk.Row.At(desk.Row.Middle(i), 0, false), i) << i;
  EXPECT_EQ(desk.Row.At({500, 500}, 2, false), 0);
  // The place of the strip counts.
  const PixelPoint second = desk.Row.Middle(2);
  desk.Strip.SetLeft(desk.Strip.Left() + 150);
  EXPECT_EQ(desk.Row.Middle(2), (PixelPoint{second.x + 10, second.y}));
}

TEST(ButtonRow, KnowsAButtonByItsFileIgnoringCase) {
  RowDesk desk;
  desk.PutThree();
  EXPECT_EQ(desk.Row.ItemButtonOf("c:\\corvelle\\menus\\bmenu002.mnu"), 3);
  EXPECT_EQ(desk.Row.ItemButtonOf("C:\\Corvelle\\Menus\\BMENU009.MNU"), 0);
  EXPECT_EQ(desk.Row.ItemButtonOf(kMainMenuPath), 0) << "not a menu of the user's";
  EXPECT_TRUE(desk.Row.IsItemButton(2));
  EXPECT_FALSE(desk.Row.IsItemButton(1));
  EXPECT_FALSE(desk.Row.IsItemButton(5));
  EXPECT_FALSE(desk.Row.Has(0));
}

TEST(ButtonRow, AHintShowsAnAmpersandAsItStands) {
  RowDesk desk;
  desk.PutThree();
  EXPECT_EQ(desk.Row.HintOf(3), "Two && Half");
}

TEST(ButtonRow, APressedButtonHasNoLineOfItsOwnAndTheOthersRest) {
  RowDesk desk;
  desk.PutThree();
  for (int i = 1; i <= 4; ++i) EXPECT_TRUE(desk.Row.LooksAtRest(i)) << i;
  desk.Row.ShowPressed(3);
  EXPECT_FALSE(desk.Row.LooksAtRest(3));
  EXPECT_TRUE(desk.Row.LooksAtRest(1));
  desk.Row.ShowResting();
  EXPECT_TRUE(desk.Row.LooksAtRest(3));
  EXPECT_FALSE(desk.Row.LooksAtRest(5)) << "there is no such button";
}

TEST(ButtonRow, UnloadLeavesTheTemplateAndForgetsTheMenusThatWereBuilt) {
  RowDesk desk;
  desk.PutThree();
  desk.Menu.Built = {"F2", "F4", "Other"};
  desk.TheProgram.Menu.CurButton = 2;
  desk.Row.Unload();
  EXPECT_EQ(desk.Row.ButtonCount, 0);
  EXPECT_EQ(desk.Row.ToolbarButtons.size(), 1U);
  EXPECT_EQ(desk.Strip.LinTB1.Last(), 0);
  EXPECT_EQ(desk.Menu.Built, std::set<std::string>{"Other"});
  EXPECT_EQ(desk.TheProgram.Menu.CurButton, 0);
}

TEST(ButtonRow, AButtonAsTheCurrentEntryIsTheFirstRecordOfItsFile) {
  RowDesk desk;
  desk.PutThree();
  const EntryEdit entry = desk.Row.EntryOf(3);
  EXPECT_EQ(entry.CurMenuTag, "B3");
  EXPECT_EQ(entry.CurFile, "C:\\Corvelle\\Menus\\BMENU002.MNU");
  EXPECT_EQ(entry.CurTitle, "Two & Half");
  // A file that is gone by now leaves the texts empty.
  EXPECT_TRUE(desk.World.Files.Remove("C:\\Corvelle\\Menus\\BMENU001.MNU"));
  EXPECT_EQ(desk.Row.EntryOf(2).CurTitle, "");
}

TEST(ButtonRow, IconsAreDrawnOnceAndARepaintIsACopy) {
  RowDesk desk;
  desk.World.Files.Put("C:\\Tools\\a.exe", "x");
  desk.World.Icons.SetIndex("C:\\Tools\\a.exe", 7);
  desk.TheProgram.Icons.ShellDrawsIcons = true;
  desk.PutMenu(1, Entry("One", "C:\\Tools\\a.exe"));
  desk.Row.DoToolbarButtons();
  const ButtonRect& button = desk.Row.ToolbarButtons[2];
  const PixelPoint middle{static_cast<int>((button.Left + button.Width / 2) / 15),
                          static_cast<int>((button.Top + button.Height / 2) / 15)};
  EXPECT_EQ(desk.Strip.picToolbar.Image()->PixelAt(middle), sim::SimShellIcons::ColourOf(7));
  desk.World.Icons.ClearCounts();
  desk.Strip.picToolbar.InvalidateAll();
  desk.Strip.picToolbar.Refresh();
  EXPECT_EQ(desk.World.Icons.Lookups(), 0);
  EXPECT_EQ(desk.World.Icons.Draws(), 0);
}

}  // namespace
}  // namespace corvelle
