// The menu under the pointer: selection, choice, right click, leaving.

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "menus/MenuDesk.h"
#include "menus/folders/FolderMenus.h"
#include "platform/ShellExec.h"

namespace corvelle {
namespace {

using forms::MouseButton;

constexpr unsigned kStopOnTop = 0x40010;

TEST(frmQMenuPointer, MovesTheSelectionFromItemToItem) {
  MenuDesk desk;
  desk.Open(1, Items(4));
  desk.PointAtItem(2);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
  EXPECT_EQ(desk.BarredItem(), 2);
  EXPECT_EQ(desk.Menu.Lbl[2].ForeColor(), forms::color::HighlightText);
  desk.PointAtItem(4);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 4);
  EXPECT_EQ(desk.BarredItem(), 4);
  EXPECT_EQ(desk.Menu.Lbl[2].ForeColor(), forms::color::ButtonText);
}

TEST(frmQMenuPointer, ThePixelsRightAndLeftOfATextBelongToItsItemToo) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  const PixelPoint text = desk.ItemPoint(2);
  desk.PointAt({desk.OnScreen(0, 0).x + 1, text.y});
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
  desk.PointAtItem(1);
  desk.PointAt({desk.OnScreen(desk.Menu.Width(), 0).x - 12, text.y});
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
}

TEST(frmQMenuPointer, TheBarAndTheFrameOfTheIconStandWhereTheItemIs) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha", "C:\\Tools\\tool.exe"), Item("Beta", "")});
  desk.PointAtItem(1);
  // The label begins at 6 pixels: the bar 3 above it, 21 high, from 21 to the right.
  EXPECT_EQ(desk.Menu.Shape1.Top(), 45);
  EXPECT_EQ(desk.Menu.Shape1.Left(), 315);
  EXPECT_EQ(desk.Menu.Shape1.Height(), 315);
  struct Row {
    const char* name;
    const forms::Line& line;
    float x1, y1, x2, y2;
    forms::OleColor colour;
  };
  const Row rows[] = {
      {"left", desk.Menu.mLineLeft, 0, 45, 0, 330, forms::color::Highlight3D},
      {"right", desk.Menu.mLineRight, 285, 45, 285, 345, forms::color::ButtonShadow},
      {"top", desk.Menu.mLineTop, 0, 45, 285, 45, forms::color::Highlight3D},
      {"down", desk.Menu.mLineDown, 0, 330, 285, 330, forms::color::ButtonShadow},
  };
  for (const Row& row : rows) {
    EXPECT_TRUE(row.line.Visible()) << row.name;
    EXPECT_EQ(row.line.X1(), row.x1) << row.name;
    EXPECT_EQ(row.line.Y1(), row.y1) << row.name;
    EXPECT_EQ(row.line.X2(), row.x2) << row.name;
    EXPECT_EQ(row.line.Y2(), row.y2) << row.name;
    EXPECT_EQ(row.line.BorderColor(), row.colour) << row.name;
  }
  desk.PointAtItem(2);
  EXPECT_EQ(desk.BarredItem(), 2);
  for (const Row& row : rows) EXPECT_FALSE(row.line.Visible()) << row.name;
}

TEST(frmQMenuPointer, BelowTheLastItemNothingIsSelected) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.PointAtItem(3);
  desk.PointAt(desk.OnScreen(600, desk.Menu.Lbl[3].Bottom() + 60));
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
  EXPECT_EQ(desk.BarredItem(), 0);
  desk.PointAtItem(2);
  EXPECT_EQ(desk.BarredItem(), 2);
}

TEST(frmQMenuPointer, AMoveGivesTheMenuTheFocus) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.World.Desktop.TakeForeground(desk.Strip.hWnd());
  EXPECT_NE(desk.World.Desktop.ActiveWindow(), desk.Menu.hWnd());
  desk.PointAtItem(2);
  EXPECT_EQ(desk.World.Desktop.ActiveWindow(), desk.Menu.hWnd());
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
}

