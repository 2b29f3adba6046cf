#pragma once

#include "platform/TrayIcons.h"

namespace corvelle::win32 {

/// The notification area of this session's task bar.
class Win32TrayIcons final : public TrayIcons {
 public:
  bool Add(const TrayIcon& icon) override;
  void Remove(WindowId window, std::uint32_t id) override;
  std::uint32_t TaskbarCreatedMessage() const override;
};

}  // namespace corvelle::win32
