#include "win32/CrashFiles.h"

#include <algorithm>
#include <vector>

#include <shlobj.h>

#include "win32/UniqueHandle.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

constexpr wchar_t kReports[] = L"corvelle-*.txt";
constexpr wchar_t kUntold[] = L"untold";
constexpr DWORD kLongestNote = 1024;  // bytes

std::vector<std::wstring> NamesIn(const std::wstring& folder, const wchar_t* pattern) {
  std::vector<std::wstring> names;
  WIN32_FIND_DATAW found{};
  const UniqueFind find(FindFirstFileW((folder + pattern).c_str(), &found));
  if (!find) return names;
  do {
    names.emplace_back(found.cFileName);
  } while (FindNextFileW(find.Get(), &found) != 0);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

std::wstring CrashFolder() {
  wchar_t path[MAX_PATH] = L"";
  if (FAILED(SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, path)) ||
      path[0] == 0) {
    return {};
  }
  return std::wstring(path) + L"\\Corvelle\\Crashes\\";
}

bool MakeFoldersTo(const std::wstring& folder) {
  const int made = SHCreateDirectoryExW(nullptr, folder.c_str(), nullptr);
  return made == ERROR_SUCCESS || made == ERROR_ALREADY_EXISTS || made == ERROR_FILE_EXISTS;
}

void DropOldReports(const std::wstring& folder) {
  std::vector<std::wstring> reports = NamesIn(folder, kReports);
  if (reports.size() <= kMostReports) return;
  reports.resize(reports.size() - kMostReports);
  for (std::wstring& name : reports) {
    DeleteFileW((folder + name).c_str());
    name.replace(name.size() - 3, 3, L"dmp");
    DeleteFileW((folder + name).c_str());
  }
}

bool WriteWhole(const std::wstring& path, const std::string& bytes) {
  const UniqueFile file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
  DWORD written = 0;
  return file &&
         WriteFile(file.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) !=
             0 &&
         written == bytes.size();
}

void NoteUntold(const std::wstring& folder, const std::wstring& report) {
  WriteWhole(folder + kUntold, Narrow(report));
}

std::wstring TakeUntoldFrom(const std::wstring& folder) {
  const std::wstring note = folder + kUntold;
  std::string path(kLongestNote, '\0');
  DWORD length = 0;
  {
    const UniqueFile file(CreateFileW(note.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file || ReadFile(file.Get(), path.data(), kLongestNote, &length, nullptr) == 0) return {};
  }
  DeleteFileW(note.c_str());
  path.resize(length);
  const std::wstring report = Wide(path);
  return GetFileAttributesW(report.c_str()) == INVALID_FILE_ATTRIBUTES ? std::wstring() : report;
}

}  // namespace corvelle::win32
