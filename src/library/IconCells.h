#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace corvelle {

// What the cells of the icon library stand for.

/// One icon that can be picked.
struct IconCell {
  std::string Caption;
  /// What the filter and the letters look at: the caption before it was cut.
  std::string Name;
  /// The icon text of an entry: "\icons\" and a file name, or a path, " |" and a number.
  std::string Text;
  /// Full path of the file with the icon, and the icon's number in it.
  std::string File;
  int Index = 0;

  friend bool operator==(const IconCell&, const IconCell&) = default;
};

/// A file name as a caption: its first letter upper, the rest lower; of more than 11 characters the
/// first 9 and " ..".
[[nodiscard]] std::string ReadableName(std::string_view fileName);

/// The cells of icon files below `iconsPath`, which ends in a backslash.
[[nodiscard]] std::vector<IconCell> LibraryCells(const std::vector<std::string>& fileNames,
                                                 std::string_view iconsPath);

/// The icon text of one of the icons in a file: its path, " |" and the number.
[[nodiscard]] std::string FileIconText(std::string_view path, int index);

/// The cells of all icons in one file; "Icon: 000" is the first one.
[[nodiscard]] std::vector<IconCell> FileCells(std::string_view path, int count);

/// Indices of the cells whose name holds the text, ignoring case and blanks at its ends; all cells
/// for an empty text.
[[nodiscard]] std::vector<std::size_t> FilterCells(const std::vector<IconCell>& cells,
                                                   std::string_view text);

/// The place in `shown` of the next cell behind `current` whose name begins with the character,
/// ignoring case; from the first one on after the last. -1 when no cell fits; `current` may be -1.
[[nodiscard]] int CellByLetter(const std::vector<IconCell>& cells,
                               const std::vector<std::size_t>& shown, int current,
                               char32_t character);

}  // namespace corvelle
