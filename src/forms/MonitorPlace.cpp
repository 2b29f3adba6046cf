#include "forms/MonitorPlace.h"

namespace corvelle::forms {

PixelRect MonitorToOpenOn(const PixelRect& closedAt, const std::vector<PixelRect>& monitors) {
  if (monitors.empty()) return {};
  const PixelRect* best = &monitors.front();
  int most = 0;
  for (const PixelRect& monitor : monitors) {
    const PixelSize common = Intersect(closedAt, monitor).Size();
    if (common.width * common.height <= most) continue;
    most = common.width * common.height;
    best = &monitor;
  }
  return *best;
}

}  // namespace corvelle::forms
