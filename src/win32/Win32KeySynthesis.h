#pragma once

#include "platform/KeySynthesis.h"

namespace corvelle::win32 {

/// The keyboard of the machine.
class Win32KeySynthesis final : public KeySynthesis {
 public:
  void KeybdEvent(int virtualKey, unsigned flags) override;
};

}  // namespace corvelle::win32
