#pragma once

#include "platform/AppBars.h"

namespace corvelle::sim {

/// A shell that gives no edge to anyone.
class SimAppBars final : public AppBars {
 public:
  std::uintptr_t Message(std::uint32_t message, AppBarRecord& data) override;
};

}  // namespace corvelle::sim
