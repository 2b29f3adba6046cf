#include "menus/items/MenuLayout.h"

#include <gtest/gtest.h>

#include "menus/items/MenuRules.h"

namespace corvelle {
namespace {

using namespace std::string_literals;

const MenuRecord kHeader{"Programs", "Button", ""};
const MenuRecord kSeparator{"Separator", "MenuLineSeparator", ""};

MenuRecord Titled(std::string title) { return {std::move(title), "icon.ico", "run.exe"}; }

/// A menu file by a pattern: 'i' an item, 's' a separator, 'b' an old breaker, 'h' the entry that
/// no menu shows.
std::vector<MenuRecord> File(std::string_view pattern) {
  std::vector<MenuRecord> records{kHeader};
  for (const char c : pattern) {
    if (c == 's') {
      records.push_back(kSeparator);
    } else if (c == 'b') {
      records.push_back({"", "MenuBreaker", ""});
    } else {
      records.push_back(Titled(c == 'h' ? "Corvelle" : "Titled"));
    }
  }
  return records;
}

std::vector<float> Tops(const MenuLayout& menu) {
  std::vector<float> tops;
  for (const MenuItem& item : menu.Items) tops.push_back(item.Top);
  return tops;
}

TEST(MenuMetrics, FollowTheTwipsOfAPixel) {
  const MenuMetrics fifteen = MetricsFor(15, 15);
  EXPECT_FLOAT_EQ(fifteen.ItemGap, 105);
  EXPECT_FLOAT_EQ(fifteen.SmallIconW, 240);
  EXPECT_FLOAT_EQ(fifteen.SmallIconH, 240);
  EXPECT_FLOAT_EQ(fifteen.ItemLeft, 360);
  EXPECT_FLOAT_EQ(fifteen.FirstTop, 90);
  EXPECT_FLOAT_EQ(fifteen.BarLeft, 315);
  EXPECT_FLOAT_EQ(fifteen.BarHeight, 315);
  const MenuMetrics twelve = MetricsFor(12, 12);
  EXPECT_FLOAT_EQ(twelve.ItemGap, 72);
  EXPECT_FLOAT_EQ(twelve.SmallIconW, 192);
  EXPECT_FLOAT_EQ(twelve.ItemLeft, 288);
  EXPECT_FLOAT_EQ(twelve.FirstTop, 72);
  EXPECT_FLOAT_EQ(twelve.BarLeft, 252);
  EXPECT_FLOAT_EQ(twelve.BarHeight, 252);
}

TEST(MenuMetrics, AreTheDefaultsAtFifteenTwips) { EXPECT_EQ(MetricsFor(15, 15), MenuMetrics{}); }

TEST(MenuMetrics, TakeTwipsAsWholeNumbers) {
  EXPECT_EQ(MetricsFor(12.9F, 12.9F), MetricsFor(12, 12));
  EXPECT_FLOAT_EQ(MetricsFor(14.4F, 14.4F).ItemGap, 98);
}

TEST(ItemGap, IsSixPixelsBelowFourteenTwipsAndSevenFromThereOn) {
  EXPECT_FLOAT_EQ(ItemGapFor(12), 72);
  EXPECT_FLOAT_EQ(ItemGapFor(13), 78);
  EXPECT_FLOAT_EQ(ItemGapFor(14), 98);
  EXPECT_FLOAT_EQ(ItemGapFor(15), 105);
}

TEST(MenuRoom, IsWhatTheStripLeaves) {
  struct Row {
    const char* name;
    MenuRoomScene scene;
    float expected;
  };
  const Row rows[] = {
      {"below a strip at the top", {.ScreenHeight = 11520, .MenuTop = 315, .StripTop = -45}, 11205},
      {"above a strip at the bottom",
       {.At = Edge::Bottom, .ScreenHeight = 11520, .MenuTop = 315, .StripTop = 11130},
       11130},
      {"beside a vertical strip",
       {.Vertical = true, .At = Edge::Left, .ScreenHeight = 11520, .MenuTop = 315, .StripTop = 0},
       11520},
      {"none is left", {.ScreenHeight = 300, .MenuTop = 315}, 0},
      {"none is left above", {.At = Edge::Bottom, .ScreenHeight = 300, .StripTop = -15}, 0},
  };
  for (const Row& row : rows) EXPECT_FLOAT_EQ(MenuRoom(row.scene), row.expected) << row.name;
}

TEST(InitQMenu, PlacesItemsOneBelowTheOther) {
  const auto records = File("iii");
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records)});
  EXPECT_EQ(Tops(menu), (std::vector<float>{90, 390, 690}));
  EXPECT_EQ(menu.Labels, 3);
  EXPECT_EQ(menu.Slides, 0);
  EXPECT_FLOAT_EQ(menu.ItemGap, 105);
  EXPECT_FLOAT_EQ(menu.MenuHeight, 9000);
  EXPECT_FLOAT_EQ(menu.Height, 1080);
  ASSERT_EQ(menu.Pages.size(), 1u);
  EXPECT_EQ(menu.Pages[0], (MenuPage{.FirstLabel = 1, .LastLabel = 3, .Rules = {}}));
}

