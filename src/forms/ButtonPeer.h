#pragma once

#include "forms/WindowSystem.h"

namespace corvelle::forms {

/// What the system's buttons look like. A frame holds other controls and takes no focus.
enum class ButtonLook { Command, Check, Option, Frame };

class ButtonEvents {
 public:
  virtual ~ButtonEvents() = default;

  /// Pressed with the pointer or with Space. Told when the control has done its part; what it does
  /// may destroy the control and its form.
  virtual void OnPress() = 0;
};

/// The window of a button, check box, option or frame. Its caption is the window's text.
class ButtonPeer : public WindowPeer {
 public:
  /// Ticks a check box or option, or takes the tick away. A press does not change it by itself.
  virtual void SetChecked(bool checked) = 0;
  /// Draws a command button as the one that Enter presses.
  virtual void SetDefault(bool isDefault) = 0;
};

}  // namespace corvelle::forms
