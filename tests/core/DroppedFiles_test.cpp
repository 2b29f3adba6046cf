#include "core/DroppedFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "core/CoreTexts.h"
#include "core/MenuFile.h"
#include "sim/SimFiles.h"

namespace corvelle {
namespace {

using sim::SimFiles;
using Names = std::vector<std::string>;

std::string PlainTitle(std::string_view path) { return "title of " + std::string(path); }

/// What is dropped from that disk.
DroppedEntries DroppedFrom(SimFiles& disk, Names names) {
  return DroppedRecords(std::move(names), [&disk](const Names& paths) {
    std::vector<DroppedName> known;
    for (const std::string& path : paths)
      known.push_back({PlainTitle(path), PathForRecord(disk, kAnsi, path)});
    return known;
  });
}

Names TitlesIn(SimFiles& disk) {
  Names titles;
  for (const MenuRecord& record : ReadAllRecords(disk, kAnsi, kFile).ValueOr({})) {
    titles.push_back(record.FTitle);
  }
  return titles;
}

TEST(EffectOfDrag, TheRightButtonLinksAndTheOthersCopy) {
  EXPECT_EQ(EffectOfDrag(forms::MouseButton::Left), forms::DropEffect::Copy);
  EXPECT_EQ(EffectOfDrag(forms::MouseButton::Right), forms::DropEffect::Link);
  EXPECT_EQ(EffectOfDrag(forms::MouseButton::None), forms::DropEffect::Copy);
}

TEST(DroppedRecords, StandInAscendingOrderOfTheNamesWithTheirExtensions) {
  SimFiles disk;
  const auto records = DroppedFrom(disk, {"C:\\b.txt", "c:\\C.doc", "C:\\a.exe"}).Records;
  ASSERT_EQ(records.size(), 3U);
  EXPECT_EQ(records[0], (MenuRecord{"title of C:\\a.exe", "C:\\a.exe", "C:\\a.exe"}));
  EXPECT_EQ(records[1], (MenuRecord{"title of C:\\b.txt", "C:\\b.txt", "C:\\b.txt"}));
  EXPECT_EQ(records[2], (MenuRecord{"title of c:\\C.doc", "c:\\C.doc", "c:\\C.doc"}));
}

/// A folder whose name takes 255 bytes, three a character.
std::string WideFolder() {
  std::string folder = "C:\\";
  for (int i = 0; i < 85; ++i) folder += "\xE6\x97\xA5";
  return folder + "\\";
}

TEST(PathForRecord, IsThePathItselfWhileItFits) {
  SimFiles disk;
  const std::string longest = "C:\\" + std::string(257, 'n');
  EXPECT_EQ(PathForRecord(disk, kAnsi, longest), longest);
  std::string german = "C:\\";
  for (int i = 0; i < 257; ++i) german += "\xC3\xA4";
  EXPECT_EQ(PathForRecord(disk, kAnsi, german), german) << "one byte a letter in a record";
  EXPECT_TRUE(disk.Log().empty());
}

TEST(PathForRecord, IsTheShortOneWhereTheVolumeHasOne) {
  SimFiles disk;
  const std::string path = WideFolder() + "letter.txt";
  disk.Put(path, "x");
  EXPECT_EQ(PathForRecord(disk, kAnsi, path), std::nullopt);
  disk.GiveShortName(WideFolder(), "6A2F~1");
  EXPECT_EQ(PathForRecord(disk, kAnsi, path), "C:\\6A2F~1\\letter.txt");
  EXPECT_EQ(disk.Get("C:\\6A2F~1\\letter.txt"), "x");
  EXPECT_EQ(PathForRecord(disk, kAnsi, WideFolder() + "gone.txt"), std::nullopt);
}

TEST(DroppedRecords, RefuseWhatNoRecordHoldsAndTakeTheOthers) {
  SimFiles disk;
  disk.Put(WideFolder() + "b.txt", "x");
  disk.Put("C:\\a.txt", "x");
  const std::string refused = WideFolder() + "b.txt";
  DroppedEntries dropped = DroppedFrom(disk, {refused, "C:\\a.txt"});
  ASSERT_EQ(dropped.Records.size(), 1U);
  EXPECT_EQ(dropped.Records[0].FName, "C:\\a.txt");
  EXPECT_EQ(dropped.Refused, Names{refused});
  disk.GiveShortName(WideFolder(), "6A2F~1");
  dropped = DroppedFrom(disk, {refused});
  EXPECT_TRUE(dropped.Refused.empty());
  EXPECT_EQ(
      dropped.Records,
      std::vector{(MenuRecord{PlainTitle(refused), "C:\\6A2F~1\\b.txt", "C:\\6A2F~1\\b.txt"})});
}

TEST(RefusedFilesText, NamesTheFilesAndNoMoreThanTen) {
  EXPECT_EQ(RefusedFilesText({"C:\\a"}),
            "This file cannot be added, because its path is too long:\n\nC:\\a");
  EXPECT_EQ(RefusedFilesText({"C:\\a", "C:\\b"}),
            "These files cannot be added, because their paths are too long:\n\nC:\\a\nC:\\b");
  const std::string text = RefusedFilesText(Names(13, "C:\\a"));
  EXPECT_TRUE(text.ends_with("\nC:\\a\nand 3 more"));
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 12);
}

TEST(DroppedAddress, MustBeginInLowerCaseAndIsOneLine) {
  struct Row {
    const char* name;
    std::string text;
    std::optional<std::string> expected;
  };
  const Row rows[] = {
      {"an address", "http://example.com/a", "http://example.com/a"},
      {"upper case", "HTTP://example.com/a", std::nullopt},
      {"a blank before it", " http://example.com", std::nullopt},
      {"a secure one", "https://example.com/a", "https://example.com/a"},
      {"a secure one in capitals", "HTTPS://example.com", std::nullopt},
      {"another kind", "ftp://example.com", std::nullopt},
      {"a second line", "http://example.com/\r\nExample", "http://example.com/"},
      {"a line feed alone", "http://example.com/\nExample", "http://example.com/"},
      {"a NUL", std::string("http://e.com\0rest", 17), "http://e.com"},
      {"blanks behind it", "http://example.com  ", "http://example.com"},
      {"nothing", "", std::nullopt},
  };
  for (const Row& row : rows) EXPECT_EQ(DroppedAddress(row.text), row.expected) << row.name;
}

TEST(StoredMenuFile, IsTheSourceOfAGeneratedOne) {
  EXPECT_EQ(StoredMenuFile("C:\\M\\BMENU012.mfd"), "C:\\M\\BMENU012.MNU");
  EXPECT_EQ(StoredMenuFile("C:\\M\\BMENU012.MFD"), "C:\\M\\BMENU012.MNU");
  EXPECT_EQ(StoredMenuFile("C:\\M\\BMENU012.MNU"), "C:\\M\\BMENU012.MNU");
  EXPECT_EQ(StoredMenuFile(""), "");
}

TEST(AppendDropped, PutsTheRecordsAtTheEnd) {
  SimFiles disk;
  disk.Put(kFile, kFour);
  EXPECT_EQ(AppendDropped(disk, kAnsi, kFile, {{"A", "a", "a"}, {"B", "b", "b"}}),
            EditOutcome::Edited);
  EXPECT_EQ(disk.Get(kFile),
            kFour + FormatRecord({"A", "a", "a"}, kAnsi) + FormatRecord({"B", "b", "b"}, kAnsi));
}

TEST(InsertDropped, GoesBeforeItsRecord) {
  struct Row {
    const char* name;
    int position;
    Names expected;
  };
  const Row rows[] = {
      {"the first item", 2, {"Button", "A", "B", "One", "Two", "Three"}},
      {"the last item", 4, {"Button", "One", "Two", "A", "B", "Three"}},
      {"the end", 0, {"Button", "One", "Two", "Three", "A", "B"}},
      {"past the end", 9, {"Button", "One", "Two", "Three", "A", "B"}},
      {"never before the button", 1, {"Button", "A", "B", "One", "Two", "Three"}},
      {"an entry of the folder item at 3", 5003, {"Button", "One", "A", "B", "Two", "Three"}},
      {"5000 is a place, past the end", 5000, {"Button", "One", "Two", "Three", "A", "B"}},
      {"no number", -3, {"Button", "One", "Two", "Three", "A", "B"}},
  };
  for (const Row& row : rows) {
    SimFiles disk;
    disk.Put(kFile, kFour);
    EXPECT_EQ(InsertDropped(disk, kAnsi, kFile, row.position, {{"A", "", ""}, {"B", "", ""}}),
              EditOutcome::Edited)
        << row.name;
    EXPECT_EQ(TitlesIn(disk), row.expected) << row.name;
    EXPECT_EQ(disk.Names(kMenus), Names{"BMENU001.MNU"}) << row.name;
  }
}

TEST(InsertDropped, GoesThroughItsTemporaryNameBesideTheFile) {
  SimFiles disk;
  disk.Put(kFile, kFour);
  disk.Put(kMenus + "tFile.tmp", "left over");
  EXPECT_EQ(InsertDropped(disk, kAnsi, kFile, 2, {{"A", "", ""}}), EditOutcome::Edited);
  const std::vector<SimFiles::Call> log = disk.Log();
  ASSERT_GT(log.size(), 3U);
  const std::vector<SimFiles::Call> expected = {{"Write", kMenus + "tFile.tmp", ""},
                                                {"Replace", kFile, ""},
                                                {"Remove", kMenus + "tFile.tmp", ""}};
  EXPECT_EQ(std::vector<SimFiles::Call>(log.end() - 3, log.end()), expected);
  EXPECT_EQ(TitlesIn(disk), (Names{"Button", "A", "One", "Two", "Three"}));
  EXPECT_FALSE(disk.Has(kMenus + "tFile.tmp"));
}

TEST(Dropped, NothingIsAddedWhereThereIsNoMenu) {
  struct Row {
    const char* name;
    std::optional<std::string> bytes;
  };
  for (const Row& row : {Row{"a vanished file", std::nullopt}, Row{"an empty file", ""},
                         Row{"less than half a record", std::string(200, 'x')}}) {
    SimFiles disk;
    disk.MakeFolders("C:\\Corvelle\\Menus");
    if (row.bytes) disk.Put(kFile, *row.bytes);
    EXPECT_EQ(AppendDropped(disk, kAnsi, kFile, {{"A", "", ""}}), EditOutcome::NothingToDo)
        << row.name;
    EXPECT_EQ(InsertDropped(disk, kAnsi, kFile, 2, {{"A", "", ""}}), EditOutcome::NothingToDo)
        << row.name;
    EXPECT_EQ(disk.Get(kFile), row.bytes) << row.name;
  }
}

TEST(Dropped, NothingIsAddedPastTheLastRecordNumber) {
  SimFiles disk;
  const std::string full(570U * 32766U, ' ');
  disk.Put(kFile, full);
  const std::vector<MenuRecord> two(2, MenuRecord{"A", "", ""});
  EXPECT_EQ(AppendDropped(disk, kAnsi, kFile, two), EditOutcome::NothingToDo);
  EXPECT_EQ(InsertDropped(disk, kAnsi, kFile, 2, two), EditOutcome::NothingToDo);
  EXPECT_EQ(disk.Get(kFile)->size(), full.size());
  EXPECT_EQ(AppendDropped(disk, kAnsi, kFile, {{"A", "", ""}}), EditOutcome::Edited);
}

TEST(Dropped, NoFilesChangeNothing) {
  SimFiles disk;
  disk.Put(kFile, kFour);
  EXPECT_EQ(AppendDropped(disk, kAnsi, kFile, {}), EditOutcome::NothingToDo);
  EXPECT_EQ(InsertDropped(disk, kAnsi, kFile, 2, {}), EditOutcome::NothingToDo);
  EXPECT_EQ(disk.Get(kFile), kFour);
}

TEST(Dropped, NamesOfAnyScriptSurvive) {
  SimFiles disk;
  disk.Put(kFile, kFour);
  const std::string name = "C:\\\xD0\xBF\xD0\xB8\xD1\x81\xD1\x8C\xD0\xBC\xD0\xBE.txt";
  EXPECT_EQ(InsertDropped(disk, kAnsi, kFile, 0, DroppedFrom(disk, {name}).Records),
            EditOutcome::Edited);
  EXPECT_EQ(ReadRecord(disk, kAnsi, kFile, 5).ValueOr({}).FName, name);
}

TEST(Dropped, AThousandFilesComeAtOnce) {
  SimFiles disk;
  disk.Put(kFile, kFour);
  Names names;
  for (int i = 1000; i >= 1; --i) names.push_back("C:\\f" + std::to_string(10000 + i));
  EXPECT_EQ(InsertDropped(disk, kAnsi, kFile, 3, DroppedFrom(disk, names).Records),
            EditOutcome::Edited);
  const auto all = ReadAllRecords(disk, kAnsi, kFile).ValueOr({});
  ASSERT_EQ(all.size(), 1004U);
  EXPECT_EQ(all[2].FName, "C:\\f10001");
  EXPECT_EQ(all[1001].FName, "C:\\f11000");
  EXPECT_EQ(all[1002].FTitle, "Two");
}

TEST(Dropped, AnyOneFailureLeavesTheOldFileOrTheWholeNewOne) {
  const std::string added = FormatRecord({"A", "a", "a"}, kAnsi);
  struct Row {
    const char* name;
    std::function<EditOutcome(SimFiles&)> drop;
    std::string whole;
  };
  const Row rows[] = {
      {"append",
       [](SimFiles& disk) {
         return AppendDropped(disk, kAnsi, kFile, {{"A", "a", "a"}});
       },
       kFour + added},
      {"insert",
       [](SimFiles& disk) {
         return InsertDropped(disk, kAnsi, kFile, 2, {{"A", "a", "a"}});
       },
       kFour.substr(0, 570) + added + kFour.substr(570)},
  };
  for (const Row& row : rows) {
    for (const FileError error : {FileError::DiskFull, FileError::AccessDenied}) {
      int calls = 0;
      for (int n = 1;; ++n) {
        SimFiles disk;
        disk.Put(kFile, kFour);
        disk.FailCall(n, error);
        const EditOutcome outcome = row.drop(disk);
        const bool hit = disk.Hit();
        disk.StopFailing();
        if (!hit) break;
        ++calls;
        const std::string now = disk.Get(kFile).value_or("(none)");
        EXPECT_TRUE(now == kFour || now == row.whole) << row.name << ", failing call " << n;
        EXPECT_EQ(outcome == EditOutcome::Edited, now == row.whole)
            << row.name << ", failing call " << n;
        if (outcome == EditOutcome::Failed) {
          EXPECT_EQ(outcome.Reason(), error) << row.name << ", failing call " << n;
        }
      }
      EXPECT_GE(calls, 3) << row.name;
    }
  }
}

TEST(Dropped, AMenuThatHoldsItsButtonOnlyTakesThem) {
  SimFiles disk;
  disk.Put(kFile, kFour.substr(0, kRecordLength));
  EXPECT_EQ(AppendDropped(disk, kAnsi, kFile, {{"A", "a", "a"}}), EditOutcome::Edited);
  EXPECT_EQ(TitlesIn(disk), (Names{"Button", "A"}));
}

}  // namespace
}  // namespace corvelle
