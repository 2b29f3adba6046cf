#include "menus/folders/FolderMenus.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "base/Text.h"
#include "base/Utf8.h"
#include "core/DroppedFiles.h"
#include "core/IconState.h"
#include "core/MenuFile.h"
#include "core/MenuRecord.h"
#include "core/SpecialFolders.h"
#include "icons/RecycleIcon.h"
#include "menus/folders/FolderRules.h"
#include "menus/folders/GeneratedMenu.h"
#include "platform/Platform.h"

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

/// True for a path that fits a record, told without putting it together: thousands are asked.
bool HasPlainPath(const FoundFiles& found, const FoundFiles::File& file) {
  const std::string& folder = found.Folders[file.Folder];
  return folder.size() + file.Name.size() <= kNameWidth && IsPlain(folder) && IsPlain(file.Name);
}

}  // namespace

std::optional<ExpandedMenu> FolderMenus::Expand(std::string_view menuKey, std::string_view menuFile,
                                                std::string_view stored) {
  const std::string key = UpperCase(menuKey);
  built_.erase(key);
  const CodePage& ansi = services_.Ansi;
  const std::string source(menuFile);
  if (!HasOpenFolder(stored, ansi)) {
    reading_ = {};
    return std::nullopt;
  }
  if (reading_.MenuKey != key || !std::exchange(reading_.MayBuild, false)) BeginReading(key);
  GeneratedMenu menu(ParseRecords(stored, ansi), ansi);
  auto built = std::make_shared<Built>();
  built->Update.MenuKey = key;
  ExpandItems(menu, source, *built);
  const bool whole = built->Whole;
  built_.insert_or_assign(key, std::move(built));
  ExpandedMenu expanded{
      .File = GeneratedFileName(source), .Items = {}, .Source = {}, .Whole = whole};
  expanded.Items = std::move(menu).Items();
  expanded.Source = std::move(menu).Source();
  return expanded;
}

void FolderMenus::BeginReading(const std::string& key) {
  reading_ = {};
  reading_.MenuKey = key;
  reading_.Questions = std::make_unique<FolderQuestions>(answers_, windows_, [this] { Arrived(); });
}

void FolderMenus::Leave() { reading_ = {}; }

void FolderMenus::TryAgain() {
  if (reading_.Questions) reading_.Questions->TryAgain();
  Arrived();
}

void FolderMenus::Arrived() {
  reading_.Files.clear();
  const auto found = built_.find(reading_.MenuKey);
  if (found == built_.end()) return;
  const std::shared_ptr<const Built> built = found->second;
  if (built->Whole && !AnyChanged(*built)) return;
  reading_.MayBuild = true;
  // It may end the reading, and may set another listener.
  const std::string key = reading_.MenuKey;
  const auto listener = listener_;
  if (listener) listener(key);
}

// Quiet: the menu is up, and nothing of it comes from this file.
bool FolderMenus::WriteGenerated(const ExpandedMenu& menu) {
  FileSystem& files = services_.Files;
  if (files.Write(menu.File, GeneratedBytes(menu.Items, menu.Source, services_.Ansi))) {
    return true;
  }
  // What is left of it would be of another time, or half a menu.
  static_cast<void>(files.Remove(menu.File));
  return false;
}

const FoundFiles& FolderMenus::FilesOf(std::string_view folderName) {
  const auto known = reading_.Files.find(folderName);
  if (known != reading_.Files.end()) return known->second;
  FolderState state = FolderState::Here;
  const auto list = [&](const std::string& folder, const std::string& pattern) {
    const FolderQuestions::Known& answer = reading_.Questions->Get(
        {.Kind = LookupKind::FolderEntries, .Path = folder, .Pattern = pattern});
    state = std::max(state, answer.State);
    // A folder that cannot be listed has no files.
    const auto* const entries = std::get_if<std::vector<FileEntry>>(&answer.Value);
    return entries != nullptr ? *entries : std::vector<FileEntry>{};
  };
  FoundFiles found = ListFolderItem(list, ParseFolderItem(folderName));
  found.State = state;
  return reading_.Files.emplace(std::string(folderName), std::move(found)).first->second;
}

