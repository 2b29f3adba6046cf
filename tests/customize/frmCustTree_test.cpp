// The tree of the Customize window under the user's hands.

#include <gtest/gtest.h>

#include "customize/CustDesk.h"
#include "sim/SimTree.h"

namespace corvelle {
namespace {

using forms::MouseButton;
namespace key = forms::key;

TEST(CustomizeTree, OpensWithBothRootsAndTheMenusRead) {
  CustDesk desk;
  EXPECT_EQ(desk.Shown(), kAtFirst);
  EXPECT_EQ(desk.Selected(), "Menu Buttons");
  EXPECT_EQ(desk.Boxes(), "off");
  EXPECT_TRUE(desk.Form().TreeView1.IsExpanded(desk.Node("Menu Buttons")));
  EXPECT_FALSE(desk.Form().TreeView1.IsExpanded(desk.Node("Letters")));
  EXPECT_EQ(desk.Form().Caption(), "Corvelle . Customize");
}

TEST(CustomizeTree, WithoutMenusTheFirstRootCannotBeOpened) {
  CustDesk desk({}, false);
  for (const std::string& name : desk.world.Files.Names(CustDesk::kMenus)) {
    EXPECT_TRUE(desk.world.Files.Remove(CustDesk::kMenus + name));
  }
  desk.Open();
  EXPECT_EQ(desk.Shown(), "|");
  EXPECT_EQ(desk.Expander("Menu Buttons"), PixelPoint{});
}

TEST(CustomizeTree, AClickShowsTheEntryInTheBoxes) {
  CustDesk desk;
  desk.Expand("Letters");
  desk.ClickNode("Alpha");
  EXPECT_EQ(desk.Boxes(), "Alpha;C:\\Tools\\Alpha.exe;C:\\Tools\\Alpha.exe");
  desk.ClickNode("Separator");
  EXPECT_EQ(desk.Boxes(), "Separator;;");
  desk.ClickNode("Single Buttons");
  EXPECT_EQ(desk.Boxes(), "off");
  EXPECT_FALSE(desk.Form().cmdBrowseFiles.Enabled());
  EXPECT_FALSE(desk.Form().cmdLibrary.Enabled());
  EXPECT_FALSE(desk.Form().cmdOK.Enabled());
}

TEST(CustomizeTree, TheArrowKeysSelectToo) {
  CustDesk desk;
  desk.world.Desktop.PressKey(key::Down);
  EXPECT_EQ(desk.Selected(), "Letters");
  EXPECT_EQ(desk.Boxes(), "Letters;Button;");
}

// An input method types without a key.
TEST(CustomizeTree, WhatIsTypedWhileShiftIsHeldIsSwallowedAndNotAfterwards) {
  CustDesk desk;
  ASSERT_TRUE(desk.Form().TreeView1.HasFocus());
  const auto swallows = [&desk] { return desk.Form().TreeView1.KeyPress(U'\u00e9'); };
  EXPECT_FALSE(swallows());
  desk.world.Desktop.KeyDown(key::Shift);
  EXPECT_TRUE(swallows());
  desk.world.Desktop.KeyUp(key::Shift);
  EXPECT_FALSE(swallows());
}

TEST(CustomizeTree, ForASecondAfterAnExpansionNoMenuComesAndNoDragBegins) {
  CustDesk desk;
  desk.ClickAt(desk.Expander("Letters"));
  desk.ClickAt(desk.Label("Alpha"), MouseButton::Right);
  EXPECT_TRUE(desk.world.Desktop.Popups().empty());
  desk.Drag("Alpha", "Tools");
  EXPECT_EQ(desk.Shown(), kAtFirst);
  desk.world.Desktop.Advance(1100);
  desk.ClickAt(desk.Label("Alpha"), MouseButton::Right);
  EXPECT_EQ(desk.world.Desktop.Popups().size(), 1U);
}

TEST(CustomizeTree, ACollapseHoldsItOffToo) {
  CustDesk desk;
  desk.Expand("Letters");
  desk.ClickAt(desk.Expander("Letters"));
  desk.ClickAt(desk.Label("Tools"), MouseButton::Right);
  EXPECT_TRUE(desk.world.Desktop.Popups().empty());
}

TEST(CustomizeTree, TheKeysOfItsCommands) {
  struct Row {
    const char* node;
    std::vector<int> held;
    int key;
    const char* shown;
  };
  const Row rows[] = {
      {"Tools",
       {key::Ctrl},
       'B',
       "Letters(Alpha Beta -) Tools(Hammer Anvil) New Button(New Menu Item) | Clock Paint"},
      {"Tools",
       {key::Ctrl},
       'M',
       "Letters(Alpha Beta -) Tools(Hammer Anvil New Menu Item) | Clock Paint"},
      {"Hammer", {key::Ctrl}, 'S', "Letters(Alpha Beta -) Tools(- Hammer Anvil) | Clock Paint"},
      {"Hammer",
       {key::Shift},
       key::Insert,
       "Letters(Alpha Beta -) Tools(- Hammer Anvil) | Clock Paint"},
      {"Hammer", {key::Ctrl}, 'X', "Letters(Alpha Beta -) Tools(Anvil) | Clock Paint"},
      {"Hammer", {}, key::Delete, "Letters(Alpha Beta -) Tools(Anvil) | Clock Paint"},
      {"Single Buttons", {}, key::Delete, kAtFirst},
      {"Single Buttons", {key::Ctrl}, 'S', kAtFirst},
      {"Tools", {}, key::Enter, kAtFirst},
  };
  for (const Row& row : rows) {
    CustDesk desk;
    desk.Expand("Tools");
    desk.ClickNode(row.node);
    for (const int held : row.held) desk.world.Desktop.KeyDown(held);
    desk.world.Desktop.PressKey(row.key);
    for (const int held : row.held) desk.world.Desktop.KeyUp(held);
    EXPECT_EQ(desk.Shown(), row.shown) << row.node << " " << row.key;
    EXPECT_EQ(desk.world.Desktop.Beeps(), 0) << row.node << " " << row.key;
    EXPECT_TRUE(desk.Form().TreeView1.HasFocus());
  }
}

TEST(CustomizeTree, CutPasteDeleteAndUndoByKeys) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.ClickNode("Hammer");
  desk.Ctrl('C');
  desk.ClickNode("Anvil");
  desk.Ctrl('V');
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Hammer Hammer Anvil) | Clock Paint");
  desk.world.Desktop.PressKey(key::Delete);
  EXPECT_EQ(desk.Shown(), kAtFirst);
  desk.Ctrl('Z');
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Hammer Hammer Anvil) | Clock Paint");
  EXPECT_EQ(desk.Selected(), "Hammer");
}

