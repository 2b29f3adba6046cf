#include "win32/CrashCatcher.h"

#include <atomic>
#include <csignal>
#include <cstdint>
#include <exception>

#include "win32/CrashLine.h"

namespace corvelle::win32 {

namespace {

constexpr DWORD kLongestWait = 60000;  // milliseconds for the report

// All of it exists before anything goes wrong: a crashed program asks for no memory.
std::atomic<HWND> theBar = nullptr;
std::atomic<bool> crashing = false;
wchar_t theProgram[kLongestProgram];
wchar_t theLine[kLongestCrashLine];

[[noreturn]] void EndWith(DWORD code) noexcept {
  TerminateProcess(GetCurrentProcess(), code);
  while (true) Sleep(INFINITE);
}

void WriteReport(EXCEPTION_POINTERS* pointers) noexcept {
  const CrashLine facts{.Process = GetCurrentProcessId(),
                        .Thread = GetCurrentThreadId(),
                        .Pointers = reinterpret_cast<std::uintptr_t>(pointers),
                        .Bar = reinterpret_cast<std::uintptr_t>(theBar.load())};
  FormatCrashLine(theProgram, facts, theLine);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION writer{};
  if (CreateProcessW(theProgram, theLine, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                     &writer) != 0) {
    WaitForSingleObject(writer.hProcess, kLongestWait);
  }
}

// The first crash is told; threads that crash meanwhile wait for the end.
[[noreturn]] void Crash(EXCEPTION_POINTERS* pointers) noexcept {
  if (crashing.exchange(true)) {
    while (true) Sleep(INFINITE);
  }
  WriteReport(pointers);
  EndWith(pointers->ExceptionRecord->ExceptionCode);
}

LONG WINAPI OnException(EXCEPTION_POINTERS* pointers) noexcept { Crash(pointers); }

// A crash that the processor did not raise: its place is the caller's.
[[noreturn]] void CrashHere(DWORD code) noexcept {
  static CONTEXT context;
  static EXCEPTION_RECORD record;
  RtlCaptureContext(&context);
  record.ExceptionCode = code;
  record.ExceptionFlags = EXCEPTION_NONCONTINUABLE;
  record.ExceptionAddress = __builtin_return_address(0);
  EXCEPTION_POINTERS pointers{.ExceptionRecord = &record, .ContextRecord = &context};
  Crash(&pointers);
}

[[noreturn]] void OnTerminate() noexcept { CrashHere(kUncaughtException); }

void OnAbort(int) noexcept { CrashHere(kAborted); }

}  // namespace

void CatchCrashes() noexcept {
  const DWORD length = GetModuleFileNameW(nullptr, theProgram, kLongestProgram);
  // A path that does not fit could name another program.
  if (length == 0 || length >= kLongestProgram) return;
  SetUnhandledExceptionFilter(OnException);
  std::set_terminate(OnTerminate);
  std::signal(SIGABRT, OnAbort);
}

void NoteBar(HWND window) noexcept { theBar = window; }

}  // namespace corvelle::win32
