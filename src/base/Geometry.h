#pragma once

#include <algorithm>

namespace corvelle {

/// A point in whole pixels.
struct PixelPoint {
  int x = 0;
  int y = 0;

  friend constexpr bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

/// A size in whole pixels.
struct PixelSize {
  int width = 0;
  int height = 0;

  friend constexpr bool operator==(const PixelSize&, const PixelSize&) = default;
};

/// A rectangle in whole pixels; its right and bottom sides do not belong to it.
struct PixelRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  [[nodiscard]] constexpr int Width() const noexcept { return right - left; }
  [[nodiscard]] constexpr int Height() const noexcept { return bottom - top; }
  [[nodiscard]] constexpr PixelSize Size() const noexcept { return {Width(), Height()}; }
  [[nodiscard]] constexpr PixelPoint TopLeft() const noexcept { return {left, top}; }

  /// True if it holds no pixel.
  [[nodiscard]] constexpr bool IsEmpty() const noexcept { return right <= left || bottom <= top; }

  [[nodiscard]] constexpr bool Contains(PixelPoint at) const noexcept {
    return at.x >= left && at.x < right && at.y >= top && at.y < bottom;
  }

  friend constexpr bool operator==(const PixelRect&, const PixelRect&) = default;
};

/// The rectangle of a size at a place.
[[nodiscard]] constexpr PixelRect RectAt(PixelPoint at, PixelSize size) noexcept {
  return {at.x, at.y, at.x + size.width, at.y + size.height};
}

/// What two rectangles have in common; all zero when that is nothing.
[[nodiscard]] constexpr PixelRect Intersect(const PixelRect& a, const PixelRect& b) noexcept {
  const PixelRect common{std::max(a.left, b.left), std::max(a.top, b.top),
                         std::min(a.right, b.right), std::min(a.bottom, b.bottom)};
  return common.IsEmpty() ? PixelRect{} : common;
}

/// The smallest rectangle around both; an empty one counts for nothing.
[[nodiscard]] constexpr PixelRect Union(const PixelRect& a, const PixelRect& b) noexcept {
  if (a.IsEmpty()) return b.IsEmpty() ? PixelRect{} : b;
  if (b.IsEmpty()) return a;
  return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
          std::max(a.bottom, b.bottom)};
}

}  // namespace corvelle