TEST(frmQMenuPointer, AMoveOverAnotherWindowDropsTheSelection) {
  MenuDesk desk;
  desk.Open(1, Items(5));
  desk.PointAtItem(2);
  // A drag that is handed on when it has left the menu upwards.
  desk.Menu.xMouseMove(-600);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
  EXPECT_TRUE(desk.Menu.PointerAway);
}

TEST(frmQMenuPointer, TheStripHandsOnADragOverTheMenu) {
  MenuDesk desk;
  desk.Open(1, Items(5));
  desk.PointAtItem(1);
  desk.Menu.xMouseMove(desk.Menu.Lbl[3].Top());
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 3);
  // In twips of the screen, 50 of which are the window's frame.
  desk.Menu.mMouseMove(desk.Menu.Left() + 400, desk.Menu.Top() + 50 + desk.Menu.Lbl[4].Top());
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 4);
}

TEST(frmQMenuChoice, StartsTheItemAfterTheMenuIsGone) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha"), Item("Beta", "", "C:\\Tools\\tool.exe")});
  desk.World.Desktop.ClearLog();
  desk.ClickItem(2);
  ASSERT_EQ(desk.World.Shell.Log().size(), 1U);
  EXPECT_EQ(desk.World.Shell.Log()[0].File, "C:\\Tools\\tool.exe");
  EXPECT_EQ(desk.World.Shell.Log()[0].Folder, "C:\\Tools\\");
  EXPECT_FALSE(desk.Menu.MenuVisible());
  EXPECT_EQ(desk.Menu.OwnerTag(), "0");
  EXPECT_EQ(desk.Strip.Times("ResetMenu"), 1);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
}

/// A shell that notes whether the menu was still up, and whether events had run, when it was asked.
class WatchingShell final : public ShellExec {
 public:
  Result<Done, OpenError> Open(std::string_view, std::optional<std::string_view>,
                               std::optional<std::string_view>) override {
    ++Opened;
    MenuWasUp = Desk->Menu.MenuVisible();
    WaitingEventsRan = EventRan;
    return Done{};
  }
  Result<Done, RunError> Run(std::string_view) override { return Done{}; }

  MenuDesk* Desk = nullptr;
  int Opened = 0;
  bool MenuWasUp = true;
  bool EventRan = false;
  bool WaitingEventsRan = false;
};

TEST(frmQMenuChoice, TheItemStartsAfterTheMenuIsGoneAndBeforeWhatWaits) {
  WatchingShell shell;
  MenuDesk desk({}, &shell);
  shell.Desk = &desk;
  desk.Open(1, Items(3));
  desk.PointAtItem(2);
  // Due from the moment of the press on, but nothing lets it through before the choice does.
  const forms::TimerId timer = desk.World.Desktop.StartTimer(1, [&] { shell.EventRan = true; });
  desk.World.Desktop.Jump(5);
  desk.Menu.xMouseUp(MouseButton::Left, {}, 600, desk.Menu.Lbl[2].Top());
  EXPECT_EQ(shell.Opened, 1);
  EXPECT_FALSE(shell.MenuWasUp);
  EXPECT_FALSE(shell.WaitingEventsRan);
  desk.World.Desktop.DoEvents();
  EXPECT_TRUE(shell.EventRan);
  desk.World.Desktop.StopTimer(timer);
}

TEST(frmQMenuChoice, TheMenuIsHiddenWhenTheMessageOfAnItemWithoutACommandComesUp) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha", "", "")});
  bool menuWasUp = true;
  desk.World.Desktop.Answer(
      "Empty string in the File Field. Check your entries in the Customize window.",
      forms::msgbox::AnswerOk);
  desk.World.Desktop.WhileBoxIsUp([&](const sim::MessageBox& box) {
    menuWasUp = desk.Menu.MenuVisible();
    EXPECT_EQ(box.Title, "Corvelle");
    EXPECT_EQ(box.Flags, kStopOnTop);
    EXPECT_EQ(box.Owner, desk.Strip.hWnd());
  });
  desk.ClickItem(1);
  EXPECT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  EXPECT_FALSE(menuWasUp);
  EXPECT_TRUE(desk.World.Shell.Log().empty());
}

