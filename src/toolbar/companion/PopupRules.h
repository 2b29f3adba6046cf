#pragma once

#include <array>
#include <string>
#include <string_view>

namespace corvelle {

// What the popup of right clicks offers for an entry: pure rules.

/// All that decides which lines of the popup are enabled.
struct PopupFacts {
  std::string_view Tag;      // of the entry's menu, as EntryEdit::CurMenuTag
  int Record = 0;            // 0 for none, above kGeneratedBase for a generated entry
  std::string_view Command;  // of the entry
  bool FollowsSeparator = false;
  bool ClipboardEmpty = true;
  std::string_view UndoTag;  // empty: there is nothing to undo
};

/// One line of the popup: its caption ("-" is a separator line), the tag of its command, and
/// whether it is enabled.
struct PopupRow {
  std::string_view Caption;
  std::string_view Tag;
  bool (*Enabled)(const PopupFacts& facts);
};

/// The lines from top to bottom; every one is always visible.
inline constexpr std::size_t kPopupRowCount = 19;
[[nodiscard]] const std::array<PopupRow, kPopupRowCount>& PopupRows() noexcept;

/// The menu file that an entry of a menu comes from: a menu with folder items is shown from a
/// generated file beside its own, and edits go to its own.
[[nodiscard]] std::string SourceMenuFile(std::string_view shownFile);

}  // namespace corvelle
