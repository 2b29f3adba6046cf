// What is on show in a menu, without a window: items and pages.

#include <gtest/gtest.h>

#include "base/CodePage.h"
#include "menus/items/ShownItems.h"
#include "menus/items/ShownPages.h"

namespace corvelle {
namespace {

const Windows1252 kAnsi;

std::shared_ptr<BuiltMenu> MenuOf(std::vector<MenuItem> items) {
  auto menu = std::make_shared<BuiltMenu>();
  menu->MenuInfo.Key = "F2";
  menu->Source = "C:\\Menus\\BMENU001.MNU";
  menu->Items = std::move(items);
  return menu;
}

/// Three pages with items 1 to 4, 5 to 8 and 9.
std::shared_ptr<BuiltMenu> PagedMenu() {
  auto menu = std::make_shared<BuiltMenu>();
  menu->SlideList = {{.FirstLabel = 1, .LastLabel = 4},
                     {.FirstLabel = 5, .LastLabel = 8},
                     {.FirstLabel = 9, .LastLabel = 9}};
  menu->MenuInfo.Slides = 2;
  return menu;
}

TEST(ShownItems, OfOneThatIsNotThereEveryTextIsEmpty) {
  ShownItems items(kAnsi);
  EXPECT_EQ(items.Count(), 0);
  items.Show(MenuOf({{.Title = "a", .Command = "a.exe"}}));
  EXPECT_TRUE(items.Has(1));
  for (const int index : {-1, 0, 2}) {
    EXPECT_FALSE(items.Has(index)) << index;
    EXPECT_EQ(items[index], MenuItem{}) << index;
    EXPECT_EQ(items.NameOf(index), "") << index;
    EXPECT_FALSE(items.SetIcon(index, "xCircle")) << index;
  }
  items.Clear();
  EXPECT_FALSE(items.Has(1));
}

TEST(ShownItems, AnEntryOfAFolderOfTheShellIsToldByItsWholeNameThere) {
  ShownItems items(kAnsi);
  items.Show(MenuOf({{.Title = "Local Di",
                      .Icon = "8",
                      .Command = "CSIDL_DRIVES",
                      .Origin = {5003, "Local Disk"}},
                     {.Title = "Plain", .Icon = "i", .Command = "a.exe", .Origin = {4, ""}}}));
  EXPECT_EQ(items.NameOf(1), "Local Disk");
  EXPECT_EQ(items.EntryOf(1).CurCommand, "Local Disk\\CSIDL_DRIVES");
  EXPECT_EQ(items.EntryOf(1).CurIcon, "Local Disk\\CSIDL_DRIVES");
  EXPECT_EQ(items.EntryOf(1).CurRecord, 5003);
  EXPECT_EQ(items.EntryOf(1).CurTitle, "Local Di");
  EXPECT_EQ(items.NameOf(2), "Plain");
  EXPECT_EQ(items.EntryOf(2).CurCommand, "a.exe");
  EXPECT_EQ(items.EntryOf(2).CurIcon, "i");
  EXPECT_EQ(items.EntryOf(2).CurFile, "C:\\Menus\\BMENU001.MNU");
  EXPECT_EQ(items.EntryOf(2).CurMenuTag, "F2");
}

TEST(ShownItems, AnEntryComesWithTheRecordThatItWasBuiltFrom) {
  const std::string stored = FormatRecord({"Button", "", ""}, kAnsi) +
                             FormatRecord({"a", "", "a.exe"}, kAnsi) +
                             FormatRecord({"Docs", "", "C:\\Docs\\*.*"}, kAnsi);
  auto menu = MenuOf({{.Title = "a", .Origin = {2, ""}}, {.Title = "file", .Origin = {5003, ""}}});
  menu->Stored = stored;
  ShownItems items(kAnsi);
  items.Show(menu);
  EXPECT_EQ(items.EntryOf(1).CurStored, stored.substr(kRecordLength, kRecordLength));
  EXPECT_EQ(items.EntryOf(2).CurStored, stored.substr(2 * kRecordLength));
}

TEST(ShownItems, AnotherIconStaysWithTheMenu) {
  const auto menu = MenuOf({{.Title = "a"}});
  ShownItems items(kAnsi);
  items.Show(menu);
  EXPECT_TRUE(items.SetIcon(1, "xCircle"));
  EXPECT_FALSE(items.SetIcon(1, "xCircle"));
  items.Clear();
  items.Show(menu);
  EXPECT_EQ(items[1].Icon, "xCircle");
}

TEST(ShownPages, WithoutAMenuThereIsNoItem) {
  ShownPages pages;
  EXPECT_EQ(pages.FirstLabel(), 0);
  EXPECT_EQ(pages.LastLabel(), 0);
  EXPECT_FALSE(pages.IsUp(0));
  EXPECT_FALSE(pages.IsUp(1));
  EXPECT_EQ(pages.PageToReturnTo(), std::nullopt);
}

TEST(ShownPages, ATurnChangesTheItemsThatAreUp) {
  ShownPages pages;
  pages.Show(PagedMenu());
  EXPECT_TRUE(pages.IsUp(4));
  pages.TurnTo(1);
  EXPECT_EQ(pages.CurMenu(), 1);
  EXPECT_EQ(pages.PrevPage(), 0);
  EXPECT_EQ(pages.FirstLabel(), 5);
  EXPECT_EQ(pages.LastLabel(), 8);
  EXPECT_FALSE(pages.IsUp(4));
  EXPECT_FALSE(pages.IsUp(9));
  EXPECT_TRUE(pages.Has(2));
  EXPECT_FALSE(pages.Has(3));
  EXPECT_FALSE(pages.Has(-1));
}

TEST(ShownPages, AMenuComesBackOnThePageOnWhichItWasLeft) {
  const auto menu = PagedMenu();
  ShownPages pages;
  pages.Show(menu);
  pages.TurnTo(2);
  pages.Clear();
  EXPECT_EQ(pages.CurMenu(), 0);
  EXPECT_EQ(pages.FirstLabel(), 0);
  pages.Show(menu);
  EXPECT_EQ(pages.CurMenu(), 2);
  EXPECT_EQ(pages.PrevPage(), 2);
}

TEST(ShownPages, ARebuiltMenuReturnsToThePageThatWasSavedOrToItsLast) {
  ShownPages pages;
  pages.Show(PagedMenu());
  pages.Save();
  EXPECT_EQ(pages.PageToReturnTo(), std::nullopt);
  pages.TurnTo(2);
  pages.Save();
  pages.Show(PagedMenu());
  EXPECT_EQ(pages.PageToReturnTo(), 2);
  auto shorter = PagedMenu();
  shorter->SlideList.pop_back();
  shorter->MenuInfo.Slides = 1;
  pages.Show(shorter);
  EXPECT_EQ(pages.PageToReturnTo(), 1);
  pages.ForgetSaved();
  EXPECT_EQ(pages.PageToReturnTo(), std::nullopt);
}

}  // namespace
}  // namespace corvelle