TEST(frmQMenuChoice, AFolderItemOpensTheFolderItself) {
  MenuDesk desk;
  desk.Open(1, {Item("Tools", "", "C:\\Tools\\ *.txt/u")});
  desk.ClickItem(1);
  EXPECT_EQ(desk.Started(), (std::vector<std::string>{"C:\\Tools\\"}));
}

TEST(frmQMenuChoice, ADisabledItemTakesTheSelectionWithoutABarAndAClickOnItDoesNothing) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.Menu.DisableLabel(2);
  desk.PointAtItem(1);
  desk.PointAtItem(2);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
  EXPECT_EQ(desk.Menu.Lbl[2].ForeColor(), forms::color::HighlightText);
  EXPECT_EQ(desk.BarredItem(), 0);
  desk.World.Desktop.Click();
  EXPECT_TRUE(desk.Menu.MenuVisible());
  EXPECT_TRUE(desk.World.Shell.Log().empty());
  desk.PointAtItem(3);
  EXPECT_EQ(desk.Menu.Lbl[2].ForeColor(), forms::color::GrayText);
}

TEST(frmQMenuChoice, AClickInTheRuleBetweenTwoItemsDoesNothing) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha"), Separator(), Item("Beta")});
  desk.PointAtItem(1);
  // Two pixels below the rule's dark line.
  desk.PointAt(desk.OnScreen(600, desk.Menu.Lbl[1].Bottom() + 11 * 15.0F));
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
  desk.World.Desktop.Click();
  EXPECT_TRUE(desk.Menu.MenuVisible());
  EXPECT_TRUE(desk.World.Shell.Log().empty());
}

TEST(frmQMenuChoice, AClickInTheRuleDoesNothingThoughTheKeysHaveSelectedAnItem) {
  MenuDesk desk;
  desk.Open(1, {Item("Above"), Separator(), Item("Below")});
  const forms::Label& above = desk.Menu.Lbl[1];
  desk.PointAt(desk.OnScreen(above.Left(), above.Bottom() + 135));
  desk.World.Desktop.PressKey(forms::key::Down);
  EXPECT_EQ(desk.BarredItem(), 1);
  desk.World.Desktop.Click();
  EXPECT_TRUE(desk.Started().empty());
  EXPECT_TRUE(desk.Menu.MenuVisible());
  EXPECT_EQ(desk.BarredItem(), 0);
}

TEST(frmQMenuChoice, AReleaseOutsideTheWindowChoosesNothing) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.PointAtItem(2);
  desk.Menu.xMouseUp(MouseButton::Left, {}, -15, desk.Menu.Lbl[2].Top());
  desk.Menu.xMouseUp(MouseButton::Left, {}, desk.Menu.Width(), desk.Menu.Lbl[2].Top());
  EXPECT_TRUE(desk.Menu.MenuVisible());
  EXPECT_TRUE(desk.World.Shell.Log().empty());
}

TEST(frmQMenuChoice, AReleaseHandedOnByTheStripChoosesTheItem) {
  MenuDesk desk;
  desk.TheProgram.Menu.KeyboardOnToolbar = true;
  desk.Open(1, Items(3));
  desk.PointAtItem(2);
  desk.Menu.xMouseUp(MouseButton::Left, {}, 600, desk.Menu.Lbl[2].Top());
  EXPECT_EQ(desk.Started().size(), 1U);
  EXPECT_FALSE(desk.TheProgram.Menu.KeyboardOnToolbar);
}

