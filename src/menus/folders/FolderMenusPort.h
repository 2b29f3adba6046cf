#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "menus/items/MenuItem.h"

namespace corvelle {

/// A menu whose open folder items are replaced by what they hold.
struct ExpandedMenu {
  std::string File;                // full path of the generated file that holds a copy
  std::vector<MenuItem> Items;     // the first one is the menu's button
  std::vector<MenuRecord> Source;  // the records of the menu file
  bool Whole = true;               // false while something is not known of a folder
};

/// Folder items, which expand when their menu opens.
class FolderMenusPort {
 public:
  virtual ~FolderMenusPort() = default;

  /// What the menu is built from; nothing for a file without open folder items. `stored`: the menu
  /// file as it was read, in whole records.
  [[nodiscard]] virtual std::optional<ExpandedMenu> Expand(std::string_view menuKey,
                                                           std::string_view menuFile,
                                                           std::string_view stored) = 0;
  /// Writes the generated file, for other programs and for a later build of the menu in which a
  /// folder does not answer. False, and nothing is told, when it cannot be written.
  virtual bool WriteGenerated(const ExpandedMenu& menu) = 0;
  /// True if the folders of a built menu changed since.
  virtual bool UpdateMenu(std::string_view menuKey) = 0;

  /// Who is told the key of a menu when more is known of its folders than when it was built or
  /// compared last. It may build the menu from that at once.
  virtual void SetListener(std::function<void(const std::string& menuKey)> /*listener*/) {}
  /// The menu is closed: its listener wants to know nothing more.
  virtual void Leave() {}
  /// Asks folders of the menu again that did not answer.
  virtual void TryAgain() {}
};

}  // namespace corvelle
