#pragma once

#include <string>
#include <string_view>

#include "sim/SimDesktop.h"

namespace corvelle::sim {

/// A caption as it is shown: "&" marks a letter, two of them are one character.
[[nodiscard]] std::string WithoutAccessKey(std::string_view caption);

/// A picture without its masked pixels; dimmed, every second pixel is left out.
void PaintMasked(SimCanvas& canvas, const SimCanvas& picture, PixelPoint at, bool dimmed);

/// A raised or sunken edge of one pixel just inside `box`.
void PaintEdge(const SimDesktop& desktop, SimCanvas& canvas, const PixelRect& box, bool raised);

}  // namespace corvelle::sim
