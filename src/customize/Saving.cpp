#include "customize/Saving.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "core/FileTransaction.h"
#include "shell/FileErrorText.h"

namespace corvelle {
namespace {

/// What the numbers of files and records cannot count.
constexpr std::string_view kTooMany = "6 - Overflow";

bool IsTooLarge(const MenuSet& set) {
  constexpr auto kMost = static_cast<std::size_t>(kMaxRecords);
  return set.Menus.size() > kMost || set.Singles.size() > kMost ||
         std::any_of(set.Menus.begin(), set.Menus.end(),
                     [](const Menu& menu) { return menu.Items.size() + 1 > kMost; });
}

std::string FailureText(const std::string& numberedError) {
  return "A critical error has been encountered while Corvelle is saving your changes.\r\nError: " +
         numberedError + "\r\nNow Corvelle will try to resortre your previous data.";
}

/// Every name of the two rows.
std::vector<std::string> NamesOf(const StoredMenus& stored) {
  std::vector<std::string> names;
  for (const auto* row : {&stored.Menus, &stored.Singles}) {
    for (const StoredFile& file : *row) names.push_back(file.Name);
  }
  return names;
}

class Save {
 public:
  Save(FileSystem& files, const CodePage& ansi, std::string_view menusPath, const MenuSet& tree,
       const MenusStamp& read, const DraftsAround& around)
      : files_(files), ansi_(ansi), folder_(menusPath), tree_(tree), read_(read), around_(around) {}

  SaveResult Run();

 private:
  SaveResult Fail(FileError error);
  SaveResult FailWith(const std::string& numberedError);
  SaveResult Differ(const StoredMenus& now);
  void ClearMarks();
  void EmptyBackup();
  void BackUp(const std::vector<std::string>& names);
  FileStatus Replace(const std::vector<std::string>& old, StoredMenus stored);
  [[nodiscard]] FileStatus KeepDrafts(Drafts drafts) const;
  [[nodiscard]] Drafts DraftsBefore() const;
  [[nodiscard]] Drafts DraftsAfter(const MenusStamp& next) const;

  [[nodiscard]] std::string Backup() const { return folder_ + std::string(kBackupFolder); }

