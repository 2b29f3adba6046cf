#include "customize/Saving.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/FileTransaction.h"
#include "core/MenuFolder.h"
#include "customize/Draft.h"
#include "customize/MenuFolderDesk.h"
#include "sim/SimFiles.h"

namespace corvelle {
namespace {

const std::string kTemp = InMenus(kBackupFolder);

const Folder kOld = {{"BMENU001.MNU", Stored("Games", "Button") + Stored(Item("Chess"))},
                     {"BMENU002.MNU", Stored("Letters") + Stored(Item("Mail"))},
                     {"BMENU003.MNU", Stored("Hidden", "", "/h")},
                     {"BMENU001.BTN", Stored(Item("Clock"))},
                     {"BMENU002.BTN", Stored(Item("Shell"))}};

/// Letters first, with one entry more, Games as it was; and one single button.
MenuSet Tree() {
  return {{{{"Letters", "", ""}, {Item("Mail"), Item("Fax")}},
           {{"Games", "Button", ""}, {Item("Chess")}}},
          {Item("Shell")}};
}

const Folder kNew = {
    {"BMENU001.MNU", Stored("Letters") + Stored(Item("Mail")) + Stored(Item("Fax"))},
    {"BMENU002.MNU", Stored("Games", "Button") + Stored(Item("Chess"))},
    {"BMENU001.BTN", Stored(Item("Shell"))}};

MenuFiles Now(sim::SimFiles& disk) {
  const auto read = ReadMenuFiles(disk, kCodePage, kMenus);
  EXPECT_TRUE(read.HasValue());
  return read ? *read : MenuFiles{};
}

SaveResult SaveTree(sim::SimFiles& disk, const MenuSet& tree) {
  const MenusStamp read = Now(disk).Stamp;
  disk.ClearLog();
  return SaveMenus(disk, kCodePage, kMenus, tree, read);
}

/// What the program does in the folder when it starts.
void StartAgain(sim::SimFiles& disk) {
  disk.StopFailing();
  EXPECT_TRUE(RecoverFiles(disk, kMenus));
  EXPECT_TRUE(PurgeMenus(disk, kMenus));
}

/// The menus' files without what else lies there.
Folder MenusOf(const sim::SimFiles& disk) {
  Folder all = FolderOf(disk);
  std::erase_if(all, [](const auto& file) {
    return !file.first.ends_with(".MNU") && !file.first.ends_with(".BTN");
  });
  return all;
}

/// A disk before whose every call something may happen.
class VisitedFiles final : public FileSystem {
 public:
  using Visitor = std::function<void(int call, std::string_view path)>;
  VisitedFiles(sim::SimFiles& disk, Visitor visitor) : disk_(disk), visitor_(std::move(visitor)) {}

  bool FileExists(std::string_view p) override { return Visit(p).FileExists(p); }
  bool FolderExists(std::string_view p) override { return Visit(p).FolderExists(p); }
  FileResult<std::vector<FileEntry>> List(std::string_view f, std::string_view p) override {
    return Visit(f).List(f, p);
  }
  FileResult<std::uint64_t> Length(std::string_view p) override { return Visit(p).Length(p); }
  FileResult<std::string> Read(std::string_view p, std::uint64_t o, std::size_t c) override {
    return Visit(p).Read(p, o, c);
  }
  FileStatus Write(std::string_view p, std::string_view b) override { return Visit(p).Write(p, b); }
  FileStatus WriteAt(std::string_view p, std::uint64_t o, std::string_view b) override {
    return Visit(p).WriteAt(p, o, b);
  }
  FileStatus Replace(std::string_view p, std::string_view b) override {
    return Visit(p).Replace(p, b);
  }
  FileStatus ReplaceUnflushed(std::string_view p, std::string_view b) override {
    return Visit(p).ReplaceUnflushed(p, b);
  }
  FileStatus Flush(std::string_view p) override { return Visit(p).Flush(p); }
  FileStatus Remove(std::string_view p) override { return Visit(p).Remove(p); }
  FileStatus ClearAttributes(std::string_view p) override { return Visit(p).ClearAttributes(p); }
  FileStatus Rename(std::string_view a, std::string_view b) override {
    return Visit(a).Rename(a, b);
  }
  FileStatus Copy(std::string_view a, std::string_view b) override { return Visit(a).Copy(a, b); }
  FileStatus MakeFolder(std::string_view p) override { return Visit(p).MakeFolder(p); }
  std::string LongPath(std::string_view p) override { return Visit(p).LongPath(p); }
  std::string ShortPath(std::string_view p) override { return Visit(p).ShortPath(p); }

