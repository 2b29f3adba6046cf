// What the strip makes of the files, the options and the disk when it is built.

#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "core/SettingsFiles.h"
#include "toolbar/SinglesDesk.h"

namespace corvelle {
namespace {

using forms::msgbox::AnswerNo;
using forms::msgbox::AnswerYes;

constexpr const char* kDefaultsQuestion =
    "Corvelle doesn't contain any entries. Would you like to add the default entries to Corvelle?";

/// Default entries that are one menu file.
struct OneDefaultEntry final : DefaultEntriesPort {
  explicit OneDefaultEntry(StripDesk& desk) : Desk(desk) {}
  void IncludeCommonFiles() override {
    ++Times;
    Desk.PutButton(1, "Programs");
  }
  StripDesk& Desk;
  int Times = 0;
};

/// A startup window that does something at each dot.
struct BusyStartup final : StartupPort {
  void LoadWindow() override {}
  void UnloadWindow() override {}
  bool WindowLoaded() const override { return true; }
  void HideWindow() override {}
  void ShowProgress(std::string_view, std::string_view) override {}
  void AddDot() override {
    ++Dots;
    if (Action) Action();
  }
  int Dots = 0;
  std::function<void()> Action;
};

TEST(ToolbarStart, MakesItsFoldersWhereTheyAreMissing) {
  StripDesk desk;
  desk.World.Files.Vanish("C:\\Corvelle\\Menus");
  desk.World.Files.Vanish("C:\\Corvelle\\Icons");
  desk.World.Desktop.Answer(kDefaultsQuestion, AnswerNo);
  desk.Start();
  EXPECT_TRUE(desk.World.Files.FolderExists("C:\\Corvelle\\Menus"));
  EXPECT_TRUE(desk.World.Files.FolderExists("C:\\Corvelle\\Icons"));
  EXPECT_TRUE(desk.World.Files.FolderExists("C:\\Corvelle\\ShellLink"));
  EXPECT_EQ(desk.TheProgram.Paths.MenusPath, "C:\\Corvelle\\Menus\\");
  EXPECT_EQ(desk.TheProgram.Paths.IconsPath, "C:\\Corvelle\\Icons\\");
  EXPECT_EQ(desk.TheProgram.Paths.ShellLinkPath, "C:\\Corvelle\\ShellLink\\");
}

TEST(ToolbarStart, ATextFileAmongTheMenusIsGone) {
  StripDesk desk;
  desk.PutButtons(1);
  desk.World.Files.Put("C:\\Corvelle\\Menus\\notes.txt", "text");
  desk.Start();
  EXPECT_FALSE(desk.HasMenuFile("notes.txt"));
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 2);
}

TEST(ToolbarStart, FilesNumberedTwoAndFiveBecomeOneAndTwoInThatOrder) {
  StripDesk desk;
  desk.PutButton(2, "Second");
  desk.PutButton(5, "Fifth");
  const std::string second = *desk.World.Files.Get("C:\\Corvelle\\Menus\\BMENU002.MNU");
  const std::string fifth = *desk.World.Files.Get("C:\\Corvelle\\Menus\\BMENU005.MNU");
  desk.Start();
  EXPECT_EQ(desk.World.Files.Get("C:\\Corvelle\\Menus\\BMENU001.MNU"), second);
  EXPECT_EQ(desk.World.Files.Get("C:\\Corvelle\\Menus\\BMENU002.MNU"), fifth);
  EXPECT_FALSE(desk.HasMenuFile("BMENU005.MNU"));
  const std::vector<std::string> expected = {"QMenu", "C:\\Corvelle\\Menus\\BMENU001.MNU",
                                             "C:\\Corvelle\\Menus\\BMENU002.MNU"};
  EXPECT_EQ(desk.ButtonFiles(), expected);
}

TEST(ToolbarStart, ButtonsHaveKeysAndStandSideBySide) {
  StripDesk desk;
  desk.PutButtons(2);
  desk.Start();
  ASSERT_EQ(desk.Strip.Buttons.ButtonCount, 3);
  EXPECT_EQ(desk.Strip.Buttons.ToolbarButtons[1].Key, "B1");
  EXPECT_EQ(desk.Strip.Buttons.ToolbarButtons[3].Key, "B3");
  EXPECT_EQ(desk.Strip.Buttons.ToolbarButtons[1].Left, 0);
  EXPECT_EQ(desk.Strip.Buttons.ToolbarButtons[2].Left, 24 * 15);
  EXPECT_EQ(desk.Strip.Buttons.ToolbarButtons[3].Left, 48 * 15);
  EXPECT_EQ(desk.Strip.picToolbar.Width(), 72 * 15);
  EXPECT_EQ(desk.Strip.picToolbar.Height(), 22 * 15);
  for (int i = 1; i <= 3; ++i) EXPECT_TRUE(desk.AtRest(i)) << i;
}

TEST(ToolbarStart, AButtonThatSaysHiddenIsNotOnTheStrip) {
  StripDesk desk;
  desk.PutButton(1, "Shown");
  desk.PutButton(2, "Hidden", "Button", " / H");
  desk.PutButton(3, "Shown too");
  desk.Start();
  const std::vector<std::string> expected = {"QMenu", "C:\\Corvelle\\Menus\\BMENU001.MNU",
                                             "C:\\Corvelle\\Menus\\BMENU003.MNU"};
  EXPECT_EQ(desk.ButtonFiles(), expected);
  EXPECT_TRUE(desk.HasMenuFile("BMENU002.MNU"));
}

TEST(ToolbarStart, ASeparatorStandsBetweenItsNeighbours) {
  StripDesk desk;
  desk.PutButton(1, "First");
  desk.PutButton(2, "", "menulineseparator");
  desk.PutButton(3, "Third");
  desk.Start();
  ASSERT_EQ(desk.Strip.Buttons.ButtonCount, 3);
  ASSERT_EQ(desk.Strip.Buttons.SepCount, 1);
  const forms::Label& separator = desk.Strip.lblSep[1];
  EXPECT_EQ(&separator.Container(), &desk.Strip.picToolbar);
  EXPECT_TRUE(separator.Visible());
  EXPECT_EQ(separator.Left(), 48 * 15);
  EXPECT_EQ(separator.Width(), 8 * 15);
  EXPECT_EQ(desk.Strip.Buttons.ToolbarButtons[3].Left, 56 * 15);
}

TEST(ToolbarStart, TheGripStandsOnTheWindowBetweenTheBoxes) {
  StripDesk desk;
  desk.PutButtons(2);
  desk.Start();
  const forms::Label& grip = desk.Strip.lblSep[0];
  EXPECT_EQ(&grip.Container(), &desk.Strip);
  EXPECT_EQ(grip.Left(), 73 * 15);
  EXPECT_EQ(grip.Width(), 8 * 15);
  EXPECT_EQ(grip.Height(), desk.Strip.Height());
  EXPECT_EQ(desk.Strip.picSingleButton.Left(), 81 * 15);
}

TEST(ToolbarStart, NoEntriesAndTheAnswerNoLeaveTheMainButtonAlone) {
  StripDesk desk;
  desk.World.Desktop.Answer(kDefaultsQuestion, AnswerNo);
  desk.Start();
  ASSERT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(desk.World.Desktop.Boxes()[0].Flags, 262180U);
  EXPECT_EQ(desk.World.Desktop.Boxes()[0].Title, "Corvelle");
  EXPECT_EQ(desk.ButtonFiles(), std::vector<std::string>{"QMenu"});
  EXPECT_TRUE(desk.Strip.Visible());
}

TEST(ToolbarStart, UntilItIsPlacedTheStripIsBesideTheScreen) {
  StripDesk desk;
  desk.World.Desktop.Answer(kDefaultsQuestion, AnswerNo);
  float left = 0;
  desk.World.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) { left = desk.Strip.Left(); });
  desk.Start();
  EXPECT_EQ(left, desk.Strip.Screen().Width);
  EXPECT_LT(desk.Strip.Left(), left);
}

