#include <gtest/gtest.h>

#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

constexpr char kStartupQuestion[] =
    "Would you like to set Corvelle as a startup program?\r\n"
    "If you choose No, you can set it later from the Customize window under the Options menu.";

/// Starts a program that was never started, whose question after the strip is answered so.
bool StartAnew(Desk& desk, int button) {
  desk.AnswerNext(button);
  return StartAndWait(desk) && desk.Wait([&desk] { return !desk.Messages().empty(); });
}

TEST(Start, AFirstStartMakesTheFoldersShowsTheStripAndAsksOnce) {
  const auto desk = MakeDesk();
  ASSERT_TRUE(StartAnew(*desk, kButtonNo));
  EXPECT_TRUE(desk->FolderExists("Menus"));
  EXPECT_TRUE(desk->FolderExists("Icons"));
  EXPECT_TRUE(desk->FolderExists("ShellLink"));
  EXPECT_EQ(ButtonCount(*desk), 1);
  ASSERT_EQ(desk->Messages().size(), 1U);
  EXPECT_EQ(desk->Messages()[0].Title, "Corvelle");
  EXPECT_EQ(desk->Messages()[0].Text, kStartupQuestion);
  EXPECT_EQ(desk->StartupLinkTarget(), std::nullopt);
  // A first start stands at the right edge, upright and as high as the screen.
  const PixelRect strip = desk->BoundsOf("frmToolbar");
  EXPECT_EQ(strip.right, desk->ScreenSize().width);
  EXPECT_EQ(strip.top, 0);
  EXPECT_EQ(strip.bottom, desk->ScreenSize().height);
  EXPECT_LT(strip.Width(), 60);
  desk->Picture("first-start");

  ASSERT_TRUE(CloseAndWait(*desk));
  // 1, 14 to 16 (the right edge), 19, 24, 26 and 32. Position 2 waits for the default entries.
  EXPECT_EQ(desk->ReadFile(kFlagsFile), "10000000000001110010000101000001");
  ASSERT_TRUE(StartAndWait(*desk));
  EXPECT_EQ(desk->Messages().size(), 1U);
}

TEST(Start, YesMakesTheProgramAStartupProgramAndAFirstStartRenewsItsLink) {
  const auto desk = MakeDesk();
  ASSERT_TRUE(StartAnew(*desk, kButtonYes));
  ASSERT_TRUE(desk->Wait([&] { return desk->StartupLinkTarget().has_value(); }));
  EXPECT_EQ(desk->StartupLinkTarget(), "C:\\Corvelle\\corvelle.exe");
  ASSERT_TRUE(CloseAndWait(*desk));

  desk->WriteFile(kFlagsFile, InstalledFlags({1}));
  WriteMenu(*desk, 1, "One", {Witness(*desk, "one")});
  ASSERT_TRUE(StartAndWait(*desk));
  EXPECT_TRUE(desk->Wait([&] { return desk->ReadFile(kFlagsFile) == InstalledFlags(); }));
  EXPECT_EQ(desk->Messages().size(), 1U) << "no second question";
  EXPECT_EQ(desk->StartupLinkTarget(), "C:\\Corvelle\\corvelle.exe");
}

TEST(Start, FilesNumbered002And005Become001And002AndAStrayFileGoes) {
  const auto desk = MakeDesk();
  const std::string second = MenuBytes("Second", {Witness(*desk, "two")});
  const std::string fifth = MenuBytes("Fifth", {Witness(*desk, "five")});
  desk->WriteFile("Menus\\BMENU002.MNU", second);
  desk->WriteFile("Menus\\bmenu005.mnu", fifth);
  desk->WriteFile("Menus\\notes.txt", "not a menu");
  ASSERT_TRUE(StartAnew(*desk, kButtonNo));
  EXPECT_EQ(desk->Files("Menus"), (std::vector<std::string>{"BMENU001.MNU", "BMENU002.MNU"}));
  EXPECT_EQ(desk->ReadFile("Menus\\BMENU001.MNU"), second);
  EXPECT_EQ(desk->ReadFile("Menus\\BMENU002.MNU"), fifth);
  EXPECT_EQ(ButtonCount(*desk), 3);
  desk->Picture("two-menus");
}

