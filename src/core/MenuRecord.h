#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvelle {

class CodePage;

/// One entry of a menu or button file.
struct MenuRecord {
  std::string FTitle;  // the text shown
  std::string FIcon;   // an icon reference or a marker word
  std::string FName;   // the command, the folder or a flag

  friend bool operator==(const MenuRecord&, const MenuRecord&) = default;
};

// On disk the three fields stand one after the other, in this order and with nothing else. Bytes.
inline constexpr std::size_t kTitleWidth = 50;
inline constexpr std::size_t kIconWidth = 260;
inline constexpr std::size_t kNameWidth = 260;
inline constexpr std::size_t kRecordLength = kTitleWidth + kIconWidth + kNameWidth;

/// Record numbers start at 1 and are 16-bit signed: what lies beyond this one is not read.
inline constexpr int kMaxRecords = 32767;

/// Numbers above this one are no places in a file: they name the folder item, at the number less
/// this, that an entry was generated from.
inline constexpr int kGeneratedBase = 5000;

inline constexpr std::string_view kSeparatorIcon = "MenuLineSeparator";
inline constexpr std::string_view kBreakerIcon = "MenuBreaker";  // old files have it, none is made
inline constexpr std::string_view kNewItemIcon = "New";
inline constexpr std::string_view kNewButtonIcon = "Button";
inline constexpr std::string_view kSpecialFolderStart = "CSIDL_";

/// The record in `bytes`, each field trimmed of blanks at both ends. Short input leaves the rest
/// blank; bytes past the record's length are not looked at.
[[nodiscard]] MenuRecord ParseRecord(std::string_view bytes, const CodePage& ansi);

/// The record's 570 bytes. A field too long for its place loses its tail.
[[nodiscard]] std::string FormatRecord(const MenuRecord& record, const CodePage& ansi);

/// How many records a file of this many bytes has: rounded to the nearest, halves to even, and
/// never above kMaxRecords.
[[nodiscard]] int RecordCount(std::uint64_t length) noexcept;

/// True for the marker words of a separator line.
[[nodiscard]] bool IsSeparatorIcon(std::string_view icon) noexcept;

/// True if a button's FName says that the button is hidden: "/h" once all blanks are out.
[[nodiscard]] bool IsHiddenFlag(std::string_view name);

/// True for a folder on the disk with a file pattern, which a menu shows the files of.
[[nodiscard]] bool IsFolderItem(std::string_view name) noexcept;
/// True for a folder of the shell.
[[nodiscard]] bool IsSpecialFolder(std::string_view name) noexcept;

/// The option letters of a folder item: what follows its first "/", in capitals; empty without one.
[[nodiscard]] std::string FolderOptions(std::string_view name);
/// The folder item without its options, trimmed.
[[nodiscard]] std::string FolderWithoutOptions(std::string_view name);
/// True if the options hold "X": the item is not expanded at present.
[[nodiscard]] bool IsClosedFolder(std::string_view name);

/// The FName that keeps a folder item from being expanded: " /X" added, or " X" when it has
/// options.
[[nodiscard]] std::string CloseFolderText(std::string_view name);
/// The FName that lets it be expanded again: without the "X" of its options, and without a "/" that
/// this leaves at the end.
[[nodiscard]] std::string OpenFolderText(std::string_view name);

/// True if the number is that of a generated entry.
[[nodiscard]] constexpr bool IsGenerated(int recordNumber) noexcept {
  return recordNumber > kGeneratedBase;
}
/// The record in the menu file that an entry's number leads to.
[[nodiscard]] constexpr int RealRecord(int recordNumber) noexcept {
  return IsGenerated(recordNumber) ? recordNumber - kGeneratedBase : recordNumber;
}

/// What an entry of a menu stands for. Neither part hangs on the title shown, which may be cut.
struct EntryOrigin {
  int Record = 0;    // its number in the menu file, see RealRecord; 0 for none
  std::string Name;  // of an entry of a folder of the shell its whole name there, else empty

  friend bool operator==(const EntryOrigin&, const EntryOrigin&) = default;
};

/// A title of an expanded menu file: what is shown, and the record that the entry stands for.
struct NumberedTitle {
  std::string Title;
  int Record = 0;

  friend bool operator==(const NumberedTitle&, const NumberedTitle&) = default;
};

/// Takes a title apart at its first NUL. Without one the record number is `place`, the record's own
/// place in its file; after one it is 0 where no number follows.
[[nodiscard]] NumberedTitle SplitTitle(std::string_view title, int place);

/// The title, a NUL and the number. The title is cut so that the number always fits into the field.
[[nodiscard]] std::string JoinTitle(std::string_view title, int recordNumber, const CodePage& ansi);

[[nodiscard]] MenuRecord NewButtonRecord();
[[nodiscard]] MenuRecord NewItemRecord();
[[nodiscard]] MenuRecord NewSeparatorRecord();

/// The 16 records of the program's own menu; the first stands for the menu's button.
[[nodiscard]] std::vector<MenuRecord> MainMenuRecords();
inline constexpr std::string_view kMainMenuFileName = "mainmenu.dat";

/// "BMENU007.MNU" and "BMENU007.BTN": the files of menu button and single button number 7.
[[nodiscard]] std::string MenuFileName(int number);
[[nodiscard]] std::string SingleFileName(int number);

}  // namespace corvelle
