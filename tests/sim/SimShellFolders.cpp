#include "sim/SimShellFolders.h"

namespace corvelle::sim {

std::optional<std::vector<ShellFolderEntry>> SimShellFolders::List(int) { return std::nullopt; }
std::optional<ShellFolderEntry> SimShellFolders::Folder(int) { return std::nullopt; }
std::optional<std::string> SimShellFolders::PathOf(int) { return std::nullopt; }
bool SimShellFolders::OpenFolder(int, WindowId) { return false; }
bool SimShellFolders::OpenEntry(int, std::string_view, WindowId) { return false; }
bool SimShellFolders::FolderMenu(int, PixelPoint, WindowId) { return false; }
bool SimShellFolders::EntryMenu(int, std::string_view, PixelPoint, WindowId) { return false; }
bool SimShellFolders::FileMenu(std::string_view, PixelPoint, WindowId) { return false; }

}  // namespace corvelle::sim
