#pragma once

#include <string_view>

#include "base/Geometry.h"
#include "platform/Canvas.h"

namespace corvelle {

namespace forms {
class WindowSystem;
}

// The small pictures that are drawn by the program itself, by their keys. Their colours are the
// system's at the moment of drawing, so that a picture that is kept must be made again when these
// change. All are 16 by 16 pixels but the arrows of menus.
//   menus: "up", "up2", "down", "down2" (arrows, the second ones disabled), "circle" (a state
//   mark),
//     "new" (a new item), "cust", "help"; "document", "folder", "program", "link" (while the icon
//     of such a thing is not known)
//   carrying: "hand"
//   the tree of entries: "tm" (the program), "button" (a new button), "sep" (a separator),
//     "unknown" (no picture yet), "qmark" (no picture to be had),
//     "missing" (laid over the picture of an entry whose file is not there)
//   tools: "move up", "move down", "cut", "copy", "paste", "delete", "undo"

/// Size in pixels; empty for a key that is not known.
[[nodiscard]] PixelSize GlyphSize(std::string_view key) noexcept;

/// Draws a picture with its upper left corner at `at`, transparent, each of its pixels `scale` by
/// `scale` large. False for an unknown key.
bool DrawGlyph(Canvas& canvas, const forms::WindowSystem& windows, std::string_view key,
               PixelPoint at, int scale = 1);

/// The picture on the mask colour of images; null for an unknown key.
[[nodiscard]] Picture MakeGlyph(forms::WindowSystem& windows, std::string_view key, int scale = 1);

}  // namespace corvelle
