#pragma once

// Text boxes on every home. See ControlsContract.h.

#include "forms/ControlsContract.h"
#include "forms/TextBox.h"

namespace corvelle::forms {

class TextBoxContract : public ControlsContract {
 protected:
  void SetUp() override {
    Text.Move(150, 150, 3000, 315);
    Other.Move(150, 600, 3000, 315);
    Lines.Move(150, 1050, 3000, 900);
    Ok.Move(150, 2100, 1200, 375);
    Ok.SetCaption("&Ok");
    Ok.SetDefault(true);
    Ok.SetCancel(true);
    Ok.Click = [this] { sheet_.Note("ok"); };
    Text.Change = [this] { sheet_.Note("change " + Text.Text()); };
    Show();
    Text.SetFocus();
    Settle();
  }

  TextBox Text{sheet_, "Text"};
  TextBox Other{sheet_, "Other"};
  TextBox Lines{sheet_, "Lines", {.ManyLines = true}};
  CommandButton Ok{sheet_, "Ok"};
};

TEST_P(TextBoxContract, WhatIsTypedIsItsTextAndIsToldEachTime) {
  home_->Type("ok");
  EXPECT_EQ(Text.Text(), "ok");
  EXPECT_EQ(sheet_.Seen, (Texts{"change o", "change ok"})) << "no access key, no key of the form";
  home_->PressKey(key::Backspace);
  EXPECT_EQ(Text.Text(), "o");
}

TEST_P(TextBoxContract, WhatTheProgramSetsIsNotTold) {
  Text.SetText(
      "Gr\xC3\xB6\xC3\x9F"
      "e");
  EXPECT_EQ(Text.Text(),
            "Gr\xC3\xB6\xC3\x9F"
            "e");
  EXPECT_EQ(sheet_.Seen, Texts{});
  EXPECT_EQ(home_->Desktop().Text(Text.hWnd()), Text.Text());
}

TEST_P(TextBoxContract, ASetTextSelectsNothingAndCountsAsUtf16) {
  Text.SetText(
      "a\xF0\x9F\x98\x80"
      "b");
  EXPECT_EQ(Text.Selection(), (TextSelection{0, 0}));
  Text.SelectAll();
  EXPECT_EQ(Text.Selection(), (TextSelection{0, 4}));
  Text.Select({1, 2});
  home_->Type("x");
  EXPECT_EQ(Text.Text(), "axb");
}

TEST_P(TextBoxContract, ControlKeysCutCopyPasteUndoAndSelectAll) {
  Text.SetText("one two");
  home_->PressWith(key::Ctrl, 'A');
  EXPECT_EQ(Text.Selection(), (TextSelection{0, 7}));
  home_->PressWith(key::Ctrl, 'X');
  EXPECT_EQ(Text.Text(), "");
  Other.SetFocus();
  Settle();
  home_->PressWith(key::Ctrl, 'V');
  EXPECT_EQ(Other.Text(), "one two");
  Text.SetFocus();
  Settle();
  home_->PressWith(key::Ctrl, 'Z');
  EXPECT_EQ(Text.Text(), "one two");
  EXPECT_EQ(sheet_.Seen,
            (Texts{"key 17", "key 17", "change ", "key 17", "key 17", "change one two"}))
      << "the letters are not the form's";
}

TEST_P(TextBoxContract, ControlKeysOfOthersAreTheForms) {
  home_->PressWith(key::Ctrl, 'S');
  EXPECT_TRUE(sheet_.Saw("key 83"));
  EXPECT_EQ(Text.Text(), "");
}

TEST_P(TextBoxContract, ControlBackspaceDeletesAWord) {
  Text.SetText("one two  ");
  Text.Select({9, 0});
  home_->PressWith(key::Ctrl, key::Backspace);
  EXPECT_EQ(Text.Text(), "one ");
  home_->PressWith(key::Ctrl, key::Backspace);
  home_->PressWith(key::Ctrl, key::Backspace);
  EXPECT_EQ(Text.Text(), "");
}

TEST_P(TextBoxContract, TheTabKeySelectsAllAndGoesOn) {
  Other.SetText("all");
  home_->PressKey(key::Tab);
  EXPECT_TRUE(Other.HasFocus());
  EXPECT_EQ(Other.Selection(), (TextSelection{0, 3}));
  home_->Type("x");
  EXPECT_EQ(Other.Text(), "x");
}

TEST_P(TextBoxContract, EnterAndEscPressTheButtonsButNotInManyLines) {
  home_->PressKey(key::Enter);
  home_->PressKey(key::Escape);
  EXPECT_EQ(sheet_.Seen, (Texts{"ok", "ok"}));
  sheet_.Seen.clear();
  Lines.SetFocus();
  Settle();
  home_->Type("a");
  home_->PressKey(key::Enter);
  home_->Type("b");
  EXPECT_EQ(Lines.Text(), "a\r\nb");
  EXPECT_EQ(sheet_.Seen, Texts{});
}

TEST_P(TextBoxContract, AFormWithKeyPreviewMaySwallowWhatIsTyped) {
  sheet_.SetKeyPreview(true);
  sheet_.WhenKey = [](int key) { return key == 'Y' || key == 'z'; };
  home_->Type("xyz");
  EXPECT_EQ(Text.Text(), "x") << "by its key, and by its character";
}

TEST_P(TextBoxContract, AReadOnlyOneTakesNothingAndALimitCuts) {
  Text.SetText("read");
  Text.SetReadOnly(true);
  home_->Type("x");
  home_->PressWith(key::Ctrl, key::Backspace);
  home_->PressKey(key::Delete);
  EXPECT_EQ(Text.Text(), "read");
  Text.SetReadOnly(false);
  Text.SetText("");
  Text.SetLimit(2);
  home_->Type("abc");
  EXPECT_EQ(Text.Text(), "ab");
}

TEST_P(TextBoxContract, TheHandlerOfAChangeMayEndTheForm) {
  Text.Change = [this] { sheet_.Unload(); };
  home_->Type("x");
  EXPECT_FALSE(sheet_.IsLoaded());
  EXPECT_EQ(Text.Text(), "x");
}

TEST_P(TextBoxContract, TheTextOutlivesItsWindow) {
  home_->Type("kept");
  sheet_.Unload();
  EXPECT_EQ(Text.Text(), "kept");
  Show();
  EXPECT_EQ(home_->Desktop().Text(Text.hWnd()), "kept");
}

}  // namespace corvelle::forms
