// What other programs drag over the strip, and drags that leave it.

#include <gtest/gtest.h>

#include "toolbar/DragDesk.h"

namespace corvelle {
namespace {

using forms::DropEffect;
using forms::MouseButton;
using Names = std::vector<std::string>;

// ---- over the strip ----

TEST(ToolbarOLEDragOver, OpensTheMenuUnderTheDragAndLeavesTheForegroundAlone) {
  DragDesk desk;
  desk.TakeFiles({"C:\\a.txt"});
  EXPECT_EQ(desk.MenuUp(), 0);
  desk.DragToButton(2);
  EXPECT_EQ(desk.MenuUp(), 2);
  EXPECT_EQ(desk.Effect(), DropEffect::Copy);
  EXPECT_EQ(desk.TheProgram.Drag.DragButtons, MouseButton::Left);
  EXPECT_TRUE(desk.TheProgram.Drag.DragOverButton);
  EXPECT_EQ(desk.Foreground(), desk.Source);
}

TEST(ToolbarOLEDragOver, MovingAlongTheStripChangesTheMenuAndStayingKeepsIt) {
  DragDesk desk;
  desk.TakeFiles({"C:\\a.txt"});
  desk.DragToButton(2);
  desk.DragToButton(3);
  EXPECT_EQ(desk.MenuUp(), 3);
  desk.Wait(1000);
  EXPECT_EQ(desk.MenuUp(), 3);
  EXPECT_EQ(desk.Menu.Times("ShowMenu F3"), 1);
  desk.DragToButton(2);
  EXPECT_EQ(desk.MenuUp(), 2);
}

TEST(ToolbarOLEDragOver, TheMainMenuButtonRefusesAndClosesTheMenu) {
  DragDesk desk;
  struct Own final : MainMenuPort {
    void xMainMenu(int, std::string_view) override {}
    void CheckLabels() override {}
  } own;
  desk.TheProgram.Ports.MainMenu = &own;
  desk.TakeFiles({"C:\\a.txt"});
  desk.DragToButton(2);
  desk.DragToButton(1);
  EXPECT_EQ(desk.Effect(), DropEffect::None);
  EXPECT_EQ(desk.MenuUp(), 0);
  desk.Wait(500);
  EXPECT_EQ(desk.MenuUp(), 0);
  EXPECT_EQ(desk.Menu.Times("ShowMenu Q1"), 0);
  desk.Drop();
  EXPECT_TRUE(desk.FileUnchanged(1));
  desk.TheProgram.Ports.MainMenu = nullptr;
}

TEST(ToolbarOLEDragOver, TheRightButtonLinks) {
  DragDesk desk;
  desk.TakeFiles({"C:\\a.txt"}, MouseButton::Right);
  desk.DragToButton(2);
  EXPECT_EQ(desk.Effect(), DropEffect::Link);
  EXPECT_EQ(desk.TheProgram.Drag.DragButtons, MouseButton::Right);
}

TEST(ToolbarOLEDragOver, WhatTheSourceDoesNotAllowIsRefused) {
  DragDesk desk;
  desk.PointAt(kDragSource);
  desk.World.Desktop.StartDrag(
      {.Data = {.Files = Names{"C:\\a.txt"}}, .Allowed = DropEffect::Move, .Window = desk.Source});
  desk.DragToButton(2);
  EXPECT_EQ(desk.Effect(), DropEffect::None);
}

TEST(ToolbarOLEDragOver, DataOfNoUseIsRefusedAndOpensNothing) {
  DragDesk desk;
  desk.Take({});
  desk.DragToButton(2);
  EXPECT_EQ(desk.Effect(), DropEffect::None);
  EXPECT_EQ(desk.MenuUp(), 0);
  EXPECT_FALSE(desk.Strip.tmrDragDrop.Enabled());
}

TEST(ToolbarOLEDragOver, AnAddressIsKnownByItsBeginningAndItsWindow) {
  struct Row {
    const char* name;
    const char* text;
    bool expected;
  };
  for (const Row& row :
       {Row{"an address", "http://example.com", true},
        Row{"a secure one", "https://example.com", true}, Row{"upper case", "HTTP://E", false},
        Row{"in the middle", "see http://example.com", false}}) {
    SCOPED_TRACE(row.name);
    DragDesk desk;
    NotedBrowser browser;
    desk.TheProgram.Ports.Browser = &browser;
    desk.TakeText(row.text);
    desk.DragToButton(2);
    EXPECT_EQ(desk.TheProgram.Drag.DragIsUrl, row.expected);
    EXPECT_EQ(browser.Sources,
              row.expected ? std::vector<WindowId>{desk.Source} : std::vector<WindowId>{});
    desk.TheProgram.Ports.Browser = nullptr;
  }
}

TEST(ToolbarOLEDragOver, ClosesTheHintOnceAndEndsACarriedItem) {
  DragDesk desk;
  NotedHint hint;
  desk.TheProgram.Ports.Hint = &hint;
  desk.TakeFiles({"C:\\a.txt"});
  desk.TheProgram.Entry.ItemDragging = true;
  desk.World.Desktop.SetMousePointer(forms::MousePointer::Custom);
  desk.DragToButton(2);
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
  EXPECT_EQ(desk.World.Desktop.CurrentMousePointer(), forms::MousePointer::Default);
  const int closed = hint.Closed;
  EXPECT_GE(closed, 1);
  desk.Wait(500);
  EXPECT_EQ(hint.Closed, closed);
  desk.TheProgram.Ports.Hint = nullptr;
}

TEST(ToolbarOLEDragOver, ClosesTheHintAlsoWhereThePointerWasOnTheStripBefore) {
  DragDesk desk;
  NotedHint hint;
  desk.TheProgram.Ports.Hint = &hint;
  desk.Strip.Menus.WasHovering = true;
  forms::DragData data{.Files = Names{"C:\\a.txt"}};
  DropEffect effect = DropEffect::Copy;
  // Beside the buttons, where no menu opens that would close the hint as well.
  desk.Strip.picToolbar.OLEDragOver(data, effect, MouseButton::Left, {}, 5, 5);
  EXPECT_EQ(hint.Closed, 1);
  desk.TheProgram.Ports.Hint = nullptr;
}

// ---- leaving ----

TEST(ToolbarDragTimer, ADragThatLeavesClosesTheMenuWithinATick) {
  DragDesk desk;
  desk.TakeFiles({"C:\\a.txt"});
  desk.DragToButton(2);
  ASSERT_EQ(desk.MenuUp(), 2);
  desk.PointAt(kDragSource);
  desk.Wait(110);
  EXPECT_EQ(desk.MenuUp(), 0);
  EXPECT_FALSE(desk.TheProgram.Drag.DragOverButton);
  EXPECT_FALSE(desk.TheProgram.Drag.DragIsUrl);
  EXPECT_FALSE(desk.Strip.tmrDragDrop.Enabled());
  EXPECT_TRUE(desk.AtRest(2));
  desk.Drop();
  EXPECT_TRUE(desk.FileUnchanged(1));
}

TEST(ToolbarDragTimer, ADragThatComesBackOpensTheMenuAgain) {
  DragDesk desk;
  desk.TakeFiles({"C:\\a.txt"});
  desk.DragToButton(2);
  desk.PointAt(kDragSource);
  desk.Wait(200);
  desk.DragToButton(3);
  EXPECT_EQ(desk.MenuUp(), 3);
  EXPECT_EQ(desk.Effect(), DropEffect::Copy);
}

TEST(ToolbarDragTimer, AMenuThatWasHiddenUnderTheDragComesUpAgain) {
  DragDesk desk;
  desk.TakeFiles({"C:\\a.txt"});
  desk.DragToButton(2);
  ASSERT_EQ(desk.MenuUp(), 2);
  // A full-screen program goes, and the poll of the menu closes what that has hidden.
  desk.Menu.HideMenu();
  desk.Strip.ResetMenu();
  desk.Wait(50);
  desk.PointAt(
      {desk.World.Desktop.PointerPosition().x + 1, desk.World.Desktop.PointerPosition().y});
  desk.Wait(10);
  EXPECT_EQ(desk.MenuUp(), 2);
  EXPECT_EQ(desk.Effect(), DropEffect::Copy);
}

TEST(ToolbarDragTimer, EscOverTheStripClosesTheMenu) {
  DragDesk desk;
  desk.TakeFiles({"C:\\a.txt"});
  desk.DragToButton(2);
  desk.World.Desktop.PressKey(forms::key::Escape);
  desk.Wait(310);
  EXPECT_EQ(desk.MenuUp(), 0);
  EXPECT_FALSE(desk.Strip.tmrDragDrop.Enabled());
}

TEST(ToolbarDragTimer, TheWayOverTheFrameIntoTheMenuKeepsIt) {
  DragDesk desk;
  desk.TakeFiles({"C:\\a.txt"});
  desk.DragToButton(2);
  const PixelRect strip = desk.World.Desktop.BoundsOf(desk.Strip.hWnd());
  desk.PointAt({desk.Middle(2).x, strip.bottom - 1});
  ASSERT_EQ(desk.World.Desktop.WindowAt(desk.World.Desktop.PointerPosition()), desk.Strip.hWnd());
  desk.Wait(500);
  EXPECT_EQ(desk.MenuUp(), 2);
}

TEST(ToolbarDragTimer, ASlowSourceMayTakeAMomentFromTheStripIntoTheMenu) {
  DragDesk desk;
  desk.TakeFiles({"C:\\a.txt"});
  desk.DragToButton(2);
  desk.World.Desktop.KillDragSource();
  desk.TheProgram.Drag.DragOverButton = false;
  const PixelRect menu = desk.World.Desktop.BoundsOf(desk.Menu.hWnd());
  desk.PointAt({menu.left + 20, menu.top + 20});
  desk.Wait(200);
  EXPECT_EQ(desk.MenuUp(), 2);
  desk.TheProgram.Drag.DragOverButton = true;
  desk.Wait(1000);
  EXPECT_EQ(desk.MenuUp(), 2);
}

TEST(ToolbarDragTimer, ASourceThatDiesOverTheStripLeavesNothingBehind) {
  struct Row {
    const char* name;
    int button;
  };
  for (const Row& row : {Row{"with a menu", 2}, Row{"over the main menu's button", 1}}) {
    SCOPED_TRACE(row.name);
    DragDesk desk;
    desk.TakeFiles({"C:\\a.txt"});
    desk.DragToButton(row.button);
    desk.World.Desktop.KillDragSource();
    desk.Wait(200);
    desk.World.Desktop.Release();
    desk.Wait(1000);
    EXPECT_EQ(desk.MenuUp(), 0);
    EXPECT_FALSE(desk.Strip.tmrDragDrop.Enabled());
    EXPECT_FALSE(desk.TheProgram.Drag.DragEntered);
    desk.PointAway();
    desk.Wait(200);
    EXPECT_EQ(desk.WakeUps(2000), 0);
    desk.Click(3);
    EXPECT_EQ(desk.MenuUp(), 3);
  }
}

TEST(ToolbarDragTimer, ASourceThatDiesElsewhereClosesTheMenu) {
  DragDesk desk;
  desk.TakeFiles({"C:\\a.txt"});
  desk.DragToButton(2);
  desk.World.Desktop.KillDragSource();
  desk.PointAway();
  desk.Wait(110);
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(ToolbarDragTimer, GivesTheForegroundToNoMenuThatIsGone) {
  DragDesk desk;
  desk.World.Desktop.LockForeground(false);
  desk.Click(2);
  desk.Menu.SetForeground();
  // The source has no window in the foreground.
  desk.World.Desktop.StartDrag({.Data = {.Files = std::vector<std::string>{"C:\\a.txt"}}});
  desk.DragToButton(3);
  ASSERT_EQ(desk.Strip.Drops.SavedForeground, desk.Menu.hWnd());
  desk.World.Desktop.TakeForeground(desk.Strip.hWnd());
  desk.PointAway();
  desk.Wait(110);
  ASSERT_EQ(desk.MenuUp(), 0);
  EXPECT_EQ(desk.Foreground(), desk.Strip.hWnd());
}

TEST(ToolbarDragTimer, GivesTheForegroundBackThatTheMenuTook) {
  DragDesk desk;
  desk.TakeFiles({"C:\\a.txt"});
  desk.DragToButton(2);
  EXPECT_EQ(desk.Strip.Drops.SavedForeground, desk.Source);
  desk.World.Desktop.LockForeground(false);
  desk.Menu.SetForeground();
  ASSERT_EQ(desk.Foreground(), desk.Menu.hWnd());
  desk.DragToButton(3);
  EXPECT_EQ(desk.Strip.Drops.SavedForeground, desk.Source);
  desk.PointAway();
  desk.Wait(110);
  EXPECT_EQ(desk.Foreground(), desk.Source);
}

TEST(ToolbarDragTimer, LeavesTheForegroundToWhomTheUserGaveIt) {
  DragDesk desk;
  const WindowId third = desk.World.Desktop.AddOtherWindow({.Title = "Third"});
  desk.TakeFiles({"C:\\a.txt"});
  desk.DragToButton(2);
  desk.World.Desktop.TakeForeground(third);
  desk.PointAway();
  desk.Wait(110);
  EXPECT_EQ(desk.Foreground(), third);
}

TEST(ToolbarDragTimer, UnloadingTheStripUnderADragEndsIt) {
  DragDesk desk;
  desk.TakeFiles({"C:\\a.txt"});
  desk.DragToButton(2);
  desk.Exit();
  EXPECT_FALSE(desk.Strip.IsLoaded());
  EXPECT_FALSE(desk.Strip.tmrDragDrop.Enabled());
  desk.Drop();
  EXPECT_TRUE(desk.FileUnchanged(1));
}

}  // namespace
}  // namespace corvelle
