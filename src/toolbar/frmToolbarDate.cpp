// The date at the far end of the single buttons.

#include "core/Program.h"
#include "toolbar/frmToolbar.h"

namespace corvelle {

void frmToolbar::DoLabelDate() {}

void frmToolbar::UpdateLabelDate() {}

}  // namespace corvelle
