#pragma once

#include <string>
#include <vector>

namespace corvelle {

class Program;

// The list of other files that hold icons, "others.dat" in the folder of icons. Its rows have the
// form of OtherFileRow (icons/LibraryFile.h). Errors with the file are quiet.

/// The rows of the list, sorted. A list that is missing is made first (see InitOthers).
[[nodiscard]] std::vector<std::string> ReadOthers(Program& program);

/// Stores the paths of the rows; without any the file is removed.
void SaveOthers(Program& program, const std::vector<std::string>& rows);

/// The list to begin with: the shell's files of icons, as far as they exist, and each program that
/// is registered under "App Paths" and holds an icon, once. Stores it, and returns its rows,
/// sorted.
std::vector<std::string> InitOthers(Program& program);

}  // namespace corvelle
