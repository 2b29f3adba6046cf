#include "win32/ErrorMode.h"

#include "win32/Sys.h"

namespace corvelle::win32 {

namespace {

/// What the process was started with, asked before the first change.
UINT ModeOfTheStart() noexcept {
  static const UINT mode = GetErrorMode();
  return mode;
}

}  // namespace

void SuppressCriticalErrorBoxes() noexcept {
  SetErrorMode(ModeOfTheStart() | SEM_FAILCRITICALERRORS);
  SetThreadErrorMode(GetThreadErrorMode() | SEM_FAILCRITICALERRORS, nullptr);
}

ErrorModeForChildren::ErrorModeForChildren() noexcept : before_(SetErrorMode(ModeOfTheStart())) {}

ErrorModeForChildren::~ErrorModeForChildren() { SetErrorMode(before_); }

}  // namespace corvelle::win32
