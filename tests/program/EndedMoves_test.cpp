// The program ends, or the disk refuses, in the middle of a change of the user's entries. After the
// next start each entry stands exactly where it was or exactly where it was to go.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "core/FileTransaction.h"
#include "program/ProgramDesk.h"

namespace corvelle {
namespace {

/// A change of the user's: all but its last gesture, and that one, in which the files change.
struct Change {
  const char* name;
  std::function<void(ProgramDesk&)> prepare;
  std::function<void(ProgramDesk&)> doIt;
};

void Release(ProgramDesk& desk) {
  desk.world.Desktop.Release();
  desk.world.Desktop.Advance(50);
}

void PrintTo(const Change& change, std::ostream* out) { *out << change.name; }

std::vector<Change> Changes() {
  return {
      {"SingleToSingle",
       [](ProgramDesk& desk) {
         desk.PickUpSingle(3);
         desk.PointAt(desk.Single(1));
       },
       Release},
      {"SingleBehindTheLast",
       [](ProgramDesk& desk) {
         desk.PickUpSingle(2);
         desk.PointAt(desk.BehindSingles());
       },
       Release},
      {"ItemToItemOfAnotherMenu",
       [](ProgramDesk& desk) {
         desk.PickUpItem(2);
         desk.CarryOver(3);
         desk.PointAt(desk.Item(1));
       },
       Release},
      {"ItemToAnotherButton",
       [](ProgramDesk& desk) {
         desk.PickUpItem(4);
         desk.PointAt(desk.MenuButton(3));
       },
       Release},
      {"ItemWithinItsMenu",
       [](ProgramDesk& desk) {
         desk.PickUpItem(4);
         desk.PointAt(desk.Item(1));
       },
       Release},
      {"ItemToItsOwnButton",
       [](ProgramDesk& desk) {
         desk.PickUpItem(1);
         desk.PointAt(desk.MenuButton(2));
       },
       Release},
      {"ItemToSingle",
       [](ProgramDesk& desk) {
         desk.PickUpItem(3);
         desk.PointAt(desk.Single(2));
       },
       Release},
      {"ItemBehindTheSingles",
       [](ProgramDesk& desk) {
         desk.PickUpItem(1);
         desk.PointAt(desk.BehindSingles());
       },
       Release},
      {"SingleToItem",
       [](ProgramDesk& desk) {
         desk.PickUpSingle(2);
         desk.CarryOver(2);
         desk.PointAt(desk.Item(3));
       },
       Release},
      {"SingleToButton",
       [](ProgramDesk& desk) {
         desk.PickUpSingle(4);
         desk.PointAt(desk.MenuButton(3));
       },
       Release},
      {"DeletingASingle", [](ProgramDesk&) {},
       [](ProgramDesk& desk) { desk.RightClick(desk.Single(2), "Delete Item"); }},
      {"CuttingASingle", [](ProgramDesk&) {},
       [](ProgramDesk& desk) { desk.RightClick(desk.Single(1), "Cut Item"); }},
      {"PastingASingle", [](ProgramDesk& desk) { desk.RightClick(desk.Single(3), "Copy Item"); },
       [](ProgramDesk& desk) { desk.RightClick(desk.Single(1), "Paste Item"); }},
      {"BringingADeletedSingleBack",
       [](ProgramDesk& desk) { desk.RightClick(desk.Single(2), "Delete Item"); },
       [](ProgramDesk& desk) { desk.RightClick(desk.Single(1), "Undo Delete"); }},
      {"DeletingAnItem", [](ProgramDesk& desk) { desk.OpenMenu(2); },
       [](ProgramDesk& desk) { desk.RightClick(desk.Item(2), "Delete Item"); }},
      {"FilesDroppedOnSingles", [](ProgramDesk& desk) { desk.DragFiles(desk.Single(2)); }, Release},
      {"FilesDroppedBehindTheSingles",
       [](ProgramDesk& desk) { desk.DragFiles(desk.BehindSingles()); }, Release},
      {"FilesDroppedOnAButton", [](ProgramDesk& desk) { desk.DragFiles(desk.MenuButton(2)); },
       Release},
  };
}

class EndedMoves : public testing::TestWithParam<Change> {
 protected:
  /// Runs the change with the disk prepared by `spoil`; the folder before it.
  Folder Run(ProgramDesk& desk, const std::function<void(sim::SimFiles&)>& spoil) {
    GetParam().prepare(desk);
    if (HasFatalFailure()) return {};
    const Folder before = desk.Files();
    spoil(desk.world.Files);
    GetParam().doIt(desk);
    return before;
  }
};

TEST_P(EndedMoves, AreWholeAfterTheNextStartWhereverTheProgramEnded) {
  ProgramDesk fine;
  const Folder before = Run(fine, [](sim::SimFiles& disk) { disk.ClearLog(); });
  const Folder after = fine.Files();
  const auto calls = static_cast<int>(fine.world.Files.Log().size());
  ASSERT_NE(before, after);
  ASSERT_GT(calls, 2);
  bool sawOld = false;
  bool sawNew = false;
  for (int n = 1; n <= calls; ++n) {
    // A question to the disk changes nothing: an end before it is one before the next change.
    const std::string& next = fine.world.Files.Log()[static_cast<std::size_t>(n) - 1].Operation;
    const bool changes = next == "Write" || next == "WriteAt" || next == "Replace" ||
                         next == "Remove" || next == "Rename" || next == "Copy";
    if (!changes && n > 1 && n < calls) continue;
    ProgramDesk desk;
    Run(desk, [n](sim::SimFiles& disk) { disk.FailFrom(n); });
    if (HasFatalFailure()) return;
    EXPECT_TRUE(desk.world.Files.Hit()) << n;
    desk.End();
    desk.Start();
    const Folder now = desk.Files();
    EXPECT_TRUE(now == before || now == after) << "ended before call " << n << ", a " << next;
    EXPECT_FALSE(desk.world.Files.Has(kMenus + std::string(kJournalFileName)));
    sawOld = sawOld || now == before;
    sawNew = sawNew || now == after;
  }
  // The last call may be a change itself: then only an end behind it has the new files.
  EXPECT_TRUE(sawOld);
}

TEST_P(EndedMoves, AreWholeWhicheverCallOfTheDiskFails) {
  Folder before;
  Folder after;
  for (int n = 0;; ++n) {
    ProgramDesk desk;
    before = Run(desk, [n](sim::SimFiles& disk) {
      if (n > 0) disk.FailCall(n, n % 2 == 0 ? FileError::DiskFull : FileError::InUse);
    });
    if (HasFatalFailure()) return;
    const bool hit = desk.world.Files.Hit();
    desk.world.Files.StopFailing();
    const Folder now = desk.Files();
    if (n == 0) {
      after = now;
      continue;
    }
    if (!hit) break;
    EXPECT_TRUE(now == before || now == after) << "failing call " << n;
    EXPECT_TRUE(RecoverFiles(desk.world.Files, kMenus));
    EXPECT_EQ(desk.Files(), now) << "failing call " << n;
    ASSERT_LT(n, 300);
  }
}

INSTANTIATE_TEST_SUITE_P(Each, EndedMoves, testing::ValuesIn(Changes()),
                         [](const testing::TestParamInfo<Change>& row) {
                           return std::string(row.param.name);
                         });

}  // namespace
}  // namespace corvelle
