// The pointer and the keyboard, and how their events reach windows.

#include <string_view>
#include <utility>

#include "base/Text.h"
#include "base/Utf8.h"
#include "sim/SimDesktop.h"

namespace corvelle::sim {

namespace {

constexpr int kShiftKey = 16;
constexpr int kControlKey = 17;
constexpr int kAltKey = 18;

int KeyOf(forms::MouseButton button) {
  switch (button) {
    case forms::MouseButton::Right:
      return 2;
    case forms::MouseButton::Middle:
      return 4;
    default:
      return 1;
  }
}

/// The key that types a character; 0 for characters whose key depends on the keyboard.
int KeyThatTypes(char32_t character) {
  const char32_t capital = UpperCharacter(character);
  const bool plain = (capital >= U'A' && capital <= U'Z') || (capital >= U'0' && capital <= U'9') ||
                     capital == U' ' || capital == 13 || capital == 27 || capital == 8;
  return plain ? static_cast<int>(capital) : 0;
}

}  // namespace

// User actions.

void SimDesktop::UserEvent(std::function<void()> event) {
  events_.push_back(std::move(event));
  if (depth_ == 0) Pump();
}

void SimDesktop::MovePointer(int x, int y) {
  pointer_ = {x, y};
  UserEvent([this, mouse = MouseNow()] { DeliverMove(mouse); });
}

void SimDesktop::SetPointerPosition(PixelPoint at) {
  pointer_ = at;
  events_.emplace_back([this, mouse = MouseNow()] { DeliverMove(mouse); });
}

void SimDesktop::Press(forms::MouseButton button) {
  keys_.insert(KeyOf(button));
  UserEvent([this, button, mouse = MouseNow()] { DeliverPress(mouse, button, false); });
}

void SimDesktop::Release(forms::MouseButton button) {
  keys_.erase(KeyOf(button));
  UserEvent([this, button, mouse = MouseNow()] { DeliverRelease(mouse, button); });
}

void SimDesktop::Click(forms::MouseButton button) {
  Press(button);
  Release(button);
}

void SimDesktop::ClickAt(int x, int y, forms::MouseButton button) {
  MovePointer(x, y);
  Click(button);
}

void SimDesktop::TakeCapture() {
  UserEvent([this] { LoseCapture(); });
}

void SimDesktop::DoubleClick(const std::function<void()>& between,
                             const std::function<void()>& held) {
  Click();
  if (between) between();
  keys_.insert(KeyOf(forms::MouseButton::Left));
  UserEvent([this, mouse = MouseNow()] { DeliverPress(mouse, forms::MouseButton::Left, true); });
  if (held) held();
  Release();
}

void SimDesktop::KeyDown(int virtualKey) {
  keys_.insert(virtualKey);
  UserEvent([this, virtualKey, shift = Shift()] {
    DeliverKey(virtualKey, shift);
    if (virtualKey == forms::key::Enter || virtualKey == forms::key::Escape ||
        virtualKey == forms::key::Backspace) {
      DeliverCharacter(static_cast<char32_t>(virtualKey));
    }
  });
}

void SimDesktop::KeyUp(int virtualKey) {
  keys_.erase(virtualKey);
  UserEvent([this, virtualKey, shift = Shift()] { DeliverKeyUp(virtualKey, shift); });
}

void SimDesktop::PressKey(int virtualKey) {
  KeyDown(virtualKey);
  KeyUp(virtualKey);
}

void SimDesktop::Type(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Step step = NextCharacter(text, at);
    at += step.Length;
    UserEvent([this, character = step.Character, shift = Shift()] {
      if (const int key = KeyThatTypes(character)) DeliverKey(key, shift);
      DeliverCharacter(character);
    });
  }
}

forms::ShiftState SimDesktop::Shift() const {
  return {.Shift = IsKeyDown(kShiftKey), .Ctrl = IsKeyDown(kControlKey), .Alt = IsKeyDown(kAltKey)};
}

forms::MouseButton SimDesktop::ButtonsDown() const {
  auto down = forms::MouseButton::None;
  for (const auto button :
       {forms::MouseButton::Left, forms::MouseButton::Right, forms::MouseButton::Middle}) {
    if (IsKeyDown(KeyOf(button))) down = down | button;
  }
  return down;
}

// Delivery.

WindowId SimDesktop::MouseTarget(PixelPoint at) const {
  if (capture_ != kNoWindow) return capture_;
  WindowId target = WindowAt(at);
  // A disabled child hands the mouse to its parent; a disabled form swallows it.
  while (target != kNoWindow && !Look(target)->Enabled) target = Look(target)->Parent;
  const WindowId top = TopOf(target);
  return top != kNoWindow && Look(top)->Enabled ? target : kNoWindow;
}

PixelPoint SimDesktop::InWindow(WindowId window, PixelPoint at) const {
  const PixelRect bounds = BoundsOf(window);
  const SimWindow* const found = Look(window);
  const forms::FrameMargins margins = found != nullptr ? found->Margins : forms::FrameMargins{};
  return {at.x - bounds.left - margins.Left, at.y - bounds.top - margins.Top};
}

