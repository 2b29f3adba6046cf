// What the shell and the screen say at a moment when the strip cannot follow: it does so later.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "toolbar/DockDesk.h"

namespace corvelle {
namespace {

constexpr Edge kEdges[] = {Edge::Top, Edge::Bottom, Edge::Left, Edge::Right};

struct NewsDesk : DockDesk {
  /// Something happens when events are let through next.
  void WhenEventsRun(std::function<void()> what) {
    const auto once = std::make_shared<forms::TimerId>();
    *once = World.Desktop.StartTimer(1, [this, once, what = std::move(what)] {
      World.Desktop.StopTimer(*once);
      what();
    });
    World.Desktop.Jump(5);
  }
  [[nodiscard]] bool IsTopmost() const { return World.Desktop.IsTopmost(Strip.hWnd()); }
  void ComeBack() {
    Companion.RestoreWindow();
    World.Desktop.Pump();
  }
  /// The strip has done what there was to do, and sleeps.
  void ExpectQuiet() {
    Poll();
    EXPECT_EQ(WakeUps(2000), 0);
    EXPECT_TRUE(TheProgram.Guards.ToolbarReady);
    EXPECT_FALSE(TheProgram.Guards.AppBarBusy);
  }
};

/// Where the strip stands beside a bar of 30 pixels.
PixelRect Beside(Edge at) {
  switch (at) {
    case Edge::Bottom:
      return {0, 696, 1024, 738};
    case Edge::Left:
      return {30, 0, 71, 768};
    case Edge::Right:
      return {952, 0, 994, 768};
    case Edge::Top:
      break;
  }
  return {0, 30, 1024, 71};
}

/// Where it stands on a screen of 800 x 600.
PixelRect OnTheSmallScreen(Edge at) {
  switch (at) {
    case Edge::Bottom:
      return {0, 558, 800, 600};
    case Edge::Left:
      return {0, 0, 41, 600};
    case Edge::Right:
      return {758, 0, 800, 600};
    case Edge::Top:
      break;
  }
  return {0, -3, 800, 38};
}

TEST(AppBarNews, ABarThatComesWhileTheStripIsPlacedIsNotCovered) {
  for (const Edge at : kEdges) {
    SCOPED_TRACE(std::string(EdgeText(at)));
    NewsDesk desk;
    desk.StartAt(at);
    desk.WhenEventsRun([&] { desk.World.Bars.AddOtherBar(at, 30); });
    desk.Docking.SetAppBar(at, true);
    desk.Poll();
    EXPECT_EQ(desk.Bounds(), Beside(at));
    desk.ExpectQuiet();
  }
}

TEST(AppBarNews, ABarThatComesDuringTheStartIsNotCovered) {
  for (const Edge at : kEdges) {
    SCOPED_TRACE(std::string(EdgeText(at)));
    NewsDesk desk;
    desk.WhenEventsRun([&] { desk.World.Bars.AddOtherBar(at, 30); });
    desk.StartAt(at);
    desk.Poll();
    EXPECT_EQ(desk.Bounds(), Beside(at));
    desk.ExpectQuiet();
  }
}

TEST(AppBarNews, AScreenThatShrinksWhileTheStripIsPlacedTakesItAlong) {
  for (const Edge at : kEdges) {
    for (const bool starting : {false, true}) {
      SCOPED_TRACE(std::string(EdgeText(at)) + (starting ? ", at the start" : ""));
      NewsDesk desk;
      if (!starting) desk.StartAt(at);
      desk.WhenEventsRun([&] { desk.World.Desktop.SetScreen({800, 600}); });
      if (starting) desk.StartAt(at);
      if (!starting) desk.Docking.SetAppBar(at, true);
      desk.Poll();
      EXPECT_EQ(desk.Bounds(), OnTheSmallScreen(at));
      EXPECT_EQ(desk.Strip.BaseWidth, 800);
      desk.ExpectQuiet();
    }
  }
}

TEST(AppBarNews, AStripThatHidesAndReturnsToAnotherScreenStaysInSight) {
  NewsDesk desk;
  desk.SetOption(Option::AutoHide, true);
  desk.StartAt(Edge::Right);
  desk.Companion.MinimizeFor(desk.Strip.WindowBounds());
  desk.World.Desktop.SetScreen({800, 600});
  desk.World.Desktop.Pump();
  desk.ComeBack();
  desk.Poll();
  EXPECT_EQ(desk.Bounds(), OnTheSmallScreen(Edge::Right));
  EXPECT_TRUE(desk.Strip.picToolbar.Visible());
}

TEST(AppBarNews, NewsThatComeWhileABoxIsUpWaitForTheAnswer) {
  NewsDesk desk;
  desk.SetOption(Option::AutoHide, true);
  desk.StartAt(Edge::Right);
  desk.World.Bars.ClaimAutoHide(Edge::Left, desk.World.Desktop.AddOtherWindow({.Title = "Bar"}));
  desk.World.Desktop.Answer(forms::msgbox::AnswerOk);
  desk.World.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) {
    desk.World.Desktop.SetScreen({800, 600});
    desk.World.Bars.ClearLog();
    desk.World.Desktop.Advance(1000);
    EXPECT_EQ(desk.World.Bars.Log(), Messages{});
  });
  desk.Docking.SetAppBar(Edge::Left, true);
  desk.Poll();
  EXPECT_EQ(desk.Bounds(), OnTheSmallScreen(Edge::Left));
  desk.ExpectQuiet();
}

