#include "core/SingleFiles.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "core/FileTransaction.h"
#include "core/MenuFile.h"
#include "core/MenuFolder.h"

namespace corvelle {
namespace {

// What is longer is no button's file, and is not taken into memory to be put back.
constexpr std::size_t kLongestFile = std::size_t{1} << 20U;

std::string NumberedPath(std::string_view menusPath, std::size_t number) {
  return std::string(menusPath) + SingleFileName(static_cast<int>(number));
}

}  // namespace

FileResult<SingleFiles> ReadSingleFiles(FileSystem& files, std::string_view menusPath) {
  const auto names = OrderedSingleFiles(files, menusPath);
  if (!names) return names.Error();
  SingleFiles row;
  row.reserve(names->size());
  for (const std::string& name : *names) {
    std::string path = std::string(menusPath) + name;
    FileResult<std::string> bytes = files.Read(path, 0, kLongestFile + 1);
    if (!bytes) return bytes.Error();
    if (bytes->size() > kLongestFile) return FileError::Failed;
    row.push_back({std::move(path), *std::move(bytes)});
  }
  return row;
}

std::string SingleBytes(std::string_view fileBytes) {
  std::string bytes(fileBytes.substr(0, kRecordLength));
  bytes.resize(kRecordLength, ' ');
  return bytes;
}

std::size_t PlaceOfSingle(const SingleFiles& row, std::string_view path) noexcept {
  const auto at = std::find_if(row.begin(), row.end(), [path](const SingleFile& single) {
    return EqualNoCase(single.Path, path);
  });
  return static_cast<std::size_t>(at - row.begin());
}

SingleFiles WithoutSingle(SingleFiles row, std::string_view path) {
  const std::size_t at = PlaceOfSingle(row, path);
  if (at != row.size()) row.erase(row.begin() + static_cast<std::ptrdiff_t>(at));
  return row;
}

SingleFiles WithSingles(SingleFiles row, std::size_t at, const std::vector<MenuRecord>& records,
                        const CodePage& ansi) {
  SingleFiles added;
  added.reserve(records.size());
  for (const MenuRecord& record : records) added.push_back({{}, FormatRecord(record, ansi)});
  const std::size_t place = std::min(at, row.size());
  row.insert(row.begin() + static_cast<std::ptrdiff_t>(place), added.begin(), added.end());
  return row;
}

SingleFiles WithSingleMoved(SingleFiles row, std::string_view path, std::string_view before) {
  const std::size_t from = PlaceOfSingle(row, path);
  if (from == row.size() || EqualNoCase(path, before)) return row;
  if (!before.empty() && PlaceOfSingle(row, before) == row.size()) return row;
  SingleFile moved = row[from];
  row.erase(row.begin() + static_cast<std::ptrdiff_t>(from));
  const auto at = static_cast<std::ptrdiff_t>(PlaceOfSingle(row, before));
  row.insert(row.begin() + at, std::move(moved));
  return row;
}

void AddSingleRewrite(FileTransaction& change, std::string_view menusPath,
                      const SingleFiles& before, const SingleFiles& after) {
  for (const SingleFile& old : before) change.Remove(old.Path);
  std::size_t number = 0;
  for (const SingleFile& single : after) {
    const std::string path = NumberedPath(menusPath, ++number);
    // A file that has its number already may hold more than a button, and stays.
    const bool stays = EqualNoCase(single.Path, path);
    change.Write(path, stays ? single.Bytes : SingleBytes(single.Bytes));
  }
}

FileStatus RewriteSingleFiles(FileSystem& files, std::string_view menusPath,
                              const SingleFiles& before, const SingleFiles& after) {
  FileTransaction change(files, menusPath);
  AddSingleRewrite(change, menusPath, before, after);
  return change.Commit();
}

FileStatus DeleteSingleFile(FileSystem& files, std::string_view menusPath, std::string_view path) {
  const auto row = ReadSingleFiles(files, menusPath);
  if (!row) return row.Error();
  return RewriteSingleFiles(files, menusPath, *row, WithoutSingle(*row, path));
}

FileStatus PasteSingleFile(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                           std::string_view path, const MenuRecord& record) {
  const auto row = ReadSingleFiles(files, menusPath);
  if (!row) return row.Error();
  const std::size_t at = PlaceOfSingle(*row, path);
  if (at == row->size() && !path.empty()) return FileError::NotFound;
  return RewriteSingleFiles(files, menusPath, *row, WithSingles(*row, at, {record}, ansi));
}

FileStatus UndoDeleteSingleFile(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                                std::string_view path, const MenuRecord& record) {
  const auto row = ReadSingleFiles(files, menusPath);
  if (!row) return row.Error();
  const auto at = std::find_if(row->begin(), row->end(), [path](const SingleFile& single) {
    return CompareNoCase(single.Path, path) >= 0;
  });
  if (at == row->end()) return WriteRecords(files, ansi, path, {record});
  const auto place = static_cast<std::size_t>(at - row->begin());
  return RewriteSingleFiles(files, menusPath, *row, WithSingles(*row, place, {record}, ansi));
}

FileStatus InsertSingleFiles(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                             std::size_t at, const std::vector<MenuRecord>& records) {
  const auto row = ReadSingleFiles(files, menusPath);
  if (!row) return row.Error();
  return RewriteSingleFiles(files, menusPath, *row, WithSingles(*row, at, records, ansi));
}

FileStatus MoveSingleFile(FileSystem& files, std::string_view menusPath, std::string_view path,
                          std::string_view before) {
  const auto row = ReadSingleFiles(files, menusPath);
  if (!row) return row.Error();
  const auto missing = [&row](std::string_view file) {
    return PlaceOfSingle(*row, file) == row->size();
  };
  if (missing(path) || (!before.empty() && missing(before))) return FileError::NotFound;
  return RewriteSingleFiles(files, menusPath, *row, WithSingleMoved(*row, path, before));
}

}  // namespace corvelle
