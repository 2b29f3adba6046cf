#include "properties/ItemEdit.h"

#include <utility>

#include "base/Text.h"
#include "core/MenuFile.h"
#include "core/RecordEdits.h"

namespace corvelle {

namespace {

MenuRecord Trimmed(const MenuRecord& record) {
  return {Trim(record.FTitle), Trim(record.FIcon), Trim(record.FName)};
}

bool Holds(const std::string& stored, const MenuRecord& texts, const std::string& bytes,
           const CodePage& ansi) {
  if (!bytes.empty()) return stored == bytes;
  return ParseRecord(stored, ansi) == Trimmed(texts);
}

FileStatus WriteStored(FileSystem& files, std::string_view menusPath, const EditedItem& item,
                       const std::string& bytes) {
  return RewriteMenuFile(files, menusPath, item.File, [&](std::string records) {
    return InsertOrAppendRecord(WithoutRecord(std::move(records), item.Record), item.Record, bytes);
  });
}

/// The entry's record if the file still holds it there; Mismatch or Failed otherwise.
ItemOutcome FindRecord(FileSystem& files, const CodePage& ansi, const EditedItem& item,
                       std::string& stored) {
  const FileResult<std::string> records = ReadWholeRecords(files, item.File);
  if (!records && records.Error() == FileError::NotFound) return {ItemResult::Mismatch};
  if (!records) return {ItemResult::Failed, records.Error()};
  stored = StoredRecord(*records, item.Record);
  if (stored.empty() || !Holds(stored, item.Current, item.CurrentBytes, ansi)) {
    return {ItemResult::Mismatch};
  }
  return {ItemResult::Same};
}

}  // namespace

EditedItem MakeFileItem(const EntryEdit& entry, MenuRecord shown, const CodePage& ansi) {
  EditedItem item{.Key = entry.CurMenuTag, .File = entry.CurFile, .Record = entry.CurRecord};
  const bool stored = !entry.CurStored.empty() && !IsGenerated(entry.CurRecord);
  item.Starting = stored ? ParseRecord(entry.CurStored, ansi) : std::move(shown);
  if (stored) item.StartingBytes = entry.CurStored;
  item.Current = item.Starting;
  item.CurrentBytes = item.StartingBytes;
  return item;
}

ItemOutcome UpdateFileItem(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                           EditedItem& item, const MenuRecord& boxes) {
  if (IsGenerated(item.Record)) return {ItemResult::FolderEntry};
  std::string stored;
  const ItemOutcome found = FindRecord(files, ansi, item, stored);
  if (found.Result != ItemResult::Same) return found;
  if (item.StartingBytes.empty()) item.StartingBytes = item.CurrentBytes = stored;
  const MenuRecord wanted = Trimmed(boxes);
  // Texts that are equal leave the bytes as they are, which can say the same in another encoding.
  if (wanted == ParseRecord(stored, ansi)) return {ItemResult::Same};
  const std::string bytes = FormatRecord(wanted, ansi);
  const FileStatus written = WriteStored(files, menusPath, item, bytes);
  if (!written) return {ItemResult::Failed, written.Error()};
  item.Current = ParseRecord(bytes, ansi);
  item.CurrentBytes = bytes;
  return {ItemResult::Written};
}

ItemOutcome CancelFileItem(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                           EditedItem& item) {
  if (item.CurrentBytes == item.StartingBytes) return {ItemResult::Same};
  std::string stored;
  const ItemOutcome found = FindRecord(files, ansi, item, stored);
  if (found.Result != ItemResult::Same) return found;
  const FileStatus written = WriteStored(files, menusPath, item, item.StartingBytes);
  if (!written) return {ItemResult::Failed, written.Error()};
  item.Current = item.Starting;
  item.CurrentBytes = item.StartingBytes;
  return {ItemResult::Written};
}

void FollowOrder(EditedItem& item, std::string_view path, std::string_view button,
                 const CodePage& ansi) {
  item.File = path;
  if (item.Record != 1) return;
  constexpr std::size_t kNameAt = kTitleWidth + kIconWidth;
  const std::string name(button.substr(kNameAt));
  for (std::string* bytes : {&item.StartingBytes, &item.CurrentBytes}) {
    if (!bytes->empty()) bytes->replace(kNameAt, kNameWidth, name);
  }
  item.Starting.FName = item.Current.FName = ParseRecord(button, ansi).FName;
}

std::string_view RefusalText(ItemResult result) noexcept {
  switch (result) {
    case ItemResult::FolderEntry:
      return "Cannot modify a folder item.";
    case ItemResult::Mismatch:
      return "Cannot modify this item. Record mismatch.";
    case ItemResult::Written:
    case ItemResult::Same:
    case ItemResult::Failed:
      break;
  }
  return {};
}

}  // namespace corvelle
