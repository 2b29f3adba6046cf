#include "toolbar/layout/IconDrawing.h"

#include <memory>

#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "forms/WindowSystem.h"
#include "platform/Canvas.h"

namespace corvelle {

// The shell may let messages in while it is asked for an icon, and they may draw in the box: the
// icon is drawn aside, on a copy of its ground.
void DrawIconIn(forms::WindowSystem& windows, const forms::Form& window, forms::PictureBox& box,
                const PixelRect& place, const unsigned& rounds,
                const std::function<void(Canvas&)>& draw) {
  const std::unique_ptr<Canvas> icon = windows.CreateCanvas(place.Size());
  box.DrawPixels(place, [&](Canvas& canvas) { icon->DrawCanvas(canvas, place, {0, 0}); });
  const unsigned round = rounds;
  draw(*icon);
  if (round != rounds || !window.IsLoaded()) return;
  const PixelRect whole{0, 0, place.Width(), place.Height()};
  box.DrawPixels(place, [&](Canvas& canvas) { canvas.DrawCanvas(*icon, whole, place.TopLeft()); });
}

}  // namespace corvelle
