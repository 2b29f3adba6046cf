#include "core/EntryCommands.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "core/CoreDoubles.h"
#include "core/CoreTexts.h"
#include "core/MenuFile.h"
#include "core/NotedEdits.h"
#include "core/Program.h"
#include "sim/World.h"

namespace corvelle {
namespace {

constexpr char kMismatch[] = "Cannot delete/cut this item. Record mismatch.";
constexpr char kSingle[] = "C:\\Corvelle\\Menus\\BMENU002.BTN";
constexpr char kButtonQuestion[] =
    "If you delete a button, you cannot Undo Delete. Do you want to continue ?";

class EntryCommandsTest : public testing::Test {
 protected:
  EntryCommandsTest() {
    program.Paths.MenusPath = "C:\\Corvelle\\Menus\\";
    program.Ports.Toolbar = &toolbar;
    program.Ports.SingleButtons = &singles;
    world.Files.MakeFolders("C:\\Corvelle\\Menus");
    Write({{"Button", "", ""}, {"One", "i1", "c1"}, {"Two", "i2", "c2"}, {"Three", "i3", "c3"}});
    program.Entry.CurMenuTag = "F1";
    program.Entry.CurFile = kFile;
  }

  void Write(const std::vector<MenuRecord>& records) {
    std::string bytes;
    for (const MenuRecord& record : records) bytes += FormatRecord(record, world.Ansi);
    world.Files.Put(kFile, bytes);
  }
  void PointAt(int record, std::string title, std::string icon, std::string command) {
    program.Entry.CurRecord = record;
    program.Entry.CurTitle = std::move(title);
    program.Entry.CurIcon = std::move(icon);
    program.Entry.CurCommand = std::move(command);
  }
  void PointAtWholeButton() {
    program.Entry.CurMenuTag = "B1";
    PointAt(1, "Button", "", "");
  }
  std::string Titles() {
    std::string all;
    const std::string bytes = world.Files.Get(kFile).value_or("");
    for (std::size_t at = 0; at < bytes.size(); at += kRecordLength) {
      all += ParseRecord(std::string_view(bytes).substr(at), world.Ansi).FTitle + " ";
    }
    return all;
  }

