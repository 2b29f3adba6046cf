#include "about/DefaultEntries.h"

#include <algorithm>
#include <utility>

#include "about/DefaultEntryRules.h"
#include "base/Sort.h"
#include "base/Text.h"
#include "core/MenuFile.h"
#include "core/MessageBoxes.h"
#include "core/ProgramPaths.h"
#include "core/StartupProgress.h"
#include "forms/EventPump.h"
#include "launch/FileSearch.h"
#include "launch/FileTitle.h"
#include "launch/LaunchItem.h"
#include "launch/UserChoice.h"
#include "platform/FileAssociations.h"
#include "platform/Registry.h"
#include "shell/FileErrorText.h"
#include "shell/LinkFiles.h"

namespace corvelle {
namespace {

constexpr int kProgramsFolder = 2;         // CSIDL_PROGRAMS
constexpr int kRecentFolder = 8;           // CSIDL_RECENT
constexpr int kCommonProgramsFolder = 23;  // CSIDL_COMMON_PROGRAMS
constexpr std::string_view kFirstMenu = "BMENU001.MNU";
constexpr std::string_view kMailKey = "mailto\\shell\\open\\command";
constexpr std::string_view kFailure =
    "The following error has occured while Corvelle was trying to add sample entries.";

FileStatus Success() { return Done{}; }

// A file that is not there needs no removing.
FileStatus RemoveIfThere(FileSystem& files, const std::string& path) {
  return files.FileExists(path) ? files.Remove(path) : Success();
}

/// The folders of one name in several folders.
std::vector<std::string> Below(const std::vector<std::string>& folders, std::string_view name) {
  std::vector<std::string> below;
  for (const std::string& folder : folders)
    below.push_back(EnsureBackslash(folder) + std::string(name));
  return below;
}

}  // namespace

void DefaultEntries::IncludeCommonFiles() {
  with_.Events.DoEvents();
  const FileStatus filled = Fill();
  if (filled) return;
  with_.Messages.Say(with_.Ports.ToolbarWindow(),
                     std::string(kFailure) + "\r\n" + FileErrorDescription(filled.Error()),
                     forms::msgbox::OnTop);
}

FileStatus DefaultEntries::Fill() {
  FileSystem& files = with_.Files;
  if (!files.FolderExists(with_.Paths.MenusPath)) {
    const FileStatus made = files.MakeFolder(with_.Paths.MenusPath);
    if (!made && made.Error() != FileError::AlreadyExists) return made;
  }
  const auto menus = Count("*.mnu");
  if (!menus) return menus.Error();
  const auto buttons = Count("*.btn");
  if (!buttons) return buttons.Error();
  if (*menus > 0 || *buttons > 0) return Success();
  BtnNum = 1;
  MnuNum = 1;
  singles_ = 0;
  if (auto copied = CopyFirstMenu(); !copied) return copied;
  if (auto written = WriteSingles(); !written) return written;
  return WriteMenus();
}

FileResult<int> DefaultEntries::Count(std::string_view pattern) {
  const auto found = with_.Files.List(with_.Paths.MenusPath, pattern);
  if (!found) return found.Error();
  return static_cast<int>(std::count_if(found->begin(), found->end(),
                                        [](const FileEntry& entry) { return !entry.IsFolder; }));
}

// An installation may bring a first menu of its own.
FileStatus DefaultEntries::CopyFirstMenu() {
  FileSystem& files = with_.Files;
  const std::string shipped = with_.Paths.ShippedFile(kFirstMenu);
  if (!files.FileExists(shipped)) return Success();
  const std::string copy = with_.Paths.MenusPath + std::string(kFirstMenu);
  if (auto removed = RemoveIfThere(files, copy); !removed) return removed;
  if (auto copied = files.Copy(shipped, copy); !copied) return copied;
  MnuNum = 2;
  return Success();
}

// ---- single buttons ----

FileStatus DefaultEntries::WriteSingles() {
  const MachineFacts facts{.HasFileSearch = HasFileSearch(with_.Keys),
                           .HasNetSearch = with_.Ports.NetSearch != nullptr};
  for (const MenuRecord& record : FixedSingles(facts)) {
    if (auto written = WriteSingle(record); !written) return written;
  }
  with_.Progress.ShowStartupProgress();
  if (const auto browser = FindBrowser()) {
    const std::string title = with_.Titles.GetFileTitle(*browser);
    const MenuRecord record = BrowserSingle({.Path = *browser, .FileTitle = title});
    if (auto written = WriteSingle(record); !written) return written;
  }
  with_.Progress.ShowStartupProgress();
  if (const auto mail = FindMailProgram()) {
    const std::string title = with_.Titles.GetFileTitle(*mail);
    const MenuRecord record = MailSingle({.Path = *mail, .FileTitle = title});
    if (auto written = WriteSingle(record); !written) return written;
  }
  for (const std::string_view extension : ProgramExtensions()) {
    with_.Progress.ShowStartupProgress();
    if (auto written = WriteProgramSingle(extension); !written) return written;
  }
  with_.Progress.ShowStartupProgress();
  if (IsOdd(singles_)) {
    if (auto written = WriteProgramSingle(kEvenExtension); !written) return written;
  }
  return IsOdd(singles_) ? WriteSingle(MyComputerSingle()) : Success();
}

FileStatus DefaultEntries::WriteProgramSingle(std::string_view extension) {
  const auto path = GetExe(extension);
  if (!path) return Success();
  const std::string title = with_.Titles.GetFileTitle(*path);
  return WriteSingle(ProgramSingle({.Path = *path, .FileTitle = title}));
}

std::optional<std::string> DefaultEntries::FindBrowser() {
  const UserChoice choice = UserChoiceFor(with_.Keys, "http");
  return choice.Made ? IfOnDisk(choice.Program) : GetExe("htm");
}

std::optional<std::string> DefaultEntries::FindMailProgram() {
  const UserChoice choice = UserChoiceFor(with_.Keys, "mailto");
  if (choice.Made) return IfOnDisk(choice.Program);
  const auto command = with_.Keys.Text(RegistryRoot::ClassesRoot, kMailKey, "");
  return command ? IfOnDisk(ProgramOfCommand(*command)) : std::nullopt;
}

std::optional<std::string> DefaultEntries::IfOnDisk(std::string path) {
  if (!IsProgramAnswer(path) || !with_.Files.FileExists(path)) return std::nullopt;
  return path;
}

FileStatus DefaultEntries::WriteSingle(const MenuRecord& record) {
  FileSystem& files = with_.Files;
  const std::string path = with_.Paths.MenusPath + SingleFileName(BtnNum);
  if (auto removed = RemoveIfThere(files, path); !removed) return removed;
  if (auto written = WriteRecords(files, with_.Ansi, path, {record}); !written) {
    return written;
  }
  ++BtnNum;
  ++singles_;
  return Success();
}

std::optional<std::string> DefaultEntries::GetExe(std::string_view extension) {
  FileSystem& files = with_.Files;
  const std::string sample = with_.Paths.AppPath + "dummy." + std::string(extension);
  // Where the sample cannot be made the question cannot be asked, and there is no answer.
  if (!RemoveIfThere(files, sample) || !files.Write(sample, "dummy string\r\n")) {
    return std::nullopt;
  }
  std::optional<std::string> found = with_.Associations.ProgramFor(sample);
  // One that stays behind is used again by the next question.
  static_cast<void>(files.Remove(sample));
  if (!found) return std::nullopt;
  return IfOnDisk(StripAtNull(*found));
}

// ---- menus ----

FileStatus DefaultEntries::WriteMenus() {
  const Folders programs = ProgramsFolders();
  with_.Progress.ShowStartupProgress();
  if (auto written = WriteMenu(DesktopMenu()); !written) return written;
  with_.Progress.ShowStartupProgress();
  if (auto written = WriteMenu(ProgramsMenu(programs)); !written) return written;
  with_.Progress.ShowStartupProgress();
  if (auto written =
          WriteMenu(DocumentsMenu(GetSpecialFolder(with_.Links, with_.Ports, kRecentFolder)));
      !written) {
    return written;
  }
  with_.Progress.ShowStartupProgress();
  if (auto written = WriteMenu(AccessoriesMenu(programs)); !written) return written;
  with_.Progress.ShowStartupProgress();
  return WriteMenu(SettingsMenu());
}

FileStatus DefaultEntries::WriteMenu(const std::vector<MenuRecord>& records) {
  FileSystem& files = with_.Files;
  const std::string path = with_.Paths.MenusPath + MenuFileName(MnuNum);
  if (auto removed = RemoveIfThere(files, path); !removed) return removed;
  if (auto written = WriteRecords(files, with_.Ansi, path, records); !written) {
    return written;
  }
  ++MnuNum;
  return Success();
}

DefaultEntries::Folders DefaultEntries::ProgramsFolders() {
  Folders folders;
  for (const int number : {kProgramsFolder, kCommonProgramsFolder}) {
    std::string folder = GetSpecialFolder(with_.Links, with_.Ports, number);
    if (!folder.empty()) folders.push_back(std::move(folder));
  }
  return folders;
}

std::vector<MenuRecord> DefaultEntries::ProgramsMenu(const Folders& folders) {
  std::vector<MenuRecord> records{ProgramsButton()};
  AddFiles(records, folders);
  const std::vector<std::string> subFolders = SubFoldersOf(folders);
  if (records.size() > 1 && !subFolders.empty()) records.push_back(NewSeparatorRecord());

  std::vector<Found> found;
  for (const std::string& name : subFolders) {
    if (IsSkippedFolder(name)) continue;
    for (Found& file : FilesOf(Below(folders, name))) {
      if (IsWorthAnItem(file)) found.push_back(std::move(file));
    }
  }
  // One name in two folders keeps the order of the folders.
  std::stable_sort(found.begin(), found.end(), [](const Found& a, const Found& b) {
    return CompareNoCase(a.Name, b.Name) < 0;
  });
  for (const Found& file : found) AddItem(records, file);
  return records;
}

bool DefaultEntries::IsWorthAnItem(const Found& file) {
  if (IsSkippedFile(file.Name)) return false;
  if (!EndsWithNoCase(file.Name, ".lnk")) return true;
  std::string target;
  static_cast<void>(
      GetLinkWorkDir(with_.Ports.ShellLinks, EnsureBackslash(file.Folder) + file.Name, target));
  return !IsSkippedTarget(target);
}

std::vector<MenuRecord> DefaultEntries::AccessoriesMenu(const Folders& programs) {
  std::vector<MenuRecord> records{AccessoriesButton()};
  const Folders folders = Below(programs, "Accessories");
  AddFiles(records, folders);
  const std::vector<std::string> subFolders = SubFoldersOf(folders);
  if (records.size() > 1 && !subFolders.empty()) records.push_back(NewSeparatorRecord());
  for (const std::string& name : subFolders) AddFiles(records, Below(folders, name));
  return records;
}

void DefaultEntries::AddItem(std::vector<MenuRecord>& records, const Found& file) {
  records.push_back(FileItem(file.Folder, file.Name));
  with_.Progress.ShowStartupProgress();
}

void DefaultEntries::AddFiles(std::vector<MenuRecord>& records, const Folders& folders) {
  for (const Found& file : FilesOf(folders)) {
    if (!IsOwnFile(file.Name)) AddItem(records, file);
  }
}

std::vector<DefaultEntries::Found> DefaultEntries::FilesOf(const Folders& folders) {
  std::vector<Found> files;
  for (const std::string& folder : folders) {
    for (std::string& name : Names(folder, false)) files.push_back({folder, std::move(name)});
  }
  const auto before = [](const Found& a, const Found& b) {
    return CompareNoCase(a.Name, b.Name) < 0;
  };
  std::stable_sort(files.begin(), files.end(), before);
  const auto same = [](const Found& a, const Found& b) { return EqualNoCase(a.Name, b.Name); };
  files.erase(std::unique(files.begin(), files.end(), same), files.end());
  return files;
}

std::vector<std::string> DefaultEntries::SubFoldersOf(const Folders& folders) {
  std::vector<std::string> all;
  for (const std::string& folder : folders) {
    for (std::string& name : Names(folder, true)) all.push_back(std::move(name));
  }
  std::stable_sort(all.begin(), all.end(), [](const std::string& a, const std::string& b) {
    return CompareNoCase(a, b) < 0;
  });
  all.erase(std::unique(all.begin(), all.end(), EqualNoCase), all.end());
  return all;
}

std::vector<std::string> DefaultEntries::Names(const std::string& folder, bool folders) {
  std::vector<std::string> names;
  const auto found = with_.Files.List(folder, "*.*");
  // A folder that is not there or not ours to see has nothing to offer.
  if (!found) return names;
  for (const FileEntry& entry : *found) {
    if (entry.IsFolder == folders && !entry.Hidden) names.push_back(entry.Name);
  }
  SortTexts(names);
  return names;
}

}  // namespace corvelle
