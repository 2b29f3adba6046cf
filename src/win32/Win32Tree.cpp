#include "win32/Win32Tree.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

#include "win32/CommonControls.h"
#include "win32/Wide.h"
#include "win32/Win32Cursor.h"
#include "win32/Win32TextBox.h"
#include "win32/Win32WindowSystem.h"

namespace corvelle::win32 {

using forms::kNoNode;
using forms::NodeId;
using forms::NodeLook;

namespace {

constexpr UINT kRunLater = WM_APP + 1;
constexpr UINT_PTR kScrollTimer = 1;
constexpr UINT kScrollMilliseconds = 100;
constexpr int kScrollEdge = 12;  // pixels

HTREEITEM ItemAt(HWND tree, UINT which, HTREEITEM item = nullptr) {
  return reinterpret_cast<HTREEITEM>(
      SendMessageW(tree, TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(item)));
}

HWND EditOf(HWND tree) {
  return reinterpret_cast<HWND>(SendMessageW(tree, TVM_GETEDITCONTROL, 0, 0));
}

PixelPoint PointIn(LPARAM lParam) {
  return {static_cast<std::int16_t>(LOWORD(lParam)), static_cast<std::int16_t>(HIWORD(lParam))};
}

}  // namespace

bool Win32Tree::Create(const forms::PeerSpec& wanted) {
  StartCommonControls();
  const DWORD style =
      TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_EDITLABELS | TVS_SHOWSELALWAYS;
  if (!CreateAs(WC_TREEVIEWW, WS_TABSTOP | style, WS_EX_CLIENTEDGE, wanted)) return false;
  // Only a style that comes later makes the pictures of the boxes at once.
  if (style_.CheckBoxes) {
    SetWindowLongPtrW(handle_, GWL_STYLE, GetWindowLongPtrW(handle_, GWL_STYLE) | TVS_CHECKBOXES);
  }
  images_.Reset(ImageList_Create(style_.ImageSize, style_.ImageSize, ILC_COLOR32 | ILC_MASK, 8, 8));
  SendMessageW(handle_, TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(images_.Get()));
  return true;
}

// What waits.

void Win32Tree::Change(std::function<void()> change) {
  if (presses_ > 0) {
    changes_.push_back(std::move(change));
    return;
  }
  const Mute mute(*this);
  change();
}

void Win32Tree::Later(std::function<void()> event) {
  later_.push_back(std::move(event));
  PostMessageW(handle_, kRunLater, 0, 0);
}

void Win32Tree::RunLater() {
  if (later_.empty()) return;
  const std::function<void()> event = std::move(later_.front());
  later_.pop_front();
  if (events_ != nullptr) event();
}

// The system would wait for a release that a window without a message loop never gets.
void Win32Tree::Destroy() {
  events_ = nullptr;
  if (presses_ == 0) return Win32Control::Destroy();
  destroyLater_ = true;
  if (GetCapture() == handle_) ReleaseCapture();
  ShowWindow(handle_, SW_HIDE);
  // It must not end with its parent.
  SetParent(handle_, system_.ToolOwner());
}

// The system leaves the pictures of the boxes to whoever asked for boxes.
void Win32Tree::Ending() {
  Win32Control::Ending();
  EndDragPicture();
  if (!style_.CheckBoxes) return;
  boxImages_.Reset(
      reinterpret_cast<HIMAGELIST>(SendMessageW(handle_, TVM_GETIMAGELIST, TVSIL_STATE, 0)));
}

LRESULT Win32Tree::Press(UINT message, WPARAM wParam, LPARAM lParam) {
  // A text box that loses the focus has its say before another node is selected.
  if (GetFocus() != handle_ && EditOf(handle_) == nullptr) ::SetFocus(handle_);
  ++presses_;
  const LRESULT answer = Default(message, wParam, lParam);
  if (--presses_ > 0) return answer;
  while (!changes_.empty()) {
    const std::function<void()> change = std::move(changes_.front());
    changes_.pop_front();
    const Mute mute(*this);
    change();
  }
  if (destroyLater_ && handle_ != nullptr) DestroyWindow(handle_);
  return answer;
}

std::optional<LRESULT> Win32Tree::Own(UINT message, WPARAM wParam, LPARAM lParam) {
  if (dragged_ != kNoNode) {
    if (const auto answer = TreatDrag(message, wParam, lParam)) return answer;
  }
  switch (message) {
    case kRunLater:
      RunLater();
      return 0;
    case WM_ENABLE:
      // Not all versions of the system gray it by themselves.
      SendMessageW(handle_, TVM_SETTEXTCOLOR, 0,
                   wParam != 0 ? -1 : static_cast<LPARAM>(GetSysColor(COLOR_GRAYTEXT)));
      return std::nullopt;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      return Press(message, wParam, lParam);
    case WM_CONTEXTMENU:
      // The menu key has been told as a key when it went down.
      if (lParam != -1) AskForMenu(lParam);
      return 0;
    default:
      return std::nullopt;
  }
}

void Win32Tree::AskForMenu(LPARAM lParam) {
  POINT at{PointIn(lParam).x, PointIn(lParam).y};
  ScreenToClient(handle_, &at);
  Later([this, at] {
    static_cast<void>(events_->OnContextMenu({static_cast<int>(at.x), static_cast<int>(at.y)}));
  });
}

// What the user does.

HTREEITEM Win32Tree::ItemOf(NodeId node) const {
  const auto found = items_.find(node);
  return found != items_.end() ? found->second : nullptr;
}

NodeId Win32Tree::NodeOf(HTREEITEM item) const {
  if (item == nullptr) return kNoNode;
  TVITEMW asked{};
  asked.mask = TVIF_PARAM;
  asked.hItem = item;
  if (SendMessageW(handle_, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked)) == 0) return kNoNode;
  return static_cast<NodeId>(asked.lParam);
}

