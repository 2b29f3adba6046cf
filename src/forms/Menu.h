#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "forms/PopupMenu.h"
#include "forms/Types.h"

namespace corvelle::forms {

/// A key that does what a line of a menu does.
struct Accelerator {
  int KeyCode = 0;
  ShiftState Shift;

  friend bool operator==(const Accelerator&, const Accelerator&) = default;
};

/// The text after the tab of a caption: "Ctrl+S", "F2", "Shift+Ins", "Del". Nothing when there
/// is no tab, or no key of that name.
[[nodiscard]] std::optional<Accelerator> AcceleratorOf(std::string_view caption);

/// The number of the line of a menu that a key chooses: all lines are counted from 0, each
/// before the lines of its own menu. popup::kNothing when no line that can be chosen has the key.
[[nodiscard]] int LineOf(const std::vector<PopupItem>& items, const Accelerator& pressed);

/// The lines of a menu with those of all menus in it.
[[nodiscard]] int CountLines(const std::vector<PopupItem>& items);

/// The line with a number; null when no line has it.
[[nodiscard]] const PopupItem* LineAt(const std::vector<PopupItem>& items, int number);

}  // namespace corvelle::forms
