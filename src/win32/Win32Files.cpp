#include "win32/Win32Files.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/Text.h"
#include "win32/FileEntries.h"
#include "win32/FileErrors.h"
#include "win32/FileNames.h"
#include "win32/UniqueHandle.h"
#include "win32/Wide.h"

namespace corvelle::win32 {

namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// After a removal that was waited for in vain, none waits for so long. Milliseconds.
constexpr ULONGLONG kImpatience = 500;

/// What one call reads or writes at most.
constexpr std::size_t kMostBytesAtOnce = std::size_t{1} << 24U;

/// The path for a call of Windows; nothing for one that no file can have and for devices, which
/// would take bytes as a file does and keep none.
std::optional<std::wstring> PathOf(std::string_view path) {
  if (path.find('\0') != std::string_view::npos || NamesDevice(path)) return std::nullopt;
  return Wide(path);
}

DWORD AttributesOf(const std::wstring& path) { return GetFileAttributesW(path.c_str()); }

bool IsFolder(DWORD attributes) {
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// Calls until it is done. Indexers and virus scanners hold a file for a moment just when it has
/// changed; one that is held for longer, or that may not be changed at all, stays refused, with the
/// thread's last error set. `alsoDenied`: the call tells of a held file as of one without the right
/// to it.
template <class Call>
bool DonePatiently(Call call, bool alsoDenied) {
  constexpr int kTries = 10;
  constexpr DWORD kBetween = 20;  // milliseconds
  for (int i = 1; !call(); ++i) {
    const DWORD error = GetLastError();
    const bool held = error == ERROR_SHARING_VIOLATION;
    if (i == kTries || (!held && !(alsoDenied && error == ERROR_ACCESS_DENIED))) return false;
    Sleep(kBetween);
  }
  return true;
}

/// An empty handle, with the thread's last error set, when it cannot be opened.
UniqueFile OpenPatiently(const std::wstring& path, DWORD access, DWORD shares, DWORD disposition) {
  UniqueFile file;
  static_cast<void>(DonePatiently(
      [&] {
        file.Reset(CreateFileW(path.c_str(), access, shares, nullptr, disposition,
                               FILE_ATTRIBUTE_NORMAL, nullptr));
        return static_cast<bool>(file);
      },
      false));
  return file;
}

UniqueFile OpenForWriting(const std::wstring& path, DWORD disposition) {
  return OpenPatiently(path, GENERIC_WRITE, FILE_SHARE_READ, disposition);
}

/// True if a file is there and somebody has it open.
bool IsHeld(const std::wstring& path) {
  const UniqueFile file(
      CreateFileW(path.c_str(), DELETE, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  return !file && GetLastError() == ERROR_SHARING_VIOLATION;
}

bool Seek(HANDLE file, std::uint64_t offset) {
  LARGE_INTEGER place{};
  place.QuadPart = static_cast<LONGLONG>(offset);
  return SetFilePointerEx(file, place, nullptr, FILE_BEGIN) != 0;
}

bool WriteAll(HANDLE file, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kMostBytesAtOnce));
    DWORD written = 0;
    if (WriteFile(file, bytes.data(), wanted, &written, nullptr) == 0) return false;
    if (written == 0) {
      SetLastError(ERROR_DISK_FULL);
      return false;
    }
    bytes.remove_prefix(written);
  }
  return true;
}

/// The attributes of a file that may be written, plain ones for a file that is not there yet; the
/// reason when it may not. Asked before it is opened, since not every disk of a network keeps a
/// file that is marked as read-only from being written.
FileResult<DWORD> WritableAttributes(const std::wstring& path) {
  const DWORD attributes = AttributesOf(path);
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    const FileError error = LastFileError();
    if (error == FileError::NotFound) return DWORD{FILE_ATTRIBUTE_NORMAL};
    return error;
  }
  if ((attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0)
    return FileError::AccessDenied;
  return attributes;
}

/// A file of new content on its way to its name. Unless it gets there, it is removed again.
class TemporaryFile {
 public:
  TemporaryFile(const std::wstring& target, unsigned number) {
    const std::size_t slash = target.find_last_of(L"\\/:");
    const std::wstring folder = slash == std::wstring::npos ? L"" : target.substr(0, slash + 1);
    name_ = folder + L"~" + std::to_wstring(GetCurrentProcessId()) + L"_" +
            std::to_wstring(number) + L".tmp";
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    if (made_) DeleteFileW(name_.c_str());
  }

