#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "library/IconCells.h"
#include "platform/Canvas.h"

namespace corvelle {

class ShellIcons;
namespace forms {
class WindowSystem;
}

/// The pictures of cells, drawn one by one and kept; no icon of the system is. Many share one
/// bitmap, so that thousands take a few objects of the system.
class IconSheet {
 public:
  IconSheet(forms::WindowSystem& windows, ShellIcons& icons) : windows_(windows), icons_(icons) {}

  /// Forgets all pictures. From now on there are `count` cells with icons of `side` pixels on a
  /// ground of that colour.
  void Start(std::size_t count, int side, Rgb ground);

  [[nodiscard]] bool IsDrawn(std::size_t index) const { return drawn_[index]; }
  /// Draws the icon of a cell. One that cannot be read leaves the cell empty, and counts as drawn.
  void Draw(std::size_t index, const IconCell& cell);
  /// Copies the picture of a cell that is drawn.
  void Show(std::size_t index, Canvas& target, PixelPoint at) const;

  /// Bitmaps that hold the pictures.
  [[nodiscard]] std::size_t Bitmaps() const noexcept;

 private:
  [[nodiscard]] PixelRect PlaceOf(std::size_t index) const noexcept;

  forms::WindowSystem& windows_;
  ShellIcons& icons_;
  int side_ = 32;
  Rgb ground_ = 0;
  std::vector<bool> drawn_;
  std::vector<std::unique_ptr<Canvas>> bitmaps_;
};

}  // namespace corvelle
