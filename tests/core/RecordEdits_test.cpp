#include "core/RecordEdits.h"

#include <gtest/gtest.h>

#include <functional>

#include "core/CoreTexts.h"
#include "core/FileTransaction.h"
#include "core/MenuFile.h"
#include "sim/SimFiles.h"

namespace corvelle {
namespace {

using namespace std::string_literals;
using sim::SimFiles;

using Titles = std::vector<std::string>;

/// The menu of four records, and an edit whose current entry is one of its items.
struct Bench {
  SimFiles disk;
  EntryEdit edit;

  explicit Bench(int record = 3, const std::string& bytes = kFour) {
    disk.Put(kFile, bytes);
    disk.Put(kOther, "untouched");
    edit.CurMenuTag = "F2";
    edit.CurFile = kFile;
    Select(record);
    disk.ClearLog();
  }

  void Select(int record) {
    edit.CurRecord = record;
    const MenuRecord here = ReadRecord(disk, kAnsi, kFile, record).ValueOr({});
    edit.CurTitle = here.FTitle;
    edit.CurIcon = here.FIcon;
    edit.CurCommand = here.FName;
  }

  EditOutcome Delete() { return DeleteMenuEntry(disk, kAnsi, kMenus, edit); }
  EditOutcome Paste() { return PasteMenuEntry(disk, kAnsi, kMenus, edit); }
  EditOutcome Undo() { return UndoDeleteMenuEntry(disk, kAnsi, kMenus, edit); }

  [[nodiscard]] std::string Bytes() const { return disk.Get(kFile).value_or("(none)"); }

