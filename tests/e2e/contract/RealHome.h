#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "EventFiber.h"
#include "win32/Win32Desktop.h"
#include "win32/Win32Input.h"
#include "win32/Win32WindowSystem.h"

namespace corvelle {

/// The real Windows with a user at mouse and keyboard. Each action has been carried out and its
/// events have run when it returns; points are pixels of the screen.
class RealHome {
 public:
  forms::WindowSystem& Windows() { return windows_; }
  DesktopWindows& Desktop() { return desktop_; }
  Input& Pointer() { return input_; }
  void Wait(int milliseconds) { events_.Run(milliseconds); }

  void MovePointer(PixelPoint at) { Mouse(MOUSEEVENTF_MOVE, at); }
  void Press(forms::MouseButton button) {
    const bool left = button == forms::MouseButton::Left;
    Mouse(left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN, pointer_);
  }
  void Release(forms::MouseButton button) {
    const bool left = button == forms::MouseButton::Left;
    if (!input_.IsKeyDown(left ? VK_LBUTTON : VK_RBUTTON)) return;
    Mouse(left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP, pointer_);
  }
  /// With the left button; both events are there before the first is dealt with.
  void ClickInOneGo(PixelPoint at) {
    MovePointer(at);
    Send(MOUSEEVENTF_LEFTDOWN, at);
    Send(MOUSEEVENTF_LEFTUP, at);
    Wait(5 * kReactionMilliseconds);
  }
  void DoubleClick() {
    for (int press = 0; press < 2; ++press) {
      Press(forms::MouseButton::Left);
      Release(forms::MouseButton::Left);
    }
  }
  void KeyDown(int virtualKey) { Key(virtualKey, 0); }
  void KeyUp(int virtualKey) { Key(virtualKey, KEYEVENTF_KEYUP); }
  /// Plain characters.
  void Type(std::string_view text) {
    for (const char character : text) {
      const SHORT scanned = VkKeyScanW(static_cast<wchar_t>(character));
      const bool shifted = (HIBYTE(scanned) & 1) != 0;
      if (shifted) Key(VK_SHIFT, 0);
      Key(LOBYTE(scanned), 0);
      Key(LOBYTE(scanned), KEYEVENTF_KEYUP);
      if (shifted) Key(VK_SHIFT, KEYEVENTF_KEYUP);
    }
    Wait(kReactionMilliseconds);
  }
  void TurnWheel(int delta) {
    INPUT event{};
    event.type = INPUT_MOUSE;
    event.mi.mouseData = static_cast<DWORD>(delta);
    event.mi.dwFlags = MOUSEEVENTF_WHEEL;
    SendInput(1, &event, sizeof(INPUT));
    Wait(kReactionMilliseconds);
  }
  /// The tool tip of this thread that is up; empty for none.
  [[nodiscard]] std::string ToolTip() const {
    WindowId up = kNoWindow;
    EnumThreadWindows(GetCurrentThreadId(), &FindToolTip, reinterpret_cast<LPARAM>(&up));
    return desktop_.Text(up);
  }
  void PressKey(int virtualKey) {
    INPUT keys[2]{};
    for (INPUT& key : keys) {
      key.type = INPUT_KEYBOARD;
      key.ki.wVk = static_cast<WORD>(virtualKey);
    }
    keys[1].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(2, keys, sizeof(INPUT));
    Wait(kReactionMilliseconds);
  }

 private:
  static constexpr int kReactionMilliseconds = 60;
  static constexpr int kMostTries = 20;
  static constexpr int kWholeScreen = 65536;

  static BOOL CALLBACK FindToolTip(HWND window, LPARAM found) {
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    if (std::wstring_view(name) != TOOLTIPS_CLASSW || IsWindowVisible(window) == 0) return TRUE;
    *reinterpret_cast<WindowId*>(found) = win32::ToId(window);
    return FALSE;
  }

  static void Key(int virtualKey, DWORD how) {
    INPUT key{};
    key.type = INPUT_KEYBOARD;
    key.ki.wVk = static_cast<WORD>(virtualKey);
    key.ki.dwFlags = how;
    SendInput(1, &key, sizeof(INPUT));
  }

  static void Send(DWORD what, PixelPoint at) {
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = GetSystemMetrics(SM_CYSCREEN);
    INPUT event{};
    event.type = INPUT_MOUSE;
    event.mi.dx = (at.x * kWholeScreen + width - 1) / width;
    event.mi.dy = (at.y * kWholeScreen + height - 1) / height;
    event.mi.dwFlags = what | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    SendInput(1, &event, sizeof(INPUT));
  }

  // Place and button in one event: apart, they can be taken in the wrong order.
  void Mouse(DWORD what, PixelPoint at) {
    Send(what, at);
    pointer_ = at;
    Wait(kReactionMilliseconds);
    // Under Wine the place before may come back for a moment, and the move is lost with it.
    for (int tries = 0; tries < kMostTries && input_.PointerPosition() != at; ++tries) {
      Send(MOUSEEVENTF_MOVE, at);
      Wait(kReactionMilliseconds / 2);
    }
  }

  win32::Win32WindowSystem windows_;
  win32::Win32Desktop desktop_;
  win32::Win32Input input_;
  EventFiber events_{windows_};
  PixelPoint pointer_;  // where it was put last
};

}  // namespace corvelle
