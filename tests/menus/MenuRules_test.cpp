#include "menus/items/MenuRules.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

// Items 4, 5, 6 of a menu at 15 twips, with a separator before 6.
constexpr ItemBox kItems[] = {{90, 195}, {390, 195}, {870, 195}};
constexpr PageScene kPage{kItems, 4, 105, 15};
// The same at 12 twips.
constexpr ItemBox kLargeFontItems[] = {{72, 192}, {336, 192}, {744, 192}};
constexpr PageScene kLargeFontPage{kLargeFontItems, 1, 72, 12};

TEST(MenuHitTest, GoldenHeights) {
  struct Row {
    float y;
    int expected;
  };
  const Row rows[] = {{-100, 0}, {14, 0},   {15, 4},   {90, 4},  {300, 4}, {301, 0},
                      {314, 0},  {315, 5},  {585, 5},  {600, 5}, {601, 0}, {794, 0},
                      {795, 6},  {1065, 6}, {1080, 6}, {1081, 0}};
  for (const Row& row : rows) EXPECT_EQ(HitItem(kPage, row.y), row.expected) << row.y;
}

TEST(MenuHitTest, WithLargeSystemFonts) {
  struct Row {
    float y;
    int expected;
  };
  const Row rows[] = {{23, 0}, {24, 1}, {276, 1}, {277, 0}, {288, 2}, {540, 2}, {541, 0}, {696, 3}};
  for (const Row& row : rows) EXPECT_EQ(HitItem(kLargeFontPage, row.y), row.expected) << row.y;
}

TEST(MenuHitTest, BetweenTwoItemsEveryPixelBelongsToOneOfThem) {
  for (float y = 15; y <= 600; y += 15) EXPECT_NE(HitItem(kPage, y), 0) << y;
  for (float y = 24; y <= 540; y += 12) EXPECT_NE(HitItem(kLargeFontPage, y), 0) << y;
}

TEST(MenuHitTest, TheGapOfASeparatorBelongsToNoItem) {
  for (float y = 615; y < 795; y += 15) {
    EXPECT_EQ(HitItem(kPage, y), 0) << y;
    EXPECT_EQ(ItemUnder(kPage, y, false), 0) << y;
  }
}

TEST(MenuHitTest, WhereTwoItemsOverlapTheFirstWins) {
  const ItemBox items[] = {{90, 195}, {100, 195}};
  EXPECT_EQ(HitItem({items, 1, 105, 15}, 150), 1);
}

TEST(CarriedItem, LandsInAGapOnTheItemBelowIt) {
  for (float y = 601; y < 795; y += 7) EXPECT_EQ(ItemUnder(kPage, y, true), 6) << y;
  EXPECT_EQ(ItemUnder(kPage, 310, true), 5);
}

TEST(CarriedItem, LandsAboveAllOnTheFirstItem) {
  EXPECT_EQ(ItemUnder(kPage, 0, true), 4);
  EXPECT_EQ(ItemUnder(kPage, -50, true), 4);
}

TEST(CarriedItem, LandsOnNothingBelowTheLastItem) { EXPECT_EQ(ItemUnder(kPage, 1081, true), 0); }

TEST(CarriedItem, OnAnItemLandsThere) { EXPECT_EQ(ItemUnder(kPage, 400, true), 5); }

TEST(BelowItems, StartsAtTheBottomOfTheLastLabel) {
  EXPECT_FALSE(IsBelowItems(kPage, 1065));
  EXPECT_TRUE(IsBelowItems(kPage, 1066));
  EXPECT_FALSE(IsBelowItems(kPage, -50));
}

TEST(OutsideItems, IsAboveTheFirstLabelOrBelowTheLast) {
  EXPECT_TRUE(IsOutsideItems(kPage, 89));
  EXPECT_FALSE(IsOutsideItems(kPage, 90));
  EXPECT_FALSE(IsOutsideItems(kPage, 700));
  EXPECT_FALSE(IsOutsideItems(kPage, 1065));
  EXPECT_TRUE(IsOutsideItems(kPage, 1066));
}

TEST(EmptyPage, HoldsNothingAnywhere) {
  const PageScene page{{}, 1, 105, 15};
  for (const float y : {-100.0F, 0.0F, 90.0F, 480.0F}) {
    EXPECT_EQ(HitItem(page, y), 0);
    EXPECT_EQ(ItemUnder(page, y, true), 0);
    EXPECT_TRUE(IsBelowItems(page, y));
    EXPECT_TRUE(IsOutsideItems(page, y));
  }
}

TEST(SeparatorRule, IsWhereTheGapIsWiderThanThatOfTwoNeighbours) {
  EXPECT_FALSE(HasRuleBetween(kItems[0], kItems[1], 105));
  EXPECT_TRUE(HasRuleBetween(kItems[1], kItems[2], 105));
  EXPECT_FLOAT_EQ(RuleBelow(kItems[1], 105, 15), 720);
  EXPECT_FALSE(HasRuleBetween(kLargeFontItems[0], kLargeFontItems[1], 72));
  EXPECT_TRUE(HasRuleBetween(kLargeFontItems[1], kLargeFontItems[2], 72));
  EXPECT_FLOAT_EQ(RuleBelow(kLargeFontItems[1], 72, 12), 624);
}

TEST(ItemIcon, IsCentredAgainstTheText) {
  EXPECT_FLOAT_EQ(IconLeft(15), 30);
  EXPECT_FLOAT_EQ(IconTop({390, 195}, 240), 367.5F);
  EXPECT_FLOAT_EQ(IconLeft(12), 24);
  EXPECT_FLOAT_EQ(IconTop({336, 192}, 192), 336);
}

