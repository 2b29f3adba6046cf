// The companion: the program's end, and what wakes the strip.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "toolbar/StripDesk.h"

namespace corvelle {
namespace {

/// A window that notes when it is unloaded.
struct NotedWindow final : EditingWindow {
  NotedWindow(std::string name, std::vector<std::string>& order, bool loaded = true)
      : Name(std::move(name)), Order(order), Loaded(loaded) {}
  void LoadWindow() override { Loaded = true; }
  void UnloadWindow() override {
    Order.push_back(Name);
    Loaded = false;
  }
  bool CloseWindow() override {
    ADD_FAILURE() << Name << " was asked whether it goes";
    return false;
  }
  void EndSession() override {
    Order.push_back(Name + " without a question");
    Loaded = false;
  }
  bool WindowLoaded() const override { return Loaded; }
  std::string Name;
  std::vector<std::string>& Order;
  bool Loaded;
};

struct PropertiesInOrder final : PropertiesPort {
  PropertiesInOrder(std::vector<std::string>& order, bool loaded = true)
      : Window("Properties", order, loaded) {}
  void LoadWindow() override { Window.LoadWindow(); }
  void UnloadWindow() override { Window.UnloadWindow(); }
  bool WindowLoaded() const override { return Window.WindowLoaded(); }
  void ShowProperties(std::string_view, std::string_view, std::string_view) override {}
  NotedWindow Window;
};

struct LibraryInOrder final : LibraryPort {
  LibraryInOrder(std::vector<std::string>& order, bool loaded = true)
      : Window("Library", order, loaded) {}
  void LoadWindow() override { Window.LoadWindow(); }
  void UnloadWindow() override { Window.UnloadWindow(); }
  bool WindowLoaded() const override { return Window.WindowLoaded(); }
  void Show(std::string_view) override {}
  NotedWindow Window;
};

struct Started : StripDesk {
  Started() {
    PutButtons(1);
    Start();
  }
};

TEST(Companion, IsHiddenAndBearsTheProgramsTitle) {
  Started desk;
  const sim::SimWindow* window = desk.World.Desktop.Look(desk.World.Desktop.Find("frmMinimize"));
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(window->Text, "Corvelle");
  EXPECT_FALSE(window->Visible);
  EXPECT_TRUE(window->InTaskbar);
  EXPECT_EQ(window->Bounds, desk.World.Desktop.BoundsOf(desk.Strip.hWnd()));
}

TEST(CompanionEnd, UnloadsEveryWindowInItsOrderAndQuits) {
  Started desk;
  std::vector<std::string> order;
  NotedWindow netSearch("NetSearch", order);
  PropertiesInOrder properties(order);
  NotedWindow customize("Customize", order);
  NotedWindow image("Image", order);
  LibraryInOrder library(order);
  WindowPorts& ports = desk.TheProgram.Ports;
  ports.NetSearch = &netSearch;
  ports.Properties = &properties;
  ports.Customize = &customize;
  ports.ImageWindow = &image;
  ports.Library = &library;
  NotedWindow menu("Menu", order);
  desk.World.Desktop.ClearLog();
  desk.Exit();
  const std::vector<std::string> expected = {"NetSearch", "Properties", "Customize", "Image",
                                             "Library"};
  EXPECT_EQ(order, expected);
  // The menu goes before the strip, and the companion last.
  std::vector<std::string> destroyed;
  for (const std::string& line : desk.World.Desktop.Log()) {
    if (line.starts_with("destroy frm")) destroyed.push_back(line);
  }
  const std::vector<std::string> windows = {"destroy frmQMenu", "destroy frmToolbar",
                                            "destroy frmMinimize"};
  EXPECT_EQ(destroyed, windows);
  EXPECT_TRUE(desk.World.Desktop.QuitCalled());
}

TEST(CompanionEnd, TheEndOfTheSessionAsksNothingInCustomize) {
  Started desk;
  std::vector<std::string> order;
  NotedWindow customize("Customize", order);
  desk.TheProgram.Ports.Customize = &customize;
  desk.World.Desktop.EndSession(desk.Companion.hWnd());
  EXPECT_EQ(order, std::vector<std::string>{"Customize without a question"});
  EXPECT_TRUE(desk.World.Desktop.QuitCalled());
}

TEST(CompanionEnd, LeavesWindowsAloneThatAreNotLoaded) {
  Started desk;
  std::vector<std::string> order;
  PropertiesInOrder properties(order, false);
  desk.TheProgram.Ports.Properties = &properties;
  desk.Exit();
  EXPECT_TRUE(order.empty());
}

TEST(CompanionEnd, ComesWithACloseFromOutside) {
  Started desk;
  desk.World.Desktop.Send(desk.World.Desktop.Find("frmMinimize"), forms::message::Close, 0, 0);
  EXPECT_FALSE(desk.Companion.IsLoaded());
  EXPECT_FALSE(desk.Strip.IsLoaded());
  EXPECT_TRUE(desk.World.Desktop.QuitCalled());
}

TEST(CompanionEnd, ComesWithTheEndOfTheSessionAndSavesAll) {
  Started desk;
  desk.SetOption(Option::NoHints, true);
  desk.World.Desktop.EndSession();
  EXPECT_FALSE(desk.Strip.IsLoaded());
  const auto flags = desk.World.Files.Get("C:\\Corvelle\\tmenu425.dat");
  ASSERT_TRUE(flags);
  EXPECT_EQ((*flags)[21], '1');
  EXPECT_TRUE(desk.World.Files.Has("C:\\Corvelle\\toolbarp.dat"));
}

TEST(CompanionEnd, ComesFromWithinAnOpenMenuToo) {
  Started desk;
  desk.Click(2);
  ASSERT_EQ(desk.MenuUp(), 2);
  desk.World.Desktop.Send(desk.World.Desktop.Find("frmMinimize"), forms::message::Close, 0, 0);
  EXPECT_FALSE(desk.Strip.IsLoaded());
  EXPECT_FALSE(desk.Menu.IsLoaded());
  desk.Wait(1000);
  EXPECT_EQ(desk.World.Desktop.Clock().Running(), 0);
}

TEST(CompanionEnd, ASecondCloseWithinTheEndChangesNothing) {
  Started desk;
  // The strip lets events through while it unloads.
  const WindowId companion = desk.World.Desktop.Find("frmMinimize");
  desk.World.Desktop.Post(companion, forms::message::Close, 0, 0);
  desk.World.Desktop.Post(companion, forms::message::Close, 0, 0);
  desk.World.Desktop.Send(companion, forms::message::Close, 0, 0);
  desk.World.Desktop.Pump();
  EXPECT_FALSE(desk.Companion.IsLoaded());
  EXPECT_EQ(desk.Menu.Times("UnloadWindow"), 1);
}

TEST(CompanionWake, ASizeMessageWithoutASizeBringsTheStripForward) {
  Started desk;
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Title = "Other", .Topmost = true});
  desk.World.Desktop.TakeForeground(other);
  desk.Strip.Hide();
  desk.World.Desktop.Send(desk.World.Desktop.Find("frmMinimize"), forms::message::Size, 0, 0);
  EXPECT_TRUE(desk.Strip.Visible());
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), desk.Strip.hWnd());
  EXPECT_FALSE(desk.Companion.Visible());
}

