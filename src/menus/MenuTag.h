#pragma once

#include <string>
#include <string_view>

namespace corvelle {

// An item's tag: a kind letter, the command, NUL, the icon text, NUL, the record number; for an
// entry of a folder of the shell also NUL and its whole name there. The kind is "s" for an item
// that directly follows a separator, else "n". A mark of the program's own menu has no kind and no
// command.

struct MenuTag {
  bool FollowsSeparator = false;
  std::string Command;
  std::string Icon;
  int RecordNumber = 0;
  std::string Name;

  friend bool operator==(const MenuTag&, const MenuTag&) = default;
};

/// Command and icon text are cut at a NUL of their own, which only a damaged file has.
[[nodiscard]] std::string JoinTag(const MenuTag& tag);

/// The parts of a tag, each on its own. What is missing is empty, 0 or false.
[[nodiscard]] std::string TagCommand(std::string_view tag);
[[nodiscard]] std::string TagIcon(std::string_view tag);
[[nodiscard]] int TagRecordNumber(std::string_view tag);
[[nodiscard]] std::string TagName(std::string_view tag);
[[nodiscard]] bool TagFollowsSeparator(std::string_view tag) noexcept;

}  // namespace corvelle
