// What the system and other programs say to the strip, and what wakes it.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "toolbar/StripDesk.h"
#include "toolbar/notices/frmHelp.h"
#include "toolbar/notices/frmTip.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {
namespace {

namespace message = forms::message;

struct StripOfTwo : StripDesk {
  StripOfTwo() {
    PutButtons(2);
    Start();
  }
  std::intptr_t Send(std::uint32_t what, std::uintptr_t wParam = 0, std::intptr_t lParam = 0) {
    return World.Desktop.Send(Strip.hWnd(), what, wParam, lParam).value_or(0);
  }
  /// The calls on the strip's place in the Z order since the log was cleared.
  [[nodiscard]] std::vector<std::string> OrderCalls() const {
    std::vector<std::string> calls;
    for (const std::string& line : World.Desktop.Log()) {
      if (line.starts_with("setwindowpos frm")) calls.push_back(line);
    }
    return calls;
  }
};

TEST(ToolbarLoad, TheWindowIsTopmostUnlessOthersMayCoverIt) {
  for (const bool notOnTop : {false, true}) {
    SCOPED_TRACE(notOnTop);
    StripDesk desk;
    desk.TheProgram.Strip.NotOnTop = notOnTop;
    desk.PutButtons(1);
    desk.Start();
    EXPECT_EQ(desk.World.Desktop.IsTopmost(desk.Strip.hWnd()), !notOnTop);
  }
}

TEST(ToolbarLoad, TheWindowHasItsTagNoCaptionAndTheKeyboard) {
  StripOfTwo desk;
  EXPECT_EQ(desk.Strip.Tag, "ToolbarWindow");
  EXPECT_EQ(desk.Strip.Caption(), "");
  EXPECT_EQ(desk.Strip.BackColor(), forms::color::ButtonFace);
  EXPECT_EQ(desk.World.Desktop.ActiveWindow(), desk.Strip.hWnd());
  EXPECT_EQ(desk.Menu.Times("InitIcons"), 1);
}

TEST(ToolbarLoad, NothingOfItIsSeenBeforeItStands) {
  StripDesk desk;
  desk.PutButtons(2);
  desk.Start();
  const auto& log = desk.World.Desktop.Log();
  const auto shown = std::find(log.begin(), log.end(), "show frmToolbar Normal");
  ASSERT_NE(shown, log.end());
  const auto placed = std::find(log.begin(), log.end(), "bounds frmToolbar 874,-7,964,18");
  EXPECT_LT(placed, shown);
}

TEST(ToolbarColours, AChangeDrawsTheButtonsAnewAndMovesNothing) {
  StripOfTwo desk;
  const float left = desk.Strip.picToolbar.Left();
  const float width = desk.Strip.picToolbar.Width();
  const float singlesLeft = desk.Strip.picSingleButton.Left();
  const float singlesWidth = desk.Strip.picSingleButton.Width();
  const float window = desk.Strip.Left();
  const int painted = desk.World.Desktop.PaintCount(desk.Strip.picToolbar.hWnd());
  desk.World.Desktop.SetSystemColor(15, 0x00123456);
  desk.World.Desktop.Pump();
  EXPECT_GT(desk.World.Desktop.PaintCount(desk.Strip.picToolbar.hWnd()), painted);
  EXPECT_EQ(desk.Strip.picToolbar.Image()->PixelAt({20, 1}), 0x00123456U);
  EXPECT_EQ(desk.Strip.picToolbar.Left(), left);
  EXPECT_EQ(desk.Strip.picToolbar.Width(), width);
  EXPECT_EQ(desk.Strip.picSingleButton.Left(), singlesLeft);
  EXPECT_EQ(desk.Strip.picSingleButton.Width(), singlesWidth);
  EXPECT_EQ(desk.Strip.Left(), window);
  EXPECT_TRUE(desk.Strip.picToolbar.Visible());
  EXPECT_EQ(desk.Menu.Times("ResetPicIcons"), 1);
}

TEST(ToolbarColours, AnotherColourThanTheFaceDrawsNothingAnew) {
  StripOfTwo desk;
  desk.World.Icons.ClearCounts();
  desk.World.Files.ClearLog();
  desk.Send(message::SysColorChange);
  EXPECT_TRUE(desk.World.Files.Log().empty());
  EXPECT_EQ(desk.Menu.Times("ResetPicIcons"), 0);
}

TEST(ToolbarColours, ARefreshKeepsABoxThatIsHidden) {
  StripOfTwo desk;
  desk.Strip.picToolbar.SetVisible(false);
  desk.Strip.RefreshToolbar();
  EXPECT_FALSE(desk.Strip.picToolbar.Visible());
}

TEST(ToolbarRepaint, OfAStandingStripAsksForNoIcons) {
  StripOfTwo desk;
  EXPECT_NE(desk.Strip.picToolbar.Background(), nullptr);
  desk.World.Icons.ClearCounts();
  desk.World.Files.ClearLog();
  desk.Strip.picToolbar.InvalidateAll();
  desk.Strip.InvalidateAll();
  desk.World.Desktop.Pump();
  EXPECT_EQ(desk.World.Icons.Lookups(), 0);
  EXPECT_EQ(desk.World.Icons.Draws(), 0);
  EXPECT_TRUE(desk.World.Files.Log().empty());
}

TEST(ToolbarIcons, TheIconOfAFileStandsInItsButton) {
  StripDesk desk;
  desk.World.Files.Put("C:\\Tools\\tool.txt", "x");
  desk.World.Icons.SetIndex("C:\\Tools\\tool.txt", 5);
  desk.PutButton(1, "Tool", "C:\\Tools\\tool.txt");
  desk.PutButton(2, "Plain", "Button");
  desk.Start();
  const Picture strip = desk.Strip.picToolbar.Image();
  // Button 2: X = 24 + (23 - 16) / 2.5, which rounds to 27, and 1; Y = 22 / 2 - 16 / 2 + 1 + 1.
  EXPECT_EQ(strip->PixelAt({28, 5}), sim::SimShellIcons::ColourOf(5));
  EXPECT_EQ(strip->PixelAt({43, 20}), sim::SimShellIcons::ColourOf(5));
  EXPECT_NE(strip->PixelAt({27, 5}), sim::SimShellIcons::ColourOf(5));
  EXPECT_NE(strip->PixelAt({28, 4}), sim::SimShellIcons::ColourOf(5));
  const Rgb face = desk.World.Desktop.SystemColor(15);
  EXPECT_EQ(strip->PixelAt({55, 10}), face);
}

TEST(ToolbarDisplay, AnotherScreenWidthEmptiesTheIconCollections) {
  StripOfTwo desk;
  desk.Click(2);
  desk.Menu.Built.insert("F3");
  desk.World.Desktop.SetScreen({1280, 1024});
  desk.World.Desktop.Pump();
  EXPECT_EQ(desk.Menu.Times("ResetPicIcons"), 1);
  EXPECT_FALSE(desk.Menu.HasBuiltMenu("F3"));
  desk.World.Desktop.SetScreen({1280, 768});
  desk.World.Desktop.Pump();
  EXPECT_EQ(desk.Menu.Times("ResetPicIcons"), 1);
}

TEST(ToolbarDisplay, OtherColoursOfTheScreenEmptyThemToo) {
  StripOfTwo desk;
  EXPECT_EQ(desk.Strip.BaseBits, 32);
  desk.World.Desktop.SetScreen({1024, 768}, 16);
  desk.World.Desktop.Pump();
  EXPECT_EQ(desk.Strip.BaseBits, 16);
  EXPECT_EQ(desk.Menu.Times("ResetPicIcons"), 1);
  desk.World.Desktop.SetScreen({1024, 768}, 16);
  desk.World.Desktop.Pump();
  EXPECT_EQ(desk.Menu.Times("ResetPicIcons"), 1);
}

TEST(ToolbarUnload, MarkedCollectionsAreEmptiedOnce) {
  StripOfTwo desk;
  desk.Strip.CollectionsMarked = true;
  desk.Strip.InitNewButtons();
  desk.Strip.InitNewButtons();
  EXPECT_EQ(desk.Menu.Times("ResetPicIcons"), 1);
}

TEST(ToolbarMove, WhoeverMovesAFloatingStripItKeepsItsHeightOnTheScreen) {
  StripOfTwo desk;
  desk.Strip.SetTop(3000);
  EXPECT_EQ(desk.Strip.Top(), -7 * 15);
  desk.Strip.SetLeft(1500);
  EXPECT_EQ(desk.Strip.Left(), 1500);
}

TEST(ToolbarMove, IsLeftAloneWhileTheStripIsPlacedAnew) {
  struct Row {
    const char* name;
    bool GuardFlags::*flag;
  };
  const Row rows[] = {{"starting up", &GuardFlags::StartingUp},
                      {"a repositioning", &GuardFlags::AppBarBusy},
                      {"a restore", &GuardFlags::RestoreBusy}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    StripOfTwo desk;
    desk.TheProgram.Guards.*row.flag = true;
    desk.Strip.SetTop(3000);
    EXPECT_EQ(desk.Strip.Top(), 3000);
    desk.TheProgram.Guards.*row.flag = false;
  }
}

TEST(ToolbarFullScreen, TheStripSinksBelowTheProgramAndComesBackWithTheMenuWindow) {
  StripOfTwo desk;
  desk.World.Desktop.ClearLog();
  desk.Send(message::AppBarCallback, 2, 1);
  EXPECT_TRUE(desk.TheProgram.Strip.FullScreenApp);
  EXPECT_EQ(desk.OrderCalls(), std::vector<std::string>{"setwindowpos frmToolbar 1 19"});
  desk.World.Desktop.ClearLog();
  desk.Send(message::AppBarCallback, 2, 0);
  EXPECT_FALSE(desk.TheProgram.Strip.FullScreenApp);
  const std::vector<std::string> expected = {"setwindowpos frmToolbar -1 67",
                                             "setwindowpos frmQMenu -1 131"};
  EXPECT_EQ(desk.OrderCalls(), expected);
}

TEST(ToolbarFullScreen, TheHintIsOnTopAgainAfterwardsWhereHintsAreShown) {
  for (const bool hints : {true, false}) {
    SCOPED_TRACE(hints);
    StripOfTwo desk;
    frmHelp hint(HintPartsOf(desk.TheProgram));
    desk.TheProgram.Ports.Hint = &hint;
    // One that was never shown is not made for this.
    desk.Send(message::AppBarCallback, 2, 0);
    EXPECT_FALSE(hint.IsLoaded());
    hint.SetHint("a title");
    ASSERT_TRUE(hint.IsLoaded());
    desk.SetOption(Option::NoHints, !hints);
    desk.Send(message::AppBarCallback, 2, 1);
    hint.SetWindowPos(forms::InsertAfter::NotTopmost, forms::swp::KeepActivation);
    desk.Send(message::AppBarCallback, 2, 0);
    EXPECT_EQ(desk.World.Desktop.IsTopmost(hint.hWnd()), hints);
    EXPECT_EQ(hint.Visible(), !hints);
    desk.TheProgram.Ports.Hint = nullptr;
  }
}

TEST(ToolbarFullScreen, WithOption4TheStripStaysAbove) {
  StripOfTwo desk;
  desk.SetOption(Option::AboveFullScreen, true);
  desk.World.Desktop.ClearLog();
  desk.Send(message::AppBarCallback, 2, 1);
  desk.Send(message::AppBarCallback, 2, 1);
  EXPECT_EQ(desk.OrderCalls(), std::vector<std::string>{"setwindowpos frmToolbar 0 19"});
  desk.Send(message::AppBarCallback, 2, 0);
  EXPECT_FALSE(desk.TheProgram.Strip.FullScreenApp);
  EXPECT_EQ(desk.OrderCalls().size(), 2U);
}

TEST(ToolbarFullScreen, AStripThatOthersMayCoverDoesNothing) {
  StripOfTwo desk;
  desk.TheProgram.Strip.NotOnTop = true;
  desk.World.Desktop.ClearLog();
  desk.Send(message::AppBarCallback, 2, 1);
  EXPECT_TRUE(desk.OrderCalls().empty());
  EXPECT_FALSE(desk.TheProgram.Strip.FullScreenApp);
}

TEST(ToolbarGuard, AStripThatIsNotReadyOnlyNotesFullScreenPrograms) {
  StripOfTwo desk;
  desk.TheProgram.Guards.ToolbarReady = false;
  desk.World.Desktop.ClearLog();
  desk.Send(message::AppBarCallback, 2, 1);
  EXPECT_TRUE(desk.TheProgram.Strip.FullScreenApp);
  EXPECT_TRUE(desk.OrderCalls().empty());
  desk.World.Desktop.SetSystemColor(15, 0x00123456);
  EXPECT_EQ(desk.Menu.Times("ResetPicIcons"), 0);
}

TEST(ToolbarGuard, AMinimizedStripThatIsPlacedAnewOnlyNotesFullScreenPrograms) {
  StripOfTwo desk;
  desk.TheProgram.Guards.AppBarBusy = true;
  desk.TheProgram.Strip.ToolbarMinimized = true;
  desk.World.Desktop.ClearLog();
  desk.Send(message::AppBarCallback, 2, 1);
  EXPECT_TRUE(desk.TheProgram.Strip.FullScreenApp);
  EXPECT_TRUE(desk.OrderCalls().empty());
  desk.TheProgram.Guards.AppBarBusy = false;
  desk.TheProgram.Strip.ToolbarMinimized = false;
}

TEST(ToolbarGuard, ACloseFromOutsideLeavesTheStripStanding) {
  StripOfTwo desk;
  desk.Send(message::Close);
  EXPECT_TRUE(desk.Strip.IsLoaded());
  EXPECT_TRUE(desk.Strip.Visible());
}

TEST(ToolbarIdle, NothingWakesTheProgram) {
  StripOfTwo desk;
  desk.Wait(1000);
  EXPECT_EQ(desk.WakeUps(10'000), 0);
}

TEST(ToolbarIdle, NothingWakesItAfterAMenuEither) {
  StripOfTwo desk;
  desk.Click(2);
  desk.Wait(500);
  desk.Click(2);
  desk.Wait(1000);
  EXPECT_EQ(desk.WakeUps(10'000), 0);
  desk.Click(3);
  desk.PointAtButton(1);
  desk.Wait(1000);
  EXPECT_EQ(desk.WakeUps(10'000), 0);
}

TEST(ToolbarForeground, TheStripComesForwardFromAnotherProgramsTurn) {
  StripOfTwo desk;
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Title = "Other"});
  desk.World.Desktop.TakeForeground(other);
  desk.World.Desktop.LockForeground(true);
  desk.Strip.BringToForeground();
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), desk.Strip.hWnd());
  desk.Wait(1000);
  EXPECT_EQ(desk.WakeUps(10'000), 0);
}

TEST(ToolbarForeground, ALateFocusRequestTakesNothingFromAnOpenMenu) {
  StripOfTwo desk;
  desk.Strip.BringToForeground();
  desk.Click(2);
  desk.Wait(400);
  EXPECT_EQ(desk.MenuUp(), 2);
  EXPECT_EQ(desk.World.Desktop.ActiveWindow(), desk.Menu.hWnd());
}

TEST(ToolbarForeground, ALateFocusRequestTakesNothingFromAUserWhoHasTurnedElsewhere) {
  StripOfTwo desk;
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Title = "Other"});
  desk.Strip.BringToForeground();
  desk.Click(2);
  desk.World.Desktop.TakeForeground(other);
  desk.World.Desktop.MovePointer(900, 700);
  desk.Wait(600);
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), other);
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(ToolbarForeground, ALateFocusRequestIsGrantedWhereTheFirstWasRefused) {
  StripOfTwo desk;
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Title = "Other"});
  desk.Strip.BringToForeground();
  // As if the system had not let it come forward.
  desk.World.Desktop.TakeForeground(other);
  desk.Strip.BringToForeground();
  desk.Wait(400);
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), desk.Strip.hWnd());
}

