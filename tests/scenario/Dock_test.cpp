#include <gtest/gtest.h>

#include <string>

#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

/// A point well inside the quarter of the screen that belongs to an edge.
PixelPoint QuarterOf(const Desk& desk, Edge at) {
  const PixelSize screen = desk.ScreenSize();
  switch (at) {
    case Edge::Left:
      return {screen.width / 10, screen.height / 2};
    case Edge::Right:
      return {screen.width * 9 / 10, screen.height / 2};
    case Edge::Bottom:
      return {screen.width / 2, screen.height * 8 / 10};
    case Edge::Top:
      break;
  }
  return {screen.width / 2, screen.height / 10};
}

/// A program that asks for an edge, with three buttons of its own.
class Dock : public ::testing::Test {
 protected:
  void StartAt(Edge at, std::vector<int> turned = {}) {
    turned.push_back(14);
    if (at == Edge::Left || at == Edge::Right) turned.push_back(15);
    if (at == Edge::Bottom || at == Edge::Right) turned.push_back(16);
    desk_->WriteFile(kFlagsFile, InstalledFlags(turned));
    for (int menu = 1; menu <= 3; ++menu) {
      WriteMenu(*desk_, menu, "Menu " + std::to_string(menu), {Witness(*desk_, "one")});
    }
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
  }

  [[nodiscard]] PixelRect Strip() const { return desk_->BoundsOf("frmToolbar"); }

  /// True if the strip spans the edge and touches it; at the top its frame is above the screen.
  [[nodiscard]] bool StandsAt(Edge at, int outside = 0) const {
    const PixelRect strip = Strip();
    const PixelSize screen = desk_->ScreenSize();
    switch (at) {
      case Edge::Left:
        return strip.left == outside && strip.Height() == screen.height && strip.Width() < 60;
      case Edge::Right:
        return strip.right == screen.width - outside && strip.Height() == screen.height &&
               strip.Width() < 60;
      case Edge::Bottom:
        return strip.bottom == screen.height - outside && strip.Width() == screen.width &&
               strip.Height() < 60;
      case Edge::Top:
        break;
    }
    return strip.top == (outside == 0 ? -3 : outside) && strip.Width() == screen.width &&
           strip.Height() < 60;
  }
  bool WaitForStripAt(Edge at, int outside = 0) {
    return desk_->Wait([=, this] { return StandsAt(at, outside); });
  }

  /// From edge to edge by the grip, with a menu at each, and a restart at the last.
  void GoToEveryEdge(bool large);

  std::unique_ptr<Desk> desk_ = MakeDesk();
};

void Dock::GoToEveryEdge(bool large) {
  StartAt(Edge::Right, large ? std::vector<int>{} : std::vector<int>{26});
  EXPECT_TRUE(StandsAt(Edge::Right));
  desk_->Picture(large ? "right-large" : "right-small");
  for (const Edge at : {Edge::Bottom, Edge::Left, Edge::Top, Edge::Right}) {
    SCOPED_TRACE(std::string(EdgeText(at)));
    PullTo(*desk_, QuarterOf(*desk_, at));
    EXPECT_TRUE(desk_->Wait([this] { return desk_->IsVisible("frmImage"); }));
    desk_->Picture("outline-" + std::string(EdgeText(at)) + (large ? "-large" : "-small"));
    desk_->Release(Button::Left);
    ASSERT_TRUE(WaitForStripAt(at));
    EXPECT_TRUE(desk_->Wait([this] { return !desk_->Window("frmImage").has_value(); }));
    EXPECT_EQ(ButtonCount(*desk_), 4);
    desk_->MovePointer(FarAway(*desk_));
    desk_->Pause(300);
    desk_->Picture(std::string(EdgeText(at)) + (large ? "-large" : "-small"));
    ASSERT_TRUE(OpenMenu(*desk_, 2));
    desk_->Picture(std::string(EdgeText(at)) + "-menu" + (large ? "-large" : "-small"));
    desk_->Key(kKeyEscape);
    ASSERT_TRUE(WaitForNoMenu(*desk_));
  }
  ASSERT_TRUE(CloseAndWait(*desk_));
  // It comes back where it was left.
  desk_->MovePointer(FarAway(*desk_));
  ASSERT_TRUE(StartAndWait(*desk_));
  EXPECT_TRUE(StandsAt(Edge::Right));
}

