#pragma once

// What the controls of a form do on every home, as a user of the toolkit sees it. A test program
// includes this header once and instantiates the suites with its own homes.

#include <functional>
#include <string>
#include <vector>

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/InputContract.h"
#include "forms/OptionButton.h"
#include "forms/PictureBox.h"
#include "forms/Scale.h"

namespace corvelle::forms {

using Texts = std::vector<std::string>;

/// A form whose controls a test makes; it notes its keys.
class ControlSheet : public Form {
 public:
  explicit ControlSheet(WindowSystem& windows) : Form(windows, "CorvelleControls") {
    Move(3000, 2250, 6000, 4500);
  }

  Texts Seen;
  std::function<bool(int)> WhenKey;  // true swallows it

  void Note(const std::string& what) { Seen.push_back(what); }
  [[nodiscard]] bool Saw(const std::string& what) const {
    return std::find(Seen.begin(), Seen.end(), what) != Seen.end();
  }

 protected:
  void Form_KeyDown(int keyCode, ShiftState) override {
    Note("key " + std::to_string(keyCode));
    if (WhenKey && WhenKey(keyCode)) SwallowKey();
  }
  void Form_KeyPress(char32_t character) override {
    Note("char " + std::to_string(static_cast<unsigned>(character)));
    if (WhenKey && WhenKey(static_cast<int>(character))) SwallowKey();
  }
};

/// A sheet in front of the user. Controls are made by the test before Show.
class ControlsContract : public testing::TestWithParam<InputHomeFactory> {
 protected:
  std::unique_ptr<InputHome> home_ = GetParam()();
  ControlSheet sheet_{home_->Windows()};

  [[nodiscard]] WindowSystem& Windows() { return home_->Windows(); }
  void Settle() { home_->Wait(60); }
  void Show() {
    home_->MovePointer({700, 600});
    ASSERT_TRUE(sheet_.Load());
    sheet_.SetWindowPos(InsertAfter::Topmost, swp::KeepActivation);
    sheet_.Show();
    home_->Wait(200);
    sheet_.Seen.clear();
  }
  /// A point of a window in pixels of the screen.
  PixelPoint At(const Window& window, int x, int y) {
    const ScreenInfo screen = sheet_.Screen();
    float left = 0;
    float top = 0;
    for (const Window* at = &window; at != nullptr; at = at->Container()) {
      left += at->Left();
      top += at->Top();
    }
    const PixelPoint corner = ToPixels(left, top, screen);
    return {corner.x + x, corner.y + y};
  }
  void Click(const Window& window, int x = 8, int y = 8) {
    home_->MovePointer(At(window, x, y));
    home_->Press(MouseButton::Left);
    home_->Release(MouseButton::Left);
  }
  void TearDown() override {
    home_->Release(MouseButton::Left);
    home_->Release(MouseButton::Right);
    sheet_.Unload();
  }
};

// Buttons, check boxes, options, frames.

class ButtonsContract : public ControlsContract {
 protected:
  void SetUp() override {
    Go.Move(150, 150, 1500, 375);
    Go.SetCaption("&Go");
    Go.Click = [this] { sheet_.Note("go"); };
    Tick.Move(150, 600, 1500, 300);
    Tick.SetCaption("&Tick");
    Tick.Click = [this] { sheet_.Note("tick"); };
    Box.Move(1800, 150, 3000, 1500);
    Box.SetCaption("&Frame");
    float top = 300;
    for (OptionButton* option : {&One, &Two, &Three}) {
      option->Move(150, top, 1500, 300);
      option->SetCaption(option->Name());
      option->Click = [this, option] { sheet_.Note(option->Name()); };
      top += 300;
    }
    Show();
  }

