#pragma once

#include <functional>
#include <string>

#include "forms/SystemControl.h"

namespace corvelle::forms {

/// A box with a caption that is ticked or not. A press turns it over.
class CheckBox final : public SystemControl {
 public:
  CheckBox(Form& form, std::string name)
      : SystemControl(form, std::move(name), PeerKind::CheckBox) {}

  /// 1 ticked, 0 not.
  int Value() const noexcept { return value_; }
  void SetValue(int value) {
    value_ = value != 0 ? 1 : 0;
    PeerMade();
  }

  /// The user turned it over.
  std::function<void()> Click;

 protected:
  void Pressed() override {
    SetValue(1 - value_);
    const auto click = Click;
    if (click) click();
  }
  void PeerMade() override {
    if (Peer() != nullptr) Peer()->SetChecked(value_ != 0);
  }

 private:
  int value_ = 0;
};

}  // namespace corvelle::forms
