#pragma once

#include <string>

#include "forms/TextBoxPeer.h"
#include "sim/SimPeer.h"
#include "sim/SimTextEdit.h"

namespace corvelle::sim {

class SimTextBox final : public SimPeerOf<forms::TextBoxPeer>, public SimControl {
 public:
  SimTextBox(SimDesktop& desktop, WindowId window, const forms::TextBoxStyle& style,
             forms::TextBoxEvents& events)
      : SimPeerOf(desktop, window), style_(style), events_(events) {}

  void SetText(std::string_view text) override;
  std::string Text() const override { return edit_.Text(); }
  void Select(const forms::TextSelection& selection) override;
  forms::TextSelection Selection() const override { return edit_.Selection(); }
  void SetLimit(int characters) override { edit_.SetLimit(characters); }
  void SetReadOnly(bool readOnly) override { readOnly_ = readOnly; }
  void SetBackColor(forms::OleColor colour) override;
  void SetCue(std::string_view cue) override;
  void Replace(std::string_view text) override;
  void Cut() override;
  void Copy() override { edit_.Copy(Desktop().Clipboard()); }
  void Paste() override;
  void Undo() override;

  void Paint(SimCanvas& canvas, const SimWindow& window, bool focused) const override;
  void Press(forms::MouseButton button, forms::ShiftState shift, PixelPoint at,
             bool second) override;
  void Key(int keyCode, forms::ShiftState shift) override;
  void Character(char32_t character) override;

 private:
  /// Shows the change and tells it; nothing after this line belongs to the box any more.
  void Tell(bool changed);

  forms::TextBoxStyle style_;
  forms::TextBoxEvents& events_;
  SimTextEdit edit_;
  std::string cue_;
  forms::OleColor backColor_ = forms::color::WindowGround;
  bool readOnly_ = false;
};

}  // namespace corvelle::sim
