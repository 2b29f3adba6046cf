#pragma once

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "forms/TreePeer.h"
#include "sim/SimPeer.h"
#include "sim/SimTextEdit.h"

namespace corvelle::sim {

/// A tree of rows. A label edit is a part of it, not a window: the keys go to the edit while it is
/// on, and the loss of the focus takes what was typed.
class SimTree final : public SimPeerOf<forms::TreePeer>, public SimControl {
 public:
  static constexpr int kRowHeight = 18;
  static constexpr int kIndent = 19;

  SimTree(SimDesktop& desktop, WindowId window, const forms::TreeStyle& style,
          forms::TreeEvents& events)
      : SimPeerOf(desktop, window), style_(style), events_(events) {}

  void AddImage(const Canvas& image) override;
  void Insert(forms::NodeId node, forms::NodeId parent, forms::NodeId before,
              const forms::NodeLook& look) override;
  void Remove(forms::NodeId node) override;
  void Clear() override;
  void SetLook(forms::NodeId node, const forms::NodeLook& look) override;
  void Reorder(forms::NodeId parent, const std::vector<forms::NodeId>& children) override;
  void Select(forms::NodeId node) override;
  void Expand(forms::NodeId node, bool expand) override;
  void EnsureVisible(forms::NodeId node) override;
  forms::NodeId FirstVisible() const override;
  void SetFirstVisible(forms::NodeId node) override;
  forms::TreeHit HitTest(PixelPoint at) const override;
  PixelRect RowRect(forms::NodeId node) const override;
  void BeginEdit(forms::NodeId node) override;
  void EndEdit(bool commit) override;
  void SetDropTarget(forms::NodeId node) override;
  void SetInsertMark(forms::NodeId node, bool after) override;
  void Freeze() override { ++frozen_; }
  void Thaw() override;
  void StartDrag(Picture picture, PixelPoint hotSpot) override;

  [[nodiscard]] forms::NodeId DropTarget() const noexcept { return dropTarget_; }
  [[nodiscard]] forms::NodeId InsertMark() const noexcept { return insertMark_; }
  [[nodiscard]] const Picture& DragPicture() const noexcept { return dragPicture_; }

  void Paint(SimCanvas& canvas, const SimWindow& window, bool focused) const override;
  void Press(forms::MouseButton button, forms::ShiftState shift, PixelPoint at,
             bool second) override;
  void MouseMove(forms::MouseButton down, PixelPoint at) override;
  void Release(forms::MouseButton button, forms::ShiftState shift, PixelPoint at,
               bool over) override;
  void CaptureLost() override;
  void Key(int keyCode, forms::ShiftState shift) override;
  void Character(char32_t character) override;
  bool Wheel(int delta) override;
  void Focus(bool gained) override;
  /// While a label is edited the keys are the edit's.
  bool TakesAllKeys() const override { return edited_ != forms::kNoNode; }

 private:
  struct Node {
    forms::NodeId Parent = forms::kNoNode;
    std::vector<forms::NodeId> Children;
    forms::NodeLook Look;
    bool Expanded = false;
  };

  [[nodiscard]] std::vector<forms::NodeId> Rows() const;
  void CollectRows(forms::NodeId parent, std::vector<forms::NodeId>& rows) const;
  [[nodiscard]] int RowOf(forms::NodeId node) const;
  [[nodiscard]] int RowsSeen() const;
  [[nodiscard]] int LeftOf(forms::NodeId node) const;
  void Open(forms::NodeId node);
  /// The user goes to a node, opens or closes one, turns a box over. Each may end the tree.
  bool Choose(forms::NodeId node);
  void Turn(forms::NodeId node, bool expand);
  void TurnBox(forms::NodeId node);
  void EditKey(int keyCode, forms::ShiftState shift);
  void FinishEdit(bool commit);
  void TellEnded();
  void EndDrag(PixelPoint at, bool dropped);
  void Repaint();
  /// Tells an event after the user's action, if the tree is still there.
  void Later(std::function<void()> event);

  forms::TreeStyle style_;
  forms::TreeEvents& events_;
  std::shared_ptr<const char> alive_ = std::make_shared<const char>();
  std::unordered_map<forms::NodeId, Node> nodes_;
  std::vector<forms::NodeId> roots_;
  std::vector<std::shared_ptr<SimCanvas>> images_;
  forms::NodeId selected_ = forms::kNoNode;
  forms::NodeId edited_ = forms::kNoNode;
  /// An edit that has ended and was not told yet; without a text it was given up.
  struct EndedEdit {
    forms::NodeId Node;
    std::optional<std::string> Text;
  };
  std::optional<EndedEdit> ended_;
  forms::NodeId dropTarget_ = forms::kNoNode;
  forms::NodeId insertMark_ = forms::kNoNode;
  bool insertAfter_ = false;
  SimTextEdit edit_;
  int top_ = 0;  // the first row that is seen
  int frozen_ = 0;
  forms::NodeId pressed_ = forms::kNoNode;  // what a drag would begin with
  forms::NodeId clickEdits_ = forms::kNoNode;
  PixelPoint pressPoint_;
  bool dragging_ = false;
  Picture dragPicture_;
};

}  // namespace corvelle::sim