TEST(CompanionWake, ArrivesInVainWhileTheStripIsBuilt) {
  for (bool GuardFlags::*flag : {&GuardFlags::StartingUp, &GuardFlags::AppBarBusy}) {
    Started desk;
    desk.TheProgram.Guards.*flag = true;
    desk.Strip.Hide();
    desk.World.Desktop.Send(desk.World.Desktop.Find("frmMinimize"), forms::message::Size, 0, 0);
    EXPECT_FALSE(desk.Strip.Visible());
    desk.TheProgram.Guards.*flag = false;
  }
}

TEST(CompanionWake, BringsAMinimizedStripBackOutOfTheTaskBar) {
  Started desk;
  desk.Companion.Minimize();
  desk.Strip.Hide();
  desk.TheProgram.Strip.ToolbarMinimized = true;
  desk.TheProgram.Guards.ToolbarReady = false;
  const WindowId companion = desk.World.Desktop.Find("frmMinimize");
  desk.World.Desktop.Send(companion, forms::message::Size, 0, 0);
  EXPECT_TRUE(desk.TheProgram.Strip.ToolbarMinimized);  // it is minimized still
  desk.Companion.RestoreWindow();
  desk.World.Desktop.Send(companion, forms::message::Size, 0, 0);
  EXPECT_FALSE(desk.TheProgram.Strip.ToolbarMinimized);
  EXPECT_TRUE(desk.TheProgram.Guards.ToolbarReady);
  EXPECT_TRUE(desk.Strip.Visible());
  EXPECT_FALSE(desk.Companion.Visible());
}