TEST(ToolbarForeground, ALateFocusRequestTakesNothingFromANotice) {
  StripOfTwo desk;
  frmTip tip(TipPartsOf(desk.TheProgram));
  desk.Strip.BringToForeground();
  tip.ShowTip("Title", "Text", std::nullopt);
  desk.Wait(400);
  EXPECT_EQ(desk.World.Desktop.ActiveWindow(), tip.hWnd());
  desk.World.Desktop.PressKey(forms::key::Enter);
  EXPECT_FALSE(tip.IsLoaded());
}

TEST(ToolbarMessages, NewsThatHasToWaitStartsThePollAndOtherMessagesDoNot) {
  for (const bool news : {true, false}) {
    SCOPED_TRACE(news);
    StripDesk desk;
    desk.PutButtons(1);
    desk.Start();
    desk.TheProgram.Guards.ToolbarReady = false;
    desk.Strip.Timer1.SetEnabled(false);
    const std::uint32_t message = news ? forms::message::DisplayChange : forms::message::Move;
    EXPECT_FALSE(desk.Strip.ToolbarWndProc(message, 0, 0).has_value());
    EXPECT_EQ(desk.Strip.Timer1.Enabled(), news);
    desk.TheProgram.Guards.ToolbarReady = true;
  }
}

}  // namespace
}  // namespace corvelle
