// The strip under the keyboard.

#include "core/Program.h"
#include "platform/DesktopWindows.h"
#include "platform/Input.h"
#include "toolbar/strip/frmToolbar.h"

namespace corvelle {
namespace {

constexpr char32_t kBlank = 32;

}  // namespace

void frmToolbar::Form_KeyDown(int keyCode, forms::ShiftState /*shift*/) {
  if (program_.Entry.ItemDragging) return;
  // A menu that is being built is not up yet, and keys are meant for it: Enter must not close it.
  if (program_.Guards.MenuBuilding && keyCode != forms::key::Escape) {
    if (keyCode == forms::key::Enter) {
      program_.Ports.QMenu->xKeyPress(static_cast<char32_t>(forms::key::Enter));
    } else {
      program_.Ports.QMenu->ActivateKeyDown(keyCode);
    }
    return;
  }
  switch (keyCode) {
    case forms::key::Escape:
      ResetMenu();
      return;
    case forms::key::F10:
      if (!MenuUp()) StartKeyboard();
      return;
    case forms::key::Left:
    case forms::key::Right:
      if (KeyboardMoves())
        SelectButton(NextButton(program_.Menu.CurButton, Buttons.ButtonCount, keyCode));
      return;
    case forms::key::Enter:
      if (EnterIsOfMenu()) {
        program_.Ports.QMenu->xKeyPress(static_cast<char32_t>(forms::key::Enter));
      } else if (KeyboardMoves()) {
        EnterCurButton();
      }
      return;
    default:
      if (MenuUp()) program_.Ports.QMenu->ActivateKeyDown(keyCode);
  }
}

bool frmToolbar::KeyboardMoves() const {
  return Buttons.Has(program_.Menu.CurButton) && program_.Services.Desktop.ActiveWindow() == hWnd();
}

// The system may leave the focus with the strip when a menu opens, or when a key selects an item
// there. The item that the user sees selected is what Enter means, until arrow keys walk the strip.
bool frmToolbar::EnterIsOfMenu() const {
  return MenuUp() && program_.Menu.SelectedItem != 0 && !program_.Menu.KeyboardOnToolbar;
}

// A user without a mouse begins at the first button, as in a menu bar.
void frmToolbar::StartKeyboard() {
  Menus.GetCurButton();
  if (program_.Menu.CurButton == 0 && Buttons.ButtonCount > 0) SelectButton(1);
}

// The pointer goes with the keyboard, so that both always mean the same button.
void frmToolbar::SelectButton(int button) {
  program_.Menu.KeyboardOnToolbar = true;
  program_.Menu.CurButton = button;
  program_.Services.Pointer.SetPointerPosition(Buttons.Middle(button));
}

void frmToolbar::EnterCurButton() {
  if (program_.Menu.MenuOpen) {
    ResetMenu();
  } else {
    // The button that the keys chose, wherever the system sees the pointer at this moment.
    Menus.PressCurButton();
  }
}

void frmToolbar::Form_KeyPress(char32_t character) {
  if (character > kBlank && (MenuUp() || program_.Guards.MenuBuilding))
    program_.Ports.QMenu->xKeyPress(character);
}

void frmToolbar::ActivateKeyDown(int keyCode) {
  if (program_.Strip.ToolbarVertical || program_.Entry.ItemDragging) return;
  SetFocus();
  const int owner = Menus.MenuOwner();
  if (owner > 0) program_.Menu.CurButton = owner;
  Form_KeyDown(keyCode, {});
}

}  // namespace corvelle
