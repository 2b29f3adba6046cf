// Items: what their labels carry, the selection, the disabled look.

#include <utility>

#include "base/Text.h"
#include "core/MenuFile.h"
#include "core/MenuRecord.h"
#include "core/Program.h"
#include "core/SpecialFolders.h"
#include "menus/MenuTag.h"
#include "menus/frmQMenu.h"

namespace corvelle {

std::string frmQMenu::GetExeName(int index) {
  if (!Lbl.Has(index)) return {};
  program_.Menu.ItemHasSeparator = TagFollowsSeparator(Lbl[index].Tag);
  return TagCommand(Lbl[index].Tag);
}

std::string frmQMenu::GetIconName(int index) const {
  return Lbl.Has(index) ? TagIcon(Lbl[index].Tag) : std::string();
}

std::string frmQMenu::NameOf(int index) const {
  if (!Lbl.Has(index)) return {};
  std::string name = TagName(Lbl[index].Tag);
  return name.empty() ? SingleAmpersands(Lbl[index].Caption()) : name;
}

int frmQMenu::GetRecordNum(int index) const {
  return Lbl.Has(index) ? TagRecordNumber(Lbl[index].Tag) : 0;
}

ItemBox frmQMenu::BoxOf(int index) const {
  return {.Top = Lbl[index].Top(), .Height = Lbl[index].Height()};
}

PageScene frmQMenu::Page() const {
  return {.Items = pageBoxes_, .FirstLabel = FirstLabel, .ItemGap = ItemGap, .TwipsY = TwipsY};
}

// ---- the selection ----

void frmQMenu::SetNormal(int index) {
  if (!Lbl.Has(index)) return;
  forms::Label& label = Lbl[index];
  label.SetForeColor(label.Enabled() ? forms::color::ButtonText : forms::color::GrayText);
}

void frmQMenu::SelectItem(int index) {
  if (!Lbl.Has(index)) return;
  SetNormal(program_.Menu.SelectedItem);
  program_.Menu.SelectedItem = index;
  CurItem = index;
  Lbl[index].SetForeColor(forms::color::HighlightText);
  // A disabled item takes the selection without a bar.
  if (Lbl[index].Enabled()) {
    DrawBox(index);
  } else {
    Shape1.SetVisible(false);
    HideBox();
  }
}

void frmQMenu::DropSelection() {
  SetNormal(program_.Menu.SelectedItem);
  program_.Menu.SelectedItem = 0;
  Shape1.SetVisible(false);
  HideBox();
}

void frmQMenu::DrawBox(int index) {
  HideBox();
  const SelectionBox box = DrawBoxRule(BoxOf(index), ItemGap, Shape1.Height(), TwipsX, TwipsY);
  Shape1.SetTop(box.BarTop);
  Shape1.ZOrder(forms::ZPlace::Back);
  Shape1.SetVisible(true);
  if (GetIconName(index).empty()) return;
  SetLine(mLineLeft, box.mLineLeft);
  SetLine(mLineRight, box.mLineRight);
  SetLine(mLineTop, box.mLineTop);
  SetLine(mLineDown, box.mLineDown);
}

void frmQMenu::SetLine(forms::Line& line, const TwipLine& at) {
  line.SetPoints(at.X1, at.Y1, at.X2, at.Y2);
  line.SetVisible(true);
}

void frmQMenu::HideBox() {
  for (forms::Line* line : {&mLineLeft, &mLineTop, &mLineRight, &mLineDown}) {
    line->SetVisible(false);
  }
}

// ---- the disabled look ----

bool frmQMenu::SetItemTag(int index, std::string tag) {
  if (index < 1 || index > static_cast<int>(menu_->LabelList.size())) return false;
  std::string& kept = menu_->LabelList[static_cast<std::size_t>(index) - 1].Tag;
  if (kept == tag) return false;
  kept = std::move(tag);
  if (Lbl.Has(index)) Lbl[index].Tag = kept;
  return true;
}

void frmQMenu::DisableLabel(int index) {
  // An item of another page gets its look when that page comes up.
  if (index < FirstLabel || index > LastLabel || !Lbl.Has(index)) return;
  Lbl[index].SetForeColor(forms::color::GrayText);
  Lbl[index].SetEnabled(false);
  const int number = LastLabel + ShadowCount + 1;
  while (LoadedLabels() < number) Lbl.Load();
  forms::Label& shadow = Lbl[number];
  shadow.SetCaption(Lbl[index].Caption());
  shadow.Tag.clear();
  shadow.Move(Lbl[index].Left() + TwipsX, Lbl[index].Top() + TwipsY, Lbl[index].Width(),
              Lbl[index].Height());
  shadow.SetForeColor(forms::color::Highlight3D);
  shadow.SetEnabled(false);
  shadow.ZOrder(forms::ZPlace::Back);
  shadow.SetVisible(true);
  ++ShadowCount;
}

void frmQMenu::EnableLabel(int index) {
  if (!Lbl.Has(index)) return;
  Lbl[index].SetEnabled(true);
  for (int i = LastLabel + 1; i <= LastLabel + ShadowCount && Lbl.Has(i); ++i) {
    Lbl[i].SetVisible(false);
    Lbl[i].ZOrder(forms::ZPlace::Front);
  }
  ShadowCount = 0;
}

// ---- the current item ----

void frmQMenu::FillCurrentItem(int index) { SetCurrentEntry(program_.Entry, EntryOf(index)); }

EntryEdit frmQMenu::EntryOf(int index) {
  EntryEdit entry;
  entry.CurIcon = GetIconName(index);
  entry.CurTitle = SingleAmpersands(Lbl[index].Caption());
  entry.CurCommand = GetExeName(index);
  entry.CurRecord = GetRecordNum(index);
  // Edits go to the menu file itself, by the record numbers that a generated one carries.
  entry.CurFile = menu_->Source;
  entry.CurMenuTag = MenuKey;
  entry.CurStored = StoredRecord(menu_->Stored, RealRecord(entry.CurRecord));
  // An entry that a folder of the shell was expanded to is told by its name in that folder.
  if (!TagName(Lbl[index].Tag).empty()) {
    entry.CurCommand =
        SpecialFolderEntryCommand(NameOf(index), entry.CurCommand, program_.Services.Ansi);
    entry.CurIcon = entry.CurCommand;
  }
  return entry;
}

void frmQMenu::RefreshQMenu() {
  SetNormal(CurItem);
  DropSelection();
  icons_.ResetPicIcons();
  InitMenuIcons(MenuFile);
  if (program_.Ports.Toolbar != nullptr) program_.Ports.Toolbar->RefreshMenu(MenuKey);
}

}  // namespace corvelle
