// The popup on folder items, single buttons and for properties; its commands by name; failures.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "core/CoreDoubles.h"
#include "core/NotedEdits.h"
#include "toolbar/PopupDesk.h"

namespace corvelle {
namespace {

constexpr char kQuestion[] =
    "If you delete a button, you cannot Undo Delete. Do you want to continue ?";

// ---- folder items ----

TEST(PopupOnAFolder, OpenFolderTakesTheMarkAway) {
  struct Row {
    const char* closed;
    const char* opened;
  };
  const Row rows[] = {{"C:\\Docs\\*.* /X", "C:\\Docs\\*.*"},
                      {"C:\\Docs\\*.*/u x", "C:\\Docs\\*.*/u"}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.closed);
    PopupDesk desk;
    desk.PutMenu(1, {Entry("Letters"), Entry("One"), Entry("Docs", "", row.closed)});
    desk.OpenMenuOf(2);
    desk.RightClickItem(1);
    EXPECT_FALSE(desk.LastPopup().Offers("Open Folder"));
    desk.RightClickItem(2, "Open Folder");
    EXPECT_EQ(desk.RecordOf(1, 3).FName, row.opened);
    EXPECT_TRUE(desk.RealMenu.MenuVisible());
  }
}

/// The entry "letter.txt" of an open folder item that is record 3 of the first menu, as the menu
/// shows it: from the generated file.
EntryEdit GeneratedEntry() {
  return {.CurTitle = "letter",
          .CurIcon = "C:\\Docs\\letter.txt",
          .CurCommand = "C:\\Docs\\letter.txt",
          .CurMenuTag = "F2",
          .CurFile = "C:\\Corvelle\\Menus\\BMENU001.mfd",
          .CurRecord = 5003};
}

TEST(PopupOnAGeneratedEntry, CannotBeCutOrDeletedAndItsFolderCanBeClosed) {
  PopupDesk desk;
  desk.PutMenu(1, {Entry("Letters"), Entry("One"), Entry("Docs", "", "C:\\Docs\\*.*")});
  desk.ChooseFor(GeneratedEntry(), "Close Folder");
  EXPECT_FALSE(desk.LastPopup().Offers("Cut Item"));
  EXPECT_FALSE(desk.LastPopup().Offers("Delete Item"));
  EXPECT_EQ(desk.RecordOf(1, 3).FName, "C:\\Docs\\*.* /X");
  EXPECT_EQ(desk.Titles(1), "Letters|One|Docs|");
  EXPECT_FALSE(desk.HasMenuFile("BMENU001.mfd"));
}

TEST(PopupOnAGeneratedEntry, WhatTookTheFoldersPlaceMeanwhileStaysAsItIs) {
  PopupDesk desk;
  desk.PutMenu(1, {Entry("Letters"), Entry("One"), Entry("Two"), Entry("Three")});
  desk.ChooseFor(GeneratedEntry(), "Close Folder");
  EXPECT_EQ(desk.RecordOf(1, 3), Entry("Two"));
  EXPECT_EQ(desk.Titles(1), "Letters|One|Two|Three|");
  EXPECT_TRUE(desk.World.Desktop.Boxes().empty());
}

TEST(PopupOnAGeneratedEntry, APasteGoesBeforeItsFolderItemInTheMenusOwnFile) {
  PopupDesk desk;
  desk.PutMenu(1, {Entry("Letters"), Entry("One"), Entry("Docs", "", "C:\\Docs\\*.*")});
  EntryEdit entry = GeneratedEntry();
  entry.ClipTitle = "Pasted";
  desk.ChooseFor(entry, "Paste Item");
  EXPECT_EQ(desk.Titles(1), "Letters|One|Pasted|Docs|");
}

// ---- a menu whose file is gone ----

struct NotedProperties final : PropertiesPort {
  void LoadWindow() override {}
  void UnloadWindow() override {}
  bool WindowLoaded() const override { return false; }
  void ShowProperties(std::string_view title, std::string_view icon,
                      std::string_view command) override {
    Shown.push_back(std::string(title) + "," + std::string(icon) + "," + std::string(command));
  }
  std::vector<std::string> Shown;
};

TEST(PopupOnAFileThatIsGone, NoCommandMakesAnEmptyOne) {
  struct Row {
    const char* choice;
    int item;  // 0 for the entry of a folder item
    const char* told;
  };
  constexpr char kMismatch[] = "Cannot delete/cut this item. Record mismatch.";
  constexpr char kNotFound[] = "53 - File not found";
  const Row rows[] = {{"Cut Item", 1, kMismatch},         {"Delete Item", 1, kMismatch},
                      {"Delete Separator", 3, kMismatch}, {"Open Folder", 4, kNotFound},
                      {"Close Folder", 0, kNotFound},     {"Folder Properties", 0, kNotFound}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.choice);
    NotedProperties properties;
    PopupDesk desk;
    desk.TheProgram.Ports.Properties = &properties;
    desk.PutMenu(
        1, {Entry("Letters"), Entry("One"), Entry("Two"), Entry("Separator", "MenuLineSeparator"),
            Entry("Three"), Entry("Docs", "", "C:\\Docs\\*.* /X")});
    desk.OpenMenuOf(2);
    desk.World.Desktop.Answer(row.told, forms::msgbox::AnswerOk);
    desk.World.Desktop.WhilePopupIsUp(
        [&](const sim::Popup&) { desk.World.Files.Vanish(PopupDesk::FileOf(1)); });
    if (row.item == 0) {
      desk.ChooseFor(GeneratedEntry(), row.choice);
    } else {
      desk.RightClickItem(row.item, row.choice);
    }
    EXPECT_EQ(desk.World.Desktop.Boxes().size(), 1U);
    EXPECT_FALSE(desk.World.Files.Has(PopupDesk::FileOf(1)));
    EXPECT_TRUE(properties.Shown.empty());
    EXPECT_TRUE(desk.TheProgram.Entry.UndoMenuTag.empty());
  }
}

