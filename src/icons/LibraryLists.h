#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvelle {

class CodePage;
class FileSystem;
class SystemInfo;
struct IconState;
struct ProgramPaths;
namespace forms {
class WindowSystem;
}

/// What the lists of the icon library are read and made with. All of it outlives them.
struct LibraryListParts {
  FileSystem& Files;
  const CodePage& Ansi;
  const ProgramPaths& Paths;
  IconState& Icons;
  const forms::WindowSystem& Windows;
  const SystemInfo& System;
};

/// Which icons the program's folder of icons holds, and in which categories. Failures are quiet:
/// what cannot be read is empty, and what cannot be written keeps its old content.
class LibraryLists {
 public:
  explicit LibraryLists(const LibraryListParts& with) : with_(with) {}

  /// Names of the categories, sorted: those of the .ini files without the ending.
  [[nodiscard]] std::vector<std::string> Categories() const;

  /// File names of the icons of a category. Empty when no category has that name.
  [[nodiscard]] std::vector<std::string> IconsOf(std::string_view category) const;

  /// File names of all icons, from the prepared list if there is one; else in the order in which
  /// the folder gives them, and the list is made.
  [[nodiscard]] std::vector<std::string> AllIcons() const;

  /// Removes the derived files ("*.dat" and "*.ics" in the folder of icons) and clears
  /// IconState::LibraryBuilt.
  void Reset() const;

  /// The same without the user's having asked: "others.dat", in which he may have put files of his
  /// own, stays.
  void DropPrepared() const;

  /// Notes the display's values for the next time. When they differ from those of the last time (or
  /// none were noted), the derived files are removed, and the answer is true.
  bool CheckDisplay() const;

 private:
  void RemoveAll(std::string_view pattern) const;
  [[nodiscard]] std::vector<std::string> FileNames(std::string_view pattern) const;
  /// The lines of a text file in the folder of icons; nothing when it is not there.
  [[nodiscard]] std::optional<std::vector<std::string>> ReadLines(const std::string& name) const;

  LibraryListParts with_;
};

}  // namespace corvelle
