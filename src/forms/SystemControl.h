#pragma once

#include <string>

#include "forms/Window.h"

namespace corvelle::forms {

class Form;

/// A control that the system draws and works itself, placed in twips of its form's inside. Between
/// the controls of a form Tab and Shift+Tab move the focus, in the order in which they were made;
/// Enter presses the form's default button and Esc its cancel button. A letter after "&" in the
/// caption is the access key, with Alt or without; "&&" shows one "&". Keys that mean nothing here
/// go to the form, which outlives it.
class SystemControl : public Window {
 public:
  ~SystemControl() override;

  const std::string& Caption() const noexcept { return caption_; }
  void SetCaption(std::string caption);

  /// The user pressed the control: with the pointer, with Space or with its access key.
  void Press();

 protected:
  SystemControl(Form& form, std::string name, PeerKind kind);

  /// What a press does.
  virtual void Pressed() = 0;
  /// The peer stands and is to show what the control holds.
  virtual void PeerMade() {}
  /// True for a button that Enter presses while it has the focus.
  [[nodiscard]] virtual bool TakesEnter() const noexcept { return false; }
  /// True for the button that Enter, or Esc, presses wherever the focus is.
  [[nodiscard]] virtual bool IsDefault() const noexcept { return false; }
  [[nodiscard]] virtual bool IsCancel() const noexcept { return false; }

  PixelPoint ContainerOrigin() const noexcept override;
  void OnKeyDown(int keyCode, ShiftState shift) override;
  void OnKeyPress(char32_t character) override;
  void OnPress() override { Press(); }

 private:
  friend class Form;
  [[nodiscard]] bool MakePeer(WindowPeer* parent);
  [[nodiscard]] bool Reachable() const noexcept { return Visible() && Enabled(); }
  void MoveFocus(int step);
  /// Presses the control of the form whose access key this is; false when none has it.
  bool PressAccessKey(char32_t character);

  Form& form_;
  PeerKind kind_;
  std::string caption_;
};

/// The letter, in capitals, after the single "&" of a caption; 0 without one.
[[nodiscard]] char32_t AccessKey(const std::string& caption);

}  // namespace corvelle::forms
