#include "sim/SimListBox.h"

#include <algorithm>

#include "base/Text.h"
#include "base/Utf8.h"
#include "sim/SimControlPainting.h"

namespace corvelle::sim {

namespace {

constexpr int kEdge = 2;

}  // namespace

void SimListBox::Insert(int at, std::string_view text) {
  rows_.insert(rows_.begin() + at, std::string(text));
  Changed();
}

void SimListBox::Remove(int at) {
  rows_.erase(rows_.begin() + at);
  Changed();
}

void SimListBox::Clear() {
  rows_.clear();
  selected_ = -1;
  top_ = 0;
  Changed();
}

int SimListBox::RowsSeen() const {
  return std::max((Window().Bounds.Height() - 2 * kEdge) / kRowHeight, 1);
}

void SimListBox::Select(int row) {
  selected_ = row;
  if (row >= 0 && row < top_) top_ = row;
  if (row >= top_ + RowsSeen()) top_ = row - RowsSeen() + 1;
  Changed();
}

void SimListBox::SetTopRow(int row) {
  top_ = std::clamp(row, 0, std::max(Count() - RowsSeen(), 0));
  Changed();
}

int SimListBox::RowAt(PixelPoint at) const {
  const PixelSize size = Window().Bounds.Size();
  if (!PixelRect{kEdge, kEdge, size.width - kEdge, size.height - kEdge}.Contains(at)) return -1;
  const int row = top_ + (at.y - kEdge) / kRowHeight;
  return row < Count() ? row : -1;
}

void SimListBox::Choose(int row) {
  if (row == selected_) return;
  Select(row);
  events_.OnRowChosen();
}

void SimListBox::Press(forms::MouseButton button, forms::ShiftState /*shift*/, PixelPoint at,
                       bool second) {
  const int row = RowAt(at);
  if (button != forms::MouseButton::Left || row < 0) return;
  if (second && row == selected_) return events_.OnRowActivated();
  Choose(row);
}

void SimListBox::Key(int keyCode, forms::ShiftState /*shift*/) {
  using namespace forms;
  if (rows_.empty()) return;
  const auto to = [this](int row) { Choose(std::clamp(row, 0, Count() - 1)); };
  switch (keyCode) {
    case key::Up:
      return to(selected_ - 1);
    case key::Down:
      return to(selected_ + 1);
    case key::PageUp:
      return to(selected_ - RowsSeen());
    case key::PageDown:
      return to(selected_ + RowsSeen());
    case key::Home:
      return to(0);
    case key::End:
      return to(Count() - 1);
    default:
      return;
  }
}

// A letter goes to the next row that begins with it.
void SimListBox::Character(char32_t character) {
  for (int away = 1; away <= Count(); ++away) {
    const int row = (selected_ + away) % Count();
    const Utf8Step first = NextCharacter(rows_[static_cast<std::size_t>(row)], 0);
    if (UpperCharacter(first.Character) == UpperCharacter(character)) return Choose(row);
  }
}

bool SimListBox::Wheel(int delta) {
  SetTopRow(top_ - 3 * delta / 120);
  return true;
}

void SimListBox::Paint(SimCanvas& canvas, const SimWindow& window, bool /*focused*/) const {
  const PixelSize size = window.Bounds.Size();
  canvas.FillBox({0, 0, size.width, size.height}, Desktop().SystemColor(5));
  for (int row = top_; row < Count() && row <= top_ + RowsSeen(); ++row) {
    const int top = kEdge + (row - top_) * kRowHeight;
    if (row == selected_) {
      canvas.FillBox({kEdge, top, size.width - kEdge, top + kRowHeight}, Desktop().SystemColor(13));
    }
    canvas.DrawString({kEdge + 2, top + 2}, rows_[static_cast<std::size_t>(row)], {{}, window.Dpi},
                      Desktop().SystemColor(!window.Enabled    ? 17
                                            : row == selected_ ? 14
                                                               : 8));
  }
  PaintEdge(Desktop(), canvas, {0, 0, size.width, size.height}, false);
}

}  // namespace corvelle::sim
