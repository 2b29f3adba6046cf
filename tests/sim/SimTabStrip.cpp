#include "sim/SimTabStrip.h"

#include "sim/SimControlPainting.h"

namespace corvelle::sim {

void SimTabStrip::Add(std::string_view text) {
  tabs_.emplace_back(text);
  Changed();
}

void SimTabStrip::SetText(int tab, std::string_view text) {
  tabs_[static_cast<std::size_t>(tab)] = text;
  Changed();
}

void SimTabStrip::Select(int tab) {
  selected_ = tab;
  Changed();
}

PixelRect SimTabStrip::PageRect() const {
  const PixelSize size = Window().Bounds.Size();
  return {4, kTabHeight + 2, size.width - 4, size.height - 4};
}

PixelRect SimTabStrip::TabRect(int tab) const {
  constexpr int kBesideText = 12;
  int left = 2;
  for (int at = 0; at < Count(); ++at) {
    const PixelSize words = TextSize(tabs_[static_cast<std::size_t>(at)], {{}, Window().Dpi});
    const int right = left + words.width + kBesideText;
    if (at == tab) return {left, 2, right, kTabHeight};
    left = right;
  }
  return {};
}

void SimTabStrip::Choose(int tab) {
  if (tab < 0 || tab >= Count() || tab == selected_) return;
  SimDesktop& desktop = Desktop();
  const WindowId window = Id();
  if (!events_.OnTabLeaving() || desktop.Look(window) == nullptr) return;
  Select(tab);
  events_.OnTabChosen();
}

void SimTabStrip::Press(forms::MouseButton button, forms::ShiftState /*shift*/, PixelPoint at,
                        bool /*second*/) {
  if (button != forms::MouseButton::Left) return;
  for (int tab = 0; tab < Count(); ++tab) {
    if (TabRect(tab).Contains(at)) return Choose(tab);
  }
}

void SimTabStrip::Key(int keyCode, forms::ShiftState /*shift*/) {
  if (keyCode == forms::key::Left) return Choose(selected_ - 1);
  if (keyCode == forms::key::Right) return Choose(selected_ + 1);
}

void SimTabStrip::Paint(SimCanvas& canvas, const SimWindow& window, bool /*focused*/) const {
  const PixelSize size = window.Bounds.Size();
  canvas.FillBox({0, 0, size.width, size.height}, Desktop().SystemColor(15));
  PaintEdge(Desktop(), canvas, {0, kTabHeight, size.width, size.height}, true);
  for (int tab = 0; tab < Count(); ++tab) {
    const PixelRect place = TabRect(tab);
    PaintEdge(Desktop(), canvas, place, tab != selected_);
    canvas.DrawString({place.left + 6, place.top + 3}, tabs_[static_cast<std::size_t>(tab)],
                      {{}, Window().Dpi}, Desktop().SystemColor(18));
  }
}

}  // namespace corvelle::sim
