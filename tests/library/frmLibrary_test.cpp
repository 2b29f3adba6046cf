#include "library/frmLibrary.h"

#include <gtest/gtest.h>

#include "core/DroppedFiles.h"
#include "icons/IconsWiring.h"
#include "icons/LibraryFile.h"
#include "library/LibraryDesk.h"

namespace corvelle {
namespace {

using forms::key::Down;
using forms::key::End;
using forms::key::Enter;
using forms::key::Escape;
using forms::key::Home;
using forms::key::Right;
using Names = std::vector<std::string>;

// ---- what it shows ----

TEST_F(LibraryDesk, OpensWithItsCategoriesAndAllIcons) {
  Open();
  ASSERT_TRUE(library.WindowLoaded());
  EXPECT_EQ(library.Caption(), "Icon Library");
  EXPECT_EQ(library.List1.Items(), (Names{"All Categories", "Bells", "Tools"}));
  EXPECT_EQ(library.List1.Selected(), 0);
  EXPECT_EQ(library.LibraryView.Captions(), (Names{"Anchor.ico", "Bell.ico", "Clock.ico"}));
  EXPECT_TRUE(library.List1.Visible());
  EXPECT_FALSE(library.List1Other.Visible());
  EXPECT_FALSE(library.cmdAdd.Visible());
  EXPECT_TRUE(Focused(library.Pic2));
  EXPECT_EQ(library.cmdAdd.Caption(), "&Add");
  EXPECT_EQ(library.cmdRemove.Caption(), "&Remove");
  EXPECT_EQ(library.cmdRefresh.Caption(), "Re&fresh");
  EXPECT_EQ(library.cmdOK.Caption(), "&OK");
  EXPECT_EQ(library.cmdCancel.Caption(), "&Cancel");
  EXPECT_TRUE(world.Files.Get(std::string(kIcons) + "CAT0.ics").has_value());
  EXPECT_TRUE(program.Icons.LibraryBuilt);
}

TEST_F(LibraryDesk, ACategoryShowsItsIconsWithoutGapsForBlankLines) {
  Open();
  ChooseRow(library.List1, 2);
  EXPECT_EQ(library.LibraryView.Captions(), (Names{"Anchor.ico", "Clock.ico"}));
  ChooseRow(library.List1, 0);
  EXPECT_EQ(library.LibraryView.Captions().size(), 3U);
}

TEST_F(LibraryDesk, ACategoryThatIsGoneIsEmptyAndItsIconsStayInAll) {
  Open();
  ASSERT_TRUE(world.Files.Remove(std::string(kIcons) + "Tools.ini"));
  ChooseRow(library.List1, 2);
  EXPECT_EQ(library.LibraryView.Captions(), Names{});
  library.Unload();
  Open();
  EXPECT_EQ(library.List1.Items(), (Names{"All Categories", "Bells"}));
  EXPECT_EQ(library.LibraryView.Captions().size(), 3U);
}

TEST_F(LibraryDesk, EachCellShowsItsOwnIcon) {
  Open();
  DrawAll();
  EXPECT_EQ(PixelOfCell(library.LibraryView, library.Pic2, 0),
            sim::SimShellIcons::ColourOf(std::string(kIcons) + "anchor.ico", 0));
  EXPECT_EQ(PixelOfCell(library.LibraryView, library.Pic2, 2),
            sim::SimShellIcons::ColourOf(std::string(kIcons) + "CLOCK.ICO", 0));
}

TEST_F(LibraryDesk, ADamagedIconFileIsAnEmptyCellThatCanBePicked) {
  world.Files.Put(std::string(kIcons) + "damaged.ico", "none");
  Open();
  DrawAll();
  ASSERT_EQ(library.LibraryView.Captions().back(), "Damaged.ico");
  EXPECT_EQ(library.LibraryView.DrawnCount(), 4U);
  EXPECT_EQ(PixelOfCell(library.LibraryView, library.Pic2, 3),
            forms::Resolve(world.Windows(), forms::color::WindowGround));
  ClickCell(3);
  EXPECT_EQ(Marked(library.LibraryView), "\\icons\\damaged.ico");
}

TEST_F(LibraryDesk, WithoutAnyIconItIsEmptyAndEveryKeyIsHarmless) {
  for (const char* name : {"anchor.ico", "bell.ico", "CLOCK.ICO"}) {
    ASSERT_TRUE(world.Files.Remove(std::string(kIcons) + name));
  }
  Open();
  EXPECT_EQ(library.LibraryView.Captions(), Names{});
  for (const int key : {Home, End, Down, Right, forms::key::PageDown}) PressKey(key);
  world.Desktop.Type("a");
  world.Desktop.TurnWheel(-120);
  PressKey(Enter);
  EXPECT_TRUE(library.IsLoaded());
  EXPECT_EQ(box.Told, Names{"browsing"});
}

// ---- many icons ----

TEST_F(LibraryDesk, TheUserScrollsAndPicksWhileThreeThousandIconsAreDrawn) {
  PutMany(3000);
  Open();
  ChooseRow(library.List1, 2);
  library.Pic2.SetFocus();
  ASSERT_EQ(library.LibraryView.Captions().size(), 3000U);
  const std::size_t first = library.LibraryView.DrawnCount();
  EXPECT_LT(first, 200U);
  PressKey(End);
  EXPECT_EQ(Marked(library.LibraryView), "\\icons\\i2999.ico");
  world.Desktop.Advance(3);
  // What is in view now comes first.
  EXPECT_LT(library.LibraryView.DrawnCount(), 400U);
  EXPECT_EQ(PixelOfCell(library.LibraryView, library.Pic2, 2999),
            sim::SimShellIcons::ColourOf(std::string(kIcons) + "i2999.ico", 0));
  PressKey(Enter);
  EXPECT_FALSE(library.IsLoaded());
  EXPECT_EQ(box.txtFile.Text(), "\\icons\\i2999.ico");
}

TEST_F(LibraryDesk, EachIconIsDrawnOnceAndFewBitmapsHoldThem) {
  PutIcons(297);
  Open();
  world.Icons.ClearCounts();
  DrawAll();
  PressKey(End);
  PressKey(Home);
  DrawAll();
  EXPECT_EQ(library.LibraryView.DrawnCount(), 300U);
  EXPECT_LE(world.Icons.Draws(), 300);
  EXPECT_EQ(library.LibraryView.Pictures().Bitmaps(), 2U);
  EXPECT_EQ(world.Desktop.Clock().Running(), 0);  // nothing is left to do
}

TEST_F(LibraryDesk, ClosingWhileIconsAreDrawnStopsTheDrawing) {
  PutMany(3000);
  Open();
  ChooseRow(library.List1, 2);
  PressKey(Escape);
  EXPECT_FALSE(library.IsLoaded());
  EXPECT_EQ(world.Desktop.Clock().Running(), 0);
  const int draws = world.Icons.Draws();
  DrawAll();
  EXPECT_EQ(world.Icons.Draws(), draws);
}

TEST_F(LibraryDesk, TheWheelAndTheBarScroll) {
  PutIcons(297);
  Open();
  EXPECT_TRUE(library.VS1.Enabled());
  EXPECT_EQ(library.VS1.Range().Most, library.LibraryView.Grid().MostTopRow());
  world.Desktop.TurnWheel(-120);
  world.Desktop.Advance(1);
  EXPECT_EQ(library.LibraryView.Grid().TopRow, 3);
  world.Desktop.TurnWheel(240);
  world.Desktop.Advance(1);
  EXPECT_EQ(library.LibraryView.Grid().TopRow, 0);
  const PixelRect bar = world.Desktop.BoundsOf(library.VS1.hWnd());
  world.Desktop.ClickAt((bar.left + bar.right) / 2, bar.bottom - 3);
  world.Desktop.Advance(1);
  EXPECT_EQ(library.LibraryView.Grid().TopRow, 1);
}

TEST_F(LibraryDesk, AFewIconsLeaveNothingToScroll) {
  Open();
  EXPECT_FALSE(library.VS1.Enabled());
}

// ---- marking ----

TEST_F(LibraryDesk, APressMarksACellAndOneBesideItLeavesTheMark) {
  Open();
  EXPECT_EQ(library.LibraryView.Marked(), nullptr);
  ClickCell(1);
  EXPECT_EQ(Marked(library.LibraryView), "\\icons\\bell.ico");
  ClickCell(0);
  EXPECT_EQ(Marked(library.LibraryView), "\\icons\\anchor.ico");
  const PixelPoint beside = In(library.Pic2, {1, 1});
  world.Desktop.ClickAt(beside.x, beside.y);
  EXPECT_EQ(Marked(library.LibraryView), "\\icons\\anchor.ico");
}

TEST_F(LibraryDesk, TheMarkedCellHasABorderAndItsCaptionStandsOut) {
  Open();
  DrawAll();
  const PixelRect icon = library.LibraryView.Grid().IconOf(1);
  // On its left, above it and on its right.
  const PixelPoint edges[] = {In(library.Pic2, {icon.left - 1, icon.top + 4}),
                              In(library.Pic2, {icon.left + 4, icon.top - 1}),
                              In(library.Pic2, {icon.right, icon.top + 4})};
  const Rgb ground = world.Desktop.Picture().PixelAt(edges[0]);
  const Rgb highlight = forms::Resolve(world.Windows(), forms::color::Highlight);
  EXPECT_NE(ground, highlight);
  ClickCell(1);
  for (const PixelPoint edge : edges) EXPECT_EQ(world.Desktop.Picture().PixelAt(edge), highlight);
  ClickCell(0);
  for (const PixelPoint edge : edges) EXPECT_EQ(world.Desktop.Picture().PixelAt(edge), ground);
}

TEST_F(LibraryDesk, TheKeyboardAloneMarksScrollsAndPicks) {
  PutIcons(100);
  Open();
  PressKey(Right);
  EXPECT_EQ(Marked(library.LibraryView), "\\icons\\anchor.ico");
  PressKey(Right);
  EXPECT_EQ(Marked(library.LibraryView), "\\icons\\bell.ico");
  PressKey(Home);
  EXPECT_EQ(Marked(library.LibraryView), "\\icons\\anchor.ico");
  PressKey(End);
  EXPECT_EQ(Marked(library.LibraryView), "\\icons\\i0099.ico");
  EXPECT_EQ(library.LibraryView.Grid().TopRow, library.LibraryView.Grid().MostTopRow());
  world.Desktop.Type("c");
  EXPECT_EQ(Marked(library.LibraryView), "\\icons\\CLOCK.ICO");
  EXPECT_EQ(library.LibraryView.Grid().TopRow, 0);
  PressKey(Enter);
  EXPECT_EQ(box.txtFile.Text(), "\\icons\\CLOCK.ICO");
}

// ---- OK, Cancel and the caller ----

TEST_F(LibraryDesk, ADoubleClickOnACellPicksIt) {
  Open();
  const PixelPoint at = Cell(library.LibraryView, library.Pic2, 2);
  world.Desktop.MovePointer(at.x, at.y);
  world.Desktop.DoubleClick();
  world.Desktop.Advance(1);
  EXPECT_FALSE(library.IsLoaded());
  EXPECT_EQ(box.Told, (Names{"browsing", "\\icons\\CLOCK.ICO", "done"}));
}

TEST_F(LibraryDesk, ADoubleClickBesideTheCellsPicksNothing) {
  Open();
  ClickCell(0);
  const PixelPoint beside = In(library.Pic2, {1, 1});
  world.Desktop.MovePointer(beside.x, beside.y);
  world.Desktop.DoubleClick();
  world.Desktop.Advance(1);
  EXPECT_TRUE(library.IsLoaded());
}

TEST_F(LibraryDesk, OkWithNothingMarkedLeavesTheWindowOpen) {
  Open();
  Click(library.cmdOK);
  EXPECT_TRUE(library.IsLoaded());
  EXPECT_EQ(box.Told, Names{"browsing"});
}

TEST_F(LibraryDesk, CancelAndEscapeChooseNothingAndGiveTheCallerBack) {
  for (const bool escape : {false, true}) {
    box.Told.clear();
    Open();
    EXPECT_FALSE(box.Enabled());
    ClickCell(1);
    if (escape) {
      PressKey(Escape);
    } else {
      Click(library.cmdCancel);
    }
    EXPECT_FALSE(library.IsLoaded());
    EXPECT_EQ(box.Told, (Names{"browsing", "done"}));
    EXPECT_TRUE(box.Enabled());
    EXPECT_EQ(world.Desktop.ForegroundWindow(), box.hWnd());
  }
}

TEST_F(LibraryDesk, TheChoiceGoesToTheCallerThatOpenedIt) {
  BoxForm properties(program);
  program.Ports.PropertiesIcon = &properties;
  properties.Show();
  library.Show("frmProperties");
  library.Show("frmCust");  // it is up already
  world.Desktop.Advance(1);
  ClickCell(1);
  Click(library.cmdOK);
  EXPECT_EQ(properties.Told, (Names{"browsing", "\\icons\\bell.ico", "done"}));
  EXPECT_EQ(box.Told, Names{});
  properties.Unload();
  program.Ports.PropertiesIcon = nullptr;
}

TEST_F(LibraryDesk, WithoutACallerAChoiceGoesNowhere) {
  library.Show({});
  world.Desktop.Advance(1);
  ClickCell(1);
  Click(library.cmdOK);
  EXPECT_FALSE(library.IsLoaded());
  EXPECT_EQ(box.Told, Names{});
}

TEST_F(LibraryDesk, AWindowThatTheSystemRefusesGivesTheCallerBack) {
  box.Show();
  world.Desktop.RefuseNextWindow();
  library.Show("frmCust");
  EXPECT_FALSE(library.IsLoaded());
  EXPECT_TRUE(box.Enabled());
  EXPECT_EQ(box.Told, (Names{"browsing", "done"}));
}

TEST_F(LibraryDesk, IsTheSameAfterTwoHundredOpenings) {
  Open();
  PressKey(Escape);
  const std::size_t windows = world.Desktop.TopLevel().size();
  for (int i = 0; i < 200; ++i) {
    Open();
    OpenOthers();
    PressKey(Escape);
  }
  EXPECT_EQ(world.Desktop.TopLevel().size(), windows);
  EXPECT_EQ(world.Desktop.Clock().Running(), 0);
  EXPECT_EQ(library.LibraryView.Pictures().Bitmaps(), 0U);
}

// ---- the filter ----

TEST_F(LibraryDesk, TypingIntoTheFilterNarrowsTheCellsAndDownGoesOnIntoThem) {
  PutIcons(50);
  Open();
  library.txtFilter.SetFocus();
  world.Desktop.Type("cl");
  EXPECT_EQ(library.LibraryView.Captions(), Names{"Clock.ico"});
  PressKey(Down);
  EXPECT_TRUE(Focused(library.Pic2));
  EXPECT_EQ(Marked(library.LibraryView), "\\icons\\CLOCK.ICO");
  PressKey(Enter);
  EXPECT_EQ(box.txtFile.Text(), "\\icons\\CLOCK.ICO");
}

TEST_F(LibraryDesk, AMarkedCellStaysMarkedWhileTheFilterKeepsIt) {
  Open();
  ClickCell(2);
  library.txtFilter.SetFocus();
  world.Desktop.Type("c");
  EXPECT_EQ(Marked(library.LibraryView), "\\icons\\CLOCK.ICO");
  EXPECT_EQ(library.LibraryView.Captions(), (Names{"Anchor.ico", "Bell.ico", "Clock.ico"}));
  world.Desktop.Type("x");
  EXPECT_EQ(library.LibraryView.Marked(), nullptr);
  EXPECT_EQ(library.LibraryView.Captions(), Names{});
  PressKey(forms::key::Backspace);
  EXPECT_EQ(library.LibraryView.Captions().size(), 3U);
  EXPECT_EQ(library.LibraryView.Marked(), nullptr);
}

TEST_F(LibraryDesk, TheFilterStaysForAnotherCategoryAndGoesWithTheWindow) {
  Open();
  library.txtFilter.SetFocus();
  world.Desktop.Type("clock");
  ChooseRow(library.List1, 2);
  EXPECT_EQ(library.LibraryView.Captions(), Names{"Clock.ico"});
  PressKey(Escape);
  Open();
  EXPECT_EQ(library.txtFilter.Text(), "");
  EXPECT_EQ(library.LibraryView.Captions().size(), 3U);
}

// ---- other files ----

TEST_F(LibraryDesk, TheSecondTabShowsAllIconsOfTheChosenFile) {
  Open();
  PutOthers({kTool, "C:\\a.dll"});
  world.Icons.SetIconCount("C:\\a.dll", 1);
  OpenOthers();
  EXPECT_TRUE(library.List1Other.Visible());
  EXPECT_FALSE(library.List1.Visible());
  EXPECT_TRUE(library.cmdAdd.Visible());
  EXPECT_TRUE(Focused(library.picOther));
  EXPECT_EQ(library.List1Other.Items(), (Names{"a.dll", "tool.exe"}));
  ChooseRow(library.List1Other, 1);
  EXPECT_EQ(library.OtherView.Captions(), (Names{"Icon: 000", "Icon: 001", "Icon: 002"}));
  DrawAll();
  EXPECT_EQ(PixelOfCell(library.OtherView, library.picOther, 2),
            sim::SimShellIcons::ColourOf(kTool, 2));
  library.picOther.SetFocus();
  PressKey(End);
  PressKey(Enter);
  EXPECT_EQ(box.txtFile.Text(), "C:\\Tools\\tool.exe |2");
}

TEST_F(LibraryDesk, FilesWithNoIconOneAndFiveHundredEachShowTheirCells) {
  Open();
  PutOthers({"C:\\none.exe", "C:\\one.exe", "C:\\many.dll"});
  world.Icons.SetIconCount("C:\\one.exe", 1);
  world.Icons.SetIconCount("C:\\many.dll", 500);
  OpenOthers();
  ASSERT_EQ(library.List1Other.Items(), (Names{"many.dll", "none.exe", "one.exe"}));
  EXPECT_EQ(library.OtherView.Captions().size(), 500U);
  ChooseRow(library.List1Other, 1);
  EXPECT_EQ(library.OtherView.Captions().size(), 0U);
  Click(library.cmdOK);
  EXPECT_TRUE(library.IsLoaded());
  ChooseRow(library.List1Other, 2);
  EXPECT_EQ(library.OtherView.Captions(), Names{"Icon: 000"});
}

TEST_F(LibraryDesk, AddAsksForAFileAndChoosesItsRow) {
  Open();
  PutOthers({"C:\\a.dll", "C:\\z.dll"});
  OpenOthers();
  world.Desktop.ChooseFiles({kTool});
  Click(library.cmdAdd);
  ASSERT_EQ(world.Desktop.FileQuestions().size(), 1U);
  const forms::FileQuestion& asked = world.Desktop.FileQuestions()[0];
  EXPECT_EQ(asked.Title, "Select one file.");
  EXPECT_EQ(asked.StartFolder, world.System.WindowsFolder());
  EXPECT_EQ(asked.Kinds,
            (std::vector<forms::FileKind>{{"(*.exe, *.dll, *.ico)", "*.exe;*.dll;*.ico"},
                                          {"All Files (*.*)", "*.*"}}));
  EXPECT_EQ(library.List1Other.Items(), (Names{"a.dll", "tool.exe", "z.dll"}));
  EXPECT_EQ(library.List1Other.Selected(), 1);
  EXPECT_EQ(library.OtherView.Captions().size(), 3U);
}

// ---- icon texts that are too long for a record ----

/// So many letters, of which each takes three bytes in a record.
std::string Letters(int count) {
  std::string letters;
  for (int i = 0; i < count; ++i) letters += "\xE6\x97\xA5";
  return letters;
}

class LibraryLongPaths : public LibraryDesk {
 protected:
  /// Marks the last one of a file's 13 icons.
  void OpenAt(const std::string& path) {
    world.Files.Put(path, "x");
    world.Icons.SetIconCount(path, 13);
    PutOthers({path});
    Open();
    OpenOthers();
    library.picOther.SetFocus();
    PressKey(End);
  }
};

TEST_F(LibraryLongPaths, AreTakenWithTheShortNamesOfTheVolume) {
  OpenAt("C:\\" + Letters(50) + "\\" + Letters(50) + ".exe");
  world.Files.GiveShortName("C:\\" + Letters(50), "65E5~1");
  PressKey(Enter);
  EXPECT_FALSE(library.IsLoaded());
  EXPECT_EQ(box.txtFile.Text(), "C:\\65E5~1\\" + Letters(50) + ".exe |12");
}

TEST_F(LibraryLongPaths, AreShortenedWhenOnlyTheNumberHasNoRoom) {
  const std::string path = "C:\\" + Letters(50) + "\\" + Letters(33) + "1234.e";
  ASSERT_EQ(path.size(), 259U);
  OpenAt(path);
  world.Files.GiveShortName("C:\\" + Letters(50), "65E5~1");
  PressKey(Enter);
  EXPECT_EQ(box.txtFile.Text(), "C:\\65E5~1\\" + Letters(33) + "1234.e |12");
}

TEST_F(LibraryLongPaths, AreRefusedByNameWhereTheVolumeHasNoShortOnes) {
  const std::string path = "C:\\" + Letters(50) + "\\" + Letters(50) + ".exe";
  OpenAt(path);
  world.Desktop.Answer(RefusedFilesText({path}), forms::msgbox::AnswerOk);
  PressKey(Enter);
  EXPECT_EQ(LastBox(), RefusedFilesText({path}));
  EXPECT_TRUE(library.IsLoaded()) << "to choose another one";
  EXPECT_EQ(box.Told, Names{"browsing"});
}

TEST_F(LibraryLongPaths, OfTheLibraryItselfAreShortenedToo) {
  for (const char* name : {"anchor.ico", "bell.ico", "CLOCK.ICO"}) {
    ASSERT_TRUE(world.Files.Remove(std::string(kIcons) + name));
  }
  PutIcon(Letters(83) + "x.ico");
  world.Files.GiveShortName(kIcons + Letters(83) + "x.ico", "65E5~1.ICO");
  Open();
  ClickCell(0);
  PressKey(Enter);
  EXPECT_EQ(box.txtFile.Text(), "C:\\Corvelle\\Icons\\65E5~1.ICO |0");
}

TEST_F(LibraryDesk, ACancelledAddChangesNothing) {
  Open();
  PutOthers({"C:\\a.dll"});
  OpenOthers();
  world.Desktop.CancelFiles();
  Click(library.cmdAdd);
  EXPECT_EQ(library.List1Other.Items(), Names{"a.dll"});
  EXPECT_TRUE(world.Desktop.Boxes().empty());
}

TEST_F(LibraryDesk, AnAddWhoseDialogFailsIsTold) {
  Open();
  PutOthers({"C:\\a.dll"});
  OpenOthers();
  world.Desktop.AnswerAnyDialog(
      [](const forms::FileQuestion&) { return forms::FileChoice{.Failed = true}; }, nullptr);
  world.Desktop.Answer("Unable to access the selected files.", forms::msgbox::AnswerOk);
  Click(library.cmdAdd);
  EXPECT_EQ(world.Desktop.AnswersLeft(), 0);
  EXPECT_EQ(library.List1Other.Items(), Names{"a.dll"});
}

TEST_F(LibraryDesk, ARefusedFileIsToldAboutUnderTheProgramsTitle) {
  Open();
  PutOthers({kTool});
  OpenOthers();
  world.Desktop.ChooseFiles({kTool});
  world.Desktop.Answer(forms::msgbox::AnswerOk);
  Click(library.cmdAdd);
  ASSERT_EQ(world.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(LastBox(), "\"tool.exe\" is already in the library.");
  EXPECT_EQ(world.Desktop.Boxes()[0].Title, "Corvelle");
  EXPECT_EQ(world.Desktop.Boxes()[0].Flags, 64U);
  EXPECT_EQ(library.List1Other.Items(), Names{"tool.exe"});
}

TEST_F(LibraryDesk, RemoveAsksAndTakesTheRowAndItsCellsAway) {
  Open();
  PutOthers({"C:\\a.dll", kTool});
  OpenOthers();
  ChooseRow(library.List1Other, 1);
  world.Desktop.Answer(forms::msgbox::AnswerNo);
  Click(library.cmdRemove);
  EXPECT_EQ(LastBox(), "Are you sure you want to remove \"tool.exe\"");
  EXPECT_EQ(library.List1Other.Items().size(), 2U);
  world.Desktop.Answer(forms::msgbox::AnswerYes);
  Click(library.cmdRemove);
  EXPECT_EQ(library.List1Other.Items(), Names{"a.dll"});
  EXPECT_EQ(library.OtherView.Captions(), Names{});
  EXPECT_EQ(world.Files.Get(kOthers).value_or(""), "C:\\a.dll\r\n");
  // No row is chosen now.
  const std::size_t boxes = world.Desktop.Boxes().size();
  Click(library.cmdRemove);
  EXPECT_EQ(world.Desktop.Boxes().size(), boxes);
}

TEST_F(LibraryDesk, WithTheLastRowTheFileGoesAndTheNextOpeningMakesIt) {
  world.Files.Put("C:\\Windows\\System32\\Shell32.dll", "x");
  world.Files.Put("C:\\Windows\\Explorer.exe", "x");
  Open();
  PutOthers({kTool});
  OpenOthers();
  world.Desktop.Answer(forms::msgbox::AnswerYes);
  Click(library.cmdRemove);
  EXPECT_FALSE(world.Files.Get(kOthers).has_value());
  PressKey(Escape);
  Open();
  OpenOthers();
  EXPECT_EQ(library.List1Other.Items(), (Names{"Explorer.exe", "Shell32.dll"}));
}

// ---- resets ----

TEST_F(LibraryDesk, RefreshResetsTheListsAndBuildsTheViewAgain) {
  Open();
  ChooseRow(library.List1, 2);
  PutIcon("zebra.ico");
  PutOthers({kTool});
  world.Desktop.Answer(forms::msgbox::AnswerOk);
  Click(library.cmdRefresh);
  EXPECT_EQ(LastBox(), "Icon library has been reset.");
  EXPECT_EQ(world.Desktop.Boxes().back().Flags, 64U);
  EXPECT_FALSE(world.Files.Get(kOthers).has_value());
  EXPECT_EQ(library.List1.Selected(), 0);
  EXPECT_EQ(library.LibraryView.Captions().back(), "Zebra.ico");
  EXPECT_TRUE(program.Icons.LibraryBuilt);
}

TEST_F(LibraryDesk, OnceBuiltInARunThePreparedListIsRead) {
  Open();
  PressKey(Escape);
  PutIcon("zebra.ico");
  Open();
  EXPECT_EQ(library.LibraryView.Captions().size(), 3U);
  PressKey(Escape);
  program.Icons.LibraryBuilt = false;  // another run
  Open();
  EXPECT_EQ(library.LibraryView.Captions().size(), 4U);
}

TEST_F(LibraryDesk, AnotherColourDepthResetsItWithoutAMessage) {
  Open();
  PressKey(Escape);
  PutOthers({kTool});
  PutIcon("zebra.ico");
  Open();
  EXPECT_EQ(library.LibraryView.Captions().size(), 3U);
  PressKey(Escape);
  world.System.Depth = 8;
  Open();
  EXPECT_TRUE(world.Desktop.Boxes().empty());
  EXPECT_EQ(world.Files.Get(kOthers).value_or(""),
            std::string(kTool) + "\r\n");  // the user put it there
  EXPECT_EQ(library.LibraryView.Captions().size(), 4U);
  const auto record = world.Files.Get("C:\\Corvelle\\clrlib.dat");
  ASSERT_TRUE(record);
  EXPECT_EQ(record->size(), kDisplayRecord);
}

TEST_F(LibraryDesk, AfterAnEndAtAnyCallOfAResetTheNextStartShowsTheWholeLibrary) {
  const std::string display = "C:\\Corvelle\\clrlib.dat";
  bool ended = true;
  for (int n = 1; ended; ++n) {
    SCOPED_TRACE("ended at call " + std::to_string(n));
    // A library that was built under other colours, and has an icon more by now.
    world.Files.Vanish(std::string(kIcons) + "zebra.ico");
    world.System.Depth = 32;
    program.Icons.LibraryBuilt = false;
    Open();
    PressKey(Escape);
    PutIcon("zebra.ico");
    PutOthers({kTool});
    world.System.Depth = 8;
    // A writer that a full disk stops has written half.
    world.Files.FailFrom(n, n % 2 == 0 ? FileError::DiskFull : FileError::Failed);
    Open();
    ended = world.Files.Hit();
    library.Unload();
    world.Files.StopFailing();
    const std::string left = world.Files.Get(display).value_or("");
    EXPECT_EQ(left.size(), kDisplayRecord);
    program.Icons.LibraryBuilt = false;  // the next start
    Open();
    EXPECT_TRUE(world.Desktop.Boxes().empty());
    EXPECT_EQ(library.LibraryView.Captions(),
              (Names{"Anchor.ico", "Bell.ico", "Clock.ico", "Zebra.ico"}));
    EXPECT_EQ(world.Files.Get(kOthers).value_or("(missing)"), std::string(kTool) + "\r\n");
    library.Unload();
    // And what it noted of the display is right: the opening after it resets nothing.
    EXPECT_FALSE(LibraryListsOf(program).CheckDisplay());
    EXPECT_LT(n, 60);
  }
}

TEST_F(LibraryDesk, ADisplayRecordThatWasCutShortCountsAsAnotherDisplay) {
  Open();
  PressKey(Escape);
  const std::string display = "C:\\Corvelle\\clrlib.dat";
  const std::string whole = world.Files.Get(display).value_or("");
  ASSERT_EQ(whole.size(), kDisplayRecord);
  constexpr std::size_t kTold = 5;  // bytes; those behind them are zeros, as missing ones are
  for (std::size_t length = 0; length < kTold; ++length) {
    world.Files.Put(display, whole.substr(0, length));
    EXPECT_TRUE(LibraryListsOf(program).CheckDisplay()) << length;
    EXPECT_EQ(world.Files.Get(display).value_or(""), whole) << length;
  }
  EXPECT_FALSE(LibraryListsOf(program).CheckDisplay());
}

TEST_F(LibraryDesk, TheWindowMayGoWhileAMessageOrDialogIsUp) {
  Open();
  OpenOthers();
  world.Desktop.ChooseFiles({kTool});
  world.Desktop.WhileDialogIsUp([&] { library.UnloadWindow(); });
  Click(library.cmdAdd);
  EXPECT_FALSE(library.IsLoaded());
  EXPECT_TRUE(box.Enabled());
}

}  // namespace
}  // namespace corvelle
