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
  bool AutoHideFree(Edge edge) override {
    Asked.push_back("AutoHideFree " + std::string(EdgeText(edge)));
    return Free;
  }
  void SetAppBar(std::optional<Edge> edge, bool rebuild) override {
    Asked.push_back("SetAppBar " + std::string(edge ? EdgeText(*edge) : "") +
                    (rebuild ? " rebuild" : ""));
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
    return World.Desktop.Send(Strip.hWnd(), what, wParam, lParam).value_or(0);
  }
  DockingWithEvents Docking;
};

using Calls = std::vector<std::string>;

TEST(ToolbarDocking, AStripAtTheTopOnlyRegisters) {
  DockingDesk desk;
  desk.Start();
  EXPECT_EQ(desk.Docking.Asked, Calls{"RegisterAppBar"});
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 3);
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
    desk.SetOption(Option::AtEdge, true);
    desk.SetOption(Option::EdgeCodeFirst, row.code[0] == '1');
    desk.SetOption(Option::EdgeCodeSecond, row.code[1] == '1');
    desk.Start();
    const Calls expected = {"RegisterAppBar", "SetAppBar " + std::string(row.edge) + " rebuild"};
    EXPECT_EQ(desk.Docking.Asked, expected);
    EXPECT_EQ(desk.TheProgram.Strip.ToolbarVertical, row.vertical);
    EXPECT_FALSE(desk.TheProgram.Strip.AppBarRequested);
  }
}

TEST(ToolbarDocking, AutoHideIsGivenUpAtASideThatIsTaken) {
  for (const bool free : {true, false}) {
    SCOPED_TRACE(free);
    DockingDesk desk;
    desk.Docking.Free = free;
    desk.SetOption(Option::AutoHide, true);
    desk.SetOption(Option::AtEdge, true);
    desk.Start();
    const Calls expected = {"RegisterAppBar", "AutoHideFree TOP", "SetAppBar TOP rebuild"};
    EXPECT_EQ(desk.Docking.Asked, expected);
    EXPECT_EQ(desk.TheProgram.Strip.AutoHide, free);
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
  desk.TheProgram.Strip.AppBarDocked = true;
  desk.TheProgram.Strip.ToolbarEdge = Edge::Left;
  desk.Docking.Asked.clear();
  desk.Strip.InitNewButtons();
  EXPECT_EQ(desk.Docking.Asked, Calls{"SetAppBar LEFT rebuild"});
  desk.TheProgram.Strip.AppBarDocked = false;
}

TEST(ToolbarDocking, ARebuildThatIsAskedForDuringAPlacingComesAfterwards) {
  DockingDesk desk;
  desk.Start();
  desk.TheProgram.Strip.AppBarDocked = true;
  desk.TheProgram.Strip.ToolbarEdge = Edge::Left;
  desk.Docking.Asked.clear();
  desk.TheProgram.Guards.AppBarBusy = true;
  desk.SetOption(Option::LargeIcons, true);
  desk.Strip.InitNewButtons();
  desk.Strip.InitNewButtons();
  desk.Wait(1000);
  EXPECT_EQ(desk.Docking.Asked, Calls{});
  desk.TheProgram.Guards.AppBarBusy = false;
  desk.Wait(1000);
  EXPECT_EQ(desk.Docking.Asked, Calls{"SetAppBar LEFT rebuild"});
  desk.Wait(1000);
  EXPECT_EQ(desk.Docking.Asked, Calls{"SetAppBar LEFT rebuild"});
  EXPECT_EQ(desk.WakeUps(2000), 0);
  desk.TheProgram.Strip.AppBarDocked = false;
}

TEST(ToolbarDocking, ARestoreThatIsAskedForDuringAPlacingComesAfterwardsAndIsTheOnlyRebuild) {
  DockingDesk desk;
  desk.Start();
  desk.TheProgram.Strip.AppBarDocked = true;
  desk.TheProgram.Strip.ToolbarEdge = Edge::Right;
  desk.TheProgram.Strip.ToolbarVertical = true;
  desk.Docking.Asked.clear();
  desk.TheProgram.Guards.AppBarBusy = true;
  desk.Strip.RestoreToolbar();
  desk.Strip.InitNewButtons();
  desk.Wait(1000);
  EXPECT_EQ(desk.Docking.Asked, Calls{});
  EXPECT_TRUE(desk.TheProgram.Strip.AppBarDocked);
  desk.TheProgram.Guards.AppBarBusy = false;
  desk.Wait(1000);
  EXPECT_EQ(desk.Docking.Asked, Calls{"RemoveAppBar"});
  EXPECT_FALSE(desk.TheProgram.Strip.AppBarDocked);
  EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, Edge::Top);
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 3);
  EXPECT_EQ(desk.WakeUps(2000), 0);
}

