#include "core/EntryCommands.h"

#include "base/FieldText.h"
#include "core/DroppedFiles.h"
#include "core/MessageBoxes.h"
#include "core/ProgramPaths.h"
#include "core/RecordEdits.h"
#include "core/WindowPorts.h"

namespace corvelle {
namespace {

float FreeWidth(const WindowPorts& ports) {
  return ports.Toolbar != nullptr ? ports.Toolbar->FreeWidth() : 0;
}

void ResizeStrip(const WindowPorts& ports, float freeWidth) {
  if (ports.Toolbar != nullptr) ports.Toolbar->ResizeAfterEdit(freeWidth);
}

}  // namespace

bool EntryCommands::ConfirmsButtonDelete() {
  const WindowId strip = with_.Ports.ToolbarWindow();
  const int answer = with_.Messages.Say(
      with_.Ports.WindowInUse(),
      "If you delete a button, you cannot Undo Delete. Do you want to continue ?",
      forms::msgbox::YesNo | forms::msgbox::OnTop);
  // The program may have ended meanwhile.
  return answer == forms::msgbox::AnswerYes && with_.Ports.ToolbarWindow() == strip;
}

EditOutcome EntryCommands::Told(const EditOutcome& outcome) {
  if (outcome == EditOutcome::Edited) with_.Ports.TellMenusEdited();
  return outcome;
}

// The row of single buttons is rewritten as a whole, by whoever owns it, and read again whatever
// came of it.
template <class Edit>
EditOutcome EntryCommands::EditSingles(const Edit& edit) {
  if (with_.Ports.SingleButtons == nullptr) return EditOutcome::NothingToDo;
  const float freeWidth = FreeWidth(with_.Ports);
  const FileStatus edited = edit(*with_.Ports.SingleButtons);
  if (edited) with_.Ports.TellMenusEdited();
  if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->DoSingleButtons();
  ResizeStrip(with_.Ports, freeWidth);
  return OutcomeOf(edited);
}

// Another program may have changed the file since the row was read. Its entry is not the one that
// the user meant, and it stays; the row shows it from now on.
EditOutcome EntryCommands::DeleteSingle(const EntryEdit& entry) {
  const EditOutcome still = FindCurrentEntry(with_.Files, with_.Ansi, entry);
  if (still == EditOutcome::Edited) {
    return EditSingles([&](SingleButtonsPort& row) { return row.DeleteSingle(entry.CurFile); });
  }
  const float freeWidth = FreeWidth(with_.Ports);
  if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->DoSingleButtons();
  ResizeStrip(with_.Ports, freeWidth);
  if (still == EditOutcome::RecordMismatch && !entry.ItemDragging) SayRecordMismatch();
  return still;
}

EditOutcome EntryCommands::DeleteButton(const EntryEdit& entry) {
  const float freeWidth = FreeWidth(with_.Ports);
  // A file that cannot be deleted leaves its button on the strip, where the user sees it; so does
  // one that another program has put in its place.
  const EditOutcome outcome = Told(DeleteButtonFile(with_.Files, with_.Ansi, entry));
  if (with_.Ports.Toolbar != nullptr) {
    with_.Ports.Toolbar->ResetCollections();
    with_.Ports.Toolbar->DoToolbarButtons();
  }
  ResizeStrip(with_.Ports, freeWidth);
  if (outcome == EditOutcome::RecordMismatch) SayRecordMismatch();
  return outcome;
}

// A drag rereads the menu itself when it ends; until then only the built menu is stale.
void EntryCommands::RefreshAfterEdit(const EntryEdit& entry) {
  if (with_.Ports.Toolbar == nullptr) return;
  if (entry.ItemDragging) {
    with_.Ports.Toolbar->RemoveQMenu(entry.CurMenuTag);
  } else {
    with_.Ports.Toolbar->RefreshMenu(entry.CurMenuTag);
  }
}

// What the carried entry was taken from shows it no longer. The row is read again whatever came of
// it: another program may have changed it.
void EntryCommands::ShowSourceAfterMove(const EntryEdit& entry, const EditOutcome& outcome,
                                        float freeWidth) {
  if (IsSinglesTag(entry.CurMenuTag)) {
    if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->DoSingleButtons();
    ResizeStrip(with_.Ports, freeWidth);
  } else if (outcome == EditOutcome::Edited) {
    RefreshAfterEdit(entry);
  }
}

EditOutcome EntryCommands::DeleteMenuItem(const EntryEdit& entry) {
  const EditOutcome outcome =
      Told(DeleteMenuEntry(with_.Files, with_.Ansi, with_.Paths.MenusPath, entry));
  if (outcome == EditOutcome::Edited) RefreshAfterEdit(entry);
  if (outcome == EditOutcome::RecordMismatch && !entry.ItemDragging) SayRecordMismatch();
  return outcome;
}

bool EntryCommands::MayBeCopied(WindowId owner) {
  const std::string& command = with_.Entry.CurCommand;
  if (EncodeText(command, with_.Ansi).size() <= kNameWidth) return true;
  with_.Messages.Say(owner, RefusedFilesText({command}),
                     forms::msgbox::IconInformation | forms::msgbox::OnTop);
  return false;
}

void EntryCommands::SayRecordMismatch() {
  with_.Messages.Say(with_.Ports.WindowInUse(), "Cannot delete/cut this item. Record mismatch.",
                     forms::msgbox::IconInformation | forms::msgbox::OnTop);
}

EditOutcome EntryCommands::DeleteItem(bool skipConfirm) {
  const EntryEdit entry = with_.Entry;
  const std::string& tag = entry.CurMenuTag;
  const bool ask = !entry.ItemDragging && !skipConfirm && IsButtonTag(tag);
  if (ask && !ConfirmsButtonDelete()) return EditOutcome::NothingToDo;
  if (IsSinglesTag(tag)) return DeleteSingle(entry);
  if (IsButtonTag(tag)) return DeleteButton(entry);
  if (IsMenuTag(tag)) return DeleteMenuItem(entry);
  return EditOutcome::NothingToDo;
}

EditOutcome EntryCommands::PasteItem() {
  with_.Entry.UndoMenuTag.clear();
  const EntryEdit entry = with_.Entry;
  if (IsSinglesTag(entry.CurMenuTag)) {
    return EditSingles([&](SingleButtonsPort& row) { return row.PasteSingle(entry.CurFile); });
  }
  const EditOutcome outcome =
      Told(PasteMenuEntry(with_.Files, with_.Ansi, with_.Paths.MenusPath, entry));
  if (outcome == EditOutcome::Edited) RefreshAfterEdit(entry);
  return outcome;
}

bool EntryCommands::DropItem(std::string_view tag, const DropPlace& place, bool copies) {
  FileSystem& files = with_.Files;
  const CodePage& ansi = with_.Ansi;
  const EntryEdit entry = with_.Entry;
  if (entry.CurFile.empty() || IsDropOnItself(entry, place)) return false;
  // Within one file in one step, between two as one change, so that neither a failure nor an end of
  // the program leaves the entry twice or nowhere.
  EditOutcome outcome = EditOutcome::NothingToDo;
  const bool within = !copies && IsMenuTag(entry.CurMenuTag);
  if (within) outcome = Told(MoveMenuEntry(files, ansi, with_.Paths.MenusPath, entry, place));
  if (outcome == EditOutcome::NothingToDo && !copies) {
    const float freeWidth = FreeWidth(with_.Ports);
    outcome = Told(MoveEntryToMenu(files, ansi, with_.Paths.MenusPath, entry, place));
    ShowSourceAfterMove(entry, outcome, freeWidth);
  }
  if (outcome == EditOutcome::Failed) return false;
  // What cannot be taken away is copied.
  if (outcome != EditOutcome::Edited) {
    outcome = Told(CopyMenuEntry(files, ansi, with_.Paths.MenusPath, entry, place));
    if (outcome != EditOutcome::Edited) return false;
  }
  with_.Entry.UndoMenuTag.clear();
  if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->RemoveQMenu(tag);
  return true;
}

// A disk that refuses now may take the entry a moment later: it is not given up.
EditOutcome EntryCommands::UndoDeleteItem() {
  const EntryEdit entry = with_.Entry;
  if (IsSinglesTag(entry.UndoMenuTag)) {
    const EditOutcome outcome =
        EditSingles([&](SingleButtonsPort& row) { return row.UndoDeleteSB(entry.UndoFile); });
    if (outcome == EditOutcome::Failed) return outcome;
    with_.Entry.UndoMenuTag.clear();
    if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->RefreshMenu(entry.UndoMenuTag);
    return outcome;
  }
  const EditOutcome outcome =
      Told(UndoDeleteMenuEntry(with_.Files, with_.Ansi, with_.Paths.MenusPath, entry));
  if (outcome == EditOutcome::Failed) return outcome;
  with_.Entry.UndoMenuTag.clear();
  if (outcome == EditOutcome::Edited) RefreshAfterEdit(entry);
  return outcome;
}

}  // namespace corvelle