std::optional<LRESULT> Win32Tree::Notified(UINT message, WPARAM /*wParam*/, LPARAM lParam) {
  // Some versions of the system send it past the tree.
  if (message == WM_CONTEXTMENU && events_ != nullptr) {
    AskForMenu(lParam);
    return 0;
  }
  if (message != WM_NOTIFY) return std::nullopt;
  if (events_ == nullptr) return 0;
  return TellNotification(*reinterpret_cast<const NMHDR*>(lParam), lParam);
}

LRESULT Win32Tree::TellNotification(const NMHDR& header, LPARAM lParam) {
  const auto& tree = *reinterpret_cast<const NMTREEVIEWW*>(lParam);
  const auto node = [](const TVITEMW& item) { return static_cast<NodeId>(item.lParam); };
  switch (header.code) {
    case TVN_SELCHANGINGW:
      return Muted() || treeEvents_.OnSelecting(node(tree.itemNew)) ? FALSE : TRUE;
    case TVN_SELCHANGEDW:
      if (!Muted()) treeEvents_.OnSelected(node(tree.itemNew));
      return 0;
    case TVN_ITEMEXPANDINGW:
      return Muted() || treeEvents_.OnExpanding(node(tree.itemNew), (tree.action & TVE_EXPAND) != 0)
                 ? FALSE
                 : TRUE;
    case TVN_ITEMEXPANDEDW:
      if (!Muted()) treeEvents_.OnExpanded(node(tree.itemNew), (tree.action & TVE_EXPAND) != 0);
      return 0;
    case TVN_BEGINLABELEDITW: {
      const NodeId edited = node(reinterpret_cast<const NMTVDISPINFOW*>(lParam)->item);
      if (!treeEvents_.OnEditing(edited)) return TRUE;
      edited_ = edited;
      return FALSE;
    }
    case TVN_ENDLABELEDITW:
      return TellEdited(*reinterpret_cast<const NMTVDISPINFOW*>(lParam));
    case TVN_KEYDOWN:
      if (reinterpret_cast<const NMTVKEYDOWN*>(lParam)->wVKey == VK_SPACE && style_.CheckBoxes) {
        CheckLater(NodeOf(ItemAt(handle_, TVGN_CARET)));
      }
      return 0;
    case NM_CLICK:
    case NM_DBLCLK: {
      const DWORD position = GetMessagePos();
      TVHITTESTINFO hit{};
      hit.pt = {PointIn(static_cast<LPARAM>(position)).x, PointIn(static_cast<LPARAM>(position)).y};
      ScreenToClient(handle_, &hit.pt);
      SendMessageW(handle_, TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
      const NodeId at = NodeOf(hit.hItem);
      if ((hit.flags & TVHT_ONITEMSTATEICON) != 0) {
        CheckLater(at);
      } else if (header.code == NM_DBLCLK && (hit.flags & TVHT_ONITEM) != 0) {
        Later([this, at] { treeEvents_.OnNodeActivated(at); });
      }
      return 0;
    }
    case TVN_BEGINDRAGW: {
      const NodeId dragged = node(tree.itemNew);
      Later([this, dragged] { BeginDrag(dragged); });
      return 0;
    }
    default:
      return 0;
  }
}

// The end may be told twice, and once more for a node that is gone.
LRESULT Win32Tree::TellEdited(const NMTVDISPINFOW& info) {
  const NodeId node = std::exchange(edited_, kNoNode);
  if (node == kNoNode) return FALSE;
  ended_.emplace(EndedEdit{node, std::nullopt});
  if (info.item.pszText != nullptr) ended_->Text = Narrow(info.item.pszText);
  Later([this] { TellEnded(); });
  // The program sets the text, if it takes it.
  return FALSE;
}

void Win32Tree::TellEnded() {
  if (!ended_) return;
  const EndedEdit edit = *std::exchange(ended_, std::nullopt);
  treeEvents_.OnEdited(edit.Node, edit.Text);
}

bool Win32Tree::IsChecked(HTREEITEM item) const {
  constexpr UINT kChecked = 2;
  const LRESULT state =
      SendMessageW(handle_, TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), TVIS_STATEIMAGEMASK);
  return (static_cast<UINT>(state) >> 12) == kChecked;
}

