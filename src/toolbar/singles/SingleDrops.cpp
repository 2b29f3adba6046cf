#include "toolbar/singles/SingleDrops.h"

#include <utility>

#include "base/Sort.h"
#include "base/Text.h"
#include "core/GuardFlags.h"
#include "core/StripPlacement.h"
#include "forms/Form.h"
#include "launch/LaunchItem.h"
#include "toolbar/singles/RowHost.h"
#include "toolbar/singles/SingleRow.h"

namespace corvelle {

SingleDrops::SingleDrops(const SingleDropParts& with, RowHost& strip, SingleRow& row)
    : with_(with), strip_(strip), window_(strip.AsForm()), row_(row) {}

FileStatus SingleDrops::DeletePasteSB(std::string_view file, int action) {
  strip_.SetPointerWatch(false);
  return action == kDelete ? with_.Edits.Delete(file) : with_.Edits.Paste(file);
}

FileStatus SingleDrops::UndoDeleteSB(std::string_view file) {
  strip_.SetPointerWatch(false);
  return with_.Edits.UndoDelete(file);
}

void SingleDrops::DoItemDrag(forms::MouseButton released) {
  if (with_.Guards.ItemActionBusy || !window_.IsLoaded()) return;
  // Events run while the menu closes, and a carry that seems over then is emptied.
  const EntryEdit carried = with_.Entry;
  if (carried.CurMenuTag.empty()) return;
  const SingleRect target = row_.Under();
  row_.CloseMenus();
  if (!window_.IsLoaded()) return;
  with_.Entry = carried;
  strip_.SetPointerWatch(false);
  const bool copies = released == forms::MouseButton::Right;
  bool changed = false;
  if (!copies && IsMenuTag(carried.CurMenuTag)) {
    changed = MoveFromMenu(target.File, carried);
  } else if (target.File.empty()) {
    changed = with_.Edits.DropBehind(carried, released);
  } else {
    changed = with_.Edits.DropBefore(target.File, carried, released);
  }
  if (changed) row_.DoSingleButtons();
  with_.Entry.ItemDragging = false;
  if (changed && window_.IsLoaded()) row_.FitStrip();
}

// What cannot be taken out of its menu is copied. True if the row is another one now.
bool SingleDrops::MoveFromMenu(const std::string& before, const EntryEdit& carried) {
  const EditOutcome moved = with_.Edits.TakeFromMenu(before, carried);
  if (moved == EditOutcome::Failed) return false;
  if (moved != EditOutcome::Edited) return with_.Edits.PutCopy(before, carried);
  // The menu is built again when it opens.
  strip_.RemoveQMenu(carried.CurMenuTag);
  return true;
}

void SingleDrops::DropFilesOnSingles(std::vector<std::string> names, forms::MouseButton button) {
  if (names.empty() || !window_.IsLoaded() || with_.Guards.ItemActionBusy) return;
  // Events run from here on: the pointer may go on, and the row may be another one.
  const SingleRect target = row_.Under();
  const bool onButton = !target.File.empty() && target.Kind == SingleKind::Button;
  with_.Ports.SetHint("");
  row_.CloseMenus();
  if (!window_.IsLoaded()) return;
  if (button == forms::MouseButton::Right && onButton) {
    OpenWithItem(with_.Launch, names.front(), target.Command);
    return;
  }
  SortTexts(names);
  DroppedEntries dropped = with_.Edits.EntriesOf(std::move(names));
  AddDropped(dropped.Records, target.File);
  // Last, so that nothing here lets its timer through.
  if (window_.IsLoaded()) strip_.TellRefused(std::move(dropped.Refused));
}

void SingleDrops::AddDropped(const std::vector<MenuRecord>& records, const std::string& before) {
  if (!with_.Edits.Add(records, before)) return;
  row_.DoSingleButtons();
  row_.FitStrip();
  if (with_.Strip.AutoHide && with_.Ports.Docking != nullptr) {
    with_.Ports.Docking->RevealToolbar();
  }
}

}  // namespace corvelle
