// The tab of the entry, with a user's gestures.

#include <gtest/gtest.h>

#include "core/DroppedFiles.h"
#include "core/NotedEdits.h"
#include "properties/PropertiesDesk.h"

namespace corvelle {
namespace {

using Texts = std::vector<std::string>;
constexpr const char* kTool = "C:\\Tools\\tool.exe";

class PropertiesItem : public PropertiesDesk {};

TEST_F(PropertiesItem, TheBoxesShowTheEntryOfAMenu) {
  OpenItem(2);
  EXPECT_FALSE(parts->Menu.MenuVisible());
  EXPECT_EQ(Window().Caption(), "Properties");
  EXPECT_EQ(Window().TabStrip1.Selected(), "item");
  EXPECT_EQ(Window().txtTitle.Text(), "B");
  EXPECT_EQ(Window().txtIcon.Text(), kTool);
  EXPECT_EQ(Window().txtCommand.Text(), std::string(kTool) + " B");
  EXPECT_EQ(Window().Label1.Caption(), "B");
  EXPECT_TRUE(Window().WindowLoaded());
  EXPECT_TRUE(Window().txtTitle.HasFocus());
}

TEST_F(PropertiesItem, AnAmpersandOfTheTitleIsSeen) {
  SetRecord("BMENU001.MNU", 2, {"A & B", "", "x"});
  OpenItem(1);
  EXPECT_EQ(Window().txtTitle.Text(), "A & B");
  EXPECT_EQ(Window().Label1.Caption(), "A && B");
}

TEST_F(PropertiesItem, AMenuButtonHasNoCommandToEdit) {
  OpenButton(2);
  EXPECT_TRUE(Window().txtTitle.Enabled());
  EXPECT_FALSE(Window().txtCommand.Enabled());
  EXPECT_EQ(Window().txtCommand.BackColor(), forms::color::ButtonFace);
  EXPECT_EQ(Window().txtTitle.BackColor(), forms::color::WindowGround);
  EXPECT_FALSE(Window().cmdSelectFile.Enabled());
  EXPECT_FALSE(Window().cmdSelectFolder.Enabled());
  EXPECT_TRUE(Window().cmdLibrary.Enabled());
  EXPECT_TRUE(Window().cmdFile.Enabled());
}

TEST_F(PropertiesItem, TheBareRowAndTheMainMenuAreFixed) {
  RightClick(BehindSingles(), "Properties");
  ASSERT_TRUE(Window().Visible());
  EXPECT_EQ(Window().txtTitle.Text(), "");
  for (const forms::Control* control : {static_cast<const forms::Control*>(&Window().txtTitle),
                                        static_cast<const forms::Control*>(&Window().txtCommand),
                                        static_cast<const forms::Control*>(&Window().cmdLibrary),
                                        static_cast<const forms::Control*>(&Window().cmdAllFiles),
                                        static_cast<const forms::Control*>(&Window().cmdSelectFile),
                                        static_cast<const forms::Control*>(&Window().cmdFile),
                                        static_cast<const forms::Control*>(&Window().cmdFolder)}) {
    EXPECT_FALSE(control->Enabled()) << control->Name();
  }
  const Folder before = Files();
  ClickOn(Window().cmdApply);
  EXPECT_EQ(Files(), before);
  ClickOn(Window().cmdCancel);
  RightClick(MenuButton(1), "Properties");
  ASSERT_TRUE(Window().Visible());
  EXPECT_FALSE(Window().txtTitle.Enabled());
}

TEST_F(PropertiesItem, AnotherEntryTakesTheBoxesOver) {
  OpenItem(2);
  OpenSingle(1);
  EXPECT_EQ(Window().txtTitle.Text(), "one");
  OpenButton(2);
  EXPECT_FALSE(Window().txtCommand.Enabled());
  OpenSingle(2);
  EXPECT_TRUE(Window().txtCommand.Enabled());
}

TEST_F(PropertiesItem, ApplyWritesTheRecordAndTheMenuShowsIt) {
  OpenItem(2);
  TypeInto(Window().txtTitle, "Changed");
  ClickOn(Window().cmdApply);
  EXPECT_EQ(RecordAt("BMENU001.MNU", 3), (MenuRecord{"Changed", kTool, std::string(kTool) + " B"}));
  EXPECT_EQ(RecordAt("BMENU001.MNU", 2).FTitle, "A");
  EXPECT_EQ(RecordAt("BMENU001.MNU", 4).FTitle, "C");
  EXPECT_TRUE(Window().Visible());
  EXPECT_EQ(Window().Label1.Caption(), "Changed");
  EXPECT_TRUE(parts->Menu.MenuVisible());
  EXPECT_EQ(parts->Menu.Lbl[2].Caption(), "Changed");
  EXPECT_EQ(BoxTexts(), Texts{});
}

TEST_F(PropertiesItem, OkWritesTheRecordAndClosesTheWindow) {
  OpenSingle(2);
  TypeInto(Window().txtCommand, "C:\\Tools\\other.exe");
  ClickOn(Window().cmdOK);
  EXPECT_FALSE(Window().IsLoaded());
  EXPECT_EQ(RecordAt("BMENU002.BTN", 1), (MenuRecord{"two", kTool, "C:\\Tools\\other.exe"}));
  PointAt(Single(2));
  Desktop().Advance(100);
  Desktop().DoubleClick();
  Desktop().Advance(100);
  ASSERT_FALSE(world.Shell.Log().empty());
}

TEST_F(PropertiesItem, AnIconOfAMenuButtonIsOnTheStripAtOnce) {
  world.Files.Put("C:\\Tools\\other.exe", "x");
  world.Icons.SetIndex("C:\\Tools\\other.exe", 9);
  OpenButton(2);
  TypeInto(Window().txtIcon, "C:\\Tools\\other.exe");
  ClickOn(Window().cmdOK);
  EXPECT_EQ(RecordAt("BMENU001.MNU", 1), (MenuRecord{"Menu", "C:\\Tools\\other.exe", ""}));
  Desktop().Advance(50);
  EXPECT_EQ(Desktop().Picture().PixelAt(MenuButton(2)), sim::SimShellIcons::ColourOf(9));
}

TEST_F(PropertiesItem, AFileThatChangedMeanwhileIsAMismatchAndStays) {
  OpenItem(2);
  SetRecord("BMENU001.MNU", 3, {"Theirs", "", "x"});
  const Folder theirs = Files();
  TypeInto(Window().txtTitle, "Mine");
  ClickOn(Window().cmdApply);
  EXPECT_EQ(BoxTexts(), Texts{"Cannot modify this item. Record mismatch."});
  ClickOn(Window().cmdOK);
  EXPECT_EQ(BoxTexts().size(), 2U);
  EXPECT_EQ(Files(), theirs);
  EXPECT_TRUE(Window().Visible());
  EXPECT_EQ(Window().txtTitle.Text(), "Mine");
}

TEST_F(PropertiesItem, AnEntryOfAFolderCannotBeModifiedButItsFolderItemCan) {
  world.Files.Put("C:\\Docs\\letter.doc", "x");
  SetRecord("BMENU001.MNU", 3, {"Docs", "", "C:\\Docs\\*.*"});
  OpenItem(2);
  EXPECT_EQ(Window().txtTitle.Text(), "letter.doc");
  ClickOn(Window().cmdApply);
  EXPECT_EQ(BoxTexts(), Texts{"Cannot modify a folder item."});
  EXPECT_TRUE(Window().Visible());
  ClickOn(Window().cmdCancel);
  OpenMenu(2);
  RightClick(Item(2), "Folder Properties");
  ASSERT_TRUE(Window().Visible());
  EXPECT_EQ(Window().txtTitle.Text(), "Docs");
  EXPECT_EQ(Window().txtCommand.Text(), "C:\\Docs\\*.*");
  TypeInto(Window().txtTitle, "Papers");
  ClickOn(Window().cmdOK);
  EXPECT_EQ(RecordAt("BMENU001.MNU", 3), (MenuRecord{"Papers", "", "C:\\Docs\\*.*"}));
  EXPECT_EQ(BoxTexts().size(), 1U);
}

TEST_F(PropertiesItem, CancelTakesBackWhatWasAppliedAndEscKeepsIt) {
  OpenItem(2);
  const Folder before = Files();
  TypeInto(Window().txtTitle, "Changed");
  ClickOn(Window().cmdApply);
  ASSERT_NE(Files(), before);
  CloseMenu();
  ClickOn(Window().cmdCancel);
  EXPECT_FALSE(Window().IsLoaded());
  EXPECT_EQ(Files(), before);

  CloseMenu();
  OpenItem(2);
  TypeInto(Window().txtTitle, "Changed");
  ClickOn(Window().cmdApply);
  const Folder changed = Files();
  ClickOn(Window().txtTitle);
  Desktop().PressKey(forms::key::Escape);
  EXPECT_FALSE(Window().IsLoaded());
  EXPECT_EQ(Files(), changed);
}

TEST_F(PropertiesItem, EachEditOfAFileIsTold) {
  NotedEdits edits([this] { return RecordAt("BMENU001.MNU", 3).FTitle; });
  TheProgram().Ports.MenuEdits = &edits;
  OpenItem(2);
  ClickOn(Window().cmdApply);
  EXPECT_EQ(edits.Seen, Texts{}) << "nothing was changed";
  TypeInto(Window().txtTitle, "Changed");
  ClickOn(Window().cmdApply);
  CloseMenu();
  ClickOn(Window().cmdCancel);
  EXPECT_EQ(edits.Seen, (Texts{"Changed", "B"}));

  edits.Look = [this] { return RecordAt("BMENU001.MNU", 1).FName; };
  edits.Seen.clear();
  OpenButton(2);
  OpenTab("buttons");
  ClickNode(0, forms::TreePart::Check);
  ClickOn(Window().cmdApply);
  EXPECT_EQ(edits.Seen, Texts{"/h"});
  TheProgram().Ports.MenuEdits = nullptr;
}

TEST_F(PropertiesItem, EnterShowsTheResultBeforeItIsConfirmed) {
  OpenItem(2);
  const Folder before = Files();
  TypeInto(Window().txtTitle, "New");
  EXPECT_EQ(Window().Label1.Caption(), "B");
  Desktop().PressKey(forms::key::Enter);
  EXPECT_EQ(Window().Label1.Caption(), "New");
  EXPECT_EQ(Window().txtTitle.Text(), "New");
  EXPECT_EQ(Files(), before);
  EXPECT_EQ(Desktop().Beeps(), 0);
  EXPECT_TRUE(Window().Visible());
}

TEST_F(PropertiesItem, TheIconIsDrawnAsTheBoxSays) {
  OpenItem(2);
  world.Icons.SetIndex("C:\\Tools\\other.exe", 9);
  world.Files.Put("C:\\Tools\\other.exe", "x");
  TypeInto(Window().txtIcon, "C:\\Tools\\other.exe");
  Desktop().PressKey(forms::key::Enter);
  const PixelPoint at = MiddleOf(Window().Pix);
  EXPECT_EQ(Desktop().Picture().PixelAt(at), sim::SimShellIcons::ColourOf(9));
}

TEST_F(PropertiesItem, AnEntryKeepsATitle) {
  OpenItem(2);
  const Folder before = Files();
  TypeInto(Window().txtTitle, " ");
  ClickOn(Window().cmdOK);
  EXPECT_EQ(Desktop().Beeps(), 1);
  EXPECT_TRUE(Window().Visible());
  EXPECT_EQ(Files(), before);
}

TEST_F(PropertiesItem, ADiskThatRefusesIsToldAndTheWindowStays) {
  OpenItem(2);
  TypeInto(Window().txtTitle, "New");
  world.Files.Protect("C:\\Corvelle\\Menus");
  const Folder before = Files();
  ClickOn(Window().cmdOK);
  ASSERT_EQ(BoxTexts().size(), 1U);
  EXPECT_TRUE(Window().Visible());
  EXPECT_EQ(Files(), before);
}

// ---- a command that leads nowhere ----

TEST_F(PropertiesItem, ACommandThatLeadsNowhereIsMarkedAtItsBox) {
  OpenItem(2);
  Desktop().Advance(50);
  EXPECT_FALSE(Window().lblMissing.Visible()) << "the tool with arguments is there";
  struct Row {
    const char* command;
    bool missing;
  };
  const Row rows[] = {{"C:\\Tools\\gone.exe", true},
                      {"C:\\Tools\\tool.exe", false},
                      {"C:\\Tools\\tool /x y", false},
                      {"http://www.example.org", false},
                      {"C:\\Gone\\*.*", true},
                      {"C:\\Tools\\*.*", false},
                      {" ?C:\\Tools\\gone.exe /x", false},
                      {"notepad", false}};
  for (const Row& row : rows) {
    TypeInto(Window().txtCommand, row.command);
    EXPECT_FALSE(Window().lblMissing.Visible()) << "while typing " << row.command;
    Desktop().Advance(1000);
    EXPECT_EQ(Window().lblMissing.Visible(), row.missing) << row.command;
  }
}

TEST_F(PropertiesItem, ADriveThatHangsMarksNothingAndHoldsNothingUp) {
  OpenItem(2);
  Desktop().Advance(500);
  world.SlowAnswers.Hang("C:");
  TypeInto(Window().txtCommand, "C:\\Tools\\gone.exe");
  Desktop().Advance(1000);
  EXPECT_FALSE(Window().lblMissing.Visible());
  ClickOn(Window().cmdCancel);
  EXPECT_FALSE(Window().IsLoaded());
  world.SlowAnswers.Resume("C:");
  Desktop().Advance(100);
  EXPECT_FALSE(Window().lblMissing.Visible());
}

TEST_F(PropertiesItem, OthersGetTheirAnswersWhileTheWindowIsOpenAndAfterwards) {
  int answers = 0;
  const auto ask = [&] {
    TheProgram().Slow.Ask({.Path = "C:\\Tools", .Lane = "C:"},
                          [&answers](const LookupAnswer&) { ++answers; });
    Desktop().Advance(10);
  };
  ask();
  OpenItem(2);
  ask();
  ClickOn(Window().cmdCancel);
  ask();
  EXPECT_EQ(answers, 3);
}

// ---- what the boxes are filled from ----

class PropertiesBrowse : public PropertiesDesk {
 protected:
  PropertiesBrowse() {
    for (const Option option :
         {Option::IconLibraryTipDone, Option::OtherFilesTipDone, Option::SelectFileTipDone})
      TheProgram().OptionFlags.Set(option, true);
    world.Files.Put("C:\\Docs\\letter.doc", "x");
  }
};

TEST_F(PropertiesBrowse, TheFileButtonAndF2FillTheCommandOnly) {
  OpenItem(2);
  Desktop().ChooseFiles({"C:\\Docs\\letter.doc"});
  ClickOn(Window().cmdSelectFile);
  EXPECT_EQ(Window().txtCommand.Text(), "C:\\Docs\\letter.doc");
  EXPECT_EQ(Window().txtTitle.Text(), "B");
  EXPECT_EQ(Window().txtIcon.Text(), kTool);
  ASSERT_EQ(Desktop().FileQuestions().size(), 1U);
  EXPECT_EQ(Desktop().FileQuestions()[0].Title, "Select one file.");
  EXPECT_FALSE(Desktop().FileQuestions()[0].Several);
  ClickOn(Window().txtCommand);
  Desktop().ChooseFiles({kTool});
  Desktop().PressKey(kKeyF2);
  EXPECT_EQ(Window().txtCommand.Text(), kTool);
  EXPECT_EQ(Desktop().FileQuestions()[1].StartFolder, "C:\\Docs");
}

TEST_F(PropertiesBrowse, AFileDialogThatFailsIsTold) {
  OpenItem(2);
  Desktop().AnswerAnyDialog(
      [](const forms::FileQuestion&) { return forms::FileChoice{.Failed = true}; }, nullptr);
  Desktop().Answer("Unable to access the selected files.", forms::msgbox::AnswerOk);
  ClickOn(Window().cmdSelectFile);
  EXPECT_EQ(Desktop().AnswersLeft(), 0);
  EXPECT_EQ(Window().txtTitle.Text(), "B");
}

TEST_F(PropertiesBrowse, TheFolderButtonAndF3FillTheCommandOnly) {
  OpenItem(2);
  Desktop().ChooseFolder("C:\\Docs");
  ClickOn(Window().cmdSelectFolder);
  EXPECT_EQ(Window().txtCommand.Text(), "C:\\Docs");
  EXPECT_EQ(Window().txtTitle.Text(), "B");
  ASSERT_EQ(Desktop().FolderQuestions().size(), 1U);
  EXPECT_EQ(Desktop().FolderQuestions()[0].Text, "To select a folder, highlight it and click OK.");
  ClickOn(Window().txtCommand);
  Desktop().ChooseFolder("C:\\Tools");
  Desktop().PressKey(kKeyF3);
  EXPECT_EQ(Window().txtCommand.Text(), "C:\\Tools");
}

TEST_F(PropertiesBrowse, TheIconsFileButtonAndF2FillTheIcon) {
  OpenItem(2);
  Desktop().ChooseFiles({"C:\\Docs\\letter.doc"});
  ClickOn(Window().cmdAllFiles);
  EXPECT_EQ(Window().txtIcon.Text(), "C:\\Docs\\letter.doc");
  EXPECT_EQ(Window().txtCommand.Text(), std::string(kTool) + " B");
  ClickOn(Window().txtIcon);
  Desktop().CancelFiles();
  Desktop().PressKey(kKeyF2);
  EXPECT_EQ(Window().txtIcon.Text(), "C:\\Docs\\letter.doc");
}

TEST_F(PropertiesBrowse, FileAndFolderFillAllBoxes) {
  OpenItem(2);
  Desktop().ChooseFiles({"C:\\Docs\\letter.doc"});
  ClickOn(Window().cmdFile);
  EXPECT_EQ(Window().txtTitle.Text(), "letter");
  EXPECT_EQ(Window().txtIcon.Text(), "C:\\Docs\\letter.doc");
  EXPECT_EQ(Window().txtCommand.Text(), "C:\\Docs\\letter.doc");
  Desktop().ChooseFolder(
      forms::FolderChoice{.Chosen = true, .Path = "C:\\Docs", .Name = "My Docs"});
  ClickOn(Window().cmdFolder);
  EXPECT_EQ(Window().txtTitle.Text(), "My Docs");
  EXPECT_EQ(Window().txtCommand.Text(), "C:\\Docs");
  const Folder before = Files();
  Desktop().CancelFolder();
  ClickOn(Window().cmdFolder);
  EXPECT_EQ(Window().txtTitle.Text(), "My Docs");
  EXPECT_EQ(Files(), before) << "nothing is written before Apply";
}

TEST_F(PropertiesBrowse, AFileForAMenuButtonLeavesItsThirdField) {
  OpenButton(2);
  Desktop().ChooseFiles({"C:\\Docs\\letter.doc"});
  ClickOn(Window().cmdFile);
  EXPECT_EQ(Window().txtIcon.Text(), "C:\\Docs\\letter.doc");
  EXPECT_EQ(Window().txtCommand.Text(), "");
}

TEST_F(PropertiesBrowse, AFolderThatIsOnNoDiskIsReachedByALink) {
  OpenItem(2);
  const auto item = world.Links.SpecialFolderLocation(kNoWindow, 17);
  world.Links.SetVirtualFolder(17);
  Desktop().ChooseFolder(forms::FolderChoice{
      .Chosen = true,
      .Name = "Computer",
      .Item = world.Links.SpecialFolderLocation(kNoWindow, 17).value_or(ItemIdList{"x"})});
  ClickOn(Window().cmdFolder);
  const std::string link = TheProgram().Paths.ShellLinkPath + "Computer.lnk";
  EXPECT_EQ(Window().txtCommand.Text(), link);
  EXPECT_TRUE(world.Files.Has(link));
  EXPECT_EQ(Window().txtTitle.Text(), "Computer");
}

TEST_F(PropertiesBrowse, AFolderThatCannotBeLinkedIsTold) {
  OpenItem(2);
  Desktop().ChooseFolder(forms::FolderChoice{.Chosen = true, .Name = "Computer"});
  ClickOn(Window().cmdSelectFolder);
  EXPECT_EQ(BoxTexts(), Texts{"Unable to access the selected folder."});
  EXPECT_EQ(Window().txtCommand.Text(), std::string(kTool) + " B");
}

TEST_F(PropertiesBrowse, TheNoticesComeUntilTheyAreDismissed) {
  OpenItem(2);
  TheProgram().OptionFlags.Set(Option::SelectFileTipDone, false);
  Desktop().CancelFiles();
  ClickOn(Window().cmdSelectFile);
  EXPECT_TRUE(parts->Tip.Visible());
  EXPECT_EQ(parts->Tip.lblTitle.Caption(), "Select File/Folder");
  EXPECT_EQ(parts->Tip.TipField, Option::SelectFileTipDone);
  ClickOn(parts->Tip.cmdOK);
  TheProgram().OptionFlags.Set(Option::OtherFilesTipDone, false);
  Desktop().CancelFiles();
  ClickOn(Window().cmdAllFiles);
  EXPECT_EQ(parts->Tip.lblTitle.Caption(), "Other Files Icons");
  EXPECT_EQ(parts->Tip.TipField, Option::OtherFilesTipDone);
}

TEST_F(PropertiesBrowse, AProgramThatEndsBehindADialogIsNoHarm) {
  OpenItem(2);
  Desktop().ChooseFiles({"C:\\Docs\\letter.doc"});
  Desktop().WhileDialogIsUp([this] { parts->Companion.UnloadWindow(); });
  ClickOn(Window().cmdFile);
  EXPECT_FALSE(Window().IsLoaded());
}

// ---- paths that are too long for a record ----

/// So many letters, of which each takes three bytes in a record.
std::string Letters(int count) {
  std::string letters;
  for (int i = 0; i < count; ++i) letters += "\xE6\x97\xA5";
  return letters;
}

class PropertiesLongPaths : public PropertiesBrowse {
 protected:
  PropertiesLongPaths() {
    world.Files.Put(file, "x");
    world.Files.MakeFolders(folder);
  }

