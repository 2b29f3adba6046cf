#pragma once

#include "platform/Registry.h"

namespace corvelle {

struct LaunchParts;

/// Opens the system's window that searches for files, or tells the user that the system has no such
/// window. It is not opened by its old key, Windows + F, which opens another program on newer
/// systems.
void OpenFileSearch(const LaunchParts& with);

/// True if this machine has such a window.
[[nodiscard]] bool HasFileSearch(const Registry& keys);

}  // namespace corvelle
