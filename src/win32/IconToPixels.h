#pragma once

#include <optional>

#include "platform/IconPixels.h"
#include "win32/Sys.h"

namespace corvelle::win32 {

/// An icon of the system as plain values at `size` by `size` pixels, or for 0 as large as it is.
/// Nothing for no icon, and when the system has no memory.
[[nodiscard]] std::optional<IconPixels> PixelsOfIcon(HICON icon, int size);

}  // namespace corvelle::win32
