// Entries carried over the strip's buttons.

#include "core/Program.h"
#include "toolbar/frmToolbar.h"

namespace corvelle {

int frmToolbar::dragCurButton() {
  GetCurButton();
  return program_.CurButton;
}

void frmToolbar::DoButtonDrag(int /*button*/, forms::MouseButton /*released*/) {}

}  // namespace corvelle
