#include "sim/SimControlPainting.h"

namespace corvelle::sim {

std::string WithoutAccessKey(std::string_view caption) {
  std::string text;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == '&') ++at;
    if (at < caption.size()) text += caption[at];
  }
  return text;
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
