#pragma once

#include <string_view>

#include "base/Geometry.h"
#include "icons/IconForm.h"

namespace corvelle {

class Canvas;
class Program;

// Drawing of icons. Points and sizes are pixels. Nothing here shows a message or keeps an icon:
// each draw asks the shell again, and what cannot be drawn is left as it was.

/// Draws what an icon text means, or the icon of a blank document when it means nothing that can be
/// drawn. Words that the caller has a picture for draw nothing. False when nothing was drawn.
bool ResolveAndDraw(Program& program, Canvas& canvas, std::string_view text, PixelPoint at,
                    int size, IconCaller caller = IconCaller::Toolbar);

/// The icon of a blank document. False when that is missing too.
bool DrawFallbackIcon(Program& program, Canvas& canvas, PixelPoint at, int size);

/// Draws the first icon of a file by itself, and only where the shell would show a generic one;
/// false at once where it shows the right one.
bool DrawIconFile(Program& program, Canvas& canvas, std::string_view file, PixelPoint at, int size);

/// Draws icon `index` of a file. False when the file has none.
bool DrawIconIndex(Program& program, Canvas& canvas, std::string_view file, PixelPoint at, int size,
                   int index);

}  // namespace corvelle
