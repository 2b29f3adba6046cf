#include "toolbar/companion/Popup.h"

#include "core/Program.h"
#include "forms/Scopes.h"
#include "platform/Input.h"
#include "toolbar/companion/PopupRules.h"

namespace corvelle {

namespace {

PopupFacts FactsOf(const Program& program) {
  const EntryEdit& entry = program.Entry;
  return {.Tag = entry.CurMenuTag,
          .Record = entry.CurRecord,
          .Command = entry.CurCommand,
          .FollowsSeparator = program.Menu.ItemHasSeparator,
          .ClipboardEmpty =
              entry.ClipTitle.empty() && entry.ClipIcon.empty() && entry.ClipCommand.empty(),
          .UndoTag = entry.UndoMenuTag};
}

}  // namespace

Popup::Popup(Program& program) : mnuItem(ItemCount + 1), program_(program) { ClearButtonMenu(); }

void Popup::ClearButtonMenu() {
  mnuItem.assign(mnuItem.size(), {});
  mnuItem.front().Visible = true;
}

void Popup::DoButtonMenu() {
  ClearButtonMenu();
  const PopupFacts facts = FactsOf(program_);
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
  if (busy_ || program_.Ports.ToolbarWindow() == kNoWindow) return;
  const forms::FlagScope busy(busy_);
  entry.CurFile = SourceMenuFile(entry.CurFile);
  SetCurrentEntry(program_.Entry, entry);
  DoButtonMenu();
  program_.Ports.SetHint("");
  const int chosen = LetChoose();
  // Anything can have happened meanwhile, the end of the program too.
  if (chosen > 0 && program_.Ports.ToolbarWindow() != kNoWindow) {
    SetCurrentEntry(program_.Entry, entry);
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
  const forms::CountScope asking(program_.Guards.OpenQuestions);
  return program_.Windows.ShowPopup(program_.Ports.WindowInUse(), lines,
                                    program_.Services.Pointer.PointerPosition(),
                                    forms::popup::RightButton);
}

}  // namespace corvelle
