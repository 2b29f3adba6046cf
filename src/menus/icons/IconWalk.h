#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvelle {

class Program;

/// The icon texts of a menu file.
struct IconTexts {
  std::string Button;  // of its first record; empty when there is none to fetch
  /// Of the other records in their order, each open folder item's followed by the full paths of the
  /// files that it holds now, which are the icon texts of its entries.
  std::vector<std::string> Items;
};

/// Reads a menu file and lists its open folder items on the disk. A file that cannot be read has no
/// icons, and a folder that cannot be listed no files.
[[nodiscard]] IconTexts IconTextsOf(Program& program, std::string_view menuFile);

/// True for an icon text that is not fetched beforehand: "/h", case apart, stands behind its first
/// NUL.
[[nodiscard]] bool IsSkippedIcon(std::string_view icon);

}  // namespace corvelle
