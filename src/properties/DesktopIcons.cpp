#include "properties/DesktopIcons.h"

#include <string>
#include <string_view>

#include "core/Program.h"
#include "core/SpecialFolders.h"
#include "menus/folders/FolderRules.h"
#include "properties/PreviewPlan.h"

namespace corvelle {

std::vector<int> DesktopIcons(Program& program) {
  for (const std::string_view name : {"dtf", "dtf.mfd", "dtf.tmp"}) {
    // One that stays does no harm: the next start removes it.
    static_cast<void>(program.Services.Files.Remove(program.Paths.MenusPath + std::string(name)));
  }
  const auto entries = program.Services.Folders.List(kDesktopFolder);
  if (!entries) return {};
  std::vector<std::string> texts;
  for (const std::string& line : ShellFolderLines(*entries)) {
    texts.push_back(ParseShellFolderLine(line).Icon);
  }
  return DistinctIcons(texts);
}

}  // namespace corvelle
