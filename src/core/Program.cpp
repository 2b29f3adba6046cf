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
  return Drag.DragEntered && (input.IsKeyDown(kLeftButtonKey) || input.IsKeyDown(kRightButtonKey));
}

void Program::DoEvents() {
  if (eventsRunning_) {
    Windows.PaintWaiting();
    return;
  }
  const forms::FlagScope running(eventsRunning_);
  Windows.DoEvents();
}

void Program::SetHint(std::string_view text) {
  if (Ports.Hint != nullptr) Ports.Hint->SetHint(text);
}

void Program::ShowStartupProgress() {
  if (!Guards.StartingUp || OptionFlags.Is(Option::NoStartupScreen)) return;
  if (Ports.Startup != nullptr) Ports.Startup->AddDot();
}

void Program::SaveOptionFlags() {
  // The flags stay in force for this run, and the next save tries again.
  static_cast<void>(corvelle::SaveOptionFlags(Services.Files, Paths.AppPath, OptionFlags));
}

void Program::SaveEdgeFlags() {
  corvelle::SaveEdgeFlags(OptionFlags, Strip.BelongsToEdge(), Strip.ToolbarEdge);
}

void Program::ReadEdgeFlags() { corvelle::ReadEdgeFlags(OptionFlags, Strip); }

int Program::Say(WindowId owner, std::string_view text, unsigned flags) {
  return SayAs(Title, owner, text, flags);
}

int Program::SayAs(std::string_view title, WindowId owner, std::string_view text, unsigned flags) {
  const forms::CountScope asking(Guards.OpenQuestions);
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
