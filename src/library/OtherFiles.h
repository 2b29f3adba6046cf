#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "icons/OtherIcons.h"

namespace corvelle {

class ShellLinks;

// What the buttons Add and Remove do to the list of other files (icons/OtherIcons.h).

/// What they work with. All of it outlives them.
struct OtherFileParts {
  OtherIcons Stored;
  ShellLinks& Links;
  ShellIcons& Icons;
};

/// What came of a file that the user chose for the list.
struct AddedFile {
  /// What the user is to be told; empty when the file is in the list now.
  std::string Refusal;
  /// Place of its row in the list.
  int Row = -1;
};

/// Adds the file to the sorted rows and stores them; a shortcut stands for its target. A file
/// without icons, and one that is in the list, is refused.
AddedFile AddOtherFile(const OtherFileParts& with, std::vector<std::string>& rows,
                       std::string_view chosen);

/// What is asked before a row goes.
[[nodiscard]] std::string RemoveQuestion(std::string_view row);

/// Takes a row out of the list and stores the rest; nothing for a row that there is not.
void RemoveOtherFile(const OtherIcons& stored, std::vector<std::string>& rows, int row);

}  // namespace corvelle
