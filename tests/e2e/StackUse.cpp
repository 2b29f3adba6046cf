#include "e2e/StackUse.h"

#include <winternl.h>

#include <algorithm>
#include <vector>

namespace corvelle::e2e {

namespace {

/// What the system tells of a thread; the header names only its number.
struct BasicThreadFacts {
  NTSTATUS ExitStatus;
  void* Environment;  // its environment block, which begins with an NT_TIB
  void* ProcessId;
  void* ThreadId;
  ULONG_PTR Affinity;
  LONG Priority;
  LONG BasePriority;
};

constexpr THREADINFOCLASS kBasicFacts = static_cast<THREADINFOCLASS>(0);

using QueryThread = NTSTATUS(WINAPI*)(HANDLE, THREADINFOCLASS, PVOID, ULONG, PULONG);

/// Where the environment block of a thread lies in its process; null when nobody tells.
const void* EnvironmentOf(DWORD threadId) {
  const auto query = reinterpret_cast<QueryThread>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleW(L"ntdll"), "NtQueryInformationThread")));
  HANDLE thread = OpenThread(THREAD_QUERY_INFORMATION, FALSE, threadId);
  if (query == nullptr || thread == nullptr) return nullptr;
  BasicThreadFacts facts = {};
  ULONG length = 0;
  const NTSTATUS status = query(thread, kBasicFacts, &facts, sizeof(facts), &length);
  CloseHandle(thread);
  return status == 0 ? facts.Environment : nullptr;
}

/// The bytes from the first that is not zero to the end, going up from the lowest address.
std::size_t UsedBytes(HANDLE process, const char* limit, const char* base) {
  std::vector<char> bytes(static_cast<std::size_t>(base - limit));
  SIZE_T read = 0;
  if (ReadProcessMemory(process, limit, bytes.data(), bytes.size(), &read) == FALSE ||
      read != bytes.size()) {
    return 0;
  }
  const auto first = std::find_if(bytes.begin(), bytes.end(), [](char byte) { return byte != 0; });
  return static_cast<std::size_t>(bytes.end() - first);
}

}  // namespace

std::size_t DeepestStackOf(HWND window) {
  DWORD processId = 0;
  const DWORD threadId = GetWindowThreadProcessId(window, &processId);
  const void* const environment = EnvironmentOf(threadId);
  HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, processId);
  if (process == nullptr) return 0;
  NT_TIB block = {};
  std::size_t used = 0;
  if (environment != nullptr &&
      ReadProcessMemory(process, environment, &block, sizeof(block), nullptr) != FALSE) {
    // The lowest pages cannot be read until the stack has grown to them.
    const auto* limit = static_cast<const char*>(block.StackLimit);
    const auto* const base = static_cast<const char*>(block.StackBase);
    MEMORY_BASIC_INFORMATION region = {};
    while (limit < base && VirtualQueryEx(process, limit, &region, sizeof(region)) != 0 &&
           (region.State != MEM_COMMIT || (region.Protect & (PAGE_GUARD | PAGE_NOACCESS)) != 0)) {
      limit = static_cast<const char*>(region.BaseAddress) + region.RegionSize;
    }
    if (limit < base) used = UsedBytes(process, limit, base);
  }
  CloseHandle(process);
  return used;
}

}  // namespace corvelle::e2e
