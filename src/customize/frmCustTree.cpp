#include <initializer_list>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "base/WebAddress.h"
#include "core/CommandPorts.h"
#include "customize/TreeKeys.h"
#include "customize/frmCust.h"
#include "forms/Scopes.h"
#include "platform/Input.h"

namespace corvelle {

namespace {

constexpr std::string_view kDropMessage =
    "You have to select an item other than Corvelle main icons before dragging files onto the "
    "Customize window.";
constexpr int kKeyB = 66;
constexpr int kKeyC = 67;
constexpr int kKeyM = 77;
constexpr int kKeyS = 83;
constexpr int kKeyV = 86;
constexpr int kKeyX = 88;
constexpr int kKeyZ = 90;

}  // namespace

void frmCust::WireTree() {
  TreeView1.SelectedChanged = [this](forms::NodeId node, forms::SelectCause cause) {
    // What a removal selects, the editor decides.
    if (cause == forms::SelectCause::User) TreeView1_NodeClick(tree_.RefOf(node));
  };
  TreeView1.Expanded = [this](forms::NodeId node, bool expand) {
    expand ? TreeView1_Expand(tree_.RefOf(node)) : TreeView1_Collapse();
  };
  TreeView1.Editing = [this](forms::NodeId node, bool) {
    return !Browsing && !Editor.Tree.IsRoot(tree_.RefOf(node));
  };
  TreeView1.Renamed = [this](forms::NodeId node, const std::string& text) {
    const bool taken = Editor.AfterLabelEdit(tree_.RefOf(node), text);
    ShowBoxes();
    return taken;
  };
  TreeView1.KeyDown = [this](int keyCode, forms::ShiftState shift) {
    return TreeView1_KeyDown(keyCode, shift);
  };
  TreeView1.KeyUp = [this](int, forms::ShiftState) { ShiftDown = false; };
  TreeView1.KeyPress = [this](char32_t character) {
    return ShiftDown || character == forms::key::Enter;
  };
  TreeView1.NodeMenu = [this](forms::NodeId node, float x, float y, bool byKey) {
    if (TreeHeld()) return;
    if (node != forms::kNoNode && tree_.RefOf(node) != Editor.Selected()) {
      TreeView1_NodeClick(tree_.RefOf(node));
      ShowState();
    }
    ShowTreeMenu(x, y, byKey);
  };
  TreeView1.DragBegin = [this](forms::NodeId node) {
    if (TreeHeld()) return false;
    Editor.DragNode = tree_.RefOf(node);
    if (Editor.DragNode != Editor.Selected()) {
      Editor.Select(Editor.DragNode);
      Editor.UpdateEntryBoxes();
      ShowState();
    }
    Dragging = true;
    return true;
  };
  TreeView1.DragOver = [this](forms::TreeHit hit) { TreeView1_DragOver(tree_.RefOf(hit.Node)); };
  TreeView1.DragEnd = [this](forms::TreeHit hit, bool dropped) {
    if (!dropped || TreeHeld()) return EndDrag();
    TreeView1_DragDrop(tree_.RefOf(hit.Node));
  };
  OLEDragOver = [this](forms::DragData& data, forms::DropEffect& effect, forms::MouseButton,
                       forms::ShiftState, float x, float y) {
    if (InTree(x, y)) return TreeView1_OLEDragOver(data, effect);
    effect = forms::DropEffect::None;
  };
  OLEDragDrop = [this](forms::DragData& data, forms::DropEffect& effect, forms::MouseButton,
                       forms::ShiftState, float x, float y) {
    if (InTree(x, y)) return TreeView1_OLEDragDrop(data, effect);
    effect = forms::DropEffect::None;
  };
  Timer1.Tick = [this] { Timer1_Timer(); };
}

void frmCust::ShowState() {
  if (!IsLoaded()) return;
  const CustRef node = Editor.Selected();
  ShowNode(node);
  const forms::NodeId id = tree_.IdOf(node);
  if (TreeView1.Selected() != id) TreeView1.Select(id);
  ShowBoxes();
  // The next Undo and Redo bear the names of their commands.
  MakeMenuBar();
}

void frmCust::ShowBoxes() {
  const EntryBoxes& boxes = Editor.Boxes;
  const std::pair<forms::TextBox*, const std::string*> texts[] = {
      {&txtTitle, &boxes.txtTitle}, {&txtFile, &boxes.txtFile}, {&txtCommand, &boxes.txtCommand}};
  for (const auto& [box, text] : texts) {
    if (box->Text() != *text) box->SetText(*text);
    box->SetEnabled(boxes.Enabled);
    box->SetBackColor(boxes.Enabled ? forms::color::WindowGround : forms::color::ButtonFace);
  }
  const std::initializer_list<forms::Control*> others = {
      &chkSelect0, &chkSelect1,  &cmdBrowseFiles, &cmdBrowseFolders, &cmdOK,
      &cmdLibrary, &cmdAllFiles, &cmdSelectFile,  &cmdSelectFolder};
  for (forms::Control* control : others) control->SetEnabled(boxes.Enabled);
}

void frmCust::ShowNode(CustRef node) {
  std::vector<CustRef> around;
  for (CustRef at = Editor.Tree.Parent(node); at != kNoRef; at = Editor.Tree.Parent(at)) {
    around.push_back(at);
  }
  bool opens = false;
  for (auto at = around.rbegin(); at != around.rend(); ++at) {
    if (TreeView1.IsExpanded(tree_.IdOf(*at))) continue;
    opens = true;
    Editor.Expand(*at);
  }
  TreeView1.EnsureVisible(tree_.IdOf(node));
  if (opens) StartGuard();
}

void frmCust::TakeBoxes() {
  Editor.Boxes.txtTitle = txtTitle.Text();
  Editor.Boxes.txtFile = txtFile.Text();
  Editor.Boxes.txtCommand = txtCommand.Text();
}

void frmCust::Run(Command command) {
  TreeView1.EndEdit(true);
  (Editor.*command)();
  if (!IsLoaded()) return;
  EndDrag();
  ShowState();
  TreeView1.SetFocus();
}

void frmCust::StartGuard() {
  Timer1.SetEnabled(true);
  Timer1.SetInterval(Timer1.Interval());  // the wait begins again
  EndDrag();
}

void frmCust::Timer1_Timer() {
  Timer1.SetEnabled(false);
  Browsing = false;
  EndDrag();
  // To select what is selected already would scroll the tree to it.
  if (TreeView1.Selected() != tree_.IdOf(Editor.Selected())) ShowState();
  if (!messageWaits_) return;
  messageWaits_ = false;
  Say(kDropMessage, forms::msgbox::IconInformation);
}

void frmCust::TreeView1_NodeClick(CustRef node) {
  if (node == kNoRef) return;
  if (Browsing) {
    Browsing = false;
    return ShowState();
  }
  Editor.Select(node);
  Editor.UpdateEntryBoxes();
  ShowBoxes();
  if (!TreeHeld()) UpdatePopupMenu(Editor, mnuPopup);
}

void frmCust::TreeView1_Expand(CustRef node) {
  if (!Browsing && node != kNoRef) Editor.Expand(node);
  StartGuard();
}

void frmCust::TreeView1_Collapse() {
  const CustRef selected = tree_.RefOf(TreeView1.Selected());
  if (selected != kNoRef && selected != Editor.Selected()) {
    Editor.Select(selected);
    Editor.UpdateEntryBoxes();
    ShowBoxes();
  }
  StartGuard();
}

bool frmCust::TreeView1_KeyDown(int keyCode, forms::ShiftState shift) {
  ShiftDown = shift.Shift || shift.Ctrl || shift.Alt;
  const bool plain = !ShiftDown;
  const bool ctrl = shift.Ctrl && !shift.Shift && !shift.Alt;
  const bool shiftOnly = shift.Shift && !shift.Ctrl && !shift.Alt;
  struct KeyCommand {
    bool Held;
    int KeyCode;
    Command Run;
    bool OnRoot = true;  // a root has the command too
  };
  const KeyCommand commands[] = {
      {plain, forms::key::Delete, &CustEditor::Delete, false},
      {ctrl, kKeyB, &CustEditor::AddButton},
      {ctrl, kKeyM, &CustEditor::AddMenuItem},
      {ctrl, kKeyX, &CustEditor::Cut},
      {ctrl, kKeyC, &CustEditor::Copy},
      {ctrl, kKeyV, &CustEditor::Paste},
      {ctrl, kKeyZ, &CustEditor::UndoDelete},
      {shiftOnly, forms::key::Insert, &CustEditor::InsertSeparator, false},
      {ctrl, kKeyS, &CustEditor::InsertSeparator, false},
  };
  for (const KeyCommand& command : commands) {
    if (!command.Held || command.KeyCode != keyCode) continue;
    if (command.OnRoot || !Editor.OnRoot()) Run(command.Run);
    return true;
  }
  if (plain && keyCode == forms::key::F2) {
    StartRename();
    return true;
  }
  return keyCode == forms::key::Enter;
}

void frmCust::TreeView1_DragOver(CustRef target) {
  if (!Dragging || TreeHeld()) return;
  TreeView1.SetDropTarget(tree_.IdOf(target));
  const std::optional<CustPlace> place = Editor.PlaceAt(Editor.DragNode, target, false);
  const bool before =
      place && target != Editor.DragNode && place->Parent == Editor.Tree.Parent(target);
  TreeView1.SetInsertMark(before ? tree_.IdOf(target) : forms::kNoNode, false);
}

void frmCust::TreeView1_DragDrop(CustRef target) {
  EndDrag();
  const CustRef node = Editor.DragNode;
  if (target == kNoRef) return;
  if (Editor.Tree.IsRoot(node) || node == target) return Beep();
  Editor.CurIndex = target;
  // Ctrl at the drop copies.
  Editor.MoveNode(false, with_.Pointer.IsKeyDown(forms::key::Ctrl));
  ShowState();
}

void frmCust::EndDrag() {
  Dragging = false;
  TreeView1.SetDropTarget(forms::kNoNode);
  TreeView1.SetInsertMark(forms::kNoNode, false);
}

bool frmCust::InTree(float x, float y) const {
  return x >= TreeView1.Left() && x < TreeView1.Right() && y >= TreeView1.Top() &&
         y < TreeView1.Bottom();
}

void frmCust::TreeView1_OLEDragOver(const forms::DragData& data, forms::DropEffect& effect) {
  const bool files = data.Files && !data.Files->empty();
  if (!files && (!data.Text || !IsWebAddress(*data.Text))) {
    effect = forms::DropEffect::None;
    return;
  }
  // Nothing is ever moved here; a source that allows no copy can link.
  effect = (effect & forms::DropEffect::Copy) != forms::DropEffect::None
               ? forms::DropEffect::Copy
               : effect & forms::DropEffect::Link;
}

void frmCust::TreeView1_OLEDragDrop(const forms::DragData& data, forms::DropEffect& effect) {
  TreeView1_OLEDragOver(data, effect);
  if (effect == forms::DropEffect::None) return;
  // The source waits: what takes long, or asks the user, comes with the timer.
  if (Editor.OnRoot()) {
    messageWaits_ = true;
    Timer1.SetEnabled(true);
    return;
  }
  if (data.Files && !data.Files->empty()) {
    if (Editor.IsSeparator(Editor.Selected())) {
      // It says so, which cannot be done while the source waits.
      Windows().Post([this] {
        if (IsLoaded()) MayFill();
      });
      return;
    }
    TellRefused(Editor.DropFiles(*data.Files));
    return ShowState();
  }
  address_ = *data.Text;
  addressTitle_ = data.Title;
  Windows().Post([this] {
    if (IsLoaded()) TakeAddress();
  });
}

void frmCust::TakeAddress() {
  const std::vector<std::string> lines = SplitLines(std::exchange(address_, {}));
  if (lines.empty() || Editor.OnRoot()) return;
  std::string title = std::exchange(addressTitle_, {});
  if (title.empty()) {
    const forms::HourglassScope hourglass(Windows());
    if (with_.Ports.Browser != nullptr) title = with_.Ports.Browser->WindowTitle(lines[0]);
  }
  // Asking the browser lets events run.
  if (!IsLoaded()) return;
  Editor.DropAddress(lines[0], title);
  ShowState();
}

}  // namespace corvelle
