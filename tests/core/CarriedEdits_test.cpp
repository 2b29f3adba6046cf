// Where a carried entry goes in the files, and what the disk may do meanwhile.

#include <gtest/gtest.h>

#include "core/CoreDoubles.h"
#include "core/CoreTexts.h"
#include "core/EntryCommands.h"
#include "core/MenuFile.h"
#include "core/MenuFolder.h"
#include "core/Program.h"
#include "sim/World.h"

namespace corvelle {
namespace {

std::string Raw(char letter) { return std::string(kRecordLength, letter); }

TEST(MoveRecord, PutsARecordBeforeAnother) {
  const std::string a = Raw('a');
  const std::string b = Raw('b');
  const std::string c = Raw('c');
  struct Row {
    const char* name;
    int from, before;
    std::string expected;
  };
  const Row rows[] = {
      {"down", 1, 3, b + a + c},
      {"to the end", 1, 4, b + c + a},
      {"up", 3, 1, c + a + b},
      {"up by one", 3, 2, a + c + b},
      {"before itself", 2, 2, a + b + c},
      {"before the next", 2, 3, a + b + c},
      {"past the end", 1, 5, a + b + c},
      {"from past the end", 4, 1, a + b + c},
      {"from place 0", 0, 1, a + b + c},
      {"to place 0", 1, 0, a + b + c},
      {"negative", -1, -5, a + b + c},
      {"far away", 32767, 32767, a + b + c},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(MoveRecord(a + b + c, row.from, row.before), row.expected) << row.name;
  }
  EXPECT_EQ(MoveRecord("", 1, 1), "");
}

/// Two menus, and an entry of the first one in the hand.
class CarriedEdits : public testing::Test {
 protected:
  CarriedEdits() {
    program.Paths.MenusPath = "C:\\Corvelle\\Menus\\";
    program.Ports.Toolbar = &toolbar;
    program.Ports.SingleButtons = &singles;
    world.Files.MakeFolders("C:\\Corvelle\\Menus");
    Fresh(3);
  }

  /// The menus as they were, and record `record` of the first one in the hand.
  void Fresh(int record) {
    Put(kFile, {"Button", "One", "Two", "Three", "Four"});
    Put(kOther, {"Button", "Alpha", "Beta"});
    EntryEdit& entry = program.Entry;
    const auto here = ReadRecord(world.Files, world.Ansi, kFile, record);
    entry.CurTitle = here ? here->FTitle : "";
    entry.CurIcon = here ? here->FIcon : "";
    entry.CurCommand = here ? here->FName : "";
    entry.CurMenuTag = "F2";
    entry.CurFile = kFile;
    entry.CurRecord = record;
    entry.ItemDragging = true;
    entry.UndoMenuTag = "F2";
    log.clear();
    world.Files.ClearLog();
  }
  void Put(const std::string& file, const std::vector<std::string>& titles) {
    std::string bytes;
    for (const std::string& title : titles) {
      bytes += FormatRecord({title, "icon " + title, "run " + title}, world.Ansi);
    }
    world.Files.Put(file, bytes);
  }
  std::string TitlesOf(const std::string& file) {
    std::string all;
    const std::string bytes = world.Files.Get(file).value_or("");
    for (std::size_t at = 0; at < bytes.size(); at += kRecordLength) {
      const MenuRecord record =
          ParseRecord(std::string_view(bytes).substr(at, kRecordLength), world.Ansi);
      all += (all.empty() ? "" : " ") + record.FTitle;
    }
    return all;
  }
  [[nodiscard]] static int CountOf(const std::string& titles, const std::string& title) {
    int count = 0;
    for (std::size_t at = titles.find(title); at != std::string::npos;
         at = titles.find(title, at + 1)) {
      ++count;
    }
    return count;
  }

