#pragma once

#include <string_view>

#include "base/Geometry.h"
#include "platform/Canvas.h"

namespace corvelle {

namespace forms {
class WindowSystem;
}

// The small pictures that are drawn by the program itself, by their keys: "up", "up2", "down",
// "down2" (arrows, the second ones disabled), "circle" (a state mark), "new" (a new item), "cust",
// "help". Their colours are the system's at the moment of drawing.

/// Size in pixels; empty for a key that is not known.
[[nodiscard]] PixelSize GlyphSize(std::string_view key) noexcept;

/// Draws a picture with its upper left corner at `at`, transparent. False for an unknown key.
bool DrawGlyph(Canvas& canvas, const forms::WindowSystem& windows, std::string_view key,
               PixelPoint at);

/// The picture on the mask colour of images; null for an unknown key.
[[nodiscard]] Picture MakeGlyph(forms::WindowSystem& windows, std::string_view key);

}  // namespace corvelle
