#include <utility>

#include "core/Program.h"
#include "customize/Saving.h"
#include "customize/TreeMerge.h"
#include "customize/frmCust.h"
#include "forms/Scopes.h"
#include "platform/FileSystem.h"
#include "shell/FileErrorText.h"

namespace corvelle {

namespace {

constexpr unsigned kSaveQuestion = 35;      // Yes, No and Cancel, question
constexpr unsigned kConflictQuestion = 36;  // Yes and No, question
constexpr int kCancel = 2;
constexpr int kNo = 7;
constexpr std::string_view kConflict =
    "The menus have been changed outside of this window since it was opened.\r\n"
    "Do you want to save your version over them? The other version is kept, and offered when this "
    "window is opened again.";

}  // namespace

void frmCust::cmdSave_Click() {
  if (!IsLoaded() || !cmdSave.Enabled()) return;
  // Disabled, it hands the focus to Exit, which the next Enter would press.
  const bool hadFocus = cmdSave.HasFocus();
  cmdSave.SetEnabled(false);
  program_.DoEvents();
  if (!IsLoaded()) return;
  SaveTree();
  if (!IsLoaded()) return;
  cmdSave.SetEnabled(true);
  if (hadFocus) cmdSave.SetFocus();
}

bool frmCust::SaveTree() {
  TreeView1.EndEdit(true);
  Editor.SavingNow = true;
  TakeBoxes();
  SaveResult result;
  {
    const forms::HourglassScope hourglass(program_.Windows);
    Editor.cmdOK();
    if (program_.Strip.AutoHide && program_.Ports.Docking != nullptr) {
      program_.Ports.Docking->RevealToolbar();
      if (!IsLoaded()) return false;
    }
    Editor.TreeChanged = false;
    result = SaveMenus(program_.Services.Files, program_.Services.Ansi, program_.Paths.MenusPath,
                       Editor.Tree.ToMenuSet(), files_.Stamp);
  }
  if (result.End == SaveEnd::Conflict && Merge()) {
    result = SaveMenus(program_.Services.Files, program_.Services.Ansi, program_.Paths.MenusPath,
                       Editor.Tree.ToMenuSet(), files_.Stamp);
  }
  if (result.End == SaveEnd::Conflict) return SettleConflict(result.Now.Stamp);
  if (result.End == SaveEnd::Recovered) {
    Recover(result.Message);
    return false;
  }
  files_ = std::move(result.Now);
  shownAt_ = keptAt_ = Editor.Tree.Revision();
  draft_.reset();
  RefreshStrip();
  if (!IsLoaded()) return true;
  PlaceControls();
  ShowState();
  return true;
}

bool frmCust::SettleConflict(const MenusStamp& theirs) {
  const bool mine = Say(kConflict, kConflictQuestion) == forms::msgbox::AnswerYes;
  if (!IsLoaded()) return false;
  const MenusResult<MenuFiles> read =
      ReadMenuFiles(program_.Services.Files, program_.Services.Ansi, program_.Paths.MenusPath);
  if (!read || (*read).Stamp != theirs) {
    // Changed once more meanwhile: the next save asks again.
    Editor.TreeChanged = true;
    return false;
  }
  const MenuSet tree = Editor.Tree.ToMenuSet();
  if (!mine) {
    static_cast<void>(WriteDraft(program_.Services.Files, program_.Paths.MenusPath, theirs, tree));
    ReadAgain();
    return true;
  }
  SaveResult result = SaveMenus(program_.Services.Files, program_.Services.Ansi,
                                program_.Paths.MenusPath, tree, theirs, &(*read).Set);
  if (result.End != SaveEnd::Saved) {
    if (result.End == SaveEnd::Recovered) Recover(result.Message);
    return false;
  }
  files_ = std::move(result.Now);
  shownAt_ = keptAt_ = Editor.Tree.Revision();
  RefreshStrip();
  return true;
}

void frmCust::Recover(const std::string& message) {
  Say(message, forms::msgbox::IconInformation);
  if (!IsLoaded()) return;
  Editor.TreeChanged = false;
  // What was to be saved is in the draft.
  keptAt_ = Editor.Tree.Revision();
  if (program_.Ports.Toolbar != nullptr) program_.Ports.Toolbar->InitNewButtons();
  Unload();
}

void frmCust::RefreshStrip() {
  ToolbarPort* const strip = program_.Ports.Toolbar;
  if (strip == nullptr || !strip->WindowLoaded()) return;
  const float gap = strip->FreeWidth();
  strip->ResetCollections();
  strip->InitNewButtons();
  if (strip->WindowLoaded() && !program_.Strip.AppBarDocked && !program_.Strip.AutoHide) {
    strip->ResizeAfterEdit(gap);
  }
  // The rebuilt strip came to the foreground.
  if (IsLoaded()) SetForeground();
}

bool frmCust::AskToSave(bool canStay) {
  if (!Editor.TreeChanged) return true;
  const int answer = Say("Do you want to save your changes before you exit?", kSaveQuestion);
  if (!IsLoaded()) return true;
  if (answer == kCancel) return !canStay;
  if (answer == kNo) {
    if (keeper_ != nullptr) static_cast<void>(keeper_->Forget());
    shownAt_ = Editor.Tree.Revision();
    return true;
  }
  return SaveTree() || !canStay || !IsLoaded();
}

void frmCust::Form_QueryClose() {
  if (!IsLoaded()) return;
  if (program_.Ports.Library != nullptr && program_.Ports.Library->WindowLoaded()) return;
  TreeView1.EndEdit(true);
  if (!AskToSave(true) || !IsLoaded()) return;
  KeepDraft();
  Unload();
}

void frmCust::UnloadWindow() {
  if (!IsLoaded()) return;
  AskToSave(false);
  if (!IsLoaded()) return;
  KeepDraft();
  Unload();
}

void frmCust::Form_SessionEnd() {
  if (!IsLoaded()) return;
  KeepDraft();
  Unload();
}

bool frmCust::Unsaved() const { return Editor.Tree.Revision() != shownAt_; }

void frmCust::KeepDraft() {
  if (keeper_ == nullptr || !Unsaved() || Editor.Tree.Revision() == keptAt_) return;
  const MenuSet tree = Editor.Tree.ToMenuSet();
  if (tree == files_.Set) {
    // Taken back to what the files hold.
    if (!draft_) static_cast<void>(keeper_->Forget());
  } else if (!keeper_->Keep(files_.Stamp, tree)) {
    return;  // the next turn tries again
  }
  keptAt_ = Editor.Tree.Revision();
}

void frmCust::OfferTheDraft() {
  draft_ = OfferDraft(program_.Services.Files, program_.Paths.MenusPath, files_);
  lblMenuTree.SetCaption(draft_ ? "Menu Tree (unsaved changes are kept)" : "Menu Tree");
}

void frmCust::ForgetTheDraft() {
  static_cast<void>(keeper_->Forget());
  draft_.reset();
  lblMenuTree.SetCaption("Menu Tree");
  PlaceControls();
}

void frmCust::ShowDraft() {
  if (!draft_) return;
  const MenuSet set = *std::exchange(draft_, std::nullopt);
  lblMenuTree.SetCaption("Menu Tree");
  {
    const forms::TreeView::FreezeScope freeze(TreeView1);
    Editor.InitMenuTree(set, program_.Paths.ShippedFile("corvelle.exe"), program_.Paths.MenusPath);
    if (!Editor.Tree.Children(kMenusRoot).empty()) {
      ShowNode(Editor.Tree.Children(kMenusRoot).front());
    }
  }
  Editor.TreeChanged = true;
  keptAt_ = Editor.Tree.Revision();
  PlaceControls();
  ShowState();
}

void frmCust::ReadAgain() {
  if (!InitMenuTree()) return;
  const forms::TreeView::FreezeScope freeze(TreeView1);
  const bool saving = Editor.SavingNow;
  Editor.InitMenuTree(files_.Set, program_.Paths.ShippedFile("corvelle.exe"),
                      program_.Paths.MenusPath);
  Editor.SavingNow = saving;
  if (!Editor.Tree.Children(kMenusRoot).empty()) {
    ShowNode(Editor.Tree.Children(kMenusRoot).front());
  }
  shownAt_ = keptAt_ = Editor.Tree.Revision();
  OfferTheDraft();
  PlaceControls();
  ShowState();
}

bool frmCust::Merge() {
  MenusResult<MenuFiles> read =
      ReadMenuFiles(program_.Services.Files, program_.Services.Ansi, program_.Paths.MenusPath);
  if (!read) return false;
  if ((*read).Stamp == files_.Stamp) return true;
  const bool unsaved = Unsaved();
  const MergedSet merged = MergeTrees(files_.Set, Editor.Tree.ToMenuSet(), (*read).Set);
  if (!merged.Conflicts.empty()) return false;
  Editor.TakeMerged(merged);
  files_ = *std::move(read);
  if (!unsaved) shownAt_ = keptAt_ = Editor.Tree.Revision();
  return true;
}

void frmCust::Form_Activate() { TakeEditsMadeElsewhere(); }

void frmCust::MenusEdited() {
  if (IsLoaded() && keeper_ != nullptr) tmrEdits.SetEnabled(true);
}

void frmCust::TakeEditsMadeElsewhere() {
  if (!IsLoaded() || keeper_ == nullptr) return;
  // While the user's hand is in the tree the timer comes again.
  if (Browsing || Dragging || TreeView1.Edited() != forms::kNoNode) return;
  tmrEdits.SetEnabled(false);
  // Where an edit cannot come in, the next save asks.
  const long before = Editor.Tree.Revision();
  static_cast<void>(Merge());
  if (Editor.Tree.Revision() != before) ShowState();
}

}  // namespace corvelle
