#include "sim/SimComboBox.h"

#include <algorithm>

#include "base/Text.h"
#include "base/Utf8.h"
#include "sim/SimControlPainting.h"

namespace corvelle::sim {

void SimComboBox::Insert(int at, std::string_view text) {
  rows_.insert(rows_.begin() + at, std::string(text));
}

void SimComboBox::Remove(int at) { rows_.erase(rows_.begin() + at); }

void SimComboBox::Clear() {
  rows_.clear();
  Select(-1);
}

void SimComboBox::Select(int row) {
  selected_ = row;
  edit_.SetText(row >= 0 ? rows_[static_cast<std::size_t>(row)] : std::string());
  Window().Text = edit_.Text();
  Changed();
}

void SimComboBox::SetText(std::string_view text) {
  selected_ = -1;
  edit_.SetText(text);
  Window().Text = edit_.Text();
  Changed();
}

void SimComboBox::SelectText() { edit_.Select({0, 1 << 20}); }

void SimComboBox::Drop(bool down) {
  if (down == dropped_) return;
  dropped_ = down;
  Changed();
  events_.OnDropped(down);
}

void SimComboBox::Choose(int row) {
  if (rows_.empty() || row == selected_) return;
  Select(std::clamp(row, 0, Count() - 1));
  events_.OnChosen();
}

void SimComboBox::TellEdit(bool changed) {
  Changed();
  if (!changed) return;
  selected_ = -1;
  Window().Text = edit_.Text();
  events_.OnEntryChanged();
}

void SimComboBox::Press(forms::MouseButton button, forms::ShiftState /*shift*/, PixelPoint at,
                        bool /*second*/) {
  const PixelSize size = Window().Bounds.Size();
  const bool arrow = at.x >= size.width - size.height;
  if (button == forms::MouseButton::Left && (arrow || !withEntry_)) Drop(!dropped_);
}

void SimComboBox::Key(int keyCode, forms::ShiftState shift) {
  using namespace forms;
  switch (keyCode) {
    case key::Up:
      return Choose(std::max(selected_ - 1, 0));
    case key::Down:
      return Choose(selected_ + 1 < Count() ? selected_ + 1 : selected_);
    case key::Enter:
    case key::Escape:
      return Drop(false);
    default:
      break;
  }
  if (withEntry_) TellEdit(edit_.Key(keyCode, shift, Desktop().Clipboard()));
}

void SimComboBox::Character(char32_t character) {
  if (withEntry_) return TellEdit(edit_.Character(character));
  for (int away = 1; away <= Count(); ++away) {
    const int row = (selected_ + away) % Count();
    const Utf8Step first = NextCharacter(rows_[static_cast<std::size_t>(row)], 0);
    if (UpperCharacter(first.Character) == UpperCharacter(character)) return Choose(row);
  }
}

void SimComboBox::Focus(bool gained) {
  if (!gained) Drop(false);
}

void SimComboBox::Paint(SimCanvas& canvas, const SimWindow& window, bool /*focused*/) const {
  const PixelSize size = window.Bounds.Size();
  canvas.FillBox({0, 0, size.width, size.height}, Desktop().SystemColor(5));
  canvas.DrawString({4, 3}, edit_.Text(), {{}, window.Dpi},
                    Desktop().SystemColor(window.Enabled ? 8 : 17));
  PaintEdge(Desktop(), canvas, {0, 0, size.width, size.height}, false);
  const PixelRect arrow{size.width - size.height, 1, size.width - 1, size.height - 1};
  canvas.FillBox(arrow, Desktop().SystemColor(15));
  PaintEdge(Desktop(), canvas, arrow, !dropped_);
}

}  // namespace corvelle::sim
