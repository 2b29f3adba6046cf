// What the lines of the popup do.

#include <string_view>

#include "base/Text.h"
#include "core/EntryCommands.h"
#include "core/GuardFlags.h"
#include "core/MenuFile.h"
#include "core/MenuState.h"
#include "core/MessageBoxes.h"
#include "forms/Scopes.h"
#include "forms/WindowSystem.h"
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
  with_.Launch.Messages.Say(with_.Ports.WindowInUse(), NumberedFileError(with_.Files, path, error),
                            forms::msgbox::IconInformation | forms::msgbox::OnTop);
}

// A disk that refused has left the file as it was; the user learns that nothing was done.
void Popup::Settle(EditOutcome outcome, const std::string& file) {
  if (outcome == EditOutcome::Failed) ShowError(file, outcome.Reason());
}

void Popup::ShowIconLibrary() {
  if (with_.Ports.Library != nullptr) with_.Ports.Library->Show({});
}

void Popup::OpenEntry() {
  const EntryEdit entry = with_.Entry;
  if (IsButtonTag(entry.CurMenuTag)) {
    with_.Ports.Toolbar->OpenMenu(entry.CurMenuTag);
  } else {
    LaunchItem(with_.Launch, entry.CurCommand);
  }
}

void Popup::Refresh() {
  const std::string tag = with_.Entry.CurMenuTag;
  if (EqualNoCase(tag, "Q1")) {
    with_.Ports.Toolbar->ResetMenu();
  } else if (IsMenuTag(tag)) {
    if (with_.Ports.QMenu != nullptr) with_.Ports.QMenu->RefreshQMenu();
  } else {
    with_.Ports.Toolbar->RefreshToolbar();
  }
}

// ---- the clipboard ----

void Popup::CutEntry() {
  const forms::FlagScope rewriting(with_.Guards.ItemActionBusy);
  const std::string file = with_.Entry.CurFile;
  CopyEntry(with_.Entry);
  Settle(with_.Commands.DeleteItem(true), file);
}

void Popup::CopyCurrentEntry() {
  if (with_.Commands.MayBeCopied(with_.Ports.ToolbarWindow())) CopyEntry(with_.Entry);
}

void Popup::PasteEntry() {
  const forms::FlagScope rewriting(with_.Guards.ItemActionBusy);
  const std::string file = with_.Entry.CurFile;
  Settle(with_.Commands.PasteItem(), file);
}

// ---- deleting ----

// What was not deleted cannot be brought back: the undo store then keeps what it had.
void Popup::DeleteEntry() {
  const EntryEdit before = with_.Entry;
  const std::string& tag = before.CurMenuTag;
  if (!IsSinglesTag(tag) && !IsButtonTag(tag) && !IsMenuTag(tag)) return;
  const forms::FlagScope rewriting(with_.Guards.ItemActionBusy);
  RememberForUndo(with_.Entry);
  const EditOutcome outcome = with_.Commands.DeleteItem(false);
  if (outcome != EditOutcome::Edited) RestoreUndo(with_.Entry, before);
  Settle(outcome, before.CurFile);
}

void Popup::DeleteSeparator() {
  const forms::FlagScope rewriting(with_.Guards.ItemActionBusy);
  const EntryEdit before = with_.Entry;
  EditOutcome outcome = SelectSeparatorAbove(with_.Files, with_.Ansi, with_.Entry);
  if (outcome == EditOutcome::RecordMismatch) with_.Commands.SayRecordMismatch();
  if (outcome == EditOutcome::Edited) {
    outcome = with_.Commands.DeleteItem(false);
    if (outcome != EditOutcome::Edited) RestoreUndo(with_.Entry, before);
  }
  Settle(outcome, before.CurFile);
}

void Popup::UndoDelete() {
  const forms::FlagScope rewriting(with_.Guards.ItemActionBusy);
  const std::string file = with_.Entry.CurFile;
  Settle(with_.Commands.UndoDeleteItem(), file);
}

// ---- new entries ----

void Popup::AddButton() {
  const forms::FlagScope rewriting(with_.Guards.ItemActionBusy);
  with_.Ports.Toolbar->AddNewButton();
}

void Popup::Insert(const MenuRecord& record) {
  const forms::FlagScope rewriting(with_.Guards.ItemActionBusy);
  const std::string file = with_.Entry.CurFile;
  SetClipboard(with_.Entry, record);
  Settle(with_.Commands.PasteItem(), file);
  SetClipboard(with_.Entry);
}

void Popup::InsertMenuItem() { Insert(NewItemRecord()); }

void Popup::InsertSeparator() { Insert(NewSeparatorRecord()); }

// ---- folder items ----

void Popup::AfterFolderEdit(EditOutcome outcome, const EntryEdit& entry) {
  if (outcome == EditOutcome::Edited) with_.Ports.TellMenusEdited();
  // A file that no longer holds the item is not what the menu shows.
  if (outcome != EditOutcome::Failed) with_.Ports.Toolbar->RefreshMenu(entry.CurMenuTag);
  Settle(outcome, entry.CurFile);
}

void Popup::OpenFolder() {
  const forms::FlagScope rewriting(with_.Guards.ItemActionBusy);
  const EntryEdit entry = with_.Entry;
  AfterFolderEdit(OpenFolderItem(with_.Files, with_.Ansi, entry), entry);
}

void Popup::CloseFolder() {
  const forms::FlagScope rewriting(with_.Guards.ItemActionBusy);
  const EntryEdit entry = with_.Entry;
  AfterFolderEdit(CloseFolderItem(with_.Files, with_.Ansi, entry), entry);
}

// ---- properties ----

void Popup::ShowProperties() {
  const EntryEdit entry = with_.Entry;
  with_.Ports.Toolbar->ResetMenu();
  PropertiesPort* const properties = with_.Ports.Properties;
  if (properties == nullptr || with_.Ports.ToolbarWindow() == kNoWindow) return;
  // Events ran while the menu closed, and the window reads the current entry.
  SetCurrentEntry(with_.Entry, entry);
  if (IsSinglesTag(entry.CurMenuTag) && entry.CurRecord == 0) {
    // The bare row has no entry of its own: the window edits the strip.
    with_.Entry.CurMenuTag = "Toolbar";
    properties->ShowProperties("", "", "");
    return;
  }
  properties->ShowProperties(entry.CurTitle, entry.CurIcon, entry.CurCommand);
}

// The folder item that the generated entry came from takes its place.
void Popup::ShowFolderProperties() {
  EntryEdit entry = with_.Entry;
  with_.Ports.Toolbar->ResetMenu();
  PropertiesPort* const properties = with_.Ports.Properties;
  if (properties == nullptr || with_.Ports.ToolbarWindow() == kNoWindow) return;
  const int number = RealRecord(entry.CurRecord);
  const FileResult<MenuRecord> record = ReadRecord(with_.Files, with_.Ansi, entry.CurFile, number);
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
  SetCurrentEntry(with_.Entry, entry);
  properties->ShowProperties(entry.CurTitle, entry.CurIcon, entry.CurCommand);
}

}  // namespace corvelle
