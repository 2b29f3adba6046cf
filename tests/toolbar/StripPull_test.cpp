// The hand on the frame, on a stand-in for the strip.

#include "toolbar/docking/StripPull.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/Program.h"
#include "forms/Form.h"
#include "sim/World.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {
namespace {

using forms::MouseButton;
using Calls = std::vector<std::string>;

/// A strip at the top of the screen that notes what the hand asks of it.
struct HeldStrip final : forms::Form, PulledStrip {
  explicit HeldStrip(forms::WindowSystem& windows) : Form(windows, "frmHeld") {
    static_cast<void>(Load());
    Move(3000, 0, 1500, 300);
    Show();
  }
  forms::Form& AsForm() noexcept override { return *this; }
  StripShape Shape() const override { return {}; }
  TwipSize ButtonBox() const override { return {600, 285}; }
  void WatchHiding(bool) override {}
  bool ContentsVisible() const override { return true; }
  bool MenuUp() const override { return HasMenu; }
  void ResetMenu() override { Asked.emplace_back("ResetMenu"); }
  void DrawBorders() override {}
  void DrawDragLook() override { Asked.emplace_back("DrawDragLook"); }
  void EndSlide() override { Asked.emplace_back("EndSlide"); }
  void SetPointerWatch(bool) override {}

  Calls Asked;
  bool HasMenu = false;
};

/// The picture that shows the outline of a pull.
struct Outline final : CapturePort {
  void CaptureMenu() override {}
  void ReleaseMenu() override {}
  bool MenuCaptured() const override { return false; }
  void SetPicture1() override {}
  void ResetPicture1() override {}
  void SetPosition(Edge edge) override { At = edge; }
  void ClearBg() override { At.reset(); }
  std::optional<Edge> OutlineEdge() const override { return At; }
  std::optional<Edge> At;
};

struct PullDocking final : DockingPort {
  void RegisterAppBar() override {}
  void RemoveAppBar() override {}
  void EndAppBar() override {}
  bool AutoHideFree(Edge) override { return true; }
  void SetAppBar(std::optional<Edge> edge, bool) override { At = edge; }
  void RevealToolbar() override {}
  void HideToolbar() override {}
  void ShowAutoHideTaken() override {}
  void ResizeToEdge() override {}
  std::optional<Edge> At;
};

struct PullDesk {
  PullDesk() {
    TheProgram.Ports.Capture = &Picture;
    TheProgram.Ports.Docking = &Docking;
  }
  ~PullDesk() { Strip.Unload(); }