TEST(frmQMenuChoice, AReleaseHandedOnByTheStripIsNotThatOfAPressThatHasEndedInACarry) {
  constexpr int kCtrl = 17;
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.PointAtItem(2);
  desk.World.Desktop.KeyDown(kCtrl);
  desk.World.Desktop.Press();
  desk.World.Desktop.KeyUp(kCtrl);
  ASSERT_TRUE(desk.TheProgram.Entry.ItemDragging);
  desk.PointAway();
  desk.World.Desktop.Release();
  ASSERT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
  desk.Menu.xMouseUp(MouseButton::Left, {}, 600, desk.Menu.Lbl[2].Top());
  EXPECT_TRUE(desk.Started().empty());
  EXPECT_TRUE(desk.Menu.MenuVisible());
}

TEST(frmQMenuChoice, AMenuOpenedWhileTheOldOneClosesKeepsItsOwnSelection) {
  MenuDesk desk;
  desk.PutMenu(2, Items(4));
  desk.Open(1, {Item("Alpha", "", "")});
  desk.World.Desktop.Answer(forms::msgbox::AnswerOk);
  desk.World.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) {
    desk.Reopen(2);
    desk.PointAtItem(3);
  });
  desk.ClickItem(1);
  EXPECT_EQ(desk.Menu.CurrentKey(), "F3");
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 3);
  EXPECT_EQ(desk.BarredItem(), 3);
}

/// A popup that notes the entry it was asked to act on.
class NotingPopup final : public PopupPort {
 public:
  explicit NotingPopup(Program& program) : program_(program) {}
  void ShowToolbarPopup(EntryEdit entry) override {
    ++Shown;
    Seen = std::move(entry);
    SelectedThen = program_.Menu.SelectedItem;
  }
  int Shown = 0;
  int SelectedThen = 0;
  EntryEdit Seen;

 private:
  Program& program_;
};

TEST(frmQMenuRightClick, NamesTheEntryAndShowsThePopup) {
  MenuDesk desk;
  NotingPopup popup(desk.TheProgram);
  desk.TheProgram.Ports.Popup = &popup;
  desk.Open(1, {Item("Alpha"), Separator(), Item("Cut & Paste", "New", "C:\\Tools\\tool.exe")});
  desk.PointAtItem(2);
  desk.World.Desktop.Click(MouseButton::Right);
  EXPECT_EQ(popup.Shown, 1);
  EXPECT_EQ(popup.Seen.CurTitle, "Cut & Paste");
  EXPECT_EQ(popup.Seen.CurIcon, "New");
  EXPECT_EQ(popup.Seen.CurCommand, "C:\\Tools\\tool.exe");
  EXPECT_EQ(popup.Seen.CurMenuTag, "F2");
  EXPECT_EQ(popup.Seen.CurFile, "C:\\Corvelle\\Menus\\BMENU001.MNU");
  EXPECT_EQ(popup.Seen.CurRecord, 4);
  EXPECT_TRUE(desk.TheProgram.Menu.ItemHasSeparator);
  EXPECT_TRUE(desk.Menu.KeyboardActive);
  EXPECT_TRUE(desk.Menu.MenuVisible());
}

TEST(frmQMenuRightClick, AnEntryOfAFolderOfTheShellIsNamedByItsTitleInIt) {
  MenuDesk desk;
  NotingPopup popup(desk.TheProgram);
  desk.TheProgram.Ports.Popup = &popup;
  FolderMenus folders(desk.TheProgram.Services, desk.TheProgram.Windows, desk.TheProgram.Answers,
                      desk.TheProgram.Icons);
  desk.TheProgram.Ports.FolderMenus = &folders;
  desk.World.Folders.Put(3, {{"Fonts", 37}});
  desk.Open(1, {Item("Panel", "", "CSIDL_CONTROLS"), Item("Drives", "15", "CSIDL_DRIVES/X")});
  desk.PointAtItem(1);
  desk.World.Desktop.Click(MouseButton::Right);
  EXPECT_EQ(popup.Seen.CurCommand, "Fonts\\CSIDL_CONTROLS");
  EXPECT_EQ(popup.Seen.CurIcon, "Fonts\\CSIDL_CONTROLS");
  desk.PointAtItem(2);
  desk.World.Desktop.Click(MouseButton::Right);
  // A folder that is not expanded is an item of the file.
  EXPECT_EQ(popup.Seen.CurCommand, "CSIDL_DRIVES/X");
  EXPECT_EQ(popup.Seen.CurIcon, "15");
}

