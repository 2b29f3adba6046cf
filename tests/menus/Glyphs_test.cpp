#include "menus/Glyphs.h"

#include <gtest/gtest.h>

#include "forms/Graphic.h"
#include "sim/World.h"

namespace corvelle {
namespace {

TEST(Glyphs, EveryKeyGivesAPictureOfItsSizeInSystemColours) {
  struct Row {
    const char* key;
    PixelSize size;
    forms::OleColor colour;
  };
  const Row rows[] = {
      {"up", {9, 5}, forms::color::ButtonText},       {"up2", {10, 6}, forms::color::GrayText},
      {"down", {9, 5}, forms::color::ButtonText},     {"down2", {10, 6}, forms::color::GrayText},
      {"circle", {16, 16}, forms::color::ButtonText}, {"new", {16, 16}, forms::color::Highlight},
      {"cust", {16, 16}, forms::color::Highlight},    {"help", {16, 16}, forms::color::Highlight},
  };
  sim::World world;
  for (const Row& row : rows) {
    EXPECT_EQ(GlyphSize(row.key), row.size) << row.key;
    const Picture picture = MakeGlyph(world.Windows(), row.key);
    ASSERT_NE(picture, nullptr) << row.key;
    const auto* canvas = dynamic_cast<const sim::SimCanvas*>(picture.get());
    ASSERT_NE(canvas, nullptr) << row.key;
    const PixelRect whole{0, 0, row.size.width, row.size.height};
    EXPECT_TRUE(canvas->Shows(forms::Resolve(world.Windows(), row.colour), whole)) << row.key;
    EXPECT_TRUE(canvas->Shows(forms::Image::kMask, whole)) << row.key;
  }
}

TEST(Glyphs, AreTransparent) {
  sim::World world;
  sim::SimCanvas canvas({20, 20});
  canvas.FillBox({0, 0, 20, 20}, 0x00123456);
  EXPECT_TRUE(DrawGlyph(canvas, world.Windows(), "up", {2, 3}));
  EXPECT_EQ(canvas.PixelAt({2, 3}), 0x00123456U);
  EXPECT_EQ(canvas.PixelAt({6, 3}), forms::Resolve(world.Windows(), forms::color::ButtonText));
}

TEST(Glyphs, AnUnknownKeyDrawsNothing) {
  sim::World world;
  sim::SimCanvas canvas({20, 20});
  EXPECT_FALSE(DrawGlyph(canvas, world.Windows(), "sideways", {0, 0}));
  EXPECT_EQ(GlyphSize("sideways"), PixelSize{});
  EXPECT_EQ(MakeGlyph(world.Windows(), "sideways"), nullptr);
}

}  // namespace
}  // namespace corvelle
