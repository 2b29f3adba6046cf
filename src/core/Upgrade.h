#pragma once

#include <string_view>

#include "core/OptionFlags.h"
#include "platform/FileSystem.h"

namespace corvelle {

/// The option flags that a start begins with: those of this version's file, else those of an older
/// version's file, which is deleted and whose first-run work is to be done again, else all "0". The
/// error is that of a flag file which is there but could not be read.
[[nodiscard]] FileResult<OptionFlags> ReadFlagsAtStart(FileSystem& files, std::string_view appPath);

/// Removes what older versions left in the program's folder and in its folder of icons, by their
/// names: data files of others stay. Gives it a list of search engines, a copy of `engines`, which
/// came with the program. A file that cannot be removed stays, without a word: it does no harm.
void CleanInstallation(FileSystem& files, std::string_view appPath, std::string_view engines);

}  // namespace corvelle
