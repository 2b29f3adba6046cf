// Icons of the strip that are not known at once.

#include "toolbar/layout/StripIcons.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "forms/Types.h"
#include "icons/Glyphs.h"
#include "sim/SimShellIcons.h"
#include "toolbar/SinglesDesk.h"

namespace corvelle {
namespace {

using sim::SimShellIcons;

/// Two menus and two single buttons, whose icons lie on a disk that may take its time.
class IconsOfTheStrip : public ::testing::Test {
 protected:
  IconsOfTheStrip() {
    desk_.World.Files.AddDrive('D');
    for (const char* path : {"D:\\a.exe", "D:\\b.exe", "D:\\one.txt"})
      desk_.World.Files.Put(path, "x");
    desk_.World.Icons.SetIndex("D:\\a.exe", 30);
    desk_.World.Icons.SetIndex("D:\\b.exe", 31);
    desk_.World.Icons.SetIndex("D:\\one.txt", 32);
    desk_.PutButton(1, "One", "D:\\a.exe");
    desk_.PutButton(2, "Two", "D:\\one.txt");
    desk_.PutSingle(1, Entry("a", "D:\\b.exe", "D:\\b.exe"));
    desk_.PutSingle(2, Entry("b", "D:\\one.txt", "D:\\one.txt"));
  }

  sim::SimLookups& Slow() { return desk_.World.SlowAnswers; }
  void Advance(int milliseconds) { desk_.World.Desktop.Advance(milliseconds); }
  frmToolbar& Strip() { return desk_.Strip; }

  /// The middles of the icons of menu button 2 and single button 1, in pixels of their boxes.
  PixelPoint Button(int number = 2) {
    const ButtonRect& at = Strip().Buttons.ToolbarButtons[static_cast<std::size_t>(number)];
    return {static_cast<int>((at.Left + at.Width / 2) / 15),
            static_cast<int>((at.Top + at.Height / 2) / 15)};
  }
  PixelPoint Single(int number = 1) {
    const SingleRect& at = Strip().Singles.SingleButtons[static_cast<std::size_t>(number)];
    return {static_cast<int>((at.Left + at.Width / 2) / 15),
            static_cast<int>((at.Top + at.Height / 2) / 15)};
  }
  Rgb OfButton(int number = 2) { return Strip().picToolbar.Image()->PixelAt(Button(number)); }
  Rgb OfSingle(int number = 1) { return Strip().picSingleButton.Image()->PixelAt(Single(number)); }
  /// The picture of that kind of thing stands around the point.
  bool ShowsGlyph(const Picture& box, PixelPoint middle, std::string_view key, int scale = 1) {
    const int size = 16 * scale;
    sim::SimCanvas expected({size, size});
    expected.FillBox({0, 0, size, size},
                     forms::Resolve(desk_.World.Desktop, forms::color::ButtonFace));
    EXPECT_TRUE(DrawGlyph(expected, desk_.World.Desktop, key, {0, 0}, scale)) << key;
    // Icons lie a little beside the middle.
    for (int left = middle.x - size; left <= middle.x; ++left) {
      for (int top = middle.y - size; top <= middle.y; ++top) {
        bool same = true;
        for (int i = 0; same && i < size * size; ++i) {
          same = box->PixelAt({left + i % size, top + i / size}) ==
                 expected.PixelAt({i % size, i / size});
        }
        if (same) return true;
      }
    }
    return false;
  }

