#pragma once

#include <string>
#include <string_view>

#include "core/LaunchParts.h"
#include "core/WindowPorts.h"

namespace corvelle {

class Input;
class ShellFolders;
namespace desk {
class AnswerDesk;
}

/// Acts on an entry of a folder of the shell by its title: the left button opens it, `argument` on
/// its command line; any other shows its context menu at a point of the screen (pixels). True when
/// it was opened or a command of the menu ran. An entry that is gone counts as none.
bool DoSpecialFolder(ShellFolders& folders, int folder, std::string_view title,
                     forms::MouseButton button, std::string_view argument, PixelPoint at,
                     WindowId owner);

/// The folders of the shell, for all who open them or show their menus. What is not
/// there is passed over quietly. They open beside the windows; see StartBeside. A disk that does
/// not answer has no menus, since the shell would wait for it: there is a beep.
class SpecialFolders final : public SpecialFoldersPort {
 public:
  /// All live as long as the program.
  SpecialFolders(ShellFolders& folders, const LaunchParts& launch, desk::AnswerDesk& answers,
                 Input& pointer)
      : folders_(folders), launch_(launch), answers_(answers), pointer_(pointer) {}

  void OpenSpecialFolder(std::string_view name, std::string_view argument) override;
  bool ShowContextMenu(std::string_view command, std::string_view title, PixelPoint at,
                       WindowId owner) override;

 private:
  /// The shell's context menu of a file or folder of the disk. True when a command ran.
  bool DoExplorerMenu(WindowId owner, const std::string& path, PixelPoint at);
  /// The root of all folders has no menu; that of its folder on the disk stands in for it.
  bool ShowFolderMenu(int folder, PixelPoint at, WindowId owner);

  ShellFolders& folders_;
  const LaunchParts& launch_;
  desk::AnswerDesk& answers_;
  Input& pointer_;
};

}  // namespace corvelle
