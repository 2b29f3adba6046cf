// Single buttons carried to other places, edited through the popup's commands, and made of files.

#include <gtest/gtest.h>

#include "core/DroppedFiles.h"
#include "core/EntryCommands.h"
#include "core/MenuFile.h"
#include "core/NotedEdits.h"
#include "toolbar/SinglesDesk.h"

namespace corvelle {
namespace {

constexpr const char* kMenus = "C:\\Corvelle\\Menus\\";

struct DropDesk : SinglesDesk {
  explicit DropDesk(const std::string& titles = "abcd") {
    PutSingles(titles);
    Start();
  }
  std::string File(int number) const { return kMenus + SingleFileName(number); }
  /// Makes an entry of the first menu the carried one, as a carry from there does.
  void CarryFromMenu(const MenuRecord& item) {
    const std::string path = kMenus + MenuFileName(1);
    World.Files.Put(path, Records({Entry("Menu 1", "Button"), item}));
    EntryEdit& entry = TheProgram.Entry;
    entry.CurTitle = item.FTitle;
    entry.CurIcon = item.FIcon;
    entry.CurCommand = item.FName;
    entry.CurMenuTag = "F2";
    entry.CurFile = path;
    entry.CurRecord = 2;
    entry.ItemDragging = true;
  }
  std::size_t RecordsOfMenu() const {
    return World.Files.Get(std::string(kMenus) + MenuFileName(1))->size() / kRecordLength;
  }
};

TEST(SingleCarry, APressShowsTheEntryAndFillsTheClipboard) {
  DropDesk desk;
  desk.PointAtSingle(2);
  desk.World.Desktop.Press();
  EXPECT_TRUE(desk.TheProgram.Entry.ItemDragging);
  EXPECT_TRUE(desk.TheProgram.Menu.MenuOpen);
  EXPECT_EQ(desk.Parts.Asked, std::vector<std::string>{"image C:\\Tools\\b.exe"});
  EXPECT_EQ(desk.TheProgram.Entry.ClipTitle, "b");
  EXPECT_EQ(desk.TheProgram.Entry.CurMenuTag, "SingleButtons");
  EXPECT_EQ(desk.TheProgram.Entry.CurFile, desk.File(2));
  EXPECT_EQ(desk.TheProgram.Entry.CurRecord, 1);
  EXPECT_EQ(desk.Parts.Hint, "");
}

TEST(SingleCarry, AFolderOfTheShellByItsNumberIsShownWithItsTitle) {
  SinglesDesk desk;
  desk.PutSingle(1, Entry("Drives", "CSIDL_17", "CSIDL_DRIVES"));
  desk.PutSingle(2, Entry("Panel", "CSIDL_CONTROLS", "CSIDL_CONTROLS"));
  desk.Start();
  desk.PointAtSingle(1);
  desk.World.Desktop.Press();
  EXPECT_EQ(desk.Parts.Asked[0], "image Drives\\CSIDL_17");
  EXPECT_EQ(desk.TheProgram.Entry.CurIcon, "CSIDL_17");
  desk.PointAt(desk.BarePlace());
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.OnDisk(), "1Panel 2Drives");
  desk.PointAtSingle(1);
  desk.World.Desktop.Press();
  EXPECT_EQ(desk.Parts.Asked.back(), "image CSIDL_CONTROLS");
  desk.World.Desktop.Release();
}

TEST(SingleCarry, ToAnotherButtonMovesItInFront) {
  DropDesk desk;
  desk.Carry(4, desk.MiddleOf(2));
  EXPECT_EQ(desk.Row(), "adbc");
  EXPECT_EQ(desk.OnDisk(), "1a 2d 3b 4c");
  desk.Carry(1, desk.MiddleOf(3));
  EXPECT_EQ(desk.OnDisk(), "1d 2a 3b 4c");
  EXPECT_TRUE(desk.Started().empty());
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
  EXPECT_FALSE(desk.TheProgram.Menu.MenuOpen);
  EXPECT_EQ(desk.TheProgram.Menu.CurSingle, 0);
}

TEST(SingleCarry, ToTheNextButtonChangesNothing) {
  DropDesk desk;
  desk.Carry(2, desk.MiddleOf(3));
  EXPECT_EQ(desk.OnDisk(), "1a 2b 3c 4d");
}

TEST(SingleCarry, ThatTheDiskRefusedMovesNothing) {
  SinglesDesk desk;
  desk.PutSingles("abc");
  desk.StartAt(Edge::Bottom);
  const int fitted = desk.Edge.Fitted;
  desk.World.Files.Protect("C:\\Corvelle\\Menus");
  desk.Carry(3, desk.MiddleOf(1));
  EXPECT_EQ(desk.Row(), "abc");
  EXPECT_EQ(desk.Edge.Fitted, fitted);
}

TEST(SingleCarry, ToFreeSpaceMovesItToTheEnd) {
  DropDesk desk;
  desk.Carry(2, desk.BarePlace());
  EXPECT_EQ(desk.OnDisk(), "1a 2c 3d 4b");
}

TEST(SingleCarry, OnItselfAndOnOtherProgramsChangesNothing) {
  DropDesk desk;
  const PixelPoint at = desk.MiddleOf(2);
  desk.CarryTo(2, {at.x, 300});
  desk.PointAt(at);
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.OnDisk(), "1a 2b 3c 4d");
  desk.Carry(2, {200, 500});
  EXPECT_EQ(desk.OnDisk(), "1a 2b 3c 4d");
  EXPECT_TRUE(desk.Started().empty());
  EXPECT_EQ(desk.Parts.Times("no image"), 2);
}

