#pragma once

namespace corvelle::win32 {

/// True if this process was started to write the report of one that crashed (win32/CrashCatcher.h);
/// it is written then, and the process is to end. The report says what happened where, in which
/// version of the program and of Windows, and which libraries were loaded; a small dump of the
/// stacks lies beside it. Also gives the crashed program's edge of the screen back to the shell.
[[nodiscard]] bool WroteCrashReport();

}  // namespace corvelle::win32