  sim::World world;
  CallLog log;
  LoggingToolbar toolbar{log};
  LoggingSingles singles{log};
  Program program{world.Services(), world.Windows()};
};

TEST_F(EntryCommandsTest, DeletingAnItemRewritesTheFileAndRefreshesItsMenu) {
  PointAt(3, "TWO", "I2", "C2");
  program.Commands.DeleteItem(false);
  EXPECT_EQ(Titles(), "Button One Three ");
  EXPECT_EQ(log, (CallLog{"RefreshMenu F1"}));
  EXPECT_TRUE(world.Desktop.Boxes().empty());
}

TEST_F(EntryCommandsTest, AnItemThatIsNoLongerThereIsRefusedAndTheFileStays) {
  PointAt(3, "Two", "i2", "other");
  world.Desktop.Answer(kMismatch, forms::msgbox::AnswerOk);
  program.Commands.DeleteItem(true);
  EXPECT_EQ(Titles(), "Button One Two Three ");
  ASSERT_EQ(world.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(world.Desktop.Boxes()[0].Flags, 0x40040U);
  EXPECT_TRUE(log.empty());
}

TEST_F(EntryCommandsTest, DuringADragAMismatchIsSilent) {
  PointAt(3, "Two", "i2", "other");
  program.Entry.ItemDragging = true;
  program.Commands.DeleteItem(false);
  EXPECT_EQ(Titles(), "Button One Two Three ");
  EXPECT_TRUE(world.Desktop.Boxes().empty());
}

TEST_F(EntryCommandsTest, TheEndOfADragOnlyDropsTheBuiltMenu) {
  PointAt(2, "One", "i1", "c1");
  program.Entry.ItemDragging = true;
  program.Commands.DeleteItem(false);
  EXPECT_EQ(Titles(), "Button Two Three ");
  EXPECT_EQ(log, (CallLog{"RemoveQMenu F1"}));
}

TEST_F(EntryCommandsTest, AGeneratedEntryCannotBeMovedAway) {
  PointAt(5001, "x", "y", "z");
  program.Entry.ItemDragging = true;
  program.Commands.DeleteItem(false);
  EXPECT_EQ(Titles(), "Button One Two Three ");
  EXPECT_TRUE(log.empty());
}

TEST_F(EntryCommandsTest, DeletingAWholeButtonAsksFirstAndNoKeepsIt) {
  PointAtWholeButton();
  world.Desktop.Answer(kButtonQuestion, forms::msgbox::AnswerNo);
  program.Commands.DeleteItem(false);
  EXPECT_TRUE(world.Files.Has(kFile));
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(world.Desktop.Boxes()[0].Flags, 4U + 0x40000U);
}

TEST_F(EntryCommandsTest, WhatBecomesCurrentWhileTheQuestionIsUpIsNotDeletedInstead) {
  PointAtWholeButton();
  const std::string other = "C:\\Corvelle\\Menus\\BMENU002.MNU";
  world.Files.Put(other, FormatRecord({"Other", "", ""}, world.Ansi));
  world.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) {
    program.Entry.CurMenuTag = "B2";
    program.Entry.CurFile = other;
  });
  world.Desktop.Answer(kButtonQuestion, forms::msgbox::AnswerYes);
  EXPECT_EQ(program.Commands.DeleteItem(false), EditOutcome::Edited);
  EXPECT_TRUE(world.Files.Has(other));
  EXPECT_FALSE(world.Files.Has(kFile));
}

TEST_F(EntryCommandsTest, AButtonThatAnotherProgramPutsThereWhileTheQuestionIsUpStays) {
  PointAtWholeButton();
  world.Desktop.WhileBoxIsUp([&](const sim::MessageBox& box) {
    if (box.Text == kButtonQuestion) Write({{"Newer", "", ""}, {"Only", "i", "c"}});
  });
  world.Desktop.Answer(kButtonQuestion, forms::msgbox::AnswerYes);
  world.Desktop.Answer(kMismatch, forms::msgbox::AnswerOk);
  EXPECT_EQ(program.Commands.DeleteItem(false), EditOutcome::RecordMismatch);
  EXPECT_EQ(Titles(), "Newer Only ");
  EXPECT_EQ(world.Desktop.Boxes().size(), 2U);
  // The strip shows from now on what is there.
  EXPECT_EQ(log, (CallLog{"ResetCollections", "DoToolbarButtons", "resize, free 1230"}));
}

TEST_F(EntryCommandsTest, AProgramThatEndsWhileTheQuestionIsUpDeletesNothing) {
  toolbar.LoadWindow();
  log.clear();
  PointAtWholeButton();
  world.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) { toolbar.UnloadWindow(); });
  world.Desktop.Answer(kButtonQuestion, forms::msgbox::AnswerYes);
  EXPECT_EQ(program.Commands.DeleteItem(false), EditOutcome::NothingToDo);
  EXPECT_TRUE(world.Files.Has(kFile));
  EXPECT_TRUE(log.empty());
}

TEST_F(EntryCommandsTest, WhatIsAskedAndToldBelongsToTheStrip) {
  toolbar.LoadWindow();
  PointAtWholeButton();
  world.Desktop.Answer(kButtonQuestion, forms::msgbox::AnswerNo);
  program.Commands.DeleteItem(false);
  program.Entry.CurMenuTag = "F1";
  PointAt(3, "Two", "i2", "other");
  world.Desktop.Answer(kMismatch, forms::msgbox::AnswerOk);
  program.Commands.DeleteItem(false);
  ASSERT_EQ(world.Desktop.Boxes().size(), 2U);
  for (const sim::MessageBox& box : world.Desktop.Boxes()) {
    EXPECT_EQ(box.Owner, toolbar.WindowHandle()) << box.Text;
  }
}

TEST_F(EntryCommandsTest, DeletingAWholeButtonRebuildsAndResizesTheStrip) {
  PointAtWholeButton();
  world.Desktop.Answer(kButtonQuestion, forms::msgbox::AnswerYes);
  program.Commands.DeleteItem(false);
  EXPECT_FALSE(world.Files.Has(kFile));
  EXPECT_EQ(log, (CallLog{"ResetCollections", "DoToolbarButtons", "resize, free 1230"}));
}

TEST_F(EntryCommandsTest, SkippingTheConfirmationAsksNothing) {
  PointAtWholeButton();
  program.Commands.DeleteItem(true);
  EXPECT_FALSE(world.Files.Has(kFile));
}

