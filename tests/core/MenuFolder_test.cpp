#include "core/MenuFolder.h"

#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "core/CoreTexts.h"
#include "sim/SimFiles.h"

namespace corvelle {
namespace {

using sim::SimFiles;
using Names = std::vector<std::string>;

void PutEach(SimFiles& disk, const Names& names) {
  disk.MakeFolders(kMenus);
  for (const std::string& name : names) disk.Put(kMenus + name, name);
}

Names Ordered(SimFiles& disk) { return OrderedMenuFiles(disk, kMenus).ValueOr({"(error)"}); }

TEST(PurgeMenus, DeletesEveryFileThatIsNeitherMenuNorButton) {
  SimFiles disk;
  PutEach(disk, {"BMENU001.MNU", "bmenu002.mnu", "BMENU001.BTN", "bmenu001.mfd", "TTTTTTTT",
                 "notes.txt", "x.mnux", "mnu", "\xC3\x84.mfd"});
  disk.MakeFolders(kMenus + "Temp");
  ASSERT_TRUE(PurgeMenus(disk, kMenus));
  EXPECT_EQ(disk.Names(kMenus), (Names{"BMENU001.BTN", "BMENU001.MNU", "Temp", "bmenu002.mnu"}));
}

TEST(PurgeMenus, PassesOverWhatCannotBeDeleted) {
  SimFiles disk;
  PutEach(disk, {"a.txt", "b.txt", "c.txt"});
  disk.SetReadOnly(kMenus + "a.txt", true);
  disk.HoldOpen(kMenus + "b.txt");
  ASSERT_TRUE(PurgeMenus(disk, kMenus));
  EXPECT_EQ(disk.Names(kMenus), (Names{"a.txt", "b.txt"}));
}

TEST(PurgeMenus, SaysWhenThereIsNoFolder) {
  SimFiles disk;
  const FileStatus status = PurgeMenus(disk, kMenus);
  ASSERT_FALSE(status);
  EXPECT_EQ(status.Error(), FileError::NotFound);
}

TEST(PurgeMenus, NoFailureCostsAMenu) {
  for (int n = 1;; ++n) {
    SimFiles disk;
    PutEach(disk, {"BMENU001.MNU", "BMENU001.BTN", "a.txt", "b.txt"});
    disk.FailCall(n);
    static_cast<void>(PurgeMenus(disk, kMenus));
    EXPECT_TRUE(disk.Has(kMenus + "BMENU001.MNU"));
    EXPECT_TRUE(disk.Has(kMenus + "BMENU001.BTN"));
    if (!disk.Hit()) break;
  }
}

TEST(OrderedMenuFiles, CloseAGapInTheNumbering) {
  SimFiles disk;
  PutEach(disk, {"BMENU001.MNU", "BMENU003.MNU"});
  EXPECT_EQ(Ordered(disk), (Names{"BMENU001.MNU", "BMENU002.MNU"}));
  EXPECT_EQ(disk.Get(kMenus + "BMENU002.MNU"), "BMENU003.MNU");
  EXPECT_FALSE(disk.Has(kMenus + "BMENU003.MNU"));
}

TEST(OrderedMenuFiles, StartAtOneWhateverTheFirstNumber) {
  SimFiles disk;
  PutEach(disk, {"bmenu002.mnu", "BMENU005.MNU", "notes.txt", "BMENU001.BTN"});
  EXPECT_EQ(Ordered(disk), (Names{"BMENU001.MNU", "BMENU002.MNU"}));
  EXPECT_EQ(disk.Get(kMenus + "BMENU001.MNU"), "bmenu002.mnu");
  EXPECT_EQ(disk.Get(kMenus + "BMENU002.MNU"), "BMENU005.MNU");
}

TEST(OrderedMenuFiles, AFileWhoseWantedNameIsTakenKeepsNameAndPlace) {
  SimFiles disk;
  // "AMENU" sorts first and wants the name that the second file bears.
  PutEach(disk, {"AMENU.MNU", "BMENU001.MNU", "BMENU005.MNU"});
  EXPECT_EQ(Ordered(disk), (Names{"AMENU.MNU", "BMENU002.MNU", "BMENU003.MNU"}));
  EXPECT_EQ(disk.Get(kMenus + "BMENU002.MNU"), "BMENU001.MNU");
}

TEST(OrderedMenuFiles, SortAsTextAboveNineHundredNinetyNine) {
  SimFiles disk;
  PutEach(disk, {"BMENU999.MNU", "BMENU1000.MNU", "BMENU100.MNU"});
  EXPECT_EQ(Ordered(disk), (Names{"BMENU001.MNU", "BMENU002.MNU", "BMENU003.MNU"}));
  EXPECT_EQ(disk.Get(kMenus + "BMENU002.MNU"), "BMENU1000.MNU");
  EXPECT_EQ(disk.Get(kMenus + "BMENU003.MNU"), "BMENU999.MNU");
}

TEST(OrderedMenuFiles, LeaveOutWhatOnlyLooksLikeAMenu) {
  SimFiles disk;
  PutEach(disk, {"BMENU001.MNU", "BMENU002.MNUX", "mnu"});
  disk.MakeFolders(kMenus + "FOLDER.MNU");
  EXPECT_EQ(Ordered(disk), Names{"BMENU001.MNU"});
}

TEST(OrderedMenuFiles, DoNotRenameForCaseAlone) {
  SimFiles disk;
  PutEach(disk, {"bmenu001.mnu"});
  EXPECT_EQ(Ordered(disk), Names{"BMENU001.MNU"});
  EXPECT_EQ(disk.Names(kMenus), Names{"bmenu001.mnu"});
  EXPECT_EQ(disk.Count("Rename"), 0);
}

TEST(OrderedMenuFiles, NamesInOtherScriptsTakePart) {
  SimFiles disk;
  PutEach(disk, {"\xC3\xA4.mnu", "BMENU001.MNU"});
  EXPECT_EQ(Ordered(disk), (Names{"BMENU001.MNU", "BMENU002.MNU"}));
  EXPECT_EQ(disk.Get(kMenus + "BMENU002.MNU"), "\xC3\xA4.mnu");
}

TEST(OrderedMenuFiles, BehindAFileHeldOpenNoneTakesALowerNumber) {
  SimFiles disk;
  PutEach(disk, {"BMENU002.MNU", "BMENU004.MNU", "BMENU005.MNU"});
  disk.HoldOpen(kMenus + "BMENU004.MNU");
  EXPECT_EQ(Ordered(disk), (Names{"BMENU001.MNU", "BMENU004.MNU", "BMENU005.MNU"}));
  disk.LetGo(kMenus + "BMENU004.MNU");
  EXPECT_EQ(Ordered(disk), (Names{"BMENU001.MNU", "BMENU002.MNU", "BMENU003.MNU"}));
  EXPECT_EQ(disk.Get(kMenus + "BMENU002.MNU"), "BMENU004.MNU");
}

TEST(OrderedMenuFiles, InAProtectedFolderAllNamesStay) {
  SimFiles disk;
  PutEach(disk, {"BMENU002.MNU", "BMENU005.MNU", "stray.txt"});
  disk.Protect(kMenus);
  EXPECT_TRUE(PurgeMenus(disk, kMenus));
  EXPECT_EQ(Ordered(disk), (Names{"BMENU002.MNU", "BMENU005.MNU"}));
  EXPECT_EQ(disk.Names(kMenus).size(), 3U);
}

TEST(OrderedMenuFiles, ThreeHundredFilesKeepTheirOrder) {
  SimFiles disk;
  Names names;
  for (int i = 1; i <= 300; ++i) names.push_back("BMENU" + FormatNumber(i + 7, 3) + ".MNU");
  PutEach(disk, names);
  const Names ordered = Ordered(disk);
  ASSERT_EQ(ordered.size(), 300U);
  for (std::size_t i = 0; i < 300; ++i) {
    EXPECT_EQ(ordered[i], "BMENU" + FormatNumber(static_cast<int>(i) + 1, 3) + ".MNU");
    EXPECT_EQ(disk.Get(kMenus + ordered[i]), names[i]);
  }
}

TEST(OrderedMenuFiles, NoFailureLosesAFile) {
  const Names names = {"BMENU002.MNU", "BMENU004.MNU", "BMENU007.MNU"};
  for (int n = 1;; ++n) {
    SimFiles disk;
    PutEach(disk, names);
    disk.FailCall(n);
    const auto ordered = OrderedMenuFiles(disk, kMenus);
    const Names left = disk.Names(kMenus);
    ASSERT_EQ(left.size(), 3U) << "failing call " << n;
    for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(disk.Get(kMenus + left[i]), names[i]);
    if (ordered) {
      for (const std::string& name : *ordered) EXPECT_TRUE(disk.Has(kMenus + name)) << name;
    }
    if (!disk.Hit()) break;
  }
}

TEST(OrderedMenuFiles, AMissingFolderIsAnError) {
  SimFiles disk;
  EXPECT_FALSE(OrderedMenuFiles(disk, kMenus));
  disk.MakeFolders(kMenus);
  EXPECT_EQ(Ordered(disk), Names{});
}

TEST(OrderedSingleFiles, AreSortedAndNeverRenamed) {
  SimFiles disk;
  PutEach(disk, {"BMENU005.btn", "bmenu002.BTN", "BMENU001.MNU"});
  EXPECT_EQ(OrderedSingleFiles(disk, kMenus).ValueOr({}), (Names{"BMENU002.BTN", "BMENU005.BTN"}));
  EXPECT_EQ(disk.Names(kMenus), (Names{"BMENU001.MNU", "BMENU005.btn", "bmenu002.BTN"}));
}

}  // namespace
}  // namespace corvelle
