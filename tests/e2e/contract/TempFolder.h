#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

#include "win32/Wide.h"

namespace corvelle {

/// An empty folder that goes away with all that is in it.
class TempFolder {
 public:
  TempFolder() {
    static int made = 0;
    wchar_t temp[MAX_PATH + 1];
    GetTempPathW(MAX_PATH, temp);
    path_ = std::filesystem::path(temp) /
            (L"Corvelle" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++made));
    std::filesystem::create_directories(path_);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder() {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path_))
      SetFileAttributesW(entry.path().c_str(), FILE_ATTRIBUTE_NORMAL);
    std::error_code failed;
    std::filesystem::remove_all(path_, failed);
  }

  /// With its trailing backslash, in UTF-8.
  [[nodiscard]] std::string Path() const { return win32::Narrow(path_.wstring()) + "\\"; }

 private:
  std::filesystem::path path_;
};

}  // namespace corvelle
