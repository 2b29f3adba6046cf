#include <string>

#include "base/Text.h"
#include "customize/CustModules.h"
#include "customize/frmCust.h"
#include "launch/LaunchItem.h"
#include "platform/Input.h"

namespace corvelle {

namespace {

/// The commands of the context menu that the editor has, by their lines.
struct LineCommand {
  PopupLine Line;
  bool (CustEditor::*Run)();
};
constexpr LineCommand kLineCommands[] = {
    {PopupLine::AddButton, &CustEditor::AddButton},
    {PopupLine::InsertButton, &CustEditor::InsertButton},
    {PopupLine::HideButton, &CustEditor::HideButton},
    {PopupLine::AddMenuItem, &CustEditor::AddMenuItem},
    {PopupLine::InsertMenuItem, &CustEditor::InsertMenuItem},
    {PopupLine::Separator, &CustEditor::InsertSeparator},
    {PopupLine::Cut, &CustEditor::Cut},
    {PopupLine::Copy, &CustEditor::Copy},
    {PopupLine::Paste, &CustEditor::Paste},
    {PopupLine::Remove, &CustEditor::Delete},
    {PopupLine::Undo, &CustEditor::UndoDelete},
    {PopupLine::Sort, &CustEditor::SortNode},
};

struct ToolCommand {
  std::string_view Key;
  bool (CustEditor::*Run)();
};
constexpr ToolCommand kToolCommands[] = {
    {"up", &CustEditor::MoveSelectionUp},  {"down", &CustEditor::MoveSelectionDown},
    {"button", &CustEditor::AddButton},    {"new", &CustEditor::AddWhatFits},
    {"sep", &CustEditor::InsertSeparator}, {"cut", &CustEditor::Cut},
    {"copy", &CustEditor::Copy},           {"paste", &CustEditor::Paste},
    {"delete", &CustEditor::Delete},       {"undo", &CustEditor::UndoDelete},
};

std::string WithName(std::string_view command, std::string_view name, std::string_view keys) {
  std::string caption(command);
  if (!name.empty()) caption += " " + DoubleAmpersands(name);
  return caption + "\t" + std::string(keys);
}

}  // namespace

void frmCust::MakeMenuBar() {
  menuBar_ = {};
  menuBar_.Begin("&File");
  menuBar_.Add("&Update Toolbar", [this] { cmdSave_Click(); });
  menuBar_.Add("&Show Unsaved Changes", [this] { ShowDraft(); });
  menuBar_.ShowLast(Offers() > 0);
  menuBar_.Add("&Forget Unsaved Changes", [this] { ForgetTheDraft(); });
  menuBar_.ShowLast(Offers() > 0);
  menuBar_.Add("E&xit", [this] { Form_QueryClose(); });
  menuBar_.End();
  const CustHistory& history = Editor.History;
  menuBar_.Begin("&Edit");
  menuBar_.Add(
      WithName("&Undo", history.UndoName(), "Ctrl+Shift+Z"), [this] { Run(&CustEditor::Undo); },
      history.CanUndo());
  menuBar_.Add(
      WithName("&Redo", history.RedoName(), "Ctrl+Y"), [this] { Run(&CustEditor::Redo); },
      history.CanRedo());
  menuBar_.AddGap();
  menuBar_.Add("&Find\tCtrl+F", [this] { BeginFind(); });
  menuBar_.Add("Find &Next\tF3", [this] { FindNext(); });
  menuBar_.Add("Next &Missing\tF8", [this] { NextMissing(); });
  menuBar_.AddGap();
  menuBar_.Add("&Duplicate\tCtrl+D", [this] { Run(&CustEditor::Duplicate); });
  menuBar_.Add("Ru&n", [this] { RunEntry(); });
  menuBar_.End();
  menuBar_.Begin("&Options");
  AddOptionLines(menuBar_);
  menuBar_.End();
  if (menuBar_.Items() != Menu()) SetMenu(menuBar_.Items());
}

void frmCust::Form_MenuOpening(int) { MakeMenuBar(); }

void frmCust::Form_Menu(int line) {
  // The action may make the bar again, or end the window.
  const MenuMaker::Action action = menuBar_.ActionOf(line);
  if (action) action();
}

void frmCust::AddPopupLines(MenuMaker& menu) {
  const auto add = [&](const CustPopupLine& line) {
    if (line.Caption == "-") return menu.AddGap();
    const bool checked = line.Line == PopupLine::HideButton && mnuPopup.HideChecked;
    menu.Add(
        std::string(line.Caption), [this, which = line.Line] { RunPopupLine(which); },
        mnuPopup.Is(line.Line), checked);
  };
  menu.Begin("Insert Built-in Module");
  for (const CustPopupLine& line : ModuleLines()) add(line);
  menu.End();
  for (const CustPopupLine& line : EditLines()) add(line);
}

void frmCust::ShowTreeMenu(float x, float y, bool byKey) {
  UpdatePopupMenu(Editor, mnuPopup);
  MenuMaker menu;
  AddPopupLines(menu);
  PixelPoint at = with_.Pointer.PointerPosition();
  if (byKey) {
    const forms::ScreenInfo screen = Screen();
    const forms::FrameMargins frame = Margins();
    at = {static_cast<int>((Left() + TreeView1.Left() + x) / screen.TwipsPerPixelX) + frame.Left,
          static_cast<int>((Top() + TreeView1.Top() + y) / screen.TwipsPerPixelY) + frame.Top};
  }
  const int line = Windows().ShowPopup(hWnd(), menu.Items(), at, 0);
  if (!IsLoaded()) return;
  if (const MenuMaker::Action action = menu.ActionOf(line)) action();
}

void frmCust::RunPopupLine(PopupLine line) {
  if (line == PopupLine::Rename) return StartRename();
  if (line <= PopupLine::ClearDocuments) {
    Editor.InsertModule(CustModuleTable()[static_cast<std::size_t>(line)].Module);
    return ShowState();
  }
  for (const LineCommand& command : kLineCommands) {
    if (command.Line == line) return Run(command.Run);
  }
}

void frmCust::Toolbar1_ButtonClick(const std::string& key) {
  Editor.CurIndex = Editor.Selected();
  for (const ToolCommand& command : kToolCommands) {
    if (command.Key == key) return Run(command.Run);
  }
}

void frmCust::StartRename() {
  if (!Editor.OnRoot()) TreeView1.BeginEdit(tree_.IdOf(Editor.Selected()));
}

void frmCust::BeginFind() {
  finding_ = true;
  txtFind.SetVisible(true);
  PlaceControls();
  txtFind.SetFocus();
  txtFind.SelectAll();
}

void frmCust::FindNext() {
  if (txtFind.Text().empty()) return BeginFind();
  SelectFound(Editor.Find(txtFind.Text()));
}

void frmCust::NextMissing() {
  SelectFound(Editor.FindWhere([this](CustRef node) { return tree_.IsMissing(node); }));
}

void frmCust::SelectFound(CustRef found) {
  if (found == kNoRef) return Beep();
  Editor.Select(found);
  Editor.UpdateEntryBoxes();
  ShowState();
}

void frmCust::RunEntry() {
  const std::string command = Trim(Editor.Tree.At(Editor.Selected()).Entry.FileExe);
  if (command.empty() || Editor.IsSeparator(Editor.Selected())) return Beep();
  LaunchItem(with_.Launch, command);
}

}  // namespace corvelle
