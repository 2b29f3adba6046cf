#include "core/SingleFiles.h"

#include <gtest/gtest.h>

#include <map>

#include "core/CoreTexts.h"
#include "core/FileTransaction.h"
#include "sim/SimFiles.h"

namespace corvelle {
namespace {

constexpr const char* kRowFolder = "C:\\Menus\\";

MenuRecord Named(const std::string& title) { return {title, title + ".ico", title + ".exe"}; }

std::string Bytes(const std::string& title) { return FormatRecord(Named(title), kAnsi); }

std::string PathOf(const std::string& name) { return kRowFolder + name; }

/// A row whose buttons are called by the letters of `titles`, in the files of those numbers.
SingleFiles Row(const std::vector<int>& numbers, const std::string& titles) {
  SingleFiles row;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    row.push_back({PathOf(SingleFileName(numbers[i])), Bytes(std::string(1, titles[i]))});
  }
  return row;
}

void Put(sim::SimFiles& disk, const SingleFiles& row) {
  disk.MakeFolders("C:\\Menus");
  for (const SingleFile& single : row) disk.Put(single.Path, single.Bytes);
}

/// The titles on the disk, each with its number: "1a 2b".
std::string OnDisk(sim::SimFiles& disk) {
  std::string text;
  for (const std::string& name : disk.Names("C:\\Menus")) {
    const MenuRecord record = ParseRecord(disk.Get(kRowFolder + name).value_or(""), kAnsi);
    text += (text.empty() ? "" : " ") + std::to_string(std::stoi(name.substr(5))) + record.FTitle;
  }
  return text;
}

TEST(SingleFiles, EditsOfARow) {
  const SingleFiles row = Row({1, 2, 3}, "abc");
  const auto titles = [](const SingleFiles& of) {
    std::string text;
    for (const SingleFile& single : of) text += ParseRecord(single.Bytes, kAnsi).FTitle;
    return text;
  };
  const std::string first = PathOf("BMENU001.BTN");
  const std::string third = PathOf("bmenu003.btn");
  EXPECT_EQ(titles(WithoutSingle(row, PathOf("bmenu002.btn"))), "ac");
  EXPECT_EQ(titles(WithoutSingle(row, PathOf("BMENU004.BTN"))), "abc");
  EXPECT_EQ(titles(WithoutSingle(row, "")), "abc");
  EXPECT_EQ(titles(WithSingles(row, 1, {Named("x"), Named("y")}, kAnsi)), "axybc");
  EXPECT_EQ(titles(WithSingles(row, 99, {Named("x")}, kAnsi)), "abcx");
  EXPECT_EQ(titles(WithSingleMoved(row, third, first)), "cab");
  EXPECT_EQ(titles(WithSingleMoved(row, first, third)), "bac");
  EXPECT_EQ(titles(WithSingleMoved(row, first, "")), "bca");
  EXPECT_EQ(titles(WithSingleMoved(row, first, first)), "abc");
  EXPECT_EQ(titles(WithSingleMoved(row, PathOf("none.btn"), first)), "abc");
  EXPECT_EQ(titles(WithSingleMoved(row, first, PathOf("none.btn"))), "abc");
}

TEST(SingleFiles, DeletingTheMiddleOneOfThreeClosesTheNumbers) {
  sim::SimFiles disk;
  Put(disk, Row({1, 2, 3}, "abc"));
  EXPECT_TRUE(DeleteSingleFile(disk, kRowFolder, PathOf("BMENU002.BTN")));
  EXPECT_EQ(OnDisk(disk), "1a 2c");
  EXPECT_EQ(disk.Get(PathOf("BMENU002.BTN")), Bytes("c"));
}

TEST(SingleFiles, PastingPutsTheEntryBeforeAndTheOthersFollow) {
  sim::SimFiles disk;
  Put(disk, Row({1, 2}, "ab"));
  EXPECT_TRUE(PasteSingleFile(disk, kAnsi, kRowFolder, PathOf("BMENU002.BTN"), Named("x")));
  EXPECT_EQ(OnDisk(disk), "1a 2x 3b");
  EXPECT_TRUE(PasteSingleFile(disk, kAnsi, kRowFolder, "", Named("y")));
  EXPECT_EQ(OnDisk(disk), "1a 2x 3b 4y");
  EXPECT_EQ(PasteSingleFile(disk, kAnsi, kRowFolder, PathOf("BMENU009.BTN"), Named("z")).Error(),
            FileError::NotFound);
  EXPECT_EQ(OnDisk(disk), "1a 2x 3b 4y");
}

TEST(SingleFiles, UndoPutsTheEntryBackToItsPlace) {
  sim::SimFiles disk;
  Put(disk, Row({1, 2}, "ac"));
  EXPECT_TRUE(UndoDeleteSingleFile(disk, kAnsi, kRowFolder, PathOf("BMENU002.BTN"), Named("b")));
  EXPECT_EQ(OnDisk(disk), "1a 2b 3c");
}

TEST(SingleFiles, UndoPastTheLastButtonWritesThatVeryFile) {
  sim::SimFiles disk;
  Put(disk, Row({1, 2}, "ab"));
  EXPECT_TRUE(UndoDeleteSingleFile(disk, kAnsi, kRowFolder, PathOf("BMENU007.BTN"), Named("x")));
  EXPECT_EQ(OnDisk(disk), "1a 2b 7x");
}

TEST(SingleFiles, AMoveGoesForwardBackwardAndToTheEnd) {
  struct Case {
    int from;
    int before;  // 0: the end
    const char* expected;
  };
  for (const Case& c : {Case{4, 2, "1a 2d 3b 4c"}, Case{1, 3, "1b 2a 3c 4d"},
                        Case{2, 0, "1a 2c 3d 4b"}, Case{2, 3, "1a 2b 3c 4d"}}) {
    sim::SimFiles disk;
    Put(disk, Row({1, 2, 3, 4}, "abcd"));
    const std::string before = c.before == 0 ? "" : PathOf(SingleFileName(c.before));
    EXPECT_TRUE(MoveSingleFile(disk, kRowFolder, PathOf(SingleFileName(c.from)), before));
    EXPECT_EQ(OnDisk(disk), c.expected) << c.from << " before " << c.before;
  }
}

TEST(SingleFiles, AMoveOfAButtonThatIsGoneChangesNothing) {
  sim::SimFiles disk;
  Put(disk, Row({1, 2}, "ab"));
  EXPECT_FALSE(MoveSingleFile(disk, kRowFolder, PathOf("BMENU003.BTN"), PathOf("BMENU001.BTN")));
  EXPECT_FALSE(MoveSingleFile(disk, kRowFolder, PathOf("BMENU001.BTN"), PathOf("BMENU003.BTN")));
  EXPECT_EQ(OnDisk(disk), "1a 2b");
}

TEST(SingleFiles, ARewriteClosesGapsAndTakesOtherNamesIn) {
  sim::SimFiles disk;
  Put(disk, Row({2, 5, 9}, "abc"));
  EXPECT_TRUE(InsertSingleFiles(disk, kAnsi, kRowFolder, 1, {Named("x"), Named("y")}));
  EXPECT_EQ(OnDisk(disk), "1a 2x 3y 4b 5c");
}

TEST(SingleFiles, OfAFileWithSeveralRecordsTheFirstIsTheButton) {
  sim::SimFiles disk;
  Put(disk,
      {{PathOf("BMENU001.BTN"), Bytes("a")}, {PathOf("BMENU002.BTN"), Bytes("b") + Bytes("z")}});
  EXPECT_TRUE(DeleteSingleFile(disk, kRowFolder, PathOf("BMENU001.BTN")));
  EXPECT_EQ(disk.Get(PathOf("BMENU001.BTN")), Bytes("b"));
  EXPECT_EQ(disk.Names("C:\\Menus").size(), 1U);
}

TEST(SingleFiles, AShortFileIsFilledWithBlanks) {
  EXPECT_EQ(SingleBytes("abc"), "abc" + std::string(567, ' '));
  EXPECT_EQ(SingleBytes(""), std::string(570, ' '));
  EXPECT_EQ(SingleBytes(Bytes("a") + "tail"), Bytes("a"));
}

TEST(SingleFiles, AFileThatCannotBeReadLeavesTheRowAlone) {
  sim::SimFiles disk;
  Put(disk, Row({1, 2, 3}, "abc"));
  disk.HoldOpen(PathOf("BMENU003.BTN"));
  EXPECT_EQ(DeleteSingleFile(disk, kRowFolder, PathOf("BMENU001.BTN")).Error(), FileError::InUse);
  disk.LetGo(PathOf("BMENU003.BTN"));
  EXPECT_EQ(OnDisk(disk), "1a 2b 3c");
  disk.Put(PathOf("BMENU002.BTN"), std::string((1U << 20U) + 1, 'x'));
  EXPECT_EQ(DeleteSingleFile(disk, kRowFolder, PathOf("BMENU001.BTN")).Error(), FileError::Failed);
  EXPECT_EQ(disk.Names("C:\\Menus").size(), 3U);
}

TEST(SingleFiles, AReadOnlyFileUndoesTheWholeRewrite) {
  sim::SimFiles disk;
  Put(disk, Row({1, 2, 3}, "abc"));
  disk.SetReadOnly(PathOf("BMENU002.BTN"), true);
  EXPECT_FALSE(DeleteSingleFile(disk, kRowFolder, PathOf("BMENU001.BTN")));
  EXPECT_EQ(OnDisk(disk), "1a 2b 3c");
}

// ---- whatever fails ----

struct Rewrite {
  const char* name;
  SingleFiles before;
  SingleFiles after;
};

std::vector<Rewrite> Rewrites() {
  const SingleFiles four = Row({1, 2, 3, 4}, "abcd");
  const SingleFiles gaps = Row({2, 3, 7}, "abc");
  const std::string first = four[0].Path;
  const std::string last = four[3].Path;
  SingleFiles odd = Row({1, 2}, "ab");
  odd.push_back({PathOf("ZEBRA.BTN"), Bytes("c") + Bytes("more")});
  return {{"delete the first", four, WithoutSingle(four, first)},
          {"delete the last", four, WithoutSingle(four, last)},
          {"insert in front", four, WithSingles(four, 0, {Named("x"), Named("y")}, kAnsi)},
          {"append", four, WithSingles(four, 4, {Named("x")}, kAnsi)},
          {"move to the front", four, WithSingleMoved(four, last, first)},
          {"move to the end", four, WithSingleMoved(four, first, "")},
          {"two moves at once", four,
           WithSingleMoved(WithSingleMoved(four, four[1].Path, first), last, four[2].Path)},
          {"close gaps", gaps, gaps},
          {"a name of its own", odd, WithSingles(odd, 0, {Named("x")}, kAnsi)}};
}

std::map<std::string, std::string> Contents(sim::SimFiles& disk) {
  std::map<std::string, std::string> all;
  for (const std::string& name : disk.Names("C:\\Menus"))
    all[name] = disk.Get(kRowFolder + name).value_or("");
  return all;
}

/// The same without the journal, which may stay behind where it cannot be removed.
std::map<std::string, std::string> Buttons(sim::SimFiles& disk) {
  auto all = Contents(disk);
  all.erase(std::string(kJournalFileName));
  return all;
}

TEST(SingleFilesRewrite, EachLeadsToItsRow) {
  for (const Rewrite& r : Rewrites()) {
    sim::SimFiles disk;
    Put(disk, r.before);
    EXPECT_TRUE(RewriteSingleFiles(disk, kRowFolder, r.before, r.after)) << r.name;
    const auto row = ReadSingleFiles(disk, kRowFolder);
    ASSERT_TRUE(row) << r.name;
    ASSERT_EQ(row->size(), r.after.size()) << r.name;
    for (std::size_t i = 0; i < row->size(); ++i) {
      EXPECT_EQ((*row)[i].Path, PathOf(SingleFileName(static_cast<int>(i) + 1))) << r.name;
      EXPECT_EQ(SingleBytes((*row)[i].Bytes), SingleBytes(r.after[i].Bytes)) << r.name << i;
    }
  }
}

TEST(SingleFilesRewrite, AnyOneFailureLeavesTheOldRowOrTheNew) {
  for (const Rewrite& r : Rewrites()) {
    sim::SimFiles fine;
    Put(fine, r.before);
    const auto oldRow = Contents(fine);
    ASSERT_TRUE(RewriteSingleFiles(fine, kRowFolder, r.before, r.after)) << r.name;
    const auto newRow = Contents(fine);
    for (int n = 1;; ++n) {
      sim::SimFiles disk;
      Put(disk, r.before);
      disk.FailCall(n, FileError::DiskFull);
      const bool done = RewriteSingleFiles(disk, kRowFolder, r.before, r.after).HasValue();
      if (!disk.Hit()) break;
      EXPECT_EQ(Buttons(disk), done ? newRow : oldRow) << r.name << ", failing call " << n;
      EXPECT_TRUE(RecoverFiles(disk, kRowFolder));
      EXPECT_EQ(Contents(disk), done ? newRow : oldRow) << r.name << ", failing call " << n;
      ASSERT_LT(n, 100);
    }
  }
}

TEST(SingleFilesRewrite, AfterAnEndAtAnyMomentTheNextStartHasTheOldRowOrTheNew) {
  for (const Rewrite& r : Rewrites()) {
    sim::SimFiles fine;
    Put(fine, r.before);
    const auto oldRow = Contents(fine);
    ASSERT_TRUE(RewriteSingleFiles(fine, kRowFolder, r.before, r.after)) << r.name;
    const auto newRow = Contents(fine);
    for (int n = 1;; ++n) {
      sim::SimFiles disk;
      Put(disk, r.before);
      disk.FailFrom(n);
      static_cast<void>(RewriteSingleFiles(disk, kRowFolder, r.before, r.after));
      const bool hit = disk.Hit();
      disk.StopFailing();
      EXPECT_TRUE(RecoverFiles(disk, kRowFolder));
      const auto row = Contents(disk);
      EXPECT_TRUE(row == oldRow || row == newRow) << r.name << ", ended before call " << n;
      if (!hit) {
        EXPECT_EQ(row, newRow) << r.name;
        break;
      }
      ASSERT_LT(n, 100);
    }
  }
}

TEST(SingleFilesRewrite, TwoHundredButtonsAreRewrittenInOneWriteEach) {
  sim::SimFiles disk;
  SingleFiles row;
  for (int i = 1; i <= 200; ++i) {
    row.push_back({PathOf(SingleFileName(i)), Bytes("button " + std::to_string(i))});
  }
  Put(disk, row);
  disk.ClearLog();
  EXPECT_TRUE(DeleteSingleFile(disk, kRowFolder, PathOf("BMENU001.BTN")));
  EXPECT_EQ(disk.Names("C:\\Menus").size(), 199U);
  EXPECT_EQ(disk.Count("Replace"), 200);  // with the journal
  EXPECT_EQ(disk.Count("Remove"), 2);
}

}  // namespace
}  // namespace corvelle
