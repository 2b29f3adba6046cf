// The entry boxes of the Customize window, the dialogs that fill them, and the tips.

#include <gtest/gtest.h>

#include "core/DroppedFiles.h"
#include "customize/CustDesk.h"

namespace corvelle {
namespace {

namespace key = forms::key;

constexpr int kKeyF3 = 114;

/// A desk with the second menu open and its first item selected.
struct BoxDesk : CustDesk {
  explicit BoxDesk(std::string_view node = "Hammer") {
    Expand("Letters");
    Expand("Tools");
    ClickNode(node);
  }
  [[nodiscard]] const MenuRecord Stored(std::string_view node) const {
    const forms::TreeView& tree = Form().TreeView1;
    for (const CustRef ref : Editor().Tree.InOrder()) {
      if (Editor().Tree.At(ref).Text == node) return RecordOf(Editor().Tree.At(ref));
    }
    ADD_FAILURE() << node << tree.Name();
    return {};
  }
};

TEST(CustomizeBoxes, EnterTakesThemIntoTheTree) {
  BoxDesk desk;
  desk.Fill(desk.Form().txtTitle, "Mallet");
  desk.world.Desktop.PressKey(key::Enter);
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Mallet Anvil) | Clock Paint");
  EXPECT_TRUE(desk.Editor().TreeChanged);
  EXPECT_TRUE(desk.Form().txtTitle.HasFocus()) << "the user goes on typing";
}

// A second after a menu was opened the tree listens again.
TEST(CustomizeBoxes, WhatIsTypedOutlivesTheTickAfterAMenuWasOpened) {
  BoxDesk desk;
  desk.ClickAt(desk.Expander("Letters"));
  desk.Fill(desk.Form().txtTitle, "Mal");
  desk.world.Desktop.Advance(1100);
  desk.world.Desktop.Type("let");
  EXPECT_EQ(desk.Form().txtTitle.Text(), "Mallet");
  desk.world.Desktop.PressKey(key::Enter);
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Mallet Anvil) | Clock Paint");
}

// AltGr comes as Ctrl and Alt together, also with a letter that is an access key of the window.
TEST(CustomizeBoxes, WhatAltGrTypesComesIntoTheBox) {
  BoxDesk desk;
  desk.Fill(desk.Form().txtTitle, "Ham");
  desk.world.Desktop.KeyDown(key::Ctrl);
  desk.world.Desktop.KeyDown(key::Alt);
  desk.world.Desktop.PressKey('X');
  desk.world.Desktop.Type("\xC5\xBA");
  desk.world.Desktop.KeyUp(key::Alt);
  desk.world.Desktop.KeyUp(key::Ctrl);
  ASSERT_TRUE(desk.Form().IsLoaded());
  EXPECT_EQ(desk.Form().txtTitle.Text(), "Ham\xC5\xBA");
}

TEST(CustomizeBoxes, AnotherTitleCanBeTypedAtOnceBehindAChosenFile) {
  BoxDesk desk;
  desk.world.Desktop.ChooseFiles({"C:\\Tools\\Edit.exe"});
  desk.ClickControl(desk.Form().cmdBrowseFiles);
  ASSERT_TRUE(desk.Form().txtTitle.HasFocus());
  desk.Form().txtTitle.SelectAll();
  desk.world.Desktop.Type("Wri");
  desk.world.Desktop.Advance(1100);
  desk.world.Desktop.Type("te");
  EXPECT_EQ(desk.Boxes(), "Write;C:\\Tools\\Edit.exe;C:\\Tools\\Edit.exe");
}

TEST(CustomizeBoxes, WhatIsTypedOutlivesAnEditMadeElsewhere) {
  BoxDesk desk;
  desk.Fill(desk.Form().txtCommand, "C:\\Tools\\other.exe");
  desk.Put(SingleFileName(2), {CustDesk::Entry("Edit")});
  desk.parts->TheProgram.Ports.TellMenusEdited();
  desk.world.Desktop.Advance(200);
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Hammer Anvil) | Clock Edit");
  EXPECT_EQ(desk.Boxes(), "Hammer;C:\\Tools\\Hammer.exe;C:\\Tools\\other.exe");
}

