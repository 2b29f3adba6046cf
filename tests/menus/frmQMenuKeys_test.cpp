// The menu under the keyboard: the selection, the pages, type-ahead.

#include <gtest/gtest.h>

#include <functional>
#include <utility>

#include "menus/MenuDesk.h"
#include "menus/items/HeldKeys.h"

namespace corvelle {
namespace {

using forms::MouseButton;

/// A menu of 100 items on the pages 1 to 34, 35 to 68 and 69 to 100.
class PagedMenu : public ::testing::Test {
 protected:
  void SetUp() override {
    desk_.Open(1, Items(100));
    ASSERT_EQ(desk_.Menu.Pages().Slides(), 2);
  }
  void Key(int key) { desk_.World.Desktop.PressKey(key); }
  int Selected() const { return desk_.TheProgram.Menu.SelectedItem; }

  MenuDesk desk_;
};

TEST(frmQMenuKeys, DownAndUpWalkAndWrapInsideThePage) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  struct Row {
    const char* name;
    int key;
    int selected;
  };
  const Row rows[] = {
      {"first", forms::key::Down, 1},        {"second", forms::key::Down, 2},
      {"third", forms::key::Down, 3},        {"around the end", forms::key::Down, 1},
      {"around the top", forms::key::Up, 3}, {"up", forms::key::Up, 2},
  };
  for (const Row& row : rows) {
    desk.World.Desktop.PressKey(row.key);
    EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, row.selected) << row.name;
    EXPECT_EQ(desk.BarredItem(), row.selected) << row.name;
    EXPECT_EQ(desk.Menu.Lbl[row.selected].ForeColor(), forms::color::HighlightText) << row.name;
  }
}

TEST(frmQMenuKeys, EnterStartsTheSelectedItemWhereverThePointerIs) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha", "", "C:\\Tools\\one.exe"), Item("Beta", "", "C:\\Tools\\tool.exe")});
  desk.Poll();
  desk.World.Desktop.PressKey(forms::key::Down);
  desk.World.Desktop.PressKey(forms::key::Down);
  desk.World.Desktop.PressKey(forms::key::Enter);
  EXPECT_EQ(desk.Started(), (std::vector<std::string>{"C:\\Tools\\tool.exe"}));
  EXPECT_FALSE(desk.Menu.MenuVisible());
}

TEST(frmQMenuKeys, EnterWithoutASelectionDoesNothing) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.World.Desktop.PressKey(forms::key::Enter);
  EXPECT_TRUE(desk.Menu.MenuVisible());
  EXPECT_TRUE(desk.World.Shell.Log().empty());
}

TEST(frmQMenuKeys, EscClosesTheMenu) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.World.Desktop.PressKey(forms::key::Escape);
  EXPECT_FALSE(desk.Menu.MenuVisible());
  EXPECT_EQ(desk.Strip.Times("ResetMenu"), 1);
}

TEST(frmQMenuKeys, LeftAndRightGoToTheStrip) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.World.Desktop.PressKey(forms::key::Down);
  desk.World.Desktop.PressKey(forms::key::Left);
  desk.World.Desktop.PressKey(forms::key::Right);
  EXPECT_EQ(desk.Strip.Times("ActivateKeyDown 37"), 1);
  EXPECT_EQ(desk.Strip.Times("ActivateKeyDown 39"), 1);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 1);
}

TEST(frmQMenuKeys, AKeyOfTheStripStartsFromTheTop) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.TheProgram.Menu.KeyboardOnToolbar = true;
  desk.World.Desktop.PressKey(forms::key::Down);
  desk.World.Desktop.PressKey(forms::key::Down);
  desk.World.Desktop.TakeForeground(desk.Strip.hWnd());
  desk.Menu.ActivateKeyDown(forms::key::Down);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 1);
  EXPECT_FALSE(desk.TheProgram.Menu.KeyboardOnToolbar);
  EXPECT_EQ(desk.World.Desktop.ActiveWindow(), desk.Menu.hWnd());
  desk.Menu.xKeyPress('i');
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 1);
  desk.Menu.xKeyPress('i');
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
}

