#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Lookups.h"

namespace corvelle {

class CodePage;
class FileSystem;
class Registry;
class SystemInfo;
struct ProgramPaths;

/// What the list of other files is read and made with. All of it outlives it.
struct OtherIconParts {
  FileSystem& Files;
  const CodePage& Ansi;
  const Registry& Keys;
  const SystemInfo& System;
  const ProgramPaths& Paths;
};

/// The list of other files that hold icons, "others.dat" in the folder of icons. Its rows have the
/// form of OtherFileRow (icons/LibraryFile.h). Errors with the file are quiet.
class OtherIcons {
 public:
  explicit OtherIcons(const OtherIconParts& with) : with_(with) {}

  /// The rows of the list, sorted; nothing when there is no list yet.
  [[nodiscard]] std::optional<std::vector<std::string>> Read() const;

  /// Stores the paths of the rows; without any the file is removed.
  void Save(const std::vector<std::string>& rows) const;

  /// What is asked about the files of the list to begin with: whether the shell's files of icons
  /// are there, and how many icons each program holds that is registered under "App Paths".
  [[nodiscard]] std::vector<Lookup> FirstQuestions() const;

 private:
  [[nodiscard]] std::string OthersFile() const;

  OtherIconParts with_;
};

}  // namespace corvelle
