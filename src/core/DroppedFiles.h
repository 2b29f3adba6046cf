#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/MenuRecord.h"
#include "core/RecordEdits.h"
#include "forms/DragDrop.h"

namespace corvelle {

// What other programs drop on buttons and menus becomes records.

/// Name of a menu file while dropped files are put into it, beside it.
inline constexpr std::string_view kDropFileName = "tFile.tmp";

/// What a drop does by the button that it was dragged with: the right one links, any other copies.
[[nodiscard]] forms::DropEffect EffectOfDrag(forms::MouseButton dragged) noexcept;

/// True if there is anything in the data that a button or a menu can take.
[[nodiscard]] bool IsOfUse(const forms::DragData& data) noexcept;

/// True if a record can hold the path.
[[nodiscard]] bool FitsRecord(const CodePage& ansi, std::string_view path);

/// The path of a file as a record can hold it: itself, or with the short names of the disk where it
/// is too long. Nothing when neither fits. Asks the disk for a path that is too long.
[[nodiscard]] std::optional<std::string> PathForRecord(FileSystem& files, const CodePage& ansi,
                                                       std::string_view path);

/// What becomes of dropped files.
struct DroppedEntries {
  std::vector<MenuRecord> Records;
  std::vector<std::string> Refused;  // full paths that no record can hold
};

/// What the disk and the shell know of a dropped file.
struct DroppedName {
  std::string Title;
  std::optional<std::string> Stored;  // see PathForRecord
};

/// One record for each file, in ascending order of the names: its title and its path, which is its
/// icon and its command, by `namesOf`, which gets them in that order.
using NamesOfDropped = std::function<std::vector<DroppedName>(const std::vector<std::string>&)>;
[[nodiscard]] DroppedEntries DroppedRecords(std::vector<std::string> names,
                                            const NamesOfDropped& namesOf);

/// What the user is told of the files that were refused; there is one at least. Names the first
/// ten.
[[nodiscard]] std::string RefusedFilesText(const std::vector<std::string>& names);

/// The web address in a dropped text: its first line, when it begins with "http://" or
/// "https://" in lower case.
[[nodiscard]] std::optional<std::string> DroppedAddress(std::string_view text);

/// The file in which the entries of a menu are stored: for the generated file of an expanded menu
/// the one it was made from, else the file itself.
[[nodiscard]] std::string StoredMenuFile(std::string_view menuFile);

/// Puts the records at the end of a button's menu. NothingToDo for a file that is missing or has
/// not even the button's own record, and when the numbers of records do not reach.
EditOutcome AppendDropped(FileSystem& files, const CodePage& ansi, std::string_view path,
                          const std::vector<MenuRecord>& records);

/// Puts the records before record `position` of a menu, 0 for the end; before the folder item that
/// a generated entry came from. They never come before the button's own record. NothingToDo as
/// above.
EditOutcome InsertDropped(FileSystem& files, const CodePage& ansi, std::string_view path,
                          int position, const std::vector<MenuRecord>& records);

}  // namespace corvelle
