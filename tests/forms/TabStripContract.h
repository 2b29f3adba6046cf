#pragma once

// Tab strips on every home. See ControlsContract.h.

#include "forms/ControlsContract.h"
#include "forms/TabStrip.h"

namespace corvelle::forms {

class TabStripContract : public ControlsContract {
 protected:
  void SetUp() override {
    Tabs.Move(150, 150, 4500, 3000);
    for (const char* key : {"item", "buttons", "position"})
      Tabs.Add(key, std::string("Tab ") + key);
    Tabs.Click = [this] { sheet_.Note(Tabs.Selected()); };
    Ok.Move(150, 3500, 1200, 375);
    Show();
  }
  void ClickTab(int tab) {
    const PixelRect place = Tabs.TabRect(tab);
    Click(Tabs, (place.left + place.right) / 2, (place.top + place.bottom) / 2);
  }

  TabStrip Tabs{sheet_, "Tabs"};
  CommandButton Ok{sheet_, "Ok"};
};

TEST_P(TabStripContract, TheFirstTabIsChosenAndAClickChoosesAnother) {
  EXPECT_EQ(Tabs.Selected(), "item");
  ClickTab(1);
  ClickTab(1);
  EXPECT_EQ(Tabs.Selected(), "buttons");
  EXPECT_EQ(sheet_.Seen, Texts{"buttons"});
  ClickTab(2);
  EXPECT_EQ(Tabs.Selected(), "position");
}

TEST_P(TabStripContract, TheProgramsChoiceIsNotTold) {
  Tabs.Select("position");
  Tabs.Select("no such tab");
  EXPECT_EQ(Tabs.Selected(), "position");
  EXPECT_EQ(sheet_.Seen, Texts{});
  ClickTab(0);
  EXPECT_EQ(sheet_.Seen, Texts{"item"});
}

TEST_P(TabStripContract, ControlTabAndPageKeysChangeTheTabFromAnywhere) {
  Ok.SetFocus();
  Settle();
  home_->PressWith(key::Ctrl, key::Tab);
  EXPECT_EQ(Tabs.Selected(), "buttons");
  home_->PressWith(key::Ctrl, key::PageDown);
  EXPECT_EQ(Tabs.Selected(), "position");
  home_->PressWith(key::Ctrl, key::Tab);
  EXPECT_EQ(Tabs.Selected(), "item") << "round the end";
  home_->PressWith(key::Ctrl, key::PageUp);
  EXPECT_EQ(Tabs.Selected(), "position");
  EXPECT_TRUE(Ok.HasFocus());
}

TEST_P(TabStripContract, ArrowsChangeTheTabWithTheFocus) {
  Tabs.SetFocus();
  Settle();
  home_->PressKey(key::Right);
  EXPECT_EQ(Tabs.Selected(), "buttons");
  home_->PressKey(key::Left);
  EXPECT_EQ(sheet_.Seen, (Texts{"buttons", "item"}));
}

TEST_P(TabStripContract, ATabMayRefuseToBeLeft) {
  bool may = false;
  Tabs.Leaving = [&] { return may; };
  ClickTab(1);
  home_->PressWith(key::Ctrl, key::Tab);
  EXPECT_EQ(Tabs.Selected(), "item");
  may = true;
  home_->Wait(700);
  ClickTab(1);
  EXPECT_EQ(Tabs.Selected(), "buttons");
}

TEST_P(TabStripContract, APageLiesBelowTheTabs) {
  const PixelRect page = Tabs.PageRect();
  EXPECT_GE(page.top, Tabs.TabRect(0).bottom);
  EXPECT_GT(page.Height(), 100);
  EXPECT_GT(page.Width(), 200);
}

TEST_P(TabStripContract, TheTabsOutliveTheirWindow) {
  Tabs.Select("buttons");
  sheet_.Unload();
  Show();
  EXPECT_EQ(Tabs.Selected(), "buttons");
  ClickTab(2);
  EXPECT_EQ(Tabs.Selected(), "position");
}

}  // namespace corvelle::forms
