#include "toolbar/CarryDesk.h"

#include "base/Numbers.h"
#include "core/MenuFile.h"
#include "forms/Scale.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {
namespace {

constexpr int kCtrl = 17;

}  // namespace

CarryDesk::CarryDesk(const sim::WorldOptions& options)
    : World(options),
      TheProgram(World.Services(), World.Windows()),
      Menu(TheProgram),
      Strip(TheProgram),
      Companion(CompanionPartsOf(TheProgram)),
      Picture(DragImagePartsOf(TheProgram)),
      Row(TheProgram) {
  World.Files.Put("C:\\Corvelle\\corvelle.exe", "program");
  World.Files.MakeFolders("C:\\Corvelle\\Menus");
  World.Files.MakeFolders("C:\\Corvelle\\Icons");
  World.Files.Put("C:\\Corvelle\\Icons\\W95MBX02.ICO", "x");
  World.Files.Put("C:\\Tools\\tool.exe", "x");
  TheProgram.Paths.AppPath = "C:\\Corvelle\\";
  TheProgram.OptionFlags.Set(Option::DefaultEntriesOffered, true);
  TheProgram.Ports.Toolbar = &Strip;
  TheProgram.Ports.QMenu = &Menu;
  TheProgram.Ports.Minimize = &Companion;
  TheProgram.Ports.DragImage = &Picture;
  TheProgram.Ports.SingleButtons = &Row;
}

CarryDesk::~CarryDesk() {
  Companion.Unload();
  Strip.Unload();
  Menu.Unload();
}

std::string CarryDesk::FileOf(int number) const {
  return "C:\\Corvelle\\Menus\\" + MenuFileName(number);
}

void CarryDesk::Put(int number, const Titles& items) {
  std::string bytes = FormatRecord({"Menu", "Button", ""}, World.Ansi);
  for (const std::string& title : items) {
    bytes +=
        FormatRecord({title, "C:\\Tools\\tool.exe", "C:\\Tools\\tool.exe " + title}, World.Ansi);
  }
  World.Files.Put(FileOf(number), bytes);
}

Titles CarryDesk::ItemsOf(int number) {
  Titles titles;
  const auto records = ReadAllRecords(World.Files, World.Ansi, FileOf(number));
  if (!records || records->empty()) return {"(none)"};
  for (std::size_t i = 1; i < records->size(); ++i) titles.push_back((*records)[i].FTitle);
  return titles;
}

void CarryDesk::Start() {
  if (!World.Files.Has(FileOf(1))) Put(1, {"A", "B", "C", "D"});
  if (!World.Files.Has(FileOf(2))) Put(2, {"X", "Y"});
  TheProgram.Guards.StartingUp = true;
  Strip.LoadWindow();
  Companion.LoadWindow();
  TheProgram.Guards.StartingUp = false;
  World.Desktop.Pump();
}

void CarryDesk::Exit() { Companion.Unload(); }

PixelPoint CarryDesk::Middle(int button) const {
  const ButtonRect& rect = Strip.Buttons.ToolbarButtons[static_cast<std::size_t>(button)];
  const float x = Strip.Left() + Strip.picToolbar.Left() + rect.Left + rect.Width / 2;
  const float y = Strip.Top() + Strip.picToolbar.Top() + rect.Top + rect.Height / 2;
  return {RoundToInt(x / Strip.TwipsX), RoundToInt(y / Strip.TwipsY)};
}

PixelPoint CarryDesk::ItemPoint(int item) const {
  const forms::Label& label = Menu.Lbl[item];
  const forms::ScreenInfo screen = World.Desktop.Screen();
  const PixelPoint at = forms::ToPixels(Menu.Left() + label.Left() + 60,
                                        Menu.Top() + label.Top() + label.Height() / 2, screen);
  return {at.x + 3, at.y + 3};
}

void CarryDesk::Open(int button) {
  PointAt(Middle(button));
  World.Desktop.Click();
  World.Desktop.Advance(5);
}

void CarryDesk::PickUp(int item) {
  Open(2);
  PointAt(ItemPoint(item));
  World.Desktop.KeyDown(kCtrl);
  World.Desktop.Press();
}

int CarryDesk::MenuUp() const { return Menu.MenuVisible() ? std::stoi(Menu.OwnerTag()) : 0; }

PixelPoint CarryDesk::ShowRow() {
  constexpr float kWidth = 3000;
  Strip.Move(4500, Strip.Top(), Strip.picToolbar.Right() + kWidth, Strip.Height());
  Strip.picSingleButton.Move(Strip.picToolbar.Right(), 0, kWidth, Strip.Height());
  Strip.picSingleButton.SetVisible(true);
  World.Desktop.Pump();
  const PixelRect row = World.Desktop.BoundsOf(Strip.picSingleButton.hWnd());
  return {row.left + row.Width() / 2, row.bottom - 4};
}

}  // namespace corvelle
