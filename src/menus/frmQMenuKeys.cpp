// The keyboard: the selection, the pages, type-ahead.

#include "core/Program.h"
#include "menus/TypeAhead.h"
#include "menus/frmQMenu.h"
#include "platform/Input.h"

namespace corvelle {

using forms::ShiftState;

void frmQMenu::ActivateKeyDown(int keyCode) {
  TakeFocus();
  CurItem = 0;
  Form_KeyDown(keyCode, {});
}

void frmQMenu::xKeyPress(char32_t character) {
  TakeFocus();
  Form_KeyPress(character);
}

void frmQMenu::KeyActs() {
  // The selection stays though the pointer is elsewhere.
  KeyboardActive = true;
  PointerAway = false;
  rebuilt_ = false;
}

void frmQMenu::Form_KeyDown(int keyCode, ShiftState /*shift*/) {
  if (program_.Entry.ItemDragging || program_.Guards.MenuBuilding) return;
  program_.Menu.KeyboardOnToolbar = false;
  switch (keyCode) {
    case forms::key::Escape:
      CloseMenu();
      break;
    case forms::key::F5:
      ReloadOnScreen();
      break;
    case forms::key::Left:
    case forms::key::Right:
      if (program_.Ports.Toolbar != nullptr) program_.Ports.Toolbar->ActivateKeyDown(keyCode);
      break;
    case forms::key::Up:
    case forms::key::Down:
      MoveCursor(keyCode == forms::key::Down ? 1 : -1);
      break;
    case forms::key::PageUp:
    case forms::key::PageDown:
    case forms::key::Home:
    case forms::key::End:
      MovePage(keyCode);
      break;
    default:
      break;
  }
}

void frmQMenu::MoveCursor(int step) {
  const int item = StepItem(CurItem, FirstLabel, LastLabel, step);
  if (item == 0) return;
  KeyActs();
  PrevItem = program_.Menu.SelectedItem;
  SelectItem(item);
}

void frmQMenu::MovePage(int keyCode) {
  const std::optional<int> page = PageForKey(keyCode, CurMenu, Slides);
  if (!page) return;
  KeyActs();
  // Home and End leave the cursor where it was: no item of theirs is near it.
  if (keyCode == forms::key::PageUp || keyCode == forms::key::PageDown) CurItem = LastLabel;
  TurnTo(*page);
  ActiveArrow = kNoArrow;
}

void frmQMenu::Form_KeyPress(char32_t character) {
  if (program_.Entry.ItemDragging || program_.Guards.MenuBuilding) return;
  program_.Menu.KeyboardOnToolbar = false;
  if (character == forms::key::Enter) {
    const int index = program_.Menu.SelectedItem;
    if (index == 0) return;
    ChooseItem(Lbl[index].Left(), Lbl[index].Top());
    return;
  }
  if (IsTypeAheadCharacter(character)) TypeAheadTo(character);
}

void frmQMenu::TypeAheadTo(char32_t character) {
  const TypeAheadHit found =
      FindTypeAhead(menu_->MenuInfo.CharArray, CurItem, FirstLabel, character);
  if (found.Item == 0) {
    program_.Services.Pointer.Beep();
    return;
  }
  KeyActs();
  if (found.Page != CurMenu) TurnTo(found.Page);
  PrevItem = program_.Menu.SelectedItem;
  SelectItem(found.Item);
  // A repeated key walks on to the next item with that letter.
  CurItem = found.NextItem;
}

void frmQMenu::ReloadOnScreen() {
  CapturePort* const capture = program_.Ports.Capture;
  if (capture != nullptr) capture->CaptureMenu();
  RefreshQMenu();
  if (capture != nullptr) capture->ReleaseMenu();
}

}  // namespace corvelle
