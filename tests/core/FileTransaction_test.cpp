#include "core/FileTransaction.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "core/MenuFolder.h"
#include "sim/SimFiles.h"

namespace corvelle {
namespace {

constexpr const char* kFolder = "C:\\Corvelle\\Menus\\";
const std::string kJournal = std::string(kFolder) + std::string(kJournalFileName);

std::string In(std::string_view name) { return kFolder + std::string(name); }

using Folder = std::map<std::string, std::string>;

Folder Contents(const sim::SimFiles& disk) {
  Folder all;
  for (const std::string& name : disk.Names("C:\\Corvelle\\Menus")) {
    all[name] = disk.Get(In(name)).value_or("");
  }
  return all;
}

Folder WithoutJournal(Folder all) {
  all.erase(std::string(kJournalFileName));
  return all;
}

void Put(sim::SimFiles& disk, const Folder& files) {
  disk.MakeFolders("C:\\Corvelle\\Menus");
  for (const auto& [name, bytes] : files) disk.Put(In(name), bytes);
}

const Folder kThree = {{"A.MNU", "aaa"}, {"B.MNU", "bb"}, {"C.BTN", ""}};

struct Case {
  const char* name;
  std::function<void(FileTransaction&)> change;
  Folder expected;
};

std::vector<Case> Cases() {
  return {
      {"nothing", [](FileTransaction&) {}, kThree},
      {"one file",
       [](FileTransaction& t) { t.Write(In("B.MNU"), "new"); },
       {{"A.MNU", "aaa"}, {"B.MNU", "new"}, {"C.BTN", ""}}},
      {"one removal",
       [](FileTransaction& t) { t.Remove(In("A.MNU")); },
       {{"B.MNU", "bb"}, {"C.BTN", ""}}},
      {"a removal of what is missing", [](FileTransaction& t) { t.Remove(In("Z.MNU")); }, kThree},
      {"from one to another",
       [](FileTransaction& t) {
         t.Write(In("A.MNU"), "aa");
         t.Write(In("B.MNU"), "bba");
       },
       {{"A.MNU", "aa"}, {"B.MNU", "bba"}, {"C.BTN", ""}}},
      {"a new file for an old one",
       [](FileTransaction& t) {
         t.Remove(In("A.MNU"));
         t.Write(In("D.MNU"), "aaa");
       },
       {{"B.MNU", "bb"}, {"C.BTN", ""}, {"D.MNU", "aaa"}}},
      {"all of them",
       [](FileTransaction& t) {
         t.Write(In("A.MNU"), "");
         t.Remove(In("B.MNU"));
         t.Write(In("C.BTN"), std::string(3000, '\0'));
         t.Write(In("E.BTN"), "e");
       },
       {{"A.MNU", ""}, {"C.BTN", std::string(3000, '\0')}, {"E.BTN", "e"}}},
      {"the last word counts, whatever the case of the name",
       [](FileTransaction& t) {
         t.Remove(In("A.MNU"));
         t.Write(In("a.mnu"), "2");
         t.Write(In("B.MNU"), "1");
         t.Remove(In("b.MNU"));
       },
       {{"A.MNU", "2"}, {"C.BTN", ""}}},
      {"a new name",
       [](FileTransaction& t) { t.Rename(In("A.MNU"), In("D.MNU")); },
       {{"B.MNU", "bb"}, {"C.BTN", ""}, {"D.MNU", "aaa"}}},
      {"names in a circle",
       [](FileTransaction& t) {
         t.Rename(In("A.MNU"), In("B.MNU"));
         t.Rename(In("B.MNU"), In("C.BTN"));
         t.Rename(In("C.BTN"), In("A.MNU"));
       },
       {{"A.MNU", ""}, {"B.MNU", "aaa"}, {"C.BTN", "bb"}}},
      {"an old name that is written",
       [](FileTransaction& t) {
         t.Write(In("A.MNU"), "new");
         t.Rename(In("A.MNU"), In("B.MNU"));
       },
       {{"A.MNU", "new"}, {"B.MNU", "aaa"}, {"C.BTN", ""}}},
      {"what stays as it is",
       [](FileTransaction& t) {
         t.Write(In("A.MNU"), "aaa");
         t.Write(In("B.MNU"), "new");
         t.Rename(In("C.BTN"), In("C.BTN"));
       },
       {{"A.MNU", "aaa"}, {"B.MNU", "new"}, {"C.BTN", ""}}},
  };
}

FileStatus Carry(sim::SimFiles& disk, const Case& c) {
  FileTransaction transaction(disk, kFolder);
  c.change(transaction);
  return transaction.Commit();
}

TEST(FileTransaction, MakesTheFolderWhatItSays) {
  for (const Case& c : Cases()) {
    sim::SimFiles disk;
    Put(disk, kThree);
    EXPECT_TRUE(Carry(disk, c)) << c.name;
    EXPECT_EQ(Contents(disk), c.expected) << c.name;
  }
}

TEST(FileTransaction, AnyOneFailureLeavesAllOldFilesOrAllNew) {
  for (const Case& c : Cases()) {
    for (const FileError error : {FileError::DiskFull, FileError::InUse, FileError::NotFound}) {
      for (int n = 1;; ++n) {
        sim::SimFiles disk;
        Put(disk, kThree);
        disk.FailCall(n, error);
        const bool done = Carry(disk, c).HasValue();
        if (!disk.Hit()) break;
        ASSERT_LT(n, 100);
        // A file that is not there to be read looks like one that is missing.
        if (error == FileError::NotFound && done) continue;
        EXPECT_EQ(WithoutJournal(Contents(disk)), done ? c.expected : kThree)
            << c.name << ", failing call " << n;
        EXPECT_TRUE(RecoverFiles(disk, kFolder));
        EXPECT_EQ(Contents(disk), done ? c.expected : kThree) << c.name << ", failing call " << n;
      }
    }
  }
}

TEST(FileTransaction, AfterAnEndAtAnyMomentAllFilesAreOldOrAllNew) {
  for (const Case& c : Cases()) {
    for (int n = 1;; ++n) {
      sim::SimFiles disk;
      Put(disk, kThree);
      disk.FailFrom(n);
      static_cast<void>(Carry(disk, c));
      const bool hit = disk.Hit();
      disk.StopFailing();
      EXPECT_TRUE(RecoverFiles(disk, kFolder));
      const Folder now = Contents(disk);
      EXPECT_TRUE(now == kThree || now == c.expected) << c.name << ", ended before call " << n;
      if (!hit) break;
      ASSERT_LT(n, 100);
    }
  }
}

// The machine stops again while the change is taken back.
TEST(FileTransaction, TheRecoveryCanBeCutShortAsWell) {
  for (const Case& c : Cases()) {
    for (int n = 1;; ++n) {
      bool hit = false;
      for (int m = 1;; ++m) {
        sim::SimFiles disk;
        Put(disk, kThree);
        disk.FailFrom(n);
        static_cast<void>(Carry(disk, c));
        hit = disk.Hit();
        disk.FailFrom(m);
        static_cast<void>(RecoverFiles(disk, kFolder));
        const bool hitAgain = disk.Hit();
        disk.StopFailing();
        EXPECT_TRUE(RecoverFiles(disk, kFolder));
        const Folder now = Contents(disk);
        EXPECT_TRUE(now == kThree || now == c.expected)
            << c.name << ", ended before call " << n << " and again before call " << m;
        if (!hitAgain) break;
        ASSERT_LT(m, 100);
      }
      if (!hit) break;
      ASSERT_LT(n, 100);
    }
  }
}

// ---- the journal ----

/// A disk on which a change of A and B ended after the first file.
void EndHalfway(sim::SimFiles& disk) {
  Put(disk, kThree);
  FileTransaction transaction(disk, kFolder);
  transaction.Write(In("A.MNU"), "aa");
  transaction.Write(In("B.MNU"), "bba");
  // Journal, A and B are read, the journal and A are written.
  disk.FailFrom(6);
  ASSERT_FALSE(transaction.Commit());
  disk.StopFailing();
  ASSERT_TRUE(disk.Has(kJournal));
  ASSERT_EQ(disk.Get(In("A.MNU")), "aa");
  ASSERT_EQ(disk.Get(In("B.MNU")), "bb");
}

TEST(FileTransactionJournal, IsThereBeforeTheFirstFileChangesAndGoesWithTheLast) {
  sim::SimFiles disk;
  EndHalfway(disk);
  ASSERT_TRUE(RecoverFiles(disk, kFolder));
  disk.ClearLog();
  FileTransaction transaction(disk, kFolder);
  transaction.Remove(In("A.MNU"));
  transaction.Write(In("B.MNU"), "aaabb");
  ASSERT_TRUE(transaction.Commit());
  std::vector<sim::SimFiles::Call> writes;
  for (const auto& call : disk.Log()) {
    if (call.Operation != "Read") writes.push_back(call);
  }
  const std::vector<sim::SimFiles::Call> expected = {{"Replace", kJournal, ""},
                                                     {"Replace", In("B.MNU"), ""},
                                                     {"Remove", In("A.MNU"), ""},
                                                     {"Remove", kJournal, ""}};
  EXPECT_EQ(writes, expected);
}

TEST(FileTransactionJournal, OneFileAloneNeedsNone) {
  sim::SimFiles disk;
  Put(disk, kThree);
  FileTransaction transaction(disk, kFolder);
  transaction.Write(In("A.MNU"), "x");
  transaction.Write(In("B.MNU"), "bb");
  ASSERT_TRUE(transaction.Commit());
  EXPECT_EQ(disk.Count("Replace"), 1);
  EXPECT_EQ(disk.Count("Remove"), 0);
}

TEST(FileTransactionJournal, ATruncatedOrDamagedOneChangesNothingAndGoes) {
  sim::SimFiles whole;
  EndHalfway(whole);
  const std::string bytes = whole.Get(kJournal).value_or("");
  const Folder half = WithoutJournal(Contents(whole));
  ASSERT_GT(bytes.size(), 60U);
  sim::SimFiles disk;
  Put(disk, half);
  const auto leavesAlone = [&](const std::string& damaged, const std::string& what) {
    disk.Put(kJournal, damaged);
    EXPECT_TRUE(RecoverFiles(disk, kFolder)) << what;
    EXPECT_EQ(Contents(disk), half) << what;
  };
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    leavesAlone(bytes.substr(0, length), "cut at " + std::to_string(length));
  }
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    std::string changed = bytes;
    changed[at] = static_cast<char>(changed[at] ^ 0x11);
    leavesAlone(changed, "changed at " + std::to_string(at));
  }
  leavesAlone(bytes + "x", "longer");
  leavesAlone(std::string(5000, '\0'), "zeros");
  leavesAlone("another program's file", "foreign");
}

