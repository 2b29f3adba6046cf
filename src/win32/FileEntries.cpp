#include "win32/FileEntries.h"

#include "win32/Wide.h"

namespace corvelle::win32 {

FileEntry EntryOf(const WIN32_FIND_DATAW& found) {
  const DWORD marks = found.dwFileAttributes;
  return {.Name = Narrow(found.cFileName),
          .IsFolder = (marks & FILE_ATTRIBUTE_DIRECTORY) != 0,
          .ReadOnly = (marks & FILE_ATTRIBUTE_READONLY) != 0,
          .Hidden = (marks & FILE_ATTRIBUTE_HIDDEN) != 0,
          .System = (marks & FILE_ATTRIBUTE_SYSTEM) != 0,
          .Temporary = (marks & FILE_ATTRIBUTE_TEMPORARY) != 0,
          .Length = (std::uint64_t{found.nFileSizeHigh} << 32U) | found.nFileSizeLow};
}

}  // namespace corvelle::win32
