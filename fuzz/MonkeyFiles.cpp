// What becomes of the entries in the files.

#include <algorithm>
#include <array>

#include "MonkeyLife.h"
#include "base/Text.h"
#include "core/FileTransaction.h"

namespace corvelle::fuzz {
namespace {

constexpr long kUnknownRevision = -1;

}  // namespace

void MonkeyLife::TakeStock() {
  entries_ = EntryLedger(world_->Files, kMenus);
  stockTaken_ = world_->Files.Changes();
}

void MonkeyLife::NoteMonkeysChange() {
  const EntryLedger before = entries_;
  TakeStock();
  treeLedger_.ChangeFiles(before, entries_);
}

void MonkeyLife::NoteProgramsChange(const EntryLedger& before, const EntryLedger& after) {
  lost_.Add(before.Without(after));
  new_.Add(after.Without(before));
  moreEntries_ += after.Size() - before.Size();
  moreRecords_ += after.Records() - before.Records();
  treeLedger_.ChangeFiles(before, after);
}

// A change of several files has a journal, which is written before the first of them. So what the
// files and the tree held before any change is known, and what the files hold when it is done.
void MonkeyLife::BeforeDiskCall(const sim::SimFiles::Call& call) {
  static constexpr std::array<std::string_view, 7> kChanging = {
      "Write", "WriteAt", "Replace", "ReplaceUnflushed", "Remove", "Rename", "Copy"};
  if (!parts_ || !parts_->Customize.IsLoaded()) return;
  if (std::find(kChanging.begin(), kChanging.end(), call.Operation) == kChanging.end()) return;
  SettleSave();
  if (!StartsWithNoCase(call.Path, kMenus)) return;
  const std::string name = call.Path.substr(kMenus.size());
  if (name.find('\\') != std::string::npos) return;
  if (!HoldsEntries(name) && !EqualNoCase(name, kJournalFileName)) return;
  if (world_->Files.Has(std::string(kMenus) + std::string(kJournalFileName))) return;
  change_ = Change{EntryLedger(world_->Files, kMenus), TreeEntries(), world_->Files.Changes()};
}

void MonkeyLife::SettleSave() {
  if (!change_ || world_->Files.Changes() == change_->Changes) return;
  if (world_->Files.Has(std::string(kMenus) + std::string(kJournalFileName))) return;
  const EntryLedger files(world_->Files, kMenus);
  if (!files.HasTheSame(change_->Tree)) return;
  const Change save = *std::move(change_);
  change_.reset();
  NoteProgramsChange(entries_, save.Files);
  entries_ = files;
  stockTaken_ = world_->Files.Changes();
  NoteSave(save.Files, save.Tree);
}

void MonkeyLife::NoteSave(const EntryLedger& filesBefore, const EntryLedger& saved) {
  const TreeLedger::SaveLoss loss = treeLedger_.Save(filesBefore, saved);
  treeNoted_ = kUnknownRevision;
  const auto tell = [this](const EntryLedger& lost, const char* where) {
    // The user may have typed over one of them, or given up what others have made of the files. A
    // button that is deleted from the strip may leave the files as the tree is.
    if (lost.Size() <= std::max(lossesAllowed_, 1) || !wrongSave_.empty()) return;
    wrongSave_ = "a save has lost " + std::to_string(lost.Size()) + " entries of the " + where +
                 ", one is\n" + lost.First();
  };
  tell(loss.FromTree, "tree");
  if (!conflictAsked_) tell(loss.FromFiles, "files");
}

void MonkeyLife::SettleFiles() {
  SettleSave();
  change_.reset();
  if (world_->Files.Changes() == stockTaken_) return;
  const EntryLedger before = entries_;
  TakeStock();
  NoteProgramsChange(before, entries_);
}

// Properties change an entry in its place, or the records of the buttons: none comes or goes.
bool MonkeyLife::LostByProperties(int lost) const {
  // One that bears the monkey's damage may be edited too, and get its old title back.
  const bool asMany = moreEntries_ == 0 || moreRecords_ == 0;
  return propertiesUp_ && asMany && lost <= kMenuFiles + kSingles;
}

}  // namespace corvelle::fuzz
