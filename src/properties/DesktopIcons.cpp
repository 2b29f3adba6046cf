#include "properties/DesktopIcons.h"

#include <string>

#include "menus/folders/FolderRules.h"
#include "platform/FileSystem.h"
#include "properties/PreviewPlan.h"

namespace corvelle {

std::vector<int> DesktopIcons(const std::vector<ShellFolderEntry>& entries) {
  std::vector<std::string> texts;
  for (const std::string& line : ShellFolderLines(entries)) {
    texts.push_back(ParseShellFolderLine(line).Icon);
  }
  return DistinctIcons(texts);
}

void RemoveDesktopLists(FileSystem& files, std::string_view menusPath) {
  for (const std::string_view name : {"dtf", "dtf.mfd", "dtf.tmp"}) {
    static_cast<void>(files.Remove(std::string(menusPath) + std::string(name)));
  }
}

}  // namespace corvelle