TEST(ToolbarStart, NoEntriesAndTheAnswerYesBringTheDefaultEntries) {
  StripDesk desk;
  OneDefaultEntry entries(desk);
  desk.TheProgram.Ports.DefaultEntries = &entries;
  desk.World.Desktop.Answer(kDefaultsQuestion, AnswerYes);
  desk.Start();
  EXPECT_EQ(entries.Times, 1);
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 2);
}

TEST(ToolbarStart, ASingleButtonAloneIsAnEntryToo) {
  StripDesk desk;
  desk.World.Files.Put("C:\\Corvelle\\Menus\\BMENU001.BTN", Records({Entry("One")}));
  desk.Start();
  EXPECT_TRUE(desk.World.Desktop.Boxes().empty());
  EXPECT_TRUE(desk.HasMenuFile("BMENU001.BTN"));
}

TEST(ToolbarStart, AFolderWithTheNameOfAMenuIsNoEntry) {
  StripDesk desk;
  OneDefaultEntry entries(desk);
  desk.TheProgram.Ports.DefaultEntries = &entries;
  desk.World.Files.MakeFolders("C:\\Corvelle\\Menus\\old.mnu");
  desk.World.Files.MakeFolders("C:\\Corvelle\\Menus\\old.btn");
  desk.World.Desktop.Answer(kDefaultsQuestion, AnswerYes);
  desk.Start();
  EXPECT_EQ(entries.Times, 1);
}

