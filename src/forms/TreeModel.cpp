#include "forms/TreeModel.h"

#include <algorithm>
#include <utility>

namespace corvelle::forms {

TreeModel::Node* TreeModel::Find(NodeId node) {
  const auto found = nodes_.find(node);
  return found != nodes_.end() ? &found->second : nullptr;
}

const TreeModel::Node* TreeModel::Find(NodeId node) const {
  const auto found = nodes_.find(node);
  return found != nodes_.end() ? &found->second : nullptr;
}

std::vector<NodeId>* TreeModel::ChildrenToWrite(NodeId parent) {
  if (parent == kNoNode) return &roots_;
  Node* const node = Find(parent);
  return node != nullptr ? &node->Children : nullptr;
}

const std::vector<NodeId>& TreeModel::Children(NodeId parent) const {
  static const std::vector<NodeId> kNone;
  if (parent == kNoNode) return roots_;
  const Node* const node = Find(parent);
  return node != nullptr ? node->Children : kNone;
}

NodeId TreeModel::Insert(NodeId parent, NodeId before, NodeLook look) {
  std::vector<NodeId>* const siblings = ChildrenToWrite(parent);
  if (siblings == nullptr) return kNoNode;
  const NodeId id = ++last_;
  siblings->insert(
      before != kNoNode ? std::find(siblings->begin(), siblings->end(), before) : siblings->end(),
      id);
  nodes_.emplace(id, Node{.Parent = parent, .Look = std::move(look)});
  return id;
}

void TreeModel::Remove(NodeId node) {
  if (!Has(node)) return;
  if (auto* const siblings = ChildrenToWrite(Parent(node))) std::erase(*siblings, node);
  std::vector<NodeId> gone{node};
  while (!gone.empty()) {
    const auto at = nodes_.find(gone.back());
    gone.pop_back();
    gone.insert(gone.end(), at->second.Children.begin(), at->second.Children.end());
    nodes_.erase(at);
  }
}

void TreeModel::Clear() {
  nodes_.clear();
  roots_.clear();
}

bool TreeModel::Move(NodeId node, NodeId parent, NodeId before) {
  Node* const found = Find(node);
  if (found == nullptr || node == before || IsWithin(parent, node)) return false;
  std::vector<NodeId>* const siblings = ChildrenToWrite(parent);
  if (siblings == nullptr) return false;
  if (auto* const left = ChildrenToWrite(found->Parent)) std::erase(*left, node);
  siblings->insert(
      before != kNoNode ? std::find(siblings->begin(), siblings->end(), before) : siblings->end(),
      node);
  found->Parent = parent;
  return true;
}

void TreeModel::SetOrder(NodeId parent, std::vector<NodeId> children) {
  if (std::vector<NodeId>* const siblings = ChildrenToWrite(parent))
    *siblings = std::move(children);
}

NodeId TreeModel::Parent(NodeId node) const {
  const Node* const found = Find(node);
  return found != nullptr ? found->Parent : kNoNode;
}

NodeId TreeModel::Sibling(NodeId node, int step) const {
  if (!Has(node)) return kNoNode;
  const std::vector<NodeId>& siblings = Children(Parent(node));
  const auto at = std::find(siblings.begin(), siblings.end(), node) - siblings.begin() + step;
  const bool there = at >= 0 && at < static_cast<std::ptrdiff_t>(siblings.size());
  return there ? siblings[static_cast<std::size_t>(at)] : kNoNode;
}

bool TreeModel::IsWithin(NodeId node, NodeId above) const {
  for (NodeId at = node; at != kNoNode; at = Parent(at)) {
    if (at == above) return true;
  }
  return false;
}

}  // namespace corvelle::forms
