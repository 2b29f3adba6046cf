// The machine: its version of Windows, its processor, its memory and its drives.

#include <algorithm>
#include <cstddef>

#include "win32/Sys.h"
#include "win32/Wide.h"
#include "win32/Win32SystemInfo.h"

namespace corvelle::win32 {

namespace {

using RtlGetVersionCall = LONG(WINAPI*)(OSVERSIONINFOW*);

constexpr DWORD kLongestName = MAX_PATH + 1;

/// The text before its NUL.
std::string Cut(const std::wstring& buffer) { return Narrow(buffer.c_str()); }

std::optional<DriveRoom> RoomOf(const std::wstring& root) {
  ULARGE_INTEGER free{};
  ULARGE_INTEGER total{};
  // What this user may take, out of what this user may have: with a quota they belong together.
  if (GetDiskFreeSpaceExW(root.c_str(), &free, &total, nullptr) == 0) return std::nullopt;
  return DriveRoom{.Total = total.QuadPart, .Free = free.QuadPart};
}

}  // namespace

std::string Win32SystemInfo::TempFolder() const {
  std::wstring path(kLongestName, L'\0');
  const DWORD length = GetTempPathW(kLongestName, path.data());
  path.resize(length < path.size() ? length : 0);
  return Narrow(path);
}

// What GetVersionEx tells depends on the program's manifest; this call tells the truth.
std::optional<WindowsVersion> Win32SystemInfo::Version() const {
  const HMODULE library = GetModuleHandleW(L"ntdll.dll");
  if (library == nullptr) return std::nullopt;
  const auto ask = reinterpret_cast<RtlGetVersionCall>(
      reinterpret_cast<void*>(GetProcAddress(library, "RtlGetVersion")));
  OSVERSIONINFOW facts{};
  facts.dwOSVersionInfoSize = sizeof(facts);
  if (ask == nullptr || ask(&facts) != 0) return std::nullopt;
  return WindowsVersion{.Platform = facts.dwPlatformId,
                        .Major = facts.dwMajorVersion,
                        .Minor = facts.dwMinorVersion,
                        .Build = facts.dwBuildNumber};
}

ProcessorFacts Win32SystemInfo::Processor() const {
  SYSTEM_INFO facts{};
  GetNativeSystemInfo(&facts);
  return {.Type = facts.dwProcessorType, .Architecture = facts.wProcessorArchitecture};
}

std::optional<std::uint64_t> Win32SystemInfo::PhysicalMemory() const {
  MEMORYSTATUSEX facts{};
  facts.dwLength = sizeof(facts);
  if (GlobalMemoryStatusEx(&facts) == 0) return std::nullopt;
  return facts.ullTotalPhys;
}

std::vector<std::string> Win32SystemInfo::LogicalDrives() const {
  const DWORD size = GetLogicalDriveStringsW(0, nullptr);
  std::wstring all(size, L'\0');
  const DWORD length = GetLogicalDriveStringsW(size, all.data());
  all.resize(std::min<std::size_t>(length, all.size()));
  std::vector<std::string> roots;
  for (std::size_t at = 0; at < all.size();) {
    const std::size_t end = std::min(all.find(L'\0', at), all.size());
    if (end > at) roots.push_back(Narrow(all.substr(at, end - at)));
    at = end + 1;
  }
  return roots;
}

DriveFacts Win32SystemInfo::FactsOfDrive(const std::string& root) const {
  const std::wstring path = Wide(root);
  DriveFacts facts;
  facts.Type = GetDriveTypeW(path.c_str());
  std::wstring label(kLongestName, L'\0');
  std::wstring system(kLongestName, L'\0');
  if (GetVolumeInformationW(path.c_str(), label.data(), kLongestName, nullptr, nullptr, nullptr,
                            system.data(), kLongestName) != 0) {
    facts.Label = Cut(label);
    facts.FileSystem = Cut(system);
  }
  facts.Room = RoomOf(path);
  return facts;
}

bool Win32SystemInfo::IsDriveAtHand(const std::string& root) const {
  const UINT type = GetDriveTypeW(Wide(root).c_str());
  if (type != DRIVE_FIXED && type != DRIVE_RAMDISK) return false;
  // The device and not its root: opened without any right it stays as it is.
  const std::wstring device = Wide("\\\\.\\" + root.substr(0, 2));
  const HANDLE drive = CreateFileW(device.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                   OPEN_EXISTING, 0, nullptr);
  if (drive == INVALID_HANDLE_VALUE) return true;
  BOOL awake = TRUE;
  const bool told = GetDevicePowerState(drive, &awake) != 0;
  CloseHandle(drive);
  return !told || awake != FALSE;
}

}  // namespace corvelle::win32