TEST(CustomizeBoxes, ARenameInTheTreeLeavesWhatIsTypedInTheOthers) {
  BoxDesk desk;
  desk.Fill(desk.Form().txtCommand, "C:\\Tools\\other.exe");
  desk.Form().TreeView1.SetFocus();
  desk.world.Desktop.PressKey(key::F2);
  desk.world.Desktop.Type("Mallet");
  desk.world.Desktop.PressKey(key::Enter);
  EXPECT_EQ(desk.Boxes(), "Mallet;C:\\Tools\\Hammer.exe;C:\\Tools\\other.exe");
}

TEST(CustomizeBoxes, AnAddressGetsItsSchemeAndTheIconOfWebLinks) {
  BoxDesk desk;
  desk.Fill(desk.Form().txtFile, "C:\\gone.ico");
  desk.Fill(desk.Form().txtCommand, "www.a.example");
  desk.ClickControl(desk.Form().cmdOK);
  EXPECT_EQ(desk.Boxes(), "Hammer;http;http://www.a.example");
}

TEST(CustomizeBoxes, OfASeparatorCannotBeConfirmed) {
  BoxDesk desk("Separator");
  EXPECT_EQ(desk.Boxes(), "Separator;;");
  desk.Fill(desk.Form().txtTitle, "Other");
  desk.world.Desktop.Answer(std::string(kSeparatorMsg), forms::msgbox::AnswerOk);
  desk.ClickControl(desk.Form().cmdOK);
  EXPECT_EQ(desk.Boxes(), "Separator;;");
}

TEST(CustomizeBoxes, AFileReplacesASeparator) {
  BoxDesk desk("Separator");
  desk.world.Desktop.ChooseFiles({"C:\\Tools\\Edit.exe"});
  desk.ClickControl(desk.Form().cmdBrowseFiles);
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta Edit) Tools(Hammer Anvil) | Clock Paint");
  EXPECT_TRUE(desk.Form().txtTitle.HasFocus());
}

TEST(CustomizeBoxes, SeveralFilesStandBehindTheFirst) {
  BoxDesk desk;
  desk.world.Desktop.ChooseFiles({"C:\\Tools\\Edit.exe", "C:\\Tools\\Clock.exe"});
  desk.ClickControl(desk.Form().cmdBrowseFiles);
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Edit Clock Anvil) | Clock Paint");
  const forms::FileQuestion& asked = desk.world.Desktop.FileQuestions().front();
  EXPECT_EQ(asked.Title, "Select one or more files.");
  EXPECT_TRUE(asked.Several);
}

// ---- paths that are too long for a record ----

/// So many letters, of which each takes three bytes in a record.
std::string Letters(int count) {
  std::string letters;
  for (int i = 0; i < count; ++i) letters += "\xE6\x97\xA5";
  return letters;
}

/// With a folder and a file whose paths no record can hold.
struct LongPathDesk : BoxDesk {
  explicit LongPathDesk(std::string_view node = "Hammer") : BoxDesk(node) {
    world.Files.Put(File, "x");
    world.Files.MakeFolders(Folder);
  }
  void GiveShortNames() { world.Files.GiveShortName("C:\\" + Letters(50), "65E5~1"); }
  void Refuses(const std::string& path) {
    world.Desktop.Answer(RefusedFilesText({path}), forms::msgbox::AnswerOk);
  }
  const std::string Folder = "C:\\" + Letters(50) + "\\" + Letters(50);
  const std::string File = Folder + ".exe";
  const std::string ShortFolder = "C:\\65E5~1\\" + Letters(50);
  const std::string ShortFile = ShortFolder + ".exe";
};

