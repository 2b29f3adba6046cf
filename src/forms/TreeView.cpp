#include "forms/TreeView.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "forms/ControlMaker.h"
#include "forms/Graphic.h"
#include "forms/Scopes.h"

namespace corvelle::forms {

// What the program does.

int TreeView::AddImage(Picture image) {
  images_.push_back(std::move(image));
  if (Own() != nullptr) Own()->AddImage(*images_.back());
  return static_cast<int>(images_.size()) - 1;
}

void TreeView::ClearImages() {
  if (Own() != nullptr) return;
  images_.clear();
}

NodeId TreeView::Insert(NodeId parent, NodeId before, NodeLook look) {
  const NodeId node = nodes_.Insert(parent, before, std::move(look));
  if (Own() != nullptr && node != kNoNode) Own()->Insert(node, parent, before, Look(node));
  return node;
}

void TreeView::Remove(NodeId node) {
  if (!nodes_.Has(node)) return;
  EndEdit(false);
  const bool takesSelection = nodes_.IsWithin(selected_, node);
  if (takesSelection) {
    NodeId next = nodes_.Next(node);
    if (next == kNoNode) next = nodes_.Previous(node);
    if (next == kNoNode) next = nodes_.Parent(node);
    Select(next);
  }
  nodes_.Remove(node);
  if (Own() != nullptr) Own()->Remove(node);
  if (takesSelection) TellSelected(SelectCause::Removal);
}

void TreeView::Clear() {
  EndEdit(false);
  nodes_.Clear();
  selected_ = kNoNode;
  if (Own() != nullptr) Own()->Clear();
}

bool TreeView::MoveNode(NodeId node, NodeId parent, NodeId before) {
  EndEdit(false);
  if (!nodes_.Move(node, parent, before)) return false;
  if (Own() == nullptr) return true;
  const FreezeScope freeze(*this);
  Own()->Remove(node);
  Own()->Insert(node, parent, before, Look(node));
  InsertBelow(node);
  Own()->Select(selected_);
  return true;
}

void TreeView::InsertBelow(NodeId parent) {
  for (const NodeId node : nodes_.Children(parent)) {
    Own()->Insert(node, parent, kNoNode, Look(node));
    InsertBelow(node);
  }
  if (IsExpanded(parent)) Own()->Expand(parent, true);
}

const NodeLook& TreeView::Look(NodeId node) const {
  static const NodeLook kNone;
  const TreeModel::Node* const found = nodes_.Find(node);
  return found != nullptr ? found->Look : kNone;
}

void TreeView::SetLook(NodeId node, NodeLook look) {
  TreeModel::Node* const found = nodes_.Find(node);
  if (found == nullptr || found->Look == look) return;
  found->Look = std::move(look);
  if (Own() != nullptr) Own()->SetLook(node, found->Look);
}

void TreeView::SetText(NodeId node, std::string text) {
  NodeLook look = Look(node);
  look.Text = std::move(text);
  SetLook(node, std::move(look));
}

void TreeView::SetImage(NodeId node, int image) {
  NodeLook look = Look(node);
  look.Image = image;
  SetLook(node, std::move(look));
}

void TreeView::SetDimmed(NodeId node, bool dimmed) {
  NodeLook look = Look(node);
  look.Dimmed = dimmed;
  SetLook(node, std::move(look));
}

void TreeView::SetChecked(NodeId node, bool checked) {
  NodeLook look = Look(node);
  look.Checked = checked;
  SetLook(node, std::move(look));
}

void TreeView::Select(NodeId node) {
  selected_ = nodes_.Has(node) ? node : kNoNode;
  // As the system does it.
  OpenAround(selected_);
  if (Own() != nullptr) Own()->Select(selected_);
}

bool TreeView::IsExpanded(NodeId node) const {
  const TreeModel::Node* const found = nodes_.Find(node);
  return found != nullptr && found->Expanded;
}

void TreeView::Expand(NodeId node, bool expand) {
  TreeModel::Node* const found = nodes_.Find(node);
  if (found == nullptr || found->Children.empty() || found->Expanded == expand) return;
  if (!expand && selected_ != node && nodes_.IsWithin(selected_, node)) Select(node);
  found->Expanded = expand;
  if (Own() != nullptr) Own()->Expand(node, expand);
}

void TreeView::OpenAround(NodeId node) {
  TreeModel::Node* around = nodes_.Find(nodes_.Parent(node));
  for (; around != nullptr; around = nodes_.Find(around->Parent)) around->Expanded = true;
}

void TreeView::EnsureVisible(NodeId node) {
  OpenAround(node);
  if (Own() != nullptr && nodes_.Has(node)) Own()->EnsureVisible(node);
}

NodeId TreeView::FirstVisible() const { return Own() != nullptr ? Own()->FirstVisible() : kNoNode; }

void TreeView::SetFirstVisible(NodeId node) {
  if (Own() != nullptr && nodes_.Has(node)) Own()->SetFirstVisible(node);
}

void TreeView::Sort(NodeId parent) {
  std::vector<NodeId> children = nodes_.Children(parent);
  std::stable_sort(children.begin(), children.end(), [this](NodeId a, NodeId b) {
    return CompareNoCase(Look(a).Text, Look(b).Text) < 0;
  });
  nodes_.SetOrder(parent, children);
  if (Own() != nullptr) Own()->Reorder(parent, children);
}

TreeHit TreeView::HitTest(PixelPoint at) const {
  return Own() != nullptr ? Own()->HitTest(at) : TreeHit{};
}

PixelRect TreeView::RowRect(NodeId node) const {
  return Own() != nullptr && nodes_.Has(node) ? Own()->RowRect(node) : PixelRect{};
}

void TreeView::BeginEdit(NodeId node) {
  if (Own() == nullptr || !nodes_.Has(node)) return;
  const FlagScope program(editByProgram_);
  Own()->BeginEdit(node);
}

void TreeView::EndEdit(bool commit) {
  if (Own() != nullptr && edited_ != kNoNode) Own()->EndEdit(commit);
}

void TreeView::SetDropTarget(NodeId node) {
  if (Own() != nullptr) Own()->SetDropTarget(node);
}

void TreeView::SetInsertMark(NodeId node, bool after) {
  if (Own() != nullptr) Own()->SetInsertMark(node, after);
}

void TreeView::SetFrozen(bool frozen) {
  if (Own() == nullptr) return;
  if (frozen) {
    Own()->Freeze();
  } else {
    Own()->Thaw();
  }
}

// The window.

std::unique_ptr<WindowPeer> TreeView::NewPeer(WindowPeer* parent) {
  return Windows().Controls().CreateTree(SpecIn(parent), style_, *this, *this);
}

void TreeView::PeerMade() {
  edited_ = dragged_ = kNoNode;
  const FreezeScope freeze(*this);
  for (const Picture& image : images_) Own()->AddImage(*image);
  InsertBelow(kNoNode);
  if (selected_ != kNoNode) Own()->Select(selected_);
}

KeyFacts TreeView::Keys() const {
  return {.Wants = {.Arrows = true,
                    .Paging = true,
                    .Typing = true,
                    .Space = style_.CheckBoxes,
                    .Function = key::F2,
                    // A drag is given up first.
                    .Escape = dragged_ != kNoNode}};
}

bool TreeView::OnControlKey(int keyCode, ShiftState shift) {
  if (SystemControl::OnControlKey(keyCode, shift)) return true;
  if (Own() == nullptr) return true;
  if (keyCode != key::F2) return false;
  BeginEdit(selected_);
  return true;
}

bool TreeView::MenuAsked(PixelPoint at, bool byKey) {
  const auto handler = NodeMenu;
  if (!handler) return SystemControl::MenuAsked(at, byKey);
  PixelPoint where = at;
  NodeId node = selected_;
  if (byKey) {
    const PixelRect row = RowRect(selected_);
    where = {row.left, row.bottom};
  } else {
    node = HitTest(at).Node;
  }
  const PixelScale scale = Scale();
  handler(node, static_cast<float>(where.x) * scale.TwipsPerPixelX,
          static_cast<float>(where.y) * scale.TwipsPerPixelY, byKey);
  return true;
}

// What the user does. Handlers are copied, since they may destroy the tree.

void TreeView::TellSelected(SelectCause cause) {
  const auto handler = SelectedChanged;
  if (handler) handler(selected_, cause);
}

bool TreeView::OnSelecting(NodeId node) {
  const auto handler = Selecting;
  return !handler || handler(node);
}

void TreeView::OnSelected(NodeId node) {
  if (node == selected_) return;
  selected_ = node;
  TellSelected(SelectCause::User);
}

bool TreeView::OnExpanding(NodeId node, bool expand) {
  const auto handler = Expanding;
  return !handler || handler(node, expand);
}

void TreeView::OnExpanded(NodeId node, bool expand) {
  TreeModel::Node* const found = nodes_.Find(node);
  if (found == nullptr || found->Expanded == expand) return;
  found->Expanded = expand;
  const auto handler = Expanded;
  if (handler) handler(node, expand);
}

bool TreeView::OnEditing(NodeId node) {
  const auto handler = Editing;
  const Alive::Watch watch = MakeWatch();
  const bool may = handler ? handler(node, editByProgram_) : editByProgram_;
  if (watch.Gone() || !may) return false;
  edited_ = node;
  return true;
}

void TreeView::OnEdited(NodeId node, std::optional<std::string> text) {
  edited_ = kNoNode;
  if (!text || !nodes_.Has(node) || *text == Look(node).Text) return;
  const auto handler = Renamed;
  const Alive::Watch watch = MakeWatch();
  const bool taken = !handler || handler(node, *text);
  if (!watch.Gone() && taken) SetText(node, std::move(*text));
}

void TreeView::OnChecked(NodeId node, bool checked) {
  TreeModel::Node* const found = nodes_.Find(node);
  if (found == nullptr || found->Look.Checked == checked) return;
  found->Look.Checked = checked;
  const auto handler = CheckChanged;
  if (handler) handler(node);
}

void TreeView::OnNodeActivated(NodeId node) {
  const auto handler = Activated;
  if (handler && nodes_.Has(node)) handler(node);
}

Picture TreeView::DragPicture(NodeId node) {
  constexpr int kGap = 3;
  const NodeLook& look = Look(node);
  const PixelSize words = MeasureText(look.Text);
  const bool image = look.Image >= 0 && look.Image < static_cast<int>(images_.size());
  const int left = image ? style_.ImageSize + kGap : 0;
  const PixelSize size{left + words.width + kGap, std::max(words.height, style_.ImageSize)};
  std::shared_ptr<Canvas> picture = Windows().CreateCanvas(size);
  picture->FillBox({0, 0, size.width, size.height}, Image::kMask);
  if (image) {
    picture->DrawCanvas(*images_[static_cast<std::size_t>(look.Image)],
                        {0, 0, style_.ImageSize, style_.ImageSize},
                        {0, (size.height - style_.ImageSize) / 2});
  }
  picture->DrawString({left, (size.height - words.height) / 2}, look.Text, Scaled(),
                      Resolve(Windows(), color::ButtonText));
  return picture;
}

void TreeView::OnDragBegin(NodeId node) {
  if (!nodes_.Has(node) || !DragBegin) return;
  const auto handler = DragBegin;
  const Alive::Watch watch = MakeWatch();
  const bool may = handler(node);
  if (watch.Gone() || !may || Own() == nullptr || !nodes_.Has(node)) return;
  dragged_ = node;
  Own()->StartDrag(DragPicture(node), {0, 0});
}

void TreeView::OnDragMove(PixelPoint at) {
  const auto handler = DragOver;
  if (handler) handler(HitTest(at));
}

void TreeView::OnDragEnd(PixelPoint at, bool dropped) {
  dragged_ = kNoNode;
  const auto handler = DragEnd;
  if (handler) handler(HitTest(at), dropped);
}

}  // namespace corvelle::forms
