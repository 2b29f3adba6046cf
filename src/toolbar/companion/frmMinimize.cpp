#include "toolbar/companion/frmMinimize.h"

#include <string_view>
#include <utility>

#include "base/Numbers.h"
#include "core/Program.h"
#include "forms/Scopes.h"
#include "platform/TrayIcons.h"

namespace corvelle {
namespace {

constexpr std::uint32_t kTrayIcon = 1;
constexpr std::string_view kNotOnTopText =
    "If the Toolbar is set to 'Not On Top', any window can cover the toolbar. This is an "
    "alternative option to Auto Hide.\r\n\r\n"
    "To bring the toolbar to the foreground, click Corvelle icon on the Taskbar/System "
    "Tray.\r\n\r\n";

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
  // The task bar's animation starts and ends at the place of the strip.
  if (program_.Ports.Toolbar != nullptr) {
    const TwipRect strip = program_.Ports.Toolbar->WindowBounds();
    Move(strip.Left, strip.Top, strip.Width, strip.Height);
  }
}

void frmMinimize::Form_Unload() {
  RemoveFromSysTray();
  const WindowPorts& ports = program_.Ports;
  EndWindow(ports.NetSearch);
  EndWindow(ports.Properties);
  EndWindow(ports.Customize);
  EndWindow(ports.QMenu);
  EndWindow(ports.ImageWindow);
  EndWindow(ports.Toolbar);
  EndWindow(ports.Library);
  if (ports.WebLink != nullptr) ports.WebLink->EndWebLink();
  EndWindow(ports.About);
  if (ports.Hint != nullptr) ports.Hint->ReleaseHint();
  // A task bar that came up while a window asked something has it again.
  RemoveFromSysTray();
  program_.Windows.Quit();
}

// ---- Not On Top ----

void frmMinimize::ShowInSysTray() {
  if (InTray || !IsLoaded()) return;
  // Without a task bar it is tried again when one comes up.
  InTray = program_.Services.Tray.Add({.Window = hWnd(),
                                       .Id = kTrayIcon,
                                       .CallbackMessage = forms::message::MouseMove,
                                       .IconFile = program_.Paths.ShippedFile("corvelle.exe"),
                                       .Tip = "Corvelle"});
}

void frmMinimize::RemoveFromSysTray() {
  if (!InTray) return;
  program_.Services.Tray.Remove(hWnd(), kTrayIcon);
  InTray = false;
}

void frmMinimize::ActivateSysTray() {
  ToolbarPort* const strip = program_.Ports.Toolbar;
  if (program_.Strip.NotOnTop || strip == nullptr || !strip->WindowLoaded()) return;
  program_.Strip.AutoHide = false;
  program_.OptionFlags.Set(Option::AutoHide, false);
  program_.Strip.NotOnTop = true;
  program_.OptionFlags.Set(Option::NotOnTop, true);
  strip->MarkCollections();
  strip->SetWindowPos(forms::InsertAfter::NotTopmost, forms::swp::Show);
  DockAnew();
  if (!IsLoaded()) return;
  // The menu is over everything even so.
  SetMenuLevel();
  ShowInSysTray();
  program_.Options.SaveOptionFlags();
  subShowToolbar();
  if (program_.OptionFlags.Is(Option::NotOnTopTipDone) || program_.Ports.Tip == nullptr) return;
  program_.Ports.Tip->ShowTip("Not On Top", kNotOnTopText, Option::NotOnTopTipDone);
}

void frmMinimize::DeActivateSysTray() {
  ToolbarPort* const strip = program_.Ports.Toolbar;
  if (strip == nullptr || !strip->WindowLoaded()) return;
  program_.Strip.NotOnTop = false;
  program_.OptionFlags.Set(Option::NotOnTop, false);
  DockAnew();
  if (!IsLoaded()) return;
  strip->SetWindowPos(forms::InsertAfter::Topmost, forms::swp::Show);
  SetMenuLevel();
  RemoveFromSysTray();
  program_.Options.SaveOptionFlags();
}

// Whether the edge's room is reserved for the strip has changed.
void frmMinimize::DockAnew() {
  DockingPort* const docking = program_.Ports.Docking;
  if (!program_.Strip.AppBarDocked || docking == nullptr) return;
  program_.Strip.AppBarDocked = false;
  docking->RemoveAppBar();
  docking->SetAppBar(program_.Strip.ToolbarEdge, true);
  docking->RevealToolbar();
}

void frmMinimize::SetMenuLevel() {
  constexpr auto kTopmost = forms::InsertAfter::Topmost;
  const WindowPorts& ports = program_.Ports;
  if (ports.QMenu != nullptr) ports.QMenu->SetWindowPos(kTopmost, forms::swp::Hide);
  if (ports.Hint != nullptr && !program_.OptionFlags.Is(Option::NoHints)) {
    ports.Hint->SetHintLevel(kTopmost, forms::swp::Hide);
  }
}

// ---- into the task bar ----

void frmMinimize::MinimizeFor(const TwipRect& strip) {
  ToolbarPort* const toolbar = program_.Ports.Toolbar;
  if (toolbar == nullptr || !toolbar->WindowLoaded()) return;
  program_.Strip.ToolbarMinimized = true;
  const forms::FlagScope minimizing(program_.Strip.ToolbarMinimizing);
  program_.Guards.ToolbarReady = false;
  if (program_.Strip.AppBarDocked) LeaveEdge(strip.Top);
  Move(strip.Left, strip.Top, strip.Width, strip.Height);
  toolbar->HideWindow();
  Minimize();
}

// The edge is free for others while the strip is in the task bar.
void frmMinimize::LeaveEdge(float top) {
  program_.Strip.WasDocked = true;
  WasEdge = program_.Strip.ToolbarEdge;
  WasTop = top;
  if (program_.Ports.Docking != nullptr) program_.Ports.Docking->LeaveEdge();
  program_.Strip.AppBarDocked = false;
}

// ---- back ----

void frmMinimize::Form_MouseMove(float x) {
  const int message = RoundToInt(x / Scale().TwipsPerPixelX);
  if (message != kLeftButtonUp && message != kLeftButtonDoubleClick) return;
  if (program_.Strip.ToolbarMinimized) {
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
  if (message != 0 && message == program_.Services.Tray.TaskbarCreatedMessage()) {
    // The task bar was started again, without the icons that the one before showed.
    InTray = false;
    if (program_.Strip.NotOnTop) ShowInSysTray();
    return std::nullopt;
  }
  if (message != forms::message::Size) return std::nullopt;
  if (wParam == kSizeMinimized) wasMinimized_ = true;
  // A second start of the program sends a size message without a size.
  if (wParam == kSizeRestored && (lParam == 0 || std::exchange(wasMinimized_, false))) {
    Form_Resize();
  }
  return std::nullopt;
}

void frmMinimize::Form_Resize() {
  // On its way into the task bar it takes the strip's size, which is no return.
  if (program_.Strip.ToolbarMinimizing) return;
  if (program_.Guards.StartingUp || program_.Guards.AppBarBusy || IsMinimized()) return;
  ToolbarPort* const strip = program_.Ports.Toolbar;
  if (strip == nullptr || !strip->WindowLoaded()) return;
  if (program_.Strip.ToolbarMinimized) WakeToolbar();
  if (!IsLoaded()) return;
  SetVisible(false);
  program_.Events.DoEvents();
  if (!IsLoaded()) return;
  if (program_.Strip.AutoHide && program_.Ports.Docking != nullptr) {
    program_.Ports.Docking->RevealToolbar();
  }
  subShowToolbar();
}

// The strip comes back out of the task bar.
void frmMinimize::WakeToolbar() {
  SetVisible(false);
  program_.Strip.ToolbarMinimized = false;
  ToolbarPort& strip = *program_.Ports.Toolbar;
  if (program_.Strip.WasDocked && program_.Ports.Docking != nullptr) {
    ReturnToEdge();
    if (!IsLoaded()) return;
  } else {
    strip.CheckToolbarMove();
  }
  strip.ShowAndRefresh();
  program_.Guards.ToolbarReady = true;
}

void frmMinimize::ReturnToEdge() {
  DockingPort& docking = *program_.Ports.Docking;
  ToolbarPort& strip = *program_.Ports.Toolbar;
  program_.Strip.WasDocked = false;
  if (const auto edge = std::exchange(WasEdge, std::nullopt)) program_.Strip.ToolbarEdge = *edge;
  // Another program's bar may hide there by now.
  if (program_.Strip.AutoHide && !docking.AutoHideFree(program_.Strip.ToolbarEdge)) {
    program_.OptionFlags.Set(Option::AutoHide, false);
    program_.Strip.AutoHide = false;
    docking.ShowAutoHideTaken();
    if (!IsLoaded()) return;
  }
  docking.RegisterAppBar();
  // Whether the full-screen program from before is still there was not told meanwhile.
  if (std::exchange(program_.Strip.FullScreenApp, false) && !program_.Strip.NotOnTop) {
    strip.SetWindowPos(forms::InsertAfter::Topmost, forms::swp::KeepActivation);
  }
  strip.MarkCollections();
  docking.SetAppBar(program_.Strip.ToolbarEdge, false);
  if (!IsLoaded()) return;
  if (program_.Strip.ToolbarVertical && strip.WindowBounds().Top != WasTop) {
    strip.ResetCollections();
  }
}

}  // namespace corvelle
