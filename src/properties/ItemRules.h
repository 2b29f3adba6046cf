#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvelle {

// What the first tab of the Properties window offers for an entry: pure rules.

/// Which controls of the tab can be used.
struct ItemControls {
  bool Title = true;
  bool Icon = true;
  bool Command = true;
  bool CommandButtons = true;  // the flat buttons beside the command
  bool IconButtons = true;     // the flat buttons beside the icon
  bool AddButtons = true;      // "File" and "Folder", which fill all boxes

  friend bool operator==(const ItemControls&, const ItemControls&) = default;
};

/// `key` is where the entry stands, as EntryEdit::CurMenuTag says it. A menu button runs nothing,
/// so its command cannot be edited; the bare strip, the main menu and its button have neither title
/// nor icon of the user's either.
[[nodiscard]] ItemControls ControlsFor(std::string_view key) noexcept;

/// The part of the strip or the menu that shows an entry.
enum class ItemPlace { ToolbarButtons, SingleButtons, Menu };
[[nodiscard]] ItemPlace PlaceOf(std::string_view key) noexcept;

}  // namespace corvelle
