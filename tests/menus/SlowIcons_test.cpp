// Icons that are not known at once, while their menu is up.

#include <gtest/gtest.h>

#include <algorithm>

#include "base/Text.h"
#include "icons/Glyphs.h"
#include "menus/FolderDesk.h"

namespace corvelle {
namespace {

using sim::SimShellIcons;

/// Files on a quick disk and on one that takes its time.
class SlowIcons : public ::testing::Test {
 protected:
  SlowIcons() {
    desk_.World.Files.AddDrive('D');
    for (const char* path : {"C:\\a.exe", "C:\\b.exe", "D:\\a.exe", "D:\\b.exe", "D:\\c.exe",
                             "D:\\one.txt", "D:\\Docs\\x.txt"}) {
      desk_.World.Files.Put(path, "x");
    }
    desk_.World.Icons.SetIndex("C:\\a.exe", 20);
    desk_.World.Icons.SetIndex("C:\\b.exe", 21);
    desk_.World.Icons.SetIndex("D:\\a.exe", 30);
    desk_.World.Icons.SetIndex("D:\\b.exe", 31);
    desk_.World.Icons.SetIndex("D:\\c.exe", 32);
  }
  void Open(const Strings& icons, int number = 1) {
    std::vector<MenuRecord> items;
    for (const std::string& icon : icons)
      items.push_back(Item("Item", icon, "C:\\Tools\\tool.exe"));
    desk_.Open(number, items);
  }
  void Advance(int milliseconds) { desk_.World.Desktop.Advance(milliseconds); }
  sim::SimLookups& Slow() { return desk_.World.SlowAnswers; }
  Rgb Colour(int item) const {
    const PixelPoint cell = desk_.IconCell(item);
    return desk_.PixelInside(cell.x + 8, cell.y + 8);
  }
  bool ShowsGlyph(int item, std::string_view key) {
    sim::SimCanvas expected({16, 16});
    expected.FillBox({0, 0, 16, 16}, desk_.SystemColour(forms::color::ButtonFace));
    EXPECT_TRUE(DrawGlyph(expected, desk_.World.Desktop, key, {0, 0})) << key;
    const PixelPoint cell = desk_.IconCell(item);
    const PixelPoint corner = desk_.OnScreen(0, 0);
    const sim::SimCanvas screen = desk_.World.Desktop.Picture();
    for (int y = 0; y < 16; ++y) {
      for (int x = 0; x < 16; ++x) {
        if (screen.PixelAt({corner.x + cell.x + x, corner.y + cell.y + y}) !=
            expected.PixelAt({x, y})) {
          return false;
        }
      }
    }
    return true;
  }
  int Asked(const std::string& path) {
    const Strings& paths = desk_.World.Icons.Asked(IconList::Small);
    return static_cast<int>(std::count(paths.begin(), paths.end(), path));
  }
  /// What was painted last of the menu, in pixels of its inside.
  PixelRect Painted() const {
    const PixelRect at = desk_.World.Desktop.LastPainted(desk_.Menu.hWnd());
    return {at.left - 3, at.top - 3, at.right - 3, at.bottom - 3};
  }

