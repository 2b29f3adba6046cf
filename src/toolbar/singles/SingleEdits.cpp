#include "toolbar/singles/SingleEdits.h"

#include <cstddef>
#include <utility>

#include "base/Text.h"
#include "core/ProgramPaths.h"
#include "core/SingleFiles.h"
#include "core/WindowPorts.h"
#include "platform/FileSystem.h"

namespace corvelle {
namespace {

MenuRecord CarriedRecord(const EntryEdit& carried) {
  return {carried.CurTitle, carried.CurIcon, carried.CurCommand};
}

}  // namespace

FileStatus SingleEdits::Delete(std::string_view file) const {
  return DeleteSingleFile(with_.Files, with_.Paths.MenusPath, file);
}

FileStatus SingleEdits::Paste(std::string_view file) const {
  const EntryEdit& entry = with_.Entry;
  return PasteSingleFile(with_.Files, with_.Ansi, with_.Paths.MenusPath, file,
                         {entry.ClipTitle, entry.ClipIcon, entry.ClipCommand});
}

FileStatus SingleEdits::UndoDelete(std::string_view file) const {
  if (file.empty()) return FileError::BadName;
  const EntryEdit& entry = with_.Entry;
  return UndoDeleteSingleFile(with_.Files, with_.Ansi, with_.Paths.MenusPath, file,
                              {entry.UndoTitle, entry.UndoIcon, entry.UndoCommand});
}

// True if the files were changed.
bool SingleEdits::Told(const FileStatus& edited) const {
  if (edited) with_.Ports.TellMenusEdited();
  return edited.HasValue();
}

EditOutcome SingleEdits::TakeFromMenu(const std::string& before, const EntryEdit& carried) const {
  const EditOutcome moved =
      MoveEntryToSingles(with_.Files, with_.Ansi, with_.Paths.MenusPath, carried, before);
  if (moved == EditOutcome::Edited) with_.Ports.TellMenusEdited();
  return moved;
}

bool SingleEdits::PutCopy(const std::string& before, const EntryEdit& carried) const {
  return Told(PasteSingleFile(with_.Files, with_.Ansi, with_.Paths.MenusPath, before,
                              CarriedRecord(carried)));
}

// True if another program has put another entry into the file of the carried one. That one stays
// where it is, and is to be shown.
bool SingleEdits::IsAnother(const EntryEdit& carried) const {
  return FindCurrentEntry(with_.Files, with_.Ansi, carried) == EditOutcome::RecordMismatch;
}

bool SingleEdits::DropBehind(const EntryEdit& carried, forms::MouseButton released) const {
  if (released != forms::MouseButton::Right && IsSinglesTag(carried.CurMenuTag)) {
    if (IsAnother(carried)) return true;
    return Told(MoveSingleFile(with_.Files, with_.Paths.MenusPath, carried.CurFile, {}));
  }
  return PutCopy({}, carried);
}

bool SingleEdits::DropBefore(const std::string& target, const EntryEdit& carried,
                             forms::MouseButton released) const {
  const bool ofRow = IsSinglesTag(carried.CurMenuTag);
  // Dropped where it came from, nothing changes.
  if (ofRow && EqualNoCase(target, carried.CurFile)) return false;
  if (ofRow && released != forms::MouseButton::Right) {
    if (IsAnother(carried)) return true;
    return Told(MoveSingleFile(with_.Files, with_.Paths.MenusPath, carried.CurFile, target));
  }
  return PutCopy(target, carried);
}

DroppedEntries SingleEdits::EntriesOf(std::vector<std::string> names) const {
  return DroppedRecords(std::move(names), [this](const std::vector<std::string>& paths) {
    return with_.Titles.GetDroppedNames(paths);
  });
}

bool SingleEdits::Add(const std::vector<MenuRecord>& records, const std::string& before) const {
  if (records.empty()) return false;
  const auto row = ReadSingleFiles(with_.Files, with_.Paths.MenusPath);
  if (!row) return false;
  const std::size_t at = before.empty() ? row->size() : PlaceOfSingle(*row, before);
  const SingleFiles after = WithSingles(*row, at, records, with_.Ansi);
  return Told(RewriteSingleFiles(with_.Files, with_.Paths.MenusPath, *row, after));
}

}  // namespace corvelle
