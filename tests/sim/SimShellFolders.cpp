#include "sim/SimShellFolders.h"

#include <utility>

namespace corvelle::sim {

void SimShellFolders::Put(int folder, std::vector<ShellFolderEntry> entries) {
  entries_[folder] = std::move(entries);
}

std::optional<std::vector<ShellFolderEntry>> SimShellFolders::List(int folder) {
  const auto found = entries_.find(folder);
  if (found == entries_.end()) return std::nullopt;
  return found->second;
}

std::optional<ShellFolderEntry> SimShellFolders::Folder(int) { return std::nullopt; }
std::optional<std::string> SimShellFolders::PathOf(int) { return std::nullopt; }
bool SimShellFolders::OpenFolder(int, WindowId) { return false; }
bool SimShellFolders::OpenEntry(int, std::string_view, WindowId) { return false; }
bool SimShellFolders::FolderMenu(int, PixelPoint, WindowId) { return false; }
bool SimShellFolders::EntryMenu(int, std::string_view, PixelPoint, WindowId) { return false; }
bool SimShellFolders::FileMenu(std::string_view, PixelPoint, WindowId) { return false; }

}  // namespace corvelle::sim
