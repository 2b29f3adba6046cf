#include "forms/Scale.h"

#include <gtest/gtest.h>

#include "forms/WindowSystem.h"
#include "sim/World.h"

namespace corvelle::forms {
namespace {

TEST(Scale, RoundsTwipsToTheNearestPixelAndHalvesToTheEvenOne) {
  struct Row {
    const char* name;
    float twips;
    float perPixel;
    int pixels;
  };
  const Row rows[] = {
      {"nothing", 0, 15, 0},
      {"whole pixels", 315, 15, 21},
      {"below the half", 7, 15, 0},
      {"a half goes down to the even pixel", 7.5F, 15, 0},
      {"a half goes up to the even pixel", 22.5F, 15, 2},
      {"above the half", 8, 15, 1},
      {"large fonts", 252, 12, 21},
      {"half of a large-font pixel", 6, 12, 0},
      {"one and a half", 18, 12, 2},
      {"left of the screen", -60, 15, -4},
      {"a negative half", -22.5F, 15, -2},
  };
  for (const Row& row : rows) EXPECT_EQ(ToPixels(row.twips, row.perPixel), row.pixels) << row.name;
}

TEST(Scale, NeighboursInTwipsAreNeighboursInPixels) {
  const ScreenInfo screen{.TwipsPerPixelX = 15, .TwipsPerPixelY = 15};
  for (float left = 0; left < 100; left += 0.7F) {
    const PixelRect first = ToPixels(left, 0, 37.3F, 20, screen);
    const PixelRect next = ToPixels(left + 37.3F, 0, 37.3F, 20, screen);
    EXPECT_EQ(first.right, next.left) << left;
  }
}

TEST(Colours, SystemColoursAreLookedUpAndOthersStand) {
  sim::World world;
  EXPECT_EQ(Resolve(world.Windows(), 0x00123456), 0x00123456U);
  EXPECT_EQ(Resolve(world.Windows(), color::ButtonFace), world.Windows().SystemColor(15));
  world.Desktop.SetSystemColor(15, 0x00010203);
  EXPECT_EQ(Resolve(world.Windows(), color::ButtonFace), 0x00010203U);
}

}  // namespace
}  // namespace corvelle::forms
