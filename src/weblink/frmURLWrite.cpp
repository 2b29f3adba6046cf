// Where the entry of a web address goes.

#include "base/Text.h"
#include "core/DroppedFiles.h"
#include "core/EntryCommands.h"
#include "core/MenuFile.h"
#include "core/MenuRecord.h"
#include "core/Program.h"
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
  const auto row = ReadSingleFiles(program_.Services.Files, program_.Paths.MenusPath);
  const int count = row ? static_cast<int>(row->size()) : 0;
  return program_.Paths.MenusPath + SingleFileName(count + 1);
}

void frmURL::UpdateToolbar() {
  StripMenusPort* const strip = program_.Ports.Toolbar;
  if (strip != nullptr && !program_.Guards.HideBusy) strip->SetPointerWatch(false);
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
  const auto records = ReadWholeRecords(program_.Services.Files, file);
  const int number = RealRecord(target_.CurRecord);
  const int place = records ? PlaceOfRecord(*records, target_.CurStored, number) : 0;
  if (place == 0) return AppendItem(target_.CurMenuTag, file);
  EntryEdit entry = target_;
  entry.CurRecord = place;
  SetCurrentEntry(program_.Entry, std::move(entry));
  SetClipboard(program_.Entry, RecordOf(*this));
  // A disk that refuses has left the file as it was.
  static_cast<void>(program_.Commands.PasteItem());
  SetClipboard(program_.Entry);
}

void frmURL::InsertSingle(std::string_view before) {
  EntryEdit entry = target_;
  entry.CurMenuTag = std::string(kSinglesTag);
  entry.CurFile = std::string(before);
  entry.CurRecord = 1;
  SetCurrentEntry(program_.Entry, std::move(entry));
  SetClipboard(program_.Entry, RecordOf(*this));
  const EditOutcome outcome = program_.Commands.PasteItem();
  // The button under the drop is gone: behind the last one.
  if (outcome == EditOutcome::Failed && outcome.Reason() == FileError::NotFound &&
      !before.empty()) {
    program_.Entry.CurFile.clear();
    static_cast<void>(program_.Commands.PasteItem());
  }
  SetClipboard(program_.Entry);
  if (program_.Ports.Toolbar != nullptr) program_.Ports.Toolbar->RefreshToolbar();
}

void frmURL::AppendItem(const std::string& menu, const std::string& file) {
  FileSystem& files = program_.Services.Files;
  const EditOutcome outcome = AppendDropped(files, program_.Services.Ansi, file, {RecordOf(*this)});
  StripMenusPort* const strip = program_.Ports.Toolbar;
  if (outcome != EditOutcome::Edited || strip == nullptr) return;
  QMenuPort* const shown = program_.Ports.QMenu;
  const bool up =
      shown != nullptr && shown->MenuVisible() && EqualNoCase(shown->CurrentKey(), menu);
  // A menu that is not up is read again when it opens.
  if (!up) return strip->RemoveQMenu(menu);
  strip->RefreshMenu(menu);
  shown->GetCurMenu();
}

}  // namespace corvelle
