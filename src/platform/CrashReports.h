#pragma once

#include <string>

namespace corvelle {

/// The reports that crashes of the program leave behind.
class CrashReports {
 public:
  virtual ~CrashReports() = default;

  /// Path of the report of the last crash that nobody has been told of; each one is given once.
  /// Empty when no report is left.
  [[nodiscard]] virtual std::string TakeUntold() = 0;
};

}  // namespace corvelle
