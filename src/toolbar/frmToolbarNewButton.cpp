// A new menu button on the strip.

#include <algorithm>

#include "core/MenuFile.h"
#include "core/Program.h"
#include "shell/FileErrorText.h"
#include "toolbar/frmToolbar.h"

namespace corvelle {

void frmToolbar::AddNewButton() {
  if (!IsLoaded()) return;
  const auto path =
      CreateButtonFile(program_.Services.Files, program_.Services.Ansi, program_.Paths.MenusPath);
  if (!path) {
    program_.Say(hWnd(),
                 NumberedFileError(program_.Services.Files, program_.Paths.MenusPath, path.Error()),
                 forms::msgbox::IconInformation | forms::msgbox::OnTop);
    return;
  }
  program_.TellMenusEdited();
  program_.Guards.ToolbarReady = false;
  const bool floats = Where() == Placement::TopHugging;
  // The button's width goes to the left, where the screen has room for it.
  if (floats && Left() > 0) SetLeft(Left() - ToolbarButtons[0].Width - 2 * TwipsX);
  DoToolbarButtons();
  SetControls();
  if (floats) {
    SetLeft(std::max(Left(), 0.0F));
    SavedLeft = Left();
    UpdateToolbarPosition();
  } else if (program_.Ports.Docking != nullptr) {
    program_.Ports.Docking->ResizeToEdge();
  }
  DrawBorders();
  InvalidateAll();
  Refresh();
  program_.Guards.ToolbarReady = true;
}

}  // namespace corvelle
