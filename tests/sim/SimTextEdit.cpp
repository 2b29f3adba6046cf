#include "sim/SimTextEdit.h"

#include <algorithm>

#include "base/Utf8.h"

namespace corvelle::sim {

std::string SimTextEdit::Text() const { return FromWide(text_); }

void SimTextEdit::SetText(std::string_view text) {
  text_ = ToWide(text);
  before_ = text_;
  anchor_ = caret_ = 0;
}

forms::TextSelection SimTextEdit::Selection() const { return {Low(), High() - Low()}; }

void SimTextEdit::Select(const forms::TextSelection& selection) {
  const int size = static_cast<int>(text_.size());
  anchor_ = std::clamp(selection.Start, 0, size);
  caret_ = std::clamp(selection.Start + selection.Length, 0, size);
}

void SimTextEdit::SetCaret(int position, bool extend) {
  caret_ = std::clamp(position, 0, static_cast<int>(text_.size()));
  if (!extend) anchor_ = caret_;
}

bool SimTextEdit::Put(const std::u16string& what) {
  std::u16string text = text_;
  const int low = Low();
  text.replace(static_cast<std::size_t>(low), static_cast<std::size_t>(High() - low), what);
  if (limit_ > 0 && text.size() > static_cast<std::size_t>(limit_) && text.size() > text_.size()) {
    return false;
  }
  if (text == text_) return false;
  before_ = text_;
  text_ = std::move(text);
  SetCaret(low + static_cast<int>(what.size()));
  return true;
}

bool SimTextEdit::Replace(std::string_view text) { return Put(ToWide(text)); }

bool SimTextEdit::Delete(int from, int to) {
  if (Low() == High()) {
    anchor_ = std::clamp(from, 0, static_cast<int>(text_.size()));
    caret_ = std::clamp(to, 0, static_cast<int>(text_.size()));
  }
  return Put({});
}

bool SimTextEdit::Undo() {
  if (before_ == text_) return false;
  std::swap(before_, text_);
  SetCaret(static_cast<int>(text_.size()));
  return true;
}

void SimTextEdit::Copy(std::string& clipboard) const {
  if (Low() == High()) return;
  clipboard = FromWide(std::u16string_view(text_).substr(static_cast<std::size_t>(Low()),
                                                         static_cast<std::size_t>(High() - Low())));
}

bool SimTextEdit::Cut(std::string& clipboard) {
  if (Low() == High()) return false;
  Copy(clipboard);
  return Put({});
}

bool SimTextEdit::Key(int keyCode, forms::ShiftState shift, std::string& clipboard) {
  using namespace forms;
  if (shift.Alt) return false;
  if (shift.Ctrl) {
    switch (keyCode) {
      case 'C':
        Copy(clipboard);
        return false;
      case 'X':
        return Cut(clipboard);
      case 'V':
        return Paste(clipboard);
      case 'Z':
        return Undo();
      default:
        return false;
    }
  }
  switch (keyCode) {
    case key::Left:
      SetCaret(caret_ - 1, shift.Shift);
      return false;
    case key::Right:
      SetCaret(caret_ + 1, shift.Shift);
      return false;
    case key::Home:
      SetCaret(0, shift.Shift);
      return false;
    case key::End:
      SetCaret(static_cast<int>(text_.size()), shift.Shift);
      return false;
    case key::Delete:
      return Delete(caret_, caret_ + 1);
    default:
      return false;
  }
}

bool SimTextEdit::Character(char32_t character) {
  if (character == static_cast<char32_t>(forms::key::Backspace)) return Delete(caret_ - 1, caret_);
  if (character < U' ') return false;
  std::string typed;
  AppendUtf8(typed, character);
  return Replace(typed);
}

}  // namespace corvelle::sim
