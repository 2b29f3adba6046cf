#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/DroppedFiles.h"
#include "core/MenuRecord.h"
#include "core/RecordEdits.h"
#include "forms/Types.h"
#include "launch/FileTitle.h"

namespace corvelle {

struct ProgramPaths;
struct WindowPorts;

/// What editing the files of the single buttons works with. All of it outlives it.
struct SingleEditParts {
  FileSystem& Files;
  const CodePage& Ansi;
  const ProgramPaths& Paths;
  const WindowPorts& Ports;
  const EntryEdit& Entry;
  FileTitles Titles;
};

/// Edits of the files of the single buttons. A disk that refuses leaves them as they were. What
/// answers true has changed the row, or found another one than is shown; such an edit is told of
/// (WindowPorts::TellMenusEdited).
class SingleEdits {
 public:
  explicit SingleEdits(const SingleEditParts& with) : with_(with) {}

  // For whoever tells of the edit himself.

  [[nodiscard]] FileStatus Delete(std::string_view file) const;
  /// The clipboard's entry, in front of the button of `file`.
  [[nodiscard]] FileStatus Paste(std::string_view file) const;
  /// The entry that was deleted last, back at its place.
  [[nodiscard]] FileStatus UndoDelete(std::string_view file) const;

  /// Takes a carried entry out of its menu; see MoveEntryToSingles.
  [[nodiscard]] EditOutcome TakeFromMenu(const std::string& before, const EntryEdit& carried) const;
  /// Puts a copy of it in front of the button of `before`, behind the last one when it is empty.
  [[nodiscard]] bool PutCopy(const std::string& before, const EntryEdit& carried) const;
  /// Puts it down behind the last button, or in front of the button of `target`. The right button
  /// copies.
  [[nodiscard]] bool DropBehind(const EntryEdit& carried, forms::MouseButton released) const;
  [[nodiscard]] bool DropBefore(const std::string& target, const EntryEdit& carried,
                                forms::MouseButton released) const;

  /// What dropped files become in the row.
  [[nodiscard]] DroppedEntries EntriesOf(std::vector<std::string> names) const;
  /// Puts records in front of the button of the file `before`, behind the last one when it is
  /// empty.
  [[nodiscard]] bool Add(const std::vector<MenuRecord>& records, const std::string& before) const;

 private:
  bool Told(const FileStatus& edited) const;
  [[nodiscard]] bool IsAnother(const EntryEdit& carried) const;

  SingleEditParts with_;
};

}  // namespace corvelle