/// A journal by which A.MNU and a file of that name held "aaa" and were to go.
std::string ForgedJournal(const std::string& name) {
  const auto number = [](std::uint64_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) text += static_cast<char>((value >> (8 * i)) & 0xFF);
    return text;
  };
  std::string journal = "CVCHANGE1" + number(2, 4);
  for (const std::string& file : {std::string("A.MNU"), name}) {
    journal += number(file.size(), 8) + file + number(1, 1) + number(3, 8) + "aaa" +
               std::string(17, static_cast<char>(0));
  }
  std::uint64_t hash = 0xCBF29CE484222325ULL;
  for (const char byte : journal) {
    hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3ULL;
  }
  return journal + number(hash, 8);
}

TEST(FileTransactionJournal, ReachesNoFileOutsideItsFolder) {
  const std::string nul("Z\0.MNU", 6);
  for (const std::string& name :
       {std::string("Z.MNU"), std::string("..\\Z.MNU"), std::string("C:\\Z.MNU"),
        std::string("/Z.MNU"), std::string("sub\\Z.MNU"), std::string("Z:MNU"), nul,
        std::string("Z.*"), std::string(".."), std::string(), std::string("change.JNL")}) {
    sim::SimFiles disk;
    Put(disk, kThree);
    disk.MakeFolders("C:\\Corvelle\\Menus\\sub");
    disk.Put(kJournal, ForgedJournal(name));
    disk.ClearLog();
    EXPECT_TRUE(RecoverFiles(disk, kFolder)) << name;
    EXPECT_EQ(disk.Get(In("Z.MNU")).has_value(), name == "Z.MNU") << name;
    EXPECT_EQ(disk.Count("Replace"), name == "Z.MNU" ? 1 : 0) << name;
    EXPECT_FALSE(disk.Has(kJournal)) << name;
  }
}

