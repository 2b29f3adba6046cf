#pragma once

#include <string>

#include "platform/FileSystem.h"

namespace corvelle {

/// Number of a failed file operation, " - " and its description.
[[nodiscard]] std::string FileErrorDescription(FileError error);

/// What the user reads of a failed file operation: "Error: ", a number, " - " and its description.
[[nodiscard]] std::string FileErrorText(FileError error);

}  // namespace corvelle
