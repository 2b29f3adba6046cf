#include <gtest/gtest.h>

#include "menus/items/MenuLayout.h"

namespace corvelle {
namespace {

const MenuRecord kFirstRecord{"Programs", "Button", ""};
const MenuRecord kRule{"Separator", "MenuLineSeparator", ""};
const MenuRecord kItem{"Item", "icon.ico", "run.exe"};

std::vector<MenuRecord> FileOf(int items) {
  std::vector<MenuRecord> records(static_cast<std::size_t>(items) + 1, kItem);
  records[0] = kFirstRecord;
  return records;
}

std::vector<std::pair<int, int>> Ranges(const MenuLayout& menu) {
  std::vector<std::pair<int, int>> ranges;
  for (const MenuPage& page : menu.Pages) ranges.emplace_back(page.FirstLabel, page.LastLabel);
  return ranges;
}

using Pages = std::vector<std::pair<int, int>>;

// At 15 twips a line and its gap take 300 twips: ten items are estimated at 3000, and 3 pixels of
// reserve make 3045.
TEST(MenuPages, AMenuOfExactlyTheRoomStaysOnOnePage) {
  const auto records = FileOf(10);
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records), .WindowHeight = 3045});
  EXPECT_EQ(Ranges(menu), (Pages{{1, 10}}));
  EXPECT_EQ(menu.Slides, 0);
  EXPECT_FLOAT_EQ(menu.MenuHeight, 3045);
  EXPECT_FLOAT_EQ(menu.Height, 3180);
}

TEST(MenuPages, OneItemMoreStartsAPageAndKeeps36PixelsFree) {
  const auto records = FileOf(11);
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records), .WindowHeight = 3045});
  EXPECT_FLOAT_EQ(menu.MenuHeight, 2505);
  EXPECT_EQ(Ranges(menu), (Pages{{1, 8}, {9, 11}}));
  EXPECT_EQ(menu.Slides, 1);
  EXPECT_FLOAT_EQ(menu.Height, 3045);
  EXPECT_FLOAT_EQ(menu.Items[7].Top, 2190);
  EXPECT_FLOAT_EQ(menu.Items[8].Top, 90);
  EXPECT_FLOAT_EQ(menu.Items[9].Top, 390);
  EXPECT_EQ(menu.Items[7].Page, 0);
  EXPECT_EQ(menu.Items[8].Page, 1);
}

TEST(MenuPages, ATwipLessOfRoomStartsAPage) {
  const auto records = FileOf(10);
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records), .WindowHeight = 3044});
  EXPECT_FLOAT_EQ(menu.MenuHeight, 2504);
  EXPECT_EQ(Ranges(menu), (Pages{{1, 8}, {9, 10}}));
}

// At 12 twips ten items of 192 with gaps of 72 are estimated at 2640.
TEST(MenuPages, WithLargeSystemFonts) {
  const auto ten = ItemsOf(FileOf(10));
  const MenuScene scene{
      .Items = ten, .TwipsX = 12, .TwipsY = 12, .LineHeight = 192, .WindowHeight = 2676};
  const MenuLayout full = LayOutMenu(scene);
  EXPECT_EQ(Ranges(full), (Pages{{1, 10}}));
  EXPECT_FLOAT_EQ(full.MenuHeight, 2676);
  const auto eleven = ItemsOf(FileOf(11));
  MenuScene more = scene;
  more.Items = eleven;
  const MenuLayout paged = LayOutMenu(more);
  EXPECT_FLOAT_EQ(paged.MenuHeight, 2244);
  EXPECT_EQ(Ranges(paged), (Pages{{1, 8}, {9, 11}}));
}

// The eighth item would end at 2385: it may not reach 3 pixels above the foot of the page.
TEST(MenuPages, AnItemThatReachesTheReserveGoesToTheNextPage) {
  const auto records = FileOf(20);
  struct Row {
    float menuHeight;
    int lastOfFirstPage;
  };
  const Row rows[] = {{2431, 8}, {2430, 7}, {2429, 7}};
  for (const Row& row : rows) {
    const MenuLayout menu =
        LayOutMenu({.Items = ItemsOf(records), .WindowHeight = row.menuHeight + 36 * 15});
    EXPECT_FLOAT_EQ(menu.MenuHeight, row.menuHeight);
    EXPECT_EQ(menu.Pages[0].LastLabel, row.lastOfFirstPage) << row.menuHeight;
  }
}

TEST(MenuPages, SeparatorsCountTwelvePixelsEachRunInTheEstimate) {
  // Nine items and a run of separators: 2700 + 180.
  std::vector<MenuRecord> records = FileOf(9);
  records.insert(records.begin() + 3, 4, kRule);
  EXPECT_EQ(LayOutMenu({.Items = ItemsOf(records), .WindowHeight = 2925}).Slides, 0);
  EXPECT_EQ(LayOutMenu({.Items = ItemsOf(records), .WindowHeight = 2924}).Slides, 1);
}

