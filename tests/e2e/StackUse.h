#pragma once

#include <windows.h>

#include <cstddef>

namespace corvelle::e2e {

/// The most bytes of its stack that the thread of a window has ever used, seen from outside: what
/// was never reached still holds zeros. 0 for a window that is gone, or a stack that cannot be
/// read.
[[nodiscard]] std::size_t DeepestStackOf(HWND window);

}  // namespace corvelle::e2e
