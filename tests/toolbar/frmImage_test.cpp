// The still picture that covers the menu or the strip while it is rebuilt.

#include "toolbar/docking/frmImage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "toolbar/DockDesk.h"

namespace corvelle {
namespace {

struct MenuUpDesk : DockDesk {
  MenuUpDesk() {
    Menu.SetBackColor(0x00123456);
    StartAt(Edge::Top);
    Click(3);
    Wait();
  }
  int TimesShown() const {
    const auto& log = World.Desktop.Log();
    return static_cast<int>(std::count(log.begin(), log.end(), "show frmImage NoActivate"));
  }
};

TEST(StillPicture, OfAMenuStandsBeforeItAndLooksLikeIt) {
  MenuUpDesk desk;
  const PixelRect menu = desk.World.Desktop.BoundsOf(desk.Menu.hWnd());
  desk.Picture.CaptureMenu();
  EXPECT_TRUE(desk.Picture.MenuCaptured());
  EXPECT_TRUE(desk.Picture.WindowLoaded());
  EXPECT_EQ(desk.World.Desktop.BoundsOf(desk.Picture.hWnd()), menu);
  EXPECT_EQ(desk.World.Desktop.WindowAt(menu.TopLeft()), desk.Picture.hWnd());
  EXPECT_EQ(desk.World.Desktop.ActiveWindow(), desk.Menu.hWnd());
  EXPECT_FALSE(desk.Strip.Timer2.Enabled());
  // The user goes on seeing the old menu, whatever becomes of the live one.
  desk.Menu.SetBackColor(0x00654321);
  desk.Menu.Hide();
  desk.World.Desktop.Pump();
  EXPECT_EQ(desk.World.Desktop.Picture().PixelAt({menu.left + 20, menu.top + 20}), 0x00123456U);
  desk.Menu.ShowNoActivate();
  desk.Picture.ReleaseMenu();
  desk.World.Desktop.Pump();
  EXPECT_EQ(desk.World.Desktop.Picture().PixelAt({menu.left + 20, menu.top + 20}), 0x00654321U);
  EXPECT_FALSE(desk.Picture.MenuCaptured());
  EXPECT_FALSE(desk.Picture.WindowLoaded());
  EXPECT_TRUE(desk.Strip.Timer2.Enabled());
}

TEST(StillPicture, TwoCapturesTakeOnePicture) {
  MenuUpDesk desk;
  desk.Picture.CaptureMenu();
  desk.Menu.SetBackColor(0x00654321);
  desk.World.Desktop.Pump();
  desk.Picture.CaptureMenu();
  EXPECT_EQ(desk.TimesShown(), 1);
  const PixelRect menu = desk.World.Desktop.BoundsOf(desk.Menu.hWnd());
  EXPECT_EQ(desk.World.Desktop.Picture().PixelAt({menu.left + 20, menu.top + 20}), 0x00123456U);
  desk.Picture.ReleaseMenu();
}

TEST(StillPicture, OfAHiddenMenuIsNone) {
  DockDesk desk;
  desk.StartAt(Edge::Top);
  desk.Picture.CaptureMenu();
  EXPECT_FALSE(desk.Picture.MenuCaptured());
  EXPECT_FALSE(desk.Picture.WindowLoaded());
  desk.Picture.ReleaseMenu();
  EXPECT_FALSE(desk.Picture.WindowLoaded());
}

TEST(StillPicture, ARefreshOfAMenuGoesOnBehindItAndEndsWithoutIt) {
  MenuUpDesk desk;
  bool covered = false;
  desk.Menu.WhileBuilding = [&] { covered = desk.Picture.MenuCaptured(); };
  desk.Strip.RefreshMenu("F3");
  EXPECT_TRUE(covered);
  EXPECT_FALSE(desk.Picture.MenuCaptured());
  EXPECT_FALSE(desk.Picture.WindowLoaded());
  EXPECT_EQ(desk.MenuUp(), 3);
}

TEST(StillPicture, OfTheStripIsTakenOnlyWithOption4AndNotDuringAChangeOfMode) {
  for (const bool option4 : {true, false}) {
    for (const bool changing : {true, false}) {
      DockDesk desk;
      desk.StartAt(Edge::Right);
      desk.SetOption(Option::AboveFullScreen, option4);
      desk.TheProgram.Guards.ChangingMode = changing;
      desk.Picture.SetPicture1();
      EXPECT_EQ(desk.Picture.WindowLoaded(), option4 && !changing);
      desk.Picture.ResetPicture1();
      EXPECT_FALSE(desk.Picture.WindowLoaded());
    }
  }
}

TEST(StillPicture, OfAStripAtTheTopIsThePartThatIsOnTheScreen) {
  DockDesk desk;
  desk.StartAt(Edge::Top);
  desk.SetOption(Option::AboveFullScreen, true);
  const sim::SimCanvas before = desk.World.Desktop.Picture();
  desk.Picture.SetPicture1();
  EXPECT_EQ(desk.World.Desktop.BoundsOf(desk.Picture.hWnd()), (PixelRect{0, 0, 1024, 38}));
  const sim::SimCanvas after = desk.World.Desktop.Picture();
  for (int x = 0; x < 300; ++x) {
    for (int y = 0; y < 38; ++y) {
      ASSERT_EQ(after.PixelAt({x, y}), before.PixelAt({x, y})) << x << ',' << y;
    }
  }
  desk.Picture.ResetPicture1();
}

TEST(StillPicture, OfTheStripShowsNothingOfAnOutlineThatWasPulledBefore) {
  DockDesk desk;
  desk.StartAt(Edge::Top);
  desk.SetOption(Option::AboveFullScreen, true);
  const auto strip = [&desk] {
    const sim::SimCanvas screen = desk.World.Desktop.Picture();
    std::vector<Rgb> pixels;
    for (int y = 0; y < 38; ++y) {
      for (int x = 0; x < 1024; ++x) pixels.push_back(screen.PixelAt({x, y}));
    }
    return pixels;
  };
  const std::vector<Rgb> before = strip();
  desk.Pull(QuarterOf(Edge::Left));
  ASSERT_EQ(desk.Picture.OutlineEdge(), Edge::Left);
  EXPECT_NE(strip(), before);
  // Back to its own edge: the strip stays.
  desk.PointAt(QuarterOf(Edge::Top));
  desk.World.Desktop.Release();
  desk.PointAway();
  desk.Picture.SetPicture1();
  ASSERT_TRUE(desk.Picture.WindowLoaded());
  EXPECT_EQ(strip(), before);
  desk.Picture.ResetPicture1();
}

TEST(StillPicture, ARebuildLeavesNoPictureBehind) {
  for (const bool docked : {true, false}) {
    SCOPED_TRACE(docked);
    DockDesk desk;
    desk.SetOption(Option::AboveFullScreen, true);
    if (docked) {
      desk.StartAt(Edge::Right);
    } else {
      desk.Start();
    }
    desk.World.Desktop.ClearLog();
    desk.Strip.InitNewButtons();
    const auto& log = desk.World.Desktop.Log();
    EXPECT_EQ(std::count(log.begin(), log.end(), "show frmImage NoActivate"), 1);
    EXPECT_FALSE(desk.Picture.WindowLoaded());
    EXPECT_TRUE(desk.Shown());
  }
}

TEST(StillPicture, AHiddenStripHasNone) {
  DockDesk desk;
  desk.StartAt(Edge::Right);
  desk.SetOption(Option::AboveFullScreen, true);
  desk.Strip.HideWindow();
  desk.Picture.SetPicture1();
  EXPECT_FALSE(desk.Picture.WindowLoaded());
}

TEST(StillPicture, AWindowThatTheSystemRefusesIsGoneWithout) {
  MenuUpDesk desk;
  desk.World.Desktop.RefuseNextWindow();
  desk.Picture.CaptureMenu();
  EXPECT_FALSE(desk.Picture.MenuCaptured());
  desk.Strip.RefreshMenu("F3");
  EXPECT_EQ(desk.MenuUp(), 3);
}

}  // namespace
}  // namespace corvelle