TEST(InitQMenu, WithLargeSystemFonts) {
  const auto records = File("isii");
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records),
                                      .TwipsX = 12,
                                      .TwipsY = 12,
                                      .LineHeight = 192,
                                      .TextWidth = [](std::string_view) { return 1500.0F; }});
  EXPECT_EQ(Tops(menu), (std::vector<float>{72, 480, 744}));
  EXPECT_EQ(menu.Pages[0].Rules, (std::vector<float>{360}));
  EXPECT_FLOAT_EQ(menu.Height, 1092);
  EXPECT_FLOAT_EQ(menu.Width, 1944);
}

TEST(InitQMenu, TheHeaderIsNoItem) {
  std::vector<MenuRecord> records{kSeparator, Titled("First")};
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records)});
  ASSERT_EQ(menu.Labels, 1);
  EXPECT_EQ(menu.Items[0].Title, "First");
  EXPECT_FALSE(menu.Items[0].AfterSeparator);
}

TEST(InitQMenu, ItemsCarryCommandIconAndPlaceInTheFile) {
  const auto records = File("isi");
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records)});
  const MenuItem expected{.Title = "Titled",
                          .Icon = "icon.ico",
                          .Command = "run.exe",
                          .Origin = {4, ""},
                          .AfterSeparator = true,
                          .Top = menu.Items[1].Top};
  EXPECT_EQ(menu.Items[1], expected);
  EXPECT_FALSE(menu.Items[0].AfterSeparator);
  EXPECT_EQ(menu.Items[0].Origin.Record, 2);
}

TEST(InitQMenu, WhatAnEntryStandsForIsTakenFromItsOrigin) {
  std::vector<MenuItem> items =
      ItemsOf({kHeader, Titled("Notes.txt"), Titled("A & B"), Titled("Plain")});
  items[1].Origin = {5007, "Notes.txt and more"};
  items[2].Origin = {12, ""};
  const MenuLayout menu = LayOutMenu({.Items = items});
  ASSERT_EQ(menu.Labels, 3);
  EXPECT_EQ(menu.Items[0].Title, "Notes.txt");
  EXPECT_EQ(menu.Items[0].Origin.Record, 5007);
  EXPECT_EQ(menu.Items[0].Origin.Name, "Notes.txt and more");
  EXPECT_EQ(menu.Items[1].Title, "A & B");
  EXPECT_EQ(menu.Items[1].Origin.Record, 12);
  EXPECT_EQ(menu.Items[1].Origin.Name, "");
  EXPECT_EQ(menu.Items[2].Title, "Plain");
  EXPECT_EQ(menu.Items[2].Origin.Record, 4);
}

TEST(InitQMenu, ElsewhereANulInATitleIsADamagedRest) {
  const std::vector<MenuRecord> records{kHeader, Titled("Notes.txt\0005007"s)};
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records)});
  EXPECT_EQ(menu.Items[0].Title, "Notes.txt");
  EXPECT_EQ(menu.Items[0].Origin.Record, 2);
}

TEST(InitQMenu, AnAmpersandIsShownAndMeasuredAsItIs) {
  const std::vector<MenuRecord> records{kHeader, Titled("Tom & Jerry"), Titled("R&&D")};
  std::vector<std::string> measured;
  const MenuLayout menu =
      LayOutMenu({.Items = ItemsOf(records), .TextWidth = [&](std::string_view text) {
                    measured.emplace_back(text);
                    return 1.0F;
                  }});
  EXPECT_EQ(menu.Items[0].Title, "Tom & Jerry");
  EXPECT_EQ(menu.Items[1].Title, "R&&D");
  EXPECT_EQ(measured, (std::vector<std::string>{"Tom & Jerry", "R&&D"}));
}

TEST(MenuWidth, IsThatOfTheWidestCaptionWithRoomOnBothSides) {
  const std::vector<MenuRecord> records{kHeader, Titled("short"), Titled("longest of all"),
                                        Titled("x")};
  const auto hundred = [](std::string_view text) {
    return 110.0F * static_cast<float>(text.size());
  };
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records), .TextWidth = hundred});
  EXPECT_FLOAT_EQ(menu.MaxLabelWidth, 1540);
  EXPECT_FLOAT_EQ(menu.Width, 2095);
  EXPECT_FLOAT_EQ(menu.Items[0].Width, 550);
}