  sim::World world;
  CallLog log;
  LoggingToolbar toolbar{log};
  LoggingSingles singles{log};
  Program program{world.Services(), world.Windows()};
};

TEST_F(CarriedEdits, GoWhereTheyArePut) {
  struct Row {
    const char* name;
    int record;
    std::string file;
    int before;
    bool copies;
    const char* expected;       // of the first menu
    const char* expectedOther;  // of the second one
  };
  const char* const kOne = "Button One Two Three Four";
  const char* const kTwo = "Button Alpha Beta";
  const Row rows[] = {
      {"down in its file", 2, kFile, 4, false, "Button Two One Three Four", kTwo},
      {"down to the last", 2, kFile, 5, false, "Button Two Three One Four", kTwo},
      {"up in its file", 5, kFile, 2, false, "Button Four One Two Three", kTwo},
      {"onto the next, where it is", 3, kFile, 4, false, kOne, kTwo},
      {"onto itself", 3, kFile, 3, false, kOne, kTwo},
      {"a copy onto itself", 3, kFile, 3, true, kOne, kTwo},
      {"to the end of its file", 3, kFile, 0, false, "Button One Three Four Two", kTwo},
      {"a copy up", 4, kFile, 2, true, "Button Three One Two Three Four", kTwo},
      {"a copy down", 2, kFile, 5, true, "Button One Two Three One Four", kTwo},
      {"a copy at the end", 2, kFile, 0, true, "Button One Two Three Four One", kTwo},
      {"into another file", 3, kOther, 3, false, "Button One Three Four", "Button Alpha Two Beta"},
      {"to the end of another", 3, kOther, 0, false, "Button One Three Four",
       "Button Alpha Beta Two"},
      {"a copy into another", 3, kOther, 2, true, kOne, "Button Two Alpha Beta"},
      {"before a folder's file above", 5, kFile, 5003, false, "Button One Four Two Three", kTwo},
      {"before a folder's file below", 2, kFile, 5004, false, "Button Two One Three Four", kTwo},
      {"before a folder's file elsewhere", 3, kOther, 5003, false, "Button One Three Four",
       "Button Alpha Two Beta"},
      {"past the end", 3, kFile, 6, false, kOne, kTwo},
      {"past the end of another", 3, kOther, 4, false, kOne, kTwo},
      {"before the button's record", 3, kFile, 1, false, kOne, kTwo},
      {"before another button's record", 3, kOther, 1, true, kOne, kTwo},
      {"before a folder past the end", 3, kOther, 5009, false, kOne, kTwo},
      {"before 5000, which is a place", 3, kFile, 5000, false, kOne, kTwo},
      {"before a negative place", 3, kOther, -3, false, kOne, kTwo},
      {"into a missing file", 3, "C:\\Corvelle\\Menus\\BMENU009.MNU", 0, false, kOne, kTwo},
  };
  for (const Row& row : rows) {
    Fresh(row.record);
    const bool changed =
        program.Commands.DropItem("F3", {.File = row.file, .Before = row.before}, row.copies);
    EXPECT_EQ(TitlesOf(kFile), row.expected) << row.name;
    EXPECT_EQ(TitlesOf(kOther), row.expectedOther) << row.name;
    if (TitlesOf(kFile) != kOne || TitlesOf(kOther) != kTwo) {
      EXPECT_TRUE(changed) << row.name;
      EXPECT_EQ(log.empty() ? "" : log.back(), "RemoveQMenu F3") << row.name;
      EXPECT_EQ(program.Entry.UndoMenuTag, "") << row.name;
    }
    EXPECT_TRUE(world.Desktop.Boxes().empty()) << row.name;
  }
}

TEST_F(CarriedEdits, AMoveWithinAFileKeepsTheBytesOfTheRecord) {
  std::string bytes = world.Files.Get(kFile).value_or("");
  bytes[2 * kRecordLength + 40] = '\x81';  // what no reader understands
  bytes[2 * kRecordLength + 20] = '\0';
  world.Files.Put(kFile, bytes);
  Fresh(3);
  world.Files.Put(kFile, bytes);
  program.Entry.CurTitle =
      ParseRecord(std::string_view(bytes).substr(2 * kRecordLength), world.Ansi).FTitle;
  EXPECT_TRUE(program.Commands.DropItem("F2", {.File = kFile, .Before = 2}, false));
  const std::string now = world.Files.Get(kFile).value_or("");
  EXPECT_EQ(now.substr(kRecordLength, kRecordLength),
            bytes.substr(2 * kRecordLength, kRecordLength));
}

TEST_F(CarriedEdits, TheMenuItCameFromIsForgottenToo) {
  EXPECT_TRUE(program.Commands.DropItem("F3", {.File = kOther}, false));
  EXPECT_EQ(log, (CallLog{"RemoveQMenu F2", "RemoveQMenu F3"}));
}

TEST_F(CarriedEdits, AGeneratedEntryIsCopiedWhateverWasMeant) {
  program.Entry.CurRecord = 5003;
  EXPECT_TRUE(program.Commands.DropItem("F2", {.File = kFile, .Before = 5}, false));
  EXPECT_EQ(TitlesOf(kFile), "Button One Two Three Two Four");
  program.Entry.CurRecord = 5003;
  EXPECT_TRUE(program.Commands.DropItem("F3", {.File = kOther}, false));
  EXPECT_EQ(TitlesOf(kFile), "Button One Two Three Two Four");
  EXPECT_EQ(TitlesOf(kOther), "Button Alpha Beta Two");
}

TEST_F(CarriedEdits, AnotherEntryAtItsPlaceStays) {
  program.Entry.CurTitle = "Gone";
  EXPECT_TRUE(program.Commands.DropItem("F3", {.File = kOther}, false));
  EXPECT_EQ(TitlesOf(kFile), "Button One Two Three Four");
  EXPECT_EQ(TitlesOf(kOther), "Button Alpha Beta Gone");
  EXPECT_TRUE(program.Commands.DropItem("F2", {.File = kFile, .Before = 2}, false));
  EXPECT_EQ(TitlesOf(kFile), "Button Gone One Two Three Four");
}

TEST_F(CarriedEdits, AnEntryOfTheRowLeavesIt) {
  program.Entry.CurMenuTag = "SingleButtons";
  program.Entry.CurFile = "C:\\Corvelle\\Menus\\BMENU001.BTN";
  program.Entry.CurRecord = 1;
  world.Files.Put(
      program.Entry.CurFile,
      FormatRecord({program.Entry.CurTitle, program.Entry.CurIcon, program.Entry.CurCommand},
                   world.Ansi));
  EXPECT_TRUE(program.Commands.DropItem("F3", {.File = kOther, .Before = 2}, true));
  EXPECT_EQ(log, (CallLog{"RemoveQMenu F3"}));
  EXPECT_TRUE(world.Files.Has(program.Entry.CurFile));
  log.clear();
  EXPECT_TRUE(program.Commands.DropItem("F3", {.File = kOther, .Before = 2}, false));
  EXPECT_EQ(TitlesOf(kOther), "Button Two Two Alpha Beta");
  EXPECT_FALSE(world.Files.Has(program.Entry.CurFile));
  EXPECT_EQ(log, (CallLog{"DoSingleButtons", "resize, free 1230", "RemoveQMenu F3"}));
}

TEST_F(CarriedEdits, AnotherEntryInTheRowStaysThereAndNothingIsLost) {
  program.Entry.CurMenuTag = "SingleButtons";
  program.Entry.CurFile = "C:\\Corvelle\\Menus\\BMENU001.BTN";
  program.Entry.CurRecord = 1;
  program.Entry.ItemDragging = true;
  world.Files.Put(program.Entry.CurFile, FormatRecord({"Newer", "", "c"}, world.Ansi));
  EXPECT_TRUE(program.Commands.DropItem("F3", {.File = kOther, .Before = 2}, false));
  EXPECT_EQ(TitlesOf(kOther), "Button Two Alpha Beta");
  EXPECT_EQ(log, (CallLog{"DoSingleButtons", "resize, free 1230", "RemoveQMenu F3"}));
  EXPECT_TRUE(world.Desktop.Boxes().empty());
}

TEST_F(CarriedEdits, NothingInTheHandIsPutNowhere) {
  program.Entry.CurFile.clear();
  EXPECT_FALSE(program.Commands.DropItem("F3", {.File = kOther}, false));
  EXPECT_TRUE(world.Files.Log().empty());
  EXPECT_TRUE(log.empty());
}

TEST_F(CarriedEdits, NoOneFailureLosesOrDoublesAnEntry) {
  struct Row {
    const char* name;
    std::string file;
    int before;
    bool copies;
  };
  const Row rows[] = {
      {"down", kFile, 5, false},
      {"up", kFile, 2, false},
      {"to the end", kFile, 0, false},
      {"into another", kOther, 2, false},
      {"to the end of another", kOther, 0, false},
      {"a copy", kFile, 2, true},
  };
  for (const Row& row : rows) {
    int failures = 0;
    for (int n = 1;; ++n) {
      Fresh(3);
      world.Files.FailCall(n, FileError::DiskFull);
      program.Commands.DropItem("F3", {.File = row.file, .Before = row.before}, row.copies);
      const bool hit = world.Files.Hit();
      world.Files.StopFailing();
      if (!hit) break;
      ++failures;
      const std::string all = TitlesOf(kFile) + " " + TitlesOf(kOther);
      for (const char* title : {"One", "Two", "Three", "Four", "Alpha", "Beta"}) {
        const int count = CountOf(all, title);
        EXPECT_GE(count, 1) << title << " lost, " << row.name << ", failing call " << n;
        const bool copied = row.copies && std::string(title) == "Two";
        EXPECT_LE(count, copied ? 2 : 1) << title << ", " << row.name << ", failing call " << n;
      }
      EXPECT_EQ(CountOf(all, "Button"), 2) << row.name << ", failing call " << n;
    }
    EXPECT_GT(failures, 2) << row.name;
    EXPECT_TRUE(world.Desktop.Boxes().empty()) << row.name;
  }
}

}  // namespace
}  // namespace corvelle