TEST(ToolbarDocking, RestoreGivesUpTheEdgeAndComesToTheTop) {
  DockingDesk desk;
  desk.Start();
  desk.TheProgram.Strip.AppBarDocked = true;
  desk.TheProgram.Strip.ToolbarEdge = Edge::Right;
  desk.TheProgram.Strip.ToolbarVertical = true;
  desk.Docking.Asked.clear();
  desk.Strip.RestoreToolbar();
  EXPECT_EQ(desk.Docking.Asked, Calls{"RemoveAppBar"});
  EXPECT_FALSE(desk.TheProgram.Strip.AppBarDocked);
  EXPECT_FALSE(desk.TheProgram.Strip.ToolbarVertical);
  EXPECT_EQ(desk.Strip.Top(), -7 * 15);
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 3);
}

TEST(ToolbarDocking, ADockedStripAnswersTheShellAndAFloatingOneLetsItPass) {
  DockingDesk desk;
  desk.Start();
  EXPECT_FALSE(desk.Strip.ToolbarWndProc(message::AppBarCallback, 1, 0).has_value());
  desk.TheProgram.Strip.AppBarDocked = true;
  desk.Docking.Asked.clear();
  EXPECT_TRUE(desk.Strip.ToolbarWndProc(message::AppBarCallback, 0, 0).has_value());
  EXPECT_TRUE(desk.Docking.Asked.empty());
  EXPECT_TRUE(desk.Strip.ToolbarWndProc(message::AppBarCallback, 1, 0).has_value());
  EXPECT_EQ(desk.Docking.Asked, Calls{"SetAppBar "});
  EXPECT_TRUE(desk.Strip.ToolbarWndProc(message::AppBarCallback, 2, 1).has_value());
  EXPECT_TRUE(desk.TheProgram.Strip.FullScreenApp);
  EXPECT_FALSE(desk.Strip.ToolbarWndProc(message::Move, 0, 0).has_value());
  desk.TheProgram.Strip.AppBarDocked = false;
}

TEST(ToolbarDocking, TheShellsAnswerWithinAPlacingStartsNoSecondOne) {
  DockingDesk desk;
  desk.Start();
  desk.TheProgram.Strip.AppBarDocked = true;
  desk.Docking.Asked.clear();
  // The shell answers the strip's own placing with the same news.
  desk.Docking.WhileDocking = [&] { desk.Send(message::AppBarCallback, 1); };
  desk.Send(message::AppBarCallback, 1);
  EXPECT_EQ(desk.Docking.Asked, Calls{"SetAppBar "});
  EXPECT_FALSE(desk.TheProgram.Guards.PosChangeRunning);
  desk.TheProgram.Strip.AppBarDocked = false;
}

