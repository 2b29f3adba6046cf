// Entries carried from and to the items of the menu.

#include "core/Program.h"
#include "menus/frmQMenu.h"

namespace corvelle {

void frmQMenu::DoItemDrag(forms::ShiftState /*shift*/) {}

}  // namespace corvelle
