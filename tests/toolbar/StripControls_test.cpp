#include <gtest/gtest.h>

#include "toolbar/RuleText.h"
#include "toolbar/layout/StripLayout.h"

namespace corvelle {
namespace {

/// Three buttons of 22 pixels at 15 twips, lying or upright, on a screen of 1024 by 768.
ControlsScene Lying(Placement where, Edge at) {
  return {.Where = where,
          .At = at,
          .Template = {330, 330},
          .LastButton = {720, 0, 345, 330},
          .Buttons = {0, 0, 1080, 330},
          .Singles = {0, 0, 5000, 77},
          .Window = {2000, 7, 15360, 33}};
}

ControlsScene Upright(Edge at) {
  return {.Where = Placement::AtEdge,
          .At = at,
          .Template = {330, 330},
          .LastButton = {15, 660, 330, 330},
          .Buttons = {0, 0, 330, 1005},
          .Singles = {0, 0, 77, 4000},
          .Window = {7, 0, 33, 11520}};
}

void ExpectControls(const char* name, const StripControls& actual, const StripControls& expected) {
  EXPECT_EQ(actual.Buttons, expected.Buttons) << name << ": " << Text(actual.Buttons);
  EXPECT_EQ(actual.Singles, expected.Singles) << name << ": " << Text(actual.Singles);
  EXPECT_EQ(actual.Grip, expected.Grip) << name << ": " << Text(actual.Grip);
  EXPECT_EQ(actual.Window, expected.Window) << name << ": " << Text(actual.Window);
}

TEST(SetControls, TopHuggingWithoutSingleButtons) {
  ExpectControls("small icons", SetControlsRule(Lying(Placement::TopHugging, Edge::Top)),
                 {.Buttons = {15, 30, 1080, 330},
                  .Singles = {1215, 30, 120, 330},
                  .Grip = {1095, 0, 120, 375},
                  .Window = {2000, -60, 1350, 375}});
}

TEST(SetControls, TopHuggingWithSingleButtonsEndsSixPixelsAfterTheLast) {
  ControlsScene scene = Lying(Placement::TopHugging, Edge::Top);
  scene.SingleCount = 2;
  scene.LastSingleRight = 540;
  ExpectControls("two", SetControlsRule(scene),
                 {.Buttons = {15, 30, 1080, 330},
                  .Singles = {1215, 30, 630, 330},
                  .Grip = {1095, 0, 120, 375},
                  .Window = {2000, -60, 1860, 375}});
}

TEST(SetControls, TopHuggingIsPulledUpByItsCut) {
  ControlsScene scene = Lying(Placement::TopHugging, Edge::Top);
  scene.TopCut = 7;
  EXPECT_FLOAT_EQ(SetControlsRule(scene).Window.Top, -105);
}

TEST(SetControls, TopHuggingWithLargeSystemFonts) {
  const ControlsScene scene{.TwipsX = 12,
                            .TwipsY = 12,
                            .TopCut = 7,
                            .Template = {264, 264},
                            .LastButton = {576, 0, 276, 264}};
  ExpectControls("12 twips", SetControlsRule(scene),
                 {.Buttons = {12, 24, 864, 264},
                  .Singles = {972, 24, 96, 264},
                  .Grip = {876, 0, 96, 300},
                  .Window = {0, -84, 1080, 300}});
}

TEST(SetControls, EveryEdge) {
  ExpectControls("top", SetControlsRule(Lying(Placement::AtEdge, Edge::Top)),
                 {.Buttons = {15, 15, 1080, 330},
                  .Singles = {1215, 15, 5000, 330},
                  .Grip = {1095, 0, 120, 375},
                  .Window = {2000, 7, 15360, 375}});
  ExpectControls("bottom", SetControlsRule(Lying(Placement::AtEdge, Edge::Bottom)),
                 {.Buttons = {15, 30, 1080, 330},
                  .Singles = {1215, 30, 5000, 330},
                  .Grip = {1095, 0, 120, 390},
                  .Window = {2000, 7, 15360, 390}});
  ExpectControls("left", SetControlsRule(Upright(Edge::Left)),
                 {.Buttons = {15, 15, 330, 1005},
                  .Singles = {15, 1140, 330, 4000},
                  .Grip = {0, 1020, 375, 120},
                  .Window = {7, 0, 375, 11520}});
  ExpectControls("right", SetControlsRule(Upright(Edge::Right)),
                 {.Buttons = {30, 15, 330, 1005},
                  .Singles = {30, 1140, 330, 4000},
                  .Grip = {0, 1020, 390, 120},
                  .Window = {7, 0, 390, 11520}});
}

TEST(SetControls, EdgesWithLargeSystemFontsAndLargeIcons) {
  const ControlsScene top{.Where = Placement::AtEdge,
                          .TwipsX = 12,
                          .TwipsY = 12,
                          .TopCut = 7,
                          .Template = {456, 456},
                          .LastButton = {480, 0, 468, 456},
                          .Buttons = {0, 0, 960, 0},
                          .Window = {0, 0, 12288, 0}};
  ExpectControls("top", SetControlsRule(top),
                 {.Buttons = {12, 12, 960, 456},
                  .Singles = {1068, 12, 0, 456},
                  .Grip = {972, 0, 96, 492},
                  .Window = {0, 0, 12288, 492}});
  const ControlsScene right{.Where = Placement::AtEdge,
                            .At = Edge::Right,
                            .TwipsX = 12,
                            .TwipsY = 12,
                            .Template = {456, 456},
                            .LastButton = {12, 456, 456, 456},
                            .Window = {0, 0, 0, 9216}};
  ExpectControls("right", SetControlsRule(right),
                 {.Buttons = {24, 12, 456, 924},
                  .Singles = {24, 1032, 456, 0},
                  .Grip = {0, 936, 504, 96},
                  .Window = {0, 0, 504, 9216}});
}

TEST(SetControls, TheGripFillsTheRoomBetweenTheBoxes) {
  for (const Edge edge : {Edge::Top, Edge::Bottom, Edge::Left, Edge::Right}) {
    const bool upright = IsVertical(edge);
    const StripControls c =
        SetControlsRule(upright ? Upright(edge) : Lying(Placement::AtEdge, edge));
    if (upright) {
      EXPECT_FLOAT_EQ(c.Grip.Top, c.Buttons.Bottom()) << EdgeText(edge);
      EXPECT_FLOAT_EQ(c.Grip.Bottom(), c.Singles.Top) << EdgeText(edge);
    } else {
      EXPECT_FLOAT_EQ(c.Grip.Left, c.Buttons.Right()) << EdgeText(edge);
      EXPECT_FLOAT_EQ(c.Grip.Right(), c.Singles.Left) << EdgeText(edge);
    }
  }
}

}  // namespace
}  // namespace corvelle
