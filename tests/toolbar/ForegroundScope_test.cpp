// Who is active after the strip was hidden for a rebuild, and meanwhile.

#include "toolbar/docking/ForegroundScope.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "toolbar/DockDesk.h"

namespace corvelle {
namespace {

/// A strip in use between two windows of another program, one of which is always on top.
struct BetweenDesk : DockDesk {
  BetweenDesk() {
    World.Desktop.AddOtherWindow({.Title = "Work", .Bounds = {300, 200, 700, 600}});
    Topmost = World.Desktop.AddOtherWindow(
        {.Title = "Clock", .Bounds = {800, 600, 900, 700}, .Topmost = true});
  }
  /// The user works with the strip, and the other topmost window is the next one below it.
  void UseStrip() {
    World.Desktop.TakeForeground(Topmost);
    World.Desktop.TakeForeground(Strip.hWnd());
  }

  WindowId Topmost = kNoWindow;
};

struct RebuildRow {
  const char* name;
  std::function<void(BetweenDesk&)> act;
};

const RebuildRow kRebuilds[] = {
    {"docking", [](BetweenDesk& desk) { desk.Docking.SetAppBar(Edge::Left, true); }},
    {"docking without a rebuild",
     [](BetweenDesk& desk) { desk.Docking.SetAppBar(Edge::Top, false); }},
    {"refresh all", [](BetweenDesk& desk) { desk.Strip.InitNewButtons(); }},
    {"large icons",
     [](BetweenDesk& desk) {
       desk.SetOption(Option::LargeIcons, false);
       desk.Strip.InitNewButtons();
     }},
    {"back to the top", [](BetweenDesk& desk) { desk.Strip.RestoreToolbar(); }},
    {"not on top", [](BetweenDesk& desk) { desk.Companion.ActivateSysTray(); }},
    {"on top again",
     [](BetweenDesk& desk) {
       desk.Companion.ActivateSysTray();
       desk.Companion.DeActivateSysTray();
     }},
};

TEST(Foreground, StaysWithTheStripThroughEveryRebuild) {
  for (const bool docked : {false, true}) {
    for (const RebuildRow& row : kRebuilds) {
      SCOPED_TRACE(std::string(row.name) + (docked ? ", docked" : ""));
      BetweenDesk desk;
      desk.SetOption(Option::NotOnTopTipDone, true);
      if (docked) desk.AskFor(Edge::Right);
      desk.Start();
      desk.UseStrip();
      bool strayed = false;
      const forms::TimerId look = desk.World.Desktop.StartTimer(
          1, [&] { strayed = strayed || desk.World.Desktop.ActiveWindow() == kNoWindow; });
      desk.World.Desktop.Jump(5);
      row.act(desk);
      desk.World.Desktop.StopTimer(look);
      EXPECT_FALSE(strayed);
      EXPECT_EQ(desk.World.Desktop.ActiveWindow(), desk.Strip.hWnd());
      EXPECT_EQ(desk.World.Desktop.Find("frmKeeper"), kNoWindow);
      // The keys go there too.
      desk.PointAway();
      desk.World.Desktop.PressKey(forms::key::F10);
      EXPECT_TRUE(desk.TheProgram.Menu.KeyboardOnToolbar);
      EXPECT_EQ(desk.TheProgram.Menu.CurButton, 1);
    }
  }
}

TEST(Foreground, ARebuildWhileTheUserIsElsewhereTakesNothing) {
  BetweenDesk desk;
  desk.StartAt(Edge::Right);
  desk.GoElsewhere();
  const WindowId other = desk.World.Desktop.ForegroundWindow();
  desk.Docking.SetAppBar(Edge::Left, true);
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), other);
  desk.World.Bars.AddOtherBar(Edge::Left, 30);
  desk.Poll();
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), other);
}

TEST(Foreground, AUserWhoGoesElsewhereDuringARebuildStaysThere) {
  BetweenDesk desk;
  desk.StartAt(Edge::Right);
  desk.UseStrip();
  const auto goes = std::make_shared<forms::TimerId>();
  *goes = desk.World.Desktop.StartTimer(1, [&, goes] {
    desk.World.Desktop.StopTimer(*goes);
    desk.World.Desktop.TakeForeground(desk.Topmost);
  });
  desk.World.Desktop.Jump(5);
  desk.Docking.SetAppBar(Edge::Left, true);
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), desk.Topmost);
  EXPECT_TRUE(desk.Shown());
}

TEST(Foreground, TheWindowThatHoldsItIsSeenOnNoScreen) {
  BetweenDesk desk;
  desk.StartAt(Edge::Right);
  desk.UseStrip();
  {
    const ForegroundScope foreground(desk.Strip, desk.TheProgram.Services.Desktop,
                                     desk.TheProgram.Ports);
    const WindowId keeper = desk.World.Desktop.Find("frmKeeper");
    EXPECT_EQ(desk.World.Desktop.ActiveWindow(), keeper);
    EXPECT_LT(desk.World.Desktop.BoundsOf(keeper).right, -30000);
    // A rebuild inside of another one needs no second.
    const ForegroundScope inner(desk.Strip, desk.TheProgram.Services.Desktop,
                                desk.TheProgram.Ports);
    EXPECT_EQ(desk.World.Desktop.ActiveWindow(), keeper);
  }
  EXPECT_EQ(desk.World.Desktop.ActiveWindow(), desk.Strip.hWnd());
}

}  // namespace
}  // namespace corvelle
