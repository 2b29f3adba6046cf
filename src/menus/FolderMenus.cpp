#include "menus/FolderMenus.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "core/MenuRecord.h"
#include "core/Program.h"
#include "icons/RecycleIcon.h"
#include "menus/FolderRules.h"
#include "menus/GeneratedMenu.h"
#include "shell/FileErrorText.h"

namespace corvelle {

namespace {

bool IsOpenFolder(const MenuRecord& record) {
  const std::string_view name = record.FName;
  return (IsFolderItem(name) || IsSpecialFolder(name)) && !IsClosedFolder(name);
}

// More than record numbers reach.
constexpr std::size_t kReadLimit = (static_cast<std::size_t>(kMaxRecords) + 1) * kRecordLength;

/// True if the bytes of a record may be those of a folder item. Most menus have none, and are told
/// by this without taking their records apart.
bool MayBeFolder(std::string_view record) {
  const std::size_t at = std::min(kTitleWidth + kIconWidth, record.size());
  std::string_view name = record.substr(at);
  name.remove_prefix(std::min(name.find_first_not_of(' '), name.size()));
  return IsFolderItem(name) || StartsWithNoCase(name, kSpecialFolderStart);
}

/// The records of a menu file; none when it has no open folder item or cannot be read.
std::vector<MenuRecord> RecordsToExpand(FileSystem& files, const CodePage& ansi,
                                        std::string_view path) {
  const std::string bytes = files.Read(path, 0, kReadLimit).ValueOr({});
  const auto count = static_cast<std::size_t>(RecordCount(bytes.size()));
  const auto at = [&](std::size_t i) {
    return std::string_view(bytes).substr(i * kRecordLength, kRecordLength);
  };
  // The first record is the menu's button.
  bool opens = false;
  for (std::size_t i = 1; i < count && !opens; ++i) {
    opens = MayBeFolder(at(i)) && IsOpenFolder(ParseRecord(at(i), ansi));
  }
  std::vector<MenuRecord> records;
  if (!opens) return records;
  records.reserve(count);
  for (std::size_t i = 0; i < count; ++i) records.push_back(ParseRecord(at(i), ansi));
  return records;
}

}  // namespace

std::string FolderMenus::Expand(std::string_view menuKey, std::string_view menuFile) {
  const std::string key = UpperCase(menuKey);
  built_.erase(key);
  Listed listed = std::exchange(listed_, {});
  if (listed.MenuKey != key) listed = {};
  const std::string source(menuFile);
  std::vector<MenuRecord> records =
      RecordsToExpand(program_.Services.Files, program_.Services.Ansi, source);
  if (records.empty()) return source;

  GeneratedMenu menu(std::move(records), program_.Services.Ansi);
  auto built = std::make_shared<Built>();
  built->Update.MenuKey = key;
  ExpandItems(menu, source, listed, *built);
  std::string generated = GeneratedFileName(source);
  if (!Write(generated, menu.Bytes())) return source;
  built_.insert_or_assign(key, std::move(built));
  return generated;
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
  built.RecycleIcon = program_.RecycleIconPath;
  program_.RecycleIconChanged = false;
}

bool FolderMenus::Write(const std::string& path, const std::string& bytes) {
  FileSystem& files = program_.Services.Files;
  // What cannot be removed cannot be written either, and that is told.
  if (files.FileExists(path)) static_cast<void>(files.Remove(path));
  const FileStatus written = files.Write(path, bytes);
  if (written) return true;
  static_cast<void>(files.Remove(path));
  program_.Say(program_.WindowInUse(), NumberedFileError(written.Error()), forms::msgbox::OnTop);
  return false;
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
  const bool changed = program_.RecycleIconChanged || built.RecycleIcon != program_.RecycleIconPath;
  program_.RecycleIconChanged = false;
  return changed;
}

std::vector<clsFolder> FolderMenus::Folders(std::string_view menuKey) const {
  const auto found = built_.find(UpperCase(menuKey));
  return found != built_.end() ? found->second->Folders : std::vector<clsFolder>{};
}

}  // namespace corvelle
