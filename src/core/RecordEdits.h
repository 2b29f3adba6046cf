#pragma once

#include <string>
#include <string_view>

#include "core/MenuRecord.h"
#include "platform/FileSystem.h"

namespace corvelle {

class CodePage;

/// The entry that a menu or popup acted on last, the entry clipboard and the last deleted entry.
struct EntryEdit {
  std::string CurTitle;
  std::string CurIcon;
  std::string CurCommand;
  std::string CurMenuTag;  // "B" or "F" and an index, "Q1", "SingleButtons" or "Toolbar"
  std::string CurFile;     // full path
  int CurRecord = 0;       // above kGeneratedBase for a generated entry
  /// The record that CurRecord leads to, as it was stored when the menu was built; empty where only
  /// the texts above tell the entry. Texts can be cut or shortened for the screen, this is not.
  std::string CurStored;

  std::string ClipTitle;
  std::string ClipIcon;
  std::string ClipCommand;

  std::string UndoTitle;
  std::string UndoIcon;
  std::string UndoCommand;
  std::string UndoMenuTag;  // empty: there is nothing to undo
  std::string UndoFile;
  int UndoRecord = 0;

  bool ItemDragging = false;  // a menu item is being moved with the mouse

  friend bool operator==(const EntryEdit&, const EntryEdit&) = default;
};

/// What an edit came to, and what the disk answered where it refused.
class EditOutcome {
 public:
  static const EditOutcome Edited;          // the file is changed
  static const EditOutcome NothingToDo;     // there is no such place, or no edit for such an entry;
                                            // the file is untouched
  static const EditOutcome RecordMismatch;  // the file does not hold the entry any more; the file
                                            // is untouched
  static const EditOutcome Failed;          // the disk refused; the file is what it was

  /// The disk refused with this answer.
  [[nodiscard]] static constexpr EditOutcome Refused(FileError reason) noexcept {
    return {Kind::Failed, reason};
  }

  /// What the disk answered; of one that did not fail it says nothing.
  [[nodiscard]] constexpr FileError Reason() const noexcept { return reason_; }

  /// Two that came to the same are equal, whatever the disk's reason.
  friend constexpr bool operator==(const EditOutcome& a, const EditOutcome& b) noexcept {
    return a.kind_ == b.kind_;
  }

 private:
  enum class Kind { Edited, NothingToDo, RecordMismatch, Failed };

  constexpr EditOutcome(Kind kind, FileError reason) noexcept : kind_(kind), reason_(reason) {}

  Kind kind_;
  FileError reason_;
};

inline constexpr EditOutcome EditOutcome::Edited{Kind::Edited, FileError::Failed};
inline constexpr EditOutcome EditOutcome::NothingToDo{Kind::NothingToDo, FileError::Failed};
inline constexpr EditOutcome EditOutcome::RecordMismatch{Kind::RecordMismatch, FileError::Failed};
inline constexpr EditOutcome EditOutcome::Failed{Kind::Failed, FileError::Failed};

/// What a step on the disk came to.
[[nodiscard]] EditOutcome OutcomeOf(const FileStatus& status) noexcept;

/// What the popup's texts call a tag.
[[nodiscard]] bool IsButtonTag(std::string_view tag) noexcept;  // "B" and an index
[[nodiscard]] bool IsMenuTag(std::string_view tag) noexcept;    // "F" and an index
inline constexpr std::string_view kSinglesTag = "SingleButtons";
[[nodiscard]] bool IsSinglesTag(std::string_view tag) noexcept;

/// Edited if CurFile still holds the current entry as its record CurRecord, RecordMismatch if it
/// does not.
EditOutcome FindCurrentEntry(FileSystem& files, const CodePage& ansi, const EntryEdit& edit);

/// Takes record CurRecord out of CurFile if it still is the current entry. Only for an entry of a
/// menu; a generated one never leaves, silently so during a drag.
EditOutcome DeleteMenuEntry(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                            const EntryEdit& edit);

/// Deletes the file of a toolbar button, if its first record still is the current entry. There is
/// no way back.
EditOutcome DeleteButtonFile(FileSystem& files, const CodePage& ansi, const EntryEdit& edit);

/// Puts the clipboard's record before record CurRecord of CurFile; for a generated entry before its
/// folder item. Past the end nothing is put.
EditOutcome PasteMenuEntry(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                           const EntryEdit& edit);

/// Puts the last deleted record back to its place in CurFile, or to the end when the file has
/// become shorter.
EditOutcome UndoDeleteMenuEntry(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                                const EntryEdit& edit);

/// Where a carried entry is put down. A generated entry stands for its folder item.
struct DropPlace {
  static constexpr int kEnd = 0;

  std::string File;   // full path
  int Before = kEnd;  // the record that it comes to stand before
};

/// True if the current entry would be put down on itself.
[[nodiscard]] bool IsDropOnItself(const EntryEdit& edit, const DropPlace& place) noexcept;

/// Moves the current entry within its own file, in one step. Only for a stored entry that the file
/// still holds at its place.
EditOutcome MoveMenuEntry(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                          const EntryEdit& edit, const DropPlace& place);

/// Puts a copy of the current entry down. A place that the file does not have, and the place of the
/// button's own record, take none.
EditOutcome CopyMenuEntry(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                          const EntryEdit& edit, const DropPlace& place);

/// Moves the current entry out of another file, of a menu or of a single button: both files change,
/// or neither, even when the program ends meanwhile. NothingToDo within one file, for a generated
/// entry and for a place that takes none; RecordMismatch if the entry is not there to be taken.
EditOutcome MoveEntryToMenu(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                            const EntryEdit& edit, const DropPlace& place);

/// The same out of a menu into the row of single buttons: in front of the button of that file,
/// behind the last one for an empty path.
EditOutcome MoveEntryToSingles(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                               const EntryEdit& edit, std::string_view before);

/// Makes the current entry of `entry` that of `live`, which keeps its clipboard, its undo store and
/// what it says of a carry.
void SetCurrentEntry(EntryEdit& live, EntryEdit entry);

/// Empties the current entry: nothing is carried or acted on any more.
void ForgetCurrentEntry(EntryEdit& edit);

/// Keeps a folder item from being expanded: edits the command of the item that a generated entry
/// came from. RecordMismatch, here and below, where there is no such folder item any more.
EditOutcome CloseFolderItem(FileSystem& files, const CodePage& ansi, const EntryEdit& edit);
/// Lets the folder item at CurRecord be expanded again.
EditOutcome OpenFolderItem(FileSystem& files, const CodePage& ansi, const EntryEdit& edit);

/// Clipboard = current entry.
void CopyEntry(EntryEdit& edit);
/// Clipboard = a record; three empty texts by default.
void SetClipboard(EntryEdit& edit, const MenuRecord& record = {});

/// Undo store = current entry. A deleted toolbar button cannot be brought back, so that its tag
/// leaves nothing to undo.
void RememberForUndo(EntryEdit& edit);

/// The undo store as it was in `before`.
void RestoreUndo(EntryEdit& edit, const EntryEdit& before);

/// Ends the chance to bring back what was deleted in a menu. Its tag is the place of a button on
/// the strip, where another menu may be by now.
void ForgetMenuUndo(EntryEdit& edit);

/// Makes the separator above the current entry the current entry and remembers it for undoing.
/// RecordMismatch, and nothing changed, when the file has no such record.
EditOutcome SelectSeparatorAbove(FileSystem& files, const CodePage& ansi, EntryEdit& edit);

}  // namespace corvelle
