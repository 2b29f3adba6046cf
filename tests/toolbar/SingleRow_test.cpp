// The row of single buttons: what stands in it, and running what stands there.

#include "toolbar/singles/SingleRow.h"

#include <gtest/gtest.h>

#include "sim/SimShellIcons.h"
#include "toolbar/SinglesDesk.h"

namespace corvelle {
namespace {

constexpr const char* kNoCommand =
    "No executable file found under this button. Check your configuration in the Customize window.";

TEST(SingleRow, StandsInTheOrderOfItsFiles) {
  SinglesDesk desk;
  desk.PutSingle(10, "c");
  desk.PutSingle(2, "a");
  desk.PutSingle(3, Entry("Separator", "menulineseparator", ""));
  desk.PutSingle(5, "b");
  desk.Start();
  EXPECT_EQ(desk.Row(), "a-bc");
  EXPECT_EQ(desk.Strip.Singles.SingleCount, 4);
  EXPECT_EQ(desk.Strip.Singles.LineCount, 1);
  // They are not renamed.
  EXPECT_EQ(desk.OnDisk(), "2a 3Separator 5b 10c");
  const SingleRect& single = desk.Strip.Singles.SingleButtons[1];
  EXPECT_EQ(single.File, "C:\\Corvelle\\Menus\\BMENU002.BTN");
  EXPECT_EQ(single.Command, "C:\\Tools\\a.exe");
  EXPECT_EQ(desk.Strip.Singles.SingleButtons[0].Kind, SingleKind::Template);
}

TEST(SingleRow, TheStripEndsSixPixelsBehindTheLastButton) {
  SinglesDesk desk;
  desk.PutSingles("ab");
  desk.Start();
  EXPECT_EQ(desk.Strip.picSingleButton.Width(), (23 + 16 + 6) * 15);
  EXPECT_EQ(desk.Strip.Width(), desk.Strip.picSingleButton.Right() + 15);
  EXPECT_TRUE(desk.Strip.LineLeft.Visible());
}

TEST(SingleRow, DamagedFilesHarmNoOtherButton) {
  SinglesDesk desk;
  desk.PutSingles("a");
  desk.World.Files.Put("C:\\Corvelle\\Menus\\BMENU002.BTN", "");
  desk.World.Files.Put("C:\\Corvelle\\Menus\\BMENU003.BTN", std::string(100, '\xFF'));
  desk.World.Files.Put("C:\\Corvelle\\Menus\\BMENU004.BTN",
                       Records({Entry("d", "", "C:\\d.exe"), Entry("lost", "", "")}));
  desk.PutSingle(5, "e");
  desk.PutSingle(6, "f");
  desk.World.Files.HoldOpen("C:\\Corvelle\\Menus\\BMENU005.BTN");
  desk.Start();
  ASSERT_EQ(desk.Strip.Singles.SingleCount, 5);
  EXPECT_EQ(desk.Strip.Singles.SingleButtons[1].Title, "a");
  EXPECT_EQ(desk.Strip.Singles.SingleButtons[2].Title, "");
  EXPECT_EQ(desk.Strip.Singles.SingleButtons[4].Title, "d");
  EXPECT_EQ(desk.Strip.Singles.SingleButtons[5].Title, "f");
}

TEST(SingleRow, TwoHundredButtonsAreReadOnceEachAndDrawn) {
  SinglesDesk desk;
  for (int i = 1; i <= 200; ++i) desk.PutSingle(i, "b");
  desk.World.Files.ClearLog();
  desk.Start();
  EXPECT_EQ(desk.Strip.Singles.SingleCount, 200);
  EXPECT_EQ(desk.World.Files.Reads(), 200 + 2 + 2);  // the menus, the saved position, no journal
  // A repaint asks for no icon.
  desk.World.Icons.ClearCounts();
  desk.Strip.picSingleButton.InvalidateAll();
  desk.Strip.picSingleButton.Refresh();
  EXPECT_EQ(desk.World.Icons.Draws(), 0);
  EXPECT_EQ(desk.Strip.Left(), 0);
}

TEST(SingleRow, EachButtonShowsItsIconAndAnUnknownOneTheBlankDocument) {
  SinglesDesk desk;
  desk.World.Files.Put("C:\\Corvelle\\Icons\\W95MBX02.ICO", "icon");
  desk.World.Icons.SetIndex("C:\\Tools\\a.exe", 7);
  desk.World.Icons.SetIndex("C:\\Corvelle\\Icons\\W95MBX02.ICO", 8);
  desk.TheProgram.Icons.ShellDrawsIcons = true;
  desk.PutSingles("a");
  desk.PutSingle(2, Entry("b", "", "C:\\b.exe"));
  desk.PutSingle(3, Entry("c", "C:\\nowhere.ico", "C:\\c.exe"));
  desk.PutSingle(4, Entry("d", "Button", "C:\\d.exe"));
  desk.Start();
  const auto shown = [&desk](int single) {
    const SingleRect& rect = desk.Strip.Singles.SingleButtons[static_cast<std::size_t>(single)];
    return desk.Strip.picSingleButton.Image()->PixelAt({static_cast<int>(rect.Left / 15) + 8, 12});
  };
  EXPECT_EQ(shown(1), sim::SimShellIcons::ColourOf(7));
  for (int i = 2; i <= 4; ++i) EXPECT_EQ(shown(i), sim::SimShellIcons::ColourOf(8)) << i;
}

TEST(SingleRow, SmallIconsBesideLargeOnesStandInTwoRows) {
  SinglesDesk desk;
  desk.SetOption(Option::SmallSingles, true);
  desk.SetOption(Option::LargeIcons, true);
  desk.PutSingles("abc-d");
  desk.StartAt(Edge::Left);
  const std::vector<SingleRect>& row = desk.Strip.Singles.SingleButtons;
  EXPECT_EQ(row[1].Top, row[2].Top);
  EXPECT_LT(row[1].Left, row[2].Left);
  EXPECT_GT(row[3].Top, row[1].Top);
  EXPECT_EQ(row[3].Left, row[1].Left);
  EXPECT_EQ(row[5].Left, row[1].Left);
  EXPECT_GT(row[5].Top, row[4].Top);
}

TEST(SingleRow, LargeIconsAloneStandInOneRow) {
  SinglesDesk desk;
  desk.SetOption(Option::LargeIcons, true);
  desk.PutSingles("ab");
  desk.Start();
  EXPECT_EQ(desk.Strip.Singles.SingleButtons[2].Width, 32 * 15);
  EXPECT_EQ(desk.Strip.Singles.SingleButtons[2].Top, 0);
}

TEST(SingleRow, EachFileTicksTheStartupWindow) {
  struct Dots final : StartupPort {
    int Count = 0;
    void LoadWindow() override {}
    void UnloadWindow() override {}
    bool WindowLoaded() const override { return true; }
    void AddDot() override { ++Count; }
    void HideWindow() override {}
    void ShowProgress(std::string_view, std::string_view) override {}
  };
  SinglesDesk desk;
  Dots dots;
  desk.TheProgram.Ports.Startup = &dots;
  desk.PutSingles("abc");
  desk.Start();
  EXPECT_EQ(dots.Count, 2 + 3);
  desk.TheProgram.Ports.Startup = nullptr;
}

TEST(SingleRow, AChangeOfColoursDrawsTheRowAnewAndMovesNothing) {
  SinglesDesk desk;
  desk.PutSingles("ab");
  desk.Start();
  const float width = desk.Strip.picSingleButton.Width();
  // A text that changed on the disk meanwhile is taken in.
  desk.PutSingle(2, "x");
  desk.World.Desktop.SetSystemColor(15, 0x00123456);
  desk.World.Desktop.Pump();
  EXPECT_EQ(desk.Strip.picSingleButton.Image()->PixelAt({1, 2}), 0x00123456U);
  EXPECT_EQ(desk.Strip.picSingleButton.Width(), width);
  EXPECT_EQ(desk.Row(), "ax");
  EXPECT_NE(desk.Strip.picSingleButton.Image()->PixelAt({13, 12}), 0x00123456U);
}

// Whichever icons have come by then, be they of the buttons or of the row.
TEST(SingleRow, ColoursAndFilesThatChangeWhileIconsAreFetchedShowInTheWholeStrip) {
  for (int at = 0; at < 5; ++at) {
    SCOPED_TRACE(at);
    SinglesDesk desk;
    desk.PutButton(1, "One", "C:\\Tools\\a.exe");
    desk.PutSingles("abc");
    desk.World.SlowAnswers.Delay("C:*", 20);
    desk.Start();
    desk.World.Desktop.Advance(20 * at);
    // More buttons than there was room for.
    for (int i = 4; i < 20; ++i) desk.PutSingle(i, "d");
    for (int i = 2; i < 20; ++i) desk.PutButton(i, "More", "C:\\Tools\\a.exe");
    desk.World.Desktop.SetSystemColor(15, 0x00123456);
    desk.World.Desktop.Pump();
    desk.World.Desktop.Advance(2000);
    EXPECT_EQ(desk.Row(), "abc" + std::string(16, 'd'));
    EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 20);
    const auto row = desk.Strip.picSingleButton.Image();
    EXPECT_EQ(row->PixelAt({1, 2}), 0x00123456U);
    for (int i = 1; i <= 19; ++i) {
      const PixelRect box = desk.World.Desktop.BoundsOf(desk.Strip.picSingleButton.hWnd());
      const PixelPoint middle = desk.MiddleOf(i);
      EXPECT_NE(row->PixelAt({middle.x - box.left, middle.y - box.top}), 0x00123456U) << i;
    }
    EXPECT_EQ(desk.Strip.picToolbar.Image()->PixelAt({20, 1}), 0x00123456U);
  }
}

TEST(SingleRow, ARefreshWithOtherFilesMakesTheRowAnew) {
  SinglesDesk desk;
  desk.PutSingles("ab");
  desk.Start();
  desk.PutSingle(2, Entry("Separator", "MenuLineSeparator", ""));
  desk.Strip.RefreshToolbar();
  EXPECT_EQ(desk.Row(), "a-");
  desk.PutSingle(3, "c");
  desk.Strip.RefreshToolbar();
  EXPECT_EQ(desk.Row(), "a-c");
  EXPECT_EQ(desk.Strip.Width(), desk.Strip.picSingleButton.Right() + 15);
}

TEST(SingleRow, ARefreshWithOtherTextsInTheSameFilesMovesNothing) {
  SinglesDesk desk;
  desk.PutSingles("ab");
  desk.StartAt(Edge::Bottom);
  const int fitted = desk.Edge.Fitted;
  desk.PutSingle(2, "c");
  desk.Strip.RefreshToolbar();
  EXPECT_EQ(desk.Row(), "ac");
  EXPECT_EQ(desk.Edge.Fitted, fitted);
  desk.PutSingle(3, "d");
  desk.Strip.RefreshToolbar();
  EXPECT_EQ(desk.Row(), "acd");
  EXPECT_EQ(desk.Edge.Fitted, fitted + 1);
}

TEST(SingleRow, ARefreshKnowsTheFilesThatWereNumberedAnew) {
  SinglesDesk desk;
  desk.PutSingles("ab");
  desk.Start();
  desk.World.Files.Vanish("C:\\Corvelle\\Menus\\BMENU002.BTN");
  desk.PutSingle(3, "b");
  desk.Strip.RefreshToolbar();
  EXPECT_EQ(desk.Strip.Singles.SingleButtons[2].File, "C:\\Corvelle\\Menus\\BMENU003.BTN");
}

TEST(SingleRow, BeginsWithAHighlightAndIsRepaintedFromItsPicture) {
  for (const Edge at : {Edge::Top, Edge::Left}) {
    SinglesDesk desk;
    desk.PutSingles("a");
    desk.StartAt(at);
    EXPECT_TRUE(desk.Strip.LineLeft.Visible());
    EXPECT_EQ(desk.Strip.LineLeft.BorderColor(), forms::color::Highlight3D);
    EXPECT_EQ(desk.Strip.LineLeft.X2() > 0, IsVertical(at));
    EXPECT_EQ(desk.Strip.LineLeft.Y2() > 0, !IsVertical(at));
    EXPECT_NE(desk.Strip.picSingleButton.Background(), nullptr);
  }
}

TEST(SingleRow, AnUnloadedStripHasNone) {
  SinglesDesk desk;
  desk.PutSingles("a-");
  desk.Start();
  desk.Strip.UnloadItems();
  EXPECT_EQ(desk.Strip.Singles.SingleCount, 0);
  EXPECT_EQ(desk.Strip.Singles.SingleButtons.size(), 1U);
  EXPECT_EQ(desk.Strip.Line1.Last(), 0);
}

// ---- running ----

TEST(SingleClick, RunsTheButtonWhenOption11SaysSo) {
  SinglesDesk desk;
  desk.PutSingles("ab");
  desk.Start();
  desk.ClickSingle(2);
  EXPECT_EQ(desk.Started(), std::vector<std::string>{"C:\\Tools\\b.exe"});
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
  EXPECT_FALSE(desk.TheProgram.Menu.MenuOpen);
  EXPECT_EQ(desk.World.Desktop.CurrentMousePointer(), forms::MousePointer::Default);
  EXPECT_EQ(desk.Parts.Times("no image"), 1);
}

TEST(SingleClick, WhoseReleaseComesWhileTheHintGoesRunsTheButton) {
  SinglesDesk desk;
  desk.PutSingles("ab");
  desk.Start();
  desk.PointAtSingle(2);
  desk.Parts.WhileHintGoes = [&desk] {
    desk.Parts.WhileHintGoes = nullptr;
    desk.World.Desktop.Release();
    desk.World.Desktop.DoEvents();
  };
  desk.World.Desktop.Press();
  EXPECT_EQ(desk.Started(), std::vector<std::string>{"C:\\Tools\\b.exe"});
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
}

// The second click waits while the first is dealt with.
TEST(SingleClick, OnAnotherButtonWhileTheFirstIsDealtWithRunsThatOneAfterwards) {
  SinglesDesk desk;
  desk.PutSingles("ab");
  desk.Start();
  forms::WindowSystem& windows = desk.World.Desktop;
  forms::TimerId timer{};
  timer = windows.StartTimer(1, [&] {
    windows.StopTimer(timer);
    desk.ClickSingle(1);
    desk.ClickSingle(2);
  });
  desk.Wait(1);
  desk.Wait(10);
  EXPECT_EQ(desk.Started(), (std::vector<std::string>{"C:\\Tools\\a.exe", "C:\\Tools\\b.exe"}));
}

TEST(SingleClick, WithoutOption11ADoubleClickRunsItOnce) {
  SinglesDesk desk;
  desk.SetOption(Option::SingleClick, false);
  desk.PutSingles("ab");
  desk.Start();
  desk.ClickSingle(2);
  EXPECT_TRUE(desk.Started().empty());
  desk.World.Desktop.DoubleClick();
  EXPECT_EQ(desk.Started(), std::vector<std::string>{"C:\\Tools\\b.exe"});
}

TEST(SingleClick, ADoubleClickRunsTheOneThatWasPressedWhereverThePointerIsByThen) {
  SinglesDesk desk;
  desk.SetOption(Option::SingleClick, false);
  desk.PutSingles("ab");
  desk.Start();
  for (const PixelPoint then : {PixelPoint{20, 700}, desk.MiddleOf(1)}) {
    desk.PointAtSingle(2);
    desk.World.Desktop.Post([&] {
      desk.World.Desktop.DoubleClick();
      desk.PointAt(then);
    });
    desk.Wait(10);
  }
  EXPECT_EQ(desk.Started(), (std::vector<std::string>{"C:\\Tools\\b.exe", "C:\\Tools\\b.exe"}));
}

TEST(SingleClick, AHintThatComesBetweenTheTwoPressesIsGoneBeforeTheUserIsToldAnything) {
  SinglesDesk desk;
  desk.SetOption(Option::SingleClick, false);
  desk.PutSingle(1, "a");
  desk.PutSingle(2, Entry("b", "", ""));
  desk.Start();
  desk.ClickSingle(2);
  const PixelPoint at = desk.MiddleOf(2);
  desk.PointAt({at.x + 1, at.y});
  ASSERT_EQ(desk.Parts.Hint, "b");
  desk.World.Desktop.Answer(kNoCommand, forms::msgbox::AnswerOk);
  // The button is still down.
  desk.Strip.picSingleButton.DblClick();
  EXPECT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(desk.Parts.Hint, "");
}

TEST(SingleClick, AHintThatComesBetweenTheTwoPressesIsGoneAfterTheRelease) {
  SinglesDesk desk;
  desk.PutSingles("ab");
  desk.Start();
  desk.PointAtSingle(2);
  desk.World.Desktop.DoubleClick([&desk] {
    const PixelPoint at = desk.MiddleOf(2);
    desk.PointAt({at.x + 1, at.y});
    EXPECT_EQ(desk.Parts.Hint, "b");
  });
  EXPECT_EQ(desk.Parts.Hint, "");
}

TEST(SingleClick, WithOption11ADoubleClickRunsItOnceToo) {
  SinglesDesk desk;
  desk.PutSingles("a");
  desk.Start();
  desk.PointAtSingle(1);
  desk.World.Desktop.DoubleClick();
  EXPECT_EQ(desk.Started().size(), 1U);
}

TEST(SingleClick, ThreePixelsAreStillAClickAndFourAreNone) {
  SinglesDesk desk;
  desk.PutSingles("a");
  desk.Start();
  const PixelPoint at = desk.MiddleOf(1);
  desk.PointAt(at);
  desk.World.Desktop.Press();
  desk.PointAt({at.x + 3, at.y});
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.Started().size(), 1U);
  desk.PointAt(at);
  desk.World.Desktop.Press();
  desk.PointAt({at.x + 4, at.y});
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.Started().size(), 1U);
  EXPECT_EQ(desk.OnDisk(), "1a");
}

