// Each form has the scale of its monitor.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "TestForm.h"
#include "forms/CommandButton.h"
#include "forms/Graphic.h"
#include "forms/ListBox.h"
#include "forms/Scale.h"
#include "sim/World.h"

namespace corvelle::forms {
namespace {

/// A form with controls of several kinds.
class Sheet final : public Form {
 public:
  explicit Sheet(WindowSystem& windows, BorderStyle border = BorderStyle::None)
      : Form(windows, "Sheet", border) {
    Go.Move(150, 300, 1500, 450);
    Words.SetAutoSize(true);
    Words.SetCaption("four");
    Drawing.SetPicture(std::make_shared<sim::SimCanvas>(PixelSize{30, 20}));
    Move(1500, 1500, 3000, 2400);
  }

  CommandButton Go{*this, "Go"};
  Label Words{*this, "Words"};
  forms::Image Drawing{*this, "Drawing"};
  int ScaleChanges = 0;
  std::function<void()> WhenResized;

 protected:
  void Form_ScaleChanged() override { ++ScaleChanges; }
  void Form_Resize() override {
    // A copy, since it may destroy the form.
    const auto act = WhenResized;
    if (act) act();
  }
};

/// A primary screen of 96 dots an inch and a monitor of 144 at its right.
struct TwoMonitors : testing::Test {
  sim::World World{{.OtherMonitors = {{.Bounds = {1024, 0, 2624, 1200}, .Dpi = 144}}}};
  sim::SimDesktop& Desktop = World.Desktop;

