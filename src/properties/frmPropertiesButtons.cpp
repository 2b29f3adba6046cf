// The tab of the buttons: their order, and which of them are shown.

#include <algorithm>

#include "base/Text.h"
#include "core/IconState.h"
#include "core/MessageBoxes.h"
#include "core/ProgramPaths.h"
#include "core/RecordEdits.h"
#include "forms/Scopes.h"
#include "icons/IconForm.h"
#include "platform/Input.h"
#include "platform/ShellIcons.h"
#include "properties/OrderFiles.h"
#include "properties/frmProperties.h"

namespace corvelle {
namespace {

constexpr int kIconsAtOnce = 40;  // milliseconds for which one icon may hold up the others

}  // namespace

void frmProperties::LoadButtonsTab() {
  if (ButtonsTabLoaded) return;
  ButtonsTabLoaded = true;
  const FileStatus loaded = LoadButtons(with_.Files, with_.Ansi, with_.Paths.MenusPath, order_);
  orderTouched_ = OrderApplied = false;
  if (!loaded) ShowFileError(with_.Paths.MenusPath, loaded.Error());
  if (IsLoaded()) FillTree();
}

// The titles first, so that they are seen while the shell is asked for the icons.
void frmProperties::FillTree() {
  const std::size_t selected = IndexOf(TreeView1.Selected());
  {
    const forms::TreeView::FreezeScope freeze(TreeView1);
    TreeView1.Clear();
    for (const ButtonNode& node : order_.Nodes()) {
      TreeView1.Insert(forms::kNoNode, forms::kNoNode,
                       {.Text = node.Title,
                        .Image = NodeImage("unknown"),
                        .Dimmed = !node.Checked,
                        .Checked = node.Checked});
    }
  }
  TreeView1.Select(NodeAt(selected < order_.Nodes().size() ? selected : 0));
  TreeView1.Refresh();
  for (std::size_t i = 0; i < order_.Nodes().size(); ++i) {
    TreeView1.SetImage(NodeAt(i), NodeImage(order_.Nodes()[i].Icon));
  }
  ShowLoss();
}

// A text is asked for once for each opening of the window.
int frmProperties::NodeImage(const std::string& icon) {
  const auto known = images_.find(icon);
  if (known != images_.end()) return known->second;
  const IconForm form = ClassifyIcon(icon,
                                     {.AppPath = with_.Paths.AppPath,
                                      .IconsPath = with_.Paths.IconsPath,
                                      .WebLinkIcon = with_.Icons.Icons.WebLinkIcon},
                                     IconCaller::Tree);
  IconLook look;
  if (form.Kind == IconKind::BuiltIn) {
    look.Glyph = form.Text;
  } else if (form.Kind == IconKind::Empty) {
    look.Glyph = "unknown";
  } else {
    look = nodeIcons_.Ask(icon, kSmallIconSize, kIconsAtOnce,
                          [this, icon](const IconLook& late) { TakeLateImage(icon, late); });
  }
  const int image = nodeImages_.OfLook(look, nodeIcons_);
  images_[icon] = image;
  return image;
}

void frmProperties::TakeLateImage(const std::string& icon, const IconLook& look) {
  const int image = nodeImages_.OfLook(look, nodeIcons_);
  images_[icon] = image;
  for (std::size_t i = 0; i < order_.Nodes().size(); ++i) {
    if (order_.Nodes()[i].Icon == icon) TreeView1.SetImage(NodeAt(i), image);
  }
}

std::size_t frmProperties::IndexOf(forms::NodeId node) const {
  const std::vector<forms::NodeId>& nodes = TreeView1.Nodes().Children(forms::kNoNode);
  const auto found = std::find(nodes.begin(), nodes.end(), node);
  return found != nodes.end() ? static_cast<std::size_t>(found - nodes.begin())
                              : ButtonOrder::kNone;
}

forms::NodeId frmProperties::NodeAt(std::size_t index) const {
  const std::vector<forms::NodeId>& nodes = TreeView1.Nodes().Children(forms::kNoNode);
  return index < nodes.size() ? nodes[index] : forms::kNoNode;
}

/// `to`: the new index in the list, in which the node stands already.
void frmProperties::MoveButton(std::size_t to, std::size_t from) {
  if (to == ButtonOrder::kNone) {
    with_.Pointer.Beep();
    return;
  }
  const forms::NodeId node = NodeAt(from);
  const forms::NodeId before = NodeAt(to > from ? to + 1 : to);
  TreeView1.MoveNode(node, forms::kNoNode, before);
  TreeView1.Select(node);
  TreeView1.EnsureVisible(node);
  orderTouched_ = true;
  OrderApplied = false;
  ShowLoss();
}

void frmProperties::cmdUp_Click() {
  const std::size_t from = IndexOf(TreeView1.Selected());
  MoveButton(order_.Up(from), from);
}

void frmProperties::cmdDown_Click() {
  const std::size_t from = IndexOf(TreeView1.Selected());
  MoveButton(order_.Down(from), from);
}

void frmProperties::ShowDropMark(const forms::TreeHit& hit) {
  const std::size_t from = IndexOf(dragNode_);
  const std::size_t to = IndexOf(hit.Node);
  const bool lands = to != ButtonOrder::kNone && from != ButtonOrder::kNone && to != from;
  TreeView1.SetInsertMark(lands ? hit.Node : forms::kNoNode, lands && to > from);
}

void frmProperties::TreeView1_DragDrop(const forms::TreeHit& hit, bool dropped) {
  TreeView1.SetInsertMark(forms::kNoNode, false);
  const std::size_t from = IndexOf(dragNode_);
  const std::size_t target = IndexOf(hit.Node);
  if (!dropped || target == ButtonOrder::kNone) return;
  MoveButton(order_.Drop(from, target), from);
}

void frmProperties::TreeView1_DblClick(forms::NodeId node) {
  const bool checked = !TreeView1.Checked(node);
  TreeView1.SetChecked(node, checked);
  SetNodeChecked(node, checked);
}

void frmProperties::SetNodeChecked(forms::NodeId node, bool checked) {
  order_.SetChecked(IndexOf(node), checked);
  TreeView1.SetDimmed(node, !checked);
  TreeView1.Select(node);
  orderTouched_ = true;
  OrderApplied = false;
  ShowLoss();
}

// Of the selected button if it loses something, else of the first that does.
void frmProperties::ShowLoss() {
  const std::vector<ButtonNode>& nodes = order_.Nodes();
  auto loser = std::find_if(nodes.begin(), nodes.end(), LosesCommand);
  const std::size_t selected = IndexOf(TreeView1.Selected());
  if (selected < nodes.size() && LosesCommand(nodes[selected])) {
    loser = nodes.begin() + static_cast<std::ptrdiff_t>(selected);
  }
  const bool lost = loser != nodes.end();
  lblHint.SetCaption(lost ? DoubleAmpersands(LossText(*loser)) : std::string());
  lblHintCommand.SetCaption(lost ? DoubleAmpersands(loser->Name) : std::string());
}

bool frmProperties::ApplyOrder() {
  const forms::HourglassScope hourglass(Windows());
  StripContentsPort* const strip = with_.Ports.Toolbar;
  const float gap = strip != nullptr ? strip->FreeWidth() : 0;
  const std::size_t place = order_.FindPath(item_.File);
  EntryEdit& entry = with_.Entry;
  const bool undoes = IsMenuTag(entry.UndoMenuTag);
  const std::size_t undoPlace = undoes ? order_.FindPath(entry.UndoFile) : ButtonOrder::kNone;
  const OrderOutcome outcome =
      ApplyButtonOrder(with_.Files, with_.Ansi, with_.Paths.MenusPath, order_);
  if (outcome.Result == OrderResult::Applied) with_.Ports.TellMenusEdited();
  if (outcome.Result == OrderResult::Failed) {
    ShowFileError(with_.Paths.MenusPath, outcome.Reason);
    return false;
  }
  if (outcome.Result == OrderResult::Outdated) {
    with_.Messages.Say(hWnd(), RefusalText(ItemResult::Mismatch), forms::msgbox::IconInformation);
    if (!IsLoaded()) return false;
    // The buttons that there are now, to begin again with.
    ButtonsTabLoaded = false;
    LoadButtonsTab();
    return false;
  }
  OrderApplied = true;
  orderTouched_ = false;
  if (place != ButtonOrder::kNone) {
    const ButtonNode& node = order_.Nodes()[place];
    FollowOrder(item_, PathOfTag(node.Tag), node.Stored, with_.Ansi);
    item_.Key = order_.KeyOnStrip(item_.Key, place);
    if (item_.Record == 1) txtCommand.SetText(item_.Current.FName);
  }
  ForgetMenuUndo(entry);
  EntryEdit moved = entry;
  if (undoPlace != ButtonOrder::kNone) {
    moved.UndoMenuTag = order_.KeyOnStrip("F", undoPlace);
    moved.UndoFile = PathOfTag(order_.Nodes()[undoPlace].Tag);
  }
  ShowLoss();
  if (strip == nullptr) return true;
  strip->InitNewButtons();
  if (!IsLoaded()) return false;
  // What was deleted comes back in its own menu.
  if (entry.UndoMenuTag.empty()) RestoreUndo(entry, moved);
  strip->ResizeAfterEdit(gap);
  // The strip took the focus when it was built.
  SetForeground();
  return IsLoaded();
}

}  // namespace corvelle