TEST(AppBarNews, AFullScreenProgramThatComesAndGoesWhileTheStripIsPlacedIsFollowed) {
  NewsDesk desk;
  desk.StartAt(Edge::Right);
  desk.WhenEventsRun([&] { desk.World.Bars.SetFullScreen(true); });
  desk.Docking.SetAppBar(Edge::Left, true);
  desk.Poll();
  EXPECT_FALSE(desk.IsTopmost());
  desk.WhenEventsRun([&] { desk.World.Bars.SetFullScreen(false); });
  desk.Docking.SetAppBar(Edge::Right, true);
  desk.Poll();
  EXPECT_TRUE(desk.IsTopmost());
  EXPECT_TRUE(desk.World.Desktop.IsTopmost(desk.Menu.hWnd()));
  desk.ExpectQuiet();
}

TEST(AppBarNews, AStripThatOthersMayCoverStaysSoWhateverFullScreenProgramsDid) {
  NewsDesk desk;
  desk.TheProgram.Strip.NotOnTop = true;
  desk.StartAt(Edge::Right);
  desk.WhenEventsRun([&] {
    desk.World.Bars.SetFullScreen(true);
    desk.World.Bars.SetFullScreen(false);
  });
  desk.Docking.SetAppBar(Edge::Left, true);
  desk.Poll();
  EXPECT_FALSE(desk.IsTopmost());
  desk.ExpectQuiet();
}

TEST(AppBarNews, AStripInTheTaskBarMissesTheEndOfAFullScreenProgramAndIsOnTopAgain) {
  for (const bool floating : {false, true}) {
    SCOPED_TRACE(floating);
    NewsDesk desk;
    if (floating) {
      desk.Start();
    } else {
      desk.StartAt(Edge::Right);
    }
    desk.World.Bars.SetFullScreen(true);
    ASSERT_FALSE(desk.IsTopmost());
    desk.Companion.MinimizeFor(desk.Strip.WindowBounds());
    desk.World.Desktop.Pump();
    desk.World.Bars.SetFullScreen(false);
    desk.ComeBack();
    desk.Poll();
    EXPECT_TRUE(desk.IsTopmost());
    EXPECT_FALSE(desk.TheProgram.Strip.FullScreenApp);
    desk.ExpectQuiet();
  }
}

TEST(AppBarNews, ALineBesideAnotherBarIsOnTopAgainAfterAFullScreenProgram) {
  NewsDesk desk;
  desk.SetOption(Option::AutoHide, true);
  desk.World.Bars.AddOtherBar(Edge::Right, 30);
  desk.StartAt(Edge::Right);
  desk.GoElsewhere();
  desk.Poll();
  ASSERT_TRUE(desk.IsLine());
  desk.World.Bars.SetFullScreen(true);
  EXPECT_FALSE(desk.IsTopmost());
  desk.World.Bars.SetFullScreen(false);
  EXPECT_TRUE(desk.Shown());
  EXPECT_TRUE(desk.IsLine());
  EXPECT_TRUE(desk.IsTopmost());
}

TEST(AppBarNews, AHiddenStripStaysABareLineWhenTheColoursChange) {
  for (const Edge at : kEdges) {
    SCOPED_TRACE(std::string(EdgeText(at)));
    NewsDesk desk;
    desk.SetOption(Option::AutoHide, true);
    desk.StartAt(at);
    desk.GoElsewhere();
    desk.Poll();
    ASSERT_TRUE(desk.IsLine());
    desk.World.Desktop.SetSystemColor(15, 0x00123456);
    desk.World.Desktop.Pump();
    EXPECT_TRUE(desk.IsLine());
    EXPECT_FALSE(desk.Strip.bLine3.Visible());
  }
}

