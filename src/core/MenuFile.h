#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/MenuRecord.h"
#include "platform/FileSystem.h"

namespace corvelle {

class CodePage;

/// Name of the old content while a menu file is rewritten, in the folder of the menu files.
inline constexpr std::string_view kRewriteFileName = "TTTTTTTT";

/// All records of a file, read at once. A missing file is created empty, as opening it for records
/// does; the error is that of a file that can neither be read nor created.
[[nodiscard]] FileResult<std::vector<MenuRecord>> ReadAllRecords(FileSystem& files,
                                                                 const CodePage& ansi,
                                                                 std::string_view path);

/// All records of a file as they are stored, 570 bytes each (see WholeRecords), up to kMaxRecords.
/// A missing file is created empty.
[[nodiscard]] FileResult<std::string> ReadStoredRecords(FileSystem& files, std::string_view path);

/// The records in bytes that hold nothing but whole ones.
[[nodiscard]] std::vector<MenuRecord> ParseRecords(std::string_view stored, const CodePage& ansi);

/// The bytes of record `number` among stored records; empty where there is no such record.
[[nodiscard]] std::string StoredRecord(std::string_view stored, int number);

/// Record `number` (from 1) of a file; blank past the file's end, Failed below 1. NotFound for a
/// missing file, which is not created: a read on behalf of an edit must leave no empty one behind.
[[nodiscard]] FileResult<MenuRecord> ReadRecord(FileSystem& files, const CodePage& ansi,
                                                std::string_view path, int number);

/// The first record of a file, which is a button's own; nothing for a file that went away, that
/// cannot be read, or that another program holds. Creates nothing.
[[nodiscard]] std::optional<MenuRecord> ReadButtonRecord(FileSystem& files, const CodePage& ansi,
                                                         std::string_view path);

/// How many records a file has. NotFound for a missing file, which is not created.
[[nodiscard]] FileResult<int> CountRecords(FileSystem& files, std::string_view path);

/// Overwrites record `number` of a file, which grows as far as it must; no other record changes.
FileStatus WriteRecord(FileSystem& files, const CodePage& ansi, std::string_view path, int number,
                       const MenuRecord& record);

/// Adds records to the end of a file, which is created when missing. After a failure the file is
/// what it was.
FileStatus AppendRecords(FileSystem& files, const CodePage& ansi, std::string_view path,
                         const std::vector<MenuRecord>& records);

/// Makes the records the whole content of a file. After a failure the file is what it was.
FileStatus WriteRecords(FileSystem& files, const CodePage& ansi, std::string_view path,
                        const std::vector<MenuRecord>& records);

/// An edit of a menu file: from whole records of 570 bytes each to whole records.
using RecordsEdit = std::function<std::string(std::string records)>;

/// The bytes of a file as whole records: a short last one is filled up with blanks, and what does
/// not amount to half a record is dropped.
[[nodiscard]] std::string WholeRecords(std::string bytes);

/// A menu file as whole records, so that it can be edited. NotFound for a missing one.
[[nodiscard]] FileResult<std::string> ReadWholeRecords(FileSystem& files, std::string_view path);

/// Edits on whole records. A place that the file does not have changes nothing, but for the append.
[[nodiscard]] std::string WithoutRecord(std::string records, int number);
[[nodiscard]] std::string InsertRecord(std::string records, int before, std::string_view record);
[[nodiscard]] std::string InsertOrAppendRecord(std::string records, int before,
                                               std::string_view record);

/// Record `from` taken out and put before record `before`, which may be the place behind the last
/// one. Nothing changes when there is no such record or place, or when it is there already.
[[nodiscard]] std::string MoveRecord(std::string records, int from, int before);

/// Rewrites a menu file: its old content stays in kRewriteFileName in `menusPath` (with its
/// trailing backslash) until the edited one has taken its place in one step. When a step fails, or
/// the program ends between two, the file is what it was.
FileStatus RewriteMenuFile(FileSystem& files, std::string_view menusPath, std::string_view path,
                           const RecordsEdit& edit);

/// The same with a temporary name of the caller's.
FileStatus RewriteMenuFileBy(FileSystem& files, const std::string& temporary, std::string_view path,
                             const RecordsEdit& edit);

/// Creates the file of a new menu button with one item, behind those there are, and gives its path.
[[nodiscard]] FileResult<std::string> CreateButtonFile(FileSystem& files, const CodePage& ansi,
                                                       std::string_view menusPath);

/// Writes the file of the program's own menu again and gives its path.
[[nodiscard]] FileResult<std::string> WriteMainMenuFile(FileSystem& files, const CodePage& ansi,
                                                        std::string_view appPath);

}  // namespace corvelle