TEST(frmQMenuRightClick, WithoutAnItemOrOnADisabledOneDoesNothing) {
  MenuDesk desk;
  NotingPopup popup(desk.TheProgram);
  desk.TheProgram.Ports.Popup = &popup;
  desk.Open(1, Items(2));
  desk.Menu.DisableLabel(1);
  desk.PointAtItem(1);
  desk.World.Desktop.Click(MouseButton::Right);
  desk.PointAt(desk.OnScreen(600, desk.Menu.Lbl[2].Bottom() + 60));
  desk.World.Desktop.Click(MouseButton::Right);
  EXPECT_EQ(popup.Shown, 0);
}

/// A menu that was read again, as after an edit, while the pointer rests on its second item.
class Rebuilt : public ::testing::Test {
 protected:
  void SetUp() override {
    desk_.TheProgram.Ports.Popup = &popup_;
    desk_.Open(1, Items(3));
    desk_.PointAtItem(2);
    Rebuild();
  }
  void Rebuild() {
    desk_.Menu.HideMenu();
    desk_.Menu.ForgetMenu("F2");
    desk_.Reopen(1);
    desk_.Menu.GetCurMenu();
    ASSERT_EQ(desk_.TheProgram.Menu.SelectedItem, 0);
  }

  MenuDesk desk_;
  NotingPopup popup_{desk_.TheProgram};
};

TEST_F(Rebuilt, TheItemUnderTheStillPointerIsSelectedAtTheNextTick) {
  desk_.Poll();
  EXPECT_EQ(desk_.TheProgram.Menu.SelectedItem, 2);
  EXPECT_EQ(desk_.BarredItem(), 2);
  EXPECT_EQ(desk_.Menu.CurItem, 2);
}

TEST_F(Rebuilt, ARightClickDoesNotWaitForThat) {
  desk_.World.Desktop.Click(MouseButton::Right);
  EXPECT_EQ(popup_.Shown, 1);
  EXPECT_EQ(popup_.SelectedThen, 2);
}

TEST_F(Rebuilt, NorDoesAChoice) {
  desk_.World.Desktop.Click();
  EXPECT_EQ(desk_.Started().size(), 1U);
}

TEST_F(Rebuilt, AKeyComesBeforeThePointer) {
  desk_.World.Desktop.PressKey(forms::key::Up);
  EXPECT_EQ(desk_.TheProgram.Menu.SelectedItem, 3);
  desk_.Poll();
  EXPECT_EQ(desk_.TheProgram.Menu.SelectedItem, 3);
}

TEST_F(Rebuilt, OnlyOnceIsItSelected) {
  desk_.Poll();
  desk_.World.Desktop.PressKey(forms::key::Down);
  desk_.Poll();
  EXPECT_EQ(desk_.TheProgram.Menu.SelectedItem, 3);
}

TEST_F(Rebuilt, APointerElsewhereSelectsNothing) {
  desk_.PointAway();
  Rebuild();
  desk_.Poll();
  EXPECT_EQ(desk_.TheProgram.Menu.SelectedItem, 0);
}

TEST_F(Rebuilt, AnotherProgramInFrontStaysThere) {
  const WindowId other = desk_.World.Desktop.AddOtherWindow({.Bounds = {600, 500, 1000, 760}});
  desk_.World.Desktop.TakeForeground(other);
  desk_.Poll();
  EXPECT_EQ(desk_.World.Desktop.ForegroundWindow(), other);
  EXPECT_EQ(desk_.TheProgram.Menu.SelectedItem, 0);
}

