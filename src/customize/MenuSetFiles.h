#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/Result.h"
#include "customize/MenuSet.h"
#include "platform/FileSystem.h"

namespace corvelle {

class CodePage;

// The files of all menus and single buttons as one value, and back. `menusPath` ends in a
// backslash. A row's order is that of its files' names as text, so that BMENU1000 comes before
// BMENU101.

/// What tells one state of the files from another: how much they hold, and a digest of it all in
/// the order of the rows. Their names are no part of it: the strip closes gaps in the numbering,
/// which changes no menu.
struct MenusStamp {
  std::uint64_t Length = 0;  // bytes, of all files
  std::uint64_t Hash = 0;

  friend bool operator==(const MenusStamp&, const MenusStamp&) = default;
};

/// A file without its folder.
struct StoredFile {
  std::string Name;
  std::string Bytes;
};

/// The two rows of files.
struct StoredMenus {
  std::vector<StoredFile> Menus;
  std::vector<StoredFile> Singles;
};

/// What the files hold, with their stamp.
struct MenuFiles {
  MenuSet Set;
  MenusStamp Stamp;
};

/// Why the files could not be read.
struct MenusError {
  FileError Reason = FileError::Failed;
  std::string Path;  // the file, or the folder that cannot be listed
};

template <class T>
using MenusResult = Result<T, MenusError>;

/// All menu files and single buttons' files. One file that cannot be read is an error of the whole:
/// a set that lacks it must not be saved. So is one with more records than kMaxRecords, Failed,
/// whose tail would get lost. A file that goes between the listing and its turn is not there.
[[nodiscard]] MenusResult<StoredMenus> ReadStoredMenus(FileSystem& files,
                                                       std::string_view menusPath);

[[nodiscard]] MenusStamp StampOf(const StoredMenus& stored);

/// The set in the bytes of files. A menu's first record is its head, there even in a file that is
/// too short for one; the number of the others is the file's record count less one, and what a
/// short last one lacks is blank. Of a single button's file the first record counts.
[[nodiscard]] MenuSet ParseMenus(const StoredMenus& stored, const CodePage& ansi);

/// The files of a set, numbered from 001 on in the order of the set. A text too long for its field
/// loses its tail.
[[nodiscard]] StoredMenus FormatMenus(const MenuSet& set, const CodePage& ansi);

/// The files in the order in which they are read.
[[nodiscard]] StoredMenus InListOrder(StoredMenus stored);

/// Reads the set and its stamp.
[[nodiscard]] MenusResult<MenuFiles> ReadMenuFiles(FileSystem& files, const CodePage& ansi,
                                                   std::string_view menusPath);

}  // namespace corvelle
