#pragma once

#include "platform/FileSystem.h"
#include "win32/Sys.h"

namespace corvelle::win32 {

/// One entry of a listing as the system gives it.
[[nodiscard]] FileEntry EntryOf(const WIN32_FIND_DATAW& found);

}  // namespace corvelle::win32
