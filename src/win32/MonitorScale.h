#pragma once

#include "base/Geometry.h"
#include "win32/Sys.h"

namespace corvelle::win32 {

// All that the program learns of Windows about scales, in dots of an inch (96 is 100 %). A program
// that told Windows of no scale of its own for each monitor hears the system's for all of them, as
// it does from a Windows that knows of one only.

/// The scale of the monitor on which most of `bounds` lies, or of the nearest one. Pixels of the
/// desktop; an empty place counts as a pixel.
[[nodiscard]] int DpiOfMonitorAt(const PixelRect& bounds);

/// GetSystemMetrics for a window of this scale.
[[nodiscard]] int MetricForDpi(int metric, int dpi);

/// AdjustWindowRectEx for a window of this scale, without an extended style.
void AddFrame(RECT& inside, DWORD style, bool menuBar, int dpi);

}  // namespace corvelle::win32
