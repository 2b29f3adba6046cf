#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Geometry.h"
#include "platform/IconPixels.h"
#include "platform/ShellIcons.h"
#include "platform/WindowId.h"

namespace corvelle {

/// One entry of a folder of the shell.
struct ShellFolderEntry {
  std::string Name;   // as the shell displays it
  int IconIndex = 0;  // in the system's lists of icons

  friend bool operator==(const ShellFolderEntry&, const ShellFolderEntry&) = default;
};

/// The shell's own folders, which need not be folders of the disk: the desktop, the control panel,
/// the drives... A folder is named by its CSIDL number, an entry in it by its display name. Menus
/// and programs that come up belong to `owner`; events run while a menu is up. Points are pixels of
/// the screen.
class ShellFolders {
 public:
  virtual ~ShellFolders() = default;

  /// What a folder holds, in the shell's order; nothing when it cannot be listed.
  [[nodiscard]] virtual std::optional<std::vector<ShellFolderEntry>> List(int folder) = 0;

  /// The same without the icons, which others may have to be asked for.
  [[nodiscard]] virtual std::optional<std::vector<std::string>> Names(int folder) = 0;

  /// The folder as an entry itself; nothing when the system does not have it.
  [[nodiscard]] virtual std::optional<ShellFolderEntry> Folder(int folder) = 0;

  /// The icon of an entry of a folder, or of the folder itself for an empty name; nothing when
  /// there is no such entry or it has no icon.
  [[nodiscard]] virtual std::optional<IconPixels> PixelsOf(int folder, std::string_view name,
                                                           IconList list) = 0;

  /// Path of a folder that lies on a disk, even if it cannot be reached; nothing for another.
  [[nodiscard]] virtual std::optional<std::string> PathOf(int folder) = 0;

  /// Does what a double click on the folder, or on an entry in it, does; `argument` goes with the
  /// entry as its command line, where it takes one, and may be empty. False when there is no such
  /// folder or entry, or the shell refuses.
  virtual bool OpenFolder(int folder, WindowId owner) = 0;
  virtual bool OpenEntry(int folder, std::string_view name, std::string_view argument,
                         WindowId owner) = 0;

  /// Shows the shell's context menu for a folder, for an entry in it, for a file or folder of the
  /// disk, and carries out what is chosen. True when a command ran, false when none was chosen or
  /// there is nothing to show a menu for.
  virtual bool FolderMenu(int folder, PixelPoint at, WindowId owner) = 0;
  virtual bool EntryMenu(int folder, std::string_view name, PixelPoint at, WindowId owner) = 0;
  virtual bool FileMenu(std::string_view path, PixelPoint at, WindowId owner) = 0;
};

}  // namespace corvelle