TEST(ToolbarStart, TheFirstUseBringsTheDefaultEntriesWithoutAQuestion) {
  StripDesk desk;
  OneDefaultEntry entries(desk);
  desk.TheProgram.Ports.DefaultEntries = &entries;
  desk.SetOption(Option::DefaultEntriesOffered, false);
  desk.Start();
  EXPECT_EQ(entries.Times, 1);
  EXPECT_TRUE(desk.TheProgram.OptionFlags.Is(Option::DefaultEntriesOffered));
  EXPECT_EQ(desk.World.Files.Get("C:\\Corvelle\\tmenu425.dat"), desk.TheProgram.OptionFlags.Text());
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 2);
}

TEST(ToolbarStart, AProgramWithoutDefaultEntriesLeavesTheFirstUseToComeLater) {
  StripDesk desk;
  desk.SetOption(Option::DefaultEntriesOffered, false);
  desk.Start();
  EXPECT_FALSE(desk.TheProgram.OptionFlags.Is(Option::DefaultEntriesOffered));
  EXPECT_TRUE(desk.World.Desktop.Boxes().empty());
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 1);
}

TEST(ToolbarStart, SmallIconsMakeButtonsOf22Pixels) {
  StripDesk desk;
  desk.PutButtons(1);
  desk.Start();
  EXPECT_EQ(desk.Strip.Buttons.ToolbarButtons[0].Width, 22 * 15);
  EXPECT_EQ(desk.Strip.Buttons.ToolbarButtons[0].Height, 22 * 15);
  EXPECT_EQ(desk.TheProgram.Icons.IconSize, 16);
}

TEST(ToolbarStart, TheHeightOfACaptionDecidesHowFarTheStripIsPulledUp) {
  struct Row {
    const char* name;
    int caption;
    int topCut;
  };
  const Row rows[] = {{"a low caption", 19, 7},
                      {"one pixel too low", 23, 7},
                      {"as high as the strip", 24, 4},
                      {"unknown", 0, 7}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    StripDesk desk({.CaptionHeight = row.caption});
    desk.PutButtons(1);
    desk.Start();
    EXPECT_EQ(desk.Strip.Buttons.TopCut, row.topCut);
    EXPECT_EQ(desk.Strip.Top(), static_cast<float>(-row.topCut * 15));
    EXPECT_EQ(desk.Strip.SavedTop, desk.Strip.Top());
  }
}

TEST(ToolbarStart, LargeIconsMakeButtonsOf38PixelsWhateverTheCaption) {
  StripDesk desk({.CaptionHeight = 60});
  desk.SetOption(Option::LargeIcons, true);
  desk.PutButtons(1);
  desk.Start();
  EXPECT_EQ(desk.TheProgram.Icons.IconSize, 32);
  EXPECT_EQ(desk.Strip.Buttons.ToolbarButtons[0].Width, 38 * 15);
  EXPECT_EQ(desk.Strip.Buttons.ToolbarButtons[0].Height, 38 * 15);
  EXPECT_EQ(desk.Strip.Buttons.TopCut, 7);
}

TEST(ToolbarStart, TheLargeSizeIsTheShells) {
  struct Row {
    const char* name;
    int shell;
    int expected;
  };
  for (const Row& row : {Row{"48 pixels", 48, 48}, Row{"the shell does not tell", 0, 32}}) {
    SCOPED_TRACE(row.name);
    StripDesk desk;
    desk.World.Icons.SetLargeSize(row.shell);
    desk.SetOption(Option::LargeIcons, true);
    desk.PutButtons(1);
    desk.Start();
    EXPECT_EQ(desk.TheProgram.Icons.IconSize, row.expected);
  }
}