TEST(frmQMenuKeys, EachActInTheMenuTakesTheKeyboardFromTheStrip) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  struct Row {
    const char* name;
    std::function<void()> act;
  };
  const Row rows[] = {
      {"a move", [&] { desk.PointAtItem(2); }},
      {"a press", [&] { desk.World.Desktop.Press(MouseButton::Right); }},
      {"a release", [&] { desk.World.Desktop.Release(MouseButton::Right); }},
      {"a key", [&] { desk.World.Desktop.KeyDown(forms::key::Down); }},
      {"a character", [&] { desk.Menu.Form_KeyPress('i'); }},
  };
  for (const Row& row : rows) {
    desk.TheProgram.Menu.KeyboardOnToolbar = true;
    row.act();
    EXPECT_FALSE(desk.TheProgram.Menu.KeyboardOnToolbar) << row.name;
  }
}

TEST(frmQMenuKeys, AnEmptyMenuTakesEveryKeyQuietly) {
  MenuDesk desk;
  desk.Open(1, {});
  for (const int key : {forms::key::Down, forms::key::Up, forms::key::PageDown, forms::key::PageUp,
                        forms::key::Home, forms::key::End, forms::key::Enter}) {
    desk.World.Desktop.PressKey(key);
    EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 0) << key;
  }
  EXPECT_TRUE(desk.Menu.MenuVisible());
}

TEST(frmQMenuKeys, DuringADragKeysAreIgnored) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.TheProgram.Entry.ItemDragging = true;
  desk.World.Desktop.PressKey(forms::key::Down);
  desk.World.Desktop.PressKey(forms::key::Escape);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
  EXPECT_TRUE(desk.Menu.MenuVisible());
}

TEST(frmQMenuKeys, ADisabledItemIsReachedWithoutABar) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.Menu.DisableLabel(2);
  desk.World.Desktop.PressKey(forms::key::Down);
  desk.World.Desktop.PressKey(forms::key::Down);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
  EXPECT_EQ(desk.BarredItem(), 0);
  desk.World.Desktop.PressKey(forms::key::Enter);
  EXPECT_TRUE(desk.Menu.MenuVisible());
  desk.World.Desktop.PressKey(forms::key::Down);
  EXPECT_EQ(desk.BarredItem(), 3);
}

TEST(HeldKeys, ComeInTheirOrderAndNotMoreThanAHandTypesAhead) {
  HeldKeys keys;
  EXPECT_EQ(keys.Take(), std::nullopt);
  for (int i = 1; i <= 40; ++i) keys.Hold({.Code = i});
  for (int i = 1; i <= 32; ++i) EXPECT_EQ(keys.Take(), HeldKey{.Code = i});
  EXPECT_TRUE(keys.IsEmpty());
  keys.Hold({.Character = U'a', .FromStrip = true});
  EXPECT_EQ(keys.Take(), (HeldKey{.Character = U'a', .FromStrip = true}));
  keys.Hold({.Code = 1});
  keys.Forget();
  EXPECT_TRUE(keys.IsEmpty());
}

/// Has keys come while the first icon of a menu of three items is looked for.
void OpenTyping(MenuDesk& desk, const std::function<void()>& type) {
  bool typed = false;
  desk.World.Icons.WhileAsked([&] {
    if (std::exchange(typed, true)) return;
    EXPECT_TRUE(desk.TheProgram.Guards.MenuBuilding);
    type();
    EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
  });
  desk.Open(
      1, {Item("Alpha", "C:\\Tools\\tool.exe", "C:\\Tools\\tool.exe 1"),
          Item("Beta", "", "C:\\Tools\\tool.exe 2"), Item("Gamma", "", "C:\\Tools\\tool.exe 3")});
  desk.World.Icons.WhileAsked({});
  EXPECT_TRUE(typed);
  desk.World.Desktop.Advance(10);
}

TEST(TypingAhead, KeysThatComeWhileAMenuIsBuiltActOnceItIsUp) {
  MenuDesk desk;
  OpenTyping(desk, [&] {
    desk.World.Desktop.PressKey(forms::key::Down);
    desk.World.Desktop.PressKey(forms::key::Down);
  });
  EXPECT_EQ(desk.BarredItem(), 2);
  // The next one is not held any more.
  desk.World.Desktop.PressKey(forms::key::Down);
  EXPECT_EQ(desk.BarredItem(), 3);
}

TEST(TypingAhead, ALetterAndEnterStartTheItem) {
  MenuDesk desk;
  OpenTyping(desk, [&] {
    desk.World.Desktop.Type("g");
    desk.World.Desktop.PressKey(forms::key::Enter);
  });
  EXPECT_FALSE(desk.Menu.MenuVisible());
  EXPECT_EQ(desk.Started(), std::vector<std::string>{"C:\\Tools\\tool.exe 3"});
}

