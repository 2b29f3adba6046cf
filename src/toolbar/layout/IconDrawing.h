#pragma once

#include <functional>

#include "base/Geometry.h"

namespace corvelle {

class Canvas;
namespace forms {
class Form;
class PictureBox;
class WindowSystem;
}  // namespace forms

/// Draws an icon in a box of a window: `draw` gets a canvas of the size of `place` with what is
/// there now. `rounds` counts the times that all icons of the box are drawn: when it changes
/// meanwhile, or the window ends, the icon is given up.
void DrawIconIn(forms::WindowSystem& windows, const forms::Form& window, forms::PictureBox& box,
                const PixelRect& place, const unsigned& rounds,
                const std::function<void(Canvas&)>& draw);

}  // namespace corvelle
