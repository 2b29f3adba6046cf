// The tab of the entry: the boxes, and what they change in the entry's file.

#include <algorithm>

#include "base/Text.h"
#include "core/MenuFile.h"
#include "core/MessageBoxes.h"
#include "core/ProgramPaths.h"
#include "core/RecordEdits.h"
#include "desk/SlowQuestions.h"
#include "launch/CommandForm.h"
#include "platform/Input.h"
#include "properties/ItemRules.h"
#include "properties/frmProperties.h"
#include "shell/FileErrorText.h"

namespace corvelle {
void frmProperties::SetFileItem(const MenuRecord& shown) {
  item_ = MakeFileItem(with_.Entry, shown, with_.Ansi);
  EnableItem();
  txtTitle.SetText(item_.Starting.FTitle);
  txtIcon.SetText(item_.Starting.FIcon);
  txtCommand.SetText(item_.Starting.FName);
  ShowTab("item");
  AskTarget();
  DrawIcon();
}

void frmProperties::EnableItem() {
  const ItemControls controls = ControlsFor(item_.Key);
  txtTitle.SetEnabled(controls.Title);
  txtIcon.SetEnabled(controls.Icon);
  txtCommand.SetEnabled(controls.Command);
  for (forms::TextBox* box : {&txtTitle, &txtIcon, &txtCommand}) {
    box->SetBackColor(box->Enabled() ? forms::color::WindowGround : forms::color::ButtonFace);
  }
  cmdSelectFile.SetEnabled(controls.CommandButtons);
  cmdSelectFolder.SetEnabled(controls.CommandButtons);
  cmdLibrary.SetEnabled(controls.IconButtons);
  cmdAllFiles.SetEnabled(controls.IconButtons);
  cmdFile.SetEnabled(controls.AddButtons);
  cmdFolder.SetEnabled(controls.AddButtons);
}

MenuRecord frmProperties::Boxes() const {
  return {Trim(txtTitle.Text()), Trim(txtIcon.Text()), Trim(txtCommand.Text())};
}

bool frmProperties::BoxesChanged() const {
  const MenuRecord& now = item_.Current;
  return Boxes() != MenuRecord{Trim(now.FTitle), Trim(now.FIcon), Trim(now.FName)};
}

void frmProperties::TakeIcon(std::string_view icon) {
  if (!IsLoaded()) return;
  txtIcon.SetText(std::string(icon));
  DrawIcon();
}

bool frmProperties::ApplyItem() {
  if (Trim(txtTitle.Text()).empty()) {
    if (!BoxesChanged()) return true;
    // An entry without a title cannot be chosen; what was typed stays to be corrected.
    with_.Pointer.Beep();
    return false;
  }
  DrawIcon();
  return IsLoaded() && UpdateFileItem();
}

bool frmProperties::UpdateFileItem() {
  const ItemOutcome outcome =
      corvelle::UpdateFileItem(with_.Files, with_.Ansi, with_.Paths.MenusPath, item_, Boxes());
  if (outcome.Result == ItemResult::Written) with_.Ports.TellMenusEdited();
  ShowOutcome(outcome);
  if (outcome.Result != ItemResult::Written && outcome.Result != ItemResult::Same) return false;
  if (!IsLoaded()) return true;
  if (outcome.Result == ItemResult::Written) {
    // As far as the record holds them.
    txtTitle.SetText(item_.Current.FTitle);
    txtIcon.SetText(item_.Current.FIcon);
    txtCommand.SetText(item_.Current.FName);
  }
  ShowEdited();
  return true;
}

// Quiet: what another hand has changed since is not this window's to take back.
void frmProperties::CancelFileItem() {
  if (item_.CurrentBytes == item_.StartingBytes) return;
  ShowHidingStrip();
  const ItemOutcome outcome =
      corvelle::CancelFileItem(with_.Files, with_.Ansi, with_.Paths.MenusPath, item_);
  if (outcome.Result == ItemResult::Written) with_.Ports.TellMenusEdited();
  if (outcome.Result == ItemResult::Failed) ShowOutcome(outcome);
  if (outcome.Result == ItemResult::Written && IsLoaded()) ShowEdited();
  if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->ShowToolbar();
}

void frmProperties::ShowEdited() {
  const std::size_t place = order_.FindPath(item_.File);
  if (item_.Record == 1 && place != ButtonOrder::kNone) {
    order_.SetRecord(place, item_.CurrentBytes, with_.Ansi);
    FillTree();
  }
  ToolbarPort* const strip = with_.Ports.Toolbar;
  if (strip == nullptr) return;
  strip->ShowToolbar();
  switch (PlaceOf(item_.Key)) {
    case ItemPlace::ToolbarButtons:
      strip->RefreshToolbarButtons();
      break;
    case ItemPlace::SingleButtons:
      strip->RefreshSingleButtons();
      break;
    case ItemPlace::Menu:
      strip->RefreshMenu(item_.Key);
      break;
  }
}

void frmProperties::ShowOutcome(const ItemOutcome& outcome) {
  if (outcome.Result == ItemResult::Failed) {
    ShowFileError(item_.File, outcome.Reason);
    return;
  }
  const std::string_view text = RefusalText(outcome.Result);
  if (!text.empty()) with_.Messages.Say(hWnd(), text, forms::msgbox::IconInformation);
}

void frmProperties::ShowFileError(std::string_view path, FileError error) {
  with_.Messages.Say(hWnd(), NumberedFileError(with_.Files, path, error),
                     forms::msgbox::IconInformation);
}

// ---- the mark of a command that leads nowhere ----

void frmProperties::AskTargetSoon() {
  // What is being typed is not marked.
  lblMissing.SetVisible(false);
  tmrTarget_.SetEnabled(false);
  tmrTarget_.SetEnabled(true);
}

void frmProperties::AskTarget() {
  tmrTarget_.SetEnabled(false);
  lblMissing.SetVisible(false);
  with_.Slow.Drop(targetAsked_);
  targetAsked_ = with_.Slow.NewGeneration();
  targetsLeft_ = 0;
  if (!txtCommand.Enabled()) return;
  for (std::string& path : TargetsOf(txtCommand.Text())) {
    Lookup question{.Path = std::move(path), .Generation = targetAsked_};
    question.Lane = DriveOf(question.Path);
    ++targetsLeft_;
    with_.Slow.Ask(std::move(question), [this](const LookupAnswer& end) { HearAnswer(end); });
  }
}

void frmProperties::HearAnswer(const LookupAnswer& answer) {
  const bool* const there = std::get_if<bool>(&answer.Value);
  const bool missing = answer.End == LookupEnd::Answered && there != nullptr && !*there;
  // One that is there is enough, and so is one that cannot be told.
  if (!missing) return with_.Slow.Drop(targetAsked_);
  if (--targetsLeft_ == 0) lblMissing.SetVisible(true);
}

}  // namespace corvelle
