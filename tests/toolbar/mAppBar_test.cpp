// The strip at an edge: what it tells the shell, where it stands, and what it follows.

#include "toolbar/docking/mAppBar.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>

#include "base/Numbers.h"
#include "toolbar/DockDesk.h"

namespace corvelle {
namespace {

namespace message = forms::message;

struct EdgeRow {
  const char* name;
  Edge at;
  PixelRect window;
  PixelRect work;
  const char* query;
  const char* set;
};

// 38 pixels of a large button and three of the frame, four at the bottom and on the right.
const EdgeRow kEdges[] = {
    {"top", Edge::Top, {0, -3, 1024, 38}, {0, 38, 1024, 768}, "querypos 1", "setpos 1 0,0,1024,38"},
    {"bottom",
     Edge::Bottom,
     {0, 726, 1024, 768},
     {0, 0, 1024, 726},
     "querypos 3",
     "setpos 3 0,726,1024,768"},
    {"left", Edge::Left, {0, 0, 41, 768}, {41, 0, 1024, 768}, "querypos 0", "setpos 0 0,0,41,768"},
    {"right",
     Edge::Right,
     {982, 0, 1024, 768},
     {0, 0, 982, 768},
     "querypos 2",
     "setpos 2 982,0,1024,768"}};

TEST(AppBar, AStartAtAnEdgeKeepsItForTheStrip) {
  for (const EdgeRow& row : kEdges) {
    SCOPED_TRACE(row.name);
    DockDesk desk;
    desk.AskFor(row.at);
    desk.Start();
    EXPECT_EQ(desk.World.Bars.Log(), (Messages{"new", row.query, row.set, "activate"}));
    EXPECT_EQ(desk.Bounds(), row.window);
    EXPECT_EQ(desk.World.Bars.WorkArea(), row.work);
    EXPECT_TRUE(desk.Shown());
    EXPECT_TRUE(desk.TheProgram.Strip.AppBarDocked);
    EXPECT_EQ(desk.TheProgram.Strip.ToolbarVertical, IsVertical(row.at));
    EXPECT_FALSE(desk.TheProgram.Guards.AppBarBusy);
    EXPECT_TRUE(desk.TheProgram.Guards.ToolbarReady);
    EXPECT_EQ(desk.World.Desktop.ActiveWindow(), desk.Strip.hWnd());
    EXPECT_EQ(desk.Menu.Times("InitIcons"), 1);
  }
}

TEST(AppBar, FromEveryEdgeToEveryOther) {
  for (const EdgeRow& from : kEdges) {
    for (const EdgeRow& to : kEdges) {
      if (from.at == to.at) continue;
      for (const bool rebuild : {false, true}) {
        SCOPED_TRACE(std::string(from.name) + " to " + to.name + (rebuild ? ", rebuilt" : ""));
        DockDesk desk;
        desk.StartAt(from.at);
        desk.Docking.SetAppBar(to.at, rebuild);
        EXPECT_TRUE(desk.Shown());
        EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, to.at);
        EXPECT_EQ(desk.Bounds(), to.window);
        EXPECT_EQ(desk.World.Bars.WorkArea(), to.work);
        EXPECT_EQ(desk.World.Bars.Log()[0], to.query);
        EXPECT_EQ(desk.World.Bars.Log()[1], to.set);
        EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 6);
        EXPECT_TRUE(desk.Strip.picToolbar.Visible());
      }
    }
  }
}

TEST(AppBar, TheBoxOfSingleButtonsReachesToTheEnd) {
  for (const float t : kScales) {
    for (const EdgeRow& row : kEdges) {
      SCOPED_TRACE(std::string(row.name) + " " + std::to_string(t));
      DockDesk desk({.TwipsPerPixel = t});
      desk.StartAt(row.at);
      EXPECT_EQ(desk.Bounds(), row.window);
      const forms::PictureBox& box = desk.Strip.picSingleButton;
      if (IsVertical(row.at)) {
        EXPECT_EQ(RoundToInt(box.Bottom() / t), RoundToInt(desk.Strip.Height() / t) - 2);
      } else {
        EXPECT_EQ(RoundToInt(box.Right() / t), RoundToInt(desk.Strip.Width() / t) - 2);
      }
    }
  }
}

