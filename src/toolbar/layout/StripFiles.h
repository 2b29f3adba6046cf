#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/MenuRecord.h"

namespace corvelle {

class CodePage;
class FileSystem;
class StartupProgress;
struct ProgramPaths;

/// What reading the files of the strip works with. All of it outlives it.
struct StripFileParts {
  FileSystem& Files;
  const CodePage& Ansi;
  const ProgramPaths& Paths;
  const StartupProgress& Progress;
  const std::string& Title;  // of the program
};

/// What the files of the strip's buttons say, in the order of the buttons. A folder that cannot be
/// listed has none, and a button that cannot be read is left out: the others come all the same.
class StripFiles {
 public:
  explicit StripFiles(const StripFileParts& with) : with_(with) {}

  struct Button {
    std::string Path;
    MenuRecord Record;  // the first of the file
  };

  [[nodiscard]] std::vector<Button> MenuButtons() const;
  [[nodiscard]] std::vector<Button> SingleButtons() const;
  /// The first record of a file; an empty one when it cannot be read now.
  [[nodiscard]] MenuRecord RecordOf(std::string_view path) const;

  /// The button of the program's own menu, and the file of that menu.
  [[nodiscard]] MenuRecord MainMenuRecord() const;
  [[nodiscard]] std::string MainMenuFile() const;

 private:
  StripFileParts with_;
};

}  // namespace corvelle
