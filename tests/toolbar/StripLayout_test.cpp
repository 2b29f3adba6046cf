#include "toolbar/layout/StripLayout.h"

#include <gtest/gtest.h>

#include "toolbar/RuleText.h"

namespace corvelle {
namespace {

constexpr StripScale kAcross15{.Vertical = false, .TwipsX = 15, .TwipsY = 15};
constexpr StripScale kAcross12{.Vertical = false, .TwipsX = 12, .TwipsY = 12};
constexpr StripScale kUpright15{.Vertical = true, .TwipsX = 15, .TwipsY = 15};
constexpr StripScale kUpright12{.Vertical = true, .TwipsX = 12, .TwipsY = 12};

TwipRect BoundsOf(const ButtonRect& b) { return {b.Left, b.Top, b.Width, b.Height}; }

/// Files by a pattern: 'b' a button, 's' a separator, 'h' a hidden one.
std::vector<StripEntry> Files(std::string_view pattern) {
  std::vector<StripEntry> entries;
  for (const char c : pattern) {
    const std::string path = "C:\\Menus\\" + std::to_string(entries.size() + 1) + ".MNU";
    const EntryKind kind = c == 's'   ? EntryKind::Separator
                           : c == 'h' ? EntryKind::Hidden
                                      : EntryKind::Button;
    entries.push_back({path, kind});
  }
  return entries;
}

StripContents Strip(std::string_view pattern, const StripScale& scale) {
  const TemplateSize size{22 * scale.TwipsX, 22 * scale.TwipsY, 4};
  return LayOutStrip(size, Files(pattern), scale);
}

TEST(TemplateButton, GoldenSizes) {
  struct Row {
    const char* name;
    TemplateScene scene;
    TemplateSize expected;
  };
  const Row rows[] = {
      {"small icons, tall caption", {}, {330, 330, 4}},
      {"small icons, low caption", {.CaptionHeight = 19}, {330, 330, 7}},
      {"caption and one make 24", {.CaptionHeight = 23}, {330, 330, 7}},
      {"caption and one make 25", {.CaptionHeight = 24}, {330, 330, 4}},
      {"unknown caption counts as 22", {.CaptionHeight = 0}, {330, 330, 7}},
      {"large system fonts", {.TwipsX = 12, .TwipsY = 12}, {264, 264, 4}},
      {"large system fonts, low caption",
       {.TwipsX = 12, .TwipsY = 12, .CaptionHeight = 23},
       {264, 264, 7}},
      {"the height is measured in pixels of width",
       {.TwipsX = 12, .TwipsY = 15, .CaptionHeight = 29},
       {264, 330, 7}},
      {"32 pixels", {.LargeIcons = true, .IconSize = 32}, {570, 570, 7}},
      {"32 pixels, the caption does not matter",
       {.LargeIcons = true, .IconSize = 32, .CaptionHeight = 60},
       {570, 570, 7}},
      {"32 pixels, large system fonts",
       {.LargeIcons = true, .IconSize = 32, .TwipsX = 12, .TwipsY = 12},
       {456, 456, 7}},
      {"48 pixels", {.LargeIcons = true, .IconSize = 48}, {810, 810, 7}},
  };
  for (const Row& row : rows) {
    const TemplateSize size = TemplateButton(row.scene);
    EXPECT_EQ(size, row.expected) << row.name << ": " << size.Width << " by " << size.Height
                                  << ", cut " << size.TopCut;
  }
}

TEST(TemplateLines, StandAtBothSidesOfTheTemplate) {
  ButtonRect button;
  button.Width = 330;
  button.Height = 315;
  const ButtonLines across = TemplateLines(button, kAcross15);
  EXPECT_EQ(across.LinTB1, (TwipLine{0, 0, 0, 315})) << Text(across.LinTB1);
  EXPECT_EQ(across.LinTB2, (TwipLine{345, 0, 345, 315})) << Text(across.LinTB2);
  const ButtonLines upright = TemplateLines(button, kUpright12);
  EXPECT_EQ(upright.LinTB1, (TwipLine{0, 0, 330, 0})) << Text(upright.LinTB1);
  EXPECT_EQ(upright.LinTB2, (TwipLine{0, 12, 330, 12})) << Text(upright.LinTB2);
}

TEST(TemplateSeparator, IsEightPixelsWideAlongTheStrip) {
  ButtonRect button;
  button.Width = 330;
  button.Height = 300;
  EXPECT_EQ(TemplateSeparator(button, kAcross15), (TwipSize{120, 300}));
  EXPECT_EQ(TemplateSeparator(button, kUpright15), (TwipSize{330, 120}));
  EXPECT_EQ(TemplateSeparator(button, kUpright12), (TwipSize{330, 96}));
}

TEST(EntryKind, FollowsTheFirstRecordOfTheFile) {
  struct Row {
    const char* icon;
    const char* name;
    EntryKind expected;
  };
  const Row rows[] = {
      {"c:\\a.ico", "", EntryKind::Button},
      {"", "", EntryKind::Button},
      {"Button", "/hidden", EntryKind::Button},
      {"", "/h", EntryKind::Hidden},
      {"", " / H", EntryKind::Hidden},
      {"", "/ H ", EntryKind::Hidden},
      {"MenuLineSeparator", "", EntryKind::Separator},
      {"menulineseparator", "", EntryKind::Separator},
      {"MenuLineSeparator", "/H", EntryKind::Hidden},
      {"MenuBreaker", "", EntryKind::Button},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(EntryKindOf(row.icon, row.name), row.expected) << row.icon << '+' << row.name;
  }
}

TEST(HorizontalStrip, EachButtonTakesTwoPixelsMoreThanTheTemplate) {
  const StripContents strip = Strip("bb", kAcross15);
  ASSERT_EQ(strip.Buttons.size(), 4u);
  EXPECT_EQ(BoundsOf(strip.Buttons[0]), (TwipRect{0, 0, 330, 330}));
  EXPECT_EQ(BoundsOf(strip.Buttons[1]), (TwipRect{0, 0, 345, 330}));
  EXPECT_EQ(BoundsOf(strip.Buttons[2]), (TwipRect{360, 0, 345, 330}));
  EXPECT_EQ(BoundsOf(strip.Buttons[3]), (TwipRect{720, 0, 345, 330}));
  EXPECT_EQ(strip.Box, (TwipSize{1080, 330}));
}

TEST(HorizontalStrip, WithLargeSystemFonts) {
  const StripContents strip = Strip("bb", kAcross12);
  ASSERT_EQ(strip.Buttons.size(), 4u);
  EXPECT_EQ(BoundsOf(strip.Buttons[2]), (TwipRect{288, 0, 276, 264}));
  EXPECT_EQ(BoundsOf(strip.Buttons[3]), (TwipRect{576, 0, 276, 264}));
  EXPECT_EQ(strip.Box, (TwipSize{864, 264}));
}

TEST(VerticalStrip, ButtonsTouchAndStandAPixelIn) {
  const StripContents strip = Strip("bb", kUpright15);
  ASSERT_EQ(strip.Buttons.size(), 4u);
  EXPECT_EQ(BoundsOf(strip.Buttons[1]), (TwipRect{15, 0, 330, 330}));
  EXPECT_EQ(BoundsOf(strip.Buttons[2]), (TwipRect{15, 330, 330, 330}));
  EXPECT_EQ(BoundsOf(strip.Buttons[3]), (TwipRect{15, 660, 330, 330}));
  EXPECT_EQ(strip.Box, (TwipSize{330, 1005}));
}

TEST(VerticalStrip, WithLargeSystemFonts) {
  const StripContents strip = Strip("b", kUpright12);
  ASSERT_EQ(strip.Buttons.size(), 3u);
  EXPECT_EQ(BoundsOf(strip.Buttons[2]), (TwipRect{12, 264, 264, 264}));
  EXPECT_EQ(strip.Box, (TwipSize{264, 540}));
}

TEST(Strip, WithoutFilesHasTheMainMenuOnly) {
  const StripContents strip = Strip("", kAcross15);
  ASSERT_EQ(strip.Buttons.size(), 2u);
  EXPECT_EQ(strip.Buttons[1].Path, "QMenu");
  EXPECT_EQ(strip.Buttons[1].Key, "B1");
  EXPECT_EQ(strip.Box, (TwipSize{360, 330}));
}

TEST(Strip, ButtonsAreNamedByTheirIndexAndFile) {
  const StripContents strip = Strip("hbsb", kAcross15);
  ASSERT_EQ(strip.Buttons.size(), 4u);
  EXPECT_EQ(strip.Buttons[2].Key, "B2");
  EXPECT_EQ(strip.Buttons[2].Path, "C:\\Menus\\2.MNU");
  EXPECT_EQ(strip.Buttons[3].Key, "B3");
  EXPECT_EQ(strip.Buttons[3].Path, "C:\\Menus\\4.MNU");
}

TEST(Separators, TheNextButtonStartsAfterOne) {
  const StripContents across = Strip("bsb", kAcross15);
  ASSERT_EQ(across.Separators.size(), 1u);
  EXPECT_EQ(across.Separators[0], (TwipRect{720, 0, 120, 330})) << Text(across.Separators[0]);
  EXPECT_EQ(BoundsOf(across.Buttons[3]), (TwipRect{840, 0, 345, 330}));

  const StripContents upright = Strip("bsb", kUpright15);
  EXPECT_EQ(upright.Separators[0], (TwipRect{15, 660, 330, 120})) << Text(upright.Separators[0]);
  EXPECT_EQ(BoundsOf(upright.Buttons[3]), (TwipRect{15, 780, 330, 330}));
}

TEST(Separators, OnlyTheButtonRightAfterOneMovesAside) {
  const StripContents strip = Strip("sbb", kAcross15);
  EXPECT_FLOAT_EQ(strip.Separators[0].Left, 360);
  EXPECT_FLOAT_EQ(strip.Buttons[2].Left, 480);
  EXPECT_FLOAT_EQ(strip.Buttons[3].Left, 840);
}

TEST(Separators, TwoInARowStandInOnePlace) {
  const StripContents strip = Strip("ssb", kAcross15);
  ASSERT_EQ(strip.Separators.size(), 2u);
  EXPECT_EQ(strip.Separators[0], strip.Separators[1]);
  EXPECT_FLOAT_EQ(strip.Buttons[2].Left, 480);
}

TEST(Separators, TheLastOneDoesNotWidenTheBox) {
  EXPECT_EQ(Strip("bs", kAcross15).Box, Strip("b", kAcross15).Box);
  EXPECT_EQ(Strip("bs", kUpright15).Box, Strip("b", kUpright15).Box);
}

TEST(ButtonLines, StandAtTheSidesOfTheButton) {
  const StripContents across = Strip("b", kAcross15);
  const ButtonLines lines = LinesOf(across.Buttons[2], across.Buttons[0], kAcross15);
  EXPECT_EQ(lines.LinTB1, (TwipLine{360, 0, 360, 330})) << Text(lines.LinTB1);
  EXPECT_EQ(lines.LinTB2, (TwipLine{705, 0, 705, 330})) << Text(lines.LinTB2);

  const StripContents upright = Strip("b", kUpright15);
  const ButtonLines sides = LinesOf(upright.Buttons[2], upright.Buttons[0], kUpright15);
  EXPECT_EQ(sides.LinTB1, (TwipLine{0, 345, 330, 345})) << Text(sides.LinTB1);
  EXPECT_EQ(sides.LinTB2, (TwipLine{0, 660, 330, 660})) << Text(sides.LinTB2);
}

/// All files of up to six in every mixture of the three kinds.
template <class Check>
void ForEveryStrip(const Check& check) {
  constexpr char kKinds[] = {'b', 's', 'h'};
  for (int count = 0; count <= 6; ++count) {
    int mixtures = 1;
    for (int i = 0; i < count; ++i) mixtures *= 3;
    for (int mixture = 0; mixture < mixtures; ++mixture) {
      std::string pattern;
      for (int i = 0, rest = mixture; i < count; ++i, rest /= 3) pattern += kKinds[rest % 3];
      for (const StripScale& scale : {kAcross15, kAcross12, kUpright15, kUpright12}) {
        check(pattern, scale);
      }
    }
  }
}

TEST(Strip, ButtonsAndSeparatorsNeverOverlap) {
  ForEveryStrip([](const std::string& pattern, const StripScale& scale) {
    const StripContents strip = Strip(pattern, scale);
    const auto start = [&](const TwipRect& r) { return scale.Vertical ? r.Top : r.Left; };
    const auto end = [&](const TwipRect& r) { return scale.Vertical ? r.Bottom() : r.Right(); };
    for (std::size_t i = 2; i < strip.Buttons.size(); ++i) {
      EXPECT_GE(start(BoundsOf(strip.Buttons[i])), end(BoundsOf(strip.Buttons[i - 1]))) << pattern;
    }
    for (const TwipRect& separator : strip.Separators) {
      for (std::size_t i = 1; i < strip.Buttons.size(); ++i) {
        const TwipRect button = BoundsOf(strip.Buttons[i]);
        EXPECT_TRUE(end(button) <= start(separator) || start(button) >= end(separator)) << pattern;
      }
    }
  });
}

TEST(Strip, TheBoxEndsAPixelAfterTheLastButton) {
  ForEveryStrip([](const std::string& pattern, const StripScale& scale) {
    const StripContents strip = Strip(pattern, scale);
    const ButtonRect& last = strip.Buttons.back();
    const float end = scale.Vertical ? strip.Box.Height : strip.Box.Width;
    EXPECT_FLOAT_EQ(end,
                    scale.Vertical ? last.Bottom() + scale.TwipsY : last.Right() + scale.TwipsX)
        << pattern;
  });
}

TEST(IconPlace, GoldenPixels) {
  struct Row {
    const char* name;
    IconScene scene;
    PixelPoint expected;
  };
  const Row rows[] = {
      {"first button", {.Button = {0, 0, 345, 330}}, {4, 4}},
      {"second button", {.Button = {360, 0, 345, 330}}, {28, 4}},
      {"pulled up by 7 pixels", {.Button = {0, 0, 345, 330}, .TopCut = 7}, {4, 5}},
      {"docked, the cut does not matter",
       {.Button = {0, 0, 345, 330}, .Where = Placement::AtEdge, .TopCut = 7},
       {4, 4}},
      {"32 pixels pulled up", {.Button = {0, 0, 585, 570}, .IconSize = 32, .TopCut = 7}, {4, 5}},
      {"32 pixels docked",
       {.Button = {600, 0, 585, 570}, .IconSize = 32, .Where = Placement::AtEdge, .TopCut = 7},
       {44, 4}},
      {"upright, second button",
       {.Button = {15, 330, 330, 330}, .Where = Placement::AtEdge, .Vertical = true},
       {3, 26}},
      {"large system fonts", {.Button = {0, 0, 276, 264}, .TwipsX = 12, .TwipsY = 12}, {4, 4}},
      {"large system fonts, second button",
       {.Button = {288, 0, 276, 264}, .TwipsX = 12, .TwipsY = 12, .TopCut = 7},
       {28, 5}},
  };
  for (const Row& row : rows) {
    const PixelPoint at = IconPlace(row.scene);
    EXPECT_EQ(at, row.expected) << row.name << ": " << at.x << ", " << at.y;
  }
}

}  // namespace
}  // namespace corvelle
