#pragma once

#include <vector>

#include "platform/TrayIcons.h"

namespace corvelle::sim {

/// The notification area of a test.
class SimTrayIcons final : public TrayIcons {
 public:
  bool Add(const TrayIcon& icon) override;
  void Remove(WindowId window, std::uint32_t id) override;

  /// What is shown now.
  std::vector<TrayIcon> Shown;
};

}  // namespace corvelle::sim
