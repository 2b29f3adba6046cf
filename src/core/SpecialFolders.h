#pragma once

#include <string_view>

namespace corvelle {

/// The shell's number of a special folder by its name ("CSIDL_DRIVES", case apart, nothing around
/// it). Any other text is the desktop, 0.
[[nodiscard]] int CsidlValue(std::string_view name) noexcept;

}  // namespace corvelle
