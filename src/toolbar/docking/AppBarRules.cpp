#include "toolbar/docking/AppBarRules.h"

#include "base/Numbers.h"

namespace corvelle {
namespace {

constexpr int kTopFrame = 3;    // pixels of the frame that a bar at the top hides above the screen
constexpr float kFrame = 3;     // pixels of the strip's thickness besides its buttons
constexpr float kFarFrame = 4;  // the same at the bottom and on the right
constexpr float kLineBesideBar = 60;  // twips

}  // namespace

std::uint32_t ShellEdge(Edge at) noexcept {
  switch (at) {
    case Edge::Left:
      return 0;
    case Edge::Right:
      return 2;
    case Edge::Bottom:
      return 3;
    case Edge::Top:
      break;
  }
  return 1;
}

PixelSize BarSize(Edge at, int thickness, PixelSize screen) noexcept {
  return IsVertical(at) ? PixelSize{thickness, screen.height} : PixelSize{screen.width, thickness};
}

BarPlace CutToBar(Edge at, const PixelRect& offered, PixelSize bar, bool mayLift) noexcept {
  BarPlace place{offered, 0};
  PixelRect& rc = place.Reserved;
  switch (at) {
    case Edge::Left:
      rc.right = rc.left + bar.width;
      break;
    case Edge::Right:
      rc.left = rc.right - bar.width;
      break;
    case Edge::Bottom:
      rc.top = rc.bottom - bar.height;
      break;
    case Edge::Top:
      if (mayLift && rc.top == 0) place.Lift = kTopFrame;
      rc.bottom = rc.top + bar.height - place.Lift;
      break;
  }
  return place;
}

PixelRect BarWindow(Edge at, const BarPlace& place, PixelSize bar) noexcept {
  const PixelRect& rc = place.Reserved;
  if (IsVertical(at)) return RectAt(rc.TopLeft(), {bar.width, rc.bottom});
  return RectAt({rc.left, rc.top - place.Lift}, {rc.right, bar.height});
}

bool PointerIsOff(Edge at, PixelPoint pointer, const PixelRect& window, PixelSize screen) noexcept {
  if (!RectAt({0, 0}, screen).Contains(pointer)) return true;
  switch (at) {
    case Edge::Bottom:
      return pointer.y < window.top || pointer.y >= window.bottom;
    case Edge::Left:
      return pointer.x != window.left;
    case Edge::Right:
      return pointer.x < window.left || pointer.x >= window.right;
    case Edge::Top:
      break;
  }
  return pointer.y != window.top;
}

bool PointerReveals(Edge at, PixelPoint pointer, const PixelRect& window,
                    PixelSize screen) noexcept {
  if (!RectAt({0, 0}, screen).Contains(pointer)) return false;
  return IsVertical(at) ? pointer.x >= window.left && pointer.x < window.right
                        : pointer.y >= window.top && pointer.y < window.bottom;
}

bool IsOffEdge(Edge at, const PixelRect& window, PixelSize screen) noexcept {
  switch (at) {
    case Edge::Bottom:
      return window.bottom < screen.height;
    case Edge::Left:
      return window.left > 0;
    case Edge::Right:
      return window.right < screen.width;
    case Edge::Top:
      break;
  }
  return window.top > 0;
}

int LineThickness(Edge at, const PixelRect& window, PixelSize screen, TwipSize twips) noexcept {
  if (!IsOffEdge(at, window, screen)) return 1;
  const float pixel = IsVertical(at) ? twips.Width : twips.Height;
  return RoundToInt(static_cast<double>(kLineBesideBar / pixel));
}

TwipPoint RevealedCorner(Edge at, const TwipRect& window, int line, TwipSize twips) noexcept {
  const auto pixels = static_cast<float>(line);
  switch (at) {
    case Edge::Bottom:
      return {window.Left, window.Top - window.Height + pixels * twips.Height};
    case Edge::Left:
      return {window.Left, window.Top};
    case Edge::Right:
      return {window.Left - window.Width + pixels * twips.Width, window.Top};
    case Edge::Top:
      break;
  }
  return {window.Left, window.Top == 0 ? -kTopFrame * twips.Height : window.Top};
}

TwipSize StretchedSingles(Edge at, const TwipRect& window, const TwipRect& singles,
                          float twipsX) noexcept {
  if (IsVertical(at)) return {singles.Width, window.Height - singles.Top - 2 * twipsX};
  return {window.Width - singles.Left - 2 * twipsX, singles.Height};
}

TwipRect OutlineAt(Edge at, TwipSize button, TwipSize screen, TwipSize twips) noexcept {
  const float width = button.Width + (at == Edge::Right ? kFarFrame : kFrame) * twips.Width;
  const float height = button.Height + (at == Edge::Bottom ? kFarFrame : kFrame) * twips.Height;
  switch (at) {
    case Edge::Bottom:
      return {0, screen.Height - height, screen.Width, height};
    case Edge::Left:
      return {0, 0, width, screen.Height};
    case Edge::Right:
      return {screen.Width - width, 0, width, screen.Height};
    case Edge::Top:
      break;
  }
  return {0, 0, screen.Width, height};
}

}  // namespace corvelle