TEST(Start, FilesOfAnyLengthAndContentDoNotStopIt) {
  const auto desk = MakeDesk();
  desk->WriteFile(kFlagsFile, InstalledFlags());
  std::string allBytes;
  for (int i = 0; i < 5 * 570; ++i) allBytes += static_cast<char>((i * 7) & 0xFF);
  const std::vector<std::string> contents = {
      "", "x", std::string(569, 'a'), std::string(571, 'b'), allBytes, std::string(1140, '\0')};
  for (std::size_t i = 0; i < contents.size(); ++i) {
    desk->WriteFile("Menus\\" + MenuFileName(static_cast<int>(i) + 1), contents[i]);
  }
  WriteMenu(*desk, 7, "Whole", {Witness(*desk, "whole")});
  ASSERT_TRUE(StartAndWait(*desk));
  EXPECT_EQ(desk->Files("Menus").size(), contents.size() + 1);
  EXPECT_EQ(desk->ReadFile("Menus\\BMENU007.MNU"), MenuBytes("Whole", {Witness(*desk, "whole")}));
  for (int button = 2; button <= ButtonCount(*desk); ++button) {
    EXPECT_TRUE(OpenMenu(*desk, button)) << button;
    desk->Key(kKeyEscape);
    EXPECT_TRUE(WaitForNoMenu(*desk)) << button;
    desk->MovePointer(FarAway(*desk));
  }
  desk->Picture("strange-files");
  EXPECT_EQ(desk->RunningCopies(), 1);
}

TEST(Start, AnEmptyFolderAfterTheFirstUseAsksAndNoLeavesTheMainButton) {
  const auto desk = MakeDesk();
  desk->WriteFile(kFlagsFile, InstalledFlags());
  desk->AnswerNext(kButtonNo);
  ASSERT_TRUE(StartAndWait(*desk));
  ASSERT_EQ(desk->Messages().size(), 1U);
  EXPECT_EQ(desk->Messages()[0].Title, "Corvelle");
  EXPECT_EQ(desk->Messages()[0].Text,
            "Corvelle doesn't contain any entries. Would you like to add the default entries to "
            "Corvelle?");
  EXPECT_EQ(ButtonCount(*desk), 1);
}

TEST(Start, TheStripComesToTheFrontAndTakesKeysAtOnce) {
  const auto desk = MakeDesk();
  desk->WriteFile(kFlagsFile, InstalledFlags());
  WriteMenu(*desk, 1, "One", {Witness(*desk, "one")});
  desk->MovePointer(FarAway(*desk));
  ASSERT_TRUE(StartAndWait(*desk));
  EXPECT_EQ(desk->ForegroundClass(), "frmToolbar");
  desk->Key(kKeyF10);
  EXPECT_TRUE(desk->Wait([&] { return desk->BoundsOf("picToolbar").Contains(desk->Pointer()); }));
}

TEST(Start, ASecondStartWakesTheFirstAndEnds) {
  const auto desk = MakeDesk();
  desk->WriteFile(kFlagsFile, InstalledFlags());
  WriteMenu(*desk, 1, "One", {Witness(*desk, "one")});
  ASSERT_TRUE(StartAndWait(*desk));
  desk->StartCorvelle();
  EXPECT_TRUE(desk->Wait([&] { return desk->RunningCopies() == 1; }));
  desk->Pause(500);
  EXPECT_EQ(desk->RunningCopies(), 1);
  EXPECT_TRUE(desk->IsVisible("frmToolbar"));
  EXPECT_TRUE(desk->Messages().empty());
}

TEST(Start, TheStartupWindowShowsUnlessTheOptionSaysOtherwiseAndIsGoneAfterwards) {
  const auto desk = MakeDesk();
  desk->WriteFile(kFlagsFile, InstalledFlags({9}));
  WriteMenu(*desk, 1, "One", {Witness(*desk, "one")});
  ASSERT_TRUE(StartAndWait(*desk));
  EXPECT_TRUE(desk->Wait([&] { return !desk->IsVisible("frmStartup"); }));
}

