#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvelle {

/// The file or folder of the disk that a command leads to, to be looked for, in the order of
/// trying: without quotes one of several may be the program, and what follows it its arguments.
/// None for what is not on a disk by its own path: web addresses, folders of the shell, built-in
/// words, programs that the system finds by their name.
[[nodiscard]] std::vector<std::string> TargetsOf(std::string_view command);

/// The drive or the server of a full path, in capital letters: "C:" or "\\\\SERVER". What the
/// answer to a question about the path depends on (Lookup::Lane).
[[nodiscard]] std::string DriveOf(std::string_view path);

}  // namespace corvelle