TEST(SingleCarry, TheRightButtonCopies) {
  DropDesk desk;
  const float width = desk.Strip.Width();
  desk.CarryTo(4, desk.MiddleOf(2));
  desk.World.Desktop.Click(forms::MouseButton::Right);
  EXPECT_EQ(desk.OnDisk(), "1a 2d 3b 4c 5d");
  EXPECT_EQ(desk.Strip.Width(), width + 18 * 15);
  // The left button is still down: it neither pulls the strip nor starts anything.
  const float left = desk.Strip.Left();
  desk.PointAt({desk.MiddleOf(2).x - 60, 5});
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.Strip.Left(), left);
  EXPECT_TRUE(desk.Started().empty());
  EXPECT_TRUE(desk.Parts.Times("popup") == 0);
}

TEST(SingleCarry, TheRightButtonCopiesToTheEnd) {
  DropDesk desk;
  desk.CarryTo(1, desk.BarePlace());
  desk.World.Desktop.Click(forms::MouseButton::Right);
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.OnDisk(), "1a 2b 3c 4d 5a");
}

TEST(SingleCarry, InTwoRowsAButtonGoesToTheOtherRow) {
  SinglesDesk desk;
  desk.SetOption(Option::SmallSingles, true);
  desk.SetOption(Option::LargeIcons, true);
  desk.PutSingles("abc");
  desk.StartAt(Edge::Right);
  desk.Carry(3, desk.MiddleOf(2));
  EXPECT_EQ(desk.OnDisk(), "1a 2c 3b");
  const std::vector<SingleRect>& row = desk.Strip.Singles.SingleButtons;
  EXPECT_EQ(row[2].Title, "c");
  EXPECT_EQ(row[1].Top, row[2].Top);
  EXPECT_GE(desk.Edge.Fitted, 2);
}

TEST(SingleCarry, OverAMenuButtonItsMenuOpensAndTheDropGoesThere) {
  DropDesk desk;
  desk.CarryTo(2, desk.Middle(3));
  EXPECT_EQ(desk.MenuUp(), 3);
  const PixelRect menu = desk.World.Desktop.BoundsOf(desk.Menu.hWnd());
  desk.PointAt({menu.left + 20, menu.top + 40});
  EXPECT_GE(desk.Menu.Times("mMouseMove"), 1);
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.Menu.Times("DoItemDrag"), 1);
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
  EXPECT_TRUE(desk.Started().empty());
}

TEST(SingleCarry, PutDownOnAMenuButtonItGoesToTheEndOfItsMenu) {
  DropDesk desk;
  desk.Carry(2, desk.Middle(2));
  EXPECT_EQ(desk.OnDisk(), "1a 2c 3d");
  ASSERT_EQ(desk.RecordsOfMenu(), 3U);
  const auto records =
      ReadAllRecords(desk.World.Files, desk.World.Ansi, std::string(kMenus) + MenuFileName(1));
  EXPECT_EQ(records.ValueOr({})[2].FTitle, "b");
  EXPECT_EQ(desk.MenuUp(), 2);
}

