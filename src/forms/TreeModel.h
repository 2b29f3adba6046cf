#pragma once

#include <unordered_map>
#include <vector>

#include "forms/TreePeer.h"

namespace corvelle::forms {

/// The nodes of a tree and their order, without a window. Ids are given out once and never again.
/// The parent of a root is kNoNode; questions about a node that is not there give kNoNode or
/// nothing.
class TreeModel {
 public:
  struct Node {
    NodeId Parent = kNoNode;
    std::vector<NodeId> Children;
    NodeLook Look;
    bool Expanded = false;
  };

  /// In front of `before`, which is a child of `parent`, or as the last one. kNoNode when the
  /// parent is not there.
  NodeId Insert(NodeId parent, NodeId before, NodeLook look);
  /// With all below it.
  void Remove(NodeId node);
  void Clear();
  /// False when the node would come below itself, or something is not there.
  bool Move(NodeId node, NodeId parent, NodeId before);

  [[nodiscard]] bool Has(NodeId node) const { return nodes_.contains(node); }
  [[nodiscard]] Node* Find(NodeId node);
  [[nodiscard]] const Node* Find(NodeId node) const;
  /// Of a node, or the roots.
  [[nodiscard]] const std::vector<NodeId>& Children(NodeId parent) const;
  void SetOrder(NodeId parent, std::vector<NodeId> children);
  [[nodiscard]] NodeId Parent(NodeId node) const;
  [[nodiscard]] NodeId Next(NodeId node) const { return Sibling(node, 1); }
  [[nodiscard]] NodeId Previous(NodeId node) const { return Sibling(node, -1); }
  /// True if `node` is `above` or lies below it.
  [[nodiscard]] bool IsWithin(NodeId node, NodeId above) const;
  [[nodiscard]] std::size_t Count() const noexcept { return nodes_.size(); }

 private:
  [[nodiscard]] NodeId Sibling(NodeId node, int step) const;
  [[nodiscard]] std::vector<NodeId>* ChildrenToWrite(NodeId parent);

  std::unordered_map<NodeId, Node> nodes_;
  std::vector<NodeId> roots_;
  NodeId last_ = 0;
};

}  // namespace corvelle::forms