TEST_F(Dock, PulledByItsGripTheStripGoesToEveryEdge) { GoToEveryEdge(true); }

TEST_F(Dock, WithSmallIconsItGoesToEveryEdgeToo) { GoToEveryEdge(false); }

TEST_F(Dock, AutoHideLeavesALineAndThePointerBringsTheStripBack) {
  for (const Edge at : {Edge::Right, Edge::Top}) {
    SCOPED_TRACE(std::string(EdgeText(at)));
    desk_ = nullptr;
    desk_ = MakeDesk();
    StartAt(at, {3});
    const PixelSize screen = desk_->ScreenSize();
    EXPECT_TRUE(StandsAt(at));
    desk_->OpenOtherWindow({200, 200, 600, 500});
    desk_->MovePointer(FarAway(*desk_));
    const auto isLine = [this] { return Strip().Width() == 1 || Strip().Height() == 1; };
    ASSERT_TRUE(desk_->Wait(isLine));
    desk_->Picture("line-" + std::string(EdgeText(at)));
    desk_->MovePointer(at == Edge::Right ? PixelPoint{screen.width - 1, screen.height / 2}
                                         : PixelPoint{screen.width / 2, 0});
    ASSERT_TRUE(WaitForStripAt(at));
    desk_->Picture("revealed-" + std::string(EdgeText(at)));
    EXPECT_NE(desk_->ForegroundClass(), "frmToolbar");
    desk_->MovePointer(FarAway(*desk_));
    EXPECT_TRUE(desk_->Wait(isLine));
    ASSERT_TRUE(CloseAndWait(*desk_));
  }
}

TEST_F(Dock, ABarThatIsThereKeepsItsPlaceAndTheStripStandsInside) {
  for (const Edge at : {Edge::Left, Edge::Right, Edge::Top, Edge::Bottom}) {
    SCOPED_TRACE(std::string(EdgeText(at)));
    desk_ = nullptr;
    desk_ = MakeDesk();
    const PixelRect other = desk_->OpenOtherBar(at, 30);
    ASSERT_FALSE(other.IsEmpty());
    StartAt(at);
    const PixelRect strip = Strip();
    EXPECT_TRUE(Intersect(strip, other).IsEmpty());
    EXPECT_TRUE(StandsAt(at, 30)) << strip.left << ',' << strip.top << ',' << strip.right << ','
                                  << strip.bottom;
    ASSERT_TRUE(CloseAndWait(*desk_));
  }
}

TEST_F(Dock, AnEndAtAnEdgeGivesTheEdgeBack) {
  StartAt(Edge::Right);
  const PixelRect inside = desk_->OpenOtherBar(Edge::Right, 30);
  EXPECT_EQ(inside.right, Strip().left);
  ASSERT_TRUE(CloseAndWait(*desk_));
  EXPECT_EQ(desk_->ReadFile(kFlagsFile)->substr(13, 3), "111");
  StartAt(Edge::Left);
  ASSERT_TRUE(CloseAndWait(*desk_));
  // Nothing stands there any more: another bar gets the very edge.
  EXPECT_EQ(desk_->OpenOtherBar(Edge::Left, 30).left, 0);
}

TEST_F(Dock, TheNewsOfAFullScreenProgramLeaveTheStripAtItsEdge) {
  StartAt(Edge::Top);
  desk_->Post("frmToolbar", kMessageAppBar, 2, 1);
  desk_->Pause(200);
  EXPECT_TRUE(StandsAt(Edge::Top));
  desk_->Post("frmToolbar", kMessageAppBar, 2, 0);
  desk_->Pause(200);
  EXPECT_TRUE(StandsAt(Edge::Top));
  desk_->Post("frmToolbar", kMessageAppBar, 1, 0);
  desk_->Pause(200);
  EXPECT_TRUE(StandsAt(Edge::Top));
  EXPECT_EQ(desk_->RunningCopies(), 1);
}

}  // namespace
}  // namespace corvelle::scenario
