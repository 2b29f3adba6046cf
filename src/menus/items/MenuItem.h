#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/MenuRecord.h"
#include "menus/items/FolderState.h"

namespace corvelle {

class CodePage;

/// One item of a menu, from its file to its picture.
struct MenuItem {
  std::string Title;  // as it is shown, with single "&"
  std::string Icon;   // its icon text, see icons/IconForm.h
  std::string Command;
  EntryOrigin Origin;
  bool Hidden = false;          // the entry that no menu shows, see IsHiddenTitle
  bool Separator = false;       // a line of the file; the menu on show has rules for these
  bool AfterSeparator = false;  // directly follows one
  /// Of a folder item that stands for itself until it is known what it holds.
  FolderState Folder = FolderState::Here;
  // Where the layout has put it: twips, and the number of its page.
  float Top = 0;
  float Width = 0;
  int Page = 0;

  friend bool operator==(const MenuItem&, const MenuItem&) = default;
};

/// True for the title of the entry that no menu shows: "Corvelle" ignoring case, also with a NUL at
/// its end, whatever follows that.
[[nodiscard]] bool IsHiddenTitle(std::string_view title);

/// The item of record `place` of a menu file. Texts are cut at a NUL, which only a damaged file
/// has.
[[nodiscard]] MenuItem ItemOf(MenuRecord record, int place);

/// The items of a menu file; the first one is the menu's button.
[[nodiscard]] std::vector<MenuItem> ItemsOf(const std::vector<MenuRecord>& records);

/// The same from the bytes of whole records.
[[nodiscard]] std::vector<MenuItem> ReadItems(std::string_view stored, const CodePage& ansi);

}  // namespace corvelle
