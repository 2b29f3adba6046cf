#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvelle {

/// Which programs open which files.
class FileAssociations {
 public:
  virtual ~FileAssociations() = default;

  /// Path of the program that would open an existing file; nothing when the file is missing or
  /// belongs to no program.
  [[nodiscard]] virtual std::optional<std::string> ProgramFor(std::string_view file) = 0;
};

}  // namespace corvelle
