#include "properties/ItemEdit.h"

#include <gtest/gtest.h>

#include "base/CodePage.h"
#include "core/FileTransaction.h"
#include "core/MenuFile.h"
#include "core/RecordEdits.h"
#include "sim/SimFiles.h"

namespace corvelle {
namespace {

constexpr const char* kEditFolder = "C:\\Corvelle\\Menus\\";
const std::string kMenu = std::string(kEditFolder) + "BMENU001.MNU";
const MenuRecord kEditedButton{"Tools", "Button", ""};
const MenuRecord kFirst{"First", "C:\\f.ico", "C:\\first.exe"};
const MenuRecord kLast{"Last", "", "C:\\last.exe"};

class ItemEdit : public testing::Test {
 protected:
  ItemEdit() { disk.Put(kMenu, Bytes({kEditedButton, kFirst, kLast})); }

  std::string Bytes(const std::vector<MenuRecord>& records) const {
    std::string bytes;
    for (const MenuRecord& record : records) bytes += FormatRecord(record, ansi);
    return bytes;
  }
  /// The item of a record as the popup tells it.
  EditedItem ItemAt(int record, const MenuRecord& shown) const {
    const EntryEdit entry{.CurMenuTag = "F1", .CurFile = kMenu, .CurRecord = record};
    return MakeFileItem(entry, shown, ansi);
  }
  ItemResult Update(EditedItem& item, const MenuRecord& boxes) {
    return UpdateFileItem(disk, ansi, kEditFolder, item, boxes).Result;
  }
  ItemResult Cancel(EditedItem& item) {
    return CancelFileItem(disk, ansi, kEditFolder, item).Result;
  }
  std::string Now() const { return disk.Get(kMenu).value_or("missing"); }

