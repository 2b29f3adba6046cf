#pragma once

#include <deque>
#include <string>
#include <unordered_map>
#include <vector>

#include "customize/CustTree.h"
#include "customize/MissingTargets.h"
#include "forms/Timer.h"
#include "forms/TreeView.h"

namespace corvelle {

class Program;

/// Shows a tree of menus in a tree view, with the pictures of its entries. Pictures of icons that
/// were not shown before come one after the other, by a timer, so that the window answers
/// meanwhile.
class CustTreeControl final : public CustTreeView {
 public:
  CustTreeControl(Program& program, CustTree& tree, forms::TreeView& control);
  ~CustTreeControl() override;

  /// The control's node for a node of the tree, and back; none for one that is not shown.
  [[nodiscard]] forms::NodeId IdOf(CustRef node) const;
  [[nodiscard]] CustRef RefOf(forms::NodeId id) const;

  /// All pictures that wait are looked up now.
  void FinishPictures();
  [[nodiscard]] bool PicturesWait() const noexcept { return !waiting_.empty(); }
  /// True for an entry whose target is known to be missing: it bears a mark.
  [[nodiscard]] bool IsMissing(CustRef node) const;
  /// The number of a node's image as it is without that mark.
  [[nodiscard]] int PlainImage(CustRef node);
  [[nodiscard]] MissingTargets& Targets() noexcept { return targets_; }
  /// The window is closed.
  void Clear();

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
  /// The same with the mark of a missing target.
  [[nodiscard]] int Marked(int image);
  [[nodiscard]] int Glyph(const std::string& key);
  int AddImage(Picture picture);
  [[nodiscard]] int Draw(const std::string& icon);
  void ShowNext();
  void LookUp(CustRef node);

  Program& program_;
  CustTree& tree_;
  forms::TreeView& control_;
  std::unordered_map<CustRef, forms::NodeId> ids_;
  std::unordered_map<forms::NodeId, CustRef> refs_;
  std::unordered_map<std::string, int> images_;  // by glyph or icon text in small letters
  std::unordered_map<int, int> marked_;          // images with the mark, by those without
  std::vector<Picture> pictures_;                // of all images
  MissingTargets targets_;
  std::deque<CustRef> waiting_;  // nodes whose picture is not drawn yet
  forms::Timer tmrPictures_;
};

}  // namespace corvelle