  void LoadAtPixel(Sheet& sheet, int left) {
    sheet.SetLeft(static_cast<float>(left) * sheet.Screen().TwipsPerPixelX);
    ASSERT_TRUE(sheet.Load());
  }
};

TEST_F(TwoMonitors, AFormOnEachLaysItselfOutByItsOwnScale) {
  Sheet left(World.Windows());
  Sheet right(World.Windows());
  LoadAtPixel(left, 100);
  LoadAtPixel(right, 1200);
  EXPECT_EQ(left.Dpi(), 96);
  EXPECT_EQ(right.Dpi(), 144);
  EXPECT_EQ(Desktop.BoundsOf(left.hWnd()), (PixelRect{100, 100, 300, 260}));
  EXPECT_EQ(Desktop.BoundsOf(right.hWnd()), (PixelRect{1200, 100, 1500, 340}));
  EXPECT_EQ(Desktop.BoundsOf(left.Go.hWnd()), (PixelRect{110, 120, 210, 150}));
  EXPECT_EQ(Desktop.BoundsOf(right.Go.hWnd()), (PixelRect{1215, 130, 1365, 175}));
  EXPECT_EQ(left.ScaleChanges, 0);
  EXPECT_EQ(right.ScaleChanges, 1);
}

TEST_F(TwoMonitors, TheCornerStaysWhereItIsAndTheSizeInTwips) {
  Sheet sheet(World.Windows());
  LoadAtPixel(sheet, 1200);
  EXPECT_EQ(sheet.Left(), 12000);
  EXPECT_EQ(sheet.Top(), 1000);
  EXPECT_EQ(sheet.Width(), 3000);
  EXPECT_EQ(sheet.Height(), 2400);
}

TEST_F(TwoMonitors, AFormOnBothTakesTheScaleOfTheOneWithMostOfIt) {
  Sheet mostlyLeft(World.Windows());
  Sheet mostlyRight(World.Windows());
  LoadAtPixel(mostlyLeft, 1024 - 110);
  LoadAtPixel(mostlyRight, 1024 - 90);
  EXPECT_EQ(mostlyLeft.Dpi(), 96);
  EXPECT_EQ(mostlyRight.Dpi(), 144);
}

TEST_F(TwoMonitors, TextsAndPicturesAreMeasuredByTheirForm) {
  Sheet left(World.Windows());
  Sheet right(World.Windows());
  LoadAtPixel(left, 100);
  LoadAtPixel(right, 1200);
  EXPECT_EQ(left.Words.Bounds(), (TwipRect{0, 0, 24 * 15, 13 * 15}));
  EXPECT_EQ(right.Words.Bounds(), (TwipRect{0, 0, 36 * 10, 19 * 10}));
  EXPECT_EQ(right.MeasureText("four"), (PixelSize{36, 19}));
  EXPECT_EQ(left.Drawing.Bounds(), (TwipRect{0, 0, 30 * 15, 20 * 15}));
  EXPECT_EQ(right.Drawing.Bounds(), (TwipRect{0, 0, 30 * 10, 20 * 10}));
}

TEST_F(TwoMonitors, WhatIsDrawnAndPressedCountsInTheFormsOwnTwips) {
  constexpr Rgb kMark = 0x000000FF;
  Sheet right(World.Windows());
  right.SetAutoRedraw(true);
  LoadAtPixel(right, 1200);
  right.FillBox(2000, 1500, 2090, 1590, kMark);
  const Picture image = right.Image();
  EXPECT_EQ(image->Size(), (PixelSize{300, 240}));
  EXPECT_EQ(image->PixelAt({200, 150}), kMark);
  EXPECT_EQ(image->PixelAt({209, 159}), kMark);
  EXPECT_NE(image->PixelAt({199, 150}), kMark);
  EXPECT_NE(image->PixelAt({211, 150}), kMark);
  PixelPoint pressed;
  right.MouseDown = [&](MouseButton, ShiftState, float x, float y) {
    pressed = {static_cast<int>(x), static_cast<int>(y)};
  };
  right.ShowNoActivate();
  Desktop.MovePointer(1200 + 250, 100 + 200);
  Desktop.Press();
  Desktop.Release();
  EXPECT_EQ(pressed, (PixelPoint{2500, 2000}));
}

TEST_F(TwoMonitors, TheScreenIsThePrimaryOneInTheFormsOwnTwips) {
  Sheet left(World.Windows());
  Sheet right(World.Windows());
  LoadAtPixel(right, 1200);
  EXPECT_EQ(left.Screen(), (ScreenInfo{15, 15, 1024 * 15, 768 * 15}));
  EXPECT_EQ(right.Screen(), (ScreenInfo{10, 10, 1024 * 10, 768 * 10}));
  EXPECT_EQ(right.Go.Screen(), right.Screen()) << "a control has the scale of its form";
}

TEST_F(TwoMonitors, ADialogTakesTheScaleOfItsOwner) {
  Sheet owner(World.Windows(), BorderStyle::Sizable);
  Sheet dialog(World.Windows(), BorderStyle::Fixed);
  LoadAtPixel(owner, 1200);
  owner.Show();
  dialog.ShowModalTo(owner);
  EXPECT_EQ(dialog.Dpi(), 144);
  EXPECT_EQ(Desktop.BoundsOf(dialog.hWnd()).Size(), (PixelSize{300, 240}));
}

TEST_F(TwoMonitors, AFormThatIsLoadedAgainElsewhereTakesTheScaleThere) {
  Sheet sheet(World.Windows());
  LoadAtPixel(sheet, 1200);
  sheet.Unload();
  LoadAtPixel(sheet, 100);
  EXPECT_EQ(sheet.Dpi(), 96);
  EXPECT_EQ(Desktop.BoundsOf(sheet.Go.hWnd()), (PixelRect{110, 120, 210, 150}));
}

// ---- a form with a frame of the system, opened again ----

/// Opens in the middle of a monitor.
class Dialog final : public Form {
 public:
  explicit Dialog(WindowSystem& windows) : Form(windows, "Dialog", BorderStyle::Fixed) {}

  /// Size 300 by 160 pixels at 96 dots an inch, as it was closed last at a pixel.
  void CloseAtPixel(float left, float top) {
    Move(left * Screen().TwipsPerPixelX, top * Screen().TwipsPerPixelY, Width(), Height());
    Unload();
  }