  /// False with the thread's last error set, here and below.
  [[nodiscard]] bool Fill(std::string_view bytes, bool flush) {
    const UniqueFile file = OpenForWriting(name_, CREATE_ALWAYS);
    made_ = static_cast<bool>(file);
    return made_ && WriteAll(file.Get(), bytes) && (!flush || FlushFileBuffers(file.Get()) != 0);
  }

  [[nodiscard]] bool MoveTo(const std::wstring& target, DWORD attributes, bool flush) {
    const DWORD flags = MOVEFILE_REPLACE_EXISTING | (flush ? MOVEFILE_WRITE_THROUGH : 0);
    SetFileAttributesW(name_.c_str(), attributes);
    const bool moved =
        DonePatiently([&] { return MoveFileExW(name_.c_str(), target.c_str(), flags) != 0; }, true);
    if (moved) {
      made_ = false;
    } else if (const DWORD error = GetLastError(); error == ERROR_ACCESS_DENIED) {
      SetLastError(IsHeld(target) ? ERROR_SHARING_VIOLATION : error);
    }
    return moved;
  }

 private:
  std::wstring name_;
  bool made_ = false;
};

FileStatus StatusOf(bool done) {
  if (done) return Done{};
  return LastFileError();
}

}  // namespace

bool Win32Files::FileExists(std::string_view path) {
  const auto wide = PathOf(path);
  if (!wide) return false;
  const DWORD attributes = AttributesOf(*wide);
  return attributes != INVALID_FILE_ATTRIBUTES && !IsFolder(attributes);
}

bool Win32Files::FolderExists(std::string_view path) {
  const auto wide = PathOf(path);
  return wide && IsFolder(AttributesOf(*wide));
}

// The system's own patterns also look at the short names of old, so all names are taken and
// compared here.
FileResult<std::vector<FileEntry>> Win32Files::List(std::string_view folder,
                                                    std::string_view pattern) {
  const auto wide = PathOf(folder);
  if (!wide) return FileError::BadName;
  const std::wstring all = Wide(EnsureBackslash(folder)) + L"*";
  WIN32_FIND_DATAW found{};
  const UniqueFind find(FindFirstFileExW(all.c_str(), FindExInfoBasic, &found,
                                         FindExSearchNameMatch, nullptr,
                                         FIND_FIRST_EX_LARGE_FETCH));
  std::vector<FileEntry> entries;
  if (!find) {
    const DWORD code = GetLastError();
    const FileError error = FileErrorOf(code);
    // A part of the path is missing, or its server: to ask once more would be to wait once more.
    if (code == ERROR_PATH_NOT_FOUND || code == ERROR_BAD_NETPATH || code == ERROR_BAD_NET_NAME)
      return error;
    const DWORD attributes = AttributesOf(*wide);
    if (attributes == INVALID_FILE_ATTRIBUTES) return error;
    if (!IsFolder(attributes)) return FileError::NotFound;
    // The root of an empty drive has not even the two entries of the folders.
    if (error == FileError::NotFound) return entries;
    return error;
  }
  do {
    FileEntry entry = EntryOf(found);
    if (entry.Name == "." || entry.Name == "..") continue;
    if (FitsPattern(entry.Name, pattern)) entries.push_back(std::move(entry));
  } while (FindNextFileW(find.Get(), &found) != 0);
  const DWORD end = GetLastError();
  if (end != ERROR_NO_MORE_FILES) return FileErrorOf(end);
  return entries;
}

FileResult<std::uint64_t> Win32Files::Length(std::string_view path) {
  const auto wide = PathOf(path);
  if (!wide) return FileError::BadName;
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (GetFileAttributesExW(wide->c_str(), GetFileExInfoStandard, &data) == 0)
    return LastFileError();
  if (IsFolder(data.dwFileAttributes)) return FileError::AccessDenied;
  return (std::uint64_t{data.nFileSizeHigh} << 32U) | data.nFileSizeLow;
}

