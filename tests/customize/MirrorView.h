#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <unordered_map>
#include <vector>

#include "customize/CustTree.h"

namespace corvelle {

/// A view that knows only what it was told, as a tree on the screen does.
class MirrorView final : public CustTreeView {
 public:
  explicit MirrorView(CustTree& tree) : tree_(tree) { tree_.SetView(this); }
  MirrorView(const MirrorView&) = delete;
  MirrorView& operator=(const MirrorView&) = delete;
  ~MirrorView() override { tree_.SetView(nullptr); }

  void TreeCleared() override {
    shown_.clear();
    children_.clear();
  }
  void NodeAdded(CustRef node) override { Show(node); }
  void NodeRemoved(CustRef node) override { Hide(node); }
  void NodeMoved(CustRef node) override {
    for (auto& [parent, children] : children_) std::erase(children, node);
    Place(node);
  }
  void NodeChanged(CustRef node) override {
    ASSERT_TRUE(shown_.contains(node));
    shown_[node] = tree_.At(node);
  }
  void ChildrenReordered(CustRef parent) override { children_[parent] = tree_.Children(parent); }

  /// What a reader of the screen would save.
  [[nodiscard]] MenuSet Seen() const {
    MenuSet set;
    for (const CustRef button : Below(kMenusRoot)) {
      Menu menu{RecordOf(shown_.at(button)), {}};
      for (const CustRef item : Below(button)) menu.Items.push_back(RecordOf(shown_.at(item)));
      set.Menus.push_back(menu);
    }
    for (const CustRef single : Below(kSinglesRoot)) {
      set.Singles.push_back(RecordOf(shown_.at(single)));
    }
    return set;
  }
  /// True if every node of the tree is shown in its place with its texts, and no other.
  [[nodiscard]] bool Agrees() const {
    const std::vector<CustRef> nodes = tree_.InOrder();
    if (shown_.size() != nodes.size() + 2) return false;
    const auto same = [this](CustRef node) {
      const auto children = children_.find(node);
      const bool leaf = children == children_.end() || children->second.empty();
      return shown_.contains(node) && Looks(shown_.at(node), tree_.At(node)) &&
             (leaf ? tree_.Children(node).empty() : children->second == tree_.Children(node));
    };
    return same(kMenusRoot) && same(kSinglesRoot) && std::all_of(nodes.begin(), nodes.end(), same);
  }

 private:
  /// The tags are not seen.
  static bool Looks(const CustNode& a, const CustNode& b) {
    return a.Key == b.Key && a.Text == b.Text && a.Entry == b.Entry && a.Picture == b.Picture;
  }
  [[nodiscard]] std::vector<CustRef> Below(CustRef node) const {
    const auto found = children_.find(node);
    return found != children_.end() ? found->second : std::vector<CustRef>();
  }
  void Place(CustRef node) {
    const CustPlace place = tree_.PlaceOf(node);
    if (place.Parent == kNoRef) return;
    std::vector<CustRef>& siblings = children_[place.Parent];
    ASSERT_LE(place.Index, siblings.size());
    siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(place.Index), node);
  }
  void Show(CustRef node) {
    ASSERT_FALSE(shown_.contains(node));
    shown_[node] = tree_.At(node);
    Place(node);
    for (const CustRef child : tree_.Children(node)) Show(child);
  }
  void Hide(CustRef node) {
    ASSERT_TRUE(shown_.contains(node));
    for (const CustRef child : Below(node)) Hide(child);
    children_.erase(node);
    shown_.erase(node);
    for (auto& [parent, children] : children_) std::erase(children, node);
  }

  CustTree& tree_;
  std::unordered_map<CustRef, CustNode> shown_;
  std::unordered_map<CustRef, std::vector<CustRef>> children_;
};

}  // namespace corvelle
