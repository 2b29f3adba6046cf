#pragma once

#include <optional>
#include <string>
#include <string_view>

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

/// The same for a file as the shell and the options have it now. Needs no existing file.
[[nodiscard]] std::string GetFileTitle(Program& program, std::string_view path);

}  // namespace corvelle
