#pragma once

#include <string>

#include "forms/Button.h"

namespace corvelle::forms {

/// A push button.
class CommandButton final : public Button {
 public:
  CommandButton(Window& container, std::string name)
      : Button(container, std::move(name), ButtonLook::Command) {}

  /// What Enter presses wherever the focus is in the form, but on another button.
  void SetDefault(bool isDefault) {
    default_ = isDefault;
    if (Own() != nullptr) Own()->SetDefault(default_);
  }
  /// What Esc presses.
  void SetCancel(bool isCancel) noexcept { cancel_ = isCancel; }

 protected:
  void Pressed() override { TellClick(); }
  void PeerMade() override {
    Button::PeerMade();
    Own()->SetDefault(default_);
  }
  KeyFacts Keys() const override {
    KeyFacts facts = Button::Keys();
    facts.TakesEnter = true;
    facts.IsDefault = default_;
    facts.IsCancel = cancel_;
    return facts;
  }

 private:
  bool default_ = false;
  bool cancel_ = false;
};

}  // namespace corvelle::forms
