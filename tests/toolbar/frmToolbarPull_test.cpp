// Pulling the strip to another edge of the screen, and the outline that shows where it would go.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "toolbar/DockDesk.h"

namespace corvelle {
namespace {

using forms::MouseButton;

constexpr Rgb kRed = 255;

/// True if the screen shows the outline around that rectangle and not in its middle.
bool ShowsOutline(const DockDesk& desk, const PixelRect& r) {
  const sim::SimCanvas screen = desk.World.Desktop.Picture();
  const PixelPoint middle{(r.left + r.right) / 2, (r.top + r.bottom) / 2};
  const auto isRed = [&](int x, int y) { return screen.PixelAt({x, y}) == kRed; };
  bool all = true;
  for (int i = 0; i < 4; ++i) {
    all = all && isRed(r.left + i, middle.y) && isRed(r.right - 1 - i, middle.y) &&
          isRed(middle.x, r.top + i) && isRed(middle.x, r.bottom - 1 - i);
  }
  return all && !isRed(r.left + 4, middle.y) && !isRed(middle.x, r.top + 4) &&
         !isRed(r.right - 5, middle.y) && !isRed(middle.x, r.bottom - 5);
}

struct PullRow {
  const char* name;
  Edge at;
  PixelRect outline;
  PixelRect window;
};

const PullRow kPulls[] = {{"bottom", Edge::Bottom, {0, 726, 1024, 768}, {0, 726, 1024, 768}},
                          {"left", Edge::Left, {0, 0, 41, 768}, {0, 0, 41, 768}},
                          {"top", Edge::Top, {0, 0, 1024, 41}, {0, -3, 1024, 38}},
                          {"right", Edge::Right, {982, 0, 1024, 768}, {982, 0, 1024, 768}}};

TEST(ToolbarPull, TheOutlineFollowsTheHandAndTheStripGoesWhereItIsDropped) {
  for (const PullRow& from : kPulls) {
    for (const PullRow& to : kPulls) {
      if (from.at == to.at) continue;
      SCOPED_TRACE(std::string(from.name) + " to " + to.name);
      DockDesk desk;
      desk.StartAt(from.at);
      desk.Pull(QuarterOf(to.at));
      EXPECT_TRUE(ShowsOutline(desk, to.outline));
      EXPECT_EQ(desk.Picture.OutlineEdge(), to.at);
      EXPECT_TRUE(desk.World.Desktop.IsTopmost(desk.Picture.hWnd()));
      EXPECT_EQ(desk.Bounds(), from.window);
      // The border rests while the outline is up.
      EXPECT_EQ(desk.Strip.bLine3.BorderWidth(), 1);
      desk.World.Desktop.Release();
      EXPECT_EQ(desk.Bounds(), to.window);
      EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, to.at);
      EXPECT_FALSE(desk.Picture.IsLoaded());
      EXPECT_FALSE(desk.Strip.Pull.FrameMoved);
      EXPECT_EQ(desk.World.Desktop.ActiveWindow(), desk.Strip.hWnd());
      EXPECT_EQ(desk.Strip.bLine3.BorderWidth(), 1);
    }
  }
}

TEST(ToolbarPull, OverItsOwnEdgeTheStripLooksGrabbedAndStays) {
  DockDesk desk;
  desk.StartAt(Edge::Left);
  desk.Pull({30, 500});
  EXPECT_EQ(desk.Strip.bLine3.BorderColor(), 255U);
  EXPECT_EQ(desk.Strip.bLine3.BorderWidth(), 2);
  EXPECT_EQ(desk.Picture.OutlineEdge(), std::nullopt);
  desk.World.Bars.ClearLog();
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.Strip.bLine3.BorderWidth(), 1);
  EXPECT_NE(desk.Strip.bLine3.BorderColor(), 255U);
  EXPECT_EQ(desk.Bounds(), (PixelRect{0, 0, 41, 768}));
  EXPECT_EQ(desk.World.Bars.Log(), Messages{});
}

