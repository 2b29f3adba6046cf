#include "menus/icons/IconPrefetch.h"

#include "core/Program.h"
#include "menus/icons/IconWalk.h"
#include "menus/icons/MenuIcons.h"
#include "platform/FileSystem.h"

namespace corvelle {

void IconPrefetch::InitIcons() {
  FileSystem& files = program_.Services.Files;
  if (program_.Guards.MenuBuilding) return;
  icons_.Fetch(program_.Paths.ShippedFile("corvelle.exe"));
  // A folder that cannot be listed has no icons to fetch.
  const auto menus = files.List(program_.Paths.MenusPath, "*.mnu");
  if (menus) {
    for (const FileEntry& entry : *menus) LoadIconsOf(program_.Paths.MenusPath + entry.Name);
  }
  const auto links = files.List(program_.Paths.ShellLinkPath, "*.lnk");
  if (links) {
    for (const FileEntry& entry : *links) icons_.Fetch(program_.Paths.ShellLinkPath + entry.Name);
  }
}

void IconPrefetch::LoadIconsOf(const std::string& menuFile) {
  const IconTexts texts = IconTextsOf(program_, menuFile);
  icons_.Fetch(texts.Button);
  icons_.FetchButtonIcon(texts.Button);
  for (const std::string& text : texts.Items) icons_.Fetch(text);
}

}  // namespace corvelle