TEST(CustomizeLongPaths, OfAChosenFileAreShortened) {
  LongPathDesk desk;
  desk.GiveShortNames();
  desk.world.Desktop.ChooseFiles({desk.File});
  desk.ClickControl(desk.Form().cmdBrowseFiles);
  EXPECT_EQ(desk.Stored(Letters(50)), (MenuRecord{Letters(50), desk.ShortFile, desk.ShortFile}));
  EXPECT_TRUE(desk.world.Desktop.Boxes().empty());
}

TEST(CustomizeLongPaths, OfAChosenFolderAreShortened) {
  LongPathDesk desk;
  desk.GiveShortNames();
  desk.world.Desktop.ChooseFolder({.Chosen = true, .Path = desk.Folder});
  desk.ClickControl(desk.Form().cmdBrowseFolders);
  EXPECT_EQ(desk.Stored(Letters(50)),
            (MenuRecord{Letters(50), desk.ShortFolder, desk.ShortFolder}));
}

TEST(CustomizeLongPaths, OfWhatFillsOneBoxAreShortened) {
  LongPathDesk desk;
  desk.GiveShortNames();
  desk.world.Desktop.ChooseFiles({desk.File});
  desk.ClickFlat(desk.Form().cmdAllFiles, desk.Form().picFiles);
  desk.world.Desktop.ChooseFolder({.Chosen = true, .Path = desk.Folder});
  desk.ClickFlat(desk.Form().cmdSelectFolder, desk.Form().picFiles);
  EXPECT_EQ(desk.Stored("Hammer"), (MenuRecord{"Hammer", desk.ShortFile, desk.ShortFolder}));
}

TEST(CustomizeLongPaths, AreRefusedByNameWhereTheVolumeHasNoShortOnes) {
  LongPathDesk desk;
  const MenuRecord before = desk.Stored("Hammer");
  desk.Refuses(desk.File);
  desk.world.Desktop.ChooseFiles({desk.File});
  desk.ClickControl(desk.Form().cmdBrowseFiles);
  desk.Refuses(desk.Folder);
  desk.world.Desktop.ChooseFolder({.Chosen = true, .Path = desk.Folder});
  desk.ClickControl(desk.Form().cmdBrowseFolders);
  desk.Refuses(desk.File);
  desk.world.Desktop.ChooseFiles({desk.File});
  desk.ClickFlat(desk.Form().cmdAllFiles, desk.Form().picFiles);
  desk.Refuses(desk.Folder);
  desk.world.Desktop.ChooseFolder({.Chosen = true, .Path = desk.Folder});
  desk.ClickFlat(desk.Form().cmdSelectFolder, desk.Form().picFiles);
  EXPECT_EQ(desk.world.Desktop.AnswersLeft(), 0);
  EXPECT_EQ(desk.Stored("Hammer"), before);
  EXPECT_FALSE(desk.Editor().TreeChanged);
  EXPECT_FALSE(desk.Editor().History.CanUndo());
}

TEST(CustomizeLongPaths, OfOneOfThreeDroppedFilesLeaveTheOthersTheirPlaces) {
  LongPathDesk desk("Anvil");
  desk.Refuses(desk.File);
  desk.Drop({.Files = std::vector<std::string>{"C:\\Tools\\Paint.exe", desk.File,
                                               "C:\\Tools\\Edit.exe"}});
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Hammer Edit Paint) | Clock Paint");
  EXPECT_EQ(desk.world.Desktop.AnswersLeft(), 0);
}

TEST(CustomizeBoxes, AMenuButtonTakesOneFileAndTheNextDialogStartsInItsFolder) {
  BoxDesk desk("Tools");
  desk.world.Desktop.ChooseFiles({"C:\\Tools\\Edit.exe"});
  desk.ClickControl(desk.Form().cmdBrowseFiles);
  desk.world.Desktop.CancelFiles();
  desk.ClickControl(desk.Form().cmdBrowseFiles);
  const auto& asked = desk.world.Desktop.FileQuestions();
  ASSERT_EQ(asked.size(), 2U);
  EXPECT_EQ(asked[0].Title, "Select one file.");
  EXPECT_FALSE(asked[0].Several);
  EXPECT_EQ(asked[1].StartFolder, "C:\\Tools");
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Edit(Hammer Anvil) | Clock Paint");
}

