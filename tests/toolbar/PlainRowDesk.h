#pragma once

#include <string>
#include <vector>

#include "core/MenuFile.h"
#include "forms/Timer.h"
#include "toolbar/PlainStrip.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {

/// Buttons with menus of these titles behind the program's own, and what tracks their menus.
struct PlainMenusDesk : PlainDesk {
  explicit PlainMenusDesk(const std::vector<std::string>& titles) {
    int file = 0;
    for (const std::string& title : titles) PutMenu(++file, title);
    Row.MakeTemplates();
    Row.DoToolbarButtons();
  }

  ButtonRow Row{ButtonRowPartsOf(TheProgram), Strip, Strip.ForButtons()};
  StripPull Pull{PullPartsOf(TheProgram), Strip};
  forms::Timer Watch{World.Windows()};
  MenuTracking Menus{TrackingPartsOf(TheProgram), Strip, Row, Pull, Strip.picToolbar, Watch};

  void PointAtButton(int button) {
    const PixelPoint at = Row.Middle(button);
    World.Desktop.MovePointer(at.x, at.y);
  }
};

/// Two buttons on a strip that is ready, and another program in front.
struct PlainRowDesk : PlainMenusDesk {
  PlainRowDesk() : PlainMenusDesk({"One", "Two"}) {
    TheProgram.Guards.ToolbarReady = true;
    Source = World.Desktop.AddOtherWindow({.Title = "Page", .Bounds = {600, 500, 900, 700}});
    World.Desktop.BringForward(Source);
    World.Desktop.Pump();
    Menu.Asked.clear();
  }

  WindowId Source = kNoWindow;

  std::vector<std::string> Titles(int file) {
    std::vector<std::string> titles;
    const auto records =
        ReadAllRecords(World.Files, World.Ansi, "C:\\Corvelle\\Menus\\" + MenuFileName(file));
    for (const MenuRecord& record : records.ValueOr({})) titles.push_back(record.FTitle);
    return titles;
  }
};

}  // namespace corvelle
