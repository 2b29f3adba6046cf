#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/WindowSystem.h"

namespace corvelle::forms {

/// A node of a tree, for as long as the tree exists: never the system's handle, never used again.
using NodeId = std::int64_t;
inline constexpr NodeId kNoNode = 0;

/// What a node looks like.
struct NodeLook {
  std::string Text;
  int Image = -1;  // in the order in which images were added; -1 for none
  bool Dimmed = false;
  bool Checked = false;

  friend bool operator==(const NodeLook&, const NodeLook&) = default;
};

struct TreeStyle {
  bool CheckBoxes = false;
  int ImageSize = 16;  // pixels
};

/// The part of a row at a point.
enum class TreePart { Nothing, Expander, Check, Image, Label, Beside };

struct TreeHit {
  NodeId Node = kNoNode;
  TreePart Part = TreePart::Nothing;

  friend bool operator==(const TreeHit&, const TreeHit&) = default;
};

/// What the user does in a tree. What the program changes through the peer is not told. All but
/// OnSelecting, OnSelected, OnExpanding, OnExpanded and OnEditing are told after the system's own
/// call has come to its end, so that they may change the tree, or destroy it. A text box has lost
/// the focus to the tree before a new selection is told.
class TreeEvents {
 public:
  virtual ~TreeEvents() = default;

  /// False keeps the selection.
  virtual bool OnSelecting(NodeId node) = 0;
  virtual void OnSelected(NodeId node) = 0;
  /// False keeps the node as it is.
  virtual bool OnExpanding(NodeId node, bool expand) = 0;
  virtual void OnExpanded(NodeId node, bool expand) = 0;
  /// False keeps the label as it is.
  virtual bool OnEditing(NodeId node) = 0;
  /// The end of an edit that was not refused: the new text, or nothing when it was given up. The
  /// label itself stays as it was.
  virtual void OnEdited(NodeId node, std::optional<std::string> text) = 0;
  virtual void OnChecked(NodeId node, bool checked) = 0;
  /// A double click on a label or image.
  virtual void OnNodeActivated(NodeId node) = 0;
  /// The user drags a node with the left button. A drag that is not started by StartDrag in this
  /// call does not come about.
  virtual void OnDragBegin(NodeId node) = 0;
  /// Pixels of the window. The tree scrolls by itself while the pointer is at its edge.
  virtual void OnDragMove(PixelPoint at) = 0;
  /// Dropped, or given up: by Esc, or because the mouse was taken away.
  virtual void OnDragEnd(PixelPoint at, bool dropped) = 0;
};

/// The window of a tree. While the user presses in it, changes wait until the system has come out
/// of the press, in their order; so does the window's end.
class TreePeer : public WindowPeer {
 public:
  /// Pixels in Image::kMask are see-through. Images count from 0.
  virtual void AddImage(const Canvas& image) = 0;

  /// In front of `before`, or as the last child.
  virtual void Insert(NodeId node, NodeId parent, NodeId before, const NodeLook& look) = 0;
  /// With all below it.
  virtual void Remove(NodeId node) = 0;
  virtual void Clear() = 0;
  virtual void SetLook(NodeId node, const NodeLook& look) = 0;
  /// The children of a node in another order.
  virtual void Reorder(NodeId parent, const std::vector<NodeId>& children) = 0;
  virtual void Select(NodeId node) = 0;
  virtual void Expand(NodeId node, bool expand) = 0;
  virtual void EnsureVisible(NodeId node) = 0;
  [[nodiscard]] virtual NodeId FirstVisible() const = 0;
  virtual void SetFirstVisible(NodeId node) = 0;
  [[nodiscard]] virtual TreeHit HitTest(PixelPoint at) const = 0;
  /// The whole row, in pixels of the window; empty when it cannot be seen.
  [[nodiscard]] virtual PixelRect RowRect(NodeId node) const = 0;
  virtual void BeginEdit(NodeId node) = 0;
  /// Nothing when no label is edited. An edit that is taken is told before this returns.
  virtual void EndEdit(bool commit) = 0;
  /// kNoNode takes the mark away.
  virtual void SetDropTarget(NodeId node) = 0;
  virtual void SetInsertMark(NodeId node, bool after) = 0;
  /// Nothing is painted between the two.
  virtual void Freeze() = 0;
  virtual void Thaw() = 0;
  /// In OnDragBegin: shows `picture` at the pointer until the drag ends.
  virtual void StartDrag(Picture picture, PixelPoint hotSpot) = 0;
};

}  // namespace corvelle::forms
