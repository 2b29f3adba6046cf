#include "core/MenuFile.h"

#include <gtest/gtest.h>

#include "core/CoreTexts.h"
#include "core/MenuFolder.h"
#include "sim/SimFiles.h"

namespace corvelle {
namespace {

using sim::SimFiles;

const std::string kTemporary = kMenus + "TTTTTTTT";

/// A record of bytes that say nothing to anybody, all of them different from its neighbours'.
std::string Distinct(char mark) {
  std::string bytes(570, mark);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes[i] = static_cast<char>(static_cast<unsigned char>(mark) * 7U + i);
  }
  return bytes;
}

std::string Plain(const std::string& title) { return FormatRecord({title, "icon", "name"}, kAnsi); }

void Start(SimFiles& disk) { disk.MakeFolders(kMenus); }

TEST(ReadAllRecords, ReadsEveryRecordInOneRead) {
  SimFiles disk;
  disk.Put(kFile, Plain("One") + Plain("Two") + Plain("Three"));
  const auto records = ReadAllRecords(disk, kAnsi, kFile);
  ASSERT_TRUE(records);
  ASSERT_EQ(records->size(), 3U);
  EXPECT_EQ((*records)[2], (MenuRecord{"Three", "icon", "name"}));
  EXPECT_EQ(disk.Log().size(), 1U);
  EXPECT_EQ(disk.Reads(), 1);
}

TEST(ReadAllRecords, TakesFilesOfAnyLength) {
  struct Row {
    const char* name;
    std::size_t length;
    std::size_t expected;
  };
  const Row rows[] = {
      {"empty", 0, 0},
      {"one byte", 1, 0},
      {"half a record", 285, 0},
      {"more than half", 286, 1},
      {"569 bytes", 569, 1},
      {"571 bytes", 571, 1},
      {"one and a half", 855, 2},
      {"5.7 million bytes", 5'700'000, 10000},
  };
  for (const Row& row : rows) {
    SimFiles disk;
    disk.Put(kFile, std::string(row.length, 'x'));
    const auto records = ReadAllRecords(disk, kAnsi, kFile);
    ASSERT_TRUE(records) << row.name;
    EXPECT_EQ(records->size(), row.expected) << row.name;
  }
}

TEST(ReadAllRecords, AShortLastRecordHasBlankFields) {
  SimFiles disk;
  disk.Put(kFile, Plain("One") + Plain("Two").substr(0, 312));
  const auto records = ReadAllRecords(disk, kAnsi, kFile);
  ASSERT_TRUE(records);
  ASSERT_EQ(records->size(), 2U);
  EXPECT_EQ((*records)[1], (MenuRecord{"Two", "icon", "na"}));
}

TEST(ReadAllRecords, StopsAtTheLastRecordNumber) {
  SimFiles disk;
  disk.Put(kFile, std::string(570U * 32770U, 'x'));
  const auto records = ReadAllRecords(disk, kAnsi, kFile);
  ASSERT_TRUE(records);
  EXPECT_EQ(records->size(), 32767U);
}

TEST(ReadAllRecords, CreatesAMissingFileEmpty) {
  SimFiles disk;
  Start(disk);
  const auto records = ReadAllRecords(disk, kAnsi, kFile);
  ASSERT_TRUE(records);
  EXPECT_TRUE(records->empty());
  EXPECT_EQ(disk.Get(kFile), "");
}

TEST(ReadAllRecords, SaysWhyAFileCannotBeRead) {
  SimFiles disk;
  const auto noFolder = ReadAllRecords(disk, kAnsi, kFile);
  ASSERT_FALSE(noFolder);
  EXPECT_EQ(noFolder.Error(), FileError::NotFound);
  disk.Put(kFile, Plain("One"));
  disk.HoldOpen(kFile);
  const auto held = ReadAllRecords(disk, kAnsi, kFile);
  ASSERT_FALSE(held);
  EXPECT_EQ(held.Error(), FileError::InUse);
}

TEST(ReadAllRecords, InAProtectedFolderReadsButMakesNothing) {
  SimFiles disk;
  disk.Put(kFile, Plain("One"));
  disk.Protect(kMenus);
  EXPECT_EQ(ReadAllRecords(disk, kAnsi, kFile).ValueOr({}).size(), 1U);
  const auto missing = ReadAllRecords(disk, kAnsi, kMenus + "BMENU002.MNU");
  ASSERT_FALSE(missing);
  EXPECT_EQ(missing.Error(), FileError::AccessDenied);
  EXPECT_FALSE(CreateButtonFile(disk, kAnsi, kMenus));
  EXPECT_FALSE(AppendRecords(disk, kAnsi, kFile, {{"Two", "", ""}}));
  EXPECT_EQ(disk.Get(kFile), Plain("One"));
}

TEST(ReadRecord, ReadsThatRecordOnly) {
  SimFiles disk;
  disk.Put(kFile, Plain("One") + Plain("Two") + Plain("Three").substr(0, 20));
  const auto title = [&](int number) {
    const auto record = ReadRecord(disk, kAnsi, kFile, number);
    return record ? record->FTitle : "(error)";
  };
  EXPECT_EQ(title(1), "One");
  EXPECT_EQ(title(2), "Two");
  EXPECT_EQ(title(3), "Three");
  EXPECT_EQ(title(4), "");
  EXPECT_EQ(title(32767), "");
  EXPECT_EQ(title(0), "(error)");
  EXPECT_EQ(title(-1), "(error)");
  EXPECT_EQ(title(32768), "(error)");
}

TEST(ReadRecord, OfAMissingFileFindsAndMakesNothing) {
  SimFiles disk;
  Start(disk);
  const auto record = ReadRecord(disk, kAnsi, kFile, 1);
  ASSERT_FALSE(record);
  EXPECT_EQ(record.Error(), FileError::NotFound);
  EXPECT_FALSE(disk.Has(kFile));
}

TEST(CountRecords, CountsAndMakesNoMissingFile) {
  SimFiles disk;
  disk.Put(kFile, std::string(1140 + 285, 'x'));
  EXPECT_EQ(CountRecords(disk, kFile).ValueOr(-1), 2);
  const auto missing = CountRecords(disk, kMenus + "BMENU002.MNU");
  ASSERT_FALSE(missing);
  EXPECT_EQ(missing.Error(), FileError::NotFound);
  EXPECT_FALSE(disk.Has(kMenus + "BMENU002.MNU"));
}

TEST(WriteRecord, ChangesNoOtherRecord) {
  SimFiles disk;
  disk.Put(kFile, Distinct('a') + Distinct('b') + Distinct('c'));
  ASSERT_TRUE(WriteRecord(disk, kAnsi, kFile, 2, {"New", "icon", "name"}));
  EXPECT_EQ(disk.Get(kFile), Distinct('a') + Plain("New") + Distinct('c'));
}

TEST(WriteRecord, FillsAGapWithBlanks) {
  SimFiles disk;
  disk.Put(kFile, Distinct('a').substr(0, 560));
  ASSERT_TRUE(WriteRecord(disk, kAnsi, kFile, 3, {"New", "icon", "name"}));
  EXPECT_EQ(disk.Get(kFile), Distinct('a').substr(0, 560) + std::string(580, ' ') + Plain("New"));
  EXPECT_FALSE(WriteRecord(disk, kAnsi, kFile, 0, {"New", "", ""}));
}

TEST(AppendRecords, AddsToTheEndAndMakesAMissingFile) {
  SimFiles disk;
  Start(disk);
  ASSERT_TRUE(AppendRecords(disk, kAnsi, kFile, {{"One", "icon", "name"}}));
  ASSERT_TRUE(
      AppendRecords(disk, kAnsi, kFile, {{"Two", "icon", "name"}, {"Three", "icon", "name"}}));
  EXPECT_EQ(disk.Get(kFile), Plain("One") + Plain("Two") + Plain("Three"));
}

TEST(AppendRecords, AFullDiskOrAnyFailureLeavesTheFileAsItWas) {
  for (int n = 1;; ++n) {
    SimFiles disk;
    disk.Put(kFile, Distinct('a'));
    disk.FailCall(n, FileError::DiskFull);
    const FileStatus status = AppendRecords(disk, kAnsi, kFile, {{"New", "icon", "name"}});
    EXPECT_EQ(static_cast<bool>(status), !disk.Hit());
    EXPECT_EQ(disk.Get(kFile), disk.Hit() ? Distinct('a') : Distinct('a') + Plain("New")) << n;
    if (!disk.Hit()) break;
  }
  SimFiles disk;
  disk.Put(kFile, Distinct('a'));
  disk.FillDisk(1000);
  EXPECT_FALSE(AppendRecords(disk, kAnsi, kFile, {{"New", "icon", "name"}}));
  EXPECT_EQ(disk.Get(kFile), Distinct('a'));
}

TEST(WholeRecords, FillsUpOrDropsAShortLastRecord) {
  const std::string a = Distinct('a');
  struct Row {
    const char* name;
    std::string bytes;
    std::string expected;
  };
  const Row rows[] = {
      {"empty", "", ""},
      {"one", a, a},
      {"a byte too few", a.substr(0, 569), a.substr(0, 569) + " "},
      {"a byte too many", a + "x", a},
      {"half behind none", a.substr(0, 285), ""},
      {"half behind one", a + a.substr(0, 285), a + a.substr(0, 285) + std::string(285, ' ')},
      {"half behind two", a + a + a.substr(0, 285), a + a},
      {"more than half behind two", a + a + a.substr(0, 286),
       a + a + a.substr(0, 286) + std::string(284, ' ')},
      {"half behind 286", std::string(286 * 570 + 285, 'x'), std::string(286 * 570, 'x')},
  };
  for (const Row& row : rows) EXPECT_EQ(WholeRecords(row.bytes), row.expected) << row.name;
}

TEST(RecordsEdits, ChangeOnlyTheirPlace) {
  const std::string a = Distinct('a');
  const std::string b = Distinct('b');
  const std::string n = Distinct('n');
  struct Row {
    const char* name;
    std::string result;
    std::string expected;
  };
  const Row rows[] = {
      {"without the first", WithoutRecord(a + b, 1), b},
      {"without the last", WithoutRecord(a + b, 2), a},
      {"without one past the end", WithoutRecord(a + b, 3), a + b},
      {"without none", WithoutRecord(a + b, 0), a + b},
      {"without a negative one", WithoutRecord(a + b, -1), a + b},
      {"before the first", InsertRecord(a + b, 1, n), n + a + b},
      {"before the last", InsertRecord(a + b, 2, n), a + n + b},
      {"past the end inserts nothing", InsertRecord(a + b, 3, n), a + b},
      {"into nothing", InsertRecord("", 1, n), ""},
      {"before place 0", InsertRecord(a, 0, n), a},
      {"undo before the last", InsertOrAppendRecord(a + b, 2, n), a + n + b},
      {"undo past the end appends", InsertOrAppendRecord(a + b, 3, n), a + b + n},
      {"undo far past the end", InsertOrAppendRecord(a + b, 32767, n), a + b + n},
      {"undo into nothing", InsertOrAppendRecord("", 1, n), n},
      {"undo at place 0", InsertOrAppendRecord(a, 0, n), a},
  };
  for (const Row& row : rows) EXPECT_EQ(row.result, row.expected) << row.name;
}

RecordsEdit DropSecond() {
  return [](std::string records) { return WithoutRecord(std::move(records), 2); };
}

TEST(RewriteMenuFile, TakesItsStepsInOrder) {
  SimFiles disk;
  disk.Put(kFile, Distinct('a') + Distinct('b') + Distinct('c'));
  disk.Put(kTemporary, "stale");
  ASSERT_TRUE(RewriteMenuFile(disk, kMenus, kFile, DropSecond()));
  EXPECT_EQ(disk.Get(kFile), Distinct('a') + Distinct('c'));
  EXPECT_EQ(disk.Names(kMenus), std::vector<std::string>{"BMENU001.MNU"});
  const std::vector<SimFiles::Call> expected = {
      {"FileExists", kTemporary, ""}, {"Remove", kTemporary, ""},
      {"Length", kFile, ""},          {"Read", kFile, ""},
      {"Write", kTemporary, ""},      {"Replace", kFile, ""},
      {"Remove", kTemporary, ""},
  };
  EXPECT_EQ(disk.Log(), expected);
}

TEST(RewriteMenuFile, CopiesUnchangedRecordsByteForByte) {
  SimFiles disk;
  std::string all;
  for (int i = 0; i < 256; ++i) all += Distinct(static_cast<char>(i));
  disk.Put(kFile, all);
  ASSERT_TRUE(RewriteMenuFile(disk, kMenus, kFile, DropSecond()));
  EXPECT_EQ(disk.Get(kFile), all.substr(0, 570) + all.substr(1140));
}

TEST(RewriteMenuFile, KeepsRecordsBeyondTheLastNumber) {
  SimFiles disk;
  const std::string all =
      Distinct('a') + Distinct('b') + std::string(570U * 32767U, 'x') + Distinct('z');
  disk.Put(kFile, all);
  ASSERT_TRUE(RewriteMenuFile(disk, kMenus, kFile, DropSecond()));
  EXPECT_EQ(disk.Get(kFile), all.substr(0, 570) + all.substr(1140));
}

TEST(RewriteMenuFile, AnyOneFailureLeavesTheOldFileOrTheNew) {
  const std::string old = Distinct('a') + Distinct('b') + Distinct('c');
  const std::string edited = Distinct('a') + Distinct('c');
  for (const FileError error : {FileError::DiskFull, FileError::InUse, FileError::Failed}) {
    for (const bool stale : {false, true}) {
      for (int n = 1;; ++n) {
        SimFiles disk;
        disk.Put(kFile, old);
        if (stale) disk.Put(kTemporary, "stale");
        disk.FailCall(n, error);
        const FileStatus status = RewriteMenuFile(disk, kMenus, kFile, DropSecond());
        if (!disk.Hit()) {
          EXPECT_TRUE(status);
          break;
        }
        const auto now = disk.Get(kFile);
        // Where the question for a stale file is the call that fails, there may be nothing to it.
        EXPECT_TRUE(now == old || (status && now == edited)) << "failing call " << n;
        EXPECT_FALSE(!status && now != old) << "failing call " << n;
      }
    }
  }
}

TEST(RewriteMenuFile, AFullDiskLeavesTheOldFile) {
  const std::string old = Distinct('a') + Distinct('b') + Distinct('c');
  for (const std::uint64_t left : {0U, 1U, 569U, 1139U}) {
    SimFiles disk;
    disk.Put(kFile, old);
    disk.FillDisk(left);
    const FileStatus status = RewriteMenuFile(disk, kMenus, kFile, DropSecond());
    ASSERT_FALSE(status) << left;
    EXPECT_EQ(status.Error(), FileError::DiskFull) << left;
    EXPECT_EQ(disk.Get(kFile), old) << left;
    EXPECT_EQ(disk.Names(kMenus), std::vector<std::string>{"BMENU001.MNU"}) << left;
  }
}

TEST(RewriteMenuFile, AReadOnlyFileStaysAsItWas) {
  SimFiles disk;
  disk.Put(kFile, Distinct('a') + Distinct('b'));
  disk.SetReadOnly(kFile, true);
  const FileStatus status = RewriteMenuFile(disk, kMenus, kFile, DropSecond());
  ASSERT_FALSE(status);
  EXPECT_EQ(status.Error(), FileError::AccessDenied);
  EXPECT_EQ(disk.Get(kFile), Distinct('a') + Distinct('b'));
  EXPECT_FALSE(disk.Has(kTemporary));
}

TEST(RewriteMenuFile, AMissingFileIsAFailureAndIsNotMade) {
  SimFiles disk;
  Start(disk);
  EXPECT_FALSE(RewriteMenuFile(disk, kMenus, kFile, DropSecond()));
  EXPECT_TRUE(disk.Names(kMenus).empty());
}

TEST(RewriteMenuFile, AProgramThatEndsBetweenTwoStepsLeavesTheMenuToTheNextStart) {
  const std::string old = Distinct('a') + Distinct('b') + Distinct('c');
  const std::string edited = Distinct('a') + Distinct('c');
  for (const bool stale : {false, true}) {
    for (int n = 1;; ++n) {
      SimFiles disk;
      disk.Put(kFile, old);
      if (stale) disk.Put(kTemporary, "stale");
      disk.FailFrom(n, FileError::DiskFull);
      const FileStatus status = RewriteMenuFile(disk, kMenus, kFile, DropSecond());
      if (!disk.Hit()) {
        EXPECT_TRUE(status);
        break;
      }
      disk.StopFailing();
      EXPECT_TRUE(PurgeMenus(disk, kMenus));
      EXPECT_EQ(disk.Names(kMenus), std::vector<std::string>{"BMENU001.MNU"}) << "ended at " << n;
      EXPECT_TRUE(disk.Get(kFile) == old || disk.Get(kFile) == edited) << "ended at call " << n;
    }
  }
}

TEST(RewriteMenuFile, TheOldContentIsAsideUntilTheNewOneIsThere) {
  SimFiles disk;
  const std::string old = Distinct('a') + Distinct('b');
  disk.Put(kFile, old);
  disk.HoldOpen(kFile, SimFiles::Hold::ForReading);
  std::string aside;
  const FileStatus status = RewriteMenuFile(disk, kMenus, kFile, [&](std::string records) {
    aside = disk.Get(kTemporary).value_or("");
    return WithoutRecord(std::move(records), 2);
  });
  EXPECT_FALSE(status);
  EXPECT_EQ(aside, old);
  EXPECT_EQ(disk.Get(kFile), old);
  EXPECT_FALSE(disk.Has(kTemporary));
}

TEST(RewriteMenuFile, KeepsTheFilesMarks) {
  SimFiles disk;
  disk.Put(kFile, Distinct('a') + Distinct('b'));
  disk.SetHidden(kFile, true);
  ASSERT_TRUE(RewriteMenuFile(disk, kMenus, kFile, DropSecond()));
  const auto entries = disk.List(kMenus, "*.MNU");
  ASSERT_TRUE(entries);
  ASSERT_EQ(entries->size(), 1U);
  EXPECT_TRUE(entries->front().Hidden);
}

TEST(RewriteMenuFile, AStaleTemporaryFileThatCannotBeRemovedStopsTheEdit) {
  SimFiles disk;
  disk.Put(kFile, Distinct('a') + Distinct('b'));
  disk.Put(kTemporary, "stale");
  disk.HoldOpen(kTemporary);
  EXPECT_FALSE(RewriteMenuFile(disk, kMenus, kFile, DropSecond()));
  EXPECT_EQ(disk.Get(kFile), Distinct('a') + Distinct('b'));
}

TEST(CreateButtonFile, TakesTheNextNumberAndTwoRecords) {
  SimFiles disk;
  disk.Put(kMenus + "BMENU001.MNU", "x");
  disk.Put(kMenus + "bmenu002.mnu", "x");
  disk.Put(kMenus + "BMENU003.BTN", "x");
  const auto path = CreateButtonFile(disk, kAnsi, kMenus);
  ASSERT_TRUE(path);
  EXPECT_EQ(*path, kMenus + "BMENU003.MNU");
  EXPECT_EQ(disk.Get(*path), FormatRecord({"New Button", "Button", ""}, kAnsi) +
                                 FormatRecord({"New Menu Item", "New", ""}, kAnsi));
}

TEST(CreateButtonFile, NeverTakesAFileThatIsThere) {
  SimFiles disk;
  disk.Put(kMenus + "BMENU002.MNU", "kept");
  const auto path = CreateButtonFile(disk, kAnsi, kMenus);
  ASSERT_TRUE(path);
  EXPECT_EQ(*path, kMenus + "BMENU003.MNU");
  EXPECT_EQ(disk.Get(kMenus + "BMENU002.MNU"), "kept");
}

// A disk that fails may say of a file that is there that it is not.
TEST(CreateButtonFile, NoOneFailureCostsTheMenuOfTheNextNumber) {
  for (int n = 1;; ++n) {
    sim::SimFiles disk;
    disk.Put("C:\\Menus\\BMENU001.MNU", "one");
    disk.Put("C:\\Menus\\BMENU003.MNU", "three");
    disk.FailCall(n);
    static_cast<void>(CreateButtonFile(disk, kAnsi, "C:\\Menus\\"));
    if (!disk.Hit()) break;
    EXPECT_EQ(disk.Get("C:\\Menus\\BMENU001.MNU"), "one") << "failing call " << n;
    EXPECT_EQ(disk.Get("C:\\Menus\\BMENU003.MNU"), "three") << "failing call " << n;
    ASSERT_LT(n, 20);
  }
}

TEST(CreateButtonFile, AnyFailureLeavesNoHalfButton) {
  for (int n = 1;; ++n) {
    SimFiles disk;
    disk.Put(kFile, Distinct('a'));
    disk.FailCall(n, FileError::DiskFull);
    const auto path = CreateButtonFile(disk, kAnsi, kMenus);
    if (!disk.Hit()) {
      EXPECT_TRUE(path);
      break;
    }
    EXPECT_EQ(disk.Get(kFile), Distinct('a'));
    EXPECT_EQ(disk.Names(kMenus).size(), path ? 2U : 1U) << "failing call " << n;
  }
}

TEST(WriteMainMenuFile, WritesTheSameBytesOverWhateverWasThere) {
  SimFiles disk;
  disk.Put("C:\\Corvelle\\mainmenu.dat", std::string(20000, 'x'));
  const auto path = WriteMainMenuFile(disk, kAnsi, "C:\\Corvelle\\");
  ASSERT_TRUE(path);
  EXPECT_EQ(*path, "C:\\Corvelle\\mainmenu.dat");
  const std::string bytes = disk.Get(*path).value_or("");
  ASSERT_EQ(bytes.size(), 16U * 570U);
  EXPECT_EQ(bytes.substr(0, 570), std::string(570, ' '));
  EXPECT_EQ(bytes.substr(570, 15), "Customize...   ");
  EXPECT_EQ(bytes.substr(620, 14), "imgIcons cust ");
  EXPECT_EQ(ReadAllRecords(disk, kAnsi, *path).ValueOr({}), MainMenuRecords());
  EXPECT_FALSE(WriteMainMenuFile(disk, kAnsi, "C:\\Nowhere\\"));
}

}  // namespace
}  // namespace corvelle
