#include "shell/LinkFiles.h"

#include "base/Text.h"
#include "core/Program.h"
#include "shell/cShellLink.h"

namespace corvelle {

std::string GetSpecialFolder(Program& program, int folder) {
  return cShellLink(program.Services.Links)
      .GetSystemFolderPath(program.Ports.ToolbarWindow(), folder)
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

std::string ResolveChosenFile(ShellLinks& links, std::string_view path) {
  if (!EndsWithNoCase(path, ".lnk")) return std::string(path);
  return ReadLink(links, path).value_or(LinkTarget{}).ExeFile;
}

std::string LinkReader::TargetOf(std::string_view linkPath) {
  return ReadLink(links_, linkPath).value_or(LinkTarget{}).ExeFile;
}

}  // namespace corvelle