TEST(SingleClick, AnEmptyCommandIsTold) {
  SinglesDesk desk;
  desk.PutSingle(1, Entry("a", "", ""));
  desk.Start();
  desk.World.Desktop.Answer(kNoCommand, forms::msgbox::AnswerOk);
  desk.ClickSingle(1);
  ASSERT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(desk.World.Desktop.Boxes()[0].Title, "Corvelle");
  EXPECT_EQ(desk.World.Desktop.Boxes()[0].Flags, 262160U);
  EXPECT_TRUE(desk.Started().empty());
  EXPECT_EQ(desk.World.Desktop.CurrentMousePointer(), forms::MousePointer::Default);
}

TEST(SingleClick, ASeparatorRunsNothingAndIsTheStripsHandle) {
  SinglesDesk desk;
  desk.PutSingles("a-b");
  desk.Start();
  const float left = desk.Strip.Left();
  desk.Carry(2, {desk.MiddleOf(2).x - 100, 5});
  EXPECT_EQ(desk.Strip.Left(), left - 100 * 15);
  EXPECT_TRUE(desk.Started().empty());
  EXPECT_EQ(desk.OnDisk(), "1a 2Separator 3b");
}

TEST(SingleClick, ThatClosesAMenuRunsNothing) {
  SinglesDesk desk;
  desk.PutSingles("a");
  desk.Start();
  desk.Click(2);
  ASSERT_EQ(desk.MenuUp(), 2);
  // Without time for the pointer to be followed.
  desk.ClickSingle(1);
  EXPECT_EQ(desk.MenuUp(), 0);
  EXPECT_TRUE(desk.Started().empty());
  EXPECT_FALSE(desk.Strip.Pull.FrameDragging);
}