bool SimDesktop::PointerUnsettled() {
  if (!std::exchange(windowsMoved_, false)) return false;
  const WindowId target = MouseTarget(pointer_);
  return target != moveWindow_ || InWindow(target, pointer_) != movePoint_;
}

void SimDesktop::DeliverMove(const Mouse& mouse) {
  if (drag_) return TrackDrag();
  if (FrameDragged(mouse.At)) return;
  const WindowId target = MouseTarget(mouse.At);
  const SimWindow* at = Look(target);
  moveWindow_ = target;
  movePoint_ = InWindow(target, mouse.At);
  if (mouse.Down == forms::MouseButton::None) FollowToolTip(target, movePoint_);
  if (at == nullptr || at->Events == nullptr) return;
  if (capture_ == kNoWindow && FramePartAt(*at, mouse.At) != FramePart::None) return;
  const PixelPoint inside = movePoint_;
  if (at->Control != nullptr) return at->Control->MouseMove(mouse.Down, inside);
  const auto place = static_cast<std::intptr_t>((static_cast<std::uint32_t>(inside.y) << 16) |
                                                (static_cast<std::uint32_t>(inside.x) & 0xFFFF));
  std::intptr_t answer = 0;
  if (FirstToProcedure(target, forms::message::MouseMove, 0, place, answer)) return;
  at = Look(target);
  if (at != nullptr && at->Events != nullptr) {
    at->Events->OnMouseMove(mouse.Down, mouse.Shift, inside);
  }
}

void SimDesktop::DeliverPress(const Mouse& mouse, forms::MouseButton button, bool second) {
  tipSince_.reset();
  if (PopupTakesPress(mouse.At)) return;
  const WindowId target = MouseTarget(mouse.At);
  if (target == kNoWindow) return;
  if (capture_ == kNoWindow) Activate(TopOf(target));
  const SimWindow* at = Look(target);
  if (at == nullptr || at->Events == nullptr || !IsShown(target)) return;
  if (button == forms::MouseButton::Left && FramePressed(target, mouse.At)) return;
  capture_ = target;
  if (ControlPressed(target, mouse, button, second)) return;
  const PixelPoint inside = InWindow(target, mouse.At);
  if (at->TabStop) {
    SetFocusTo(target);
    at = Look(target);
    if (at == nullptr || at->Events == nullptr) return;
  }
  if (second) {
    at->Events->OnDoubleClick(inside);
  } else {
    at->Events->OnMouseDown(button, mouse.Shift, inside);
  }
}

void SimDesktop::DeliverRelease(const Mouse& mouse, forms::MouseButton button) {
  if (drag_ && button == drag_->Source.Button) return EndDrag(true);
  if (popup_ != kNoWindow || FrameReleased(mouse.At)) return;
  const WindowId target = MouseTarget(mouse.At);
  const bool wasHeld = capture_ == target;
  if (mouse.Down == forms::MouseButton::None) capture_ = kNoWindow;
  const SimWindow* at = Look(target);
  if (at == nullptr || at->Events == nullptr) return;
  if (ControlReleased(target, mouse, button, wasHeld)) return;
  at->Events->OnMouseUp(button, mouse.Shift, InWindow(target, mouse.At));
}

/// The window that hears the keys: the one with the focus, unless its form is disabled.
const SimWindow* SimDesktop::KeyTarget() const {
  const SimWindow* at = Look(focus_);
  const bool hears = at != nullptr && at->Events != nullptr && Look(TopOf(focus_))->Enabled;
  return hears ? at : nullptr;
}

void SimDesktop::DeliverKey(int virtualKey, forms::ShiftState shift) {
  if (drag_ && virtualKey == forms::key::Escape) return EndDrag(false);
  if (popup_ != kNoWindow) {
    if (virtualKey == forms::key::Escape) Destroy(std::exchange(popup_, kNoWindow));
    return;
  }
  const SimWindow* at = KeyTarget();
  if (at == nullptr) return;
  const WindowId target = at->Id;
  if (at->Control == nullptr) return at->Events->OnKeyDown(virtualKey, shift);
  usedUp_ = false;
  const bool used = !at->Control->TakesAllKeys() && at->Events->OnControlKey(virtualKey, shift);
  usedUp_ = used;
  at = Look(target);
  if (!used && at != nullptr && at->Control != nullptr) at->Control->Key(virtualKey, shift);
}

void SimDesktop::DeliverKeyUp(int virtualKey, forms::ShiftState shift) {
  const SimWindow* const at = popup_ == kNoWindow ? KeyTarget() : nullptr;
  if (at == nullptr || (at->Control != nullptr && at->Control->TakesAllKeys())) return;
  at->Events->OnKeyUp(virtualKey, shift);
}

void SimDesktop::DeliverCharacter(char32_t character) {
  if (popup_ != kNoWindow) return;
  const SimWindow* at = KeyTarget();
  if (at == nullptr) return;
  const WindowId target = at->Id;
  if (at->Control == nullptr) return at->Events->OnKeyPress(character);
  const bool keep = usedUp_;
  const bool used = !at->Control->TakesAllKeys() && at->Events->OnControlCharacter(character);
  if (used || keep) return;
  at = Look(target);
  if (at != nullptr && at->Control != nullptr) at->Control->Character(character);
}

}  // namespace corvelle::sim
