#pragma once

#include "platform/DdeClient.h"

namespace corvelle::win32 {

/// How long other programs may take, in milliseconds.
struct DdeWaits {
  unsigned Window = 500;   // for one window to hear that a conversation is wanted
  unsigned Search = 3000;  // for all of them together
  unsigned Answer = 5000;  // for the answer to a command
};

/// Dynamic Data Exchange by its messages, so that neither a window that hangs nor a server that
/// keeps silent holds this program up for longer than the waits say.
class Win32Dde final : public DdeClient {
 public:
  explicit Win32Dde(const DdeWaits& waits = {}) noexcept : waits_(waits) {}

  DdeOutcome Execute(std::string_view service, std::string_view topic,
                     std::string_view command) override;

 private:
  DdeWaits waits_;
};

}  // namespace corvelle::win32