TEST(SingleClick, ARowThatIsReadAnewUnderThePressRunsNothing) {
  SinglesDesk desk;
  desk.PutSingles("ab");
  desk.Start();
  desk.PointAtSingle(1);
  desk.World.Desktop.Press();
  desk.World.Files.Vanish("C:\\Corvelle\\Menus\\BMENU001.BTN");
  desk.Strip.DoSingleButtons();
  desk.World.Desktop.Release();
  EXPECT_TRUE(desk.Started().empty());
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
}

// ---- one for each guard ----

TEST(SingleGuards, WhileAnEntryIsCarriedAPressIsNone) {
  SinglesDesk desk;
  desk.PutSingles("a");
  desk.Start();
  desk.TheProgram.Entry.ItemDragging = true;
  desk.World.Desktop.KeyDown(1);
  desk.Strip.picSingleButton.MouseDown(forms::MouseButton::Left, {}, 100, 100);
  EXPECT_TRUE(desk.Parts.Asked.empty());
  desk.TheProgram.Menu.CurSingle = 1;
  desk.Strip.Singles.RunSingleButton();
  EXPECT_TRUE(desk.Started().empty());
  desk.World.Desktop.KeyUp(1);
  desk.TheProgram.Entry.ItemDragging = false;
}

TEST(SingleGuards, WhileOneIsBeingStartedASecondClickStartsNone) {
  SinglesDesk desk;
  desk.PutSingles("a");
  desk.Start();
  int asked = 0;
  desk.World.Shell.WhileAsked([&](const sim::Launch&) {
    if (++asked > 1) return;
    desk.TheProgram.Menu.CurSingle = 1;
    desk.Strip.Singles.RunSingleButton();
  });
  desk.ClickSingle(1);
  EXPECT_EQ(asked, 1);
}

