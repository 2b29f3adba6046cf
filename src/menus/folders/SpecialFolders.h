#pragma once

#include <string>
#include <string_view>

#include "core/LaunchParts.h"
#include "core/WindowPorts.h"

namespace corvelle {

class ShellFolders;

/// Acts on an entry of a folder of the shell by its title: the left button opens it, `argument` on
/// its command line; any other shows its context menu at a point of the screen (pixels). True when
/// it was opened or a command of the menu ran. An entry that is gone counts as none.
bool DoSpecialFolder(ShellFolders& folders, int folder, std::string_view title,
                     forms::MouseButton button, std::string_view argument, PixelPoint at,
                     WindowId owner);

/// The shell's context menu of a file or folder of the disk. True when a command ran.
bool DoExplorerMenu(ShellFolders& folders, WindowId owner, std::string_view path, PixelPoint at);

/// The folders of the shell, for all who open them or show their menus. What is not
/// there is passed over quietly. They open beside the windows; see StartBeside.
class SpecialFolders final : public SpecialFoldersPort {
 public:
  /// Both live as long as the program.
  SpecialFolders(ShellFolders& folders, const LaunchParts& launch)
      : folders_(folders), launch_(launch) {}

  void OpenSpecialFolder(std::string_view name, std::string_view argument) override;
  bool ShowContextMenu(std::string_view command, std::string_view title, PixelPoint at,
                       WindowId owner) override;

 private:
  ShellFolders& folders_;
  const LaunchParts& launch_;
};

}  // namespace corvelle
