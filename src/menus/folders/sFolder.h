#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "menus/folders/clsFolder.h"
#include "menus/items/FolderState.h"

namespace corvelle {

class CodePage;
class GeneratedMenu;
class FileSystem;

// Folder items of the shell. What a folder held is kept in a file beside the menu file (see
// ListCacheName): for each line of ShellFolderLines the line in capitals, a NUL, the line and CR
// LF.

/// The bytes of that file.
[[nodiscard]] std::string ListCacheBytes(const std::vector<std::string>& lines,
                                         const CodePage& ansi);

/// What a special folder holds.
struct SpecialFolderLines {
  /// As ShellFolderLines; nothing when it cannot be listed.
  std::optional<std::vector<std::string>> Lines;
  FolderState State = FolderState::Here;
};

/// True for a folder that shows the Recycle Bin's icon, or is the bin itself.
[[nodiscard]] bool ShowsRecycleBin(std::string_view folderName);

/// Adds the entries of the special folder at record `record` of the source, behind the records
/// before it, and writes what it holds, if that is known. A folder that cannot be listed has no
/// entries.
[[nodiscard]] clsFolder ExpandSpecialFolder(FileSystem& files, const CodePage& ansi,
                                            GeneratedMenu& menu, int record,
                                            const SpecialFolderLines& lines,
                                            std::string_view menuFile);

/// True if the folder holds something else than what is kept of it, or if nothing is kept; false
/// when it cannot be listed, so that such a folder is not rebuilt for ever.
[[nodiscard]] bool SpecialFolderChanged(FileSystem& files, const CodePage& ansi,
                                        std::string_view folderName,
                                        const SpecialFolderLines& lines, std::string_view menuFile);

}  // namespace corvelle
