#include "icons/RecycleIcon.h"

#include <string>
#include <utility>

#include "base/Text.h"
#include "core/IconState.h"
#include "core/SpecialFolders.h"
#include "platform/Registry.h"
#include "platform/ShellFolders.h"

namespace corvelle {

namespace {

constexpr std::string_view kRecycleBinIconKey =
    "CLSID\\{645FF040-5081-101B-9F08-00AA002F954E}\\DefaultIcon";
// Where the shell keeps what the user chose and what the bin shows at present.
constexpr std::string_view kUsersKeys = "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\";

/// What the registry says; empty when it says nothing.
std::string RegisteredIcon(const Registry& keys) {
  std::string path = Trim(keys.Text(RegistryRoot::CurrentUser,
                                    std::string(kUsersKeys) + std::string(kRecycleBinIconKey), {})
                              .value_or(std::string()));
  if (!path.empty()) return path;
  return Trim(keys.Text(RegistryRoot::ClassesRoot, kRecycleBinIconKey, {}).value_or(std::string()));
}

/// The icon that the shell draws; -1 when it does not tell.
int DrawnIcon(ShellFolders& folders) {
  const auto bin = folders.Folder(kRecycleBinFolder);
  return bin ? bin->IconIndex : -1;
}

}  // namespace

void CheckRecycleIcon(const Registry& keys, ShellFolders& folders, IconState& icons) {
  std::string path = RegisteredIcon(keys);
  int index = DrawnIcon(folders);
  // A bin whose icon is not told keeps the one it had.
  if (path.empty()) path = icons.RecycleIconPath;
  if (index < 0) index = icons.RecycleIconIndex;
  if (path == icons.RecycleIconPath && index == icons.RecycleIconIndex) return;
  icons.RecycleIconPath = std::move(path);
  icons.RecycleIconIndex = index;
  icons.RecycleIconChanged = true;
}

}  // namespace corvelle
