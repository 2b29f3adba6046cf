#include "sim/SimKeySynthesis.h"

#include "sim/Complain.h"

namespace corvelle::sim {

void SimKeySynthesis::KeybdEvent(int virtualKey, unsigned flags) {
  if (virtualKey < 1 || virtualKey > 254) Complain("there is no key " + std::to_string(virtualKey));
  if (flags != keyevent::Down && flags != keyevent::Up)
    Complain("a key with the flags " + std::to_string(flags));
  log_.push_back((flags == keyevent::Up ? "-" : "+") + std::to_string(virtualKey));
}

}  // namespace corvelle::sim
