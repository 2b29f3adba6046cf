#include "toolbar/notices/frmHelp.h"

#include <gtest/gtest.h>

#include "toolbar/StripDesk.h"
#include "toolbar/notices/HintPlace.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {
namespace {

TEST(PlaceHint, Spots) {
  struct Row {
    const char* Name;
    HintScene Scene;
    HintPlace Expected;
  };
  const TwipSize label{600, 195};
  const Row rows[] = {
      {"below the pointer", {.Pointer = {100, 50}, .Label = label}, {{1470, 1020, 660, 285}, 25}},
      {"120 dpi",
       {.Pointer = {100, 50}, .Label = label, .TwipsX = 12, .TwipsY = 12},
       {{1176, 816, 648, 267}, 16}},
      {"right edge", {.Pointer = {1020, 50}, .Label = label}, {{14650, 1020, 660, 285}, 25}},
      {"its right side on the edge",
       {.Pointer = {982, 50}, .Label = label},
       {{14650, 1020, 660, 285}, 25}},
      {"just inside", {.Pointer = {981, 50}, .Label = label}, {{14685, 1020, 660, 285}, 25}},
      {"bottom edge", {.Pointer = {100, 760}, .Label = label}, {{1470, 11115, 660, 285}, 25}},
      {"its bottom on the edge",
       {.Pointer = {100, 731}, .Label = label},
       {{1470, 10680, 660, 285}, 25}},
      {"both", {.Pointer = {1020, 760}, .Label = label}, {{14650, 11115, 660, 285}, 25}},
      {"longer than the screen",
       {.Pointer = {100, 50}, .Label = {20000, 195}},
       {{15360 - 20060 - 50, 1020, 20060, 285}, 25}},
  };
  for (const Row& row : rows) {
    const HintPlace place = PlaceHint(row.Scene);
    EXPECT_EQ(place, row.Expected) << row.Name << ": " << place.Window.Left << ","
                                   << place.Window.Top << " " << place.LabelTop;
  }
}

class Hint : public testing::Test {
 protected:
  Hint() {
    desk.PutButton(1, "Letters & more");
    desk.PutButton(2, "Files");
    desk.TheProgram.Ports.Hint = &hint;
    desk.Start();
    desk.PointAway();
  }
  ~Hint() override { desk.TheProgram.Ports.Hint = nullptr; }
  bool Up() const { return hint.IsLoaded() && hint.Visible(); }

  StripDesk desk;
  frmHelp hint{HintPartsOf(desk.TheProgram)};
};

TEST_F(Hint, OverAButtonShowsItsTitleWithoutTakingTheForeground) {
  const WindowId front = desk.World.Desktop.ForegroundWindow();
  desk.PointAtButton(2);
  ASSERT_TRUE(Up());
  EXPECT_EQ(hint.Label1.Caption(), " Letters && more ");
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), front);
  EXPECT_TRUE(desk.World.Desktop.IsTopmost(hint.hWnd()));
  const PixelPoint pointer = desk.Middle(2);
  const PixelRect bounds = desk.World.Desktop.BoundsOf(hint.hWnd());
  EXPECT_EQ(bounds.left, pointer.x - 2);
  EXPECT_EQ(bounds.top, pointer.y + 18);
  const PixelSize words = hint.MeasureText(" Letters & more ");
  EXPECT_EQ(bounds.Width(), words.width + 4);
  EXPECT_EQ(bounds.Height(), words.height + 6);
  desk.PointAtButton(3);
  EXPECT_EQ(hint.Label1.Caption(), " Files ");
  desk.PointAtButton(1);
  EXPECT_EQ(hint.Label1.Caption(), " Corvelle ");
}

TEST_F(Hint, GoesWithinAQuarterOfASecondWhenThePointerLeavesTheStrip) {
  desk.PointAtButton(2);
  desk.Wait(2000);
  EXPECT_TRUE(Up());
  desk.PointAway();
  desk.Wait(250);
  EXPECT_FALSE(Up());
  EXPECT_FALSE(hint.Timer1.Enabled());
}

TEST_F(Hint, ThePointerNeverRestsOnIt) {
  desk.PointAtButton(2);
  const PixelRect bounds = desk.World.Desktop.BoundsOf(hint.hWnd());
  desk.PointAt({bounds.left + 5, bounds.top + 5});
  EXPECT_FALSE(Up());
  EXPECT_FALSE(hint.Timer1.Enabled());
}

TEST_F(Hint, Option22DisablesItAndOnlyClosesOneThatIsUp) {
  desk.PointAtButton(2);
  ASSERT_TRUE(Up());
  desk.SetOption(Option::NoHints, true);
  hint.SetHint("another");
  EXPECT_FALSE(Up());
  desk.PointAtButton(3);
  EXPECT_FALSE(Up());
  desk.SetOption(Option::NoHints, false);
  desk.PointAtButton(2);
  EXPECT_TRUE(Up());
}