  FileSystem& files_;
  const CodePage& ansi_;
  std::string folder_;
  const MenuSet& tree_;
  const MenusStamp& read_;
  const DraftsAround& around_;
  bool kept_ = false;  // the draft is written
};

SaveResult Save::Differ(const StoredMenus& now) {
  SaveResult result;
  result.End = SaveEnd::Conflict;
  result.Now = {ParseMenus(now, ansi_), StampOf(now)};
  return result;
}

// A read-only file is saved like any other.
void Save::ClearMarks() {
  const auto entries = files_.List(folder_, "*.*");
  if (!entries) return;
  for (const FileEntry& entry : *entries) {
    if (entry.IsFolder || !(entry.ReadOnly || entry.Hidden || entry.System)) continue;
    static_cast<void>(files_.ClearAttributes(folder_ + entry.Name));
  }
}

void Save::EmptyBackup() {
  const auto entries = files_.List(Backup(), "*.*");
  if (!entries) return;
  for (const FileEntry& entry : *entries) {
    if (!entry.IsFolder) static_cast<void>(files_.Remove(Backup() + entry.Name));
  }
}

// The copy is a second safety beside the change's own journal: the save goes on without it. One
// that fills the disk up would leave no room for what is to be saved.
void Save::BackUp(const std::vector<std::string>& names) {
  if (!files_.FolderExists(Backup())) static_cast<void>(files_.MakeFolder(Backup()));
  ClearMarks();
  EmptyBackup();
  for (const std::string& name : names) {
    const FileStatus copied = files_.Copy(folder_ + name, Backup() + name);
    if (copied || copied.Error() != FileError::DiskFull) continue;
    EmptyBackup();
    return;
  }
}

Drafts Save::DraftsBefore() const {
  Drafts drafts = around_.Before;
  drafts.insert(drafts.begin(), {read_, tree_});
  return drafts;
}

Drafts Save::DraftsAfter(const MenusStamp& next) const {
  Drafts drafts;
  for (const MenuSet& set : around_.After) drafts.push_back({next, set});
  return drafts;
}

FileStatus Save::KeepDrafts(Drafts drafts) const {
  drafts.insert(drafts.end(), around_.Others.begin(), around_.Others.end());
  return WriteDrafts(files_, folder_, drafts);
}

SaveResult Save::FailWith(const std::string& numberedError) {
  // The change takes itself back; what it could not put back then it may now. Else its journal
  // waits for the next start.
  static_cast<void>(RecoverFiles(files_, folder_));
  if ((!kept_ || !around_.After.empty()) && KeepDrafts(DraftsBefore())) kept_ = true;
  if (!kept_) {
    // The user's work is worth more than a copy of files that are there.
    EmptyBackup();
    kept_ = KeepDrafts(DraftsBefore()).HasValue();
  }
  SaveResult result;
  result.End = SaveEnd::Recovered;
  result.Message = FailureText(numberedError);
  result.Kept = kept_;
  return result;
}

SaveResult Save::Fail(FileError error) {
  return FailWith(NumberedFileError(files_, folder_, error));
}

FileStatus Save::Replace(const std::vector<std::string>& old, StoredMenus stored) {
  FileTransaction change(files_, folder_);
  for (const std::string& name : old) change.Remove(folder_ + name);
  for (auto* row : {&stored.Menus, &stored.Singles}) {
    for (StoredFile& file : *row) change.Write(folder_ + file.Name, std::move(file.Bytes));
  }
  return change.Commit();
}

SaveResult Save::Run() {
  if (IsTooLarge(tree_)) return FailWith(std::string(kTooMany));
  // What an earlier run left half done would look like another's changes.
  if (const FileStatus settled = RecoverFiles(files_, folder_); !settled) {
    return Fail(settled.Error());
  }
  std::vector<std::string> old;
  {
    const auto now = ReadStoredMenus(files_, folder_);
    if (!now) return Fail(now.Error().Reason);
    if (StampOf(*now) != read_) return Differ(*now);
    old = NamesOf(*now);
  }
  kept_ = KeepDrafts(DraftsBefore()).HasValue();
  BackUp(old);
  // The copying takes its time, in which another program may have come.
  {
    const auto now = ReadStoredMenus(files_, folder_);
    if (!now) return Fail(now.Error().Reason);
    if (StampOf(*now) != read_) {
      EmptyBackup();
      return Differ(*now);
    }
  }
  StoredMenus stored = InListOrder(FormatMenus(tree_, ansi_));
  SaveResult result;
  result.End = SaveEnd::Saved;
  result.Now = {ParseMenus(stored, ansi_), StampOf(stored)};
  if (!around_.After.empty()) {
    // From the moment at which the files are new ones these drafts are needed.
    Drafts drafts = DraftsBefore();
    const Drafts after = DraftsAfter(result.Now.Stamp);
    drafts.insert(drafts.end(), after.begin(), after.end());
    if (KeepDrafts(std::move(drafts))) kept_ = true;
  }
  if (const FileStatus done = Replace(old, std::move(stored)); !done) {
    return Fail(done.Error());
  }
  EmptyBackup();
  // A draft that cannot be removed belongs to other files from now on, and is never offered.
  result.Kept = KeepDrafts(DraftsAfter(result.Now.Stamp)).HasValue() && !around_.After.empty();
  return result;
}

}  // namespace

SaveResult SaveMenus(FileSystem& files, const CodePage& ansi, std::string_view menusPath,
                     const MenuSet& tree, const MenusStamp& read, const DraftsAround& around) {
  return Save(files, ansi, menusPath, tree, read, around).Run();
}

}  // namespace corvelle
