#include "core/Program.h"

#include "core/OptionFlags.h"
#include "forms/Scopes.h"
#include "platform/Input.h"

namespace corvelle {

namespace {

/// Holds a window's input while a message is up.
class InputHold {
 public:
  InputHold(AskingWindow* window, WindowId owner) : window_(window) {
    if (window_ != nullptr) window_->HoldForMessage(window_->WindowHandle() == owner);
  }
  InputHold(const InputHold&) = delete;
  InputHold& operator=(const InputHold&) = delete;
  ~InputHold() {
    if (window_ != nullptr) window_->ReleaseAfterMessage();
  }

 private:
  AskingWindow* window_;
};

}  // namespace

bool Program::DragHolds() const {
  constexpr int kLeftButtonKey = 1;
  constexpr int kRightButtonKey = 2;
  const Input& input = Services.Pointer;
  return DragEntered && (input.IsKeyDown(kLeftButtonKey) || input.IsKeyDown(kRightButtonKey));
}

bool Program::TakesDrops() const noexcept { return OpenQuestions == 0 && !IsWorking(); }

bool Program::IsWorking() const noexcept {
  return StartingUp || MenuBuilding || IconsLoading || ItemActionBusy || MenuFormBusy ||
         AppBarBusy || PosChangeRunning;
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

std::string Program::ShippedFile(std::string_view name) const {
  return (ShippedPath.empty() ? AppPath : ShippedPath) + std::string(name);
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
  return SayAs(Title, owner, text, flags);
}

int Program::SayAs(std::string_view title, WindowId owner, std::string_view text, unsigned flags) {
  const forms::CountScope asking(OpenQuestions);
  const InputHold strip(Ports.Toolbar, owner);
  const InputHold menu(Ports.QMenu, owner);
  return Windows.ShowMessage(owner, text, title, flags);
}

void Program::TellMenusEdited() const {
  if (Ports.MenuEdits != nullptr) Ports.MenuEdits->MenusEdited();
}

WindowId Program::ToolbarWindow() const {
  return Ports.Toolbar != nullptr ? Ports.Toolbar->WindowHandle() : kNoWindow;
}

WindowId Program::WindowInUse() const {
  const bool menuUp = Ports.QMenu != nullptr && Ports.QMenu->MenuVisible();
  return menuUp ? Ports.QMenu->WindowHandle() : ToolbarWindow();
}

}  // namespace corvelle