TEST(SingleGuards, AtTheStartNothingRuns) {
  SinglesDesk desk;
  desk.PutSingles("a");
  desk.Start();
  desk.TheProgram.Guards.StartingUp = true;
  desk.ClickSingle(1);
  EXPECT_TRUE(desk.Started().empty());
  EXPECT_EQ(desk.Parts.Hint, "");
}

TEST(SingleGuards, WhileThePlaceChangesThereIsNoHover) {
  SinglesDesk desk;
  desk.PutSingles("a");
  desk.Start();
  desk.TheProgram.Guards.PosChangeRunning = true;
  desk.PointAtSingle(1);
  EXPECT_EQ(desk.Parts.Hint, "");
  desk.TheProgram.Guards.PosChangeRunning = false;
}

TEST(SingleGuards, TheEndOfTheProgramInsideAStartIsHarmless) {
  SinglesDesk desk;
  desk.PutSingles("a");
  desk.Start();
  desk.World.Shell.WhileAsked([&](const sim::Launch&) { desk.Exit(); });
  desk.ClickSingle(1);
  EXPECT_FALSE(desk.Strip.IsLoaded());
}

// ---- hovering ----

int HoverLinesShown(const SinglesDesk& desk) {
  int shown = 0;
  for (const forms::Graphic* graphic : desk.Strip.picSingleButton.Graphics()) {
    if (graphic->Visible() && (graphic->Name() == "Line1" || graphic->Name() == "Line2")) ++shown;
  }
  return shown;
}

