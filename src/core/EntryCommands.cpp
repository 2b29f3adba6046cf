#include "core/EntryCommands.h"

#include "base/FieldText.h"
#include "core/DroppedFiles.h"
#include "core/Program.h"
#include "core/RecordEdits.h"

namespace corvelle {
namespace {

float FreeWidth(const Program& program) {
  return program.Ports.Toolbar != nullptr ? program.Ports.Toolbar->FreeWidth() : 0;
}

void ResizeStrip(Program& program, float freeWidth) {
  if (program.Ports.Toolbar != nullptr) program.Ports.Toolbar->ResizeAfterEdit(freeWidth);
}

bool ConfirmsButtonDelete(Program& program) {
  const WindowId strip = program.ToolbarWindow();
  const int answer =
      program.Say(program.WindowInUse(),
                  "If you delete a button, you cannot Undo Delete. Do you want to continue ?",
                  forms::msgbox::YesNo | forms::msgbox::OnTop);
  // The program may have ended meanwhile.
  return answer == forms::msgbox::AnswerYes && program.ToolbarWindow() == strip;
}

// Before anything is shown: what that lets run finds the news there.
EditOutcome Told(const Program& program, const EditOutcome& outcome) {
  if (outcome == EditOutcome::Edited) program.TellMenusEdited();
  return outcome;
}

// The row of single buttons is rewritten as a whole, by whoever owns it, and read again whatever
// came of it.
template <class Edit>
EditOutcome EditSingles(Program& program, const Edit& edit) {
  if (program.Ports.SingleButtons == nullptr) return EditOutcome::NothingToDo;
  const float freeWidth = FreeWidth(program);
  const FileStatus edited = edit(*program.Ports.SingleButtons);
  if (edited) program.TellMenusEdited();
  if (program.Ports.Toolbar != nullptr) program.Ports.Toolbar->DoSingleButtons();
  ResizeStrip(program, freeWidth);
  return OutcomeOf(edited);
}

// Another program may have changed the file since the row was read. Its entry is not the one that
// the user meant, and it stays; the row shows it from now on.
EditOutcome DeleteSingle(Program& program, const EntryEdit& entry) {
  const EditOutcome still = FindCurrentEntry(program.Services.Files, program.Services.Ansi, entry);
  if (still == EditOutcome::Edited) {
    return EditSingles(program,
                       [&](SingleButtonsPort& row) { return row.DeleteSingle(entry.CurFile); });
  }
  const float freeWidth = FreeWidth(program);
  if (program.Ports.Toolbar != nullptr) program.Ports.Toolbar->DoSingleButtons();
  ResizeStrip(program, freeWidth);
  if (still == EditOutcome::RecordMismatch && !entry.ItemDragging) SayRecordMismatch(program);
  return still;
}

EditOutcome DeleteButton(Program& program, const EntryEdit& entry) {
  const float freeWidth = FreeWidth(program);
  // A file that cannot be deleted leaves its button on the strip, where the user sees it; so does
  // one that another program has put in its place.
  const EditOutcome outcome =
      Told(program, DeleteButtonFile(program.Services.Files, program.Services.Ansi, entry));
  if (program.Ports.Toolbar != nullptr) {
    program.Ports.Toolbar->ResetCollections();
    program.Ports.Toolbar->DoToolbarButtons();
  }
  ResizeStrip(program, freeWidth);
  if (outcome == EditOutcome::RecordMismatch) SayRecordMismatch(program);
  return outcome;
}

// A drag rereads the menu itself when it ends; until then only the built menu is stale.
void RefreshAfterEdit(Program& program, const EntryEdit& entry) {
  if (program.Ports.Toolbar == nullptr) return;
  if (entry.ItemDragging) {
    program.Ports.Toolbar->RemoveQMenu(entry.CurMenuTag);
  } else {
    program.Ports.Toolbar->RefreshMenu(entry.CurMenuTag);
  }
}

// What the carried entry was taken from shows it no longer. The row is read again whatever came of
// it: another program may have changed it.
void ShowSourceAfterMove(Program& program, const EntryEdit& entry, const EditOutcome& outcome,
                         float freeWidth) {
  if (IsSinglesTag(entry.CurMenuTag)) {
    if (program.Ports.Toolbar != nullptr) program.Ports.Toolbar->DoSingleButtons();
    ResizeStrip(program, freeWidth);
  } else if (outcome == EditOutcome::Edited) {
    RefreshAfterEdit(program, entry);
  }
}

EditOutcome DeleteMenuItem(Program& program, const EntryEdit& entry) {
  const EditOutcome outcome =
      Told(program, DeleteMenuEntry(program.Services.Files, program.Services.Ansi,
                                    program.Paths.MenusPath, entry));
  if (outcome == EditOutcome::Edited) RefreshAfterEdit(program, entry);
  if (outcome == EditOutcome::RecordMismatch && !entry.ItemDragging) SayRecordMismatch(program);
  return outcome;
}

}  // namespace

bool MayBeCopied(Program& program, WindowId owner) {
  const std::string& command = program.Entry.CurCommand;
  if (EncodeText(command, program.Services.Ansi).size() <= kNameWidth) return true;
  program.Say(owner, RefusedFilesText({command}),
              forms::msgbox::IconInformation | forms::msgbox::OnTop);
  return false;
}

void SayRecordMismatch(Program& program) {
  program.Say(program.WindowInUse(), "Cannot delete/cut this item. Record mismatch.",
              forms::msgbox::IconInformation | forms::msgbox::OnTop);
}

EditOutcome DeleteItem(Program& program, bool skipConfirm) {
  const EntryEdit entry = program.Entry;
  const std::string& tag = entry.CurMenuTag;
  const bool ask = !entry.ItemDragging && !skipConfirm && IsButtonTag(tag);
  if (ask && !ConfirmsButtonDelete(program)) return EditOutcome::NothingToDo;
  if (IsSinglesTag(tag)) return DeleteSingle(program, entry);
  if (IsButtonTag(tag)) return DeleteButton(program, entry);
  if (IsMenuTag(tag)) return DeleteMenuItem(program, entry);
  return EditOutcome::NothingToDo;
}

EditOutcome PasteItem(Program& program) {
  program.Entry.UndoMenuTag.clear();
  const EntryEdit entry = program.Entry;
  if (IsSinglesTag(entry.CurMenuTag)) {
    return EditSingles(program,
                       [&](SingleButtonsPort& row) { return row.PasteSingle(entry.CurFile); });
  }
  const EditOutcome outcome =
      Told(program, PasteMenuEntry(program.Services.Files, program.Services.Ansi,
                                   program.Paths.MenusPath, entry));
  if (outcome == EditOutcome::Edited) RefreshAfterEdit(program, entry);
  return outcome;
}

bool DropItem(Program& program, std::string_view tag, const DropPlace& place, bool copies) {
  FileSystem& files = program.Services.Files;
  const CodePage& ansi = program.Services.Ansi;
  const EntryEdit entry = program.Entry;
  if (entry.CurFile.empty() || IsDropOnItself(entry, place)) return false;
  // Within one file in one step, between two as one change, so that neither a failure nor an end of
  // the program leaves the entry twice or nowhere.
  EditOutcome outcome = EditOutcome::NothingToDo;
  const bool within = !copies && IsMenuTag(entry.CurMenuTag);
  if (within)
    outcome = Told(program, MoveMenuEntry(files, ansi, program.Paths.MenusPath, entry, place));
  if (outcome == EditOutcome::NothingToDo && !copies) {
    const float freeWidth = FreeWidth(program);
    outcome = Told(program, MoveEntryToMenu(files, ansi, program.Paths.MenusPath, entry, place));
    ShowSourceAfterMove(program, entry, outcome, freeWidth);
  }
  if (outcome == EditOutcome::Failed) return false;
  // What cannot be taken away is copied.
  if (outcome != EditOutcome::Edited) {
    outcome = Told(program, CopyMenuEntry(files, ansi, program.Paths.MenusPath, entry, place));
    if (outcome != EditOutcome::Edited) return false;
  }
  program.Entry.UndoMenuTag.clear();
  if (program.Ports.Toolbar != nullptr) program.Ports.Toolbar->RemoveQMenu(tag);
  return true;
}

// A disk that refuses now may take the entry a moment later: it is not given up.
EditOutcome UndoDeleteItem(Program& program) {
  const EntryEdit entry = program.Entry;
  if (IsSinglesTag(entry.UndoMenuTag)) {
    const EditOutcome outcome = EditSingles(
        program, [&](SingleButtonsPort& row) { return row.UndoDeleteSB(entry.UndoFile); });
    if (outcome == EditOutcome::Failed) return outcome;
    program.Entry.UndoMenuTag.clear();
    if (program.Ports.Toolbar != nullptr) program.Ports.Toolbar->RefreshMenu(entry.UndoMenuTag);
    return outcome;
  }
  const EditOutcome outcome =
      Told(program, UndoDeleteMenuEntry(program.Services.Files, program.Services.Ansi,
                                        program.Paths.MenusPath, entry));
  if (outcome == EditOutcome::Failed) return outcome;
  program.Entry.UndoMenuTag.clear();
  if (outcome == EditOutcome::Edited) RefreshAfterEdit(program, entry);
  return outcome;
}

}  // namespace corvelle
