#pragma once

// Tool tips on every home. See ControlsContract.h.

#include "forms/ComboBox.h"
#include "forms/ControlsContract.h"
#include "forms/Graphic.h"
#include "forms/TextBox.h"

namespace corvelle::forms {

class ToolTipContract : public ControlsContract {
 protected:
  static constexpr int kLong = 1200;  // more than any home waits

  void SetUp() override {
    Ok.Move(150, 150, 1500, 375);
    Ok.SetToolTip("Confirm Changes");
    Text.Move(150, 600, 3000, 315);
    Text.SetToolTip("A title");
    Entry.Move(150, 1050, 3000, 315);
    Entry.SetToolTip("A query");
    Left.Move(150, 1650, 900, 300);
    Left.SetToolTip("Select File");
    Right.Move(1200, 1650, 900, 300);
    Right.SetToolTip("Select Folder");
    Show();
  }
  std::string TipAfterRestOn(PixelPoint at) {
    home_->MovePointer(at);
    home_->Wait(kLong);
    return home_->ToolTip();
  }
  PixelPoint OnGraphic(const Graphic& graphic) {
    const PixelPoint corner = ToPixels(graphic.Left(), graphic.Top(), sheet_.Screen());
    return At(sheet_, corner.x + 8, corner.y + 8);
  }

  CommandButton Ok{sheet_, "Ok"};
  TextBox Text{sheet_, "Text"};
  ComboBox Entry{sheet_, "Entry", true};
  Label Left{sheet_, "Left"};
  Label Right{sheet_, "Right"};
};

TEST_P(ToolTipContract, ATipComesUpWhenThePointerRestsAndAPressTakesItAway) {
  home_->MovePointer(At(Ok, 8, 8));
  EXPECT_EQ(home_->ToolTip(), "");
  home_->Wait(kLong);
  EXPECT_EQ(home_->ToolTip(), "Confirm Changes");
  home_->Press(MouseButton::Left);
  EXPECT_EQ(home_->ToolTip(), "");
  home_->Release(MouseButton::Left);
  home_->Wait(kLong);
  EXPECT_EQ(home_->ToolTip(), "") << "until the pointer has been elsewhere";
  EXPECT_EQ(TipAfterRestOn(At(sheet_, 300, 280)), "");
  EXPECT_EQ(TipAfterRestOn(At(Ok, 12, 8)), "Confirm Changes");
}

TEST_P(ToolTipContract, EachControlHasItsOwn) {
  EXPECT_EQ(TipAfterRestOn(At(Text, 20, 8)), "A title");
  EXPECT_EQ(TipAfterRestOn(At(Entry, 20, 8)), "A query");
  EXPECT_EQ(TipAfterRestOn(At(sheet_, 300, 280)), "");
}

TEST_P(ToolTipContract, SoHaveControlsWithoutAWindow) {
  EXPECT_EQ(TipAfterRestOn(OnGraphic(Left)), "Select File");
  EXPECT_EQ(TipAfterRestOn(OnGraphic(Right)), "Select Folder");
  EXPECT_EQ(TipAfterRestOn(At(sheet_, 300, 280)), "");
  Right.SetEnabled(false);
  EXPECT_EQ(TipAfterRestOn(OnGraphic(Right)), "");
}

TEST_P(ToolTipContract, ADisabledControlShowsNone) {
  Ok.SetEnabled(false);
  EXPECT_EQ(TipAfterRestOn(At(Ok, 8, 8)), "");
}

TEST_P(ToolTipContract, ATipMayChangeOrGoAndOutlivesTheWindow) {
  Ok.SetToolTip("Another");
  EXPECT_EQ(TipAfterRestOn(At(Ok, 8, 8)), "Another");
  sheet_.Unload();
  Show();
  EXPECT_EQ(TipAfterRestOn(At(Ok, 12, 8)), "Another");
  EXPECT_EQ(TipAfterRestOn(OnGraphic(Left)), "Select File");
  Ok.SetToolTip("");
  EXPECT_EQ(TipAfterRestOn(At(Ok, 8, 8)), "");
}

}  // namespace corvelle::forms