TEST(CustomizeTree, RenamesByF2AndByAClickOnTheSelectedLabel) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.ClickNode("Hammer");
  desk.world.Desktop.PressKey(key::F2);
  desk.world.Desktop.Type("Mallet");
  desk.world.Desktop.PressKey(key::Enter);
  desk.world.Desktop.Pump();
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Mallet Anvil) | Clock Paint");
  EXPECT_EQ(desk.Form().txtTitle.Text(), "Mallet");
  EXPECT_FALSE(desk.Editor().TreeChanged);
}

// A tool bar takes no focus, so that the label is still being typed.
TEST(CustomizeTree, ALabelThatIsBeingTypedIsTakenBeforeACommandOfTheToolBar) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.ClickNode("Anvil");
  desk.world.Desktop.PressKey(key::F2);
  desk.world.Desktop.Type("Block");
  desk.Tool("up");
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Block Hammer) | Clock Paint");
  EXPECT_EQ(desk.Form().txtTitle.Text(), "Block");
}

TEST(CustomizeTree, TheTickAfterAMenuWasOpenedDoesNotScroll) {
  CustDesk desk;
  for (int i = 3; i <= 60; ++i) {
    desk.PutMenu(i, {"Menu" + std::to_string(i), "Button", ""}, {CustDesk::Entry("Saw")});
  }
  desk.Form().Unload();
  desk.Open();
  ASSERT_EQ(desk.Selected(), "Menu Buttons");
  forms::TreeView& tree = desk.Form().TreeView1;
  tree.SetFirstVisible(desk.Node("Menu40"));
  desk.ClickAt(desk.Expander("Menu42"));
  ASSERT_TRUE(tree.IsExpanded(desk.Node("Menu42")));
  const forms::NodeId first = tree.FirstVisible();
  desk.world.Desktop.Advance(1100);
  EXPECT_EQ(tree.FirstVisible(), first);
  EXPECT_NE(first, desk.Node("Menu Buttons"));
}

