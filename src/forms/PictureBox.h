#pragma once

#include "forms/Surface.h"

namespace corvelle::forms {

/// A child window that is drawn on, placed in twips of its container's inside; it may hold
/// controls. Its keys go to the form; with SetTabStop before it is loaded it takes the focus when
/// it is pressed, and the keys that mean something in a dialog have that meaning. It is visible
/// from the start, and seen when the form is. The container outlives it.
class PictureBox final : public Surface {
 public:
  PictureBox(Window& container, std::string name);

  /// The keys that it keeps from the rules of dialogs, and gets by KeyDown.
  void SetWants(const KeyWants& wants) noexcept { wants_ = wants; }

 protected:
  std::unique_ptr<WindowPeer> NewPeer(WindowPeer* parent) override;
  KeyFacts Keys() const override { return {.Wants = wants_}; }
  void OnKeyDown(int keyCode, ShiftState shift) override;
  void OnKeyPress(char32_t character) override;

 private:
  KeyWants wants_;
};

}  // namespace corvelle::forms
