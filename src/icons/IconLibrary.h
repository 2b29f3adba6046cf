#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/WindowPorts.h"

namespace corvelle {

class Program;

// The store of the icons that come with the program, below Program::Paths. Failures are quiet,
// save that of the missing container: what cannot be read is empty, and what cannot be written
// keeps its old content.

/// Name of the container, which comes with the program.
inline constexpr std::string_view kLibraryFile = "icon.lib";

/// Unpacks the container of `source` into the folder `target`. Files of the same name are replaced,
/// each in one step, and others stay; the disk is waited for once, at the end. An entry whose name
/// would leave the folder is passed over; one that is longer than the container ends the unpacking.
/// Lets events run and counts every fifth entry in the startup window. Without a container the user
/// is told.
void ExtractIconLibrary(Program& program, std::string_view target, std::string_view source);

/// The port of it: from where the program lies into its folder of icons.
class IconLibrary final : public IconLibraryPort {
 public:
  explicit IconLibrary(Program& program) : program_(program) {}
  void ExtractIconLibrary() override;

 private:
  Program& program_;
};

/// Names of the categories, sorted: those of the .ini files without the ending.
[[nodiscard]] std::vector<std::string> LibraryCategories(Program& program);

/// File names of the icons of a category. Empty when no category has that name.
[[nodiscard]] std::vector<std::string> CategoryIcons(Program& program, std::string_view category);

/// File names of all icons, from the prepared list if there is one; else in the order in which the
/// folder gives them, and the list is made.
[[nodiscard]] std::vector<std::string> AllIcons(Program& program);

/// Removes the derived files ("*.dat" and "*.ics" in the folder of icons) and clears
/// Program::Icons.
void ResetLibrary(Program& program);

/// The same without the user's having asked: "others.dat", in which he may have put files of his
/// own, stays.
void DropPreparedLists(Program& program);

/// Notes the display's values for the next time. When they differ from those of the last time (or
/// none were noted), the derived files are removed, and the answer is true.
bool CheckLibraryDisplay(Program& program);

}  // namespace corvelle
