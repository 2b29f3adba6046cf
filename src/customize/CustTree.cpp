#include "customize/CustTree.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "customize/TreeKeys.h"

namespace corvelle {

namespace {

CustNode RootNode(std::string_view key, std::string_view text, std::string_view tag) {
  CustNode root;
  root.Key = key;
  root.Text = text;
  root.Tag = tag;
  root.Picture.Shown = NodePicture::Kind::Root;
  return root;
}

}  // namespace

CustNode NodeOf(const MenuRecord& record, std::string key) {
  CustNode node;
  node.Key = std::move(key);
  node.Text = record.FTitle;
  node.Entry = {record.FIcon, record.FName};
  return node;
}

MenuRecord RecordOf(const CustNode& node) {
  return {node.Text, node.Entry.FileName, node.Entry.FileExe};
}

void CustTree::Clear(std::string_view program) {
  nodes_.clear();
  keys_.clear();
  last_ = kNoRef;
  menuNum_ = 0;
  itemNum_ = 0;
  ++revision_;
  if (view_ != nullptr) view_->TreeCleared();
  const CustRef menus = NewNode(RootNode(kMenusKey, "Menu Buttons", "main"));
  const CustRef singles = NewNode(RootNode(kSinglesKey, "Single Buttons", program));
  if (view_ != nullptr) view_->NodeAdded(menus);
  if (view_ != nullptr) view_->NodeAdded(singles);
}

void CustTree::InitMenuTree(const MenuSet& set, std::string_view program,
                            std::string_view menusPath) {
  Clear(program);
  int number = 0;
  for (const Menu& menu : set.Menus) {
    CustNode content = NodeOf(menu.Head, NewMenuKey());
    content.Tag = std::string(menusPath) + MenuFileName(++number);
    const CustRef node = NewNode(std::move(content));
    if (!menu.Items.empty()) {
      CustNode placeholder;
      placeholder.Text = menu.Head.FTitle;
      const CustRef child = NewNode(std::move(placeholder));
      nodes_.at(child).Parent = node;
      nodes_.at(node).Children.push_back(child);
      nodes_.at(node).Waiting = menu.Items;
    }
    Attach(node, {kMenusRoot, Children(kMenusRoot).size()});
  }
  number = 0;
  for (const MenuRecord& single : set.Singles) {
    CustNode content = NodeOf(single, NewItemKey());
    content.Tag = std::string(menusPath) + SingleFileName(++number);
    Attach(NewNode(std::move(content)), {kSinglesRoot, Children(kSinglesRoot).size()});
  }
}

bool CustTree::HasPlaceholder(CustRef menu) const {
  const Item* item = Find(menu);
  return item != nullptr && !item->Waiting.empty();
}

void CustTree::LoadMenuItems(CustRef menu) {
  if (!HasPlaceholder(menu)) return;
  const CustRef placeholder = Children(menu).front();
  Detach(placeholder);
  Drop(placeholder);
  const std::vector<MenuRecord> items = std::exchange(Find(menu)->Waiting, {});
  for (const MenuRecord& record : items) {
    Attach(NewNode(NodeOf(record, NewItemKey())), {menu, Children(menu).size()});
  }
}

void CustTree::SetPicture(CustRef node, NodePicture picture) {
  Item* item = Find(node);
  if (item == nullptr) return;
  item->Content.Picture = std::move(picture);
  if (view_ != nullptr && IsInTree(node)) view_->NodeChanged(node);
}

void CustTree::SetTag(CustRef node, std::string tag) {
  if (Item* item = Find(node); item != nullptr) item->Content.Tag = std::move(tag);
}

MenuSet CustTree::ToMenuSet() const {
  MenuSet set;
  for (const CustRef button : Children(kMenusRoot)) {
    const Item& item = nodes_.at(button);
    Menu menu{RecordOf(item.Content), item.Waiting};
    for (const CustRef child : item.Children) {
      if (!At(child).Key.empty()) menu.Items.push_back(RecordOf(At(child)));
    }
    set.Menus.push_back(std::move(menu));
  }
  for (const CustRef single : Children(kSinglesRoot)) set.Singles.push_back(RecordOf(At(single)));
  return set;
}

const CustNode& CustTree::At(CustRef node) const {
  static const CustNode kNothing;
  const Item* item = Find(node);
  return item != nullptr ? item->Content : kNothing;
}

CustRef CustTree::Parent(CustRef node) const {
  const Item* item = Find(node);
  return item != nullptr ? item->Parent : kNoRef;
}

const std::vector<CustRef>& CustTree::Children(CustRef node) const {
  static const std::vector<CustRef> kNobody;
  const Item* item = Find(node);
  return item != nullptr ? item->Children : kNobody;
}

CustPlace CustTree::PlaceOf(CustRef node) const {
  const CustRef parent = Parent(node);
  if (parent == kNoRef) return {};
  const std::vector<CustRef>& siblings = Children(parent);
  const auto found = std::find(siblings.begin(), siblings.end(), node);
  return {parent, static_cast<std::size_t>(found - siblings.begin())};
}

CustRef CustTree::Sibling(CustRef node, int step) const {
  if (IsRoot(node)) {
    const CustRef other = node + step;
    return IsRoot(other) ? other : kNoRef;
  }
  const CustPlace place = PlaceOf(node);
  if (place.Parent == kNoRef) return kNoRef;
  const std::vector<CustRef>& siblings = Children(place.Parent);
  if (step < 0) return place.Index == 0 ? kNoRef : siblings[place.Index - 1];
  return place.Index + 1 < siblings.size() ? siblings[place.Index + 1] : kNoRef;
}

bool CustTree::IsInTree(CustRef node) const {
  while (!IsRoot(node)) {
    node = Parent(node);
    if (node == kNoRef) return false;
  }
  return nodes_.contains(node);
}

CustRef CustTree::FindKey(std::string_view key) const {
  const auto found = keys_.find(UpperCase(key));
  return found != keys_.end() && IsInTree(found->second) ? found->second : kNoRef;
}

std::vector<CustRef> CustTree::InOrder() const {
  std::vector<CustRef> order;
  order.reserve(nodes_.size());
  for (const CustRef root : {kMenusRoot, kSinglesRoot}) {
    for (const CustRef button : Children(root)) {
      order.push_back(button);
      const std::vector<CustRef>& items = Children(button);
      order.insert(order.end(), items.begin(), items.end());
    }
  }
  return order;
}

std::string CustTree::NewMenuKey() { return "B" + std::to_string(++menuNum_); }
std::string CustTree::NewItemKey() { return "M" + std::to_string(++itemNum_); }

CustRef CustTree::Add(CustPlace place, CustNode node) {
  place.Index = std::min(place.Index, Children(place.Parent).size());
  const CustRef added = NewNode(std::move(node));
  Attach(added, place);
  Record({.What = TreeChange::Kind::Add, .Node = added, .To = place});
  return added;
}

void CustTree::Remove(CustRef node) {
  const CustPlace from = PlaceOf(node);
  if (from.Parent == kNoRef) return;
  Detach(node);
  Record({.What = TreeChange::Kind::Remove, .Node = node, .From = from});
}

void CustTree::Move(CustRef node, CustPlace to) {
  const CustPlace from = PlaceOf(node);
  if (from.Parent == kNoRef) return;
  const std::size_t room = Children(to.Parent).size() - (to.Parent == from.Parent ? 1 : 0);
  to.Index = std::min(to.Index, room);
  if (from == to) return;
  Carry(node, to);
  Record({.What = TreeChange::Kind::Move, .Node = node, .From = from, .To = to});
}

void CustTree::Set(CustRef node, CustNode content) {
  if (Find(node) == nullptr || At(node) == content) return;
  TreeChange change{.What = TreeChange::Kind::Set, .Node = node};
  change.Before = At(node);
  change.After = std::move(content);
  Put(node, change.After);
  Record(std::move(change));
}

void CustTree::SortChildren(CustRef parent) {
  TreeChange change{.What = TreeChange::Kind::Reorder, .Node = parent};
  change.OldOrder = Children(parent);
  change.NewOrder = change.OldOrder;
  std::stable_sort(change.NewOrder.begin(), change.NewOrder.end(), [this](CustRef a, CustRef b) {
    return CompareNoCase(At(a).Text, At(b).Text) < 0;
  });
  if (change.NewOrder == change.OldOrder) return;
  Order(parent, change.NewOrder);
  Record(std::move(change));
}

void CustTree::TakeBack(const TreeChange& change) {
  ++revision_;
  switch (change.What) {
    case TreeChange::Kind::Add:
      return Detach(change.Node);
    case TreeChange::Kind::Remove:
      return Attach(change.Node, change.From);
    case TreeChange::Kind::Move:
      return Carry(change.Node, change.From);
    case TreeChange::Kind::Set:
      return Put(change.Node, change.Before);
    case TreeChange::Kind::Reorder:
      return Order(change.Node, change.OldOrder);
  }
}

void CustTree::MakeAgain(const TreeChange& change) {
  ++revision_;
  switch (change.What) {
    case TreeChange::Kind::Add:
      return Attach(change.Node, change.To);
    case TreeChange::Kind::Remove:
      return Detach(change.Node);
    case TreeChange::Kind::Move:
      return Carry(change.Node, change.To);
    case TreeChange::Kind::Set:
      return Put(change.Node, change.After);
    case TreeChange::Kind::Reorder:
      return Order(change.Node, change.NewOrder);
  }
}

void CustTree::Forget(CustRef node) {
  if (Find(node) != nullptr && !IsInTree(node)) Drop(node);
}

const CustTree::Item* CustTree::Find(CustRef node) const {
  const auto found = nodes_.find(node);
  return found != nodes_.end() ? &found->second : nullptr;
}

CustTree::Item* CustTree::Find(CustRef node) {
  const auto found = nodes_.find(node);
  return found != nodes_.end() ? &found->second : nullptr;
}

CustRef CustTree::NewNode(CustNode content) {
  const CustRef node = ++last_;
  if (!content.Key.empty()) keys_[UpperCase(content.Key)] = node;
  nodes_[node].Content = std::move(content);
  return node;
}

void CustTree::Attach(CustRef node, CustPlace place) {
  std::vector<CustRef>& siblings = Find(place.Parent)->Children;
  siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(place.Index), node);
  Find(node)->Parent = place.Parent;
  if (view_ != nullptr) view_->NodeAdded(node);
}

