// What a strip at an edge looks like after its length has changed.

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace corvelle
