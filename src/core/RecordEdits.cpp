#include "core/RecordEdits.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "base/Text.h"
#include "core/FileTransaction.h"
#include "core/MenuFile.h"
#include "core/SingleFiles.h"

namespace corvelle {

namespace {

MenuRecord ClipboardRecord(const EntryEdit& edit) {
  return {edit.ClipTitle, edit.ClipIcon, edit.ClipCommand};
}

MenuRecord UndoStoreRecord(const EntryEdit& edit) {
  return {edit.UndoTitle, edit.UndoIcon, edit.UndoCommand};
}

MenuRecord CurrentRecord(const EntryEdit& edit) {
  return {edit.CurTitle, edit.CurIcon, edit.CurCommand};
}

bool IsSameEntry(const MenuRecord& a, const MenuRecord& b) {
  return EqualNoCase(a.FTitle, b.FTitle) && EqualNoCase(a.FIcon, b.FIcon) &&
         EqualNoCase(a.FName, b.FName);
}

/// True if `record` is the one that the current entry was read from.
bool IsCurrentEntry(const EntryEdit& edit, const CodePage& ansi, const MenuRecord& record) {
  return IsSameEntry(
      record, edit.CurStored.empty() ? CurrentRecord(edit) : ParseRecord(edit.CurStored, ansi));
}

/// The bytes that a copy of the current entry has.
std::string CopyOfCurrent(const EntryEdit& edit, const CodePage& ansi) {
  const bool stored = !edit.CurStored.empty() && !IsGenerated(edit.CurRecord);
  return stored ? edit.CurStored : FormatRecord(CurrentRecord(edit), ansi);
}

constexpr int kNoPlace = 0;

/// The record that a drop comes to stand before, one behind the last for the end of the file;
/// kNoPlace where nothing can be put down. The first record is the button's own.
FileResult<int> PlaceInFile(FileSystem& files, const DropPlace& place) {
  const FileResult<std::uint64_t> length = files.Length(place.File);
  if (!length) return length.Error();
  const int count = RecordCount(*length);
  if (place.Before == DropPlace::kEnd) return count + 1;
  const int before = RealRecord(place.Before);
  return before >= 2 && before <= count ? before : kNoPlace;
}

/// What it means that the current file cannot be read: one that is gone from its folder holds the
/// entry no more, and a folder that is gone is a failure.
EditOutcome NotRead(FileSystem& files, const EntryEdit& edit, FileError reason) {
  const bool gone = reason == FileError::NotFound &&
                    files.FolderExists(edit.CurFile.substr(0, edit.CurFile.rfind('\\') + 1));
  return gone ? EditOutcome::RecordMismatch : EditOutcome::Refused(reason);
}

bool IsFolder(std::string_view command) noexcept {
  return IsFolderItem(command) || IsSpecialFolder(command);
}

/// Writes record `number` of the current file back with another command, if it is a folder item
/// that is `closed` or not. Another program may have put another entry there since the menu was
/// built.
EditOutcome ChangeFolder(FileSystem& files, const CodePage& ansi, const EntryEdit& edit, int number,
                         bool closed, std::string (*change)(std::string_view)) {
  const FileResult<int> count = CountRecords(files, edit.CurFile);
  if (!count) return EditOutcome::Refused(count.Error());
  if (number < 1 || number > *count) return EditOutcome::NothingToDo;
  FileResult<MenuRecord> record = ReadRecord(files, ansi, edit.CurFile, number);
  if (!record) return EditOutcome::Refused(record.Error());
  if (!IsFolder(record->FName) || IsClosedFolder(record->FName) != closed) {
    return EditOutcome::RecordMismatch;
  }
  if (!edit.CurStored.empty() && !IsCurrentEntry(edit, ansi, *record)) {
    return EditOutcome::RecordMismatch;
  }
  record->FName = change(record->FName);
  return OutcomeOf(WriteRecord(files, ansi, edit.CurFile, number, *record));
}

/// True for an entry of a menu that has a record of its own.
bool IsStoredItem(const EntryEdit& edit) {
  return IsMenuTag(edit.CurMenuTag) && !IsGenerated(edit.CurRecord);
}

FileStatus TakeOutOfMenu(FileSystem& files, const EntryEdit& edit, FileTransaction& move) {
  FileResult<std::string> records = ReadWholeRecords(files, edit.CurFile);
  if (!records) return records.Error();
  move.Write(edit.CurFile, WithoutRecord(*std::move(records), edit.CurRecord));
  return Done();
}

FileStatus TakeOutOfRow(FileSystem& files, std::string_view menusPath, const EntryEdit& edit,
                        FileTransaction& move) {
  const FileResult<SingleFiles> row = ReadSingleFiles(files, menusPath);
  if (!row) return row.Error();
  AddSingleRewrite(move, menusPath, *row, WithoutSingle(*row, edit.CurFile));
  return Done();
}

}  // namespace

EditOutcome OutcomeOf(const FileStatus& status) noexcept {
  return status ? EditOutcome::Edited : EditOutcome::Refused(status.Error());
}

bool IsButtonTag(std::string_view tag) noexcept { return StartsWithNoCase(tag, "B"); }

bool IsMenuTag(std::string_view tag) noexcept { return StartsWithNoCase(tag, "F"); }

bool IsSinglesTag(std::string_view tag) noexcept { return EqualNoCase(tag, kSinglesTag); }

EditOutcome FindCurrentEntry(FileSystem& files, const CodePage& ansi, const EntryEdit& edit) {
  const FileResult<int> count = CountRecords(files, edit.CurFile);
  if (!count) return NotRead(files, edit, count.Error());
  // A place that the file does not have reads as a blank entry, which is not the one meant. A
  // single button is what its file holds, even of one that is empty or cut short.
  const int last = IsSinglesTag(edit.CurMenuTag) ? std::max(*count, 1) : *count;
  if (edit.CurRecord < 1 || edit.CurRecord > last) return EditOutcome::RecordMismatch;
  const FileResult<MenuRecord> record = ReadRecord(files, ansi, edit.CurFile, edit.CurRecord);
  if (!record) return NotRead(files, edit, record.Error());
  return IsCurrentEntry(edit, ansi, *record) ? EditOutcome::Edited : EditOutcome::RecordMismatch;
}

EditOutcome DeleteMenuEntry(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                            const EntryEdit& edit) {
  if (!IsMenuTag(edit.CurMenuTag)) return EditOutcome::NothingToDo;
  if (IsGenerated(edit.CurRecord)) {
    return edit.ItemDragging ? EditOutcome::NothingToDo : EditOutcome::RecordMismatch;
  }
  const EditOutcome still = FindCurrentEntry(files, ansi, edit);
  if (still != EditOutcome::Edited) return still;
  return OutcomeOf(RewriteMenuFile(files, menusPath, edit.CurFile, [&](std::string records) {
    return WithoutRecord(std::move(records), edit.CurRecord);
  }));
}

EditOutcome DeleteButtonFile(FileSystem& files, const CodePage& ansi, const EntryEdit& edit) {
  const FileResult<std::string> stored = files.Read(edit.CurFile, 0, kRecordLength);
  if (!stored) return EditOutcome::Refused(stored.Error());
  if (!IsCurrentEntry(edit, ansi, ParseRecord(*stored, ansi))) return EditOutcome::RecordMismatch;
  return OutcomeOf(files.Remove(edit.CurFile));
}

EditOutcome PasteMenuEntry(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                           const EntryEdit& edit) {
  const FileResult<std::uint64_t> length = files.Length(edit.CurFile);
  if (!length) return EditOutcome::Refused(length.Error());
  const int place = RealRecord(edit.CurRecord);
  if (place < 1 || place > RecordCount(*length)) return EditOutcome::NothingToDo;
  const std::string record = FormatRecord(ClipboardRecord(edit), ansi);
  return OutcomeOf(RewriteMenuFile(files, menusPath, edit.CurFile, [&](std::string records) {
    return InsertRecord(std::move(records), place, record);
  }));
}

EditOutcome UndoDeleteMenuEntry(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                                const EntryEdit& edit) {
  // A generated entry was never deleted, so there is nothing to bring back.
  if (edit.UndoRecord < 1 || IsGenerated(edit.UndoRecord)) return EditOutcome::NothingToDo;
  const std::string record = FormatRecord(UndoStoreRecord(edit), ansi);
  return OutcomeOf(RewriteMenuFile(files, menusPath, edit.CurFile, [&](std::string records) {
    return InsertOrAppendRecord(std::move(records), edit.UndoRecord, record);
  }));
}

bool IsDropOnItself(const EntryEdit& edit, const DropPlace& place) noexcept {
  return place.Before != DropPlace::kEnd && place.Before == edit.CurRecord &&
         EqualNoCase(place.File, edit.CurFile);
}

EditOutcome MoveMenuEntry(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                          const EntryEdit& edit, const DropPlace& place) {
  if (!EqualNoCase(place.File, edit.CurFile) || IsGenerated(edit.CurRecord)) {
    return EditOutcome::NothingToDo;
  }
  const FileResult<int> before = PlaceInFile(files, place);
  if (!before) return EditOutcome::Refused(before.Error());
  if (*before == kNoPlace) return EditOutcome::NothingToDo;
  const EditOutcome still = FindCurrentEntry(files, ansi, edit);
  if (still != EditOutcome::Edited) return still;
  return OutcomeOf(RewriteMenuFile(files, menusPath, edit.CurFile, [&](std::string records) {
    return MoveRecord(std::move(records), edit.CurRecord, *before);
  }));
}

EditOutcome CopyMenuEntry(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                          const EntryEdit& edit, const DropPlace& place) {
  const FileResult<int> before = PlaceInFile(files, place);
  if (!before) return EditOutcome::Refused(before.Error());
  if (*before == kNoPlace) return EditOutcome::NothingToDo;
  const std::string record = CopyOfCurrent(edit, ansi);
  return OutcomeOf(RewriteMenuFile(files, menusPath, place.File, [&](std::string records) {
    return InsertOrAppendRecord(std::move(records), *before, record);
  }));
}

EditOutcome MoveEntryToMenu(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                            const EntryEdit& edit, const DropPlace& place) {
  const bool single = IsSinglesTag(edit.CurMenuTag);
  if (!single && !IsStoredItem(edit)) return EditOutcome::NothingToDo;
  if (EqualNoCase(place.File, edit.CurFile)) return EditOutcome::NothingToDo;
  const FileResult<int> before = PlaceInFile(files, place);
  if (!before) return EditOutcome::Refused(before.Error());
  if (*before == kNoPlace) return EditOutcome::NothingToDo;
  const EditOutcome still = FindCurrentEntry(files, ansi, edit);
  if (still != EditOutcome::Edited) return still;
  FileResult<std::string> target = ReadWholeRecords(files, place.File);
  if (!target) return EditOutcome::Refused(target.Error());
  FileTransaction move(files, menusPath);
  move.Write(place.File,
             InsertOrAppendRecord(*std::move(target), *before, CopyOfCurrent(edit, ansi)));
  const FileStatus taken =
      single ? TakeOutOfRow(files, menusPath, edit, move) : TakeOutOfMenu(files, edit, move);
  return OutcomeOf(taken ? move.Commit() : taken);
}

EditOutcome MoveEntryToSingles(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                               const EntryEdit& edit, std::string_view before) {
  if (!IsStoredItem(edit)) return EditOutcome::NothingToDo;
  const EditOutcome still = FindCurrentEntry(files, ansi, edit);
  if (still != EditOutcome::Edited) return still;
  const FileResult<SingleFiles> row = ReadSingleFiles(files, menusPath);
  if (!row) return EditOutcome::Refused(row.Error());
  const std::size_t at = PlaceOfSingle(*row, before);
  if (at == row->size() && !before.empty()) return EditOutcome::NothingToDo;
  FileTransaction move(files, menusPath);
  const MenuRecord record = ParseRecord(CopyOfCurrent(edit, ansi), ansi);
  AddSingleRewrite(move, menusPath, *row, WithSingles(*row, at, {record}, ansi));
  const FileStatus taken = TakeOutOfMenu(files, edit, move);
  return OutcomeOf(taken ? move.Commit() : taken);
}

void SetCurrentEntry(EntryEdit& live, EntryEdit entry) {
  entry.ClipTitle = live.ClipTitle;
  entry.ClipIcon = live.ClipIcon;
  entry.ClipCommand = live.ClipCommand;
  RestoreUndo(entry, live);
  entry.ItemDragging = live.ItemDragging;
  live = std::move(entry);
}

void ForgetCurrentEntry(EntryEdit& edit) {
  edit.CurTitle.clear();
  edit.CurIcon.clear();
  edit.CurCommand.clear();
  edit.CurMenuTag.clear();
  edit.CurFile.clear();
  edit.CurRecord = 0;
  edit.CurStored.clear();
}

EditOutcome CloseFolderItem(FileSystem& files, const CodePage& ansi, const EntryEdit& edit) {
  return ChangeFolder(files, ansi, edit, RealRecord(edit.CurRecord), false, CloseFolderText);
}

EditOutcome OpenFolderItem(FileSystem& files, const CodePage& ansi, const EntryEdit& edit) {
  return ChangeFolder(files, ansi, edit, edit.CurRecord, true, OpenFolderText);
}

void CopyEntry(EntryEdit& edit) {
  SetClipboard(edit, {edit.CurTitle, edit.CurIcon, edit.CurCommand});
}

void SetClipboard(EntryEdit& edit, const MenuRecord& record) {
  edit.ClipTitle = record.FTitle;
  edit.ClipIcon = record.FIcon;
  edit.ClipCommand = record.FName;
}

void RememberForUndo(EntryEdit& edit) {
  edit.UndoTitle = edit.CurTitle;
  edit.UndoIcon = edit.CurIcon;
  edit.UndoCommand = edit.CurCommand;
  edit.UndoMenuTag = IsButtonTag(edit.CurMenuTag) ? std::string() : edit.CurMenuTag;
  edit.UndoFile = edit.CurFile;
  edit.UndoRecord = edit.CurRecord;
}

void RestoreUndo(EntryEdit& edit, const EntryEdit& before) {
  edit.UndoTitle = before.UndoTitle;
  edit.UndoIcon = before.UndoIcon;
  edit.UndoCommand = before.UndoCommand;
  edit.UndoMenuTag = before.UndoMenuTag;
  edit.UndoFile = before.UndoFile;
  edit.UndoRecord = before.UndoRecord;
}

void ForgetMenuUndo(EntryEdit& edit) {
  if (IsMenuTag(edit.UndoMenuTag)) edit.UndoMenuTag.clear();
}

EditOutcome SelectSeparatorAbove(FileSystem& files, const CodePage& ansi, EntryEdit& edit) {
  const int place = RealRecord(edit.CurRecord) - 1;
  // Record 1 is the button's, whatever icon it has.
  if (place < 2) return EditOutcome::RecordMismatch;
  const FileResult<MenuRecord> record = ReadRecord(files, ansi, edit.CurFile, place);
  if (!record) return NotRead(files, edit, record.Error());
  // The rule above a generated entry can be a generated one too, and what is in the file before
  // its folder item is then no separator.
  if (!IsSeparatorIcon(record->FIcon)) return EditOutcome::RecordMismatch;
  edit.CurRecord = place;
  edit.CurStored.clear();
  edit.CurTitle = record->FTitle;
  edit.CurIcon = record->FIcon;
  edit.CurCommand = record->FName;
  RememberForUndo(edit);
  return EditOutcome::Edited;
}

}  // namespace corvelle
