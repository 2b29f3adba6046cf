#include "menus/folders/mFolder.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "base/Text.h"
#include "base/Wildcard.h"
#include "menus/folders/GeneratedMenu.h"

namespace corvelle {

namespace {

constexpr std::string_view kAllNames = "*";

/// The folders directly below, by their names. None of them is looked into any deeper, so that a
/// folder that holds itself does no harm.
std::vector<std::string> FoldersBelow(const FolderItem& item,
                                      const std::vector<FileEntry>& listed) {
  std::vector<std::pair<std::string, std::string>> below;
  for (const FileEntry& entry : listed) {
    if (IsShownFolder(entry)) below.emplace_back(UpperCase(entry.Name), entry.Name);
  }
  std::sort(below.begin(), below.end());
  std::vector<std::string> folders;
  folders.reserve(below.size());
  for (const auto& [key, name] : below) folders.push_back(item.Folder + name + "\\");
  return folders;
}

void Sort(std::vector<FoundFiles::File>& files, std::size_t from) {
  const auto first = files.begin() + static_cast<std::ptrdiff_t>(from);
  const auto before = [](const FoundFiles::File& a, const FoundFiles::File& b) {
    return std::tie(a.SortKey, a.Name, a.Folder) < std::tie(b.SortKey, b.Name, b.Folder);
  };
  // Most disks give the names in order.
  if (!std::is_sorted(first, files.end(), before)) std::sort(first, files.end(), before);
}

}  // namespace

void ScanFolder(const std::vector<FileEntry>& listed, const FolderItem& item, std::string folder,
                FoundFiles& found) {
  const std::size_t index = found.Folders.size();
  const std::size_t before = found.Files.size();
  found.Folders.push_back(std::move(folder));
  for (const FileEntry& entry : listed) {
    if (!IsShownFile(entry) || !FitsPattern(entry.Name, item.Mask)) continue;
    found.Files.push_back(
        {.Folder = index, .Name = entry.Name, .SortKey = SortKeyOf(entry.Name, item), .Shown = {}});
  }
  if (!item.Merged) Sort(found.Files, before);
}

FoundFiles ListFolderItem(const FolderLister& list, const FolderItem& item) {
  FoundFiles found;
  // Without a folder there is nothing that the mask could be meant for.
  if (item.Folder.empty()) return found;
  const auto root = list(item.Folder, item.SubFolders ? std::string(kAllNames) : item.Mask);
  ScanFolder(root, item, item.Folder, found);
  if (item.SubFolders) {
    for (std::string& folder : FoldersBelow(item, root)) {
      const auto listed = list(folder, item.Mask);
      ScanFolder(listed, item, std::move(folder), found);
    }
  }
  if (item.Merged) Sort(found.Files, 0);
  return found;
}

clsFolder ExpandFolderItem(GeneratedMenu& menu, int record, const FoundFiles& found,
                           std::vector<std::string>& paths) {
  clsFolder folder;
  folder.FolderName = menu.Source()[static_cast<std::size_t>(record) - 1].FName;
  const FolderItem item = ParseFolderItem(folder.FolderName);
  folder.UpdateFolder = item.UpdateFolder;
  menu.BeginItem(record);
  folder.RecStart = menu.Count() + 1;
  folder.RecTotal = static_cast<int>(found.Files.size());
  menu.Expect(found.Files.size());
  std::size_t last = found.Folders.size();
  for (const FoundFiles::File& file : found.Files) {
    std::string path = found.PathOf(file);
    if (item.UpdateFolder) paths.push_back(path);
    // The shell is not asked for what no menu can show.
    if (menu.IsFull()) break;
    if (!item.Merged && last != found.Folders.size() && last != file.Folder) menu.AddRule();
    last = file.Folder;
    // What no record can hold starts from the menu all the same.
    std::string stored = file.Short.empty() ? std::move(path) : file.Short;
    std::string icon = stored;
    menu.AddEntry(record, {FileTitleOf(file.Shown, file.Name, item.WithoutExtension),
                           std::move(icon), std::move(stored)});
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
