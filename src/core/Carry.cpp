#include "core/Carry.h"

#include <string>
#include <utility>

#include "core/DragState.h"
#include "core/GuardFlags.h"
#include "core/RecordEdits.h"
#include "core/WindowPorts.h"
#include "forms/Scopes.h"
#include "forms/WindowSystem.h"
#include "platform/DesktopWindows.h"

namespace corvelle {
// The row takes what it is given from the clipboard; what the user has copied there stays his.
void EntryCarry::DropOnSingles(forms::MouseButton released) {
  if (with_.Ports.SingleButtons == nullptr || with_.Guards.ItemActionBusy) return;
  EntryEdit& entry = with_.Entry;
  const MenuStill still(with_.Ports.Capture);
  if (!IsMenuTag(entry.CurMenuTag)) {
    with_.Ports.SingleButtons->DoItemDrag(released);
    return;
  }
  const MenuRecord copied{entry.ClipTitle, entry.ClipIcon, entry.ClipCommand};
  CopyEntry(entry);
  with_.Ports.SingleButtons->DoItemDrag(released);
  SetClipboard(entry, copied);
}

void EntryCarry::Drop(WindowId under, forms::MouseButton released, forms::ShiftState shift) {
  StripCarryPort* const strip = with_.Ports.Toolbar;
  QMenuPort* const menu = with_.Ports.QMenu;
  const bool left = released == forms::MouseButton::Left;
  if (strip != nullptr && under == strip->ButtonBoxHandle()) {
    strip->DoButtonDrag(strip->dragCurButton(), released);
  } else if (strip != nullptr && under == strip->SingleBoxHandle()) {
    DropOnSingles(released);
  } else if (left && menu != nullptr && menu->MenuVisible() && under == menu->WindowHandle()) {
    menu->DoItemDrag(shift);
  }
}

bool EntryCarry::TakesCopies(WindowId under) const {
  const StripCarryPort* const strip = with_.Ports.Toolbar;
  return strip != nullptr && under != kNoWindow &&
         (under == strip->ButtonBoxHandle() || under == strip->SingleBoxHandle());
}

MenuStill::MenuStill(CapturePort* capture) : capture_(capture) {
  if (capture_ != nullptr) capture_->CaptureMenu();
}

MenuStill::~MenuStill() {
  if (capture_ != nullptr) capture_->ReleaseMenu();
}

bool EntryCarry::IsCarrying() const { return with_.Entry.ItemDragging; }

bool EntryCarry::IsOverButtons() const { return with_.Drag.ButtonDragging; }

bool EntryCarry::IsDropping() const { return with_.Drag.ItemDropping; }

void EntryCarry::StartCarry() {
  with_.Entry.ItemDragging = true;
  if (with_.Ports.DragImage != nullptr) with_.Ports.DragImage->SetDragImage(with_.Entry.CurIcon);
}

bool EntryCarry::EndCarry(PixelPoint at, forms::MouseButton released, forms::ShiftState shift) {
  if (with_.Drag.ItemDropping) return true;
  if (!with_.Entry.ItemDragging) return false;
  const WindowId under = with_.Desktop.WindowAt(at);
  if (released != forms::MouseButton::Left && !TakesCopies(under)) return true;
  // A menu that is being built is no place to put anything down.
  if (under != kNoWindow && !with_.Guards.MenuBuilding) {
    const forms::FlagScope dropping(with_.Drag.ItemDropping);
    if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->SetPointerWatch(false);
    with_.Windows.SetMousePointer(forms::MousePointer::Hourglass);
    Drop(under, released, shift);
  }
  AbandonCarry();
  return true;
}

forms::FlagScope EntryCarry::Dropping() { return forms::FlagScope(with_.Drag.ItemDropping); }

void EntryCarry::AbandonCarry() {
  with_.Entry.ItemDragging = false;
  with_.Drag.ButtonDragging = false;
  ForgetCurrentEntry(with_.Entry);
  if (with_.Ports.DragImage != nullptr) with_.Ports.DragImage->RemoveDragImage();
  with_.Windows.SetMousePointer(forms::MousePointer::Default);
  const QMenuPort* const menu = with_.Ports.QMenu;
  if (menu != nullptr && menu->MenuVisible() && with_.Ports.Toolbar != nullptr) {
    with_.Ports.Toolbar->SetPointerWatch(true);
  }
}

}  // namespace corvelle