TEST(CustomizeTree, ASeparatorRefusesARenameAndARootHasNone) {
  CustDesk desk;
  desk.Expand("Letters");
  desk.ClickNode("Separator");
  desk.world.Desktop.PressKey(key::F2);
  desk.world.Desktop.Type("x");
  desk.world.Desktop.PressKey(key::Enter);
  desk.world.Desktop.Pump();
  EXPECT_EQ(desk.Shown(), kAtFirst);
  desk.ClickNode("Menu Buttons");
  desk.world.Desktop.PressKey(key::F2);
  EXPECT_EQ(desk.Form().TreeView1.Edited(), forms::kNoNode);
}

TEST(CustomizeTree, ADragMovesAnEntryToTheEndOfAMenuAndInFrontOfAnEntry) {
  CustDesk desk;
  desk.Expand("Letters");
  desk.Expand("Tools");
  desk.Drag("Alpha", "Tools");
  EXPECT_EQ(desk.Shown(), "Letters(Beta -) Tools(Hammer Anvil Alpha) | Clock Paint");
  EXPECT_EQ(desk.Selected(), "Alpha");
  desk.Drag("Beta", "Anvil");
  EXPECT_EQ(desk.Shown(), "Letters(-) Tools(Hammer Beta Anvil Alpha) | Clock Paint");
}

TEST(CustomizeTree, ADragShowsALineWhereTheNodeWouldCome) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.DragOver("Hammer", "Anvil");
  const forms::TreeView& tree = desk.Form().TreeView1;
  const auto& peer =
      dynamic_cast<const sim::SimTree&>(*desk.world.Desktop.Look(tree.hWnd())->Control);
  EXPECT_EQ(peer.InsertMark(), desk.Node("Anvil"));
  EXPECT_EQ(peer.DropTarget(), desk.Node("Anvil"));
  const PixelPoint menu = desk.Label("Letters");
  desk.world.Desktop.MovePointer(menu.x, menu.y);
  EXPECT_EQ(peer.InsertMark(), forms::kNoNode) << "it would come last in the menu";
  EXPECT_EQ(peer.DropTarget(), desk.Node("Letters"));
  desk.world.Desktop.Release();
  EXPECT_EQ(peer.DropTarget(), forms::kNoNode);
}

TEST(CustomizeTree, CtrlAtTheDropCopies) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.DragOver("Hammer", "Letters");
  desk.world.Desktop.KeyDown(key::Ctrl);
  desk.world.Desktop.Release();
  desk.world.Desktop.KeyUp(key::Ctrl);
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta - Hammer) Tools(Hammer Anvil) | Clock Paint");
}

TEST(CustomizeTree, EscGivesADragUp) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.DragOver("Hammer", "Letters");
  desk.world.Desktop.PressKey(key::Escape);
  desk.world.Desktop.Release();
  EXPECT_EQ(desk.Shown(), kAtFirst);
  EXPECT_TRUE(desk.Form().IsLoaded());
}

TEST(CustomizeTree, WhatCannotBeDroppedBeeps) {
  CustDesk desk;
  desk.Drag("Letters", "Single Buttons");
  EXPECT_EQ(desk.world.Desktop.Beeps(), 1);
  desk.Drag("Single Buttons", "Letters");
  EXPECT_EQ(desk.world.Desktop.Beeps(), 2);
  EXPECT_EQ(desk.Shown(), kAtFirst);
}

