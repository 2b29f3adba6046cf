#include "win32/Win32Peer.h"

#include "win32/Wide.h"
#include "win32/Win32Canvas.h"
#include "win32/Win32WindowSystem.h"

namespace corvelle::win32 {

using forms::InsertAfter;
using forms::ShowKind;
using forms::ZPlace;

namespace {

constexpr UINT kOrderOnly = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;

HWND AfterOf(InsertAfter after) {
  switch (after) {
    case InsertAfter::Bottom:
      return HWND_BOTTOM;
    case InsertAfter::Topmost:
      return HWND_TOPMOST;
    case InsertAfter::NotTopmost:
      return HWND_NOTOPMOST;
    case InsertAfter::Top:
      break;
  }
  return HWND_TOP;
}

}  // namespace

void Win32PeerCore::SetBounds(const PixelRect& bounds) {
  if (IsMinimized()) {
    SetRestoredBounds(bounds);
    return;
  }
  ::SetWindowPos(Handle(), nullptr, bounds.left, bounds.top, bounds.Width(), bounds.Height(),
                 SWP_NOZORDER | SWP_NOOWNERZORDER | SWP_NOACTIVATE);
}

// A window in the task bar comes back at these bounds, and tells them then.
void Win32PeerCore::SetRestoredBounds(const PixelRect& bounds) {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof(placement);
  if (GetWindowPlacement(Handle(), &placement) == 0) return;
  // The system counts these from the corner of the work area.
  MONITORINFO monitor{};
  monitor.cbSize = sizeof(monitor);
  GetMonitorInfoW(MonitorFromWindow(Handle(), MONITOR_DEFAULTTOPRIMARY), &monitor);
  placement.rcNormalPosition = ToRect(bounds);
  OffsetRect(&placement.rcNormalPosition, monitor.rcMonitor.left - monitor.rcWork.left,
             monitor.rcMonitor.top - monitor.rcWork.top);
  placement.showCmd = IsWindowVisible(Handle()) != 0 ? SW_SHOWMINNOACTIVE : SW_HIDE;
  SetWindowPlacement(Handle(), &placement);
}

void Win32PeerCore::Show(ShowKind kind) {
  const HWND handle = Handle();
  if (!window_->IsForm()) {
    ShowWindow(handle, kind == ShowKind::Hidden ? SW_HIDE : SW_SHOWNA);
    return;
  }
  switch (kind) {
    case ShowKind::Hidden:
      ShowWindow(handle, SW_HIDE);
      break;
    case ShowKind::NoActivate:
      ::SetWindowPos(handle, HWND_TOP, 0, 0, 0, 0, kOrderOnly | SWP_SHOWWINDOW);
      break;
    case ShowKind::Minimized:
      ShowWindow(handle, SW_MINIMIZE);
      break;
    case ShowKind::Normal:
      // Not by ShowWindow: whoever starts the program may have its first call do something else.
      ::SetWindowPos(handle, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW);
      SetForeground();
      break;
    case ShowKind::Restored:
      ShowWindow(handle, SW_RESTORE);
      SetForeground();
      break;
  }
}

bool Win32PeerCore::IsMinimized() const { return IsIconic(Handle()) != 0; }

void Win32PeerCore::SetCaption(std::string_view caption) {
  SetWindowTextW(Handle(), Wide(caption).c_str());
}

void Win32PeerCore::SetEnabled(bool enabled) { EnableWindow(Handle(), enabled ? TRUE : FALSE); }

void Win32PeerCore::Invalidate(const PixelRect& part) {
  if (IsWindowVisible(Handle()) == 0) return;
  const RECT rect = ToRect(part);
  InvalidateRect(Handle(), &rect, FALSE);
}

void Win32PeerCore::PaintNow() { UpdateWindow(Handle()); }

// Behind another program the focus would only make a window active that nobody types into: a click
// on it would not bring it forward any more, and it would hold no press.
void Win32PeerCore::SetFocus() {
  if (IsWindowVisible(Handle()) != 0 && InForeground()) ::SetFocus(Handle());
}

void Win32PeerCore::SetForeground() { SetForegroundWindow(Handle()); }

bool Win32PeerCore::IsForeground() const { return GetForegroundWindow() == Handle(); }

void Win32PeerCore::SetZOrder(ZPlace place) {
  ::SetWindowPos(Handle(), place == ZPlace::Front ? HWND_TOP : HWND_BOTTOM, 0, 0, 0, 0, kOrderOnly);
}

void Win32PeerCore::SetWindowPos(InsertAfter after, unsigned flags) {
  UINT all = flags | SWP_NOMOVE | SWP_NOSIZE;
  const bool hides = (all & SWP_HIDEWINDOW) != 0;
  // What goes out of sight, or stays there, takes no activation with it; and only ShowWindow gives
  // away the one that it had.
  if (hides) all = (all & ~UINT{SWP_HIDEWINDOW}) | SWP_NOACTIVATE;
  ::SetWindowPos(Handle(), AfterOf(after), 0, 0, 0, 0, all);
  if (hides) Show(ShowKind::Hidden);
}

std::unique_ptr<Canvas> Win32PeerCore::ScreenCanvas() {
  if (IsWindowVisible(Handle()) == 0 || IsMinimized()) return nullptr;
  RECT inside{};
  GetClientRect(Handle(), &inside);
  return std::make_unique<win32::ScreenCanvas>(Handle(), FromRect(inside).Size(), system_.Tools());
}

}  // namespace corvelle::win32