TEST(AppBar, AtAHorizontalEdgeTheSidesAgainstTheScreenHaveNoLine) {
  for (const float t : kScales) {
    SCOPED_TRACE(t);
    DockDesk desk({.TwipsPerPixel = t});
    desk.StartAt(Edge::Bottom);
    EXPECT_FALSE(desk.Strip.bLine2.Visible());
    EXPECT_FALSE(desk.Strip.bLine4.Visible());
    EXPECT_TRUE(desk.Strip.bLineXY.Visible());
  }
}

TEST(AppBar, BelowAnotherBarTheTopEdgeIsNotLifted) {
  DockDesk desk;
  desk.World.Bars.AddOtherBar(Edge::Top, 28);
  desk.StartAt(Edge::Top);
  EXPECT_EQ(desk.Bounds(), (PixelRect{0, 28, 1024, 69}));
  EXPECT_EQ(desk.World.Bars.KeptBy(desk.Strip.hWnd()), (PixelRect{0, 28, 1024, 69}));
}

TEST(AppBar, TheTaskBarCutsTheLengthOfAnUprightStrip) {
  DockDesk desk;
  desk.World.Bars.AddTaskBar(Edge::Bottom, 28);
  desk.StartAt(Edge::Right);
  EXPECT_EQ(desk.Bounds(), (PixelRect{982, 0, 1024, 740}));
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 982, 740}));
}

TEST(AppBar, AStripThatOthersMayCoverKeepsNoRoom) {
  for (const EdgeRow& row : kEdges) {
    SCOPED_TRACE(row.name);
    DockDesk desk;
    desk.TheProgram.Strip.NotOnTop = true;
    desk.AskFor(row.at);
    desk.Start();
    EXPECT_EQ(desk.World.Bars.Log(), (Messages{"new", row.query, "activate"}));
    EXPECT_EQ(desk.Bounds(), row.window);
    EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 1024, 768}));
    EXPECT_FALSE(desk.World.Desktop.IsTopmost(desk.Strip.hWnd()));
  }
}

TEST(AppBar, RestoreGivesTheEdgeBackAndStaysRegistered) {
  DockDesk desk;
  desk.StartAt(Edge::Left);
  desk.Strip.RestoreToolbar();
  const Messages& log = desk.World.Bars.Log();
  ASSERT_GE(log.size(), 2U);
  EXPECT_EQ(log[0], "remove");
  EXPECT_EQ(log[1], "new");
  EXPECT_EQ(std::count(log.begin(), log.end(), "new"), 1);
  EXPECT_TRUE(desk.World.Bars.IsRegistered(desk.Strip.hWnd()));
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 1024, 768}));
  EXPECT_FALSE(desk.TheProgram.Strip.AppBarDocked);
  EXPECT_FALSE(desk.TheProgram.Guards.AppBarBusy);
  EXPECT_EQ(desk.Bounds().top, -7);
  EXPECT_GT(desk.Bounds().Width(), desk.Bounds().Height());
}

TEST(AppBar, TheEndLeavesNoBarAndRemembersTheEdge) {
  DockDesk desk;
  desk.StartAt(Edge::Bottom);
  const WindowId strip = desk.Strip.hWnd();
  desk.Exit();
  EXPECT_EQ(desk.World.Bars.Log().back(), "remove");
  EXPECT_FALSE(desk.World.Bars.IsRegistered(strip));
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 1024, 768}));
  EXPECT_EQ(desk.World.Files.Get("C:\\Corvelle\\tmenu425.dat")->substr(13, 3), "101");
}

TEST(AppBar, TheEndOfAHiddenStripDoesNotGiveUpItsClaimFirst) {
  DockDesk desk;
  desk.SetOption(Option::AutoHide, true);
  desk.StartAt(Edge::Left);
  desk.World.Bars.ClearLog();
  desk.Exit();
  EXPECT_EQ(desk.World.Bars.Log(), Messages{"remove"});
}

TEST(AppBar, WithoutAnEdgeTheStripStaysWhereItIs) {
  DockDesk desk;
  desk.StartAt(Edge::Left);
  for (const bool rebuild : {true, false}) {
    desk.Docking.SetAppBar(std::nullopt, rebuild);
    EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, Edge::Left) << rebuild;
    EXPECT_EQ(desk.Bounds(), kEdges[2].window) << rebuild;
  }
  desk.Docking.SetAppBar(Edge::Right, false);
  EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, Edge::Right);
}

