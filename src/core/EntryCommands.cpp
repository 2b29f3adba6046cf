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
  return program.Say(kNoWindow,
                     "If you delete a button, you cannot Undo Delete. Do you want to continue ?",
                     forms::msgbox::YesNo | forms::msgbox::OnTop) == forms::msgbox::AnswerYes;
}

// The row of single buttons is rewritten as a whole, by whoever owns it, and read anew whatever
// came of it.
template <class Edit>
EditOutcome EditSingles(Program& program, const Edit& edit) {
  if (program.Ports.SingleButtons == nullptr) return EditOutcome::NothingToDo;
  const float freeWidth = FreeWidth(program);
  const FileStatus edited = edit(*program.Ports.SingleButtons);
  if (program.Ports.Toolbar != nullptr) program.Ports.Toolbar->DoSingleButtons();
  ResizeStrip(program, freeWidth);
  return OutcomeOf(edited);
}

// Another program may have changed the file since the row was read. Its entry is not the one that
// the user meant, and it stays; the row shows it from now on.
EditOutcome DeleteSingle(Program& program) {
  const EditOutcome still =
      FindCurrentEntry(program.Services.Files, program.Services.Ansi, program.Entry);
  if (still == EditOutcome::Edited) {
    return EditSingles(
        program, [&](SingleButtonsPort& row) { return row.DeleteSingle(program.Entry.CurFile); });
  }
  const float freeWidth = FreeWidth(program);
  if (program.Ports.Toolbar != nullptr) program.Ports.Toolbar->DoSingleButtons();
  ResizeStrip(program, freeWidth);
  if (still == EditOutcome::RecordMismatch && !program.Entry.ItemDragging) {
    SayRecordMismatch(program);
  }
  return still;
}

EditOutcome DeleteButton(Program& program) {
  const float freeWidth = FreeWidth(program);
  // A file that cannot be deleted leaves its button on the strip, where the user sees it.
  const EditOutcome outcome = DeleteButtonFile(program.Services.Files, program.Entry);
  if (program.Ports.Toolbar != nullptr) {
    program.Ports.Toolbar->ResetCollections();
    program.Ports.Toolbar->DoToolbarButtons();
  }
  ResizeStrip(program, freeWidth);
  return outcome;
}

// A drag rereads the menu itself when it ends; until then only the built menu is stale.
void RefreshAfterEdit(Program& program) {
  if (program.Ports.Toolbar == nullptr) return;
  if (program.Entry.ItemDragging) {
    program.Ports.Toolbar->RemoveQMenu(program.Entry.CurMenuTag);
  } else {
    program.Ports.Toolbar->RefreshMenu(program.Entry.CurMenuTag);
  }
}

EditOutcome DeleteMenuItem(Program& program) {
  const EditOutcome outcome = DeleteMenuEntry(program.Services.Files, program.Services.Ansi,
                                              program.MenusPath, program.Entry);
  if (outcome == EditOutcome::Edited) RefreshAfterEdit(program);
  if (outcome == EditOutcome::RecordMismatch && !program.Entry.ItemDragging) {
    SayRecordMismatch(program);
  }
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
  program.Say(kNoWindow, "Cannot delete/cut this item. Record mismatch.",
              forms::msgbox::IconInformation | forms::msgbox::OnTop);
}

EditOutcome DeleteItem(Program& program, bool skipConfirm) {
  const std::string& tag = program.Entry.CurMenuTag;
  const bool ask = !program.Entry.ItemDragging && !skipConfirm && IsButtonTag(tag);
  if (ask && !ConfirmsButtonDelete(program)) return EditOutcome::NothingToDo;
  if (IsSinglesTag(tag)) return DeleteSingle(program);
  if (IsButtonTag(tag)) return DeleteButton(program);
  if (IsMenuTag(tag)) return DeleteMenuItem(program);
  return EditOutcome::NothingToDo;
}

EditOutcome PasteItem(Program& program) {
  program.Entry.UndoMenuTag.clear();
  if (IsSinglesTag(program.Entry.CurMenuTag)) {
    return EditSingles(
        program, [&](SingleButtonsPort& row) { return row.PasteSingle(program.Entry.CurFile); });
  }
  const EditOutcome outcome = PasteMenuEntry(program.Services.Files, program.Services.Ansi,
                                             program.MenusPath, program.Entry);
  if (outcome == EditOutcome::Edited) RefreshAfterEdit(program);
  return outcome;
}

bool DropItem(Program& program, std::string_view tag, const DropPlace& place, bool copies) {
  FileSystem& files = program.Services.Files;
  const CodePage& ansi = program.Services.Ansi;
  const EntryEdit& entry = program.Entry;
  if (entry.CurFile.empty() || IsDropOnItself(entry, place)) return false;
  // Within one file in one step, so that no failure leaves the entry twice or nowhere.
  EditOutcome outcome = EditOutcome::NothingToDo;
  const bool within = !copies && IsMenuTag(entry.CurMenuTag);
  if (within) outcome = MoveMenuEntry(files, ansi, program.MenusPath, entry, place);
  if (outcome == EditOutcome::Failed) return false;
  if (outcome != EditOutcome::Edited) {
    outcome = CopyMenuEntry(files, ansi, program.MenusPath, entry, place);
    if (outcome != EditOutcome::Edited) return false;
    // Only now, so that the entry is always somewhere.
    if (!copies) DeleteItem(program, true);
  }
  program.Entry.UndoMenuTag.clear();
  if (program.Ports.Toolbar != nullptr) program.Ports.Toolbar->RemoveQMenu(tag);
  return true;
}

// A disk that refuses now may take the entry a moment later: it is not given up.
EditOutcome UndoDeleteItem(Program& program) {
  if (IsSinglesTag(program.Entry.UndoMenuTag)) {
    const EditOutcome outcome = EditSingles(
        program, [&](SingleButtonsPort& row) { return row.UndoDeleteSB(program.Entry.UndoFile); });
    if (outcome == EditOutcome::Failed) return outcome;
    if (program.Ports.Toolbar != nullptr) {
      program.Ports.Toolbar->RefreshMenu(program.Entry.UndoMenuTag);
    }
    program.Entry.UndoMenuTag.clear();
    return outcome;
  }
  const EditOutcome outcome = UndoDeleteMenuEntry(program.Services.Files, program.Services.Ansi,
                                                  program.MenusPath, program.Entry);
  if (outcome == EditOutcome::Failed) return outcome;
  if (outcome == EditOutcome::Edited) RefreshAfterEdit(program);
  program.Entry.UndoMenuTag.clear();
  return outcome;
}

}  // namespace corvelle
