#include "core/MenuFile.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "base/CodePage.h"
#include "core/MenuFolder.h"

namespace corvelle {

namespace {

// More than record numbers reach, so that the count of a longer file still rounds as it should.
constexpr std::size_t kReadLimit = (static_cast<std::size_t>(kMaxRecords) + 1) * kRecordLength;

// A file larger than this is no menu, and is not read into memory to be rewritten.
constexpr std::uint64_t kRewriteLimit = 256ULL << 20U;

// Behind it no free number is looked for any more.
constexpr int kMaxMenus = 9999;

std::size_t OffsetOf(int number) noexcept {
  return (static_cast<std::size_t>(number) - 1) * kRecordLength;
}

FileResult<std::uint64_t> LengthOrCreate(FileSystem& files, std::string_view path) {
  FileResult<std::uint64_t> length = files.Length(path);
  if (length || length.Error() != FileError::NotFound) return length;
  const FileStatus created = files.WriteAt(path, 0, {});
  if (!created) return created.Error();
  return std::uint64_t{0};
}

std::string FormatRecords(const std::vector<MenuRecord>& records, const CodePage& ansi) {
  std::string bytes;
  bytes.reserve(records.size() * kRecordLength);
  for (const MenuRecord& record : records) bytes += FormatRecord(record, ansi);
  return bytes;
}

/// All bytes of a file that is to be rewritten.
FileResult<std::string> ReadWhole(FileSystem& files, std::string_view path) {
  const FileResult<std::uint64_t> length = files.Length(path);
  if (!length) return length.Error();
  if (*length > kRewriteLimit) return FileError::Failed;
  return files.Read(path, 0, static_cast<std::size_t>(*length));
}

}  // namespace

FileResult<std::vector<MenuRecord>> ReadAllRecords(FileSystem& files, const CodePage& ansi,
                                                   std::string_view path) {
  const FileResult<std::string> stored = ReadStoredRecords(files, path);
  if (!stored) return stored.Error();
  return ParseRecords(*stored, ansi);
}

FileResult<std::string> ReadStoredRecords(FileSystem& files, std::string_view path) {
  FileResult<std::string> bytes = files.Read(path, 0, kReadLimit);
  if (!bytes) {
    if (bytes.Error() != FileError::NotFound) return bytes;
    const FileStatus created = files.WriteAt(path, 0, {});
    if (!created) return created.Error();
    return std::string();
  }
  std::string stored = WholeRecords(*std::move(bytes));
  stored.resize(std::min(stored.size(), kMaxRecords * kRecordLength));
  return stored;
}

std::vector<MenuRecord> ParseRecords(std::string_view stored, const CodePage& ansi) {
  std::vector<MenuRecord> records;
  records.reserve(stored.size() / kRecordLength);
  for (; !stored.empty(); stored.remove_prefix(std::min(stored.size(), kRecordLength))) {
    records.push_back(ParseRecord(stored.substr(0, kRecordLength), ansi));
  }
  return records;
}

std::string StoredRecord(std::string_view stored, int number) {
  if (number < 1 || OffsetOf(number) >= stored.size()) return {};
  return std::string(stored.substr(OffsetOf(number), kRecordLength));
}

FileResult<MenuRecord> ReadRecord(FileSystem& files, const CodePage& ansi, std::string_view path,
                                  int number) {
  if (number < 1 || number > kMaxRecords) return FileError::Failed;
  const FileResult<std::string> bytes = files.Read(path, OffsetOf(number), kRecordLength);
  if (!bytes) return bytes.Error();
  return ParseRecord(*bytes, ansi);
}

std::optional<MenuRecord> ReadButtonRecord(FileSystem& files, const CodePage& ansi,
                                           std::string_view path) {
  const auto bytes = files.Read(path, 0, kRecordLength);
  if (!bytes) return std::nullopt;
  return ParseRecord(*bytes, ansi);
}

FileResult<int> CountRecords(FileSystem& files, std::string_view path) {
  const FileResult<std::uint64_t> length = files.Length(path);
  if (!length) return length.Error();
  return RecordCount(*length);
}

FileStatus WriteRecord(FileSystem& files, const CodePage& ansi, std::string_view path, int number,
                       const MenuRecord& record) {
  if (number < 1 || number > kMaxRecords) return FileError::Failed;
  const FileResult<std::uint64_t> length = LengthOrCreate(files, path);
  if (!length) return length.Error();
  // A gap before the record would be filled with NULs, which are no blanks.
  const std::uint64_t offset = std::min<std::uint64_t>(OffsetOf(number), *length);
  std::string bytes(OffsetOf(number) - static_cast<std::size_t>(offset), ' ');
  bytes += FormatRecord(record, ansi);
  return files.WriteAt(path, offset, bytes);
}

FileStatus AppendRecords(FileSystem& files, const CodePage& ansi, std::string_view path,
                         const std::vector<MenuRecord>& records) {
  FileResult<std::string> old = ReadWhole(files, path);
  if (!old && old.Error() != FileError::NotFound) return old.Error();
  return files.Replace(path,
                       WholeRecords(std::move(old).ValueOr({})) + FormatRecords(records, ansi));
}

FileStatus WriteRecords(FileSystem& files, const CodePage& ansi, std::string_view path,
                        const std::vector<MenuRecord>& records) {
  return files.Replace(path, FormatRecords(records, ansi));
}

std::string WholeRecords(std::string bytes) {
  const std::size_t rest = bytes.size() % kRecordLength;
  const auto restCount = static_cast<std::size_t>(RecordCount(rest));
  // Halves round to even, so that a tail of half a record counts behind an odd number of records.
  const bool half = rest * 2 == kRecordLength && (bytes.size() / kRecordLength) % 2 == 1;
  const std::size_t whole = bytes.size() / kRecordLength + (half ? 1 : restCount);
  bytes.resize(whole * kRecordLength, ' ');
  return bytes;
}

FileResult<std::string> ReadWholeRecords(FileSystem& files, std::string_view path) {
  FileResult<std::string> bytes = ReadWhole(files, path);
  if (!bytes) return bytes;
  return WholeRecords(*std::move(bytes));
}

std::string WithoutRecord(std::string records, int number) {
  if (number < 1 || OffsetOf(number) >= records.size()) return records;
  return records.erase(OffsetOf(number), kRecordLength);
}

std::string InsertRecord(std::string records, int before, std::string_view record) {
  if (before < 1 || OffsetOf(before) >= records.size()) return records;
  return records.insert(OffsetOf(before), record);
}

std::string InsertOrAppendRecord(std::string records, int before, std::string_view record) {
  if (before < 1) return records;
  return records.insert(std::min(OffsetOf(before), records.size()), record);
}

std::string MoveRecord(std::string records, int from, int before) {
  if (from < 1 || before < 1) return records;
  const std::size_t source = OffsetOf(from);
  const std::size_t target = OffsetOf(before);
  if (source + kRecordLength > records.size() || target > records.size()) return records;
  const auto at = [&records](std::size_t offset) {
    return records.begin() + static_cast<std::ptrdiff_t>(offset);
  };
  if (target > source) {
    std::rotate(at(source), at(source + kRecordLength), at(target));
  } else {
    std::rotate(at(target), at(source), at(source + kRecordLength));
  }
  return records;
}

FileStatus RewriteMenuFile(FileSystem& files, std::string_view menusPath, std::string_view path,
                           const RecordsEdit& edit) {
  return RewriteMenuFileBy(files, std::string(menusPath) + std::string(kRewriteFileName), path,
                           edit);
}

FileStatus RewriteMenuFileBy(FileSystem& files, const std::string& temporary, std::string_view path,
                             const RecordsEdit& edit) {
  if (files.FileExists(temporary)) {
    const FileStatus removed = files.Remove(temporary);
    if (!removed) return removed;
  }
  const FileResult<std::string> old = ReadWhole(files, path);
  if (!old) return old.Error();
  FileStatus done = files.Write(temporary, *old);
  if (done) done = files.Replace(path, edit(WholeRecords(*old)));
  // Should it stay, it is no part of the menu, and goes before the next edit or at the next start.
  static_cast<void>(files.Remove(temporary));
  return done;
}

FileResult<std::string> CreateButtonFile(FileSystem& files, const CodePage& ansi,
                                         std::string_view menusPath) {
  const FileResult<std::vector<std::string>> names = ListMenuFiles(files, menusPath);
  if (!names) return names.Error();
  const std::string folder(menusPath);
  const std::string made = folder + std::string(kRewriteFileName);
  const FileStatus written = WriteRecords(files, ansi, made, {NewButtonRecord(), NewItemRecord()});
  if (!written) return written.Error();
  // With a gap in the numbering the next number can be taken, and its menu must not be lost: a new
  // name takes no other file's place, and does not rely on what a disk says that fails now and
  // then.
  int number = static_cast<int>(names->size());
  std::string path;
  FileStatus named = FileError::AlreadyExists;
  do {
    path = folder + MenuFileName(++number);
    named = files.Rename(made, path);
  } while (!named && named.Error() == FileError::AlreadyExists && number < kMaxMenus);
  if (named) return path;
  static_cast<void>(files.Remove(made));
  return named.Error();
}

FileResult<std::string> WriteMainMenuFile(FileSystem& files, const CodePage& ansi,
                                          std::string_view appPath) {
  std::string path = std::string(appPath) + std::string(kMainMenuFileName);
  // It is made again whenever it is asked for: nothing is lost with it.
  const FileStatus written = files.ReplaceUnflushed(path, FormatRecords(MainMenuRecords(), ansi));
  if (!written) return written.Error();
  return path;
}

}  // namespace corvelle