TEST(FileTransactionJournal, OfAChangeThatWasDoneLeavesItDone) {
  sim::SimFiles disk;
  EndHalfway(disk);
  disk.Put(In("B.MNU"), "bba");
  EXPECT_TRUE(RecoverFiles(disk, kFolder));
  EXPECT_EQ(Contents(disk), (Folder{{"A.MNU", "aa"}, {"B.MNU", "bba"}, {"C.BTN", ""}}));
}

TEST(FileTransactionJournal, LeavesFilesAloneThatHoldAnythingElseByNow) {
  sim::SimFiles disk;
  EndHalfway(disk);
  disk.Put(In("B.MNU"), "something newer");
  EXPECT_TRUE(RecoverFiles(disk, kFolder));
  EXPECT_EQ(Contents(disk), (Folder{{"A.MNU", "aa"}, {"B.MNU", "something newer"}, {"C.BTN", ""}}));
}

TEST(FileTransactionJournal, IsKeptUntilItsFilesCanBePutBack) {
  sim::SimFiles disk;
  EndHalfway(disk);
  disk.HoldOpen(In("A.MNU"), sim::SimFiles::Hold::ForReading);
  EXPECT_EQ(RecoverFiles(disk, kFolder).Error(), FileError::InUse);
  ASSERT_TRUE(disk.Has(kJournal));
  EXPECT_TRUE(PurgeMenus(disk, kFolder));
  EXPECT_TRUE(disk.Has(kJournal));
  disk.HoldOpen(In("A.MNU"));  // it cannot even be read
  EXPECT_EQ(RecoverFiles(disk, kFolder).Error(), FileError::InUse);
  disk.LetGo(In("A.MNU"));
  EXPECT_TRUE(RecoverFiles(disk, kFolder));
  EXPECT_EQ(Contents(disk), kThree);
}

