// What is dropped on the single buttons, and the rewriting of their files.

#include <utility>

#include "base/Sort.h"
#include "base/Text.h"
#include "core/DroppedFiles.h"
#include "core/Program.h"
#include "core/SingleFiles.h"
#include "forms/Form.h"
#include "forms/PictureBox.h"
#include "launch/FileTitle.h"
#include "launch/LaunchItem.h"
#include "platform/FileSystem.h"
#include "toolbar/singles/SingleRow.h"

namespace corvelle {
namespace {

MenuRecord CarriedRecord(const EntryEdit& carried) {
  return {carried.CurTitle, carried.CurIcon, carried.CurCommand};
}

}  // namespace

FileStatus SingleRow::DeletePasteSB(std::string_view file, int action) {
  strip_.SetPointerWatch(false);
  FileSystem& files = program_.Services.Files;
  if (action == kDelete) return DeleteSingleFile(files, program_.Paths.MenusPath, file);
  const EntryEdit& entry = program_.Entry;
  return PasteSingleFile(files, program_.Services.Ansi, program_.Paths.MenusPath, file,
                         {entry.ClipTitle, entry.ClipIcon, entry.ClipCommand});
}

FileStatus SingleRow::UndoDeleteSB(std::string_view file) {
  strip_.SetPointerWatch(false);
  if (file.empty()) return FileError::BadName;
  const EntryEdit& entry = program_.Entry;
  return UndoDeleteSingleFile(program_.Services.Files, program_.Services.Ansi,
                              program_.Paths.MenusPath, file,
                              {entry.UndoTitle, entry.UndoIcon, entry.UndoCommand});
}

SingleRect SingleRow::Under() {
  const int index = GetCurIndex();
  return Has(index) ? SingleButtons[static_cast<std::size_t>(index)] : SingleRect();
}

void SingleRow::DoItemDrag(forms::MouseButton released) {
  if (program_.Guards.ItemActionBusy || !window_.IsLoaded()) return;
  // Events run while the menu closes, and a carry that seems over then is emptied.
  const EntryEdit carried = program_.Entry;
  if (carried.CurMenuTag.empty()) return;
  const SingleRect target = Under();
  CloseMenus();
  if (!window_.IsLoaded()) return;
  program_.Entry = carried;
  strip_.SetPointerWatch(false);
  const bool copies = released == forms::MouseButton::Right;
  bool changed = false;
  if (!copies && IsMenuTag(carried.CurMenuTag)) {
    changed = MoveFromMenu(target.File, carried);
  } else if (target.File.empty()) {
    changed = DropBehind(carried, released);
  } else {
    changed = DropBefore(target.File, carried, released);
  }
  if (changed) DoSingleButtons();
  program_.Entry.ItemDragging = false;
  if (changed && window_.IsLoaded()) FitStrip();
}

// True if the files were changed.
bool SingleRow::Told(const FileStatus& edited) const {
  if (edited) program_.Ports.TellMenusEdited();
  return edited.HasValue();
}

// What cannot be taken out of its menu is copied. True if the row is another one now.
bool SingleRow::MoveFromMenu(const std::string& before, const EntryEdit& carried) {
  FileSystem& files = program_.Services.Files;
  const CodePage& ansi = program_.Services.Ansi;
  const EditOutcome moved =
      MoveEntryToSingles(files, ansi, program_.Paths.MenusPath, carried, before);
  if (moved == EditOutcome::Failed) return false;
  if (moved == EditOutcome::Edited) {
    // The menu is built again when it opens.
    program_.Ports.TellMenusEdited();
    strip_.RemoveQMenu(carried.CurMenuTag);
    return true;
  }
  return Told(
      PasteSingleFile(files, ansi, program_.Paths.MenusPath, before, CarriedRecord(carried)));
}

// True if the row is another one now.
bool SingleRow::DropBehind(const EntryEdit& carried, forms::MouseButton released) {
  FileSystem& files = program_.Services.Files;
  if (released != forms::MouseButton::Right && IsSinglesTag(carried.CurMenuTag)) {
    if (IsAnother(carried)) return true;
    return Told(MoveSingleFile(files, program_.Paths.MenusPath, carried.CurFile, {}));
  }
  return Told(PasteSingleFile(files, program_.Services.Ansi, program_.Paths.MenusPath, {},
                              CarriedRecord(carried)));
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
    return Told(MoveSingleFile(files, program_.Paths.MenusPath, carried.CurFile, target));
  }
  return Told(PasteSingleFile(files, program_.Services.Ansi, program_.Paths.MenusPath, target,
                              CarriedRecord(carried)));
}

void SingleRow::FitStrip() {
  DockingPort* const docking = program_.Ports.Docking;
  if (strip_.Shape().Where == Placement::TopHugging) {
    strip_.SetToolbar();
  } else if (docking != nullptr) {
    docking->ResizeToEdge();
  }
}

void SingleRow::DropFilesOnSingles(std::vector<std::string> names, forms::MouseButton button) {
  if (names.empty() || !window_.IsLoaded() || program_.Guards.ItemActionBusy) return;
  // Events run from here on: the pointer may go on, and the row may be another one.
  const SingleRect target = Under();
  const bool onButton = !target.File.empty() && target.Kind == SingleKind::Button;
  program_.Ports.SetHint("");
  CloseMenus();
  if (!window_.IsLoaded()) return;
  SortTexts(names);
  if (button == forms::MouseButton::Right && onButton) {
    OpenWithItem(program_.Launch, names.front(), target.Command);
    return;
  }
  DroppedEntries dropped =
      DroppedRecords(std::move(names), [this](const std::vector<std::string>& paths) {
        return FileTitles(program_.Starts, program_.Services.Ansi, program_.OptionFlags)
            .GetDroppedNames(paths);
      });
  AddDropped(dropped.Records, target.File);
  // Last, so that nothing here lets its timer through.
  if (window_.IsLoaded()) strip_.TellRefused(std::move(dropped.Refused));
}

void SingleRow::AddDropped(const std::vector<MenuRecord>& records, const std::string& before) {
  if (records.empty()) return;
  FileSystem& files = program_.Services.Files;
  const auto row = ReadSingleFiles(files, program_.Paths.MenusPath);
  if (!row) return;
  const std::size_t at = before.empty() ? row->size() : PlaceOfSingle(*row, before);
  const SingleFiles after = WithSingles(*row, at, records, program_.Services.Ansi);
  // A disk that refuses leaves the row as it was.
  if (!Told(RewriteSingleFiles(files, program_.Paths.MenusPath, *row, after))) return;
  DoSingleButtons();
  FitStrip();
  if (program_.Strip.AutoHide && program_.Ports.Docking != nullptr) {
    program_.Ports.Docking->RevealToolbar();
  }
}

}  // namespace corvelle