TEST(CompanionWake, ClicksOnTheTrayBringTheStripForward) {
  struct Row {
    const char* name;
    std::intptr_t mouse;
    bool wakes;
  };
  const Row rows[] = {{"left button up", 514, true},
                      {"double click", 515, true},
                      {"a move", 512, false},
                      {"right button up", 517, false}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Started desk;
    desk.Strip.Hide();
    desk.World.Desktop.Send(desk.World.Desktop.Find("frmMinimize"), 512, 1, row.mouse);
    EXPECT_EQ(desk.Strip.Visible(), row.wakes);
  }
}

// ---- the tray ----

TEST(CompanionTray, ShowsTheProgramsIconOnceAndTakesItAway) {
  Started desk;
  desk.Companion.ShowInSysTray();
  desk.Companion.ShowInSysTray();
  ASSERT_EQ(desk.World.Tray.Shown.size(), 1U);
  const TrayIcon& icon = desk.World.Tray.Shown[0];
  EXPECT_EQ(icon.Window, desk.Companion.hWnd());
  EXPECT_EQ(icon.Id, 1U);
  EXPECT_EQ(icon.CallbackMessage, 512U);
  EXPECT_EQ(icon.IconFile, "C:\\Corvelle\\corvelle.exe");
  EXPECT_EQ(icon.Tip, "Corvelle");
  desk.Companion.RemoveFromSysTray();
  EXPECT_TRUE(desk.World.Tray.Shown.empty());
}

TEST(CompanionTray, IsLeftAtTheEnd) {
  Started desk;
  desk.Companion.ActivateSysTray();
  desk.Exit();
  EXPECT_TRUE(desk.World.Tray.Shown.empty());
}

/// A window that asks something when it is closed, while the task bar is started again.
struct AskingWindow final : LoadedWindow {
  explicit AskingWindow(sim::World& world) : World(world) {}
  void LoadWindow() override {}
  bool WindowLoaded() const override { return true; }
  void UnloadWindow() override {
    World.Tray.Shown.clear();
    World.Desktop.Broadcast(World.Tray.TaskbarCreatedMessage());
    World.Desktop.Pump();
  }
  sim::World& World;
};

TEST(CompanionTray, IsLeftAtTheEndThoughTheTaskBarIsStartedAgainOnTheWay) {
  Started desk;
  desk.Companion.ActivateSysTray();
  AskingWindow search(desk.World);
  desk.TheProgram.Ports.NetSearch = &search;
  desk.Exit();
  EXPECT_TRUE(desk.World.Tray.Shown.empty());
}

