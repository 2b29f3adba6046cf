// From a menu file to the window's contents.

#include <optional>
#include <utility>

#include "base/Text.h"
#include "core/MenuFile.h"
#include "core/Program.h"
#include "forms/Scopes.h"
#include "menus/window/frmQMenu.h"

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

  std::optional<ExpandedMenu> expanded;
  const std::shared_ptr<BuiltMenu> menu = Build(menuFile, expanded);
  if (!menu) return;
  Hide();
  SetCaption("");
  Cls();
  ActiveArrow = kNoArrow;
  Take(menu);
  PlaceMenu();
  DisplayFirstPage();
  cache_.Add(menu_);
  if (expanded && expanded->Whole) KeepGenerated(*expanded);
}

std::shared_ptr<BuiltMenu> frmQMenu::Build(std::string_view menuFile,
                                           std::optional<ExpandedMenu>& expanded) {
  const std::string given(menuFile.substr(0, menuFile.find('\0')));
  if (EqualNoCase(MenuKey, kMainMenuKey)) WriteOwnMenu();
  // What cannot be read gives a menu without items.
  std::string stored = ReadStoredRecords(program_.Services.Files, given).ValueOr({});
  expanded = ExpandFolders(given, stored);
  // The folders' listing may let events through.
  if (!IsLoaded()) return nullptr;
  MenuFile = expanded ? expanded->File : given;
  const std::vector<MenuItem> own =
      expanded ? std::vector<MenuItem>{} : ReadItems(stored, program_.Services.Ansi);
  auto menu = std::make_shared<BuiltMenu>();
  menu->Source = given;
  menu->Stored = std::move(stored);
  menu->Room = RoomForMenu();
  menu->Dpi = Dpi();
  menu->Whole = !expanded || expanded->Whole;
  Fill(*menu, LayOut(expanded ? expanded->Items : own, menu->Room));
  return menu;
}

// Without a fresh file the menu shows what the old one holds.
void frmQMenu::WriteOwnMenu() {
  static_cast<void>(
      WriteMainMenuFile(program_.Services.Files, program_.Services.Ansi, program_.Paths.AppPath));
}

MenuLayout frmQMenu::LayOut(std::span<const MenuItem> items, float room) const {
  return LayOutMenu({.Items = items,
                     .Key = MenuKey,
                     .TwipsX = TwipsX,
                     .TwipsY = TwipsY,
                     .LineHeight = Lbl[0].Height(),
                     .WindowHeight = room,
                     .TextWidth = [this](std::string_view text) {
                       const PixelSize size = MeasureText(text, Lbl[0].Font());
                       return static_cast<float>(size.width) * Scale().TwipsPerPixelX;
                     }});
}

std::optional<ExpandedMenu> frmQMenu::ExpandFolders(std::string_view menuFile,
                                                    std::string_view stored) {
  FolderMenusPort* const folders = program_.Ports.FolderMenus;
  if (folders == nullptr || !IsMenuFile(menuFile)) return std::nullopt;
  return folders->Expand(MenuKey, menuFile, stored);
}

void frmQMenu::KeepGenerated(const ExpandedMenu& expanded) {
  FolderMenusPort* const folders = program_.Ports.FolderMenus;
  if (folders == nullptr || folders->WriteGenerated(expanded)) return;
  MenuFile = menu_->Source;
  menu_->MenuInfo.File = MenuFile;
}

float frmQMenu::RoomForMenu() const {
  const forms::ScreenInfo screen = Screen();
  const ToolbarPort* const strip = program_.Ports.Toolbar;
  return MenuRoom({.Vertical = program_.Strip.ToolbarVertical,
                   .At = program_.Strip.ToolbarEdge,
                   .ScreenHeight = screen.Height,
                   .MenuTop = strip != nullptr ? strip->TopOfMenu() : Top(),
                   .StripTop = strip != nullptr ? strip->WindowBounds().Top : screen.Height});
}

void frmQMenu::Fill(BuiltMenu& menu, MenuLayout layout) const {
  for (const MenuPage& page : layout.Pages) {
    menu.SlideList.push_back({.FirstLabel = page.FirstLabel, .LastLabel = page.LastLabel});
  }
  menu.Items = std::move(layout.Items);
  menu.MenuInfo = {.Labels = layout.Labels,
                   .Slides = layout.Slides,
                   .Key = MenuKey,
                   .File = MenuFile,
                   .Height = layout.Height,
                   .Width = layout.Width,
                   .MenuHeight = layout.MenuHeight,
                   .CurMenu = 0};
}

void frmQMenu::Take(const std::shared_ptr<BuiltMenu>& menu) {
  menu_ = menu;
  items_.Show(menu);
  pages_.Show(menu);
  Move(Left(), Top(), menu->MenuInfo.Width, menu->MenuInfo.Height);
}

void frmQMenu::DisplayFirstPage() {
  UpDownArrows();
  // The program's own menu, and one that is rebuilt behind its still picture, come up finished.
  const bool watched = !EqualNoCase(MenuKey, kMainMenuKey) && !IsCaptured();
  DrawPage(watched);
}

}  // namespace corvelle
