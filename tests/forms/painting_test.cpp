#include <gtest/gtest.h>

#include "TestForm.h"
#include "forms/Graphic.h"
#include "sim/World.h"

namespace corvelle::forms {
namespace {

constexpr OleColor kPlainRed = 0x000000FF;
constexpr OleColor kPlainGreen = 0x0000FF00;
constexpr OleColor kBlue = 0x00FF0000;

/// The form's inside is 200 by 100 pixels; its box is hidden.
struct PaintingTest : testing::Test {
  sim::World World;
  TestForm Form{World.Windows()};

  PaintingTest() { Form.Box.SetVisible(false); }

  [[nodiscard]] sim::SimDesktop& Desktop() { return World.Desktop; }
  [[nodiscard]] Rgb Face() { return World.Windows().SystemColor(15); }
  void ShowAndPaint() {
    Form.Show();
    Desktop().Pump();
  }
  /// What the screen shows at a pixel of the form.
  [[nodiscard]] Rgb At(int x, int y) {
    return Desktop().Look(Form.hWnd())->Content->PixelAt({x, y});
  }
  /// Paints that follow a change, when events are let through.
  template <class Change>
  int PaintsAfter(Change change) {
    const int before = Desktop().PaintCount(Form.hWnd());
    change();
    Desktop().Pump();
    return Desktop().PaintCount(Form.hWnd()) - before;
  }
  static Picture Square(WindowSystem& windows, PixelSize size, Rgb colour) {
    auto canvas = windows.CreateCanvas(size);
    canvas->FillBox({0, 0, size.width, size.height}, colour);
    return canvas;
  }
};

// How often.

TEST_F(PaintingTest, AFormThatComesUpIsPaintedOnce) {
  ShowAndPaint();
  EXPECT_EQ(Desktop().PaintCount(Form.hWnd()), 1);
  EXPECT_EQ(At(0, 0), Face());
}

TEST_F(PaintingTest, NothingIsPaintedWhileTheFormIsHidden) {
  Form.Load();
  Form.SetBackColor(kPlainRed);
  Form.Refresh();
  Desktop().Pump();
  EXPECT_EQ(Desktop().PaintCount(), 0);
}

TEST_F(PaintingTest, ManyChangesAreOnePaint) {
  Label label(Form, "Label");
  ShowAndPaint();
  EXPECT_EQ(PaintsAfter([&] {
              label.SetAutoSize(true);
              label.SetCaption("text");
              label.SetForeColor(kPlainRed);
              label.Move(150, 150, label.Width(), label.Height());
              Form.SetBackColor(kBlue);
            }),
            1);
}

TEST_F(PaintingTest, AnotherCaptionIsPaintedWhetherTheLabelFitsItOrHasASizeOfItsOwn) {
  Label label(Form, "Label");
  label.Move(150, 150, 600, 300);
  ShowAndPaint();
  EXPECT_EQ(PaintsAfter([&] { label.SetCaption("one"); }), 1);
  label.SetAutoSize(true);
  Desktop().Pump();
  EXPECT_EQ(PaintsAfter([&] { label.SetCaption("other"); }), 1);
}

TEST_F(PaintingTest, NoPaintForAPropertySetToTheValueThatItHas) {
  Label label(Form, "Label");
  Line line(Form, "Line");
  Shape shape(Form, "Shape");
  forms::Image image(Form, "Image");
  const Picture picture = Square(World.Windows(), {4, 4}, kPlainRed);
  label.SetCaption("text");
  label.Move(0, 0, 600, 300);
  line.SetPoints(0, 0, 150, 150);
  shape.Move(0, 0, 300, 300);
  image.SetPicture(picture);
  ShowAndPaint();
  EXPECT_EQ(PaintsAfter([&] {
              label.SetCaption("text");
              label.SetForeColor(label.ForeColor());
              label.SetFont(label.Font());
              label.SetAutoSize(false);
              label.SetVisible(true);
              label.SetEnabled(true);
              label.Move(0, 0, 600, 300);
              line.SetPoints(0, 0, 150, 150);
              line.SetBorderColor(line.BorderColor());
              line.SetBorderWidth(1);
              shape.SetFillColor(shape.FillColor());
              image.SetPicture(picture);
              Form.SetBackColor(Form.BackColor());
              Form.Move(Form.Left(), Form.Top(), Form.Width(), Form.Height());
            }),
            0);
}

TEST_F(PaintingTest, NoPaintForChangesOfAnInvisibleControl) {
  Label label(Form, "Label");
  Line line(Form, "Line");
  Shape shape(Form, "Shape");
  label.SetVisible(false);
  line.SetVisible(false);
  shape.SetVisible(false);
  ShowAndPaint();
  EXPECT_EQ(PaintsAfter([&] {
              label.SetAutoSize(true);
              label.SetCaption("text");
              label.SetForeColor(kPlainRed);
              label.Move(150, 150, 600, 300);
              label.ZOrder(ZPlace::Front);
              line.SetPoints(0, 0, 150, 150);
              line.SetBorderColor(kPlainRed);
              shape.Move(0, 0, 300, 300);
              shape.SetFillColor(kPlainRed);
            }),
            0);
}

TEST_F(PaintingTest, AMoveFinerThanAPixelPaintsNothing) {
  Shape shape(Form, "Shape");
  shape.Move(0, 0, 300, 300);
  ShowAndPaint();
  EXPECT_EQ(PaintsAfter([&] { shape.SetLeft(3); }), 0);
  Desktop().ClearLog();
  EXPECT_EQ(PaintsAfter([&] { Form.SetLeft(1503); }), 0);
  EXPECT_EQ(Desktop().Log(), Texts{});
}

TEST_F(PaintingTest, HidingAndMovingAControlPaintsWhereItWas) {
  Shape shape(Form, "Shape");
  shape.SetFillColor(kPlainRed);
  shape.Move(0, 0, 150, 150);
  ShowAndPaint();
  EXPECT_EQ(At(5, 5), kPlainRed);
  EXPECT_EQ(PaintsAfter([&] { shape.SetLeft(1500); }), 1);
  EXPECT_EQ(At(5, 5), Face());
  EXPECT_EQ(At(105, 5), kPlainRed);
  EXPECT_EQ(PaintsAfter([&] { shape.SetVisible(false); }), 1);
  EXPECT_EQ(At(105, 5), Face());
}

TEST_F(PaintingTest, ADestroyedControlLeavesNothingBehind) {
  ShowAndPaint();
  {
    Line line(Form, "Line");
    line.SetBorderColor(kPlainRed);
    line.SetBorderWidth(5);
    line.SetPoints(0, 150, 1500, 150);
    Desktop().Pump();
    Shape shape(Form, "Shape");
    shape.SetFillColor(kPlainRed);
    shape.Move(0, 600, 150, 150);
    Desktop().Pump();
    EXPECT_EQ(At(50, 12), kPlainRed);
    EXPECT_EQ(At(5, 45), kPlainRed);
  }
  Desktop().Pump();
  EXPECT_EQ(At(5, 45), Face());
  EXPECT_EQ(At(50, 12), Face());
  EXPECT_EQ(At(50, 8), Face());
}

TEST_F(PaintingTest, RefreshPaintsAtOnceAndOnlyWhatChanged) {
  Shape shape(Form, "Shape");
  shape.Move(0, 0, 150, 150);
  ShowAndPaint();
  shape.SetFillColor(kPlainGreen);
  EXPECT_NE(At(5, 5), kPlainGreen);
  Form.Refresh();
  EXPECT_EQ(At(5, 5), kPlainGreen);
  const int paints = Desktop().PaintCount(Form.hWnd());
  Form.Refresh();
  EXPECT_EQ(Desktop().PaintCount(Form.hWnd()), paints);
}

TEST_F(PaintingTest, AnotherSizeIsPaintedOnce) {
  ShowAndPaint();
  EXPECT_EQ(PaintsAfter([&] { Form.SetWidth(4500); }), 1);
  EXPECT_EQ(At(299, 50), Face());
}

// What lies over what.

TEST_F(PaintingTest, TheOrderIsGroundThenPictureThenDrawingThenHandlerThenControls) {
  const Picture picture = Square(World.Windows(), {100, 20}, 0x00111111);
  Form.SetAutoRedraw(true);
  Form.SetBackground(picture);
  Form.FillBox(0, 0, 1200 - 15, 150, 0x00222222);
  Form.Paint = [&] { Form.FillBox(0, 0, 900 - 15, 150, 0x00333333); };
  Shape shape(Form, "Shape");
  shape.Move(0, 0, 600, 150);
  shape.SetFillColor(0x00444444);
  ShowAndPaint();
  EXPECT_EQ(At(20, 5), 0x00444444U);
  EXPECT_EQ(At(50, 5), 0x00333333U);
  EXPECT_EQ(At(70, 5), 0x00222222U);
  EXPECT_EQ(At(90, 5), 0x00111111U);
  EXPECT_EQ(At(110, 5), Face());
}

TEST_F(PaintingTest, ControlsAreStackedInTheirOrder) {
  Shape back(Form, "Back");
  Shape front(Form, "Front");
  back.SetFillColor(kPlainRed);
  front.SetFillColor(kPlainGreen);
  back.Move(0, 0, 300, 300);
  front.Move(0, 0, 300, 300);
  ShowAndPaint();
  EXPECT_EQ(At(5, 5), kPlainGreen);
  EXPECT_EQ(PaintsAfter([&] { back.ZOrder(ZPlace::Front); }), 1);
  EXPECT_EQ(At(5, 5), kPlainRed);
  back.ZOrder(ZPlace::Back);
  Desktop().Pump();
  EXPECT_EQ(At(5, 5), kPlainGreen);
}

TEST_F(PaintingTest, AChildWindowLiesOverControls) {
  Shape shape(Form, "Shape");
  shape.Move(0, 0, 3000, 1500);
  shape.SetFillColor(kPlainRed);
  Form.Box.SetBackColor(kBlue);
  Form.Box.SetVisible(true);
  ShowAndPaint();
  const sim::SimCanvas screen = Desktop().Picture();
  EXPECT_EQ(screen.PixelAt({110, 110}), kBlue);
  EXPECT_EQ(screen.PixelAt({160, 110}), kPlainRed);
}

TEST_F(PaintingTest, ARaisedBorderHasItsFiveColours) {
  TestForm bordered(World.Windows(), BorderStyle::Raised, "Bordered");
  bordered.Box.SetVisible(false);
  bordered.SetBackColor(kPlainRed);
  bordered.Show();
  Desktop().Pump();
  const auto at = [&](int x, int y) {
    return Desktop().Look(bordered.hWnd())->Content->PixelAt({x, y});
  };
  WindowSystem& windows = World.Windows();
  const Rgb expected[] = {windows.SystemColor(22), windows.SystemColor(20), windows.SystemColor(15),
                          kPlainRed};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(at(i, 50), expected[i]) << i;
    EXPECT_EQ(at(100, i), expected[i]) << i;
  }
  const Rgb opposite[] = {windows.SystemColor(21), windows.SystemColor(16), windows.SystemColor(15),
                          kPlainRed};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(at(199 - i, 50), opposite[i]) << i;
    EXPECT_EQ(at(100, 99 - i), opposite[i]) << i;
  }
  EXPECT_EQ(at(199, 0), windows.SystemColor(21));
  EXPECT_EQ(at(0, 99), windows.SystemColor(21));
}

