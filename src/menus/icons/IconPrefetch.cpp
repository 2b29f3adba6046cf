#include "menus/icons/IconPrefetch.h"

#include <algorithm>
#include <cstddef>
#include <variant>

#include "core/MenuFile.h"
#include "core/Program.h"
#include "menus/folders/mFolder.h"
#include "menus/icons/IconWalk.h"
#include "menus/icons/MenuIcons.h"
#include "platform/FileSystem.h"

namespace corvelle {

void IconPrefetch::InitIcons() {
  FileSystem& files = program_.Services.Files;
  if (program_.Guards.MenuBuilding) return;
  folders_.clear();
  questions_ = std::make_unique<FolderQuestions>(
      program_.Answers, program_.Windows, [this] { FetchListed(); }, desk::Urgency::Ahead);
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
  FetchListed();
}

void IconPrefetch::LoadIconsOf(const std::string& menuFile) {
  const IconTexts texts = IconTextsOf(program_, menuFile);
  icons_.Fetch(texts.Button);
  icons_.FetchButtonIcon(texts.Button);
  for (const std::string& text : texts.Items) icons_.Fetch(text);
  folders_.insert(folders_.end(), texts.Folders.begin(), texts.Folders.end());
}

void IconPrefetch::FetchListed() {
  std::erase_if(folders_, [this](const std::string& item) { return FetchFilesOf(item); });
}

bool IconPrefetch::FetchFilesOf(const std::string& folderItem) {
  FolderState state = FolderState::Here;
  const auto list = [&](const std::string& folder, const std::string& pattern) {
    const FolderQuestions::Known& answer =
        questions_->Get({.Kind = LookupKind::FolderEntries, .Path = folder, .Pattern = pattern});
    state = std::max(state, answer.State);
    // A folder that cannot be listed has no icons to fetch.
    const auto* const entries = std::get_if<std::vector<FileEntry>>(&answer.Value);
    return entries != nullptr ? *entries : std::vector<FileEntry>{};
  };
  const FoundFiles found = ListFolderItem(list, ParseFolderItem(folderItem));
  if (state == FolderState::NotAvailable) return true;
  if (state != FolderState::Here) return false;
  // No menu shows more.
  const std::size_t most = std::min(found.Files.size(), static_cast<std::size_t>(kMaxRecords));
  for (std::size_t i = 0; i < most; ++i) icons_.Fetch(found.PathOf(found.Files[i]));
  return true;
}

}  // namespace corvelle
