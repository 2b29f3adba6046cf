#pragma once

#include <string>

#include "platform/Clipboard.h"

namespace corvelle::sim {

/// A clipboard that a test can look into, and that another program can keep open.
class SimClipboard final : public Clipboard {
 public:
  std::string Text;
  bool HeldByAnother = false;

  bool PutText(WindowId owner, std::string_view text) override {
    if (HeldByAnother || owner == kNoWindow) return false;
    Text = text;
    return true;
  }
};

}  // namespace corvelle::sim
