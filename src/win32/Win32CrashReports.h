#pragma once

#include "platform/CrashReports.h"

namespace corvelle::win32 {

/// The reports in a folder, %LOCALAPPDATA%\Corvelle\Crashes\ if none is named.
class Win32CrashReports final : public CrashReports {
 public:
  Win32CrashReports();
  explicit Win32CrashReports(std::wstring folder);

  std::string TakeUntold() override;

 private:
  std::wstring folder_;  // with a trailing backslash; empty: there are no reports
};

}  // namespace corvelle::win32