TEST(AppBar, ADockedStripJumpsBackWhoeverMovesIt) {
  for (const EdgeRow& row : kEdges) {
    SCOPED_TRACE(row.name);
    DockDesk desk;
    desk.StartAt(row.at);
    desk.World.Desktop.MoveOther(desk.Strip.hWnd(), RectAt({200, 300}, row.window.Size()));
    EXPECT_EQ(desk.Bounds(), row.window);
    EXPECT_EQ(desk.TheProgram.Strip.PinnedLeft, desk.Strip.Left());
    EXPECT_EQ(desk.TheProgram.Strip.PinnedTop, desk.Strip.Top());
  }
}

TEST(AppBar, AnotherBarPushesTheStripInwardAndItsEndLetsItBack) {
  for (const EdgeRow& row : kEdges) {
    SCOPED_TRACE(row.name);
    DockDesk desk;
    desk.StartAt(row.at);
    const WindowId other = desk.World.Bars.AddOtherBar(row.at, 30);
    const PixelRect moved = desk.Bounds();
    switch (row.at) {
      case Edge::Top:
        // No lift any more.
        EXPECT_EQ(moved, (PixelRect{0, 30, 1024, 71}));
        break;
      case Edge::Bottom:
        EXPECT_EQ(moved, (PixelRect{0, 696, 1024, 738}));
        break;
      case Edge::Left:
        EXPECT_EQ(moved, (PixelRect{30, 0, 71, 768}));
        break;
      case Edge::Right:
        EXPECT_EQ(moved, (PixelRect{952, 0, 994, 768}));
        break;
    }
    EXPECT_FALSE(desk.TheProgram.Guards.PosChangeRunning);
    EXPECT_FALSE(desk.TheProgram.Guards.AppBarBusy);
    EXPECT_TRUE(desk.TheProgram.Guards.ToolbarReady);
    // Its new place is the one to which it jumps back.
    desk.World.Desktop.MoveOther(desk.Strip.hWnd(), RectAt({200, 300}, moved.Size()));
    EXPECT_EQ(desk.Bounds(), moved);
    desk.World.Bars.RemoveOtherBar(other);
    EXPECT_EQ(desk.Bounds(), row.window);
  }
}

TEST(AppBar, NewsThatChangeNothingAreOnlyAskedAfter) {
  DockDesk desk;
  desk.StartAt(Edge::Right);
  desk.World.Desktop.ClearLog();
  desk.World.Bars.TellBars();
  EXPECT_EQ(desk.World.Bars.Log(), Messages{"querypos 2"});
  for (const std::string& line : desk.World.Desktop.Log()) {
    EXPECT_FALSE(line.starts_with("bounds frmToolbar")) << line;
  }
}

TEST(AppBar, AnotherResolutionTakesTheStripAlong) {
  for (const Edge at : {Edge::Top, Edge::Bottom, Edge::Left, Edge::Right}) {
    SCOPED_TRACE(std::string(EdgeText(at)));
    DockDesk desk;
    desk.StartAt(at);
    desk.World.Desktop.SetScreen({800, 600});
    desk.World.Desktop.Pump();
    const PixelRect now = desk.Bounds();
    if (IsVertical(at)) {
      EXPECT_EQ(now.Height(), 600);
      EXPECT_TRUE(at == Edge::Left ? now.left == 0 : now.right == 800);
    } else {
      EXPECT_EQ(now.Width(), 800);
      EXPECT_TRUE(at == Edge::Top ? now.top == -3 : now.bottom == 600);
    }
    desk.World.Desktop.SetScreen({1024, 768});
    desk.World.Desktop.Pump();
    for (const EdgeRow& row : kEdges) {
      if (row.at == at) {
        EXPECT_EQ(desk.Bounds(), row.window);
      }
    }
  }
}

TEST(AppBar, AFloatingStripStaysOnASmallerScreen) {
  DockDesk desk;
  desk.Start();
  ASSERT_GT(desk.Bounds().right, 640);
  desk.World.Desktop.SetScreen({640, 480});
  desk.World.Desktop.Pump();
  EXPECT_LE(desk.Bounds().right, 640);
  EXPECT_GE(desk.Bounds().left, 0);
  EXPECT_EQ(desk.Bounds().top, -7);
}