TEST(SingleCarry, PutDownBetweenTheMenuButtonsChangesNothingAndTheMenuStillGivesWayToTheRow) {
  DropDesk desk;
  desk.PutButton(3, "Separator", "MenuLineSeparator");
  desk.PutButton(4, "Menu 4");
  desk.Strip.InitNewButtons();
  ASSERT_EQ(desk.Strip.Buttons.SepCount, 1);
  const forms::Label& gap = desk.Strip.lblSep[1];
  const PixelRect box = desk.World.Desktop.BoundsOf(desk.Strip.picToolbar.hWnd());
  const float middle = gap.Left() + gap.Width() / 2;
  desk.CarryTo(2, desk.Middle(3));
  desk.PointAt({box.left + static_cast<int>(middle / desk.Strip.TwipsX), box.top + 10});
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.OnDisk(), "1a 2b 3c 4d");
  EXPECT_EQ(desk.RecordsOfMenu(), 2U);
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
  ASSERT_EQ(desk.MenuUp(), 3);
  desk.PointAtSingle(1);
  desk.Wait(10);
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(SingleCarry, ThatIsLostEndsWithTheNextMove) {
  DropDesk desk;
  desk.CarryTo(2, {200, 500});
  desk.Strip.picSingleButton.MouseMove(forms::MouseButton::None, {}, 0, 0);
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
  EXPECT_FALSE(desk.TheProgram.Menu.MenuOpen);
  EXPECT_EQ(desk.Parts.Times("no image"), 1);
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.OnDisk(), "1a 2b 3c 4d");
}

TEST(SingleCarry, ThatLosesTheMouseEndsThereAndPutsNothingDown) {
  DropDesk desk;
  desk.CarryTo(2, desk.MiddleOf(4));
  desk.World.Desktop.TakeCapture();
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
  EXPECT_FALSE(desk.TheProgram.Menu.MenuOpen);
  EXPECT_EQ(desk.Parts.Times("no image"), 1);
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.OnDisk(), "1a 2b 3c 4d");
  EXPECT_TRUE(desk.Started().empty());
}

TEST(SingleCarry, ADiskThatRefusesLeavesTheRow) {
  DropDesk desk;
  desk.World.Files.SetReadOnly(desk.File(3), true);
  desk.Carry(4, desk.MiddleOf(1));
  EXPECT_EQ(desk.OnDisk(), "1a 2b 3c 4d");
  EXPECT_EQ(desk.Row(), "abcd");
}

TEST(SingleCarry, WhatAnotherProgramHasPutInItsPlaceStaysThereAndIsShown) {
  for (const bool toTheEnd : {false, true}) {
    SCOPED_TRACE(toTheEnd);
    DropDesk desk;
    desk.PutSingle(2, "x");
    desk.Carry(2, toTheEnd ? desk.BarePlace() : desk.MiddleOf(4));
    EXPECT_EQ(desk.OnDisk(), "1a 2x 3c 4d");
    EXPECT_EQ(desk.Row(), "axcd");
    EXPECT_TRUE(desk.World.Desktop.Boxes().empty());
    // From here on it is the one that is carried.
    desk.Carry(2, desk.MiddleOf(1));
    EXPECT_EQ(desk.OnDisk(), "1x 2a 3c 4d");
  }
}

TEST(SingleCarry, ThatLosesItsFileMovesNothingAndMakesNone) {
  for (const bool toTheEnd : {false, true}) {
    SCOPED_TRACE(toTheEnd);
    DropDesk desk;
    desk.World.Files.Vanish(desk.File(2));
    desk.Carry(2, toTheEnd ? desk.BarePlace() : desk.MiddleOf(4));
    EXPECT_EQ(desk.OnDisk(), "1a 3c 4d");
    EXPECT_EQ(desk.Row(), "acd");
  }
}

TEST(SingleCarry, WhileAPopupCommandWritesADropWaits) {
  DropDesk desk;
  desk.TheProgram.Guards.ItemActionBusy = true;
  desk.Carry(4, desk.MiddleOf(1));
  EXPECT_EQ(desk.OnDisk(), "1a 2b 3c 4d");
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
}