TEST_F(PaintingTest, DrawingAndControlsStayInsideTheBorder) {
  TestForm bordered(World.Windows(), BorderStyle::Raised, "Bordered");
  bordered.Box.SetVisible(false);
  Shape shape(bordered, "Shape");
  shape.SetFillColor(kPlainRed);
  shape.Move(-150, -150, 6000, 6000);
  bordered.Show();
  Desktop().Pump();
  const auto at = [&](int x, int y) {
    return Desktop().Look(bordered.hWnd())->Content->PixelAt({x, y});
  };
  EXPECT_EQ(at(3, 3), kPlainRed);
  EXPECT_EQ(at(196, 96), kPlainRed);
  EXPECT_EQ(at(2, 50), World.Windows().SystemColor(15));
  EXPECT_EQ(at(197, 50), World.Windows().SystemColor(15));
}

// The persistent image.

TEST_F(PaintingTest, WhatIsDrawnPersistentlyComesBackWithEveryPaint) {
  Form.SetAutoRedraw(true);
  Form.FillBox(0, 0, 150, 150, kPlainRed);
  ShowAndPaint();
  EXPECT_EQ(At(5, 5), kPlainRed);
  EXPECT_EQ(At(10, 10), kPlainRed);  // both corners belong to a box
  EXPECT_EQ(At(11, 11), Face());
  Form.Hide();
  ShowAndPaint();
  EXPECT_EQ(At(5, 5), kPlainRed);
}