TEST(ToolbarPosition, AFirstStartStandsAtTheRightWithRoomForCaptionButtons) {
  StripDesk desk;
  desk.PutButtons(2);
  desk.Start();
  // 900 twips: three buttons of 18 pixels and 6 pixels more.
  EXPECT_EQ(desk.Strip.Width(), 90 * 15);
  EXPECT_EQ(desk.Strip.Left(), 15360 - 1350 - 900);
  EXPECT_EQ(desk.Strip.SavedLeft, 15360 - 1350 - 900);
  EXPECT_EQ(desk.Strip.FreeWidth(), 900);
}

TEST(ToolbarPosition, ASavedPlaceThatFitsIsTaken) {
  StripDesk desk;
  desk.PutButtons(2);
  desk.World.Files.Put(kPositionFile, PositionBytes(3000));
  desk.Start();
  EXPECT_EQ(desk.Strip.Left(), 3000);
  EXPECT_EQ(desk.World.Desktop.BoundsOf(desk.Strip.hWnd()), (PixelRect{200, -7, 290, 18}));
}

TEST(ToolbarPosition, ASavedPlacePastTheLimitIsMovedSoThatRoomStaysFree) {
  StripDesk desk;
  desk.PutButtons(2);
  desk.World.Files.Put(kPositionFile, PositionBytes(15360 - 1350 - 100));
  desk.Start();
  EXPECT_EQ(desk.Strip.FreeWidth(), 900);
  EXPECT_EQ(desk.Strip.SavedLeft, desk.Strip.Left());
}

TEST(ToolbarPosition, AMissingOrDamagedFileCountsAsNoPlaceYet) {
  struct Row {
    const char* name;
    std::string bytes;
  };
  const Row rows[] = {{"empty", ""},
                      {"too short", "abc"},
                      {"no number", PositionBytes(std::numeric_limits<float>::quiet_NaN())},
                      {"no end", PositionBytes(std::numeric_limits<float>::infinity())},
                      {"zero", PositionBytes(0)}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    StripDesk desk;
    desk.PutButtons(2);
    desk.World.Files.Put(kPositionFile, row.bytes);
    desk.Start();
    EXPECT_EQ(desk.Strip.FreeWidth(), 900);
  }
}

TEST(ToolbarPosition, ANegativePlaceStartsAtTheLeft) {
  StripDesk desk;
  desk.PutButtons(2);
  desk.World.Files.Put(kPositionFile, PositionBytes(-4000));
  desk.Start();
  EXPECT_EQ(desk.Strip.Left(), 0);
}

TEST(ToolbarPosition, AnExitSavesThePlaceAndTheFlags) {
  StripDesk desk;
  desk.PutButtons(2);
  desk.World.Files.Put(kPositionFile, PositionBytes(3000));
  desk.Start();
  desk.SetOption(Option::NoHints, true);
  desk.Exit();
  EXPECT_EQ(desk.World.Files.Get(kPositionFile), PositionBytes(3000));
  const auto flags = desk.World.Files.Get("C:\\Corvelle\\tmenu425.dat");
  ASSERT_TRUE(flags);
  EXPECT_EQ(flags->size(), 32U);
  EXPECT_EQ((*flags)[21], '1');
}

TEST(ToolbarPosition, AnEndBeforeTheStripWasPlacedLeavesTheSavedPlace) {
  StripDesk desk;
  desk.World.Files.Put(kPositionFile, PositionBytes(3000));
  desk.World.Desktop.Answer(kDefaultsQuestion, AnswerNo);
  desk.World.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) { desk.Strip.Unload(); });
  desk.Start();
  EXPECT_FALSE(desk.Strip.IsLoaded());
  EXPECT_EQ(desk.World.Files.Get(kPositionFile), PositionBytes(3000));
}