TEST(CustomizeBoxes, TheTwoStartFoldersExcludeEachOtherAndGoWithAChoice) {
  BoxDesk desk;
  desk.ClickControl(desk.Form().chkSelect0);
  EXPECT_EQ(desk.Form().chkSelect0.Value(), 1);
  desk.ClickControl(desk.Form().chkSelect1);
  EXPECT_EQ(desk.Form().chkSelect0.Value(), 0);
  EXPECT_EQ(desk.Form().chkSelect1.Value(), 1);
  desk.world.Desktop.ChooseFiles({"C:\\Tools\\Edit.exe"});
  desk.ClickControl(desk.Form().cmdBrowseFiles);
  EXPECT_EQ(desk.Form().chkSelect1.Value(), 0);
}

TEST(CustomizeBoxes, WhileADialogIsUpTheTreeDoesNothing) {
  BoxDesk desk;
  bool browsing = false;
  desk.world.Desktop.WhileDialogIsUp([&] { browsing = desk.Form().Browsing; });
  desk.world.Desktop.CancelFiles();
  desk.ClickControl(desk.Form().cmdBrowseFiles);
  EXPECT_TRUE(browsing);
  desk.world.Desktop.Advance(1100);
  EXPECT_FALSE(desk.Form().Browsing);
  desk.ClickNode("Anvil");
  EXPECT_EQ(desk.Selected(), "Anvil");
}

TEST(CustomizeBoxes, TheToolBarAnswersRightBehindADialog) {
  for (const bool folder : {false, true}) {
    BoxDesk desk;
    desk.world.Files.MakeFolders("C:\\Work");
    desk.world.Desktop.ChooseFiles({"C:\\Tools\\Edit.exe"});
    desk.world.Desktop.ChooseFolder({.Chosen = true, .Path = "C:\\Work"});
    desk.ClickControl(folder ? desk.Form().cmdBrowseFolders : desk.Form().cmdBrowseFiles);
    desk.Tool("new");
    EXPECT_EQ(desk.Selected(), "New Menu Item") << folder;
  }
}

TEST(CustomizeBoxes, TheTreeSelectsRightBehindAFolder) {
  BoxDesk desk;
  desk.world.Files.MakeFolders("C:\\Work");
  desk.world.Desktop.ChooseFolder({.Chosen = true, .Path = "C:\\Work"});
  desk.ClickControl(desk.Form().cmdBrowseFolders);
  desk.ClickNode("Anvil");
  EXPECT_EQ(desk.Selected(), "Anvil");
  EXPECT_EQ(desk.Form().txtTitle.Text(), "Anvil");
}

TEST(CustomizeBoxes, TheWindowMayCloseWhileADialogIsUp) {
  BoxDesk desk;
  desk.world.Desktop.WhileDialogIsUp([&] { desk.Form().Unload(); });
  desk.world.Desktop.ChooseFiles({"C:\\Tools\\Edit.exe"});
  desk.ClickControl(desk.Form().cmdBrowseFiles);
  EXPECT_FALSE(desk.Form().IsLoaded());
}

TEST(CustomizeBoxes, AFolderFillsAllThree) {
  BoxDesk desk;
  desk.world.Desktop.ChooseFolder({.Chosen = true, .Path = "C:\\Tools", .Name = "Tools"});
  desk.ClickControl(desk.Form().cmdBrowseFolders);
  EXPECT_EQ(desk.Boxes(), "Tools;C:\\Tools;C:\\Tools");
  EXPECT_EQ(desk.world.Desktop.FolderQuestions().front().Text,
            "To select a folder, highlight it and click OK.");
  desk.world.Desktop.CancelFolder();
  desk.ClickControl(desk.Form().cmdBrowseFolders);
  EXPECT_EQ(desk.world.Desktop.FolderQuestions().back().StartFolder, "C:\\Tools");
}

