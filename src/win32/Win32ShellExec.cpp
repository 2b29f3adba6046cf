#include "win32/Win32ShellExec.h"

#include <cstdint>
#include <string>

#include "base/Text.h"
#include "win32/ErrorMode.h"
#include "win32/FileErrors.h"
#include "win32/UniqueHandle.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

constexpr std::intptr_t kLowestSuccess = 33;
// The compiler's headers do not name it.
constexpr DWORD kElevationRequired = 740;

std::optional<std::wstring> WideIfAny(std::optional<std::string_view> text) {
  if (!text) return std::nullopt;
  return Wide(*text);
}

const wchar_t* PointerTo(const std::optional<std::wstring>& text) {
  return text ? text->c_str() : nullptr;
}

/// True for an error that tells of a missing right, or of a file that another program holds.
bool MeansNoAccess(DWORD error) noexcept {
  if (error == ERROR_ACCESS_DISABLED_BY_POLICY || error == ERROR_NETWORK_ACCESS_DENIED) return true;
  const FileError file = FileErrorOf(error);
  return file == FileError::AccessDenied || file == FileError::InUse;
}

}  // namespace

// The other answer of ShellExecuteEx, hInstApp, says "access denied" of every error that it has no
// number for, a refusal among them.
OpenError OpenErrorOf(unsigned long error) noexcept {
  if (error == ERROR_CANCELLED) return OpenError::Cancelled;
  return MeansNoAccess(error) ? OpenError::AccessDenied : OpenError::Other;
}

RunError RunErrorOf(unsigned long error) noexcept {
  if (error == kElevationRequired) return RunError::NeedsElevation;
  if (MeansNoAccess(error)) return RunError::AccessDenied;
  switch (FileErrorOf(error)) {
    case FileError::NotFound:
      return RunError::FileNotFound;
    case FileError::BadName:
      return RunError::BadFileName;
    default:
      return RunError::Other;
  }
}

Result<Done, OpenError> Win32ShellExec::Open(std::string_view file,
                                             std::optional<std::string_view> parameters,
                                             std::optional<std::string_view> folder) {
  // For the system no name is the current folder.
  if (Trim(file).empty()) return OpenError::Other;
  const std::wstring wideFile = Wide(file);
  const std::optional<std::wstring> wideParameters = WideIfAny(parameters);
  const std::optional<std::wstring> wideFolder = WideIfAny(folder);
  SHELLEXECUTEINFOW info{};
  info.cbSize = sizeof(info);
  info.fMask = SEE_MASK_FLAG_NO_UI;
  // The shell may go on beside a thread that runs events; one that ends soon it must not leave.
  if (thread_ == ShellExecThread::EndsSoon) info.fMask |= SEE_MASK_NOASYNC;
  info.hwnd = GetDesktopWindow();
  info.lpFile = wideFile.c_str();
  info.lpParameters = PointerTo(wideParameters);
  info.lpDirectory = PointerTo(wideFolder);
  info.nShow = SW_SHOWNORMAL;
  const ErrorModeForChildren errorMode;
  if (ShellExecuteExW(&info) == 0) return OpenErrorOf(GetLastError());
  // Not every failure of the old DDE road makes the call itself fail.
  if (reinterpret_cast<std::intptr_t>(info.hInstApp) < kLowestSuccess) return OpenError::Other;
  return Done{};
}

Result<Done, RunError> Win32ShellExec::Run(std::string_view commandLine) {
  // The system takes an empty line for a wrong call.
  if (Trim(commandLine).empty()) return RunError::BadFileName;
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION process{};
  // The call writes into the line while it looks for the program's name.
  std::wstring line = Wide(commandLine);
  const ErrorModeForChildren errorMode;
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                     &process) == 0) {
    return RunErrorOf(GetLastError());
  }
  const UniqueKernel thread(process.hThread);
  const UniqueKernel started(process.hProcess);
  return Done{};
}

}  // namespace corvelle::win32
