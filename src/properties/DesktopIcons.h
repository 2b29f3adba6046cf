#pragma once

#include <string_view>
#include <vector>

#include "platform/ShellFolders.h"

namespace corvelle {

class FileSystem;

/// The indices of the icons of all that lies on the desktop, in the order of a menu of it, each
/// once. `entries`: what the shell says that it holds.
[[nodiscard]] std::vector<int> DesktopIcons(const std::vector<ShellFolderEntry>& entries);

/// Removes the files that an earlier version left in the folder of the menus, which ends in a
/// backslash, while it listed the desktop. One that stays does no harm: the next start removes it.
void RemoveDesktopLists(FileSystem& files, std::string_view menusPath);

}  // namespace corvelle
