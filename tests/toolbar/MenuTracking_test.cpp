// The tracking of menus, on a strip that is no more than its controls.

#include "toolbar/strip/MenuTracking.h"

#include <gtest/gtest.h>

#include "toolbar/PlainRowDesk.h"

namespace corvelle {
namespace {

using forms::MouseButton;
using Calls = std::vector<std::string>;

struct TrackedMainMenu final : MainMenuPort {
  void xMainMenu(int, std::string_view) override {}
  void CheckLabels() override {}
};

/// Three buttons with menus behind the program's own.
struct TrackDesk : PlainMenusDesk {
  TrackDesk() : PlainMenusDesk({"Menu 1", "Menu 2", "Menu 3"}) {
    Watch.SetInterval(1);
    Watch.Tick = [this] { Menus.Timer2_Timer(); };
    World.Desktop.Pump();
    Menu.Asked.clear();
    Strip.Asked.clear();
  }

  /// A press where the pointer would be on that button, told as the box tells.
  void Press(int button, MouseButton pressed = MouseButton::Left) {
    PointAtButton(button);
    const ButtonRect& rect = Row.ToolbarButtons[static_cast<std::size_t>(button)];
    Menus.picToolbar_MouseDown(pressed, rect.Left + rect.Width / 2, rect.Top + rect.Height / 2);
  }
  void Move(int button, MouseButton down = MouseButton::None) {
    PointAtButton(button);
    const ButtonRect& rect = Row.ToolbarButtons[static_cast<std::size_t>(button)];
    Menus.picToolbar_MouseMove(down, rect.Left + rect.Width / 2, rect.Top + rect.Height / 2);
  }
};

TEST(MenuTracking, APressOpensTheMenuOfItsButtonAndASecondOneClosesIt) {
  TrackDesk desk;
  desk.Press(3);
  EXPECT_TRUE(desk.Menus.MenuUp());
  EXPECT_EQ(desk.Menus.MenuOwner(), 3);
  EXPECT_EQ(desk.Menu.CurrentKey(), "F3");
  EXPECT_EQ(desk.Menu.LastFile, desk.Row.PathOf(3));
  EXPECT_TRUE(desk.Menu.Poll);
  EXPECT_TRUE(desk.Watch.Enabled());
  EXPECT_FALSE(desk.Row.LooksAtRest(3));
  desk.Press(3);
  EXPECT_FALSE(desk.Menus.MenuUp());
  EXPECT_EQ(desk.Menu.OwnerTag(), "0");
  EXPECT_TRUE(desk.Row.LooksAtRest(3));
  EXPECT_TRUE(desk.Menus.LastOpenFlag);
  EXPECT_EQ(desk.Menus.LastOpenButton, 3);
}

TEST(MenuTracking, OnlyTheLeftButtonPresses) {
  TrackDesk desk;
  desk.Press(2, MouseButton::Right);
  EXPECT_FALSE(desk.Menus.MenuUp());
  EXPECT_EQ(desk.TheProgram.Menu.CurButton, 0);
}

TEST(MenuTracking, TheProgramsOwnButtonOpensAMenuOnlyWhereThereIsOne) {
  TrackDesk desk;
  EXPECT_FALSE(desk.Menus.OpensMenu(1));
  desk.Press(2);
  desk.Press(1);
  EXPECT_FALSE(desk.Menus.MenuUp()) << "the one that was up goes";
  TrackedMainMenu own;
  desk.TheProgram.Ports.MainMenu = &own;
  EXPECT_TRUE(desk.Menus.OpensMenu(1));
  desk.Press(1);
  EXPECT_EQ(desk.Menu.CurrentKey(), "Q1");
  EXPECT_EQ(desk.Menu.LastFile, "C:\\Corvelle\\" + std::string(kMainMenuFileName));
  EXPECT_FALSE(desk.Menus.OpensMenu(5)) << "no such button";
}

TEST(MenuTracking, AMenuThatDidNotComeUpLeavesTheStripAtRest) {
  TrackDesk desk;
  desk.Menu.Refuses = true;
  desk.Press(2);
  EXPECT_FALSE(desk.TheProgram.Menu.MenuOpen);
  EXPECT_TRUE(desk.Row.LooksAtRest(2));
  EXPECT_EQ(desk.Menu.OwnerTag(), "0");
  EXPECT_FALSE(desk.Menu.Poll);
}

TEST(MenuTracking, AMenuThatSomethingClosedWhileItWasBuiltStaysClosed) {
  TrackDesk desk;
  desk.Menu.WhileBuilding = [&] { desk.Menus.ResetMenu(); };
  desk.Press(2);
  EXPECT_FALSE(desk.Menus.MenuUp());
  EXPECT_FALSE(desk.TheProgram.Menu.MenuOpen);
}

TEST(MenuTracking, OpensAMenuByItsTagAndAnEmptyTagTakesTheLast) {
  TrackDesk desk;
  desk.Menus.OpenMenu("F4");
  EXPECT_EQ(desk.Menus.MenuOwner(), 4);
  desk.Menus.ResetMenu();
  desk.Menus.OpenMenu("");
  EXPECT_EQ(desk.Menus.MenuOwner(), 4);
  desk.Menus.ResetMenu();
  desk.Menu.Asked.clear();
  for (const char* tag : {"F9", "F", "Fx", "Q1"}) desk.Menus.OpenMenu(tag);
  EXPECT_EQ(desk.Menu.Asked, Calls{});
}

TEST(MenuTracking, RefreshBuildsTheMenuThatIsUpAgain) {
  TrackDesk desk;
  desk.Press(2);
  desk.Menu.Asked.clear();
  desk.Menus.RefreshMenu("F2");
  EXPECT_EQ(desk.Menu.Times("ShowMenu F2"), 1);
  EXPECT_EQ(desk.Menu.Times("GetCurMenu"), 1) << "the page that was up";
  EXPECT_TRUE(desk.Menus.MenuUp());
  EXPECT_TRUE(desk.Watch.Enabled());
  EXPECT_TRUE(desk.Strip.Enabled());
  EXPECT_FALSE(desk.Menus.MenuRefreshing);
}

TEST(MenuTracking, RefreshOfAStripInTheTaskBarOnlyForgetsTheMenu) {
  TrackDesk desk;
  desk.Menu.Built = {"F2"};
  desk.TheProgram.Strip.ToolbarMinimized = true;
  desk.Menus.RefreshMenu("F2");
  EXPECT_TRUE(desk.Menu.Built.empty());
  EXPECT_EQ(desk.Menu.Asked, Calls{});
}

TEST(MenuTracking, ResetDoesNothingWhereNothingIsOpen) {
  TrackDesk desk;
  desk.Menus.ResetMenu();
  EXPECT_EQ(desk.Strip.Asked, Calls{});
}

TEST(MenuTracking, ResetTakesTheMenuDownAndForgetsWhatWasOpen) {
  TrackDesk desk;
  desk.Press(2);
  desk.TheProgram.Menu.KeyboardOnToolbar = true;
  desk.Menus.ResetMenu();
  EXPECT_EQ(desk.Strip.Asked, Calls{"CheckToolbarMove"});
  EXPECT_EQ(desk.TheProgram.Menu.CurButton, 0);
  EXPECT_FALSE(desk.TheProgram.Menu.MenuOpen);
  EXPECT_FALSE(desk.TheProgram.Menu.KeyboardOnToolbar);
  EXPECT_FALSE(desk.Watch.Enabled());
  EXPECT_FALSE(desk.Menus.LastOpenFlag);
}

TEST(MenuTracking, TheStripTakesTheActivationFromAMenuThatGoes) {
  TrackDesk desk;
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Title = "Notes"});
  desk.Strip.SetForeground();
  desk.Press(2);
  // Behind the menu comes another program's window, which Windows would take next.
  desk.World.Desktop.BringForward(other);
  desk.World.Desktop.BringForward(desk.Menu.WindowHandle());
  ASSERT_EQ(desk.World.Desktop.ActiveWindow(), desk.Menu.WindowHandle());
  desk.Menus.ResetMenu();
  EXPECT_EQ(desk.World.Desktop.ActiveWindow(), desk.Strip.hWnd());
}

