// The tool bar, the context menu and the menu bar of the Customize window.

#include <gtest/gtest.h>

#include "customize/CustDesk.h"

namespace corvelle {
namespace {

namespace key = forms::key;

TEST(CustomizeTools, EachButtonDoesItsCommand) {
  struct Row {
    const char* node;
    const char* tool;
    const char* shown;
  };
  const Row rows[] = {
      {"Anvil", "up", "Letters(Alpha Beta -) Tools(Anvil Hammer) | Clock Paint"},
      {"Letters", "down", "Tools(Hammer Anvil) Letters(Alpha Beta -) | Clock Paint"},
      {"Letters", "button",
       "Letters(Alpha Beta -) Tools(Hammer Anvil) New Button(New Menu Item) | Clock Paint"},
      {"Anvil", "new", "Letters(Alpha Beta -) Tools(Hammer Anvil New Menu Item) | Clock Paint"},
      {"Single Buttons", "new",
       "Letters(Alpha Beta -) Tools(Hammer Anvil) | Clock Paint New Button"},
      {"Anvil", "sep", "Letters(Alpha Beta -) Tools(Hammer - Anvil) | Clock Paint"},
      {"Anvil", "cut", "Letters(Alpha Beta -) Tools(Hammer) | Clock Paint"},
      {"Anvil", "delete", "Letters(Alpha Beta -) Tools(Hammer) | Clock Paint"},
  };
  for (const Row& row : rows) {
    CustDesk desk;
    desk.Expand("Tools");
    desk.ClickNode(row.node);
    desk.Tool(row.tool);
    EXPECT_EQ(desk.Shown(), row.shown) << row.tool;
    EXPECT_EQ(desk.world.Desktop.Beeps(), 0) << row.tool;
  }
}

TEST(CustomizeTools, CopyPasteAndUndo) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.ClickNode("Hammer");
  desk.Tool("copy");
  desk.ClickNode("Tools");
  desk.Tool("paste");
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Hammer Anvil Hammer) | Clock Paint");
  desk.Tool("delete");
  desk.Tool("undo");
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Hammer Anvil Hammer) | Clock Paint");
}

TEST(CustomizePopup, HasAllLinesWithTheModulesInASubmenu) {
  CustDesk desk;
  desk.ClickAt(desk.Label("Letters"), forms::MouseButton::Right);
  ASSERT_EQ(desk.world.Desktop.Popups().size(), 1U);
  const sim::Popup& popup = desk.world.Desktop.Popups().front();
  std::string lines;
  for (const std::string& caption : popup.Captions()) lines += caption + "|";
  EXPECT_EQ(lines,
            "Insert Built-in Module|-|Add Button|Insert Button|Hide Button|-|Add Menu Item|Insert "
            "Menu Item|Insert Separator|-|Cut|Copy|Paste|-|Delete|Undo Delete|-|Sort "
            "Node|Rename|");
  EXPECT_TRUE(popup.Offers("Insert Built-in Module>Printers"));
  EXPECT_FALSE(popup.Offers("Cut"));
  EXPECT_EQ(desk.Selected(), "Letters") << "the right button selects";
}

TEST(CustomizePopup, ItsChoicesAreCarriedOut) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.Popup("Anvil", "Insert Menu Item");
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Hammer New Menu Item Anvil) | Clock Paint");
  desk.Popup("New Menu Item", "Insert Built-in Module>Net Search");
  EXPECT_EQ(desk.Boxes(), "Net Search;\\icons\\netsrch.ico;NetSearch");
  desk.Popup("Letters", "Insert Button");
  EXPECT_EQ(desk.Shown(),
            "New Button(New Menu Item) Letters(Alpha Beta -) Tools(Hammer Net Search Anvil) | "
            "Clock Paint");
  desk.world.Desktop.Answer(
      "Note that once you sort a node, you cannot undo sorting.\r\nContinue sorting this node?",
      forms::msgbox::AnswerYes);
  desk.Popup("Tools", "Sort Node");
  EXPECT_EQ(desk.Shown(),
            "New Button(New Menu Item) Letters(Alpha Beta -) Tools(Anvil Hammer Net Search) | "
            "Clock Paint");
}

// What the table of a selection leaves alone is as the selection before left it, whichever way that
// one was made.
TEST(CustomizePopup, TheFolderModulesOfAnItemAreAsTheSelectionBeforeLeftThem) {
  CustDesk desk;
  desk.Expand("Tools");
  const auto offers = [&desk] {
    desk.ClickAt(desk.Label("Hammer"), forms::MouseButton::Right);
    const forms::PopupItem& modules = desk.world.Desktop.Popups().back().Items.front();
    for (const forms::PopupItem& line : modules.Items) {
      if (line.Caption.find("Printers") != std::string::npos) return line.Enabled;
    }
    ADD_FAILURE() << "no line for the printers";
    return false;
  };
  desk.ClickNode("Letters");
  EXPECT_TRUE(offers());
  desk.ClickNode("Single Buttons");
  EXPECT_FALSE(offers());
  desk.ClickNode("Letters");
  EXPECT_TRUE(offers());
}

TEST(CustomizePopup, HideIsCheckedOnceTheButtonIsHidden) {
  CustDesk desk;
  desk.Popup("Tools", "Hide Button");
  EXPECT_EQ(desk.Form().txtCommand.Text(), "/h");
  EXPECT_TRUE(desk.Form().TreeView1.Look(desk.Node("Tools")).Dimmed);
  desk.ClickAt(desk.Label("Tools"), forms::MouseButton::Right);
  EXPECT_TRUE(desk.world.Desktop.Popups().back().Find("Hide Button")->Checked);
  desk.Popup("Tools", "Hide Button");
  EXPECT_EQ(desk.Form().txtCommand.Text(), "");
  EXPECT_FALSE(desk.Form().TreeView1.Look(desk.Node("Tools")).Dimmed);
}

