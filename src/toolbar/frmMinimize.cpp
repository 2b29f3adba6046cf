#include "toolbar/frmMinimize.h"

#include <utility>

#include "base/Numbers.h"
#include "core/Program.h"

namespace corvelle {
namespace {

// The tray reports what the mouse does on its icon by the number of the mouse's message.
constexpr int kLeftButtonUp = 514;
constexpr int kLeftButtonDoubleClick = 515;

// What a size message says about the window in its first parameter.
constexpr std::uintptr_t kSizeRestored = 0;
constexpr std::uintptr_t kSizeMinimized = 1;

void EndWindow(LoadedWindow* window) {
  if (window != nullptr && window->WindowLoaded()) window->UnloadWindow();
}

}  // namespace

frmMinimize::frmMinimize(Program& program)
    : Form(program.Windows, "frmMinimize", forms::BorderStyle::None, true), program_(program) {
  MouseMove = [this](forms::MouseButton, forms::ShiftState, float x, float) { Form_MouseMove(x); };
}

void frmMinimize::Form_Load() {
  SetVisible(false);
  SetCaption("Corvelle");
  // The task bar's animation starts and ends where the strip stands.
  if (program_.Ports.Toolbar != nullptr) {
    const TwipRect strip = program_.Ports.Toolbar->WindowBounds();
    Move(strip.Left, strip.Top, strip.Width, strip.Height);
  }
}

void frmMinimize::Form_Unload() {
  const WindowPorts& ports = program_.Ports;
  EndWindow(ports.NetSearch);
  EndWindow(ports.Properties);
  EndWindow(ports.Customize);
  EndWindow(ports.QMenu);
  EndWindow(ports.ImageWindow);
  EndWindow(ports.Toolbar);
  EndWindow(ports.Library);
  if (ports.Hint != nullptr) ports.Hint->ReleaseHint();
  program_.Windows.Quit();
}

void frmMinimize::ShowInSysTray() { Minimize(); }

void frmMinimize::ActivateSysTray() {}

void frmMinimize::DeActivateSysTray() {}

void frmMinimize::MinimizeFor(const TwipRect& strip) {
  Move(strip.Left, strip.Top, strip.Width, strip.Height);
  Minimize();
}

void frmMinimize::Form_MouseMove(float x) {
  const int message = RoundToInt(x / program_.Windows.Screen().TwipsPerPixelX);
  if (message != kLeftButtonUp && message != kLeftButtonDoubleClick) return;
  if (program_.ToolbarMinimized) {
    RestoreWindow();
  } else {
    subShowToolbar();
  }
}

void frmMinimize::subShowToolbar() {
  if (program_.Ports.Toolbar != nullptr) program_.Ports.Toolbar->BringToForeground();
}

std::optional<std::intptr_t> frmMinimize::WindowProc(std::uint32_t message, std::uintptr_t wParam,
                                                     std::intptr_t lParam) {
  if (message != forms::message::Size) return std::nullopt;
  if (wParam == kSizeMinimized) wasMinimized_ = true;
  // A second start of the program sends a size message without a size.
  if (wParam == kSizeRestored && (lParam == 0 || std::exchange(wasMinimized_, false))) {
    Form_Resize();
  }
  return std::nullopt;
}

void frmMinimize::Form_Resize() {
  if (program_.StartingUp || program_.AppBarBusy || IsMinimized()) return;
  ToolbarPort* const strip = program_.Ports.Toolbar;
  if (strip == nullptr || !strip->WindowLoaded()) return;
  if (program_.ToolbarMinimized) WakeToolbar();
  if (program_.NotOnTop) {
    ShowInSysTray();
  } else {
    SetVisible(false);
  }
  program_.DoEvents();
  if (!IsLoaded()) return;
  if (program_.AutoHide && program_.Ports.Docking != nullptr) {
    program_.Ports.Docking->RevealToolbar();
  }
  subShowToolbar();
}

// The strip comes back out of the task bar.
void frmMinimize::WakeToolbar() {
  SetVisible(false);
  program_.ToolbarMinimized = false;
  ToolbarPort& strip = *program_.Ports.Toolbar;
  if (program_.WasDocked && program_.Ports.Docking != nullptr) {
    program_.WasDocked = false;
    program_.Ports.Docking->RegisterAppBar();
    program_.Ports.Docking->SetAppBar(program_.ToolbarEdge, false);
  } else {
    strip.CheckToolbarMove();
  }
  strip.ShowAndRefresh();
  program_.ToolbarReady = true;
}

}  // namespace corvelle