TEST(MenuTracking, MovingAlongTheButtonsChangesTheMenu) {
  TrackDesk desk;
  desk.Press(2);
  desk.Move(3);
  EXPECT_EQ(desk.Menus.MenuOwner(), 3);
  desk.Move(3);
  EXPECT_EQ(desk.Menu.Times("ShowMenu F3"), 1) << "to rest on it opens nothing again";
}

TEST(MenuTracking, WithNoMenuUpAMoveShowsTheHintOfTheButton) {
  TrackDesk desk;
  desk.Move(3);
  EXPECT_EQ(desk.Hint.Text, "Menu 2");
  EXPECT_FALSE(desk.Menus.MenuUp());
}

TEST(MenuTracking, AWaitingQuestionKeepsTheMenuThatIsUp) {
  TrackDesk desk;
  desk.Press(2);
  desk.TheProgram.Guards.OpenQuestions = 1;
  desk.Move(3);
  EXPECT_EQ(desk.Menus.MenuOwner(), 2);
  desk.TheProgram.Guards.OpenQuestions = 0;
}

TEST(MenuTracking, OverTheMenuAMoveAndTheReleaseAreTheMenus) {
  TrackDesk desk;
  desk.Press(2);
  const PixelRect menu = desk.World.Desktop.BoundsOf(desk.Menu.WindowHandle());
  const PixelPoint inside{menu.left + 3 + 40, menu.top + 3 + 60};
  desk.World.Desktop.MovePointer(inside.x, inside.y);
  desk.Menu.Asked.clear();
  const float x = static_cast<float>(inside.x) * 15 - desk.Strip.Left();
  const float y = static_cast<float>(inside.y) * 15;
  desk.Menus.picToolbar_MouseMove(MouseButton::Left, x, y);
  EXPECT_EQ(desk.Menu.Asked, Calls{"xMouseMove 900"});
  desk.Menus.picToolbar_MouseUp(MouseButton::Left, {}, x, y);
  EXPECT_EQ(desk.Menu.Asked, (Calls{"xMouseMove 900", "xMouseMove 900", "xMouseUp 1 600 900"}));
}

