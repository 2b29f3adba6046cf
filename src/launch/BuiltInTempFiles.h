#pragma once

#include <string_view>

namespace corvelle {

class FileSystem;
class ShellFiles;
struct LaunchParts;
struct ProgramPaths;

/// What clearing the folder works with.
struct TempFolderParts {
  FileSystem& Files;
  ShellFiles& FileOps;
  const ProgramPaths& Paths;
  const LaunchParts& Launch;
};

/// True for a name that only temporary files have: it has no point at all, or ends in ".tmp" in any
/// case. Blanks at its ends do not count.
[[nodiscard]] bool IsTemporaryName(std::string_view name);

/// True when the progress is to be shown after so many deleted files.
[[nodiscard]] bool ShowsProgress(int deleted) noexcept;

/// Asks the user, then deletes the temporary files of the user's folder for them and tells how many
/// went. Files in use are passed over. A folder that cannot be found is told.
void ClearTempFolder(const TempFolderParts& with);

}  // namespace corvelle
