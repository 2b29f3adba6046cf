#include "toolbar/companion/frmMinimize.h"

#include <string_view>
#include <utility>

#include "base/Numbers.h"
#include "core/GuardFlags.h"
#include "core/OptionFile.h"
#include "core/ProgramPaths.h"
#include "core/StripPlacement.h"
#include "forms/EventPump.h"
#include "forms/Scopes.h"
#include "forms/WindowSystem.h"
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

frmMinimize::frmMinimize(const CompanionParts& with)
    : Form(with.Windows, "frmMinimize", forms::BorderStyle::None, true), with_(with) {
  MouseMove = [this](forms::MouseButton, forms::ShiftState, float x, float) { Form_MouseMove(x); };
}

void frmMinimize::Form_Load() {
  SetVisible(false);
  SetCaption("Corvelle");
  // The task bar's animation starts and ends at the place of the strip.
  if (with_.Ports.Toolbar != nullptr) {
    const TwipRect strip = with_.Ports.Toolbar->WindowBounds();
    Move(strip.Left, strip.Top, strip.Width, strip.Height);
  }
}

void frmMinimize::Form_Unload() {
  RemoveFromSysTray();
  const WindowPorts& ports = with_.Ports;
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
  with_.Windows.Quit();
}

// Customize asks before it unloads, and no question may hold up the end of the session. Whether the
// system tells it before the companion is open, and an installer tells the companion alone.
void frmMinimize::Form_SessionEnd() {
  EditingWindow* const customize = with_.Ports.Customize;
  if (customize != nullptr && customize->WindowLoaded()) customize->EndSession();
  Unload();
}

// ---- Not On Top ----

void frmMinimize::ShowInSysTray() {
  if (InTray || !IsLoaded()) return;
  // Without a task bar it is tried again when one comes up.
  InTray = with_.Tray.Add({.Window = hWnd(),
                           .Id = kTrayIcon,
                           .CallbackMessage = forms::message::MouseMove,
                           .IconFile = with_.Paths.ShippedFile("corvelle.exe"),
                           .Tip = "Corvelle"});
}

void frmMinimize::RemoveFromSysTray() {
  if (!InTray) return;
  with_.Tray.Remove(hWnd(), kTrayIcon);
  InTray = false;
}

void frmMinimize::ActivateSysTray() {
  ToolbarPort* const strip = with_.Ports.Toolbar;
  if (with_.Strip.NotOnTop || strip == nullptr || !strip->WindowLoaded()) return;
  with_.Strip.AutoHide = false;
  with_.Options.Flags.Set(Option::AutoHide, false);
  with_.Strip.NotOnTop = true;
  with_.Options.Flags.Set(Option::NotOnTop, true);
  strip->MarkCollections();
  strip->SetWindowPos(forms::InsertAfter::NotTopmost, forms::swp::Show);
  DockAnew();
  if (!IsLoaded()) return;
  // The menu is over everything even so.
  SetMenuLevel();
  ShowInSysTray();
  with_.Options.SaveOptionFlags();
  subShowToolbar();
  if (with_.Options.Flags.Is(Option::NotOnTopTipDone) || with_.Ports.Tip == nullptr) return;
  with_.Ports.Tip->ShowTip("Not On Top", kNotOnTopText, Option::NotOnTopTipDone);
}

void frmMinimize::DeActivateSysTray() {
  ToolbarPort* const strip = with_.Ports.Toolbar;
  if (strip == nullptr || !strip->WindowLoaded()) return;
  with_.Strip.NotOnTop = false;
  with_.Options.Flags.Set(Option::NotOnTop, false);
  DockAnew();
  if (!IsLoaded()) return;
  strip->SetWindowPos(forms::InsertAfter::Topmost, forms::swp::Show);
  SetMenuLevel();
  RemoveFromSysTray();
  with_.Options.SaveOptionFlags();
}

// Whether the edge's room is reserved for the strip has changed.
void frmMinimize::DockAnew() {
  DockingPort* const docking = with_.Ports.Docking;
  if (!with_.Strip.AppBarDocked || docking == nullptr) return;
  with_.Strip.AppBarDocked = false;
  docking->RemoveAppBar();
  docking->SetAppBar(with_.Strip.ToolbarEdge, true);
  docking->RevealToolbar();
}

void frmMinimize::SetMenuLevel() {
  constexpr auto kTopmost = forms::InsertAfter::Topmost;
  const WindowPorts& ports = with_.Ports;
  if (ports.QMenu != nullptr) ports.QMenu->SetWindowPos(kTopmost, forms::swp::Hide);
  if (ports.Hint != nullptr && !with_.Options.Flags.Is(Option::NoHints)) {
    ports.Hint->SetHintLevel(kTopmost, forms::swp::Hide);
  }
}