TEST(DrawBox, GoldenLinesAtFifteenTwips) {
  const SelectionBox box = DrawBoxRule({390, 195}, 105, 315, 15, 15);
  EXPECT_FLOAT_EQ(box.BarTop, 345);
  EXPECT_EQ(box.mLineLeft, (TwipLine{0, 345, 0, 630}));
  EXPECT_EQ(box.mLineRight, (TwipLine{285, 345, 285, 645}));
  EXPECT_EQ(box.mLineTop, (TwipLine{0, 345, 285, 345}));
  EXPECT_EQ(box.mLineDown, (TwipLine{0, 630, 285, 630}));
}

TEST(DrawBox, GoldenLinesAtTwelveTwips) {
  const SelectionBox box = DrawBoxRule({336, 192}, 72, 252, 12, 12);
  EXPECT_FLOAT_EQ(box.BarTop, 312);
  EXPECT_EQ(box.mLineLeft, (TwipLine{0, 312, 0, 540}));
  EXPECT_EQ(box.mLineRight, (TwipLine{228, 312, 228, 552}));
  EXPECT_EQ(box.mLineTop, (TwipLine{0, 312, 228, 312}));
  EXPECT_EQ(box.mLineDown, (TwipLine{0, 540, 228, 540}));
}

TEST(ArrowFrame, ItsUpperAndLowerLineAreAPixelLonger) {
  const ButtonFrame frame = FrameOf({45, 2625, 900, 315}, 15);
  EXPECT_EQ(frame.LineLeft, (TwipLine{45, 2625, 45, 2940}));
  EXPECT_EQ(frame.LineTop, (TwipLine{45, 2625, 960, 2625}));
  EXPECT_EQ(frame.LineRight, (TwipLine{945, 2625, 945, 2940}));
  EXPECT_EQ(frame.LineDown, (TwipLine{45, 2940, 960, 2940}));
}

TEST(ArrowKeys, WrapInsideThePage) {
  struct Row {
    const char* name;
    int current;
    int step;
    int expected;
  };
  const Row rows[] = {
      {"down", 5, 1, 6},
      {"up", 5, -1, 4},
      {"up at the page's first item", 4, -1, 6},
      {"down at the page's last item", 6, 1, 4},
      {"down from nowhere", 0, 1, 4},
      {"up from nowhere", 0, -1, 6},
      {"down from a later page's item", 9, 1, 4},
      {"up from a later page's item", 9, -1, 6},
      {"down from the item before the page", 3, 1, 4},
      {"up from the item after the page", 7, -1, 6},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(StepItem(row.current, 4, 6, row.step), row.expected) << row.name;
  }
}

TEST(ArrowKeys, FindNothingOnAnEmptyPage) {
  EXPECT_EQ(StepItem(0, 1, 0, 1), 0);
  EXPECT_EQ(StepItem(0, 1, 0, -1), 0);
}

TEST(PagingKeys, GoldenPages) {
  constexpr int kPgUp = 33;
  constexpr int kPgDn = 34;
  constexpr int kEnd = 35;
  constexpr int kHome = 36;
  struct Row {
    const char* name;
    int key;
    int curMenu;
    int slides;
    std::optional<int> expected;
  };
  const Row rows[] = {
      {"PgUp", kPgUp, 2, 3, 1},
      {"PgUp on page 0", kPgUp, 0, 3, std::nullopt},
      {"PgDn", kPgDn, 2, 3, 3},
      {"PgDn on the last page", kPgDn, 3, 3, std::nullopt},
      {"Home", kHome, 3, 3, 0},
      {"Home on page 0", kHome, 0, 3, std::nullopt},
      {"Home on page 1", kHome, 1, 3, 0},
      {"End", kEnd, 0, 3, 3},
      {"End on the last page", kEnd, 3, 3, std::nullopt},
      {"PgDn on a single page", kPgDn, 0, 0, std::nullopt},
      {"End on a single page", kEnd, 0, 0, std::nullopt},
      {"Home on a single page", kHome, 0, 0, std::nullopt},
      {"another key", 38, 1, 3, std::nullopt},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(PageForKey(row.key, row.curMenu, row.slides), row.expected) << row.name;
  }
}

TEST(ReturnAfterARefresh, GoesToThePageThatWasUpOrTheLastThereIs) {
  EXPECT_EQ(ReturnPage(0, 3), std::nullopt);
  EXPECT_EQ(ReturnPage(2, 0), std::nullopt);
  EXPECT_EQ(ReturnPage(2, 3), 2);
  EXPECT_EQ(ReturnPage(3, 3), 3);
  EXPECT_EQ(ReturnPage(5, 3), 3);
}

TEST(OffersShellMenu, ByTheOptionAndTurnedOverByCtrlButNeverInTheProgramsOwnMenu) {
  struct Row {
    bool MainMenu;
    char Preference;
    bool Ctrl;
    bool Expected;
  };
  const Row rows[] = {
      {false, '0', false, true}, {false, '0', true, false}, {false, '1', false, false},
      {false, '1', true, true},  {true, '0', false, false}, {true, '0', true, false},
      {true, '1', false, false}, {true, '1', true, false},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(OffersShellMenu(row.MainMenu, row.Preference, row.Ctrl), row.Expected)
        << row.MainMenu << row.Preference << row.Ctrl;
  }
}

}  // namespace
}  // namespace corvelle
