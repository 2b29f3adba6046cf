#include "customize/CustPopup.h"

#include <initializer_list>

#include "base/Text.h"
#include "customize/CustEditor.h"
#include "customize/EntryAddress.h"
#include "customize/TreeKeys.h"

namespace corvelle {

namespace {

using enum PopupLine;

constexpr CustPopupLine kPopupGap{Count, "-"};

constexpr CustPopupLine kModuleLines[] = {
    {DesktopItems, "Desktop Items"},
    {ControlPanel, "Control Panel"},
    {Printers, "Printers"},
    {Documents, "Recent Documents"},
    kPopupGap,
    {NetSearch, "Net Search"},
    {FileFind, "Find Files"},
    {FindComputer, "Find Computer"},
    {RunDialog, "Run Dialog"},
    kPopupGap,
    {MinimizeAllWindows, "Minimize All Windows"},
    {UndoMinimizeAll, "Undo Minimize All"},
    {ClearTempFiles, "Delete Temporary Files"},
    {ClearDocuments, "Clear Documents Menu"},
};

constexpr CustPopupLine kEditLines[] = {
    kPopupGap,
    {AddButton, "Add Button"},
    {InsertButton, "Insert Button"},
    {HideButton, "Hide Button"},
    kPopupGap,
    {AddMenuItem, "Add Menu Item"},
    {InsertMenuItem, "Insert Menu Item"},
    {Separator, "Insert Separator"},
    kPopupGap,
    {Cut, "Cut"},
    {Copy, "Copy"},
    {Paste, "Paste"},
    kPopupGap,
    {Remove, "Delete"},
    {Undo, "Undo Delete"},
    kPopupGap,
    {Sort, "Sort Node"},
    {Rename, "Rename"},
};

using Lines = std::initializer_list<PopupLine>;

void SetAll(CustPopupState& state, Lines lines, bool enabled) {
  for (const PopupLine line : lines) state.Set(line, enabled);
}

const Lines kFolderModules = {DesktopItems, ControlPanel, Printers, Documents};
const Lines kAllModules = {DesktopItems,       ControlPanel,    Printers,       Documents,
                           NetSearch,          FileFind,        FindComputer,   RunDialog,
                           MinimizeAllWindows, UndoMinimizeAll, ClearTempFiles, ClearDocuments};
// What runs at once, and no folder.
const Lines kActionModules = {MinimizeAllWindows, UndoMinimizeAll, ClearTempFiles, ClearDocuments,
                              FileFind,           NetSearch,       FindComputer};

void ForRoot(const CustEditor& editor, CustPopupState& state) {
  SetAll(state, {AddButton}, true);
  SetAll(
      state,
      {InsertButton, AddMenuItem, InsertMenuItem, Remove, Rename, Separator, Cut, Copy, HideButton},
      false);
  SetAll(state, kAllModules, false);
  if (editor.Selected() == kSinglesRoot) SetAll(state, kActionModules, true);
}

void ForMenu(const CustEditor& editor, CustPopupState& state) {
  SetAll(state, {AddButton, InsertButton, AddMenuItem, Separator, Remove, Rename, HideButton},
         true);
  SetAll(state, kAllModules, true);
  SetAll(state, {InsertMenuItem, Cut, Copy}, false);
  state.HideChecked = IsHiddenCommand(editor.Tree.At(editor.Selected()).Entry.FileExe);
}

void ForItem(CustPopupState& state) {
  SetAll(state, {AddButton, AddMenuItem, InsertMenuItem, Remove, Rename, Separator, Cut, Copy},
         true);
  SetAll(state, kActionModules, true);
  SetAll(state, {InsertButton, HideButton}, false);
}

void ForSingle(CustPopupState& state) {
  SetAll(state, {AddButton, InsertButton, Remove, Rename, Cut, Copy}, true);
  SetAll(state, {AddMenuItem, InsertMenuItem}, false);
  SetAll(state, kFolderModules, false);
}

}  // namespace

void UpdatePopupMenu(const CustEditor& editor, CustPopupState& state) {
  const CustRef node = editor.Selected();
  const bool menu = IsMenuKey(editor.Tree.At(node).Key);
  state.HideChecked = false;
  if (editor.OnRoot()) {
    ForRoot(editor, state);
  } else if (menu) {
    ForMenu(editor, state);
  } else if (editor.Tree.Parent(node) == kSinglesRoot) {
    ForSingle(state);
  } else {
    ForItem(state);
  }
  if (!menu && !editor.OnRoot() && editor.IsSeparator(node)) {
    SetAll(state, {Rename, HideButton}, false);
  }
  const bool clipEmpty = Trim(editor.ClipNodeTitle).empty() && Trim(editor.ClipFileName).empty() &&
                         Trim(editor.ClipFileExe).empty();
  state.Set(Paste, node != kMenusRoot && !menu && !clipEmpty);
  state.Set(Undo, !editor.colUndo.empty());
  state.Set(Sort, editor.Tree.Children(node).size() >= 2);
}

std::span<const CustPopupLine> ModuleLines() noexcept { return kModuleLines; }
std::span<const CustPopupLine> EditLines() noexcept { return kEditLines; }

}  // namespace corvelle
