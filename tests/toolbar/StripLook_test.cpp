#include "toolbar/layout/StripLook.h"

#include <gtest/gtest.h>

#include "toolbar/RuleText.h"

namespace corvelle {
namespace {

constexpr LineLook kHidden{false, LineColor::Face};
constexpr LineLook kHighlight{true, LineColor::Highlight};
constexpr LineLook kShadow{true, LineColor::Shadow};
constexpr LineLook kFace{true, LineColor::Face};

/// Four buttons at 15 twips, with a separator before the last.
std::vector<ButtonRect> FourButtons(bool vertical) {
  const StripEntry files[] = {{"b", EntryKind::Button},
                              {"c", EntryKind::Button},
                              {"s", EntryKind::Separator},
                              {"d", EntryKind::Button}};
  return LayOutStrip({330, 330, 4}, files, {.Vertical = vertical}).Buttons;
}

void ExpectLooks(const std::vector<ButtonLook>& actual, const std::vector<ButtonLook>& expected) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < actual.size(); ++i) {
    EXPECT_EQ(actual[i].LinTB1, expected[i].LinTB1)
        << "LinTB1 of " << i << ": " << Text(actual[i].LinTB1);
    EXPECT_EQ(actual[i].LinTB2, expected[i].LinTB2)
        << "LinTB2 of " << i << ": " << Text(actual[i].LinTB2);
  }
}

TEST(ButtonLooks, AtRestEveryButtonHasItsTwoLines) {
  const std::vector<ButtonRect> buttons = FourButtons(false);
  ExpectLooks(ButtonLooks({.Buttons = buttons}),
              {{kHidden, kHidden}, kRestingLook, kRestingLook, kRestingLook, kRestingLook});
}

TEST(ButtonLooks, AnIndexPastTheButtonsPressesNone) {
  const std::vector<ButtonRect> buttons = FourButtons(false);
  for (const int index : {-1, 5, 32767}) {
    ExpectLooks(ButtonLooks({.Buttons = buttons, .CurButton = index}),
                {{kHidden, kHidden}, kRestingLook, kRestingLook, kRestingLook, kRestingLook});
  }
}

TEST(ButtonLooks, APressedButtonIsFramedByItsNeighboursLines) {
  const std::vector<ButtonRect> buttons = FourButtons(false);
  ExpectLooks(ButtonLooks({.Buttons = buttons, .CurButton = 2}), {{kHidden, kHidden},
                                                                  {kHighlight, kShadow},
                                                                  {kHidden, kHidden},
                                                                  {kHighlight, kShadow},
                                                                  kRestingLook});
}

TEST(ButtonLooks, TheFirstButtonShowsItsOwnLineOnlyWhereTheWindowHasNoFrame) {
  struct Row {
    const char* name;
    bool vertical;
    bool docked;
    LineLook expected;
  };
  const Row rows[] = {
      {"top-hugging", false, false, kHidden},
      {"docked", false, true, kShadow},
      {"vertical", true, true, kShadow},
      {"vertical, docking still asked for", true, false, kShadow},
  };
  for (const Row& row : rows) {
    const std::vector<ButtonRect> buttons = FourButtons(row.vertical);
    const auto looks = ButtonLooks(
        {.Buttons = buttons, .CurButton = 1, .Vertical = row.vertical, .Docked = row.docked});
    EXPECT_EQ(looks[1].LinTB1, row.expected) << row.name << ": " << Text(looks[1].LinTB1);
    EXPECT_EQ(looks[1].LinTB2, kHidden) << row.name << ": " << Text(looks[1].LinTB2);
    EXPECT_EQ(looks[2], kRestingLook) << row.name;
  }
}

TEST(ButtonLooks, TheLastButtonShowsItsOwnLineInHighlight) {
  const std::vector<ButtonRect> buttons = FourButtons(false);
  ExpectLooks(
      ButtonLooks({.Buttons = buttons, .CurButton = 4}),
      {{kHidden, kHidden}, kRestingLook, kRestingLook, {kHighlight, kFace}, {kHidden, kHighlight}});
}

TEST(ButtonLooks, AcrossASeparatorTheNeighboursLineVanishes) {
  for (const bool vertical : {false, true}) {
    const std::vector<ButtonRect> buttons = FourButtons(vertical);
    ExpectLooks(
        ButtonLooks({.Buttons = buttons, .CurButton = 3, .Vertical = vertical, .Docked = true}),
        {{kHidden, kHidden},
         kRestingLook,
         {kHighlight, kShadow},
         {kHidden, kHidden},
         {kFace, kShadow}});
  }
}

TEST(ButtonLooks, NeighboursAreAtMostFourPixelsApart) {
  struct Row {
    float twips;
    float gap;  // pixels
    LineLook expected;
  };
  const Row rows[] = {{15, 4, kHighlight}, {15, 5, kFace}, {12, 4, kHighlight}, {12, 5, kFace}};
  for (const Row& row : rows) {
    std::vector<ButtonRect> buttons(3);
    for (ButtonRect& button : buttons) button.Width = 20 * row.twips;
    buttons[2].Left = (20 + row.gap) * row.twips;
    const auto looks =
        ButtonLooks({.Buttons = buttons, .CurButton = 1, .TwipsX = row.twips, .TwipsY = row.twips});
    EXPECT_EQ(looks[2].LinTB1, row.expected) << row.twips << ' ' << row.gap;
  }
}

TEST(ButtonLooks, OneButtonAloneIsFirstAndLast) {
  const std::vector<ButtonRect> buttons = LayOutStrip({330, 330, 4}, {}, {}).Buttons;
  ExpectLooks(ButtonLooks({.Buttons = buttons, .CurButton = 1, .Docked = true}),
              {{kHidden, kHidden}, {kShadow, kHighlight}});
}

