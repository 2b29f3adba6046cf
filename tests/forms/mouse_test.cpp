#include <gtest/gtest.h>

#include <memory>

#include "TestForm.h"
#include "forms/Graphic.h"
#include "sim/World.h"

namespace corvelle::forms {
namespace {

/// The form stands at pixel (100, 100) and is 200 by 100; its box is hidden.
struct MouseTest : testing::Test {
  sim::World World;
  TestForm Form{World.Windows()};
  Label First{Form, "First"};
  Label Second{Form, "Second"};
  Texts Seen;

  MouseTest() {
    Form.Box.SetVisible(false);
    First.Move(150, 150, 600, 300);
    Second.Move(150, 600, 600, 300);
    Follow("form", Form);
    Follow("first", First);
    Follow("second", Second);
    Form.Show();
    Seen.clear();
  }

  [[nodiscard]] sim::SimDesktop& Desktop() { return World.Desktop; }

  template <class T>
  void Follow(const std::string& name, T& control) {
    const auto note = [this, name](const char* what) {
      return [this, name, what](MouseButton button, ShiftState, float x, float y) {
        Seen.push_back(name + " " + what + " " + std::to_string(static_cast<unsigned>(button)) +
                       " " + std::to_string(static_cast<int>(x)) + "," +
                       std::to_string(static_cast<int>(y)));
      };
    };
    control.MouseDown = note("down");
    control.MouseMove = note("move");
    control.MouseUp = note("up");
    control.DblClick = [this, name] { Seen.push_back(name + " double"); };
  }
};

TEST_F(MouseTest, AControlGetsThePointFromItsOwnCorner) {
  Desktop().MovePointer(112, 113);
  EXPECT_EQ(Seen, Texts{"first move 0 30,45"});
}

TEST_F(MouseTest, BesideAllControlsTheSurfaceGetsIt) {
  Desktop().MovePointer(101, 102);
  EXPECT_EQ(Seen, Texts{"form move 0 15,30"});
}

TEST_F(MouseTest, RightAndBottomSidesBelongToNobody) {
  Desktop().MovePointer(149, 129);
  Desktop().MovePointer(150, 129);
  Desktop().MovePointer(149, 130);
  EXPECT_EQ(Seen, (Texts{"first move 0 585,285", "form move 0 750,435", "form move 0 735,450"}));
}

TEST_F(MouseTest, ThePressedControlGetsMovesAndReleaseOutsideItAndOutsideTheWindow) {
  Desktop().MovePointer(110, 110);
  Seen.clear();
  Desktop().Press();
  Desktop().MovePointer(110, 140);
  Desktop().MovePointer(50, 50);
  Desktop().Release();
  Desktop().MovePointer(110, 140);
  EXPECT_EQ(Seen, (Texts{"first down 1 0,0", "first move 1 0,450", "first move 1 -900,-900",
                         "first up 1 -900,-900", "second move 0 0,0"}));
}

TEST_F(MouseTest, ThePressedSurfaceKeepsTheMouseOverItsControls) {
  Desktop().MovePointer(105, 105);
  Desktop().Press();
  Seen.clear();
  Desktop().MovePointer(110, 110);
  Desktop().Release();
  EXPECT_EQ(Seen, (Texts{"form move 1 150,150", "form up 1 150,150"}));
}

TEST_F(MouseTest, TheCaptureLastsUntilAllButtonsAreUp) {
  Desktop().MovePointer(110, 110);
  Desktop().Press(MouseButton::Left);
  Desktop().MovePointer(110, 140);
  Seen.clear();
  Desktop().Press(MouseButton::Right);
  Desktop().Release(MouseButton::Left);
  Desktop().MovePointer(111, 140);
  Desktop().Release(MouseButton::Right);
  Desktop().MovePointer(110, 140);
  EXPECT_EQ(Seen, (Texts{"first down 2 0,450", "first up 1 0,450", "first move 2 15,450",
                         "first up 2 15,450", "second move 0 0,0"}));
}

TEST_F(MouseTest, TheSecondPressOfADoubleClickIsADoubleClickAndThenARelease) {
  Desktop().MovePointer(110, 110);
  Seen.clear();
  Desktop().DoubleClick();
  EXPECT_EQ(Seen, (Texts{"first down 1 0,0", "first up 1 0,0", "first double", "first up 1 0,0"}));
}

TEST_F(MouseTest, ADoubleClickCapturesAsAPress) {
  Desktop().MovePointer(110, 110);
  First.DblClick = [&] { Desktop().MovePointer(110, 140); };
  Seen.clear();
  Desktop().DoubleClick();
  EXPECT_EQ(Seen, (Texts{"first down 1 0,0", "first up 1 0,0", "first move 1 0,450",
                         "first up 1 0,450"}));
}

TEST_F(MouseTest, TwoClicksAreNoDoubleClick) {
  Desktop().MovePointer(110, 110);
  Seen.clear();
  Desktop().Click();
  Desktop().Click();
  EXPECT_EQ(Seen,
            (Texts{"first down 1 0,0", "first up 1 0,0", "first down 1 0,0", "first up 1 0,0"}));
}

TEST_F(MouseTest, ADisabledControlLetsTheMouseThrough) {
  First.SetEnabled(false);
  Desktop().MovePointer(110, 110);
  EXPECT_EQ(Seen, Texts{"form move 0 150,150"});
}

TEST_F(MouseTest, AnInvisibleControlLetsTheMouseThrough) {
  First.SetVisible(false);
  Desktop().MovePointer(110, 110);
  EXPECT_EQ(Seen, Texts{"form move 0 150,150"});
}

TEST_F(MouseTest, ShapesAndLinesLetTheMouseThroughToWhatLiesBehind) {
  Shape bar(Form, "Bar");
  bar.Move(0, 0, 3000, 1500);
  Line line(Form, "Line");
  line.SetPoints(0, 150, 3000, 150);
  Desktop().MovePointer(110, 110);
  EXPECT_EQ(Seen, Texts{"first move 0 0,0"});
}

TEST_F(MouseTest, TheFrontmostOfTwoOverlappingControlsGetsIt) {
  Second.Move(150, 150, 600, 300);
  Desktop().MovePointer(110, 110);
  First.ZOrder(ZPlace::Front);
  Desktop().MovePointer(111, 110);
  First.ZOrder(ZPlace::Back);
  Desktop().MovePointer(110, 110);
  EXPECT_EQ(Seen, (Texts{"second move 0 0,0", "first move 0 15,0", "second move 0 0,0"}));
}

TEST_F(MouseTest, HidingThePressedControlDropsItsCapture) {
  Desktop().MovePointer(110, 110);
  Desktop().Press();
  First.SetVisible(false);
  Seen.clear();
  Desktop().MovePointer(110, 140);
  Desktop().Release();
  EXPECT_EQ(Seen, (Texts{"second move 1 0,0", "second up 1 0,0"}));
}

TEST_F(MouseTest, AControlMayBeDestroyedInItsOwnPress) {
  auto third = std::make_unique<Label>(Form, "Third");
  third->Move(150, 150, 600, 300);
  third->MouseDown = [&](MouseButton, ShiftState, float, float) {
    third.reset();
    Seen.emplace_back("gone");
  };
  Desktop().MovePointer(110, 110);
  Seen.clear();
  Desktop().Click();
  EXPECT_EQ(Seen, (Texts{"gone", "first up 1 0,0"}));
}

TEST_F(MouseTest, HidingThePressedWindowEndsTheCapture) {
  Desktop().MovePointer(110, 110);
  Desktop().Press();
  Form.Hide();
  Seen.clear();
  Desktop().MovePointer(120, 120);
  Desktop().Release();
  EXPECT_EQ(Seen, Texts{});
  Form.Show();
  Desktop().MovePointer(110, 140);
  EXPECT_EQ(Seen.back(), "second move 0 0,0");
}

TEST_F(MouseTest, AReleaseThatGotLostIsMadeUpForByTheNextMove) {
  Desktop().MovePointer(110, 110);
  Desktop().Answer(msgbox::AnswerOk);
  First.MouseDown = [&](MouseButton, ShiftState, float, float) {
    World.Windows().ShowMessage(Form.hWnd(), "text", "title", msgbox::Ok);
  };
  Desktop().WhileBoxIsUp([&](const sim::MessageBox&) { Desktop().Release(); });
  Desktop().Press();
  Seen.clear();
  Desktop().MovePointer(110, 140);
  EXPECT_EQ(Seen, Texts{"second move 0 0,0"});
}

TEST_F(MouseTest, AReleaseThatGotLostIsMadeUpForByTheNextPress) {
  Desktop().MovePointer(110, 110);
  Desktop().Press();
  Form.Hide();
  Desktop().MovePointer(110, 140);
  Desktop().Release();
  Form.Show();
  Seen.clear();
  Desktop().Press();
  EXPECT_EQ(Seen.front(), "second down 1 0,0");
}

TEST_F(MouseTest, PointsAreRelativeToTheInsideOfABorderedForm) {
  TestForm bordered(World.Windows(), BorderStyle::Raised, "Bordered");
  bordered.Box.SetVisible(false);
  bordered.Move(7500, 7500, 3000, 1500);
  Follow("bordered", bordered);
  bordered.Show();
  Desktop().MovePointer(503, 504);
  EXPECT_EQ(Seen, Texts{"bordered move 0 0,15"});
}

TEST_F(MouseTest, ABoxGetsItsOwnMouse) {
  Form.Box.SetVisible(true);
  Follow("box", Form.Box);
  Form.Box.Move(1500, 0, 750, 750);
  Desktop().MovePointer(201, 101);
  EXPECT_EQ(Seen, Texts{"box move 0 15,15"});
}

TEST_F(MouseTest, InputMadeInsideAHandlerArrivesWhenEventsAreLetThrough) {
  Desktop().MovePointer(110, 110);
  Texts order;
  Second.MouseMove = [&](MouseButton, ShiftState, float, float) { order.emplace_back("second"); };
  First.MouseDown = [&](MouseButton, ShiftState, float, float) {
    Desktop().Release();
    Desktop().MovePointer(110, 140);
    order.emplace_back("moved");
    World.Windows().DoEvents();
    order.emplace_back("let through");
  };
  Desktop().Press();
  EXPECT_EQ(order, (Texts{"moved", "second", "let through"}));
}

TEST_F(MouseTest, ADisabledFormGetsNoMouse) {
  Form.SetEnabled(false);
  Desktop().ClickAt(110, 110);
  EXPECT_EQ(Seen, Texts{});
}

}  // namespace
}  // namespace corvelle::forms