/// The row "abc" whose second file was cut short.
struct ShortFileDesk : DropDesk {
  explicit ShortFileDesk(std::size_t length) : DropDesk("abc") {
    World.Files.Put(File(2), World.Files.Get(File(2))->substr(0, length));
    Strip.DoSingleButtons();
    Title = length == 0 ? "" : "b";
  }
  std::string Title;
};
constexpr std::size_t kShortLengths[] = {0, 1, 285, 286};

TEST(SingleCarry, ABlankOrShortFileGoesLikeAnyOther) {
  for (const std::size_t length : kShortLengths) {
    SCOPED_TRACE(length);
    ShortFileDesk desk(length);
    desk.Carry(2, desk.BarePlace());
    EXPECT_EQ(desk.OnDisk(), "1a 2c 3" + desk.Title);
    EXPECT_EQ(desk.Row(), "ac" + desk.Title);
    desk.Carry(3, desk.MiddleOf(1));
    EXPECT_EQ(desk.OnDisk(), "1" + desk.Title + " 2a 3c");
    // To the end of a menu.
    ShortFileDesk other(length);
    other.Carry(2, other.Middle(2));
    EXPECT_EQ(other.OnDisk(), "1a 2c");
    EXPECT_EQ(other.RecordsOfMenu(), 3U);
  }
}

// ---- from a menu ----

TEST(DoItemDrag, AnItemOfAMenuMovesIntoTheRow) {
  DropDesk desk("ab");
  desk.CarryFromMenu(Entry("x", "", "C:\\x.exe"));
  desk.PointAtSingle(2);
  desk.TheProgram.Entry.ItemDragging = true;
  desk.CarryFromMenu(Entry("x", "", "C:\\x.exe"));
  desk.Strip.RowDrops.DoItemDrag(forms::MouseButton::Left);
  EXPECT_EQ(desk.OnDisk(), "1a 2x 3b");
  EXPECT_EQ(desk.RecordsOfMenu(), 1U);
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
}

TEST(DoItemDrag, WithTheRightButtonItStaysInTheMenuToo) {
  DropDesk desk("ab");
  desk.PointAt(desk.BarePlace());
  desk.CarryFromMenu(Entry("x", "", "C:\\x.exe"));
  desk.Strip.RowDrops.DoItemDrag(forms::MouseButton::Right);
  EXPECT_EQ(desk.OnDisk(), "1a 2b 3x");
  EXPECT_EQ(desk.RecordsOfMenu(), 2U);
}

TEST(DoItemDrag, WhatTheRowCannotTakeStaysInTheMenu) {
  DropDesk desk("ab");
  desk.World.Files.SetReadOnly(desk.File(2), true);
  desk.PointAtSingle(1);
  desk.CarryFromMenu(Entry("x", "", "C:\\x.exe"));
  desk.Strip.RowDrops.DoItemDrag(forms::MouseButton::Left);
  EXPECT_EQ(desk.OnDisk(), "1a 2b");
  EXPECT_EQ(desk.RecordsOfMenu(), 2U);
}

TEST(DoItemDrag, WithoutAnEntryDropsNothing) {
  DropDesk desk("ab");
  desk.PointAt(desk.BarePlace());
  desk.Strip.RowDrops.DoItemDrag(forms::MouseButton::Left);
  EXPECT_EQ(desk.OnDisk(), "1a 2b");
}

// ---- the popup's commands ----

TEST(SingleCommands, DeletingTheMiddleOneAndUndoingItBringsItBack) {
  DropDesk desk("abc");
  desk.ClickSingle(2, forms::MouseButton::Right);
  RememberForUndo(desk.TheProgram.Entry);
  const float right = desk.Strip.Left() + desk.Strip.Width();
  desk.TheProgram.Commands.DeleteItem(false);
  EXPECT_EQ(desk.OnDisk(), "1a 2c");
  EXPECT_EQ(desk.Row(), "ac");
  EXPECT_EQ(desk.Strip.Left() + desk.Strip.Width(), right);
  desk.TheProgram.Commands.UndoDeleteItem();
  EXPECT_EQ(desk.OnDisk(), "1a 2b 3c");
  EXPECT_EQ(desk.Row(), "abc");
}

TEST(SingleCommands, WhatAnotherProgramHasPutInItsPlaceIsNotDeleted) {
  DropDesk desk("abc");
  desk.ClickSingle(2, forms::MouseButton::Right);
  desk.PutSingle(2, "x");
  desk.World.Desktop.Answer("Cannot delete/cut this item. Record mismatch.",
                            forms::msgbox::AnswerOk);
  desk.TheProgram.Commands.DeleteItem(false);
  EXPECT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(desk.OnDisk(), "1a 2x 3c");
  EXPECT_EQ(desk.Row(), "axc");
}