// ---- into the task bar ----

void frmMinimize::MinimizeFor(const TwipRect& strip) {
  ToolbarPort* const toolbar = with_.Ports.Toolbar;
  if (toolbar == nullptr || !toolbar->WindowLoaded()) return;
  with_.Strip.ToolbarMinimized = true;
  const forms::FlagScope minimizing(with_.Strip.ToolbarMinimizing);
  with_.Guards.ToolbarReady = false;
  if (with_.Strip.AppBarDocked) LeaveEdge(strip.Top);
  Move(strip.Left, strip.Top, strip.Width, strip.Height);
  toolbar->HideWindow();
  Minimize();
}

// The edge is free for others while the strip is in the task bar.
void frmMinimize::LeaveEdge(float top) {
  with_.Strip.WasDocked = true;
  WasEdge = with_.Strip.ToolbarEdge;
  WasTop = top;
  if (with_.Ports.Docking != nullptr) with_.Ports.Docking->LeaveEdge();
  with_.Strip.AppBarDocked = false;
}

// ---- back ----

void frmMinimize::Form_MouseMove(float x) {
  const int message = RoundToInt(x / Scale().TwipsPerPixelX);
  if (message != kLeftButtonUp && message != kLeftButtonDoubleClick) return;
  if (with_.Strip.ToolbarMinimized) {
    RestoreWindow();
  } else {
    subShowToolbar();
  }
}

void frmMinimize::subShowToolbar() {
  if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->BringToForeground();
}

std::optional<std::intptr_t> frmMinimize::WindowProc(std::uint32_t message, std::uintptr_t wParam,
                                                     std::intptr_t lParam) {
  if (message != 0 && message == with_.Tray.TaskbarCreatedMessage()) {
    // The task bar was started again, without the icons that the one before showed.
    InTray = false;
    if (with_.Strip.NotOnTop) ShowInSysTray();
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
  if (with_.Strip.ToolbarMinimizing) return;
  if (with_.Guards.StartingUp || with_.Guards.AppBarBusy || IsMinimized()) return;
  ToolbarPort* const strip = with_.Ports.Toolbar;
  if (strip == nullptr || !strip->WindowLoaded()) return;
  if (with_.Strip.ToolbarMinimized) WakeToolbar();
  if (!IsLoaded()) return;
  SetVisible(false);
  with_.Events.DoEvents();
  if (!IsLoaded()) return;
  if (with_.Strip.AutoHide && with_.Ports.Docking != nullptr) {
    with_.Ports.Docking->RevealToolbar();
  }
  subShowToolbar();
}

// The strip comes back out of the task bar.
void frmMinimize::WakeToolbar() {
  SetVisible(false);
  with_.Strip.ToolbarMinimized = false;
  ToolbarPort& strip = *with_.Ports.Toolbar;
  if (with_.Strip.WasDocked && with_.Ports.Docking != nullptr) {
    ReturnToEdge();
    if (!IsLoaded()) return;
  } else {
    strip.CheckToolbarMove();
  }
  strip.ShowAndRefresh();
  with_.Guards.ToolbarReady = true;
}

void frmMinimize::ReturnToEdge() {
  DockingPort& docking = *with_.Ports.Docking;
  ToolbarPort& strip = *with_.Ports.Toolbar;
  with_.Strip.WasDocked = false;
  if (const auto edge = std::exchange(WasEdge, std::nullopt)) with_.Strip.ToolbarEdge = *edge;
  // Another program's bar may hide there by now.
  if (with_.Strip.AutoHide && !docking.AutoHideFree(with_.Strip.ToolbarEdge)) {
    with_.Options.Flags.Set(Option::AutoHide, false);
    with_.Strip.AutoHide = false;
    docking.ShowAutoHideTaken();
    if (!IsLoaded()) return;
  }
  docking.RegisterAppBar();
  // Whether the full-screen program from before is still there was not told meanwhile.
  if (std::exchange(with_.Strip.FullScreenApp, false) && !with_.Strip.NotOnTop) {
    strip.SetWindowPos(forms::InsertAfter::Topmost, forms::swp::KeepActivation);
  }
  strip.MarkCollections();
  docking.SetAppBar(with_.Strip.ToolbarEdge, false);
  if (!IsLoaded()) return;
  if (with_.Strip.ToolbarVertical && strip.WindowBounds().Top != WasTop) {
    strip.ResetCollections();
  }
}

}  // namespace corvelle