 protected:
  void Form_Load() override { Center(4500, 2400); }
};

TEST_F(TwoMonitors, AFormOpensInTheMiddleOfThePrimaryOneAtFirst) {
  Dialog dialog(World.Windows());
  dialog.Show();
  EXPECT_EQ(Desktop.BoundsOf(dialog.hWnd()), RectAt({362, 304}, {300, 160}));
}

TEST_F(TwoMonitors, AFormOpensAgainInTheMiddleOfTheOneWhereItWasClosedInItsScale) {
  Dialog dialog(World.Windows());
  dialog.Show();
  dialog.CloseAtPixel(1800, 20);
  dialog.Show();
  EXPECT_EQ(dialog.Dpi(), 144);
  EXPECT_EQ(Desktop.BoundsOf(dialog.hWnd()), RectAt({1599, 480}, {450, 240}));
  dialog.CloseAtPixel(10, 10);
  dialog.Show();
  EXPECT_EQ(dialog.Dpi(), 96);
  EXPECT_EQ(Desktop.BoundsOf(dialog.hWnd()), RectAt({362, 304}, {300, 160}));
}

TEST_F(TwoMonitors, AFormWhoseMonitorWasUnpluggedOpensOnThePrimaryOneInItsScale) {
  Dialog dialog(World.Windows());
  dialog.Show();
  dialog.CloseAtPixel(1800, 20);
  Desktop.UnplugOtherMonitors();
  dialog.Show();
  EXPECT_EQ(dialog.Dpi(), 96);
  EXPECT_EQ(Desktop.BoundsOf(dialog.hWnd()), RectAt({362, 304}, {300, 160}));
}

TEST_F(TwoMonitors, AFormThatIsClosedInTheTaskBarOpensAgainWhereItWasBefore) {
  Dialog dialog(World.Windows());
  dialog.Show();
  dialog.Move(1800 * 15, 300, dialog.Width(), dialog.Height());
  dialog.Minimize();
  dialog.Unload();
  dialog.Show();
  EXPECT_EQ(dialog.Dpi(), 144);
  EXPECT_TRUE(Desktop.BoundsOf(dialog.hWnd()).left >= 1024);
}

TEST_F(TwoMonitors, AFormWithoutAFrameOpensWhereItIsPutNext) {
  Sheet sheet(World.Windows());
  LoadAtPixel(sheet, 1200);
  sheet.Unload();
  ASSERT_TRUE(sheet.Load());
  sheet.Center();
  EXPECT_EQ(Desktop.BoundsOf(sheet.hWnd()), RectAt({362, 264}, {300, 240}));
}

TEST_F(TwoMonitors, AScaleThatWasGivenStays) {
  Sheet sheet(World.Windows());
  sheet.SetDpi(144);
  LoadAtPixel(sheet, 100);
  EXPECT_EQ(sheet.Dpi(), 144);
  sheet.Unload();
  LoadAtPixel(sheet, 200);
  EXPECT_EQ(sheet.Dpi(), 144);
}

TEST_F(TwoMonitors, AFormThatIsUpTakesAnotherScaleWithAllInIt) {
  Sheet sheet(World.Windows());
  LoadAtPixel(sheet, 100);
  sheet.Show();
  sheet.SetDpi(144);
  EXPECT_EQ(sheet.ScaleChanges, 1);
  EXPECT_EQ(Desktop.BoundsOf(sheet.hWnd()), (PixelRect{100, 100, 400, 340}));
  EXPECT_EQ(Desktop.BoundsOf(sheet.Go.hWnd()), (PixelRect{115, 130, 265, 175}));
  EXPECT_EQ(sheet.Words.Width(), 36 * 10);
  EXPECT_EQ(Desktop.Look(sheet.Go.hWnd())->Dpi, 144) << "the system draws its text in that size";
  sheet.SetDpi(144);
  EXPECT_EQ(sheet.ScaleChanges, 1);
}

TEST_F(TwoMonitors, AFormMayGoWhileItIsResizedByANewScale) {
  auto sheet = std::make_unique<Sheet>(World.Windows());
  LoadAtPixel(*sheet, 100);
  sheet->Show();
  sheet->WhenResized = [&] { sheet.reset(); };
  sheet->SetDpi(144);
  EXPECT_EQ(sheet, nullptr);
}

TEST(TwipsOfPixel, AreFewerTheMoreDotsAnInchHas) {
  EXPECT_EQ(TwipsOfPixel(96), 15);
  EXPECT_EQ(TwipsOfPixel(120), 12);
  EXPECT_EQ(TwipsOfPixel(144), 10);
  EXPECT_EQ(TwipsOfPixel(192), 7.5F);
}

}  // namespace
}  // namespace corvelle::forms