  CommandButton Go{sheet_, "Go"};
  CheckBox Tick{sheet_, "Tick"};
  Frame Box{sheet_, "Box"};
  OptionButton One{Box, "O&ne"};
  OptionButton Two{Box, "T&wo"};
  OptionButton Three{Box, "Thr&ee"};
};

TEST_P(ButtonsContract, AClickPressesAndTakesTheFocus) {
  Click(Tick);
  EXPECT_EQ(sheet_.Seen, Texts{"tick"});
  EXPECT_EQ(Tick.Value(), 1);
  EXPECT_TRUE(Tick.HasFocus());
  Click(Go);
  EXPECT_EQ(sheet_.Seen, (Texts{"tick", "go"}));
  EXPECT_TRUE(Go.HasFocus());
  EXPECT_FALSE(Tick.HasFocus());
}

TEST_P(ButtonsContract, AControlInAFrameIsPressedAndTheFrameTakesNoFocus) {
  Click(Two);
  EXPECT_EQ(sheet_.Seen, Texts{"T&wo"});
  EXPECT_TRUE(Two.Value());
  Click(Box, 150, 4);
  EXPECT_TRUE(Two.HasFocus());
}

TEST_P(ButtonsContract, AtMostOneOptionOfAFrameIsChosenAndTheProgramsChoiceIsNotTold) {
  One.SetValue(true);
  Three.SetValue(true);
  EXPECT_FALSE(One.Value());
  EXPECT_EQ(sheet_.Seen, Texts{});
  Click(Two);
  EXPECT_FALSE(Three.Value());
  Click(Two);
  EXPECT_EQ(sheet_.Seen, Texts{"T&wo"}) << "the chosen one is not told again";
}

TEST_P(ButtonsContract, ArrowsChooseWithinTheFrameAndTabStopsAtTheChosenOne) {
  Two.SetValue(true);
  Go.SetFocus();
  Settle();
  home_->PressKey(key::Tab);
  home_->PressKey(key::Tab);
  EXPECT_TRUE(Two.HasFocus());
  home_->PressKey(key::Down);
  EXPECT_TRUE(Three.HasFocus());
  EXPECT_TRUE(Three.Value());
  home_->PressKey(key::Right);
  EXPECT_TRUE(One.Value()) << "round the end";
  home_->PressKey(key::Up);
  EXPECT_TRUE(Three.Value());
  EXPECT_EQ(sheet_.Seen, (Texts{"Thr&ee", "O&ne", "Thr&ee"}));
  home_->PressKey(key::Tab);
  EXPECT_TRUE(Go.HasFocus());
  home_->PressWith(key::Shift, key::Tab);
  EXPECT_TRUE(Three.HasFocus());
}

TEST_P(ButtonsContract, ALetterAloneAndAltWithItPress) {
  Go.SetFocus();
  Settle();
  home_->Type("t");
  EXPECT_EQ(Tick.Value(), 1);
  home_->PressWith(key::Alt, 'W');
  EXPECT_TRUE(Two.Value());
  EXPECT_TRUE(Two.HasFocus());
}

TEST_P(ButtonsContract, TheAccessKeyOfAFrameGoesToItsFirstControl) {
  Go.SetFocus();
  Settle();
  home_->PressWith(key::Alt, 'F');
  EXPECT_TRUE(One.HasFocus());
  EXPECT_FALSE(One.Value());
}

TEST_P(ButtonsContract, WhatIsInADisabledOrHiddenFrameIsPassed) {
  Go.SetFocus();
  Settle();
  Box.SetEnabled(false);
  home_->PressKey(key::Tab);
  home_->PressKey(key::Tab);
  EXPECT_TRUE(Go.HasFocus());
  Box.SetEnabled(true);
  Box.SetVisible(false);
  home_->PressKey(key::Tab);
  home_->PressKey(key::Tab);
  EXPECT_TRUE(Go.HasFocus());
}

TEST_P(ButtonsContract, AFormWithKeyPreviewSeesKeysFirstAndMaySwallowThem) {
  Go.SetDefault(true);
  Tick.SetFocus();
  Settle();
  home_->PressKey(key::Enter);
  EXPECT_EQ(sheet_.Seen, Texts{"go"});
  sheet_.Seen.clear();
  sheet_.SetKeyPreview(true);
  home_->PressKey(key::Enter);
  EXPECT_EQ(sheet_.Seen, (Texts{"key 13", "go", "char 13"}));
  sheet_.Seen.clear();
  sheet_.WhenKey = [](int key) { return key == key::Enter; };
  home_->PressKey(key::Enter);
  EXPECT_EQ(sheet_.Seen, (Texts{"key 13", "char 13"}));
}

TEST_P(ButtonsContract, AControlMayUseUpAKeyOrEndTheFormInIt) {
  Go.SetFocus();
  Settle();
  Go.KeyDown = [this](int keyCode, ShiftState) {
    sheet_.Note("own " + std::to_string(keyCode));
    return keyCode == key::Enter;
  };
  home_->PressKey(key::Enter);
  EXPECT_EQ(sheet_.Seen, Texts{"own 13"});
  Go.KeyDown = [this](int, ShiftState) {
    sheet_.Unload();
    return false;
  };
  home_->PressKey(key::Enter);
  EXPECT_FALSE(sheet_.IsLoaded());
}

TEST_P(ButtonsContract, TheMenuKeyAndTheRightButtonAskForTheContextMenuOnce) {
  Tick.ContextMenu = [this](float x, float, bool byKey) {
    sheet_.Note(byKey ? "by key" : "at " + std::to_string(static_cast<int>(x)));
  };
  Tick.SetFocus();
  Settle();
  home_->PressKey(key::Menu);
  EXPECT_EQ(sheet_.Seen, Texts{"by key"});
  sheet_.Seen.clear();
  home_->PressWith(key::Shift, key::F10);
  EXPECT_EQ(std::count(sheet_.Seen.begin(), sheet_.Seen.end(), "by key"), 1);
  sheet_.Seen.clear();
  home_->MovePointer(At(Tick, 10, 8));
  home_->Press(MouseButton::Right);
  home_->Release(MouseButton::Right);
  const int twips = static_cast<int>(10 * sheet_.Screen().TwipsPerPixelX);
  EXPECT_EQ(sheet_.Seen, Texts{"at " + std::to_string(twips)});
}

TEST_P(ButtonsContract, TheFocusIsToldToTheControls) {
  Go.SetFocus();
  Settle();
  Go.LostFocus = [this] { sheet_.Note("go lost"); };
  Tick.GotFocus = [this] { sheet_.Note("tick got"); };
  home_->PressKey(key::Tab);
  EXPECT_EQ(sheet_.Seen, (Texts{"go lost", "tick got"}));
}

}  // namespace corvelle::forms