TEST(CompanionTray, ComesBackWithANewTaskBar) {
  Started desk;
  desk.Companion.ActivateSysTray();
  desk.World.Tray.Shown.clear();
  desk.World.Desktop.Broadcast(desk.World.Tray.TaskbarCreatedMessage());
  EXPECT_EQ(desk.World.Tray.Shown.size(), 1U);
  desk.Companion.DeActivateSysTray();
  desk.World.Desktop.Broadcast(desk.World.Tray.TaskbarCreatedMessage());
  EXPECT_TRUE(desk.World.Tray.Shown.empty());
}

TEST(CompanionTray, IsEnteredWhenATaskBarComesUpThatWasNotThereBefore) {
  Started desk;
  desk.World.Tray.NoTaskbar = true;
  desk.Companion.ActivateSysTray();
  EXPECT_FALSE(desk.Companion.InTray);
  desk.World.Tray.NoTaskbar = false;
  desk.World.Desktop.Broadcast(desk.World.Tray.TaskbarCreatedMessage());
  EXPECT_TRUE(desk.Companion.InTray);
}

// ---- Not On Top ----

struct NotedTip final : TipPort {
  void ShowTip(std::string_view title, std::string_view text,
               std::optional<Option> field) override {
    Title = title;
    Text = text;
    Field = field;
  }
  std::string Title;
  std::string Text;
  std::optional<Option> Field;
};

/// Docking that only notes what it is asked for.
struct NotedDocking final : DockingPort {
  explicit NotedDocking(Program& program) : TheProgram(program) {}
  void RegisterAppBar() override { Asked.emplace_back("RegisterAppBar"); }
  void RemoveAppBar() override { Asked.emplace_back("RemoveAppBar"); }
  void EndAppBar() override { Asked.emplace_back("EndAppBar"); }
  void LeaveEdge() override { Asked.emplace_back("LeaveEdge"); }
  bool AutoHideFree(Edge) override { return Free; }
  void SetAppBar(std::optional<Edge> edge, bool rebuild) override {
    Asked.push_back("SetAppBar " + std::string(edge ? EdgeText(*edge) : "") +
                    (rebuild ? " anew" : ""));
    TheProgram.Strip.AppBarDocked = true;
  }
  void RevealToolbar() override { Asked.emplace_back("RevealToolbar"); }
  void HideToolbar() override {}
  void ShowAutoHideTaken() override { Asked.emplace_back("ShowAutoHideTaken"); }
  void ResizeToEdge() override {}
  Program& TheProgram;
  bool Free = true;
  std::vector<std::string> Asked;
};

TEST(CompanionNotOnTop, LetsOtherWindowsCoverTheStripAndSaysHowToGetItBack) {
  NotedTip tip;
  Started desk;
  desk.TheProgram.Ports.Tip = &tip;
  desk.TheProgram.Strip.AutoHide = true;
  desk.SetOption(Option::AutoHide, true);
  ASSERT_TRUE(desk.World.Desktop.IsTopmost(desk.Strip.hWnd()));
  desk.Companion.ActivateSysTray();
  EXPECT_FALSE(desk.World.Desktop.IsTopmost(desk.Strip.hWnd()));
  EXPECT_TRUE(desk.World.Desktop.IsTopmost(desk.Menu.hWnd()));
  EXPECT_TRUE(desk.Strip.Visible());
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), desk.Strip.hWnd());
  EXPECT_TRUE(desk.TheProgram.Strip.NotOnTop);
  EXPECT_FALSE(desk.TheProgram.Strip.AutoHide);
  const auto flags = desk.World.Files.Get("C:\\Corvelle\\tmenu425.dat");
  ASSERT_TRUE(flags);
  EXPECT_EQ((*flags)[22], '1');
  EXPECT_EQ((*flags)[2], '0');
  EXPECT_TRUE(desk.Companion.InTray);
  EXPECT_EQ(tip.Title, "Not On Top");
  EXPECT_EQ(tip.Text,
            "If the Toolbar is set to 'Not On Top', any window can cover the toolbar. This is an "
            "alternative option to Auto Hide.\r\n\r\nTo bring the toolbar to the foreground, click "
            "Corvelle icon on the Taskbar/System Tray.\r\n\r\n");
  EXPECT_EQ(tip.Field, Option::NotOnTopTipDone);
}