TEST_F(PaintingTest, DrawingPersistentlyPaintsOnceAtTheNextPaint) {
  Form.SetAutoRedraw(true);
  ShowAndPaint();
  EXPECT_EQ(PaintsAfter([&] {
              Form.FillBox(0, 0, 150, 150, kPlainRed);
              Form.DrawLine(0, 0, 150, 0, kPlainGreen);
              Form.Print(0, 300, "text", kBlue);
            }),
            1);
  EXPECT_EQ(At(5, 5), kPlainRed);
  EXPECT_EQ(At(5, 0), kPlainGreen);
}

TEST_F(PaintingTest, WhatIsDrawnOnTheScreenLastsUntilTheNextPaint) {
  ShowAndPaint();
  EXPECT_EQ(PaintsAfter([&] { Form.FillBox(0, 0, 150, 150, kPlainRed); }), 0);
  EXPECT_EQ(At(5, 5), kPlainRed);
  Form.InvalidateAll();
  Desktop().Pump();
  EXPECT_EQ(At(5, 5), Face());
}

TEST_F(PaintingTest, DrawingOnAHiddenFormsScreenIsLost) {
  Form.Load();
  Form.FillBox(0, 0, 150, 150, kPlainRed);
  ShowAndPaint();
  EXPECT_EQ(At(5, 5), Face());
}