TEST(MenuPages, TheEntryThatIsNotShownCountsInTheEstimateAllTheSame) {
  std::vector<MenuRecord> records = FileOf(10);
  records.push_back({"Corvelle", "", ""});
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records), .WindowHeight = 3045});
  EXPECT_EQ(menu.Labels, 10);
  EXPECT_FLOAT_EQ(menu.MenuHeight, 2505);
  EXPECT_EQ(Ranges(menu), (Pages{{1, 8}, {9, 10}}));
}

TEST(MenuPages, ASeparatorBetweenTwoPagesDrawsNoRuleButMarksTheItem) {
  std::vector<MenuRecord> records = FileOf(11);
  records.insert(records.begin() + 9, kRule);  // after item 8
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records), .WindowHeight = 3045});
  EXPECT_EQ(Ranges(menu), (Pages{{1, 8}, {9, 11}}));
  EXPECT_TRUE(menu.Pages[0].Rules.empty());
  EXPECT_TRUE(menu.Pages[1].Rules.empty());
  EXPECT_TRUE(menu.Items[8].AfterSeparator);
  EXPECT_FLOAT_EQ(menu.Items[8].Top, 90);
}

TEST(MenuPages, ASeparatorsGapCanPushAnItemToTheNextPage) {
  std::vector<MenuRecord> records = FileOf(20);
  records.insert(records.begin() + 8, kRule);  // after item 7
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records), .WindowHeight = 3045});
  EXPECT_EQ(menu.Pages[0].LastLabel, 7);
  EXPECT_TRUE(menu.Pages[0].Rules.empty());
}

TEST(MenuPages, RulesBelongToTheirPage) {
  std::vector<MenuRecord> records = FileOf(11);
  records.insert(records.begin() + 11, kRule);  // after item 10
  records.insert(records.begin() + 3, kRule);   // after item 2
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records), .WindowHeight = 3045});
  // The first page holds a separator and therefore one item less.
  EXPECT_EQ(Ranges(menu), (Pages{{1, 7}, {8, 11}}));
  EXPECT_EQ(menu.Pages[0].Rules, (std::vector<float>{720}));
  EXPECT_EQ(menu.Pages[1].Rules, (std::vector<float>{1020}));
}

TEST(MenuPages, ASeparatorAfterTheLastItemOfAPagedMenuDrawsNoRule) {
  std::vector<MenuRecord> records = FileOf(11);
  records.push_back(kRule);
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records), .WindowHeight = 3045});
  ASSERT_EQ(menu.Slides, 1);
  EXPECT_TRUE(menu.Pages[1].Rules.empty());
}

TEST(MenuPages, TenThousandItems) {
  const auto records = FileOf(10000);
  int measured = 0;
  const MenuLayout menu = LayOutMenu(
      {.Items = ItemsOf(records), .WindowHeight = 11145, .TextWidth = [&](std::string_view) {
         ++measured;
         return 500.0F;
       }});
  EXPECT_EQ(measured, 10000);
  EXPECT_FLOAT_EQ(menu.MenuHeight, 10605);
  EXPECT_EQ(menu.Labels, 10000);
  EXPECT_EQ(menu.Slides, 285);
  EXPECT_EQ(Ranges(menu)[0], (std::pair{1, 35}));
  EXPECT_EQ(Ranges(menu)[1], (std::pair{36, 70}));
  EXPECT_EQ(Ranges(menu)[285], (std::pair{9976, 10000}));
  EXPECT_EQ(menu.Items[9999].Page, 285);
  EXPECT_EQ(menu.Items[9999].Origin.Record, 10001);
}

TEST(MenuPages, RecordsPastTheSixteenBitLimitAreNotLookedAt) {
  const auto records = FileOf(40000);
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records), .WindowHeight = 11145});
  EXPECT_EQ(menu.Labels, 32766);
  EXPECT_EQ(menu.Items.back().Origin.Record, 32767);
}

TEST(MenuPages, WithoutRoomEveryItemHasAPageOfItsOwn) {
  const auto records = FileOf(3);
  for (const float room : {0.0F, 15.0F, 300.0F}) {
    const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records), .WindowHeight = room});
    EXPECT_EQ(Ranges(menu), (Pages{{1, 1}, {2, 2}, {3, 3}})) << room;
  }
}

struct SweepScene {
  float Twips;
  float LineHeight;
};

