// The strip and its menus under the user's hands.

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "toolbar/StripDesk.h"

namespace corvelle {
namespace {

using forms::MouseButton;

/// A program's own menu that notes nothing.
struct MainMenuDouble final : MainMenuPort {
  void xMainMenu(int, std::string_view) override {}
  void CheckLabels() override {}
};

/// A popup that notes the entry it was shown for.
struct PopupEntries final : PopupPort {
  void ShowToolbarPopup(EntryEdit entry) override { Shown.push_back(std::move(entry)); }
  std::vector<EntryEdit> Shown;
};

/// A strip with three menus, started.
struct ThreeMenus : StripDesk {
  explicit ThreeMenus(const sim::WorldOptions& options = {}) : StripDesk(options) {
    PutButtons(3);
    Start();
  }
};

TEST(ToolbarPress, OpensTheMenuUnderItsButton) {
  struct Row {
    const char* name;
    float twips;
  };
  for (const Row& row : {Row{"96 dpi", 15}, Row{"120 dpi", 12}}) {
    SCOPED_TRACE(row.name);
    ThreeMenus desk({.TwipsPerPixel = row.twips});
    desk.Press(3);
    EXPECT_EQ(desk.MenuUp(), 3);
    EXPECT_EQ(desk.Menu.CurrentKey(), "F3");
    EXPECT_EQ(desk.Menu.LastFile, "C:\\Corvelle\\Menus\\BMENU002.MNU");
    EXPECT_EQ(desk.Menu.Top(), desk.Strip.Bottom());
    EXPECT_EQ(desk.Menu.Left(), desk.Strip.Left() + (2 * 24 + 1) * row.twips);
    EXPECT_TRUE(desk.TheProgram.Menu.MenuOpen);
    EXPECT_TRUE(desk.Menu.Poll);
  }
}

TEST(ToolbarPress, MeansTheButtonUnderThePressWhereverThePointerIsByThen) {
  ThreeMenus desk;
  desk.PointAt({600, 500});
  const ButtonRect& third = desk.Strip.Buttons.ToolbarButtons[3];
  desk.Strip.picToolbar.MouseDown(MouseButton::Left, {}, third.Left + third.Width / 2, 100);
  EXPECT_EQ(desk.MenuUp(), 3);
}

TEST(ToolbarPress, ShowsTheButtonPressedAndTheOthersAtRest) {
  ThreeMenus desk;
  desk.Press(2);
  EXPECT_FALSE(desk.Strip.LinTB1[2].Visible());
  EXPECT_FALSE(desk.Strip.LinTB2[2].Visible());
  EXPECT_TRUE(desk.AtRest(4));
  // The neighbours lend their lines: the left one is the shadow, the right one the light.
  EXPECT_EQ(desk.Strip.LinTB2[1].BorderColor(), forms::color::ButtonShadow);
  EXPECT_TRUE(desk.Strip.LinTB2[1].Visible());
  EXPECT_EQ(desk.Strip.LinTB1[3].BorderColor(), forms::color::Highlight3D);
  EXPECT_TRUE(desk.Strip.LinTB1[3].Visible());
}

TEST(ToolbarPress, ASecondOneClosesTheMenuAndAThirdOpensIt) {
  ThreeMenus desk;
  for (int round = 1; round <= 3; ++round) {
    SCOPED_TRACE(round);
    desk.Click(2);
    desk.Wait(300);
    EXPECT_EQ(desk.MenuUp(), 2);
    desk.Click(2);
    desk.Wait(300);
    EXPECT_EQ(desk.MenuUp(), 0);
    EXPECT_EQ(desk.Menu.OwnerTag(), "0");
    EXPECT_FALSE(desk.TheProgram.Menu.MenuOpen);
    EXPECT_TRUE(desk.AtRest(2));
  }
}

TEST(ToolbarPress, ASecondOneClosesTheMenuBeforeItsRelease) {
  ThreeMenus desk;
  desk.Click(2);
  desk.Press(2);
  EXPECT_EQ(desk.MenuUp(), 0);
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(ToolbarPress, AQuickSecondOneClosesTheMenuToo) {
  ThreeMenus desk;
  desk.PointAtButton(2);
  desk.World.Desktop.DoubleClick();
  desk.Wait(300);
  EXPECT_EQ(desk.MenuUp(), 0);
  desk.Click(2);
  EXPECT_EQ(desk.MenuUp(), 2);
}

// What the first press opened is closed by a choice, the second one comes soon enough to be of a
// pair, and the hand has gone on when it is dealt with.
TEST(ToolbarPress, AQuickSecondOneMeansItsOwnPlaceWhereverThePointerIsByThen) {
  ThreeMenus desk;
  desk.Click(3);
  desk.Strip.ResetMenu();
  ASSERT_EQ(desk.MenuUp(), 0);
  desk.PointAway();
  desk.Strip.picToolbar.DblClick();
  EXPECT_EQ(desk.MenuUp(), 3);
}

TEST(ToolbarPress, OfTheRightButtonOpensNothing) {
  ThreeMenus desk;
  desk.PointAtButton(2);
  desk.World.Desktop.Click(MouseButton::Right);
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(ToolbarPress, WhileAMenuIsBuiltOpensNoOther) {
  ThreeMenus desk;
  desk.Menu.WhileBuilding = [&] {
    desk.Click(3);
    desk.TheProgram.Events.DoEvents();
  };
  desk.Press(2);
  EXPECT_EQ(desk.Menu.Times("ShowMenu F2"), 1);
  EXPECT_EQ(desk.Menu.Times("ShowMenu F3"), 0);
  EXPECT_EQ(desk.MenuUp(), 2);
  EXPECT_TRUE(desk.AtRest(3));
}

TEST(ToolbarPress, AMenuThatWasBuiltUnderAnotherButtonsPressStandsAtItsOwnButton) {
  ThreeMenus desk;
  desk.Menu.WhileBuilding = [&] {
    desk.PointAtButton(4);
    desk.TheProgram.Events.DoEvents();
  };
  desk.Press(2);
  EXPECT_EQ(desk.Menu.Left(), desk.Strip.Left() + 25 * 15);
}

TEST(ToolbarPress, AnEnterThatComesWhileTheMenuIsBuiltDoesNotCloseIt) {
  ThreeMenus desk;
  desk.Menu.WhileBuilding = [&] {
    desk.World.Desktop.PressKey(forms::key::Enter);
    desk.TheProgram.Events.DoEvents();
  };
  desk.Press(2);
  EXPECT_EQ(desk.MenuUp(), 2);
  EXPECT_TRUE(desk.TheProgram.Menu.MenuOpen);
}

TEST(ToolbarPress, TheProgramMayEndWhileAMenuIsBuilt) {
  ThreeMenus desk;
  desk.Menu.WhileBuilding = [&] { desk.Exit(); };
  desk.Press(2);
  EXPECT_FALSE(desk.Strip.IsLoaded());
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(ToolbarPress, AMenuThatIsClosedWhileItIsBuiltStaysClosed) {
  for (const bool refuses : {false, true}) {
    SCOPED_TRACE(refuses);
    ThreeMenus desk;
    desk.Menu.Refuses = refuses;
    desk.Menu.WhileBuilding = [&] { desk.Strip.ResetMenu(); };
    desk.Press(2);
    EXPECT_EQ(desk.MenuUp(), 0);
    EXPECT_FALSE(desk.TheProgram.Menu.MenuOpen);
    EXPECT_FALSE(desk.Strip.Timer2.Enabled());
    EXPECT_TRUE(desk.AtRest(2));
  }
}

TEST(ToolbarPress, AMenuThatCannotBeShownLeavesTheStripAtRest) {
  ThreeMenus desk;
  desk.Menu.Refuses = true;
  desk.Click(2);
  EXPECT_TRUE(desk.AtRest(2));
  EXPECT_FALSE(desk.TheProgram.Menu.MenuOpen);
  desk.Menu.Refuses = false;
  desk.Click(2);
  EXPECT_EQ(desk.MenuUp(), 2);
}

TEST(ToolbarPress, OnASeparatorOpensNothing) {
  StripDesk desk;
  desk.PutButton(1, "First");
  desk.PutButton(2, "", "MenuLineSeparator");
  desk.PutButton(3, "Third");
  desk.Start();
  // 12 pixels from the middle of button 2 to its end, and 4 more.
  desk.PointAt({desk.Middle(2).x + 16, desk.Middle(2).y});
  desk.World.Desktop.Click();
  EXPECT_EQ(desk.MenuUp(), 0);
  EXPECT_FALSE(desk.TheProgram.Menu.MenuOpen);
}

TEST(ToolbarHover, WithAMenuOpenTheNextButtonsMenuComesWithoutAClick) {
  ThreeMenus desk;
  desk.Click(2);
  desk.Wait();
  desk.PointAtButton(3);
  desk.Wait();
  EXPECT_EQ(desk.MenuUp(), 3);
  desk.PointAtButton(4);
  desk.Wait();
  EXPECT_EQ(desk.MenuUp(), 4);
  EXPECT_TRUE(desk.AtRest(2));
}

TEST(ToolbarHover, WhileTheNextMenuIsBuiltNoMenuIsPolled) {
  ThreeMenus desk;
  desk.Click(2);
  ASSERT_TRUE(desk.Menu.Poll);
  bool polled = true;
  desk.Menu.WhileBuilding = [&] { polled = desk.Menu.Poll; };
  desk.PointAtButton(3);
  desk.Menu.WhileBuilding = {};
  EXPECT_EQ(desk.MenuUp(), 3);
  EXPECT_FALSE(polled);
  EXPECT_TRUE(desk.Menu.Poll);
}

// Until the next menu is up there is nothing that a pointer could leave: 1 ms ticks would only take
// time from the building.
TEST(ToolbarHover, WhileTheNextMenuIsBuiltThePointerIsNotWatched) {
  ThreeMenus desk;
  desk.Click(2);
  ASSERT_TRUE(desk.Strip.Timer2.Enabled());
  bool watched = true;
  desk.Menu.WhileBuilding = [&] { watched = desk.Strip.Timer2.Enabled(); };
  desk.PointAtButton(3);
  desk.Menu.WhileBuilding = {};
  EXPECT_EQ(desk.MenuUp(), 3);
  EXPECT_FALSE(watched);
  EXPECT_TRUE(desk.Strip.Timer2.Enabled());
}

TEST(ToolbarHover, ThePollFindsAPointerWhoseMoveNobodyReported) {
  ThreeMenus desk;
  desk.Click(2);
  desk.Wait();
  ASSERT_TRUE(desk.Strip.Timer2.Enabled());
  // The menu window has the capture: the strip gets no move.
  desk.World.Desktop.SetPointerPosition(desk.Middle(3));
  desk.Strip.Menus.Timer2_Timer();
  EXPECT_EQ(desk.MenuUp(), 3);
}

TEST(ToolbarHover, WithNoMenuOpenNothingComes) {
  ThreeMenus desk;
  for (int button = 1; button <= 4; ++button) {
    desk.PointAtButton(button);
    desk.Wait();
    EXPECT_EQ(desk.TheProgram.Menu.CurButton, button);
  }
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(ToolbarHover, AfterASecondPressNothingComesEither) {
  ThreeMenus desk;
  desk.Click(2);
  desk.Click(2);
  desk.PointAtButton(3);
  desk.Wait(300);
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(ToolbarHover, CrossingAGapKeepsTheMenu) {
  ThreeMenus desk;
  desk.PutButton(3, "", "MenuLineSeparator");
  desk.Strip.InitNewButtons();
  ASSERT_EQ(desk.Strip.Buttons.SepCount, 1);
  desk.Click(3);
  desk.Wait();
  desk.PointAt({desk.Middle(3).x + 14, desk.Middle(3).y});
  desk.Wait(300);
  EXPECT_EQ(desk.TheProgram.Menu.CurButton, 3);
  EXPECT_EQ(desk.MenuUp(), 3);
}

TEST(ToolbarHover, InTheMenuItStaysOpen) {
  ThreeMenus desk;
  desk.Click(2);
  const PixelRect menu = desk.World.Desktop.BoundsOf(desk.Menu.hWnd());
  desk.PointAt({menu.left + 20, menu.top + 100});
  desk.Wait(1000);
  EXPECT_EQ(desk.MenuUp(), 2);
}

TEST(ToolbarHover, TheMainButtonWithoutAMenuHidesTheOpenOneAndTheNextComesBack) {
  ThreeMenus desk;
  desk.Click(2);
  desk.Wait();
  desk.PointAtButton(1);
  desk.Wait();
  EXPECT_EQ(desk.MenuUp(), 0);
  EXPECT_FALSE(desk.Strip.Timer2.Enabled());
  desk.PointAtButton(3);
  desk.Wait();
  EXPECT_EQ(desk.MenuUp(), 3);
}

TEST(ToolbarHover, AMenuHiddenThatWayIsForgottenWhenTheUserGoesElsewhere) {
  ThreeMenus desk;
  desk.Click(2);
  desk.PointAtButton(1);
  desk.Wait();
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Title = "Other"});
  desk.World.Desktop.TakeForeground(other);
  desk.Wait();
  EXPECT_FALSE(desk.TheProgram.Menu.MenuOpen);
  desk.PointAtButton(3);
  desk.Wait();
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(ToolbarHover, OpensNothingWhileAnotherProgramIsActive) {
  ThreeMenus desk;
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Title = "Other"});
  desk.World.Desktop.TakeForeground(other);
  desk.TheProgram.Menu.MenuOpen = true;
  desk.PointAtButton(3);
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(ToolbarHover, TheSingleButtonsHideTheMenu) {
  ThreeMenus desk;
  desk.Click(4);
  desk.Wait();
  const PixelRect box = desk.World.Desktop.BoundsOf(desk.Strip.picSingleButton.hWnd());
  desk.PointAt({box.left + 3, box.top + 8});
  desk.Wait();
  EXPECT_EQ(desk.MenuUp(), 0);
  for (int i = 1; i <= 4; ++i) EXPECT_TRUE(desk.AtRest(i)) << i;
}

TEST(ToolbarClose, AnotherProgramInTheForegroundClosesTheMenu) {
  ThreeMenus desk;
  desk.Click(2);
  desk.Wait();
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Title = "Other"});
  desk.PointAway();
  desk.World.Desktop.TakeForeground(other);
  desk.Wait();
  EXPECT_EQ(desk.MenuUp(), 0);
  EXPECT_TRUE(desk.AtRest(2));
  EXPECT_FALSE(desk.Strip.Timer2.Enabled());
}

TEST(ToolbarClose, APressOnTheFrameClosesTheMenu) {
  ThreeMenus desk;
  desk.Click(2);
  desk.Wait();
  const PixelRect strip = desk.World.Desktop.BoundsOf(desk.Strip.hWnd());
  // The grip, between both boxes.
  desk.PointAt({strip.left + 1 + 4 * 24 + 4, strip.bottom - 10});
  desk.World.Desktop.Click();
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(ToolbarClose, ThePollEndsWithAMenuThatWentByItself) {
  ThreeMenus desk;
  desk.Click(2);
  desk.Wait();
  ASSERT_TRUE(desk.Strip.Timer2.Enabled());
  desk.Menu.Hide();
  desk.Wait();
  EXPECT_FALSE(desk.Strip.Timer2.Enabled());
}

TEST(ToolbarClose, AMenuOnTheScreenIsClosedThoughNoneIsMarkedOpen) {
  ThreeMenus desk;
  desk.Click(2);
  desk.TheProgram.Menu.MenuOpen = false;
  desk.Strip.ResetMenu();
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(ToolbarDrag, HeldIntoTheMenuThePointerAndTheReleaseAreHandedOn) {
  ThreeMenus desk;
  desk.Press(2);
  const PixelRect menu = desk.World.Desktop.BoundsOf(desk.Menu.hWnd());
  desk.PointAt({menu.left + 20, menu.top + 43});
  desk.World.Desktop.Release();
  // The release says once more where the hand is.
  EXPECT_EQ(desk.Menu.Times("xMouseMove 600"), 2);
  EXPECT_EQ(desk.Menu.Times("xMouseUp 1 255 600"), 1);
}

TEST(ToolbarRefresh, AMenuIsReadAnewAndComesBackOnItsPage) {
  ThreeMenus desk;
  desk.Click(2);
  desk.Menu.Asked.clear();
  desk.Strip.RefreshMenu("F2");
  const std::vector<std::string> expected = {"ShowMenu F2", "GetCurMenu"};
  std::vector<std::string> asked;
  for (const std::string& what : desk.Menu.Asked) {
    if (asked.empty() || asked.back() != what) asked.push_back(what);
  }
  EXPECT_EQ(asked, expected);
  EXPECT_EQ(desk.MenuUp(), 2);
  EXPECT_TRUE(desk.Strip.Enabled());
  EXPECT_TRUE(desk.Strip.Timer2.Enabled());
  EXPECT_TRUE(desk.Menu.Poll);
}

TEST(ToolbarRefresh, AnEmptyTagTakesTheLastOne) {
  ThreeMenus desk;
  desk.Click(3);
  desk.Menu.Asked.clear();
  desk.Strip.RefreshMenu("");
  EXPECT_EQ(desk.Menu.Times("ShowMenu F3"), 1);
}

TEST(ToolbarRefresh, ATagWithoutAButtonOpensNothing) {
  for (const char* tag : {"Toolbar", "F0", "F99", "Fx", "F-1", "SingleButtons"}) {
    SCOPED_TRACE(tag);
    ThreeMenus desk;
    MainMenuDouble own;
    desk.TheProgram.Ports.MainMenu = &own;
    desk.Strip.RefreshMenu(tag);
    desk.Strip.OpenMenu(tag);
    EXPECT_EQ(desk.MenuUp(), 0);
    EXPECT_TRUE(desk.Strip.Enabled());
    EXPECT_FALSE(desk.Strip.Menus.MenuRefreshing);
  }
}

TEST(ToolbarRefresh, OneThatArrivesWithinAnotherDoesNothing) {
  ThreeMenus desk;
  desk.Click(2);
  desk.Menu.Asked.clear();
  desk.Menu.WhileBuilding = [&] { desk.Strip.RefreshMenu("F2"); };
  desk.Strip.RefreshMenu("F2");
  EXPECT_EQ(desk.Menu.Times("ShowMenu F2"), 1);
  EXPECT_FALSE(desk.Strip.Menus.MenuRefreshing);
}

TEST(ToolbarMainMenu, APressOpensNothingInAProgramWithoutOne) {
  ThreeMenus desk;
  desk.Click(1);
  EXPECT_EQ(desk.MenuUp(), 0);
  EXPECT_TRUE(desk.AtRest(1));
  EXPECT_FALSE(desk.World.Files.Has("C:\\Corvelle\\mainmenu.dat"));
}

TEST(ToolbarMainMenu, APressClosesTheMenuOfAnother) {
  ThreeMenus desk;
  desk.Click(2);
  desk.Click(1);
  EXPECT_EQ(desk.MenuUp(), 0);
  EXPECT_FALSE(desk.TheProgram.Menu.MenuOpen);
}

TEST(ToolbarMainMenu, HasAFileOfItsOwn) {
  ThreeMenus desk;
  MainMenuDouble own;
  desk.TheProgram.Ports.MainMenu = &own;
  desk.Click(1);
  EXPECT_EQ(desk.Menu.CurrentKey(), "Q1");
  EXPECT_EQ(desk.Menu.LastFile, "C:\\Corvelle\\mainmenu.dat");
  EXPECT_EQ(desk.MenuUp(), 1);
  EXPECT_FALSE(desk.AtRest(1));
  desk.PointAtButton(2);
  EXPECT_EQ(desk.MenuUp(), 2);
  EXPECT_TRUE(desk.AtRest(1));
}

TEST(ToolbarKeys, LeftAndRightGoRoundTheStripWithThePointer) {
  struct Row {
    const char* name;
    int key;
    int from;
    int to;
  };
  const Row rows[] = {{"right", 39, 2, 3},
                      {"right from the last", 39, 4, 1},
                      {"left", 37, 3, 2},
                      {"left from the first", 37, 1, 4}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ThreeMenus desk;
    desk.PointAtButton(row.from);
    desk.World.Desktop.PressKey(row.key);
    EXPECT_EQ(desk.TheProgram.Menu.CurButton, row.to);
    EXPECT_EQ(desk.World.Desktop.WindowAt(desk.World.Desktop.PointerPosition()),
              desk.Strip.picToolbar.hWnd());
  }
}

TEST(ToolbarKeys, F10StartsAtTheFirstButtonAndEnterOpensAMenu) {
  ThreeMenus desk;
  desk.PointAway();
  desk.World.Desktop.PressKey(forms::key::F10);
  EXPECT_EQ(desk.TheProgram.Menu.CurButton, 1);
  desk.World.Desktop.PressKey(forms::key::Right);
  desk.World.Desktop.PressKey(forms::key::Enter);
  EXPECT_EQ(desk.MenuUp(), 2);
}

TEST(ToolbarKeys, F10StartsAtTheMainButtonWhereItIsAlone) {
  StripDesk desk;
  desk.World.Desktop.AnswerAnyOther(forms::msgbox::AnswerNo);
  desk.Start();
  ASSERT_EQ(desk.Strip.Buttons.ButtonCount, 1);
  desk.PointAway();
  desk.World.Desktop.TakeForeground(desk.Strip.hWnd());
  desk.World.Desktop.PressKey(forms::key::F10);
  EXPECT_EQ(desk.TheProgram.Menu.CurButton, 1);
}

TEST(ToolbarKeys, F10StartsAnewAfterThePointerLeftTheStrip) {
  ThreeMenus desk;
  desk.PointAtButton(3);
  desk.PointAway();
  desk.World.Desktop.PressKey(forms::key::F10);
  EXPECT_EQ(desk.TheProgram.Menu.CurButton, 1);
}

TEST(ToolbarKeys, EnterClosesAnOpenMenuWhenTheStripHasTheKeyboard) {
  ThreeMenus desk;
  desk.Click(2);
  desk.Strip.SetFocus();
  desk.World.Desktop.PressKey(forms::key::Enter);
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(ToolbarKeys, EscClosesTheMenu) {
  ThreeMenus desk;
  desk.Click(2);
  desk.Strip.SetFocus();
  desk.World.Desktop.PressKey(forms::key::Escape);
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(ToolbarKeys, OtherKeysAndLettersGoToTheMenuThatIsUp) {
  ThreeMenus desk;
  desk.World.Desktop.PressKey(forms::key::Down);
  EXPECT_EQ(desk.Menu.Times("ActivateKeyDown 40"), 0);
  desk.Click(2);
  desk.Strip.SetFocus();
  desk.World.Desktop.PressKey(forms::key::Down);
  desk.World.Desktop.Type("a ");
  EXPECT_EQ(desk.Menu.Times("ActivateKeyDown 40"), 1);
  EXPECT_EQ(desk.Menu.Times("xKeyPress 97"), 1);
  EXPECT_EQ(desk.Menu.Times("xKeyPress 32"), 0);
}

TEST(ToolbarKeys, AKeyOfTheMenuMovesToTheNextButtonsMenu) {
  ThreeMenus desk;
  desk.Click(2);
  desk.Strip.ActivateKeyDown(forms::key::Right);
  desk.Wait();
  EXPECT_EQ(desk.MenuUp(), 3);
  desk.Strip.ActivateKeyDown(forms::key::Left);
  desk.Wait();
  EXPECT_EQ(desk.MenuUp(), 2);
}

TEST(ToolbarKeys, AKeyOfTheMenuDoesNothingDuringACarry) {
  ThreeMenus desk;
  desk.Click(2);
  desk.TheProgram.Entry.ItemDragging = true;
  desk.Strip.ActivateKeyDown(forms::key::Right);
  EXPECT_EQ(desk.TheProgram.Menu.CurButton, 2);
  EXPECT_EQ(desk.MenuUp(), 2);
}

TEST(ToolbarCarry, IsAbandonedWhenNoMouseButtonIsDown) {
  ThreeMenus desk;
  desk.TheProgram.Entry.ItemDragging = true;
  desk.TheProgram.Entry.CurTitle = "Carried";
  desk.World.Desktop.SetMousePointer(forms::MousePointer::Hourglass);
  desk.Strip.Menus.GetCurButton();
  EXPECT_TRUE(desk.TheProgram.Entry.ItemDragging) << "the release may still be on its way";
  desk.World.Desktop.Jump(150);
  desk.Strip.Menus.GetCurButton();
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
  EXPECT_TRUE(desk.TheProgram.Entry.CurTitle.empty());
  EXPECT_EQ(desk.World.Desktop.CurrentMousePointer(), forms::MousePointer::Default);
}

TEST(ToolbarPopup, ARightClickOnAButtonNamesItsRecord) {
  ThreeMenus desk;
  PopupEntries popup;
  desk.TheProgram.Ports.Popup = &popup;
  desk.Click(4);
  desk.PointAtButton(3);
  desk.World.Desktop.Click(MouseButton::Right);
  ASSERT_EQ(popup.Shown.size(), 1U);
  EXPECT_EQ(popup.Shown[0].CurMenuTag, "B3");
  EXPECT_EQ(popup.Shown[0].CurRecord, 1);
  EXPECT_EQ(popup.Shown[0].CurTitle, "Menu 2");
  EXPECT_EQ(popup.Shown[0].CurIcon, "Button");
  EXPECT_EQ(popup.Shown[0].CurFile, "C:\\Corvelle\\Menus\\BMENU002.MNU");
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(ToolbarPopup, ItsButtonsMenuIsTheOneThatIsReadAnewWithoutATag) {
  ThreeMenus desk;
  PopupEntries popup;
  desk.TheProgram.Ports.Popup = &popup;
  desk.PointAtButton(3);
  desk.World.Desktop.Click(MouseButton::Right);
  desk.Strip.OpenMenu("");
  EXPECT_EQ(desk.MenuUp(), 3);
}

TEST(ToolbarPopup, TheMainButtonHasNoRecord) {
  ThreeMenus desk;
  PopupEntries popup;
  desk.TheProgram.Ports.Popup = &popup;
  EntryEdit& entry = desk.TheProgram.Entry;
  entry.CurTitle = entry.CurIcon = entry.CurCommand = entry.CurFile = "of another entry";
  entry.CurRecord = 3;
  desk.PointAtButton(1);
  desk.World.Desktop.Click(MouseButton::Right);
  ASSERT_EQ(popup.Shown.size(), 1U);
  const EntryEdit& shown = popup.Shown[0];
  EXPECT_EQ(shown.CurMenuTag, "B1");
  EXPECT_EQ(shown.CurRecord, 0);
  EXPECT_EQ(shown.CurTitle + shown.CurIcon + shown.CurCommand + shown.CurFile, "");
}

TEST(ToolbarPopup, ARightPressOnAButtonThatIsLetGoElsewhereMeansWhatIsThere) {
  struct Row {
    const char* name;
    PixelPoint (*at)(const StripDesk&);
    std::vector<std::string> tags;
  };
  const Row rows[] = {
      {"the frame",
       [](const StripDesk& desk) {
         const PixelRect strip = desk.World.Desktop.BoundsOf(desk.Strip.hWnd());
         return PixelPoint{strip.left, strip.bottom - 2};
       },
       {"Toolbar"}},
      {"the row",
       [](const StripDesk& desk) {
         const PixelRect row = desk.World.Desktop.BoundsOf(desk.Strip.picSingleButton.hWnd());
         return PixelPoint{row.left + 2, row.bottom - 4};
       },
       {"SingleButtons"}},
      {"another program",
       [](const StripDesk&) {
         return PixelPoint{20, 700};
       },
       {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ThreeMenus desk;
    PopupEntries popup;
    desk.TheProgram.Ports.Popup = &popup;
    desk.PointAtButton(2);
    desk.World.Desktop.Press(MouseButton::Right);
    desk.PointAt(row.at(desk));
    desk.World.Desktop.Release(MouseButton::Right);
    std::vector<std::string> tags;
    for (const EntryEdit& shown : popup.Shown) tags.push_back(shown.CurMenuTag);
    EXPECT_EQ(tags, row.tags);
  }
}

TEST(ToolbarPopup, OfAButtonWhoseFileIsGoneHasEmptyTexts) {
  ThreeMenus desk;
  PopupEntries popup;
  desk.TheProgram.Ports.Popup = &popup;
  desk.World.Files.Vanish("C:\\Corvelle\\Menus\\BMENU002.MNU");
  desk.PointAtButton(3);
  desk.World.Desktop.Click(MouseButton::Right);
  ASSERT_EQ(popup.Shown.size(), 1U);
  EXPECT_TRUE(popup.Shown[0].CurTitle.empty());
  EXPECT_FALSE(desk.HasMenuFile("BMENU002.MNU"));
}

TEST(ToolbarPress, TheRightButtonOpensNoMenu) {
  StripDesk desk;
  desk.PutButtons(2);
  desk.Start();
  desk.PointAtButton(2);
  desk.World.Desktop.Press(forms::MouseButton::Right);
  EXPECT_EQ(desk.MenuUp(), 0);
  desk.World.Desktop.Release(forms::MouseButton::Right);
}

TEST(ToolbarKeys, EscAloneSelectsNoButton) {
  StripDesk desk;
  desk.PutButtons(2);
  desk.Start();
  desk.Strip.Form_KeyDown(forms::key::Escape, {});
  EXPECT_EQ(desk.TheProgram.Menu.CurButton, 0);
  EXPECT_FALSE(desk.TheProgram.Menu.KeyboardOnToolbar);
}

TEST(ToolbarRefresh, AMenuThatIsBuiltAgainIsPolledAgain) {
  StripDesk desk;
  desk.PutButtons(2);
  desk.Start();
  desk.Click(2);
  ASSERT_EQ(desk.MenuUp(), 2);
  desk.Strip.RefreshMenu("F2");
  ASSERT_EQ(desk.MenuUp(), 2);
  EXPECT_TRUE(desk.Menu.Poll);
}

TEST(ToolbarCarry, WithoutAFileOfItsOwnWhatIsPutOnAButtonOpensNoMenu) {
  StripDesk desk;
  desk.PutButtons(2);
  desk.Start();
  desk.Strip.DoButtonDrag(2, forms::MouseButton::Left);
  EXPECT_EQ(desk.MenuUp(), 0);
}

struct QuietPopup final : PopupPort {
  void ShowToolbarPopup(EntryEdit entry) override { Last = std::move(entry); }
  EntryEdit Last;
};

TEST(ToolbarPopup, OfAButtonActsOnItsWholeRecord) {
  StripDesk desk;
  QuietPopup popup;
  desk.TheProgram.Ports.Popup = &popup;
  const std::string file = desk.PutButton(1, "Tools", "C:\\tool.ico", "C:\\Docs\\*.*");
  desk.Start();
  desk.PointAtButton(2);
  desk.World.Desktop.Click(forms::MouseButton::Right);
  EXPECT_EQ(popup.Last, (EntryEdit{.CurTitle = "Tools",
                                   .CurIcon = "C:\\tool.ico",
                                   .CurCommand = "C:\\Docs\\*.*",
                                   .CurMenuTag = "B2",
                                   .CurFile = file,
                                   .CurRecord = 1}));
  desk.Exit();
}

}  // namespace
}  // namespace corvelle
