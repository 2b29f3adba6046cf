#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvelle::sim {

/// A Windows path taken apart as the system does it.
struct SimPath {
  char Drive = 'C';  // capital letter
  std::vector<std::string> Parts;
  bool EndsInBackslash = false;

  [[nodiscard]] bool IsRoot() const { return Parts.empty(); }
};

/// What becomes of a path text before the disk is asked.
enum class PathFault {
  None,
  BadName,  // a name that no file can have
  NoDrive,  // a network path or no drive letter
};

struct ParsedPath {
  SimPath Path;
  PathFault Fault = PathFault::None;
};

/// Takes a path apart: "/" counts as a backslash, "." and ".." are resolved, blanks and points at
/// the end of a name fall away. A path without a drive starts in `currentFolder`.
[[nodiscard]] ParsedPath ParsePath(std::string_view path, std::string_view currentFolder);

/// The path with its drive and backslashes, without one at the end of a file or folder.
[[nodiscard]] std::string FormatPath(const SimPath& path);

/// True for the names that stand for devices in every folder, with whatever extension.
[[nodiscard]] bool IsDeviceName(std::string_view name);

}  // namespace corvelle::sim
