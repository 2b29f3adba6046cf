#pragma once

// Where the focus goes when windows come and go, on every home. See ControlsContract.h.

#include "forms/ControlsContract.h"
#include "forms/TabStrip.h"
#include "forms/TextBox.h"

namespace corvelle::forms {

/// A sheet with two pages on a tab strip, each a picture box that holds controls, and a second
/// form.
class FocusContract : public ControlsContract {
 protected:
  void SetUp() override {
    Tabs.Move(150, 150, 4500, 3000);
    Tabs.Add("one", "One");
    Tabs.Add("two", "Two");
    for (PictureBox* page : {&First, &Second}) page->Move(120, 450, 4200, 2400);
    Title.Move(150, 150, 2400, 315);
    Place.Move(150, 600, 2400, 315);
    Shown.Move(150, 150, 2400, 315);
    Shown.Click = [this] { sheet_.Note("shown"); };
    Second.SetVisible(false);
    Tabs.Click = [this] {
      First.SetVisible(Tabs.Selected() == "one");
      Second.SetVisible(Tabs.Selected() == "two");
    };
    Ok.Move(150, 3500, 1200, 375);
    Other.Move(9600, 2250, 3000, 1500);
    Show();
    Place.SetFocus();
    Settle();
    ASSERT_TRUE(Place.HasFocus());
  }
  void TearDown() override {
    Other.Unload();
    ControlsContract::TearDown();
  }

  TabStrip Tabs{sheet_, "Tabs"};
  PictureBox First{Tabs, "CorvelleFirst"};
  PictureBox Second{Tabs, "CorvelleSecond"};
  TextBox Title{First, "Title"};
  TextBox Place{First, "Place"};
  CheckBox Shown{Second, "Shown"};
  CommandButton Ok{sheet_, "Ok"};
  ControlSheet Other{home_->Windows()};
};

TEST_P(FocusContract, ItComesBackToTheControlWhenTheFormIsActiveAgain) {
  Other.Show();
  home_->Wait(100);
  EXPECT_FALSE(Place.HasFocus());
  sheet_.SetForeground();
  home_->Wait(100);
  EXPECT_TRUE(Place.HasFocus());
  home_->Type("a");
  EXPECT_EQ(Place.Text(), "a");
}

TEST_P(FocusContract, ItComesBackToTheControlWhenAModalFormGoes) {
  Other.ShowModalTo(sheet_);
  home_->Wait(100);
  EXPECT_FALSE(Place.HasFocus());
  Other.Unload();
  home_->Wait(100);
  EXPECT_TRUE(Place.HasFocus());
  home_->Type("a");
  EXPECT_EQ(Place.Text(), "a");
}

TEST_P(FocusContract, TheOwnerOfAModalFormIsInFrontAgainThoughAnotherFormLiesBetween) {
  ControlSheet between(home_->Windows());
  between.Move(6000, 6000, 3000, 1500);
  between.Show();
  home_->Wait(100);
  Other.ShowModalTo(sheet_);
  home_->Wait(100);
  Other.Unload();
  home_->Wait(100);
  EXPECT_EQ(home_->Desktop().ActiveWindow(), sheet_.hWnd());
  EXPECT_TRUE(Place.HasFocus());
  between.Unload();
}

TEST_P(FocusContract, ControlsOfAPageWorkAndThoseOfAHiddenPageAreSkipped) {
  Title.SetFocus();
  Settle();
  home_->Type("t");
  EXPECT_EQ(Title.Text(), "t");
  home_->PressKey(key::Tab);
  EXPECT_TRUE(Place.HasFocus());
  home_->PressKey(key::Tab);
  EXPECT_TRUE(Ok.HasFocus()) << "not in the hidden page";
  home_->PressKey(key::Tab);
  EXPECT_TRUE(Tabs.HasFocus());
}

TEST_P(FocusContract, ItGoesToTheTabsWhenThePageThatHasItIsHidden) {
  home_->PressWith(key::Ctrl, key::Tab);
  EXPECT_EQ(Tabs.Selected(), "two");
  EXPECT_FALSE(Place.HasFocus());
  EXPECT_TRUE(Tabs.HasFocus());
  sheet_.Seen.clear();
  Click(Shown);
  EXPECT_EQ(sheet_.Seen, Texts{"shown"});
  EXPECT_TRUE(Shown.HasFocus());
  home_->PressWith(key::Ctrl, key::PageUp);
  home_->PressKey(key::Tab);
  home_->Type("x");
  EXPECT_EQ(Title.Text(), "x");
}

TEST_P(FocusContract, AControlThatIsDisabledOrHiddenHandsItOn) {
  Ok.LostFocus = [this] { sheet_.Note("lost"); };
  Ok.SetFocus();
  Settle();
  Ok.SetEnabled(false);
  Settle();
  EXPECT_EQ(sheet_.Seen, Texts{"lost"});
  EXPECT_TRUE(Tabs.HasFocus()) << "round the end";
  Ok.SetEnabled(true);
  Ok.SetFocus();
  Settle();
  Ok.SetVisible(false);
  Settle();
  EXPECT_TRUE(Tabs.HasFocus());
  Title.SetFocus();
  Settle();
  Title.SetEnabled(false);
  Settle();
  EXPECT_TRUE(Place.HasFocus());
}

}  // namespace corvelle::forms
