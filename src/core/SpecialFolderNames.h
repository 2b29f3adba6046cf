#pragma once

#include <optional>
#include <string_view>

namespace corvelle {

// The shell's special folders by the names that commands and icon texts give them. The numbers are
// those of the shell's own constants of the same names.

inline constexpr int kDesktopFolder = 0;
inline constexpr int kRecycleBinFolder = 10;

/// The number of a folder's name, case apart; nothing for a name that is not known. Options and
/// blanks have been taken off before.
[[nodiscard]] std::optional<int> KnownCsidl(std::string_view name) noexcept;

/// The same; a name that is not known is the desktop's.
[[nodiscard]] int CsidlValue(std::string_view name) noexcept;

}  // namespace corvelle
