#pragma once

// What disabled controls look like on every home. See ControlsContract.h.

#include "forms/ComboBox.h"
#include "forms/ControlsContract.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "forms/TreeView.h"

namespace corvelle::forms {

class DisabledLookContract : public ControlsContract {
 protected:
  void SetUp() override {
    float top = 150;
    for (Window* control : all_) {
      control->Move(150, top, 2400, 315);
      top += 375;
    }
    Elsewhere.Move(3000, 150, 1200, 375);
    Go.SetCaption("Confirm");
    Tick.SetCaption("Shown");
    One.SetCaption("First");
    Title.SetText("Title of it");
    Rows.Add("Category");
    Engine.Add("Engine");
    Engine.Select(0);
    Nodes.Insert(kNoNode, kNoNode, {.Text = "Menu Buttons"});
    Show();
    Elsewhere.SetFocus();
    Settle();
  }
  std::unique_ptr<Canvas> Picture(const Window& control) {
    Settle();
    return Windows().PictureOfWindow(control.hWnd()).Pixels;
  }
  static int Different(const Canvas& a, const Canvas& b) {
    int count = 0;
    for (int y = 0; y < a.Size().height; ++y) {
      for (int x = 0; x < a.Size().width; ++x) count += a.PixelAt({x, y}) != b.PixelAt({x, y});
    }
    return count;
  }

  CommandButton Go{sheet_, "Go"};
  CheckBox Tick{sheet_, "Tick"};
  OptionButton One{sheet_, "One"};
  TextBox Title{sheet_, "Title"};
  ListBox Rows{sheet_, "Rows"};
  ComboBox Engine{sheet_, "Engine", false};
  TreeView Nodes{sheet_, "Nodes"};
  CommandButton Elsewhere{sheet_, "Elsewhere"};
  const std::vector<Window*> all_{&Go, &Tick, &One, &Title, &Rows, &Engine, &Nodes};
};

TEST_P(DisabledLookContract, EachKindShowsThatItIsDisabledAndThatItIsEnabledAgain) {
  for (Window* control : all_) {
    const std::unique_ptr<Canvas> enabled = Picture(*control);
    control->SetEnabled(false);
    EXPECT_GT(Different(*enabled, *Picture(*control)), 10) << control->Name();
    control->SetEnabled(true);
    EXPECT_EQ(Different(*enabled, *Picture(*control)), 0) << control->Name();
  }
}

TEST_P(DisabledLookContract, WhatIsInADisabledFormIsNotGray) {
  const std::unique_ptr<Canvas> before = Picture(Title);
  sheet_.HoldInput();
  EXPECT_EQ(Different(*before, *Picture(Title)), 0);
  sheet_.ReleaseInput();
}

}  // namespace corvelle::forms