void CustTree::Detach(CustRef node) {
  std::erase(Find(Parent(node))->Children, node);
  Find(node)->Parent = kNoRef;
  if (view_ != nullptr) view_->NodeRemoved(node);
}

void CustTree::Carry(CustRef node, CustPlace to) {
  std::erase(Find(Parent(node))->Children, node);
  std::vector<CustRef>& siblings = Find(to.Parent)->Children;
  siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(to.Index), node);
  Find(node)->Parent = to.Parent;
  if (view_ != nullptr) view_->NodeMoved(node);
}

void CustTree::Put(CustRef node, const CustNode& content) {
  Item& item = *Find(node);
  if (item.Content.Key != content.Key) {
    keys_.erase(UpperCase(item.Content.Key));
    keys_[UpperCase(content.Key)] = node;
  }
  item.Content = content;
  if (view_ != nullptr) view_->NodeChanged(node);
}

void CustTree::Order(CustRef parent, std::vector<CustRef> children) {
  Find(parent)->Children = std::move(children);
  if (view_ != nullptr) view_->ChildrenReordered(parent);
}

void CustTree::Drop(CustRef node) {
  const Item* item = Find(node);
  const std::vector<CustRef> children = item->Children;
  const auto key = keys_.find(UpperCase(item->Content.Key));
  if (key != keys_.end() && key->second == node) keys_.erase(key);
  nodes_.erase(node);
  for (const CustRef child : children) Drop(child);
}

void CustTree::Record(TreeChange change) {
  ++revision_;
  if (recorder_ != nullptr) recorder_->Record(std::move(change));
}

}  // namespace corvelle