TEST(CustomizePopup, ComesByKeyAtTheSelectedNode) {
  CustDesk desk;
  desk.ClickNode("Tools");
  desk.world.Desktop.ChooseFromPopup("Delete");
  desk.world.Desktop.Answer(
      "You have selected to delete the entire menu.\r\nDo you want to continue ?",
      forms::msgbox::AnswerYes);
  desk.world.Desktop.PressKey(key::Menu);
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) | Clock Paint");
  const PixelPoint at = desk.world.Desktop.Popups().front().At;
  const PixelRect tree = desk.world.Desktop.BoundsOf(desk.Form().TreeView1.hWnd());
  EXPECT_TRUE(at.x >= tree.left && at.x < tree.right && at.y >= tree.top && at.y < tree.bottom);
}

TEST(CustomizePopup, RenameBeginsALabelEdit) {
  CustDesk desk;
  desk.Popup("Tools", "Rename");
  EXPECT_EQ(desk.Form().TreeView1.Edited(), desk.Node("Tools"));
  desk.world.Desktop.Type("Kit");
  desk.world.Desktop.PressKey(key::Enter);
  desk.world.Desktop.Pump();
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Kit(Hammer Anvil) | Clock Paint");
}

TEST(CustomizeEditMenu, UndoAndRedoBearTheNameOfTheCommand) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.ClickNode("Anvil");
  desk.world.Desktop.PressKey(key::Delete);
  desk.MenuBar("Edit", "Undo Delete Anvil");
  EXPECT_EQ(desk.Shown(), kAtFirst);
  EXPECT_EQ(desk.Selected(), "Anvil");
  desk.MenuBar("Edit", "Redo Delete Anvil");
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Hammer) | Clock Paint");
}

TEST(CustomizeEditMenu, HasItsKeys) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.ClickNode("Anvil");
  desk.Ctrl('D');
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Hammer Anvil Anvil) | Clock Paint");
  desk.Keys({key::Ctrl, key::Shift}, 'Z');
  EXPECT_EQ(desk.Shown(), kAtFirst);
  desk.Ctrl('Y');
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Hammer Anvil Anvil) | Clock Paint");
}

TEST(CustomizeEditMenu, FindGoesFromOneToTheNext) {
  CustDesk desk;
  desk.Ctrl('F');
  EXPECT_TRUE(desk.Form().txtFind.HasFocus());
  desk.world.Desktop.Type("TOOLS");
  desk.world.Desktop.PressKey(key::Enter);
  EXPECT_EQ(desk.Selected(), "Alpha") << "in its command";
  EXPECT_TRUE(desk.Form().TreeView1.IsExpanded(desk.Node("Letters")));
  EXPECT_EQ(desk.Boxes(), "Alpha;C:\\Tools\\Alpha.exe;C:\\Tools\\Alpha.exe");
  desk.Form().TreeView1.SetFocus();
  desk.world.Desktop.PressKey(114);
  EXPECT_EQ(desk.Selected(), "Beta");
  desk.world.Desktop.PressKey(114);
  EXPECT_EQ(desk.Selected(), "Tools");
  desk.Fill(desk.Form().txtFind, "nowhere");
  desk.world.Desktop.PressKey(key::Enter);
  EXPECT_EQ(desk.world.Desktop.Beeps(), 1);
  desk.world.Desktop.PressKey(key::Escape);
  EXPECT_FALSE(desk.Form().txtFind.Visible());
  EXPECT_TRUE(desk.Form().IsLoaded()) << "Esc ended the search, not the window";
}

TEST(CustomizeEditMenu, RunStartsTheCommand) {
  CustDesk desk;
  desk.Expand("Single Buttons");
  desk.ClickNode("Clock");
  desk.MenuBar("Edit", "Run");
  EXPECT_EQ(desk.world.Shell.Started(), std::vector<std::string>{"C:\\Tools\\Clock.exe"});
}

TEST(CustomizeFileMenu, ExitAsksAndUpdateSaves) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.ClickNode("Anvil");
  desk.world.Desktop.PressKey(key::Delete);
  desk.world.Desktop.Answer("Do you want to save your changes before you exit?", 2);
  desk.MenuBar("File", "Exit");
  EXPECT_TRUE(desk.Form().IsLoaded());
  desk.MenuBar("File", "Update Toolbar");
  EXPECT_EQ(desk.Stored(), "Letters(Alpha Beta -) Tools(Hammer) | Clock Paint");
  desk.MenuBar("File", "Exit");
  EXPECT_FALSE(desk.Form().IsLoaded());
}

TEST(CustomizeWindow, OpensFromTheMainMenuAndOnlyOnce) {
  CustDesk desk({}, false);
  desk.parts->TheMainMenu.xMainMenu(1, "Customize...");
  EXPECT_TRUE(desk.Form().Visible());
  desk.world.Desktop.Advance(1100);
  desk.ClickNode("Tools");
  desk.parts->TheMainMenu.xMainMenu(1, "Customize...");
  EXPECT_EQ(desk.Selected(), "Tools") << "it is the window that was up";
}

}  // namespace
}  // namespace corvelle