TEST(ToolbarPosition, AProgramWithoutDockingHugsTheTopWhateverEdgeIsAskedFor) {
  StripDesk desk;
  desk.SetOption(Option::AtEdge, true);
  desk.SetOption(Option::EdgeCodeFirst, true);
  desk.PutButtons(1);
  desk.Start();
  EXPECT_FALSE(desk.TheProgram.Strip.AppBarRequested);
  EXPECT_FALSE(desk.TheProgram.Strip.ToolbarVertical);
  EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, Edge::Top);
  EXPECT_EQ(desk.Strip.Top(), -7 * 15);
  EXPECT_TRUE(desk.Strip.Visible());
}

TEST(ToolbarBadInput, AMenuFileHeldByAnotherProgramIsLeftOutAndTheRestStands) {
  StripDesk desk;
  desk.PutButtons(3);
  desk.World.Files.HoldOpen("C:\\Corvelle\\Menus\\BMENU002.MNU");
  desk.Start();
  const std::vector<std::string> expected = {"QMenu", "C:\\Corvelle\\Menus\\BMENU001.MNU",
                                             "C:\\Corvelle\\Menus\\BMENU003.MNU"};
  EXPECT_EQ(desk.ButtonFiles(), expected);
}

TEST(ToolbarBadInput, AFileThatVanishesWhileTheListIsReadIsLeftOutAndNotMadeAnew) {
  StripDesk desk;
  BusyStartup startup;
  desk.TheProgram.Ports.Startup = &startup;
  startup.Action = [&] {
    if (startup.Dots == 1) desk.World.Files.Vanish("C:\\Corvelle\\Menus\\BMENU002.MNU");
  };
  desk.PutButtons(3);
  desk.Start();
  EXPECT_EQ(startup.Dots, 3);
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 3);
  EXPECT_FALSE(desk.HasMenuFile("BMENU002.MNU"));
}

TEST(ToolbarBadInput, FilesOfOddLengthsAndContentsGiveButtons) {
  std::string everyByte;
  for (int i = 0; i < 570; ++i) everyByte += static_cast<char>(i);
  const std::string contents[] = {
      "", "x", std::string(569, 'a'), std::string(571, 'b'), everyByte, std::string(570, '\0')};
  StripDesk desk;
  int number = 0;
  for (const std::string& bytes : contents) {
    desk.World.Files.Put("C:\\Corvelle\\Menus\\" + MenuFileName(++number), bytes);
  }
  desk.Start();
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 1 + number);
  for (int i = 1; i <= number; ++i) {
    EXPECT_EQ(desk.World.Files.Get("C:\\Corvelle\\Menus\\" + MenuFileName(i)),
              contents[static_cast<std::size_t>(i - 1)]);
  }
}

TEST(ToolbarBadInput, ThreeHundredMenuFilesAllStand) {
  StripDesk desk;
  desk.PutButtons(300);
  desk.Start();
  ASSERT_EQ(desk.Strip.Buttons.ButtonCount, 301);
  EXPECT_EQ(desk.Strip.Buttons.ToolbarButtons[301].Left, 300 * 24 * 15);
  EXPECT_EQ(desk.Strip.picToolbar.Width(), 301 * 24 * 15);
  EXPECT_EQ(desk.Strip.Left(), 0);
}

TEST(ToolbarBadInput, AMenusFolderThatCannotBeMadeLeavesTheMainButton) {
  StripDesk desk;
  desk.World.Files.Vanish("C:\\Corvelle\\Menus");
  // A file stands where the folder should be.
  desk.World.Files.Put("C:\\Corvelle\\Menus", "in the way");
  desk.World.Desktop.Answer(kDefaultsQuestion, AnswerNo);
  desk.Start();
  EXPECT_EQ(desk.ButtonFiles(), std::vector<std::string>{"QMenu"});
  EXPECT_TRUE(desk.Strip.Visible());
  EXPECT_EQ(desk.World.Files.Get("C:\\Corvelle\\Menus"), "in the way");
}

TEST(ToolbarBadInput, AReadOnlyStrayFileStaysAndHarmsNothing) {
  StripDesk desk;
  desk.PutButtons(1);
  desk.World.Files.Put("C:\\Corvelle\\Menus\\notes.txt", "text");
  desk.World.Files.SetReadOnly("C:\\Corvelle\\Menus\\notes.txt", true);
  desk.World.Files.SetReadOnly("C:\\Corvelle\\Menus\\BMENU001.MNU", true);
  desk.Start();
  EXPECT_TRUE(desk.HasMenuFile("notes.txt"));
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 2);
}

