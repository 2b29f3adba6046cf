// Where the entry of a web address goes.

#include "base/Text.h"
#include "core/DroppedFiles.h"
#include "core/EntryCommands.h"
#include "core/GuardFlags.h"
#include "core/MenuFile.h"
#include "core/MenuRecord.h"
#include "core/ProgramPaths.h"
#include "core/SingleFiles.h"
#include "weblink/WebLinkTarget.h"
#include "weblink/frmURL.h"

namespace corvelle {

namespace {

constexpr std::string_view kWebLinkIcon = "http";

MenuRecord RecordOf(const frmURL& form) {
  const std::string address = Trim(form.txtAddress.Text());
  return {.FTitle = LinkTitle(form.txtTitle.Text(), address),
          .FIcon = std::string(kWebLinkIcon),
          .FName = address};
}

}  // namespace

std::string frmURL::NewSingleFile() const {
  const auto row = ReadSingleFiles(with_.Files, with_.Paths.MenusPath);
  const int count = row ? static_cast<int>(row->size()) : 0;
  return with_.Paths.MenusPath + SingleFileName(count + 1);
}

void frmURL::UpdateToolbar() {
  StripMenusPort* const strip = with_.Ports.Toolbar;
  if (strip != nullptr && !with_.Guards.HideBusy) strip->SetPointerWatch(false);
  const WebLinkTarget target = ParseLinkTag(Tag);
  switch (target.Place) {
    case LinkPlace::MenuItem:
      InsertItem(target_.CurFile);
      break;
    case LinkPlace::SingleRow:
      InsertSingle(target_.CurFile);
      break;
    case LinkPlace::NewSingle:
      InsertSingle({});
      break;
    case LinkPlace::MenuEnd:
      AppendItem(target.Menu, target.File);
      break;
  }
}

// Another edit may have moved the item since the drop.
void frmURL::InsertItem(const std::string& file) {
  const auto records = ReadWholeRecords(with_.Files, file);
  const int number = RealRecord(target_.CurRecord);
  const int place = records ? PlaceOfRecord(*records, target_.CurStored, number) : 0;
  if (place == 0) return AppendItem(target_.CurMenuTag, file);
  EntryEdit entry = target_;
  entry.CurRecord = place;
  SetCurrentEntry(with_.Entry, std::move(entry));
  SetClipboard(with_.Entry, RecordOf(*this));
  // A disk that refuses has left the file as it was.
  static_cast<void>(with_.Commands.PasteItem());
  SetClipboard(with_.Entry);
}

void frmURL::InsertSingle(std::string_view before) {
  EntryEdit entry = target_;
  entry.CurMenuTag = std::string(kSinglesTag);
  entry.CurFile = std::string(before);
  entry.CurRecord = 1;
  SetCurrentEntry(with_.Entry, std::move(entry));
  SetClipboard(with_.Entry, RecordOf(*this));
  const EditOutcome outcome = with_.Commands.PasteItem();
  // The button under the drop is gone: behind the last one.
  if (outcome == EditOutcome::Failed && outcome.Reason() == FileError::NotFound &&
      !before.empty()) {
    with_.Entry.CurFile.clear();
    static_cast<void>(with_.Commands.PasteItem());
  }
  SetClipboard(with_.Entry);
  if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->RefreshToolbar();
}

void frmURL::AppendItem(const std::string& menu, const std::string& file) {
  FileSystem& files = with_.Files;
  const EditOutcome outcome = AppendDropped(files, with_.Ansi, file, {RecordOf(*this)});
  StripMenusPort* const strip = with_.Ports.Toolbar;
  if (outcome != EditOutcome::Edited) return;
  with_.Ports.TellMenusEdited();
  if (strip == nullptr) return;
  QMenuPort* const shown = with_.Ports.QMenu;
  const bool up =
      shown != nullptr && shown->MenuVisible() && EqualNoCase(shown->CurrentKey(), menu);
  // A menu that is not up is read again when it opens.
  if (!up) return strip->RemoveQMenu(menu);
  strip->RefreshMenu(menu);
  shown->GetCurMenu();
}

}  // namespace corvelle