TEST(End, ExitAndRestartKeepFlagsAndPosition) {
  const auto desk = MakeDesk();
  const int twips = desk->TwipsPerPixel();
  // Option 10 is turned on as something that nothing but a file can remember.
  desk->WriteFile(kFlagsFile, InstalledFlags({10}));
  desk->WriteFile(kPositionFile, PositionBytes(static_cast<float>(200 * twips)));
  WriteMenu(*desk, 1, "One", {Witness(*desk, "one")});
  ASSERT_TRUE(StartAndWait(*desk));
  const PixelRect before = desk->BoundsOf("frmToolbar");
  EXPECT_EQ(before.left, 200);
  ASSERT_TRUE(CloseAndWait(*desk));
  EXPECT_EQ(desk->ReadFile(kFlagsFile), InstalledFlags({10}));
  EXPECT_EQ(PositionTwips(desk->ReadFile(kPositionFile)), static_cast<float>(200 * twips));

  ASSERT_TRUE(StartAndWait(*desk));
  EXPECT_EQ(desk->BoundsOf("frmToolbar"), before);
}

TEST(End, TheEndOfTheSessionSavesFlagsAndPosition) {
  const auto desk = MakeDesk();
  const int twips = desk->TwipsPerPixel();
  desk->WriteFile(kFlagsFile, InstalledFlags({10}));
  desk->WriteFile(kPositionFile, PositionBytes(static_cast<float>(150 * twips)));
  WriteMenu(*desk, 1, "One", {Witness(*desk, "one")});
  ASSERT_TRUE(StartAndWait(*desk));
  desk->WriteFile(kFlagsFile, "");
  EXPECT_TRUE(desk->EndSession());
  EXPECT_TRUE(desk->Wait([&] { return desk->ReadFile(kFlagsFile) == InstalledFlags({10}); }));
  EXPECT_EQ(PositionTwips(desk->ReadFile(kPositionFile)), static_cast<float>(150 * twips));
}

/// A program that another one has pushed into the background.
class Messages : public ::testing::Test {
 protected:
  void SetUp() override {
    desk_ = MakeDesk();
    desk_->WriteFile(kFlagsFile, InstalledFlags());
    WriteMenu(*desk_, 1, "One", {Witness(*desk_, "one")});
    ASSERT_TRUE(StartAndWait(*desk_));
    desk_->OpenOtherWindow({100, 300, 500, 600});
    ASSERT_TRUE(desk_->Wait([this] { return desk_->ForegroundClass() != "frmToolbar"; }));
  }

  bool WaitForTheStripInFront() {
    return desk_->Wait([this] { return desk_->ForegroundClass() == "frmToolbar"; });
  }

  std::unique_ptr<Desk> desk_;
};

TEST_F(Messages, AClickOnTheTrayIconBringsTheStripToTheFront) {
  desk_->Send("frmMinimize", kMessageTray, 1, 514);
  EXPECT_TRUE(WaitForTheStripInFront());
}

TEST_F(Messages, ADoubleClickOnTheTrayIconBringsTheStripToTheFront) {
  desk_->Send("frmMinimize", kMessageTray, 1, 515);
  EXPECT_TRUE(WaitForTheStripInFront());
}

TEST_F(Messages, AMoveOverTheTrayIconDoesNot) {
  desk_->Send("frmMinimize", kMessageTray, 1, 512);
  desk_->Pause(500);
  EXPECT_NE(desk_->ForegroundClass(), "frmToolbar");
}

TEST_F(Messages, ASizeMessageWithoutASizeWakesTheStrip) {
  desk_->Send("frmMinimize", kMessageSize, 0, 0);
  EXPECT_TRUE(WaitForTheStripInFront());
}

TEST_F(Messages, TheNewsOfAFullScreenProgramIsTaken) {
  desk_->Send("frmToolbar", kMessageAppBar, 2, 1);
  desk_->Pause(200);
  desk_->Send("frmToolbar", kMessageAppBar, 2, 0);
  desk_->Pause(200);
  EXPECT_TRUE(desk_->IsVisible("frmToolbar"));
  EXPECT_EQ(desk_->RunningCopies(), 1);
}

TEST_F(Messages, UnknownNewsOfTheShellAreLeftAlone) {
  for (const std::uintptr_t what :
       {std::uintptr_t{0}, std::uintptr_t{1}, std::uintptr_t{3}, std::uintptr_t{77}}) {
    desk_->Send("frmToolbar", kMessageAppBar, what, -1);
  }
  desk_->Pause(200);
  EXPECT_TRUE(desk_->IsVisible("frmToolbar"));
  EXPECT_EQ(desk_->RunningCopies(), 1);
}

}  // namespace
}  // namespace corvelle::scenario
