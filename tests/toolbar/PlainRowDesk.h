#pragma once

#include <string>
#include <vector>

#include "core/MenuFile.h"
#include "forms/Timer.h"
#include "toolbar/PlainStrip.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {

/// Two buttons with menus behind the program's own, and another program in front.
struct PlainRowDesk : PlainDesk {
  PlainRowDesk() {
    PutMenu(1, "One");
    PutMenu(2, "Two");
    Row.MakeTemplates();
    Row.DoToolbarButtons();
    TheProgram.Guards.ToolbarReady = true;
    Source = World.Desktop.AddOtherWindow({.Title = "Page", .Bounds = {600, 500, 900, 700}});
    World.Desktop.BringForward(Source);
    World.Desktop.Pump();
    Menu.Asked.clear();
  }

  WindowId Source = kNoWindow;
  ButtonRow Row{ButtonRowPartsOf(TheProgram), Strip, Strip.ForButtons()};
  StripPull Pull{PullPartsOf(TheProgram), Strip};
  forms::Timer Watch{World.Windows()};
  MenuTracking Menus{TrackingPartsOf(TheProgram), Strip, Row, Pull, Strip.picToolbar, Watch};

  void PointAtButton(int button) {
    const PixelPoint at = Row.Middle(button);
    World.Desktop.MovePointer(at.x, at.y);
  }
  std::vector<std::string> Titles(int file) {
    std::vector<std::string> titles;
    const auto records =
        ReadAllRecords(World.Files, World.Ansi, "C:\\Corvelle\\Menus\\" + MenuFileName(file));
    for (const MenuRecord& record : records.ValueOr({})) titles.push_back(record.FTitle);
    return titles;
  }
};

}  // namespace corvelle