TEST(TypingAhead, EscClosesTheMenuAndWhatIsTypedBehindItIsForgotten) {
  MenuDesk desk;
  OpenTyping(desk, [&] {
    desk.World.Desktop.PressKey(forms::key::Escape);
    desk.World.Desktop.PressKey(forms::key::Down);
  });
  EXPECT_FALSE(desk.Menu.MenuVisible());
  desk.Reopen(1);
  desk.World.Desktop.Advance(10);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
}

TEST(TypingAhead, KeysThatTheStripGetsWhileAMenuIsBuiltAreHeldToo) {
  MenuDesk desk;
  OpenTyping(desk, [&] {
    desk.Menu.ActivateKeyDown(forms::key::Down);
    desk.Menu.xKeyPress(U'b');
  });
  EXPECT_EQ(desk.BarredItem(), 2);
}

TEST(TypingAhead, AMenuThatIsHiddenWhileItIsBuiltComesUpAndActsOnThem) {
  MenuDesk desk;
  OpenTyping(desk, [&] {
    desk.World.Desktop.PressKey(forms::key::Down);
    desk.Menu.HideMenu();
  });
  EXPECT_TRUE(desk.Menu.MenuVisible());
  EXPECT_EQ(desk.BarredItem(), 1);
}

TEST(TypingAhead, APageThatIsDrawnForTheFirstTimeHoldsThemAsWell) {
  MenuDesk desk;
  std::vector<MenuRecord> items = Items(100);
  items[40].FIcon = "C:\\Tools\\tool.exe";
  desk.Open(1, items);
  bool typed = false;
  desk.World.Icons.WhileAsked([&] {
    if (!std::exchange(typed, true)) desk.Menu.Form_KeyDown(forms::key::PageDown, {});
  });
  desk.World.Desktop.PressKey(forms::key::PageDown);
  desk.World.Desktop.Advance(10);
  EXPECT_EQ(desk.Menu.Pages().CurMenu(), 2);
}

TEST(frmQMenuKeys, F5ReadsTheIconsAndTheMenuAnew) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha", "C:\\Tools\\tool.exe")});
  desk.World.Icons.ClearCounts();
  desk.World.Desktop.PressKey(forms::key::F5);
  EXPECT_EQ(desk.Strip.Times("RefreshMenu F2"), 1);
  desk.Menu.ForgetMenu("F2");
  desk.Open(1, {Item("Changed", "C:\\Tools\\tool.exe")});
  EXPECT_EQ(desk.World.Icons.Lookups(), 1);
  EXPECT_EQ(desk.Menu.Lbl[1].Caption(), "Changed");
}

TEST_F(PagedMenu, UpAtTheFirstItemWrapsAndTurnsNoPage) {
  Key(forms::key::Down);
  Key(forms::key::Up);
  EXPECT_EQ(Selected(), 34);
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 0);
}

TEST_F(PagedMenu, PagingKeysTurnToWhereTheyLead) {
  struct Row {
    const char* name;
    int key;
    int page, first, last;
  };
  const Row rows[] = {
      {"PgDn", forms::key::PageDown, 1, 35, 68},
      {"PgUp", forms::key::PageUp, 0, 1, 34},
      {"PgUp on the first", forms::key::PageUp, 0, 1, 34},
      {"Home on the first", forms::key::Home, 0, 1, 34},
      {"End", forms::key::End, 2, 69, 100},
      {"Home", forms::key::Home, 0, 1, 34},
      {"End again", forms::key::End, 2, 69, 100},
      {"PgUp back", forms::key::PageUp, 1, 35, 68},
  };
  for (const Row& row : rows) {
    Key(row.key);
    EXPECT_EQ(desk_.Menu.Pages().CurMenu(), row.page) << row.name;
    EXPECT_EQ(desk_.Menu.Pages().FirstLabel(), row.first) << row.name;
    EXPECT_EQ(desk_.Menu.Pages().LastLabel(), row.last) << row.name;
    for (int i = 1; i <= desk_.Menu.LoadedLabels(); ++i) {
      EXPECT_EQ(desk_.Menu.Lbl[i].Visible(), i >= row.first && i <= row.last) << row.name << i;
    }
    EXPECT_EQ(desk_.Menu.Lbl[row.first].Caption(), "Item " + std::to_string(row.first)) << row.name;
    EXPECT_EQ(desk_.Menu.Lbl[row.first].Top(), 90) << row.name;
    EXPECT_EQ(desk_.Menu.LblButton[0].Enabled(), row.page > 0) << row.name;
    EXPECT_EQ(desk_.Menu.LblButton[1].Enabled(), row.page < 2) << row.name;
    EXPECT_EQ(desk_.Menu.imgButton[0].Enabled(), row.page > 0) << row.name;
    EXPECT_EQ(desk_.Menu.imgButton[1].Enabled(), row.page < 2) << row.name;
  }
}

