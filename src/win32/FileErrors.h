#pragma once

#include "platform/FileSystem.h"

namespace corvelle::win32 {

/// What an error number of Windows means for a file.
[[nodiscard]] FileError FileErrorOf(unsigned long error) noexcept;

/// The same for the last error of this thread.
[[nodiscard]] FileError LastFileError() noexcept;

}  // namespace corvelle::win32