  const std::string folder = "C:\\" + Letters(50) + "\\" + Letters(50);
  const std::string file = folder + ".exe";
};

TEST_F(PropertiesLongPaths, AreTakenWithTheShortNamesOfTheVolume) {
  world.Files.GiveShortName("C:\\" + Letters(50), "65E5~1");
  OpenItem(2);
  Desktop().ChooseFiles({file});
  ClickOn(Window().cmdSelectFile);
  EXPECT_EQ(Window().txtCommand.Text(), "C:\\65E5~1\\" + Letters(50) + ".exe");
  Desktop().ChooseFiles({file});
  ClickOn(Window().cmdAllFiles);
  EXPECT_EQ(Window().txtIcon.Text(), "C:\\65E5~1\\" + Letters(50) + ".exe");
  Desktop().ChooseFolder(folder);
  ClickOn(Window().cmdSelectFolder);
  EXPECT_EQ(Window().txtCommand.Text(), "C:\\65E5~1\\" + Letters(50));
  Desktop().ChooseFiles({file});
  ClickOn(Window().cmdFile);
  EXPECT_EQ(Window().txtTitle.Text(), Letters(50)) << "as the shell shows it";
  EXPECT_EQ(Window().txtIcon.Text(), "C:\\65E5~1\\" + Letters(50) + ".exe");
  ClickOn(Window().cmdOK);
  EXPECT_EQ(RecordAt("BMENU001.MNU", 3).FIcon, "C:\\65E5~1\\" + Letters(50) + ".exe");
  EXPECT_EQ(RecordAt("BMENU001.MNU", 3).FName, "C:\\65E5~1\\" + Letters(50) + ".exe");
  EXPECT_EQ(BoxTexts(), Texts{});
}

TEST_F(PropertiesLongPaths, AreRefusedByNameWhereTheVolumeHasNoShortOnes) {
  OpenItem(2);
  Desktop().ChooseFiles({file});
  ClickOn(Window().cmdSelectFile);
  Desktop().ChooseFiles({file});
  ClickOn(Window().cmdAllFiles);
  Desktop().ChooseFiles({file});
  ClickOn(Window().cmdFile);
  Desktop().ChooseFolder(folder);
  ClickOn(Window().cmdSelectFolder);
  Desktop().ChooseFolder(forms::FolderChoice{.Chosen = true, .Path = folder, .Name = "Long"});
  ClickOn(Window().cmdFolder);
  const std::string aboutFile = RefusedFilesText({file});
  const std::string aboutFolder = RefusedFilesText({folder});
  EXPECT_EQ(BoxTexts(), (Texts{aboutFile, aboutFile, aboutFile, aboutFolder, aboutFolder}));
  EXPECT_EQ(Window().txtTitle.Text(), "B");
  EXPECT_EQ(Window().txtIcon.Text(), kTool);
  EXPECT_EQ(Window().txtCommand.Text(), std::string(kTool) + " B");
}

// ---- another entry is chosen meanwhile ----

TEST_F(PropertiesBrowse, WhileTheLibraryIsOpenAnotherEntryDoesNotTakeTheBoxesOver) {
  OpenItem(2);
  TypeInto(Window().txtTitle, "Typed");
  ClickOn(Window().cmdLibrary);
  ASSERT_TRUE(parts->Library.Visible());
  RightClick(Single(1), "Properties");
  EXPECT_EQ(Window().txtTitle.Text(), "Typed");
  EXPECT_EQ(Desktop().ForegroundWindow(), parts->Library.hWnd());
  TheProgram().Ports.PropertiesIcon->TakeIcon("\\icons\\x.ico");
  parts->Library.Unload();
  ClickOn(Window().cmdOK);
  EXPECT_EQ(RecordAt("BMENU001.MNU", 3),
            (MenuRecord{"Typed", "\\icons\\x.ico", std::string(kTool) + " B"}));
  EXPECT_EQ(RecordAt("BMENU001.BTN", 1).FTitle, "one");
  OpenSingle(1);
  EXPECT_EQ(Window().txtTitle.Text(), "one") << "the library is closed";
}

TEST_F(PropertiesBrowse, WhileADialogIsOpenAnotherEntryDoesNotTakeTheBoxesOver) {
  OpenItem(2);
  TypeInto(Window().txtTitle, "Typed");
  Desktop().WhileDialogIsUp([this] {
    RightClick(Single(1), "Properties");
    EXPECT_EQ(Window().txtTitle.Text(), "Typed");
    EXPECT_EQ(Desktop().ForegroundWindow(), Window().hWnd()) << "whose dialog it is";
  });
  Desktop().ChooseFiles({"C:\\Docs\\letter.doc"});
  ClickOn(Window().cmdSelectFile);
  Desktop().ChooseFolder("C:\\Docs");
  ClickOn(Window().cmdSelectFolder);
  EXPECT_EQ(Window().txtTitle.Text(), "Typed");
  EXPECT_EQ(Window().txtCommand.Text(), "C:\\Docs");
}

/// A library that only notes who calls it.
struct NotedLibrary final : LibraryPort {
  std::vector<std::string> Callers;
  bool Up = false;
  void Show(std::string_view caller) override {
    Callers.emplace_back(caller);
    Up = true;
  }
  void LoadWindow() override {}
  void UnloadWindow() override { Up = false; }
  bool WindowLoaded() const override { return Up; }
};

TEST_F(PropertiesBrowse, TheLibraryFillsTheIconAndGoesWithTheWindow) {
  NotedLibrary library;
  TheProgram().Ports.Library = &library;
  OpenItem(2);
  ClickOn(Window().cmdLibrary);
  ClickOn(Window().txtIcon);
  Desktop().PressKey(kKeyF3);
  EXPECT_EQ(library.Callers, (Texts{"frmProperties", "frmProperties"}));
  TheProgram().Ports.PropertiesIcon->TakeIcon("\\icons\\x.ico");
  EXPECT_EQ(Window().txtIcon.Text(), "\\icons\\x.ico");
  EXPECT_EQ(&TheProgram().Ports.PropertiesIcon->BoxWindow(), &Window());
  ClickOn(Window().cmdCancel);
  EXPECT_FALSE(library.Up);
  TheProgram().Ports.Library = nullptr;
}

}  // namespace
}  // namespace corvelle
