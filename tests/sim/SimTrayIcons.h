#pragma once

#include <vector>

#include "platform/TrayIcons.h"

namespace corvelle::sim {

/// The notification area of a test.
class SimTrayIcons final : public TrayIcons {
 public:
  bool Add(const TrayIcon& icon) override;
  void Remove(WindowId window, std::uint32_t id) override;
  std::uint32_t TaskbarCreatedMessage() const override { return 0xC123; }

  /// What is shown now.
  std::vector<TrayIcon> Shown;
  /// No task bar is there to show an icon.
  bool NoTaskbar = false;

 private:
  [[nodiscard]] bool Has(WindowId window, std::uint32_t id) const;
};

}  // namespace corvelle::sim
