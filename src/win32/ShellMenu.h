#pragma once

#include "win32/Sys.h"

// After the headers of Windows that it builds on.
#include <shlobj.h>

namespace corvelle::win32 {

/// Shows the shell's context menu of an item at a point of the screen (pixels) and carries out what
/// is chosen; its windows belong to `owner`, which may be none. True when a command ran. Events run
/// while the menu is up.
bool ShowShellMenu(IContextMenu& menu, POINT at, HWND owner);

}  // namespace corvelle::win32
