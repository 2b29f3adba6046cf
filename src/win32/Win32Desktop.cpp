#include "win32/Win32Desktop.h"

#include <algorithm>

#include "win32/Sys.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

constexpr UINT kAnswerMilliseconds = 2000;
constexpr int kLongestClassName = 256;

/// Sends to a window of whatever program and gives up when it does not answer.
bool SendBounded(HWND window, UINT message, WPARAM wParam, LPARAM lParam, DWORD_PTR* answer) {
  return SendMessageTimeoutW(window, message, wParam, lParam, SMTO_ABORTIFHUNG, kAnswerMilliseconds,
                             answer) != 0;
}

/// Joins the input queues of this and another thread for the length of a scope.
class JoinedInput {
 public:
  explicit JoinedInput(DWORD other) noexcept
      : own_(GetCurrentThreadId()),
        other_(other),
        joined_(other != 0 && other != own_ && AttachThreadInput(own_, other, TRUE) != 0) {}
  JoinedInput(const JoinedInput&) = delete;
  JoinedInput& operator=(const JoinedInput&) = delete;
  ~JoinedInput() {
    if (joined_) AttachThreadInput(own_, other_, FALSE);
  }

 private:
  DWORD own_;
  DWORD other_;
  bool joined_;
};

BOOL CALLBACK NoteWindow(HWND window, LPARAM list) noexcept {
  reinterpret_cast<std::vector<WindowId>*>(list)->push_back(ToId(window));
  return TRUE;
}

}  // namespace

std::vector<WindowId> Win32Desktop::TopLevel() const {
  std::vector<WindowId> windows;
  EnumWindows(&NoteWindow, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

// The text that the system keeps of the window; asking another program's window itself could wait
// for ever.
std::string Win32Desktop::Text(WindowId window) const {
  const HWND handle = ToHwnd(window);
  const int length = GetWindowTextLengthW(handle);
  if (length <= 0) return {};
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  const int got = GetWindowTextW(handle, text.data(), length + 1);
  text.resize(static_cast<std::size_t>(std::max(got, 0)));
  return Narrow(text);
}

std::string Win32Desktop::ClassName(WindowId window) const {
  wchar_t name[kLongestClassName + 1];
  const int length = GetClassNameW(ToHwnd(window), name, kLongestClassName + 1);
  return Narrow({name, static_cast<std::size_t>(std::max(length, 0))});
}

bool Win32Desktop::IsVisible(WindowId window) const { return IsWindowVisible(ToHwnd(window)) != 0; }

bool Win32Desktop::IsMinimized(WindowId window) const { return IsIconic(ToHwnd(window)) != 0; }

bool Win32Desktop::HasOwner(WindowId window) const {
  return GetWindow(ToHwnd(window), GW_OWNER) != nullptr;
}

bool Win32Desktop::RestoresMaximized(WindowId window) const {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof(placement);
  return GetWindowPlacement(ToHwnd(window), &placement) != 0 &&
         (placement.flags & WPF_RESTORETOMAXIMIZED) != 0;
}

void Win32Desktop::RestoreMinimized(WindowId window) { OpenIcon(ToHwnd(window)); }

void Win32Desktop::ShowMaximized(WindowId window) { ShowWindow(ToHwnd(window), SW_SHOWMAXIMIZED); }

std::optional<std::intptr_t> Win32Desktop::Send(WindowId window, std::uint32_t message,
                                                std::uintptr_t wParam, std::intptr_t lParam) {
  const HWND handle = ToHwnd(window);
  DWORD_PTR answer = 0;
  if (IsWindow(handle) == 0 || !SendBounded(handle, message, wParam, lParam, &answer)) {
    return std::nullopt;
  }
  return static_cast<std::intptr_t>(answer);
}

void Win32Desktop::BringForward(WindowId window) {
  const HWND handle = ToHwnd(window);
  if (IsWindow(handle) == 0) return;
  // Who owns the foreground may give it away; a window of our own thread asks the one in front.
  const DWORD thread = GetWindowThreadProcessId(handle, nullptr);
  HWND partner = thread == GetCurrentThreadId() ? GetForegroundWindow() : handle;
  // The queue of a program that hangs would hold up this one.
  if (IsHungAppWindow(partner) != 0) partner = nullptr;
  const JoinedInput joined(GetWindowThreadProcessId(partner, nullptr));
  SetActiveWindow(handle);
  SetForegroundWindow(handle);
}

WindowId Win32Desktop::WindowAt(PixelPoint at) const noexcept {
  return ToId(WindowFromPoint({at.x, at.y}));
}

// A thread behind others can have an active window that the user does not work with.
WindowId Win32Desktop::ActiveWindow() const noexcept {
  return InForeground() ? ToId(GetActiveWindow()) : kNoWindow;
}

WindowId Win32Desktop::ForegroundWindow() const noexcept { return ToId(GetForegroundWindow()); }

void Win32Desktop::PaintVisibleWindows() {
  for (const WindowId window : TopLevel()) {
    const HWND handle = ToHwnd(window);
    // Another program paints when it has time, and waiting for it could take for ever.
    const bool own = GetWindowThreadProcessId(handle, nullptr) == GetCurrentThreadId();
    if (own && IsWindowVisible(handle) != 0) UpdateWindow(handle);
  }
}

}  // namespace corvelle::win32
