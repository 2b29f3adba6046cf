#pragma once

#include <string>
#include <string_view>

#include "forms/TextBoxPeer.h"

namespace corvelle::sim {

/// A text that is being edited: what the system's edit windows do with keys and characters, one
/// step of undo included. Positions count as UTF-16 does.
class SimTextEdit {
 public:
  [[nodiscard]] std::string Text() const;
  /// The whole text, with the caret at its beginning and nothing to undo.
  void SetText(std::string_view text);
  [[nodiscard]] forms::TextSelection Selection() const;
  void Select(const forms::TextSelection& selection);
  void SetLimit(int characters) { limit_ = characters; }

  // Each returns whether the text has changed.
  bool Replace(std::string_view text);
  bool Undo();
  bool Cut(std::string& clipboard);
  void Copy(std::string& clipboard) const;
  bool Paste(const std::string& clipboard) { return Replace(clipboard); }
  bool Key(int keyCode, forms::ShiftState shift, std::string& clipboard);
  bool Character(char32_t character);
  /// Moves the caret without a key that does.
  void SetCaret(int position, bool extend = false);

 private:
  [[nodiscard]] int Low() const noexcept { return anchor_ < caret_ ? anchor_ : caret_; }
  [[nodiscard]] int High() const noexcept { return anchor_ < caret_ ? caret_ : anchor_; }
  bool Put(const std::u16string& what);
  bool Delete(int from, int to);

  std::u16string text_;
  std::u16string before_;  // what Undo brings back
  int anchor_ = 0;
  int caret_ = 0;
  int limit_ = 0;
};

}  // namespace corvelle::sim