TEST(CompanionNotOnTop, SaysNothingToWhoWantsNoMoreOfIt) {
  NotedTip tip;
  Started desk;
  desk.TheProgram.Ports.Tip = &tip;
  desk.SetOption(Option::NotOnTopTipDone, true);
  desk.Companion.ActivateSysTray();
  EXPECT_EQ(tip.Field, std::nullopt);
}

TEST(CompanionNotOnTop, SwitchedOnTwiceIsSwitchedOnOnce) {
  Started desk;
  desk.Companion.ActivateSysTray();
  desk.World.Desktop.ClearLog();
  desk.Companion.ActivateSysTray();
  EXPECT_TRUE(desk.World.Desktop.Log().empty());
}

TEST(CompanionNotOnTop, SwitchedOffPutsTheStripOnTopAgain) {
  Started desk;
  desk.Companion.ActivateSysTray();
  desk.Companion.DeActivateSysTray();
  EXPECT_TRUE(desk.World.Desktop.IsTopmost(desk.Strip.hWnd()));
  EXPECT_FALSE(desk.TheProgram.Strip.NotOnTop);
  EXPECT_EQ((*desk.World.Files.Get("C:\\Corvelle\\tmenu425.dat"))[22], '0');
  EXPECT_TRUE(desk.World.Tray.Shown.empty());
}

/// A hint that notes the level that it is put on.
struct HintLevels final : HintPort {
  void SetHint(std::string_view) override {}
  WindowId WindowHandle() const override { return kNoWindow; }
  void SetHintLevel(forms::InsertAfter after, unsigned flags) override {
    Levels.push_back(std::to_string(static_cast<int>(after)) + ' ' + std::to_string(flags));
  }
  std::vector<std::string> Levels;
};

TEST(CompanionNotOnTop, PutsTheHintOnTopBothWaysWhereHintsAreShown) {
  for (const bool hints : {true, false}) {
    SCOPED_TRACE(hints);
    HintLevels hint;
    Started desk;
    desk.SetOption(Option::NoHints, !hints);
    desk.TheProgram.Ports.Hint = &hint;
    desk.Companion.ActivateSysTray();
    const std::vector<std::string> once(hints ? 1 : 0, "-1 131");
    EXPECT_EQ(hint.Levels, once);
    desk.Companion.DeActivateSysTray();
    const std::vector<std::string> twice(hints ? 2 : 0, "-1 131");
    EXPECT_EQ(hint.Levels, twice);
    desk.TheProgram.Ports.Hint = nullptr;
  }
}

TEST(CompanionNotOnTop, GivesTheEdgeBackAndTakesItAnewEachWay) {
  Started desk;
  NotedDocking docking(desk.TheProgram);
  desk.TheProgram.Ports.Docking = &docking;
  desk.TheProgram.Strip.AppBarDocked = true;
  desk.TheProgram.Strip.ToolbarEdge = Edge::Left;
  const std::vector<std::string> anew = {"RemoveAppBar", "SetAppBar LEFT anew", "RevealToolbar"};
  desk.Companion.ActivateSysTray();
  EXPECT_EQ(docking.Asked, anew);
  docking.Asked.clear();
  desk.Companion.DeActivateSysTray();
  EXPECT_EQ(docking.Asked, anew);
  desk.TheProgram.Strip.AppBarDocked = false;
  desk.TheProgram.Ports.Docking = nullptr;
}

