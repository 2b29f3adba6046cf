#include "e2e/DeskFiles.h"

#include <windows.h>

namespace corvelle::e2e {

std::optional<std::string> ReadBytes(const std::wstring& path) {
  HANDLE file = CreateFileW(path.c_str(), GENERIC_READ,
                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                            OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return std::nullopt;
  std::string bytes(GetFileSize(file, nullptr), '\0');
  DWORD read = 0;
  const bool done =
      ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr) != FALSE;
  CloseHandle(file);
  if (!done) return std::nullopt;
  bytes.resize(read);
  return bytes;
}

bool WriteBytes(const std::wstring& path, std::string_view bytes) {
  HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  DWORD written = 0;
  const bool done =
      WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != FALSE;
  CloseHandle(file);
  return done && written == bytes.size();
}

std::vector<std::wstring> FilesIn(const std::wstring& folder, const std::wstring& pattern) {
  std::vector<std::wstring> names;
  WIN32_FIND_DATAW found = {};
  HANDLE search = FindFirstFileW((folder + pattern).c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
      names.emplace_back(found.cFileName);
  } while (FindNextFileW(search, &found) != FALSE);
  FindClose(search);
  return names;
}

}  // namespace corvelle::e2e
