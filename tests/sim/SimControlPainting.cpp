#include "sim/SimControlPainting.h"

#include "forms/Graphic.h"

namespace corvelle::sim {

std::string WithoutAccessKey(std::string_view caption) {
  std::string text;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == '&') ++at;
    if (at < caption.size()) text += caption[at];
  }
  return text;
}

void PaintMasked(SimCanvas& canvas, const SimCanvas& picture, PixelPoint at, bool dimmed) {
  for (int y = 0; y < picture.Size().height; ++y) {
    for (int x = 0; x < picture.Size().width; ++x) {
      const Rgb colour = picture.PixelAt({x, y});
      if (colour == forms::Image::kMask || (dimmed && (x + y) % 2 != 0)) continue;
      canvas.FillBox({at.x + x, at.y + y, at.x + x + 1, at.y + y + 1}, colour);
    }
  }
}

void PaintEdge(const SimDesktop& desktop, SimCanvas& canvas, const PixelRect& box, bool raised) {
  const Rgb light = desktop.SystemColor(20);
  const Rgb dark = desktop.SystemColor(21);
  const Rgb first = raised ? light : dark;
  const Rgb last = raised ? dark : light;
  canvas.FillBox({box.left, box.top, box.right, box.top + 1}, first);
  canvas.FillBox({box.left, box.top, box.left + 1, box.bottom}, first);
  canvas.FillBox({box.left, box.bottom - 1, box.right, box.bottom}, last);
  canvas.FillBox({box.right - 1, box.top, box.right, box.bottom}, last);
}

}  // namespace corvelle::sim
