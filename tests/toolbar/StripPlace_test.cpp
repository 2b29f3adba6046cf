#include "toolbar/layout/StripPlace.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "toolbar/RuleText.h"

namespace corvelle {
namespace {

TEST(CaptionRoom, IsThreeButtonsAndSixPixels) {
  EXPECT_FLOAT_EQ(CaptionRoom(18, 15), 900);
  EXPECT_FLOAT_EQ(CaptionRoom(36, 15), 1710);
  EXPECT_FLOAT_EQ(CaptionRoom(18, 12), 720);
}

TEST(CaptionRoom, Is900WhenTheSystemDoesNotTell) {
  EXPECT_FLOAT_EQ(CaptionRoom(0, 15), 900);
  EXPECT_FLOAT_EQ(CaptionRoom(0, 12), 900);
}

/// A strip of 1350 by 375 on a screen of 1024 pixels: the limit for its right end is 14550.
PositionScene Saved(float left) {
  return {.SavedLeft = left,
          .ScreenWidth = 15360,
          .WindowWidth = 1350,
          .Singles = {1215, 30, 120, 330},
          .ButtonsHeight = 330};
}

TEST(ToolbarPosition, GoldenPlaces) {
  struct Row {
    const char* name;
    float saved;
    float left;
    float savedAfter;
  };
  const Row rows[] = {
      {"no position yet: against the caption buttons", 0, 13110, 13110},
      {"a saved place", 3000, 3000, 3000},
      {"just short of the limit", 13199, 13199, 13199},
      {"at the limit it moves", 13200, 13110, 13110},
      {"past the limit", 14000, 13110, 13110},
      {"beyond the screen", 99999, 13110, 13110},
      {"left of the screen", -500, 0, -500},
      {"a fraction of a pixel from the left", 0.5F, 0.5F, 0.5F},
  };
  for (const Row& row : rows) {
    const StripPosition at = PlaceTopHugging(Saved(row.saved));
    EXPECT_EQ(at.Window, (TwipRect{row.left, -60, 1350, 375}))
        << row.name << ": " << Text(at.Window);
    EXPECT_FLOAT_EQ(at.SavedLeft, row.savedAfter) << row.name;
    EXPECT_FLOAT_EQ(at.SavedTop, -60) << row.name;
  }
}

TEST(ToolbarPosition, TheLeftEndIsStoredAsAPlaceOnTheSamePixel) {
  EXPECT_EQ(StoredLeft(3000), 3000);
  EXPECT_EQ(StoredLeft(-500), -500);
  EXPECT_EQ(StoredLeft(0.5F), 0.5F);
  EXPECT_EQ(StoredLeft(0), 1);
  EXPECT_EQ(StoredLeft(-0.0F), 1);
  EXPECT_EQ(PlaceTopHugging(Saved(StoredLeft(0))).Window.Left, 1);
}

TEST(ToolbarPosition, PastTheLimitLeavesTheCaptionRoomFree) {
  for (float left = 0; left <= 20000; left += 45) {
    const StripPosition at = PlaceTopHugging(Saved(left));
    EXPECT_LT(at.Window.Right(), 14550) << left;
    const float expected = left + 1350 >= 14550 ? 15360 - 1350 - 900 : left;
    EXPECT_FLOAT_EQ(at.Window.Left, left == 0 ? 13110 : expected) << left;
  }
}

TEST(ToolbarPosition, WithLargeSystemFontsAndLargeIcons) {
  const StripPosition at = PlaceTopHugging({.ScreenWidth = 12288,
                                            .TwipsX = 12,
                                            .TwipsY = 12,
                                            .WindowWidth = 1080,
                                            .Singles = {972, 24, 96, 456},
                                            .ButtonsHeight = 456,
                                            .TopCut = 7});
  EXPECT_EQ(at.Window, (TwipRect{10488, -84, 1080, 492})) << Text(at.Window);
  EXPECT_FLOAT_EQ(at.SavedLeft, 10488);
  EXPECT_FLOAT_EQ(at.SavedTop, -84);
}

TEST(ToolbarPosition, AWindowWiderThanTheScreenStartsAtItsLeft) {
  PositionScene scene = Saved(0);
  scene.WindowWidth = 20000;
  EXPECT_FLOAT_EQ(PlaceTopHugging(scene).Window.Left, 0);
}

TEST(ToolbarPosition, WhatIsNoNumberCountsAsNoPosition) {
  for (const float value :
       {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
        -std::numeric_limits<float>::infinity()}) {
    EXPECT_FLOAT_EQ(PlaceTopHugging(Saved(value)).Window.Left, 13110);
  }
}

SlideScene Bare(float left) {
  return {.Left = left, .Width = 1350, .ButtonsWidth = 1080, .ScreenWidth = 15360};
}

SlideScene WithSingles(float left) {
  return {
      .Left = left, .Width = 1860, .ButtonsWidth = 1080, .SingleCount = 3, .ScreenWidth = 15360};
}

TEST(SlideEnd, GoldenPlaces) {
  SlideScene bareFree = Bare(13000);
  bareFree.MayPassRight = true;
  SlideScene singlesFree = WithSingles(20000);
  singlesFree.MayPassRight = true;
  SlideScene leftFree = Bare(-300);
  leftFree.MayPassLeft = true;
  SlideScene unknownRoom = WithSingles(13000);
  unknownRoom.CaptionButtonWidth = 0;
  SlideScene wide = WithSingles(-200);
  wide.Width = 16000;
  wide.MayPassLeft = true;
  SlideScene wideFree = wide;
  wideFree.MayPassRight = true;
  SlideScene exact = Bare(0);
  exact.Width = 15360;
  exact.Left = -15;
  exact.MayPassRight = true;
  exact.MayPassLeft = true;
  struct Row {
    const char* name;
    SlideScene scene;
    float expected;
  };
  const Row rows[] = {
      {"inside", Bare(5000), 5000},
      {"no single buttons: at the limit", Bare(12530), 12530},
      {"no single buttons: just short of it", Bare(12529.5F), 12529.5F},
      {"no single buttons: past it", Bare(12531), 12530},
      {"no single buttons: far past it", Bare(15000), 12530},
      {"option 13 lets it go", bareFree, 13000},
      {"single buttons: at the limit", WithSingles(12600), 12600},
      {"single buttons: past it", WithSingles(12601), 12600},
      {"single buttons: option 13 lets it go", singlesFree, 20000},
      {"unknown caption buttons", unknownRoom, 12600},
      {"left of the screen", Bare(-300), 0},
      {"a fraction of a pixel from the left", Bare(0.5F), 0.5F},
      {"option 27 lets it go", leftFree, -300},
      {"wider than the screen", wide, 0},
      {"wider than the screen, both ways free", wideFree, 0},
      {"as wide as the screen is not wider", exact, -15},
  };
  for (const Row& row : rows) EXPECT_FLOAT_EQ(SlideEnd(row.scene), row.expected) << row.name;
}

TEST(SlideEnd, WithLargeSystemFonts) {
  SlideScene scene{.Left = 12000,
                   .Width = 1488,
                   .ButtonsWidth = 864,
                   .SingleCount = 1,
                   .ScreenWidth = 12288,
                   .TwipsX = 12};
  EXPECT_FLOAT_EQ(SlideEnd(scene), 10080);
}

TEST(SlideEnd, NeverLeavesTheLimitsWhateverTheSlide) {
  for (const int singles : {0, 1}) {
    for (float width = 300; width <= 16000; width += 785) {
      for (float left = -16000; left <= 32000; left += 245) {
        const SlideScene scene{.Left = left,
                               .Width = width,
                               .ButtonsWidth = width - 270,
                               .SingleCount = singles,
                               .ScreenWidth = 15360};
        const float end = SlideEnd(scene);
        EXPECT_GE(end, 0) << left << ' ' << width;
        const float limit = singles == 0 ? 15360 - 1750 - scene.ButtonsWidth : 15360 - 900 - width;
        EXPECT_LE(end, std::max(limit, 0.0F)) << left << ' ' << width;
      }
    }
  }
}

TEST(Slide, TheWindowFollowsThePointerByWhereItWasGrabbed) {
  // Grabbed at 1150 in the window, 70 right of the box; the pointer is at 1300 now.
  EXPECT_FLOAT_EQ(SlideLeft(1300, 3000, 1080, 70), 3150);
  EXPECT_FLOAT_EQ(SlideLeft(1150, 3000, 1080, 70), 3000);
}

TEST(Slide, IsAlongTheTopOnlyWhileThePointerStaysInTheHeightOfATopHuggingStrip) {
  struct Row {
    const char* name;
    float y;
    Placement where;
    Edge at;
    bool expected;
  };
  const Row rows[] = {
      {"inside", 100, Placement::TopHugging, Edge::Top, true},
      {"upper side", 0, Placement::TopHugging, Edge::Top, true},
      {"lower side", 375, Placement::TopHugging, Edge::Top, true},
      {"below", 376, Placement::TopHugging, Edge::Top, false},
      {"above", -1, Placement::TopHugging, Edge::Top, false},
      {"docked", 100, Placement::AtEdge, Edge::Top, false},
      {"another edge", 100, Placement::AtEdge, Edge::Bottom, false},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(SlidesAlongTop(row.y, 375, row.where, row.at), row.expected) << row.name;
  }
}

TEST(FrameMoved, TakesMoreThanThreePixelsOnEitherAxis) {
  struct Row {
    TwipPoint now;
    bool expected;
  };
  const Row rows[] = {{{500, 200}, false}, {{545, 200}, false}, {{546, 200}, true},
                      {{455, 200}, false}, {{454, 200}, true},  {{500, 236}, false},
                      {{500, 237}, true},  {{500, 164}, false}, {{500, 163}, true}};
  for (const Row& row : rows) {
    EXPECT_EQ(FrameHasMoved({500, 200}, row.now, 15, 12), row.expected)
        << row.now.X << ", " << row.now.Y;
  }
}

TEST(ChooseEdge, CutsTheScreenAlongItsDiagonals) {
  struct Row {
    const char* name;
    PixelPoint pointer;
    PixelSize screen;
    Edge expected;
  };
  const PixelSize wide{1024, 768};
  const Row rows[] = {
      {"above", {512, 0}, wide, Edge::Top},
      {"below", {512, 767}, wide, Edge::Bottom},
      {"left", {0, 384}, wide, Edge::Left},
      {"right", {1023, 384}, wide, Edge::Right},
      {"upper left diagonal", {256, 192}, wide, Edge::Left},
      {"lower left diagonal", {256, 576}, wide, Edge::Left},
      {"upper right diagonal", {768, 192}, wide, Edge::Right},
      {"lower right diagonal", {768, 576}, wide, Edge::Right},
      {"a pixel above the diagonal", {257, 192}, wide, Edge::Top},
      {"a pixel below the diagonal", {257, 576}, wide, Edge::Bottom},
      {"upper left corner", {0, 0}, wide, Edge::Left},
      {"the middle", {512, 384}, wide, Edge::Right},
      {"odd size: the middle is whole pixels", {683, 384}, {1367, 769}, Edge::Right},
      {"odd size: straight above it", {683, 383}, {1367, 769}, Edge::Top},
      {"upright screen", {100, 300}, {768, 1024}, Edge::Left},
      {"many large screens", {0, 1}, {100000, 60000}, Edge::Left},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ChooseEdge(row.pointer, row.screen), row.expected) << row.name;
  }
}

TEST(MenuPosition, GoldenSpots) {
  const TwipRect lying{0, -45, 15360, 375};
  struct Row {
    const char* name;
    MenuSpotScene scene;
    MenuSpot expected;
  };
  const Row rows[] = {
      {"docked top overlaps the border by one pixel",
       {.Window = lying, .ButtonLeft = 360},
       {375, 315}},
      {"docked top beside another bar",
       {.Window = {600, 0, 14000, 375}, .ButtonLeft = 360},
       {975, 360}},
      {"docked bottom stands on the strip",
       {.At = Edge::Bottom,
        .Window = {0, 11130, 15360, 390},
        .ButtonLeft = 720,
        .MenuHeight = 3000},
       {735, 8130}},
      {"docked left",
       {.At = Edge::Left,
        .Window = {0, 0, 375, 11520},
        .ButtonTop = 330,
        .MenuWidth = 2000,
        .MenuHeight = 3000,
        .ScreenHeight = 11520},
       {375, 330}},
      {"docked left under another bar",
       {.At = Edge::Left,
        .Window = {0, 450, 375, 11070},
        .ButtonTop = 660,
        .MenuHeight = 3000,
        .ScreenHeight = 11520},
       {375, 1110}},
      {"docked left, ends at the screen's foot",
       {.At = Edge::Left,
        .Window = {0, 0, 375, 11520},
        .ButtonTop = 8520,
        .MenuHeight = 3000,
        .ScreenHeight = 11520},
       {375, 8520}},
      {"docked left, would pass the screen's foot",
       {.At = Edge::Left,
        .Window = {0, 0, 375, 11520},
        .ButtonTop = 8535,
        .MenuHeight = 3000,
        .ScreenHeight = 11520},
       {375, 8520}},
      {"docked right",
       {.At = Edge::Right,
        .Window = {14970, 0, 390, 11520},
        .ButtonTop = 660,
        .MenuWidth = 2000,
        .MenuHeight = 3000,
        .ScreenHeight = 11520},
       {12970, 660}},
      {"docked right under another bar",
       {.At = Edge::Right,
        .Window = {14970, 450, 390, 11070},
        .ButtonTop = 10000,
        .MenuWidth = 2000,
        .MenuHeight = 3000,
        .ScreenHeight = 11520},
       {12970, 8520}},
      {"top-hugging sits flush",
       {.Where = Placement::TopHugging, .Window = {3000, -60, 1350, 375}, .ButtonLeft = 360},
       {3375, 315}},
      {"top-hugging may pass the screen's right side",
       {.Where = Placement::TopHugging, .Window = {15000, -60, 1350, 375}, .MenuWidth = 2000},
       {15015, 315}},
      {"large system fonts",
       {.Window = {0, -36, 12288, 300}, .ButtonLeft = 288, .TwipsX = 12, .TwipsY = 12},
       {300, 252}},
  };
  for (const Row& row : rows) {
    const MenuSpot spot = MenuPosition(row.scene);
    EXPECT_EQ(spot, row.expected) << row.name << ": " << spot.Left << ", " << spot.Top;
  }
}

TEST(MenuPosition, BesideAVerticalStripAMenuThatFitsStaysOnTheScreen) {
  for (const Edge edge : {Edge::Left, Edge::Right}) {
    for (float buttonTop = 0; buttonTop <= 11190; buttonTop += 330) {
      for (float height = 480; height <= 11520; height += 240) {
        const MenuSpot spot = MenuPosition({.At = edge,
                                            .Window = {0, 0, 375, 11520},
                                            .ButtonTop = buttonTop,
                                            .MenuHeight = height,
                                            .ScreenHeight = 11520});
        EXPECT_GE(spot.Top, 0) << buttonTop << ' ' << height;
        EXPECT_LE(spot.Top + height, 11520) << buttonTop << ' ' << height;
      }
    }
  }
}

}  // namespace
}  // namespace corvelle