// ---- single buttons ----

TEST(PopupOnASingleButton, EditsTheRow) {
  CallLog log;
  LoggingSingles singles(log);
  PopupDesk desk;
  desk.TheProgram.Ports.SingleButtons = &singles;
  EntryEdit single{.CurTitle = "Single",
                   .CurIcon = "i",
                   .CurCommand = "c",
                   .CurMenuTag = "SingleButtons",
                   .CurFile = "C:\\one.btn",
                   .CurRecord = 1};
  desk.World.Files.Put("C:\\one.btn", Records({Entry("Single", "i", "c")}));
  desk.ChooseFor(single, "Cut Item");
  EXPECT_EQ(desk.TheProgram.Entry.ClipTitle, "Single");
  desk.ChooseFor(desk.TheProgram.Entry, "Paste Item");
  desk.ChooseFor(desk.TheProgram.Entry, "Delete Item");
  EXPECT_EQ(desk.TheProgram.Entry.UndoMenuTag, "SingleButtons");
  desk.ChooseFor(desk.TheProgram.Entry, "Undo Delete");
  const CallLog expected = {"delete single C:\\one.btn", "paste single C:\\one.btn",
                            "delete single C:\\one.btn", "undo single C:\\one.btn"};
  EXPECT_EQ(log, expected);
}

// ---- properties ----

TEST(PopupProperties, CloseTheMenuAndShowTheEntry) {
  NotedProperties properties;
  PopupDesk desk;
  desk.TheProgram.Ports.Properties = &properties;
  desk.OpenMenuOf(2);
  desk.RightClickItem(2, "Properties");
  EXPECT_EQ(properties.Shown, std::vector<std::string>{"Two,two.ico,C:\\Tools\\tool.exe two"});
  EXPECT_FALSE(desk.RealMenu.MenuVisible());
  EXPECT_EQ(desk.TheProgram.Entry.CurMenuTag, "F2");
}

TEST(PopupProperties, WithoutTheirWindowOnlyCloseTheMenu) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.RightClickItem(2, "Properties");
  EXPECT_FALSE(desk.RealMenu.MenuVisible());
  EXPECT_EQ(desk.Titles(1), "Letters|One|Two|Separator|Three|");
}

TEST(PopupProperties, OfTheBareRowAreThoseOfTheStrip) {
  NotedProperties properties;
  PopupDesk desk;
  desk.TheProgram.Ports.Properties = &properties;
  desk.ChooseFor({.CurTitle = "Left over", .CurMenuTag = "SingleButtons", .CurRecord = 0},
                 "Properties");
  EXPECT_EQ(properties.Shown, std::vector<std::string>{",,"});
  EXPECT_EQ(desk.TheProgram.Entry.CurMenuTag, "Toolbar");
}

TEST(PopupProperties, OfAFolderAreThoseOfTheItemThatAnEntryWasGeneratedFrom) {
  NotedProperties properties;
  PopupDesk desk;
  desk.TheProgram.Ports.Properties = &properties;
  desk.PutMenu(1, {Entry("Letters"), Entry("One"), Entry("Docs", "d.ico", "C:\\Docs\\*.*")});
  desk.ChooseFor(GeneratedEntry(), "Folder Properties");
  EXPECT_EQ(properties.Shown, std::vector<std::string>{"Docs,d.ico,C:\\Docs\\*.*"});
  EXPECT_EQ(desk.TheProgram.Entry.CurRecord, 3);
  EXPECT_EQ(desk.TheProgram.Entry.CurFile, PopupDesk::FileOf(1));
}

