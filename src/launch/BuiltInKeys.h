#pragma once

#include <vector>

namespace corvelle {

/// What the program has the shell do by pressing its keys.
enum class ShellKeys {
  FindComputer,        // Ctrl + Windows + F
  MinimizeAllWindows,  // Windows + M
  UndoMinimizeAll,     // Shift + Windows + M
};

struct KeyStroke {
  int VirtualKey = 0;
  unsigned Flags = 0;  // see keyevent

  friend bool operator==(const KeyStroke&, const KeyStroke&) = default;
};

/// The keys in the order in which they are sent: all go down, then all go up in the same order.
[[nodiscard]] std::vector<KeyStroke> KeySequence(ShellKeys keys);

}  // namespace corvelle
