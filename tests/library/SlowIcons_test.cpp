// Icons of the library that are not known at once.

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "forms/Types.h"
#include "icons/Glyphs.h"
#include "library/LibraryDesk.h"
#include "sim/SimShellIcons.h"

namespace corvelle {
namespace {

using sim::SimShellIcons;

/// The library over a disk that may take its time, and a file of icons on another one.
class LibraryIcons : public LibraryDesk {
 protected:
  LibraryIcons() {
    world.Files.AddDrive('D');
    world.Files.Put(kFar, "x");
    world.Icons.SetIconCount(kFar, 5);
    world.Costs.SetPrice([](std::string_view, std::string_view) { return 0; });
    world.Costs.WhenCharged([this](int waited) { world.Desktop.Jump(waited); });
  }

  static constexpr const char* kFar = "D:\\far.exe";

  sim::SimLookups& Slow() { return world.SlowAnswers; }
  void Advance(int milliseconds) { world.Desktop.Advance(milliseconds); }
  Rgb OfLibrary(int place) { return PixelOfCell(library.LibraryView, library.Pic2, place); }
  Rgb OfOther(int place) { return PixelOfCell(library.OtherView, library.picOther, place); }
  static Rgb Icon(const std::string& name) {
    return SimShellIcons::ColourOf(std::string(kIcons) + name, 0);
  }
  Rgb Ground() { return forms::Resolve(world.Windows(), forms::color::WindowGround); }
  /// True if the program's own picture of that kind fills the cell.
  bool ShowsGlyph(IconView& view, forms::PictureBox& sheet, int place, std::string_view glyph) {
    sim::SimCanvas expected({32, 32});
    expected.FillBox({0, 0, 32, 32}, Ground());
    EXPECT_TRUE(DrawGlyph(expected, world.Windows(), glyph, {0, 0}, 2));
    const PixelPoint at = In(sheet, view.Grid().IconOf(place).TopLeft());
    for (int i = 0; i < 32 * 32; ++i) {
      if (world.Desktop.Picture().PixelAt({at.x + i % 32, at.y + i / 32}) !=
          expected.PixelAt({i % 32, i / 32}))
        return false;
    }
    return true;
  }
  bool LibraryShowsGlyph(int place) {
    return ShowsGlyph(library.LibraryView, library.Pic2, place, "document");
  }
};

TEST_F(LibraryIcons, UntilTheyAreKnownPicturesOfTheirKindAreInTheirPlaces) {
  Slow().Hang("C:*");
  Open();
  EXPECT_EQ(OfLibrary(0), Ground()) << "a quick answer may still come";
  Advance(150);
  for (int place = 0; place < 3; ++place) EXPECT_TRUE(LibraryShowsGlyph(place)) << place;
  Slow().Resume("C:*");
  Advance(10);
  EXPECT_EQ(OfLibrary(0), Icon("anchor.ico"));
  EXPECT_EQ(OfLibrary(2), Icon("CLOCK.ICO"));
  EXPECT_EQ(library.LibraryView.DrawnCount(), 3U);
}

TEST_F(LibraryIcons, EachComesIntoItsCellAlone) {
  Slow().Delay("C:*", 1000);
  Open();
  Advance(1100);
  EXPECT_EQ(OfLibrary(0), Icon("anchor.ico"));
  EXPECT_TRUE(LibraryShowsGlyph(1));
  Advance(1000);
  EXPECT_EQ(OfLibrary(1), Icon("bell.ico"));
  EXPECT_TRUE(LibraryShowsGlyph(2));
}

TEST_F(LibraryIcons, OnesThatNeverComeHoldUpNothingAndCanBePicked) {
  PutMany(500);
  Slow().HangForGood("C:*");
  Open();
  ChooseRow(library.List1, 2);
  Advance(60'000);
  EXPECT_LT(world.Costs.LongestTurn(), 100);
  EXPECT_TRUE(LibraryShowsGlyph(0));
  EXPECT_EQ(library.LibraryView.DrawnCount(), 0U);
  ClickCell(3);
  PressKey(forms::key::Enter);
  EXPECT_EQ(box.txtFile.Text(), "\\icons\\i0003.ico");
}

TEST_F(LibraryIcons, OnesThatWereGivenUpComeWhenTheirPlaceAnswersAgain) {
  Slow().HangForGood("C:*");
  Open();
  Advance(6000);
  ASSERT_TRUE(LibraryShowsGlyph(0));
  Slow().Resume("C:*");
  Advance(1000);
  for (const char* name : {"anchor.ico", "bell.ico", "CLOCK.ICO"})
    EXPECT_EQ(OfLibrary(name[0] == 'a' ? 0 : name[0] == 'b' ? 1 : 2), Icon(name)) << name;
}

TEST_F(LibraryIcons, WhatIsScrolledIntoViewIsAskedForBeforeTheRest) {
  PutMany(500);
  Slow().Delay("C:*", 50);
  Open();
  ChooseRow(library.List1, 2);
  library.Pic2.SetFocus();
  PressKey(forms::key::End);
  Advance(5000);
  EXPECT_EQ(OfLibrary(499), Icon("i0499.ico"));
  EXPECT_LT(library.LibraryView.DrawnCount(), 110U);
}

TEST_F(LibraryIcons, LateOnesOfAnotherCategoryAreNotTaken) {
  Slow().Delay("C:*", 500);
  Open();
  ChooseRow(library.List1, 1);  // one bell
  Slow().Delay("C:*", 0);
  Advance(2000);
  ASSERT_EQ(library.LibraryView.Captions().size(), 1U);
  EXPECT_EQ(OfLibrary(0), Icon("bell.ico"));
  EXPECT_EQ(library.LibraryView.DrawnCount(), 1U);
}

TEST_F(LibraryIcons, AFilterLeavesEachWithItsCell) {
  Slow().Hang("C:*");
  Open();
  library.txtFilter.SetFocus();
  world.Desktop.Type("clock");
  Slow().Resume("C:*");
  Advance(10);
  EXPECT_EQ(OfLibrary(0), Icon("CLOCK.ICO"));
}

TEST_F(LibraryIcons, TheWindowMayCloseBeforeTheyCome) {
  Slow().Delay("C:*", 500);
  Open();
  Advance(150);
  PressKey(forms::key::Escape);
  ASSERT_FALSE(library.IsLoaded());
  Advance(5000);
  EXPECT_EQ(world.Desktop.Clock().Running(), 0);
  Slow().Delay("C:*", 0);
  Open();
  DrawAll();
  EXPECT_EQ(OfLibrary(1), Icon("bell.ico"));
}

// ---- other files ----

TEST_F(LibraryIcons, AFileThatIsNotCountedYetIsEmptyAndFillsWhenItIs) {
  PutOthers({kFar, kTool});
  Slow().Hang("D:*");
  Open();
  OpenOthers();
  EXPECT_EQ(library.List1Other.Items().size(), 2U);
  EXPECT_EQ(library.OtherView.Captions().size(), 0U);
  Slow().Resume("D:*");
  Advance(10);
  EXPECT_EQ(library.OtherView.Captions().size(), 5U);
  DrawAll();
  EXPECT_EQ(OfOther(4), SimShellIcons::ColourOf(kFar, 4));
}

TEST_F(LibraryIcons, ADeadFileLeavesTheOthersToBeChosenAndItsCountIsNotTaken) {
  PutOthers({kFar, kTool});
  Slow().HangForGood("D:*");
  Open();
  world.Costs.Clear();
  OpenOthers();
  EXPECT_LT(world.Costs.LongestTurn(), 100);
  ChooseRow(library.List1Other, 1);
  EXPECT_EQ(library.OtherView.Captions().size(), 3U);
  Slow().Resume("D:*");
  Advance(1000);
  EXPECT_EQ(library.OtherView.Captions().size(), 3U);
  EXPECT_EQ(OfOther(2), SimShellIcons::ColourOf(kTool, 2));
}

TEST_F(LibraryIcons, AnAddedFileIsChosenWhenItIsCountedAndTheWindowGoesOnMeanwhile) {
  PutOthers({kTool, "C:\\z.dll"});
  Slow().Delay("D:*", 1000);
  Open();
  OpenOthers();
  world.Desktop.ChooseFiles({kFar});
  world.Costs.Clear();
  Click(library.cmdAdd);
  EXPECT_EQ(library.List1Other.Items().size(), 2U);
  ChooseRow(library.List1Other, 1);
  EXPECT_TRUE(library.cmdAdd.Enabled());
  Advance(1100);
  EXPECT_LT(world.Costs.LongestTurn(), 100);
  EXPECT_TRUE(world.Desktop.Boxes().empty());
  EXPECT_EQ(library.List1Other.Items(), (std::vector<std::string>{"far.exe", "tool.exe", "z.dll"}));
  EXPECT_EQ(library.List1Other.Selected(), 0);
  Advance(1100);
  EXPECT_EQ(library.OtherView.Captions().size(), 5U);
}

TEST_F(LibraryIcons, AnAddedFileThatNeverAnswersIsRefusedWhenItWasGivenUp) {
  PutOthers({kTool});
  Slow().HangForGood("D:*");
  Open();
  OpenOthers();
  world.Desktop.ChooseFiles({kFar});
  world.Desktop.Answer(forms::msgbox::AnswerOk);
  world.Costs.Clear();
  Click(library.cmdAdd);
  EXPECT_TRUE(world.Desktop.Boxes().empty());
  Advance(6000);
  EXPECT_LT(world.Costs.LongestTurn(), 100);
  EXPECT_EQ(LastBox(), "\"far.exe\" does not contain icons.");
  EXPECT_EQ(world.Desktop.Boxes().back().Flags, 64U);
  EXPECT_EQ(library.List1Other.Items().size(), 1U);
}

TEST_F(LibraryIcons, TheWindowMayCloseBeforeAnAddedFileIsCounted) {
  PutOthers({kTool});
  Slow().Delay("D:*", 1000);
  Open();
  OpenOthers();
  world.Desktop.ChooseFiles({kFar});
  Click(library.cmdAdd);
  PressKey(forms::key::Escape);
  ASSERT_FALSE(library.IsLoaded());
  Advance(5000);
  EXPECT_EQ(world.Files.Get(kOthers).value_or(""), std::string(kTool) + "\r\n");
  EXPECT_EQ(world.Desktop.Clock().Running(), 0);
}

TEST_F(LibraryIcons, AFileThatIsCountedWhileTheUserIsAskedDoesNotChangeWhatIsRemoved) {
  PutOthers({kTool, "C:\\z.dll"});
  Slow().Delay("D:*", 1000);
  Open();
  OpenOthers();
  world.Desktop.ChooseFiles({kFar});
  Click(library.cmdAdd);
  ASSERT_EQ(library.List1Other.Selected(), 0);
  world.Desktop.WhileBoxIsUp([this](const auto&) { Advance(1100); });
  world.Desktop.Answer(forms::msgbox::AnswerYes);
  Click(library.cmdRemove);
  EXPECT_EQ(LastBox(), "Are you sure you want to remove \"tool.exe\"");
  EXPECT_EQ(library.List1Other.Items(), (std::vector<std::string>{"far.exe", "z.dll"}));
  EXPECT_EQ(world.Files.Get(kOthers).value_or(""), std::string(kFar) + "\r\nC:\\z.dll\r\n");
}

TEST_F(LibraryIcons, AResetLeavesNothingToBeAdded) {
  world.Files.Put("C:\\Windows\\Explorer.exe", "x");
  PutOthers({kTool});
  Slow().Delay("D:*", 1000);
  Open();
  OpenOthers();
  world.Desktop.ChooseFiles({kFar});
  Click(library.cmdAdd);
  world.Desktop.WhileBoxIsUp([this](const auto&) { Advance(1100); });
  world.Desktop.Answer(forms::msgbox::AnswerOk);
  Click(library.cmdRefresh);
  Advance(2000);
  EXPECT_EQ(library.List1Other.Items(), std::vector<std::string>{"Explorer.exe"});
  EXPECT_EQ(world.Files.Get(kOthers).value_or(""), "C:\\Windows\\Explorer.exe\r\n");
}

TEST_F(LibraryIcons, AFirstListGrowsWhenItsProgramsAreCountedAndWhatIsChosenStays) {
  world.Files.Put("C:\\Windows\\Explorer.exe", "x");
  world.Files.Put("C:\\Windows\\System32\\Shell32.dll", "x");
  world.Icons.SetIconCount("C:\\Windows\\System32\\Shell32.dll", 4);
  world.Keys.Set(RegistryRoot::LocalMachine,
                 "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\far.exe", "", kFar);
  Slow().Delay("D:*", 1000);
  Open();
  world.Costs.Clear();
  OpenOthers();
  EXPECT_LT(world.Costs.LongestTurn(), 100);
  EXPECT_EQ(library.List1Other.Items(), (std::vector<std::string>{"Explorer.exe", "Shell32.dll"}));
  EXPECT_FALSE(library.cmdAdd.Enabled());
  EXPECT_FALSE(library.cmdRemove.Enabled());
  ChooseRow(library.List1Other, 1);
  library.picOther.SetFocus();
  PressKey(forms::key::End);
  const std::string marked = Marked(library.OtherView);
  ASSERT_NE(marked, "");
  Advance(1100);
  EXPECT_EQ(library.List1Other.Items(),
            (std::vector<std::string>{"Explorer.exe", "far.exe", "Shell32.dll"}));
  EXPECT_EQ(library.List1Other.Selected(), 2);
  EXPECT_EQ(Marked(library.OtherView), marked);
  EXPECT_TRUE(library.cmdAdd.Enabled());
  EXPECT_TRUE(library.cmdRemove.Enabled());
}

TEST_F(LibraryIcons, AFirstListThatWasEmptyChoosesItsFirstRowWhenItIsMade) {
  world.Keys.Set(RegistryRoot::LocalMachine,
                 "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\far.exe", "", kFar);
  Slow().Delay("D:*", 100);
  Open();
  OpenOthers();
  ASSERT_EQ(library.List1Other.Items().size(), 0U);
  Advance(1000);
  EXPECT_EQ(library.List1Other.Selected(), 0);
  EXPECT_EQ(library.OtherView.Captions().size(), 5U);
}

}  // namespace
}  // namespace corvelle
