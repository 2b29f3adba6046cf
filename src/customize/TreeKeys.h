#pragma once

#include <string>
#include <string_view>

#include "base/Text.h"

namespace corvelle {

// The keys of nodes. The parent, not the key, tells an item of a menu from a single button.

inline constexpr std::string_view kMenusKey = "QM";     // the root "Menu Buttons"
inline constexpr std::string_view kSinglesKey = "QM2";  // the root "Single Buttons"

[[nodiscard]] inline bool IsRootKey(std::string_view key) noexcept {
  return StartsWithNoCase(key, "Q");
}
/// "B" and a number: a menu button.
[[nodiscard]] inline bool IsMenuKey(std::string_view key) noexcept {
  return StartsWithNoCase(key, "B");
}
/// "M" and a number: an item of a menu, or a single button.
[[nodiscard]] inline bool IsItemKey(std::string_view key) noexcept {
  return StartsWithNoCase(key, "M");
}

}  // namespace corvelle
