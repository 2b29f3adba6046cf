#pragma once

#include <string>

#include "platform/FileSystem.h"

namespace corvelle {

/// What the user reads of a failed file operation: "Error: ", a number, " - " and its description.
[[nodiscard]] std::string FileErrorText(FileError error);
/// The description alone.
[[nodiscard]] std::string FileErrorDescription(FileError error);

/// The same without its first word.
[[nodiscard]] std::string NumberedFileError(FileError error);

}  // namespace corvelle
