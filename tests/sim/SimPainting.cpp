// What windows owe to paint, and what the screen shows.

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "sim/SimDesktop.h"

namespace corvelle::sim {

void SimDesktop::Invalidate(WindowId window, const PixelRect& part) {
  SimWindow* at = Get(window);
  if (at == nullptr || !at->Own || !IsShown(window)) return;
  const PixelSize size = InsideOf(*at);
  at->Dirty = Union(at->Dirty, Intersect(part, {0, 0, size.width, size.height}));
}

void SimDesktop::InvalidateTree(WindowId window) {
  const SimWindow* at = Look(window);
  if (at == nullptr) return;
  const PixelSize size = InsideOf(*at);
  Invalidate(window, {0, 0, size.width, size.height});
  for (const WindowId child : at->Children) InvalidateTree(child);
}

void SimDesktop::PaintNow(WindowId window) {
  if (IsShown(window)) PaintOne(window);
}

bool SimDesktop::PaintOne(WindowId window) {
  SimWindow* at = Get(window);
  if (at == nullptr || at->Events == nullptr || at->Dirty.IsEmpty()) return false;
  const PixelRect dirty = at->Dirty;
  at->Dirty = {};
  ++at->PaintCount;
  at->LastPainted = dirty;
  ++paints_;
  // Held, since the window may be destroyed by its own painting.
  const std::shared_ptr<SimCanvas> content = at->Content;
  ++depth_;
  if (IsSystemControl(*at)) {
    at->Control->Paint(*content, *at, focus_ == window);
  } else {
    at->Events->OnPaint(*content, dirty);
  }
  --depth_;
  return true;
}

bool SimDesktop::PaintSomething() {
  for (const auto& [id, window] : windows_) {
    if (!window.Dirty.IsEmpty() && IsShown(id)) return PaintOne(id);
  }
  return false;
}

void SimDesktop::PaintVisibleWindows() {
  // As many rounds as there are windows are enough for all that is owed now.
  for (std::size_t round = windows_.size(); round > 0 && PaintSomething(); --round) {
  }
}

void SimDesktop::Compose(SimCanvas& screen, const SimWindow& window) const {
  if (!IsShown(window.Id)) return;
  const PixelRect bounds = BoundsOf(window.Id);
  if (window.Content) {
    const PixelSize inside = InsideOf(window);
    PaintFrame(screen, window);
    screen.DrawCanvas(*window.Content, {0, 0, inside.width, inside.height},
                      {bounds.left + window.Margins.Left, bounds.top + window.Margins.Top});
  } else if (window.Id == desktopWindow_) {
    screen.FillBox(bounds, SystemColor(1));
  } else {
    // Another program's window: a frame, a caption, an empty page.
    screen.FillBox(bounds, SystemColor(15));
    screen.FillBox({bounds.left + 3, bounds.top + 3, bounds.right - 3, bounds.top + 21},
                   SystemColor(window.Id == foreground_ ? 2 : 3));
    screen.FillBox({bounds.left + 3, bounds.top + 22, bounds.right - 3, bounds.bottom - 3},
                   SystemColor(5));
    screen.DrawString({bounds.left + 6, bounds.top + 5}, window.Text, {{}, PrimaryDpi()},
                      SystemColor(9));
  }
  for (auto child = window.Children.rbegin(); child != window.Children.rend(); ++child) {
    Compose(screen, *Look(*child));
  }
}

forms::WindowPicture SimDesktop::PictureOfWindow(WindowId window) {
  if (!IsShown(window)) return {};
  // The window by itself; nothing is to be seen of what lies left of the screen or above it.
  const PixelRect bounds = BoundsOf(window);
  auto picture = std::make_unique<SimCanvas>(bounds.Size());
  picture->SetOrigin({-bounds.left, -bounds.top});
  Compose(*picture, *Look(window));
  picture->FillBox({bounds.left, bounds.top, 0, bounds.bottom}, 0);
  picture->FillBox({bounds.left, bounds.top, bounds.right, 0}, 0);
  picture->SetOrigin({0, 0});
  return {std::move(picture), bounds};
}

std::unique_ptr<Canvas> SimDesktop::PictureOfScreen(const PixelRect& part) {
  if (part.IsEmpty()) return nullptr;
  auto picture = std::make_unique<SimCanvas>(part.Size());
  picture->SetOrigin({-part.left, -part.top});
  ComposeAll(*picture);
  // Beyond the screen there is nothing.
  const PixelSize screen = options_.Screen;
  picture->FillBox({part.left, part.top, 0, part.bottom}, 0);
  picture->FillBox({part.left, part.top, part.right, 0}, 0);
  picture->FillBox({screen.width, part.top, part.right, part.bottom}, 0);
  picture->FillBox({part.left, screen.height, part.right, part.bottom}, 0);
  picture->SetOrigin({0, 0});
  return picture;
}

SimCanvas SimDesktop::Picture() const {
  SimCanvas screen(options_.Screen);
  ComposeAll(screen);
  return screen;
}

void SimDesktop::ComposeAll(SimCanvas& screen) const {
  for (auto id = order_.rbegin(); id != order_.rend(); ++id) Compose(screen, *Look(*id));
}

}  // namespace corvelle::sim
