#pragma once

#include <string>
#include <vector>

namespace corvelle {

class CodePage;
class FileSystem;
class Registry;
class ShellIcons;
class SystemInfo;
struct ProgramPaths;

/// What the list of other files is read and made with. All of it outlives it.
struct OtherIconParts {
  FileSystem& Files;
  const CodePage& Ansi;
  const Registry& Keys;
  const SystemInfo& System;
  ShellIcons& Icons;
  const ProgramPaths& Paths;
};

/// The list of other files that hold icons, "others.dat" in the folder of icons. Its rows have the
/// form of OtherFileRow (icons/LibraryFile.h). Errors with the file are quiet.
class OtherIcons {
 public:
  explicit OtherIcons(const OtherIconParts& with) : with_(with) {}

  /// The rows of the list, sorted. A list that is missing is made first (see InitOthers).
  [[nodiscard]] std::vector<std::string> Read() const;

  /// Stores the paths of the rows; without any the file is removed.
  void Save(const std::vector<std::string>& rows) const;

  /// The list to begin with: the shell's files of icons, as far as they exist, and each program
  /// that is registered under "App Paths" and holds an icon, once. Stores it, and returns its rows,
  /// sorted.
  std::vector<std::string> InitOthers() const;

 private:
  [[nodiscard]] std::string OthersFile() const;
  void AddShellFiles(std::vector<std::string>& rows) const;
  void AddRegisteredPrograms(std::vector<std::string>& rows) const;

  OtherIconParts with_;
};

}  // namespace corvelle
