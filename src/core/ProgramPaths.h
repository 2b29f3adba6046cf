#pragma once

#include <string>
#include <string_view>

namespace corvelle {

/// The folders of one run, each with a trailing backslash.
struct ProgramPaths {
  /// Where the user's data lies: the program's own folder, or that of the user's programs
  /// (core/DataFolder.h).
  std::string AppPath;
  /// Where the program and what came with it lie; empty: in AppPath.
  std::string ShippedPath;
  std::string MenusPath;
  std::string IconsPath;
  std::string ShellLinkPath;

  /// Path of a file that came with the program.
  [[nodiscard]] std::string ShippedFile(std::string_view name) const {
    return (ShippedPath.empty() ? AppPath : ShippedPath) + std::string(name);
  }
};

}  // namespace corvelle
