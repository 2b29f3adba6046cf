#pragma once

#include <functional>
#include <string>

#include "forms/SystemControl.h"

namespace corvelle::forms {

/// A push button.
class CommandButton final : public SystemControl {
 public:
  CommandButton(Form& form, std::string name)
      : SystemControl(form, std::move(name), PeerKind::CommandButton) {}

  /// What Enter presses wherever the focus is in the form, but on another button.
  void SetDefault(bool isDefault) noexcept { default_ = isDefault; }
  /// What Esc presses.
  void SetCancel(bool isCancel) noexcept { cancel_ = isCancel; }

  std::function<void()> Click;

 protected:
  void Pressed() override {
    // The handler may end the form and this button with it.
    const auto click = Click;
    if (click) click();
  }
  bool TakesEnter() const noexcept override { return true; }
  bool IsDefault() const noexcept override { return default_; }
  bool IsCancel() const noexcept override { return cancel_; }

 private:
  bool default_ = false;
  bool cancel_ = false;
};

}  // namespace corvelle::forms