TEST(ToolbarBadInput, AFullDiskLeavesTheOldPositionAndFlags) {
  StripDesk desk;
  desk.PutButtons(2);
  desk.World.Files.Put(kPositionFile, PositionBytes(3000));
  desk.World.Files.Put("C:\\Corvelle\\tmenu425.dat", std::string(32, '0'));
  desk.World.Files.FillDisk(0);
  desk.Start();
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 3);
  desk.Strip.SavedLeft = 4500;
  desk.Exit();
  EXPECT_EQ(desk.World.Files.Get(kPositionFile), PositionBytes(3000));
  EXPECT_EQ(desk.World.Files.Get("C:\\Corvelle\\tmenu425.dat"), std::string(32, '0'));
}

TEST(ToolbarBadInput, AnyOneFailureAtTheStartLeavesAStripAndEveryMenuFile) {
  for (int n = 1;; ++n) {
    SCOPED_TRACE("failing call " + std::to_string(n));
    StripDesk desk;
    desk.PutButtons(2);
    desk.World.Files.FailCall(n, FileError::AccessDenied);
    desk.Start();
    const bool hit = desk.World.Files.Hit();
    desk.World.Files.StopFailing();
    EXPECT_GE(desk.Strip.Buttons.ButtonCount, 1);
    EXPECT_TRUE(desk.Strip.Visible());
    EXPECT_TRUE(desk.HasMenuFile("BMENU001.MNU"));
    EXPECT_TRUE(desk.HasMenuFile("BMENU002.MNU"));
    if (!hit) break;
    ASSERT_LT(n, 200);
  }
}

TEST(ToolbarRebuild, ReadsTheFilesAnewAndKeepsThePlace) {
  StripDesk desk;
  desk.PutButtons(1);
  desk.World.Files.Put(kPositionFile, PositionBytes(3000));
  desk.Start();
  desk.PutButton(2, "New");
  desk.Strip.InitNewButtons();
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 3);
  EXPECT_EQ(desk.Strip.Left(), 3000);
  EXPECT_TRUE(desk.Strip.Visible());
  EXPECT_TRUE(desk.TheProgram.Guards.ToolbarReady);
  EXPECT_FALSE(desk.TheProgram.Guards.AppBarBusy);
}

TEST(ToolbarRebuild, LooksLikeAStripThatNeverHadOtherButtons) {
  const auto pixels = [](const StripDesk& desk) {
    const sim::SimCanvas screen = desk.World.Desktop.Picture();
    const PixelRect box = desk.World.Desktop.BoundsOf(desk.Strip.picToolbar.hWnd());
    std::vector<Rgb> all;
    for (int y = box.top; y < box.bottom; ++y) {
      for (int x = box.left; x < box.right; ++x) all.push_back(screen.PixelAt({x, y}));
    }
    return all;
  };
  const auto put = [](StripDesk& desk, bool separator) {
    int number = 0;
    desk.PutButton(++number, "First");
    if (separator) desk.PutButton(++number, "Separator", "MenuLineSeparator");
    desk.PutButton(++number, "Last");
    if (!separator) desk.World.Files.Vanish("C:\\Corvelle\\Menus\\" + MenuFileName(3));
  };
  for (const bool separator : {false, true}) {
    SCOPED_TRACE(separator ? "a separator has come" : "a separator has gone");
    StripDesk fresh;
    put(fresh, separator);
    fresh.Start();
    StripDesk rebuilt;
    put(rebuilt, !separator);
    rebuilt.Start();
    EXPECT_NE(pixels(rebuilt), pixels(fresh));
    put(rebuilt, separator);
    rebuilt.Strip.InitNewButtons();
    rebuilt.World.Desktop.Pump();
    EXPECT_EQ(pixels(rebuilt), pixels(fresh));
  }
}

TEST(ToolbarRebuild, WhereASeparatorWasAButtonTakesThePress) {
  StripDesk desk;
  desk.PutButton(1, "First");
  desk.PutButton(2, "Separator", "MenuLineSeparator");
  desk.PutButton(3, "Last");
  desk.Start();
  const forms::Label& separator = desk.Strip.lblSep[1];
  const PixelRect box = desk.World.Desktop.BoundsOf(desk.Strip.picToolbar.hWnd());
  const float middle = separator.Left() + separator.Width() / 2;
  const PixelPoint at{box.left + static_cast<int>(middle / desk.Strip.TwipsX), box.top + 10};
  desk.PutButton(2, "Last");
  desk.World.Files.Vanish("C:\\Corvelle\\Menus\\" + MenuFileName(3));
  desk.World.Desktop.MovePointer(20, 700);
  desk.Strip.InitNewButtons();
  desk.PointAt(at);
  desk.World.Desktop.Click();
  EXPECT_EQ(desk.MenuUp(), 3);
}

