#pragma once

// Picture boxes in the Tab order and as containers, on every home. See ControlsContract.h.

#include "forms/ControlsContract.h"

namespace corvelle::forms {

class PictureContract : public ControlsContract {
 protected:
  void SetUp() override {
    Ok.Move(150, 150, 1200, 375);
    Sheet.Move(150, 750, 2400, 1500);
    Sheet.SetTabStop(true);
    Sheet.SetWants({.Arrows = true});
    Holder.Move(3000, 150, 2400, 1500);
    Inside.Move(150, 150, 1200, 375);
    Inside.Click = [this] { sheet_.Note("inside"); };
    Show();
    Ok.SetFocus();
    Settle();
    sheet_.Seen.clear();
  }

  CommandButton Ok{sheet_, "Ok"};
  PictureBox Sheet{sheet_, "CorvelleSheet"};
  PictureBox Holder{sheet_, "CorvelleHolder"};
  CommandButton Inside{Holder, "Inside"};
};

TEST_P(PictureContract, TheTabKeyStopsAtAPictureThatWantsItAndInsideAHolder) {
  home_->PressKey(key::Tab);
  EXPECT_TRUE(Sheet.HasFocus());
  home_->PressKey(key::Tab);
  EXPECT_TRUE(Inside.HasFocus()) << "a holder takes no focus";
  home_->PressKey(key::Tab);
  EXPECT_TRUE(Ok.HasFocus());
}

TEST_P(PictureContract, APressGivesAPictureTheFocusAndItsKeysComeToIt) {
  Sheet.MouseDown = [this](MouseButton, ShiftState, float, float) {
    sheet_.Note(Sheet.HasFocus() ? "pressed with focus" : "pressed");
  };
  Click(Sheet);
  EXPECT_EQ(sheet_.Seen, Texts{"pressed with focus"});
  sheet_.Seen.clear();
  Sheet.KeyDown = [this](int keyCode, ShiftState) {
    sheet_.Note("own " + std::to_string(keyCode));
    return keyCode == key::Down;
  };
  home_->PressKey(key::Down);
  home_->PressKey(key::Home);
  EXPECT_EQ(sheet_.Seen, (Texts{"own 40", "own 36", "key 36"}));
}

TEST_P(PictureContract, AControlInAHolderIsPressedWhereItIsSeen) {
  Click(Inside);
  EXPECT_EQ(sheet_.Seen, Texts{"inside"});
  Holder.SetVisible(false);
  Settle();
  Click(Inside);
  EXPECT_EQ(sheet_.Seen, Texts{"inside"});
}

TEST_P(PictureContract, APressOnAPictureThatIsHiddenIsLost) {
  Sheet.CaptureLost = [this] { sheet_.Note("lost"); };
  home_->MovePointer(At(Sheet, 10, 10));
  home_->Press(MouseButton::Left);
  Sheet.SetVisible(false);
  Settle();
  EXPECT_EQ(sheet_.Seen, Texts{"lost"});
}

}  // namespace corvelle::forms
