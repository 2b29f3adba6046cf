// Who has the keyboard, and the controls that the system works.

#include <utility>

#include "sim/SimDesktop.h"

namespace corvelle::sim {

void SimDesktop::SetControl(WindowId window, SimControl* control) {
  Get(window)->Control = control;
}

// The focus.

bool SimDesktop::TakesFocus(const SimWindow& window) const {
  if (window.Control != nullptr) return window.Control->TakesFocus();
  // A picture box that only holds others does not.
  return window.TabStop || window.Children.empty();
}

WindowId SimDesktop::FirstFocusIn(const SimWindow& container) const {
  for (auto child = container.Children.rbegin(); child != container.Children.rend(); ++child) {
    const SimWindow& window = *Look(*child);
    if (!IsShown(*child) || !window.Enabled) continue;
    if (TakesFocus(window)) return *child;
    if (const WindowId inside = FirstFocusIn(window)) return inside;
  }
  return kNoWindow;
}

WindowId SimDesktop::FocusOf(const SimWindow& form) const {
  if (Look(form.Focus) != nullptr && IsShown(form.Focus)) return form.Focus;
  const WindowId first = FirstFocusIn(form);
  return first != kNoWindow ? first : form.Id;
}

void SimDesktop::SetFocusTo(WindowId window) {
  const SimWindow* at = Look(window);
  if (at == nullptr || !IsShown(window)) return;
  Note("focus", *at);
  const WindowId top = TopOf(window);
  // Behind another program, and on a window that is disabled, the focus is not to be had.
  const SimWindow* front = Look(foreground_);
  if ((front != nullptr && !front->Own) || !at->Enabled || !Look(top)->Enabled) return;
  Get(top)->Focus = window;
  Activate(top);
  if (foreground_ != top || Look(window) == nullptr) return;
  focus_ = window;
  TellFocus();
}

void SimDesktop::TellFocus() {
  if (toldFocus_ == focus_) return;
  const WindowId before = std::exchange(toldFocus_, focus_);
  const auto tell = [this](WindowId window, bool gained) {
    SimWindow* const at = Get(window);
    if (at == nullptr) return;
    if (at->Control != nullptr) {
      // A control shows whether it has the focus.
      InvalidateTree(window);
      at->Control->Focus(gained);
    }
    SimWindow* const still = Get(window);
    if (still != nullptr && still->Events != nullptr) still->Events->OnFocus(gained);
  };
  const WindowId now = focus_;
  tell(before, false);
  if (toldFocus_ == now && focus_ == now) tell(now, true);
}

// The mouse.

void SimDesktop::LoseCapture() {
  const WindowId held = std::exchange(capture_, kNoWindow);
  const SimWindow* at = Look(held);
  if (at == nullptr || at->Events == nullptr) return;
  if (at->Control != nullptr) at->Control->CaptureLost();
  at = Look(held);
  if (at != nullptr && at->Events != nullptr) at->Events->OnCaptureLost();
}

bool SimDesktop::ControlPressed(WindowId target, const Mouse& mouse, forms::MouseButton button,
                                bool second) {
  const SimWindow* at = Look(target);
  if (at->Control == nullptr) return false;
  if (button == forms::MouseButton::Left && at->Control->TakesFocus()) SetFocusTo(target);
  at = Look(target);
  if (at != nullptr && at->Control != nullptr) {
    at->Control->Press(button, mouse.Shift, InWindow(target, mouse.At), second);
  }
  return true;
}

bool SimDesktop::ControlReleased(WindowId target, const Mouse& mouse, forms::MouseButton button,
                                 bool wasHeld) {
  const SimWindow* at = Look(target);
  if (at->Control == nullptr) return false;
  const PixelPoint inside = InWindow(target, mouse.At);
  const PixelSize size = at->Bounds.Size();
  const bool over = wasHeld && PixelRect{0, 0, size.width, size.height}.Contains(inside);
  at->Control->Release(button, mouse.Shift, inside, over);
  if (button != forms::MouseButton::Right) return true;
  // The release of the right button asks for the context menu.
  at = Look(target);
  if (at == nullptr || at->Events == nullptr || at->Events->OnContextMenu(inside)) return true;
  at = Look(target);
  if (at != nullptr && at->Control != nullptr) at->Control->SystemMenu(inside);
  return true;
}

void SimDesktop::TurnWheel(int delta) {
  UserEvent([this, delta, shift = Shift()] { DeliverWheel(delta, shift); });
}

void SimDesktop::DeliverWheel(int delta, forms::ShiftState shift) {
  if (popup_ != kNoWindow) return;
  WindowId target = focus_;
  while (const SimWindow* at = Look(target)) {
    if (at->Events == nullptr || at->Events->OnWheel(delta, shift)) return;
    at = Look(target);
    if (at == nullptr || (at->Control != nullptr && at->Control->Wheel(delta))) return;
    at = Look(target);
    target = at != nullptr ? at->Parent : kNoWindow;
  }
}

}  // namespace corvelle::sim
