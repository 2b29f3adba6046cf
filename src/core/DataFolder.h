#pragma once

#include <string>
#include <string_view>

#include "platform/Platform.h"

namespace corvelle {

/// A file of this name beside the program says that its data is to lie there too.
inline constexpr std::string_view kPortableMark = "portable";

/// A file of this name beside the program says that what lies there only stands in for the user's
/// own folder, which could not be reached at some start. Nothing removes it.
inline constexpr std::string_view kStandInMark = "standin";

/// The folder of the menus, below that of the data.
inline constexpr std::string_view kMenusFolder = "Menus\\";

/// What decides where the menus, the options and the icons of a user lie.
struct DataFacts {
  bool Marked = false;        // the program's folder holds the file `portable`
  bool HoldsMenus = false;    // it holds a folder Menus that stands in for no other
  bool Writable = true;       // files can be made in it
  bool HasUserFolder = true;  // the system has a folder for the data of the user's programs
};

struct DataChoice {
  bool BesideProgram = true;  // else in the user's own folder
  /// The user would look for the data beside the program, and it cannot lie there.
  bool Tell = false;

  friend bool operator==(const DataChoice&, const DataChoice&) = default;
};

/// Where the data lies: beside the program when that is marked or begun and can be written to, else
/// in the user's own folder.
[[nodiscard]] DataChoice ChooseDataFolder(const DataFacts& facts) noexcept;

/// Where the data of a start lies, with a trailing backslash, and whether the user is to be told
/// so.
struct DataFolder {
  std::string Path;
  bool Tell = false;
  bool StandsIn = false;  // for the user's own folder, which cannot be reached
};

/// Looks at the disk and chooses. `programFolder` ends in a backslash. Makes the user's own folder
/// when it is chosen and missing. When that cannot be made, as before the server that has it is
/// there, the program's folder stands in for it and is marked so: the next start looks again.
[[nodiscard]] DataFolder FindDataFolder(const Platform& system, std::string_view programFolder);

/// True if the user has been told about this program's folder before.
[[nodiscard]] bool WasToldAbout(const Platform& system, const std::string& dataFolder,
                                std::string_view programFolder);

/// Notes that the user has been told. What cannot be noted is told again at the next start.
void NoteToldAbout(const Platform& system, const std::string& dataFolder,
                   std::string_view programFolder);

}  // namespace corvelle
