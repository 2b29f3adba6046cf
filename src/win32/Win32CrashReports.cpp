#include "win32/Win32CrashReports.h"

#include <utility>

#include "win32/CrashFiles.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

Win32CrashReports::Win32CrashReports() : Win32CrashReports(CrashFolder()) {}

Win32CrashReports::Win32CrashReports(std::wstring folder) : folder_(std::move(folder)) {}

std::string Win32CrashReports::TakeUntold() {
  return folder_.empty() ? std::string() : Narrow(TakeUntoldFrom(folder_));
}

}  // namespace corvelle::win32
