// Entries carried from and to the items of the menu.

#include "base/Text.h"
#include "core/Carry.h"
#include "core/EntryCommands.h"
#include "core/Program.h"
#include "forms/Scale.h"
#include "menus/window/frmQMenu.h"

namespace corvelle {

using forms::MouseButton;
using forms::ShiftState;

// With Ctrl held a press picks the item up instead of choosing it at the release.
void frmQMenu::Form_MouseDown(MouseButton button, ShiftState shift, float x, float y) {
  program_.Menu.KeyboardOnToolbar = false;
  if (rebuilt_) Form_MouseMove(MouseButton::None, shift, x, y);
  pressed_ = button == MouseButton::Left;
  if (button != MouseButton::Left || !shift.Ctrl) return;
  if (program_.Guards.MenuBuilding || program_.Entry.ItemDragging || program_.Drag.ItemDropping)
    return;
  if (EqualNoCase(MenuKey, kMainMenuKey)) return;
  const int index = program_.Menu.SelectedItem;
  if (index == 0 || !Lbl[index].Enabled() || HitItem(Page(), y) != index) return;
  SetCurrentEntry(program_.Entry, items_.EntryOf(index));
  if (program_.Commands.MayBeCopied(hWnd())) program_.Carry.StartCarry();
}

PixelPoint frmQMenu::OnScreen(float x, float y) const {
  const PixelPoint at = forms::ToPixels(Left() + x, Top() + y, Scale());
  return {at.x + BorderPixels(), at.y + BorderPixels()};
}

void frmQMenu::DoItemDrag(ShiftState shift) {
  const int index = program_.Menu.SelectedItem;
  if (EqualNoCase(MenuKey, kMainMenuKey) || index == 0) return;
  const std::string key = MenuKey;
  const DropPlace place{.File = items_.Source(), .Before = items_[index].Origin.Record};
  // An item without a number is not in the file.
  if (place.Before == DropPlace::kEnd) return;
  if (IsDropOnItself(program_.Entry, place)) return;
  // Both would rewrite the same files: the entry stays where it is, and can be carried again.
  if (program_.Guards.ItemActionBusy) return;
  // Only now: the picture may take the activation, and the menu its selection back.
  const MenuStill still(program_.Ports.Capture);
  const bool changed = program_.Commands.DropItem(key, place, shift.Ctrl);
  if (changed && program_.Ports.Toolbar != nullptr) program_.Ports.Toolbar->RefreshMenu(key);
}

}  // namespace corvelle
