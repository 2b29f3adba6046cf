#include "menus/MenuDesk.h"

#include <algorithm>
#include <cmath>

#include "forms/Scale.h"

namespace corvelle {

int StandInStrip::Times(std::string_view what) const {
  return static_cast<int>(std::count(Asked.begin(), Asked.end(), what));
}

MenuRecord Item(std::string title, std::string icon, std::string command) {
  return {.FTitle = std::move(title), .FIcon = std::move(icon), .FName = std::move(command)};
}

MenuRecord Separator() { return {.FTitle = "Separator", .FIcon = std::string(kSeparatorIcon)}; }

std::vector<MenuRecord> Items(int count) {
  std::vector<MenuRecord> items;
  for (int i = 1; i <= count; ++i) items.push_back(Item("Item " + std::to_string(i)));
  return items;
}

MenuDesk::MenuDesk(const sim::WorldOptions& options, ShellExec* shell)
    : World(options),
      TheProgram(Services(shell), World.Windows()),
      Menu(TheProgram),
      Strip(TheProgram, Menu) {
  TheProgram.Paths.AppPath = "C:\\Corvelle\\";
  TheProgram.Paths.MenusPath = "C:\\Corvelle\\Menus\\";
  TheProgram.Paths.IconsPath = "C:\\Corvelle\\Icons\\";
  TheProgram.Paths.ShellLinkPath = "C:\\Corvelle\\ShellLink\\";
  TheProgram.Ports.Toolbar = &Strip;
  TheProgram.Ports.QMenu = &Menu;
  World.Files.MakeFolders("C:\\Corvelle\\Menus");
  World.Files.Put("C:\\Corvelle\\corvelle.exe", "x");
  World.Files.Put("C:\\Corvelle\\Icons\\W95MBX02.ICO", "x");
  World.Files.Put("C:\\Tools\\tool.exe", "x");
  World.Desktop.MovePointer(900, 700);
  Strip.LoadWindow();
  Menu.LoadWindow();
}

MenuDesk::~MenuDesk() {
  Menu.UnloadWindow();
  Strip.UnloadWindow();
}

Platform MenuDesk::Services(ShellExec* shell) { return World.Services(shell); }

std::string MenuDesk::PutMenu(int number, const std::vector<MenuRecord>& items) {
  std::string bytes = FormatRecord(Item("Button", "Button", ""), World.Ansi);
  for (const MenuRecord& item : items) bytes += FormatRecord(item, World.Ansi);
  std::string path = TheProgram.Paths.MenusPath + MenuFileName(number);
  World.Files.Put(path, bytes);
  return path;
}

void MenuDesk::Open(int number, const std::vector<MenuRecord>& items) {
  PutMenu(number, items);
  Reopen(number);
}

void MenuDesk::Reopen(int number) {
  const std::string button = std::to_string(number + 1);
  Menu.SetOwnerTag(button);
  Menu.ShowMenu("F" + button, TheProgram.Paths.MenusPath + MenuFileName(number));
  World.Desktop.Pump();
}

PixelPoint MenuDesk::OnScreen(float x, float y) const {
  const forms::ScreenInfo screen = World.Desktop.Screen();
  const PixelPoint corner = forms::ToPixels(Menu.Left(), Menu.Top(), screen);
  const PixelPoint inside = forms::ToPixels(x, y, screen);
  return {corner.x + 3 + inside.x, corner.y + 3 + inside.y};
}

PixelPoint MenuDesk::ItemPoint(int index) const {
  const forms::Label& label = Menu.Lbl[index];
  return OnScreen(label.Left() + 60, label.Top() + label.Height() / 2);
}

PixelPoint MenuDesk::ArrowPoint(int index) const {
  const forms::Label& arrow = Menu.LblButton[index];
  return OnScreen(arrow.Left() + arrow.Width() / 2, arrow.Top() + arrow.Height() / 2);
}

void MenuDesk::ClickItem(int index) {
  PointAtItem(index);
  World.Desktop.Click();
}

void MenuDesk::ClickArrow(int index) {
  PointAt(ArrowPoint(index));
  World.Desktop.Click();
}

Rgb MenuDesk::PixelInside(int x, int y) const {
  const PixelPoint corner = OnScreen(0, 0);
  return World.Desktop.Picture().PixelAt({corner.x + x, corner.y + y});
}

Rgb MenuDesk::SystemColour(forms::OleColor colour) { return forms::Resolve(World.Desktop, colour); }

PixelPoint MenuDesk::IconCell(int index) const {
  const forms::Label& label = Menu.Lbl[index];
  const forms::ScreenInfo screen = World.Desktop.Screen();
  return forms::ToPixels(2 * screen.TwipsPerPixelX,
                         label.Top() + label.Height() / 2 - 8 * screen.TwipsPerPixelY, screen);
}

int MenuDesk::BarredItem() const {
  if (!Menu.Shape1.Visible()) return 0;
  for (int i = Menu.Pages().FirstLabel(); i <= Menu.Pages().LastLabel(); ++i) {
    const forms::Label& label = Menu.Lbl[i];
    const float top = label.Top() - Menu.ItemGap + 4 * Menu.TwipsY;
    if (std::abs(Menu.Shape1.Top() - top) < 1) return i;
  }
  return 0;
}

}  // namespace corvelle
