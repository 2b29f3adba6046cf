#pragma once

#include <string_view>

#include "win32/Sys.h"
#include "win32/UniqueHandle.h"

namespace corvelle::win32 {

/// The tool tips of all windows of the program, shown by one window of the system's own class.
class Win32ToolTips {
 public:
  /// From the next rest of the pointer on `window` has this tip, or none when it is empty. Without
  /// the system's window, which it may refuse, there are no tips.
  void Set(HWND window, std::string_view text);
  /// Must be called before a window that has a tip ends.
  void Forget(HWND window);
  /// A mouse message of a window, with a tip or without.
  void Relay(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

 private:
  HWND pressed_ = nullptr;  // shows its tip no more until the pointer has been elsewhere
  UniqueWindow tips_;
};

}  // namespace corvelle::win32
