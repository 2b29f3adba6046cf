#pragma once

namespace corvelle {

/// Flags of a synthesised key, by their numbers in Windows.
namespace keyevent {
inline constexpr unsigned Down = 0;
inline constexpr unsigned Up = 2;
}  // namespace keyevent

/// Keys that the program presses for the user.
class KeySynthesis {
 public:
  virtual ~KeySynthesis() = default;

  /// Sends one key to whoever has the keyboard, as keybd_event does with scan code 0. What the
  /// system makes of it cannot be told.
  virtual void KeybdEvent(int virtualKey, unsigned flags) = 0;
};

}  // namespace corvelle
