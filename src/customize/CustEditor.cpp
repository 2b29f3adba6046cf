#include "customize/CustEditor.h"

#include <utility>

#include "base/Text.h"
#include "customize/EntryAddress.h"
#include "customize/TreeKeys.h"

namespace corvelle {

namespace {

constexpr unsigned kInformation = 64;

}  // namespace

void CustEditor::InitMenuTree(const MenuSet& set, std::string_view program,
                              std::string_view menusPath) {
  ++life_;
  History.Clear();
  Tree.InitMenuTree(set, program, menusPath);
  colUndo.clear();
  UndoPrevKey.clear();
  UndoParentKey.clear();
  ClipNodeTitle.clear();
  ClipFileName.clear();
  ClipFileExe.clear();
  DragNode = kNoRef;
  SavingNow = InsertAfter = AddingEntry = TreeChanged = false;
  Select(kMenusRoot);
  UpdateEntryBoxes();
}

void CustEditor::Close() {
  ++life_;
  History.Clear();
}

void CustEditor::Select(CustRef node) noexcept {
  selected_ = node;
  CurIndex = node;
}

bool CustEditor::IsSeparator(CustRef node) const {
  return IsSeparatorIcon(Tree.At(node).Entry.FileName);
}

bool CustEditor::IsInMenu(CustRef node) const {
  const CustRef parent = Tree.Parent(node);
  return parent != kNoRef && !Tree.IsRoot(parent);
}

void CustEditor::Expand(CustRef node) {
  if (Trim(Tree.At(node).Tag).empty()) return;
  const std::vector<CustRef> children = Tree.Children(node);
  for (const CustRef child : children) {
    if (KeyOf(child).empty()) continue;
    const clsFile& entry = Tree.At(child).Entry;
    SetNodeIcon(entry.FileName, child, IsHiddenCommand(entry.FileExe));
  }
  if (node == kMenusRoot) {
    for (const CustRef child : children) Tree.LoadMenuItems(child);
  }
  Tree.SetTag(node, {});
}

void CustEditor::SetNodeIcon(std::string_view icon, CustRef node, bool hidden) {
  NodePicture picture;
  picture.Icon = Trim(icon);
  picture.Shown = picture.Icon.empty() ? NodePicture::Kind::Unknown : NodePicture::Kind::Icon;
  picture.Hidden = hidden;
  Tree.SetPicture(node, std::move(picture));
}

void CustEditor::UpdateEntryBoxes() {
  CurIndex = selected_;
  Boxes = {};
  if (OnRoot()) return;
  const CustNode& node = Tree.At(selected_);
  Boxes.Enabled = true;
  Boxes.txtTitle = node.Text;
  if (IsSeparator(selected_)) return;
  Boxes.txtFile = node.Entry.FileName;
  Boxes.txtCommand = node.Entry.FileExe;
}

bool CustEditor::cmdOK() {
  Boxes.txtTitle = Trim(Boxes.txtTitle);
  Boxes.txtFile = Trim(Boxes.txtFile);
  Boxes.txtCommand = Trim(Boxes.txtCommand);
  if (OnRoot()) {
    if (!SavingNow) UpdateEntryBoxes();
    return false;
  }
  CurIndex = selected_;
  if (!AddingEntry && IsSeparator(selected_)) {
    if (SavingNow) return false;
    UpdateEntryBoxes();
    host_.Say(kSeparatorMsg, kInformation);
    return false;
  }
  if (!SavingNow) TreeChanged = true;
  NormaliseAddress(Boxes.txtCommand, Boxes.txtFile,
                   [this](std::string_view path) { return host_.FileExists(path); });
  const CustHistory::Step step(History, Name("Edit"), selected_);
  CustNode node = Tree.At(selected_);
  node.Text = Boxes.txtTitle;
  node.Entry = {Boxes.txtFile, Boxes.txtCommand};
  node.Picture = {Boxes.txtFile.empty() ? NodePicture::Kind::Unknown : NodePicture::Kind::Icon,
                  Boxes.txtFile, IsHiddenCommand(Boxes.txtCommand)};
  const bool same = Tree.At(selected_).Text == node.Text && Tree.At(selected_).Entry == node.Entry;
  if (same) {
    SetNodeIcon(Boxes.txtFile, selected_, node.Picture.Hidden);
  } else {
    Tree.Set(selected_, std::move(node));
  }
  UpdateEntryBoxes();
  return true;
}

bool CustEditor::AfterLabelEdit(CustRef node, std::string_view text) {
  if (!Tree.IsInTree(node) || Tree.IsRoot(node) || IsSeparator(node)) return false;
  const CustHistory::Step step(History, "Rename " + Tree.At(node).Text, selected_);
  CustNode content = Tree.At(node);
  content.Text = text;
  Tree.Set(node, std::move(content));
  if (node == selected_) Boxes.txtTitle = text;
  return true;
}

bool CustEditor::Undo() {
  if (!History.CanUndo()) return Refuse();
  const CustRef node = History.Undo();
  return Settle(Tree.IsInTree(node) ? node : kMenusRoot);
}

bool CustEditor::Redo() {
  if (!History.CanRedo()) return Refuse();
  const CustRef node = History.Redo();
  return Settle(Tree.IsInTree(node) ? node : kMenusRoot);
}

CustRef CustEditor::Find(std::string_view text) const {
  if (text.empty()) return kNoRef;
  return FindWhere([this, text](CustRef node) {
    const CustNode& content = Tree.At(node);
    return ContainsNoCase(content.Text, text) || ContainsNoCase(content.Entry.FileName, text) ||
           ContainsNoCase(content.Entry.FileExe, text);
  });
}

CustRef CustEditor::FindWhere(const std::function<bool(CustRef)>& isOne) const {
  const std::vector<CustRef> order = Tree.InOrder();
  std::size_t first = 0;
  for (std::size_t i = 0; i < order.size(); ++i) {
    const bool before = order[i] == selected_ ||
                        (selected_ == kSinglesRoot && Tree.Parent(order[i]) != kSinglesRoot);
    if (before) first = i + 1;
  }
  for (std::size_t i = 0; i < order.size(); ++i) {
    const CustRef node = order[(first + i) % order.size()];
    if (node != selected_ && !Tree.At(node).Key.empty() && isOne(node)) return node;
  }
  return kNoRef;
}

bool CustEditor::Refuse() {
  host_.Beep();
  return false;
}

std::string CustEditor::Name(std::string_view command) const {
  std::string name(command);
  if (!Tree.At(selected_).Text.empty()) name += " " + Tree.At(selected_).Text;
  return name;
}

bool CustEditor::Settle(CustRef node) {
  TreeChanged = true;
  Select(node);
  UpdateEntryBoxes();
  return true;
}

}  // namespace corvelle
