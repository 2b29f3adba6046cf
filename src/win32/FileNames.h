#pragma once

#include <string_view>

namespace corvelle::win32 {

/// True if a name, without its folder, fits a pattern with "*" and "?" as the shell takes them,
/// without regard to case: "*.*" fits every name, "?" also the end of a name or of the part before
/// a point, and a point at the pattern's end asks for a name without one.
[[nodiscard]] bool FitsPattern(std::string_view name, std::string_view pattern);

/// True if the last name of a path stands for a device (CON, NUL, COM1...), with an extension too.
[[nodiscard]] bool NamesDevice(std::string_view path);

/// False for a text that no file or folder can be named by, because it is empty or holds characters
/// that no path holds. The shell is not to be asked about it: one that begins with "/:" ends the
/// program on some systems, and the others are a waste of time.
[[nodiscard]] bool CanNameFile(std::string_view text);

}  // namespace corvelle::win32
