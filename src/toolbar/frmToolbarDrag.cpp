// Entries carried over the strip's buttons.

#include <string>

#include "core/Carry.h"
#include "core/EntryCommands.h"
#include "core/Program.h"
#include "forms/Scopes.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "toolbar/frmToolbar.h"

namespace corvelle {
namespace {

constexpr int kLeftButtonKey = 1;
constexpr int kRightButtonKey = 2;
constexpr int kNoKey = 0;

}  // namespace

int frmToolbar::dragCurButton() {
  if (!IsLoaded()) return 0;
  const PixelPoint pointer = program_.Services.Pointer.PointerPosition();
  FindCurButton(pointer);
  const bool over = program_.Services.Desktop.WindowAt(pointer) == picToolbar.hWnd();
  const bool carries = program_.Entry.ItemDragging && !program_.Drag.ItemDropping;
  program_.Drag.ButtonDragging = carries && over;
  if (!over) return 0;
  const int button = program_.Menu.CurButton;
  // The menu window holds the press, so that the strip hears of no move: the carry is followed
  // here.
  if (carries && !program_.Guards.MenuBuilding && LooksAtRest(button) && IsOursActive()) {
    HoverButton(button);
  }
  return button;
}

void frmToolbar::WatchCarry() {
  if (!program_.Entry.ItemDragging || program_.Drag.ItemDropping) {
    carryWatch_.Reset();
    return;
  }
  const Input& input = program_.Services.Pointer;
  const bool anyDown = input.IsKeyDown(kLeftButtonKey) || input.IsKeyDown(kRightButtonKey);
  if (carryWatch_.Look(anyDown, program_.Windows.Now())) AbandonDrag();
}

// The release of a carried item went to another program.
void frmToolbar::AbandonDrag() {
  carryWatch_.Reset();
  AbandonCarry(program_);
}

void frmToolbar::DoButtonDrag(int button, forms::MouseButton released) {
  Timer2.SetEnabled(false);
  if (button <= 1 || button > ButtonCount || program_.Guards.ItemActionBusy) return;
  const std::string path = ToolbarButtons[static_cast<std::size_t>(button)].Path;
  if (path == kMainMenuPath || program_.Entry.CurFile.empty()) return;
  const forms::FlagScope dropping(program_.Drag.ItemDropping);
  const std::string tag = "F" + std::to_string(button);
  // What the disk refuses stays where it was, and the menu shows that.
  static_cast<void>(DropItem(program_, tag, {.File = path}, released == forms::MouseButton::Right));
  if (IsLoaded()) RefreshMenu(tag);
  program_.Entry.ItemDragging = false;
  EmptyCurrentItem();
  if (IsLoaded()) ShowDroppedMenu(button);
}

// The menu that took the entry has the keyboard now, and the pointer shows whose it is.
void frmToolbar::ShowDroppedMenu(int button) {
  if (!MenuUp() || button > ButtonCount) return;
  program_.Ports.QMenu->ActivateKeyDown(kNoKey);
  if (!IsLoaded()) return;
  if (!program_.Strip.AppBarDocked) {
    program_.Services.Pointer.SetPointerPosition(
        ButtonMiddle(ToolbarButtons[static_cast<std::size_t>(button)], PlaceOnScreen()));
    program_.Menu.CurButton = button;
    SetMenuPosition();
  }
  Timer2.SetEnabled(true);
}

}  // namespace corvelle