TEST_F(PagedMenu, PgDnOnTheLastPageDoesNothingAndLeavesTheSelection) {
  Key(forms::key::End);
  Key(forms::key::Up);
  EXPECT_EQ(Selected(), 100);
  Key(forms::key::PageDown);
  EXPECT_EQ(Selected(), 100);
  EXPECT_EQ(desk_.BarredItem(), 100);
  Key(forms::key::End);
  EXPECT_EQ(Selected(), 100);
}

TEST_F(PagedMenu, TheFirstItemFollowsAPageTurnedByKey) {
  Key(forms::key::Down);
  Key(forms::key::PageDown);
  EXPECT_EQ(Selected(), 0);
  EXPECT_EQ(desk_.BarredItem(), 0);
  Key(forms::key::Down);
  EXPECT_EQ(Selected(), 35);
  Key(forms::key::Enter);
  EXPECT_EQ(desk_.Started().size(), 1U);
}

TEST_F(PagedMenu, AfterEndALetterIsLookedForFromTheLastPageOn) {
  Key(forms::key::End);
  desk_.World.Desktop.Type("i");
  EXPECT_EQ(Selected(), 69);
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 2);
}

TEST_F(PagedMenu, AfterPgDnALetterIsLookedForFromThePageThatWasLeft) {
  Key(forms::key::PageDown);
  desk_.World.Desktop.Type("i");
  EXPECT_EQ(Selected(), 34);
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 0);
}

TEST_F(PagedMenu, ReopeningShowsThePageOnWhichItWasLeft) {
  Key(forms::key::PageDown);
  Key(forms::key::Escape);
  desk_.Open(2, Items(3));
  desk_.Menu.HideMenu();
  desk_.World.Files.ClearLog();
  desk_.Reopen(1);
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 1);
  EXPECT_EQ(desk_.Menu.Pages().FirstLabel(), 35);
  EXPECT_TRUE(desk_.Menu.Lbl[35].Visible());
  EXPECT_FALSE(desk_.Menu.Lbl[1].Visible());
  EXPECT_TRUE(desk_.Menu.LblButton[0].Enabled());
  EXPECT_TRUE(desk_.World.Files.Log().empty());
}

TEST_F(PagedMenu, ARebuiltMenuGoesBackToItsPage) {
  Key(forms::key::End);
  desk_.Menu.ForgetMenu("F2");
  desk_.Reopen(1);
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 0);
  desk_.Menu.GetCurMenu();
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 2);
  EXPECT_TRUE(desk_.Menu.Lbl[69].Visible());
  EXPECT_FALSE(desk_.Menu.Lbl[1].Visible());
}

TEST_F(PagedMenu, AShorterMenuGoesBackToItsLastPage) {
  Key(forms::key::End);
  desk_.Menu.ForgetMenu("F2");
  desk_.Open(1, Items(40));
  desk_.Menu.GetCurMenu();
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 1);
}

TEST_F(PagedMenu, AfterARefreshThePageIsTheOneThatWasUpAndNoneOfLongAgo) {
  Key(forms::key::End);
  Key(forms::key::Escape);
  // Something that changed the menu meanwhile: it begins at its first page again.
  desk_.Menu.ForgetMenu("F2");
  desk_.Reopen(1);
  ASSERT_EQ(desk_.Menu.Pages().CurMenu(), 0);
  desk_.Menu.HideMenu();
  desk_.Menu.ForgetMenu("F2");
  desk_.Reopen(1);
  desk_.Menu.GetCurMenu();
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 0);
}

TEST_F(PagedMenu, ThePageOfOneMenuIsNoneOfAnother) {
  Key(forms::key::End);
  desk_.Open(2, Items(100));
  desk_.Menu.GetCurMenu();
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 0);
}

TEST_F(PagedMenu, TheArrowButtonsTurnThePages) {
  desk_.ClickArrow(1);
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 1);
  desk_.ClickArrow(1);
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 2);
  desk_.ClickArrow(1);
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 2);
  desk_.ClickArrow(0);
  desk_.ClickArrow(0);
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 0);
  EXPECT_EQ(desk_.Menu.Pages().FirstLabel(), 1);
  EXPECT_TRUE(desk_.Menu.MenuVisible());
}

