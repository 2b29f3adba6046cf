#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "forms/TreePeer.h"
#include "win32/Win32Control.h"
#include "win32/Win32Peer.h"

namespace corvelle::win32 {

/// A tree of the system. Its notifications become events here, most of them after the system's call
/// has come to its end; changes that come while the system works a press wait for its end.
class Win32Tree final : public Win32Control {
 public:
  Win32Tree(Win32WindowSystem& system, const forms::TreeStyle& style, forms::TreeEvents& events)
      : Win32Control(system), style_(style), treeEvents_(events) {}

  [[nodiscard]] bool Create(const forms::PeerSpec& wanted);
  std::optional<LRESULT> Notified(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Destroy() override;

  /// Runs a change of the program now, or when the press is over.
  void Change(std::function<void()> change);

  // The changes themselves.
  void AddImage(const Canvas& image);
  void Insert(forms::NodeId node, forms::NodeId parent, forms::NodeId before,
              const forms::NodeLook& look);
  void Remove(forms::NodeId node);
  void Clear();
  void SetLook(forms::NodeId node, const forms::NodeLook& look);
  void Reorder(forms::NodeId parent, const std::vector<forms::NodeId>& children);
  void Expand(forms::NodeId node, bool expand);
  void BeginEdit(forms::NodeId node);
  void EndEdit(bool commit);
  void SetDropTarget(forms::NodeId node);
  void SetInsertMark(forms::NodeId node, bool after);
  void StartDrag(const Canvas& picture, PixelPoint hotSpot);

  /// Null when it is not there.
  [[nodiscard]] HTREEITEM ItemOf(forms::NodeId node) const;
  [[nodiscard]] forms::NodeId NodeOf(HTREEITEM item) const;

 protected:
  std::optional<LRESULT> Own(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Ending() override;

 private:
  /// `event` is told when the system's call is over.
  void Later(std::function<void()> event);
  void RunLater();
  LRESULT Press(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT TellNotification(const NMHDR& header, LPARAM lParam);
  LRESULT TellEdited(const NMTVDISPINFOW& info);
  void TellEnded();
  void CheckLater(forms::NodeId node);
  /// The user asks for the context menu with the right button.
  void AskForMenu(LPARAM lParam);
  void BeginDrag(forms::NodeId node);
  std::optional<LRESULT> TreatDrag(UINT message, WPARAM wParam, LPARAM lParam);
  void DragTo(PixelPoint at);
  void EndDrag(bool dropped);
  void ScrollAtEdge();
  void ShowDragPicture(bool show);
  void EndDragPicture();
  [[nodiscard]] bool IsChecked(HTREEITEM item) const;
  [[nodiscard]] TVITEMW ItemFor(const forms::NodeLook& look, std::wstring& text) const;
  void Forget(HTREEITEM item);

  forms::TreeStyle style_;
  forms::TreeEvents& treeEvents_;
  UniqueImageList images_;
  UniqueImageList dragImages_;
  UniqueImageList boxImages_;  // that the system made for the check boxes, once the tree ends
  std::unordered_map<forms::NodeId, HTREEITEM> items_;
  std::unordered_map<forms::NodeId, bool> checks_;  // as the program knows them
  std::deque<std::function<void()>> later_;
  std::deque<std::function<void()>> changes_;
  int presses_ = 0;  // of the system, that are under way
  bool destroyLater_ = false;
  forms::NodeId edited_ = forms::kNoNode;
  /// An edit that has ended and was not told yet; without a text it was given up.
  struct EndedEdit {
    forms::NodeId Node;
    std::optional<std::string> Text;
  };
  std::optional<EndedEdit> ended_;
  forms::NodeId dragged_ = forms::kNoNode;
  bool dragPicture_ = false;
  forms::NodeId marked_ = forms::kNoNode;  // by the line of a drag
  bool markedAfter_ = false;
  PixelPoint dragPoint_;
};

class Win32TreePeer final : public Win32PeerOf<forms::TreePeer, Win32Tree> {
 public:
  using Win32PeerOf::Win32PeerOf;

  void AddImage(const Canvas& image) override { Window().AddImage(image); }
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
  void EndEdit(bool commit) override { Window().EndEdit(commit); }
  void SetDropTarget(forms::NodeId node) override { Window().SetDropTarget(node); }
  void SetInsertMark(forms::NodeId node, bool after) override {
    Window().SetInsertMark(node, after);
  }
  void Freeze() override { SendMessageW(Handle(), WM_SETREDRAW, FALSE, 0); }
  void Thaw() override;
  void StartDrag(Picture picture, PixelPoint hotSpot) override {
    Window().StartDrag(*picture, hotSpot);
  }
};

}  // namespace corvelle::win32