TEST_F(PaintingTest, DrawingInThePaintHandlerGoesToThePaintWhateverAutoRedrawSays) {
  Form.SetAutoRedraw(true);
  Form.Paint = [&] { Form.FillBox(0, 0, 150, 150, kPlainRed); };
  ShowAndPaint();
  EXPECT_EQ(At(5, 5), kPlainRed);
  EXPECT_EQ(Desktop().PaintCount(Form.hWnd()), 1);
  EXPECT_EQ(Form.Image()->PixelAt({5, 5}), Face());
}

TEST_F(PaintingTest, ClsWipesOutTheDrawingAndLeavesThePicture) {
  Form.SetAutoRedraw(true);
  Form.SetBackground(Square(World.Windows(), {50, 50}, kPlainGreen));
  Form.FillBox(0, 0, 150, 150, kPlainRed);
  ShowAndPaint();
  EXPECT_EQ(PaintsAfter([&] { Form.Cls(); }), 1);
  EXPECT_EQ(At(5, 5), kPlainGreen);
  EXPECT_EQ(At(60, 60), Face());
}

TEST_F(PaintingTest, AnotherGroundWipesOutTheDrawing) {
  Form.SetAutoRedraw(true);
  Form.FillBox(0, 0, 150, 150, kPlainRed);
  Form.SetBackground(Square(World.Windows(), {50, 50}, kPlainGreen));
  ShowAndPaint();
  EXPECT_EQ(At(5, 5), kPlainGreen);
  Form.FillBox(0, 0, 150, 150, kPlainRed);
  Form.SetBackColor(kBlue);
  Desktop().Pump();
  EXPECT_EQ(At(5, 5), kPlainGreen);
  EXPECT_EQ(At(60, 60), kBlue);
  Form.SetBackground(nullptr);
  Desktop().Pump();
  EXPECT_EQ(At(5, 5), kBlue);
}

TEST_F(PaintingTest, TheImageIsTheGroundWhenNothingWasDrawn) {
  const Picture image = Form.Image();
  EXPECT_EQ(image->Size(), (PixelSize{200, 100}));
  EXPECT_EQ(image->PixelAt({0, 0}), Face());
  EXPECT_EQ(image->PixelAt({199, 99}), Face());
}

TEST_F(PaintingTest, AnImageTakenNeverChanges) {
  Form.SetAutoRedraw(true);
  Form.FillBox(0, 0, 150, 150, kPlainRed);
  const Picture first = Form.Image();
  Form.FillBox(0, 0, 150, 150, kPlainGreen);
  const Picture second = Form.Image();
  Form.Cls();
  EXPECT_EQ(first->PixelAt({5, 5}), kPlainRed);
  EXPECT_EQ(second->PixelAt({5, 5}), kPlainGreen);
  EXPECT_EQ(Form.Image()->PixelAt({5, 5}), Face());
}

TEST_F(PaintingTest, TakingTheImageTwiceCopiesNothing) {
  Form.SetAutoRedraw(true);
  Form.FillBox(0, 0, 150, 150, kPlainRed);
  EXPECT_EQ(Form.Image(), Form.Image());
}

TEST_F(PaintingTest, TheImageGrowsWithTheWindowAndKeepsWhatIsThere) {
  Form.SetAutoRedraw(true);
  Form.FillBox(0, 0, 150, 150, kPlainRed);
  Form.Move(1500, 1500, 4500, 3000);
  EXPECT_EQ(Form.Image()->Size(), (PixelSize{300, 200}));
  Form.FillBox(4350, 2850, 4485, 2985, kPlainGreen);
  ShowAndPaint();
  EXPECT_EQ(At(5, 5), kPlainRed);
  EXPECT_EQ(At(295, 195), kPlainGreen);
  EXPECT_EQ(At(250, 150), Face());
}