TEST(CustomizeBoxes, AFolderOnNoDiskThatCannotBeLinkedIsTold) {
  BoxDesk desk;
  desk.world.Desktop.ChooseFolder({.Chosen = true, .Name = "Printers"});
  desk.world.Desktop.Answer("Unable to access the selected folder.", forms::msgbox::AnswerOk);
  desk.ClickControl(desk.Form().cmdBrowseFolders);
  EXPECT_EQ(desk.world.Desktop.AnswersLeft(), 0);
  EXPECT_EQ(desk.Boxes(), "Hammer;C:\\Tools\\Hammer.exe;C:\\Tools\\Hammer.exe");
}

TEST(CustomizeBoxes, AFileDialogThatFailsIsTold) {
  BoxDesk desk;
  const std::string before = desk.Boxes();
  desk.world.Desktop.AnswerAnyDialog(
      [](const forms::FileQuestion&) { return forms::FileChoice{.Failed = true}; }, nullptr);
  const auto expect = [&desk] {
    desk.world.Desktop.Answer("Unable to access the selected files.", forms::msgbox::AnswerOk);
  };
  expect();
  desk.ClickControl(desk.Form().cmdBrowseFiles);
  EXPECT_EQ(desk.world.Desktop.AnswersLeft(), 0) << "for the tree";
  expect();
  desk.ClickFlat(desk.Form().cmdSelectFile, desk.Form().picFiles);
  EXPECT_EQ(desk.world.Desktop.AnswersLeft(), 0) << "for a box";
  expect();
  desk.MenuBar("Options", "Use Custom Icon for Web Links Entries");
  EXPECT_EQ(desk.world.Desktop.AnswersLeft(), 0) << "for an option";
  EXPECT_EQ(desk.Boxes(), before);
  EXPECT_EQ(desk.Shown(), kAtFirst);
}

TEST(CustomizeBoxes, TheWindowMayCloseWhileADialogIsUpThatFails) {
  BoxDesk desk;
  desk.world.Desktop.AnswerAnyDialog(
      [](const forms::FileQuestion&) { return forms::FileChoice{.Failed = true}; }, nullptr);
  desk.world.Desktop.WhileDialogIsUp([&] { desk.Form().Unload(); });
  desk.ClickControl(desk.Form().cmdBrowseFiles);
  EXPECT_FALSE(desk.Form().IsLoaded());
  EXPECT_TRUE(desk.world.Desktop.Boxes().empty());
}

TEST(CustomizeBoxes, F2FillsTheBoxItIsPressedIn) {
  BoxDesk desk;
  desk.Form().txtCommand.SetFocus();
  desk.world.Desktop.ChooseFiles({"C:\\Tools\\Edit.exe"});
  desk.world.Desktop.PressKey(key::F2);
  EXPECT_EQ(desk.Boxes(), "Hammer;C:\\Tools\\Hammer.exe;C:\\Tools\\Edit.exe");
  desk.Form().txtFile.SetFocus();
  desk.world.Desktop.ChooseFiles({"C:\\Tools\\Clock.exe"});
  desk.world.Desktop.PressKey(key::F2);
  EXPECT_EQ(desk.Stored("Hammer").FIcon, "C:\\Tools\\Clock.exe");
  EXPECT_TRUE(desk.Form().txtFile.HasFocus());
}