TEST(SingleCommands, OnAButtonWhoseFileIsGoneMakeNone) {
  DropDesk desk("abc");
  desk.ClickSingle(2, forms::MouseButton::Right);
  desk.World.Files.Vanish(desk.File(2));
  desk.World.Desktop.Answer("Cannot delete/cut this item. Record mismatch.",
                            forms::msgbox::AnswerOk);
  desk.TheProgram.Commands.DeleteItem(true);
  EXPECT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(desk.OnDisk(), "1a 3c");
  EXPECT_EQ(desk.Row(), "ac");
}

TEST(SingleCommands, ABlankOrShortFileIsCutOrDeleted) {
  for (const std::size_t length : kShortLengths) {
    for (const bool cut : {false, true}) {
      SCOPED_TRACE(std::to_string(length) + (cut ? " cut" : " deleted"));
      ShortFileDesk desk(length);
      desk.ClickSingle(2, forms::MouseButton::Right);
      if (cut) CopyEntry(desk.TheProgram.Entry);
      EXPECT_EQ(desk.TheProgram.Commands.DeleteItem(cut), EditOutcome::Edited);
      EXPECT_EQ(desk.OnDisk(), "1a 2c");
      EXPECT_EQ(desk.Row(), "ac");
      EXPECT_TRUE(desk.World.Desktop.Boxes().empty());
    }
  }
}

TEST(SingleCommands, UndoingTheLastOnePutsItToTheEnd) {
  DropDesk desk("abc");
  desk.ClickSingle(3, forms::MouseButton::Right);
  RememberForUndo(desk.TheProgram.Entry);
  desk.TheProgram.Commands.DeleteItem(false);
  desk.TheProgram.Commands.UndoDeleteItem();
  EXPECT_EQ(desk.OnDisk(), "1a 2b 3c");
}

TEST(SingleCommands, PasteGoesBeforeTheButtonOrBehindTheLastOnTheBareRow) {
  DropDesk desk("ab");
  desk.ClickSingle(2, forms::MouseButton::Right);
  SetClipboard(desk.TheProgram.Entry, Entry("x", "", "C:\\x.exe"));
  desk.TheProgram.Commands.PasteItem();
  EXPECT_EQ(desk.OnDisk(), "1a 2x 3b");
  desk.PointAt(desk.BarePlace());
  desk.World.Desktop.Click(forms::MouseButton::Right);
  desk.TheProgram.Commands.PasteItem();
  EXPECT_EQ(desk.OnDisk(), "1a 2x 3b 4x");
}

TEST(AddNewButton, MakesAMenuBehindTheOthers) {
  DropDesk desk("ab");
  const float right = desk.Strip.Left() + desk.Strip.Width();
  desk.Strip.AddNewButton();
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 4);
  EXPECT_EQ(desk.World.Files.Get(std::string(kMenus) + MenuFileName(3)),
            Records({Entry("New Button", "Button"), Entry("New Menu Item", "New")}));
  // The strip grew to the left by what the button takes.
  EXPECT_EQ(desk.Strip.Left() + desk.Strip.Width(), right);
  EXPECT_TRUE(desk.TheProgram.Guards.ToolbarReady);
  EXPECT_EQ(desk.Row(), "ab");
}

TEST(AddNewButton, NeverLeavesTheScreen) {
  DropDesk desk("ab");
  desk.Strip.SetLeft(30);
  desk.Strip.AddNewButton();
  EXPECT_EQ(desk.Strip.Left(), 0);
}

TEST(AddNewButton, OnADiskThatRefusesThereIsNone) {
  DropDesk desk("ab");
  desk.World.Files.Protect("C:\\Corvelle\\Menus");
  desk.World.Desktop.Answer("75 - Path/File access error", forms::msgbox::AnswerOk);
  desk.Strip.AddNewButton();
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 3);
  EXPECT_TRUE(desk.TheProgram.Guards.ToolbarReady);
}

// ---- files of other programs ----

