#include "customize/CustEditor.h"

#include <gtest/gtest.h>

#include "customize/EditorBench.h"

namespace corvelle {
namespace {

using SaidTexts = std::vector<std::string>;

constexpr const char* kUsual =
    "Letters(Alpha Beta - Gamma) Tools(Hammer Anvil) - One(Only) Bare | Clock - Paint";

// Filling the tree.

TEST(InitMenuTree, WithoutFilesThereAreTheTwoRootsOnly) {
  EditorBench bench((MenuSet()));
  EXPECT_EQ(bench.Keys(), "QM:; QM2:");
  EXPECT_TRUE(bench.Editor.Tree.Children(kMenusRoot).empty());
  EXPECT_EQ(bench.Editor.Tree.At(kMenusRoot).Text, "Menu Buttons");
  EXPECT_EQ(bench.Editor.Tree.At(kSinglesRoot).Text, "Single Buttons");
}

TEST(InitMenuTree, AMenuWithItemsHasAPlaceholderAndOneOfOneRecordHasNone) {
  EditorBench bench;
  bench.Editor.InitMenuTree(EditorBench::Usual(), "C:\\App\\corvelle.exe", "C:\\App\\Menus\\");
  CustTree& tree = bench.Editor.Tree;
  EXPECT_EQ(bench.Keys(), "QM: B1. B2. B3 B4. B5; QM2: M1 M2 M3");
  const CustRef placeholder = tree.Children(bench.Node("Letters")).front();
  EXPECT_EQ(tree.At(placeholder).Text, "Letters");
  EXPECT_EQ(tree.At(placeholder).Entry, clsFile());
  EXPECT_EQ(tree.At(placeholder).Picture, NodePicture());
  EXPECT_TRUE(tree.Children(bench.Node("Bare")).empty());
  EXPECT_EQ(tree.At(kMenusRoot).Tag, "main");
  EXPECT_EQ(tree.At(kSinglesRoot).Tag, "C:\\App\\corvelle.exe");
  EXPECT_EQ(tree.At(bench.Node("Tools")).Tag, "C:\\App\\Menus\\BMENU002.MNU");
  EXPECT_EQ(tree.At(bench.Node("Clock")).Tag, "C:\\App\\Menus\\BMENU001.BTN");
  EXPECT_EQ(tree.ToMenuSet(), EditorBench::Usual()) << "nothing is lost behind a placeholder";
}

TEST(InitMenuTree, ABareMenuGetsItsFirstItemLater) {
  EditorBench bench;
  bench.Pick("Bare");
  EXPECT_TRUE(bench.Editor.AddMenuItem());
  EXPECT_EQ(bench.Editor.Tree.Children(bench.Node("Bare")).size(), 1U);
}

TEST(Expand, TheFirstRootLoadsAllMenusAndTheirPicturesComeWithEachMenu) {
  EditorBench bench;
  CustTree& tree = bench.Editor.Tree;
  EXPECT_EQ(bench.Keys(), "QM: B1.M4.M5.M6.M7 B2.M8.M9 B3 B4.M10 B5; QM2: M1 M2 M3");
  EXPECT_EQ(tree.At(kMenusRoot).Tag, "");
  EXPECT_EQ(tree.At(bench.Node("Tools")).Picture,
            (NodePicture{NodePicture::Kind::Icon, "C:\\t.ico", true}));
  EXPECT_EQ(tree.At(bench.Node("Hammer")).Picture, NodePicture());
  bench.Editor.Expand(bench.Node("Tools"));
  EXPECT_EQ(tree.At(bench.Node("Hammer")).Picture,
            (NodePicture{NodePicture::Kind::Icon, "C:\\Hammer.ico", false}));
  EXPECT_EQ(tree.At(bench.Node("Tools")).Tag, "");
}

TEST(Keys, GoOnAboveTheLastFileOfAThousandMenus) {
  MenuSet set;
  for (int i = 0; i < 999; ++i) set.Menus.push_back({{std::to_string(i), "", ""}, {}});
  EditorBench bench(set);
  bench.Pick(kMenusRoot);
  bench.Editor.AddButton();
  EXPECT_EQ(bench.SelectedKey(), "B1000");
  EXPECT_EQ(bench.Editor.Tree.ToMenuSet().Menus.size(), 1000U);
}

TEST(Keys, AreFoundIgnoringCase) {
  EditorBench bench;
  EXPECT_EQ(bench.Editor.Tree.FindKey("qm2"), kSinglesRoot);
  EXPECT_EQ(bench.Editor.Tree.FindKey("m8"), bench.Node("Hammer"));
}

// The entry boxes.

TEST(Confirm, AnAddressThatBeginsWithWwwGetsItsScheme) {
  struct Row {
    const char* command;
    const char* icon;
    const char* wantedCommand;
    const char* wantedIcon;
  };
  const Row rows[] = {
      {"www.a.example", "", "http://www.a.example", "http"},
      {"WWW.a.example", "C:\\gone.ico", "http://WWW.a.example", "http"},
      {"www.a.example", "C:\\there.ico", "http://www.a.example", "C:\\there.ico"},
      {"www.a.example", "C:\\there.ico|2", "http://www.a.example", "C:\\there.ico|2"},
      {"www.a.example", "\\icons\\gone.ico", "http://www.a.example", "\\icons\\gone.ico"},
      {"http:\\\\a\\b", "New", "http://a/b", "http"},
      {"https://a", "", "https://a", "http"},
      {"httpd\\x", "", "httpd/x", ""},
      {"C:\\www.exe", "", "C:\\www.exe", ""},
      {"  www.b ", "  ", "http://www.b", "http"},
  };
  for (const Row& row : rows) {
    EditorBench bench;
    bench.Host.Files = {"C:\\there.ico"};
    bench.Pick("Alpha");
    bench.Editor.Boxes.txtCommand = row.command;
    bench.Editor.Boxes.txtFile = row.icon;
    EXPECT_TRUE(bench.Editor.cmdOK());
    EXPECT_EQ(bench.Editor.Boxes.txtCommand, row.wantedCommand) << row.command;
    EXPECT_EQ(bench.Editor.Boxes.txtFile, row.wantedIcon) << row.command;
    EXPECT_EQ(bench.Editor.Tree.At(bench.Node("Alpha")).Entry,
              (clsFile{row.wantedIcon, row.wantedCommand}));
  }
}

TEST(Confirm, OfASeparatorRestoresTheBoxesAndSaysWhy) {
  EditorBench bench;
  bench.Pick(bench.Editor.Tree.Children(bench.Node("Letters"))[2]);
  bench.Editor.Boxes = {"Other", "x", "y", true};
  EXPECT_FALSE(bench.Editor.cmdOK());
  EXPECT_EQ(bench.BoxTexts(), "Separator;;");
  EXPECT_EQ(
      bench.Host.Said,
      (SaidTexts{"64 Separator cannot be edited. Click the Add File or Folder button to replace "
                 "it."}));
  EXPECT_FALSE(bench.Editor.TreeChanged);
}

TEST(Confirm, OfASeparatorReplacesItWhileAnEntryIsAdded) {
  EditorBench bench;
  bench.Pick(bench.Editor.Tree.Children(bench.Node("Letters"))[2]);
  bench.Editor.AddingEntry = true;
  bench.Editor.AddFiles({"C:\\New.exe"});
  EXPECT_EQ(bench.Shape(),
            "Letters(Alpha Beta New Gamma) Tools(Hammer Anvil) - One(Only) Bare | Clock - Paint");
  EXPECT_TRUE(bench.Host.Said.empty());
}

TEST(Confirm, WhileSavingSaysNothingAndLeavesTheChangeFlag) {
  EditorBench bench;
  bench.Editor.SavingNow = true;
  bench.Pick(bench.Editor.Tree.Children(bench.Node("Letters"))[2]);
  EXPECT_FALSE(bench.Editor.cmdOK());
  bench.Pick("Alpha");
  bench.Editor.Boxes.txtTitle = "Other";
  EXPECT_TRUE(bench.Editor.cmdOK());
  EXPECT_TRUE(bench.Host.Said.empty());
  EXPECT_FALSE(bench.Editor.TreeChanged);
  EXPECT_EQ(bench.Editor.Tree.At(bench.Editor.Selected()).Text, "Other");
}

TEST(Confirm, OnARootClearsTheBoxes) {
  EditorBench bench;
  bench.Editor.Boxes.txtTitle = "x";
  EXPECT_FALSE(bench.Editor.cmdOK());
  EXPECT_EQ(bench.BoxTexts(), "off");
  EXPECT_FALSE(bench.Editor.TreeChanged);
}

TEST(Confirm, AHideFlagDimsASingleButtonToo) {
  EditorBench bench;
  bench.Pick("Clock");
  bench.Editor.Boxes.txtCommand = " /H ";
  bench.Editor.cmdOK();
  EXPECT_TRUE(bench.Editor.Tree.At(bench.Node("Clock")).Picture.Hidden);
}

TEST(Confirm, AnEmptyIconIsKeptEmptyAndShownAsUnknown) {
  EditorBench bench;
  bench.Pick("Clock");
  bench.Editor.Boxes.txtFile = " ";
  bench.Editor.cmdOK();
  EXPECT_EQ(bench.Editor.Tree.At(bench.Node("Clock")).Entry.FileName, "");
  EXPECT_EQ(bench.Editor.Tree.At(bench.Node("Clock")).Picture, NodePicture());
}

TEST(LabelEdit, ARenameAloneChangesTheTreeButNotTheFlag) {
  EditorBench bench;
  bench.Pick("Alpha");
  EXPECT_TRUE(bench.Editor.AfterLabelEdit(bench.Editor.Selected(), "First"));
  EXPECT_EQ(bench.Editor.Boxes.txtTitle, "First");
  EXPECT_EQ(bench.Editor.Tree.ToMenuSet().Menus[0].Items[0].FTitle, "First");
  EXPECT_FALSE(bench.Editor.TreeChanged);
}

TEST(LabelEdit, ASeparatorAndARootKeepTheirTexts) {
  EditorBench bench;
  EXPECT_FALSE(bench.Editor.AfterLabelEdit(kMenusRoot, "x"));
  EXPECT_FALSE(bench.Editor.AfterLabelEdit(bench.Editor.Tree.Children(kMenusRoot)[2], "x"));
  EXPECT_EQ(bench.Shape(), kUsual);
}

// Commands.

TEST(Copy, OfAMenuButtonBeepsAndOfASingleButtonCanBePastedBehindTheLast) {
  EditorBench bench;
  bench.Pick("Letters");
  EXPECT_FALSE(bench.Editor.Copy());
  EXPECT_EQ(bench.Host.Beeps, 1);
  bench.Pick("Clock");
  EXPECT_TRUE(bench.Editor.Copy());
  bench.Pick(kSinglesRoot);
  EXPECT_TRUE(bench.Editor.Paste());
  EXPECT_TRUE(bench.Editor.Paste()) << "a paste leaves the clipboard as it is";
  EXPECT_EQ(bench.Shape(),
            "Letters(Alpha Beta - Gamma) Tools(Hammer Anvil) - One(Only) Bare | Clock - Paint "
            "Clock Clock");
}

TEST(Paste, OnAnEntryPutsTheCopyInFrontAndOnAMenuButtonAtItsEnd) {
  EditorBench bench;
  bench.Pick("Hammer");
  bench.Editor.Copy();
  bench.Pick("Beta");
  bench.Editor.Paste();
  EXPECT_EQ(bench.BoxTexts(), "Hammer;C:\\Hammer.ico;C:\\Hammer.exe");
  bench.Pick("Letters");
  bench.Editor.Paste();
  EXPECT_EQ(bench.Shape(),
            "Letters(Alpha Hammer Beta - Gamma Hammer) Tools(Hammer Anvil) - One(Only) Bare | "
            "Clock - Paint");
}

TEST(Paste, OfASeparatorEmptiesTheBoxes) {
  EditorBench bench;
  bench.Pick(bench.Editor.Tree.Children(bench.Node("Letters"))[2]);
  bench.Editor.Copy();
  bench.Pick("Hammer");
  bench.Editor.Paste();
  EXPECT_EQ(bench.BoxTexts(), "Separator;;");
}

TEST(Delete, AsksBeforeAMenuOfTwoItemsAndNotBeforeOneOfASingleItem) {
  EditorBench bench;
  bench.Pick("One");
  EXPECT_TRUE(bench.Editor.Delete());
  EXPECT_TRUE(bench.Host.Said.empty());
  bench.Host.Answer = 7;
  bench.Pick("Tools");
  EXPECT_FALSE(bench.Editor.Delete());
  EXPECT_EQ(
      bench.Host.Said,
      (SaidTexts{"20 You have selected to delete the entire menu.\r\nDo you want to continue ?"}));
  EXPECT_EQ(bench.Shape(),
            "Letters(Alpha Beta - Gamma) Tools(Hammer Anvil) - Bare | Clock - Paint");
}

TEST(Delete, DoesNotGoOnWhenTheWindowWasClosedOverItsQuestion) {
  EditorBench bench;
  struct Closing final : CustHost {
    CustEditor* Editor = nullptr;
    void Beep() override {}
    int Say(std::string_view, unsigned) override {
      Editor->Close();
      return 6;
    }
    bool FileExists(std::string_view) override { return false; }
    bool IsPlainFolder(std::string_view) override { return false; }
    std::vector<DroppedName> NamesOf(const std::vector<std::string>&) override { return {}; }
    std::string RecentFolder() override { return {}; }
  } host;
  CustEditor editor(host);
  host.Editor = &editor;
  editor.InitMenuTree(EditorBench::Usual(), "", "");
  editor.Expand(kMenusRoot);
  editor.Select(editor.Tree.Children(kMenusRoot)[0]);
  EXPECT_FALSE(editor.Delete());
  EXPECT_FALSE(editor.SortNode());
  EXPECT_EQ(editor.Tree.ToMenuSet(), EditorBench::Usual());
}

TEST(UndoDelete, OfAMenuGivesItsNodesNewKeys) {
  EditorBench bench;
  bench.Pick("Tools");
  bench.Editor.Delete();
  EXPECT_TRUE(bench.Editor.UndoDelete());
  EXPECT_EQ(bench.Shape(), kUsual);
  EXPECT_EQ(bench.Keys(), "QM: B1.M4.M5.M6.M7 B6.M11.M12 B3 B4.M10 B5; QM2: M1 M2 M3");
  EXPECT_EQ(bench.Editor.Tree.FindKey("B2"), kNoRef);
  EXPECT_EQ(bench.Editor.Tree.At(bench.Node("Tools")).Tag, "");
  EXPECT_EQ(bench.Editor.Tree.At(bench.Node("Hammer")).Picture, NodePicture());
}

TEST(UndoDelete, OfAMenuButtonWithoutItemsGivesItTheKeyOfAnItem) {
  EditorBench bench;
  bench.Pick("Bare");
  bench.Editor.Delete();
  bench.Editor.UndoDelete();
  EXPECT_EQ(bench.SelectedKey(), "M11");
  EXPECT_EQ(bench.Shape(), kUsual);
}

TEST(UndoDelete, OfTheFirstEntryPutsItFirstAgainWhateverCameMeanwhile) {
  EditorBench bench;
  bench.Pick("Alpha");
  bench.Editor.Delete();
  bench.Pick("Beta");
  bench.Editor.InsertMenuItem();
  bench.Editor.UndoDelete();
  EXPECT_EQ(bench.Shape(),
            "Letters(Alpha New Menu Item Beta - Gamma) Tools(Hammer Anvil) - One(Only) Bare | "
            "Clock - Paint");
}

TEST(UndoDelete, TwiceMakesASecondCopy) {
  EditorBench bench;
  bench.Pick("Anvil");
  bench.Editor.Delete();
  bench.Editor.UndoDelete();
  bench.Editor.UndoDelete();
  EXPECT_EQ(bench.Shape(),
            "Letters(Alpha Beta - Gamma) Tools(Hammer Anvil Anvil) - One(Only) Bare | Clock - "
            "Paint");
}

TEST(UndoDelete, SaysThatTheNodeBeforeIsGone) {
  EditorBench bench;
  bench.Pick("Tools");
  bench.Editor.Delete();
  bench.Pick("Letters");
  bench.Editor.DragNode = bench.Node("Letters");
  bench.Editor.CurIndex = kMenusRoot;
  EXPECT_TRUE(bench.Editor.MoveMenuNode(false)) << "and has another key now";
  bench.Host.Said.clear();
  const std::string shape = bench.Shape();
  EXPECT_FALSE(bench.Editor.UndoDelete());
  EXPECT_EQ(bench.Host.Said, (SaidTexts{"64 Error: 35601 - Element not found"}));
  EXPECT_EQ(bench.Shape(), shape);
}

TEST(UndoDelete, WithoutADeletionBeeps) {
  EditorBench bench;
  bench.Pick("Alpha");
  bench.Editor.Cut();
  bench.Editor.TreeChanged = false;
  EXPECT_FALSE(bench.Editor.UndoDelete());
  EXPECT_EQ(bench.Host.Beeps, 1);
  EXPECT_FALSE(bench.Editor.TreeChanged);
}

TEST(Sort, AsksFirstAndAnythingButYesLeavesTheOrder) {
  EditorBench bench;
  bench.Pick("Tools");
  bench.Host.Answer = 7;
  EXPECT_FALSE(bench.Editor.SortNode());
  EXPECT_EQ(bench.Host.Said,
            (SaidTexts{"292 Note that once you sort a node, you cannot undo sorting.\r\nContinue "
                       "sorting this node?"}));
  EXPECT_EQ(bench.Shape(), kUsual);
  bench.Host.Answer = 6;
  EXPECT_TRUE(bench.Editor.SortNode());
  EXPECT_EQ(bench.Shape(),
            "Letters(Alpha Beta - Gamma) Tools(Anvil Hammer) - One(Only) Bare | Clock - Paint");
}

TEST(MoveUpAndDown, FirstAndLastOfTheirSiblingsBeep) {
  EditorBench bench;
  for (const char* first : {"Letters", "Alpha", "Only", "Clock"}) {
    bench.Pick(first);
    EXPECT_FALSE(bench.Editor.MoveSelectionUp()) << first;
  }
  for (const char* last : {"Bare", "Gamma", "Only", "Paint"}) {
    bench.Pick(last);
    EXPECT_FALSE(bench.Editor.MoveSelectionDown()) << last;
  }
  EXPECT_EQ(bench.Host.Beeps, 8);
  EXPECT_EQ(bench.Shape(), kUsual);
  EXPECT_FALSE(bench.Editor.TreeChanged);
}

/// Drags one node to another and tells what came of it.
std::string Dragged(const std::string& from, const std::string& to, bool copy = false) {
  EditorBench bench;
  bench.Editor.DragNode = bench.Node(from);
  bench.Editor.CurIndex = bench.Node(to);
  bench.Pick(from);
  bench.Editor.DragNode = bench.Node(from);
  bench.Editor.CurIndex = bench.Node(to);
  bench.Editor.MoveNode(false, copy);
  return (bench.Host.Beeps > 0 ? "beep " : "") + bench.Shape() + " " + bench.SelectedKey();
}

TEST(Drag, AnEntryGoesToTheEndOfAMenuAndInFrontOfAnEntry) {
  EXPECT_EQ(Dragged("Alpha", "Tools"),
            "Letters(Beta - Gamma) Tools(Hammer Anvil Alpha) - One(Only) Bare | Clock - Paint M11");
  EXPECT_EQ(Dragged("Alpha", "Anvil"),
            "Letters(Beta - Gamma) Tools(Hammer Alpha Anvil) - One(Only) Bare | Clock - Paint M11");
  EXPECT_EQ(Dragged("Alpha", "Gamma"),
            "Letters(Beta - Alpha Gamma) Tools(Hammer Anvil) - One(Only) Bare | Clock - Paint M11");
  EXPECT_EQ(Dragged("Alpha", "Single Buttons"),
            "Letters(Beta - Gamma) Tools(Hammer Anvil) - One(Only) Bare | Clock - Paint Alpha M11");
  EXPECT_EQ(
      Dragged("Clock", "Bare"),
      "Letters(Alpha Beta - Gamma) Tools(Hammer Anvil) - One(Only) Bare(Clock) | - Paint M11");
  EXPECT_EQ(Dragged("Alpha", "Menu Buttons"), "beep " + std::string(kUsual) + " M4");
}

TEST(Drag, AMenuButtonGoesInFrontOfAnotherWithItsItems) {
  EXPECT_EQ(Dragged("Tools", "Letters"),
            "Tools(Hammer Anvil) Letters(Alpha Beta - Gamma) - One(Only) Bare | Clock - Paint B6");
  EXPECT_EQ(Dragged("Letters", "One"),
            "Tools(Hammer Anvil) - Letters(Alpha Beta - Gamma) One(Only) Bare | Clock - Paint B6");
  EXPECT_EQ(Dragged("Letters", "Menu Buttons"),
            "Tools(Hammer Anvil) - One(Only) Bare Letters(Alpha Beta - Gamma) | Clock - Paint B6");
}

TEST(Drag, AMenuButtonDroppedOnASingleButtonOrAnEntryBeeps) {
  for (const char* target : {"Clock", "Single Buttons", "Hammer", "Alpha"}) {
    EXPECT_EQ(Dragged("Letters", target), "beep " + std::string(kUsual) + " B1") << target;
  }
}

TEST(Drag, WithCopyLeavesTheNodeWhereItWas) {
  EXPECT_EQ(Dragged("Alpha", "Anvil", true),
            "Letters(Alpha Beta - Gamma) Tools(Hammer Alpha Anvil) - One(Only) Bare | Clock - "
            "Paint M11");
  EXPECT_EQ(Dragged("Tools", "Letters", true),
            "Tools(Hammer Anvil) Letters(Alpha Beta - Gamma) Tools(Hammer Anvil) - One(Only) Bare "
            "| Clock - Paint B6");
}

TEST(Drag, ARestoredButtonWithItemsTakesThemAlongWhateverItsKey) {
  EditorBench bench;
  bench.Pick("Bare");
  bench.Editor.Delete();
  bench.Editor.UndoDelete();
  bench.Editor.ClipNodeTitle = "Clip";
  bench.Editor.Paste();
  bench.Pick("Bare");
  EXPECT_TRUE(bench.Editor.MoveSelectionUp());
  EXPECT_EQ(bench.Shape(),
            "Letters(Alpha Beta - Gamma) Tools(Hammer Anvil) - Bare(Clip) One(Only) | Clock - "
            "Paint");
}

TEST(Modules, FillTheSelectedEntry) {
  struct Row {
    CustModule module;
    const char* boxes;
  };
  const Row rows[] = {
      {CustModule::DesktopItems, "Desktop Items;\\icons\\desktop.ico;CSIDL_DESKTOP"},
      {CustModule::ControlPanel, "Control Panel;\\icons\\ctrpanel.ico;CSIDL_CONTROLS"},
      {CustModule::Printers, "Printers;\\icons\\PRINTFLD.ICO;CSIDL_PRINTERS"},
      {CustModule::Documents, "Recent Documents Folder;C:\\Recent\\*.*/u;C:\\Recent\\*.*/u"},
      {CustModule::NetSearch, "Net Search;\\icons\\netsrch.ico;NetSearch"},
      {CustModule::FileFind, "Find Files;\\icons\\filefind.ico;FileFind"},
      {CustModule::FindComputer, "Find Computer;\\icons\\comp02.ico;FindComputer"},
      {CustModule::RunDialog, "Run;\\icons\\app02.ico;RunDialog"},
      {CustModule::MinimizeAllWindows,
       "Minimize All Windows;\\icons\\taskbar.ico;MinimizeAllWindows"},
      {CustModule::UndoMinimizeAll, "Undo Minimize All;\\icons\\Windows.ico;UndoMinimizeAll"},
      {CustModule::ClearTempFiles, "Delete Temporary Files;\\icons\\delfiles.ico;ClearTempFolder"},
      {CustModule::ClearDocuments, "Clear Documents Menu;\\icons\\Recycle2.ico;ClearRecentDocs"},
  };
  ASSERT_EQ(std::size(rows), CustModuleTable().size());
  for (const Row& row : rows) {
    EditorBench bench;
    bench.Pick("Alpha");
    EXPECT_TRUE(bench.Editor.InsertModule(row.module));
    EXPECT_EQ(bench.BoxTexts(), row.boxes);
    EXPECT_EQ(bench.Editor.Tree.InOrder().size(), 15U) << "no node is made";
  }
}

TEST(Modules, OnASeparatorAreRefused) {
  EditorBench bench;
  bench.Pick(bench.Editor.Tree.Children(bench.Node("Letters"))[2]);
  EXPECT_FALSE(bench.Editor.InsertModule(CustModule::NetSearch));
  EXPECT_EQ(bench.Host.Said, (SaidTexts{"64 " + std::string(kSeparatorMsg)}));
  EXPECT_EQ(bench.BoxTexts(), "Separator;;");
}

}  // namespace
}  // namespace corvelle
