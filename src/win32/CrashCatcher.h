#pragma once

#include "win32/Sys.h"

namespace corvelle::win32 {

/// From here on a fault of the processor that nobody handles, a call of abort and a C++ exception
/// that nobody catches end the program with a report: a second process of this program writes it
/// (win32/CrashWriter.h), because the first one is not to be relied on any more. A stack that runs
/// over is not caught.
void CatchCrashes() noexcept;

/// The window that holds an edge of the screen at this moment, nullptr for none. Should the program
/// crash, the edge is given back to the shell.
void NoteBar(HWND window) noexcept;

}  // namespace corvelle::win32