TEST_F(Hint, AnEmptyTextClosesIt) {
  desk.PointAtButton(2);
  hint.SetHint("");
  EXPECT_FALSE(Up());
  hint.SetHint("");
  EXPECT_FALSE(Up());
}

TEST_F(Hint, NoEventRunsBetweenTheOldOneAndTheNew) {
  desk.PointAtButton(2);
  ASSERT_TRUE(Up());
  int ticks = 0;
  const forms::TimerId timer = desk.World.Desktop.StartTimer(1, [&ticks] { ++ticks; });
  desk.World.Desktop.Jump(5);
  hint.SetHint("newer");
  EXPECT_EQ(ticks, 0);
  EXPECT_EQ(hint.Label1.Caption(), " newer ");
  EXPECT_TRUE(Up());
  desk.World.Desktop.StopTimer(timer);
}

TEST_F(Hint, NearTheRightAndTheBottomEdgeItStaysOnTheScreen) {
  desk.World.Desktop.MovePointer(1020, 765);
  hint.SetHint("a title of some length");
  const PixelRect bounds = desk.World.Desktop.BoundsOf(hint.hWnd());
  EXPECT_NEAR(hint.Left() + hint.Width(), desk.World.Desktop.Screen().Width - 50, 1);
  EXPECT_EQ(bounds.bottom, 765);
}

TEST_F(Hint, APressTakesItAway) {
  desk.PointAtButton(2);
  ASSERT_TRUE(Up());
  desk.Click(2);
  desk.Wait();
  EXPECT_FALSE(Up());
  EXPECT_EQ(desk.MenuUp(), 2);
}

TEST_F(Hint, AButtonWhoseMenuAPressClosedTellsItsTitleForAWhile) {
  desk.Click(2);
  desk.Wait();
  desk.Click(2);
  ASSERT_EQ(desk.MenuUp(), 0);
  desk.Wait(450);
  EXPECT_FALSE(Up());
  EXPECT_EQ(desk.MenuUp(), 0);
  desk.Wait(100);
  ASSERT_TRUE(Up());
  EXPECT_EQ(hint.Label1.Caption(), " Letters && more ");
  desk.Wait(1400);
  EXPECT_TRUE(Up());
  desk.Wait(150);
  EXPECT_FALSE(Up());
  desk.Wait(10);
  EXPECT_FALSE(desk.Strip.Timer2.Enabled());
}

TEST_F(Hint, AMenuThatIsOpenedAgainMeanwhileIsNotCovered) {
  desk.Click(2);
  desk.Wait();
  desk.Click(2);
  desk.Wait(200);
  desk.Click(2);
  ASSERT_EQ(desk.MenuUp(), 2);
  desk.Wait(600);
  EXPECT_FALSE(Up());
  EXPECT_EQ(desk.MenuUp(), 2);
}

TEST_F(Hint, WithOption22NoneIsDueAfterASecondPressEither) {
  desk.SetOption(Option::NoHints, true);
  desk.Click(2);
  desk.Wait();
  desk.Click(2);
  EXPECT_EQ(desk.Strip.Menus.Hint.TipDueAt, 0);
  EXPECT_FALSE(desk.Strip.Timer2.Enabled());
}

TEST_F(Hint, NoneComesWhileTheProgramStartsOrTheStripIsPlacedAnew) {
  for (bool GuardFlags::*const flag : {&GuardFlags::StartingUp, &GuardFlags::PosChangeRunning}) {
    desk.TheProgram.Guards.*flag = true;
    desk.PointAtButton(2);
    EXPECT_FALSE(Up());
    desk.TheProgram.Guards.*flag = false;
    desk.PointAway();
  }
}

TEST_F(Hint, GoesAtOnceWhenThePointerComesToTheGrip) {
  desk.PointAtButton(2);
  ASSERT_TRUE(Up());
  const PixelRect strip = desk.World.Desktop.BoundsOf(desk.Strip.hWnd());
  const float middle = desk.Strip.lblSep[0].Left() + desk.Strip.lblSep[0].Width() / 2;
  desk.PointAt({strip.left + static_cast<int>(middle / desk.Strip.TwipsX), strip.bottom - 10});
  EXPECT_FALSE(Up());
}

TEST_F(Hint, APressOnTheFrameTakesItAway) {
  hint.SetHint("a hint");
  ASSERT_TRUE(Up());
  desk.Strip.MouseDown(forms::MouseButton::Left, {}, 5, 5);
  EXPECT_FALSE(Up());
}

TEST_F(Hint, TheEndOfTheProgramReleasesIt) {
  desk.PointAtButton(2);
  desk.Exit();
  EXPECT_FALSE(hint.IsLoaded());
}

}  // namespace
}  // namespace corvelle
