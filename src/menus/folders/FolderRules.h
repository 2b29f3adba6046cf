#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"
#include "platform/ShellFolders.h"

namespace corvelle {

// What a folder item means and how its files are shown: pure rules.

/// A folder item of the disk taken apart.
struct FolderItem {
  std::string Folder;  // with its trailing backslash; empty when the item names none
  std::string Mask;
  bool UpdateFolder = false;      // U: compared with the disk each time the menu opens
  bool SubFolders = false;        // S: the folders directly below as well, each listed in turn
  bool WithoutExtension = false;  // E: names are shown without it
  bool Merged = false;            // - or _: one list over all folders

  friend bool operator==(const FolderItem&, const FolderItem&) = default;
};

/// A folder, a backslash and a mask; from the first "/" on the option letters in any order and
/// case.
[[nodiscard]] FolderItem ParseFolderItem(std::string_view name);

/// True for a file that a folder item shows: neither hidden nor of the system nor temporary, no
/// folder, and not called ".DIR" at its end.
[[nodiscard]] bool IsShownFile(const FileEntry& entry);
/// True for a folder that the option S adds.
[[nodiscard]] bool IsShownFolder(const FileEntry& entry);

/// The name without an ending ".LNK" and then without what follows its last point. A name that
/// starts with its only point stays whole.
[[nodiscard]] std::string NameWithoutExtension(std::string_view name);

/// What the files of a folder item are sorted by: the name in capitals; without its extension where
/// that is not shown or where the lists of several folders become one.
[[nodiscard]] std::string SortKeyOf(std::string_view name, const FolderItem& item);

/// The title of a file: what the shell displays (nothing: its name), without an ending ".LNK", and
/// without the file's own extension where that is not to be shown. The shell may have left the
/// extension out already: what then follows another point is part of the name.
[[nodiscard]] std::string FileTitleOf(std::string_view displayName, std::string_view name,
                                      bool withoutExtension);

/// The file that a menu file expands to: its last three letters replaced by "mfd".
[[nodiscard]] std::string GeneratedFileName(std::string_view menuFile);

/// The file that keeps what a special folder held, named as the menu file up to its point and as
/// the folder: "BMENU012.PROGRAMS". A folder that is not known is kept as the desktop, which it
/// shows, and never under a name that another file could have.
[[nodiscard]] std::string ListCacheName(std::string_view menuFile, std::string_view folderName);

/// True for the folders of the shell whose menu shows the Recycle Bin's icon.
[[nodiscard]] bool IsDesktopFolder(std::string_view folderName) noexcept;

/// The entries of a special folder as lines "name|icon index", sorted ignoring case. An entry
/// without a name is left out; a name ends at its first NUL.
[[nodiscard]] std::vector<std::string> ShellFolderLines(
    const std::vector<ShellFolderEntry>& entries);

/// A line's name and icon index, both as text.
struct ShellFolderLine {
  std::string Name;
  std::string Icon;

  friend bool operator==(const ShellFolderLine&, const ShellFolderLine&) = default;
};
[[nodiscard]] ShellFolderLine ParseShellFolderLine(std::string_view line);

}  // namespace corvelle