TEST(FileTransactionJournal, OfAnEarlierChangeIsSettledBeforeTheNext) {
  sim::SimFiles disk;
  EndHalfway(disk);
  FileTransaction next(disk, kFolder);
  next.Write(In("B.MNU"), "next");
  next.Write(In("C.BTN"), "next");
  // What the caller has read is out of date.
  EXPECT_EQ(next.Commit().Error(), FileError::Failed);
  EXPECT_EQ(Contents(disk), kThree);
  EXPECT_TRUE(next.Commit());
  EXPECT_EQ(Contents(disk), (Folder{{"A.MNU", "aaa"}, {"B.MNU", "next"}, {"C.BTN", "next"}}));
}

// What was done needs nothing taken back, and what the caller has read is what is there.
TEST(FileTransactionJournal, OfAChangeThatWasDoneLetsTheNextOneGoOn) {
  sim::SimFiles disk;
  EndHalfway(disk);
  disk.Put(In("B.MNU"), "bba");
  FileTransaction next(disk, kFolder);
  next.Write(In("B.MNU"), "next");
  next.Write(In("C.BTN"), "next");
  EXPECT_TRUE(next.Commit());
  EXPECT_EQ(Contents(disk), (Folder{{"A.MNU", "aa"}, {"B.MNU", "next"}, {"C.BTN", "next"}}));
}

TEST(FileTransactionJournal, IsKeptWhereTheDiskTakesNothingBackEither) {
  int kept = 0;
  for (int n = 1;; ++n) {
    SCOPED_TRACE(n);
    sim::SimFiles disk;
    Put(disk, kThree);
    FileTransaction change(disk, kFolder);
    change.Write(In("A.MNU"), "xx");
    change.Write(In("B.MNU"), "yy");
    disk.FailFrom(n, FileError::AccessDenied);
    const bool done = static_cast<bool>(change.Commit());
    disk.StopFailing();
    if (!done && Contents(disk) != kThree) {
      ++kept;
      EXPECT_TRUE(disk.Has(kJournal));
    }
    EXPECT_TRUE(RecoverFiles(disk, kFolder));
    if (!done) {
      EXPECT_EQ(Contents(disk), kThree);
    }
    if (done && !disk.Has(kJournal)) break;
  }
  EXPECT_GT(kept, 0);
}

