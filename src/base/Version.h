#pragma once

#include <string_view>

namespace corvelle {

/// The number of the program's version as users read it ("4.25"). The build keeps it in one
/// place, the project line of CMakeLists.txt.
[[nodiscard]] std::string_view VersionText() noexcept;

}  // namespace corvelle
