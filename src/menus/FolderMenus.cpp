#include "menus/FolderMenus.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "core/MenuFile.h"
#include "core/MenuRecord.h"
#include "core/Program.h"
#include "icons/RecycleIcon.h"
#include "menus/FolderRules.h"
#include "menus/GeneratedMenu.h"

namespace corvelle {

namespace {

bool IsOpenFolder(const MenuRecord& record) {
  const std::string_view name = record.FName;
  return (IsFolderItem(name) || IsSpecialFolder(name)) && !IsClosedFolder(name);
}

/// True if the bytes of a record may be those of a folder item. Most menus have none, and are told
/// by this without taking their records apart.
bool MayBeFolder(std::string_view record) {
  const std::size_t at = std::min(kTitleWidth + kIconWidth, record.size());
  std::string_view name = record.substr(at);
  name.remove_prefix(std::min(name.find_first_not_of(' '), name.size()));
  return IsFolderItem(name) || StartsWithNoCase(name, kSpecialFolderStart);
}

/// True if one of the stored records is an open folder item. The first one is the menu's button.
bool HasOpenFolder(std::string_view stored, const CodePage& ansi) {
  for (std::size_t at = kRecordLength; at < stored.size(); at += kRecordLength) {
    const std::string_view record = stored.substr(at, kRecordLength);
    if (MayBeFolder(record) && IsOpenFolder(ParseRecord(record, ansi))) return true;
  }
  return false;
}

}  // namespace

std::optional<ExpandedMenu> FolderMenus::Expand(std::string_view menuKey, std::string_view menuFile,
                                                std::string_view stored) {
  const std::string key = UpperCase(menuKey);
  built_.erase(key);
  Listed listed = std::exchange(listed_, {});
  if (listed.MenuKey != key) listed = {};
  const CodePage& ansi = program_.Services.Ansi;
  const std::string source(menuFile);
  if (!HasOpenFolder(stored, ansi)) return std::nullopt;

  GeneratedMenu menu(ParseRecords(stored, ansi), ansi);
  auto built = std::make_shared<Built>();
  built->Update.MenuKey = key;
  ExpandItems(menu, source, listed, *built);
  built_.insert_or_assign(key, std::move(built));
  ExpandedMenu expanded{.File = GeneratedFileName(source), .Items = {}, .Source = {}};
  expanded.Items = std::move(menu).Items();
  expanded.Source = std::move(menu).Source();
  return expanded;
}

// Quiet: the menu is up, and nothing of it comes from this file.
bool FolderMenus::WriteGenerated(const ExpandedMenu& menu) {
  FileSystem& files = program_.Services.Files;
  if (files.Write(menu.File, GeneratedBytes(menu.Items, menu.Source, program_.Services.Ansi))) {
    return true;
  }
  // What is left of it would be of another time, or half a menu.
  static_cast<void>(files.Remove(menu.File));
  return false;
}

const FoundFiles& FolderMenus::FilesOf(std::string_view folderName, Listed& listed) {
  auto found = listed.Files.find(folderName);
  if (found == listed.Files.end()) {
    FoundFiles files = ListFolderItem(program_.Services.Files, ParseFolderItem(folderName));
    found = listed.Files.emplace(std::string(folderName), std::move(files)).first;
  }
  return found->second;
}

const SpecialFolderLines& FolderMenus::LinesOf(std::string_view folderName, Listed& listed) {
  auto found = listed.Lines.find(folderName);
  if (found == listed.Lines.end()) {
    SpecialFolderLines lines = ListSpecialFolder(program_, folderName);
    found = listed.Lines.emplace(std::string(folderName), std::move(lines)).first;
  }
  return found->second;
}

void FolderMenus::ExpandItems(GeneratedMenu& menu, std::string_view menuFile, Listed& listed,
                              Built& built) {
  for (int record = 2; record <= menu.SourceCount(); ++record) {
    const MenuRecord& source = menu.Source()[static_cast<std::size_t>(record) - 1];
    if (!IsOpenFolder(source)) continue;
    std::vector<std::string> paths;
    const std::string& name = source.FName;
    clsFolder folder =
        IsFolderItem(name)
            ? ExpandFolderItem(program_, menu, record, FilesOf(name, listed), paths)
            : ExpandSpecialFolder(program_, menu, record, LinesOf(name, listed), menuFile);
    folder.FileTitle = menuFile;
    built.Folders.push_back(std::move(folder));
    built.Update.FileList.push_back(std::move(paths));
  }
  menu.CopySource(menu.SourceCount());
  const bool showsBin =
      std::any_of(built.Folders.begin(), built.Folders.end(),
                  [](const clsFolder& folder) { return IsDesktopFolder(folder.FolderName); });
  if (!showsBin) return;
  // The bin is shown as it is now.
  built.RecycleIcon = program_.Icons.RecycleIconPath;
  built.RecycleIndex = program_.Icons.RecycleIconIndex;
  program_.Icons.RecycleIconChanged = false;
}

bool FolderMenus::UpdateMenu(std::string_view menuKey) {
  listed_ = {};
  const auto found = built_.find(UpperCase(menuKey));
  if (found == built_.end()) return false;
  // Listing may let events through; what is looked at stays until it is done.
  const std::shared_ptr<const Built> built = found->second;
  Listed listed;
  listed.MenuKey = built->Update.MenuKey;
  for (std::size_t i = 0; i < built->Folders.size(); ++i) {
    if (!HasChanged(*built, i, listed)) continue;
    listed_ = std::move(listed);
    return true;
  }
  return false;
}

bool FolderMenus::HasChanged(const Built& built, std::size_t index, Listed& listed) {
  const clsFolder& folder = built.Folders[index];
  const bool ofShell = !IsFolderItem(folder.FolderName);
  if (!folder.UpdateFolder) {
    return ofShell && IsDesktopFolder(folder.FolderName) && BinHasChanged(built);
  }
  const std::string& name = folder.FolderName;
  if (ofShell) {
    return SpecialFolderChanged(program_, name, LinesOf(name, listed), folder.FileTitle);
  }
  return FolderChanged(FilesOf(name, listed), built.Update.FileList[index]) != folder.RecTotal;
}

bool FolderMenus::BinHasChanged(const Built& built) {
  CheckRecycleIcon(program_);
  // Several menus may show the desktop, and the flag is taken down by the first that is built anew.
  const bool changed = program_.Icons.RecycleIconChanged ||
                       built.RecycleIcon != program_.Icons.RecycleIconPath ||
                       built.RecycleIndex != program_.Icons.RecycleIconIndex;
  program_.Icons.RecycleIconChanged = false;
  return changed;
}

std::vector<clsFolder> FolderMenus::Folders(std::string_view menuKey) const {
  const auto found = built_.find(UpperCase(menuKey));
  return found != built_.end() ? found->second->Folders : std::vector<clsFolder>{};
}

}  // namespace corvelle