TEST_F(PagedMenu, ADoubleClickOnAnArrowTurnsTwoPages) {
  desk_.PointAt(desk_.ArrowPoint(1));
  desk_.World.Desktop.DoubleClick();
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 2);
}

TEST_F(PagedMenu, AnArrowIsFramedUnderThePointerAndSunkenWhilePressed) {
  desk_.PointAtItem(3);
  desk_.PointAt(desk_.ArrowPoint(1));
  EXPECT_EQ(desk_.Menu.ActiveArrow, 1);
  EXPECT_EQ(Selected(), 0);
  EXPECT_TRUE(desk_.Menu.LineLeft.Visible());
  EXPECT_EQ(desk_.Menu.LineLeft.BorderColor(), forms::color::Highlight3D);
  EXPECT_EQ(desk_.Menu.LineRight.BorderColor(), forms::color::ButtonShadow);
  const forms::Label& arrow = desk_.Menu.LblButton[1];
  EXPECT_EQ(desk_.Menu.LineTop.X1(), arrow.Left());
  EXPECT_EQ(desk_.Menu.LineTop.X2(), arrow.Right() + 15);
  EXPECT_EQ(desk_.Menu.LineDown.X2(), arrow.Right() + 15);
  desk_.World.Desktop.Press();
  EXPECT_EQ(desk_.Menu.LineLeft.BorderColor(), forms::color::ButtonShadow);
  EXPECT_EQ(desk_.Menu.LineRight.BorderColor(), forms::color::Highlight3D);
  desk_.World.Desktop.Release();
  EXPECT_EQ(desk_.Menu.LineLeft.BorderColor(), forms::color::Highlight3D);
  desk_.PointAtItem(desk_.Menu.Pages().FirstLabel());
  EXPECT_FALSE(desk_.Menu.LineLeft.Visible());
  EXPECT_EQ(desk_.Menu.ActiveArrow, frmQMenu::kNoArrow);
}

TEST_F(PagedMenu, AReleaseBesideTheArrowTurnsNothing) {
  desk_.PointAt(desk_.ArrowPoint(1));
  desk_.World.Desktop.Press();
  desk_.PointAtItem(5);
  desk_.World.Desktop.Release();
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 0);
  EXPECT_TRUE(desk_.Menu.MenuVisible());
}

TEST_F(PagedMenu, TheRightButtonTurnsNothing) {
  desk_.PointAt(desk_.ArrowPoint(1));
  desk_.World.Desktop.Click(MouseButton::Right);
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 0);
}

TEST_F(PagedMenu, LeavingTheMenuTakesTheFrameOfAnArrowAway) {
  desk_.PointAt(desk_.ArrowPoint(1));
  desk_.PointAway();
  desk_.Poll();
  EXPECT_FALSE(desk_.Menu.LineLeft.Visible());
  EXPECT_EQ(desk_.Menu.ActiveArrow, frmQMenu::kNoArrow);
}

TEST_F(PagedMenu, AnArrowThatHasRunOutLosesItsFrame) {
  desk_.ClickArrow(1);
  EXPECT_TRUE(desk_.Menu.LineLeft.Visible());
  desk_.ClickArrow(1);
  EXPECT_FALSE(desk_.Menu.LineLeft.Visible());
}

TEST(frmQMenuTypeAhead, FindsTheNextItemWithThatLetterAndWrapsAround) {
  MenuDesk desk;
  desk.Open(1, {Item("Beta"), Item("Alpha"), Item("beach"), Item("Gamma"), Item("Bell")});
  for (const int expected : {1, 3, 5, 1, 3}) {
    desk.World.Desktop.Type("b");
    EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, expected);
    EXPECT_EQ(desk.BarredItem(), expected);
  }
  EXPECT_EQ(desk.World.Desktop.Beeps(), 0);
}

TEST(frmQMenuTypeAhead, AnArrowGoesOnFromTheItemBehindTheOneFound) {
  MenuDesk desk;
  desk.Open(1, {Item("Beta"), Item("Alpha"), Item("Gamma"), Item("Delta")});
  desk.World.Desktop.Type("b");
  desk.World.Desktop.PressKey(forms::key::Down);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 3);
  desk.World.Desktop.Type("b");
  desk.World.Desktop.PressKey(forms::key::Up);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 1);
}

TEST(frmQMenuTypeAhead, ALetterThatNoItemStartsWithBeeps) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha"), Item("Beta")});
  desk.World.Desktop.Type("b");
  desk.World.Desktop.Type("x");
  EXPECT_EQ(desk.World.Desktop.Beeps(), 1);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
}