TEST(DropFilesOnSingles, PutsThemBeforeTheButtonInTheirOrder) {
  DropDesk desk("ab");
  desk.PointAtSingle(2);
  desk.Strip.RowDrops.DropFilesOnSingles({"C:\\y.txt", "C:\\x.txt"}, forms::MouseButton::Left);
  EXPECT_EQ(desk.OnDisk(), "1a 2x 3y 4b");
  EXPECT_EQ(desk.World.Files.Get(desk.File(2)), Records({Entry("x", "C:\\x.txt", "C:\\x.txt")}));
  EXPECT_EQ(desk.Row(), "axyb");
  EXPECT_EQ(desk.Strip.Width(), desk.Strip.picSingleButton.Right() + 15);
}

TEST(DropFilesOnSingles, APointerThatGoesOnWhileAHintClosesChangesNoPlace) {
  for (const auto button : {forms::MouseButton::Left, forms::MouseButton::Right}) {
    DropDesk desk("ab");
    desk.PointAtSingle(2);
    desk.Parts.WhileHintGoes = [&] { desk.PointAtSingle(1); };
    desk.Strip.RowDrops.DropFilesOnSingles({"C:\\x.txt"}, button);
    desk.Parts.WhileHintGoes = {};
    if (button == forms::MouseButton::Left) {
      EXPECT_EQ(desk.OnDisk(), "1a 2x 3b");
    } else {
      EXPECT_EQ(desk.World.Shell.Log().at(0).File, "C:\\Tools\\b.exe");
    }
  }
}

TEST(DropFilesOnSingles, OnFreeSpaceTheyFollowTheLast) {
  DropDesk desk("ab");
  desk.PointAt(desk.BarePlace());
  desk.Strip.RowDrops.DropFilesOnSingles({"C:\\x.txt"}, forms::MouseButton::Right);
  EXPECT_EQ(desk.OnDisk(), "1a 2b 3x");
}

TEST(DropFilesOnSingles, WhatNoRecordHoldsIsNamedAfterwardsAndTheOthersAreTaken) {
  DropDesk desk("ab");
  const std::string refused = "C:\\" + std::string(290, 'n') + ".txt";
  desk.PointAt(desk.BarePlace());
  desk.Strip.RowDrops.DropFilesOnSingles({refused, "C:\\x.txt"}, forms::MouseButton::Left);
  EXPECT_EQ(desk.OnDisk(), "1a 2b 3x");
  EXPECT_TRUE(desk.World.Desktop.Boxes().empty());
  desk.World.Desktop.Answer(RefusedFilesText({refused}), forms::msgbox::AnswerOk);
  desk.World.Desktop.Advance(100);
  EXPECT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  // With none that can be taken the row is not touched.
  desk.World.Files.ClearLog();
  desk.World.Desktop.Answer(RefusedFilesText({refused}), forms::msgbox::AnswerOk);
  desk.Strip.RowDrops.DropFilesOnSingles({refused}, forms::MouseButton::Left);
  desk.World.Desktop.Advance(100);
  EXPECT_EQ(desk.World.Files.Count("Replace") + desk.World.Files.Count("Write"), 0);
  EXPECT_EQ(desk.OnDisk(), "1a 2b 3x");
}

TEST(DropFilesOnSingles, WithTheRightButtonTheButtonOpensTheFirstOfTheDrag) {
  DropDesk desk("ab");
  desk.PointAtSingle(2);
  desk.Strip.RowDrops.DropFilesOnSingles({"C:\\y.txt", "C:\\x.txt"}, forms::MouseButton::Right);
  EXPECT_EQ(desk.OnDisk(), "1a 2b");
  ASSERT_EQ(desk.World.Shell.Log().size(), 1U);
  EXPECT_EQ(desk.World.Shell.Log()[0].File, "C:\\Tools\\b.exe");
  EXPECT_EQ(desk.World.Shell.Log()[0].Parameters, "\"C:\\y.txt\"");
}

TEST(DropFilesOnSingles, AtAnEdgeTheRowIsFittedAndTheStripShown) {
  SinglesDesk desk;
  desk.PutSingles("a");
  desk.StartAt(Edge::Bottom);
  desk.TheProgram.Strip.AutoHide = true;
  const int fitted = desk.Edge.Fitted;
  desk.PointAtSingle(1);
  desk.Strip.RowDrops.DropFilesOnSingles({"C:\\x.txt"}, forms::MouseButton::Left);
  EXPECT_EQ(desk.Edge.Fitted, fitted + 1);
  EXPECT_EQ(desk.Edge.Revealed, 1);
  desk.TheProgram.Strip.AutoHide = false;
}