TEST(SingleHover, ShowsTheTitleAndTwoLinesAndEndsWithThePointer) {
  SinglesDesk desk;
  desk.PutSingles("ab");
  desk.PutSingle(3, Entry("R&D", "", "C:\\c.exe"));
  desk.Start();
  EXPECT_EQ(HoverLinesShown(desk), 0);
  desk.PointAtSingle(2);
  EXPECT_EQ(desk.Parts.Hint, "b");
  EXPECT_EQ(HoverLinesShown(desk), 2);
  EXPECT_EQ(desk.TheProgram.Menu.CurSingle, 2);
  desk.PointAtSingle(3);
  EXPECT_EQ(desk.Parts.Hint, "R&&D");
  desk.PointAway();
  desk.Wait(150);
  EXPECT_EQ(desk.Parts.Hint, "");
  EXPECT_EQ(HoverLinesShown(desk), 0);
  EXPECT_EQ(desk.TheProgram.Menu.CurSingle, 0);
  desk.Wait(500);  // the end of the start
  EXPECT_EQ(desk.WakeUps(5000), 0);
}

TEST(SingleHover, BackOnAMenuButtonTheHintIsItsTitle) {
  SinglesDesk desk;
  desk.PutSingles("a");
  desk.Start();
  desk.PointAtButton(2);
  EXPECT_EQ(desk.Parts.Hint, "Menu 1");
  desk.PointAtSingle(1);
  EXPECT_EQ(desk.Parts.Hint, "a");
  desk.PointAtButton(2);
  EXPECT_EQ(desk.Parts.Hint, "Menu 1");
  desk.Wait(150);
  EXPECT_EQ(desk.Parts.Hint, "Menu 1");
  EXPECT_EQ(HoverLinesShown(desk), 0);
}