TEST(MenuWidth, OfAButtonsMenuIs1750AtLeast) {
  const auto records = File("i");
  for (const float width : {0.0F, 1194.0F, 1195.0F}) {
    const auto text = [=](std::string_view) { return width; };
    EXPECT_FLOAT_EQ(LayOutMenu({.Items = ItemsOf(records), .TextWidth = text}).Width, 1750)
        << width;
  }
  const auto text = [](std::string_view) { return 1196.0F; };
  EXPECT_FLOAT_EQ(LayOutMenu({.Items = ItemsOf(records), .TextWidth = text}).Width, 1751);
}

TEST(MenuWidth, OfTheMainMenuLeavesRoomForMarksAndHasNoLeast) {
  const std::vector<MenuRecord> records = MainMenuRecords();
  const auto text = [](std::string_view) { return 300.0F; };
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records), .Key = "Q1", .TextWidth = text});
  EXPECT_FLOAT_EQ(menu.Width, 1485);
  EXPECT_EQ(menu.Labels, 11);
  EXPECT_EQ(menu.Items[0].Title, "Customize...");
  EXPECT_EQ(menu.Items[10].Title, "Exit");
}

TEST(EmptyMenu, AFileOfFewerThanTwoRecordsHasTheLeastWidth) {
  for (const std::vector<MenuRecord>& records : {std::vector<MenuRecord>(), File("")}) {
    const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records)});
    EXPECT_EQ(menu.Labels, 0);
    EXPECT_EQ(menu.Slides, 0);
    EXPECT_FLOAT_EQ(menu.Width, 1750);
    EXPECT_FLOAT_EQ(menu.Height, 480);
    ASSERT_EQ(menu.Pages.size(), 1u);
    EXPECT_EQ(menu.Pages[0], (MenuPage{.FirstLabel = 1, .LastLabel = 0, .Rules = {}}));
  }
}

TEST(EmptyMenu, AFileOfSeparatorsOnlyHasTheLeastWidthAndNoRule) {
  const auto records = File("sssss");
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records)});
  EXPECT_EQ(menu.Labels, 0);
  EXPECT_FLOAT_EQ(menu.Width, 1750);
  EXPECT_FLOAT_EQ(menu.Height, 480);
  EXPECT_TRUE(menu.Pages[0].Rules.empty());
}

TEST(MenuSeparators, DrawOneRuleAndAddTheirGapOnce) {
  for (const char* pattern : {"isi", "issi", "isssssi", "ibi", "ibsbi", "ishsi"}) {
    const auto records = File(pattern);
    const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records)});
    EXPECT_EQ(Tops(menu), (std::vector<float>{90, 570})) << pattern;
    EXPECT_EQ(menu.Pages[0].Rules, (std::vector<float>{420})) << pattern;
    EXPECT_FALSE(menu.Items[0].AfterSeparator) << pattern;
    EXPECT_TRUE(menu.Items[1].AfterSeparator) << pattern;
    EXPECT_FLOAT_EQ(menu.Height, 960) << pattern;
  }
}

// Tops are sums of floats, and the twips of a pixel are no whole number at most scales.
TEST(MenuSeparators, HaveTheirRulesAndNoOtherAppearsAtAnyScale) {
  for (int dpi = 96; dpi <= 336; dpi += 24) {
    const float twips = 1440.0F / static_cast<float>(dpi);
    for (int line = 10; line <= 60; ++line) {
      for (int separators = 0; separators <= 6; ++separators) {
        std::string pattern;
        for (int item = 1; item <= 20; ++item) pattern += item <= separators ? "is" : "i";
        const std::vector<MenuItem> items = ItemsOf(File(pattern));
        const float height = static_cast<float>(line) * twips;
        const MenuLayout menu = LayOutMenu({.Items = items,
                                            .TwipsX = twips,
                                            .TwipsY = twips,
                                            .LineHeight = height,
                                            .WindowHeight = 40000});
        ASSERT_EQ(menu.Slides, 0);
        for (std::size_t i = 1; i < menu.Items.size(); ++i) {
          const ItemBox above{menu.Items[i - 1].Top, height};
          const ItemBox below{menu.Items[i].Top, height};
          EXPECT_EQ(HasRuleBetween(above, below, menu.ItemGap), menu.Items[i].AfterSeparator)
              << dpi << " dots, lines of " << line << ", " << pattern << ", below item " << i;
        }
      }
    }
  }
}

TEST(MenuSeparators, MarkTheItemRightAfterThemOnly) {
  const auto records = File("isiisi");
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records)});
  std::string kinds;
  for (const MenuItem& item : menu.Items) kinds += item.AfterSeparator ? 's' : 'n';
  EXPECT_EQ(kinds, "nsns");
}

