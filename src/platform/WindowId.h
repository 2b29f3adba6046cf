#pragma once

#include <cstdint>

namespace corvelle {

/// Names a window of this or of another program, as Windows does; 0 is no window.
using WindowId = std::uintptr_t;

inline constexpr WindowId kNoWindow = 0;

}  // namespace corvelle
