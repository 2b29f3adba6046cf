#pragma once

#include <functional>
#include <string>

#include "forms/Window.h"

namespace corvelle::forms {

/// A control that the system draws and works itself, placed in twips of its container's inside.
/// Between the controls of a form Tab and Shift+Tab move the focus, in the order in which they were
/// made; Enter presses the form's default button and Esc its cancel button. Keys that mean nothing
/// to the control or in a dialog go to the form.
class SystemControl : public Window {
 public:
  /// The user asks for the context menu, with the right button or by key, at a point of the control
  /// in twips. Without a handler the system may show one of its own.
  std::function<void(float x, float y, bool byKey)> ContextMenu;

 protected:
  SystemControl(Window& container, std::string name) : Window(container, std::move(name)) {
    SetTabStop(true);
  }

  bool MenuAsked(PixelPoint at, bool byKey) override;
};

/// The letter, in capitals, after the single "&" of a caption; 0 without one.
[[nodiscard]] char32_t AccessKey(const std::string& caption);

}  // namespace corvelle::forms
