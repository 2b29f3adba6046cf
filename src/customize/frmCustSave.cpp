#include <utility>

#include "core/ProgramPaths.h"
#include "core/RecordEdits.h"
#include "core/StripPlacement.h"
#include "customize/Saving.h"
#include "customize/TreeMerge.h"
#include "customize/frmCust.h"
#include "forms/EventPump.h"
#include "forms/Scopes.h"
#include "platform/FileSystem.h"
#include "shell/FileErrorText.h"

namespace corvelle {

namespace {

constexpr unsigned kSaveQuestion = 35;      // Yes, No and Cancel, question
constexpr unsigned kConflictQuestion = 36;  // Yes and No, question
constexpr int kCancel = 2;
constexpr int kNo = 7;
constexpr long kNeverKept = -1;
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
  with_.Events.DoEvents();
  if (!IsLoaded()) return;
  SaveTree();
  if (!IsLoaded()) return;
  cmdSave.SetEnabled(true);
  if (hadFocus) cmdSave.SetFocus();
}

bool frmCust::SaveTree() {
  TreeView1.EndEdit(true);
  Editor.SavingNow = true;
  SaveResult result;
  DraftsAround around;
  {
    const forms::HourglassScope hourglass(Windows());
    Editor.cmdOK();
    if (with_.Strip.AutoHide && with_.Ports.Docking != nullptr) {
      with_.Ports.Docking->RevealToolbar();
      if (!IsLoaded()) return false;
    }
    Editor.TreeChanged = false;
    result = WriteTree(around);
  }
  if (result.End == SaveEnd::Conflict && Merge()) result = WriteTree(around);
  if (result.End == SaveEnd::Conflict) return SettleConflict(result.Now.Stamp);
  if (result.End == SaveEnd::Recovered) {
    Recover(result.Message);
    return false;
  }
  TakeSaved(std::move(result), std::move(around));
  return true;
}

SaveResult frmCust::WriteTree(DraftsAround& around) {
  const MenuSet tree = Editor.Tree.ToMenuSet();
  around = keeper_->AroundSave(tree);
  return SaveMenus(with_.Files, with_.Ansi, with_.Paths.MenusPath, tree, files_.Stamp, around);
}

void frmCust::TakeSaved(SaveResult result, DraftsAround around) {
  files_ = std::move(result.Now);
  keeper_->Saved(std::move(around), files_);
  theirs_.reset();
  shownAt_ = keptAt_ = Editor.Tree.Revision();
  ForgetMenuUndo(with_.Entry);
  RefreshStrip();
  if (!IsLoaded()) return;
  ShowOffer();
  ShowState();
}

bool frmCust::SettleConflict(const MenusStamp& theirs) {
  const bool mine = Say(kConflict, kConflictQuestion) == forms::msgbox::AnswerYes;
  if (!IsLoaded()) return false;
  MenusResult<MenuFiles> read = ReadMenuFiles(with_.Files, with_.Ansi, with_.Paths.MenusPath);
  if (!read || (*read).Stamp != theirs) {
    // Changed once more meanwhile: the next save asks again.
    Editor.TreeChanged = true;
    return false;
  }
  keeper_->FilesChanged(*read);
  files_ = *std::move(read);
  theirs_.reset();
  keptAt_ = kNeverKept;
  if (!mine) {
    static_cast<void>(keeper_->Offer(Editor.Tree.ToMenuSet(), files_.Set));
    ShowFiles();
    return true;
  }
  const MenuSet other = files_.Set;
  const MenuSet tree = Editor.Tree.ToMenuSet();
  DraftsAround around = keeper_->AroundSave(tree);
  around.After.insert(around.After.begin(), other);
  SaveResult result =
      SaveMenus(with_.Files, with_.Ansi, with_.Paths.MenusPath, tree, files_.Stamp, around);
  if (result.End == SaveEnd::Saved) {
    TakeSaved(std::move(result), std::move(around));
    return true;
  }
  if (result.End == SaveEnd::Recovered) Recover(result.Message);
  return false;
}

void frmCust::Recover(const std::string& message) {
  Say(message, forms::msgbox::IconInformation);
  if (!IsLoaded()) return;
  Editor.TreeChanged = false;
  // What was to be saved is in the draft.
  keptAt_ = Editor.Tree.Revision();
  if (with_.Ports.Toolbar != nullptr) with_.Ports.Toolbar->InitNewButtons();
  Unload();
}

void frmCust::RefreshStrip() {
  ToolbarPort* const strip = with_.Ports.Toolbar;
  if (strip == nullptr || !strip->WindowLoaded()) return;
  const float gap = strip->FreeWidth();
  strip->ResetCollections();
  strip->InitNewButtons();
  if (strip->WindowLoaded() && !with_.Strip.AppBarDocked && !with_.Strip.AutoHide) {
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

bool frmCust::SettleUnsaved(bool canStay) {
  if (!AskToSave(canStay)) return false;
  if (!IsLoaded() || KeepDraft()) return true;
  // What would have gone into a draft in silence is asked about instead.
  Editor.TreeChanged = true;
  return AskToSave(canStay);
}

void frmCust::Form_QueryClose() {
  if (with_.Ports.Library != nullptr && with_.Ports.Library->WindowLoaded()) return;
  static_cast<void>(CloseWindow());
}

bool frmCust::CloseWindow() {
  if (!IsLoaded()) return true;
  TreeView1.EndEdit(true);
  if (!SettleUnsaved(true)) return false;
  if (IsLoaded()) Unload();
  return true;
}

void frmCust::UnloadWindow() {
  if (!IsLoaded()) return;
  TreeView1.EndEdit(true);
  SettleUnsaved(false);
  if (!IsLoaded()) return;
  Unload();
}

void frmCust::EndSession() {
  if (!IsLoaded()) return;
  TreeView1.EndEdit(true);
  KeepDraft();
  Unload();
}

bool frmCust::Unsaved() const { return Editor.Tree.Revision() != shownAt_; }

bool frmCust::KeepDraft() {
  if (keeper_ == nullptr) return true;
  if (!Unsaved() || Editor.Tree.Revision() == keptAt_) {
    static_cast<void>(keeper_->Flush());
    return true;
  }
  MenuSet tree = Editor.Tree.ToMenuSet();
  // Nothing is unsaved once all is taken back to what the files hold.
  const bool same = tree == files_.Set;
  if (theirs_ && !same) tree = MergeTrees(files_.Set, tree, theirs_->Set).Set;
  if (!(same ? keeper_->Forget() : keeper_->Keep(tree))) return false;
  keptAt_ = Editor.Tree.Revision();
  return true;
}

void frmCust::ShowOffer() {
  const std::size_t count = Offers();
  // Beside the two buttons there is room for a word.
  std::string caption = "Menu Tree";
  if (count == 1) caption = "Unsaved:";
  if (count > 1) caption = "Unsaved (" + std::to_string(count) + "):";
  lblMenuTree.SetCaption(caption);
  MakeMenuBar();
  PlaceControls();
}

void frmCust::ForgetTheDraft() {
  static_cast<void>(keeper_->ForgetOffered());
  ShowOffer();
}

void frmCust::ShowDraft() {
  if (Offers() == 0) return;
  TreeView1.EndEdit(true);
  std::optional<MenuSet> unsaved;
  if (Unsaved()) unsaved = Editor.Tree.ToMenuSet();
  if (unsaved == files_.Set) unsaved.reset();
  ShowSet(keeper_->Show(std::move(unsaved)));
  Editor.TreeChanged = true;
  keptAt_ = Editor.Tree.Revision();
  ShowOffer();
}

void frmCust::ShowSet(const MenuSet& set) {
  {
    const forms::TreeView::FreezeScope freeze(TreeView1);
    const bool saving = Editor.SavingNow;
    Editor.InitMenuTree(set, with_.Paths.ShippedFile("corvelle.exe"), with_.Paths.MenusPath);
    Editor.SavingNow = saving;
    if (!Editor.Tree.Children(kMenusRoot).empty()) {
      ShowNode(Editor.Tree.Children(kMenusRoot).front());
    }
  }
  ShowState();
}

void frmCust::ShowFiles() {
  theirs_.reset();
  ShowSet(files_.Set);
  shownAt_ = keptAt_ = Editor.Tree.Revision();
  ShowOffer();
}

bool frmCust::Merge() {
  MenusResult<MenuFiles> read = ReadMenuFiles(with_.Files, with_.Ansi, with_.Paths.MenusPath);
  if (!read) return false;
  if ((*read).Stamp == files_.Stamp) {
    if (theirs_) {
      // They are again what they were.
      theirs_.reset();
      keeper_->FilesChanged(files_);
      keptAt_ = kNeverKept;
      KeepDraft();
    }
    return true;
  }
  const bool unsaved = Unsaved();
  const MergedSet merged = MergeTrees(files_.Set, Editor.Tree.ToMenuSet(), (*read).Set);
  // What is kept belongs to the files of before.
  if (keeper_->Stamp() != (*read).Stamp) keptAt_ = kNeverKept;
  keeper_->FilesChanged(*read);
  if (!merged.Conflicts.empty()) {
    theirs_ = *std::move(read);
    KeepDraft();
    return false;
  }
  Editor.TakeMerged(merged);
  files_ = *std::move(read);
  theirs_.reset();
  if (!unsaved) shownAt_ = Editor.Tree.Revision();
  KeepDraft();
  return true;
}

void frmCust::Form_Activate() {
  TakeEditsMadeElsewhere();
  // The user may have been away to mend what is missing.
  tree_.Targets().AskAgain();
}

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