TEST(MenuSeparators, AtTheVeryTopOneDrawsNoRuleButMarksTheFirstItem) {
  for (const char* pattern : {"si", "ssi", "hsi", "bi"}) {
    const auto records = File(pattern);
    const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records)});
    EXPECT_EQ(Tops(menu), (std::vector<float>{90})) << pattern;
    EXPECT_TRUE(menu.Pages[0].Rules.empty()) << pattern;
    EXPECT_TRUE(menu.Items[0].AfterSeparator) << pattern;
  }
}

TEST(MenuSeparators, AtTheEndOfASinglePageTheRuleLiesUnderTheFrameAndIsNotSeen) {
  const auto records = File("iis");
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records)});
  EXPECT_EQ(menu.Pages[0].Rules, (std::vector<float>{720}));
  EXPECT_FLOAT_EQ(menu.Height, 780);
  const float frame = 2 * 3 * 15;
  EXPECT_LT(menu.Height - frame, 720);
}

TEST(MenuSeparators, AreKnownInAnyCase) {
  const std::vector<MenuRecord> records{kHeader,
                                        Titled("One"),
                                        {"", " menulineseparator ", ""},
                                        {"", "MENUBREAKER", ""},
                                        Titled("Two")};
  EXPECT_EQ(Tops(LayOutMenu({.Items = ItemsOf(records)})), (std::vector<float>{90, 570}));
}

TEST(HiddenTitle, IsTheProgramsNameUpToItsNul) {
  EXPECT_TRUE(IsHiddenTitle("Corvelle"));
  EXPECT_TRUE(IsHiddenTitle("CORVELLE"));
  EXPECT_TRUE(IsHiddenTitle("corvelle\0005012"s));
  EXPECT_TRUE(IsHiddenTitle("Corvelle\0"s));
  EXPECT_FALSE(IsHiddenTitle("Corvelle 2"));
  EXPECT_FALSE(IsHiddenTitle("Corvell"));
  EXPECT_FALSE(IsHiddenTitle(""));
  EXPECT_FALSE(IsHiddenTitle("\0Corvelle"s));
}

TEST(HiddenTitle, ItsRecordIsSkippedWhateverItIs) {
  std::vector<MenuRecord> records = File("ihi");
  records[2].FIcon = "MenuLineSeparator";
  const MenuLayout menu = LayOutMenu({.Items = ItemsOf(records)});
  EXPECT_EQ(Tops(menu), (std::vector<float>{90, 390}));
  EXPECT_TRUE(menu.Pages[0].Rules.empty());
  EXPECT_EQ(menu.Items[1].Origin.Record, 4);
}

TEST(Arrows, GoldenGeometry) {
  const ArrowLayout at15 =
      LayOutArrows({.WindowWidth = 2055, .MenuHeight = 2505, .CurMenu = 0, .Slides = 2});
  EXPECT_FLOAT_EQ(at15.RuleY, 2550);
  EXPECT_FLOAT_EQ(at15.LightRuleY, 2565);
  EXPECT_EQ(at15.Up, (ArrowButton{{45, 2625, 922.5F, 315}, false, "up2"}));
  EXPECT_EQ(at15.Down, (ArrowButton{{982.5F, 2625, 922.5F, 315}, true, "down"}));
  const ArrowLayout at12 = LayOutArrows({.WindowWidth = 1944,
                                         .MenuHeight = 2000,
                                         .TwipsX = 12,
                                         .TwipsY = 12,
                                         .CurMenu = 1,
                                         .Slides = 1});
  EXPECT_FLOAT_EQ(at12.RuleY, 2036);
  EXPECT_FLOAT_EQ(at12.LightRuleY, 2048);
  EXPECT_EQ(at12.Up, (ArrowButton{{36, 2096, 888, 252}, true, "up"}));
  EXPECT_EQ(at12.Down, (ArrowButton{{936, 2096, 888, 252}, false, "down2"}));
}

TEST(Arrows, BothWorkOnAPageInBetween) {
  const ArrowLayout arrows = LayOutArrows({.CurMenu = 1, .Slides = 2});
  EXPECT_TRUE(arrows.Up.Enabled);
  EXPECT_TRUE(arrows.Down.Enabled);
  EXPECT_EQ(arrows.Up.Glyph, "up");
  EXPECT_EQ(arrows.Down.Glyph, "down");
}

TEST(Arrows, AGlyphStandsInTheMiddleOfItsButton) {
  EXPECT_EQ(GlyphPlace({45, 2625, 922.5F, 315}, {135, 75}), (TwipPoint{438.75F, 2745}));
}

}  // namespace
}  // namespace corvelle