TEST(AppBar, TheColoursOfADockedStripChangeAndItsButtonsStay) {
  DockDesk desk;
  desk.StartAt(Edge::Left);
  const TwipRect box{desk.Strip.picToolbar.Left(), desk.Strip.picToolbar.Top(),
                     desk.Strip.picToolbar.Width(), desk.Strip.picToolbar.Height()};
  const PixelRect window = desk.Bounds();
  desk.World.Desktop.SetSystemColor(15, 0x00123456);
  desk.World.Desktop.Pump();
  EXPECT_EQ(desk.Strip.picToolbar.Image()->PixelAt({36, 2}), 0x00123456U);
  EXPECT_EQ((TwipRect{desk.Strip.picToolbar.Left(), desk.Strip.picToolbar.Top(),
                      desk.Strip.picToolbar.Width(), desk.Strip.picToolbar.Height()}),
            box);
  EXPECT_EQ(desk.Bounds(), window);
  EXPECT_EQ(desk.World.Bars.Log(), Messages{});
  EXPECT_EQ(desk.Menu.Times("ResetPicIcons"), 1);
}

TEST(AppBar, AFullScreenProgramSendsADockedStripToTheBottomAndItsEndBringsItBack) {
  DockDesk desk;
  desk.StartAt(Edge::Top);
  desk.World.Bars.SetFullScreen(true);
  EXPECT_FALSE(desk.World.Desktop.IsTopmost(desk.Strip.hWnd()));
  EXPECT_TRUE(desk.TheProgram.Strip.FullScreenApp);
  desk.World.Desktop.ClearLog();
  desk.World.Bars.SetFullScreen(false);
  EXPECT_TRUE(desk.World.Desktop.IsTopmost(desk.Strip.hWnd()));
  EXPECT_TRUE(desk.World.Desktop.IsTopmost(desk.Menu.hWnd()));
  EXPECT_EQ(desk.Bounds(), kEdges[0].window);
}

TEST(AppBar, AnActiveStripTellsTheShell) {
  DockDesk desk;
  desk.StartAt(Edge::Top);
  desk.GoElsewhere();
  desk.World.Bars.ClearLog();
  desk.World.Desktop.TakeForeground(desk.Strip.hWnd());
  EXPECT_EQ(desk.World.Bars.Log(), Messages{"activate"});
}

TEST(AppBar, TheMenuStandsBesideTheStrip) {
  for (const EdgeRow& row : kEdges) {
    SCOPED_TRACE(row.name);
    DockDesk desk;
    desk.StartAt(row.at);
    desk.Click(3);
    ASSERT_EQ(desk.MenuUp(), 3);
    const PixelRect menu = desk.World.Desktop.BoundsOf(desk.Menu.hWnd());
    const PixelRect strip = desk.Bounds();
    switch (row.at) {
      case Edge::Top:
        EXPECT_EQ(menu.top, strip.bottom - 1);
        break;
      case Edge::Bottom:
        EXPECT_EQ(menu.bottom, strip.top);
        break;
      case Edge::Left:
        EXPECT_EQ(menu.left, strip.right);
        break;
      case Edge::Right:
        EXPECT_EQ(menu.right, strip.left);
        break;
    }
    EXPECT_TRUE(menu.left >= 0 && menu.right <= 1024 && menu.top >= 0 && menu.bottom <= 768);
  }
}

// What arrives inside.

TEST(AppBarGuard, TheNewsThatAPlacingBringsAboutStartNoOther) {
  DockDesk desk;
  desk.AskFor(Edge::Right);
  desk.Start();
  // The shell told the strip of its own place while it was being placed.
  const Messages& log = desk.World.Bars.Log();
  EXPECT_EQ(std::count(log.begin(), log.end(), "querypos 2"), 1);
}

TEST(AppBarGuard, NewsThatArriveWhileTheStripIsPlacedOnlyTellOfFullScreenPrograms) {
  DockDesk desk;
  desk.StartAt(Edge::Right);
  // They wait until the placing lets events through: ToolbarReady is off then.
  desk.World.Desktop.Post(desk.Strip.hWnd(), message::AppBarCallback, 1, 0);
  desk.World.Desktop.Post(desk.Strip.hWnd(), message::AppBarCallback, 2, 1);
  desk.World.Desktop.ClearLog();
  desk.Docking.SetAppBar(Edge::Left, true);
  const Messages& log = desk.World.Bars.Log();
  EXPECT_EQ(std::count(log.begin(), log.end(), "querypos 0"), 1);
  EXPECT_TRUE(desk.TheProgram.Strip.FullScreenApp);
  for (const std::string& line : desk.World.Desktop.Log()) {
    EXPECT_FALSE(line.starts_with("setwindowpos frmToolbar 1")) << line;
  }
  EXPECT_TRUE(desk.TheProgram.Guards.ToolbarReady);
}