TEST_F(Rebuilt, AnArrowUnderTheStillPointerIsFramed) {
  desk_.Menu.ForgetMenu("F2");
  desk_.Open(1, Items(100));
  desk_.PointAt(desk_.ArrowPoint(1));
  Rebuild();
  desk_.Menu.ActiveArrow = frmQMenu::kNoArrow;
  desk_.Poll();
  EXPECT_EQ(desk_.Menu.ActiveArrow, 1);
  EXPECT_TRUE(desk_.Menu.LineLeft.Visible());
}

TEST(frmQMenuPoll, LeavingTheMenuWithThePointerClearsTheSelection) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.PointAtItem(2);
  desk.PointAway();
  desk.Poll();
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
  EXPECT_EQ(desk.BarredItem(), 0);
  EXPECT_TRUE(desk.Menu.MenuVisible());
}

TEST(frmQMenuPoll, LeavingItAfterTheArrowKeysKeepsTheSelection) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.PointAtItem(1);
  desk.World.Desktop.PressKey(forms::key::Down);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
  desk.PointAway();
  desk.Poll();
  desk.Poll();
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
  EXPECT_EQ(desk.BarredItem(), 2);
}

TEST(frmQMenuPoll, AMoveAfterTheKeysCountsAgain) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.PointAtItem(1);
  desk.World.Desktop.PressKey(forms::key::Down);
  desk.PointAtItem(3);
  desk.PointAway();
  desk.Poll();
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
}

TEST(frmQMenuPoll, AnArrowBeginsAtTheTopOnceThePointerHasLeftTheItems) {
  MenuDesk desk;
  desk.Open(1, Items(4));
  const auto next = [&] {
    desk.World.Desktop.PressKey(forms::key::Down);
    return desk.TheProgram.Menu.SelectedItem;
  };
  desk.PointAtItem(2);
  desk.PointAway();
  desk.Poll();
  EXPECT_EQ(next(), 1) << "away";
  desk.PointAtItem(2);
  desk.PointAt(desk.OnScreen(600, desk.Menu.Lbl[4].Bottom() + 60));
  EXPECT_EQ(next(), 1) << "below the last one";
  desk.PointAtItem(2);
  desk.Menu.xMouseMove(-600);
  EXPECT_EQ(next(), 1) << "above the menu";
}

TEST(frmQMenuPoll, AnotherProgramInFrontClosesTheMenuUnlessThePointerIsOverIt) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Bounds = {600, 500, 1000, 760}});
  desk.PointAtItem(2);
  desk.World.Desktop.TakeForeground(other);
  desk.Poll();
  EXPECT_TRUE(desk.Menu.MenuVisible());
  desk.PointAway();
  desk.Poll();
  EXPECT_FALSE(desk.Menu.MenuVisible());
  EXPECT_EQ(desk.Strip.Times("ResetMenu"), 1);
}

TEST(frmQMenuPoll, TheMenuStaysWhileTheStripIsActive) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.World.Desktop.TakeForeground(desk.Strip.hWnd());
  desk.Poll();
  EXPECT_TRUE(desk.Menu.MenuVisible());
}

TEST(frmQMenuPoll, ComingBackSelectsAtTheFirstMove) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.Poll();
  EXPECT_TRUE(desk.Menu.PointerAway);
  desk.PointAtItem(2);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
  desk.World.Desktop.Click();
  EXPECT_EQ(desk.Started().size(), 1U);
}

TEST(frmQMenuPoll, NothingWakesWhileNoMenuIsUp) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.PointAtItem(1);
  desk.World.Desktop.PressKey(forms::key::Escape);
  EXPECT_FALSE(desk.Menu.Timer1.Enabled());
  desk.World.Desktop.Advance(2000);
  EXPECT_EQ(desk.Strip.Times("ResetMenu"), 1);
}