TEST(SingleHover, ASeparatorShowsNothing) {
  SinglesDesk desk;
  desk.PutSingles("a-");
  desk.Start();
  desk.PointAtSingle(1);
  desk.PointAtSingle(2);
  EXPECT_EQ(desk.Parts.Hint, "");
  EXPECT_EQ(HoverLinesShown(desk), 2);  // the separator's own
}

TEST(SingleHover, WithAMenuUpItClosesTheMenuAndShowsTheButton) {
  SinglesDesk desk;
  desk.PutSingles("a");
  desk.Start();
  desk.Click(2);
  desk.Wait();
  desk.PointAtSingle(1);
  desk.Wait();
  EXPECT_EQ(desk.MenuUp(), 0);
  EXPECT_EQ(desk.TheProgram.Menu.CurSingle, 1);
  EXPECT_EQ(desk.Parts.Hint, "a");
}

// ---- right clicks ----

TEST(SingleRightClick, Option19AndCtrlChooseThePopup) {
  for (const bool option : {true, false}) {
    for (const bool ctrl : {true, false}) {
      SinglesDesk desk;
      desk.SetOption(Option::SystemPopupWithCtrl, option);
      desk.PutSingles("ab");
      desk.Start();
      if (ctrl) desk.World.Desktop.KeyDown(17);
      desk.ClickSingle(2, forms::MouseButton::Right);
      if (ctrl) desk.World.Desktop.KeyUp(17);
      const std::string wanted = option == ctrl ? "shell menu of C:\\Tools\\b.exe/" : "popup";
      EXPECT_EQ(desk.Parts.Asked, std::vector<std::string>{wanted}) << option << ctrl;
      const EntryEdit& entry = desk.TheProgram.Entry;
      EXPECT_EQ(entry.CurMenuTag, "SingleButtons");
      EXPECT_EQ(entry.CurTitle, "b");
      EXPECT_EQ(entry.CurIcon, "C:\\Tools\\b.exe");
      EXPECT_EQ(entry.CurCommand, "C:\\Tools\\b.exe");
      EXPECT_EQ(entry.CurFile, "C:\\Corvelle\\Menus\\BMENU002.BTN");
      EXPECT_EQ(entry.CurRecord, 1);
      EXPECT_TRUE(desk.Started().empty());
    }
  }
}

