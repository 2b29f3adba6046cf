#include "properties/DesktopIcons.h"

#include <string>
#include <string_view>

#include "core/SpecialFolders.h"
#include "menus/folders/FolderRules.h"
#include "platform/FileSystem.h"
#include "platform/ShellFolders.h"
#include "properties/PreviewPlan.h"

namespace corvelle {

std::vector<int> DesktopIcons(ShellFolders& folders, FileSystem& files,
                              std::string_view menusPath) {
  for (const std::string_view name : {"dtf", "dtf.mfd", "dtf.tmp"}) {
    // One that stays does no harm: the next start removes it.
    static_cast<void>(files.Remove(std::string(menusPath) + std::string(name)));
  }
  const auto entries = folders.List(kDesktopFolder);
  if (!entries) return {};
  std::vector<std::string> texts;
  for (const std::string& line : ShellFolderLines(*entries)) {
    texts.push_back(ParseShellFolderLine(line).Icon);
  }
  return DistinctIcons(texts);
}

}  // namespace corvelle