FileResult<std::string> Win32Files::Read(std::string_view path, std::uint64_t offset,
                                         std::size_t count) {
  const auto wide = PathOf(path);
  if (!wide) return FileError::BadName;
  const UniqueFile file = OpenPatiently(*wide, GENERIC_READ, kShareAll, OPEN_EXISTING);
  if (!file) return LastFileError();
  LARGE_INTEGER length{};
  if (GetFileSizeEx(file.Get(), &length) == 0) return LastFileError();
  const auto size = static_cast<std::uint64_t>(length.QuadPart);
  if (offset >= size) return std::string();
  if (!Seek(file.Get(), offset)) return LastFileError();
  std::string bytes(static_cast<std::size_t>(std::min<std::uint64_t>(size - offset, count)), '\0');
  std::size_t got = 0;
  while (got < bytes.size()) {
    const auto wanted = static_cast<DWORD>(std::min(bytes.size() - got, kMostBytesAtOnce));
    DWORD read = 0;
    if (ReadFile(file.Get(), bytes.data() + got, wanted, &read, nullptr) == 0)
      return LastFileError();
    if (read == 0) break;
    got += read;
  }
  bytes.resize(got);
  return bytes;
}

FileStatus Win32Files::Write(std::string_view path, std::string_view bytes) {
  const auto wide = PathOf(path);
  if (!wide) return FileError::BadName;
  const FileResult<DWORD> attributes = WritableAttributes(*wide);
  if (!attributes) return attributes.Error();
  // Opened rather than created, so that a hidden file is written and stays hidden.
  const UniqueFile file = OpenForWriting(*wide, OPEN_ALWAYS);
  return StatusOf(file && SetEndOfFile(file.Get()) != 0 && WriteAll(file.Get(), bytes));
}

FileStatus Win32Files::WriteAt(std::string_view path, std::uint64_t offset,
                               std::string_view bytes) {
  const auto wide = PathOf(path);
  if (!wide) return FileError::BadName;
  const FileResult<DWORD> attributes = WritableAttributes(*wide);
  if (!attributes) return attributes.Error();
  const UniqueFile file = OpenForWriting(*wide, OPEN_ALWAYS);
  return StatusOf(file && Seek(file.Get(), offset) && WriteAll(file.Get(), bytes));
}

FileStatus Win32Files::Replace(std::string_view path, std::string_view bytes) {
  return ReplaceWith(path, bytes, true);
}

FileStatus Win32Files::ReplaceUnflushed(std::string_view path, std::string_view bytes) {
  return ReplaceWith(path, bytes, false);
}

FileStatus Win32Files::ReplaceWith(std::string_view path, std::string_view bytes, bool flush) {
  const auto wide = PathOf(path);
  if (!wide) return FileError::BadName;
  const FileResult<DWORD> attributes = WritableAttributes(*wide);
  if (!attributes) return attributes.Error();
  TemporaryFile content(*wide, ++temporary_);
  return StatusOf(content.Fill(bytes, flush) && content.MoveTo(*wide, *attributes, flush));
}

FileStatus Win32Files::Flush(std::string_view path) {
  const auto wide = PathOf(path);
  if (!wide) return FileError::BadName;
  if (IsFolder(AttributesOf(*wide))) return FileError::AccessDenied;
  const UniqueFile file = OpenForWriting(*wide, OPEN_EXISTING);
  return StatusOf(file && FlushFileBuffers(file.Get()) != 0);
}

FileStatus Win32Files::Remove(std::string_view path) {
  const auto wide = PathOf(path);
  if (!wide) return FileError::BadName;
  const auto removed = [&] { return DeleteFileW(wide->c_str()) != 0; };
  // A folder of temporary files holds dozens that stay in use.
  const bool patient = GetTickCount64() >= patientFrom_;
  if (patient ? DonePatiently(removed, false) : removed()) return Done{};
  const FileError error = LastFileError();
  if (error == FileError::InUse) patientFrom_ = GetTickCount64() + kImpatience;
  return error;
}

