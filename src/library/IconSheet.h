#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/Canvas.h"
#include "platform/IconPixels.h"

namespace corvelle {

namespace forms {
class WindowSystem;
}

/// The pictures of cells, each kept once it is there; no icon of the system is. Many share one
/// bitmap, so that thousands take a few objects of the system.
class IconSheet {
 public:
  explicit IconSheet(forms::WindowSystem& windows) : windows_(windows) {}

  /// Forgets all pictures. From now on there are `count` cells with icons of `side` pixels on a
  /// ground of that colour.
  void Start(std::size_t count, int side, Rgb ground);

  /// True for a cell that has its icon; one that has none is empty, and counts too.
  [[nodiscard]] bool IsDrawn(std::size_t index) const { return cells_[index] == Cell::Drawn; }
  /// True for a cell that has its icon, or a picture in its place.
  [[nodiscard]] bool HasPicture(std::size_t index) const { return cells_[index] != Cell::Empty; }
  /// Draws the icon of a cell: pixels, `side` by `side`, or none.
  void Draw(std::size_t index, const IconPixels& icon);
  /// Draws a picture of the program (see Glyphs) in the place of an icon.
  void DrawStandIn(std::size_t index, std::string_view glyph);
  /// Copies the picture of a cell that has one.
  void Show(std::size_t index, Canvas& target, PixelPoint at) const;

  /// Bitmaps that hold the pictures.
  [[nodiscard]] std::size_t Bitmaps() const noexcept;

 private:
  enum class Cell { Empty, StandIn, Drawn };

  [[nodiscard]] PixelRect PlaceOf(std::size_t index) const noexcept;
  /// The bitmap of a cell, with the place of the cell cleared.
  [[nodiscard]] Canvas& Clear(std::size_t index);

  forms::WindowSystem& windows_;
  int side_ = 32;
  Rgb ground_ = 0;
  std::vector<Cell> cells_;
  std::vector<std::unique_ptr<Canvas>> bitmaps_;
};

}  // namespace corvelle