TEST(CustomizeBoxes, TheFlatButtonsDoWhatTheKeysDo) {
  BoxDesk desk;
  desk.world.Desktop.ChooseFiles({"C:\\Tools\\Edit.exe"});
  desk.ClickFlat(desk.Form().cmdSelectFile, desk.Form().picFiles);
  desk.world.Desktop.ChooseFiles({"C:\\Tools\\Clock.exe"});
  desk.ClickFlat(desk.Form().cmdAllFiles, desk.Form().picFiles);
  EXPECT_EQ(desk.Boxes(), "Hammer;C:\\Tools\\Clock.exe;C:\\Tools\\Edit.exe");
  desk.world.Desktop.ChooseFolder("C:\\Tools");
  desk.ClickFlat(desk.Form().cmdSelectFolder, desk.Form().picFiles);
  EXPECT_EQ(desk.Stored("Hammer").FName, "C:\\Tools");
  EXPECT_EQ(desk.Stored("Hammer").FTitle, "Hammer") << "the command alone";
}

TEST(CustomizeBoxes, OnASeparatorTheKeysAnswerWithItsMessage) {
  for (const int pressed : {key::F2, kKeyF3}) {
    BoxDesk desk("Separator");
    desk.Form().txtFile.SetFocus();
    desk.world.Desktop.Answer(std::string(kSeparatorMsg), forms::msgbox::AnswerOk);
    desk.world.Desktop.PressKey(pressed);
    EXPECT_EQ(desk.world.Desktop.AnswersLeft(), 0);
    EXPECT_TRUE(desk.world.Desktop.FileQuestions().empty());
  }
}

TEST(CustomizeBoxes, EachTipShowsOnceAndWritesItsPosition) {
  struct Row {
    Option option;
    const char* title;
    std::function<void(BoxDesk&)> act;
  };
  const Row rows[] = {
      {Option::IconLibraryTipDone, "Icon Library",
       [](BoxDesk& d) { d.ClickFlat(d.Form().cmdLibrary, d.Form().picFiles); }},
      {Option::OtherFilesTipDone, "Other Files Icons",
       [](BoxDesk& d) { d.ClickFlat(d.Form().cmdAllFiles, d.Form().picFiles); }},
      {Option::SelectFileTipDone, "Select File/Folder",
       [](BoxDesk& d) { d.ClickFlat(d.Form().cmdSelectFile, d.Form().picFiles); }},
      {Option::AddFileTipDone, "Add File/Folder",
       [](BoxDesk& d) { d.ClickControl(d.Form().cmdBrowseFiles); }},
  };
  for (const Row& row : rows) {
    BoxDesk desk;
    desk.parts->TheProgram.OptionFlags.Set(row.option, false);
    if (row.option != Option::IconLibraryTipDone) desk.world.Desktop.CancelFiles();
    row.act(desk);
    ASSERT_TRUE(desk.parts->Tip.IsLoaded()) << row.title;
    EXPECT_EQ(desk.parts->Tip.lblTitle.Caption(), row.title);
    EXPECT_EQ(desk.parts->Tip.TipField, row.option);
    desk.parts->Tip.Unload();
    desk.parts->TheProgram.OptionFlags.Set(row.option, true);
    if (row.option != Option::IconLibraryTipDone) desk.world.Desktop.CancelFiles();
    row.act(desk);
    EXPECT_FALSE(desk.parts->Tip.IsLoaded()) << row.title;
  }
}

/// The library's window as the Customize window sees it.
struct FakeLibrary final : LibraryPort {
  std::string Caller;
  int Unloads = 0;
  void Show(std::string_view caller) override { Caller = caller; }
  void LoadWindow() override {}
  void UnloadWindow() override {
    ++Unloads;
    Caller.clear();
  }
  [[nodiscard]] bool WindowLoaded() const override { return !Caller.empty(); }
};

