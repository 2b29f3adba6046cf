#include "toolbar/strip/StripCarry.h"

#include <string>

#include "core/Carry.h"
#include "core/DragState.h"
#include "core/EntryCommands.h"
#include "core/GuardFlags.h"
#include "core/MenuState.h"
#include "core/StripPlacement.h"
#include "core/WindowPorts.h"
#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "forms/Scopes.h"
#include "forms/WindowSystem.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "toolbar/strip/ButtonRow.h"
#include "toolbar/strip/MenuTracking.h"

namespace corvelle {
namespace {

constexpr int kNoKey = 0;

}  // namespace

StripCarry::StripCarry(const StripCarryParts& with, StripWindow& strip, ButtonRow& buttons,
                       MenuTracking& menus, forms::PictureBox& picToolbar, forms::Timer& timer2)
    : with_(with),
      window_(strip.AsForm()),
      buttons_(buttons),
      menus_(menus),
      picToolbar_(picToolbar),
      timer2_(timer2) {}

int StripCarry::dragCurButton() {
  if (!window_.IsLoaded()) return 0;
  const PixelPoint pointer = with_.Pointer.PointerPosition();
  menus_.FindCurButton(pointer);
  const bool over = with_.Desktop.WindowAt(pointer) == picToolbar_.hWnd();
  const bool carries = with_.Carry.IsCarrying() && !with_.Carry.IsDropping();
  with_.Drag.ButtonDragging = carries && over;
  if (!over) return 0;
  const int button = with_.Menu.CurButton;
  // The menu window holds the press, so that the strip hears of no move: the carry is followed
  // here.
  if (carries && !with_.Guards.MenuBuilding && buttons_.LooksAtRest(button) &&
      menus_.IsOursActive()) {
    menus_.HoverButton(button);
  }
  return button;
}

void StripCarry::WatchCarry() {
  if (!with_.Carry.IsCarrying() || with_.Carry.IsDropping()) {
    carryWatch_.Reset();
    return;
  }
  if (carryWatch_.Look(AnyButtonDown(with_.Pointer), window_.Windows().Now())) {
    carryWatch_.Reset();
    // The release of a carried item went to another program.
    with_.Carry.AbandonCarry();
  }
}

void StripCarry::DoButtonDrag(int button, forms::MouseButton released) {
  timer2_.SetEnabled(false);
  if (!buttons_.IsItemButton(button) || with_.Guards.ItemActionBusy) return;
  if (with_.Entry.CurFile.empty()) return;
  const std::string path = buttons_.PathOf(button);
  const forms::FlagScope dropping = with_.Carry.Dropping();
  const std::string tag = "F" + std::to_string(button);
  // What the disk refuses stays where it was, and the menu shows that.
  static_cast<void>(
      with_.Commands.DropItem(tag, {.File = path}, released == forms::MouseButton::Right));
  if (window_.IsLoaded()) menus_.RefreshMenu(tag);
  with_.Entry.ItemDragging = false;
  ForgetCurrentEntry(with_.Entry);
  if (window_.IsLoaded()) ShowDroppedMenu(button);
}

// The menu that took the entry has the keyboard now, and the pointer shows whose it is.
void StripCarry::ShowDroppedMenu(int button) {
  if (!menus_.MenuUp() || !buttons_.Has(button)) return;
  with_.Ports.QMenu->ActivateKeyDown(kNoKey);
  if (!window_.IsLoaded()) return;
  if (!with_.Strip.AppBarDocked) {
    with_.Pointer.SetPointerPosition(buttons_.Middle(button));
    with_.Menu.CurButton = button;
    menus_.SetMenuPosition();
  }
  timer2_.SetEnabled(true);
}

}  // namespace corvelle