TEST(ToolbarRebuild, ForgetsTheMenusThatWereBuilt) {
  StripDesk desk;
  desk.PutButtons(2);
  desk.Start();
  desk.Click(2);
  ASSERT_TRUE(desk.Menu.HasBuiltMenu("F2"));
  desk.Strip.InitNewButtons();
  EXPECT_FALSE(desk.Menu.HasBuiltMenu("F2"));
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(ToolbarRebuild, AnotherOneWithinARebuildWaitsForNothing) {
  StripDesk desk;
  desk.PutButtons(1);
  desk.Start();
  desk.World.Files.Vanish("C:\\Corvelle\\Menus\\BMENU001.MNU");
  desk.World.Desktop.Answer(kDefaultsQuestion, AnswerNo);
  // The question lets events through: a rebuild that arrives there must not start a second one.
  desk.World.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) { desk.Strip.InitNewButtons(); });
  desk.Strip.InitNewButtons();
  EXPECT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 1);
}

TEST(ToolbarRebuild, TheProgramMayEndWhileTheQuestionIsUp) {
  StripDesk desk;
  desk.PutButtons(1);
  desk.Start();
  desk.World.Files.Vanish("C:\\Corvelle\\Menus\\BMENU001.MNU");
  desk.World.Desktop.Answer(kDefaultsQuestion, AnswerYes);
  desk.World.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) { desk.Exit(); });
  desk.Strip.InitNewButtons();
  EXPECT_FALSE(desk.Strip.IsLoaded());
  EXPECT_TRUE(desk.World.Desktop.QuitCalled());
  EXPECT_EQ(desk.World.Desktop.CurrentMousePointer(), forms::MousePointer::Default);
}

TEST(ToolbarRebuild, AStripThatEndedInsideItIsNotBroughtOutOfHiding) {
  SinglesDesk desk;
  desk.Start();
  for (const char* number : {"1", "2"})
    desk.World.Files.Vanish("C:\\Corvelle\\Menus\\BMENU00" + std::string(number) + ".MNU");
  desk.TheProgram.Ports.Docking = &desk.Edge;
  desk.TheProgram.Strip.AutoHide = true;
  desk.World.Desktop.Answer(kDefaultsQuestion, AnswerYes);
  desk.World.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) { desk.Exit(); });
  desk.Strip.InitNewButtons();
  ASSERT_FALSE(desk.Strip.IsLoaded());
  EXPECT_EQ(desk.Edge.Revealed, 0);
}

TEST(ToolbarRebuild, RestoreLeavesAnEdgeForTheTop) {
  StripDesk desk;
  desk.PutButtons(1);
  desk.Start();
  desk.TheProgram.Strip.ToolbarEdge = Edge::Bottom;
  desk.Strip.RestoreToolbar();
  EXPECT_EQ(desk.TheProgram.Strip.ToolbarEdge, Edge::Top);
  EXPECT_FALSE(desk.TheProgram.Guards.RestoreBusy);
  EXPECT_TRUE(desk.Strip.Visible());
}

TEST(ToolbarRebuild, AfterAnEditTheStripKeepsItsRightEnd) {
  StripDesk desk;
  desk.PutButtons(3);
  desk.World.Files.Put(kPositionFile, PositionBytes(3000));
  desk.Start();
  const float right = desk.Strip.Right();
  const float free = desk.Strip.FreeWidth();
  desk.World.Files.Vanish("C:\\Corvelle\\Menus\\BMENU002.MNU");
  desk.Strip.DoToolbarButtons();
  desk.Strip.ResizeAfterEdit(free);
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 3);
  EXPECT_EQ(desk.Strip.Right(), right);
  EXPECT_EQ(desk.World.Files.Get(kPositionFile), PositionBytes(3000 + 24 * 15));
}

}  // namespace
}  // namespace corvelle
