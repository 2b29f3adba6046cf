#pragma once

#include <string>

#include "base/Geometry.h"
#include "forms/Types.h"

namespace corvelle::sim {

class SimCanvas;
struct SimWindow;

/// How a control of the system behaves on the simulated desktop: what it shows, and what it makes
/// of the mouse and of the keys that the program leaves to it. Points are pixels of its window.
/// What it tells the program may destroy it; it touches nothing of itself afterwards.
class SimControl {
 public:
  virtual ~SimControl() = default;

  virtual void Paint(SimCanvas& canvas, const SimWindow& window, bool focused) const = 0;
  [[nodiscard]] virtual bool TakesFocus() const { return true; }

  virtual void Press(forms::MouseButton /*button*/, forms::ShiftState /*shift*/, PixelPoint /*at*/,
                     bool /*second*/) {}
  virtual void MouseMove(forms::MouseButton /*down*/, PixelPoint /*at*/) {}
  /// `over`: the release was on the control.
  virtual void Release(forms::MouseButton /*button*/, forms::ShiftState /*shift*/,
                       PixelPoint /*at*/, bool /*over*/) {}
  virtual void CaptureLost() {}
  /// The tool tip of a part of it; empty for none.
  [[nodiscard]] virtual std::string ToolTipAt(PixelPoint /*at*/) const { return {}; }
  virtual void Key(int /*keyCode*/, forms::ShiftState /*shift*/) {}
  virtual void Character(char32_t /*character*/) {}
  /// True while the keys are a part's of it: neither the rules of dialogs nor the form see them.
  [[nodiscard]] virtual bool TakesAllKeys() const { return false; }
  /// True uses the wheel up.
  virtual bool Wheel(int /*delta*/) { return false; }
  virtual void Focus(bool /*gained*/) {}
  /// The context menu of the system's own, when the program has none.
  virtual void SystemMenu(PixelPoint /*at*/) {}
};

}  // namespace corvelle::sim
