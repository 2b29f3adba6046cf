#pragma once

// Scroll bars on every home. See ControlsContract.h.

#include "forms/ControlsContract.h"
#include "forms/ScrollBar.h"

namespace corvelle::forms {

class ScrollBarContract : public ControlsContract {
 protected:
  void SetUp() override {
    Bar.Move(150, 150, 255, 3000);
    Bar.SetRange({.Least = 0, .Most = 100, .Line = 2, .Page = 20, .Value = 50});
    Bar.Change = [this] { sheet_.Note("change " + std::to_string(Bar.Value())); };
    Bar.Scroll = [this] { sheet_.Note("scroll"); };
    Other.Move(3000, 150, 1200, 375);
    Show();
    height_ = ToPixels(0, Bar.Height(), sheet_.Screen()).y;
  }

  ScrollBar Bar{sheet_, "Bar"};
  CommandButton Other{sheet_, "Other"};
  int height_ = 0;
};

TEST_P(ScrollBarContract, TheArrowsMoveByLinesAndTheSpaceBesideTheThumbByPages) {
  Click(Bar, 8, height_ - 5);
  EXPECT_EQ(Bar.Value(), 52);
  Click(Bar, 8, 5);
  EXPECT_EQ(Bar.Value(), 50);
  Click(Bar, 8, height_ - 22);
  EXPECT_EQ(Bar.Value(), 70);
  Click(Bar, 8, 22);
  EXPECT_EQ(Bar.Value(), 50);
  EXPECT_EQ(sheet_.Seen, (Texts{"change 52", "change 50", "change 70", "change 50"}));
  EXPECT_FALSE(Bar.HasFocus()) << "it leaves the focus where it is";
}

TEST_P(ScrollBarContract, TheThumbIsDraggedAndTheEndOfItIsAChange) {
  home_->MovePointer(At(Bar, 8, height_ / 2));
  home_->Press(MouseButton::Left);
  home_->MovePointer(At(Bar, 8, height_ / 2 + 20));
  EXPECT_TRUE(sheet_.Saw("scroll"));
  const int dragged = Bar.Value();
  EXPECT_GT(dragged, 52);
  home_->Release(MouseButton::Left);
  EXPECT_EQ(sheet_.Seen.back(), "change " + std::to_string(Bar.Value()));
}

TEST_P(ScrollBarContract, TheProgramsChangesAreKeptBetweenTheEndsAndNotTold) {
  Bar.SetValue(500);
  EXPECT_EQ(Bar.Value(), 100);
  Click(Bar, 8, height_ - 5);
  EXPECT_EQ(Bar.Value(), 100);
  Bar.SetRange({.Least = 10, .Most = 5, .Value = 7});
  EXPECT_EQ(Bar.Value(), 10);
  EXPECT_EQ(sheet_.Seen, Texts{});
}

TEST_P(ScrollBarContract, TheWheelMovesThreeLinesANotch) {
  EXPECT_TRUE(Bar.TurnWheel(-120));
  EXPECT_EQ(Bar.Value(), 56);
  EXPECT_FALSE(Bar.TurnWheel(60)) << "half a notch";
  EXPECT_TRUE(Bar.TurnWheel(60));
  EXPECT_EQ(Bar.Value(), 50);
}

}  // namespace corvelle::forms
