// The date at the far end of a strip at an edge.

#include <gtest/gtest.h>

#include "toolbar/SinglesDesk.h"

namespace corvelle {
namespace {

struct DateDesk : SinglesDesk {
  explicit DateDesk(const std::string& titles = "ab", corvelle::Edge at = corvelle::Edge::Top) {
    SetOption(Option::ShowDate, true);
    PutSingles(titles);
    StartAt(at);
  }
  bool Shown() const {
    return Strip.lblDate.Visible() && Strip.Line1[0].Visible() && Strip.Line2[0].Visible();
  }
  bool Hidden() const {
    return !Strip.lblDate.Visible() && !Strip.Line1[0].Visible() && !Strip.Line2[0].Visible();
  }
  PixelPoint OnDate() const {
    const PixelRect box = World.Desktop.BoundsOf(Strip.picSingleButton.hWnd());
    return {box.right - 10, (box.top + box.bottom) / 2};
  }
};

TEST(StripDate, StandsAtTheFarEndOfALyingStrip) {
  for (const Edge at : {Edge::Top, Edge::Bottom}) {
    DateDesk desk("ab", at);
    EXPECT_TRUE(desk.Shown());
    EXPECT_EQ(desk.Strip.lblDate.Caption(), "3/14/2026");
    EXPECT_FALSE(desk.Strip.lblDate.Font().Bold);
    EXPECT_EQ(desk.Strip.lblDate.Right(), desk.Strip.picSingleButton.Width() - 50);
    EXPECT_EQ(desk.Strip.Line1[0].X1(), desk.Strip.lblDate.Left() - 100);
  }
}

TEST(StripDate, AnUprightOrFloatingStripNeverShowsIt) {
  for (const Edge at : {Edge::Left, Edge::Right}) EXPECT_TRUE(DateDesk("ab", at).Hidden());
  SinglesDesk floating;
  floating.SetOption(Option::ShowDate, true);
  floating.Start();
  floating.Strip.DoLabelDate();
  EXPECT_FALSE(floating.Strip.lblDate.Visible());
  floating.Strip.UpdateLabelDate();
  EXPECT_EQ(floating.Strip.lblDate.Caption(), "");
}

TEST(StripDate, GoesWithItsLinesWhenTheStripLeavesTheEdge) {
  DateDesk desk;
  ASSERT_TRUE(desk.Shown());
  desk.TheProgram.Strip.AppBarDocked = false;
  desk.TheProgram.Strip.AppBarRequested = false;
  desk.Strip.DoSingleButtons();
  EXPECT_TRUE(desk.Hidden());
}

TEST(StripDate, WithLargeIconsItIsBold) {
  SinglesDesk desk;
  desk.SetOption(Option::ShowDate, true);
  desk.SetOption(Option::LargeIcons, true);
  desk.StartAt(Edge::Top);
  EXPECT_TRUE(desk.Strip.lblDate.Visible());
  EXPECT_TRUE(desk.Strip.lblDate.Font().Bold);
}

TEST(StripDate, ManyButtonsHideItRatherThanLieUnderIt) {
  DateDesk desk(std::string(52, 'a'));
  EXPECT_TRUE(desk.Hidden());
}

TEST(StripDate, GoesWithOption21) {
  DateDesk desk;
  desk.SetOption(Option::ShowDate, false);
  desk.Strip.DoLabelDate();
  EXPECT_TRUE(desk.Hidden());
  desk.SetOption(Option::ShowDate, true);
  desk.Strip.DoLabelDate();
  EXPECT_TRUE(desk.Shown());
}

TEST(StripDate, WaitsWhileTheStripIsRestored) {
  DateDesk desk;
  desk.World.System.Date = "3/15/2026";
  desk.TheProgram.Guards.RestoreBusy = true;
  desk.Strip.UpdateLabelDate();
  desk.Strip.DoLabelDate();
  EXPECT_EQ(desk.Strip.lblDate.Caption(), "3/14/2026");
  desk.TheProgram.Guards.RestoreBusy = false;
}

TEST(StripDate, AtMidnightItChangesWhenItIsNextAskedFor) {
  DateDesk desk;
  desk.World.System.Date = "12/15/2026";
  desk.Wait(60000);
  EXPECT_EQ(desk.Strip.lblDate.Caption(), "3/14/2026");
  desk.PointAt(desk.OnDate());
  EXPECT_EQ(desk.Strip.lblDate.Caption(), "12/15/2026");
  EXPECT_EQ(desk.Strip.lblDate.Right(), desk.Strip.picSingleButton.Width() - 50);
}

TEST(StripDate, NothingWakesAStripThatShowsIt) {
  for (const Edge at : {Edge::Top, Edge::Bottom}) {
    DateDesk desk("abc", at);
    ASSERT_TRUE(desk.Shown());
    desk.Wait(1000);
    EXPECT_EQ(desk.WakeUps(60'000), 0);
    desk.PointAt(desk.OnDate());
    desk.Wait(500);
    desk.PointAway();
    desk.Wait(1000);
    EXPECT_EQ(desk.WakeUps(60'000), 0);
  }
}

TEST(StripDate, ClocksThatAreSetChangeItAtOnce) {
  DateDesk desk;
  desk.World.System.Date = "12/15/2026";
  desk.World.Desktop.Send(desk.Strip.hWnd(), forms::message::TimeChange, 0, 0);
  EXPECT_EQ(desk.Strip.lblDate.Caption(), "12/15/2026");
  EXPECT_EQ(desk.Strip.lblDate.Right(), desk.Strip.picSingleButton.Width() - 50);
  // Without the date there is nothing to change.
  desk.SetOption(Option::ShowDate, false);
  desk.World.System.Date = "12/16/2026";
  desk.World.Desktop.Send(desk.Strip.hWnd(), forms::message::TimeChange, 0, 0);
  EXPECT_EQ(desk.Strip.lblDate.Caption(), "12/15/2026");
}

TEST(StripDate, AnotherWayToWriteItKeepsItOnTheStripOrHidesIt) {
  DateDesk desk;
  desk.World.System.Date = "14. M\u00e4rz 2026";
  desk.PointAt(desk.OnDate());
  EXPECT_EQ(desk.Strip.lblDate.Caption(), "14. M\u00e4rz 2026");
  EXPECT_TRUE(desk.Shown());
  EXPECT_EQ(desk.Strip.lblDate.Right(), desk.Strip.picSingleButton.Width() - 50);
  EXPECT_EQ(desk.Strip.Line1[0].X1(), desk.Strip.lblDate.Left() - 100);
  // One that leaves no room between the buttons and the end.
  desk.World.System.Date = std::string(400, '9');
  desk.PointAway();
  desk.PointAt(desk.OnDate());
  EXPECT_TRUE(desk.Hidden());
}

TEST(StripDate, TheHintOverItIsTheClock) {
  DateDesk desk;
  desk.PointAt(desk.OnDate());
  EXPECT_EQ(desk.Parts.Hint, "09:05 AM, Saturday, March 14, 2026");
  EXPECT_EQ(desk.TheProgram.Menu.CurSingle, MenuState::kDateArea);
  desk.PointAway();
  desk.Wait(150);
  EXPECT_EQ(desk.Parts.Hint, "");
  EXPECT_EQ(desk.TheProgram.Menu.CurSingle, 0);
  desk.Wait(500);  // the end of the start
  EXPECT_EQ(desk.WakeUps(5000), 0);
}

TEST(StripDate, AClickOnItNeverBeginsACarry) {
  DateDesk desk;
  desk.PointAt(desk.OnDate());
  desk.World.Desktop.Press();
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
  EXPECT_EQ(desk.Parts.Hint, "");
  desk.World.Desktop.Release();
  // Nor does one beside its text.
  const PixelRect box = desk.World.Desktop.BoundsOf(desk.Strip.picSingleButton.hWnd());
  desk.PointAt({box.right - 1, box.top + 2});
  desk.World.Desktop.Press();
  EXPECT_TRUE(desk.Strip.Singles.OnDate);
  EXPECT_EQ(desk.TheProgram.Menu.CurSingle, MenuState::kDateArea);
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
  desk.World.Desktop.Release();
  EXPECT_TRUE(desk.Parts.Asked.empty());
  EXPECT_TRUE(desk.Started().empty());
}

TEST(StripDate, ADoubleClickOpensThePanelOfDateAndTime) {
  DateDesk desk;
  desk.World.Shell.AddToPath("rundll32.exe");
  const PixelRect box = desk.World.Desktop.BoundsOf(desk.Strip.picSingleButton.hWnd());
  for (const PixelPoint at : {desk.OnDate(), PixelPoint{box.right - 1, box.top + 2}}) {
    desk.World.Shell.ClearLog();
    desk.PointAt(at);
    desk.World.Desktop.DoubleClick();
    ASSERT_FALSE(desk.World.Shell.Log().empty());
    EXPECT_EQ(desk.World.Shell.Log().back().File,
              "rundll32.exe shell32.dll,Control_RunDLL timedate.cpl,,0");
  }
}

TEST(StripDate, WhileAnEntryIsCarriedItDoesNothing) {
  DateDesk desk;
  desk.TheProgram.Entry.ItemDragging = true;
  desk.Strip.lblDate.MouseMove(forms::MouseButton::None, {}, 0, 0);
  desk.Strip.lblDate.DblClick();
  EXPECT_EQ(desk.Parts.Hint, "");
  EXPECT_TRUE(desk.World.Shell.Log().empty());
  desk.TheProgram.Entry.ItemDragging = false;
}

TEST(StripDate, ARightClickBringsThePopupOfTheStrip) {
  DateDesk desk;
  desk.PointAt(desk.OnDate());
  desk.World.Desktop.Click(forms::MouseButton::Right);
  EXPECT_EQ(desk.Parts.Times("popup"), 1);
  EXPECT_EQ(desk.TheProgram.Entry.CurMenuTag, "Toolbar");
}

TEST(StripDate, APressClosesAMenu) {
  DateDesk desk;
  desk.Click(2);
  ASSERT_EQ(desk.MenuUp(), 2);
  desk.PointAt(desk.OnDate());
  desk.World.Desktop.Press();
  EXPECT_EQ(desk.MenuUp(), 0);
  EXPECT_FALSE(desk.TheProgram.Menu.MenuOpen);
  desk.World.Desktop.Release();
}

}  // namespace
}  // namespace corvelle
