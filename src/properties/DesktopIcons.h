#pragma once

#include <string_view>
#include <vector>

namespace corvelle {

class FileSystem;
class ShellFolders;

/// The indices of the icons of all that lies on the desktop, in the order of a menu of it, each
/// once; empty for a desktop that cannot be listed. The shell may let events through. Nothing is
/// written: files that an earlier version left in the folder of the menus while it listed the
/// desktop are removed.
[[nodiscard]] std::vector<int> DesktopIcons(ShellFolders& folders, FileSystem& files,
                                            std::string_view menusPath);

}  // namespace corvelle
