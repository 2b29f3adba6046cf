// What other programs drag over the items of the menu and drop there.

#include "base/Text.h"
#include "core/DroppedFiles.h"
#include "core/Program.h"
#include "menus/window/frmQMenu.h"

namespace corvelle {

using forms::DragData;
using forms::DropEffect;
using forms::MouseButton;
using forms::ShiftState;

void frmQMenu::WireDrags() {
  OLEDragOver = [this](DragData& data, DropEffect& effect, MouseButton down, ShiftState shift,
                       float x, float y) { Form_OLEDragOver(data, effect, down, shift, x, y); };
  OLEDragDrop = [this](DragData& data, DropEffect& effect, MouseButton down, ShiftState shift,
                       float x, float y) { Form_OLEDragDrop(data, effect, down, shift, x, y); };
  OLEDragLeave = [this] {
    program_.Drag.DragOverButton = false;
    DropSelection();
  };
  SetTakesDrops(true);
}

void frmQMenu::WireDrags(forms::Label& label, int index) {
  label.OLEDragOver = [this, index](DragData& data, DropEffect& effect, MouseButton down,
                                    ShiftState shift, float x, float y) {
    Lbl_OLEDragOver(index, data, effect, down, shift, x, y);
  };
  label.OLEDragDrop = [this, index](DragData& data, DropEffect& effect, MouseButton down,
                                    ShiftState shift, float x, float y) {
    Lbl_OLEDragDrop(index, data, effect, down, shift, x, y);
  };
}

void frmQMenu::Lbl_OLEDragOver(int index, DragData& data, DropEffect& effect, MouseButton down,
                               ShiftState shift, float x, float y) {
  Form_OLEDragOver(data, effect, down, shift, x + Lbl[index].Left(), y + Lbl[index].Top());
}

void frmQMenu::Lbl_OLEDragDrop(int index, DragData& data, DropEffect& effect, MouseButton down,
                               ShiftState shift, float x, float y) {
  Form_OLEDragDrop(data, effect, down, shift, x + Lbl[index].Left(), y + Lbl[index].Top());
}

// The program's own menu holds nothing of the user's.
bool frmQMenu::TakesDrop(const DragData& data) const {
  return MenuVisible() && !EqualNoCase(MenuKey, kMainMenuKey) &&
         MenuDrops::Takes(program_.Guards, data);
}

void frmQMenu::Form_OLEDragOver(DragData& data, DropEffect& effect, MouseButton down,
                                ShiftState shift, float x, float y) {
  // Also where nothing can be dropped the drag is here, and holds the menu.
  program_.Drag.DragOverButton = true;
  if (!TakesDrop(data)) {
    effect = DropEffect::None;
    return;
  }
  program_.Drag.DragButtons = down;
  effect = effect & EffectOfDrag(down);
  Form_MouseMove(MouseButton::Left, shift, x, y);
}

void frmQMenu::Form_OLEDragDrop(DragData& data, DropEffect& effect, MouseButton /*down*/,
                                ShiftState /*shift*/, float /*x*/, float /*y*/) {
  Timer1.SetEnabled(false);
  program_.Drag.DragOverButton = false;
  program_.Drag.DragEntered = false;
  program_.Drag.DragIsUrl = false;
  if (!TakesDrop(data)) {
    effect = DropEffect::None;
  } else {
    effect = effect & EffectOfDrag(program_.Drag.DragButtons);
    const int item = program_.Menu.SelectedItem;
    const bool enabled = item != 0 && Lbl[item].Enabled();
    drops_.Drop(data, program_.Drag.DragButtons,
                {.Item = item, .Enabled = enabled, .File = MenuFile}, [this] { CloseMenu(); });
  }
  if (MenuVisible()) Timer1.SetEnabled(true);
}

}  // namespace corvelle