  FolderDesk desk_;
};

TEST_F(SlowIcons, UntilTheyAreKnownPicturesOfTheirKindStandForThem) {
  Slow().Hang("D:*");
  desk_.World.Links.Put("C:\\far.lnk", {.Path = "D:\\a.exe"});
  const auto before = desk_.World.Desktop.Now();
  Open({"C:\\a.exe", "D:\\a.exe", "D:\\one.txt", "D:\\Docs", "C:\\far.lnk", "D:\\b.exe|1"});
  EXPECT_EQ(desk_.World.Desktop.Now(), before);
  EXPECT_TRUE(desk_.Menu.MenuVisible());
  EXPECT_EQ(Colour(1), SimShellIcons::ColourOf(20));
  int item = 1;
  for (const char* key : {"program", "document", "folder", "link", "program"})
    EXPECT_TRUE(ShowsGlyph(++item, key)) << key;
}

TEST_F(SlowIcons, EachComesIntoItsCellAndNothingElseIsPainted) {
  Slow().Delay("D:*", 200);
  Open({"D:\\a.exe", "C:\\a.exe", "D:\\b.exe"});
  desk_.PointAtItem(3);
  const std::int64_t opened = desk_.World.Desktop.Now();
  for (const int item : {1, 3}) {
    SCOPED_TRACE(item);
    const int paints = desk_.World.Desktop.PaintCount(desk_.Menu.hWnd());
    while (desk_.World.Desktop.PaintCount(desk_.Menu.hWnd()) == paints &&
           desk_.World.Desktop.Now() < opened + 1000) {
      Advance(1);
    }
    EXPECT_EQ(desk_.World.Desktop.Now(), opened + (item == 1 ? 200 : 400));
    const PixelPoint cell = desk_.IconCell(item);
    EXPECT_EQ(Painted(), (PixelRect{cell.x, cell.y, cell.x + 16, cell.y + 16}));
    EXPECT_EQ(Colour(item), SimShellIcons::ColourOf(item == 1 ? 30 : 31));
  }
  EXPECT_EQ(Colour(2), SimShellIcons::ColourOf(20));
  EXPECT_EQ(desk_.BarredItem(), 3);
  // The kept picture of the page holds them too.
  desk_.Menu.InvalidateAll();
  desk_.World.Desktop.Pump();
  EXPECT_EQ(Colour(1), SimShellIcons::ColourOf(30));
  EXPECT_EQ(Colour(3), SimShellIcons::ColourOf(31));
}

TEST_F(SlowIcons, APressIsTakenWhileTheyCome) {
  Slow().Delay("D:*", 100);
  Open({"D:\\a.exe", "D:\\b.exe"});
  desk_.PointAtItem(2);
  desk_.World.Desktop.Press();
  Advance(1000);
  EXPECT_EQ(Colour(2), SimShellIcons::ColourOf(31));
  desk_.World.Desktop.Release();
  EXPECT_EQ(desk_.Started(), Strings{"C:\\Tools\\tool.exe"});
}

TEST_F(SlowIcons, ADocumentHasTheIconOfItsKindWhereThatIsKnown) {
  Open({"C:\\Docs\\beta.txt"}, 2);
  desk_.Menu.HideMenu();
  Slow().Hang("D:*");
  Open({"D:\\one.txt", "D:\\a.exe"});
  EXPECT_EQ(Colour(1), SimShellIcons::ColourOf(5));
  EXPECT_TRUE(ShowsGlyph(2, "program"));
}

TEST_F(SlowIcons, ADiskThatDoesNotAnswerHoldsUpNoIconOfAnother) {
  Slow().Hang("D:*");
  Open({"D:\\a.exe", "D:\\b.exe", "C:\\a.exe", "C:\\b.exe"});
  EXPECT_EQ(Colour(3), SimShellIcons::ColourOf(20));
  EXPECT_EQ(Colour(4), SimShellIcons::ColourOf(21));
}

TEST_F(SlowIcons, AnAnswerForAClosedMenuComesIntoNoWindowAndIsThereAtTheNextOpening) {
  Slow().Delay("D:*", 300);
  Open({"D:\\a.exe", "D:\\b.exe"});
  desk_.Menu.HideMenu();
  const int paints = desk_.World.Desktop.PaintCount(desk_.Menu.hWnd());
  Advance(2000);
  EXPECT_EQ(desk_.World.Desktop.PaintCount(desk_.Menu.hWnd()), paints);
  EXPECT_FALSE(desk_.Menu.MenuVisible());
  Slow().Hang("D:*");
  desk_.Reopen(1);
  EXPECT_EQ(Colour(1), SimShellIcons::ColourOf(30));
  EXPECT_EQ(Colour(2), SimShellIcons::ColourOf(31));
  EXPECT_EQ(Asked("D:\\a.exe"), 1);
  EXPECT_EQ(Asked("D:\\b.exe"), 1);
}

TEST_F(SlowIcons, AnAnswerForAnotherMenuLeavesTheOneOnShowAlone) {
  Slow().Delay("D:*", 300);
  Open({"D:\\a.exe"});
  desk_.Menu.HideMenu();
  Open({"C:\\a.exe"}, 2);
  const int paints = desk_.World.Desktop.PaintCount(desk_.Menu.hWnd());
  Advance(1000);
  EXPECT_EQ(desk_.World.Desktop.PaintCount(desk_.Menu.hWnd()), paints);
  EXPECT_EQ(Colour(1), SimShellIcons::ColourOf(20));
}

TEST_F(SlowIcons, ThoseOfAPageThatWasLeftAreThereWhenItIsShownAgain) {
  Slow().Delay("D:*", 300);
  std::vector<MenuRecord> items = Items(80);
  items[0].FIcon = "D:\\a.exe";
  items[40].FIcon = "D:\\b.exe";
  desk_.Open(1, items);
  EXPECT_TRUE(ShowsGlyph(1, "program"));
  desk_.World.Desktop.PressKey(forms::key::PageDown);
  EXPECT_TRUE(ShowsGlyph(41, "program"));
  Advance(1000);
  EXPECT_EQ(Colour(41), SimShellIcons::ColourOf(31));
  Slow().Hang("D:*");
  desk_.World.Desktop.PressKey(forms::key::PageUp);
  EXPECT_EQ(Colour(1), SimShellIcons::ColourOf(30));
}

TEST_F(SlowIcons, WhatIsReadAgainShowsTheIconThatWasKnownLast) {
  Open({"D:\\a.exe"});
  Slow().Delay("D:*", 300);
  desk_.World.Icons.SetIndex("D:\\a.exe", 35);
  desk_.Menu.RefreshQMenu();
  desk_.Menu.HideMenu();
  desk_.Menu.ForgetMenu("F2");
  desk_.Reopen(1);
  EXPECT_EQ(Colour(1), SimShellIcons::ColourOf(30));
  Advance(1000);
  EXPECT_EQ(Colour(1), SimShellIcons::ColourOf(35));
}

TEST_F(SlowIcons, OneThatIsNotAvailableIsAskedForAgainAtALaterOpening) {
  Slow().Hang("D:*");
  Open({"D:\\a.exe"});
  Advance(3000);
  EXPECT_TRUE(ShowsGlyph(1, "program"));
  desk_.Menu.HideMenu();
  Slow().Resume("D:*");
  desk_.Reopen(1);
  EXPECT_TRUE(ShowsGlyph(1, "program"));  // the disk rests
  desk_.Menu.HideMenu();
  Advance(20'000);
  desk_.Reopen(1);
  EXPECT_EQ(Colour(1), SimShellIcons::ColourOf(30));
}

TEST_F(SlowIcons, OneThatWasGivenUpComesIntoTheMenuWhenItsPlaceAnswersAgain) {
  Slow().HangForGood("D:*");
  Open({"D:\\a.exe", "C:\\a.exe"});
  Advance(6000);
  ASSERT_TRUE(ShowsGlyph(1, "program"));
  Slow().Resume("D:*");
  Advance(100);
  EXPECT_EQ(Colour(1), SimShellIcons::ColourOf(30));
}

TEST_F(SlowIcons, AFileWithoutAnIconIsABlankDocumentInTheEnd) {
  desk_.World.Icons.SetIndex("C:\\Corvelle\\Icons\\W95MBX02.ICO", 7);
  Slow().Delay("D:*", 200);
  Slow().Delay("C:*", 200);
  Open({"D:\\gone.txt", "D:\\gone.exe|2"});
  EXPECT_TRUE(ShowsGlyph(1, "document"));
  EXPECT_TRUE(ShowsGlyph(2, "program"));
  Advance(3000);
  EXPECT_EQ(Colour(1), SimShellIcons::ColourOf(7));
  EXPECT_EQ(Colour(2), SimShellIcons::ColourOf(7));
}

TEST_F(SlowIcons, OtherColoursComeIntoTheCellsToo) {
  constexpr Rgb kGreen = 0x0080C0A0;
  Slow().Delay("D:*", 300);
  Open({"C:\\a.exe", "D:\\a.exe"});
  desk_.World.Desktop.SetSystemColor(15, kGreen);
  desk_.World.Desktop.Pump();
  EXPECT_EQ(Colour(1), SimShellIcons::ColourOf(20));
  Advance(1000);
  EXPECT_EQ(Colour(2), SimShellIcons::ColourOf(30));
  const PixelPoint cell = desk_.IconCell(2);
  EXPECT_EQ(desk_.PixelInside(cell.x + 17, cell.y + 8), kGreen);
}

TEST_F(SlowIcons, WhatIsForgottenWhileItIsWaitedForIsAskedForAgain) {
  Slow().Delay("D:*", 300);
  Open({"C:\\a.exe", "D:\\a.exe", "D:\\b.exe"});
  desk_.Menu.ResetPicIcons();
  EXPECT_EQ(Colour(1), SimShellIcons::ColourOf(20));
  Advance(1500);
  EXPECT_EQ(Colour(1), SimShellIcons::ColourOf(20));
  EXPECT_EQ(Colour(2), SimShellIcons::ColourOf(30));
  EXPECT_EQ(Colour(3), SimShellIcons::ColourOf(31));
}

TEST_F(SlowIcons, AMenuThatGoesWhileTheyComeIsLeftAlone) {
  Slow().Delay("D:*", 300);
  Open({"D:\\a.exe"});
  desk_.Menu.UnloadWindow();
  Advance(1000);
  EXPECT_FALSE(desk_.Menu.IsLoaded());
}

TEST_F(SlowIcons, TogetherTheyHoldAMenuUpForAMomentOnly) {
  Strings icons;
  for (const char drive : {'D', 'E', 'F'}) {
    if (drive != 'D') desk_.World.Files.AddDrive(drive);
    Slow().Hang(std::string(1, drive) + ":*");
    icons.push_back(std::string(1, drive) + ":\\a.exe");
  }
  desk_.World.Costs.SetPrice([](std::string_view, std::string_view) { return 0; });
  desk_.World.Costs.WhenCharged([&](int milliseconds) { desk_.World.Desktop.Jump(milliseconds); });
  Open(icons);
  EXPECT_EQ(desk_.World.Costs.LongestTurn(), MenuIcons::kAtOnce);
  desk_.World.Costs.WhenCharged({});
}

/// The files of menus take so long that there is no time left for icons.
class IconsOfALongBuild : public SlowIcons {
 protected:
  IconsOfALongBuild() {
    desk_.World.Costs.SetPrice([](std::string_view, std::string_view path) {
      return EndsWithNoCase(path, ".MNU") ? MenuIcons::kAtOnce + 10 : 0;
    });
    desk_.World.Costs.WhenCharged(
        [&](int milliseconds) { desk_.World.Desktop.Jump(milliseconds); });
  }
  ~IconsOfALongBuild() override { desk_.World.Costs.WhenCharged({}); }

  /// Opens a menu of two programs, and lets no event run.
  void Build() {
    desk_.PutMenu(1, {Item("One", "C:\\a.exe", "C:\\a.exe"), Item("Two", "C:\\b.exe", "C:\\b.exe"),
                      Item("Three", "C:\\a.exe", "C:\\a.exe")});
    desk_.Menu.SetOwnerTag("2");
    desk_.Menu.ShowMenu("F2", desk_.TheProgram.Paths.MenusPath + MenuFileName(1));
    EXPECT_TRUE(desk_.Menu.MenuVisible());
    EXPECT_EQ(Asked("C:\\a.exe"), 0);
    // With its captions, and not once more for each icon that is not there.
    EXPECT_EQ(desk_.World.Desktop.PaintCount(desk_.Menu.hWnd()), 1);
  }
};

TEST_F(IconsOfALongBuild, AreAskedForByALaterTurn) {
  Build();
  Advance(1);
  EXPECT_EQ(Asked("C:\\a.exe"), 1);
  for (const int item : {1, 3}) EXPECT_EQ(Colour(item), SimShellIcons::ColourOf(20));
  EXPECT_EQ(Colour(2), SimShellIcons::ColourOf(21));
}

TEST_F(IconsOfALongBuild, AreAskedForAlthoughTheMenuIsClosedBefore) {
  Build();
  desk_.Menu.HideMenu();
  Advance(1000);
  EXPECT_EQ(Asked("C:\\a.exe"), 1);
  desk_.Reopen(1);
  EXPECT_EQ(Colour(1), SimShellIcons::ColourOf(20));
  EXPECT_EQ(Asked("C:\\a.exe"), 1);
}

TEST_F(IconsOfALongBuild, AreNotAskedForWhenTheMenuIsUnloadedBefore) {
  Build();
  desk_.Menu.UnloadWindow();
  Advance(1000);
  EXPECT_EQ(Asked("C:\\a.exe"), 0);
}

TEST_F(SlowIcons, TheirLookingForTakesNoTimeOfTheWindows) {
  Slow().Delay("D:*", 50);
  const auto before = desk_.World.Desktop.Now();
  Open({"D:\\a.exe", "D:\\b.exe", "D:\\c.exe", "C:\\a.exe"});
  EXPECT_EQ(desk_.World.Desktop.Now(), before);
  Advance(200);
  for (const int item : {1, 2, 3}) EXPECT_EQ(Colour(item), SimShellIcons::ColourOf(29 + item));
}

}  // namespace
}  // namespace corvelle