TEST(AppBarGuard, ASecondPlacingByNewsWaitsWhileOneRuns) {
  struct Row {
    const char* name;
    bool GuardFlags::*flag;
  };
  for (const Row& row : {Row{"a repositioning", &GuardFlags::AppBarBusy},
                         Row{"a restore, or a hand on the grip", &GuardFlags::RestoreBusy}}) {
    SCOPED_TRACE(row.name);
    DockDesk desk;
    desk.StartAt(Edge::Right);
    desk.TheProgram.Guards.*row.flag = true;
    desk.World.Bars.TellBars();
    EXPECT_EQ(desk.World.Bars.Log(), Messages{});
    EXPECT_TRUE(desk.TheProgram.Guards.ToolbarReady);
    desk.TheProgram.Guards.*row.flag = false;
    desk.World.Bars.TellBars();
    EXPECT_EQ(desk.World.Bars.Log(), Messages{"querypos 2"});
  }
}

TEST(AppBarGuard, NoPlacingWhileSomethingIsCarriedOrTheStripIsMinimized) {
  struct Row {
    const char* name;
    std::function<bool&(Program&)> flag;
  };
  const Row rows[] = {
      {"minimized", [](Program& p) -> bool& { return p.Strip.ToolbarMinimized; }},
      {"an item", [](Program& p) -> bool& { return p.Entry.ItemDragging; }},
      {"a button", [](Program& p) -> bool& { return p.Drag.ButtonDragging; }},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    DockDesk desk;
    desk.StartAt(Edge::Right);
    bool& flag = row.flag(desk.TheProgram);
    flag = true;
    desk.Docking.SetAppBar(Edge::Left, true);
    EXPECT_EQ(desk.World.Bars.Log(), Messages{});
    EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, Edge::Right);
    flag = false;
    desk.Docking.SetAppBar(Edge::Left, true);
    EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, Edge::Left);
  }
}

TEST(AppBarGuard, AScreenThatShrinksWhileSomethingIsCarriedIsFollowedAfterwards) {
  struct Row {
    const char* name;
    std::function<bool&(Program&)> flag;
  };
  const Row rows[] = {
      {"an item", [](Program& p) -> bool& { return p.Entry.ItemDragging; }},
      {"a button", [](Program& p) -> bool& { return p.Drag.ButtonDragging; }},
      {"the grip", [](Program& p) -> bool& { return p.Guards.RestoreBusy; }},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    DockDesk desk;
    desk.StartAt(Edge::Right);
    bool& flag = row.flag(desk.TheProgram);
    flag = true;
    desk.World.Desktop.SetScreen({800, 600});
    desk.World.Bars.TellBars();
    desk.World.Desktop.Pump();
    EXPECT_EQ(desk.Bounds().left, 982);
    flag = false;
    desk.Poll();
    EXPECT_EQ(desk.Bounds(), (PixelRect{758, 0, 800, 600}));
    desk.Poll();
    EXPECT_FALSE(desk.Strip.Timer1.Enabled());
  }
}

TEST(AppBarGuard, ARestoreThatArrivesWhileTheStripIsPlacedLeavesItAtItsEdge) {
  DockDesk desk;
  desk.StartAt(Edge::Right);
  // The placing lets events through.
  bool came = false;
  desk.World.Desktop.StartTimer(1, [&] {
    if (std::exchange(came, true)) return;
    EXPECT_TRUE(desk.TheProgram.Guards.AppBarBusy);
    desk.Strip.RestoreToolbar();
  });
  desk.World.Desktop.Jump(5);
  desk.Docking.SetAppBar(Edge::Left, true);
  EXPECT_TRUE(came);
  EXPECT_TRUE(desk.TheProgram.Strip.AppBarDocked);
  EXPECT_TRUE(desk.TheProgram.Strip.ToolbarVertical);
  EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, Edge::Left);
  EXPECT_FALSE(desk.TheProgram.Guards.RestoreBusy);
  EXPECT_EQ(desk.Bounds().left, 0);
  EXPECT_EQ(desk.Bounds().Height(), 768);
}

