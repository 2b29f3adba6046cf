#include "sim/SimScrollBar.h"

#include <algorithm>

#include "sim/SimControlPainting.h"

namespace corvelle::sim {

using forms::ScrollStep;

void SimScrollBar::SetRange(const forms::ScrollRange& range) {
  range_ = range;
  Changed();
}

PixelRect SimScrollBar::Thumb() const {
  const PixelSize size = Window().Bounds.Size();
  const int track = std::max(size.height - 2 * kArrow, 1);
  const int page = std::max(range_.Page, 1);
  const int values = std::max(range_.Most - range_.Least, 0) + page;
  const int height = std::clamp(track * page / values, 8, std::max(track, 8));
  const int way = std::max(range_.Most - range_.Least, 1);
  const int top = kArrow + (track - height) * (range_.Value - range_.Least) / way;
  return {0, top, size.width, top + height};
}

int SimScrollBar::ValueAt(int top) const {
  const PixelSize size = Window().Bounds.Size();
  const int way = std::max(size.height - 2 * kArrow - Thumb().Height(), 1);
  return range_.Least + (top - kArrow) * (range_.Most - range_.Least) / way;
}

void SimScrollBar::Press(forms::MouseButton button, forms::ShiftState /*shift*/, PixelPoint at,
                         bool /*second*/) {
  if (button != forms::MouseButton::Left) return;
  const PixelRect thumb = Thumb();
  if (at.y < kArrow) return events_.OnStep(ScrollStep::LineBack, 0);
  if (at.y >= Window().Bounds.Height() - kArrow) return events_.OnStep(ScrollStep::LineOn, 0);
  if (at.y < thumb.top) return events_.OnStep(ScrollStep::PageBack, 0);
  if (at.y >= thumb.bottom) return events_.OnStep(ScrollStep::PageOn, 0);
  dragging_ = true;
  grip_ = at.y - thumb.top;
}

void SimScrollBar::MouseMove(forms::MouseButton /*down*/, PixelPoint at) {
  if (dragging_) events_.OnStep(ScrollStep::Drag, ValueAt(at.y - grip_));
}

void SimScrollBar::Release(forms::MouseButton button, forms::ShiftState /*shift*/, PixelPoint at,
                           bool /*over*/) {
  if (button != forms::MouseButton::Left || !dragging_) return;
  dragging_ = false;
  events_.OnStep(ScrollStep::DragEnd, ValueAt(at.y - grip_));
}

void SimScrollBar::Paint(SimCanvas& canvas, const SimWindow& window, bool /*focused*/) const {
  const PixelSize size = window.Bounds.Size();
  canvas.FillBox({0, 0, size.width, size.height}, Desktop().SystemColor(0));
  for (const PixelRect& part :
       {PixelRect{0, 0, size.width, kArrow},
        PixelRect{0, size.height - kArrow, size.width, size.height}, Thumb()}) {
    canvas.FillBox(part, Desktop().SystemColor(15));
    PaintEdge(Desktop(), canvas, part, true);
  }
}

}  // namespace corvelle::sim