TEST(CompanionNotOnTop, AClickOnTheTrayBringsTheStripBeforeTheWindowThatCoversIt) {
  Started desk;
  desk.Companion.ActivateSysTray();
  const PixelRect strip = desk.World.Desktop.BoundsOf(desk.Strip.hWnd());
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Bounds = {0, 0, 1024, 300}});
  desk.World.Desktop.TakeForeground(other);
  const PixelPoint at{strip.left + 10, strip.bottom - 5};
  ASSERT_EQ(desk.World.Desktop.WindowAt(at), other);
  // The system keeps programs from pushing in, and yet this one comes.
  desk.World.Desktop.LockForeground(true);
  desk.World.Desktop.Send(desk.Companion.hWnd(), 512, 1, 514);
  EXPECT_NE(desk.World.Desktop.WindowAt(at), other);
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), desk.Strip.hWnd());
}

// ---- into the task bar and back ----

TEST(CompanionMinimize, PutsTheStripAwayAndAClickInTheTaskBarBringsItBack) {
  Started desk;
  const PixelRect place = desk.World.Desktop.BoundsOf(desk.Strip.hWnd());
  desk.Companion.MinimizeFor(desk.Strip.WindowBounds());
  EXPECT_FALSE(desk.Strip.Visible());
  EXPECT_TRUE(desk.Companion.IsMinimized());
  EXPECT_TRUE(desk.Companion.Visible());
  EXPECT_TRUE(desk.TheProgram.Strip.ToolbarMinimized);
  EXPECT_FALSE(desk.TheProgram.Strip.ToolbarMinimizing);
  EXPECT_FALSE(desk.TheProgram.Guards.ToolbarReady);
  // The tray's icon, when there is one, does the same as the task bar's button.
  desk.World.Desktop.Send(desk.Companion.hWnd(), 512, 1, 514);
  desk.World.Desktop.Send(desk.Companion.hWnd(), forms::message::Size, 0, 0);
  EXPECT_TRUE(desk.Strip.Visible());
  EXPECT_FALSE(desk.Companion.Visible());
  EXPECT_EQ(desk.World.Desktop.BoundsOf(desk.Strip.hWnd()), place);
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), desk.Strip.hWnd());
  EXPECT_TRUE(desk.TheProgram.Guards.ToolbarReady);
}

struct AtEdge : Started {
  AtEdge() {
    TheProgram.Ports.Docking = &Docking;
    TheProgram.Strip.AppBarDocked = true;
    TheProgram.Strip.ToolbarEdge = Edge::Right;
  }
  ~AtEdge() {
    TheProgram.Ports.Docking = nullptr;
    TheProgram.Strip.AppBarDocked = false;
    TheProgram.Strip.AutoHide = false;
  }
  void ComeBack() {
    Companion.RestoreWindow();
    World.Desktop.Send(Companion.hWnd(), forms::message::Size, 0, 0);
  }
  NotedDocking Docking{TheProgram};
};

TEST(CompanionMinimize, LeavesTheEdgeAndReturnsToIt) {
  AtEdge desk;
  desk.Companion.MinimizeFor(desk.Strip.WindowBounds());
  EXPECT_EQ(desk.Docking.Asked, std::vector<std::string>{"LeaveEdge"});
  EXPECT_FALSE(desk.TheProgram.Strip.AppBarDocked);
  EXPECT_TRUE(desk.TheProgram.Strip.WasDocked);
  EXPECT_EQ(desk.Companion.WasEdge, Edge::Right);
  EXPECT_EQ(desk.Companion.WasTop, desk.Strip.Top());
  desk.TheProgram.Strip.ToolbarEdge = Edge::Top;
  desk.Docking.Asked.clear();
  desk.ComeBack();
  const std::vector<std::string> asked = {"RegisterAppBar", "SetAppBar RIGHT"};
  EXPECT_EQ(desk.Docking.Asked, asked);
  EXPECT_FALSE(desk.TheProgram.Strip.WasDocked);
  EXPECT_FALSE(desk.Companion.WasEdge);
  EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, Edge::Right);
  EXPECT_TRUE(desk.Strip.Visible());
}

