#include "toolbar/StripDesk.h"

#include <algorithm>
#include <utility>

#include "base/Numbers.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {

void StandInMenu::ShowMenu(std::string_view menuKey, std::string_view menuFile) {
  key_ = menuKey;
  LastFile = menuFile;
  Asked.push_back("ShowMenu " + key_);
  program_.Guards.MenuBuilding = true;
  if (WhileBuilding) {
    const auto action = std::exchange(WhileBuilding, nullptr);
    action();
  }
  program_.Guards.MenuBuilding = false;
  if (Refuses || !IsLoaded()) return;
  Built.insert(key_);
  ShowNoActivate();
  SetForeground();
  if (program_.Ports.Toolbar != nullptr) program_.Ports.Toolbar->SetMenuPosition();
}

int StandInMenu::Times(std::string_view what) const {
  return static_cast<int>(std::count(Asked.begin(), Asked.end(), what));
}

MenuRecord Entry(std::string title, std::string icon, std::string command) {
  return {std::move(title), std::move(icon), std::move(command)};
}

std::string Records(const std::vector<MenuRecord>& records) {
  const Windows1252 ansi;
  std::string bytes;
  for (const MenuRecord& record : records) bytes += FormatRecord(record, ansi);
  return bytes;
}

StripDesk::StripDesk(const sim::WorldOptions& options, ShellIcons* icons)
    : World(options),
      TheProgram(World.Services(nullptr, icons), World.Windows()),
      Menu(TheProgram),
      Strip(TheProgram),
      Companion(CompanionPartsOf(TheProgram)) {
  Install();
}

StripDesk::~StripDesk() {
  Companion.Unload();
  Strip.Unload();
  Menu.Unload();
}

void StripDesk::Install() {
  World.Files.Put("C:\\Corvelle\\corvelle.exe", "program");
  World.Files.MakeFolders("C:\\Corvelle\\Menus");
  World.Files.MakeFolders("C:\\Corvelle\\Icons");
  TheProgram.Paths.AppPath = "C:\\Corvelle\\";
  TheProgram.OptionFlags.Set(Option::DefaultEntriesOffered, true);
  TheProgram.Ports.Toolbar = &Strip;
  TheProgram.Ports.SingleButtons = &Strip.RowDrops;
  TheProgram.Ports.QMenu = &Menu;
  TheProgram.Ports.Minimize = &Companion;
}

std::string StripDesk::PutButton(int number, const std::string& title, const std::string& icon,
                                 const std::string& command) {
  std::string path = "C:\\Corvelle\\Menus\\" + MenuFileName(number);
  World.Files.Put(path,
                  Records({Entry(title, icon, command), Entry("Item", "", "C:\\Tools\\tool.exe")}));
  return path;
}

void StripDesk::PutButtons(int count) {
  for (int i = 1; i <= count; ++i) PutButton(i, "Menu " + std::to_string(i));
}

bool StripDesk::HasMenuFile(std::string_view name) const {
  return World.Files.Has("C:\\Corvelle\\Menus\\" + std::string(name));
}

void StripDesk::Start() {
  TheProgram.Guards.StartingUp = true;
  Strip.LoadWindow();
  Companion.LoadWindow();
  TheProgram.Guards.StartingUp = false;
  World.Desktop.Pump();
}

void StripDesk::Exit() { Companion.Unload(); }

PixelPoint StripDesk::Middle(int button) const {
  const ButtonRect& rect = Strip.Buttons.ToolbarButtons[static_cast<std::size_t>(button)];
  const float x = Strip.Left() + Strip.picToolbar.Left() + rect.Left + rect.Width / 2;
  const float y = Strip.Top() + Strip.picToolbar.Top() + rect.Top + rect.Height / 2;
  return {RoundToInt(x / Strip.TwipsX), RoundToInt(y / Strip.TwipsY)};
}

int StripDesk::MenuUp() const { return Menu.MenuVisible() ? std::stoi(Menu.OwnerTag()) : 0; }

bool StripDesk::AtRest(int button) const {
  const forms::Line& left = Strip.LinTB1[button];
  const forms::Line& right = Strip.LinTB2[button];
  return left.Visible() && right.Visible() && left.BorderColor() == forms::color::Highlight3D &&
         right.BorderColor() == forms::color::ButtonShadow;
}

int StripDesk::WakeUps(int milliseconds) {
  int wakeUps = 0;
  sim::SimClock& clock = World.Desktop.Clock();
  const std::int64_t until = clock.Now() + milliseconds;
  World.Desktop.Pump();
  for (auto next = clock.NextDue(); next && *next <= until; next = clock.NextDue()) {
    clock.MoveTo(*next);
    World.Desktop.Pump();
    ++wakeUps;
  }
  clock.MoveTo(until);
  return wakeUps;
}

std::vector<std::string> StripDesk::ButtonFiles() const {
  std::vector<std::string> files;
  for (int i = 1; i <= Strip.Buttons.ButtonCount; ++i) {
    files.push_back(Strip.Buttons.ToolbarButtons[static_cast<std::size_t>(i)].Path);
  }
  return files;
}

}  // namespace corvelle
