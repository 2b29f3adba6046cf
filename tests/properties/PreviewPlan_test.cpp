#include "properties/PreviewPlan.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

using forms::color::ButtonFace;
using forms::color::ButtonShadow;
using forms::color::DarkShadow3D;
using forms::color::Highlight3D;

/// As the system measures and scales at a number of dots an inch.
PreviewScene SceneAt(int dpi) {
  const auto scaled = [dpi](int pixels) { return pixels * dpi / 96; };
  return {.Box = {scaled(220), scaled(165)},
          .Dpi = dpi,
          .StartText = {scaled(24), scaled(13)},
          .ClockText = {scaled(50), scaled(13)},
          .IconSize = scaled(32)};
}

void ExpectRect(const PixelRect& is, const PixelRect& expected, const std::string& what) {
  EXPECT_TRUE(is == expected) << what << ": " << is.left << "," << is.top << "," << is.right << ","
                              << is.bottom;
}

TEST(PreviewPlan, GoldenPlacesAtEachScale) {
  struct Row {
    int dpi;
    PixelRect bar;
    PixelRect start;
    PixelRect clock;
  };
  const Row rows[] = {
      {96, {2, 136, 218, 164}, {5, 139, 41, 161}, {153, 139, 215, 161}},
      {120, {2, 170, 273, 205}, {6, 174, 52, 201}, {191, 174, 269, 201}},
      {144, {2, 204, 328, 246}, {7, 209, 61, 241}, {230, 209, 323, 241}},
  };
  for (const Row& row : rows) {
    const PreviewScene scene = SceneAt(row.dpi);
    const std::string name = std::to_string(row.dpi);
    ExpectRect(PreviewTaskbar(scene), row.bar, name + " bar");
    ExpectRect(PreviewStart(scene), row.start, name + " start");
    ExpectRect(PreviewClock(scene), row.clock, name + " clock");
  }
}

TEST(PreviewPlan, TheBarIsRaisedAndTheClockSunken) {
  const PreviewPlan plan = PlanPreview({});
  ASSERT_EQ(plan.Boxes.size(), 2U);
  EXPECT_TRUE(plan.Boxes[0].Area == (PixelRect{0, 0, 220, 165}));
  EXPECT_EQ(plan.Boxes[1].Colour, ButtonFace);
  const PreviewLine bar[] = {
      {{2, 136}, {217, 136}, Highlight3D},  {{2, 136}, {2, 163}, Highlight3D},
      {{2, 163}, {217, 163}, DarkShadow3D}, {{217, 136}, {217, 163}, DarkShadow3D},
      {{3, 162}, {216, 162}, ButtonShadow}, {{216, 137}, {216, 162}, ButtonShadow},
  };
  ASSERT_EQ(plan.Lines.size(), 16U);
  for (std::size_t i = 0; i < std::size(bar); ++i) EXPECT_TRUE(plan.Lines[i] == bar[i]) << i;
  // The button in it has the same edges, the clock the opposite ones.
  EXPECT_TRUE(plan.Lines[6] == (PreviewLine{{5, 139}, {40, 139}, Highlight3D}));
  EXPECT_TRUE(plan.Lines[12] == (PreviewLine{{153, 139}, {214, 139}, ButtonShadow}));
  EXPECT_TRUE(plan.Lines[14] == (PreviewLine{{153, 160}, {214, 160}, Highlight3D}));
}

TEST(PreviewPlan, TheClockNeverShowsTheTime) {
  const PreviewPlan plan = PlanPreview({});
  ASSERT_EQ(plan.Texts.size(), 2U);
  EXPECT_TRUE(plan.Texts[0] == (PreviewText{{11, 143}, "Start"}));
  EXPECT_TRUE(plan.Texts[1] == (PreviewText{{159, 143}, "12:45 PM "}));
}

TEST(PreviewPlan, AllOfItLiesInsideThePicture) {
  for (const int dpi : {96, 120, 144, 192}) {
    const PreviewScene scene = SceneAt(dpi);
    const PixelRect all{0, 0, scene.Box.width, scene.Box.height};
    for (const PreviewLine& line : PlanPreview(scene).Lines) {
      EXPECT_TRUE(all.Contains(line.From) && all.Contains(line.To)) << dpi;
      EXPECT_TRUE(line.From.x == line.To.x || line.From.y == line.To.y) << dpi;
    }
  }
}

