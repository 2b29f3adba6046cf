#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/ShellFolders.h"

namespace corvelle {

class CodePage;

inline constexpr int kDesktopFolder = 0;
inline constexpr int kRecycleBinFolder = 10;

/// True for the name of a special folder that the program knows, ignoring case.
[[nodiscard]] bool IsKnownSpecialFolder(std::string_view name) noexcept;

/// The shell's number of a special folder by its name ("CSIDL_DRIVES", in any case, nothing around
/// it). Any other text is the desktop, 0.
[[nodiscard]] int CsidlValue(std::string_view name) noexcept;

/// How a special folder opens as itself.
enum class SpecialFolderKind {
  None,     // no folder that the program knows
  Disk,     // by its path
  Desktop,  // the root of all folders, in a window of the shell
  Shell,    // by the shell alone
};

[[nodiscard]] SpecialFolderKind KindOfSpecialFolder(int value) noexcept;

/// What the command of an entry says about a special folder.
struct SpecialFolderText {
  std::string Name;   // "CSIDL_..."
  std::string Title;  // of an entry in the folder; empty: the folder itself
  std::string Options;

  friend bool operator==(const SpecialFolderText&, const SpecialFolderText&) = default;
};

/// Takes a command apart: "CSIDL_DRIVES", "CSIDL_DRIVES/X", and with the title of an entry before
/// or behind the folder and a "\" between them. A title in the command comes before `title`; the
/// option "X" leaves the folder itself.
[[nodiscard]] SpecialFolderText ParseSpecialFolder(std::string_view command,
                                                   std::string_view title);

/// True for the title of an entry (nothing that looks like a path), a "\" and the name of a known
/// special folder, which is what a copied entry of such a folder has for its command.
[[nodiscard]] bool IsSpecialFolderEntry(std::string_view command) noexcept;

/// The command of a copy of an entry: its name, a "\" and the folder. A name that would not leave
/// room for the folder in a record is cut; FindEntryByTitle still finds it.
[[nodiscard]] std::string SpecialFolderEntryCommand(std::string_view name, std::string_view folder,
                                                    const CodePage& ansi);

/// Index of the entry's name that a title stands for: the same text, or else the same but for case
/// and blanks at its ends, or else, for a title that a record may have cut, the first that begins
/// with it. -1 when none does.
[[nodiscard]] int FindEntryByTitle(const std::vector<std::string>& names, std::string_view title);

}  // namespace corvelle
