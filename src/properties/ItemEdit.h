#pragma once

#include <string>
#include <string_view>

#include "core/MenuRecord.h"
#include "platform/FileSystem.h"

namespace corvelle {

class CodePage;
struct EntryEdit;

// One entry edited in place, in its file. A file that another window or program changed meanwhile
// is never overwritten: the record is compared with the bytes that it had.

/// The entry in the boxes.
struct EditedItem {
  std::string Key;   // where it stands, as EntryEdit::CurMenuTag says it
  std::string File;  // full path
  int Record = 0;    // from 1; above kGeneratedBase for an entry that has no record of its own

  /// What the boxes showed first, for CancelFileItem, and what the file holds by now.
  MenuRecord Starting;
  MenuRecord Current;
  /// The records' bytes; empty where only the texts tell them.
  std::string StartingBytes;
  std::string CurrentBytes;
};

/// Makes the current entry the one in the boxes. Where its stored record is known, the texts are
/// those of the record: what a menu shows can be cut.
[[nodiscard]] EditedItem MakeFileItem(const EntryEdit& entry, MenuRecord shown,
                                      const CodePage& ansi);

enum class ItemResult {
  Written,
  Same,         // the file holds the texts already; it is untouched
  FolderEntry,  // an entry of a folder has no record; nothing was done
  Mismatch,     // the file does not hold the entry any more; it is untouched
  Failed,       // the disk refused; the file is what it was
};

struct ItemOutcome {
  ItemResult Result = ItemResult::Same;
  FileError Reason = FileError::Failed;  // of a failure
};

/// Writes the texts, trimmed, to the entry's record. They are its current ones then, as far as the
/// record holds them.
ItemOutcome UpdateFileItem(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                           EditedItem& item, const MenuRecord& boxes);

/// Writes the starting texts back where UpdateFileItem changed them and nobody else since.
ItemOutcome CancelFileItem(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                           EditedItem& item);

/// The order of the buttons gave the entry's file another path, and the record of its button the
/// bytes `button`. What the entry had to begin with keeps all but the third field of that.
void FollowOrder(EditedItem& item, std::string_view path, std::string_view button,
                 const CodePage& ansi);

/// What the user is told; empty for what succeeded, and for a failure of the disk, which is the
/// caller's to tell.
[[nodiscard]] std::string_view RefusalText(ItemResult result) noexcept;

}  // namespace corvelle