  Titles TitlesNow() {
    Titles titles;
    for (const MenuRecord& record : ReadAllRecords(disk, kAnsi, kFile).ValueOr({})) {
      titles.push_back(record.FTitle);
    }
    return titles;
  }
};

TEST(Tags, TellWhatAnEditActsOn) {
  EXPECT_TRUE(IsButtonTag("B3"));
  EXPECT_TRUE(IsMenuTag("F3"));
  EXPECT_TRUE(IsSinglesTag("SingleButtons"));
  for (const char* tag : {"Q1", "Toolbar", ""}) {
    EXPECT_FALSE(IsButtonTag(tag) || IsMenuTag(tag) || IsSinglesTag(tag)) << tag;
  }
}

TEST(DeleteMenuEntry, TakesTheEntryOutAndLeavesTheOthersByteForByte) {
  Bench bench;
  EXPECT_EQ(bench.Delete(), EditOutcome::Edited);
  EXPECT_EQ(bench.Bytes(), Record("Button") + Record("One") + Record("Three"));
  EXPECT_EQ(bench.disk.Get(kOther), "untouched");
}

TEST(DeleteMenuEntry, ComparesTheEntryWithoutRegardToCase) {
  Bench bench;
  bench.edit.CurTitle = "TWO";
  bench.edit.CurIcon = "ICON OF two";
  bench.edit.CurCommand = "c:\\TWO.EXE";
  EXPECT_EQ(bench.Delete(), EditOutcome::Edited);
}

TEST(DeleteMenuEntry, RefusesAnEntryThatIsAnotherNow) {
  const std::function<void(EntryEdit&)> changes[] = {
      [](EntryEdit& edit) { edit.CurTitle += "x"; },
      [](EntryEdit& edit) { edit.CurIcon = ""; },
      [](EntryEdit& edit) { edit.CurCommand += " "; },
      [](EntryEdit& edit) { edit.CurRecord = 2; },
      [](EntryEdit& edit) { edit.CurRecord = 0; },
      [](EntryEdit& edit) { edit.CurRecord = -1; },
      [](EntryEdit& edit) { edit.CurRecord = 5; },
      [](EntryEdit& edit) { edit.CurRecord = 5000; },
      [](EntryEdit& edit) { edit.CurRecord = 5003; },
  };
  for (const auto& change : changes) {
    Bench bench;
    change(bench.edit);
    EXPECT_EQ(bench.Delete(), EditOutcome::RecordMismatch) << bench.edit.CurRecord;
    EXPECT_EQ(bench.Bytes(), kFour);
    EXPECT_EQ(bench.disk.Count("Rename"), 0);
  }
}

TEST(DeleteMenuEntry, ABlankEntryPastTheEndIsNoEntry) {
  Bench bench;
  bench.edit.CurTitle = bench.edit.CurIcon = bench.edit.CurCommand = "";
  bench.edit.CurRecord = 9;
  EXPECT_EQ(bench.Delete(), EditOutcome::RecordMismatch);
  EXPECT_EQ(bench.Bytes(), kFour);
}

TEST(DeleteMenuEntry, AGeneratedEntryCannotBeDraggedAway) {
  Bench bench;
  bench.edit.CurRecord = 5001;
  bench.edit.ItemDragging = true;
  EXPECT_EQ(bench.Delete(), EditOutcome::NothingToDo);
  EXPECT_EQ(bench.Bytes(), kFour);
  EXPECT_TRUE(bench.disk.Log().empty());
}

TEST(DeleteMenuEntry, FiveThousandIsARealRecord) {
  SimFiles disk;
  std::string bytes;
  for (int i = 1; i <= 5000; ++i) bytes += Record("R" + std::to_string(i));
  disk.Put(kFile, bytes);
  EntryEdit edit;
  edit.CurMenuTag = "F1";
  edit.CurFile = kFile;
  edit.CurRecord = 5000;
  edit.CurTitle = "R5000";
  edit.CurIcon = "icon of R5000";
  edit.CurCommand = "C:\\R5000.exe";
  edit.ItemDragging = true;
  EXPECT_EQ(DeleteMenuEntry(disk, kAnsi, kMenus, edit), EditOutcome::Edited);
  EXPECT_EQ(disk.Get(kFile), bytes.substr(0, bytes.size() - 570));
}

TEST(DeleteMenuEntry, ActsOnMenusOnly) {
  for (const char* tag : {"Q1", "Toolbar", "", "SingleButtons", "B2"}) {
    Bench bench;
    bench.edit.CurMenuTag = tag;
    EXPECT_EQ(bench.Delete(), EditOutcome::NothingToDo) << tag;
    EXPECT_EQ(bench.Bytes(), kFour) << tag;
  }
}

TEST(DeleteMenuEntry, WorksOnAFileWithAShortLastRecord) {
  Bench bench;
  bench.disk.Put(kFile, kFour.substr(0, 4 * 570 - 200));
  EXPECT_EQ(bench.Delete(), EditOutcome::Edited);
  EXPECT_EQ(bench.TitlesNow(), (Titles{"Button", "One", "Three"}));
}

TEST(DeleteButtonFile, RemovesTheWholeFile) {
  Bench bench(1);
  bench.edit.CurMenuTag = "B2";
  EXPECT_EQ(DeleteButtonFile(bench.disk, kAnsi, bench.edit), EditOutcome::Edited);
  EXPECT_FALSE(bench.disk.Has(kFile));
  EXPECT_EQ(DeleteButtonFile(bench.disk, kAnsi, bench.edit), EditOutcome::Failed);
  bench.disk.Put(kFile, kFour);
  bench.disk.SetReadOnly(kFile, true);
  EXPECT_EQ(DeleteButtonFile(bench.disk, kAnsi, bench.edit), EditOutcome::Failed);
  EXPECT_TRUE(bench.disk.Has(kFile));
}

TEST(DeleteButtonFile, LeavesAnotherButtonThatHasComeToItsPlace) {
  Bench bench(1);
  bench.edit.CurMenuTag = "B2";
  for (const std::string& other : {Record("Newer") + Record("One"), Record("Button 2"), ""s}) {
    bench.disk.Put(kFile, other);
    EXPECT_EQ(DeleteButtonFile(bench.disk, kAnsi, bench.edit), EditOutcome::RecordMismatch);
    EXPECT_EQ(bench.Bytes(), other);
  }
}

// Its button shows nothing, and that is what the user wants to be rid of.
TEST(DeleteButtonFile, RemovesADamagedOne) {
  for (const std::string& damaged : {""s, "short"s, Record("Button").substr(0, 569)}) {
    Bench bench(1, damaged);
    bench.edit.CurMenuTag = "B2";
    EXPECT_EQ(DeleteButtonFile(bench.disk, kAnsi, bench.edit), EditOutcome::Edited);
    EXPECT_FALSE(bench.disk.Has(kFile));
  }
}

TEST(PasteMenuEntry, PutsTheClipboardBeforeTheEntry) {
  struct Row {
    const char* name;
    int record;
    Titles expected;
    EditOutcome outcome = EditOutcome::Edited;
  };
  const Row rows[] = {
      {"before the first item", 2, {"Button", "New", "One", "Two", "Three"}},
      {"before the last", 4, {"Button", "One", "Two", "New", "Three"}},
      {"before the folder item of a generated entry",
       5003,
       {"Button", "One", "New", "Two", "Three"}},
      {"past the end", 5, {"Button", "One", "Two", "Three"}, EditOutcome::NothingToDo},
      {"at 5000", 5000, {"Button", "One", "Two", "Three"}, EditOutcome::NothingToDo},
      {"nowhere", 0, {"Button", "One", "Two", "Three"}, EditOutcome::NothingToDo},
  };
  for (const Row& row : rows) {
    Bench bench;
    SetClipboard(bench.edit, {"New", "icon", "name"});
    bench.edit.CurRecord = row.record;
    EXPECT_EQ(bench.Paste(), row.outcome) << row.name;
    EXPECT_EQ(bench.TitlesNow(), row.expected) << row.name;
  }
}

TEST(PasteMenuEntry, DoesNotTouchTheFileWhereItPutsNothing) {
  Bench bench;
  bench.edit.CurRecord = 5;
  EXPECT_EQ(bench.Paste(), EditOutcome::NothingToDo);
  EXPECT_EQ(bench.disk.Count("Rename"), 0);
}

TEST(PasteMenuEntry, NewItemsAndSeparatorsAreStoredAsGiven) {
  Bench bench;
  SetClipboard(bench.edit, NewSeparatorRecord());
  EXPECT_EQ(bench.Paste(), EditOutcome::Edited);
  SetClipboard(bench.edit);
  EXPECT_EQ(bench.edit.ClipTitle + bench.edit.ClipIcon + bench.edit.ClipCommand, "");
  EXPECT_EQ(bench.Bytes().substr(2 * 570, 570),
            FormatRecord({"Separator", "MenuLineSeparator", ""}, kAnsi));
}

TEST(PasteMenuEntry, AMissingFileIsAFailureAndIsNotMade) {
  Bench bench;
  bench.edit.CurFile = kMenus + "BMENU009.MNU";
  EXPECT_EQ(bench.Paste(), EditOutcome::Failed);
  EXPECT_FALSE(bench.disk.Has(bench.edit.CurFile));
}

TEST(UndoDelete, BringsADeletedEntryBackToItsPlace) {
  for (int record = 1; record <= 4; ++record) {
    Bench bench(record);
    RememberForUndo(bench.edit);
    ASSERT_EQ(bench.Delete(), EditOutcome::Edited) << record;
    EXPECT_EQ(bench.Undo(), EditOutcome::Edited) << record;
    EXPECT_EQ(bench.Bytes(), kFour) << record;
  }
}

TEST(UndoDelete, TheLastEntryComesBackAtTheEnd) {
  Bench bench(4);
  RememberForUndo(bench.edit);
  ASSERT_EQ(bench.Delete(), EditOutcome::Edited);
  EXPECT_EQ(bench.TitlesNow(), (Titles{"Button", "One", "Two"}));
  EXPECT_EQ(bench.Undo(), EditOutcome::Edited);
  EXPECT_EQ(bench.TitlesNow(), (Titles{"Button", "One", "Two", "Three"}));
}

TEST(UndoDelete, AppendsWhereTheFileHasBecomeShorter) {
  Bench bench(4);
  RememberForUndo(bench.edit);
  bench.disk.Put(kFile, Record("Button"));
  EXPECT_EQ(bench.Undo(), EditOutcome::Edited);
  EXPECT_EQ(bench.TitlesNow(), (Titles{"Button", "Three"}));
}

TEST(UndoDelete, AGeneratedOrNoRecordIsNeverBroughtBack) {
  for (const int record : {0, -1, 5001, 5003}) {
    Bench bench;
    bench.edit.UndoRecord = record;
    EXPECT_EQ(bench.Undo(), EditOutcome::NothingToDo) << record;
    EXPECT_EQ(bench.Bytes(), kFour) << record;
  }
}

TEST(RememberForUndo, TakesTheCurrentEntryAndNothingForAButton) {
  EntryEdit edit;
  edit.CurTitle = "t";
  edit.CurIcon = "i";
  edit.CurCommand = "c";
  edit.CurMenuTag = "F3";
  edit.CurFile = kFile;
  edit.CurRecord = 7;
  RememberForUndo(edit);
  EXPECT_EQ(edit.UndoTitle, "t");
  EXPECT_EQ(edit.UndoIcon, "i");
  EXPECT_EQ(edit.UndoCommand, "c");
  EXPECT_EQ(edit.UndoMenuTag, "F3");
  EXPECT_EQ(edit.UndoFile, kFile);
  EXPECT_EQ(edit.UndoRecord, 7);
  edit.CurMenuTag = "B3";
  RememberForUndo(edit);
  EXPECT_EQ(edit.UndoMenuTag, "");
}

TEST(CopyEntry, FillsTheClipboardFromTheCurrentEntry) {
  Bench bench(2);
  CopyEntry(bench.edit);
  EXPECT_EQ(bench.edit.ClipTitle, "One");
  EXPECT_EQ(bench.edit.ClipIcon, "icon of One");
  EXPECT_EQ(bench.edit.ClipCommand, "C:\\One.exe");
}

TEST(Cutting, AndPastingMovesAnEntry) {
  Bench bench(2);
  CopyEntry(bench.edit);
  ASSERT_EQ(bench.Delete(), EditOutcome::Edited);
  bench.edit.CurRecord = 3;
  ASSERT_EQ(bench.Paste(), EditOutcome::Edited);
  EXPECT_EQ(bench.Bytes(), Record("Button") + Record("Two") + Record("One") + Record("Three"));
}

TEST(DeleteSeparator, TakesTheLineAboveTheEntryAndCanBeUndone) {
  for (const int record : {3, 5003}) {
    Bench bench;
    const std::string line = FormatRecord(NewSeparatorRecord(), kAnsi);
    const std::string bytes = Record("Button") + line + Record("Two");
    bench.disk.Put(kFile, bytes);
    bench.edit.CurRecord = record;
    ASSERT_EQ(SelectSeparatorAbove(bench.disk, kAnsi, bench.edit), EditOutcome::Edited);
    EXPECT_EQ(bench.edit.CurRecord, 2);
    EXPECT_EQ(bench.edit.CurIcon, "MenuLineSeparator");
    EXPECT_EQ(bench.edit.UndoRecord, 2);
    ASSERT_EQ(bench.Delete(), EditOutcome::Edited);
    EXPECT_EQ(bench.Bytes(), Record("Button") + Record("Two"));
    ASSERT_EQ(bench.Undo(), EditOutcome::Edited);
    EXPECT_EQ(bench.Bytes(), bytes);
  }
}

TEST(DeleteSeparator, NeverTakesAnEntryThatIsNoLine) {
  for (const int record : {3, 1, 0, 5001}) {
    Bench bench;
    bench.edit.CurRecord = record;
    const EntryEdit before = bench.edit;
    EXPECT_EQ(SelectSeparatorAbove(bench.disk, kAnsi, bench.edit), EditOutcome::RecordMismatch);
    EXPECT_EQ(bench.edit, before) << record;
  }
}

TEST(FolderItem, IsClosedFromOneOfItsEntriesAndOpenedAgain) {
  Bench bench;
  const std::string open = FormatRecord({"Docs", "icon", "C:\\Docs\\*.*/u"}, kAnsi);
  const std::string closed = FormatRecord({"Docs", "icon", "C:\\Docs\\*.*/u X"}, kAnsi);
  bench.disk.Put(kFile, Record("Button") + open + Record("Two"));
  bench.edit.CurRecord = 5002;
  EXPECT_EQ(CloseFolderItem(bench.disk, kAnsi, bench.edit), EditOutcome::Edited);
  EXPECT_EQ(bench.Bytes(), Record("Button") + closed + Record("Two"));
  bench.edit.CurRecord = 2;
  EXPECT_EQ(OpenFolderItem(bench.disk, kAnsi, bench.edit), EditOutcome::Edited);
  EXPECT_EQ(bench.Bytes(), Record("Button") + open + Record("Two"));
}

TEST(FolderItem, PastTheEndIsNotMade) {
  Bench bench;
  bench.edit.CurRecord = 5009;
  EXPECT_EQ(CloseFolderItem(bench.disk, kAnsi, bench.edit), EditOutcome::NothingToDo);
  bench.edit.CurRecord = 9;
  EXPECT_EQ(OpenFolderItem(bench.disk, kAnsi, bench.edit), EditOutcome::NothingToDo);
  EXPECT_EQ(bench.Bytes(), kFour);
}

std::string WithFolder(const std::string& command) {
  return Record("Button") + Record("One") + FormatRecord({"Docs", "icon", command}, kAnsi) +
         Record("Three");
}

TEST(FolderItem, AnotherEntryThatTookItsPlaceIsLeftAlone) {
  for (const char* command : {"c:\\two.exe", "C:\\Docs\\*.*/X", ""}) {
    Bench bench(3, WithFolder(command));
    bench.edit.CurRecord = 5003;
    EXPECT_EQ(CloseFolderItem(bench.disk, kAnsi, bench.edit), EditOutcome::RecordMismatch);
    EXPECT_EQ(bench.Bytes(), WithFolder(command)) << command;
  }
  for (const char* command : {"c:\\two.exe /X", "C:\\Docs\\*.*/u", ""}) {
    Bench bench(3, WithFolder(command));
    EXPECT_EQ(OpenFolderItem(bench.disk, kAnsi, bench.edit), EditOutcome::RecordMismatch);
    EXPECT_EQ(bench.Bytes(), WithFolder(command)) << command;
  }
}

struct Writer {
  const char* name;
  EditOutcome (*run)(Bench&);
  std::string bytes = kFour;
};

const Writer kWriters[] = {
    {"delete", [](Bench& bench) { return bench.Delete(); }},
    {"paste", [](Bench& bench) { return bench.Paste(); }},
    {"undo", [](Bench& bench) { return bench.Undo(); }},
    {"close folder", [](Bench& bench) { return CloseFolderItem(bench.disk, kAnsi, bench.edit); },
     WithFolder("C:\\Docs\\*.*/u")},
    {"open folder", [](Bench& bench) { return OpenFolderItem(bench.disk, kAnsi, bench.edit); },
     WithFolder("C:\\Docs\\*.*/u X")},
};

TEST(RecordEdits, AnyOneFailureLeavesTheOldFileOrTheNew) {
  for (const Writer& writer : kWriters) {
    Bench reference(3, writer.bytes);
    RememberForUndo(reference.edit);
    ASSERT_EQ(writer.run(reference), EditOutcome::Edited) << writer.name;
    const std::string edited = reference.Bytes();
    int failures = 0;
    for (int n = 1;; ++n) {
      Bench bench(3, writer.bytes);
      RememberForUndo(bench.edit);
      bench.disk.FailCall(n);
      const EditOutcome outcome = writer.run(bench);
      if (!bench.disk.Hit()) break;
      ++failures;
      const std::string expected = outcome == EditOutcome::Edited ? edited : writer.bytes;
      EXPECT_EQ(bench.Bytes(), expected) << writer.name << ", failing call " << n;
      EXPECT_EQ(bench.disk.Get(kOther), "untouched") << writer.name;
    }
    EXPECT_GT(failures, 1) << writer.name;
  }
}

TEST(RecordEdits, AFailureTellsWhatTheDiskAnswered) {
  for (const FileError error : {FileError::DiskFull, FileError::InUse, FileError::BadName}) {
    for (const Writer& writer : kWriters) {
      int failures = 0;
      for (int n = 1;; ++n) {
        Bench bench(3, writer.bytes);
        RememberForUndo(bench.edit);
        bench.disk.FailCall(n, error);
        const EditOutcome outcome = writer.run(bench);
        if (!bench.disk.Hit()) break;
        if (outcome != EditOutcome::Failed) continue;  // the edit did without that call
        ++failures;
        EXPECT_EQ(outcome.Reason(), error) << writer.name << ", failing call " << n;
      }
      EXPECT_GT(failures, 1) << writer.name;
    }
  }
}

TEST(EditOutcome, IsWhatAnEditCameToWhateverTheReason) {
  const EditOutcome refused = EditOutcome::Refused(FileError::DiskFull);
  EXPECT_EQ(refused, EditOutcome::Failed);
  EXPECT_EQ(refused, EditOutcome::Refused(FileError::InUse));
  EXPECT_NE(refused, EditOutcome::Edited);
  EXPECT_NE(EditOutcome::NothingToDo, EditOutcome::RecordMismatch);
  EXPECT_EQ(refused.Reason(), FileError::DiskFull);
  EXPECT_EQ(OutcomeOf(Done()), EditOutcome::Edited);
  EXPECT_EQ(OutcomeOf(FileError::InUse).Reason(), FileError::InUse);
  EXPECT_EQ(OutcomeOf(FileError::InUse), EditOutcome::Failed);
}

TEST(RecordEdits, AFullDiskCostsNoEntry) {
  for (const Writer& writer : kWriters) {
    Bench bench(3, writer.bytes);
    RememberForUndo(bench.edit);
    bench.disk.FillDisk(0);
    const std::string before = bench.Bytes();
    const EditOutcome outcome = writer.run(bench);
    if (outcome == EditOutcome::Failed) {
      EXPECT_EQ(bench.Bytes(), before) << writer.name;
    } else {
      // An edit in place needs no room.
      EXPECT_EQ(bench.Bytes().size(), before.size()) << writer.name;
    }
  }
}

TEST(RecordEdits, AReadOnlyMenuStaysAsItIs) {
  for (const Writer& writer : kWriters) {
    Bench bench(3, writer.bytes);
    RememberForUndo(bench.edit);
    bench.disk.SetReadOnly(kFile, true);
    const EditOutcome outcome = writer.run(bench);
    EXPECT_EQ(outcome, EditOutcome::Failed) << writer.name;
    EXPECT_EQ(outcome.Reason(), FileError::AccessDenied) << writer.name;
    EXPECT_EQ(bench.Bytes(), writer.bytes) << writer.name;
  }
}

TEST(RecordEdits, AMenuThatAnotherProgramHoldsStaysAsItIs) {
  for (const Writer& writer : kWriters) {
    Bench bench(3, writer.bytes);
    RememberForUndo(bench.edit);
    bench.disk.HoldOpen(kFile, SimFiles::Hold::ForReading);
    const EditOutcome outcome = writer.run(bench);
    EXPECT_EQ(outcome, EditOutcome::Failed) << writer.name;
    EXPECT_EQ(outcome.Reason(), FileError::InUse) << writer.name;
    bench.disk.LetGo(kFile);
    EXPECT_EQ(bench.Bytes(), writer.bytes) << writer.name;
  }
}

TEST(RecordEdits, AFolderWithoutTheRightToWriteKeepsItsMenus) {
  for (const Writer& writer : kWriters) {
    Bench bench(3, writer.bytes);
    RememberForUndo(bench.edit);
    bench.disk.Protect(kMenus);
    EXPECT_EQ(writer.run(bench), EditOutcome::Failed) << writer.name;
    EXPECT_EQ(bench.Bytes(), writer.bytes) << writer.name;
  }
}

TEST(RecordEdits, AMissingFolderIsAFailure) {
  for (const Writer& writer : kWriters) {
    Bench bench(3, writer.bytes);
    RememberForUndo(bench.edit);
    bench.disk.Vanish("C:\\Corvelle");
    EXPECT_EQ(writer.run(bench), EditOutcome::Failed) << writer.name;
    EXPECT_FALSE(bench.disk.Has("C:\\Corvelle")) << writer.name;
  }
}

TEST(SetCurrentEntry, LeavesTheClipboardTheUndoStoreAndTheCarry) {
  EntryEdit live{.CurTitle = "old",
                 .CurFile = "old.mnu",
                 .CurRecord = 2,
                 .ClipTitle = "clip",
                 .ClipIcon = "clip icon",
                 .ClipCommand = "clip command",
                 .UndoTitle = "undo",
                 .UndoIcon = "undo icon",
                 .UndoCommand = "undo command",
                 .UndoMenuTag = "F3",
                 .UndoFile = "undo.mnu",
                 .UndoRecord = 7,
                 .ItemDragging = true};
  EntryEdit expected = live;
  const EntryEdit entry{.CurTitle = "title",
                        .CurIcon = "icon",
                        .CurCommand = "command",
                        .CurMenuTag = "F9",
                        .CurFile = "new.mnu",
                        .CurRecord = 4,
                        .ClipTitle = "not taken",
                        .UndoMenuTag = "not taken"};
  expected.CurTitle = "title";
  expected.CurIcon = "icon";
  expected.CurCommand = "command";
  expected.CurMenuTag = "F9";
  expected.CurFile = "new.mnu";
  expected.CurRecord = 4;
  SetCurrentEntry(live, entry);
  EXPECT_EQ(live, expected);
}

TEST(DeleteSeparator, NeverTakesTheButtonsRecordThoughItHasTheLinesIcon) {
  Bench bench;
  std::string bytes = bench.Bytes();
  bytes.replace(0, kRecordLength, FormatRecord({"Button", "MenuLineSeparator", ""}, kAnsi));
  bench.disk.Put(kFile, bytes);
  bench.edit.CurRecord = 2;
  const EntryEdit before = bench.edit;
  EXPECT_EQ(SelectSeparatorAbove(bench.disk, kAnsi, bench.edit), EditOutcome::RecordMismatch);
  EXPECT_EQ(bench.edit, before);
}

TEST(MoveEntryToSingles, AnyOneFailureLeavesTheEntryOnceAndIsToldOf) {
  for (int n = 1;; ++n) {
    SCOPED_TRACE(n);
    Bench bench;
    const std::string single = kMenus + "BMENU001.BTN";
    bench.disk.Put(single, Record("Single"));
    bench.disk.FailCall(n);
    const EditOutcome outcome = MoveEntryToSingles(bench.disk, kAnsi, kMenus, bench.edit, "");
    const bool hit = bench.disk.Hit();
    bench.disk.StopFailing();
    if (!hit) {
      EXPECT_EQ(outcome, EditOutcome::Edited);
      break;
    }
    if (outcome == EditOutcome::Edited) continue;
    EXPECT_EQ(outcome, EditOutcome::Failed);
    EXPECT_TRUE(RecoverFiles(bench.disk, kMenus));
    EXPECT_EQ(bench.Bytes(), kFour);
    EXPECT_EQ(bench.disk.Get(single), Record("Single"));
  }
}

}  // namespace
}  // namespace corvelle
