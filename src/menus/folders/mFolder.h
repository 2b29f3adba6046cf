#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "menus/folders/FolderRules.h"
#include "menus/folders/clsFolder.h"
#include "menus/items/FolderState.h"
#include "platform/FileSystem.h"

namespace corvelle {

class GeneratedMenu;

// Folder items of the disk.

/// The files of a folder item in the order in which they are shown.
struct FoundFiles {
  struct File {
    std::size_t Folder = 0;  // index in Folders
    std::string Name;
    std::string SortKey;
    std::string Shown;  // the name that the shell shows; empty while it is not known
    std::string Short;  // the path that a record can hold, where the file's own is too long for it
  };

  std::vector<std::string> Folders;  // each with its trailing backslash
  std::vector<File> Files;
  FolderState State = FolderState::Here;  // of the folder that is known least
  bool Named = true;                      // false while names are still asked for

  [[nodiscard]] std::string PathOf(const File& file) const {
    return Folders[file.Folder] + file.Name;
  }
};

/// Adds a folder (with its trailing backslash) and the files of its listing that fit the item's
/// mask, sorted unless all folders become one list.
void ScanFolder(const std::vector<FileEntry>& listed, const FolderItem& item, std::string folder,
                FoundFiles& found);

/// What a folder holds, as FileSystem::List gives it; nothing for one that cannot be listed.
using FolderLister =
    std::function<std::vector<FileEntry>(const std::string& folder, const std::string& pattern)>;

/// All files of a folder item, sorted: folder by folder, or as one list. Each folder is listed
/// once.
[[nodiscard]] FoundFiles ListFolderItem(const FolderLister& list, const FolderItem& item);

/// Adds the entries of the folder item at record `record` of the source, behind the records before
/// it. `found`: what it holds. `paths` gets the full paths of its files when the item is to be
/// compared later.
[[nodiscard]] clsFolder ExpandFolderItem(GeneratedMenu& menu, int record, const FoundFiles& found,
                                         std::vector<std::string>& paths);

/// How many files there are now; -1 when there are as many as `paths` but others, so that the
/// answer is clsFolder::RecTotal only for a folder that did not change.
[[nodiscard]] int FolderChanged(const FoundFiles& found, const std::vector<std::string>& paths);

}  // namespace corvelle