TEST(frmQMenuTypeAhead, TheSelectionStaysThoughThePointerIsElsewhere) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha"), Item("Beta", "", "C:\\Tools\\tool.exe")});
  desk.Poll();
  desk.World.Desktop.Type("b");
  desk.Poll();
  desk.Poll();
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
  desk.World.Desktop.PressKey(forms::key::Enter);
  EXPECT_EQ(desk.Started().size(), 1U);
}

TEST(frmQMenuTypeAhead, ALetterThatOnlyLaterPagesHoldTurnsToThem) {
  MenuDesk desk;
  std::vector<MenuRecord> items = Items(100);
  items[49].FTitle = "zebra";
  items[89].FTitle = "Zoo";
  items[4].FTitle = "zero";
  desk.Open(1, items);
  desk.World.Desktop.PressKey(forms::key::Down);
  struct Row {
    int item, page;
  };
  for (const Row& row : {Row{5, 0}, Row{50, 1}, Row{90, 2}, Row{5, 0}}) {
    desk.World.Desktop.Type("z");
    EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, row.item);
    EXPECT_EQ(desk.Menu.Pages().CurMenu(), row.page) << row.item;
    EXPECT_EQ(desk.BarredItem(), row.item);
    EXPECT_TRUE(desk.Menu.Lbl[row.item].Visible());
  }
}

TEST(frmQMenuTypeAhead, DigitsAndSignsCountAndBlanksDoNot) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha"), Item("7 dwarfs"), Item("~ home")});
  desk.World.Desktop.Type("7");
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
  desk.World.Desktop.Type("~");
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 3);
  desk.World.Desktop.Type(" ");
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 3);
  EXPECT_EQ(desk.World.Desktop.Beeps(), 0);
}

TEST_F(PagedMenu, AReleaseJustPastTheArrowsSideTurnsNothing) {
  const forms::Label& arrow = desk_.Menu.LblButton[1];
  desk_.Menu.LblButton_MouseUp(1, MouseButton::Left, arrow.Width(), 0);
  desk_.Menu.LblButton_MouseUp(1, MouseButton::Left, 0, arrow.Height());
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 0);
  desk_.Menu.LblButton_MouseUp(1, MouseButton::Left, arrow.Width() - 1, arrow.Height() - 1);
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 1);
}

TEST_F(PagedMenu, AReleaseOnTheArrowsFirstPixelTurnsThePage) {
  desk_.Menu.LblButton_MouseUp(1, MouseButton::Left, 0, 0);
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 1);
  desk_.Menu.LblButton_MouseUp(0, MouseButton::Left, -1, 0);
  desk_.Menu.LblButton_MouseUp(0, MouseButton::Left, 0, -1);
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 1);
}

TEST_F(PagedMenu, WhatIsCarriedIsPutDownOnAnArrowAndTurnsNoPage) {
  desk_.TheProgram.Entry.ItemDragging = true;
  desk_.Menu.LblButton_MouseUp(1, MouseButton::Left, 15, 15);
  desk_.TheProgram.Entry.ItemDragging = false;
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 0);
}

TEST_F(PagedMenu, ARaisedArrowIsNotSeenInTheNextMenu) {
  desk_.PointAt(desk_.ArrowPoint(1));
  ASSERT_TRUE(desk_.Menu.LineLeft.Visible());
  desk_.Open(2, Items(3));
  EXPECT_FALSE(desk_.Menu.LineLeft.Visible());
}

TEST_F(PagedMenu, AButtonThatIsHeldRaisesNoArrow) {
  Key(forms::key::Down);
  ASSERT_EQ(Selected(), 1);
  desk_.Menu.LblButton_MouseMove(1, MouseButton::Left);
  EXPECT_EQ(Selected(), 1);
  desk_.Menu.LblButton_MouseMove(1, MouseButton::None);
  EXPECT_EQ(Selected(), 0);
}

TEST_F(PagedMenu, TheSecondPressOfADoubleClickSinksTheArrowToo) {
  desk_.PointAt(desk_.ArrowPoint(1));
  EXPECT_EQ(desk_.Menu.LineLeft.BorderColor(), forms::color::Highlight3D);
  desk_.Menu.LblButton[1].DblClick();
  EXPECT_EQ(desk_.Menu.LineLeft.BorderColor(), forms::color::ButtonShadow);
}

}  // namespace
}  // namespace corvelle
