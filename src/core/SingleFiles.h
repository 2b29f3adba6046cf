#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/MenuRecord.h"
#include "platform/FileSystem.h"

namespace corvelle {

class CodePage;
class FileTransaction;

// The row of single buttons on the disk: one file a button, in the order of the files' names. An
// edit renumbers the row from 001 on. `menusPath` ends in a backslash.

/// A button of the row.
struct SingleFile {
  std::string Path;   // full path; empty for a button that has no file yet
  std::string Bytes;  // what the file holds; the button is its first record
};

using SingleFiles = std::vector<SingleFile>;

/// The row in its order. The error is that of a folder that cannot be listed or of a file that
/// cannot be read now: a row that is not known whole must not be rewritten.
[[nodiscard]] FileResult<SingleFiles> ReadSingleFiles(FileSystem& files,
                                                      std::string_view menusPath);

/// The 570 bytes of a file's button; what is missing is blank.
[[nodiscard]] std::string SingleBytes(std::string_view fileBytes);

/// Index of the button with that file; the row's size when there is none.
[[nodiscard]] std::size_t PlaceOfSingle(const SingleFiles& row, std::string_view path) noexcept;

/// The row without the button of a file. Without such a button it stays.
[[nodiscard]] SingleFiles WithoutSingle(SingleFiles row, std::string_view path);
/// The row with new buttons before index `at`, behind the last one from the row's size on.
[[nodiscard]] SingleFiles WithSingles(SingleFiles row, std::size_t at,
                                      const std::vector<MenuRecord>& records, const CodePage& ansi);
/// The row with the button of `path` in front of that of `before`, behind the last one for an empty
/// `before`. It stays when either is missing or both are the same.
[[nodiscard]] SingleFiles WithSingleMoved(SingleFiles row, std::string_view path,
                                          std::string_view before);

/// Adds to a change of files what makes one row of the other, numbered from 001 on.
void AddSingleRewrite(FileTransaction& change, std::string_view menusPath,
                      const SingleFiles& before, const SingleFiles& after);

/// Makes one row of the other, as a whole or not at all.
FileStatus RewriteSingleFiles(FileSystem& files, std::string_view menusPath,
                              const SingleFiles& before, const SingleFiles& after);

// The edits as a whole. After a failure the files are what they were.

/// Takes the button of a file out of the row.
FileStatus DeleteSingleFile(FileSystem& files, std::string_view menusPath, std::string_view path);
/// Puts a new button before that of a file; behind the last one for an empty path. For the path of
/// no button nothing is put: NotFound.
FileStatus PasteSingleFile(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                           std::string_view path, const MenuRecord& record);
/// Puts a deleted button back to where its file stood. Past the last button it gets that very file.
FileStatus UndoDeleteSingleFile(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                                std::string_view path, const MenuRecord& record);
/// Puts new buttons before index `at` (from 0).
FileStatus InsertSingleFiles(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                             std::size_t at, const std::vector<MenuRecord>& records);
/// Puts the button of `path` in front of that of `before`, behind the last one for an empty
/// `before`. NotFound when either is missing.
FileStatus MoveSingleFile(FileSystem& files, std::string_view menusPath, std::string_view path,
                          std::string_view before);

}  // namespace corvelle
