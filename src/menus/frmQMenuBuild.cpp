// From a menu file to the window's contents.

#include <optional>
#include <utility>

#include "base/Text.h"
#include "core/MenuFile.h"
#include "core/Program.h"
#include "forms/Scopes.h"
#include "menus/frmQMenu.h"

namespace corvelle {

namespace {

bool IsMenuFile(std::string_view path) { return EndsWithNoCase(path, "mnu"); }

}  // namespace

void frmQMenu::InitQMenu(std::string_view menuFile) {
  const forms::FlagScope building(program_.Guards.MenuBuilding);
  std::optional<forms::HourglassScope> hourglass;
  if (!program_.Entry.ItemDragging) hourglass.emplace(program_.Windows);
  Shape1.SetVisible(false);
  // Measures the height of one line.
  Lbl[0].SetCaption("lbl(0)");

  const std::string given(menuFile.substr(0, menuFile.find('\0')));
  const std::optional<ExpandedMenu> expanded = ExpandFolders(given);
  // The folders' listing lets events through.
  if (!IsLoaded()) return;

  menu_ = std::make_shared<BuiltMenu>();
  menu_->Source = given;
  MenuFile = expanded ? expanded->File : given;
  Hide();
  SetCaption("");
  Cls();
  ActiveArrow = kNoArrow;
  menu_->Room = PlaceForRoom();
  // What cannot be read gives a menu without items.
  menu_->Stored =
      expanded ? expanded->Stored : ReadStoredRecords(program_.Services.Files, given).ValueOr({});
  const std::vector<MenuRecord> stored =
      expanded ? std::vector<MenuRecord>{} : ParseRecords(menu_->Stored, program_.Services.Ansi);
  TakeLayout(LayOutMenu(
      {.Records = expanded ? expanded->Records : stored,
       .Key = MenuKey,
       .Origins = expanded ? std::span(expanded->Origins) : std::span<const EntryOrigin>(),
       .TwipsX = TwipsX,
       .TwipsY = TwipsY,
       .LineHeight = Lbl[0].Height(),
       .WindowHeight = menu_->Room,
       .TextWidth = [this](std::string_view text) {
         const PixelSize size = program_.Windows.MeasureText(text, Lbl[0].Font());
         return static_cast<float>(size.width) * program_.Windows.Screen().TwipsPerPixelX;
       }}));
  PlaceMenu();
  DisplayFirstPage();
  cache_.Add(menu_);
  if (expanded) KeepGenerated(*expanded);
}

std::optional<ExpandedMenu> frmQMenu::ExpandFolders(std::string_view menuFile) {
  FolderMenusPort* const folders = program_.Ports.FolderMenus;
  if (folders == nullptr || !IsMenuFile(menuFile)) return std::nullopt;
  return folders->Expand(MenuKey, menuFile);
}

void frmQMenu::KeepGenerated(const ExpandedMenu& expanded) {
  FolderMenusPort* const folders = program_.Ports.FolderMenus;
  if (folders == nullptr || folders->WriteGenerated(expanded)) return;
  MenuFile = menu_->Source;
  menu_->MenuInfo.File = MenuFile;
}

float frmQMenu::PlaceForRoom() {
  const forms::ScreenInfo screen = program_.Windows.Screen();
  Move(Left(), Top(), screen.Width / 2, screen.Height);
  PlaceMenu();
  return MenuRoom({.Vertical = program_.Strip.ToolbarVertical,
                   .At = program_.Strip.ToolbarEdge,
                   .ScreenHeight = screen.Height,
                   .MenuTop = Top(),
                   .StripTop = program_.Ports.Toolbar != nullptr
                                   ? program_.Ports.Toolbar->WindowBounds().Top
                                   : screen.Height});
}

void frmQMenu::TakeLayout(const MenuLayout& layout) {
  Labels = layout.Labels;
  Slides = layout.Slides;
  CurMenu = 0;
  PrevPage = 0;
  FirstLabel = layout.Pages.front().FirstLabel;
  LastLabel = layout.Pages.front().LastLabel;
  Move(Left(), Top(), layout.Width, layout.Height);

  for (const MenuPage& page : layout.Pages) {
    menu_->SlideList.push_back({.FirstLabel = page.FirstLabel, .LastLabel = page.LastLabel});
  }
  clsMenuInfo& info = menu_->MenuInfo;
  menu_->LabelList.reserve(layout.Items.size());
  info.CharArray.reserve(layout.Items.size());
  for (const MenuItem& item : layout.Items) {
    menu_->LabelList.push_back({.Title = item.Caption, .Tag = item.Tag, .Top = item.Top});
    info.CharArray.push_back(item.TypeAheadKey);
  }
  info.Labels = Labels;
  info.Slides = Slides;
  info.Key = MenuKey;
  info.File = MenuFile;
  info.Height = layout.Height;
  info.Width = layout.Width;
  info.MenuHeight = layout.MenuHeight;
  info.CurMenu = 0;
}

void frmQMenu::DisplayFirstPage() {
  UpDownArrows();
  // The program's own menu, and one that is rebuilt behind its still picture, come up finished.
  const bool watched = !EqualNoCase(MenuKey, kMainMenuKey) && !IsCaptured();
  DrawPage(watched);
}

}  // namespace corvelle
