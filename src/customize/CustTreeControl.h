#pragma once

#include <deque>
#include <string>
#include <unordered_map>

#include "customize/CustTree.h"
#include "customize/MissingTargets.h"
#include "forms/Timer.h"
#include "forms/TreeView.h"
#include "icons/AskedIcons.h"
#include "icons/TreeImages.h"

namespace corvelle {

class SlowQuestions;

/// Shows a tree of menus in a tree view, with the pictures of its entries. Icons that were not
/// shown before are asked for one after the other, by a timer; in the place of one that takes its
/// time is a picture of its kind.
class CustTreeControl final : public CustTreeView {
 public:
  /// All of it outlives this.
  CustTreeControl(const IconSources& icons, SlowQuestions& slow, CustTree& tree,
                  forms::TreeView& control);
  ~CustTreeControl() override;

  /// The control's node for a node of the tree, and back; none for one that is not shown.
  [[nodiscard]] forms::NodeId IdOf(CustRef node) const;
  [[nodiscard]] CustRef RefOf(forms::NodeId id) const;

  /// True for an entry whose target is known to be missing: it bears a mark.
  [[nodiscard]] bool IsMissing(CustRef node) const;
  /// The number of a node's image as it is without that mark.
  [[nodiscard]] int PlainImage(CustRef node);
  [[nodiscard]] MissingTargets& Targets() noexcept { return targets_; }
  /// The window is closed.
  void Clear();
  /// While the window is not loaded: its icons are asked for again, as they may have changed, or a
  /// picture of a kind may be in the place of one.
  void ForgetImages();

  void TreeCleared() override;
  void NodeAdded(CustRef node) override;
  void NodeRemoved(CustRef node) override;
  void NodeMoved(CustRef node) override;
  void NodeChanged(CustRef node) override;
  void ChildrenReordered(CustRef parent) override;

 private:
  void Insert(CustRef node, CustRef parent, forms::NodeId before);
  void Forget(CustRef node);
  [[nodiscard]] forms::NodeId NextShown(CustRef node) const;
  [[nodiscard]] forms::NodeLook LookOf(CustRef node);
  /// The image of a picture; -1 for one that has to wait.
  [[nodiscard]] int ImageOf(const NodePicture& picture);
  void ShowNext();
  void LookUp(CustRef node);
  /// Another picture for all nodes of an icon text.
  void TakeLate(const std::string& icon, const IconLook& look);

  CustTree& tree_;
  forms::TreeView& control_;
  std::unordered_map<CustRef, forms::NodeId> ids_;
  std::unordered_map<forms::NodeId, CustRef> refs_;
  MissingTargets targets_;
  std::deque<CustRef> waiting_;  // nodes whose icon is not asked for yet
  AskedIcons icons_;
  TreeImages pictures_;
  std::unordered_map<std::string, int> images_;  // of icons, by their texts in small letters
  forms::Timer tmrPictures_;
};

}  // namespace corvelle
