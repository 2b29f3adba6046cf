#pragma once

namespace corvelle::win32 {

/// Keeps the system's boxes about drives without a disk and the like away from this program: what
/// needs such a drive fails instead. Sets it for the process and for the calling thread; each
/// thread that the program starts calls it too, because during a start (see below) only the setting
/// of the thread is in force.
void SuppressCriticalErrorBoxes() noexcept;

/// While it lives, the process has the error mode that it was itself started with, so that a
/// program started meanwhile inherits that one and has its boxes. The thread keeps its own setting.
/// Several threads may be at it at a time.
class ErrorModeForChildren {
 public:
  ErrorModeForChildren() noexcept;
  ErrorModeForChildren(const ErrorModeForChildren&) = delete;
  ErrorModeForChildren& operator=(const ErrorModeForChildren&) = delete;
  ~ErrorModeForChildren();
};

}  // namespace corvelle::win32
