#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/DroppedFiles.h"

namespace corvelle {

class CodePage;
class OptionFlags;
class StartsUnderWay;

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

/// Titles of files as the shell and the options have them now.
class FileTitles {
 public:
  /// All of it outlives them.
  FileTitles(StartsUnderWay& starts, const CodePage& ansi, const OptionFlags& options)
      : starts_(starts), ansi_(ansi), options_(options) {}

  /// The title of a new entry for a file. Needs no existing file. What does not answer at once has
  /// its title by its path alone.
  [[nodiscard]] std::string GetFileTitle(std::string_view path) const;

  /// The titles of several files, and their paths as records can hold them. They are asked for
  /// together: however many do not answer, they are waited for once. A path that is too long and
  /// does not answer at once has none that a record can hold.
  [[nodiscard]] std::vector<DroppedName> GetDroppedNames(
      const std::vector<std::string>& paths) const;
  /// The same without blanks at the ends of the titles.
  [[nodiscard]] std::vector<DroppedName> GetTrimmedNames(
      const std::vector<std::string>& paths) const;

 private:
  StartsUnderWay& starts_;
  const CodePage& ansi_;
  const OptionFlags& options_;
};

}  // namespace corvelle
