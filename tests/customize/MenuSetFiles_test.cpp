#include "customize/MenuSetFiles.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/MenuFolder.h"
#include "customize/MenuFolderDesk.h"
#include "sim/SimFiles.h"

namespace corvelle {
namespace {

MenuFiles MustRead(sim::SimFiles& disk) {
  const auto read = ReadMenuFiles(disk, kCodePage, kMenus);
  EXPECT_TRUE(read.HasValue());
  return read ? *read : MenuFiles{};
}

MenusStamp StampNow(sim::SimFiles& disk) { return MustRead(disk).Stamp; }

TEST(MenuSetFiles, TheFirstRecordIsTheHeadAndTheOthersAreItems) {
  sim::SimFiles disk;
  PutFolder(disk, {{"BMENU001.MNU", Stored("Games", "Button") + Stored(Item("Chess")) +
                                        Stored("", "MenuLineSeparator")},
                   {"BMENU002.MNU", Stored("Letters", "", "/h")},
                   {"BMENU001.BTN", Stored(Item("Clock"))}});
  const MenuSet expected = {
      {{{"Games", "Button", ""}, {Item("Chess"), {"", "MenuLineSeparator", ""}}},
       {{"Letters", "", "/h"}, {}}},
      {Item("Clock")}};
  EXPECT_EQ(MustRead(disk).Set, expected);
}

TEST(MenuSetFiles, NoFilesGiveAnEmptySet) {
  sim::SimFiles disk;
  PutFolder(disk, {{"readme.txt", "x"}, {"BMENU001.mfd", Stored("Copy")}});
  EXPECT_EQ(MustRead(disk).Set, MenuSet());
}

TEST(MenuSetFiles, OrderIsThatOfTheNamesAsTextWhateverTheirCase) {
  sim::SimFiles disk;
  PutFolder(disk, {{"bmenu101.mnu", Stored("c")},
                   {"BMENU1000.MNU", Stored("b")},
                   {"Bmenu100.Mnu", Stored("a")},
                   {"AAA.MNU", Stored("0")}});
  std::vector<std::string> titles;
  for (const Menu& menu : MustRead(disk).Set.Menus) titles.push_back(menu.Head.FTitle);
  EXPECT_EQ(titles, (std::vector<std::string>{"0", "a", "b", "c"}));
}

TEST(MenuSetFiles, TheNumberOfRecordsIsRounded) {
  const std::string whole = Stored("Head") + Stored(Item("One")) + Stored(Item("Two"));
  struct Row {
    const char* name;
    std::string bytes;
    MenuRecord head;
    std::size_t items;
    MenuRecord last;
  };
  const std::string half = Stored(Item("One")).substr(0, 285);
  const Row rows[] = {
      {"nothing at all", "", {}, 0, {}},
      {"a few bytes of a head", "He", {"He", "", ""}, 0, {}},
      {"half a head", Stored("Head").substr(0, 285), {"Head", "", ""}, 0, {}},
      {"a whole head", Stored("Head"), {"Head", "", ""}, 0, {}},
      {"a tail below a half", Stored("Head") + half.substr(1), {"Head", "", ""}, 0, {}},
      {"half a record behind an odd number",
       Stored("Head") + half,
       {"Head", "", ""},
       1,
       {"One", "C:\\Icons\\One.ico", ""}},
      {"half a record behind an even number",
       Stored("Head") + Stored(Item("Two")) + half,
       {"Head", "", ""},
       1,
       Item("Two")},
      {"a short last record is blank behind its end",
       whole.substr(0, 1140 + 310),
       {"Head", "", ""},
       2,
       {"Two", "C:\\Icons\\Two.ico", ""}},
      {"whole records", whole, {"Head", "", ""}, 2, Item("Two")},
  };
  for (const Row& row : rows) {
    sim::SimFiles disk;
    PutFolder(disk, {{"BMENU001.MNU", row.bytes}});
    const MenuSet set = MustRead(disk).Set;
    ASSERT_EQ(set.Menus.size(), 1U) << row.name;
    EXPECT_EQ(set.Menus[0].Head, row.head) << row.name;
    ASSERT_EQ(set.Menus[0].Items.size(), row.items) << row.name;
    if (row.items > 0) {
      EXPECT_EQ(set.Menus[0].Items.back(), row.last) << row.name;
    }
    EXPECT_EQ(disk.Get(InMenus("BMENU001.MNU")), row.bytes) << row.name;
  }
}

TEST(MenuSetFiles, OfASingleButtonsFileOnlyTheFirstRecordCounts) {
  sim::SimFiles disk;
  PutFolder(disk, {{"BMENU001.BTN", Stored(Item("Clock")) + Stored(Item("Other"))},
                   {"BMENU002.BTN", ""},
                   {"BMENU003.BTN", Stored(Item("Cut")).substr(0, 10)}});
  EXPECT_EQ(MustRead(disk).Set.Singles,
            (std::vector<MenuRecord>{Item("Clock"), {}, {"Cut", "", ""}}));
}

TEST(MenuSetFiles, FieldsAreTrimmedAndKeepTheirNuls) {
  sim::SimFiles disk;
  PutFolder(disk, {{"BMENU001.MNU", Stored("  Head ", " Button", std::string("a\0b", 3))}});
  EXPECT_EQ(MustRead(disk).Set.Menus[0].Head,
            (MenuRecord{"Head", "Button", std::string("a\0b", 3)}));
}

// A set without it would be saved, and the menu gone.
TEST(MenuSetFiles, AFileThatCannotBeReadIsAnErrorOfTheWhole) {
  for (const char* name : {"BMENU002.MNU", "BMENU001.BTN"}) {
    sim::SimFiles disk;
    PutFolder(disk, {{"BMENU001.MNU", Stored("a")},
                     {"BMENU002.MNU", Stored("b")},
                     {"BMENU001.BTN", Stored("c")}});
    disk.HoldOpen(InMenus(name));
    const auto read = ReadMenuFiles(disk, kCodePage, kMenus);
    ASSERT_FALSE(read.HasValue());
    EXPECT_EQ(read.Error().Reason, FileError::InUse);
    EXPECT_EQ(read.Error().Path, InMenus(name));
  }
}

TEST(MenuSetFiles, MoreRecordsThanNumbersReachAreAnErrorSinceASaveWouldCutThemOff) {
  sim::SimFiles disk;
  const std::size_t most = static_cast<std::size_t>(kMaxRecords) * kRecordLength;
  PutFolder(disk, {{"BMENU001.MNU", std::string(most, ' ')}});
  EXPECT_EQ(MustRead(disk).Set.Menus[0].Items.size(), static_cast<std::size_t>(kMaxRecords) - 1);
  disk.Put(InMenus("BMENU001.MNU"), std::string(most + 1, ' '));
  const auto read = ReadMenuFiles(disk, kCodePage, kMenus);
  ASSERT_FALSE(read.HasValue());
  EXPECT_EQ(read.Error().Path, InMenus("BMENU001.MNU"));
}

TEST(MenuSetFiles, AMissingFolderIsAnError) {
  sim::SimFiles disk;
  const auto read = ReadMenuFiles(disk, kCodePage, kMenus);
  ASSERT_FALSE(read.HasValue());
  EXPECT_EQ(read.Error().Reason, FileError::NotFound);
}

TEST(MenuSetFiles, ReadingChangesNothing) {
  sim::SimFiles disk;
  PutFolder(disk, {{"BMENU001.MNU", "short"}, {"BMENU009.MNU", ""}});
  const int before = disk.Changes();
  static_cast<void>(MustRead(disk));
  EXPECT_EQ(disk.Changes(), before);
}

// ---- the stamp ----

TEST(MenusStamp, ChangesWithEveryByteAndWithTheOrder) {
  const Folder base = {{"BMENU001.MNU", Stored("a") + Stored("b")},
                       {"BMENU002.MNU", Stored("c")},
                       {"BMENU001.BTN", Stored("d")}};
  sim::SimFiles disk;
  PutFolder(disk, base);
  const MenusStamp stamp = StampNow(disk);
  EXPECT_EQ(StampNow(disk), stamp);
  const auto differs = [&](const char* what, const Folder& folder) {
    sim::SimFiles other;
    PutFolder(other, folder);
    EXPECT_FALSE(StampNow(other) == stamp) << what;
  };
  Folder f = base;
  f["BMENU002.MNU"][569] = 'x';
  differs("the last byte", f);
  f = base;
  f["BMENU001.BTN"][0] = 'x';
  differs("a single button", f);
  f = base;
  std::swap(f["BMENU001.MNU"], f["BMENU002.MNU"]);
  differs("two menus changed places", f);
  f = base;
  f["BMENU001.MNU"] = Stored("a");
  f["BMENU002.MNU"] = Stored("b") + Stored("c");
  differs("an item that became a head", f);
  f = base;
  f.erase("BMENU001.BTN");
  f["BMENU003.MNU"] = Stored("d");
  differs("a single button that became a menu", f);
  f = base;
  f["BMENU003.MNU"] = "";
  differs("an empty file more", f);
  f = base;
  f["BMENU002.MNU"] += ' ';
  differs("a blank more", f);
}

// The strip does it, whenever it is built.
TEST(MenusStamp, StaysWhenGapsInTheNumberingClose) {
  sim::SimFiles disk;
  PutFolder(disk, {{"BMENU001.MNU", Stored("a")},
                   {"BMENU003.MNU", Stored("b")},
                   {"bmenu007.mnu", Stored("c")}});
  const MenusStamp stamp = StampNow(disk);
  ASSERT_TRUE(OrderedMenuFiles(disk, kMenus).HasValue());
  ASSERT_TRUE(disk.Has(InMenus("BMENU002.MNU")));
  EXPECT_EQ(StampNow(disk), stamp);
}

// ---- files of a set ----

TEST(FormatMenus, GivesTheFilesThatReadBackAsTheSet) {
  const MenuSet set = {
      {{{"Games", "Button", ""}, {Item("Chess"), NewSeparatorRecord()}}, {{"Empty", "", "/h"}, {}}},
      {Item("Clock"), Item("Mail")}};
  const StoredMenus stored = FormatMenus(set, kCodePage);
  ASSERT_EQ(stored.Menus.size(), 2U);
  EXPECT_EQ(stored.Menus[0].Name, "BMENU001.MNU");
  EXPECT_EQ(stored.Menus[0].Bytes,
            Stored("Games", "Button") + Stored(Item("Chess")) + Stored(NewSeparatorRecord()));
  EXPECT_EQ(stored.Menus[1].Name, "BMENU002.MNU");
  EXPECT_EQ(stored.Menus[1].Bytes.size(), kRecordLength);
  ASSERT_EQ(stored.Singles.size(), 2U);
  EXPECT_EQ(stored.Singles[1].Name, "BMENU002.BTN");
  EXPECT_EQ(ParseMenus(stored, kCodePage), set);
}

TEST(FormatMenus, ATitleBeyond50BytesAndATextBeyond260AreCutAndShorterOnesPadded) {
  const MenuSet set = {{{{std::string(51, 't'), std::string(261, 'i'), std::string(300, 'n')}, {}},
                        {{std::string(50, 't'), std::string(260, 'i'), "n"}, {}}},
                       {}};
  const StoredMenus stored = FormatMenus(set, kCodePage);
  EXPECT_EQ(stored.Menus[0].Bytes,
            std::string(50, 't') + std::string(260, 'i') + std::string(260, 'n'));
  EXPECT_EQ(stored.Menus[1].Bytes,
            std::string(50, 't') + std::string(260, 'i') + "n" + std::string(259, ' '));
}

TEST(FormatMenus, TheThousandthMenuHasFourDigitsAndIsReadBeforeNumber101) {
  MenuSet set;
  for (int i = 1; i <= 1001; ++i) set.Menus.push_back({{std::to_string(i), "", ""}, {}});
  const StoredMenus stored = FormatMenus(set, kCodePage);
  EXPECT_EQ(stored.Menus[998].Name, "BMENU999.MNU");
  EXPECT_EQ(stored.Menus[999].Name, "BMENU1000.MNU");
  const MenuSet read = ParseMenus(InListOrder(stored), kCodePage);
  std::vector<std::string> titles;
  for (std::size_t i = 98; i < 103; ++i) titles.push_back(read.Menus[i].Head.FTitle);
  EXPECT_EQ(titles, (std::vector<std::string>{"99", "100", "1000", "1001", "101"}));
}

// ---- growth ----

/// What the reading of so many menus asks of the disk.
std::size_t CallsToRead(int menus) {
  sim::SimFiles disk;
  Folder files;
  for (int i = 1; i <= menus; ++i) files[MenuFileName(i)] = Stored("m") + Stored(Item("a"));
  PutFolder(disk, files);
  disk.ClearLog();
  EXPECT_TRUE(ReadMenuFiles(disk, kCodePage, kMenus).HasValue());
  return disk.Log().size();
}

TEST(MenuSetFiles, ReadingAsksForEachFileOnce) {
  // Two listings, and the files.
  for (const int menus : {0, 1, 10, 300}) {
    EXPECT_EQ(CallsToRead(menus), static_cast<std::size_t>(menus) + 2) << menus;
  }
}

TEST(MenuSetFiles, AFileThatGoesWhileTheyAreReadGivesTheStampOfTheOthers) {
  sim::SimFiles disk;
  PutFolder(disk, {{"BMENU001.MNU", Stored("a")}, {"BMENU002.MNU", Stored("b")}});
  // The second reading fails: that file is gone then.
  disk.FailCall(3, FileError::NotFound);
  const auto read = ReadMenuFiles(disk, kCodePage, kMenus);
  ASSERT_TRUE(read.HasValue());
  disk.StopFailing();
  const auto again = ReadMenuFiles(disk, kCodePage, kMenus);
  EXPECT_EQ((*read).Stamp, (*again).Stamp) << "looked at once more, it was there";
  EXPECT_EQ((*read).Set, (*again).Set);
}

}  // namespace
}  // namespace corvelle
