#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/PictureBox.h"
#include "forms/ScrollBar.h"
#include "forms/Timer.h"
#include "library/CellGrid.h"
#include "library/IconCells.h"
#include "library/IconSheet.h"

namespace corvelle {

class ShellIcons;

/// The cells of one tab of the library: what they show, which of them is marked and which are
/// seen. Their icons are drawn a few at a time, those in view first, so that the user can scroll
/// and pick meanwhile. The sheet and its bar outlive it.
class IconView {
 public:
  IconView(ShellIcons& icons, forms::PictureBox& sheet, forms::ScrollBar& bar);

  /// The measures of cells, and the inside of the sheet in pixels.
  void SetMetrics(const CellMetrics& cell, PixelSize view);
  /// Other cells, from the top, none of them marked.
  void SetCells(std::vector<IconCell> cells);
  /// Narrows the cells to those whose name holds the text. The marked one stays marked if it stays.
  void SetFilter(std::string_view text);
  /// Draws only while it is shown.
  void SetShown(bool shown);
  /// Forgets the cells and their pictures.
  void Clear() { SetCells({}); }

  /// The cell that is marked; null for none.
  [[nodiscard]] const IconCell* Marked() const;
  /// Marks a cell by its place among those that are shown and brings it into view; -1 for none.
  void Mark(int place);
  [[nodiscard]] int MarkedPlace() const noexcept { return marked_; }
  /// Names of the cells that are shown, in their order.
  [[nodiscard]] std::vector<std::string> Captions() const;
  /// How many cells have their pictures.
  [[nodiscard]] std::size_t DrawnCount() const;
  [[nodiscard]] const CellGrid& Grid() const noexcept { return grid_; }
  [[nodiscard]] const IconSheet& Pictures() const noexcept { return pictures_; }

  /// A cell was double-clicked.
  std::function<void()> Chosen;

 private:
  void Wire();
  void ShowCells(int marked);
  void UpdateBar();
  void Scrolled();
  void Press(float x, float y);
  [[nodiscard]] bool OnKey(int keyCode);
  [[nodiscard]] bool OnCharacter(char32_t character);
  void DrawSome();
  void PaintCells();
  void PaintCell(Canvas& canvas, int place) const;
  void Repaint(int place);

  forms::PictureBox& sheet_;
  forms::ScrollBar& bar_;
  forms::Timer tmrDraw_;
  std::vector<IconCell> cells_;
  std::vector<std::size_t> shown_;  // indices of the cells that the filter keeps
  std::string filter_;
  IconSheet pictures_;
  CellGrid grid_;
  int marked_ = -1;           // place among `shown_`
  bool pressedCell_ = false;  // the last press was on one
  bool isShown_ = false;
};

}  // namespace corvelle
