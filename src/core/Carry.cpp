#include "core/Carry.h"

#include <string>
#include <utility>

#include "core/Program.h"
#include "core/RecordEdits.h"
#include "forms/Scopes.h"
#include "platform/DesktopWindows.h"

namespace corvelle {
namespace {

// The row takes what it is given from the clipboard; what the user has copied there stays his.
void DropOnSingles(Program& program, forms::MouseButton released) {
  if (program.Ports.SingleButtons == nullptr || program.Guards.ItemActionBusy) return;
  EntryEdit& entry = program.Entry;
  const MenuStill still(program.Ports.Capture);
  if (!IsMenuTag(entry.CurMenuTag)) {
    program.Ports.SingleButtons->DoItemDrag(released);
    return;
  }
  const MenuRecord copied{entry.ClipTitle, entry.ClipIcon, entry.ClipCommand};
  CopyEntry(entry);
  program.Ports.SingleButtons->DoItemDrag(released);
  SetClipboard(entry, copied);
}

void Drop(Program& program, WindowId under, forms::MouseButton released, forms::ShiftState shift) {
  StripCarryPort* const strip = program.Ports.Toolbar;
  QMenuPort* const menu = program.Ports.QMenu;
  const bool left = released == forms::MouseButton::Left;
  if (strip != nullptr && under == strip->ButtonBoxHandle()) {
    strip->DoButtonDrag(strip->dragCurButton(), released);
  } else if (strip != nullptr && under == strip->SingleBoxHandle()) {
    DropOnSingles(program, released);
  } else if (left && menu != nullptr && menu->MenuVisible() && under == menu->WindowHandle()) {
    menu->DoItemDrag(shift);
  }
}

bool TakesCopies(const Program& program, WindowId under) {
  const StripCarryPort* const strip = program.Ports.Toolbar;
  return strip != nullptr && under != kNoWindow &&
         (under == strip->ButtonBoxHandle() || under == strip->SingleBoxHandle());
}

}  // namespace

MenuStill::MenuStill(CapturePort* capture) : capture_(capture) {
  if (capture_ != nullptr) capture_->CaptureMenu();
}

MenuStill::~MenuStill() {
  if (capture_ != nullptr) capture_->ReleaseMenu();
}

void StartCarry(Program& program) {
  program.Entry.ItemDragging = true;
  if (program.Ports.DragImage != nullptr)
    program.Ports.DragImage->SetDragImage(program.Entry.CurIcon);
}

bool EndCarry(Program& program, PixelPoint at, forms::MouseButton released,
              forms::ShiftState shift) {
  if (program.Drag.ItemDropping) return true;
  if (!program.Entry.ItemDragging) return false;
  const WindowId under = program.Services.Desktop.WindowAt(at);
  if (released != forms::MouseButton::Left && !TakesCopies(program, under)) return true;
  // A menu that is being built is no place to put anything down.
  if (under != kNoWindow && !program.Guards.MenuBuilding) {
    const forms::FlagScope dropping(program.Drag.ItemDropping);
    if (program.Ports.Toolbar != nullptr) program.Ports.Toolbar->SetPointerWatch(false);
    program.Windows.SetMousePointer(forms::MousePointer::Hourglass);
    Drop(program, under, released, shift);
  }
  AbandonCarry(program);
  return true;
}

void AbandonCarry(Program& program) {
  program.Entry.ItemDragging = false;
  program.Drag.ButtonDragging = false;
  ForgetCurrentEntry(program.Entry);
  if (program.Ports.DragImage != nullptr) program.Ports.DragImage->RemoveDragImage();
  program.Windows.SetMousePointer(forms::MousePointer::Default);
  const QMenuPort* const menu = program.Ports.QMenu;
  if (menu != nullptr && menu->MenuVisible() && program.Ports.Toolbar != nullptr) {
    program.Ports.Toolbar->SetPointerWatch(true);
  }
}

}  // namespace corvelle
