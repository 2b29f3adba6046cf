#include "toolbar/companion/Popup.h"

#include "core/EntryCommands.h"
#include "core/GuardFlags.h"
#include "core/MenuState.h"
#include "core/MessageBoxes.h"
#include "forms/Scopes.h"
#include "forms/WindowSystem.h"
#include "platform/Input.h"
#include "toolbar/companion/PopupRules.h"

namespace corvelle {

namespace {

PopupFacts FactsOf(const EntryEdit& entry, const MenuState& menu) {
  return {.Tag = entry.CurMenuTag,
          .Record = entry.CurRecord,
          .Command = entry.CurCommand,
          .FollowsSeparator = menu.ItemHasSeparator,
          .ClipboardEmpty =
              entry.ClipTitle.empty() && entry.ClipIcon.empty() && entry.ClipCommand.empty(),
          .UndoTag = entry.UndoMenuTag};
}

}  // namespace

Popup::Popup(const PopupParts& with) : mnuItem(ItemCount + 1), with_(with) { ClearButtonMenu(); }

void Popup::ClearButtonMenu() {
  mnuItem.assign(mnuItem.size(), {});
  mnuItem.front().Visible = true;
}

void Popup::DoButtonMenu() {
  ClearButtonMenu();
  const PopupFacts facts = FactsOf(with_.Entry, with_.Menu);
  std::size_t line = 1;
  for (const PopupRow& row : PopupRows()) {
    mnuItem[line++] = {.Caption = std::string(row.Caption),
                       .Tag = std::string(row.Tag),
                       .Visible = true,
                       .Enabled = row.Enabled(facts)};
  }
  mnuItem.front().Visible = false;
}

void Popup::ShowToolbarPopup(EntryEdit entry) {
  // A right click that arrives meanwhile leaves the entry that the popup is for.
  if (busy_ || with_.Ports.ToolbarWindow() == kNoWindow) return;
  const forms::FlagScope busy(busy_);
  entry.CurFile = SourceMenuFile(entry.CurFile);
  SetCurrentEntry(with_.Entry, entry);
  DoButtonMenu();
  with_.Ports.SetHint("");
  const int chosen = LetChoose();
  // Anything can have happened meanwhile, the end of the program too.
  if (chosen > 0 && with_.Ports.ToolbarWindow() != kNoWindow) {
    SetCurrentEntry(with_.Entry, entry);
    mnuItem_Click(chosen);
  }
  ClearButtonMenu();
}

// The popup belongs to the menu window when that is up, so that its selection stays to be seen.
int Popup::LetChoose() {
  std::vector<forms::PopupItem> lines;
  lines.reserve(mnuItem.size());
  for (const Element& element : mnuItem) {
    lines.push_back({.Caption = element.Caption,
                     .Enabled = element.Enabled,
                     .Checked = element.Checked,
                     .Visible = element.Visible});
  }
  const forms::CountScope asking(with_.Guards.OpenQuestions);
  return with_.Launch.Windows.ShowPopup(with_.Ports.WindowInUse(), lines,
                                        with_.Pointer.PointerPosition(), forms::popup::RightButton);
}

}  // namespace corvelle
