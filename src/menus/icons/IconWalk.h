#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvelle {

class Program;

/// The icon texts of a menu file.
struct IconTexts {
  std::string Button;  // of its first record; empty when there is none to fetch
  /// Of the other records in their order.
  std::vector<std::string> Items;
  /// The commands of its open folder items on the disk. The paths of the files that they hold are
  /// the icon texts of their entries.
  std::vector<std::string> Folders;
};

/// Reads a menu file. One that cannot be read has no icons.
[[nodiscard]] IconTexts IconTextsOf(Program& program, std::string_view menuFile);

/// True for an icon text that is not fetched beforehand: "/h", case apart, stands behind its first
/// NUL.
[[nodiscard]] bool IsSkippedIcon(std::string_view icon);

}  // namespace corvelle
