#include <algorithm>
#include <utility>

#include "base/Sort.h"
#include "base/Text.h"
#include "customize/CustEditor.h"
#include "customize/EntryAddress.h"
#include "customize/TreeKeys.h"

namespace corvelle {

bool CustEditor::MoveSelectionUp() {
  const CustRef previous = Tree.Previous(selected_);
  if (OnRoot() || previous == kNoRef) return Refuse();
  CurIndex = previous;
  DragNode = selected_;
  return MoveNode(false);
}

bool CustEditor::MoveSelectionDown() {
  const CustRef next = Tree.Next(selected_);
  if (OnRoot() || next == kNoRef) return Refuse();
  CurIndex = next;
  DragNode = selected_;
  return MoveNode(true);
}

bool CustEditor::MoveNode(bool after, bool copy) {
  // A node with items below it is moved with them, whatever its key.
  const bool menu = IsMenuKey(KeyOf(DragNode)) || !Tree.Children(DragNode).empty();
  return menu ? MoveMenuNode(after, copy) : MoveItemNode(after, copy);
}

std::optional<CustPlace> CustEditor::PlaceAt(CustRef node, CustRef target, bool after) const {
  const std::string& key = KeyOf(target);
  if (!Tree.IsInTree(node) || Tree.IsRoot(node) || !Tree.IsInTree(target) || key.empty()) {
    return std::nullopt;
  }
  const bool menu = IsMenuKey(KeyOf(node)) || !Tree.Children(node).empty();
  if (menu ? IsItemKey(key) || target == kSinglesRoot : target == kMenusRoot) return std::nullopt;
  if (after && !Tree.IsRoot(target)) return Beside(target, Side::After);
  const bool into = Tree.IsRoot(target) || (!menu && IsMenuKey(key));
  return into ? LastOf(target) : Beside(target, Side::Before);
}

bool CustEditor::MoveItemNode(bool after, bool copy) {
  const CustRef node = DragNode;
  const std::optional<CustPlace> place = PlaceAt(node, CurIndex, after);
  if (!place) return Refuse();
  const CustHistory::Step step(History, (copy ? "Copy " : "Move ") + Tree.At(node).Text, selected_);
  if (copy) return Settle(CopyOf(node, *place, Tree.NewItemKey()));
  CustNode content = Tree.At(node);
  content.Key = Tree.NewItemKey();
  Tree.Set(node, std::move(content));
  CustPlace to = *place;
  const CustPlace from = Tree.PlaceOf(node);
  if (from.Parent == to.Parent && from.Index < to.Index) --to.Index;
  Tree.Move(node, to);
  return Settle(node);
}

bool CustEditor::MoveMenuNode(bool after, bool copy) {
  const CustRef node = DragNode;
  const std::optional<CustPlace> place = PlaceAt(node, CurIndex, after);
  if (!place) return Refuse();
  const CustHistory::Step step(History, (copy ? "Copy " : "Move ") + Tree.At(node).Text, selected_);
  if (copy) return Settle(CopyOf(node, *place, Tree.NewMenuKey()));
  CustNode content = Tree.At(node);
  content.Key = Tree.NewMenuKey();
  Tree.Set(node, std::move(content));
  for (const CustRef child : Tree.Children(node)) {
    CustNode below = Tree.At(child);
    below.Key = Tree.NewItemKey();
    Tree.Set(child, std::move(below));
  }
  CustPlace to = *place;
  const CustPlace from = Tree.PlaceOf(node);
  if (from.Parent == to.Parent && from.Index < to.Index) --to.Index;
  Tree.Move(node, to);
  return Settle(node);
}

void CustEditor::SetFileEntry(std::string_view path, const DroppedName& name) {
  const std::size_t slash = path.rfind('\\');
  if (slash != std::string_view::npos) LastFolder = path.substr(0, slash);
  Boxes.txtTitle = name.Title;
  Boxes.txtFile = *name.Stored;
  Boxes.txtCommand = Trim(Boxes.txtFile);
  cmdOK();
}

std::vector<std::string> CustEditor::FillWithFiles(const std::vector<std::string>& paths) {
  const std::vector<DroppedName> names = host_.NamesOf(paths);
  std::vector<std::string> refused;
  bool filled = false;
  for (std::size_t i = 0; i < paths.size(); ++i) {
    if (!names[i].Stored) {
      refused.push_back(paths[i]);
      continue;
    }
    if (filled && !(IsSingle(selected_) ? InsertButton() : InsertMenuItem())) break;
    SetFileEntry(paths[i], names[i]);
    filled = true;
  }
  return refused;
}

std::vector<std::string> CustEditor::AddFiles(const std::vector<std::string>& paths) {
  if (OnRoot() || paths.empty()) return {};
  const CustHistory::Step step(History, paths.size() > 1 ? "Add Files" : Name("Edit"), selected_);
  InsertAfter = true;
  std::vector<std::string> refused = FillWithFiles(paths);
  InsertAfter = false;
  if (refused.size() < paths.size()) TreeChanged = true;
  return refused;
}

std::vector<std::string> CustEditor::DropFiles(std::vector<std::string> names) {
  if (OnRoot() || names.empty()) return {};
  if (IsMenuKey(KeyOf(selected_))) names.resize(1);
  const CustHistory::Step step(History, names.size() > 1 ? "Drop Files" : Name("Edit"), selected_);
  if (names.size() > 1) {
    // A folder comes before a file of the same name.
    for (std::string& name : names) {
      if (host_.IsPlainFolder(name)) name += "   ";
    }
    SortTexts(names);
    for (std::string& name : names) name = name.substr(0, name.find_last_not_of(' ') + 1);
    // Each comes before the one filled last, so that they stand sorted in the end.
    std::reverse(names.begin(), names.end());
  }
  return FillWithFiles(names);
}

void CustEditor::DropAddress(std::string_view address, std::string_view title) {
  if (OnRoot()) return;
  Boxes.txtCommand = address;
  Boxes.txtTitle = Trim(title);
  Boxes.txtFile = kWebLinkIconText;
  cmdOK();
}

}  // namespace corvelle
