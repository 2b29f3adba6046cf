// The companion: the program's end, and what wakes the strip.

#include <gtest/gtest.h>

#include <string>

#include "toolbar/StripDesk.h"

namespace corvelle {
namespace {

/// A window that notes when it is unloaded.
struct NotedWindow final : LoadedWindow {
  NotedWindow(std::string name, std::vector<std::string>& order, bool loaded = true)
      : Name(std::move(name)), Order(order), Loaded(loaded) {}
  void LoadWindow() override { Loaded = true; }
  void UnloadWindow() override {
    Order.push_back(Name);
    Loaded = false;
  }
  bool WindowLoaded() const override { return Loaded; }
  std::string Name;
  std::vector<std::string>& Order;
  bool Loaded;
};

struct NotedProperties final : PropertiesPort {
  NotedProperties(std::vector<std::string>& order, bool loaded = true)
      : Window("Properties", order, loaded) {}
  void LoadWindow() override { Window.LoadWindow(); }
  void UnloadWindow() override { Window.UnloadWindow(); }
  bool WindowLoaded() const override { return Window.WindowLoaded(); }
  void ShowProperties(std::string_view, std::string_view, std::string_view) override {}
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
  NotedProperties properties(order);
  NotedWindow customize("Customize", order);
  NotedWindow image("Image", order);
  NotedWindow library("Library", order);
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

TEST(CompanionEnd, LeavesWindowsAloneThatAreNotLoaded) {
  Started desk;
  std::vector<std::string> order;
  NotedProperties properties(order, false);
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
  desk.SetOption(22, true);
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
  for (bool Program::*flag : {&Program::StartingUp, &Program::AppBarBusy}) {
    Started desk;
    desk.TheProgram.*flag = true;
    desk.Strip.Hide();
    desk.World.Desktop.Send(desk.World.Desktop.Find("frmMinimize"), forms::message::Size, 0, 0);
    EXPECT_FALSE(desk.Strip.Visible());
    desk.TheProgram.*flag = false;
  }
}

TEST(CompanionWake, BringsAMinimizedStripBackOutOfTheTaskBar) {
  Started desk;
  desk.Companion.Minimize();
  desk.Strip.Hide();
  desk.TheProgram.ToolbarMinimized = true;
  desk.TheProgram.ToolbarReady = false;
  const WindowId companion = desk.World.Desktop.Find("frmMinimize");
  desk.World.Desktop.Send(companion, forms::message::Size, 0, 0);
  EXPECT_TRUE(desk.TheProgram.ToolbarMinimized);  // it is minimized still
  desk.Companion.RestoreWindow();
  desk.World.Desktop.Send(companion, forms::message::Size, 0, 0);
  EXPECT_FALSE(desk.TheProgram.ToolbarMinimized);
  EXPECT_TRUE(desk.TheProgram.ToolbarReady);
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

}  // namespace
}  // namespace corvelle
