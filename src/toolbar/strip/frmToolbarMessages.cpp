// What the system and other programs say to the strip, and its place on the desktop.

#include <utility>

#include "base/Numbers.h"
#include "core/Program.h"
#include "forms/Scopes.h"
#include "platform/AppBars.h"
#include "platform/DesktopWindows.h"
#include "platform/SystemInfo.h"
#include "platform/TrayIcons.h"
#include "toolbar/notices/HintPlace.h"
#include "toolbar/strip/frmToolbar.h"

namespace corvelle {
namespace {

// What the shell says with the callback message, by its first parameter.
constexpr std::uintptr_t kPositionChanged = 1;
constexpr std::uintptr_t kFullScreenProgram = 2;

constexpr int kButtonFaceIndex = 15;

}  // namespace

std::optional<std::intptr_t> frmToolbar::WindowProc(std::uint32_t message, std::uintptr_t wParam,
                                                    std::intptr_t lParam) {
  return subclassed_ ? ToolbarWndProc(message, wParam, lParam)
                     : NoteForLater(message, wParam, lParam);
}

std::optional<std::intptr_t> frmToolbar::ToolbarWndProc(std::uint32_t message,
                                                        std::uintptr_t wParam,
                                                        std::intptr_t lParam) {
  if (!program_.Guards.ToolbarReady ||
      (program_.Guards.AppBarBusy && program_.Strip.ToolbarMinimized)) {
    const auto answer = NoteForLater(message, wParam, lParam);
    if (news_.Waits() && !program_.Strip.ToolbarMinimized) Timer1.SetEnabled(true);
    return answer;
  }
  if (message == forms::message::AppBarCallback) return ShellNotify(wParam, lParam);
  if (IsNewTaskBar(message)) {
    news_.NewTaskBar = true;
    FollowBarsLater();
    return std::nullopt;
  }
  switch (message) {
    case forms::message::SysColorChange:
      FollowColours();
      break;
    case forms::message::DisplayChange:
      FollowDisplay();
      break;
    case forms::message::TimeChange:
      if (program_.Strip.AppBarDocked && program_.OptionFlags.Is(Option::ShowDate))
        UpdateLabelDate();
      break;
    case forms::message::Move:
      if (!program_.Strip.AppBarDocked) CheckToolbarMove();
      break;
    default:
      break;
  }
  return std::nullopt;
}

bool frmToolbar::IsNewTaskBar(std::uint32_t message) const {
  return message != 0 && message == program_.Services.Tray.TaskbarCreatedMessage();
}

// A strip that is being built or placed looks afterwards at what has changed meanwhile: nobody
// says it again.
std::optional<std::intptr_t> frmToolbar::NoteForLater(std::uint32_t message, std::uintptr_t wParam,
                                                      std::intptr_t lParam) {
  if (IsNewTaskBar(message)) news_.NewTaskBar = true;
  // One in the task bar looks at the screen when it comes back.
  if (message == forms::message::DisplayChange) news_.Bars = !program_.Strip.ToolbarMinimized;
  if (message != forms::message::AppBarCallback) return std::nullopt;
  // What the shell says about the strip's own message is no news, and a strip that hides asks for
  // its place each time.
  if (wParam == kPositionChanged && !program_.Guards.TellingShell && !program_.Strip.AutoHide)
    news_.Bars = true;
  if (wParam != kFullScreenProgram) return std::nullopt;
  program_.Strip.FullScreenApp = lParam != 0;
  news_.Level = true;
  return 0;
}

void frmToolbar::CatchUp() {
  if (std::exchange(news_.Restore, false)) {
    news_.Rebuild = false;
    RestoreToolbar();
  } else if (std::exchange(news_.Rebuild, false)) {
    InitNewButtons();
  }
  if (!IsLoaded()) return;
  if (std::exchange(news_.Level, false) && !program_.Strip.NotOnTop) TakeLevel();
  if (!IsLoaded()) return;
  if (std::exchange(news_.NewTaskBar, false)) {
    // It knows nothing of the bars of the one before.
    news_.Bars = true;
    if (program_.Ports.Docking != nullptr) program_.Ports.Docking->RemoveAppBar();
  }
  if (!std::exchange(news_.Bars, false)) return;
  FollowDisplay();
  if (IsLoaded() && program_.Strip.AppBarDocked) FollowBars();
}

// A docked strip answers the shell itself; without an edge the message goes on.
std::optional<std::intptr_t> frmToolbar::ShellNotify(std::uintptr_t what, std::intptr_t lParam) {
  if (what == kFullScreenProgram) FullScreenNotify(lParam);
  if (!program_.Strip.AppBarDocked) return std::nullopt;
  if (what == kPositionChanged) FollowBars();
  return 0;
}

void frmToolbar::FollowBars() {
  if (program_.Ports.Docking == nullptr || program_.Guards.PosChangeRunning) return;
  news_.Bars = false;
  const forms::FlagScope running(program_.Guards.PosChangeRunning);
  program_.Ports.Docking->SetAppBar(std::nullopt, false);
}

void frmToolbar::FollowBarsLater() {
  news_.Bars = true;
  Timer1.SetEnabled(true);
}

void frmToolbar::FollowColours() {
  if (program_.Windows.SystemColor(kButtonFaceIndex) == BaseColor) return;
  CacheDisplayMetrics();
  RefreshToolbar();
  if (program_.Ports.QMenu != nullptr) program_.Ports.QMenu->ResetPicIcons();
}

void frmToolbar::FollowDisplay() {
  const PixelSize before{BaseWidth, BaseHeight};
  const int bits = BaseBits;
  CacheDisplayMetrics();
  if (BaseWidth != before.width || BaseBits != bits) ResetCollections();
  if (!IsLoaded() || before == PixelSize{BaseWidth, BaseHeight}) return;
  // A menu that is up would stay where the strip was.
  ResetMenu();
  if (!IsLoaded()) return;
  // Not every shell tells its bars of another screen size.
  if (program_.Strip.AppBarDocked) {
    FollowBars();
  } else if (Right() > Screen().Width) {
    SetToolbarPosition();
  }
}

void frmToolbar::CacheDisplayMetrics() {
  const PixelSize screen = program_.Windows.ScreenSize();
  BaseColor = program_.Windows.SystemColor(kButtonFaceIndex);
  BaseBits = program_.Windows.ScreenBits();
  BaseWidth = screen.width;
  BaseHeight = screen.height;
}

void frmToolbar::FullScreenNotify(std::intptr_t entering) {
  if (program_.Strip.NotOnTop) return;
  const bool staysAbove = program_.OptionFlags.Is(Option::AboveFullScreen);
  if (staysAbove && entering != 0 && program_.Strip.FullScreenApp) return;
  program_.Strip.FullScreenApp = entering != 0;
  TakeLevel();
}

void frmToolbar::TakeLevel() {
  if (program_.OptionFlags.Is(Option::AboveFullScreen)) {
    SetWindowPos(forms::InsertAfter::Top, forms::swp::KeepActivation);
  } else if (program_.Strip.FullScreenApp) {
    SetWindowPos(forms::InsertAfter::Bottom, forms::swp::KeepActivation);
  } else {
    SetWindowPos(forms::InsertAfter::Topmost, forms::swp::Show);
    QMenuPort* const menu = program_.Ports.QMenu;
    const bool menuGoes = menu != nullptr && menu->MenuVisible();
    if (menu != nullptr) menu->SetWindowPos(forms::InsertAfter::Topmost, forms::swp::Hide);
    if (program_.Ports.Hint != nullptr && !program_.OptionFlags.Is(Option::NoHints)) {
      program_.Ports.Hint->SetHintLevel(forms::InsertAfter::Topmost, forms::swp::Hide);
    }
    // While it is asked where an address goes, the menu's poll does not release its picture.
    CapturePort* const capture = program_.Ports.Capture;
    if (menuGoes && capture != nullptr && capture->MenuCaptured()) capture->ReleaseMenu();
  }
}

void frmToolbar::OnMoved(const PixelRect& bounds) {
  Form::OnMoved(bounds);
  if (!subclassed_ || !program_.Guards.ToolbarReady) return;
  // Whoever moved the strip: it belongs where its edge is, or at its height on the screen.
  if (program_.Strip.AppBarDocked) {
    KeepPinned();
  } else {
    CheckToolbarMove();
  }
}

void frmToolbar::KeepPinned() {
  if (program_.Strip.AutoHide || program_.Guards.PosChangeRunning) return;
  Move(program_.Strip.PinnedLeft, program_.Strip.PinnedTop, Width(), Height());
}

void frmToolbar::CheckToolbarMove() {
  if (program_.Guards.StartingUp || program_.Guards.IsPlacing() || program_.Entry.ItemDragging ||
      program_.Strip.AppBarDocked) {
    return;
  }
  if (program_.Strip.AutoHide && !picToolbar.Visible()) {
    SetHeight(TwipsY);
    SetTop(0);
  } else {
    SetTop(SavedTop);
  }
  MinimizePort* const companion = program_.Ports.Minimize;
  if (!program_.Strip.ToolbarMinimized && companion != nullptr) companion->HideCompanion();
}

void frmToolbar::ShowToolbar() {
  // A strip in the task bar comes back by its companion only.
  if (Visible() || program_.Strip.ToolbarMinimized) return;
  ZOrder(forms::ZPlace::Front);
  ShowNoActivate();
}

void frmToolbar::ShowAndRefresh() {
  ShowNoActivate();
  Refresh();
  FollowColours();
  FollowDisplay();
  if (news_.Rebuild) Timer1.SetEnabled(true);
}

void frmToolbar::BringToForeground() {
  Show();
  SetForeground();
  DesktopWindows& desktop = program_.Services.Desktop;
  // The system lets a program take the foreground by itself at its own turn only.
  if (desktop.ForegroundWindow() != hWnd()) desktop.BringForward(hWnd());
  ZOrder(forms::ZPlace::Front);
  SetFocus();
  focusRequested_ = true;
  frontAtRequest_ = desktop.ForegroundWindow();
  Timer1.SetEnabled(true);
}

void frmToolbar::Form_Deactivate() {
  // A user who goes on elsewhere has done with the menus, also with one that is only hidden.
  const bool hidden = program_.Menu.MenuOpen && !MenuUp();
  if (hidden && !program_.Guards.MenuBuilding && !Menus.MenuRefreshing) ResetMenu();
}

void frmToolbar::Form_Activate() {
  if (program_.Ports.Docking == nullptr) return;
  AppBarRecord bar{.hWnd = hWnd()};
  program_.Services.Bars.Message(abm::Activate, bar);
}

void frmToolbar::TakeRequestedFocus() {
  if (!std::exchange(focusRequested_, false)) return;
  // A menu or a notice that came up meanwhile keeps the keyboard.
  const DesktopWindows& desktop = program_.Services.Desktop;
  const WindowId active = desktop.ActiveWindow();
  const bool free = active == kNoWindow || active == hWnd() || !desktop.IsVisible(active);
  // And a user who has turned to another program since then stays there.
  const WindowId front = desktop.ForegroundWindow();
  const bool turned = active == kNoWindow && front != kNoWindow && front != frontAtRequest_;
  if (free && !turned) SetFocus();
}

void frmToolbar::Timer1_Timer() {
  TakeRequestedFocus();
  Pull.WatchPull();
  if (program_.Guards.IsSettling() || program_.Guards.IsPlacing() || program_.Entry.ItemDragging ||
      program_.Drag.ButtonDragging) {
    return;
  }
  if (news_.Waits() && !program_.Strip.ToolbarMinimized) {
    if (program_.Guards.ToolbarReady) CatchUp();
    return;
  }
  news_.Bars = false;
  if (program_.Strip.ToolbarMinimized) {
    StopTimers();
  } else if (!program_.Strip.AutoHide) {
    // Who holds the frame may let it go unnoticed.
    Timer1.SetEnabled(Pull.FrameHeld);
  } else {
    Hiding.HideAndReveal();
  }
}

}  // namespace corvelle
