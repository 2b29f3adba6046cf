#pragma once

#include <string_view>

namespace corvelle {

/// True if a name, without its folder, fits a pattern as the shell does, ignoring case: "*" is any
/// run of characters, "?" one, or none at the end of the name or before a point. "*.*" fits every
/// name, and a point at the pattern's end asks for a name without one. Takes no longer than the
/// product of the two lengths.
[[nodiscard]] bool FitsPattern(std::string_view name, std::string_view pattern);

}  // namespace corvelle
