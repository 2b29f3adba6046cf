#include "sim/SimTree.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "base/Utf8.h"
#include "sim/SimControlPainting.h"

namespace corvelle::sim {

using forms::kNoNode;
using forms::NodeId;
using forms::TreePart;

namespace {

constexpr int kEdge = 2;
constexpr int kBox = 16;
constexpr int kDragDistance = 4;

}  // namespace

// The nodes.

void SimTree::AddImage(const Canvas& image) {
  auto copy = std::make_shared<SimCanvas>(image.Size());
  copy->DrawCanvas(image, {0, 0, image.Size().width, image.Size().height}, {0, 0});
  images_.push_back(std::move(copy));
}

void SimTree::Repaint() {
  if (frozen_ == 0) Changed();
}

void SimTree::Thaw() {
  if (--frozen_ == 0) Changed();
}

void SimTree::Insert(NodeId node, NodeId parent, NodeId before, const forms::NodeLook& look) {
  nodes_[node] = {.Parent = parent, .Look = look};
  std::vector<NodeId>& siblings = parent != kNoNode ? nodes_[parent].Children : roots_;
  siblings.insert(
      before != kNoNode ? std::find(siblings.begin(), siblings.end(), before) : siblings.end(),
      node);
  Repaint();
}

void SimTree::Remove(NodeId node) {
  const auto found = nodes_.find(node);
  if (found == nodes_.end()) return;
  const std::vector<NodeId> children = found->second.Children;
  for (const NodeId child : children) Remove(child);
  const NodeId parent = nodes_[node].Parent;
  std::erase(parent != kNoNode ? nodes_[parent].Children : roots_, node);
  nodes_.erase(node);
  for (NodeId* held : {&selected_, &edited_, &dropTarget_, &insertMark_, &pressed_, &clickEdits_}) {
    if (*held == node) *held = kNoNode;
  }
  Repaint();
}

void SimTree::Clear() {
  nodes_.clear();
  roots_.clear();
  selected_ = edited_ = dropTarget_ = insertMark_ = pressed_ = clickEdits_ = kNoNode;
  top_ = 0;
  Repaint();
}

void SimTree::SetLook(NodeId node, const forms::NodeLook& look) {
  nodes_.at(node).Look = look;
  Repaint();
}

void SimTree::Reorder(NodeId parent, const std::vector<NodeId>& children) {
  (parent != kNoNode ? nodes_.at(parent).Children : roots_) = children;
  Repaint();
}

void SimTree::CollectRows(NodeId parent, std::vector<NodeId>& rows) const {
  for (const NodeId node : parent != kNoNode ? nodes_.at(parent).Children : roots_) {
    rows.push_back(node);
    if (nodes_.at(node).Expanded) CollectRows(node, rows);
  }
}

std::vector<NodeId> SimTree::Rows() const {
  std::vector<NodeId> rows;
  CollectRows(kNoNode, rows);
  return rows;
}

int SimTree::RowOf(NodeId node) const {
  const std::vector<NodeId> rows = Rows();
  const auto at = std::find(rows.begin(), rows.end(), node);
  return at != rows.end() ? static_cast<int>(at - rows.begin()) : -1;
}

int SimTree::RowsSeen() const {
  return std::max((Window().Bounds.Height() - 2 * kEdge) / kRowHeight, 1);
}

void SimTree::Open(NodeId node) {
  for (NodeId at = nodes_.at(node).Parent; at != kNoNode; at = nodes_.at(at).Parent) {
    nodes_.at(at).Expanded = true;
  }
}

void SimTree::Select(NodeId node) {
  selected_ = node;
  if (node != kNoNode) EnsureVisible(node);
  Repaint();
}

void SimTree::Expand(NodeId node, bool expand) {
  nodes_.at(node).Expanded = expand;
  SetFirstVisible(FirstVisible());
  Repaint();
}

void SimTree::EnsureVisible(NodeId node) {
  Open(node);
  const int row = RowOf(node);
  if (row < top_) top_ = row;
  if (row >= top_ + RowsSeen()) top_ = row - RowsSeen() + 1;
  Repaint();
}

NodeId SimTree::FirstVisible() const {
  const std::vector<NodeId> rows = Rows();
  return top_ < static_cast<int>(rows.size()) ? rows[static_cast<std::size_t>(top_)] : kNoNode;
}

void SimTree::SetFirstVisible(NodeId node) {
  const int last = std::max(static_cast<int>(Rows().size()) - RowsSeen(), 0);
  top_ = std::clamp(RowOf(node), 0, last);
  Repaint();
}

int SimTree::LeftOf(NodeId node) const {
  int left = kEdge + kIndent;
  for (NodeId at = nodes_.at(node).Parent; at != kNoNode; at = nodes_.at(at).Parent)
    left += kIndent;
  return left;
}

forms::TreeHit SimTree::HitTest(PixelPoint at) const {
  const std::vector<NodeId> rows = Rows();
  const PixelSize size = Window().Bounds.Size();
  const int row = top_ + (at.y - kEdge) / kRowHeight;
  if (at.y < kEdge || at.x < 0 || at.x >= size.width || at.y >= size.height - kEdge ||
      row >= static_cast<int>(rows.size())) {
    return {};
  }
  const NodeId node = rows[static_cast<std::size_t>(row)];
  const Node& found = nodes_.at(node);
  int left = LeftOf(node);
  if (at.x >= left - kIndent && at.x < left) {
    return {node, found.Children.empty() ? TreePart::Beside : TreePart::Expander};
  }
  if (at.x < left) return {node, TreePart::Beside};
  if (style_.CheckBoxes) {
    if (at.x < left + kBox) return {node, TreePart::Check};
    left += kBox;
  }
  if (!images_.empty()) {
    if (at.x < left + style_.ImageSize) return {node, TreePart::Image};
    left += style_.ImageSize + 2;
  }
  const int width = TextSize(found.Look.Text, {{}, Window().Dpi}).width + 4;
  return {node, at.x < left + width ? TreePart::Label : TreePart::Beside};
}

PixelRect SimTree::RowRect(NodeId node) const {
  const int row = RowOf(node);
  if (row < 0) return {};
  const int top = kEdge + (row - top_) * kRowHeight;
  return {kEdge, top, Window().Bounds.Width() - kEdge, top + kRowHeight};
}

// The user.

void SimTree::Later(std::function<void()> event) {
  Desktop().AfterEvent([watch = std::weak_ptr<const char>(alive_), event = std::move(event)] {
    if (!watch.expired()) event();
  });
}

bool SimTree::Choose(NodeId node) {
  if (node == selected_) return true;
  const std::weak_ptr<const char> watch = alive_;
  if (!events_.OnSelecting(node) || watch.expired() || !nodes_.contains(node)) return false;
  Select(node);
  events_.OnSelected(node);
  return !watch.expired();
}

void SimTree::Turn(NodeId node, bool expand) {
  Node& found = nodes_.at(node);
  if (found.Children.empty() || found.Expanded == expand) return;
  const std::weak_ptr<const char> watch = alive_;
  if (!events_.OnExpanding(node, expand) || watch.expired() || !nodes_.contains(node)) return;
  // A selection that would not be seen any more goes to the node that closes.
  for (NodeId at = selected_; !expand && at != kNoNode; at = nodes_.at(at).Parent) {
    if (at == node && selected_ != node && !Choose(node)) return;
  }
  Expand(node, expand);
  events_.OnExpanded(node, expand);
}

void SimTree::TurnBox(NodeId node) {
  bool& checked = nodes_.at(node).Look.Checked;
  checked = !checked;
  Repaint();
  Later([this, node, now = checked] { events_.OnChecked(node, now); });
}

void SimTree::Press(forms::MouseButton button, forms::ShiftState /*shift*/, PixelPoint at,
                    bool second) {
  const std::weak_ptr<const char> watch = alive_;
  FinishEdit(true);
  const forms::TreeHit hit = HitTest(at);
  pressed_ = clickEdits_ = kNoNode;
  if (hit.Node == kNoNode || hit.Part == TreePart::Beside || button != forms::MouseButton::Left) {
    return;
  }
  if (hit.Part == TreePart::Expander) return Turn(hit.Node, !nodes_.at(hit.Node).Expanded);
  if (hit.Part == TreePart::Check) return TurnBox(hit.Node);
  if (second) {
    Later([this, node = hit.Node] { events_.OnNodeActivated(node); });
    return Turn(hit.Node, !nodes_.at(hit.Node).Expanded);
  }
  pressed_ = hit.Node;
  pressPoint_ = at;
  if (hit.Node == selected_ && hit.Part == TreePart::Label) clickEdits_ = hit.Node;
  static_cast<void>(Choose(hit.Node));
}

void SimTree::MouseMove(forms::MouseButton down, PixelPoint at) {
  if (dragging_) return events_.OnDragMove(at);
  if (pressed_ == kNoNode || !Has(down, forms::MouseButton::Left)) return;
  if (std::abs(at.x - pressPoint_.x) < kDragDistance &&
      std::abs(at.y - pressPoint_.y) < kDragDistance) {
    return;
  }
  clickEdits_ = kNoNode;
  Later([this, node = std::exchange(pressed_, kNoNode)] { events_.OnDragBegin(node); });
}

void SimTree::StartDrag(Picture picture, PixelPoint /*hotSpot*/) {
  dragging_ = true;
  dragPicture_ = std::move(picture);
}

void SimTree::EndDrag(PixelPoint at, bool dropped) {
  dragging_ = false;
  dragPicture_.reset();
  Later([this, at, dropped] { events_.OnDragEnd(at, dropped); });
}

void SimTree::Release(forms::MouseButton button, forms::ShiftState /*shift*/, PixelPoint at,
                      bool /*over*/) {
  pressed_ = kNoNode;
  if (button != forms::MouseButton::Left) return;
  if (dragging_) return EndDrag(at, true);
  const NodeId node = std::exchange(clickEdits_, kNoNode);
  // The system waits whether a second click comes.
  if (node == kNoNode) return;
  Later([this, node] {
    if (nodes_.contains(node) && node == selected_) BeginEdit(node);
  });
}

void SimTree::CaptureLost() {
  pressed_ = clickEdits_ = kNoNode;
  if (dragging_) EndDrag(pressPoint_, false);
}

void SimTree::Key(int keyCode, forms::ShiftState shift) {
  using namespace forms;
  if (edited_ != kNoNode) return EditKey(keyCode, shift);
  if (dragging_ && keyCode == key::Escape) return EndDrag(pressPoint_, false);
  const std::vector<NodeId> rows = Rows();
  if (rows.empty() || shift.Alt || shift.Ctrl) return;
  const int here = RowOf(selected_);
  const auto to = [&](int row) {
    const int last = static_cast<int>(rows.size()) - 1;
    static_cast<void>(Choose(rows[static_cast<std::size_t>(std::clamp(row, 0, last))]));
  };
  switch (keyCode) {
    case key::Up:
      return to(here - 1);
    case key::Down:
      return to(here + 1);
    case key::PageUp:
      return to(here - RowsSeen() + 1);
    case key::PageDown:
      return to(here + RowsSeen() - 1);
    case key::Home:
      return to(0);
    case key::End:
      return to(static_cast<int>(rows.size()) - 1);
    default:
      break;
  }
  if (selected_ == kNoNode) return;
  const Node& node = nodes_.at(selected_);
  if (keyCode == key::Left) {
    if (node.Expanded) return Turn(selected_, false);
    if (node.Parent != kNoNode) static_cast<void>(Choose(node.Parent));
  } else if (keyCode == key::Right) {
    if (!node.Expanded) return Turn(selected_, true);
    if (!node.Children.empty()) static_cast<void>(Choose(node.Children.front()));
  } else if (keyCode == key::Space && style_.CheckBoxes) {
    TurnBox(selected_);
  }
}

// A letter goes to the next row that begins with it.
void SimTree::Character(char32_t character) {
  if (edited_ != kNoNode) {
    edit_.Character(character);
    return Repaint();
  }
  const std::vector<NodeId> rows = Rows();
  const int count = static_cast<int>(rows.size());
  const int here = RowOf(selected_);
  for (int away = 1; away <= count; ++away) {
    const NodeId node = rows[static_cast<std::size_t>((here + away + count) % count)];
    const std::string& text = nodes_.at(node).Look.Text;
    if (!text.empty() &&
        UpperCharacter(NextCharacter(text, 0).Character) == UpperCharacter(character)) {
      static_cast<void>(Choose(node));
      return;
    }
  }
}

bool SimTree::Wheel(int delta) {
  const int last = std::max(static_cast<int>(Rows().size()) - RowsSeen(), 0);
  top_ = std::clamp(top_ - 3 * delta / 120, 0, last);
  Repaint();
  return true;
}

// Label edits.

void SimTree::BeginEdit(NodeId node) {
  const std::weak_ptr<const char> watch = alive_;
  FinishEdit(true);
  if (Desktop().FocusWindow() != Id()) SetFocus();
  if (watch.expired() || !nodes_.contains(node)) return;
  if (!events_.OnEditing(node) || watch.expired() || !nodes_.contains(node)) return;
  EnsureVisible(node);
  edited_ = node;
  edit_.SetText(nodes_.at(node).Look.Text);
  edit_.Select({0, 1 << 20});
  Repaint();
}

void SimTree::EndEdit(bool commit) {
  FinishEdit(commit);
  if (commit) TellEnded();
}

void SimTree::FinishEdit(bool commit) {
  const NodeId node = std::exchange(edited_, kNoNode);
  if (node == kNoNode) return;
  Repaint();
  ended_.emplace(EndedEdit{node, std::nullopt});
  if (commit) ended_->Text = edit_.Text();
  Later([this] { TellEnded(); });
}

void SimTree::TellEnded() {
  if (!ended_) return;
  const EndedEdit edit = *std::exchange(ended_, std::nullopt);
  events_.OnEdited(edit.Node, edit.Text);
}

void SimTree::EditKey(int keyCode, forms::ShiftState shift) {
  if (keyCode == forms::key::Enter || keyCode == forms::key::Escape) {
    return FinishEdit(keyCode == forms::key::Enter);
  }
  edit_.Key(keyCode, shift, Desktop().Clipboard());
  Repaint();
}

void SimTree::Focus(bool gained) {
  if (!gained) return FinishEdit(true);
  // The system selects the first node of a tree that has no selection.
  if (selected_ == kNoNode && !roots_.empty()) static_cast<void>(Choose(roots_.front()));
}

// Marks.

void SimTree::SetDropTarget(NodeId node) {
  dropTarget_ = node;
  Repaint();
}

void SimTree::SetInsertMark(NodeId node, bool after) {
  insertMark_ = node;
  insertAfter_ = after;
  Repaint();
}

void SimTree::Paint(SimCanvas& canvas, const SimWindow& window, bool focused) const {
  const PixelSize size = window.Bounds.Size();
  const SimDesktop& desktop = Desktop();
  canvas.FillBox({0, 0, size.width, size.height}, desktop.SystemColor(5));
  const std::vector<NodeId> rows = Rows();
  for (int row = top_; row < static_cast<int>(rows.size()) && row <= top_ + RowsSeen(); ++row) {
    const NodeId id = rows[static_cast<std::size_t>(row)];
    const Node& node = nodes_.at(id);
    const int top = kEdge + (row - top_) * kRowHeight;
    int left = LeftOf(id);
    if (!node.Children.empty()) {
      const PixelRect box{left - 14, top + 4, left - 5, top + 13};
      PaintEdge(desktop, canvas, box, node.Expanded);
    }
    if (style_.CheckBoxes) {
      PaintEdge(desktop, canvas, {left + 1, top + 2, left + 13, top + 14}, false);
      if (node.Look.Checked) {
        canvas.FillBox({left + 4, top + 5, left + 10, top + 11}, desktop.SystemColor(8));
      }
      left += kBox;
    }
    const auto image = [&](int index) {
      if (index < 0 || index >= static_cast<int>(images_.size())) return;
      PaintMasked(canvas, *images_[static_cast<std::size_t>(index)], {left, top}, node.Look.Dimmed);
    };
    image(node.Look.Image);
    if (!images_.empty()) left += style_.ImageSize + 2;
    const std::string text = id == edited_ ? edit_.Text() : node.Look.Text;
    const bool marked = (id == selected_ && focused) || id == dropTarget_;
    const PixelSize words = TextSize(text, {{}, window.Dpi});
    if (marked)
      canvas.FillBox({left, top, left + words.width + 4, top + 16}, desktop.SystemColor(13));
    canvas.DrawString({left + 2, top + 2}, text, {{}, window.Dpi},
                      desktop.SystemColor(!window.Enabled ? 17
                                          : marked        ? 14
                                                          : 8));
    if (id == insertMark_) {
      const int line = insertAfter_ ? top + kRowHeight - 1 : top;
      canvas.FillBox({left, line, size.width - kEdge, line + 1}, desktop.SystemColor(8));
    }
  }
  PaintEdge(desktop, canvas, {0, 0, size.width, size.height}, false);
}

}  // namespace corvelle::sim
