#include "win32/ErrorMode.h"

#include <mutex>

#include "win32/Sys.h"

namespace corvelle::win32 {

namespace {

/// What the process was started with, asked before the first change.
UINT ModeOfTheStart() noexcept {
  static const UINT mode = GetErrorMode();
  return mode;
}

/// The starts that go on just now, on whatever threads.
struct StartCount {
  std::mutex Lock;
  int Count = 0;
  UINT Before = 0;  // the mode outside of starts
};

StartCount& Starts() noexcept {
  static StartCount starts;
  return starts;
}

}  // namespace

void SuppressCriticalErrorBoxes() noexcept {
  SetErrorMode(ModeOfTheStart() | SEM_FAILCRITICALERRORS);
  SetThreadErrorMode(GetThreadErrorMode() | SEM_FAILCRITICALERRORS, nullptr);
}

ErrorModeForChildren::ErrorModeForChildren() noexcept {
  const std::scoped_lock lock(Starts().Lock);
  if (Starts().Count++ == 0) Starts().Before = SetErrorMode(ModeOfTheStart());
}

ErrorModeForChildren::~ErrorModeForChildren() {
  const std::scoped_lock lock(Starts().Lock);
  if (--Starts().Count == 0) SetErrorMode(Starts().Before);
}

}  // namespace corvelle::win32