TEST(ToolbarPull, BackOverItsOwnEdgeTheOutlineIsGone) {
  DockDesk desk;
  desk.StartAt(Edge::Left);
  desk.Pull(QuarterOf(Edge::Bottom));
  EXPECT_TRUE(desk.World.Desktop.IsShown(desk.Picture.hWnd()));
  desk.PointAt(QuarterOf(Edge::Left));
  EXPECT_FALSE(desk.World.Desktop.IsShown(desk.Picture.hWnd()));
  EXPECT_EQ(desk.Picture.OutlineEdge(), std::nullopt);
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, Edge::Left);
  EXPECT_FALSE(desk.Picture.IsLoaded());
}

TEST(ToolbarPull, OverAnotherEdgeTheStripItselfIsAtRest) {
  DockDesk desk;
  desk.StartAt(Edge::Left);
  desk.Pull(QuarterOf(Edge::Left));
  EXPECT_EQ(desk.Strip.bLine3.BorderColor(), 255U);
  desk.PointAt(QuarterOf(Edge::Bottom));
  EXPECT_NE(desk.Strip.bLine3.BorderColor(), 255U);
  EXPECT_EQ(desk.Strip.bLine3.BorderWidth(), 1);
  desk.World.Desktop.Release();
}

TEST(ToolbarPull, AcrossTheCornersTheLastEdgeHoldsUntilAnotherWins) {
  DockDesk desk;
  desk.StartAt(Edge::Left);
  desk.Pull(QuarterOf(Edge::Top));
  EXPECT_EQ(desk.Picture.OutlineEdge(), Edge::Top);
  // Still above the diagonal from the middle (512, 384) to the corner (1024, 0).
  desk.PointAt({1020, 2});
  EXPECT_EQ(desk.Picture.OutlineEdge(), Edge::Top);
  EXPECT_TRUE(ShowsOutline(desk, {0, 0, 1024, 41}));
  // On the diagonal the sides win.
  desk.PointAt({1024 - 4, 3});
  EXPECT_EQ(desk.Picture.OutlineEdge(), Edge::Right);
  desk.PointAt({1020, 300});
  EXPECT_TRUE(ShowsOutline(desk, {982, 0, 1024, 768}));
  desk.PointAt(QuarterOf(Edge::Bottom));
  EXPECT_TRUE(ShowsOutline(desk, {0, 726, 1024, 768}));
  // Where the outline was, the screen is as before.
  EXPECT_FALSE(ShowsOutline(desk, {982, 0, 1024, 768}));
  desk.World.Desktop.Release();
}

TEST(ToolbarPull, TheOutlineShowsTheScreenBelow) {
  DockDesk desk;
  desk.World.Desktop.AddOtherWindow({.Title = "Below", .Bounds = {0, 0, 1024, 768}});
  desk.StartAt(Edge::Left);
  const Rgb before = desk.World.Desktop.Picture().PixelAt({600, 747});
  desk.Pull(QuarterOf(Edge::Bottom));
  ASSERT_TRUE(desk.World.Desktop.IsShown(desk.Picture.hWnd()));
  EXPECT_EQ(desk.World.Desktop.Picture().PixelAt({600, 747}), before);
  desk.World.Desktop.Release();
}

TEST(ToolbarPull, AFloatingStripIsPulledToAnEdgeButNotToTheTop) {
  for (const PullRow& row : kPulls) {
    SCOPED_TRACE(row.name);
    DockDesk desk;
    desk.Start();
    desk.Pull(QuarterOf(row.at));
    if (row.at == Edge::Top) {
      EXPECT_EQ(desk.Picture.OutlineEdge(), std::nullopt);
      desk.World.Desktop.Release();
      EXPECT_FALSE(desk.TheProgram.Strip.AppBarDocked);
      EXPECT_EQ(desk.Bounds().top, -7);
    } else {
      EXPECT_TRUE(ShowsOutline(desk, row.outline));
      desk.World.Desktop.Release();
      EXPECT_TRUE(desk.TheProgram.Strip.AppBarDocked);
      EXPECT_EQ(desk.Bounds(), row.window);
    }
  }
}