TEST(CustomizeTree, FilesOfAnotherProgramStandSortedInThePlaceOfTheSelectedEntry) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.ClickNode("Anvil");
  desk.Drop({.Files = std::vector<std::string>{"C:\\Tools\\Paint.exe", "C:\\Tools\\Edit.exe"}});
  EXPECT_EQ(desk.world.Desktop.DragEffect(), forms::DropEffect::Copy);
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Hammer Edit Paint) | Clock Paint");
}

TEST(CustomizeTree, FilesOnARootAreRefusedASecondLater) {
  CustDesk desk;
  desk.ClickNode("Menu Buttons");
  desk.Drop({.Files = std::vector<std::string>{"C:\\Tools\\Paint.exe"}});
  EXPECT_TRUE(desk.world.Desktop.Boxes().empty()) << "the source waits";
  desk.world.Desktop.Answer(
      "You have to select an item other than Corvelle main icons before dragging files onto the "
      "Customize window.",
      forms::msgbox::AnswerOk);
  desk.world.Desktop.Advance(1100);
  EXPECT_EQ(desk.world.Desktop.AnswersLeft(), 0);
  EXPECT_EQ(desk.Shown(), kAtFirst);
}

TEST(CustomizeTree, AWebAddressBecomesTheEntryAndOtherTextNothing) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.ClickNode("Anvil");
  desk.Drop({.Text = "just words"});
  EXPECT_EQ(desk.world.Desktop.DragEffect(), forms::DropEffect::None);
  desk.Drop({.Text = "http://a.example/"});
  EXPECT_EQ(desk.Form().txtCommand.Text(), "http://a.example/");
  EXPECT_EQ(desk.Form().txtFile.Text(), "http");
  EXPECT_EQ(desk.Editor().Tree.At(desk.Editor().Selected()).Entry.FileExe, "http://a.example/");
}

TEST(CustomizeTree, AnAddressKeepsTheTitleThatItsSourceGives) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.ClickNode("Anvil");
  desk.Drop({.Text = "https://a.example/", .Title = "A page"});
  EXPECT_EQ(desk.Boxes(), "A page;http;https://a.example/");
}

TEST(CustomizeTree, AFileDroppedOnASeparatorIsRefusedInWords) {
  CustDesk desk;
  desk.Expand("Letters");
  desk.ClickNode("Separator");
  desk.world.Desktop.Answer(std::string(kSeparatorMsg), forms::msgbox::AnswerOk);
  desk.Drop({.Files = std::vector<std::string>{"C:\\Tools\\Paint.exe"}});
  desk.world.Desktop.Pump();
  EXPECT_EQ(desk.world.Desktop.AnswersLeft(), 0);
  EXPECT_EQ(desk.Shown(), kAtFirst);
}

TEST(CustomizeTree, PicturesComeOneAfterTheOtherWhileKeysAreAnswered) {
  CustDesk desk({}, false);
  std::vector<MenuRecord> items;
  for (int i = 0; i < 100; ++i) items.push_back(CustDesk::Entry("e" + std::to_string(i)));
  desk.PutMenu(1, {"Many", "Button", ""}, items);
  desk.Open();
  desk.ClickAt(desk.Expander("Many"));
  const auto image = [&](const char* node) {
    return desk.Form().TreeView1.Look(desk.Node(node)).Image;
  };
  const int unknown = image("e99");
  desk.world.Desktop.Advance(2);
  EXPECT_NE(image("e0"), unknown);
  EXPECT_EQ(image("e99"), unknown);
  desk.world.Desktop.PressKey(key::Down);
  EXPECT_NE(desk.Selected(), "Menu Buttons");
  desk.world.Desktop.Advance(100);
  EXPECT_NE(image("e99"), unknown);
}

}  // namespace
}  // namespace corvelle
