// What a strip at an edge looks like after its length has changed.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "toolbar/DockDesk.h"

namespace corvelle {
namespace {

constexpr Edge kLookEdges[] = {Edge::Top, Edge::Bottom, Edge::Left, Edge::Right};

/// A strip that shows the date and has three single buttons.
struct LookDesk : DockDesk {
  explicit LookDesk(PixelSize screen = {1024, 768}) : DockDesk({.Screen = screen}) {
    SetOption(Option::ShowDate, true);
    for (int i = 1; i <= 3; ++i) {
      World.Files.Put("C:\\Corvelle\\Menus\\" + SingleFileName(i),
                      Records({Entry("s", "", "C:\\s.exe")}));
    }
  }
  void ChangeScreen(PixelSize size) {
    World.Desktop.SetScreen(size);
    World.Desktop.Pump();
  }
};

/// How many pixels of the screen differ.
int Differences(const LookDesk& one, const LookDesk& other) {
  const sim::SimCanvas a = one.World.Desktop.Picture();
  const sim::SimCanvas b = other.World.Desktop.Picture();
  EXPECT_EQ(a.Size(), b.Size());
  int count = 0;
  for (int y = 0; y < a.Size().height; ++y) {
    for (int x = 0; x < a.Size().width; ++x) count += a.PixelAt({x, y}) != b.PixelAt({x, y});
  }
  return count;
}

TEST(AppBarLook, OnAnotherScreenItIsThatOfAStripThatWasStartedThere) {
  constexpr PixelSize kLarge{1024, 768};
  constexpr PixelSize kSmall{800, 600};
  for (const Edge at : kLookEdges) {
    for (const bool grows : {false, true}) {
      SCOPED_TRACE(std::string(EdgeText(at)) + (grows ? ", larger" : ", smaller"));
      LookDesk desk(grows ? kSmall : kLarge);
      desk.StartAt(at);
      desk.ChangeScreen(grows ? kLarge : kSmall);
      LookDesk started(grows ? kLarge : kSmall);
      started.StartAt(at);
      EXPECT_EQ(desk.Bounds(), started.Bounds());
      EXPECT_EQ(Differences(desk, started), 0);
      EXPECT_EQ(started.Strip.lblDate.Visible(), !IsVertical(at));
    }
  }
}

TEST(AppBarLook, BesideABarAtAnotherEdgeItIsThatOfAStripThatWasStartedThere) {
  for (const Edge at : kLookEdges) {
    for (const Edge bar : kLookEdges) {
      if (IsVertical(at) == IsVertical(bar)) continue;
      SCOPED_TRACE(std::string(EdgeText(at)) + ", bar at " + std::string(EdgeText(bar)));
      LookDesk desk;
      desk.StartAt(at);
      const PixelRect alone = desk.Bounds();
      desk.World.Bars.AddTaskBar(bar, 30);
      LookDesk started;
      started.World.Bars.AddTaskBar(bar, 30);
      started.StartAt(at);
      EXPECT_NE(desk.Bounds(), alone);
      EXPECT_EQ(desk.Bounds(), started.Bounds());
      EXPECT_EQ(Differences(desk, started), 0);
    }
  }
}

TEST(AppBarLook, ALineThatComesBackOnAnotherScreenIsThatOfAStripThatWasStartedThere) {
  for (const Edge at : kLookEdges) {
    SCOPED_TRACE(std::string(EdgeText(at)));
    LookDesk desk;
    desk.SetOption(Option::AutoHide, true);
    desk.StartAt(at);
    desk.TheProgram.Ports.Docking->HideToolbar();
    desk.ChangeScreen({800, 600});
    EXPECT_TRUE(desk.IsLine());
    desk.TheProgram.Ports.Docking->RevealToolbar();
    desk.World.Desktop.Pump();
    LookDesk started({800, 600});
    started.SetOption(Option::AutoHide, true);
    started.StartAt(at);
    EXPECT_EQ(Differences(desk, started), 0);
  }
}

/// More menu buttons than there is room for along any edge.
struct CrowdedDesk : LookDesk {
  CrowdedDesk() { PutButtons(40); }
  /// Pixels that the strip painted beside itself.
  [[nodiscard]] int Strays(const sim::SimCanvas& bare) const {
    const sim::SimCanvas now = World.Desktop.Picture();
    const PixelRect strip = Bounds();
    int count = 0;
    for (int y = 0; y < now.Size().height; ++y) {
      for (int x = 0; x < now.Size().width; ++x) {
        count += !strip.Contains({x, y}) && now.PixelAt({x, y}) != bare.PixelAt({x, y});
      }
    }
    return count;
  }
};

TEST(AppBarLook, MoreMenuButtonsThanTheEdgeIsLongLeaveAStripOfTheEdge) {
  for (const Edge at : kLookEdges) {
    SCOPED_TRACE(std::string(EdgeText(at)));
    LookDesk fitting;
    fitting.StartAt(at);
    CrowdedDesk desk;
    const sim::SimCanvas bare = desk.World.Desktop.Picture();
    desk.StartAt(at);
    EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 41);
    EXPECT_EQ(desk.Bounds(), fitting.Bounds());
    EXPECT_EQ(desk.World.Bars.WorkArea(), fitting.World.Bars.WorkArea());
    EXPECT_EQ(desk.Strays(bare), 0);
    // No room is left for single buttons.
    const forms::PictureBox& singles = desk.Strip.picSingleButton;
    ASSERT_LT(IsVertical(at) ? singles.Height() : singles.Width(), 0);
    // The date, colours and a screen in between change nothing of that.
    for (const bool date : {false, true}) {
      desk.SetOption(Option::ShowDate, date);
      desk.Strip.DoLabelDate();
    }
    desk.World.Desktop.SetSystemColor(15, 0x00C0C0C1);
    desk.World.Desktop.Pump();
    desk.World.Desktop.SetSystemColor(15, 0x00C0C0C0);
    desk.World.Desktop.Pump();
    desk.ChangeScreen({800, 600});
    desk.ChangeScreen({1024, 768});
    EXPECT_EQ(desk.Bounds(), fitting.Bounds());
    EXPECT_EQ(desk.Strays(bare), 0);
  }
}

TEST(AppBarLook, OfMoreMenuButtonsThanTheEdgeIsLongThoseInSightOpenTheirMenus) {
  for (const Edge at : kLookEdges) {
    SCOPED_TRACE(std::string(EdgeText(at)));
    CrowdedDesk desk;
    desk.StartAt(at);
    int inSight = 0;
    for (int button = 2; button <= desk.Strip.Buttons.ButtonCount; ++button) {
      const ButtonRect& place = desk.Strip.Buttons.ToolbarButtons[static_cast<std::size_t>(button)];
      if (place.Left >= 1020 * 15 || place.Top >= 764 * 15) continue;
      SCOPED_TRACE(button);
      ++inSight;
      // Of the last one only a part is seen.
      const PixelPoint middle = desk.Middle(button);
      desk.PointAt({std::min(middle.x, 1022), std::min(middle.y, 766)});
      desk.World.Desktop.Press();
      desk.World.Desktop.Release();
      EXPECT_EQ(desk.MenuUp(), button);
      const PixelRect menu = desk.World.Desktop.BoundsOf(desk.Menu.hWnd());
      EXPECT_TRUE(menu.left >= 0 && menu.left < 1024 && menu.top >= 0 && menu.bottom <= 768);
      desk.World.Desktop.Press();
      desk.World.Desktop.Release();
      EXPECT_EQ(desk.MenuUp(), 0);
    }
    EXPECT_EQ(inSight, IsVertical(at) ? 20 : 25);
  }
}

TEST(AppBarLook, MoreMenuButtonsThanTheEdgeIsLongHideBehindALineAndComeBack) {
  for (const Edge at : kLookEdges) {
    SCOPED_TRACE(std::string(EdgeText(at)));
    LookDesk fitting;
    fitting.SetOption(Option::AutoHide, true);
    fitting.StartAt(at);
    CrowdedDesk desk;
    desk.SetOption(Option::AutoHide, true);
    const sim::SimCanvas bare = desk.World.Desktop.Picture();
    desk.StartAt(at);
    EXPECT_EQ(desk.Bounds(), fitting.Bounds());
    desk.TheProgram.Ports.Docking->HideToolbar();
    desk.World.Desktop.Pump();
    EXPECT_TRUE(desk.IsLine());
    EXPECT_EQ(desk.Strays(bare), 0);
    desk.TheProgram.Ports.Docking->RevealToolbar();
    desk.World.Desktop.Pump();
    EXPECT_EQ(desk.Bounds(), fitting.Bounds());
    EXPECT_EQ(desk.Strays(bare), 0);
  }
}

TEST(AppBarLook, WhenFewerMenuButtonsAreLeftItIsThatOfAStripThatNeverHadMore) {
  for (const Edge at : kLookEdges) {
    SCOPED_TRACE(std::string(EdgeText(at)));
    CrowdedDesk desk;
    desk.StartAt(at);
    for (int i = 6; i <= 40; ++i)
      desk.World.Files.Vanish("C:\\Corvelle\\Menus\\" + MenuFileName(i));
    desk.Strip.InitNewButtons();
    desk.World.Desktop.Pump();
    LookDesk fitting;
    fitting.StartAt(at);
    EXPECT_EQ(Differences(desk, fitting), 0);
  }
}

}  // namespace
}  // namespace corvelle
