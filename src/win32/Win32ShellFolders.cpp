#include "win32/Win32ShellFolders.h"

namespace corvelle::win32 {

std::optional<std::vector<ShellFolderEntry>> Win32ShellFolders::List(int) { return std::nullopt; }
std::optional<ShellFolderEntry> Win32ShellFolders::Folder(int) { return std::nullopt; }
std::optional<std::string> Win32ShellFolders::PathOf(int) { return std::nullopt; }
bool Win32ShellFolders::OpenFolder(int, WindowId) { return false; }
bool Win32ShellFolders::OpenEntry(int, std::string_view, WindowId) { return false; }
bool Win32ShellFolders::FolderMenu(int, PixelPoint, WindowId) { return false; }
bool Win32ShellFolders::EntryMenu(int, std::string_view, PixelPoint, WindowId) { return false; }
bool Win32ShellFolders::FileMenu(std::string_view, PixelPoint, WindowId) { return false; }

}  // namespace corvelle::win32
