#include "win32/Win32ShellExec.h"

#include <cstdint>
#include <string>

#include "base/Text.h"
#include "win32/FileErrors.h"
#include "win32/UniqueHandle.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

constexpr std::intptr_t kLowestSuccess = 33;

std::optional<std::wstring> WideIfAny(std::optional<std::string_view> text) {
  if (!text) return std::nullopt;
  return Wide(*text);
}

const wchar_t* PointerTo(const std::optional<std::wstring>& text) {
  return text ? text->c_str() : nullptr;
}

RunError RunErrorOf(DWORD error) {
  switch (FileErrorOf(error)) {
    case FileError::NotFound:
      return RunError::FileNotFound;
    case FileError::BadName:
      return RunError::BadFileName;
    default:
      return RunError::Other;
  }
}

}  // namespace

bool Win32ShellExec::Open(std::string_view file, std::optional<std::string_view> parameters,
                          std::optional<std::string_view> folder) {
  // For the system no name is the current folder.
  if (Trim(file).empty()) return false;
  const std::wstring wideFile = Wide(file);
  const std::optional<std::wstring> wideParameters = WideIfAny(parameters);
  const std::optional<std::wstring> wideFolder = WideIfAny(folder);
  SHELLEXECUTEINFOW info{};
  info.cbSize = sizeof(info);
  info.fMask = SEE_MASK_FLAG_NO_UI;
  info.hwnd = GetDesktopWindow();
  info.lpFile = wideFile.c_str();
  info.lpParameters = PointerTo(wideParameters);
  info.lpDirectory = PointerTo(wideFolder);
  info.nShow = SW_SHOWNORMAL;
  const bool started = ShellExecuteExW(&info) != 0;
  return started && reinterpret_cast<std::intptr_t>(info.hInstApp) >= kLowestSuccess;
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
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                     &process) == 0) {
    return RunErrorOf(GetLastError());
  }
  const UniqueKernel thread(process.hThread);
  const UniqueKernel started(process.hProcess);
  return Done{};
}

}  // namespace corvelle::win32
