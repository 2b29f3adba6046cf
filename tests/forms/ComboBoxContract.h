#pragma once

// Combo boxes on every home. See ControlsContract.h.

#include "forms/ComboBox.h"
#include "forms/ControlsContract.h"

namespace corvelle::forms {

class ComboBoxContract : public ControlsContract {
 protected:
  void SetUp() override {
    float top = 150;
    for (ComboBox* box : {&Entry, &Choice}) {
      box->Move(150, top, 3000, 315);
      top += 600;
      for (const char* text : {"alpha", "beta", "gamma"}) box->Add(text);
      box->Click = [this, box] {
        sheet_.Note(box->Name() + " " + std::to_string(box->Selected()));
      };
      box->Change = [this, box] { sheet_.Note(box->Name() + " " + box->Text()); };
      box->DropDown = [this, box] { sheet_.Note(box->IsDropped() ? "down" : "up"); };
    }
    Ok.Move(150, 3000, 1200, 375);
    Ok.SetDefault(true);
    Ok.SetCancel(true);
    Ok.Click = [this] { sheet_.Note("ok"); };
    Show();
  }
  void FocusOn(Window& box) {
    box.SetFocus();
    Settle();
  }

  ComboBox Entry{sheet_, "Entry", true};
  ComboBox Choice{sheet_, "Choice", false};
  CommandButton Ok{sheet_, "Ok"};
};

TEST_P(ComboBoxContract, WhatIsTypedIsTheTextOfTheEntry) {
  FocusOn(Entry);
  EXPECT_TRUE(Entry.HasFocus());
  home_->Type("ab");
  EXPECT_EQ(Entry.Text(), "ab");
  EXPECT_EQ(Entry.Selected(), -1);
  EXPECT_EQ(sheet_.Seen, (Texts{"Entry a", "Entry ab"}));
}

TEST_P(ComboBoxContract, AnArrowChoosesARow) {
  FocusOn(Choice);
  home_->PressKey(key::Down);
  home_->PressKey(key::Down);
  EXPECT_EQ(Choice.Text(), "beta");
  EXPECT_EQ(sheet_.Seen, (Texts{"Choice 0", "Choice 1"}));
  home_->Type("g");
  EXPECT_EQ(Choice.Selected(), 2);
}

TEST_P(ComboBoxContract, WhatTheProgramDoesIsNotTold) {
  Entry.SetText("own");
  EXPECT_EQ(Entry.Text(), "own");
  Entry.Select(1);
  EXPECT_EQ(Entry.Text(), "beta");
  Choice.Select(2);
  Choice.Insert(0, "new");
  EXPECT_EQ(Choice.Selected(), 3);
  EXPECT_EQ(Choice.Text(), "gamma");
  Choice.Remove(3);
  EXPECT_EQ(Choice.Selected(), -1);
  EXPECT_EQ(Choice.Text(), "");
  Entry.Clear();
  EXPECT_EQ(Entry.Text(), "");
  EXPECT_EQ(sheet_.Seen, Texts{});
  EXPECT_EQ(home_->Desktop().Text(Entry.hWnd()), "");
}

TEST_P(ComboBoxContract, AnOpenListHasEnterAndEscToItself) {
  FocusOn(Choice);
  home_->PressKey(key::F4);
  EXPECT_TRUE(Choice.IsDropped());
  home_->PressKey(key::Escape);
  EXPECT_FALSE(Choice.IsDropped());
  home_->PressKey(key::F4);
  home_->PressKey(key::Down);
  home_->PressKey(key::Enter);
  EXPECT_FALSE(Choice.IsDropped());
  EXPECT_EQ(Choice.Selected(), 0);
  EXPECT_FALSE(sheet_.Saw("ok"));
  home_->PressKey(key::Enter);
  EXPECT_TRUE(sheet_.Saw("ok"));
  sheet_.Seen.clear();
  home_->PressKey(key::Escape);
  EXPECT_TRUE(sheet_.Saw("ok"));
}

TEST_P(ComboBoxContract, EnterAndEscInAnEntryAreTheForms) {
  FocusOn(Entry);
  home_->Type("x");
  Entry.KeyPress = [this](char32_t character) {
    if (character == 13) sheet_.Note("enter");
    return false;
  };
  home_->PressKey(key::Enter);
  EXPECT_EQ(sheet_.Seen, (Texts{"Entry x", "ok", "enter"}));
}

TEST_P(ComboBoxContract, TheTabKeySelectsTheEntryAndTheFocusIsToldOnce) {
  FocusOn(Ok);
  Entry.SetText("old");
  Entry.GotFocus = [this] { sheet_.Note("got"); };
  Entry.LostFocus = [this] { sheet_.Note("lost"); };
  home_->PressKey(key::Tab);
  home_->Type("n");
  EXPECT_EQ(Entry.Text(), "n");
  home_->PressKey(key::Tab);
  EXPECT_EQ(sheet_.Seen, (Texts{"got", "Entry n", "lost"}));
  EXPECT_TRUE(Choice.HasFocus());
}

TEST_P(ComboBoxContract, AClickOpensTheListOfOneWithoutAnEntry) {
  Click(Choice, 10, 8);
  EXPECT_TRUE(Choice.IsDropped());
  home_->PressKey(key::Escape);
  EXPECT_FALSE(Choice.IsDropped());
  EXPECT_EQ(sheet_.Seen, (Texts{"down", "up"}));
}

}  // namespace corvelle::forms