// ---- commands without a line of their own ----

TEST(PopupCommands, AreFoundWithoutRegardToCase) {
  PopupDesk desk;
  desk.ThePopup.mnuItem[20].Tag = "oPEN";
  desk.TheProgram.Entry.CurMenuTag = "F2";
  desk.TheProgram.Entry.CurCommand = "C:\\Tools\\tool.exe";
  desk.ThePopup.mnuItem_Click(20);
  EXPECT_EQ(desk.World.Shell.Started(), std::vector<std::string>{"C:\\Tools\\tool.exe"});
  desk.TheProgram.Entry.CurMenuTag = "B3";
  desk.ThePopup.mnuItem_Click(20);
  desk.Wait(200);
  EXPECT_EQ(desk.Shown(), "Other|");
  // No command, and no line, do nothing.
  desk.ThePopup.mnuItem[20].Tag = "nothing";
  desk.ThePopup.mnuItem_Click(20);
  desk.ThePopup.mnuItem_Click(21);
  desk.ThePopup.mnuItem_Click(-1);
  EXPECT_EQ(desk.World.Shell.Started().size(), 1U);
}

// ---- failures ----

/// A command of the popup on an item of a menu.
struct Edit {
  const char* choice;
  int item;
};
constexpr Edit kEdits[] = {{"Cut Item", 1},         {"Delete Item", 1},
                           {"Delete Separator", 3}, {"Insert Menu Item", 1},
                           {"Insert Separator", 2}, {"Open Folder", 4}};

/// A way of the disk to refuse, and what the user reads of it.
struct Refusal {
  const char* text;
  std::function<void(sim::SimFiles& disk, const std::string& file)> begin;
  std::function<void(sim::SimFiles& disk, const std::string& file)> end;
};
const Refusal kRefusals[] = {
    {"75 - Path/File access error",
     [](sim::SimFiles& disk, const std::string&) { disk.Protect("C:\\Corvelle\\Menus"); },
     [](sim::SimFiles& disk, const std::string&) { disk.Protect("C:\\Corvelle\\Menus", false); }},
    {"75 - Path/File access error",
     [](sim::SimFiles& disk, const std::string& file) { disk.SetReadOnly(file, true); },
     [](sim::SimFiles& disk, const std::string& file) { disk.SetReadOnly(file, false); }},
    {"70 - Permission denied",
     [](sim::SimFiles& disk, const std::string& file) {
       disk.HoldOpen(file, sim::SimFiles::Hold::ForReading);
     },
     [](sim::SimFiles& disk, const std::string& file) { disk.LetGo(file); }},
};

TEST(PopupFailures, ADiskThatRefusesIsSaidToAndTheFileStaysWhatItWas) {
  for (const Refusal& refusal : kRefusals) {
    for (const Edit& edit : kEdits) {
      SCOPED_TRACE(std::string(edit.choice) + ", " + refusal.text);
      PopupDesk desk;
      desk.PutMenu(
          1, {Entry("Letters"), Entry("One"), Entry("Two"), Entry("Separator", "MenuLineSeparator"),
              Entry("Three"), Entry("Docs", "", "C:\\Docs\\*.* /X")});
      desk.OpenMenuOf(2);
      const std::string file = PopupDesk::FileOf(1);
      const auto before = desk.World.Files.Get(file);
      desk.World.Desktop.Answer(refusal.text, forms::msgbox::AnswerOk);
      desk.World.Desktop.WhilePopupIsUp(
          [&](const sim::Popup&) { refusal.begin(desk.World.Files, file); });
      desk.RightClickItem(edit.item, edit.choice);
      refusal.end(desk.World.Files, file);
      ASSERT_EQ(desk.World.Desktop.Boxes().size(), 1U);
      EXPECT_EQ(desk.World.Desktop.Boxes().back().Flags, 0x40040U);
      EXPECT_EQ(desk.World.Files.Get(file), before);
      EXPECT_TRUE(desk.TheProgram.Entry.UndoMenuTag.empty());
      EXPECT_FALSE(desk.TheProgram.Guards.ItemActionBusy);
    }
  }
}

