#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "menus/clsFolder.h"

namespace corvelle {

class CodePage;
class GeneratedMenu;
class Program;

// Folder items of the shell. What a folder held is kept in a file beside the menu file (see
// ListCacheName): for each line of ShellFolderLines the line in capitals, a NUL, the line and CR
// LF.

/// The bytes of that file.
[[nodiscard]] std::string ListCacheBytes(const std::vector<std::string>& lines,
                                         const CodePage& ansi);

/// Adds the entries of the special folder at record `record` of the source, behind the records
/// before it, and writes what it held. A folder that cannot be listed has no entries. The shell may
/// let events through.
[[nodiscard]] clsFolder ExpandSpecialFolder(Program& program, GeneratedMenu& menu, int record,
                                            std::string_view menuFile);

/// True if the folder holds something else than what is kept of it, or if nothing is kept; false
/// when it cannot be listed, so that such a folder is not built anew for ever. The shell may let
/// events through.
[[nodiscard]] bool SpecialFolderChanged(Program& program, std::string_view folderName,
                                        std::string_view menuFile);

}  // namespace corvelle