TEST(ToolbarDocking, NoMenuOpensWhileTheStripIsPlacedAnew) {
  DockingDesk desk;
  desk.Start();
  desk.Click(2);
  desk.Wait();
  desk.TheProgram.Guards.PosChangeRunning = true;
  desk.PointAtButton(3);
  desk.Wait();
  EXPECT_EQ(desk.MenuUp(), 2);
  desk.TheProgram.Guards.PosChangeRunning = false;
  desk.Wait();
  EXPECT_EQ(desk.MenuUp(), 3);
}

TEST(ToolbarDocking, APointerOnTheHiddenLineRevealsTheStripOnce) {
  DockingDesk desk;
  desk.Start();
  desk.TheProgram.Strip.AutoHide = true;
  desk.Strip.picToolbar.SetVisible(false);
  desk.Docking.Asked.clear();
  // A move arrives while the strip is being revealed.
  desk.Docking.WhileDocking = [&] { desk.Strip.MouseMove(forms::MouseButton::None, {}, 10, 0); };
  desk.Strip.MouseMove(forms::MouseButton::None, {}, 10, 0);
  EXPECT_EQ(desk.Docking.Asked, Calls{"RevealToolbar"});
  EXPECT_FALSE(desk.TheProgram.Guards.HideBusy);
}

TEST(ToolbarDocking, WithAutoHideTheTimerKeepsRunningAndStopsWhenItIsOff) {
  DockingDesk desk;
  desk.SetOption(Option::AutoHide, true);
  desk.Start();
  desk.Wait(1000);
  EXPECT_TRUE(desk.Strip.Timer1.Enabled());
  EXPECT_EQ(desk.Strip.Timer1.Interval(), 250);
  desk.TheProgram.Strip.AutoHide = false;
  desk.Wait(300);
  EXPECT_FALSE(desk.Strip.Timer1.Enabled());
}

TEST(ToolbarDocking, TheTimerLeavesAMinimizedStripAlone) {
  DockingDesk desk;
  desk.SetOption(Option::AutoHide, true);
  desk.Start();
  desk.Click(2);
  desk.TheProgram.Strip.ToolbarMinimized = true;
  desk.Wait(300);
  EXPECT_FALSE(desk.Strip.Timer1.Enabled());
  EXPECT_FALSE(desk.Strip.Timer2.Enabled());
  EXPECT_FALSE(desk.Menu.Poll);
  desk.TheProgram.Strip.ToolbarMinimized = false;
}

TEST(ToolbarDocking, TheTimerStandsAsideWhileAGuardIsSet) {
  for (bool GuardFlags::*flag : {&GuardFlags::StartingUp, &GuardFlags::AppBarBusy,
                                 &GuardFlags::PosChangeRunning, &GuardFlags::RestoreBusy}) {
    DockingDesk desk;
    desk.Start();
    desk.TheProgram.Guards.*flag = true;
    desk.Strip.Timer1_Timer();
    EXPECT_TRUE(desk.Strip.Timer1.Enabled());
    desk.TheProgram.Guards.*flag = false;
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
    desk.TheProgram.Guards.RestoreBusy = true;
    desk.Strip.SetTop(300);
    desk.TheProgram.Guards.RestoreBusy = false;
    desk.TheProgram.Strip.AppBarDocked = docked;
    EXPECT_FALSE(desk.Strip.ToolbarWndProc(message::Move, 0, 0).has_value());
    EXPECT_EQ(desk.Strip.Top(), docked ? 300 : top);
    desk.TheProgram.Strip.AppBarDocked = false;
  }
}

TEST(ToolbarDocking, WhileItIsDockedItsEdgeStaysAskedFor) {
  for (const bool docked : {false, true}) {
    SCOPED_TRACE(docked);
    DockingDesk desk;
    desk.Start();
    desk.TheProgram.Strip.AppBarDocked = docked;
    desk.Strip.DrawBorders();
    EXPECT_EQ(desk.TheProgram.Strip.AppBarRequested, docked);
    desk.TheProgram.Strip.AppBarDocked = false;
  }
}

}  // namespace
}  // namespace corvelle