TEST(frmQMenuDeactivate, TakesTheSelectionAndLeavesTheMenu) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.PointAtItem(2);
  desk.World.Desktop.TakeForeground(desk.Strip.hWnd());
  EXPECT_EQ(desk.BarredItem(), 0);
  EXPECT_EQ(desk.Menu.Lbl[2].ForeColor(), forms::color::ButtonText);
  EXPECT_TRUE(desk.Menu.MenuVisible());
}

TEST(frmQMenuClose, AltF4ClosesTheMenuAndNotTheWindow) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.World.Desktop.Send(desk.Menu.hWnd(), forms::message::Close, 0, 0);
  EXPECT_FALSE(desk.Menu.MenuVisible());
  EXPECT_TRUE(desk.Menu.WindowLoaded());
  desk.Reopen(1);
  EXPECT_TRUE(desk.Menu.MenuVisible());
}

TEST(frmQMenuDisabled, AnItemGetsAnEngravedShadowBehindIt) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.Menu.DisableLabel(2);
  const forms::Label& item = desk.Menu.Lbl[2];
  const forms::Label& shadow = desk.Menu.Lbl[4];
  EXPECT_FALSE(item.Enabled());
  EXPECT_EQ(item.ForeColor(), forms::color::GrayText);
  EXPECT_TRUE(shadow.Visible());
  EXPECT_EQ(shadow.Caption(), item.Caption());
  EXPECT_EQ(shadow.Left(), item.Left() + 15);
  EXPECT_EQ(shadow.Top(), item.Top() + 15);
  EXPECT_EQ(shadow.ForeColor(), forms::color::Highlight3D);
  const auto& order = desk.Menu.Graphics();
  EXPECT_LT(std::find(order.begin(), order.end(), &shadow),
            std::find(order.begin(), order.end(), &item));
  EXPECT_EQ(desk.Menu.ShadowCount, 1);
}

TEST(frmQMenuDisabled, EnablingOneItemTakesAllShadowsAndNoColour) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.Menu.DisableLabel(1);
  desk.Menu.DisableLabel(2);
  EXPECT_EQ(desk.Menu.ShadowCount, 2);
  desk.Menu.EnableLabel(1);
  EXPECT_TRUE(desk.Menu.Lbl[1].Enabled());
  EXPECT_FALSE(desk.Menu.Lbl[2].Enabled());
  EXPECT_EQ(desk.Menu.Lbl[1].ForeColor(), forms::color::GrayText);
  EXPECT_FALSE(desk.Menu.Lbl[4].Visible());
  EXPECT_FALSE(desk.Menu.Lbl[5].Visible());
  EXPECT_EQ(desk.Menu.ShadowCount, 0);
}

TEST(frmQMenuDisabled, TheNextMenuHasNoShadowLeft) {
  MenuDesk desk;
  desk.Open(1, Items(3));
  desk.Menu.DisableLabel(2);
  desk.Menu.HideMenu();
  desk.Open(2, Items(2));
  for (int i = 1; i <= 2; ++i) {
    EXPECT_TRUE(desk.Menu.Lbl[i].Enabled()) << i;
    EXPECT_EQ(desk.Menu.Lbl[i].ForeColor(), forms::color::ButtonText) << i;
  }
  for (int i = 3; i <= desk.Menu.LoadedLabels(); ++i) {
    EXPECT_FALSE(desk.Menu.Lbl[i].Visible()) << i;
  }
}

TEST(frmQMenuDrag, InAGapTheItemBelowIsTaken) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha"), Separator(), Item("Beta")});
  desk.PointAtItem(1);
  desk.TheProgram.Entry.ItemDragging = true;
  desk.Menu.xMouseMove(desk.Menu.Lbl[1].Bottom() + 11 * 15.0F);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
  desk.Menu.xMouseMove(15);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 1);
}

}  // namespace
}  // namespace corvelle
