// The window's picture: pages, icons, rules, arrow glyphs.

#include <algorithm>
#include <memory>
#include <utility>

#include "base/Text.h"
#include "core/Program.h"
#include "forms/Scale.h"
#include "forms/Scopes.h"
#include "icons/Glyphs.h"
#include "menus/window/frmQMenu.h"

namespace corvelle {

namespace {

/// Pictures of pages that a menu keeps besides its first page and the one on show.
constexpr int kKeptPictures = 32;
/// How often a page is drawn whose colours change each time meanwhile.
constexpr int kMostRedraws = 3;
/// A cell that no icon has.
constexpr int kForgottenCell = -2;

}  // namespace

void frmQMenu::FillPage() {
  while (LoadedLabels() < pages_.LastLabel()) Lbl.Load();
  pageBoxes_.clear();
  pageIcons_.clear();
  for (int i = pages_.FirstLabel(); i <= pages_.LastLabel(); ++i) {
    const MenuItem& item = items_[i];
    forms::Label& label = Lbl[i];
    label.SetLeft(Lbl[0].Left());
    label.SetTop(item.Top);
    label.SetCaption(DoubleAmpersands(item.Title));
    label.SetEnabled(true);
    label.SetForeColor(forms::color::ButtonText);
    pageBoxes_.push_back(BoxOf(i));
  }
}

void frmQMenu::ShowPage() {
  for (int i = pages_.FirstLabel(); i <= pages_.LastLabel(); ++i) Lbl[i].SetVisible(true);
}

void frmQMenu::ShowSlide() {
  pages_.Save();
  HideBox();
  const int old = pages_.PrevPage();
  for (int i = pages_.FirstOf(old); i <= pages_.LastOf(old); ++i) Lbl[i].SetVisible(false);
  UpDownArrows();
  const clsMenu& page = pages_.Current();
  if (page.Init == 0) {
    DrawPage(true);
  } else {
    PagePicture = page.MenuPicture;
    FillPage();
    ShowPage();
    InvalidateAll();
  }
  LimitPictures(*menu_, pages_.CurMenu(), kKeptPictures);
  if (EqualNoCase(MenuKey, kMainMenuKey)) CheckLabels();
}

// The shell may let messages in while it is asked for icons: meanwhile nobody puts another menu or
// page into the window, and colours that change have the page drawn once more.
void frmQMenu::DrawPage(bool watched) {
  if (std::exchange(drawingPage_, true)) return;
  const forms::FlagScope building(program_.Guards.MenuBuilding);
  for (int tries = 0; tries < kMostRedraws; ++tries) {
    drawAgain_ = false;
    DrawPageOnce(watched && tries == 0);
    if (!drawAgain_ || !IsLoaded()) break;
  }
  drawingPage_ = false;
}

void frmQMenu::DrawPageOnce(bool watched) {
  // What is painted meanwhile shows what is drawn here, and nothing of another page.
  MenuReady = false;
  SetAutoRedraw(true);
  Cls();
  FillPage();
  DrawRules();
  if (watched) {
    PrintCaptions();
    BringUp();
    Refresh();
  }
  for (int i = pages_.FirstLabel(); i <= pages_.LastLabel(); ++i) {
    DrawItemIcon(i);
    if (!IsLoaded()) return;
    // Stand-ins come up with the page.
    if (watched && pageIcons_.back().Final) Refresh();
  }
  if (watched) WipeCaptions();
  ShowPage();
  KeepPage();
  Cls();
  SetAutoRedraw(false);
  PagePicture = pages_.Current().MenuPicture;
  MenuReady = true;
  InvalidateAll();
}

void frmQMenu::PrintCaptions() {
  for (int i = pages_.FirstLabel(); i <= pages_.LastLabel(); ++i) {
    Print(Lbl[i].Left(), Lbl[i].Top(), items_[i].Title, forms::color::ButtonText);
  }
}

void frmQMenu::WipeCaptions() {
  for (int i = pages_.FirstLabel(); i <= pages_.LastLabel(); ++i) {
    FillBox(Lbl[i].Left(), Lbl[i].Top(), Width(), Lbl[i].Bottom(), forms::color::ButtonFace);
  }
}

void frmQMenu::KeepPage() {
  if (pages_.Slides() > 0) {
    FillBox(0, LblButton[0].Top(), Screen().Width, Height(), forms::color::ButtonFace);
  }
  clsMenu& page = pages_.Current();
  page.MenuPicture = Image();
  page.Init = IconsAreFinal() ? 1 : 0;
}

void frmQMenu::DrawItemIcon(int index) {
  const PixelRect cell = IconCell(index);
  // No canvas is lent while an answer is waited for.
  const IconPicture icon = icons_.Find(items_[index].Icon);
  DrawPixels(cell, [&](Canvas& canvas) { icons_.Draw(canvas, {cell.left, cell.top}, icon); });
  pageIcons_.push_back(icon);
}

PixelRect frmQMenu::IconCell(int index) const {
  const PixelPoint at =
      forms::ToPixels(IconLeft(TwipsX), IconTop(BoxOf(index), SmallIconH), Scale());
  return RectAt(at, {MenuIcons::kCell, MenuIcons::kCell});
}

// A page with a stand-in for an icon is drawn again when it is shown again.
bool frmQMenu::IconsAreFinal() const {
  return std::all_of(pageIcons_.begin(), pageIcons_.end(),
                     [](const IconPicture& icon) { return icon.Final; });
}

void frmQMenu::DrawRules() {
  const float right = Screen().Width;
  for (std::size_t i = 1; i < pageBoxes_.size(); ++i) {
    const ItemBox& above = pageBoxes_[i - 1];
    if (!HasRuleBetween(above, pageBoxes_[i], ItemGap)) continue;
    const float y = RuleBelow(above, ItemGap, TwipsY);
    DrawLine(0, y, right, y, forms::color::ButtonShadow);
    DrawLine(0, y + TwipsY, right, y + TwipsY, forms::color::Highlight3D);
  }
}

void frmQMenu::Form_Paint() {
  if (!MenuReady) return;
  if (pages_.LastLabel() > 0 && Lbl[pages_.FirstLabel()].Visible()) {
    PaintPicture(PagePicture, 0, 0, Lbl[0].Left(), Height());
  } else {
    PaintPicture(PagePicture, 0, 0);
  }
  // No rest of the bar that was there may stay. Only an item of this page had its bar here.
  if (pages_.IsUp(PrevItem) && PrevItem != program_.Menu.SelectedItem) {
    const float top = DrawBoxRule(BoxOf(PrevItem), ItemGap, Shape1.Height(), TwipsX, TwipsY).BarTop;
    FillBox(19 * TwipsX, top, Shape1.Width(), top + Shape1.Height() - TwipsY,
            forms::color::ButtonFace);
  }
  DrawRules();
}

void frmQMenu::UpDownArrows() {
  if (pages_.Slides() == 0) return;
  const ArrowLayout arrows = LayOutArrows({.WindowWidth = Width(),
                                           .MenuHeight = menu_->MenuInfo.MenuHeight,
                                           .TwipsX = TwipsX,
                                           .TwipsY = TwipsY,
                                           .CurMenu = pages_.CurMenu(),
                                           .Slides = pages_.Slides()});
  Line1.SetPoints(0, arrows.RuleY, Width(), arrows.RuleY);
  Line2.SetPoints(0, arrows.LightRuleY, Width(), arrows.LightRuleY);
  Line1.SetVisible(true);
  Line2.SetVisible(true);
  for (int i = 0; i <= 1; ++i) {
    const ArrowButton& arrow = i == 0 ? arrows.Up : arrows.Down;
    forms::Label& button = LblButton[i];
    button.Move(arrow.Bounds.Left, arrow.Bounds.Top, arrow.Bounds.Width, arrow.Bounds.Height);
    button.SetEnabled(arrow.Enabled);
    button.SetVisible(true);
    CenterGlyph(i, arrow.Glyph);
  }
}

void frmQMenu::CenterGlyph(int index, std::string_view glyph) {
  auto found = glyphs_.find(glyph);
  if (found == glyphs_.end()) {
    found = glyphs_.emplace(std::string(glyph), MakeGlyph(program_.Windows, glyph)).first;
  }
  const forms::Label& button = LblButton[index];
  forms::Image& image = imgButton[index];
  image.SetPicture(found->second);
  const TwipPoint place = GlyphPlace({button.Left(), button.Top(), button.Width(), button.Height()},
                                     {image.Width(), image.Height()});
  image.SetLeft(place.X);
  image.SetTop(place.Y);
  image.SetEnabled(button.Enabled());
  image.SetVisible(true);
}

void frmQMenu::ColoursChanged() {
  // Pictures hold the colours that they were drawn in.
  glyphs_.clear();
  HoldUpForIcons();
  icons_.ResetPicIcons();
  cache_.DropPictures();
  drawAgain_ = true;
  if (!MenuReady || items_.Count() == 0) return;
  UpDownArrows();
  const int selected = program_.Menu.SelectedItem;
  DrawPage(false);
  if (EqualNoCase(MenuKey, kMainMenuKey)) CheckLabels();
  if (selected > 0) SelectItem(selected);
}

void frmQMenu::IconsArrived() {
  // Other pages and menus are drawn with it when they are shown.
  const auto count = static_cast<std::size_t>(pages_.LastLabel() - pages_.FirstLabel() + 1);
  if (!MenuReady || !MenuVisible() || drawingPage_ || pageIcons_.size() != count) return;
  std::shared_ptr<Canvas> picture;
  for (std::size_t i = 0; i < count; ++i) {
    if (pageIcons_[i].Final) continue;
    const int index = pages_.FirstLabel() + static_cast<int>(i);
    const IconPicture icon = icons_.Peek(items_[index].Icon);
    const bool same = icon.LooksLike(std::exchange(pageIcons_[i], icon));
    if (same) continue;
    if (!picture && PagePicture) picture = CopyOf(*PagePicture);
    if (!picture) return;
    const PixelRect cell = IconCell(index);
    icons_.Draw(*picture, {cell.left, cell.top}, icon);
    Invalidate(cell);
  }
  clsMenu& page = pages_.Current();
  page.Init = IconsAreFinal() ? 1 : 0;
  if (!picture) return;
  PagePicture = std::move(picture);
  page.MenuPicture = PagePicture;
}

std::shared_ptr<Canvas> frmQMenu::CopyOf(const Canvas& picture) {
  const PixelRect whole{0, 0, picture.Size().width, picture.Size().height};
  std::shared_ptr<Canvas> copy = program_.Windows.CreateCanvas(whole.Size());
  copy->DrawCanvas(picture, whole, {0, 0});
  return copy;
}

void frmQMenu::ResetPicIcons() {
  icons_.ResetPicIcons();
  drawAgain_ = true;
  if (drawingPage_ || !MenuVisible()) return;
  // Those that the page on show waits for are asked for again.
  for (std::size_t i = 0; i < pageIcons_.size(); ++i) {
    if (pageIcons_[i].Final) continue;
    static_cast<void>(icons_.Find(items_[pages_.FirstLabel() + static_cast<int>(i)].Icon));
    pageIcons_[i] = {.Cell = kForgottenCell, .Final = false};
  }
  IconsArrived();
}

void frmQMenu::HoldUpForIcons() { icons_.WaitUntil(program_.Windows.Now() + MenuIcons::kAtOnce); }

}  // namespace corvelle