TEST(SingleRightClick, OnTheBareRowThePopupHasNoRecord) {
  SinglesDesk desk;
  desk.PutSingles("a");
  desk.Start();
  desk.PointAt(desk.BarePlace());
  desk.World.Desktop.Click(forms::MouseButton::Right);
  EXPECT_EQ(desk.Parts.Times("popup"), 1);
  EXPECT_EQ(desk.TheProgram.Entry.CurMenuTag, "SingleButtons");
  EXPECT_EQ(desk.TheProgram.Entry.CurRecord, 0);
  EXPECT_EQ(desk.TheProgram.Entry.CurFile, "");
}

TEST(SingleRightClick, OnASeparatorThePopupIsForThatSeparator) {
  SinglesDesk desk;
  desk.PutSingles("a-");
  desk.Start();
  desk.ClickSingle(2, forms::MouseButton::Right);
  EXPECT_EQ(desk.Parts.Times("popup"), 1);
  EXPECT_EQ(desk.TheProgram.Entry.CurFile, "C:\\Corvelle\\Menus\\BMENU002.BTN");
}

TEST(SingleRightClick, ThatEndsElsewhereBringsNone) {
  SinglesDesk desk;
  desk.PutSingles("a");
  desk.Start();
  desk.PointAtSingle(1);
  desk.World.Desktop.Press(forms::MouseButton::Right);
  desk.PointAway();
  desk.World.Desktop.Release(forms::MouseButton::Right);
  EXPECT_TRUE(desk.Parts.Asked.empty());
}

