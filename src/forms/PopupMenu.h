#pragma once

#include <string>
#include <vector>

namespace corvelle::forms {

/// One line of a popup menu. The text after a tab in the caption is shown at the right, for the
/// key that does the same. A "&" in the caption marks the letter that chooses the line, two of
/// them are one character.
struct PopupItem {
  std::string Caption;  // "-" is a separator line, which cannot be chosen
  bool Enabled = true;
  bool Checked = false;
  bool Visible = true;
  std::vector<PopupItem> Items;  // of a line that opens a menu of its own

  [[nodiscard]] bool IsSeparator() const { return Caption == "-"; }

  friend bool operator==(const PopupItem&, const PopupItem&) = default;
};

namespace popup {
/// What WindowSystem::ShowPopup gives when the user chose nothing.
inline constexpr int kNothing = -1;
/// A flag: the right button chooses too, not the left one alone.
inline constexpr unsigned RightButton = 2;
}  // namespace popup

}  // namespace corvelle::forms
