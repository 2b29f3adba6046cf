#pragma once

#include <string>

namespace corvelle {

/// What the windows share about icons.
struct IconState {
  /// 16, or the shell's large icon size. Pixels.
  int IconSize = 16;
  /// The icon file of web links.
  std::string WebLinkIcon;
  /// The shell shows each icon file by its own picture.
  bool ShellDrawsIcons = false;
  /// The Recycle Bin's icon as it was last seen, and whether it has changed since the last look.
  std::string RecycleIconPath;
  int RecycleIconIndex = -1;
  bool RecycleIconChanged = false;
  /// The icon library's window has built its lists in this run.
  bool LibraryBuilt = false;
};

}  // namespace corvelle
