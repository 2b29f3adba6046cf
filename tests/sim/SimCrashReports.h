#pragma once

#include <string>
#include <utility>

#include "platform/CrashReports.h"

namespace corvelle::sim {

/// The report of a crash that a test lets have happened.
class SimCrashReports final : public CrashReports {
 public:
  std::string Untold;

  std::string TakeUntold() override { return std::exchange(Untold, std::string()); }
};

}  // namespace corvelle::sim
