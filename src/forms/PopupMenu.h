#pragma once

#include <string>

namespace corvelle::forms {

/// One line of a popup menu. A "&" in the caption marks the letter that chooses the line, two of
/// them are one character.
struct PopupItem {
  std::string Caption;  // "-" is a separator line, which cannot be chosen
  bool Enabled = true;
  bool Checked = false;
  bool Visible = true;

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
