#pragma once

#include <string>
#include <string_view>

#include "core/LaunchParts.h"
#include "core/WindowPorts.h"

namespace corvelle {

class ShellFolders;
class ShellIcons;

/// Acts on an entry of a folder of the shell by its title: the left button opens it, `argument` on
/// its command line; any other shows its context menu at a point of the screen (pixels). True when
/// it was opened or a command of the menu ran. An entry that is gone counts as none.
bool DoSpecialFolder(ShellFolders& folders, int folder, std::string_view title,
                     forms::MouseButton button, std::string_view argument, PixelPoint at,
                     WindowId owner);

/// The shell's context menu of a file or folder of the disk. True when a command ran.
bool DoExplorerMenu(ShellFolders& folders, WindowId owner, std::string_view path, PixelPoint at);

/// The shell's name for a special folder by its number, or for a file by its path; empty when it
/// has none. `iconOut`: its icon in the system's lists, -1 when it has none.
std::string SpecialFolderName(ShellFolders& folders, int folder, int& iconOut);
std::string SpecialFolderName(ShellIcons& icons, std::string_view path, int& iconOut);

/// The folders of the shell, for all who open them, show their icons or their menus. What is not
/// there is passed over quietly. They open beside the windows; see StartBeside.
class SpecialFolders final : public SpecialFoldersPort {
 public:
  /// Both live as long as the program.
  SpecialFolders(ShellFolders& folders, const LaunchParts& launch)
      : folders_(folders), launch_(launch) {}

  int SpecialFolderIconIndex(std::string_view name) override;
  void OpenSpecialFolder(std::string_view name, std::string_view argument) override;
  bool ShowContextMenu(std::string_view command, std::string_view title, PixelPoint at,
                       WindowId owner) override;

 private:
  ShellFolders& folders_;
  LaunchParts launch_;
};

}  // namespace corvelle