// The shell ends and is started again.

struct NewShellDesk : NewsDesk {
  void ComeUpAnew() {
    World.Bars.StartAnew();
    World.Desktop.Broadcast(World.Tray.TaskbarCreatedMessage());
    World.Desktop.Pump();
    Poll();
  }
};

TEST(AppBarNews, ANewTaskBarLearnsOfTheStripAtItsEdge) {
  for (const Edge at : kEdges) {
    SCOPED_TRACE(std::string(EdgeText(at)));
    NewShellDesk desk;
    desk.StartAt(at);
    const PixelRect stands = desk.Bounds();
    const PixelRect work = desk.World.Bars.WorkArea();
    desk.ComeUpAnew();
    EXPECT_TRUE(desk.World.Bars.IsRegistered(desk.Strip.hWnd()));
    EXPECT_EQ(desk.World.Bars.WorkArea(), work);
    EXPECT_EQ(desk.Bounds(), stands);
    desk.ExpectQuiet();
  }
}

TEST(AppBarNews, ANewTaskBarThatComesWhileTheStripIsPlacedLearnsOfItToo) {
  NewShellDesk desk;
  desk.StartAt(Edge::Left);
  desk.WhenEventsRun([&] {
    desk.World.Bars.StartAnew();
    desk.World.Desktop.Broadcast(desk.World.Tray.TaskbarCreatedMessage());
  });
  desk.Docking.SetAppBar(Edge::Right, true);
  desk.Poll();
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 982, 768}));
  desk.ExpectQuiet();
}

TEST(AppBarNews, ANewTaskBarLearnsOfAHiddenStripWhichKeepsNoRoom) {
  NewShellDesk desk;
  desk.SetOption(Option::AutoHide, true);
  desk.StartAt(Edge::Right);
  desk.GoElsewhere();
  desk.Poll();
  desk.ComeUpAnew();
  EXPECT_EQ(desk.World.Bars.HiddenBar(Edge::Right), desk.Strip.hWnd());
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 1024, 768}));
  EXPECT_EQ(desk.Bounds(), (PixelRect{1023, 0, 1024, 768}));
}

TEST(AppBarNews, ANewTaskBarTellsAStripAtNoEdgeOfFullScreenPrograms) {
  for (const bool minimized : {false, true}) {
    SCOPED_TRACE(minimized);
    NewShellDesk desk;
    desk.Start();
    if (minimized) desk.Companion.MinimizeFor(desk.Strip.WindowBounds());
    desk.ComeUpAnew();
    if (minimized) desk.ComeBack();
    desk.Poll();
    ASSERT_TRUE(desk.World.Bars.IsRegistered(desk.Strip.hWnd()));
    desk.World.Bars.SetFullScreen(true);
    EXPECT_FALSE(desk.IsTopmost());
    EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 1024, 768}));
    desk.ExpectQuiet();
  }
}

TEST(AppBarNews, AStripThatReturnsToItsEdgeUnderANewTaskBarKeepsItsRoom) {
  NewShellDesk desk;
  desk.StartAt(Edge::Left);
  desk.Companion.MinimizeFor(desk.Strip.WindowBounds());
  desk.ComeUpAnew();
  EXPECT_FALSE(desk.World.Bars.IsRegistered(desk.Strip.hWnd()));
  desk.ComeBack();
  desk.Poll();
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{41, 0, 1024, 768}));
  desk.ExpectQuiet();
}

// The user goes on while a box is up.

TEST(AutoHide, AStripThatGoesIntoTheTaskBarWhileTheMessageIsUpStaysThere) {
  NewsDesk desk;
  desk.SetOption(Option::AutoHide, true);
  desk.StartAt(Edge::Right);
  desk.World.Bars.ClaimAutoHide(Edge::Right, desk.World.Desktop.AddOtherWindow({.Title = "Bar"}));
  desk.World.Desktop.Answer(forms::msgbox::AnswerOk);
  desk.World.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) {
    desk.Companion.MinimizeFor(desk.Strip.WindowBounds());
    desk.World.Desktop.Advance(600);
  });
  desk.GoElsewhere();
  desk.Poll();
  EXPECT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  EXPECT_FALSE(desk.Shown());
  EXPECT_FALSE(desk.TheProgram.Guards.ToolbarReady);
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 1024, 768}));
  desk.ComeBack();
  EXPECT_TRUE(desk.Shown());
  EXPECT_TRUE(desk.Strip.picToolbar.Visible());
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 982, 768}));
  desk.ExpectQuiet();
}

}  // namespace
}  // namespace corvelle
