#include "e2e/ProcessCounts.h"

#include <psapi.h>
#include <winternl.h>

#include <algorithm>
#include <cstdint>
#include <vector>

#include "e2e/UserNumbers.h"

namespace corvelle::e2e {

namespace {

/// An entry of the table of drawing objects, which lies in each process and can be read.
struct GdiEntry {
  std::uint64_t Object;
  std::uint32_t Owner;
  std::uint16_t Unique;
  std::uint8_t Type;  // 0: free
  std::uint8_t Flags;
  std::uint64_t UserPointer;
};

constexpr std::size_t kGdiEntries = 0x4000;
// Of its address in the environment block of a process.
constexpr std::size_t kTablePlace = sizeof(void*) == 8 ? 0xF8 : 0x94;

using QueryProcess = NTSTATUS(WINAPI*)(HANDLE, PROCESSINFOCLASS, PVOID, ULONG, PULONG);

/// For a system that does not count.
int CountGdiEntries(HANDLE process) {
  const auto query = reinterpret_cast<QueryProcess>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleW(L"ntdll"), "NtQueryInformationProcess")));
  PROCESS_BASIC_INFORMATION basic = {};
  ULONG length = 0;
  if (query == nullptr ||
      query(process, ProcessBasicInformation, &basic, sizeof(basic), &length) != 0) {
    return 0;
  }
  const void* table = nullptr;
  const char* const block = reinterpret_cast<const char*>(basic.PebBaseAddress);
  std::vector<GdiEntry> entries(kGdiEntries);
  if (ReadProcessMemory(process, block + kTablePlace, &table, sizeof(table), nullptr) == FALSE ||
      table == nullptr ||
      ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof(GdiEntry),
                        nullptr) == FALSE) {
    return 0;
  }
  return static_cast<int>(std::count_if(entries.begin(), entries.end(),
                                        [](const GdiEntry& entry) { return entry.Type != 0; }));
}

struct WindowCount {
  DWORD Process = 0;
  int Found = 0;
};

BOOL CALLBACK CountWindow(HWND window, LPARAM parameter) {
  auto& count = *reinterpret_cast<WindowCount*>(parameter);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process == count.Process) ++count.Found;
  return TRUE;
}

/// What lies in a window belongs to its process here.
BOOL CALLBACK CountWithChildren(HWND window, LPARAM parameter) {
  CountWindow(window, parameter);
  EnumChildWindows(window, CountWindow, parameter);
  return TRUE;
}

int CountWindows(DWORD process) {
  WindowCount count{.Process = process};
  EnumWindows(CountWithChildren, reinterpret_cast<LPARAM>(&count));
  // Windows that only take messages are not listed with the others.
  HWND window = nullptr;
  while ((window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr) {
    CountWithChildren(window, reinterpret_cast<LPARAM>(&count));
  }
  return count.Found;
}

/// For a system that does not tell: what the process has committed for itself alone.
std::size_t CommittedBytes(HANDLE process) {
  std::size_t bytes = 0;
  const char* at = nullptr;
  MEMORY_BASIC_INFORMATION region = {};
  while (VirtualQueryEx(process, at, &region, sizeof(region)) == sizeof(region)) {
    if (region.State == MEM_COMMIT && region.Type == MEM_PRIVATE) bytes += region.RegionSize;
    at = static_cast<const char*>(region.BaseAddress) + region.RegionSize;
  }
  return bytes;
}

}  // namespace

ProcessCounts CountsOf(HWND window) {
  ProcessCounts counts;
  DWORD id = 0;
  GetWindowThreadProcessId(window, &id);
  HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id);
  if (process == nullptr) return counts;
  counts.Gdi = static_cast<int>(GetGuiResources(process, GR_GDIOBJECTS));
  if (counts.Gdi == 0) counts.Gdi = CountGdiEntries(process);
  counts.User = static_cast<int>(GetGuiResources(process, GR_USEROBJECTS));
  if (counts.User == 0) counts.User = HighestUserNumber();
  counts.Windows = CountWindows(id);
  PROCESS_MEMORY_COUNTERS_EX memory = {};
  if (K32GetProcessMemoryInfo(process, reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory),
                              sizeof(memory)) != FALSE) {
    counts.PrivateBytes = memory.PrivateUsage;
  }
  if (counts.PrivateBytes == 0) counts.PrivateBytes = CommittedBytes(process);
  CloseHandle(process);
  return counts;
}

}  // namespace corvelle::e2e