  sim::SimFiles disk;
  Windows1252 ansi;
};

TEST_F(ItemEdit, WritesTheTrimmedBoxesToTheRecordAndNothingElse) {
  EditedItem item = ItemAt(2, kFirst);
  EXPECT_EQ(Update(item, {" New ", " C:\\n.ico", "C:\\new.exe "}), ItemResult::Written);
  EXPECT_EQ(Now(), Bytes({kEditedButton, {"New", "C:\\n.ico", "C:\\new.exe"}, kLast}));
  EXPECT_EQ(disk.Names("C:\\Corvelle\\Menus"), std::vector<std::string>{"BMENU001.MNU"});
}

TEST_F(ItemEdit, TheLastRecordKeepsItsPlace) {
  EditedItem item = ItemAt(3, kLast);
  EXPECT_EQ(Update(item, {"New", "", ""}), ItemResult::Written);
  EXPECT_EQ(Now(), Bytes({kEditedButton, kFirst, {"New", "", ""}}));
}

TEST_F(ItemEdit, EqualTextsLeaveTheFileUntouched) {
  EditedItem item = ItemAt(2, kFirst);
  EXPECT_EQ(Update(item, kFirst), ItemResult::Same);
  EXPECT_EQ(disk.Count("Replace"), 0);
  EXPECT_EQ(disk.Count("Write"), 0);
}

TEST_F(ItemEdit, AnEntryOfAFolderCannotBeModified) {
  const std::string before = Now();
  EditedItem item = ItemAt(5002, kFirst);
  EXPECT_EQ(Update(item, {"x", "", ""}), ItemResult::FolderEntry);
  EXPECT_EQ(Now(), before);
  EXPECT_EQ(RefusalText(ItemResult::FolderEntry), "Cannot modify a folder item.");
  // Its place is a number of the file still, but not the entry's own.
  EditedItem real = ItemAt(5000, kFirst);
  EXPECT_EQ(Update(real, {"x", "", ""}), ItemResult::Mismatch);
}

TEST_F(ItemEdit, AFieldThatDiffersIsAMismatch) {
  const MenuRecord changed[] = {{"Other", kFirst.FIcon, kFirst.FName},
                                {kFirst.FTitle, "other.ico", kFirst.FName},
                                {kFirst.FTitle, kFirst.FIcon, "other.exe"},
                                {"first", kFirst.FIcon, kFirst.FName}};
  for (const MenuRecord& other : changed) {
    EditedItem item = ItemAt(2, kFirst);
    disk.Put(kMenu, Bytes({kEditedButton, other, kLast}));
    EXPECT_EQ(Update(item, {"x", "", ""}), ItemResult::Mismatch) << other.FTitle;
    EXPECT_EQ(Now(), Bytes({kEditedButton, other, kLast}));
  }
  EXPECT_EQ(RefusalText(ItemResult::Mismatch), "Cannot modify this item. Record mismatch.");
}

TEST_F(ItemEdit, AMissingFileOrRecordIsAMismatchAndNothingIsCreated) {
  EditedItem item = ItemAt(2, kFirst);
  disk.Put(kMenu, Bytes({kEditedButton}));
  EXPECT_EQ(Update(item, {"x", "", ""}), ItemResult::Mismatch);
  disk.Vanish(kMenu);
  EXPECT_EQ(Update(item, {"x", "", ""}), ItemResult::Mismatch);
  EXPECT_FALSE(disk.Has(kMenu));
  EditedItem none = ItemAt(0, {});
  EXPECT_EQ(Update(none, {"x", "", ""}), ItemResult::Mismatch);
}

TEST_F(ItemEdit, ATextThatTheMenuCutIsTheWholeOneOfTheRecord) {
  const EntryEdit entry{.CurMenuTag = "F1",
                        .CurFile = kMenu,
                        .CurRecord = 2,
                        .CurStored = FormatRecord(kFirst, ansi)};
  EditedItem item = MakeFileItem(entry, {"Fir", kFirst.FIcon, kFirst.FName}, ansi);
  EXPECT_EQ(item.Starting, kFirst);
  EXPECT_EQ(Update(item, {"First one", kFirst.FIcon, kFirst.FName}), ItemResult::Written);
}

TEST_F(ItemEdit, StoredBytesThatSayTheSameOtherwiseAreAMismatch) {
  const EntryEdit entry{.CurMenuTag = "F1",
                        .CurFile = kMenu,
                        .CurRecord = 2,
                        .CurStored = FormatRecord({"First\xC3\xA9", "", ""}, ansi)};
  EditedItem item = MakeFileItem(entry, {}, ansi);
  std::string utf8 = FormatRecord({"", "", ""}, ansi);
  utf8.replace(0, 7, "First\xC3\xA9");
  disk.Put(kMenu, Bytes({kEditedButton}) + utf8);
  EXPECT_EQ(ParseRecord(utf8, ansi), item.Starting);
  EXPECT_EQ(Update(item, {"x", "", ""}), ItemResult::Mismatch);
}

TEST_F(ItemEdit, ASecondChangeStartsFromTheFirstAlsoWhenItsTailWasCut) {
  EditedItem item = ItemAt(2, kFirst);
  const std::string longTitle(60, 'x');
  EXPECT_EQ(Update(item, {longTitle, "", ""}), ItemResult::Written);
  EXPECT_EQ(item.Current.FTitle, std::string(50, 'x'));
  EXPECT_EQ(Update(item, {"again", "", ""}), ItemResult::Written);
  EXPECT_EQ(Now(), Bytes({kEditedButton, {"again", "", ""}, kLast}));
}

TEST_F(ItemEdit, CancelWritesTheStartingBytesBack) {
  EditedItem item = ItemAt(2, kFirst);
  const std::string before = Now();
  EXPECT_EQ(Cancel(item), ItemResult::Same);
  Update(item, {"one", "", ""});
  Update(item, {"two", "", ""});
  EXPECT_EQ(Cancel(item), ItemResult::Written);
  EXPECT_EQ(Now(), before);
  EXPECT_EQ(Cancel(item), ItemResult::Same);
}

TEST_F(ItemEdit, CancelLeavesWhatAnotherHandChanged) {
  EditedItem item = ItemAt(2, kFirst);
  Update(item, {"one", "", ""});
  disk.Put(kMenu, Bytes({kEditedButton, {"theirs", "", ""}, kLast}));
  EXPECT_EQ(Cancel(item), ItemResult::Mismatch);
  EXPECT_EQ(Now(), Bytes({kEditedButton, {"theirs", "", ""}, kLast}));
  disk.Vanish(kMenu);
  EXPECT_EQ(Cancel(item), ItemResult::Mismatch);
  EXPECT_FALSE(disk.Has(kMenu));
}

TEST_F(ItemEdit, AnyOneFailureAndAnEndAtAnyMomentLeaveTheOldFileOrTheNew) {
  const std::string before = Bytes({kEditedButton, kFirst, kLast});
  const std::string after = Bytes({kEditedButton, {"New", "", ""}, kLast});
  for (const bool ends : {false, true}) {
    for (int n = 1;; ++n) {
      ASSERT_LT(n, 50);
      disk.Put(kMenu, before);
      EditedItem item = ItemAt(2, kFirst);
      if (ends) {
        disk.FailFrom(n, FileError::DiskFull);
      } else {
        disk.FailCall(n, FileError::DiskFull);
      }
      const ItemResult result = Update(item, {"New", "", ""});
      const bool hit = disk.Hit();
      disk.StopFailing();
      EXPECT_EQ(Now(), result == ItemResult::Written ? after : before) << n << ends;
      EXPECT_EQ(item.Current, result == ItemResult::Written ? MenuRecord({"New", "", ""}) : kFirst);
      if (!hit) break;
    }
  }
}

}  // namespace
}  // namespace corvelle
