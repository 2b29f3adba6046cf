#include "core/Program.h"

#include "core/OptionFlags.h"
#include "forms/Scopes.h"
#include "platform/Input.h"

namespace corvelle {

bool Program::DragHolds() const {
  constexpr int kLeftButtonKey = 1;
  constexpr int kRightButtonKey = 2;
  const Input& input = Services.Pointer;
  return DragEntered && (input.IsKeyDown(kLeftButtonKey) || input.IsKeyDown(kRightButtonKey));
}

bool Program::TakesDrops() const noexcept {
  return !StartingUp && !MenuBuilding && !IconsLoading && !ItemActionBusy && !MenuFormBusy &&
         !AppBarBusy && !PosChangeRunning;
}

void Program::DoEvents() {
  if (EventsRunning) {
    Windows.PaintWaiting();
    return;
  }
  const forms::FlagScope running(EventsRunning);
  Windows.DoEvents();
}

void Program::SetHint(std::string_view text) {
  if (Ports.Hint != nullptr) Ports.Hint->SetHint(text);
}

void Program::ShowStartupProgress() {
  if (!StartingUp || OptionFlags.Is(9)) return;
  if (Ports.Startup != nullptr) Ports.Startup->AddDot();
}

void Program::SaveOptionFlags() {
  // The flags stay in force for this run, and the next save tries again.
  static_cast<void>(corvelle::SaveOptionFlags(Services.Files, AppPath, OptionFlags));
}

void Program::SaveEdgeFlags() {
  corvelle::SaveEdgeFlags(OptionFlags, AppBarDocked || (WasDocked && ToolbarMinimized),
                          ToolbarEdge);
}

void Program::ReadEdgeFlags() {
  EdgePlacement placement{AppBarRequested, ToolbarVertical, ToolbarEdge};
  corvelle::ReadEdgeFlags(OptionFlags, placement);
  AppBarRequested = placement.AppBarRequested;
  ToolbarVertical = placement.ToolbarVertical;
  ToolbarEdge = placement.ToolbarEdge;
}

int Program::Say(WindowId owner, std::string_view text, unsigned flags) {
  return Windows.ShowMessage(owner, text, Title, flags);
}

WindowId Program::ToolbarWindow() const {
  return Ports.Toolbar != nullptr ? Ports.Toolbar->WindowHandle() : kNoWindow;
}

}  // namespace corvelle