TEST(SingleRightClick, AfterAPullOfTheStripThereIsNoPopup) {
  SinglesDesk desk;
  desk.PutSingles("a");
  desk.Start();
  const PixelPoint at = desk.BarePlace();
  desk.PointAt(at);
  desk.World.Desktop.Press(forms::MouseButton::Right);
  desk.PointAt({at.x - 50, at.y});
  desk.World.Desktop.Release(forms::MouseButton::Right);
  EXPECT_TRUE(desk.Parts.Asked.empty());
}

TEST(GetCurIndex, AsksForThePlaceOnceAndSeesOtherWindows) {
  SinglesDesk desk;
  desk.PutSingles("ab");
  desk.Start();
  desk.PointAtSingle(2);
  EXPECT_EQ(desk.Strip.Singles.GetCurIndex(), 2);
  desk.PointAtButton(2);
  EXPECT_EQ(desk.Strip.Singles.GetCurIndex(), 0);
  EXPECT_EQ(desk.TheProgram.Menu.CurSingle, 0);
}

TEST(SingleRow, ItsEndTakesTheLinesOfTheSeparatorsAway) {
  SinglesDesk desk;
  desk.PutSingles("a-b");
  desk.Start();
  ASSERT_TRUE(desk.Strip.Line1.Has(1));
  ASSERT_TRUE(desk.Strip.Line2.Has(1));
  desk.Strip.Singles.Unload();
  EXPECT_FALSE(desk.Strip.Line1.Has(1));
  EXPECT_FALSE(desk.Strip.Line2.Has(1));
}

TEST(SingleHover, EndsWhenThePointerComesToTheDate) {
  SinglesDesk desk;
  desk.PutSingles("ab");
  desk.Start();
  desk.PointAtSingle(2);
  ASSERT_EQ(HoverLinesShown(desk), 2);
  desk.Strip.Singles.EnterDate();
  EXPECT_EQ(HoverLinesShown(desk), 0);
}

TEST(SingleRightClick, AnEntryWithoutACommandHasNoShellMenu) {
  SinglesDesk desk;
  desk.SetOption(Option::SystemPopupWithCtrl, true);
  desk.PutSingle(1, Entry("a"));
  desk.Start();
  desk.World.Desktop.KeyDown(17);
  desk.ClickSingle(1, forms::MouseButton::Right);
  desk.World.Desktop.KeyUp(17);
  EXPECT_EQ(desk.Parts.Asked, std::vector<std::string>{});
}

}  // namespace
}  // namespace corvelle