TEST(DropFilesOnSingles, ADiskThatRefusesLeavesTheRow) {
  DropDesk desk("ab");
  desk.World.Files.SetReadOnly(desk.File(2), true);
  desk.PointAtSingle(1);
  desk.Strip.RowDrops.DropFilesOnSingles({"C:\\x.txt"}, forms::MouseButton::Left);
  EXPECT_EQ(desk.OnDisk(), "1a 2b");
}

// ---- who is told of an edit ----

TEST(SinglesEdits, AreToldOnceEachWhenTheFilesAreWritten) {
  DropDesk desk("abc");
  NotedEdits edits([&desk] { return desk.OnDisk(); });
  desk.TheProgram.Ports.MenuEdits = &edits;
  const auto told = [&](const char* what) {
    EXPECT_EQ(edits.Seen, std::vector<std::string>{desk.OnDisk()}) << what;
    edits.Seen.clear();
  };
  desk.Carry(3, desk.MiddleOf(1));
  told("moved in front of another");
  desk.Carry(1, desk.BarePlace());
  told("moved behind the last one");
  desk.CarryTo(2, desk.MiddleOf(1));
  desk.World.Desktop.Click(forms::MouseButton::Right);
  desk.World.Desktop.Release();
  told("copied");
  desk.CarryFromMenu(Entry("x", "", "C:\\x.exe"));
  desk.PointAt(desk.MiddleOf(1));
  desk.Strip.RowDrops.DoItemDrag(forms::MouseButton::Left);
  told("moved out of a menu");
  desk.World.Files.Put("C:\\f.txt", "");
  desk.PointAt(desk.MiddleOf(1));
  desk.Strip.RowDrops.DropFilesOnSingles({"C:\\f.txt"}, forms::MouseButton::Left);
  told("files of another program");
  desk.Carry(2, desk.MiddleOf(3));
  EXPECT_EQ(edits.Seen.size(), 1U) << "told, though the row is written as it was";
  desk.TheProgram.Ports.MenuEdits = nullptr;
}

TEST(SinglesEdits, OfFilesThatNoRecordHoldsAreNotTold) {
  DropDesk desk("ab");
  NotedEdits edits([] { return std::string(); });
  desk.TheProgram.Ports.MenuEdits = &edits;
  const std::string refused = "C:\\" + std::string(290, 'n') + ".txt";
  desk.World.Desktop.Answer(RefusedFilesText({refused}), forms::msgbox::AnswerOk);
  desk.PointAtSingle(1);
  desk.Strip.RowDrops.DropFilesOnSingles({refused}, forms::MouseButton::Left);
  desk.World.Desktop.Advance(100);
  EXPECT_TRUE(edits.Seen.empty());
  EXPECT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  desk.TheProgram.Ports.MenuEdits = nullptr;
}

TEST(SinglesEdits, ThatTheDiskRefusedAreNotTold) {
  DropDesk desk("abc");
  NotedEdits edits([] { return std::string(); });
  desk.TheProgram.Ports.MenuEdits = &edits;
  desk.World.Files.Protect("C:\\Corvelle\\Menus");
  desk.Carry(3, desk.MiddleOf(1));
  desk.World.Files.Put("C:\\f.txt", "");
  desk.PointAt(desk.MiddleOf(1));
  desk.Strip.RowDrops.DropFilesOnSingles({"C:\\f.txt"}, forms::MouseButton::Left);
  EXPECT_TRUE(edits.Seen.empty());
  desk.TheProgram.Ports.MenuEdits = nullptr;
}

TEST(AddNewButton, IsToldWithItsFileWritten) {
  DropDesk desk("ab");
  const std::string file = std::string(kMenus) + MenuFileName(3);
  NotedEdits edits([&] { return desk.World.Files.Get(file).value_or("").substr(0, 10); });
  desk.TheProgram.Ports.MenuEdits = &edits;
  desk.Strip.AddNewButton();
  EXPECT_EQ(edits.Seen, std::vector<std::string>{"New Button"});
  desk.TheProgram.Ports.MenuEdits = nullptr;
}

}  // namespace
}  // namespace corvelle
