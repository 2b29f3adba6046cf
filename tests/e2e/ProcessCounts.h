#pragma once

#include <windows.h>

#include <cstddef>

namespace corvelle::e2e {

/// What another process holds of the system, to see whether it grows.
struct ProcessCounts {
  int Gdi = 0;   // objects to draw with
  int User = 0;  // windows, icons, menus; where the system does not count them, the highest number
                 // that a new one gets
  int Windows = 0;  // of the process, with all that they hold
  std::size_t PrivateBytes = 0;
};

/// Counts of the process that a window belongs to; zeros for a window that is gone.
[[nodiscard]] ProcessCounts CountsOf(HWND window);

}  // namespace corvelle::e2e
