#pragma once

// Tool bars on every home. See ControlsContract.h.

#include "forms/ControlsContract.h"
#include "forms/Graphic.h"
#include "forms/ToolBar.h"

namespace corvelle::forms {

class ToolBarContract : public ControlsContract {
 protected:
  void SetUp() override {
    Bar.Move(0, 0, 4500, 450);
    Ok.Move(150, 900, 1200, 375);
    const std::shared_ptr<Canvas> image = Windows().CreateCanvas({16, 16});
    image->FillBox({0, 0, 16, 16}, Image::kMask);
    image->FillBox({3, 3, 13, 13}, 0x00800000);
    Bar.AddImage(image);
    Bar.Add({.Key = "up", .Tip = "Move up", .Image = 0});
    Bar.AddGap();
    Bar.Add({.Key = "cut", .Tip = "Cut", .Image = 0});
    Bar.Add({.Key = "paste", .Tip = "Paste", .Image = 0, .Enabled = false});
    Bar.ButtonClick = [this](const std::string& key) { sheet_.Note(key); };
    Show();
    Ok.SetFocus();
    Settle();
  }
  void ClickButton(const std::string& key) {
    const PixelRect place = Bar.ButtonRect(key);
    Click(Bar, (place.left + place.right) / 2, (place.top + place.bottom) / 2);
  }

  ToolBar Bar{sheet_, "Bar"};
  CommandButton Ok{sheet_, "Ok"};
};

TEST_P(ToolBarContract, AClickTellsTheKeyOfTheButtonAndLeavesTheFocus) {
  ClickButton("cut");
  ClickButton("up");
  EXPECT_EQ(sheet_.Seen, (Texts{"cut", "up"}));
  EXPECT_TRUE(Ok.HasFocus());
}

TEST_P(ToolBarContract, ADisabledButtonIsNotPressed) {
  ClickButton("paste");
  Bar.SetButtonEnabled("paste", true);
  ClickButton("paste");
  Bar.SetButtonEnabled("cut", false);
  ClickButton("cut");
  Bar.SetButtonEnabled("no such key", true);
  EXPECT_EQ(sheet_.Seen, Texts{"paste"});
}

TEST_P(ToolBarContract, ARowOfButtonsHasGapsBetweenItsGroups) {
  const PixelRect up = Bar.ButtonRect("up");
  const PixelRect cut = Bar.ButtonRect("cut");
  const PixelRect paste = Bar.ButtonRect("paste");
  EXPECT_GT(cut.left, up.right);
  EXPECT_EQ(paste.left, cut.right);
  EXPECT_GE(up.Width(), 20);
  EXPECT_LE(up.Width(), 40) << "the tip is not shown as a text";
  EXPECT_EQ(Bar.ButtonRect("no such key"), PixelRect{});
}

TEST_P(ToolBarContract, APressThatIsReleasedElsewhereIsNone) {
  const PixelRect place = Bar.ButtonRect("up");
  home_->MovePointer(At(Bar, place.left + 8, place.top + 8));
  home_->Press(MouseButton::Left);
  home_->MovePointer(At(Bar, place.left + 8, place.top + 80));
  home_->Release(MouseButton::Left);
  EXPECT_EQ(sheet_.Seen, Texts{});
}

TEST_P(ToolBarContract, ItsHandlerMayEndTheForm) {
  Bar.ButtonClick = [this](const std::string&) { sheet_.Unload(); };
  ClickButton("up");
  EXPECT_FALSE(sheet_.IsLoaded());
}

}  // namespace corvelle::forms