TEST(ToolbarPull, ASlideThatComesBackFromAnEdgeSlidesOn) {
  DockDesk desk;
  desk.Start();
  const int left = desk.Bounds().left;
  desk.Pull(QuarterOf(Edge::Bottom));
  EXPECT_EQ(desk.Picture.OutlineEdge(), Edge::Bottom);
  desk.PointAt({400, 10});
  EXPECT_EQ(desk.Picture.OutlineEdge(), std::nullopt);
  EXPECT_LT(desk.Bounds().left, left);
  EXPECT_EQ(desk.Strip.bLine3.BorderWidth(), 2);
  desk.World.Desktop.Release();
  EXPECT_FALSE(desk.TheProgram.Strip.AppBarDocked);
  EXPECT_EQ(desk.Strip.bLine3.BorderWidth(), 1);
}

TEST(ToolbarPull, AHidingStripIsShownAtItsNewEdge) {
  DockDesk desk;
  desk.SetOption(Option::AutoHide, true);
  desk.StartAt(Edge::Right);
  desk.PullAndDrop(QuarterOf(Edge::Bottom));
  EXPECT_EQ(desk.Bounds(), (PixelRect{0, 726, 1024, 768}));
  EXPECT_TRUE(desk.Strip.picToolbar.Visible());
  EXPECT_TRUE(desk.Strip.bLine1.Visible());
  EXPECT_EQ(desk.World.Bars.HiddenBar(Edge::Bottom), desk.Strip.hWnd());
  EXPECT_EQ(desk.World.Bars.HiddenBar(Edge::Right), kNoWindow);
  desk.GoElsewhere();
  desk.Poll();
  EXPECT_EQ(desk.Bounds(), (PixelRect{0, 767, 1024, 768}));
}

TEST(ToolbarPull, WhileTheGripIsHeldOtherBarsWait) {
  DockDesk desk;
  desk.StartAt(Edge::Left);
  desk.Pull(QuarterOf(Edge::Bottom));
  desk.World.Bars.ClearLog();
  desk.World.Bars.TellBars();
  EXPECT_EQ(desk.World.Bars.Log(), Messages{});
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, Edge::Bottom);
}

TEST(ToolbarPull, TheOtherButtonDoesNotDisturbIt) {
  DockDesk desk;
  desk.StartAt(Edge::Left);
  desk.Pull(QuarterOf(Edge::Bottom));
  desk.World.Desktop.Click(forms::MouseButton::Right);
  EXPECT_TRUE(desk.World.Desktop.Popups().empty());
  EXPECT_EQ(desk.Picture.OutlineEdge(), Edge::Bottom);
  desk.PointAt(QuarterOf(Edge::Right));
  EXPECT_EQ(desk.Picture.OutlineEdge(), Edge::Right);
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, Edge::Right);
  EXPECT_FALSE(desk.Picture.IsLoaded());
}

TEST(ToolbarPull, TheOtherButtonDoesNotDisturbItOnTheBareRowEither) {
  DockDesk desk;
  desk.StartAt(Edge::Left);
  const PixelRect row = desk.World.Desktop.BoundsOf(desk.Strip.picSingleButton.hWnd());
  desk.PointAt({row.left + 10, row.bottom - 100});
  desk.World.Desktop.Press();
  desk.PointAt(QuarterOf(Edge::Bottom));
  ASSERT_EQ(desk.Picture.OutlineEdge(), Edge::Bottom);
  desk.World.Desktop.Click(forms::MouseButton::Right);
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, Edge::Bottom);
  EXPECT_FALSE(desk.Picture.IsLoaded());
}

TEST(ToolbarPull, AStripThatHidesUnderTheHandIsLetGo) {
  DockDesk desk;
  desk.SetOption(Option::AutoHide, true);
  desk.StartAt(Edge::Left);
  const PixelRect row = desk.World.Desktop.BoundsOf(desk.Strip.picSingleButton.hWnd());
  desk.PointAt({row.left + 10, row.bottom - 100});
  desk.World.Desktop.Press();
  desk.PointAt(QuarterOf(Edge::Bottom));
  ASSERT_EQ(desk.Picture.OutlineEdge(), Edge::Bottom);
  desk.World.Bars.TellBars();
  ASSERT_TRUE(desk.IsLine());
  EXPECT_FALSE(desk.Picture.IsLoaded());
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, Edge::Left);
}

