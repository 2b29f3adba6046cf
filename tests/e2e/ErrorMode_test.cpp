#include <gtest/gtest.h>

#include <winternl.h>

#include <cstddef>
#include <optional>

#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

// The system's boxes about drives without a disk: corvelle.exe has none, what it starts has its
// own.

namespace corvelle::e2e {
namespace {

// Of the error mode in the block of a thread.
constexpr std::size_t kModePlace = sizeof(void*) == 8 ? 0x16B0 : 0xF28;
// What the system calls the same thing in there: boxes about drives are off.
constexpr ULONG kThreadModeNoBoxes = 0x10;

/// What GetErrorMode says inside another process; the system's own libraries lie at one place in
/// all of them.
std::optional<DWORD> ErrorModeOf(DWORD process) {
  const HANDLE other = OpenProcess(PROCESS_ALL_ACCESS, FALSE, process);
  if (other == nullptr) return std::nullopt;
  const auto ask = reinterpret_cast<LPTHREAD_START_ROUTINE>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32"), "GetErrorMode")));
  const HANDLE thread = CreateRemoteThread(other, nullptr, 0, ask, nullptr, 0, nullptr);
  std::optional<DWORD> mode;
  DWORD answer = 0;
  if (thread != nullptr && WaitForSingleObject(thread, 5000) == WAIT_OBJECT_0 &&
      GetExitCodeThread(thread, &answer) != FALSE) {
    mode = answer;
  }
  if (thread != nullptr) CloseHandle(thread);
  CloseHandle(other);
  return mode;
}

struct ThreadFacts {
  NTSTATUS ExitStatus;
  void* Block;
  void* Ids[2];
  ULONG_PTR Processors;
  LONG Priority;
  LONG BasePriority;
};

/// The error mode of one thread of another process, as the system keeps it.
std::optional<ULONG> ThreadModeOf(DWORD process, DWORD threadId) {
  using QueryThread = NTSTATUS(WINAPI*)(HANDLE, int, PVOID, ULONG, PULONG);
  const auto query = reinterpret_cast<QueryThread>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleW(L"ntdll"), "NtQueryInformationThread")));
  const HANDLE other = OpenProcess(PROCESS_VM_READ, FALSE, process);
  const HANDLE thread = OpenThread(THREAD_QUERY_INFORMATION, FALSE, threadId);
  std::optional<ULONG> mode;
  ThreadFacts facts = {};
  ULONG length = 0;
  ULONG read = 0;
  if (query != nullptr && query(thread, 0, &facts, sizeof(facts), &length) == 0 &&
      ReadProcessMemory(other, static_cast<const char*>(facts.Block) + kModePlace, &read,
                        sizeof(read), nullptr) != FALSE) {
    mode = read;
  }
  CloseHandle(thread);
  CloseHandle(other);
  return mode;
}

TEST(ErrorMode, TheProgramHasNoBoxesAboutDrivesWithoutADisk) {
  // What starts it has others, and a test program none at all.
  const UINT before = SetErrorMode(0);
  WineDesk desk;
  desk.WriteFile(scenario::kFlagsFile, scenario::InstalledFlags());
  scenario::WriteMenu(desk, 1, "One", {scenario::Witness(desk, "one")});
  desk.MovePointer(scenario::FarAway(desk));
  ASSERT_TRUE(scenario::StartAndWait(desk));
  SetErrorMode(before);
  DWORD process = 0;
  const DWORD thread = GetWindowThreadProcessId(FindWindowW(L"frmToolbar", nullptr), &process);
  ASSERT_NE(thread, 0U);
  const auto expectNoBoxes = [&] {
    EXPECT_EQ(ErrorModeOf(process), static_cast<DWORD>(SEM_FAILCRITICALERRORS));
    EXPECT_EQ(ThreadModeOf(process, thread), kThreadModeNoBoxes);
  };
  expectNoBoxes();
  // A start lends the mode of its own start to what it starts, and takes its own back.
  ASSERT_TRUE(scenario::OpenMenu(desk, 2));
  scenario::ClickItem(desk, scenario::ItemMiddle(desk, 1, 1));
  ASSERT_TRUE(desk.Wait([&] { return !desk.Launched().empty(); }, 8000));
  expectNoBoxes();
}

}  // namespace
}  // namespace corvelle::e2e