void FolderMenus::NameFiles(FoundFiles& found) {
  const CodePage& ansi = services_.Ansi;
  AskOfFiles(
      LookupKind::FileNames, found, [](const FoundFiles::File&) { return true; },
      [](FoundFiles::File& file, const std::string& name) { file.Shown = name; });
  AskOfFiles(
      LookupKind::ShortPaths, found,
      [&](const FoundFiles::File& file) {
        return !HasPlainPath(found, file) && !FitsRecord(ansi, found.PathOf(file));
      },
      [&](FoundFiles::File& file, const std::string& path) {
        // What no record can hold starts from the menu all the same.
        if (FitsRecord(ansi, path)) file.Short = path;
      });
}

void FolderMenus::AskOfFiles(
    LookupKind kind, FoundFiles& found, const std::function<bool(const FoundFiles::File&)>& asks,
    const std::function<void(FoundFiles::File&, const std::string&)>& take) {
  // No menu shows more.
  const std::size_t most = std::min(found.Files.size(), static_cast<std::size_t>(kMaxRecords));
  std::vector<std::string> names(found.Folders.size());
  std::vector<std::vector<FoundFiles::File*>> asked(found.Folders.size());
  for (std::size_t i = 0; i < most; ++i) {
    FoundFiles::File& file = found.Files[i];
    if (!asks(file)) continue;
    names[file.Folder] += file.Name;
    names[file.Folder] += '\n';
    asked[file.Folder].push_back(&file);
  }
  for (std::size_t folder = 0; folder < names.size(); ++folder) {
    if (asked[folder].empty()) continue;
    const FolderQuestions::Known& answer = reading_.Questions->Get(
        {.Kind = kind, .Path = found.Folders[folder], .Pattern = std::move(names[folder])});
    const bool waits =
        answer.State == FolderState::Reading || answer.State == FolderState::BeingRead;
    if (waits) found.Named = false;
    const auto* const list = std::get_if<std::vector<ShellFolderEntry>>(&answer.Value);
    if (list == nullptr) continue;
    const std::size_t known = std::min(list->size(), asked[folder].size());
    for (std::size_t i = 0; i < known; ++i) take(*asked[folder][i], (*list)[i].Name);
  }
}

SpecialFolderLines FolderMenus::LinesOf(std::string_view folderName) {
  // Before the folder is listed, so that what changes meanwhile is found at the next opening.
  if (ShowsRecycleBin(folderName)) LookAtBin();
  const FolderQuestions::Known& answer = reading_.Questions->Get(
      {.Kind = LookupKind::ShellEntries, .Number = CsidlValue(FolderWithoutOptions(folderName))});
  SpecialFolderLines lines{.Lines = {}, .State = answer.State};
  if (const auto* const entries = std::get_if<std::vector<ShellFolderEntry>>(&answer.Value)) {
    lines.Lines = ShellFolderLines(*entries);
  }
  return lines;
}

void FolderMenus::ExpandItems(GeneratedMenu& menu, std::string_view menuFile, Built& built) {
  for (int record = 2; record <= menu.SourceCount(); ++record) {
    if (!IsOpenFolder(menu.Source()[static_cast<std::size_t>(record) - 1])) continue;
    ExpandOne(menu, record, menuFile, built);
  }
  menu.CopySource(menu.SourceCount());
  const bool showsBin =
      std::any_of(built.Folders.begin(), built.Folders.end(),
                  [](const clsFolder& folder) { return IsDesktopFolder(folder.FolderName); });
  if (!showsBin) return;
  // The bin is shown as it is now.
  built.RecycleIcon = icons_.RecycleIconPath;
  built.RecycleIndex = icons_.RecycleIconIndex;
  icons_.RecycleIconChanged = false;
}

