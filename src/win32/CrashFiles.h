#pragma once

#include <string>

namespace corvelle::win32 {

/// Where reports of crashes lie, with a trailing backslash: %LOCALAPPDATA%\Corvelle\Crashes\. Empty
/// when the system has no such folder.
[[nodiscard]] std::wstring CrashFolder();

/// Makes a folder and those on the way to it; false when that cannot be done.
bool MakeFoldersTo(const std::wstring& folder);

/// How many crashes keep their report and their dump.
inline constexpr std::size_t kMostReports = 5;

/// Removes the reports and dumps of all but the last crashes, by their names, which begin with
/// their time.
void DropOldReports(const std::wstring& folder);

/// Notes that the next start is to tell of this report, and takes the note back again: the path of
/// the report, empty when there is no note or the report is gone.
void NoteUntold(const std::wstring& folder, const std::wstring& report);
[[nodiscard]] std::wstring TakeUntoldFrom(const std::wstring& folder);

/// Writes a whole file; false when that fails.
bool WriteWhole(const std::wstring& path, const std::string& bytes);

}  // namespace corvelle::win32
