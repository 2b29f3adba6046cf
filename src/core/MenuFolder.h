#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"

namespace corvelle {

// The folder of the menu files. `menusPath` ends in a backslash. File names come without it.

/// What the Customize window keeps of changes that were not saved, among the menu files.
inline constexpr std::string_view kDraftFileName = "unsaved.dft";

/// Deletes every file that is neither a menu nor a single button by its last four characters, nor
/// the journal of a change that RecoverFiles could not take back yet, nor the draft. A file that
/// cannot be deleted stays. The error is that of a folder that cannot be listed.
FileStatus PurgeMenus(FileSystem& files, std::string_view menusPath);

/// The names of the menu files in capitals, in the order of the buttons.
[[nodiscard]] FileResult<std::vector<std::string>> ListMenuFiles(FileSystem& files,
                                                                 std::string_view menusPath);

/// The same, after each file that could took the name that its place asks for: gaps in the
/// numbering close. A file whose wanted name is taken keeps its name and place. From one that
/// cannot be renamed on all names stay, so that the order does.
[[nodiscard]] FileResult<std::vector<std::string>> OrderedMenuFiles(FileSystem& files,
                                                                    std::string_view menusPath);

/// The names of the single buttons' files in capitals, in the order of the buttons.
[[nodiscard]] FileResult<std::vector<std::string>> OrderedSingleFiles(FileSystem& files,
                                                                      std::string_view menusPath);

}  // namespace corvelle