// The box is turned over after the notification, and nothing is said of it then.
void Win32Tree::CheckLater(NodeId node) {
  Later([this, node] {
    const HTREEITEM item = ItemOf(node);
    if (item == nullptr) return;
    const bool now = IsChecked(item);
    if (std::exchange(checks_[node], now) != now) treeEvents_.OnChecked(node, now);
  });
}

// What the program does.

void Win32Tree::AddImage(const Canvas& image) {
  const UniqueCursor masked = MakeCursor(image, {0, 0});
  ImageList_AddIcon(images_.Get(), masked.Get());
}

TVITEMW Win32Tree::ItemFor(const NodeLook& look, std::wstring& text) const {
  text = Wide(look.Text);
  TVITEMW item{};
  item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_STATE;
  item.pszText = text.data();
  item.iImage = look.Image >= 0 ? look.Image : I_IMAGENONE;
  item.iSelectedImage = item.iImage;
  item.stateMask = TVIS_CUT;
  item.state = look.Dimmed ? TVIS_CUT : 0U;
  if (style_.CheckBoxes) {
    item.stateMask |= TVIS_STATEIMAGEMASK;
    item.state |= INDEXTOSTATEIMAGEMASK(look.Checked ? 2U : 1U);
  }
  return item;
}

void Win32Tree::Insert(NodeId node, NodeId parent, NodeId before, const NodeLook& look) {
  const HTREEITEM above = ItemOf(parent);
  TVINSERTSTRUCTW made{};
  made.hParent = above != nullptr ? above : TVI_ROOT;
  made.hInsertAfter = TVI_LAST;
  if (before != kNoNode) {
    const HTREEITEM previous = ItemAt(handle_, TVGN_PREVIOUS, ItemOf(before));
    made.hInsertAfter = previous != nullptr ? previous : TVI_FIRST;
  }
  std::wstring text;
  made.item = ItemFor(look, text);
  made.item.mask |= TVIF_PARAM;
  made.item.lParam = static_cast<LPARAM>(node);
  const auto item = reinterpret_cast<HTREEITEM>(
      SendMessageW(handle_, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&made)));
  if (item == nullptr) return;
  items_[node] = item;
  checks_[node] = look.Checked;
  // Under some systems a new item forgets its box.
  if (style_.CheckBoxes) SetLook(node, look);
}

