// Items: what their labels carry, the selection, the disabled look.

#include "core/Program.h"
#include "menus/window/frmQMenu.h"

namespace corvelle {

std::string frmQMenu::GetExeName(int index) {
  program_.Menu.ItemHasSeparator = items_[index].AfterSeparator;
  return items_[index].Command;
}

ItemBox frmQMenu::BoxOf(int index) const {
  return {.Top = Lbl[index].Top(), .Height = Lbl[index].Height()};
}

PageScene frmQMenu::Page() const {
  return {
      .Items = pageBoxes_, .FirstLabel = pages_.FirstLabel(), .ItemGap = ItemGap, .TwipsY = TwipsY};
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
  if (items_[index].Icon.empty()) return;
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

void frmQMenu::DisableLabel(int index) {
  // An item of another page gets its look when that page comes up.
  if (!pages_.IsUp(index) || !Lbl.Has(index)) return;
  Lbl[index].SetForeColor(forms::color::GrayText);
  Lbl[index].SetEnabled(false);
  const int number = pages_.LastLabel() + ShadowCount + 1;
  while (LoadedLabels() < number) Lbl.Load();
  forms::Label& shadow = Lbl[number];
  shadow.SetCaption(Lbl[index].Caption());
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
  for (int i = pages_.LastLabel() + 1; i <= pages_.LastLabel() + ShadowCount && Lbl.Has(i); ++i) {
    Lbl[i].SetVisible(false);
    Lbl[i].ZOrder(forms::ZPlace::Front);
  }
  ShadowCount = 0;
}

void frmQMenu::RefreshQMenu() {
  SetNormal(CurItem);
  DropSelection();
  icons_.ResetPicIcons();
  if (program_.Ports.Toolbar != nullptr) program_.Ports.Toolbar->RefreshMenu(MenuKey);
}

}  // namespace corvelle