TEST(LineColors, AreTheNumbersOfTheSystemColours) {
  EXPECT_EQ(ColorValue(LineColor::Face), 0x8000000Fu);
  EXPECT_EQ(ColorValue(LineColor::Shadow), 0x80000010u);
  EXPECT_EQ(ColorValue(LineColor::Highlight), 0x80000014u);
  EXPECT_EQ(ColorValue(LineColor::DarkShadow), 0x80000015u);
  EXPECT_EQ(ColorValue(LineColor::Drag), 255u);
}

constexpr LineLook kDark{true, LineColor::DarkShadow};
constexpr LineLook kNoDark{false, LineColor::DarkShadow};
constexpr LineLook kNoShadow{false, LineColor::Shadow};
constexpr LineLook kNoHighlight{false, LineColor::Highlight};

TEST(DrawBorders, GoldenLines) {
  struct Row {
    const char* name;
    BorderScene scene;
    BorderLine lines[5];  // bLine1 to bLine4, bLineXY
  };
  const Row rows[] = {
      {"top-hugging",
       {.Window = {3000, -60, 1350, 375}, .ScreenWidth = 15360},
       {{{15, 0, 1335, 0}, kHighlight},
        {{0, 0, 0, 360}, kDark},
        {{0, 360, 1350, 360}, kDark},
        {{1335, 15, 1335, 375}, kDark},
        {{0, 345, 1350, 345}, kNoShadow}}},
      {"top-hugging at the screen's side keeps its side lines",
       {.TwipsX = 12, .TwipsY = 12, .Window = {0, -48, 12288, 300}, .ScreenWidth = 12288},
       {{{12, 0, 12276, 0}, kHighlight},
        {{0, 0, 0, 288}, kDark},
        {{0, 288, 12288, 288}, kDark},
        {{12276, 12, 12276, 300}, kDark},
        {{0, 276, 12288, 276}, kNoShadow}}},
      {"top edge",
       {.Where = Placement::AtEdge, .Window = {0, -45, 15360, 375}, .ScreenWidth = 15360},
       {{{15, 0, 15345, 0}, kHighlight},
        {{0, 0, 0, 360}, kNoDark},
        {{0, 360, 15360, 360}, kDark},
        {{15345, 15, 15345, 375}, kNoDark},
        {{0, 345, 15360, 345}, kShadow}}},
      {"bottom edge",
       {.Where = Placement::AtEdge,
        .At = Edge::Bottom,
        .Window = {0, 11130, 15360, 390},
        .ScreenWidth = 15360},
       {{{15, 15, 15345, 15}, kHighlight},
        {{0, 0, 0, 375}, kNoDark},
        {{0, 375, 15360, 375}, kDark},
        {{15345, 15, 15345, 390}, kNoDark},
        {{0, 360, 15360, 360}, kShadow}}},
      {"bottom edge beside other bars on both sides",
       {.Where = Placement::AtEdge,
        .At = Edge::Bottom,
        .Window = {600, 11130, 14000, 390},
        .ScreenWidth = 15360},
       {{{15, 15, 13985, 15}, kHighlight},
        {{0, 0, 0, 375}, kDark},
        {{0, 375, 14000, 375}, kDark},
        {{13985, 15, 13985, 390}, kDark},
        {{0, 360, 14000, 360}, kShadow}}},
      {"left edge",
       {.Where = Placement::AtEdge,
        .At = Edge::Left,
        .Window = {0, 0, 375, 11520},
        .ScreenWidth = 15360},
       {{{15, 0, 360, 0}, kNoHighlight},
        {{0, 30, 0, 11505}, kHighlight},
        {{15, 11505, 375, 11505}, kDark},
        {{360, 0, 360, 11505}, kDark},
        {{345, 0, 345, 11520}, kShadow}}},
      {"right edge, large system fonts",
       {.Where = Placement::AtEdge,
        .At = Edge::Right,
        .TwipsX = 12,
        .TwipsY = 12,
        .Window = {11976, 0, 312, 9216},
        .ScreenWidth = 12288},
       {{{12, 0, 300, 0}, kNoHighlight},
        {{12, 24, 12, 9204}, kHighlight},
        {{12, 9204, 312, 9204}, kDark},
        {{300, 0, 300, 9204}, kDark},
        {{288, 0, 288, 9216}, kShadow}}},
  };
  for (const Row& row : rows) {
    const StripBorders borders = DrawBordersRule(row.scene);
    const BorderLine actual[] = {borders.bLine1, borders.bLine2, borders.bLine3, borders.bLine4,
                                 borders.bLineXY};
    for (int i = 0; i < 5; ++i) {
      EXPECT_EQ(actual[i], row.lines[i])
          << row.name << ", line " << i + 1 << ": " << Text(actual[i]);
    }
  }
}

TEST(DrawBorders, OnAVerticalEdgeTheSingleButtonsReachToTheEnd) {
  BorderScene scene{.Where = Placement::AtEdge,
                    .At = Edge::Left,
                    .Window = {0, 0, 375, 11520},
                    .SingleCount = 2,
                    .Singles = {15, 1140, 330, 700}};
  EXPECT_FLOAT_EQ(DrawBordersRule(scene).SinglesHeight, 10350);
  scene.SingleCount = 0;
  EXPECT_FLOAT_EQ(DrawBordersRule(scene).SinglesHeight, 700);
  scene.SingleCount = 2;
  scene.At = Edge::Bottom;
  EXPECT_FLOAT_EQ(DrawBordersRule(scene).SinglesHeight, 700);
}

}  // namespace
}  // namespace corvelle
