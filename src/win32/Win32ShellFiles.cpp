#include "win32/Win32ShellFiles.h"

#include <array>

#include "base/Text.h"
#include "win32/Sys.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

constexpr DWORD kPathSize = 260;
// What the shell takes for a name that it cannot work with (DE_INVALIDFILES).
constexpr int kInvalidFiles = 0x7C;

using PathBuffer = std::array<wchar_t, kPathSize>;

/// The text that a call has written, when it wrote one that has room.
std::optional<std::string> TextOf(const PathBuffer& buffer, DWORD length) {
  if (length == 0 || length >= buffer.size()) return std::nullopt;
  return Narrow({buffer.data(), length});
}

}  // namespace

std::optional<std::string> Win32ShellFiles::TempPath() {
  PathBuffer buffer{};
  const auto path = TextOf(buffer, GetTempPathW(kPathSize, buffer.data()));
  const auto windows = TextOf(buffer, GetWindowsDirectoryW(buffer.data(), kPathSize));
  // The system names its own folder for a user who has no folder for temporary files; nothing in
  // there is temporary.
  if (path && windows && EqualNoCase(DropBackslash(*path), DropBackslash(*windows)))
    return std::nullopt;
  return path;
}

int Win32ShellFiles::ShFileOperation(const FileOperation& operation) {
  if (operation.From.empty() || operation.From.find('\0') != std::string::npos)
    return kInvalidFiles;
  // A list of names, which ends with an empty one.
  std::wstring from = Wide(operation.From);
  from.push_back(L'\0');
  SHFILEOPSTRUCTW call{};
  call.hwnd = ToHwnd(operation.Owner);
  call.wFunc = operation.Function;
  call.pFrom = from.c_str();
  call.fFlags = static_cast<FILEOP_FLAGS>(operation.Flags);
  return SHFileOperationW(&call);
}

}  // namespace corvelle::win32