TEST(AppBarGuard, AStripThatGoesWhileItIsPlacedLeavesNothingBehind) {
  DockDesk desk;
  desk.StartAt(Edge::Right);
  desk.World.Desktop.StartTimer(1, [&desk] { desk.Exit(); });
  desk.World.Desktop.Jump(5);
  desk.Docking.SetAppBar(Edge::Left, true);
  EXPECT_FALSE(desk.Strip.IsLoaded());
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 1024, 768}));
  EXPECT_FALSE(desk.TheProgram.Guards.AppBarBusy);
}

TEST(AppBarIdle, NothingWakesAStripAtAnEdge) {
  for (const EdgeRow& row : kEdges) {
    for (const bool notOnTop : {false, true}) {
      SCOPED_TRACE(std::string(row.name) + (notOnTop ? ", not on top" : ""));
      DockDesk desk;
      desk.TheProgram.Strip.NotOnTop = notOnTop;
      desk.StartAt(row.at);
      desk.Wait(1000);
      EXPECT_EQ(desk.WakeUps(10'000), 0);
      desk.Click(3);
      desk.Wait(500);
      desk.GoElsewhere();
      desk.Wait(1000);
      desk.Click(3);
      desk.Click(3);
      desk.GoElsewhere();
      desk.Wait(2500);
      EXPECT_EQ(desk.WakeUps(10'000), 0);
    }
  }
}

TEST(AppBarIdle, NothingWakesAStripInTheTaskBar) {
  for (const bool hides : {false, true}) {
    SCOPED_TRACE(hides);
    DockDesk desk;
    desk.SetOption(Option::AutoHide, hides);
    desk.StartAt(Edge::Right);
    desk.Companion.MinimizeFor(desk.Strip.WindowBounds());
    desk.Wait(1000);
    EXPECT_EQ(desk.WakeUps(10'000), 0);
  }
}

TEST(AppBarIdle, AHiddenStripIsLookedAfterFourTimesASecond) {
  DockDesk desk;
  desk.SetOption(Option::AutoHide, true);
  desk.StartAt(Edge::Right);
  desk.GoElsewhere();
  desk.Wait(1000);
  EXPECT_EQ(desk.WakeUps(10'000), 40);
}

TEST(AppBarGuard, ManyChangesInARowLeaveTheStripInItsPlaceAndQuiet) {
  DockDesk desk;
  desk.StartAt(Edge::Top);
  for (int i = 0; i < 3; ++i) {
    desk.World.Bars.RemoveOtherBar(desk.World.Bars.AddOtherBar(Edge::Top, 20));
  }
  EXPECT_EQ(desk.Bounds(), kEdges[0].window);
  EXPECT_FALSE(desk.TheProgram.Guards.PosChangeRunning);
  desk.Poll();
  EXPECT_EQ(desk.WakeUps(2000), 0);
}

TEST(AppBar, AStripThatHasBeenPlacedHasNoEdgeAskedForAnyMore) {
  DockDesk desk;
  desk.StartAt(Edge::Top);
  desk.Docking.SetAppBar(Edge::Left, true);
  EXPECT_FALSE(desk.TheProgram.Strip.AppBarRequested);
}

TEST(AppBar, OnlyUprightLargeSingleButtonsAreMadeAgainWhenTheBarsMove) {
  struct Row {
    const char* name;
    Edge at;
    bool large;
    bool option24;
    bool again;
  };
  const Row rows[] = {{"upright, large", Edge::Left, true, true, true},
                      {"upright, small", Edge::Left, false, true, false},
                      {"upright, without option 24", Edge::Left, true, false, false},
                      {"lying", Edge::Top, true, true, false}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    DockDesk desk;
    desk.SetOption(Option::LargeIcons, row.large);
    desk.SetOption(Option::SmallSingles, row.option24);
    desk.StartAt(row.at);
    desk.World.Files.Put("C:\\Corvelle\\Menus\\" + SingleFileName(1),
                         Records({Entry("s", "", "C:\\s.exe")}));
    desk.Docking.SetAppBar(std::nullopt, false);
    EXPECT_EQ(desk.Strip.Singles.SingleCount, row.again ? 1 : 0);
  }
}

}  // namespace
}  // namespace corvelle