TEST(FileTransactionJournal, ThatCannotBeRemovedDoesNoHarmLater) {
  sim::SimFiles disk;
  Put(disk, kThree);
  FileTransaction transaction(disk, kFolder);
  transaction.Write(In("A.MNU"), "aa");
  transaction.Write(In("B.MNU"), "bba");
  disk.FailFrom(7);  // all but the end of the journal
  EXPECT_TRUE(transaction.Commit());
  disk.StopFailing();
  ASSERT_TRUE(disk.Has(kJournal));
  EXPECT_TRUE(RecoverFiles(disk, kFolder));
  EXPECT_EQ(Contents(disk), (Folder{{"A.MNU", "aa"}, {"B.MNU", "bba"}, {"C.BTN", ""}}));
}

// ---- what is refused ----

TEST(FileTransaction, TakesFilesOfItsFolderOnly) {
  for (const char* path :
       {"C:\\Corvelle\\A.MNU", "C:\\Corvelle\\Menus\\sub\\A.MNU", "C:\\Corvelle\\Menus\\", "A.MNU",
        "", "C:\\Corvelle\\Menus\\..", "C:\\Corvelle\\Menus\\change.jnl"}) {
    sim::SimFiles disk;
    Put(disk, kThree);
    FileTransaction transaction(disk, kFolder);
    transaction.Write(In("A.MNU"), "x");
    transaction.Write(path, "x");
    EXPECT_EQ(transaction.Commit().Error(), FileError::BadName) << path;
    EXPECT_EQ(Contents(disk), kThree) << path;
  }
}

TEST(FileTransaction, AMissingFileCannotBeRenamed) {
  sim::SimFiles disk;
  Put(disk, kThree);
  FileTransaction transaction(disk, kFolder);
  transaction.Rename(In("Z.MNU"), In("A.MNU"));
  EXPECT_EQ(transaction.Commit().Error(), FileError::NotFound);
  EXPECT_EQ(Contents(disk), kThree);
}

TEST(FileTransaction, AReadOnlyFileUndoesTheRest) {
  sim::SimFiles disk;
  Put(disk, kThree);
  disk.SetReadOnly(In("C.BTN"), true);
  FileTransaction transaction(disk, kFolder);
  transaction.Write(In("A.MNU"), "x");
  transaction.Write(In("D.MNU"), "x");
  transaction.Remove(In("B.MNU"));
  transaction.Remove(In("C.BTN"));
  EXPECT_EQ(transaction.Commit().Error(), FileError::AccessDenied);
  EXPECT_EQ(Contents(disk), kThree);
}

TEST(FileTransaction, AMissingFolderIsAFailure) {
  sim::SimFiles disk;
  EXPECT_TRUE(RecoverFiles(disk, kFolder));
  FileTransaction transaction(disk, kFolder);
  transaction.Write(In("A.MNU"), "x");
  transaction.Write(In("B.MNU"), "x");
  EXPECT_EQ(transaction.Commit().Error(), FileError::NotFound);
}

TEST(FileTransaction, ThreeHundredFilesAreReadAndWrittenOnceEach) {
  sim::SimFiles disk;
  disk.MakeFolders("C:\\Corvelle\\Menus");
  FileTransaction transaction(disk, kFolder);
  for (int i = 0; i < 300; ++i) {
    transaction.Write(In(std::to_string(i) + ".BTN"), std::string(570, 'x'));
  }
  EXPECT_TRUE(transaction.Commit());
  EXPECT_EQ(disk.Count("Read"), 301);
  EXPECT_EQ(disk.Count("Replace"), 301);
  EXPECT_EQ(disk.Names("C:\\Corvelle\\Menus").size(), 300U);
}

}  // namespace
}  // namespace corvelle
