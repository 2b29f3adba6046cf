#include "forms/TextBox.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/Utf8.h"
#include "forms/ControlMaker.h"

namespace corvelle::forms {

void TextBox::SetText(std::string text) {
  text_ = std::move(text);
  if (Own() == nullptr) return;
  Own()->SetText(text_);
  // As the system holds it.
  text_ = Own()->Text();
}

TextSelection TextBox::Selection() const {
  return Own() != nullptr ? Own()->Selection() : TextSelection{};
}

void TextBox::Select(const TextSelection& selection) {
  if (Own() != nullptr) Own()->Select(selection);
}

void TextBox::SelectAll() { Select({0, std::numeric_limits<int>::max() / 2}); }

void TextBox::SetLimit(int characters) {
  limit_ = characters;
  if (Own() != nullptr) Own()->SetLimit(limit_);
}

void TextBox::SetReadOnly(bool readOnly) {
  readOnly_ = readOnly;
  if (Own() != nullptr) Own()->SetReadOnly(readOnly_);
}

void TextBox::SetBackColor(OleColor colour) {
  backColor_ = colour;
  if (Own() != nullptr) Own()->SetBackColor(backColor_);
}

void TextBox::SetCue(std::string cue) {
  cue_ = std::move(cue);
  if (Own() != nullptr) Own()->SetCue(cue_);
}

void TextBox::Cut() {
  if (Own() != nullptr) Own()->Cut();
}

void TextBox::Copy() {
  if (Own() != nullptr) Own()->Copy();
}

void TextBox::Paste() {
  if (Own() != nullptr) Own()->Paste();
}

void TextBox::Undo() {
  if (Own() != nullptr) Own()->Undo();
}

std::unique_ptr<WindowPeer> TextBox::NewPeer(WindowPeer* parent) {
  return Windows().Controls().CreateTextBox(SpecIn(parent), style_, *this, *this);
}

void TextBox::PeerMade() {
  Own()->SetLimit(limit_);
  Own()->SetReadOnly(readOnly_);
  Own()->SetBackColor(backColor_);
  Own()->SetCue(cue_);
  Own()->SetText(text_);
}

KeyFacts TextBox::Keys() const {
  return {.Wants = {.Arrows = true,
                    .Paging = true,
                    .Editing = true,
                    .Typing = true,
                    .Enter = style_.ManyLines,
                    .Tab = style_.ManyLines && !readOnly_}};
}

void TextBox::OnTextChanged() {
  // The system may tell one change twice.
  std::string now = Own()->Text();
  if (now == text_) return;
  text_ = std::move(now);
  const std::function<void()> change = Change;
  if (change) change();
}

bool TextBox::OnControlKey(int keyCode, ShiftState shift) {
  return SystemControl::OnControlKey(keyCode, shift) || EditingKey(keyCode, shift);
}

// What the system's own boxes do not all know.
bool TextBox::EditingKey(int keyCode, ShiftState shift) {
  if (!shift.Ctrl || shift.Alt || Own() == nullptr) return false;
  if (keyCode == 'A') {
    SelectAll();
    return true;
  }
  if (keyCode != key::Backspace || readOnly_) return false;
  DeleteWord();
  return true;
}

void TextBox::DeleteWord() {
  const TextSelection selected = Own()->Selection();
  if (selected.Length == 0) {
    const int start = WordStart(text_, selected.Start);
    if (start == selected.Start) return;
    Own()->Select({start, selected.Start - start});
  }
  Own()->Replace("");
}

int WordStart(std::string_view text, int position) {
  const std::u16string units = ToWide(text);
  const auto blank = [&](int at) { return units[static_cast<std::size_t>(at)] <= u' '; };
  int start = std::min(position, static_cast<int>(units.size()));
  while (start > 0 && blank(start - 1)) --start;
  while (start > 0 && !blank(start - 1)) --start;
  return start;
}

}  // namespace corvelle::forms
