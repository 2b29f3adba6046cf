#pragma once

#include <string>

#include "platform/Platform.h"

namespace corvelle {

/// The folder that an installation noted in the registry, with a trailing backslash; empty when it
/// noted none.
[[nodiscard]] std::string GetRegistryPath(const Platform& system);

/// The program's folder, with a trailing backslash: the first of the executable's folder, the
/// current folder and the registry's that holds a file of the program's name, else the
/// executable's.
[[nodiscard]] std::string FindAppPath(const Platform& system);

}  // namespace corvelle
