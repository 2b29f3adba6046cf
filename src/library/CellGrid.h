#pragma once

#include "base/Geometry.h"

namespace corvelle {

// Where the cells of a view stand and how it scrolls. All measures are pixels, rows count from 0.

/// Measures of one cell.
struct CellMetrics {
  int Icon = 32;         // side of the icon
  int LabelWidth = 56;   // room for a caption
  int LabelHeight = 13;  // one line of it
  int MarginX = 12;      // beside and between cells
  int MarginY = 15;      // above, below and between them

  [[nodiscard]] constexpr int Width() const noexcept {
    return (Icon > LabelWidth ? Icon : LabelWidth) + MarginX;
  }
  [[nodiscard]] constexpr int Height() const noexcept { return Icon + LabelHeight + MarginY; }

  friend bool operator==(const CellMetrics&, const CellMetrics&) = default;
};

/// The measures on a screen of so many twips a pixel, with captions of that size. Icons grow by
/// steps (32, 48, 64...) so that they stay as crisp as they are drawn.
[[nodiscard]] CellMetrics CellMetricsAt(float twipsPerPixel, PixelSize label) noexcept;

/// A view of cells in rows.
struct CellGrid {
  CellMetrics Cell;
  PixelSize View{500, 320};
  int Count = 0;
  int TopRow = 0;  // the first row that is seen

  [[nodiscard]] int Columns() const noexcept;  // at least 1
  [[nodiscard]] int Rows() const noexcept;
  /// Rows that fit into the view whole, at least 1.
  [[nodiscard]] int WholeRows() const noexcept;
  /// The largest row that may be the top one: the rows that do not fit.
  [[nodiscard]] int MostTopRow() const noexcept;

  /// The cell in the view; it may lie outside.
  [[nodiscard]] PixelRect CellAt(int index) const noexcept;
  [[nodiscard]] PixelRect IconOf(int index) const noexcept;
  [[nodiscard]] PixelRect LabelOf(int index) const noexcept;
  /// The cell with that point of the view; -1 between, beside and behind the cells.
  [[nodiscard]] int IndexAt(PixelPoint at) const noexcept;

  /// Cells of which something is seen: from First up to, not with, End.
  struct Range {
    int First = 0;
    int End = 0;
    friend bool operator==(const Range&, const Range&) = default;
  };
  [[nodiscard]] Range Seen() const noexcept;

  /// The top row that shows the cell whole, as near to the present one as can be.
  [[nodiscard]] int TopRowToShow(int index) const noexcept;

  friend bool operator==(const CellGrid&, const CellGrid&) = default;
};

/// The cell to which a key goes from `current` (-1: none yet): the arrows, Home, End, PageUp and
/// PageDown. `current` itself where it does not go on, and for any other key.
[[nodiscard]] int CellByKey(const CellGrid& grid, int current, int keyCode) noexcept;

/// The cell to be drawn next: the first undrawn one that is seen, else the first of all; -1 when
/// all are drawn. `drawn(i)` tells of each.
template <class Drawn>
[[nodiscard]] int NextToDraw(const CellGrid& grid, const Drawn& drawn) {
  const CellGrid::Range seen = grid.Seen();
  for (int i = seen.First; i < seen.End; ++i) {
    if (!drawn(i)) return i;
  }
  for (int i = 0; i < grid.Count; ++i) {
    if (!drawn(i)) return i;
  }
  return -1;
}

}  // namespace corvelle
