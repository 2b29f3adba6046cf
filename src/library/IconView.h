#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "desk/AnswerDesk.h"
#include "forms/PictureBox.h"
#include "forms/ScrollBar.h"
#include "forms/Timer.h"
#include "library/CellGrid.h"
#include "library/IconCells.h"
#include "library/IconSheet.h"

namespace corvelle {

/// The cells of one tab of the library: what they show, which of them is marked and which are
/// seen. Their icons are asked for a few at a time, those in view first, so that the user can
/// scroll and pick meanwhile; one that takes its time has a picture of its kind in its place. The
/// desk, the sheet and its bar outlive it.
class IconView {
 public:
  IconView(desk::AnswerDesk& answers, forms::PictureBox& sheet, forms::ScrollBar& bar);
  ~IconView() { answers_.Drop(asked_); }
  IconView(const IconView&) = delete;
  IconView& operator=(const IconView&) = delete;

  /// The measures of cells, and the inside of the sheet in pixels.
  void SetMetrics(const CellMetrics& cell, PixelSize view);
  /// Other cells, from the top, none of them marked.
  void SetCells(std::vector<IconCell> cells);
  /// Narrows the cells to those whose name holds the text. The marked one stays marked if it stays.
  void SetFilter(std::string_view text);
  /// Asks for icons only while it is shown.
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
  /// How many cells have their icons.
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
  void AskSome();
  void Ask(std::size_t index);
  void Take(std::size_t index, const desk::Reply& reply);
  void ShowStandIn(std::size_t index);
  void RepaintCell(std::size_t index);
  void PaintCells();
  void PaintCell(Canvas& canvas, int place) const;
  void Repaint(int place);

  desk::AnswerDesk& answers_;
  forms::PictureBox& sheet_;
  forms::ScrollBar& bar_;
  forms::Timer tmrAsk_;
  std::vector<IconCell> cells_;
  std::vector<std::size_t> shown_;  // indices of the cells that the filter keeps
  std::string filter_;
  IconSheet pictures_;
  std::uint64_t asked_;        // owner of the questions
  std::vector<bool> isAsked_;  // cells
  int underWay_ = 0;           // questions
  bool late_ = false;          // the last one was waited for in vain
  CellGrid grid_;
  int marked_ = -1;           // place among `shown_`
  bool pressedCell_ = false;  // the last press was on one
  bool isShown_ = false;
};

}  // namespace corvelle
