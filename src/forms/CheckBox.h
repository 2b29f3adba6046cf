#pragma once

#include <string>

#include "forms/Button.h"

namespace corvelle::forms {

/// A box with a caption that is ticked or not. A press turns it over, and then Click is told.
class CheckBox final : public Button {
 public:
  CheckBox(Window& container, std::string name)
      : Button(container, std::move(name), ButtonLook::Check) {}

  /// 1 ticked, 0 not.
  int Value() const noexcept { return value_; }
  void SetValue(int value) {
    value_ = value != 0 ? 1 : 0;
    if (Own() != nullptr) Own()->SetChecked(value_ != 0);
  }

 protected:
  void Pressed() override {
    SetValue(1 - value_);
    TellClick();
  }
  void PeerMade() override {
    Button::PeerMade();
    Own()->SetChecked(value_ != 0);
  }

 private:
  int value_ = 0;
};

}  // namespace corvelle::forms
