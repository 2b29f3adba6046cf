#include "win32/FileErrors.h"

#include "win32/Sys.h"

namespace corvelle::win32 {

FileError FileErrorOf(unsigned long error) noexcept {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_NOT_READY:
    case ERROR_DIRECTORY:
      return FileError::NotFound;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
      return FileError::AlreadyExists;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
      return FileError::AccessDenied;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
      return FileError::InUse;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      return FileError::DiskFull;
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
      return FileError::BadName;
    default:
      return FileError::Failed;
  }
}

FileError LastFileError() noexcept { return FileErrorOf(GetLastError()); }

}  // namespace corvelle::win32
