#include "shell/LinkFiles.h"

#include "core/WindowPorts.h"
#include "shell/cShellLink.h"

namespace corvelle {

std::string GetSpecialFolder(ShellLinks& links, const WindowPorts& ports, int folder) {
  return cShellLink(links)
      .GetSystemFolderPath(ports.ToolbarWindow(), folder)
      .value_or(std::string());
}

bool MakeLink(ShellLinks& links, std::string_view LnkFile, std::string_view ExeFile,
              std::string_view WorkDir) {
  return cShellLink(links).CreateShellLink(
      LnkFile, {.ExeFile = std::string(ExeFile), .WorkDir = std::string(WorkDir)});
}

std::optional<LinkTarget> ReadLink(ShellLinks& links, std::string_view LnkFile) {
  auto info = cShellLink(links).GetShellLinkInfo(LnkFile);
  if (!info) return std::nullopt;
  return LinkTarget{.ExeFile = std::move(info->Fields.ExeFile),
                    .Args = std::move(info->Fields.ExeArgs)};
}

std::string LinkReader::TargetOf(std::string_view linkPath) {
  return ReadLink(links_, linkPath).value_or(LinkTarget{}).ExeFile;
}

}  // namespace corvelle