TEST(MenuTracking, APressThatIsHeldLongChoosesNothing) {
  TrackDesk desk;
  desk.Press(2);
  const PixelRect menu = desk.World.Desktop.BoundsOf(desk.Menu.WindowHandle());
  const PixelPoint inside{menu.left + 43, menu.top + 63};
  desk.World.Desktop.MovePointer(inside.x, inside.y);
  desk.World.Desktop.Advance(5000);
  desk.Menu.Asked.clear();
  desk.Menus.picToolbar_MouseUp(MouseButton::Left, {},
                                static_cast<float>(inside.x) * 15 - desk.Strip.Left(),
                                static_cast<float>(inside.y) * 15);
  EXPECT_EQ(desk.Menu.Asked, Calls{});
}

TEST(MenuTracking, AReleaseOverTheRowOfSingleButtonsIsTheRows) {
  TrackDesk desk;
  desk.World.Desktop.MovePointer(500, 10);
  ASSERT_EQ(desk.World.Desktop.WindowAt({500, 10}), desk.Strip.picSingleButton.hWnd());
  desk.Menus.picToolbar_MouseUp(MouseButton::Right, {}, 0, 0);
  EXPECT_EQ(desk.Strip.Asked, Calls{"RowMouseUp"});
}

TEST(MenuTracking, OverTheRowTheMenuGoesOffTheScreenAndTheRowFollowsThePointer) {
  TrackDesk desk;
  desk.Press(2);
  desk.World.Desktop.MovePointer(500, 10);
  desk.Menus.Timer2_Timer();
  EXPECT_FALSE(desk.Menus.MenuUp());
  EXPECT_TRUE(desk.TheProgram.Menu.MenuOpen) << "the next button opens its menu at once";
  EXPECT_EQ(desk.Strip.Asked, Calls{"RowMouseMove"});
}

TEST(MenuTracking, TheWatchClosesTheMenuOfAUserWhoHasGoneElsewhere) {
  TrackDesk desk;
  desk.Press(2);
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Title = "Notes"});
  desk.World.Desktop.MovePointer(700, 700);
  desk.World.Desktop.BringForward(other);
  desk.World.Desktop.Advance(10);
  EXPECT_FALSE(desk.Menus.MenuUp());
  EXPECT_FALSE(desk.Watch.Enabled());
}

TEST(MenuTracking, AMenuIsPlacedUnderItsButtonWhereverThePointerIs) {
  TrackDesk desk;
  desk.Press(3);
  desk.TheProgram.Menu.CurButton = 2;
  desk.Menus.SetMenuPosition();
  EXPECT_EQ(desk.Menu.Left(), desk.Strip.Left() + desk.Row.ToolbarButtons[3].Left + 15);
  EXPECT_EQ(desk.Menu.Top(), desk.Menus.TopOfMenu());
}

}  // namespace
}  // namespace corvelle
