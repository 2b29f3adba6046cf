#include "menus/mFolder.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "base/Text.h"
#include "core/DroppedFiles.h"
#include "core/Program.h"
#include "menus/GeneratedMenu.h"
#include "platform/ShellIcons.h"

namespace corvelle {

namespace {

constexpr std::string_view kAllNames = "*";

/// The folder itself, and with the option S each folder directly below it by its name. None of
/// those is looked into any deeper, so that a folder that holds itself does no harm.
std::vector<std::string> FoldersOf(FileSystem& files, const FolderItem& item) {
  std::vector<std::string> folders{item.Folder};
  if (!item.SubFolders) return folders;
  const auto listed = files.List(item.Folder, kAllNames);
  if (!listed) return folders;
  std::vector<std::pair<std::string, std::string>> below;
  for (const FileEntry& entry : *listed) {
    if (IsShownFolder(entry)) below.emplace_back(UpperCase(entry.Name), entry.Name);
  }
  std::sort(below.begin(), below.end());
  for (const auto& [key, name] : below) folders.push_back(item.Folder + name + "\\");
  return folders;
}

void Sort(std::vector<FoundFiles::File>& files, std::size_t from) {
  std::sort(files.begin() + static_cast<std::ptrdiff_t>(from), files.end(),
            [](const FoundFiles::File& a, const FoundFiles::File& b) {
              return std::tie(a.SortKey, a.Name, a.Folder) < std::tie(b.SortKey, b.Name, b.Folder);
            });
}

std::string TitleOf(Program& program, const FolderItem& item, const std::string& path,
                    std::string_view name) {
  const auto info = program.Services.Icons.FileInfo(path, IconList::Large);
  return FileTitleOf(info ? std::string_view(info->DisplayName) : std::string_view(), name,
                     item.WithoutExtension);
}

}  // namespace

void ScanFolder(FileSystem& files, const FolderItem& item, std::size_t folder, FoundFiles& found) {
  auto listed = files.List(found.Folders[folder], item.Mask);
  if (!listed) return;
  for (FileEntry& entry : *listed) {
    if (!IsShownFile(entry)) continue;
    std::string key = SortKeyOf(entry.Name, item);
    found.Files.push_back({folder, std::move(entry.Name), std::move(key)});
  }
}

FoundFiles ListFolderItem(FileSystem& files, const FolderItem& item) {
  FoundFiles found;
  // Without a folder there is nothing that the mask could be meant for.
  if (item.Folder.empty()) return found;
  found.Folders = FoldersOf(files, item);
  for (std::size_t folder = 0; folder < found.Folders.size(); ++folder) {
    const std::size_t before = found.Files.size();
    ScanFolder(files, item, folder, found);
    if (!item.Merged) Sort(found.Files, before);
  }
  if (item.Merged) Sort(found.Files, 0);
  return found;
}

clsFolder ExpandFolderItem(Program& program, GeneratedMenu& menu, int record,
                           const FoundFiles& found, std::vector<std::string>& paths) {
  clsFolder folder;
  folder.FolderName = menu.Source()[static_cast<std::size_t>(record) - 1].FName;
  const FolderItem item = ParseFolderItem(folder.FolderName);
  folder.UpdateFolder = item.UpdateFolder;
  menu.BeginItem(record);
  folder.RecStart = menu.Count() + 1;
  folder.RecTotal = static_cast<int>(found.Files.size());
  std::size_t last = found.Folders.size();
  for (const FoundFiles::File& file : found.Files) {
    const std::string path = found.PathOf(file);
    if (item.UpdateFolder) paths.push_back(path);
    // The shell is not asked for what no menu can show.
    if (menu.IsFull()) break;
    if (!item.Merged && last != found.Folders.size() && last != file.Folder) menu.AddRule();
    last = file.Folder;
    // What no record can hold starts from the menu all the same.
    const std::string stored =
        PathForRecord(program.Services.Files, program.Services.Ansi, path).value_or(path);
    menu.AddEntry(record, {TitleOf(program, item, path, file.Name), stored, stored});
  }
  folder.RecEnd = menu.Count();
  return folder;
}

int FolderChanged(const FoundFiles& found, const std::vector<std::string>& paths) {
  const auto count = static_cast<int>(found.Files.size());
  if (found.Files.size() != paths.size()) return count;
  const bool same = std::equal(
      found.Files.begin(), found.Files.end(), paths.begin(),
      [&](const auto& file, const std::string& path) { return found.PathOf(file) == path; });
  return same ? count : -1;
}

}  // namespace corvelle
