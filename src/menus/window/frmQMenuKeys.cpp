// The keyboard: the selection, the pages, type-ahead.

#include <optional>

#include "core/Program.h"
#include "forms/Scopes.h"
#include "menus/window/frmQMenu.h"
#include "platform/Input.h"

namespace corvelle {

using forms::ShiftState;

// Until the menu is up nothing can be selected in it, and the focus may be anywhere.
bool frmQMenu::HoldsKey(const HeldKey& key) {
  if (actsHeldKey_ || (!program_.Guards.MenuBuilding && held_.IsEmpty())) return false;
  held_.Hold(key);
  AwaitHeldKeys();
  return true;
}

// By a turn of their own: whoever had the menu built is done with it then.
void frmQMenu::AwaitHeldKeys() {
  if (!held_.IsEmpty() && !program_.Guards.MenuBuilding) KeysTimer.SetEnabled(true);
}

void frmQMenu::ActHeldKeys() {
  KeysTimer.SetEnabled(false);
  const auto watch = MakeWatch();
  while (!watch.Gone() && !program_.Guards.MenuBuilding) {
    if (!MenuVisible()) held_.Forget();
    const std::optional<HeldKey> key = held_.Take();
    if (!key) return;
    const forms::FlagScope acting(actsHeldKey_);
    if (key->Code != 0) {
      key->FromStrip ? ActivateKeyDown(key->Code) : Form_KeyDown(key->Code, {});
    } else {
      key->FromStrip ? xKeyPress(key->Character) : Form_KeyPress(key->Character);
    }
  }
}

void frmQMenu::ActivateKeyDown(int keyCode) {
  if (keyCode != 0 && HoldsKey({.Code = keyCode, .FromStrip = true})) return;
  TakeFocus();
  CurItem = 0;
  Form_KeyDown(keyCode, {});
}

void frmQMenu::xKeyPress(char32_t character) {
  if (HoldsKey({.Character = character, .FromStrip = true})) return;
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
  if (program_.Entry.ItemDragging || HoldsKey({.Code = keyCode})) return;
  program_.Menu.KeyboardOnToolbar = false;
  switch (keyCode) {
    case forms::key::Escape:
      CloseMenu();
      break;
    case forms::key::F5:
      program_.Answers.TryAllAgain();
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
  const int item = StepItem(CurItem, pages_.FirstLabel(), pages_.LastLabel(), step);
  if (item == 0) return;
  KeyActs();
  PrevItem = program_.Menu.SelectedItem;
  SelectItem(item);
}

void frmQMenu::MovePage(int keyCode) {
  const std::optional<int> page = PageForKey(keyCode, pages_.CurMenu(), pages_.Slides());
  if (!page) return;
  KeyActs();
  // Home and End leave the cursor where it was: no item of theirs is near it.
  if (keyCode == forms::key::PageUp || keyCode == forms::key::PageDown)
    CurItem = pages_.LastLabel();
  TurnTo(*page);
  ActiveArrow = kNoArrow;
}

void frmQMenu::Form_KeyPress(char32_t character) {
  if (program_.Entry.ItemDragging || HoldsKey({.Character = character})) return;
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
  const TypeAheadHit found = items_.Find(CurItem, pages_.FirstLabel(), character);
  if (found.Item == 0) {
    program_.Services.Pointer.Beep();
    return;
  }
  KeyActs();
  if (found.Page != pages_.CurMenu()) TurnTo(found.Page);
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
