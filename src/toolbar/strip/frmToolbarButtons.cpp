// The buttons of a strip that is up: repainted, and one more of them.

#include <algorithm>

#include "core/MenuFile.h"
#include "core/Program.h"
#include "shell/FileErrorText.h"
#include "toolbar/strip/frmToolbar.h"

namespace corvelle {

void frmToolbar::RefreshToolbar() {
  const bool visible = picToolbar.Visible();
  const float freeWidth = FreeWidth();
  const int buttons = Buttons.ButtonCount;
  const int separators = Buttons.SepCount;
  RefreshToolbarButtons();
  // Other buttons than those there were: they need other places.
  const bool others = Buttons.ButtonCount != buttons || Buttons.SepCount != separators;
  if (others) DoToolbarButtons();
  picToolbar.Refresh();
  Singles.RefreshSingleButtons();
  picSingleButton.Refresh();
  // A line stays bare, and is fitted when it comes back.
  if (!visible) return;
  if (others) {
    ResizeAfterEdit(freeWidth);
    return;
  }
  DrawBorders();
  InvalidateAll();
  Refresh();
}

void frmToolbar::AddNewButton() {
  if (!IsLoaded()) return;
  const auto path =
      CreateButtonFile(program_.Services.Files, program_.Services.Ansi, program_.Paths.MenusPath);
  if (!path) {
    program_.Messages.Say(
        hWnd(), NumberedFileError(program_.Services.Files, program_.Paths.MenusPath, path.Error()),
        forms::msgbox::IconInformation | forms::msgbox::OnTop);
    return;
  }
  program_.Ports.TellMenusEdited();
  program_.Guards.ToolbarReady = false;
  const bool floats = Shape().Where == Placement::TopHugging;
  // The button's width goes to the left, where the screen has room for it.
  if (floats && Left() > 0) SetLeft(Left() - Buttons.ToolbarButtons[0].Width - 2 * TwipsX);
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
