#include "library/CellGrid.h"

#include <algorithm>

#include "forms/Types.h"

namespace corvelle {

namespace {

constexpr float kTwipsAt96 = 15;
constexpr int kIcon = 32;
constexpr int kMarginX = 12;
constexpr int kMarginY = 15;

int Scaled(int pixels, float scale) noexcept {
  return static_cast<int>(static_cast<float>(pixels) * scale + 0.5F);
}

int CellUp(const CellGrid& grid, int current, int rows) noexcept {
  const int columns = grid.Columns();
  const int possible = std::min(rows, current / columns);
  return current - possible * columns;
}

// Into the last row also where that is too short: to its last cell.
int CellDown(const CellGrid& grid, int current, int rows) noexcept {
  const int columns = grid.Columns();
  const int possible = std::min(rows, grid.Rows() - 1 - current / columns);
  return std::min(current + possible * columns, grid.Count - 1);
}

}  // namespace

CellMetrics CellMetricsAt(float twipsPerPixel, PixelSize label) noexcept {
  const float scale = kTwipsAt96 / twipsPerPixel;
  // Half steps, rounded down.
  const int halves = std::max(2, static_cast<int>(scale * 2));
  return {.Icon = kIcon * halves / 2,
          .LabelWidth = label.width,
          .LabelHeight = label.height,
          .MarginX = Scaled(kMarginX, scale),
          .MarginY = Scaled(kMarginY, scale)};
}

int CellGrid::Columns() const noexcept {
  return std::max(1, (View.width - Cell.MarginX) / Cell.Width());
}

int CellGrid::Rows() const noexcept { return (Count + Columns() - 1) / Columns(); }

int CellGrid::WholeRows() const noexcept {
  return std::max(1, (View.height - Cell.MarginY) / Cell.Height());
}

int CellGrid::MostTopRow() const noexcept { return std::max(0, Rows() - WholeRows()); }

PixelRect CellGrid::CellAt(int index) const noexcept {
  const int column = index % Columns();
  const int row = index / Columns() - TopRow;
  const PixelPoint at{Cell.MarginX + column * Cell.Width(), Cell.MarginY + row * Cell.Height()};
  return RectAt(at, {Cell.Width() - Cell.MarginX, Cell.Height() - Cell.MarginY});
}

PixelRect CellGrid::IconOf(int index) const noexcept {
  const PixelRect cell = CellAt(index);
  const int left = cell.left + (cell.Width() - Cell.Icon) / 2;
  return RectAt({left, cell.top}, {Cell.Icon, Cell.Icon});
}

PixelRect CellGrid::LabelOf(int index) const noexcept {
  PixelRect cell = CellAt(index);
  cell.top += Cell.Icon;
  return cell;
}

int CellGrid::IndexAt(PixelPoint at) const noexcept {
  const int column = (at.x - Cell.MarginX) / Cell.Width();
  const int row = (at.y - Cell.MarginY) / Cell.Height();
  if (column < 0 || column >= Columns() || row < 0) return -1;
  const int index = (TopRow + row) * Columns() + column;
  return index < Count && CellAt(index).Contains(at) ? index : -1;
}

CellGrid::Range CellGrid::Seen() const noexcept {
  const int rows = (View.height - Cell.MarginY + Cell.Height() - 1) / Cell.Height();
  const int first = std::min(TopRow * Columns(), Count);
  return {first, std::clamp((TopRow + rows) * Columns(), first, Count)};
}

int CellGrid::TopRowToShow(int index) const noexcept {
  const int row = index / Columns();
  if (row < TopRow) return row;
  return std::max(TopRow, row - WholeRows() + 1);
}

int CellByKey(const CellGrid& grid, int current, int keyCode) noexcept {
  using namespace forms;
  if (grid.Count == 0) return -1;
  const bool moves = keyCode >= key::PageUp && keyCode <= key::Down;
  if (!moves) return current;
  if (keyCode == key::Home) return 0;
  if (keyCode == key::End) return grid.Count - 1;
  // The first key only comes to where one starts.
  if (current < 0) return std::min(grid.TopRow * grid.Columns(), grid.Count - 1);
  switch (keyCode) {
    case key::Left:
      return std::max(0, current - 1);
    case key::Right:
      return std::min(grid.Count - 1, current + 1);
    case key::Up:
      return CellUp(grid, current, 1);
    case key::Down:
      return CellDown(grid, current, 1);
    case key::PageUp:
      return CellUp(grid, current, grid.WholeRows());
    default:
      return CellDown(grid, current, grid.WholeRows());
  }
}

}  // namespace corvelle
