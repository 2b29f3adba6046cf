#include "launch/FileDrops.h"

#include <utility>

#include "core/DroppedFiles.h"
#include "core/GuardFlags.h"
#include "core/WindowPorts.h"
#include "forms/Scopes.h"

namespace corvelle {

FileDrops::Written FileDrops::Write(const std::string& file, std::optional<int> position,
                                    std::vector<std::string> names) const {
  const forms::FlagScope busy(with_.Guards.ItemActionBusy);
  DroppedEntries entries =
      DroppedRecords(std::move(names), [this](const std::vector<std::string>& paths) {
        return with_.Titles.GetTrimmedNames(paths);
      });
  const EditOutcome outcome =
      position ? InsertDropped(with_.Files, with_.Ansi, file, *position, entries.Records)
               : AppendDropped(with_.Files, with_.Ansi, file, entries.Records);
  if (outcome == EditOutcome::Edited) with_.Ports.TellMenusEdited();
  return {outcome, std::move(entries.Refused)};
}

FileDrops::Written FileDrops::Insert(const std::string& file, int position,
                                     std::vector<std::string> names) const {
  return Write(file, position, std::move(names));
}

FileDrops::Written FileDrops::Append(const std::string& file,
                                     std::vector<std::string> names) const {
  return Write(file, std::nullopt, std::move(names));
}

}  // namespace corvelle
