// What the strip asks of the docking, where the program has one, and its guards.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "toolbar/StripDesk.h"

namespace corvelle {
namespace {

namespace message = forms::message;

/// Docking that notes what it is asked and stands the strip nowhere.
struct DockingWithEvents final : DockingPort {
  std::vector<std::string> Asked;
  bool Free = true;
  std::function<void()> WhileDocking;

  void RegisterAppBar() override { Asked.emplace_back("RegisterAppBar"); }
  void RemoveAppBar() override { Asked.emplace_back("RemoveAppBar"); }
  void EndAppBar() override { Asked.emplace_back("EndAppBar"); }
  bool AutoHideFree(std::string_view edge) override {
    Asked.push_back("AutoHideFree " + std::string(edge));
    return Free;
  }
  void SetAppBar(std::string_view edge, bool rebuild) override {
    Asked.push_back("SetAppBar " + std::string(edge) + (rebuild ? " rebuild" : ""));
    if (WhileDocking) WhileDocking();
  }
  void HideToolbar() override {}
  void ShowAutoHideTaken() override {}
  void ResizeToEdge() override {}
  void RevealToolbar() override {
    Asked.emplace_back("RevealToolbar");
    if (WhileDocking) WhileDocking();
  }
};

struct DockingDesk : StripDesk {
  DockingDesk() {
    TheProgram.Ports.Docking = &Docking;
    PutButtons(2);
  }
  ~DockingDesk() {
    // The docking goes before the strip.
    Exit();
  }
  std::intptr_t Send(std::uint32_t what, std::uintptr_t wParam = 0, std::intptr_t lParam = 0) {
    return World.Desktop.Send(Strip.hWnd(), what, wParam, lParam);
  }
  DockingWithEvents Docking;
};

using Calls = std::vector<std::string>;

TEST(ToolbarDocking, AStripAtTheTopOnlyRegisters) {
  DockingDesk desk;
  desk.Start();
  EXPECT_EQ(desk.Docking.Asked, Calls{"RegisterAppBar"});
  EXPECT_EQ(desk.Strip.ButtonCount, 3);
}

TEST(ToolbarDocking, ARequestedEdgeIsDocked) {
  struct Row {
    const char* name;
    const char* code;
    const char* edge;
    bool vertical;
  };
  const Row rows[] = {{"top", "00", "TOP", false},
                      {"bottom", "01", "BOTTOM", false},
                      {"left", "10", "LEFT", true},
                      {"right", "11", "RIGHT", true}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    DockingDesk desk;
    desk.SetOption(14, true);
    desk.SetOption(15, row.code[0] == '1');
    desk.SetOption(16, row.code[1] == '1');
    desk.Start();
    const Calls expected = {"RegisterAppBar", "SetAppBar " + std::string(row.edge) + " rebuild"};
    EXPECT_EQ(desk.Docking.Asked, expected);
    EXPECT_EQ(desk.TheProgram.ToolbarVertical, row.vertical);
    EXPECT_FALSE(desk.TheProgram.AppBarRequested);
  }
}

TEST(ToolbarDocking, AutoHideIsGivenUpAtASideThatIsTaken) {
  for (const bool free : {true, false}) {
    SCOPED_TRACE(free);
    DockingDesk desk;
    desk.Docking.Free = free;
    desk.SetOption(3, true);
    desk.SetOption(14, true);
    desk.Start();
    const Calls expected = {"RegisterAppBar", "AutoHideFree TOP", "SetAppBar TOP rebuild"};
    EXPECT_EQ(desk.Docking.Asked, expected);
    EXPECT_EQ(desk.TheProgram.AutoHide, free);
  }
}

TEST(ToolbarDocking, TheEndGivesUpTheEdge) {
  DockingDesk desk;
  desk.Start();
  desk.Docking.Asked.clear();
  desk.Exit();
  EXPECT_EQ(desk.Docking.Asked, Calls{"EndAppBar"});
}

TEST(ToolbarDocking, ARebuildOfADockedStripIsLeftToIt) {
  DockingDesk desk;
  desk.Start();
  desk.TheProgram.AppBarDocked = true;
  desk.TheProgram.ToolbarEdge = "LEFT";
  desk.Docking.Asked.clear();
  desk.Strip.InitNewButtons();
  EXPECT_EQ(desk.Docking.Asked, Calls{"SetAppBar LEFT rebuild"});
  desk.TheProgram.AppBarDocked = false;
}

TEST(ToolbarDocking, ARebuildThatIsAskedForDuringAPlacingComesAfterwards) {
  DockingDesk desk;
  desk.Start();
  desk.TheProgram.AppBarDocked = true;
  desk.TheProgram.ToolbarEdge = "LEFT";
  desk.Docking.Asked.clear();
  desk.TheProgram.AppBarBusy = true;
  desk.SetOption(26, true);
  desk.Strip.InitNewButtons();
  desk.Strip.InitNewButtons();
  desk.Wait(1000);
  EXPECT_EQ(desk.Docking.Asked, Calls{});
  desk.TheProgram.AppBarBusy = false;
  desk.Wait(1000);
  EXPECT_EQ(desk.Docking.Asked, Calls{"SetAppBar LEFT rebuild"});
  desk.Wait(1000);
  EXPECT_EQ(desk.Docking.Asked, Calls{"SetAppBar LEFT rebuild"});
  EXPECT_EQ(desk.WakeUps(2000), 0);
  desk.TheProgram.AppBarDocked = false;
}

TEST(ToolbarDocking, ARestoreThatIsAskedForDuringAPlacingComesAfterwardsAndIsTheOnlyRebuild) {
  DockingDesk desk;
  desk.Start();
  desk.TheProgram.AppBarDocked = true;
  desk.TheProgram.ToolbarEdge = "RIGHT";
  desk.TheProgram.ToolbarVertical = true;
  desk.Docking.Asked.clear();
  desk.TheProgram.AppBarBusy = true;
  desk.Strip.RestoreToolbar();
  desk.Strip.InitNewButtons();
  desk.Wait(1000);
  EXPECT_EQ(desk.Docking.Asked, Calls{});
  EXPECT_TRUE(desk.TheProgram.AppBarDocked);
  desk.TheProgram.AppBarBusy = false;
  desk.Wait(1000);
  EXPECT_EQ(desk.Docking.Asked, Calls{"RemoveAppBar"});
  EXPECT_FALSE(desk.TheProgram.AppBarDocked);
  EXPECT_EQ(desk.TheProgram.ToolbarEdge, "TOP");
  EXPECT_EQ(desk.Strip.ButtonCount, 3);
  EXPECT_EQ(desk.WakeUps(2000), 0);
}

TEST(ToolbarDocking, RestoreGivesUpTheEdgeAndComesToTheTop) {
  DockingDesk desk;
  desk.Start();
  desk.TheProgram.AppBarDocked = true;
  desk.TheProgram.ToolbarEdge = "RIGHT";
  desk.TheProgram.ToolbarVertical = true;
  desk.Docking.Asked.clear();
  desk.Strip.RestoreToolbar();
  EXPECT_EQ(desk.Docking.Asked, Calls{"RemoveAppBar"});
  EXPECT_FALSE(desk.TheProgram.AppBarDocked);
  EXPECT_FALSE(desk.TheProgram.ToolbarVertical);
  EXPECT_EQ(desk.Strip.Top(), -7 * 15);
  EXPECT_EQ(desk.Strip.ButtonCount, 3);
}

TEST(ToolbarDocking, ADockedStripAnswersTheShellAndAFloatingOneLetsItPass) {
  DockingDesk desk;
  desk.Start();
  EXPECT_FALSE(desk.Strip.ToolbarWndProc(message::AppBarCallback, 1, 0).has_value());
  desk.TheProgram.AppBarDocked = true;
  desk.Docking.Asked.clear();
  EXPECT_TRUE(desk.Strip.ToolbarWndProc(message::AppBarCallback, 0, 0).has_value());
  EXPECT_TRUE(desk.Docking.Asked.empty());
  EXPECT_TRUE(desk.Strip.ToolbarWndProc(message::AppBarCallback, 1, 0).has_value());
  EXPECT_EQ(desk.Docking.Asked, Calls{"SetAppBar "});
  EXPECT_TRUE(desk.Strip.ToolbarWndProc(message::AppBarCallback, 2, 1).has_value());
  EXPECT_TRUE(desk.TheProgram.FullScreenApp);
  EXPECT_FALSE(desk.Strip.ToolbarWndProc(message::Move, 0, 0).has_value());
  desk.TheProgram.AppBarDocked = false;
}

TEST(ToolbarDocking, TheShellsAnswerWithinAPlacingStartsNoSecondOne) {
  DockingDesk desk;
  desk.Start();
  desk.TheProgram.AppBarDocked = true;
  desk.Docking.Asked.clear();
  // The shell answers the strip's own placing with the same news.
  desk.Docking.WhileDocking = [&] { desk.Send(message::AppBarCallback, 1); };
  desk.Send(message::AppBarCallback, 1);
  EXPECT_EQ(desk.Docking.Asked, Calls{"SetAppBar "});
  EXPECT_FALSE(desk.TheProgram.PosChangeRunning);
  desk.TheProgram.AppBarDocked = false;
}

TEST(ToolbarDocking, NoMenuOpensWhileTheStripIsPlacedAnew) {
  DockingDesk desk;
  desk.Start();
  desk.Click(2);
  desk.Wait();
  desk.TheProgram.PosChangeRunning = true;
  desk.PointAtButton(3);
  desk.Wait();
  EXPECT_EQ(desk.MenuUp(), 2);
  desk.TheProgram.PosChangeRunning = false;
  desk.Wait();
  EXPECT_EQ(desk.MenuUp(), 3);
}

TEST(ToolbarDocking, APointerOnTheHiddenLineRevealsTheStripOnce) {
  DockingDesk desk;
  desk.Start();
  desk.TheProgram.AutoHide = true;
  desk.Strip.picToolbar.SetVisible(false);
  desk.Docking.Asked.clear();
  // A move arrives while the strip is being revealed.
  desk.Docking.WhileDocking = [&] {
    desk.Strip.Form_MouseMove(forms::MouseButton::None, {}, 10, 0);
  };
  desk.Strip.Form_MouseMove(forms::MouseButton::None, {}, 10, 0);
  EXPECT_EQ(desk.Docking.Asked, Calls{"RevealToolbar"});
  EXPECT_FALSE(desk.TheProgram.HideBusy);
}

TEST(ToolbarDocking, WithAutoHideTheTimerKeepsRunningAndStopsWhenItIsOff) {
  DockingDesk desk;
  desk.SetOption(3, true);
  desk.Start();
  desk.Wait(1000);
  EXPECT_TRUE(desk.Strip.Timer1.Enabled());
  EXPECT_EQ(desk.Strip.Timer1.Interval(), 250);
  desk.TheProgram.AutoHide = false;
  desk.Wait(300);
  EXPECT_FALSE(desk.Strip.Timer1.Enabled());
}

TEST(ToolbarDocking, TheTimerLeavesAMinimizedStripAlone) {
  DockingDesk desk;
  desk.SetOption(3, true);
  desk.Start();
  desk.Click(2);
  desk.TheProgram.ToolbarMinimized = true;
  desk.Wait(300);
  EXPECT_FALSE(desk.Strip.Timer1.Enabled());
  EXPECT_FALSE(desk.Strip.Timer2.Enabled());
  EXPECT_FALSE(desk.Menu.Poll);
  desk.TheProgram.ToolbarMinimized = false;
}

TEST(ToolbarDocking, TheTimerStandsAsideWhileAGuardIsSet) {
  for (bool Program::*flag : {&Program::StartingUp, &Program::AppBarBusy,
                              &Program::PosChangeRunning, &Program::RestoreBusy}) {
    DockingDesk desk;
    desk.Start();
    desk.TheProgram.*flag = true;
    desk.Strip.Timer1_Timer();
    EXPECT_TRUE(desk.Strip.Timer1.Enabled());
    desk.TheProgram.*flag = false;
    desk.Strip.Timer1_Timer();
    EXPECT_FALSE(desk.Strip.Timer1.Enabled());
  }
}

TEST(ToolbarDocking, TheNewsOfAMovePutsBackAFloatingStripAndLeavesADockedOne) {
  for (const bool docked : {false, true}) {
    SCOPED_TRACE(docked);
    DockingDesk desk;
    desk.Start();
    const float top = desk.Strip.SavedTop;
    // While the grip is held the strip may be anywhere.
    desk.TheProgram.RestoreBusy = true;
    desk.Strip.SetTop(300);
    desk.TheProgram.RestoreBusy = false;
    desk.TheProgram.AppBarDocked = docked;
    EXPECT_FALSE(desk.Strip.ToolbarWndProc(message::Move, 0, 0).has_value());
    EXPECT_EQ(desk.Strip.Top(), docked ? 300 : top);
    desk.TheProgram.AppBarDocked = false;
  }
}

TEST(ToolbarDocking, WhileItIsDockedItsEdgeStaysAskedFor) {
  for (const bool docked : {false, true}) {
    SCOPED_TRACE(docked);
    DockingDesk desk;
    desk.Start();
    desk.TheProgram.AppBarDocked = docked;
    desk.Strip.DrawBorders();
    EXPECT_EQ(desk.TheProgram.AppBarRequested, docked);
    desk.TheProgram.AppBarDocked = false;
  }
}

}  // namespace
}  // namespace corvelle
