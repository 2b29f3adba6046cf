#include "sim/SimToolBar.h"

#include <utility>

#include "sim/SimControlPainting.h"

namespace corvelle::sim {

namespace {

constexpr int kButton = 23;
constexpr int kGap = 8;
constexpr int kImageAt = 3;

}  // namespace

void SimToolBar::AddImage(const Canvas& image) {
  auto copy = std::make_shared<SimCanvas>(image.Size());
  copy->DrawCanvas(image, {0, 0, image.Size().width, image.Size().height}, {0, 0});
  images_.push_back(std::move(copy));
}

void SimToolBar::Add(const forms::ToolBarButton& button) {
  buttons_.push_back(button);
  Changed();
}

void SimToolBar::SetButton(int at, bool enabled, bool checked) {
  forms::ToolBarButton& button = buttons_[static_cast<std::size_t>(at)];
  button.Enabled = enabled;
  button.Checked = checked;
  Changed();
}

PixelRect SimToolBar::ButtonRect(int at) const {
  int left = 0;
  for (int before = 0; before < at; ++before) {
    left += buttons_[static_cast<std::size_t>(before)].IsGap() ? kGap : kButton;
  }
  const int width = buttons_[static_cast<std::size_t>(at)].IsGap() ? kGap : kButton;
  return {left, 2, left + width, 2 + kButton};
}

int SimToolBar::ButtonAt(PixelPoint at) const {
  for (int button = 0; button < static_cast<int>(buttons_.size()); ++button) {
    if (!buttons_[static_cast<std::size_t>(button)].IsGap() && ButtonRect(button).Contains(at)) {
      return button;
    }
  }
  return -1;
}

std::string SimToolBar::ToolTipAt(PixelPoint at) const {
  const int button = ButtonAt(at);
  return button >= 0 ? buttons_[static_cast<std::size_t>(button)].Tip : std::string();
}

void SimToolBar::Press(forms::MouseButton button, forms::ShiftState /*shift*/, PixelPoint at,
                       bool /*second*/) {
  if (button == forms::MouseButton::Left) pressed_ = ButtonAt(at);
}

void SimToolBar::Release(forms::MouseButton button, forms::ShiftState /*shift*/, PixelPoint at,
                         bool /*over*/) {
  if (button != forms::MouseButton::Left) return;
  const int pressed = std::exchange(pressed_, -1);
  if (pressed < 0 || ButtonAt(at) != pressed) return;
  if (buttons_[static_cast<std::size_t>(pressed)].Enabled) events_.OnToolPressed(pressed);
}

void SimToolBar::Paint(SimCanvas& canvas, const SimWindow& window, bool /*focused*/) const {
  const PixelSize size = window.Bounds.Size();
  canvas.FillBox({0, 0, size.width, size.height}, Desktop().SystemColor(15));
  for (int at = 0; at < static_cast<int>(buttons_.size()); ++at) {
    const forms::ToolBarButton& button = buttons_[static_cast<std::size_t>(at)];
    const PixelRect place = ButtonRect(at);
    if (button.IsGap()) {
      canvas.FillBox({place.left + 3, place.top, place.left + 4, place.bottom},
                     Desktop().SystemColor(16));
      continue;
    }
    if (button.Checked) PaintEdge(Desktop(), canvas, place, false);
    if (button.Image < 0 || button.Image >= static_cast<int>(images_.size())) continue;
    PaintMasked(canvas, *images_[static_cast<std::size_t>(button.Image)],
                {place.left + kImageAt, place.top + kImageAt}, !button.Enabled);
  }
}

}  // namespace corvelle::sim
