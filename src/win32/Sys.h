#pragma once

// The headers of Windows, for the files of this folder only.

#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>

#include "base/Geometry.h"
#include "platform/WindowId.h"

namespace corvelle::win32 {

inline HWND ToHwnd(WindowId window) noexcept { return reinterpret_cast<HWND>(window); }
inline WindowId ToId(HWND window) noexcept { return reinterpret_cast<WindowId>(window); }

inline RECT ToRect(const PixelRect& r) noexcept { return {r.left, r.top, r.right, r.bottom}; }
inline PixelRect FromRect(const RECT& r) noexcept {
  return {static_cast<int>(r.left), static_cast<int>(r.top), static_cast<int>(r.right),
          static_cast<int>(r.bottom)};
}

/// The number of the program's own icon among its resources.
inline constexpr WORD kProgramIcon = 1;

/// The module that this code is linked into.
inline HINSTANCE Module() noexcept { return GetModuleHandleW(nullptr); }

/// True unless the window in front belongs to another thread. While the foreground changes hands
/// there is none, and no other program holds this one back.
inline bool InForeground() noexcept {
  HWND front = GetForegroundWindow();
  return front == nullptr || GetWindowThreadProcessId(front, nullptr) == GetCurrentThreadId();
}

}  // namespace corvelle::win32
