#pragma once

namespace corvelle::win32 {

/// Loads the classes of the common controls, once.
void StartCommonControls();

}  // namespace corvelle::win32