TEST(ToolbarPull, AButtonThatWentDownElsewhereDoesNotPull) {
  DockDesk desk;
  desk.StartAt(Edge::Left);
  desk.GoElsewhere();
  desk.World.Desktop.Press();
  const PixelRect strip = desk.Bounds();
  for (const int y : {strip.top + 20, strip.top + 60, strip.bottom - 20}) {
    // As the other program does not keep the mouse, the strip is told of the moves.
    desk.Strip.MouseMove(MouseButton::Left, {}, 15, static_cast<float>(y) * 15);
  }
  EXPECT_FALSE(desk.Strip.Pull.FrameMoved);
  EXPECT_FALSE(desk.Picture.IsLoaded());
}

/// The left button goes up over another program, which alone hears of it.
void LoseRelease(DockDesk& desk) { desk.World.Desktop.KeyUp(1); }

/// The window of another program takes the mouse, and the button goes up there.
void TakeMouse(DockDesk& desk) {
  desk.World.Desktop.TakeCapture();
  LoseRelease(desk);
}

TEST(ToolbarPull, WhoseReleaseAnotherProgramGotIsGivenUp) {
  DockDesk desk;
  desk.StartAt(Edge::Left);
  desk.Pull(QuarterOf(Edge::Bottom));
  ASSERT_TRUE(desk.TheProgram.Guards.RestoreBusy);
  desk.Wait(2000);
  ASSERT_TRUE(desk.Picture.IsLoaded());
  TakeMouse(desk);
  EXPECT_FALSE(desk.Picture.IsLoaded());
  EXPECT_FALSE(desk.TheProgram.Guards.RestoreBusy);
  EXPECT_FALSE(desk.Strip.Pull.FrameHeld);
  EXPECT_FALSE(desk.Strip.Pull.FrameMoved);
  EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, Edge::Left);
  desk.Wait(600);
  EXPECT_FALSE(desk.Strip.Timer1.Enabled());
}

TEST(ToolbarPull, WhoseReleaseAnotherProgramGotEndsWithTheNextMoveOrPress) {
  for (const bool press : {false, true}) {
    SCOPED_TRACE(press);
    DockDesk desk;
    desk.StartAt(Edge::Left);
    desk.Pull(QuarterOf(Edge::Bottom));
    LoseRelease(desk);
    if (press) {
      desk.Strip.MouseDown(MouseButton::Left, {}, 15, 15);
    } else {
      desk.Strip.MouseMove(MouseButton::None, {}, 15, 15);
    }
    EXPECT_FALSE(desk.Picture.IsLoaded());
    EXPECT_FALSE(desk.TheProgram.Guards.RestoreBusy);
    EXPECT_EQ(desk.Strip.Pull.FrameHeld, press);
  }
}

TEST(ToolbarPull, ASlideWhoseReleaseAnotherProgramGotEndsOnTheScreen) {
  DockDesk desk;
  desk.Start();
  desk.Pull({1020, 5});
  const int before = desk.Bounds().left;
  TakeMouse(desk);
  EXPECT_LT(desk.Bounds().left, before);
  EXPECT_LE(desk.Bounds().right, 1024);
  EXPECT_EQ(desk.Strip.SavedLeft, desk.Strip.Left());
  EXPECT_EQ(desk.Strip.bLine3.BorderWidth(), 1);
}

// The right button is down all the while, so that the strip seems held; the pointer comes over the
// buttons, which forget the pull, and then the right button goes up over the frame.
TEST(ToolbarPull, OneWhoseReleaseWasLostLeavesNoOutlineToTheOtherButton) {
  for (const bool overGrip : {false, true}) {
    SCOPED_TRACE(overGrip ? "over the grip" : "over the frame");
    DockDesk desk;
    desk.StartAt(Edge::Left);
    desk.PointAt({500, 400});
    desk.World.Desktop.Press(MouseButton::Right);
    desk.Pull(QuarterOf(Edge::Right));
    ASSERT_TRUE(desk.Picture.IsLoaded());
    LoseRelease(desk);
    desk.Strip.Pull.FrameMoved = false;
    if (overGrip) {
      desk.Strip.lblSep[0].MouseUp(MouseButton::Right, {}, 1, 1);
    } else {
      desk.Strip.MouseUp(MouseButton::Right, {}, 1, 1);
    }
    EXPECT_FALSE(desk.Picture.IsLoaded());
    EXPECT_EQ(desk.Picture.OutlineEdge(), std::nullopt);
    EXPECT_FALSE(desk.Strip.Pull.FrameHeld);
  }
}