TEST(CompanionMinimize, TakesTheSizeThatTheStripHasByNow) {
  AtEdge desk;
  TwipRect place = desk.Strip.WindowBounds();
  place.Width += 1500;
  desk.Companion.MinimizeFor(place);
  EXPECT_TRUE(desk.TheProgram.Strip.ToolbarMinimized);
  EXPECT_TRUE(desk.TheProgram.Strip.WasDocked);
  EXPECT_FALSE(desk.TheProgram.Strip.AppBarDocked);
  EXPECT_FALSE(desk.Strip.Visible());
  EXPECT_EQ(desk.Companion.Width(), place.Width);
}

TEST(CompanionMinimize, ReturnsWithoutAutoHideWhereAnotherHidesByNow) {
  AtEdge desk;
  desk.TheProgram.Strip.AutoHide = true;
  desk.SetOption(Option::AutoHide, true);
  desk.Companion.MinimizeFor(desk.Strip.WindowBounds());
  desk.Docking.Asked.clear();
  desk.Docking.Free = false;
  desk.ComeBack();
  const std::vector<std::string> asked = {"ShowAutoHideTaken", "RegisterAppBar", "SetAppBar RIGHT"};
  EXPECT_EQ(desk.Docking.Asked, asked);
  EXPECT_FALSE(desk.TheProgram.Strip.AutoHide);
  EXPECT_FALSE(desk.TheProgram.OptionFlags.Is(Option::AutoHide));
}

TEST(CompanionMinimize, OfAStripThatHidesEndsWithItRevealed) {
  AtEdge desk;
  desk.TheProgram.Strip.AutoHide = true;
  desk.Companion.MinimizeFor(desk.Strip.WindowBounds());
  desk.ComeBack();
  EXPECT_EQ(desk.Docking.Asked.back(), "RevealToolbar");
}

TEST(CompanionMinimize, OfAFloatingStripThatMovesLeavesNoCompanionInTheTaskBar) {
  Started desk;
  desk.Companion.ShowNoActivate();
  desk.TheProgram.Strip.ToolbarMinimized = true;
  desk.Strip.SetTop(600);
  EXPECT_TRUE(desk.Companion.Visible());
  desk.TheProgram.Strip.ToolbarMinimized = false;
  desk.Strip.SetTop(900);
  EXPECT_FALSE(desk.Companion.Visible());
}

TEST(CompanionMinimize, AnEndOnTheWayRemembersTheEdge) {
  AtEdge desk;
  desk.Companion.MinimizeFor(desk.Strip.WindowBounds());
  desk.Exit();
  EXPECT_EQ(desk.World.Files.Get("C:\\Corvelle\\tmenu425.dat")->substr(13, 3), "111");
}

TEST(CompanionMinimize, AStripThatOthersMayCoverReturnsWithItsTrayIcon) {
  Started desk;
  desk.Companion.ActivateSysTray();
  desk.Companion.MinimizeFor(desk.Strip.WindowBounds());
  desk.Companion.RestoreWindow();
  desk.World.Desktop.Send(desk.Companion.hWnd(), forms::message::Size, 0, 0);
  EXPECT_FALSE(desk.Companion.Visible());
  EXPECT_TRUE(desk.Companion.InTray);
  EXPECT_FALSE(desk.World.Desktop.IsTopmost(desk.Strip.hWnd()));
}

TEST(CompanionMinimize, WithoutAStripDoesNothing) {
  Started desk;
  const TwipRect place = desk.Strip.WindowBounds();
  desk.Strip.UnloadWindow();
  desk.Companion.MinimizeFor(place);
  EXPECT_FALSE(desk.TheProgram.Strip.ToolbarMinimized);
  EXPECT_FALSE(desk.Companion.IsMinimized());
}

}  // namespace
}  // namespace corvelle