  sim::World World;
  Program TheProgram{World.Services(), World.Windows()};
  HeldStrip Strip{World.Windows()};
  Outline Picture;
  PullDocking Docking;
  StripPull Pull{PullPartsOf(TheProgram), Strip};
};

TEST(StripPull, APressHoldsTheFrameAndClosesTheMenu) {
  PullDesk desk;
  desk.Pull.MouseDown(MouseButton::Left, 700, 30);
  EXPECT_TRUE(desk.Pull.FrameHeld);
  EXPECT_EQ(desk.Strip.Asked, Calls{"ResetMenu"});
  EXPECT_EQ(desk.Pull.GrabX, 100);
  EXPECT_EQ(desk.Pull.GrabY, 30 - 285);
}

TEST(StripPull, MoreThanThreePixelsSlideTheStripAlongTheTop) {
  PullDesk desk;
  desk.Pull.MouseDown(MouseButton::Left, 700, 30);
  desk.Pull.MouseMove(MouseButton::Left, 745, 30);
  EXPECT_FALSE(desk.Pull.FrameMoved);
  EXPECT_EQ(desk.Strip.Left(), 3000);
  desk.Pull.MouseMove(MouseButton::Left, 760, 30);
  EXPECT_TRUE(desk.Pull.FrameMoved);
  EXPECT_EQ(desk.Strip.Left(), 3060);
  desk.Pull.MouseUp(MouseButton::Left);
  EXPECT_EQ(desk.Strip.Asked, (Calls{"ResetMenu", "DrawDragLook", "EndSlide"}));
  EXPECT_FALSE(desk.Pull.FrameHeld);
  EXPECT_FALSE(desk.Pull.FrameMoved);
}

TEST(StripPull, AMoveThatBeganElsewherePullsNothing) {
  PullDesk desk;
  desk.Pull.MouseMove(MouseButton::Left, 9000, 30);
  EXPECT_FALSE(desk.Pull.FrameMoved);
  EXPECT_EQ(desk.Strip.Left(), 3000);
}

TEST(StripPull, AwayFromTheTopItGoesToTheEdgeOfTheOutline) {
  PullDesk desk;
  desk.Pull.MouseDown(MouseButton::Left, 700, 30);
  desk.World.Desktop.MovePointer(10, 400);
  desk.Pull.MouseMove(MouseButton::Left, 700, 6000);
  EXPECT_EQ(desk.Picture.At, Edge::Left);
  EXPECT_EQ(desk.Docking.At, std::nullopt);
  desk.Pull.MouseUp(MouseButton::Left);
  EXPECT_EQ(desk.Docking.At, Edge::Left);
  EXPECT_EQ(desk.Picture.At, std::nullopt);
}

TEST(StripPull, WithAMenuUpAPressedPointerPullsNothing) {
  PullDesk desk;
  desk.Pull.MouseDown(MouseButton::Left, 700, 30);
  desk.Strip.HasMenu = true;
  desk.Pull.MouseMove(MouseButton::Left, 1000, 30);
  EXPECT_TRUE(desk.Pull.FrameDragging);
  EXPECT_FALSE(desk.Pull.FrameMoved);
  EXPECT_EQ(desk.Strip.Left(), 3000);
}

TEST(StripPull, APressThatIsLostEndsASlideAtOnce) {
  PullDesk desk;
  desk.Pull.MouseDown(MouseButton::Left, 700, 30);
  desk.Pull.MouseMove(MouseButton::Left, 1000, 30);
  desk.Pull.LosePress();
  EXPECT_FALSE(desk.Pull.FrameHeld);
  EXPECT_EQ(desk.Strip.Asked, (Calls{"ResetMenu", "DrawDragLook", "EndSlide"}));
  desk.Pull.LosePress();
  EXPECT_EQ(desk.Strip.Asked.size(), 3U);
}

TEST(StripPull, AReleaseThatNobodyTellsEndsASlideAfterItsGrace) {
  PullDesk desk;
  desk.Pull.MouseDown(MouseButton::Left, 700, 30);
  desk.Pull.MouseMove(MouseButton::Left, 1000, 30);
  desk.Pull.WatchPull();
  EXPECT_TRUE(desk.Pull.FrameHeld);
  desk.World.Desktop.Advance(AbandonWatch::kGrace + 1);
  desk.Pull.WatchPull();
  EXPECT_FALSE(desk.Pull.FrameHeld);
  EXPECT_EQ(desk.Strip.Asked.back(), "EndSlide");
}

TEST(StripPull, AnAbandonedPullMovesNothingAndTakesTheOutlineAway) {
  PullDesk desk;
  desk.Pull.MouseDown(MouseButton::Left, 700, 30);
  desk.World.Desktop.MovePointer(10, 400);
  desk.Pull.MouseMove(MouseButton::Left, 700, 6000);
  desk.Pull.AbandonPull();
  EXPECT_EQ(desk.Picture.At, std::nullopt);
  EXPECT_EQ(desk.Docking.At, std::nullopt);
  EXPECT_EQ(desk.Strip.Asked, Calls{"ResetMenu"});
  desk.Pull.MouseUp(MouseButton::Left);
  EXPECT_EQ(desk.Docking.At, std::nullopt);
}

TEST(StripPull, WhileTheStripIsBeingPlacedNobodyPullsIt) {
  PullDesk desk;
  desk.Pull.MouseDown(MouseButton::Left, 700, 30);
  desk.TheProgram.Guards.AppBarBusy = true;
  desk.Pull.MouseMove(MouseButton::Left, 1000, 30);
  EXPECT_FALSE(desk.Pull.FrameMoved);
  desk.TheProgram.Guards.AppBarBusy = false;
  desk.Pull.MouseMove(MouseButton::Left, 1000, 30);
  EXPECT_TRUE(desk.Pull.FrameMoved);
}

}  // namespace
}  // namespace corvelle
