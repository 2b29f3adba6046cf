#pragma once

#include "base/Geometry.h"
#include "library/CellGrid.h"

namespace corvelle {

/// What the layout of the library's window depends on, in pixels.
struct LibraryScene {
  CellMetrics Cell;
  int Columns = 6;
  int Rows = 5;
  float TwipsPerPixel = 15;
  int TabHeight = 22;   // of the row of tabs
  int BoxHeight = 21;   // of a text box with one line
  int BarWidth = 17;    // of a scroll bar
  int BorderWidth = 1;  // of the frame around the cells

  friend bool operator==(const LibraryScene&, const LibraryScene&) = default;
};

/// Places in the inside of the window, pixels. The lists of both tabs have one place, and so have
/// their cells.
struct LibraryLayout {
  PixelRect Tabs;
  PixelRect List;
  PixelRect Filter;
  PixelRect Frame;  // around the cells, its border included
  PixelSize Cells;  // inside of it
  PixelRect Bar;
  PixelRect Add;
  PixelRect Remove;
  PixelRect Refresh;
  PixelRect Ok;
  PixelRect Cancel;
  PixelSize Inside;

  friend bool operator==(const LibraryLayout&, const LibraryLayout&) = default;
};

[[nodiscard]] LibraryLayout LayOutLibrary(const LibraryScene& scene) noexcept;

}  // namespace corvelle
