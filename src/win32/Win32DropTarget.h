#pragma once

#include <memory>

#include "win32/Sys.h"

namespace corvelle::win32 {

class Win32Window;

/// Lets OLE tell a window of this thread of the drags of other programs. The thread must have been
/// made ready for OLE. False when the system refuses.
[[nodiscard]] bool StartTakingDrops(HWND handle, const std::shared_ptr<Win32Window>& window);
/// Ends it. No harm for a window that takes none.
void StopTakingDrops(HWND handle);

}  // namespace corvelle::win32
