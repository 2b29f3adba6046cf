#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/DroppedFiles.h"

namespace corvelle {

class Program;

/// All that the title of a file depends on.
struct FileTitleFacts {
  std::string_view Path;
  std::optional<std::string_view> DisplayName;  // as the shell shows it; none when it does not know
  bool IsFolder = false;
  bool KeepExtension = false;
};

/// The title of a new entry for a file: its shown name, without "Shortcut to" and without the
/// extension if that is one of the usual kind.
[[nodiscard]] std::string FileTitle(const FileTitleFacts& facts);

/// The same for a file as the shell and the options have it now. Needs no existing file. What does
/// not answer at once has its title by its path alone.
[[nodiscard]] std::string GetFileTitle(Program& program, std::string_view path);

/// The titles of several files, and their paths as records can hold them. They are asked for
/// together: however many do not answer, they are waited for once. A path that is too long and does
/// not answer at once has none that a record can hold.
[[nodiscard]] std::vector<DroppedName> GetDroppedNames(Program& program,
                                                       const std::vector<std::string>& paths);
/// The same without blanks at the ends of the titles.
[[nodiscard]] std::vector<DroppedName> GetTrimmedNames(Program& program,
                                                       const std::vector<std::string>& paths);

}  // namespace corvelle
