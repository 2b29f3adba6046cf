#pragma once

#include <array>
#include <string_view>

namespace corvelle {

// The program's own menu: which of its items are marked and which can be chosen. Its labels are
// numbered from 1 in their order, lines between them not counted.

inline constexpr int kLargeIconsLabel = 3;
inline constexpr int kAutoHideLabel = 4;
inline constexpr int kNotOnTopLabel = 5;
inline constexpr int kRestoreLabel = 8;
inline constexpr int kMaximizeLabel = 9;
inline constexpr int kMinimizeLabel = 10;

inline constexpr std::array kMarkedLabels = {kLargeIconsLabel, kAutoHideLabel, kNotOnTopLabel};
inline constexpr std::array kPlaceLabels = {kRestoreLabel, kMaximizeLabel, kMinimizeLabel};

struct MainMenuFacts {
  bool LargeIcons = false;
  bool AutoHide = false;
  bool NotOnTop = false;
  bool Docked = false;
};

/// True for an item that shows an option that is on.
[[nodiscard]] bool IsMarked(int label, const MainMenuFacts& facts) noexcept;
/// False for an item that has no use at the place of the strip.
[[nodiscard]] bool IsChoosable(int label, const MainMenuFacts& facts) noexcept;
/// The icon text of an item with a mark, or of one without.
[[nodiscard]] std::string_view MarkIcon(bool marked) noexcept;

}  // namespace corvelle
