#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "menus/FolderMenusPort.h"
#include "menus/clsFolder.h"
#include "menus/mFolder.h"
#include "menus/sFolder.h"

namespace corvelle {

class GeneratedMenu;
class Program;

/// Folder items: a menu that has open ones is built from memory, with what they hold in their
/// places, and that is remembered for each menu until it is built again.
class FolderMenus final : public FolderMenusPort {
 public:
  explicit FolderMenus(Program& program) : program_(program) {}

  std::optional<ExpandedMenu> Expand(std::string_view menuKey, std::string_view menuFile,
                                     std::string_view stored) override;
  bool WriteGenerated(const ExpandedMenu& menu) override;
  bool UpdateMenu(std::string_view menuKey) override;

  /// The folder items of a built menu; none for a menu without.
  [[nodiscard]] std::vector<clsFolder> Folders(std::string_view menuKey) const;

 private:
  /// What is kept of one built menu.
  struct Built {
    std::vector<clsFolder> Folders;
    clsFolderUpdate Update;
    // The bin's icon as it was when the menu was built.
    std::string RecycleIcon;
    int RecycleIndex = -1;
  };

  /// What the comparison of a menu listed, by the commands of its folder items. A menu that is
  /// built because of it is built from that, so that no folder is listed twice for one opening.
  struct Listed {
    std::string MenuKey;
    std::map<std::string, FoundFiles, std::less<>> Files;
    std::map<std::string, SpecialFolderLines, std::less<>> Lines;
  };

  void ExpandItems(GeneratedMenu& menu, std::string_view menuFile, Listed& listed, Built& built);
  const FoundFiles& FilesOf(std::string_view folderName, Listed& listed);
  const SpecialFolderLines& LinesOf(std::string_view folderName, Listed& listed);
  [[nodiscard]] bool HasChanged(const Built& built, std::size_t index, Listed& listed);
  [[nodiscard]] bool BinHasChanged(const Built& built);

  Program& program_;
  std::map<std::string, std::shared_ptr<const Built>, std::less<>>
      built_;      // by the key in capitals
  Listed listed_;  // from a comparison that found a change until the next build or comparison
};

}  // namespace corvelle
