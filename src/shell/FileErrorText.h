#pragma once

#include <string>
#include <string_view>

#include "platform/FileSystem.h"

namespace corvelle {

/// What the user reads of a failed file operation: "Error: ", a number, " - " and its description.
[[nodiscard]] std::string FileErrorText(FileError error);
/// The description alone.
[[nodiscard]] std::string FileErrorDescription(FileError error);

/// The same without its first word.
[[nodiscard]] std::string NumberedFileError(FileError error);
/// The same for what failed with the file of that full path: a folder that is missing on the way to
/// it is told from a missing file.
[[nodiscard]] std::string NumberedFileError(FileSystem& files, std::string_view path,
                                            FileError error);

}  // namespace corvelle