  SinglesDesk desk_;
};

TEST_F(IconsOfTheStrip, UntilTheyAreKnownPicturesOfTheirKindStandForThem) {
  Slow().Hang("D:*");
  desk_.Start();
  EXPECT_TRUE(ShowsGlyph(Strip().picToolbar.Image(), Button(2), "program"));
  EXPECT_TRUE(ShowsGlyph(Strip().picToolbar.Image(), Button(3), "document"));
  EXPECT_TRUE(ShowsGlyph(Strip().picSingleButton.Image(), Single(1), "program"));
  EXPECT_TRUE(ShowsGlyph(Strip().picSingleButton.Image(), Single(2), "document"));
}

TEST_F(IconsOfTheStrip, AnIconThatIsNotKnownYetIsNoBlankDocument) {
  const std::string blank = "C:\\Corvelle\\Icons\\W95MBX02.ICO";
  desk_.World.Files.Put(blank, "x");
  desk_.World.Files.Vanish("D:\\one.txt");
  desk_.Start();  // the blank document is known from now on
  Advance(1000);
  desk_.World.Files.Put("D:\\c.exe", "x");
  desk_.PutSingle(1, Entry("c", "D:\\c.exe", "D:\\c.exe"));
  Slow().Hang("D:*");
  Strip().DoSingleButtons();
  EXPECT_TRUE(ShowsGlyph(Strip().picSingleButton.Image(), Single(1), "program"));
}

TEST_F(IconsOfTheStrip, TheyAreAsLargeAsTheIcons) {
  desk_.SetOption(Option::LargeIcons, true);
  Slow().Hang("D:*");
  desk_.Start();
  EXPECT_TRUE(ShowsGlyph(Strip().picToolbar.Image(), Button(2), "program", 2));
  EXPECT_TRUE(ShowsGlyph(Strip().picSingleButton.Image(), Single(2), "document", 2));
  Slow().Resume("D:*");
  Advance(1000);
  EXPECT_EQ(OfButton(), SimShellIcons::ColourOf(30));
  EXPECT_EQ(OfSingle(), SimShellIcons::ColourOf(31));
}

TEST_F(IconsOfTheStrip, PlacesAreTheSameBeforeAndAfterTheyCome) {
  Slow().Delay("D:*", 50);
  desk_.Start();
  const TwipRect window = Strip().Bounds();
  const PixelPoint single = Single(2);
  const PixelPoint button = Button(3);
  Advance(1000);
  EXPECT_EQ(OfSingle(2), SimShellIcons::ColourOf(32));
  EXPECT_EQ(Strip().Bounds(), window);
  EXPECT_EQ(Single(2), single);
  EXPECT_EQ(Button(3), button);
}

TEST_F(IconsOfTheStrip, EachComesIntoItsPlaceAndNothingElseIsPainted) {
  Slow().Delay("D:*", 100);
  desk_.Start();
  const WindowId row = Strip().picSingleButton.hWnd();
  const int paints = desk_.World.Desktop.PaintCount(row);
  for (int i = 0; i < 1000 && desk_.World.Desktop.PaintCount(row) == paints; ++i) Advance(1);
  const PixelRect painted = desk_.World.Desktop.LastPainted(row);
  EXPECT_EQ(painted.Size(), (PixelSize{16, 16}));
  // A menu button has the same one, and asked for it before.
  EXPECT_TRUE(painted.Contains(Single(2))) << painted.left << " " << painted.top;
  EXPECT_EQ(OfSingle(2), SimShellIcons::ColourOf(32));
  EXPECT_NE(OfSingle(1), SimShellIcons::ColourOf(31));
  Advance(1000);
  // A repaint shows them too.
  Strip().picSingleButton.InvalidateAll();
  Strip().picSingleButton.Refresh();
  EXPECT_EQ(OfSingle(1), SimShellIcons::ColourOf(31));
  EXPECT_EQ(OfSingle(2), SimShellIcons::ColourOf(32));
  EXPECT_EQ(OfButton(2), SimShellIcons::ColourOf(30));
}

TEST_F(IconsOfTheStrip, TheStartWaitsForNoneAndAnotherBuildForALittleWhile) {
  desk_.World.Costs.SetPrice([](std::string_view, std::string_view) { return 0; });
  desk_.World.Costs.WhenCharged([this](int waited) { desk_.World.Desktop.Jump(waited); });
  Slow().Hang("D:*");
  desk_.TheProgram.Guards.StartingUp = true;
  desk_.Start();
  EXPECT_EQ(desk_.World.Costs.LongestTurn(), 0);
  desk_.TheProgram.Guards.StartingUp = false;
  Advance(1000);
  Strip().DoSingleButtons();
  EXPECT_GT(desk_.World.Costs.LongestTurn(), 0);
  EXPECT_LT(desk_.World.Costs.LongestTurn(), 100);
}

TEST_F(IconsOfTheStrip, ABuildShowsTheOnesThatWereKnownLast) {
  desk_.Start();
  desk_.World.Icons.SetIndex("D:\\a.exe", 40);
  Slow().Delay("D:*", 100);
  Strip().RefreshToolbar();
  EXPECT_EQ(OfButton(), SimShellIcons::ColourOf(30));
  EXPECT_EQ(OfSingle(), SimShellIcons::ColourOf(31));
  const WindowId row = Strip().picSingleButton.hWnd();
  desk_.World.Desktop.Pump();
  const int paints = desk_.World.Desktop.PaintCount(row);
  Advance(1000);
  EXPECT_EQ(OfButton(), SimShellIcons::ColourOf(40)) << "it has changed on the disk";
  EXPECT_EQ(desk_.World.Desktop.PaintCount(row), paints) << "all there are as they were";
}

TEST_F(IconsOfTheStrip, OneThatComesForAnEarlierBuildIsPaintedNowhere) {
  Slow().Delay("D:*", 200);
  desk_.Start();
  EXPECT_TRUE(desk_.World.Files.Remove("C:\\Corvelle\\Menus\\BMENU001.BTN"));
  Strip().DoSingleButtons();
  Slow().Hang("D:*");
  Advance(1500);
  EXPECT_TRUE(ShowsGlyph(Strip().picSingleButton.Image(), Single(1), "document"));
}

TEST_F(IconsOfTheStrip, WhatHasNoneGetsTheBlankDocumentWhenThatIsKnown) {
  const std::string blank = "C:\\Corvelle\\Icons\\W95MBX02.ICO";
  desk_.World.Files.Put(blank, "x");
  desk_.World.Icons.SetIndex(blank, 8);
  desk_.World.Files.Vanish("D:\\b.exe");
  Slow().Delay("D:*", 100);
  Slow().Delay("C:*", 100);
  desk_.Start();
  Advance(2000);
  EXPECT_EQ(OfSingle(1), SimShellIcons::ColourOf(8));
  EXPECT_EQ(OfSingle(2), SimShellIcons::ColourOf(32));
}

TEST_F(IconsOfTheStrip, ADiskThatDoesNotAnswerLeavesThePicturesAndThePressIsTaken) {
  Slow().HangForGood("D:*");
  desk_.Start();
  Advance(20'000);
  EXPECT_TRUE(ShowsGlyph(Strip().picSingleButton.Image(), Single(1), "program"));
  desk_.ClickSingle(1);
  EXPECT_EQ(desk_.Started(), std::vector<std::string>{"D:\\b.exe"});
}

TEST_F(IconsOfTheStrip, OneThatWasGivenUpComesWhenItsPlaceAnswersAgain) {
  Slow().HangForGood("D:*");
  desk_.Start();
  Advance(6000);
  ASSERT_TRUE(ShowsGlyph(Strip().picSingleButton.Image(), Single(1), "program"));
  Slow().Resume("D:*");
  Advance(100);
  EXPECT_EQ(OfSingle(1), SimShellIcons::ColourOf(31));
  EXPECT_EQ(OfSingle(2), SimShellIcons::ColourOf(32));
  EXPECT_EQ(OfButton(2), SimShellIcons::ColourOf(30));
}

TEST_F(IconsOfTheStrip, AndWhenItIsAskedAgainAfterItsRest) {
  Slow().Hang("D:*");  // it can be called back
  desk_.Start();
  Advance(3000);
  ASSERT_TRUE(ShowsGlyph(Strip().picSingleButton.Image(), Single(1), "program"));
  Slow().Resume("D:*");
  Advance(8000);
  EXPECT_TRUE(ShowsGlyph(Strip().picSingleButton.Image(), Single(1), "program"))
      << "nothing tells that it would answer";
  Advance(2000);
  EXPECT_EQ(OfSingle(1), SimShellIcons::ColourOf(31));
}

TEST_F(IconsOfTheStrip, AndAtOnceWhenTheUserWantsAllToBeLookedAtAgain) {
  Slow().Hang("D:*");
  desk_.Start();
  Advance(3000);
  Slow().Resume("D:*");
  desk_.TheProgram.Answers.TryAllAgain();
  Advance(1);
  EXPECT_EQ(OfSingle(1), SimShellIcons::ColourOf(31));
}

TEST_F(IconsOfTheStrip, AStripThatIsUnloadedMeanwhileTakesNone) {
  Slow().Delay("D:*", 200);
  desk_.Start();
  Strip().UnloadItems();
  const int paints = desk_.World.Desktop.PaintCount(Strip().picSingleButton.hWnd());
  Advance(2000);
  EXPECT_EQ(desk_.World.Desktop.PaintCount(Strip().picSingleButton.hWnd()), paints);
}

}  // namespace
}  // namespace corvelle
