#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/Result.h"

namespace corvelle {

/// Why a file operation failed, in the words that the program acts on.
enum class FileError {
  NotFound,       // no such file or folder, or a part of its path is missing
  AlreadyExists,  // the new name is taken
  AccessDenied,   // read-only, or no right to it
  InUse,          // another program holds it open
  DiskFull,
  BadName,  // a name that the disk cannot hold
  Failed,   // anything else
};

template <class T>
using FileResult = Result<T, FileError>;
using FileStatus = FileResult<Done>;

/// One entry of a folder's listing.
struct FileEntry {
  std::string Name;  // without its folder, in the disk's case
  bool IsFolder = false;
  bool ReadOnly = false;
  bool Hidden = false;
  bool System = false;
  bool Temporary = false;
  std::uint64_t Length = 0;  // bytes

  friend bool operator==(const FileEntry&, const FileEntry&) = default;
};

/// The disk. Paths are Windows paths in UTF-8, with or without a trailing backslash for folders;
/// case does not count. No operation leaves a file open. A missing folder on the way to a file
/// gives NotFound, a folder in the place of a file AccessDenied, a name that no file can have (a
/// NUL in it, "<", ">", "|"...) BadName. Read, the writers, Remove and Rename wait a fifth of a
/// second for another program that holds the file (Remove for the first of many); then it is InUse.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  /// True for a file; a folder is not a file. False when it cannot be told.
  [[nodiscard]] virtual bool FileExists(std::string_view path) = 0;
  /// True for a folder or a drive's root.
  [[nodiscard]] virtual bool FolderExists(std::string_view path) = 0;

  /// Files and folders of `folder` whose name fits `pattern` (see base/Wildcard.h; short names of
  /// old do not count), without "." and "..", in no particular order. NotFound when the folder is
  /// missing; an empty list when nothing fits.
  virtual FileResult<std::vector<FileEntry>> List(std::string_view folder,
                                                  std::string_view pattern) = 0;

  /// Length in bytes.
  virtual FileResult<std::uint64_t> Length(std::string_view path) = 0;

  /// Up to `count` bytes from `offset`; fewer at the file's end, none past it. Takes memory for the
  /// bytes there are, however large `count` is.
  virtual FileResult<std::string> Read(std::string_view path, std::uint64_t offset,
                                       std::size_t count) = 0;

  /// Creates the file or cuts it to nothing, then writes `bytes`. Its attributes stay; a read-only
  /// file gives AccessDenied. After a failure the file may hold a part of the bytes.
  virtual FileStatus Write(std::string_view path, std::string_view bytes) = 0;

  /// Writes `bytes` at `offset` of a file, which is created when missing; the rest of it stays.
  /// Without bytes nothing but the creation is left to do.
  virtual FileStatus WriteAt(std::string_view path, std::uint64_t offset,
                             std::string_view bytes) = 0;

  /// Makes `bytes` the whole content of the file in one step: after a failure the file is what it
  /// was before, or still missing, and nothing lies beside it. AccessDenied for a read-only file.
  virtual FileStatus Replace(std::string_view path, std::string_view bytes) = 0;

  /// The same for one of many files that can be made again: it returns before the bytes are on the
  /// disk, so that only a loss of power can leave the file without them.
  virtual FileStatus ReplaceUnflushed(std::string_view path, std::string_view bytes) = 0;

  /// Returns when what was written to a file before is on the disk.
  virtual FileStatus Flush(std::string_view path) = 0;

  /// Removes a file. AccessDenied for a read-only one, InUse for one that is held open.
  virtual FileStatus Remove(std::string_view path) = 0;

  /// Takes the read-only, the hidden and the system mark off a file.
  virtual FileStatus ClearAttributes(std::string_view path) = 0;

  /// Gives the file or folder another name on the same drive; read-only files can be renamed.
  /// AlreadyExists when the new name is taken; nothing is ever replaced. What becomes of a name
  /// that changes its case only is the disk's affair.
  virtual FileStatus Rename(std::string_view from, std::string_view to) = 0;

  /// Copies a file with its attributes; AlreadyExists when `to` is there. After a failure there is
  /// no `to`.
  virtual FileStatus Copy(std::string_view from, std::string_view to) = 0;

  /// Makes one folder, whose parent must exist. AlreadyExists when it is there.
  virtual FileStatus MakeFolder(std::string_view path) = 0;

  /// The path in its long form with the case that the disk keeps; the path as given when the disk
  /// does not know it.
  [[nodiscard]] virtual std::string LongPath(std::string_view path) = 0;

  /// The path of a file or folder with the short names ("LETTER~1.TXT") that the disk keeps for its
  /// parts; a part without one stays as it is. Empty when there is no such file or folder.
  [[nodiscard]] virtual std::string ShortPath(std::string_view path) = 0;
};

}  // namespace corvelle
