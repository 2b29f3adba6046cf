#pragma once

#include <string>
#include <vector>

#include "platform/KeySynthesis.h"

namespace corvelle::sim {

/// A keyboard that writes down what the program presses: "+17" for key 17 going down, "-17" for
/// going up.
class SimKeySynthesis final : public KeySynthesis {
 public:
  const std::vector<std::string>& Log() const noexcept { return log_; }
  void ClearLog() { log_.clear(); }

  void KeybdEvent(int virtualKey, unsigned flags) override;

 private:
  std::vector<std::string> log_;
};

}  // namespace corvelle::sim