  [[nodiscard]] int Calls() const { return calls_; }

 private:
  FileSystem& Visit(std::string_view path) {
    visitor_(++calls_, path);
    return disk_;
  }

  sim::SimFiles& disk_;
  Visitor visitor_;
  int calls_ = 0;
};

constexpr const char* kFirstLine =
    "A critical error has been encountered while Corvelle is saving your changes.\r\n";
constexpr const char* kLastLine = "\r\nNow Corvelle will try to resortre your previous data.";

// ---- what is written ----

TEST(Saving, TheFilesBecomeTheTreeAndAreNumberedWithoutGaps) {
  sim::SimFiles disk;
  Folder gaps = kOld;
  gaps["BMENU007.MNU"] = gaps["BMENU002.MNU"];
  gaps.erase("BMENU002.MNU");
  PutFolder(disk, gaps);
  const SaveResult result = SaveTree(disk, Tree());
  EXPECT_EQ(result.End, SaveEnd::Saved);
  EXPECT_EQ(result.Message, "");
  EXPECT_EQ(FolderOf(disk), kNew);
  EXPECT_EQ(FolderOf(disk, kTemp), Folder());
}

TEST(Saving, TellsWhatTheFilesHoldFromThenOn) {
  sim::SimFiles disk;
  PutFolder(disk, kOld);
  MenuSet tree = Tree();
  tree.Menus[0].Items[0].FTitle = std::string(60, 't');
  const SaveResult result = SaveTree(disk, tree);
  const MenuFiles now = Now(disk);
  EXPECT_EQ(result.Now.Set, now.Set);
  EXPECT_EQ(result.Now.Stamp, now.Stamp);
  EXPECT_EQ(now.Set.Menus[0].Items[0].FTitle, std::string(50, 't'));
  // So the next save goes through.
  const SaveResult next = SaveMenus(disk, kCodePage, kMenus, {}, result.Now.Stamp);
  EXPECT_EQ(next.End, SaveEnd::Saved);
}

TEST(Saving, WithoutMenusWritesNoMenuFileAndAllOldOnesAreGone) {
  sim::SimFiles disk;
  PutFolder(disk, kOld);
  EXPECT_EQ(SaveTree(disk, {{}, {Item("Shell")}}).End, SaveEnd::Saved);
  EXPECT_EQ(FolderOf(disk), (Folder{{"BMENU001.BTN", Stored(Item("Shell"))}}));
}

TEST(Saving, WithoutSingleButtonsWritesNoneAndAllOldOnesAreGone) {
  sim::SimFiles disk;
  PutFolder(disk, kOld);
  EXPECT_EQ(SaveTree(disk, {{{{"Games", "Button", ""}, {}}}, {}}).End, SaveEnd::Saved);
  EXPECT_EQ(FolderOf(disk), (Folder{{"BMENU001.MNU", Stored("Games", "Button")}}));
}

TEST(Saving, TheThousandthMenuHasFourDigitsAndIsReadBeforeNumber101) {
  sim::SimFiles disk;
  PutFolder(disk, kOld);
  MenuSet tree;
  for (int i = 1; i <= 1001; ++i) tree.Menus.push_back({{std::to_string(i), "", ""}, {}});
  const SaveResult result = SaveTree(disk, tree);
  EXPECT_EQ(result.End, SaveEnd::Saved);
  EXPECT_EQ(FolderOf(disk).size(), 1001U);
  EXPECT_EQ(disk.Get(InMenus("BMENU999.MNU")), Stored("999"));
  EXPECT_EQ(disk.Get(InMenus("BMENU1000.MNU")), Stored("1000"));
  const MenuFiles now = Now(disk);
  EXPECT_EQ(now.Set.Menus[100].Head.FTitle, "1000");
  EXPECT_EQ(now.Set.Menus[101].Head.FTitle, "1001");
  EXPECT_EQ(now.Set.Menus[102].Head.FTitle, "101");
  EXPECT_EQ(result.Now.Set, now.Set);
  EXPECT_EQ(result.Now.Stamp, now.Stamp);
}

TEST(Saving, LongTextsAreCutAndShortOnesPadded) {
  sim::SimFiles disk;
  PutFolder(disk, kOld);
  EXPECT_EQ(SaveTree(disk, {{}, {{std::string(51, 't'), std::string(261, 'i'), "n"}}}).End,
            SaveEnd::Saved);
  EXPECT_EQ(disk.Get(InMenus("BMENU001.BTN")),
            std::string(50, 't') + std::string(260, 'i') + "n" + std::string(259, ' '));
}

// ---- the folder around ----

TEST(Saving, AReadOnlyFileIsSavedNormallyAndItsMarkIsNotPutBack) {
  sim::SimFiles disk;
  PutFolder(disk, kOld);
  disk.SetReadOnly(InMenus("BMENU001.MNU"), true);
  disk.SetHidden(InMenus("BMENU002.MNU"), true);
  disk.SetSystem(InMenus("BMENU001.BTN"), true);
  disk.SetReadOnly(InMenus("BMENU003.MNU"), true);
  EXPECT_EQ(SaveTree(disk, Tree()).End, SaveEnd::Saved);
  EXPECT_EQ(FolderOf(disk), kNew);
  const auto entries = disk.List(kMenus, "*.*");
  ASSERT_TRUE(entries.HasValue());
  for (const FileEntry& entry : *entries) {
    EXPECT_FALSE(entry.ReadOnly || entry.Hidden || entry.System) << entry.Name;
  }
}

TEST(Saving, AMissingTempIsMadeAndAFullOneIsEmptied) {
  for (const bool full : {false, true}) {
    sim::SimFiles disk;
    PutFolder(disk, kOld);
    if (full) {
      disk.Put(kTemp + "BMENU001.MNU", "stale");
      disk.Put(kTemp + "notes.txt", "x");
    }
    EXPECT_EQ(SaveTree(disk, Tree()).End, SaveEnd::Saved);
    EXPECT_EQ(disk.Count("MakeFolder"), full ? 0 : 1);
    EXPECT_TRUE(disk.FolderExists(kTemp));
    EXPECT_EQ(FolderOf(disk, kTemp), Folder());
    EXPECT_EQ(FolderOf(disk), kNew);
  }
}

TEST(Saving, AllFilesAreInTempBeforeTheFirstIsTouched) {
  sim::SimFiles disk;
  PutFolder(disk, kOld);
  const MenusStamp read = Now(disk).Stamp;
  // Up to the journal of the change.
  int calls = 0;
  {
    sim::SimFiles whole;
    PutFolder(whole, kOld);
    static_cast<void>(SaveTree(whole, Tree()));
    for (const auto& call : whole.Log()) {
      ++calls;
      if (call.Operation == "Replace" && call.Path == InMenus(kJournalFileName)) break;
    }
  }
  disk.FailFrom(calls);
  EXPECT_EQ(SaveMenus(disk, kCodePage, kMenus, Tree(), read).End, SaveEnd::Recovered);
  EXPECT_TRUE(disk.Hit());
  disk.StopFailing();
  EXPECT_EQ(FolderOf(disk, kTemp), kOld);
  EXPECT_EQ(MenusOf(disk), kOld);
}

TEST(Saving, GoesOnWithoutABackupWhereNoneCanBeMade) {
  sim::SimFiles disk;
  PutFolder(disk, kOld);
  disk.Put(InMenus("Temp"), "a file where the folder should be");
  EXPECT_EQ(SaveTree(disk, Tree()).End, SaveEnd::Saved);
  EXPECT_EQ(MenusOf(disk), kNew);
}

TEST(Saving, ATreeThatIsWhatTheFilesHoldWritesNoMenuFile) {
  sim::SimFiles disk;
  PutFolder(disk, kOld);
  EXPECT_EQ(SaveTree(disk, Now(disk).Set).End, SaveEnd::Saved);
  for (const auto& call : disk.Log()) {
    EXPECT_FALSE(call.Operation == "Replace" && call.Path.ends_with(".MNU")) << call.Path;
  }
  EXPECT_EQ(FolderOf(disk), kOld);
}

TEST(Saving, NamesInSmallLettersAreTheSameFiles) {
  sim::SimFiles disk;
  PutFolder(disk, {{"bmenu001.mnu", Stored("a")}, {"Bmenu002.mnu", Stored("b")}});
  EXPECT_EQ(SaveTree(disk, {{{{"c", "", ""}, {}}}, {}}).End, SaveEnd::Saved);
  EXPECT_EQ(disk.Names("C:\\Corvelle\\Menus").size(), 2U);  // the menu and Temp
  EXPECT_EQ(disk.Get(InMenus("BMENU001.MNU")), Stored("c"));
}

// ---- errors ----

TEST(SavingError, WhileTheThirdFileIsWrittenTellsTheUserAndLeavesTheOldFiles) {
  sim::SimFiles disk;
  PutFolder(disk, kOld);
  const MenusStamp read = Now(disk).Stamp;
  int calls = 0;
  {
    sim::SimFiles whole;
    PutFolder(whole, kOld);
    static_cast<void>(SaveTree(whole, Tree()));
    int written = 0;
    for (const auto& call : whole.Log()) {
      ++calls;
      const bool button = call.Path.ends_with(".MNU") || call.Path.ends_with(".BTN");
      if (call.Operation == "Replace" && button && ++written == 3) break;
    }
    ASSERT_EQ(written, 3);
  }
  disk.FailCall(calls, FileError::DiskFull);
  const SaveResult result = SaveMenus(disk, kCodePage, kMenus, Tree(), read);
  ASSERT_TRUE(disk.Hit());
  EXPECT_EQ(result.End, SaveEnd::Recovered);
  EXPECT_EQ(result.Message, std::string(kFirstLine) + "Error: 61 - Disk full" + kLastLine);
  EXPECT_EQ(MenusOf(disk), kOld);
  EXPECT_FALSE(disk.Has(InMenus(kJournalFileName)));
  // The copy stays until the next save, the tree as a draft.
  EXPECT_EQ(FolderOf(disk, kTemp), kOld);
  EXPECT_TRUE(result.Kept);
  EXPECT_EQ(OfferDraft(disk, kMenus, Now(disk)), Tree());
}

TEST(SavingError, OfAHeldFileSaysSoAndChangesNothing) {
  for (const auto hold : {sim::SimFiles::Hold::ForReading, sim::SimFiles::Hold::Exclusively}) {
    sim::SimFiles disk;
    PutFolder(disk, kOld);
    const MenusStamp read = Now(disk).Stamp;
    disk.HoldOpen(InMenus("BMENU003.MNU"), hold);
    const SaveResult result = SaveMenus(disk, kCodePage, kMenus, Tree(), read);
    EXPECT_EQ(result.End, SaveEnd::Recovered);
    EXPECT_EQ(result.Message,
              std::string(kFirstLine) + "Error: 70 - Permission denied" + kLastLine);
    disk.LetGo(InMenus("BMENU003.MNU"));
    EXPECT_EQ(MenusOf(disk), kOld);
    StartAgain(disk);
    EXPECT_EQ(MenusOf(disk), kOld);
    EXPECT_EQ(OfferDraft(disk, kMenus, Now(disk)), Tree());
  }
}

TEST(SavingError, OfAFullDiskLosesNeitherTheFilesNorTheTree) {
  bool saved = false;
  bool kept = false;
  std::uint64_t room = 0;
  for (; !saved; room += 200) {
    ASSERT_LT(room, 100'000U);
    sim::SimFiles disk;
    PutFolder(disk, kOld);
    const MenusStamp read = Now(disk).Stamp;
    disk.FillDisk(room);
    const SaveResult result = SaveMenus(disk, kCodePage, kMenus, Tree(), read);
    saved = result.End == SaveEnd::Saved;
    if (!saved) {
      EXPECT_EQ(result.Message, std::string(kFirstLine) + "Error: 61 - Disk full" + kLastLine);
    }
    EXPECT_TRUE(MenusOf(disk) == (saved ? kNew : kOld)) << room;
    disk.FreeDisk();
    StartAgain(disk);
    EXPECT_TRUE(MenusOf(disk) == (saved ? kNew : kOld)) << room;
    EXPECT_EQ(OfferDraft(disk, kMenus, Now(disk)).has_value(), !saved && result.Kept) << room;
    // Once there is room for the draft, it is never lost to the copies.
    if (!saved) {
      EXPECT_TRUE(result.Kept || !kept) << room;
      kept = result.Kept;
    }
  }
  EXPECT_TRUE(kept);
}

// The second file cannot be written, and the first not be put back at once.
TEST(SavingError, WhatCannotBePutBackIsTriedAgain) {
  sim::SimFiles disk;
  PutFolder(disk, kOld);
  const MenusStamp read = Now(disk).Stamp;
  int outage = 0;
  bool noted = false;
  VisitedFiles files(disk, [&](int call, std::string_view path) {
    // Journal and first file are written then; the second file comes.
    const bool second = path == InMenus("BMENU002.MNU");
    noted = noted || disk.Has(InMenus(kJournalFileName));
    if (outage == 0 && noted && second) {
      outage = call;
      disk.FailFrom(1);
    }
    if (outage > 0 && call == outage + 2) disk.StopFailing();
  });
  EXPECT_EQ(SaveMenus(files, kCodePage, kMenus, Tree(), read).End, SaveEnd::Recovered);
  EXPECT_TRUE(MenusOf(disk) == kOld);
  EXPECT_FALSE(disk.Has(InMenus(kJournalFileName)));
}

// Two files more, a journal of what little changes and the draft: less than the copies of all.
TEST(SavingError, OfADiskTooFullForTheCopiesDoesNotStopTheSave) {
  sim::SimFiles disk;
  PutFolder(disk, kOld);
  MenuFiles now = Now(disk);
  now.Set.Singles.push_back(Item("New"));
  now.Set.Singles.push_back(Item("Newer"));
  disk.FillDisk(3500);
  EXPECT_EQ(SaveMenus(disk, kCodePage, kMenus, now.Set, now.Stamp).End, SaveEnd::Saved);
  EXPECT_EQ(MenusOf(disk).size(), kOld.size() + 2);
  EXPECT_TRUE(FolderOf(disk, kTemp).empty());
}

TEST(SavingError, OfAMissingFolderIsTold) {
  sim::SimFiles disk;
  const SaveResult result = SaveMenus(disk, kCodePage, kMenus, Tree(), {});
  EXPECT_EQ(result.End, SaveEnd::Recovered);
  EXPECT_EQ(result.Message, std::string(kFirstLine) + "Error: 76 - Path not found" + kLastLine);
  EXPECT_FALSE(result.Kept);
}

TEST(SavingError, OfMoreThanNumbersReachChangesNothing) {
  MenuSet menus;
  menus.Menus.resize(kMaxRecords + 1U);
  MenuSet items;
  items.Menus.resize(1);
  items.Menus[0].Items.resize(kMaxRecords);
  MenuSet singles;
  singles.Singles.resize(kMaxRecords + 1U);
  for (const MenuSet* tree : {&menus, &items, &singles}) {
    sim::SimFiles disk;
    PutFolder(disk, kOld);
    const SaveResult result = SaveTree(disk, *tree);
    EXPECT_EQ(result.End, SaveEnd::Recovered);
    EXPECT_EQ(result.Message, std::string(kFirstLine) + "Error: 6 - Overflow" + kLastLine);
    EXPECT_EQ(MenusOf(disk), kOld);
    EXPECT_EQ(OfferDraft(disk, kMenus, Now(disk)), *tree);
  }
}

// Neither the files nor the journal that waits to put them back are the copies' to change.
TEST(SavingError, AStaleCopyInTempIsNeverPutBack) {
  sim::SimFiles disk;
  PutFolder(disk, kOld);
  disk.Put(kTemp + "BMENU009.MNU", "stale");
  disk.HoldOpen(kTemp + "BMENU009.MNU", sim::SimFiles::Hold::ForReading);
  disk.HoldOpen(InMenus("BMENU003.MNU"), sim::SimFiles::Hold::ForReading);
  EXPECT_EQ(SaveTree(disk, Tree()).End, SaveEnd::Recovered);
  EXPECT_EQ(MenusOf(disk), kOld);
}

// ---- ends and failures at any moment ----

/// Saves with the n-th call, or all from it on, failing; false once there is no such call.
bool SaveWithFault(sim::SimFiles& disk, const MenuSet& tree, int n, bool ends, FileError error,
                   SaveResult& result) {
  const MenusStamp read = Now(disk).Stamp;
  if (ends) {
    disk.FailFrom(n, error);
  } else {
    disk.FailCall(n, error);
  }
  result = SaveMenus(disk, kCodePage, kMenus, tree, read);
  const bool hit = disk.Hit();
  disk.StopFailing();
  return hit;
}

TEST(Saving, AfterAnEndAtAnyCallTheNextStartFindsTheOldMenusOrTheNew) {
  bool oldSeen = false;
  bool draftSeen = false;
  for (int n = 1;; ++n) {
    sim::SimFiles disk;
    PutFolder(disk, kOld);
    disk.Put(kTemp + "BMENU001.MNU", "stale");
    SaveResult result;
    const bool hit = SaveWithFault(disk, Tree(), n, true, FileError::DiskFull, result);
    StartAgain(disk);
    const Folder now = MenusOf(disk);
    EXPECT_TRUE(now == kOld || now == kNew) << "ended before call " << n;
    EXPECT_EQ(now == kNew, result.End == SaveEnd::Saved) << "ended before call " << n;
    // What was not saved is there to be shown, once it has been written.
    const auto draft = OfferDraft(disk, kMenus, Now(disk));
    EXPECT_TRUE(!draft || (now == kOld && *draft == Tree())) << "ended before call " << n;
    EXPECT_TRUE(!draftSeen || draft || now == kNew) << "ended before call " << n;
    draftSeen = draft.has_value();
    oldSeen = oldSeen || now == kOld;
    // And can be saved from there.
    EXPECT_EQ(SaveTree(disk, Tree()).End, SaveEnd::Saved) << "ended before call " << n;
    EXPECT_TRUE(FolderOf(disk) == kNew) << "ended before call " << n;
    EXPECT_EQ(FolderOf(disk, kTemp), Folder()) << "ended before call " << n;
    if (!hit) break;
    ASSERT_LT(n, 200);
  }
  EXPECT_TRUE(oldSeen);
}

TEST(Saving, AnyOneFailureSavesAllOrNothingAndKeepsTheTree) {
  for (const FileError error : {FileError::DiskFull, FileError::AccessDenied}) {
    bool recovered = false;
    for (int n = 1;; ++n) {
      sim::SimFiles disk;
      PutFolder(disk, kOld);
      SaveResult result;
      const bool hit = SaveWithFault(disk, Tree(), n, false, error, result);
      const bool saved = result.End == SaveEnd::Saved;
      EXPECT_TRUE(MenusOf(disk) == (saved ? kNew : kOld)) << "failing call " << n;
      recovered = recovered || result.End == SaveEnd::Recovered;
      if (result.End == SaveEnd::Recovered) {
        EXPECT_TRUE(result.Kept) << "failing call " << n;
        EXPECT_TRUE(result.Message.starts_with(kFirstLine)) << "failing call " << n;
        EXPECT_EQ(OfferDraft(disk, kMenus, Now(disk)), Tree()) << "failing call " << n;
      }
      if (saved) {
        EXPECT_FALSE(OfferDraft(disk, kMenus, Now(disk))) << "failing call " << n;
      }
      StartAgain(disk);
      EXPECT_TRUE(MenusOf(disk) == (saved ? kNew : kOld)) << "failing call " << n;
      if (!hit) break;
      ASSERT_LT(n, 200);
    }
    EXPECT_TRUE(recovered);
  }
}

// The machine stops once more while the next start puts the files back.
TEST(Saving, AnEndDuringTheRecoveryAsWellLosesNothing) {
  for (int n = 1;; ++n) {
    bool hit = false;
    for (int m = 1;; ++m) {
      sim::SimFiles disk;
      PutFolder(disk, kOld);
      SaveResult result;
      hit = SaveWithFault(disk, Tree(), n, true, FileError::Failed, result);
      bool hitAgain = false;
      if (disk.Has(InMenus(kJournalFileName))) {
        disk.FailFrom(m);
        static_cast<void>(RecoverFiles(disk, kMenus));
        hitAgain = disk.Hit();
      }
      StartAgain(disk);
      const Folder now = MenusOf(disk);
      EXPECT_TRUE(now == kOld || now == kNew) << n << " and " << m;
      if (!hitAgain) break;
      ASSERT_LT(m, 100);
    }
    if (!hit) break;
    ASSERT_LT(n, 200);
  }
}

// ---- edits by others ----

TEST(SavingConflict, FilesChangedSinceTheyWereReadAreNotTouched) {
  sim::SimFiles disk;
  PutFolder(disk, kOld);
  const MenusStamp read = Now(disk).Stamp;
  Folder theirs = kOld;
  theirs["BMENU002.MNU"] += Stored(Item("Phone"));
  PutFolder(disk, theirs);
  disk.SetReadOnly(InMenus("BMENU001.MNU"), true);
  const int before = disk.Changes();
  const SaveResult result = SaveMenus(disk, kCodePage, kMenus, Tree(), read);
  EXPECT_EQ(result.End, SaveEnd::Conflict);
  EXPECT_EQ(disk.Changes(), before);
  EXPECT_EQ(result.Now.Set, Now(disk).Set);
  EXPECT_EQ(result.Now.Stamp, Now(disk).Stamp);
}

TEST(SavingConflict, IsOverriddenByTheStampThatItToldAndTheOtherVersionIsKept) {
  sim::SimFiles disk;
  PutFolder(disk, kOld);
  const MenusStamp read = Now(disk).Stamp;
  disk.Put(InMenus("BMENU004.MNU"), Stored("Theirs"));
  const SaveResult conflict = SaveMenus(disk, kCodePage, kMenus, Tree(), read);
  ASSERT_EQ(conflict.End, SaveEnd::Conflict);
  const SaveResult forced =
      SaveMenus(disk, kCodePage, kMenus, Tree(), conflict.Now.Stamp, {.After = {conflict.Now.Set}});
  EXPECT_EQ(forced.End, SaveEnd::Saved);
  EXPECT_TRUE(forced.Kept);
  EXPECT_EQ(MenusOf(disk), kNew);
  EXPECT_EQ(OfferDraft(disk, kMenus, Now(disk)), conflict.Now.Set);
}

// While the copies are made there is time for it.
TEST(SavingConflict, IsNoticedUpToTheCopiesEnd) {
  int conflicts = 0;
  for (int n = 1;; ++n) {
    sim::SimFiles disk;
    PutFolder(disk, kOld);
    const MenusStamp read = Now(disk).Stamp;
    VisitedFiles files(disk, [&](int call, std::string_view) {
      if (call == n) disk.Put(InMenus("BMENU002.MNU"), Stored("Theirs"));
    });
    const SaveResult result = SaveMenus(files, kCodePage, kMenus, Tree(), read);
    if (files.Calls() < n || result.End != SaveEnd::Conflict) {
      EXPECT_EQ(result.End, SaveEnd::Saved);
      break;
    }
    ++conflicts;
    EXPECT_EQ(disk.Get(InMenus("BMENU002.MNU")), Stored("Theirs"));
    EXPECT_EQ(result.Now.Set.Menus[1].Head.FTitle, "Theirs");
    EXPECT_EQ(FolderOf(disk, kTemp), Folder());
  }
  // The folder is read twice, with draft and copies between.
  EXPECT_GT(conflicts, 20);
}

TEST(SavingConflict, WhatAnEarlierRunLeftHalfDoneIsSettledFirst) {
  sim::SimFiles disk;
  PutFolder(disk, kOld);
  const MenusStamp read = Now(disk).Stamp;
  FileTransaction cut(disk, kMenus);
  cut.Write(InMenus("BMENU001.MNU"), "x");
  cut.Write(InMenus("BMENU002.MNU"), "y");
  disk.FailFrom(6);
  ASSERT_FALSE(cut.Commit());
  disk.StopFailing();
  ASSERT_EQ(disk.Get(InMenus("BMENU001.MNU")), "x");
  EXPECT_EQ(SaveMenus(disk, kCodePage, kMenus, Tree(), read).End, SaveEnd::Saved);
  EXPECT_EQ(FolderOf(disk), kNew);
}

}  // namespace
}  // namespace corvelle
