#include "sim/SimTextBox.h"

#include "sim/SimControlPainting.h"

namespace corvelle::sim {

void SimTextBox::Tell(bool changed) {
  Changed();
  if (!changed) return;
  Window().Text = edit_.Text();
  events_.OnTextChanged();
}

void SimTextBox::SetText(std::string_view text) {
  edit_.SetText(text);
  Window().Text = edit_.Text();
  Changed();
}

void SimTextBox::Select(const forms::TextSelection& selection) {
  edit_.Select(selection);
  Changed();
}

void SimTextBox::SetBackColor(forms::OleColor colour) {
  backColor_ = colour;
  Changed();
}

void SimTextBox::SetCue(std::string_view cue) {
  cue_ = cue;
  Changed();
}

void SimTextBox::Replace(std::string_view text) { Tell(!readOnly_ && edit_.Replace(text)); }

void SimTextBox::Cut() { Tell(!readOnly_ && edit_.Cut(Desktop().Clipboard())); }

void SimTextBox::Paste() { Tell(!readOnly_ && edit_.Paste(Desktop().Clipboard())); }

void SimTextBox::Undo() { Tell(!readOnly_ && edit_.Undo()); }

void SimTextBox::Press(forms::MouseButton button, forms::ShiftState shift, PixelPoint at,
                       bool /*second*/) {
  if (button != forms::MouseButton::Left) return;
  const int width = TextSize("x", {{}, Window().Dpi}).width;
  edit_.SetCaret((at.x - 3 + width / 2) / width, shift.Shift);
  Changed();
}

void SimTextBox::Key(int keyCode, forms::ShiftState shift) {
  const bool edits = keyCode == forms::key::Delete || (shift.Ctrl && keyCode != 'C');
  if (readOnly_ && edits) return;
  Tell(edit_.Key(keyCode, shift, Desktop().Clipboard()));
}

void SimTextBox::Character(char32_t character) {
  if (readOnly_) return;
  if (style_.ManyLines && character == 13) return Tell(edit_.Replace("\r\n"));
  Tell(edit_.Character(character));
}

void SimTextBox::Paint(SimCanvas& canvas, const SimWindow& window, bool focused) const {
  const PixelSize size = window.Bounds.Size();
  canvas.FillBox({0, 0, size.width, size.height}, Resolve(Desktop(), backColor_));
  const std::string text = edit_.Text();
  const bool cue = text.empty() && !focused;
  canvas.DrawString({3, 3}, cue ? cue_ : text, {{}, window.Dpi},
                    Desktop().SystemColor(window.Enabled && !cue ? 8 : 17));
  if (style_.Border) PaintEdge(Desktop(), canvas, {0, 0, size.width, size.height}, false);
}

}  // namespace corvelle::sim
