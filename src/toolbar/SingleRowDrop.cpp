// What is dropped on the single buttons, and the rewriting of their files.

#include <utility>

#include "base/Sort.h"
#include "base/Text.h"
#include "core/DroppedFiles.h"
#include "core/EntryCommands.h"
#include "core/Program.h"
#include "core/SingleFiles.h"
#include "launch/FileTitle.h"
#include "launch/LaunchItem.h"
#include "platform/FileSystem.h"
#include "toolbar/SingleRow.h"
#include "toolbar/frmToolbar.h"

namespace corvelle {
namespace {

MenuRecord CarriedRecord(const EntryEdit& carried) {
  return {carried.CurTitle, carried.CurIcon, carried.CurCommand};
}

}  // namespace

FileStatus SingleRow::DeletePasteSB(std::string_view file, int action) {
  strip_.Timer2.SetEnabled(false);
  FileSystem& files = program_.Services.Files;
  if (action == kDelete) return DeleteSingleFile(files, program_.MenusPath, file);
  const EntryEdit& entry = program_.Entry;
  return PasteSingleFile(files, program_.Services.Ansi, program_.MenusPath, file,
                         {entry.ClipTitle, entry.ClipIcon, entry.ClipCommand});
}

FileStatus SingleRow::UndoDeleteSB(std::string_view file) {
  strip_.Timer2.SetEnabled(false);
  if (file.empty()) return FileError::BadName;
  const EntryEdit& entry = program_.Entry;
  return UndoDeleteSingleFile(program_.Services.Files, program_.Services.Ansi, program_.MenusPath,
                              file, {entry.UndoTitle, entry.UndoIcon, entry.UndoCommand});
}

void SingleRow::DoItemDrag(forms::MouseButton released) {
  if (program_.ItemActionBusy || !strip_.IsLoaded()) return;
  // Events run while the menu closes, and a carry that seems over then is emptied.
  const EntryEdit carried = program_.Entry;
  if (carried.CurMenuTag.empty()) return;
  CloseMenus();
  if (!strip_.IsLoaded()) return;
  program_.Entry = carried;
  strip_.Timer2.SetEnabled(false);
  const int target = GetCurIndex();
  bool changed = false;
  if (!Has(target)) {
    changed = DropBehind(carried, released);
  } else {
    const std::string file = SingleButtons[static_cast<std::size_t>(target)].File;
    changed = DropBefore(file, carried, released);
  }
  if (changed) {
    DoSingleButtons();
    if (released != forms::MouseButton::Right) TakeFromMenu(carried);
  }
  program_.Entry.ItemDragging = false;
  if (changed && strip_.IsLoaded()) FitStrip();
}

// True if the row is another one now.
bool SingleRow::DropBehind(const EntryEdit& carried, forms::MouseButton released) {
  FileSystem& files = program_.Services.Files;
  if (released != forms::MouseButton::Right && IsSinglesTag(carried.CurMenuTag)) {
    if (IsAnother(carried)) return true;
    return MoveSingleFile(files, program_.MenusPath, carried.CurFile, {}).HasValue();
  }
  return PasteSingleFile(files, program_.Services.Ansi, program_.MenusPath, {},
                         CarriedRecord(carried))
      .HasValue();
}

// True if another program has put another entry into the file of the carried one. That one stays
// where it is, and is to be shown.
bool SingleRow::IsAnother(const EntryEdit& carried) const {
  return FindCurrentEntry(program_.Services.Files, program_.Services.Ansi, carried) ==
         EditOutcome::RecordMismatch;
}

// Puts the entry in front of the button of `target`. True if the row is another one now.
bool SingleRow::DropBefore(const std::string& target, const EntryEdit& carried,
                           forms::MouseButton released) {
  FileSystem& files = program_.Services.Files;
  const bool ofRow = IsSinglesTag(carried.CurMenuTag);
  // Dropped where it came from, nothing changes.
  if (ofRow && EqualNoCase(target, carried.CurFile)) return false;
  if (ofRow && released != forms::MouseButton::Right) {
    if (IsAnother(carried)) return true;
    return MoveSingleFile(files, program_.MenusPath, carried.CurFile, target).HasValue();
  }
  return PasteSingleFile(files, program_.Services.Ansi, program_.MenusPath, target,
                         CarriedRecord(carried))
      .HasValue();
}

// What came from a menu has arrived, and leaves the menu.
void SingleRow::TakeFromMenu(const EntryEdit& carried) {
  if (!IsMenuTag(carried.CurMenuTag)) return;
  program_.Entry = carried;
  DeleteItem(program_, true);
}

void SingleRow::FitStrip() {
  DockingPort* const docking = program_.Ports.Docking;
  if (strip_.Where() == Placement::TopHugging) {
    strip_.SetToolbar();
  } else if (docking != nullptr) {
    docking->ResizeToEdge();
  }
}

void SingleRow::DropFilesOnSingles(std::vector<std::string> names, forms::MouseButton button) {
  if (names.empty() || !strip_.IsLoaded() || program_.ItemActionBusy) return;
  program_.SetHint("");
  CloseMenus();
  if (!strip_.IsLoaded()) return;
  const int target = GetCurIndex();
  SortTexts(names);
  if (button == forms::MouseButton::Right && IsButton(target)) {
    OpenWithItem(program_, names.front(),
                 std::string(SingleButtons[static_cast<std::size_t>(target)].Command));
    return;
  }
  DroppedEntries dropped =
      DroppedRecords(program_.Services.Files, program_.Services.Ansi, std::move(names),
                     [this](std::string_view name) { return GetFileTitle(program_, name); });
  AddDropped(dropped.Records, target);
  // Last, so that nothing here lets its timer through.
  if (strip_.IsLoaded()) strip_.TellRefused(std::move(dropped.Refused));
}

void SingleRow::AddDropped(const std::vector<MenuRecord>& records, int target) {
  if (records.empty()) return;
  FileSystem& files = program_.Services.Files;
  const auto row = ReadSingleFiles(files, program_.MenusPath);
  if (!row) return;
  const std::size_t at =
      Has(target) ? PlaceOfSingle(*row, SingleButtons[static_cast<std::size_t>(target)].File)
                  : row->size();
  const SingleFiles after = WithSingles(*row, at, records, program_.Services.Ansi);
  // A disk that refuses leaves the row as it was.
  if (!RewriteSingleFiles(files, program_.MenusPath, *row, after)) return;
  DoSingleButtons();
  FitStrip();
  if (program_.AutoHide && program_.Ports.Docking != nullptr) {
    program_.Ports.Docking->RevealToolbar();
  }
}

}  // namespace corvelle
