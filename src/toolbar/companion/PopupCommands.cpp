// What the lines of the popup do.

#include <string_view>

#include "base/Text.h"
#include "core/EntryCommands.h"
#include "core/MenuFile.h"
#include "core/Program.h"
#include "forms/Scopes.h"
#include "launch/LaunchItem.h"
#include "shell/FileErrorText.h"
#include "toolbar/companion/Popup.h"

namespace corvelle {

Popup::Command Popup::CommandOf(const std::string& tag) {
  struct Row {
    std::string_view Tag;
    Command Act;
  };
  static constexpr Row kCommands[] = {
      {"icons", &Popup::ShowIconLibrary},     {"Open", &Popup::OpenEntry},
      {"Refresh", &Popup::Refresh},           {"Cut", &Popup::CutEntry},
      {"Copy", &Popup::CopyCurrentEntry},     {"Paste", &Popup::PasteEntry},
      {"Delete", &Popup::DeleteEntry},        {"DeleteSeparator", &Popup::DeleteSeparator},
      {"Undo", &Popup::UndoDelete},           {"AddButton", &Popup::AddButton},
      {"MenuItem", &Popup::InsertMenuItem},   {"Separator", &Popup::InsertSeparator},
      {"OpenFolder", &Popup::OpenFolder},     {"CloseFolder", &Popup::CloseFolder},
      {"Properties", &Popup::ShowProperties}, {"FolderProperties", &Popup::ShowFolderProperties},
  };
  for (const Row& row : kCommands) {
    if (EqualNoCase(tag, row.Tag)) return row.Act;
  }
  return nullptr;
}

void Popup::mnuItem_Click(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= mnuItem.size()) return;
  const Command command = CommandOf(mnuItem[static_cast<std::size_t>(index)].Tag);
  if (command != nullptr) (this->*command)();
}

void Popup::ShowError(std::string_view path, FileError error) {
  program_.Messages.Say(program_.Ports.WindowInUse(),
                        NumberedFileError(program_.Services.Files, path, error),
                        forms::msgbox::IconInformation | forms::msgbox::OnTop);
}

// A disk that refused has left the file as it was; the user learns that nothing was done.
void Popup::Settle(EditOutcome outcome, const std::string& file) {
  if (outcome == EditOutcome::Failed) ShowError(file, outcome.Reason());
}

void Popup::ShowIconLibrary() {
  if (program_.Ports.Library != nullptr) program_.Ports.Library->Show({});
}

void Popup::OpenEntry() {
  const EntryEdit entry = program_.Entry;
  if (IsButtonTag(entry.CurMenuTag)) {
    program_.Ports.Toolbar->OpenMenu(entry.CurMenuTag);
  } else {
    LaunchItem(program_.Launch, entry.CurCommand);
  }
}

void Popup::Refresh() {
  const std::string tag = program_.Entry.CurMenuTag;
  if (EqualNoCase(tag, "Q1")) {
    program_.Ports.Toolbar->ResetMenu();
  } else if (IsMenuTag(tag)) {
    if (program_.Ports.QMenu != nullptr) program_.Ports.QMenu->RefreshQMenu();
  } else {
    program_.Ports.Toolbar->RefreshToolbar();
  }
}

// ---- the clipboard ----

void Popup::CutEntry() {
  const forms::FlagScope rewriting(program_.Guards.ItemActionBusy);
  const std::string file = program_.Entry.CurFile;
  CopyEntry(program_.Entry);
  Settle(program_.Commands.DeleteItem(true), file);
}

void Popup::CopyCurrentEntry() {
  if (program_.Commands.MayBeCopied(program_.Ports.ToolbarWindow())) CopyEntry(program_.Entry);
}

void Popup::PasteEntry() {
  const forms::FlagScope rewriting(program_.Guards.ItemActionBusy);
  const std::string file = program_.Entry.CurFile;
  Settle(program_.Commands.PasteItem(), file);
}

// ---- deleting ----

// What was not deleted cannot be brought back: the undo store then keeps what it had.
void Popup::DeleteEntry() {
  const EntryEdit before = program_.Entry;
  const std::string& tag = before.CurMenuTag;
  if (!IsSinglesTag(tag) && !IsButtonTag(tag) && !IsMenuTag(tag)) return;
  const forms::FlagScope rewriting(program_.Guards.ItemActionBusy);
  RememberForUndo(program_.Entry);
  const EditOutcome outcome = program_.Commands.DeleteItem(false);
  if (outcome != EditOutcome::Edited) RestoreUndo(program_.Entry, before);
  Settle(outcome, before.CurFile);
}