TEST(PopupFailures, AFullDiskAndAFolderThatIsGoneAreSaidToBeThat) {
  struct Row {
    const char* text;
    std::function<void(sim::SimFiles& disk)> begin;
  };
  const Row rows[] = {
      {"61 - Disk full", [](sim::SimFiles& disk) { disk.FillDisk(0); }},
      {"76 - Path not found", [](sim::SimFiles& disk) { disk.Vanish("C:\\Corvelle\\Menus"); }},
      {"53 - File not found",
       [](sim::SimFiles& disk) { disk.Vanish("C:\\Corvelle\\Menus\\BMENU001.MNU"); }},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    PopupDesk desk;
    desk.OpenMenuOf(2);
    desk.World.Desktop.Answer(row.text, forms::msgbox::AnswerOk);
    desk.World.Desktop.WhilePopupIsUp([&](const sim::Popup&) { row.begin(desk.World.Files); });
    desk.RightClickItem(1, "Insert Menu Item");
    desk.World.Files.FreeDisk();
    EXPECT_EQ(desk.World.Desktop.Boxes().size(), 1U);
    EXPECT_FALSE(desk.TheProgram.Guards.ItemActionBusy);
  }
}

TEST(PopupFailures, AButtonWhoseFileIsHeldStaysAndThatIsSaid) {
  PopupDesk desk;
  desk.World.Files.HoldOpen(PopupDesk::FileOf(1), sim::SimFiles::Hold::ForReading);
  desk.World.Desktop.Answer(kQuestion, forms::msgbox::AnswerYes);
  desk.World.Desktop.Answer("70 - Permission denied", forms::msgbox::AnswerOk);
  desk.RightClickButton(2, "Delete Item");
  desk.World.Files.LetGo(PopupDesk::FileOf(1));
  EXPECT_EQ(desk.World.Desktop.Boxes().size(), 2U);
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 3);
}

TEST(PopupFailures, ASingleButtonThatCannotBeWrittenStaysAndThatIsSaid) {
  struct Row {
    const char* text;
    FileError answer;
  };
  for (const Row& row : {Row{"61 - Disk full", FileError::DiskFull},
                         Row{"70 - Permission denied", FileError::InUse}}) {
    for (const char* choice : {"Cut Item", "Paste Item", "Delete Item", "Undo Delete"}) {
      SCOPED_TRACE(choice);
      CallLog log;
      LoggingSingles singles(log);
      singles.Answer = row.answer;
      PopupDesk desk;
      desk.TheProgram.Ports.SingleButtons = &singles;
      desk.World.Files.Put("C:\\Corvelle\\Menus\\BMENU001.BTN", Records({Entry("Single", "")}));
      desk.World.Desktop.Answer(row.text, forms::msgbox::AnswerOk);
      const EntryEdit single{.CurTitle = "Single",
                             .CurMenuTag = "SingleButtons",
                             .CurFile = "C:\\Corvelle\\Menus\\BMENU001.BTN",
                             .CurRecord = 1,
                             .ClipTitle = "Other",
                             .UndoTitle = "Gone",
                             .UndoMenuTag = "SingleButtons",
                             .UndoFile = "C:\\Corvelle\\Menus\\BMENU002.BTN"};
      desk.ChooseFor(single, choice);
      EXPECT_EQ(log.size(), 1U);
      EXPECT_EQ(desk.World.Desktop.Boxes().size(), 1U);
      // What was deleted before can still be brought back, but for a paste, which ends that.
      const bool pasted = std::string_view(choice) == "Paste Item";
      EXPECT_EQ(desk.TheProgram.Entry.UndoMenuTag, pasted ? "" : "SingleButtons");
      EXPECT_EQ(desk.TheProgram.Entry.UndoTitle, "Gone");
    }
  }
}

TEST(PopupGuard, ADropWaitsWhileACommandRewritesAFile) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  bool busyInside = false;
  desk.World.Desktop.WhileBoxIsUp(
      [&](const sim::MessageBox&) { busyInside = desk.TheProgram.Guards.ItemActionBusy; });
  desk.World.Desktop.Answer(kQuestion, forms::msgbox::AnswerNo);
  desk.RightClickButton(3, "Delete Item");
  EXPECT_TRUE(busyInside);
  EXPECT_FALSE(desk.TheProgram.Guards.ItemActionBusy);
}

// ---- who is told of an edit ----

TEST(PopupOnAFolder, OpeningAndClosingItAreTold) {
  PopupDesk desk;
  NotedEdits edits([&desk] { return desk.RecordOf(1, 3).FName; });
  desk.TheProgram.Ports.MenuEdits = &edits;
  desk.PutMenu(1, {Entry("Letters"), Entry("One"), Entry("Docs", "", "C:\\Docs\\*.* /X")});
  desk.OpenMenuOf(2);
  desk.RightClickItem(2, "Open Folder");
  EXPECT_EQ(edits.Seen, std::vector<std::string>{"C:\\Docs\\*.*"});
  desk.ChooseFor(GeneratedEntry(), "Close Folder");
  EXPECT_EQ(edits.Seen, (std::vector<std::string>{"C:\\Docs\\*.*", "C:\\Docs\\*.* /X"}));
  desk.TheProgram.Ports.MenuEdits = nullptr;
}

}  // namespace
}  // namespace corvelle