TEST_F(EntryCommandsTest, NothingIsDeletedFromTheMainMenuOrTheBareStrip) {
  for (const char* tag : {"Q1", "Toolbar", ""}) {
    program.Entry.CurMenuTag = tag;
    PointAt(2, "One", "i1", "c1");
    program.Commands.DeleteItem(false);
    EXPECT_EQ(Titles(), "Button One Two Three ") << tag;
  }
  EXPECT_TRUE(log.empty());
}

TEST_F(EntryCommandsTest, ASingleButtonIsDeletedByItsRow) {
  program.Entry.CurMenuTag = "SingleButtons";
  program.Entry.CurFile = kSingle;
  world.Files.Put(kSingle, FormatRecord({"One", "i1", "c1"}, world.Ansi));
  PointAt(1, "One", "I1", "c1");
  program.Commands.DeleteItem(false);
  EXPECT_EQ(log, (CallLog{"delete single C:\\Corvelle\\Menus\\BMENU002.BTN", "DoSingleButtons",
                          "resize, free 1230"}));
}

TEST_F(EntryCommandsTest, ASingleButtonThatAnotherProgramHasChangedStaysAndIsReadAnew) {
  const MenuRecord others[] = {{"Other", "i1", "c1"}, {"One", "other", "c1"}, {"One", "i1", "o"}};
  for (const bool dragged : {false, true}) {
    for (const MenuRecord& other : others) {
      program.Entry.CurMenuTag = "SingleButtons";
      program.Entry.CurFile = kSingle;
      program.Entry.ItemDragging = dragged;
      world.Files.Put(kSingle, FormatRecord(other, world.Ansi));
      PointAt(1, "One", "i1", "c1");
      if (!dragged) world.Desktop.Answer(kMismatch, forms::msgbox::AnswerOk);
      log.clear();
      EXPECT_EQ(program.Commands.DeleteItem(true), EditOutcome::RecordMismatch);
      EXPECT_EQ(log, (CallLog{"DoSingleButtons", "resize, free 1230"}));
    }
  }
  // A drag stays silent.
  EXPECT_EQ(world.Desktop.Boxes().size(), 3U);
}

TEST_F(EntryCommandsTest, ASingleButtonWhoseFileIsGoneIsNoneToDelete) {
  program.Entry.CurMenuTag = "SingleButtons";
  program.Entry.CurFile = kSingle;
  PointAt(1, "One", "i1", "c1");
  world.Desktop.Answer(kMismatch, forms::msgbox::AnswerOk);
  EXPECT_EQ(program.Commands.DeleteItem(true), EditOutcome::RecordMismatch);
  EXPECT_EQ(log, (CallLog{"DoSingleButtons", "resize, free 1230"}));
  EXPECT_FALSE(world.Files.Has(kSingle));
}

TEST_F(EntryCommandsTest, PastingPutsTheClipboardBeforeTheItemAndEndsTheUndo) {
  PointAt(3, "Two", "i2", "c2");
  program.Entry.ClipTitle = "New";
  program.Entry.UndoMenuTag = "F1";
  program.Commands.PasteItem();
  EXPECT_EQ(Titles(), "Button One New Two Three ");
  EXPECT_EQ(program.Entry.UndoMenuTag, "");
  EXPECT_EQ(log, (CallLog{"RefreshMenu F1"}));
}

TEST_F(EntryCommandsTest, PastingOnAGeneratedEntryGoesBeforeItsFolderItem) {
  PointAt(5003, "x", "y", "z");
  program.Entry.ClipTitle = "New";
  program.Commands.PasteItem();
  EXPECT_EQ(Titles(), "Button One New Two Three ");
}

TEST_F(EntryCommandsTest, PastingPastTheEndInsertsNothing) {
  PointAt(5, "", "", "");
  program.Entry.ClipTitle = "New";
  program.Commands.PasteItem();
  EXPECT_EQ(Titles(), "Button One Two Three ");
}

TEST_F(EntryCommandsTest, PastingDuringADragLeavesTheMenuOnTheScreenAlone) {
  PointAt(2, "One", "i1", "c1");
  program.Entry.ClipTitle = "New";
  program.Entry.ItemDragging = true;
  program.Commands.PasteItem();
  EXPECT_EQ(Titles(), "Button New One Two Three ");
  EXPECT_EQ(log, (CallLog{"RemoveQMenu F1"}));
}