TEST_F(PaintingTest, TheImageOfAShrunkWindowIsOfItsSize) {
  Form.SetAutoRedraw(true);
  Form.FillBox(0, 0, 3000, 1500, kPlainRed);
  Form.Move(1500, 1500, 1500, 750);
  EXPECT_EQ(Form.Image()->Size(), (PixelSize{100, 50}));
  EXPECT_EQ(Form.Image()->PixelAt({99, 49}), kPlainRed);
}

TEST_F(PaintingTest, AWindowOfNoSizeHasAnImageOfOnePixel) {
  Form.Move(0, 0, 0, 0);
  EXPECT_EQ(Form.Image()->Size(), (PixelSize{1, 1}));
}

TEST_F(PaintingTest, ThePersistentImageOutlivesTheWindow) {
  Form.SetAutoRedraw(true);
  Form.FillBox(0, 0, 150, 150, kPlainRed);
  Form.Show();
  Form.Unload();
  ShowAndPaint();
  EXPECT_EQ(At(5, 5), kPlainRed);
}

// Drawing.

TEST_F(PaintingTest, ALineLeavesOutItsLastPixel) {
  Form.SetAutoRedraw(true);
  Form.DrawLine(0, 150, 150, 150, kPlainRed);
  Form.DrawLine(300, 0, 300, 150, kPlainRed);
  const Picture image = Form.Image();
  EXPECT_EQ(image->PixelAt({0, 10}), kPlainRed);
  EXPECT_EQ(image->PixelAt({9, 10}), kPlainRed);
  EXPECT_EQ(image->PixelAt({10, 10}), Face());
  EXPECT_EQ(image->PixelAt({20, 9}), kPlainRed);
  EXPECT_EQ(image->PixelAt({20, 10}), Face());
}

TEST_F(PaintingTest, PartOfAPictureCanBePainted) {
  Form.SetAutoRedraw(true);
  const Picture picture = Square(World.Windows(), {20, 20}, kPlainRed);
  Form.PaintPicture(picture, 150, 150, 75, 150);
  Form.PaintPicture(nullptr, 0, 0);
  const Picture image = Form.Image();
  EXPECT_EQ(image->PixelAt({10, 10}), kPlainRed);
  EXPECT_EQ(image->PixelAt({14, 19}), kPlainRed);
  EXPECT_EQ(image->PixelAt({15, 19}), Face());
  EXPECT_EQ(image->PixelAt({14, 20}), Face());
  Form.PaintPicture(picture, 1500, 0);
  EXPECT_EQ(Form.Image()->PixelAt({119, 19}), kPlainRed);
}

TEST_F(PaintingTest, PixelsAreDrawnInTheInsidesCoordinates) {
  TestForm bordered(World.Windows(), BorderStyle::Raised, "Bordered");
  bordered.Box.SetVisible(false);
  const auto dot = [](Canvas& canvas) { canvas.FillBox({0, 0, 1, 1}, kPlainRed); };
  int drawn = 0;
  bordered.DrawPixels({0, 0, 1, 1}, [&](Canvas&) { ++drawn; });
  EXPECT_EQ(drawn, 0);  // there is nothing to draw on
  bordered.Show();
  Desktop().Pump();
  bordered.DrawPixels({0, 0, 1, 1}, dot);
  EXPECT_EQ(Desktop().Look(bordered.hWnd())->Content->PixelAt({3, 3}), kPlainRed);
  bordered.SetAutoRedraw(true);
  bordered.DrawPixels({0, 0, 1, 1}, dot);
  EXPECT_EQ(bordered.Image()->PixelAt({0, 0}), kPlainRed);
}

TEST_F(PaintingTest, AnEventLoopInsideThePaintHandlerPaintsOnceMore) {
  int handlers = 0;
  Form.Paint = [&] {
    if (++handlers == 1) {
      Form.InvalidateAll();
      World.Windows().DoEvents();
    }
    Form.FillBox(0, 0, 150, 150, handlers == 2 ? kPlainRed : kPlainGreen);
  };
  ShowAndPaint();
  EXPECT_EQ(handlers, 2);
  EXPECT_EQ(At(5, 5), kPlainRed);
}

}  // namespace
}  // namespace corvelle::forms