void Popup::DeleteSeparator() {
  const forms::FlagScope rewriting(program_.Guards.ItemActionBusy);
  const EntryEdit before = program_.Entry;
  EditOutcome outcome =
      SelectSeparatorAbove(program_.Services.Files, program_.Services.Ansi, program_.Entry);
  if (outcome == EditOutcome::RecordMismatch) program_.Commands.SayRecordMismatch();
  if (outcome == EditOutcome::Edited) {
    outcome = program_.Commands.DeleteItem(false);
    if (outcome != EditOutcome::Edited) RestoreUndo(program_.Entry, before);
  }
  Settle(outcome, before.CurFile);
}

void Popup::UndoDelete() {
  const forms::FlagScope rewriting(program_.Guards.ItemActionBusy);
  const std::string file = program_.Entry.CurFile;
  Settle(program_.Commands.UndoDeleteItem(), file);
}

// ---- new entries ----

void Popup::AddButton() {
  const forms::FlagScope rewriting(program_.Guards.ItemActionBusy);
  program_.Ports.Toolbar->AddNewButton();
}

void Popup::Insert(const MenuRecord& record) {
  const forms::FlagScope rewriting(program_.Guards.ItemActionBusy);
  const std::string file = program_.Entry.CurFile;
  SetClipboard(program_.Entry, record);
  Settle(program_.Commands.PasteItem(), file);
  SetClipboard(program_.Entry);
}

void Popup::InsertMenuItem() { Insert(NewItemRecord()); }

void Popup::InsertSeparator() { Insert(NewSeparatorRecord()); }

// ---- folder items ----

void Popup::AfterFolderEdit(EditOutcome outcome, const EntryEdit& entry) {
  if (outcome == EditOutcome::Edited) program_.Ports.TellMenusEdited();
  // A file that no longer holds the item is not what the menu shows.
  if (outcome != EditOutcome::Failed) program_.Ports.Toolbar->RefreshMenu(entry.CurMenuTag);
  Settle(outcome, entry.CurFile);
}

void Popup::OpenFolder() {
  const forms::FlagScope rewriting(program_.Guards.ItemActionBusy);
  const EntryEdit entry = program_.Entry;
  AfterFolderEdit(OpenFolderItem(program_.Services.Files, program_.Services.Ansi, entry), entry);
}

void Popup::CloseFolder() {
  const forms::FlagScope rewriting(program_.Guards.ItemActionBusy);
  const EntryEdit entry = program_.Entry;
  AfterFolderEdit(CloseFolderItem(program_.Services.Files, program_.Services.Ansi, entry), entry);
}

// ---- properties ----

void Popup::ShowProperties() {
  const EntryEdit entry = program_.Entry;
  program_.Ports.Toolbar->ResetMenu();
  PropertiesPort* const properties = program_.Ports.Properties;
  if (properties == nullptr || program_.Ports.ToolbarWindow() == kNoWindow) return;
  // Events ran while the menu closed, and the window reads the current entry.
  SetCurrentEntry(program_.Entry, entry);
  if (IsSinglesTag(entry.CurMenuTag) && entry.CurRecord == 0) {
    // The bare row has no entry of its own: the window edits the strip.
    program_.Entry.CurMenuTag = "Toolbar";
    properties->ShowProperties("", "", "");
    return;
  }
  properties->ShowProperties(entry.CurTitle, entry.CurIcon, entry.CurCommand);
}

// The folder item that the generated entry came from takes its place.
void Popup::ShowFolderProperties() {
  EntryEdit entry = program_.Entry;
  program_.Ports.Toolbar->ResetMenu();
  PropertiesPort* const properties = program_.Ports.Properties;
  if (properties == nullptr || program_.Ports.ToolbarWindow() == kNoWindow) return;
  const int number = RealRecord(entry.CurRecord);
  const FileResult<MenuRecord> record =
      ReadRecord(program_.Services.Files, program_.Services.Ansi, entry.CurFile, number);
  if (!record) {
    ShowError(entry.CurFile, record.Error());
    return;
  }
  entry.CurRecord = number;
  // What the file holds now is what is edited.
  entry.CurStored.clear();
  entry.CurTitle = record->FTitle;
  entry.CurIcon = record->FIcon;
  entry.CurCommand = record->FName;
  SetCurrentEntry(program_.Entry, entry);
  properties->ShowProperties(entry.CurTitle, entry.CurIcon, entry.CurCommand);
}

}  // namespace corvelle