TEST_F(EntryCommandsTest, DeletingTheLastItemAndUndoingRestoresItAtTheEnd) {
  PointAt(4, "Three", "i3", "c3");
  RememberForUndo(program.Entry);
  program.Commands.DeleteItem(false);
  EXPECT_EQ(Titles(), "Button One Two ");
  program.Commands.UndoDeleteItem();
  EXPECT_EQ(Titles(), "Button One Two Three ");
  EXPECT_EQ(program.Entry.UndoMenuTag, "");
  EXPECT_EQ(log, (CallLog{"RefreshMenu F1", "RefreshMenu F1"}));
}

TEST_F(EntryCommandsTest, AnUndoThatTheDiskRefusesCanBeTriedAgain) {
  PointAt(4, "Three", "i3", "c3");
  RememberForUndo(program.Entry);
  program.Commands.DeleteItem(false);
  world.Files.FillDisk(0);
  program.Commands.UndoDeleteItem();
  EXPECT_EQ(Titles(), "Button One Two ");
  world.Files.FreeDisk();
  program.Commands.UndoDeleteItem();
  EXPECT_EQ(Titles(), "Button One Two Three ");
}

TEST_F(EntryCommandsTest, UndoingASingleButtonGoesToItsRow) {
  program.Entry.UndoMenuTag = "SingleButtons";
  program.Entry.UndoFile = "C:\\Corvelle\\Menus\\BMENU004.BTN";
  program.Commands.UndoDeleteItem();
  EXPECT_EQ(log, (CallLog{"undo single C:\\Corvelle\\Menus\\BMENU004.BTN", "DoSingleButtons",
                          "resize, free 1230", "RefreshMenu SingleButtons"}));
  EXPECT_EQ(program.Entry.UndoMenuTag, "");
}

TEST_F(EntryCommandsTest, ARowThatTheDiskRefusesIsReadAnewAndTheUndoCanBeTriedAgain) {
  program.Entry.CurMenuTag = "SingleButtons";
  program.Entry.UndoMenuTag = "SingleButtons";
  program.Entry.UndoFile = "two.btn";
  singles.Answer = FileError::DiskFull;
  const EditOutcome outcome = program.Commands.UndoDeleteItem();
  EXPECT_EQ(outcome, EditOutcome::Failed);
  EXPECT_EQ(outcome.Reason(), FileError::DiskFull);
  EXPECT_EQ(log, (CallLog{"undo single two.btn", "DoSingleButtons", "resize, free 1230"}));
  EXPECT_EQ(program.Entry.UndoMenuTag, "SingleButtons");
  program.Entry.CurFile = kSingle;
  world.Files.Put(kSingle, FormatRecord({"One", "i1", "c1"}, world.Ansi));
  PointAt(1, "One", "i1", "c1");
  EXPECT_EQ(program.Commands.DeleteItem(false).Reason(), FileError::DiskFull);
  EXPECT_EQ(program.Commands.PasteItem().Reason(), FileError::DiskFull);
}

TEST_F(EntryCommandsTest, AnyOneFailureWhileDeletingLeavesTheOldFileOrTheNew) {
  const std::string old = Titles();
  for (int n = 1; n < 100; ++n) {
    Write({{"Button", "", ""}, {"One", "i1", "c1"}, {"Two", "i2", "c2"}, {"Three", "i3", "c3"}});
    PointAt(3, "Two", "i2", "c2");
    world.Desktop.AnswerAnyOther(forms::msgbox::AnswerOk);
    world.Files.FailCall(n, FileError::DiskFull);
    program.Commands.DeleteItem(false);
    const bool hit = world.Files.Hit();
    world.Files.StopFailing();
    const std::string now = Titles();
    EXPECT_TRUE(now == old || now == "Button One Three ") << "failing call " << n << ": " << now;
    if (!hit) return;
  }
  FAIL() << "the fault never stopped hitting";
}

// ---- who is told of an edit ----

struct Command {
  const char* name;
  std::function<void(Program&)> run;
  std::string expected;  // the titles then
};

