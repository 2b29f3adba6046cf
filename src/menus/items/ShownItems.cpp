#include "menus/items/ShownItems.h"

#include "base/Text.h"
#include "core/MenuFile.h"
#include "core/SpecialFolders.h"

namespace corvelle {

const MenuItem& ShownItems::operator[](int index) const {
  static const MenuItem kMissing;
  return Has(index) ? menu_->Items[static_cast<std::size_t>(index) - 1] : kMissing;
}

const std::string& ShownItems::NameOf(int index) const {
  const MenuItem& item = (*this)[index];
  const bool titled = item.Origin.Name.empty() && item.Folder == FolderState::Here;
  return titled ? item.Title : item.Origin.Name;
}

EntryEdit ShownItems::EntryOf(int index) const {
  const MenuItem& item = (*this)[index];
  EntryEdit entry;
  entry.CurRecord = item.Origin.Record;
  entry.CurStored = StoredRecord(menu_->Stored, RealRecord(entry.CurRecord));
  entry.CurIcon = item.Icon;
  entry.CurTitle = item.Title;
  // The title of a folder that waits says so, which is not part of the entry.
  if (item.Folder != FolderState::Here) {
    entry.CurTitle = StripAtNull(ParseRecord(entry.CurStored, ansi_).FTitle);
  }
  entry.CurCommand = item.Command;
  // Edits go to the menu file itself, by the numbers of its own records.
  entry.CurFile = Source();
  entry.CurMenuTag = Key();
  // An entry that a folder of the shell was expanded to is told by its name in that folder.
  if (!item.Origin.Name.empty()) {
    entry.CurCommand = SpecialFolderEntryCommand(NameOf(index), entry.CurCommand, ansi_);
    entry.CurIcon = entry.CurCommand;
  }
  return entry;
}

bool ShownItems::SetIcon(int index, std::string_view icon) {
  if (!Has(index)) return false;
  std::string& kept = menu_->Items[static_cast<std::size_t>(index) - 1].Icon;
  if (kept == icon) return false;
  kept = icon;
  return true;
}

}  // namespace corvelle
