#pragma once

// Forms in a frame of the system, on every home. See ControlsContract.h.

#include "forms/ControlsContract.h"

namespace corvelle::forms {

class FramedForm : public Form {
 public:
  FramedForm(WindowSystem& windows, BorderStyle border) : Form(windows, "CorvelleFramed", border) {
    SetMinimizeBox(true);
    Move(3000, 2250, 4500, 3000);
    Go.Move(0, 0, 1200, 375);
    Go.Click = [this] { Seen.emplace_back("go"); };
  }

  Texts Seen;
  CommandButton Go{*this, "Go"};

 protected:
  void Form_Resize() override { Seen.emplace_back("size"); }
  void Form_QueryClose() override { Seen.emplace_back("close"); }
  void Form_Menu(int line) override { Seen.push_back("menu " + std::to_string(line)); }
};

class FrameContract : public testing::TestWithParam<InputHomeFactory> {
 protected:
  std::unique_ptr<InputHome> home_ = GetParam()();
  FramedForm form_{home_->Windows(), BorderStyle::Sizable};

  void SetUp() override { ShowForm(form_); }
  void TearDown() override {
    home_->Release(MouseButton::Left);
    form_.Unload();
  }
  void ShowForm(FramedForm& form) {
    home_->MovePointer({900, 700});
    form.SetCaption("Framed");
    form.Show();
    home_->Wait(200);
    form.Seen.clear();
  }
  PixelRect Bounds(const Form& form) {
    return ToPixels(form.Left(), form.Top(), form.Width(), form.Height(), form.Screen());
  }
  FrameMargins Margins() {
    return home_->Windows().MarginsOf(FrameStyle::Sizable, false, form_.Dpi());
  }
  void Drag(PixelPoint from, PixelPoint to) {
    // The last move may be taken together with the release.
    home_->DragAlong({from, {(from.x + to.x) / 2, (from.y + to.y) / 2}, to, to});
    home_->Wait(100);
  }
};

TEST_P(FrameContract, TheInsideIsWhatTheFrameLeaves) {
  const FrameMargins margins = Margins();
  EXPECT_GT(margins.Top, margins.Bottom) << "there is a caption";
  const ScreenInfo screen = form_.Screen();
  EXPECT_EQ(form_.ScaleWidth(), form_.Width() - static_cast<float>(margins.Left + margins.Right) *
                                                    screen.TwipsPerPixelX);
  EXPECT_EQ(form_.ScaleHeight(), form_.Height() - static_cast<float>(margins.Top + margins.Bottom) *
                                                      screen.TwipsPerPixelY);
  EXPECT_EQ(home_->Windows().MarginsOf(FrameStyle::None, true, form_.Dpi()), FrameMargins{});
  EXPECT_EQ(home_->Desktop().Text(form_.hWnd()), "Framed");
}

TEST_P(FrameContract, ControlsAreCountedFromTheInside) {
  const PixelRect bounds = Bounds(form_);
  const PixelPoint corner{bounds.left + Margins().Left, bounds.top + Margins().Top};
  EXPECT_EQ(home_->Desktop().WindowAt({corner.x + 2, corner.y + 2}), form_.Go.hWnd());
  EXPECT_EQ(home_->Desktop().WindowAt({corner.x + 2, corner.y - 2}), form_.hWnd());
  home_->MovePointer({corner.x + 8, corner.y + 8});
  home_->Press(MouseButton::Left);
  home_->Release(MouseButton::Left);
  EXPECT_EQ(form_.Seen, Texts{"go"});
}

TEST_P(FrameContract, TheCloseBoxAsksTheForm) {
  const PixelRect bounds = Bounds(form_);
  home_->DragAlong({{bounds.right - Margins().Right - 9, bounds.top + Margins().Top / 2 + 2}});
  home_->Wait(50);
  EXPECT_EQ(form_.Seen, Texts{"close"});
  EXPECT_TRUE(form_.Visible());
}

TEST_P(FrameContract, TheCaptionMovesTheForm) {
  const PixelRect before = Bounds(form_);
  const PixelPoint grip{before.left + 60, before.top + Margins().Top / 2 + 2};
  Drag(grip, {grip.x + 40, grip.y + 30});
  EXPECT_EQ(Bounds(form_),
            (PixelRect{before.left + 40, before.top + 30, before.right + 40, before.bottom + 30}));
}

TEST_P(FrameContract, ItsCornerSizesTheFormDownToTheLeastSize) {
  const PixelRect before = Bounds(form_);
  const PixelPoint grip{before.right - 2, before.bottom - 2};
  Drag(grip, {grip.x + 30, grip.y + 20});
  const PixelRect larger = Bounds(form_);
  EXPECT_EQ(larger.Size(), (PixelSize{before.Width() + 30, before.Height() + 20}));
  EXPECT_NE(std::count(form_.Seen.begin(), form_.Seen.end(), "size"), 0);
  const ScreenInfo screen = form_.Screen();
  form_.SetLeastSize(200 * screen.TwipsPerPixelX, 150 * screen.TwipsPerPixelY);
  Drag({larger.right - 2, larger.bottom - 2}, {larger.left + 50, larger.top + 60});
  EXPECT_EQ(Bounds(form_).Size(), (PixelSize{200, 150}));
}

TEST_P(FrameContract, ItIsMinimizedAndComesBack) {
  form_.Minimize();
  home_->Wait(100);
  EXPECT_TRUE(form_.IsMinimized());
  const PixelRect before = Bounds(form_);
  form_.RestoreWindow();
  home_->Wait(100);
  EXPECT_FALSE(form_.IsMinimized());
  EXPECT_EQ(Bounds(form_), before);
}

TEST_P(FrameContract, AFrameIsNoThinnerInALargerScale) {
  const FrameMargins plain = home_->Windows().MarginsOf(FrameStyle::Sizable, true, 96);
  const FrameMargins large = home_->Windows().MarginsOf(FrameStyle::Sizable, true, 192);
  EXPECT_GE(large.Top, plain.Top);
  EXPECT_GE(large.Left, plain.Left);
}

TEST_P(FrameContract, ItIsPutInTheMiddleOfTheScreen) {
  form_.Center();
  const ScreenInfo screen = form_.Screen();
  EXPECT_EQ(form_.Left(), (screen.Width - form_.Width()) / 2);
  EXPECT_EQ(form_.Top(), (screen.Height - form_.Height()) / 2);
}

TEST_P(FrameContract, AFormThatIsModalToItsOwnerBlocksItUntilItGoes) {
  FramedForm dialog(home_->Windows(), BorderStyle::Fixed);
  dialog.Move(9000, 2250, 3000, 2250);
  dialog.ShowModalTo(form_);
  home_->Wait(100);
  EXPECT_TRUE(home_->Desktop().HasOwner(dialog.hWnd()));
  EXPECT_EQ(home_->Desktop().ActiveWindow(), dialog.hWnd());
  const PixelRect bounds = Bounds(form_);
  home_->MovePointer({bounds.left + Margins().Left + 8, bounds.top + Margins().Top + 8});
  home_->Press(MouseButton::Left);
  home_->Release(MouseButton::Left);
  EXPECT_EQ(form_.Seen, Texts{});
  dialog.Unload();
  home_->Wait(100);
  EXPECT_EQ(home_->Desktop().ActiveWindow(), form_.hWnd());
  home_->Press(MouseButton::Left);
  home_->Release(MouseButton::Left);
  EXPECT_EQ(form_.Seen, Texts{"go"});
}

TEST_P(FrameContract, AMenuBarTakesItsPlaceFromTheInsideAndGivesItBack) {
  const float before = form_.ScaleHeight();
  form_.SetMenu({{.Caption = "&File", .Items = {{.Caption = "Save\tCtrl+S"}, {.Caption = "E&xit"}}},
                 {.Caption = "&Options", .Items = {{.Caption = "Large", .Checked = true}}}});
  home_->Wait(50);
  const int menu =
      home_->Windows().MarginsOf(FrameStyle::Sizable, true, form_.Dpi()).Top - Margins().Top;
  EXPECT_GT(menu, 10);
  EXPECT_EQ(form_.ScaleHeight(), before - static_cast<float>(menu) * form_.Screen().TwipsPerPixelY);
  const PixelRect bounds = Bounds(form_);
  EXPECT_EQ(home_->Desktop().WindowAt(
                {bounds.left + Margins().Left + 2, bounds.top + Margins().Top + menu + 2}),
            form_.Go.hWnd());
  form_.SetMenu({});
  home_->Wait(50);
  EXPECT_EQ(form_.ScaleHeight(), before);
}

TEST_P(FrameContract, AKeyOfAMenuLineChoosesIt) {
  form_.SetMenu(
      {{.Caption = "&File",
        .Items = {{.Caption = "Save\tCtrl+S"}, {.Caption = "Gray\tCtrl+G", .Enabled = false}}}});
  form_.Go.SetFocus();
  home_->Wait(50);
  form_.Seen.clear();
  home_->PressWith(key::Ctrl, 'S');
  home_->PressWith(key::Ctrl, 'G');
  EXPECT_EQ(form_.Seen, Texts{"menu 1"});
}

}  // namespace corvelle::forms