FileStatus Win32Files::ClearAttributes(std::string_view path) {
  const auto wide = PathOf(path);
  if (!wide) return FileError::BadName;
  const DWORD attributes = AttributesOf(*wide);
  if (attributes == INVALID_FILE_ATTRIBUTES) return LastFileError();
  if (IsFolder(attributes)) return FileError::AccessDenied;
  return StatusOf(SetFileAttributesW(wide->c_str(), FILE_ATTRIBUTE_NORMAL) != 0);
}

FileStatus Win32Files::Rename(std::string_view from, std::string_view to) {
  const auto wideFrom = PathOf(from);
  const auto wideTo = PathOf(to);
  if (!wideFrom || !wideTo) return FileError::BadName;
  return StatusOf(
      DonePatiently([&] { return MoveFileExW(wideFrom->c_str(), wideTo->c_str(), 0) != 0; }, true));
}

FileStatus Win32Files::Copy(std::string_view from, std::string_view to) {
  const auto wideFrom = PathOf(from);
  const auto wideTo = PathOf(to);
  if (!wideFrom || !wideTo) return FileError::BadName;
  const bool wasThere = AttributesOf(*wideTo) != INVALID_FILE_ATTRIBUTES;
  if (CopyFileW(wideFrom->c_str(), wideTo->c_str(), TRUE) != 0) return Done{};
  const DWORD error = GetLastError();
  // Leaves no truncated copy behind.
  if (!wasThere) DeleteFileW(wideTo->c_str());
  return FileErrorOf(error);
}

FileStatus Win32Files::MakeFolder(std::string_view path) {
  const auto wide = PathOf(path);
  if (!wide) return FileError::BadName;
  return StatusOf(CreateDirectoryW(wide->c_str(), nullptr) != 0);
}

// Each name is looked up in its folder, since the system's own call only cares for short names, not
// for case.
std::string Win32Files::LongPath(std::string_view path) {
  const auto wide = PathOf(path);
  if (!wide || wide->find_first_of(L"*?") != std::wstring::npos) return std::string(path);
  std::wstring text = *wide;
  std::replace(text.begin(), text.end(), L'/', L'\\');
  // A share is no folder that could be looked up in another.
  std::size_t at = 0;
  if (text.starts_with(L"\\\\")) {
    at = text.find(L'\\', 2);
    at = at == std::wstring::npos ? text.size() : text.find(L'\\', at + 1);
    at = at == std::wstring::npos ? text.size() : at + 1;
  } else if (text.size() >= 2 && text[1] == L':') {
    at = 2;
  }
  std::wstring result = text.substr(0, at);
  while (at < text.size()) {
    const std::size_t end = std::min(text.find(L'\\', at), text.size());
    const std::wstring name = text.substr(at, end - at);
    if (name.empty() || name == L"." || name == L"..") {
      result += name;
    } else {
      WIN32_FIND_DATAW found{};
      const UniqueFind find(FindFirstFileW((result + name).c_str(), &found));
      if (!find) return std::string(path);
      result += found.cFileName;
    }
    if (end < text.size()) result += L'\\';
    at = end + 1;
  }
  return Narrow(result);
}

std::string Win32Files::ShortPath(std::string_view path) {
  constexpr std::wstring_view kAnyLength = L"\\\\?\\";
  auto wide = PathOf(path);
  if (!wide || wide->empty()) return {};
  // Without the prefix the system takes no longer path of a drive.
  const bool prefixed = wide->size() >= MAX_PATH && wide->substr(1, 2) == L":\\";
  if (prefixed) wide->insert(0, kAnyLength);
  if (AttributesOf(*wide) == INVALID_FILE_ATTRIBUTES) return {};
  const DWORD room = GetShortPathNameW(wide->c_str(), nullptr, 0);
  std::wstring text(room, L'\0');
  // The count without a buffer includes the NUL at the end, that of what was written does not.
  const DWORD length = room == 0 ? 0 : GetShortPathNameW(wide->c_str(), text.data(), room);
  if (length == 0 || length >= room) return {};
  text.resize(length);
  return Narrow(text.substr(prefixed ? kAnyLength.size() : 0));
}

}  // namespace corvelle::win32
