#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

/// The same for several files, which are asked for together: however many do not answer, they are
/// waited for once.
[[nodiscard]] std::vector<std::string> GetFileTitles(Program& program,
                                                     const std::vector<std::string>& paths);
/// The same without blanks at their ends.
[[nodiscard]] std::vector<std::string> GetTrimmedTitles(Program& program,
                                                        const std::vector<std::string>& paths);

}  // namespace corvelle
