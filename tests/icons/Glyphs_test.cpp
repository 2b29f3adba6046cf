#include "icons/Glyphs.h"

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
      {"up", {9, 5}, forms::color::ButtonText},
      {"up2", {10, 6}, forms::color::GrayText},
      {"down", {9, 5}, forms::color::ButtonText},
      {"down2", {10, 6}, forms::color::GrayText},
      {"circle", {16, 16}, forms::color::ButtonText},
      {"new", {16, 16}, forms::color::Highlight},
      {"cust", {16, 16}, forms::color::Highlight},
      {"help", {16, 16}, forms::color::Highlight},
      {"hand", {16, 16}, forms::color::Highlight3D},
      {"tm", {16, 16}, forms::color::Highlight},
      {"button", {16, 16}, forms::color::ButtonFace},
      {"qmark", {16, 16}, forms::color::Highlight},
      {"unknown", {16, 16}, forms::color::ButtonText},
      {"missing", {16, 16}, 0x2020D0},
      {"sep", {16, 16}, forms::color::ButtonShadow},
      {"move up", {16, 16}, forms::color::Highlight},
      {"move down", {16, 16}, forms::color::Highlight},
      {"cut", {16, 16}, forms::color::ButtonText},
      {"copy", {16, 16}, forms::color::Highlight},
      {"paste", {16, 16}, forms::color::Highlight},
      {"delete", {16, 16}, forms::color::ButtonText},
      {"undo", {16, 16}, forms::color::Highlight},
      {"document", {16, 16}, forms::color::ButtonText},
      {"folder", {16, 16}, forms::color::ButtonFace},
      {"program", {16, 16}, forms::color::Highlight},
      {"link", {16, 16}, forms::color::ButtonText},
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

TEST(Glyphs, TakeTheSystemsNewColours) {
  sim::World world;
  for (const char* key : {"up", "up2", "down", "down2", "circle"}) {
    const PixelSize size = GlyphSize(key);
    const PixelRect whole{0, 0, size.width, size.height};
    constexpr Rgb kNew[] = {0x00010203, 0x00040506, 0x00070809};
    world.Desktop.SetSystemColor(18, kNew[0]);
    world.Desktop.SetSystemColor(20, kNew[1]);
    world.Desktop.SetSystemColor(17, kNew[2]);
    const Picture picture = MakeGlyph(world.Windows(), key);
    const auto& canvas = dynamic_cast<const sim::SimCanvas&>(*picture);
    const bool dimmed = std::string_view(key).ends_with('2');
    EXPECT_EQ(canvas.Shows(kNew[0], whole), !dimmed) << key;
    EXPECT_EQ(canvas.Shows(kNew[2], whole), dimmed) << key;
    EXPECT_TRUE(!dimmed || canvas.Shows(kNew[1], whole)) << key;
  }
}

TEST(Glyphs, CanBeDrawnLarger) {
  sim::World world;
  const Picture one = MakeGlyph(world.Windows(), "hand");
  const Picture two = MakeGlyph(world.Windows(), "hand", 2);
  ASSERT_EQ(two->Size(), (PixelSize{32, 32}));
  for (int y = 0; y < 32; ++y) {
    for (int x = 0; x < 32; ++x) {
      ASSERT_EQ(two->PixelAt({x, y}), one->PixelAt({x / 2, y / 2})) << x << ',' << y;
    }
  }
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
