#include "forms/Graphic.h"

#include <gtest/gtest.h>

#include "TestForm.h"
#include "sim/World.h"

namespace corvelle::forms {
namespace {

constexpr Rgb kRed = 0x000000FF;
constexpr Rgb kGreen = 0x0000FF00;

struct GraphicTest : testing::Test {
  sim::World World;
  TestForm Form{World.Windows()};
  sim::SimCanvas Sheet{{100, 50}};

  [[nodiscard]] Rgb At(int x, int y) const { return Sheet.PixelAt({x, y}); }
};

TEST_F(GraphicTest, AnAutoSizedLabelIsAsLargeAsItsText) {
  Label label(Form, "Label");
  label.SetAutoSize(true);
  label.SetCaption("four");
  EXPECT_EQ(label.Width(), 4 * 6 * 15.0F);
  EXPECT_EQ(label.Height(), 13 * 15.0F);
  label.SetCaption("");
  EXPECT_EQ(label.Width(), 0.0F);
  EXPECT_EQ(label.Height(), 13 * 15.0F);
  label.SetCaption("four");
  label.SetFont({.Bold = true});
  EXPECT_EQ(label.Width(), 4 * 7 * 15.0F);
}

TEST(LargeFonts, MakeTextLarger) {
  sim::World world({.TwipsPerPixel = 12});
  TestForm form(world.Windows());
  Label label(form, "Label");
  label.SetAutoSize(true);
  label.SetCaption("four");
  EXPECT_EQ(label.Width(), 4 * 7 * 12.0F);
  EXPECT_EQ(label.Height(), 16 * 12.0F);
}

TEST_F(GraphicTest, ALabelOfItsOwnSizeKeepsIt) {
  Label label(Form, "Label");
  label.Move(0, 0, 600, 300);
  label.SetCaption("a long caption");
  EXPECT_EQ(label.Width(), 600.0F);
  label.SetAutoSize(true);
  EXPECT_EQ(label.Width(), 14 * 6 * 15.0F);
}

TEST_F(GraphicTest, CaptionsShowDoubledAmpersandsOnceAndSingleOnesNot) {
  struct Row {
    const char* caption;
    int characters;
  };
  const Row rows[] = {{"a&&b", 3}, {"a&b", 2}, {"&&&&", 2}, {"&", 0}, {"&&", 1}, {"a&", 1}};
  Label label(Form, "Label");
  label.SetAutoSize(true);
  for (const Row& row : rows) {
    label.SetCaption(row.caption);
    EXPECT_EQ(label.Width(), static_cast<float>(row.characters) * 6 * 15) << row.caption;
    EXPECT_EQ(label.Caption(), row.caption);
  }
}

TEST_F(GraphicTest, ALabelDrawsItsTextInItsColourOnATransparentGround) {
  Sheet.FillBox({0, 0, 100, 50}, kGreen);
  Label label(Form, "Label");
  label.SetAutoSize(true);
  label.SetCaption("text");
  label.SetForeColor(kRed);
  label.Move(150, 150, label.Width(), label.Height());
  label.Paint(Sheet);
  EXPECT_TRUE(Sheet.Shows(kRed, {10, 10, 34, 23}));
  EXPECT_EQ(At(10, 10), kGreen);
  EXPECT_FALSE(Sheet.Shows(kRed, {0, 0, 10, 50}));
  EXPECT_FALSE(Sheet.Shows(kRed, {34, 0, 100, 50}));
}

TEST_F(GraphicTest, ALabelOfItsOwnSizeDrawsNothingBeyondIt) {
  Label label(Form, "Label");
  label.SetForeColor(kRed);
  label.SetCaption("\xC3\xA4\xC3\xB6\xC3\xBC");
  label.Move(0, 0, 13 * 15, 300);
  label.Paint(Sheet);
  EXPECT_TRUE(Sheet.Shows(kRed, {6, 0, 12, 20}));
  EXPECT_FALSE(Sheet.Shows(kRed, {12, 0, 100, 50}));
  label.SetCaption("a");
  label.SetWidth(15);
  Sheet.FillBox({0, 0, 100, 50}, 0);
  label.Paint(Sheet);
  EXPECT_FALSE(Sheet.Shows(kRed, {0, 0, 100, 50}));
}

TEST_F(GraphicTest, ALineGoesFromItsFirstPointUpToItsLast) {
  Line line(Form, "Line");
  line.SetBorderColor(kRed);
  line.SetPoints(150, 300, 300, 300);
  line.Paint(Sheet);
  EXPECT_EQ(At(9, 20), 0U);
  EXPECT_EQ(At(10, 20), kRed);
  EXPECT_EQ(At(19, 20), kRed);
  EXPECT_EQ(At(20, 20), 0U);
}

TEST_F(GraphicTest, EachEndOfALineIsRoundedByItselfHalvesToEven) {
  Line line(Form, "Line");
  line.SetBorderColor(kRed);
  line.SetPoints(7.5F, 22.5F, 67.5F, 22.5F);  // 0.5, 1.5 and 4.5 pixels
  line.Paint(Sheet);
  EXPECT_EQ(At(0, 2), kRed);
  EXPECT_EQ(At(3, 2), kRed);
  EXPECT_EQ(At(4, 2), 0U);
}

TEST_F(GraphicTest, ThePlaceOfALineIsThatOfItsPoints) {
  Line line(Form, "Line");
  line.SetPoints(300, 450, 150, 150);
  EXPECT_EQ(line.Left(), 150.0F);
  EXPECT_EQ(line.Top(), 150.0F);
  EXPECT_EQ(line.Width(), 150.0F);
  EXPECT_EQ(line.Height(), 300.0F);
  line.Move(0, 0, 9, 9);
  EXPECT_EQ(line.X1(), 150.0F);
  EXPECT_EQ(line.Y1(), 300.0F);
  EXPECT_EQ(line.X2(), 0.0F);
  EXPECT_EQ(line.Y2(), 0.0F);
  EXPECT_EQ(line.Width(), 150.0F);
}

TEST_F(GraphicTest, AShapeFillsItsBounds) {
  Shape shape(Form, "Shape");
  shape.SetFillColor(kRed);
  shape.Move(150, 150, 150, 75);
  shape.Paint(Sheet);
  EXPECT_EQ(At(10, 10), kRed);
  EXPECT_EQ(At(19, 14), kRed);
  EXPECT_EQ(At(20, 14), 0U);
  EXPECT_EQ(At(19, 15), 0U);
}

TEST_F(GraphicTest, AnImageTakesItsPicturesSizeAndLeavesOutTheMask) {
  auto canvas = World.Windows().CreateCanvas({4, 3});
  canvas->FillBox({0, 0, 4, 3}, Image::kMask);
  canvas->FillBox({1, 0, 3, 2}, kRed);
  canvas->FillBox({0, 2, 1, 3}, kRed);
  canvas->FillBox({3, 2, 4, 3}, kRed);
  Image image(Form, "Image");
  image.SetPicture(std::move(canvas));
  EXPECT_EQ(image.Width(), 60.0F);
  EXPECT_EQ(image.Height(), 45.0F);
  image.Move(150, 150, image.Width(), image.Height());
  Sheet.FillBox({0, 0, 100, 50}, kGreen);
  image.Paint(Sheet);
  const char* expected[] = {".##.", ".##.", "#..#"};
  for (int y = 0; y < 3; ++y) {
    for (int x = 0; x < 4; ++x) {
      EXPECT_EQ(At(10 + x, 10 + y), expected[y][x] == '#' ? kRed : kGreen) << x << "," << y;
    }
  }
}

TEST_F(GraphicTest, AnImageWithoutAPictureKeepsItsSizeAndShowsNothing) {
  Image image(Form, "Image");
  image.Move(0, 0, 300, 300);
  image.Paint(Sheet);
  EXPECT_EQ(image.Width(), 300.0F);
  EXPECT_FALSE(Sheet.Shows(kRed, {0, 0, 100, 50}));
  image.SetPicture(World.Windows().CreateCanvas({2, 2}));
  EXPECT_EQ(image.Width(), 30.0F);
  image.SetPicture(nullptr);
  EXPECT_EQ(image.Width(), 30.0F);
  image.Paint(Sheet);
}

TEST_F(GraphicTest, ContainersKnowTheirControlsFromBackToFront) {
  Label a(Form, "A");
  {
    Label b(Form, "B");
    EXPECT_EQ(Form.Graphics(), (std::vector<Graphic*>{&a, &b}));
    b.ZOrder(ZPlace::Back);
    EXPECT_EQ(Form.Graphics(), (std::vector<Graphic*>{&b, &a}));
    b.ZOrder(ZPlace::Front);
    EXPECT_EQ(Form.Graphics(), (std::vector<Graphic*>{&a, &b}));
    Label c(Form, "C");
    a.ZOrder(ZPlace::Front);
    EXPECT_EQ(Form.Graphics(), (std::vector<Graphic*>{&b, &c, &a}));
    a.ZOrder(ZPlace::Back);
    EXPECT_EQ(Form.Graphics(), (std::vector<Graphic*>{&a, &b, &c}));
  }
  EXPECT_EQ(Form.Graphics(), (std::vector<Graphic*>{&a}));
}

TEST_F(GraphicTest, PartsOfAnImageThatAreAsWideButApartStayApart) {
  auto canvas = World.Windows().CreateCanvas({2, 3});
  canvas->FillBox({0, 0, 2, 3}, kRed);
  canvas->FillBox({0, 1, 2, 2}, Image::kMask);
  Image image(Form, "Image");
  image.SetPicture(std::move(canvas));
  Sheet.FillBox({0, 0, 100, 50}, kGreen);
  image.Paint(Sheet);
  EXPECT_EQ(At(0, 0), kRed);
  EXPECT_EQ(At(0, 1), kGreen);
  EXPECT_EQ(At(0, 2), kRed);
}

}  // namespace
}  // namespace corvelle::forms