TEST(CustomizeBoxes, F3OpensTheLibraryWhoseIconIsTakenAtOnce) {
  BoxDesk desk;
  FakeLibrary library;
  desk.parts->TheProgram.Ports.Library = &library;
  desk.Form().txtFile.SetFocus();
  desk.world.Desktop.PressKey(kKeyF3);
  EXPECT_EQ(library.Caller, "frmCust");
  IconBoxPort& box = *desk.parts->TheProgram.Ports.CustomizeIcon;
  EXPECT_EQ(&box.BoxWindow(), &desk.Form());
  box.SetBrowsing(true);
  box.TakeIcon("\\icons\\clock.ico");
  box.SetBrowsing(false);
  EXPECT_EQ(desk.Stored("Hammer").FIcon, "\\icons\\clock.ico");
  EXPECT_TRUE(desk.Editor().TreeChanged);
  desk.Editor().TreeChanged = false;
  desk.Form().UnloadWindow();
  EXPECT_EQ(library.Unloads, 1) << "the library goes with the window";
}

TEST(CustomizeBoxes, AreEnabledForEntriesOnly) {
  BoxDesk desk;
  const frmCust& form = desk.Form();
  const std::vector<const forms::Control*> all = {
      &form.txtTitle,   &form.txtFile,     &form.txtCommand,     &form.cmdOK,
      &form.chkSelect0, &form.chkSelect1,  &form.cmdBrowseFiles, &form.cmdBrowseFolders,
      &form.cmdLibrary, &form.cmdAllFiles, &form.cmdSelectFile,  &form.cmdSelectFolder};
  for (const forms::Control* control : all) EXPECT_TRUE(control->Enabled()) << control->Name();
  EXPECT_EQ(form.txtTitle.BackColor(), forms::color::WindowGround);
  desk.ClickNode("Menu Buttons");
  for (const forms::Control* control : all) EXPECT_FALSE(control->Enabled()) << control->Name();
  EXPECT_EQ(form.txtTitle.BackColor(), forms::color::ButtonFace);
}

TEST(CustomizeBoxes, CaptionsAndToolTips) {
  CustDesk desk;
  const frmCust& form = desk.Form();
  EXPECT_EQ(form.cmdOK.Caption() + form.cmdSave.Caption() + form.cmdCancel.Caption(),
            "O&K&Update ToolbarE&xit");
  EXPECT_EQ(
      form.fraBrowse.Caption() + form.cmdBrowseFiles.Caption() + form.cmdBrowseFolders.Caption(),
      "AddFi&le...Fol&der");
  EXPECT_EQ(form.fraSelect.Caption() + form.chkSelect0.Caption() + form.chkSelect1.Caption(),
            "Select Files From&Start MenuDeskto&p");
  EXPECT_EQ(form.cmdOK.ToolTip(), "Confirm Changes in Entry Boxes");
  EXPECT_EQ(form.cmdBrowseFiles.ToolTip(), "Show Open File Dialog");
  EXPECT_EQ(form.cmdBrowseFolders.ToolTip(), "Show Browse for Folder Dialog");
  EXPECT_EQ(form.cmdSelectFile.Caption() + form.cmdSelectFile.ToolTip(), "FileSelect File");
  EXPECT_EQ(form.cmdSelectFolder.Caption() + form.cmdSelectFolder.ToolTip(), "FolderSelect Folder");
  EXPECT_EQ(form.cmdLibrary.Caption() + form.cmdLibrary.ToolTip(),
            "LibrarySelect Icon from Library");
  EXPECT_EQ(form.cmdAllFiles.Caption() + form.cmdAllFiles.ToolTip(), "FileSelect Icon From File");
  std::string tools;
  for (const forms::ToolBarButton& button : form.Toolbar1.Buttons()) {
    tools += button.IsGap() ? "|" : button.Key + ":" + button.Tip + ";";
  }
  EXPECT_EQ(tools,
            "up:Move Selection Up;down:Move Selection down;|button:Add New Button;new:Add New Menu "
            "Item;sep:Insert Separator;|cut:Cut Item;copy:Copy Item;paste:Paste;|delete:Delete;"
            "undo:Undo Delete;");
}

}  // namespace
}  // namespace corvelle
