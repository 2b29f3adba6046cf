#include "menus/items/MenuCache.h"

#include <gtest/gtest.h>

#include "sim/SimCanvas.h"

namespace corvelle {
namespace {

std::shared_ptr<BuiltMenu> Built(const std::string& key, int pages = 1) {
  auto menu = std::make_shared<BuiltMenu>();
  menu->MenuInfo.Key = key;
  for (int i = 0; i < pages; ++i) {
    menu->SlideList.push_back({.FirstLabel = i + 1,
                               .LastLabel = i + 1,
                               .Init = 1,
                               .MenuPicture = std::make_shared<sim::SimCanvas>(PixelSize{1, 1})});
  }
  return menu;
}

std::vector<int> Drawn(const BuiltMenu& menu) {
  std::vector<int> pages;
  for (std::size_t i = 0; i < menu.SlideList.size(); ++i) {
    EXPECT_EQ(menu.SlideList[i].Init != 0, menu.SlideList[i].MenuPicture != nullptr);
    if (menu.SlideList[i].Init != 0) pages.push_back(static_cast<int>(i));
  }
  return pages;
}

TEST(MenuCache, FindsAMenuByItsKeyCaseApart) {
  MenuCache cache;
  const auto menu = Built("F3");
  cache.Add(menu);
  EXPECT_EQ(cache.Find("F3"), menu);
  EXPECT_EQ(cache.Find("f3"), menu);
  EXPECT_EQ(cache.Find("F33"), nullptr);
}

TEST(MenuCache, ANewerMenuTakesThePlaceOfAnOlderOne) {
  MenuCache cache;
  cache.Add(Built("F3"));
  const auto newer = Built("F3");
  cache.Add(newer);
  EXPECT_EQ(cache.Find("F3"), newer);
}

TEST(MenuCache, DroppingAKeyLeavesTheOthersAndAMissingKeyDoesNoHarm) {
  MenuCache cache;
  cache.Add(Built("F3"));
  cache.Add(Built("F4"));
  cache.Remove("F3");
  cache.Remove("F9");
  EXPECT_EQ(cache.Find("F3"), nullptr);
  EXPECT_NE(cache.Find("F4"), nullptr);
}

TEST(MenuCache, WithoutPicturesEveryPageIsToBeDrawnAnew) {
  MenuCache cache;
  const auto menu = Built("F3", 3);
  cache.Add(menu);
  cache.DropPictures();
  EXPECT_TRUE(Drawn(*menu).empty());
}

TEST(LimitPictures, KeepsTheFirstPageTheCurrentOneAndThoseNearIt) {
  const auto menu = Built("F3", 10);
  LimitPictures(*menu, 8, 3);
  EXPECT_EQ(Drawn(*menu), (std::vector<int>{0, 6, 7, 8, 9}));
}

TEST(LimitPictures, TakesNothingFromAMenuOfFewPages) {
  const auto menu = Built("F3", 3);
  LimitPictures(*menu, 0, 3);
  EXPECT_EQ(Drawn(*menu), (std::vector<int>{0, 1, 2}));
}

}  // namespace
}  // namespace corvelle
