#include "core/WindowPorts.h"

namespace corvelle {

WindowId WindowPorts::ToolbarWindow() const {
  return Toolbar != nullptr ? Toolbar->WindowHandle() : kNoWindow;
}

WindowId WindowPorts::WindowInUse() const {
  const bool menuUp = QMenu != nullptr && QMenu->MenuVisible();
  return menuUp ? QMenu->WindowHandle() : ToolbarWindow();
}

void WindowPorts::SetHint(std::string_view text) const {
  if (Hint != nullptr) Hint->SetHint(text);
}

void WindowPorts::TellMenusEdited() const {
  if (MenuEdits != nullptr) MenuEdits->MenusEdited();
}

}  // namespace corvelle