TEST(PreviewSize, HasTheShapeOfTheScreen) {
  struct Row {
    PixelSize screen;
    PixelSize room;
    PixelSize expected;
  };
  const Row rows[] = {{{1024, 768}, {220, 165}, {220, 165}},
                      {{1920, 1080}, {220, 165}, {220, 124}},
                      {{768, 1024}, {220, 165}, {124, 165}},
                      {{0, 0}, {220, 165}, {220, 165}}};
  for (const Row& row : rows) {
    EXPECT_TRUE(PreviewSize(row.screen, row.room) == row.expected) << row.screen.width;
  }
}

TEST(DistinctIcons, EachIndexOnceAndNoOtherTexts) {
  EXPECT_EQ(DistinctIcons({"3", " 7 ", "3", "", "x.ico", "-1", "7", "0"}),
            (std::vector<int>{3, 7, 0}));
  EXPECT_TRUE(DistinctIcons({}).empty());
}

TEST(IconGrid, GoesDownToTheBarAndThenToTheNextColumn) {
  const std::vector<PixelPoint> places = IconGrid({}, 5);
  const PixelPoint expected[] = {{6, 6}, {6, 44}, {6, 82}, {44, 6}, {44, 44}};
  ASSERT_EQ(places.size(), 5U);
  for (std::size_t i = 0; i < 5; ++i) EXPECT_TRUE(places[i] == expected[i]) << i;
}

TEST(IconGrid, EndsAtTheRightSideAndNeverTouchesTheBar) {
  for (const int dpi : {96, 120, 144}) {
    const PreviewScene scene = SceneAt(dpi);
    const std::vector<PixelPoint> places = IconGrid(scene, 1000);
    EXPECT_EQ(places.size(), 15U) << dpi;
    for (const PixelPoint& at : places) {
      EXPECT_LE(at.y + scene.IconSize, PreviewTaskbar(scene).top) << dpi;
      EXPECT_LE(at.x + scene.IconSize, scene.Box.width) << dpi;
    }
  }
  EXPECT_TRUE(IconGrid({}, 0).empty());
  EXPECT_TRUE(IconGrid({.Box = {20, 20}}, 9).empty());
}

TEST(PreviewStrip, StandsAtItsEdgeAboveTheTaskBar) {
  struct Row {
    Edge edge;
    PixelRect expected;
  };
  const Row rows[] = {{Edge::Top, {0, 0, 220, 8}},
                      {Edge::Bottom, {0, 128, 220, 136}},
                      {Edge::Left, {0, 0, 8, 136}},
                      {Edge::Right, {212, 0, 220, 136}}};
  for (const Row& row : rows) {
    ExpectRect(PreviewStrip({}, row.edge, 40, 1024), row.expected, std::string(EdgeText(row.edge)));
  }
  // A hidden strip is a line of one pixel; here it is to be seen.
  ExpectRect(PreviewStrip({}, Edge::Top, 1, 1024), {0, 0, 220, 6}, "line");
  ExpectRect(PreviewStrip({}, Edge::Top, 1, 0), {0, 0, 220, 6}, "no screen");
}

TEST(PreviewStrip, HasButtonsAlongItsFirstHalf) {
  const PreviewPlan level = PlanStrip({0, 0, 220, 8});
  ASSERT_GT(level.Boxes.size(), 3U);
  EXPECT_EQ(level.Boxes[0].Colour, ButtonFace);
  EXPECT_TRUE(level.Boxes[1].Area == (PixelRect{4, 2, 8, 6}));
  EXPECT_TRUE(level.Boxes[2].Area == (PixelRect{10, 2, 14, 6}));
  const PreviewPlan upright = PlanStrip({212, 0, 220, 136});
  EXPECT_TRUE(upright.Boxes[1].Area == (PixelRect{214, 4, 218, 8}));
}

}  // namespace
}  // namespace corvelle
