#include "launch/FileDrops.h"

#include <utility>

#include "core/DroppedFiles.h"
#include "core/GuardFlags.h"
#include "core/WindowPorts.h"
#include "forms/Scopes.h"

namespace corvelle {

DroppedEntries FileDrops::EntriesOf(std::vector<std::string> names) const {
  return DroppedRecords(std::move(names), [this](const std::vector<std::string>& paths) {
    return with_.Titles.GetTrimmedNames(paths);
  });
}

FileDrops::Written FileDrops::Told(const EditOutcome& outcome, DroppedEntries entries) const {
  if (outcome == EditOutcome::Edited) with_.Ports.TellMenusEdited();
  return {outcome, std::move(entries.Refused)};
}

FileDrops::Written FileDrops::Insert(const std::string& file, int position,
                                     std::vector<std::string> names) const {
  const forms::FlagScope busy(with_.Guards.ItemActionBusy);
  DroppedEntries entries = EntriesOf(std::move(names));
  const EditOutcome outcome =
      InsertDropped(with_.Files, with_.Ansi, file, position, entries.Records);
  return Told(outcome, std::move(entries));
}

FileDrops::Written FileDrops::Append(const std::string& file,
                                     std::vector<std::string> names) const {
  const forms::FlagScope busy(with_.Guards.ItemActionBusy);
  DroppedEntries entries = EntriesOf(std::move(names));
  const EditOutcome outcome = AppendDropped(with_.Files, with_.Ansi, file, entries.Records);
  return Told(outcome, std::move(entries));
}

}  // namespace corvelle
