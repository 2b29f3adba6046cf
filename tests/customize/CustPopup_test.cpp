#include "customize/CustPopup.h"

#include <gtest/gtest.h>

#include "customize/EditorBench.h"

namespace corvelle {
namespace {

const std::vector<std::pair<PopupLine, const char*>> kNames = {
    {PopupLine::DesktopItems, "Desktop"},
    {PopupLine::ControlPanel, "Control"},
    {PopupLine::Printers, "Printers"},
    {PopupLine::Documents, "Documents"},
    {PopupLine::NetSearch, "Net"},
    {PopupLine::FileFind, "Files"},
    {PopupLine::FindComputer, "Computer"},
    {PopupLine::RunDialog, "Run"},
    {PopupLine::MinimizeAllWindows, "Minimize"},
    {PopupLine::UndoMinimizeAll, "UndoMinimize"},
    {PopupLine::ClearTempFiles, "Temp"},
    {PopupLine::ClearDocuments, "ClearDocs"},
    {PopupLine::AddButton, "AddButton"},
    {PopupLine::InsertButton, "InsertButton"},
    {PopupLine::HideButton, "Hide"},
    {PopupLine::AddMenuItem, "AddItem"},
    {PopupLine::InsertMenuItem, "InsertItem"},
    {PopupLine::Separator, "Separator"},
    {PopupLine::Cut, "Cut"},
    {PopupLine::Copy, "Copy"},
    {PopupLine::Paste, "Paste"},
    {PopupLine::Remove, "Delete"},
    {PopupLine::Undo, "Undo"},
    {PopupLine::Sort, "Sort"},
    {PopupLine::Rename, "Rename"},
};

std::string Lines(const CustPopupState& state, bool enabled) {
  std::string lines;
  for (const auto& [line, name] : kNames) {
    if (state.Is(line) == enabled) lines += (lines.empty() ? "" : " ") + std::string(name);
  }
  return lines;
}

CustPopupState AllOff() {
  CustPopupState state;
  state.Enabled.fill(false);
  return state;
}

/// A bench with something to paste and to take back.
struct PopupBench : EditorBench {
  PopupBench() {
    Editor.ClipNodeTitle = "Clip";
    Editor.colUndo.push_back({"M1", "x", "", ""});
  }
  CustRef Line(std::string_view selection) const {
    if (selection == "item separator") return Editor.Tree.Children(Node("Letters"))[2];
    if (selection == "button separator") return Editor.Tree.Children(kMenusRoot)[2];
    if (selection == "single separator") return Editor.Tree.Children(kSinglesRoot)[1];
    return Node(selection);
  }
};

TEST(UpdatePopupMenu, WhatEachSelectionTurnsOffAndOn) {
  struct Row {
    const char* selection;
    const char* off;  // of a menu with all lines on
    const char* on;   // of one with all lines off
  };
  const Row rows[] = {
      {"Menu Buttons",
       "Desktop Control Printers Documents Net Files Computer Run Minimize UndoMinimize Temp "
       "ClearDocs InsertButton Hide AddItem InsertItem Separator Cut Copy Paste Delete Rename",
       "AddButton Undo Sort"},
      {"Single Buttons",
       "Desktop Control Printers Documents Run InsertButton Hide AddItem InsertItem Separator Cut "
       "Copy Delete Rename",
       "Net Files Computer Minimize UndoMinimize Temp ClearDocs AddButton Paste Undo Sort"},
      {"Letters", "InsertItem Cut Copy Paste",
       "Desktop Control Printers Documents Net Files Computer Run Minimize UndoMinimize Temp "
       "ClearDocs AddButton InsertButton Hide AddItem Separator Delete Undo Sort Rename"},
      {"One", "InsertItem Cut Copy Paste Sort",
       "Desktop Control Printers Documents Net Files Computer Run Minimize UndoMinimize Temp "
       "ClearDocs AddButton InsertButton Hide AddItem Separator Delete Undo Rename"},
      {"button separator", "InsertItem Cut Copy Paste Sort",
       "Desktop Control Printers Documents Net Files Computer Run Minimize UndoMinimize Temp "
       "ClearDocs AddButton InsertButton Hide AddItem Separator Delete Undo Rename"},
      {"Alpha", "InsertButton Hide Sort",
       "Net Files Computer Minimize UndoMinimize Temp ClearDocs AddButton AddItem InsertItem "
       "Separator Cut Copy Paste Delete Undo Rename"},
      {"item separator", "InsertButton Hide Sort Rename",
       "Net Files Computer Minimize UndoMinimize Temp ClearDocs AddButton AddItem InsertItem "
       "Separator Cut Copy Paste Delete Undo"},
      {"Clock", "Desktop Control Printers Documents AddItem InsertItem Sort",
       "AddButton InsertButton Cut Copy Paste Delete Undo Rename"},
      {"single separator", "Desktop Control Printers Documents Hide AddItem InsertItem Sort Rename",
       "AddButton InsertButton Cut Copy Paste Delete Undo"},
  };
  for (const Row& row : rows) {
    PopupBench bench;
    bench.Pick(bench.Line(row.selection));
    CustPopupState on;
    UpdatePopupMenu(bench.Editor, on);
    EXPECT_EQ(Lines(on, false), row.off) << row.selection;
    CustPopupState off = AllOff();
    UpdatePopupMenu(bench.Editor, off);
    EXPECT_EQ(Lines(off, true), row.on) << row.selection;
  }
}

TEST(UpdatePopupMenu, TheFolderModulesOfAnItemStayAsTheSelectionBeforeLeftThem) {
  PopupBench bench;
  CustPopupState state;
  bench.Pick("Clock");
  UpdatePopupMenu(bench.Editor, state);
  bench.Pick("Alpha");
  UpdatePopupMenu(bench.Editor, state);
  EXPECT_FALSE(state.Is(PopupLine::Printers));
  bench.Pick("Letters");
  UpdatePopupMenu(bench.Editor, state);
  bench.Pick("Alpha");
  UpdatePopupMenu(bench.Editor, state);
  EXPECT_TRUE(state.Is(PopupLine::Printers));
}

TEST(UpdatePopupMenu, HideIsCheckedOnAHiddenMenuButtonOnly) {
  PopupBench bench;
  CustPopupState state;
  bench.Pick("Tools");
  UpdatePopupMenu(bench.Editor, state);
  EXPECT_TRUE(state.HideChecked);
  bench.Pick("Letters");
  UpdatePopupMenu(bench.Editor, state);
  EXPECT_FALSE(state.HideChecked);
  bench.Pick("Clock");
  bench.Editor.HideButton();
  UpdatePopupMenu(bench.Editor, state);
  EXPECT_FALSE(state.HideChecked);
}

TEST(UpdatePopupMenu, PasteAndUndoNeedSomethingToBringBack) {
  EditorBench bench;
  bench.Pick("Alpha");
  CustPopupState state;
  UpdatePopupMenu(bench.Editor, state);
  EXPECT_FALSE(state.Is(PopupLine::Paste));
  EXPECT_FALSE(state.Is(PopupLine::Undo));
  bench.Editor.ClipNodeTitle = "  ";
  UpdatePopupMenu(bench.Editor, state);
  EXPECT_FALSE(state.Is(PopupLine::Paste));
  bench.Editor.Cut();
  UpdatePopupMenu(bench.Editor, state);
  EXPECT_FALSE(state.Is(PopupLine::Undo)) << "a cut is no deletion";
  EXPECT_FALSE(state.Is(PopupLine::Paste)) << "the menu button is selected";
  bench.Pick("Beta");
  bench.Editor.Delete();
  bench.Pick("Gamma");
  UpdatePopupMenu(bench.Editor, state);
  EXPECT_TRUE(state.Is(PopupLine::Paste));
  EXPECT_TRUE(state.Is(PopupLine::Undo));
}

TEST(PopupLines, StandInTheirOrder) {
  std::string text;
  for (const CustPopupLine& line : ModuleLines()) text += std::string(line.Caption) + "|";
  EXPECT_EQ(text,
            "Desktop Items|Control Panel|Printers|Recent Documents|-|Net Search|Find Files|Find "
            "Computer|Run Dialog|-|Minimize All Windows|Undo Minimize All|Delete Temporary "
            "Files|Clear Documents Menu|");
  text.clear();
  for (const CustPopupLine& line : EditLines()) text += std::string(line.Caption) + "|";
  EXPECT_EQ(text,
            "-|Add Button|Insert Button|Hide Button|-|Add Menu Item|Insert Menu Item|Insert "
            "Separator|-|Cut|Copy|Paste|-|Delete|Undo Delete|-|Sort Node|Rename|");
}

}  // namespace
}  // namespace corvelle