TEST_F(EntryCommandsTest, EachEditIsToldOnceAndWhenTheFileIsWritten) {
  const std::string second = "C:\\Corvelle\\Menus\\BMENU002.MNU";
  const auto clip = [](Program& p) { SetClipboard(p.Entry, {"Clip", "i", "c"}); };
  const Command commands[] = {
      {"delete", [](Program& p) { p.Commands.DeleteItem(true); }, "Button One Three "},
      {"paste",
       [&](Program& p) {
         clip(p);
         p.Commands.PasteItem();
       },
       "Button One Clip Two Three "},
      {"undo",
       [](Program& p) {
         RememberForUndo(p.Entry);
         p.Commands.UndoDeleteItem();
       },
       "Button One Two Two Three "},
      {"move within a menu", [](Program& p) { p.Commands.DropItem("F1", {.File = kFile}, false); },
       "Button One Three Two "},
      {"move to another menu",
       [&](Program& p) { p.Commands.DropItem("F2", {.File = second}, false); },
       "Button One Three "},
      {"copy", [](Program& p) { p.Commands.DropItem("F1", {.File = kFile, .Before = 2}, true); },
       "Button Two One Two Three "},
      {"delete a whole button",
       [](Program& p) {
         p.Entry.CurMenuTag = "B1";
         p.Entry.CurRecord = 1;
         p.Entry.CurTitle = "Button";
         p.Entry.CurIcon.clear();
         p.Entry.CurCommand.clear();
         p.Commands.DeleteItem(true);
       },
       ""},
  };
  for (const Command& command : commands) {
    Write({{"Button", "", ""}, {"One", "i1", "c1"}, {"Two", "i2", "c2"}, {"Three", "i3", "c3"}});
    world.Files.Put(second, FormatRecord({"Other", "", ""}, world.Ansi));
    program.Entry = {};
    program.Entry.CurMenuTag = "F1";
    program.Entry.CurFile = kFile;
    PointAt(3, "Two", "i2", "c2");
    NotedEdits edits([this] { return Titles(); });
    program.Ports.MenuEdits = &edits;
    log.clear();
    command.run(program);
    EXPECT_EQ(edits.Seen, CallLog{command.expected}) << command.name;
    EXPECT_EQ(Titles(), command.expected) << command.name;
    program.Ports.MenuEdits = nullptr;
  }
}

TEST_F(EntryCommandsTest, TheToldOneComesBeforeWhatIsShown) {
  PointAt(3, "Two", "i2", "c2");
  NotedEdits edits([this] { return std::to_string(log.size()); });
  program.Ports.MenuEdits = &edits;
  program.Commands.DeleteItem(true);
  EXPECT_EQ(edits.Seen, CallLog{"0"});
  EXPECT_EQ(log.size(), 1U);
}

TEST_F(EntryCommandsTest, WhatChangedNothingIsNotTold) {
  NotedEdits edits([this] { return Titles(); });
  program.Ports.MenuEdits = &edits;
  PointAt(3, "Two", "i2", "other");
  world.Desktop.Answer(kMismatch, forms::msgbox::AnswerOk);
  program.Commands.DeleteItem(true);
  PointAt(3, "Two", "i2", "c2");
  program.Commands.DropItem("F1", {.File = kFile, .Before = 3}, false);
  world.Files.HoldOpen(kFile, sim::SimFiles::Hold::ForReading);
  program.Commands.DeleteItem(true);
  program.Commands.PasteItem();
  program.Commands.DropItem("F1", {.File = kFile}, false);
  EXPECT_TRUE(edits.Seen.empty());
  EXPECT_EQ(Titles(), "Button One Two Three ");
}

TEST_F(EntryCommandsTest, AnEditOfTheRowOfSingleButtonsIsToldUnlessTheDiskRefused) {
  NotedEdits edits([] { return std::string("row"); });
  program.Ports.MenuEdits = &edits;
  program.Entry.CurMenuTag = "SingleButtons";
  program.Entry.CurFile = kSingle;
  world.Files.Put(kSingle, FormatRecord({"One", "i1", "c1"}, world.Ansi));
  PointAt(1, "One", "i1", "c1");
  program.Commands.DeleteItem(true);
  program.Commands.PasteItem();
  program.Entry.UndoMenuTag = "SingleButtons";
  program.Commands.UndoDeleteItem();
  EXPECT_EQ(edits.Seen, (CallLog{"row", "row", "row"}));
  singles.Answer = FileError::DiskFull;
  program.Commands.PasteItem();
  EXPECT_EQ(edits.Seen.size(), 3U);
}

}  // namespace
}  // namespace corvelle