TEST(ToolbarPull, AHoldWithoutAMoveIsGivenUpToo) {
  struct Row {
    const char* name;
    PixelPoint (*at)(const DockDesk&);
  };
  const Row rows[] = {{"the frame",
                       [](const DockDesk& desk) {
                         return PixelPoint{1, desk.Bounds().bottom - 2};
                       }},
                      {"the grip", [](const DockDesk& desk) { return desk.Grip(); }},
                      {"the bare row", [](const DockDesk& desk) {
                         const PixelRect row =
                             desk.World.Desktop.BoundsOf(desk.Strip.picSingleButton.hWnd());
                         return PixelPoint{row.left + 10, row.bottom - 100};
                       }}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    DockDesk desk;
    desk.StartAt(Edge::Left);
    desk.PointAt(row.at(desk));
    desk.World.Desktop.Press();
    EXPECT_TRUE(desk.Strip.Pull.FrameHeld);
    TakeMouse(desk);
    EXPECT_FALSE(desk.Strip.Pull.FrameHeld);
  }
}

TEST(ToolbarPull, ARightClickOnTheGripOrTheBareRowHoldsNothing) {
  for (const bool grip : {true, false}) {
    SCOPED_TRACE(grip);
    DockDesk desk;
    desk.StartAt(Edge::Left);
    if (grip) {
      desk.Strip.lblSep[0].MouseDown(MouseButton::Right, {}, 15, 15);
      desk.Strip.lblSep[0].MouseUp(MouseButton::Right, {}, 15, 15);
    } else {
      const PixelRect row = desk.World.Desktop.BoundsOf(desk.Strip.picSingleButton.hWnd());
      desk.PointAt({row.left + 10, row.bottom - 100});
      desk.World.Desktop.Click(MouseButton::Right);
    }
    EXPECT_FALSE(desk.Strip.Pull.FrameHeld);
    // A button that goes down elsewhere now, and comes over the strip, pulls nothing.
    desk.PointAt(QuarterOf(Edge::Bottom));
    desk.Strip.MouseMove(MouseButton::Left, {}, 9000, 9000);
    EXPECT_FALSE(desk.Picture.IsLoaded());
  }
}

TEST(ToolbarPull, AMoveThatArrivesWhileTheOutlineIsShownDecides) {
  DockDesk desk;
  desk.StartAt(Edge::Left);
  desk.Pull({30, 500});
  // The hand goes on to the right while the outline at the bottom comes up.
  const forms::TimerId timer =
      desk.World.Desktop.StartTimer(1, [&desk] { desk.World.Desktop.MovePointer(960, 384); });
  desk.World.Desktop.Jump(5);
  desk.PointAt(QuarterOf(Edge::Bottom));
  desk.World.Desktop.StopTimer(timer);
  EXPECT_EQ(desk.Picture.OutlineEdge(), Edge::Right);
  EXPECT_TRUE(ShowsOutline(desk, {982, 0, 1024, 768}));
  EXPECT_FALSE(desk.Picture.MovingToolbar);
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, Edge::Right);
}

TEST(ToolbarPull, TheEndOfAMoveFromElsewhereStoresThePosition) {
  DockDesk desk;
  desk.Start();
  desk.Strip.SetLeft(-300);
  desk.Strip.Pull.AdjustToolbarPosition();
  EXPECT_EQ(desk.Strip.Left(), 0);
  EXPECT_EQ(desk.Strip.SavedLeft, 0);
  EXPECT_TRUE(desk.World.Files.Has("C:\\Corvelle\\toolbarp.dat"));
  EXPECT_FALSE(desk.Strip.Pull.FrameMoved);
}

}  // namespace
}  // namespace corvelle
