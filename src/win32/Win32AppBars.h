#pragma once

#include "platform/AppBars.h"

namespace corvelle::win32 {

/// The task bar's service for bars.
class Win32AppBars final : public AppBars {
 public:
  std::uintptr_t Message(std::uint32_t message, AppBarRecord& data) override;
};

}  // namespace corvelle::win32
