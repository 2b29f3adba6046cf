#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ShellFolders.h"

namespace corvelle::sim {

/// The shell's folders of a test: what it puts there.
class SimShellFolders final : public ShellFolders {
 public:
  /// Makes `entries` what a folder holds. A folder that nothing was put into cannot be listed.
  void Put(int folder, std::vector<ShellFolderEntry> entries);

  std::optional<std::vector<ShellFolderEntry>> List(int folder) override;
  std::optional<ShellFolderEntry> Folder(int folder) override;
  std::optional<std::string> PathOf(int folder) override;
  bool OpenFolder(int folder, WindowId owner) override;
  bool OpenEntry(int folder, std::string_view name, WindowId owner) override;
  bool FolderMenu(int folder, PixelPoint at, WindowId owner) override;
  bool EntryMenu(int folder, std::string_view name, PixelPoint at, WindowId owner) override;
  bool FileMenu(std::string_view path, PixelPoint at, WindowId owner) override;

 private:
  std::map<int, std::vector<ShellFolderEntry>> entries_;
};

}  // namespace corvelle::sim
