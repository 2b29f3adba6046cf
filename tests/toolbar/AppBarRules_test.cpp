// The strip as a bar of the shell: rules by tables.

#include "toolbar/docking/AppBarRules.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

constexpr PixelSize kScreen{1024, 768};

TEST(AppBarRules, TheShellsNumbersOfTheEdges) {
  EXPECT_EQ(ShellEdge(Edge::Left), 0U);
  EXPECT_EQ(ShellEdge(Edge::Top), 1U);
  EXPECT_EQ(ShellEdge(Edge::Right), 2U);
  EXPECT_EQ(ShellEdge(Edge::Bottom), 3U);
}

TEST(AppBarRules, ABarIsAsLongAsItsEdge) {
  EXPECT_EQ(BarSize(Edge::Left, 42, kScreen), (PixelSize{42, 768}));
  EXPECT_EQ(BarSize(Edge::Right, 42, kScreen), (PixelSize{42, 768}));
  EXPECT_EQ(BarSize(Edge::Top, 42, kScreen), (PixelSize{1024, 42}));
  EXPECT_EQ(BarSize(Edge::Bottom, 42, kScreen), (PixelSize{1024, 42}));
}

TEST(AppBarRules, TheRoomIsCutToTheBarAndTheWindowStandsInIt) {
  struct Row {
    const char* name;
    Edge at;
    PixelRect offered;
    bool mayLift;
    PixelRect reserved;
    int lift;
    PixelRect window;
  };
  const Row rows[] = {
      {"left", Edge::Left, {0, 0, 1024, 768}, true, {0, 0, 42, 768}, 0, {0, 0, 42, 768}},
      {"left, above a task bar",
       Edge::Left,
       {0, 0, 1024, 740},
       true,
       {0, 0, 42, 740},
       0,
       {0, 0, 42, 740}},
      {"left, beside another bar",
       Edge::Left,
       {60, 0, 1024, 768},
       true,
       {60, 0, 102, 768},
       0,
       {60, 0, 102, 768}},
      {"right", Edge::Right, {0, 0, 1024, 768}, true, {982, 0, 1024, 768}, 0, {982, 0, 1024, 768}},
      {"right, beside another bar",
       Edge::Right,
       {0, 0, 964, 768},
       true,
       {922, 0, 964, 768},
       0,
       {922, 0, 964, 768}},
      {"bottom",
       Edge::Bottom,
       {0, 0, 1024, 768},
       true,
       {0, 726, 1024, 768},
       0,
       {0, 726, 1024, 768}},
      {"bottom, above a task bar",
       Edge::Bottom,
       {0, 0, 1024, 740},
       true,
       {0, 698, 1024, 740},
       0,
       {0, 698, 1024, 740}},
      {"a free top hides the upper frame",
       Edge::Top,
       {0, 0, 1024, 768},
       true,
       {0, 0, 1024, 39},
       3,
       {0, -3, 1024, 39}},
      {"a free top without the lift",
       Edge::Top,
       {0, 0, 1024, 768},
       false,
       {0, 0, 1024, 42},
       0,
       {0, 0, 1024, 42}},
      {"below another bar",
       Edge::Top,
       {0, 28, 1024, 768},
       true,
       {0, 28, 1024, 70},
       0,
       {0, 28, 1024, 70}},
      // Along its edge the window reaches as far as the answer says, counted from the corner.
      {"left, below another bar",
       Edge::Left,
       {0, 28, 1024, 768},
       true,
       {0, 28, 42, 768},
       0,
       {0, 28, 42, 796}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const PixelSize bar = BarSize(row.at, 42, kScreen);
    const BarPlace place = CutToBar(row.at, row.offered, bar, row.mayLift);
    EXPECT_EQ(place.Reserved, row.reserved);
    EXPECT_EQ(place.Lift, row.lift);
    EXPECT_EQ(BarWindow(row.at, place, bar), row.window);
  }
}

TEST(AppBarRules, OffTheLineThePointerHidesAndOnTheLineItReveals) {
  struct Row {
    const char* name;
    Edge at;
    PixelPoint pointer;
    PixelRect window;
    bool off;
  };
  constexpr PixelRect top{0, 0, 1024, 1};
  constexpr PixelRect bottom{0, 767, 1024, 768};
  constexpr PixelRect left{0, 0, 1, 768};
  constexpr PixelRect right{1023, 0, 1024, 768};
  const Row rows[] = {
      {"top, on", Edge::Top, {500, 0}, top, false},
      {"top, off", Edge::Top, {500, 1}, top, true},
      {"bottom, on", Edge::Bottom, {500, 767}, bottom, false},
      {"bottom, off", Edge::Bottom, {500, 766}, bottom, true},
      {"left, on", Edge::Left, {0, 400}, left, false},
      {"left, off", Edge::Left, {1, 400}, left, true},
      {"right, on", Edge::Right, {1023, 400}, right, false},
      {"right, off", Edge::Right, {1022, 400}, right, true},
      {"screen on the left", Edge::Left, {-1, 400}, left, true},
      {"screen on the right", Edge::Right, {1024, 400}, right, true},
      {"screen above", Edge::Top, {500, -1}, top, true},
      {"screen below", Edge::Bottom, {500, 768}, bottom, true},
      {"in full sight at the bottom", Edge::Bottom, {500, 740}, {0, 726, 1024, 768}, false},
      {"in full sight on the right", Edge::Right, {990, 400}, {982, 0, 1024, 768}, false},
      // Another bar, 30 pixels across, lies outside of the line.
      {"inside of a bar at the top", Edge::Top, {500, 30}, {0, 30, 1024, 31}, false},
      {"over a bar at the top", Edge::Top, {500, 29}, {0, 30, 1024, 31}, true},
      {"inside of a bar at the bottom", Edge::Bottom, {500, 737}, {0, 737, 1024, 738}, false},
      {"over a bar at the bottom", Edge::Bottom, {500, 738}, {0, 737, 1024, 738}, true},
      {"the edge behind a bar", Edge::Bottom, {500, 767}, {0, 737, 1024, 738}, true},
      {"inside of a bar on the left", Edge::Left, {30, 400}, {30, 0, 31, 768}, false},
      {"over a bar on the left", Edge::Left, {29, 400}, {30, 0, 31, 768}, true},
      {"inside of a bar on the right", Edge::Right, {993, 400}, {993, 0, 994, 768}, false},
      {"over a bar on the right", Edge::Right, {994, 400}, {993, 0, 994, 768}, true}};
  for (const Row& row : rows) {
    EXPECT_EQ(PointerIsOff(row.at, row.pointer, row.window, kScreen), row.off) << row.name;
    EXPECT_EQ(PointerReveals(row.at, row.pointer, row.window, kScreen), !row.off) << row.name;
  }
}

TEST(AppBarRules, AThickLineRevealsWithAllItsPixels) {
  constexpr PixelRect top{0, 30, 1024, 34};
  constexpr PixelRect right{990, 0, 994, 768};
  for (int i = -1; i <= 4; ++i) {
    const bool on = i >= 0 && i < 4;
    EXPECT_EQ(PointerReveals(Edge::Top, {500, 30 + i}, top, kScreen), on) << i;
    EXPECT_EQ(PointerReveals(Edge::Bottom, {500, 30 + i}, top, kScreen), on) << i;
    EXPECT_EQ(PointerReveals(Edge::Right, {990 + i, 400}, right, kScreen), on) << i;
    EXPECT_EQ(PointerReveals(Edge::Left, {990 + i, 400}, right, kScreen), on) << i;
  }
}

TEST(AppBarRules, ALineBesideAnotherBarIsAMillimetreThickOnEveryScreen) {
  struct Row {
    float t;
    int pixels;
  };
  for (const auto& [t, pixels] : {Row{15, 4}, {12, 5}, {10, 6}, {7.5F, 8}, {1440.0F / 336, 14}}) {
    const TwipSize twips{t, t};
    for (const Edge at : {Edge::Top, Edge::Bottom, Edge::Left, Edge::Right}) {
      EXPECT_EQ(LineThickness(at, {10, 10, 11, 11}, kScreen, twips), pixels) << t;
      EXPECT_EQ(LineThickness(at, {0, 0, 1024, 768}, kScreen, twips), 1) << t;
    }
  }
  // Of pixels that are not square each edge takes those across it.
  EXPECT_EQ(LineThickness(Edge::Top, {10, 10, 11, 11}, kScreen, {15, 12}), 5);
  EXPECT_EQ(LineThickness(Edge::Left, {10, 10, 11, 11}, kScreen, {15, 12}), 4);
}

TEST(AppBarRules, ALineThatDoesNotTouchItsEdgeIsOff) {
  EXPECT_FALSE(IsOffEdge(Edge::Top, {0, 0, 1024, 1}, kScreen));
  EXPECT_TRUE(IsOffEdge(Edge::Top, {0, 1, 1024, 2}, kScreen));
  EXPECT_FALSE(IsOffEdge(Edge::Bottom, {0, 767, 1024, 768}, kScreen));
  EXPECT_TRUE(IsOffEdge(Edge::Bottom, {0, 766, 1024, 767}, kScreen));
  EXPECT_FALSE(IsOffEdge(Edge::Right, {1023, 0, 1024, 768}, kScreen));
  EXPECT_TRUE(IsOffEdge(Edge::Right, {1022, 0, 1023, 768}, kScreen));
  EXPECT_FALSE(IsOffEdge(Edge::Left, {0, 0, 1, 768}, kScreen));
  EXPECT_TRUE(IsOffEdge(Edge::Left, {1, 0, 2, 768}, kScreen));
}

TEST(AppBarRules, ARevealedStripComesInFromItsEdge) {
  for (const float t : {15.0F, 12.0F, 10.0F}) {
    const TwipSize twips{t, t};
    EXPECT_EQ(RevealedCorner(Edge::Top, {0, 0, 100 * t, 40 * t}, 1, twips), (TwipPoint{0, -3 * t}));
    EXPECT_EQ(RevealedCorner(Edge::Bottom, {0, 767 * t, 100 * t, 40 * t}, 1, twips),
              (TwipPoint{0, 728 * t}));
    EXPECT_EQ(RevealedCorner(Edge::Right, {1023 * t, 0, 40 * t, 700 * t}, 1, twips),
              (TwipPoint{984 * t, 0}));
    EXPECT_EQ(RevealedCorner(Edge::Left, {0, 0, 40 * t, 700 * t}, 1, twips), (TwipPoint{0, 0}));
    // Beside another bar of 28 pixels, out of a line of 4.
    EXPECT_EQ(RevealedCorner(Edge::Top, {0, 28 * t, 100 * t, 40 * t}, 4, twips),
              (TwipPoint{0, 28 * t}));
    EXPECT_EQ(RevealedCorner(Edge::Bottom, {0, 736 * t, 100 * t, 40 * t}, 4, twips),
              (TwipPoint{0, 700 * t}));
    EXPECT_EQ(RevealedCorner(Edge::Right, {992 * t, 0, 40 * t, 700 * t}, 4, twips),
              (TwipPoint{956 * t, 0}));
    EXPECT_EQ(RevealedCorner(Edge::Left, {28 * t, 0, 40 * t, 700 * t}, 4, twips),
              (TwipPoint{28 * t, 0}));
  }
}

TEST(AppBarRules, TheBoxOfSingleButtonsReachesToTheEndOfTheWindow) {
  const TwipRect level{0, 0, 15360, 630};
  const TwipRect upright{0, 0, 630, 11520};
  const TwipRect singles{3000, 30, 200, 570};
  EXPECT_EQ(StretchedSingles(Edge::Top, level, singles, 15), (TwipSize{12330, 570}));
  EXPECT_EQ(StretchedSingles(Edge::Bottom, level, singles, 15), (TwipSize{12330, 570}));
  EXPECT_EQ(StretchedSingles(Edge::Left, upright, {15, 3000, 570, 9}, 15), (TwipSize{570, 8490}));
  // Two of the horizontal pixels on both axes.
  EXPECT_EQ(StretchedSingles(Edge::Right, upright, {15, 3000, 570, 9}, 12), (TwipSize{570, 8496}));
}

TEST(AppBarRules, TheOutlineIsWhereTheStripWouldStand) {
  constexpr TwipSize button{570, 570};
  constexpr TwipSize screen{15360, 11520};
  constexpr TwipSize twips{15, 15};
  EXPECT_EQ(OutlineAt(Edge::Top, button, screen, twips), (TwipRect{0, 0, 15360, 615}));
  EXPECT_EQ(OutlineAt(Edge::Bottom, button, screen, twips), (TwipRect{0, 10890, 15360, 630}));
  EXPECT_EQ(OutlineAt(Edge::Left, button, screen, twips), (TwipRect{0, 0, 615, 11520}));
  EXPECT_EQ(OutlineAt(Edge::Right, button, screen, twips), (TwipRect{14730, 0, 630, 11520}));
}

}  // namespace
}  // namespace corvelle
