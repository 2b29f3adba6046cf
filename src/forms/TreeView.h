#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/SystemControl.h"
#include "forms/TreeModel.h"

namespace corvelle::forms {

/// Why another node is selected.
enum class SelectCause { User, Removal };

/// A tree of nodes with images, whose labels the user may edit and which he may drag. The program's
/// own changes tell nothing, but for the selection that Remove brings. F2 begins an edit where
/// Editing allows it.
class TreeView final : public SystemControl, private TreeEvents {
 public:
  TreeView(Window& container, std::string name, const TreeStyle& style = {})
      : SystemControl(container, std::move(name)), style_(style) {}

  /// Which nodes there are, and where.
  [[nodiscard]] const TreeModel& Nodes() const noexcept { return nodes_; }
  /// Adds an image and gives its number; pixels in Image::kMask are see-through.
  int AddImage(Picture image);
  /// Forgets all images, of a tree that is not loaded; the next one counts from 0.
  void ClearImages();
  [[nodiscard]] std::size_t ImageCount() const noexcept { return images_.size(); }

  /// In front of `before`, or as the last child of `parent`. kNoNode when the parent is not there.
  NodeId Insert(NodeId parent, NodeId before, NodeLook look);
  /// A label edit ends first. If the selected node goes, its next sibling, the previous one or the
  /// parent is selected, which is told once.
  void Remove(NodeId node);
  void Clear();
  /// The node keeps its id and all below it. False when it would come below itself.
  bool MoveNode(NodeId node, NodeId parent, NodeId before);
  [[nodiscard]] const NodeLook& Look(NodeId node) const;
  void SetLook(NodeId node, NodeLook look);
  void SetText(NodeId node, std::string text);
  void SetImage(NodeId node, int image);
  void SetDimmed(NodeId node, bool dimmed);
  [[nodiscard]] bool Checked(NodeId node) const { return Look(node).Checked; }
  void SetChecked(NodeId node, bool checked);
  [[nodiscard]] NodeId Selected() const noexcept { return selected_; }
  void Select(NodeId node);
  [[nodiscard]] bool IsExpanded(NodeId node) const;
  /// A selection inside a node that closes goes to that node.
  void Expand(NodeId node, bool expand);
  /// Expands what is around the node, too.
  void EnsureVisible(NodeId node);
  /// The first row that is seen.
  [[nodiscard]] NodeId FirstVisible() const;
  void SetFirstVisible(NodeId node);
  /// The children of a node, ignoring case; those that are equal stay in their order.
  void Sort(NodeId parent);
  [[nodiscard]] TreeHit HitTest(PixelPoint at) const;
  [[nodiscard]] PixelRect RowRect(NodeId node) const;
  void BeginEdit(NodeId node);
  /// `commit`: what was typed is taken, and Renamed has run when this returns.
  void EndEdit(bool commit);
  [[nodiscard]] NodeId Edited() const noexcept { return edited_; }
  void SetDropTarget(NodeId node);
  void SetInsertMark(NodeId node, bool after);
  [[nodiscard]] NodeId Dragged() const noexcept { return dragged_; }

  /// Keeps the tree from painting.
  class FreezeScope {
   public:
    explicit FreezeScope(TreeView& tree) : tree_(tree) { tree_.SetFrozen(true); }
    FreezeScope(const FreezeScope&) = delete;
    FreezeScope& operator=(const FreezeScope&) = delete;
    ~FreezeScope() { tree_.SetFrozen(false); }

   private:
    TreeView& tree_;
  };

  std::function<bool(NodeId)> Selecting;  // false keeps the selection
  std::function<void(NodeId, SelectCause)> SelectedChanged;
  std::function<bool(NodeId, bool expand)> Expanding;  // false keeps it as it is
  std::function<void(NodeId, bool expand)> Expanded;
  /// False refuses the edit. Without a handler only BeginEdit and F2 begin one.
  std::function<bool(NodeId, bool byProgram)> Editing;
  /// The user typed a new label. True takes it.
  std::function<bool(NodeId, const std::string& text)> Renamed;
  std::function<void(NodeId)> CheckChanged;
  std::function<void(NodeId)> Activated;
  /// The context menu is asked for at a node, or at none; a point of the control in twips.
  std::function<void(NodeId, float x, float y, bool byKey)> NodeMenu;
  /// False refuses the drag.
  std::function<bool(NodeId)> DragBegin;
  std::function<void(TreeHit)> DragOver;
  std::function<void(TreeHit, bool dropped)> DragEnd;

 protected:
  std::unique_ptr<WindowPeer> NewPeer(WindowPeer* parent) override;
  void PeerMade() override;
  KeyFacts Keys() const override;
  bool OnControlKey(int keyCode, ShiftState shift) override;
  bool MenuAsked(PixelPoint at, bool byKey) override;

 private:
  [[nodiscard]] TreePeer* Own() const noexcept { return static_cast<TreePeer*>(Peer()); }
  void SetFrozen(bool frozen);
  /// Marks all nodes around this one as open.
  void OpenAround(NodeId node);
  void InsertBelow(NodeId parent);
  void TellSelected(SelectCause cause);
  [[nodiscard]] Picture DragPicture(NodeId node);

  bool OnSelecting(NodeId node) override;
  void OnSelected(NodeId node) override;
  bool OnExpanding(NodeId node, bool expand) override;
  void OnExpanded(NodeId node, bool expand) override;
  bool OnEditing(NodeId node) override;
  void OnEdited(NodeId node, std::optional<std::string> text) override;
  void OnChecked(NodeId node, bool checked) override;
  void OnNodeActivated(NodeId node) override;
  void OnDragBegin(NodeId node) override;
  void OnDragMove(PixelPoint at) override;
  void OnDragEnd(PixelPoint at, bool dropped) override;

  TreeStyle style_;
  TreeModel nodes_;
  std::vector<Picture> images_;
  NodeId selected_ = kNoNode;
  NodeId edited_ = kNoNode;
  NodeId dragged_ = kNoNode;
  bool editByProgram_ = false;
};

}  // namespace corvelle::forms
