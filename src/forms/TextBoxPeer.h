#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "forms/WindowSystem.h"

namespace corvelle::forms {

/// A part of a text by its characters, counted as UTF-16 counts them, as the system does.
struct TextSelection {
  int Start = 0;
  int Length = 0;

  friend bool operator==(const TextSelection&, const TextSelection&) = default;
};

struct TextBoxStyle {
  bool ManyLines = false;  // Enter begins a line
  bool Border = true;
};

class TextBoxEvents {
 public:
  virtual ~TextBoxEvents() = default;

  /// The user changed the text: typed, deleted, cut, pasted or undid. Not told for SetText.
  virtual void OnTextChanged() = 0;
};

/// The window of a text box. Cutting, pasting, undoing and replacing are what the user does, and
/// are told; they do nothing when the box is read-only.
class TextBoxPeer : public WindowPeer {
 public:
  virtual void SetText(std::string_view text) = 0;
  [[nodiscard]] virtual std::string Text() const = 0;
  /// What does not fit is cut off.
  virtual void Select(const TextSelection& selection) = 0;
  [[nodiscard]] virtual TextSelection Selection() const = 0;
  /// The most characters that can be typed; 0 for the system's own limit.
  virtual void SetLimit(int characters) = 0;
  virtual void SetReadOnly(bool readOnly) = 0;
  virtual void SetBackColor(OleColor colour) = 0;
  /// Shown in gray while the box is empty and has no focus.
  virtual void SetCue(std::string_view cue) = 0;
  virtual void Replace(std::string_view text) = 0;
  virtual void Cut() = 0;
  virtual void Copy() = 0;
  virtual void Paste() = 0;
  virtual void Undo() = 0;
};

}  // namespace corvelle::forms
