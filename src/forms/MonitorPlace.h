#pragma once

#include <vector>

#include "base/Geometry.h"

namespace corvelle::forms {

/// The monitor on which a window opens: that on which most of it lay when it was last closed, at
/// `closedAt` (empty for one that has not been open yet). When none of it lies on a monitor: the
/// first of `monitors`, the primary one. All in pixels of the desktop.
[[nodiscard]] PixelRect MonitorToOpenOn(const PixelRect& closedAt,
                                        const std::vector<PixelRect>& monitors);

}  // namespace corvelle::forms
