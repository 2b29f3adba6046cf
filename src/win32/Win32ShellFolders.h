#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ShellFolders.h"
#include "win32/Win32ShellExec.h"

namespace corvelle::win32 {

/// The shell's folders of this user.
class Win32ShellFolders final : public ShellFolders {
 public:
  explicit Win32ShellFolders(ShellExecThread thread = ShellExecThread::RunsEvents)
      : thread_(thread) {}

  std::optional<std::vector<ShellFolderEntry>> List(int folder) override;
  std::optional<std::vector<std::string>> Names(int folder) override;
  std::optional<ShellFolderEntry> Folder(int folder) override;
  std::optional<IconPixels> PixelsOf(int folder, std::string_view name, IconList list) override;
  std::optional<std::string> PathOf(int folder) override;
  bool OpenFolder(int folder, WindowId owner) override;
  bool OpenEntry(int folder, std::string_view name, std::string_view argument,
                 WindowId owner) override;
  bool FolderMenu(int folder, PixelPoint at, WindowId owner) override;
  bool EntryMenu(int folder, std::string_view name, PixelPoint at, WindowId owner) override;
  bool FileMenu(std::string_view path, PixelPoint at, WindowId owner) override;

 private:
  ShellExecThread thread_;
};

}  // namespace corvelle::win32