void Win32Tree::Forget(HTREEITEM item) {
  for (HTREEITEM child = ItemAt(handle_, TVGN_CHILD, item); child != nullptr;
       child = ItemAt(handle_, TVGN_NEXT, child)) {
    Forget(child);
  }
  const NodeId node = NodeOf(item);
  items_.erase(node);
  checks_.erase(node);
}

void Win32Tree::Remove(NodeId node) {
  const HTREEITEM item = ItemOf(node);
  if (item == nullptr) return;
  EndEdit(false);
  Forget(item);
  SendMessageW(handle_, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item));
}

void Win32Tree::Clear() {
  EndEdit(false);
  items_.clear();
  checks_.clear();
  // With a selection each deletion would look for the next one.
  SendMessageW(handle_, TVM_SELECTITEM, TVGN_CARET, 0);
  SendMessageW(handle_, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
}

void Win32Tree::SetLook(NodeId node, const NodeLook& look) {
  std::wstring text;
  TVITEMW item = ItemFor(look, text);
  item.mask |= TVIF_HANDLE;
  item.hItem = ItemOf(node);
  if (item.hItem == nullptr) return;
  checks_[node] = look.Checked;
  SendMessageW(handle_, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

namespace {

// The order of two nodes, by their ids, in a map of places.
int CALLBACK ComparePlaces(LPARAM a, LPARAM b, LPARAM all) {
  const auto& place = *reinterpret_cast<const std::unordered_map<NodeId, int>*>(all);
  return place.at(static_cast<NodeId>(a)) - place.at(static_cast<NodeId>(b));
}

}  // namespace

void Win32Tree::Reorder(NodeId parent, const std::vector<NodeId>& children) {
  std::unordered_map<NodeId, int> places;
  for (const NodeId child : children) places.emplace(child, static_cast<int>(places.size()));
  TVSORTCB sort{};
  const HTREEITEM above = ItemOf(parent);
  sort.hParent = above != nullptr ? above : TVI_ROOT;
  sort.lpfnCompare = &ComparePlaces;
  sort.lParam = reinterpret_cast<LPARAM>(&places);
  SendMessageW(handle_, TVM_SORTCHILDRENCB, 0, reinterpret_cast<LPARAM>(&sort));
}

// By program the system notifies of the first expansion only.
void Win32Tree::Expand(NodeId node, bool expand) {
  const HTREEITEM item = ItemOf(node);
  if (item == nullptr) return;
  SendMessageW(handle_, TVM_EXPAND, expand ? TVE_EXPAND : TVE_COLLAPSE,
               reinterpret_cast<LPARAM>(item));
}

void Win32Tree::BeginEdit(NodeId node) {
  const HTREEITEM item = ItemOf(node);
  if (item == nullptr) return;
  if (GetFocus() != handle_) ::SetFocus(handle_);
  SendMessageW(handle_, TVM_EDITLABELW, 0, reinterpret_cast<LPARAM>(item));
}

// The system's own call would take the text of an edit that is given up.
void Win32Tree::EndEdit(bool commit) {
  const HWND edit = EditOf(handle_);
  if (edited_ != kNoNode && edit != nullptr) {
    if (commit) {
      SendMessageW(handle_, TVM_ENDEDITLABELNOW, FALSE, 0);
    } else {
      SendMessageW(edit, WM_KEYDOWN, VK_ESCAPE, 1);
    }
  }
  if (commit) TellEnded();
}

// Drags.

void Win32Tree::BeginDrag(NodeId node) {
  if (ItemOf(node) == nullptr || GetKeyState(VK_LBUTTON) >= 0) return;
  treeEvents_.OnDragBegin(node);
  if (!dragPicture_ || handle_ == nullptr) return;
  dragged_ = node;
  ::SetCapture(handle_);
  SetTimer(handle_, kScrollTimer, kScrollMilliseconds, nullptr);
}

void Win32Tree::StartDrag(const Canvas& picture, PixelPoint hotSpot) {
  const PixelSize size = picture.Size();
  dragImages_.Reset(ImageList_Create(size.width, size.height, ILC_COLOR32 | ILC_MASK, 1, 0));
  const UniqueCursor masked = MakeCursor(picture, hotSpot);
  ImageList_AddIcon(dragImages_.Get(), masked.Get());
  ImageList_BeginDrag(dragImages_.Get(), 0, hotSpot.x, hotSpot.y);
  POINT at{};
  GetCursorPos(&at);
  ImageList_DragEnter(nullptr, at.x, at.y);
  dragPicture_ = true;
}

void Win32Tree::ShowDragPicture(bool show) {
  if (dragPicture_) ImageList_DragShowNolock(show ? TRUE : FALSE);
}

void Win32Tree::EndDragPicture() {
  if (!std::exchange(dragPicture_, false)) return;
  ImageList_DragLeave(nullptr);
  ImageList_EndDrag();
}

std::optional<LRESULT> Win32Tree::TreatDrag(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_MOUSEMOVE:
      DragTo(PointIn(lParam));
      return 0;
    case WM_LBUTTONUP:
      dragPoint_ = PointIn(lParam);
      EndDrag(true);
      return 0;
    case WM_KEYDOWN:
      if (wParam != VK_ESCAPE) return std::nullopt;
      EndDrag(false);
      return 0;
    case WM_CAPTURECHANGED:
      EndDrag(false);
      return 0;
    case WM_TIMER:
      if (wParam != kScrollTimer) return std::nullopt;
      ScrollAtEdge();
      return 0;
    default:
      return std::nullopt;
  }
}

void Win32Tree::DragTo(PixelPoint at) {
  dragPoint_ = at;
  POINT screen{at.x, at.y};
  ClientToScreen(handle_, &screen);
  ImageList_DragMove(screen.x, screen.y);
  treeEvents_.OnDragMove(at);
}

void Win32Tree::ScrollAtEdge() {
  RECT inside{};
  GetClientRect(handle_, &inside);
  const bool up = dragPoint_.y < kScrollEdge;
  if (!up && dragPoint_.y < inside.bottom - kScrollEdge) return;
  ShowDragPicture(false);
  SendMessageW(handle_, WM_VSCROLL, up ? SB_LINEUP : SB_LINEDOWN, 0);
  UpdateWindow(handle_);
  ShowDragPicture(true);
  treeEvents_.OnDragMove(dragPoint_);
}

void Win32Tree::EndDrag(bool dropped) {
  dragged_ = kNoNode;
  KillTimer(handle_, kScrollTimer);
  EndDragPicture();
  if (GetCapture() == handle_) ReleaseCapture();
  Later([this, at = dragPoint_, dropped] { treeEvents_.OnDragEnd(at, dropped); });
}

// The picture would leave its traces on what is painted under it.
void Win32Tree::SetDropTarget(NodeId node) {
  ShowDragPicture(false);
  SendMessageW(handle_, TVM_SELECTITEM, TVGN_DROPHILITE, reinterpret_cast<LPARAM>(ItemOf(node)));
  UpdateWindow(handle_);
  ShowDragPicture(true);
}

void Win32Tree::SetInsertMark(NodeId node, bool after) {
  if (std::exchange(marked_, node) == node && markedAfter_ == after) return;
  markedAfter_ = after;
  ShowDragPicture(false);
  SendMessageW(handle_, TVM_SETINSERTMARK, after ? TRUE : FALSE,
               reinterpret_cast<LPARAM>(ItemOf(node)));
  // Not all versions of the system take the old line away.
  InvalidateRect(handle_, nullptr, TRUE);
  UpdateWindow(handle_);
  ShowDragPicture(true);
}

// The peer.

void Win32TreePeer::Insert(NodeId node, NodeId parent, NodeId before, const NodeLook& look) {
  Win32Tree& tree = Window();
  tree.Change([&tree, node, parent, before, look] { tree.Insert(node, parent, before, look); });
}

void Win32TreePeer::Remove(NodeId node) {
  Win32Tree& tree = Window();
  tree.Change([&tree, node] { tree.Remove(node); });
}

void Win32TreePeer::Clear() {
  Win32Tree& tree = Window();
  tree.Change([&tree] { tree.Clear(); });
}

void Win32TreePeer::SetLook(NodeId node, const NodeLook& look) {
  Win32Tree& tree = Window();
  tree.Change([&tree, node, look] { tree.SetLook(node, look); });
}

void Win32TreePeer::Reorder(NodeId parent, const std::vector<NodeId>& children) {
  Win32Tree& tree = Window();
  tree.Change([&tree, parent, children] { tree.Reorder(parent, children); });
}

void Win32TreePeer::Select(NodeId node) {
  Win32Tree& tree = Window();
  tree.Change([&tree, node] {
    SendMessageW(tree.Handle(), TVM_SELECTITEM, TVGN_CARET,
                 reinterpret_cast<LPARAM>(tree.ItemOf(node)));
  });
}

void Win32TreePeer::Expand(NodeId node, bool expand) {
  Win32Tree& tree = Window();
  tree.Change([&tree, node, expand] { tree.Expand(node, expand); });
}

void Win32TreePeer::EnsureVisible(NodeId node) {
  Win32Tree& tree = Window();
  tree.Change([&tree, node] {
    SendMessageW(tree.Handle(), TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(tree.ItemOf(node)));
  });
}

NodeId Win32TreePeer::FirstVisible() const {
  return Window().NodeOf(ItemAt(Handle(), TVGN_FIRSTVISIBLE));
}

void Win32TreePeer::SetFirstVisible(NodeId node) {
  Win32Tree& tree = Window();
  tree.Change([&tree, node] {
    SendMessageW(tree.Handle(), TVM_SELECTITEM, TVGN_FIRSTVISIBLE,
                 reinterpret_cast<LPARAM>(tree.ItemOf(node)));
  });
}

forms::TreeHit Win32TreePeer::HitTest(PixelPoint at) const {
  using forms::TreePart;
  TVHITTESTINFO hit{};
  hit.pt = {at.x, at.y};
  SendMessageW(Handle(), TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
  const NodeId node = Window().NodeOf(hit.hItem);
  if (node == kNoNode) return {};
  if ((hit.flags & TVHT_ONITEMBUTTON) != 0) return {node, TreePart::Expander};
  if ((hit.flags & TVHT_ONITEMSTATEICON) != 0 && (hit.flags & TVHT_ONITEMLABEL) == 0) {
    return {node, TreePart::Check};
  }
  if ((hit.flags & TVHT_ONITEMICON) != 0) return {node, TreePart::Image};
  if ((hit.flags & TVHT_ONITEMLABEL) != 0) return {node, TreePart::Label};
  return {node, TreePart::Beside};
}

PixelRect Win32TreePeer::RowRect(NodeId node) const {
  const HTREEITEM item = Window().ItemOf(node);
  RECT rect{};
  // The question is put in the place of the answer.
  std::memcpy(&rect, &item, sizeof(item));
  if (item == nullptr ||
      SendMessageW(Handle(), TVM_GETITEMRECT, FALSE, reinterpret_cast<LPARAM>(&rect)) == 0) {
    return {};
  }
  return FromRect(rect);
}

void Win32TreePeer::BeginEdit(NodeId node) { Window().BeginEdit(node); }

void Win32TreePeer::Thaw() {
  SendMessageW(Handle(), WM_SETREDRAW, TRUE, 0);
  InvalidateRect(Handle(), nullptr, TRUE);
}

}  // namespace corvelle::win32