void FolderMenus::ExpandOne(GeneratedMenu& menu, int record, std::string_view menuFile,
                            Built& built) {
  const std::string name = menu.Source()[static_cast<std::size_t>(record) - 1].FName;
  std::vector<std::string> paths;
  clsFolder folder;
  FolderState state = FolderState::Here;
  if (IsFolderItem(name)) {
    FoundFiles found = FilesOf(name);
    state = found.State;
    NameFiles(found);
    built.Whole = built.Whole && found.Named;
    folder = ExpandFolderItem(menu, record, found, paths);
  } else {
    const SpecialFolderLines lines = LinesOf(name);
    state = lines.State;
    folder = ExpandSpecialFolder(services_.Files, services_.Ansi, menu, record, lines, menuFile);
  }
  if (state != FolderState::Here) {
    built.Whole = false;
    if (menu.Count() < folder.RecStart) ShowKept(menu, record, menuFile, state);
  }
  folder.FileTitle = menuFile;
  built.Folders.push_back(std::move(folder));
  built.Update.FileList.push_back(std::move(paths));
}

void FolderMenus::ShowKept(GeneratedMenu& menu, int record, std::string_view menuFile,
                           FolderState state) {
  const std::string name = menu.Source()[static_cast<std::size_t>(record) - 1].FName;
  constexpr std::size_t kMostBytes = static_cast<std::size_t>(kMaxRecords) * kRecordLength;
  const std::string bytes =
      services_.Files.Read(GeneratedFileName(menuFile), 0, kMostBytes).ValueOr({});
  std::vector<MenuItem> kept =
      EntriesInGenerated(WholeRecords(bytes), record, name, services_.Ansi);
  if (kept.empty()) menu.AddWaiting(record, state);
  for (MenuItem& entry : kept) menu.AddKept(record, std::move(entry));
}

bool FolderMenus::UpdateMenu(std::string_view menuKey) {
  const std::string key = UpperCase(menuKey);
  const auto found = built_.find(key);
  if (found == built_.end()) {
    reading_ = {};
    return false;
  }
  BeginReading(key);
  // Listing may let events through; what is looked at stays until it is done.
  const std::shared_ptr<const Built> built = found->second;
  reading_.MayBuild = AnyChanged(*built);
  return reading_.MayBuild;
}

bool FolderMenus::AnyChanged(const Built& built) {
  for (std::size_t i = 0; i < built.Folders.size(); ++i) {
    if (HasChanged(built, i)) return true;
  }
  return false;
}

bool FolderMenus::HasChanged(const Built& built, std::size_t index) {
  const clsFolder& folder = built.Folders[index];
  const std::string& name = folder.FolderName;
  const bool ofShell = !IsFolderItem(name);
  if (!folder.UpdateFolder) return ofShell && IsDesktopFolder(name) && BinHasChanged(built);
  // What is not known yet is compared when it comes.
  if (ofShell) {
    const SpecialFolderLines lines = LinesOf(name);
    return lines.State == FolderState::Here &&
           SpecialFolderChanged(services_.Files, services_.Ansi, name, lines, folder.FileTitle);
  }
  const FoundFiles& files = FilesOf(name);
  return files.State == FolderState::Here &&
         FolderChanged(files, built.Update.FileList[index]) != folder.RecTotal;
}

void FolderMenus::LookAtBin() { CheckRecycleIcon(services_.Keys, services_.Folders, icons_); }

bool FolderMenus::BinHasChanged(const Built& built) {
  LookAtBin();
  // Several menus may show the desktop, and the flag is taken down by the first that is rebuilt.
  const bool changed = icons_.RecycleIconChanged || built.RecycleIcon != icons_.RecycleIconPath ||
                       built.RecycleIndex != icons_.RecycleIconIndex;
  icons_.RecycleIconChanged = false;
  return changed;
}

std::vector<clsFolder> FolderMenus::Folders(std::string_view menuKey) const {
  const auto found = built_.find(UpperCase(menuKey));
  return found != built_.end() ? found->second->Folders : std::vector<clsFolder>{};
}

}  // namespace corvelle
