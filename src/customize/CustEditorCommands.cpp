#include <utility>

#include "base/Text.h"
#include "customize/CustEditor.h"
#include "customize/EntryAddress.h"
#include "customize/TreeKeys.h"

namespace corvelle {

namespace {

constexpr unsigned kInformationBox = 64;
constexpr unsigned kSortQuestion = 292;   // Yes and No, question, No is the default
constexpr unsigned kDeleteQuestion = 20;  // Yes and No, stop
constexpr int kYes = 6;
/// What a tree answers when the node beside which another is to come is gone.
constexpr std::string_view kNodeGone = "Error: 35601 - Element not found";

}  // namespace

CustPlace CustEditor::Beside(CustRef node, Side side) const {
  CustPlace place = Tree.PlaceOf(node);
  if (side == Side::After) ++place.Index;
  return place;
}

CustPlace CustEditor::LastOf(CustRef parent) const {
  return {parent, Tree.Children(parent).size()};
}

CustRef CustEditor::NextSelection() const {
  const CustRef previous = Tree.Previous(selected_);
  return previous != kNoRef ? previous : Tree.Parent(selected_);
}

CustRef CustEditor::AddNew(CustPlace place, const MenuRecord& record, std::string key) {
  CustNode node = NodeOf(record, std::move(key));
  node.Picture = {NodePicture::Kind::Icon, record.FIcon, false};
  const CustRef added = Tree.Add(place, std::move(node));
  Settle(added);
  return added;
}

void CustEditor::AddButtonAt(CustPlace place, std::string key) {
  const CustRef button = AddNew(place, NewButtonRecord(), std::move(key));
  if (!IsMenuKey(KeyOf(button))) return;
  AddMenuItem();  // a menu is never empty
  Settle(button);
}

bool CustEditor::AddButton() {
  const CustHistory::Step step(History, "Add Button", selected_);
  std::string key = Tree.NewMenuKey();
  const bool single = selected_ == kSinglesRoot || IsSingle(selected_);
  if (single) key = Tree.NewItemKey();
  AddButtonAt(LastOf(single ? kSinglesRoot : kMenusRoot), std::move(key));
  return true;
}

bool CustEditor::InsertButton() {
  if (OnRoot() || IsInMenu(selected_)) return Refuse();
  const CustHistory::Step step(History, "Insert Button", selected_);
  std::string key = Tree.NewMenuKey();
  if (IsSingle(selected_)) key = Tree.NewItemKey();
  AddButtonAt(Beside(selected_, InsertAfter ? Side::After : Side::Before), std::move(key));
  return true;
}

bool CustEditor::AddMenuItem() {
  if (OnRoot() || IsSingle(selected_)) return Refuse();
  const CustHistory::Step step(History, "Add Menu Item", selected_);
  const CustRef menu = IsMenuKey(KeyOf(selected_)) ? selected_ : Tree.Parent(selected_);
  AddNew(LastOf(menu), NewItemRecord(), Tree.NewItemKey());
  return true;
}

bool CustEditor::InsertMenuItem() {
  if (OnRoot() || IsSingle(selected_) || IsMenuKey(KeyOf(selected_))) return Refuse();
  const CustHistory::Step step(History, "Insert Menu Item", selected_);
  AddNew(Beside(selected_, InsertAfter ? Side::After : Side::Before), NewItemRecord(),
         Tree.NewItemKey());
  return true;
}

bool CustEditor::AddWhatFits() {
  return OnRoot() || IsSingle(selected_) ? AddButton() : AddMenuItem();
}

bool CustEditor::InsertSeparator() {
  if (OnRoot()) return Refuse();
  const CustHistory::Step step(History, "Insert Separator", selected_);
  std::string key = IsMenuKey(KeyOf(selected_)) ? Tree.NewMenuKey() : Tree.NewItemKey();
  AddNew(Beside(selected_, Side::Before), NewSeparatorRecord(), std::move(key));
  return true;
}

bool CustEditor::HideButton() {
  if (OnRoot() || IsInMenu(selected_)) return Refuse();
  const bool hidden = IsHiddenCommand(Boxes.txtCommand);
  const CustHistory::Step step(History, Name(hidden ? "Show" : "Hide"), selected_);
  Boxes.txtCommand = hidden ? "" : "/h";
  return cmdOK();
}

bool CustEditor::SortNode() {
  const CustRef node = selected_;
  if (Tree.Children(node).size() < 2) return Refuse();
  const int life = life_;
  const int answer = host_.Say(
      "Note that once you sort a node, you cannot undo sorting.\r\n"
      "Continue sorting this node?",
      kSortQuestion);
  if (answer != kYes || life != life_ || !Tree.IsInTree(node)) return false;
  const CustHistory::Step step(History, "Sort " + Tree.At(node).Text, selected_);
  Tree.SortChildren(node);
  TreeChanged = true;
  return true;
}

bool CustEditor::Copy() {
  if (OnRoot() || Tree.Parent(selected_) == kMenusRoot) return Refuse();
  const CustNode& node = Tree.At(selected_);
  ClipNodeTitle = node.Text;
  ClipFileName = node.Entry.FileName;
  ClipFileExe = node.Entry.FileExe;
  UpdateEntryBoxes();
  return true;
}

bool CustEditor::Cut() {
  if (OnRoot() || Tree.Parent(selected_) == kMenusRoot) return Refuse();
  const CustHistory::Step step(History, Name("Cut"), selected_);
  Copy();
  TakeOut();
  return true;
}

void CustEditor::TakeOut() {
  const CustRef next = NextSelection();
  Tree.Remove(selected_);
  Settle(next);
}

bool CustEditor::Paste() {
  const bool nothing =
      Trim(ClipNodeTitle).empty() && Trim(ClipFileName).empty() && Trim(ClipFileExe).empty();
  if (selected_ == kMenusRoot || nothing) return Refuse();
  const CustHistory::Step step(History, "Paste " + ClipNodeTitle, selected_);
  const bool below = selected_ == kSinglesRoot || Tree.Parent(selected_) == kMenusRoot;
  const CustPlace place = below ? LastOf(selected_) : Beside(selected_, Side::Before);
  const CustRef added =
      AddNew(place, {ClipNodeTitle, ClipFileName, ClipFileExe}, Tree.NewItemKey());
  SetNodeIcon(ClipFileName, added, false);
  return true;
}

bool CustEditor::Delete() {
  const CustRef node = selected_;
  if (OnRoot()) return Refuse();
  if (IsMenuKey(KeyOf(node)) && Tree.Children(node).size() >= 2) {
    const int life = life_;
    const int answer =
        host_.Say("You have selected to delete the entire menu.\r\nDo you want to continue ?",
                  kDeleteQuestion);
    if (answer != kYes || life != life_ || selected_ != node || !Tree.IsInTree(node)) return false;
  }
  const CustHistory::Step step(History, Name("Delete"), selected_);
  SaveUndoItems();
  TakeOut();
  return true;
}

void CustEditor::SaveUndoItems() {
  colUndo.clear();
  UndoPrevKey.clear();
  UndoParentKey.clear();
  const CustRef previous = Tree.Previous(selected_);
  if (previous == kNoRef) {
    UndoParentKey = KeyOf(Tree.Parent(selected_));
  } else {
    UndoPrevKey = KeyOf(previous);
  }
  const auto save = [this](CustRef node) {
    const CustNode& content = Tree.At(node);
    colUndo.push_back({content.Key, content.Text, content.Entry.FileName, content.Entry.FileExe});
  };
  save(selected_);
  for (const CustRef child : Tree.Children(selected_)) save(child);
}

std::optional<CustPlace> CustEditor::UndoPlace() const {
  if (!UndoPrevKey.empty()) {
    const CustRef previous = Tree.FindKey(UndoPrevKey);
    if (previous == kNoRef) return std::nullopt;
    return Beside(previous, Side::After);
  }
  const CustRef parent = Tree.FindKey(UndoParentKey);
  if (parent == kNoRef) return std::nullopt;
  return CustPlace{parent, 0};
}

bool CustEditor::UndoDelete() {
  if (colUndo.empty()) return Refuse();
  const CustHistory::Step step(History, "Restore " + colUndo.front().FileTitle, selected_);
  std::string key = colUndo.size() >= 2 ? Tree.NewMenuKey() : Tree.NewItemKey();
  const std::optional<CustPlace> place = UndoPlace();
  if (!place) {
    host_.Say(kNodeGone, kInformationBox);
    return false;
  }
  const auto contentOf = [](const clsUndo& item, std::string itemKey) {
    return NodeOf({item.FileTitle, item.FileName, item.FileExe}, std::move(itemKey));
  };
  const CustRef first = Tree.Add(*place, contentOf(colUndo.front(), std::move(key)));
  SetNodeIcon(colUndo.front().FileName, first, IsHiddenCommand(colUndo.front().FileExe));
  for (std::size_t i = 1; i < colUndo.size(); ++i) {
    Tree.Add(LastOf(first), contentOf(colUndo[i], Tree.NewItemKey()));
  }
  return Settle(first);
}

bool CustEditor::InsertModule(CustModule module) {
  for (const CustModuleTexts& texts : CustModuleTable()) {
    if (texts.Module != module) continue;
    const CustHistory::Step step(History, "Insert " + std::string(texts.Title), selected_);
    Boxes.txtTitle = texts.Title;
    Boxes.txtFile = texts.Icon;
    Boxes.txtCommand = texts.Command;
    if (module == CustModule::Documents) {
      Boxes.txtFile = EnsureBackslash(host_.RecentFolder()) + "*.*/u";
      Boxes.txtCommand = Boxes.txtFile;
    }
    return cmdOK();
  }
  return false;
}

CustRef CustEditor::CopyOf(CustRef node, CustPlace place, std::string key) {
  CustNode content = Tree.At(node);
  content.Key = std::move(key);
  const std::vector<CustRef> children = Tree.Children(node);
  const CustRef added = Tree.Add(place, std::move(content));
  for (const CustRef child : children) {
    CustNode below = Tree.At(child);
    below.Key = Tree.NewItemKey();
    Tree.Add(LastOf(added), std::move(below));
  }
  return added;
}

bool CustEditor::Duplicate() {
  if (OnRoot()) return Refuse();
  const CustHistory::Step step(History, Name("Duplicate"), selected_);
  std::string key = IsMenuKey(KeyOf(selected_)) ? Tree.NewMenuKey() : Tree.NewItemKey();
  return Settle(CopyOf(selected_, Beside(selected_, Side::After), std::move(key)));
}

}  // namespace corvelle