/// Menus of many sizes in rooms of many sizes, with and without separators.
template <class Check>
void ForEveryMenu(const Check& check) {
  for (const SweepScene& sweep : {SweepScene{15, 195}, SweepScene{12, 192}, SweepScene{12, 156}}) {
    for (int items = 1; items <= 70; items += 6) {
      for (int every = 0; every <= 4; ++every) {
        std::vector<MenuRecord> records{kFirstRecord};
        for (int i = 0; i < items; ++i) {
          if (every != 0 && i % every == 0) records.push_back(kRule);
          records.push_back(kItem);
        }
        const std::vector<MenuItem> file = ItemsOf(records);
        for (float pixels = 100; pixels <= 800; pixels += 89) {
          const MenuScene scene{.Items = file,
                                .TwipsX = sweep.Twips,
                                .TwipsY = sweep.Twips,
                                .LineHeight = sweep.LineHeight,
                                .WindowHeight = pixels * sweep.Twips};
          check(scene, items, LayOutMenu(scene));
        }
      }
    }
  }
}

TEST(MenuPages, EveryItemIsOnExactlyOnePage) {
  ForEveryMenu([](const MenuScene&, int items, const MenuLayout& menu) {
    ASSERT_EQ(menu.Labels, items);
    int next = 1;
    for (std::size_t page = 0; page < menu.Pages.size(); ++page) {
      ASSERT_EQ(menu.Pages[page].FirstLabel, next);
      ASSERT_GE(menu.Pages[page].LastLabel, next);
      for (; next <= menu.Pages[page].LastLabel; ++next) {
        ASSERT_EQ(menu.Items[static_cast<std::size_t>(next) - 1].Page, static_cast<int>(page));
      }
    }
    ASSERT_EQ(next, items + 1);
    ASSERT_EQ(menu.Slides, static_cast<int>(menu.Pages.size()) - 1);
  });
}

TEST(MenuPages, ItemsStandInOrderInsideTheHeightOfAPage) {
  ForEveryMenu([](const MenuScene& scene, int, const MenuLayout& menu) {
    for (const MenuPage& page : menu.Pages) {
      float bottom = 0;
      for (int i = page.FirstLabel; i <= page.LastLabel; ++i) {
        const MenuItem& item = menu.Items[static_cast<std::size_t>(i) - 1];
        ASSERT_GE(item.Top, bottom);
        bottom = item.Top + scene.LineHeight;
        if (i == page.FirstLabel) continue;
        ASSERT_LE(bottom, menu.MenuHeight - 3 * scene.TwipsY);
      }
    }
  });
}

TEST(MenuPages, RulesStandBetweenTwoItemsOfTheirPage) {
  ForEveryMenu([](const MenuScene& scene, int, const MenuLayout& menu) {
    for (const MenuPage& page : menu.Pages) {
      std::size_t rules = 0;
      for (int i = page.FirstLabel; i < page.LastLabel; ++i) {
        const float bottom = menu.Items[static_cast<std::size_t>(i) - 1].Top + scene.LineHeight;
        const float next = menu.Items[static_cast<std::size_t>(i)].Top;
        if (next - bottom <= menu.ItemGap) continue;
        ASSERT_LT(rules, page.Rules.size());
        ASSERT_GT(page.Rules[rules], bottom);
        ASSERT_LT(page.Rules[rules] + scene.TwipsY, next);
        ++rules;
      }
      ASSERT_EQ(rules, page.Rules.size());
    }
  });
}

TEST(MenuPages, ASinglePageEndsThirteenPixelsBelowItsLastItem) {
  ForEveryMenu([](const MenuScene& scene, int, const MenuLayout& menu) {
    if (menu.Slides > 0) {
      ASSERT_FLOAT_EQ(menu.Height, scene.WindowHeight);
      ASSERT_FLOAT_EQ(menu.MenuHeight, scene.WindowHeight - 36 * scene.TwipsY);
    } else {
      ASSERT_FLOAT_EQ(menu.Height, menu.Items.back().Top + scene.LineHeight + 13 * scene.TwipsY);
    }
  });
}

TEST(MenuPages, TheArrowsOfAPagedMenuStandBelowItsItemsAndInsideTheWindow) {
  ForEveryMenu([](const MenuScene& scene, int, const MenuLayout& menu) {
    if (menu.Slides == 0) return;
    const ArrowLayout arrows = LayOutArrows({.WindowWidth = menu.Width,
                                             .MenuHeight = menu.MenuHeight,
                                             .TwipsX = scene.TwipsX,
                                             .TwipsY = scene.TwipsY,
                                             .Slides = menu.Slides});
    ASSERT_LE(arrows.Up.Bounds.Bottom(), menu.Height);
    ASSERT_LE(arrows.Down.Bounds.Right(), menu.Width);
    ASSERT_GT(arrows.RuleY, menu.MenuHeight);
    ASSERT_GT(arrows.Up.Bounds.Top, arrows.LightRuleY);
  });
}

}  // namespace
}  // namespace corvelle
