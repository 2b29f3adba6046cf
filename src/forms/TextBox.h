#pragma once

#include <functional>
#include <string>

#include "forms/SystemControl.h"
#include "forms/TextBoxPeer.h"

namespace corvelle::forms {

/// A box in which the user types. Ctrl with A, C, V, X and Z are its own, Ctrl+Backspace deletes to
/// the beginning of a word, and the Tab key selects all when it comes in.
class TextBox final : public SystemControl, private TextBoxEvents {
 public:
  TextBox(Window& container, std::string name, const TextBoxStyle& style = {})
      : SystemControl(container, std::move(name)), style_(style) {}

  [[nodiscard]] const std::string& Text() const noexcept { return text_; }
  /// Selects nothing and tells nothing.
  void SetText(std::string text);
  /// Nothing while the form is not loaded.
  [[nodiscard]] TextSelection Selection() const;
  void Select(const TextSelection& selection);
  void SelectAll();
  /// The most characters that can be typed; 0 for the system's own limit.
  void SetLimit(int characters);
  void SetReadOnly(bool readOnly);
  [[nodiscard]] OleColor BackColor() const noexcept { return backColor_; }
  void SetBackColor(OleColor colour);
  void SetCue(std::string cue);
  void Cut();
  void Copy();
  void Paste();
  void Undo();

  /// The user changed the text.
  std::function<void()> Change;

 protected:
  std::unique_ptr<WindowPeer> NewPeer(WindowPeer* parent) override;
  void PeerMade() override;
  KeyFacts Keys() const override;
  bool OnControlKey(int keyCode, ShiftState shift) override;
  void TabbedInto() override { SelectAll(); }

 private:
  [[nodiscard]] TextBoxPeer* Own() const noexcept { return static_cast<TextBoxPeer*>(Peer()); }
  void OnTextChanged() override;
  bool EditingKey(int keyCode, ShiftState shift);
  void DeleteWord();

  TextBoxStyle style_;
  std::string text_;
  std::string cue_;
  OleColor backColor_ = color::WindowGround;
  int limit_ = 0;
  bool readOnly_ = false;
};

/// Where Ctrl+Backspace at `position` deletes from: before the blanks there and the word before
/// them. Both count as UTF-16 does.
[[nodiscard]] int WordStart(std::string_view text, int position);

}  // namespace corvelle::forms
