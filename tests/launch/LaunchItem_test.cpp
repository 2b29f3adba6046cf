#include "launch/LaunchItem.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/Program.h"
#include "launch/CommandDoubles.h"
#include "sim/World.h"

namespace corvelle {

namespace {

using sim::Launch;

constexpr char kUnavailable[] = "File/Device unavailable.";
constexpr char kNoAccess[] = "Error: 70 - Permission denied";
constexpr char kEmpty[] =
    "Empty string in the File Field. Check your entries in the Customize window.";

Launch Opened(std::string file, std::optional<std::string> folder = {}) {
  return {.How = Launch::Kind::Open,
          .File = std::move(file),
          .Folder = std::move(folder),
          .Started = true};
}

Launch NotOpened(std::string file, std::optional<std::string> folder = {}) {
  Launch launch = Opened(std::move(file), std::move(folder));
  launch.Started = false;
  return launch;
}

Launch Ran(std::string line) {
  return {.How = Launch::Kind::Run, .File = std::move(line), .Started = true};
}

Launch NotRun(std::string line) {
  Launch launch = Ran(std::move(line));
  launch.Started = false;
  return launch;
}

/// A machine with a few files, and a program that has none of the later services.
class LaunchDesk : public ::testing::Test {
 protected:
  LaunchDesk() {
    world.Files.Put("C:\\Tools\\tool.exe", "x");
    world.Files.Put("C:\\root.exe", "x");
    world.Files.Put("C:\\Docs\\plan.txt", "x");
    world.Files.Put("C:\\Docs\\odd.xyz", "x");
    world.Links.Put("C:\\Links\\tool.lnk", {.Path = "C:\\Tools\\tool.exe"});
    world.Shell.Associate(".txt", "notepad.exe");
    world.Shell.AddToPath("explorer.exe");
    world.Shell.AddToPath("rundll32.exe");
  }

  /// Gives the program all services.
  void AddServices() {
    program.Ports.BuiltInCommands = &builtIns;
    program.Ports.Browser = &browser;
    program.Ports.ShellLinks = &links;
    program.Ports.SpecialFolders = &folders;
  }

  [[nodiscard]] const std::vector<Launch>& Launches() const { return world.Shell.Log(); }
  [[nodiscard]] std::size_t Boxes() const { return world.Desktop.Boxes().size(); }
  void ExpectUnavailable() { world.Desktop.Answer(kUnavailable, forms::msgbox::AnswerOk); }

  sim::World world;
  Program program{world.Services(), world.Windows()};
  CallLog log;
  LoggingBuiltIns builtIns{log};
  LoggingBrowser browser{log};
  KnownLinks links;
  LoggingFolders folders{log};
};

using LaunchItemTest = LaunchDesk;
using OpenWithItemTest = LaunchDesk;

}  // namespace

TEST_F(LaunchItemTest, AProgramStartsInItsOwnFolder) {
  LaunchItem(program.Launch, "C:\\Tools\\tool.exe");
  EXPECT_EQ(Launches(), std::vector{Opened("C:\\Tools\\tool.exe", "C:\\Tools\\")});
}

TEST_F(LaunchItemTest, AFileInTheDrivesRootRunsThere) {
  LaunchItem(program.Launch, "C:\\root.exe");
  EXPECT_EQ(Launches(), std::vector{Opened("C:\\root.exe", "C:\\")});
}

TEST_F(LaunchItemTest, ARelativeNameRunsWithoutAFolder) {
  LaunchItem(program.Launch, "explorer.exe");
  EXPECT_EQ(Launches(), std::vector{Opened("explorer.exe")});
}

TEST_F(LaunchItemTest, ANetworkPathRunsWithoutAFolder) {
  ExpectUnavailable();
  LaunchItem(program.Launch, "\\\\server\\share\\tool.exe");
  ASSERT_FALSE(Launches().empty());
  EXPECT_EQ(Launches().front(), NotOpened("\\\\server\\share\\tool.exe"));
}

TEST_F(LaunchItemTest, BlanksAtTheEndsAreNoPartOfTheCommand) {
  EXPECT_EQ(LaunchItem(program.Launch, "   C:\\Tools\\tool.exe  "), "C:\\Tools\\tool.exe");
  EXPECT_EQ(Launches(), std::vector{Opened("C:\\Tools\\tool.exe", "C:\\Tools\\")});
}

TEST_F(LaunchItemTest, ADocumentOpensWithItsProgram) {
  LaunchItem(program.Launch, "C:\\Docs\\plan.txt");
  EXPECT_EQ(Launches(), std::vector{Opened("C:\\Docs\\plan.txt", "C:\\Docs\\")});
}

TEST_F(LaunchItemTest, ATextWithBlanksIsFirstTriedWholeAsAFile) {
  world.Files.Put("C:\\Tools\\tool.exe second.txt", "x");
  LaunchItem(program.Launch, "C:\\Tools\\tool.exe second.txt");
  EXPECT_EQ(Launches(), std::vector{Opened("C:\\Tools\\tool.exe second.txt", "C:\\Tools\\")});
}

TEST_F(LaunchItemTest, AProgramWithArgumentsRunsAsACommandLine) {
  const std::string line = "explorer.exe /e,/root,,::{20D04FE0-3AEA-1069-A2D8-08002B30309D}";
  LaunchItem(program.Launch, line);
  EXPECT_EQ(Launches(), (std::vector{NotOpened(line), Ran(line)}));
  EXPECT_EQ(Boxes(), 0U);
}

TEST_F(LaunchItemTest, TheRawMarkerIsTakenOff) {
  EXPECT_EQ(LaunchItem(program.Launch, "? C:\\Tools\\tool.exe /x"), "C:\\Tools\\tool.exe /x");
  ASSERT_EQ(Launches().size(), 2U);
  EXPECT_EQ(Launches().back(), Ran("C:\\Tools\\tool.exe /x"));
}

TEST_F(LaunchItemTest, AMissingFileIsUnavailable) {
  ExpectUnavailable();
  LaunchItem(program.Launch, "C:\\Tools\\gone.exe");
  EXPECT_EQ(Launches(), (std::vector{NotOpened("C:\\Tools\\gone.exe", "C:\\Tools\\"),
                                     NotRun("C:\\Tools\\gone.exe")}));
  ASSERT_EQ(Boxes(), 1U);
  EXPECT_EQ(world.Desktop.Boxes()[0].Flags, 262160U);
  EXPECT_EQ(world.Desktop.Boxes()[0].Title, "Corvelle");
}

TEST_F(LaunchItemTest, ABadFileNameIsUnavailable) {
  ExpectUnavailable();
  LaunchItem(program.Launch, "<not a name>");
  EXPECT_EQ(world.Shell.Started(), std::vector<std::string>());
  EXPECT_EQ(Boxes(), 1U);
}

TEST_F(LaunchItemTest, AWordThatNoTestKnowsIsUnavailable) {
  AddServices();
  ExpectUnavailable();
  LaunchItem(program.Launch, "RunDialog");
  EXPECT_EQ(log, CallLog());
  EXPECT_EQ(Boxes(), 1U);
}

TEST_F(LaunchItemTest, TheMarkerAloneIsUnavailableAndNotEmpty) {
  ExpectUnavailable();
  EXPECT_EQ(LaunchItem(program.Launch, "?"), "");
  EXPECT_EQ(Boxes(), 1U);
}

TEST_F(LaunchItemTest, TheUnavailableMessageBelongsToTheStrip) {
  LoggingToolbar toolbar(log);
  toolbar.LoadWindow();
  program.Ports.Toolbar = &toolbar;
  ExpectUnavailable();
  LaunchItem(program.Launch, "C:\\gone.exe");
  ASSERT_EQ(Boxes(), 1U);
  EXPECT_EQ(world.Desktop.Boxes()[0].Owner, toolbar.WindowHandle());
}

TEST_F(LaunchItemTest, ADocumentWithoutAProgramBringsTheOpenWithDialog) {
  LaunchItem(program.Launch, "C:\\Docs\\odd.xyz");
  EXPECT_EQ(Launches(),
            (std::vector{NotOpened("C:\\Docs\\odd.xyz", "C:\\Docs\\"), NotRun("C:\\Docs\\odd.xyz"),
                         Ran("rundll32.exe shell32.dll,OpenAs_RunDLL C:\\Docs\\odd.xyz")}));
  EXPECT_EQ(Boxes(), 0U);
}

TEST_F(LaunchItemTest, AnotherFailureWithoutAFileIsToldOf) {
  ExpectUnavailable();
  world.Shell.Fail("C:\\Tools\\tool.exe /x", RunError::Other);
  LaunchItem(program.Launch, "C:\\Tools\\tool.exe /x");
  EXPECT_EQ(Launches(), (std::vector{NotOpened("C:\\Tools\\tool.exe /x", "C:\\Tools\\"),
                                     NotRun("C:\\Tools\\tool.exe /x")}));
  EXPECT_EQ(Boxes(), 1U);
}

TEST_F(LaunchItemTest, AnotherFailureOfAFolderIsToldOf) {
  ExpectUnavailable();
  world.Shell.Fail("C:\\Docs", RunError::Other);
  LaunchItem(program.Launch, "C:\\Docs");
  EXPECT_EQ(Launches(), (std::vector{NotOpened("C:\\Docs", "C:\\"), NotRun("C:\\Docs")}));
  EXPECT_EQ(Boxes(), 1U);
}

TEST_F(LaunchItemTest, AMissingOpenWithDialogIsToldOf) {
  ExpectUnavailable();
  world.Shell.Fail("rundll32.exe shell32.dll,OpenAs_RunDLL C:\\Docs\\odd.xyz",
                   RunError::FileNotFound);
  LaunchItem(program.Launch, "C:\\Docs\\odd.xyz");
  EXPECT_EQ(Launches().size(), 3U);
  EXPECT_EQ(Boxes(), 1U);
}

TEST_F(LaunchItemTest, WhatTheUserRefusesEndsThere) {
  AddServices();
  links.Set("C:\\Links\\tool.lnk", "C:\\Tools\\tool.exe");
  for (const char* command : {"C:\\Tools\\tool.exe", "C:\\Docs\\odd.xyz", "C:\\Docs\\plan.txt",
                              "C:\\Links\\tool.lnk", "ftp://a.example"}) {
    world.Shell.ClearLog();
    world.Shell.FailToOpen(command, OpenError::Cancelled);
    LaunchItem(program.Launch, command);
    ASSERT_EQ(Launches().size(), 1U) << command;
    EXPECT_FALSE(Launches()[0].Started) << command;
  }
  EXPECT_EQ(Boxes(), 0U);
}

TEST_F(LaunchItemTest, WithoutAccessTheUserIsToldAndNothingElseIsTried) {
  AddServices();
  links.Set("C:\\Links\\tool.lnk", "C:\\Tools\\tool.exe");
  for (const char* command : {"C:\\Tools\\tool.exe", "C:\\Docs\\odd.xyz", "C:\\Links\\tool.lnk"}) {
    world.Shell.ClearLog();
    world.Shell.FailToOpen(command, OpenError::AccessDenied);
    world.Desktop.Answer(kNoAccess, forms::msgbox::AnswerOk);
    LaunchItem(program.Launch, command);
    ASSERT_EQ(Launches().size(), 1U) << command;
    EXPECT_EQ(world.Desktop.Boxes().back().Flags, 262160U) << command;
  }
  EXPECT_EQ(Boxes(), 3U);
}

TEST_F(LaunchItemTest, ACommandLineWithoutAccessSaysSoAndOffersNoOtherProgram) {
  world.Shell.FailToOpen("C:\\Docs\\odd.xyz", OpenError::Other);
  world.Shell.Fail("C:\\Docs\\odd.xyz", RunError::AccessDenied);
  world.Desktop.Answer(kNoAccess, forms::msgbox::AnswerOk);
  LaunchItem(program.Launch, "C:\\Docs\\odd.xyz");
  EXPECT_EQ(Launches().size(), 2U);
  EXPECT_EQ(Boxes(), 1U);
}

TEST_F(LaunchItemTest, ACommandLineThatNeedsElevationIsGivenToTheShellInItsParts) {
  const std::string line = "C:\\Tools\\tool.exe /all users";
  world.Shell.Fail(line, RunError::NeedsElevation);
  LaunchItem(program.Launch, "?" + line);
  Launch elevated = Opened("C:\\Tools\\tool.exe", "C:\\Tools\\");
  elevated.Parameters = "/all users";
  EXPECT_EQ(Launches(), (std::vector{NotOpened(line, "C:\\Tools\\"), NotRun(line), elevated}));

  // The user's "no" to it is the end.
  world.Shell.ClearLog();
  world.Shell.FailToOpen("C:\\Tools\\tool.exe", OpenError::Cancelled);
  LaunchItem(program.Launch, "?" + line);
  EXPECT_EQ(Launches().size(), 3U);
  EXPECT_EQ(world.Shell.Started(), std::vector<std::string>());
  EXPECT_EQ(Boxes(), 0U);
}

TEST_F(OpenWithItemTest, WhatTheUserRefusesOrMayNotOpenEndsThere) {
  world.Shell.FailToOpen("C:\\Tools\\tool.exe", OpenError::Cancelled);
  OpenWithItem(program.Launch, "C:\\Docs\\plan.txt", "C:\\Tools\\tool.exe");
  EXPECT_EQ(Launches().size(), 1U);
  EXPECT_EQ(Boxes(), 0U);

  world.Shell.FailToOpen("C:\\Tools\\tool.exe", OpenError::AccessDenied);
  world.Desktop.Answer(kNoAccess, forms::msgbox::AnswerOk);
  OpenWithItem(program.Launch, "C:\\Docs\\plan.txt", "C:\\Tools\\tool.exe");
  EXPECT_EQ(Launches().size(), 2U);
  EXPECT_EQ(Boxes(), 1U);
}

TEST_F(LaunchItemTest, NothingButBlanksGivesTheEmptyMessage) {
  for (const char* command : {"", "     "}) {
    world.Desktop.Answer(kEmpty, forms::msgbox::AnswerOk);
    EXPECT_EQ(LaunchItem(program.Launch, command), "");
    const sim::MessageBox& box = world.Desktop.Boxes().back();
    EXPECT_EQ(box.Flags, 262208U);
    EXPECT_EQ(box.Title, "Corvelle");
  }
  EXPECT_TRUE(Launches().empty());
  EXPECT_EQ(Boxes(), 2U);
}

TEST_F(LaunchItemTest, BuiltInWordsAreCarriedOut) {
  AddServices();
  for (const char* word :
       {"NETSEARCH", "NetSearch", "?netsearch", "FindComputer", "minimizeallwindows",
        "UndoMinimizeAll", "ClearRecentDocs", "ClearTempFolder", "FileFind"}) {
    LaunchItem(program.Launch, word);
  }
  EXPECT_EQ(log, (CallLog{"ShowNetSearch", "ShowNetSearch", "ShowNetSearch", "FindComputer",
                          "MinimizeAllWindows", "UndoMinimizeAll", "ClearRecentDocs",
                          "ClearTempFolder", "FileFind"}));
  EXPECT_TRUE(Launches().empty());
}

TEST_F(LaunchItemTest, AddressesGoToTheBrowserAndTheMailProgram) {
  AddServices();
  LaunchItem(program.Launch, "HTTP://A.EXAMPLE");
  LaunchItem(program.Launch, " mailto:a@b.example ");
  EXPECT_EQ(log, (CallLog{"OpenUrl HTTP://A.EXAMPLE", "OpenMail mailto:a@b.example"}));
  EXPECT_TRUE(Launches().empty());
}

TEST_F(LaunchItemTest, WithoutABrowserOfItsOwnTheSystemOpensAddresses) {
  LaunchItem(program.Launch, "http://a.example");
  LaunchItem(program.Launch, "mailto:a@b.example");
  EXPECT_EQ(Launches(), (std::vector{Opened("http://a.example"), Opened("mailto:a@b.example")}));
}

TEST_F(LaunchItemTest, ASecureAddressGoesToTheBrowserToo) {
  AddServices();
  LaunchItem(program.Launch, "https://a.example");
  EXPECT_EQ(log, CallLog{"OpenUrl https://a.example"});
  EXPECT_TRUE(Launches().empty());
}

TEST_F(LaunchItemTest, AUrlFileOpensTheWholeOfAnAddressThatHoldsAnother) {
  AddServices();
  world.Files.Put("C:\\Docs\\old.url", "[InternetShortcut]\r\nURL=https://a.example/http://b\r\n");
  LaunchItem(program.Launch, "C:\\Docs\\old.url");
  EXPECT_EQ(log, CallLog{"OpenUrl https://a.example/http://b"});
}

TEST_F(LaunchItemTest, AUrlFileOpensItsAddress) {
  AddServices();
  world.Files.Put("C:\\Docs\\site.URL", "[InternetShortcut]\r\nURL=http://a.example\r\n");
  EXPECT_EQ(LaunchItem(program.Launch, "C:\\Docs\\site.URL"), "C:\\Docs\\site.URL");
  EXPECT_EQ(log, CallLog{"OpenUrl http://a.example"});
  EXPECT_TRUE(Launches().empty());
}

TEST_F(LaunchItemTest, AUrlFileWithoutAnAddressGoesOnAsAFile) {
  AddServices();
  world.Shell.Associate(".url", "browser.exe");
  world.Files.Put("C:\\Docs\\site.url", "[InternetShortcut]\r\nURL=ftp://a/?http://b\r\n");
  LaunchItem(program.Launch, "C:\\Docs\\site.url");
  EXPECT_EQ(log, CallLog());
  EXPECT_EQ(Launches(), std::vector{Opened("C:\\Docs\\site.url", "C:\\Docs\\")});
}

TEST_F(LaunchItemTest, AMissingUrlFileIsUnavailable) {
  AddServices();
  ExpectUnavailable();
  LaunchItem(program.Launch, "C:\\Docs\\gone.url");
  EXPECT_EQ(Boxes(), 1U);
}

TEST_F(LaunchItemTest, ALinkOpensInTheFolderOfItsTarget) {
  AddServices();
  links.Set("C:\\Links\\tool.lnk", "C:\\Tools\\tool.exe");
  LaunchItem(program.Launch, "C:\\Links\\tool.lnk");
  EXPECT_EQ(Launches(), std::vector{Opened("C:\\Links\\tool.lnk", "C:\\Tools\\")});
}

TEST_F(LaunchItemTest, ALinkWithoutATargetOpensWithoutAFolder) {
  AddServices();
  world.Links.Put("C:\\Links\\tool.lnk", {.Item = {"item"}});
  LaunchItem(program.Launch, "C:\\Links\\tool.LNK");
  EXPECT_EQ(Launches(), std::vector{Opened("C:\\Links\\tool.LNK")});
}

TEST_F(LaunchItemTest, WithoutAReaderOfLinksTheSystemOpensThem) {
  LaunchItem(program.Launch, "C:\\Links\\tool.lnk");
  EXPECT_EQ(Launches(), std::vector{Opened("C:\\Links\\tool.lnk")});
}

TEST_F(LaunchItemTest, AFailingLinkIsNotTriedAgainButToldOf) {
  ExpectUnavailable();
  AddServices();
  LaunchItem(program.Launch, "C:\\Links\\gone.lnk");
  EXPECT_EQ(Launches(), std::vector{NotOpened("C:\\Links\\gone.lnk")});
  EXPECT_EQ(Boxes(), 1U);
}

TEST_F(LaunchItemTest, ASpecialFolderIsHandedOnAsItIs) {
  AddServices();
  LaunchItem(program.Launch, "csidl_Drives");
  LaunchItem(program.Launch, "CSIDL_NOSUCHTHING");
  EXPECT_EQ(log, (CallLog{"OpenSpecialFolder csidl_Drives with ",
                          "OpenSpecialFolder CSIDL_NOSUCHTHING with "}));
  EXPECT_TRUE(Launches().empty());
}

TEST_F(LaunchItemTest, WithoutSpecialFoldersTheirNamesAreUnavailable) {
  ExpectUnavailable();
  LaunchItem(program.Launch, "CSIDL_DRIVES");
  EXPECT_EQ(Boxes(), 1U);
}

TEST_F(LaunchItemTest, TheHintClosesBeforeAnythingStarts) {
  AddServices();
  LoggingHint hint(log);
  program.Ports.Hint = &hint;
  LaunchItem(program.Launch, "netsearch");
  EXPECT_EQ(log, (CallLog{"hint ", "ShowNetSearch"}));
}

TEST_F(LaunchItemTest, AnotherChoiceThatWaitsIsStartedAfterThisOne) {
  const forms::TimerId timer = world.Desktop.StartTimer(1, [this, once = true]() mutable {
    if (std::exchange(once, false)) LaunchItem(program.Launch, "C:\\Tools\\second.exe");
  });
  world.Files.Put("C:\\Tools\\second.exe", "");
  for (const char* command : {"C:\\Tools\\tool.exe", "tool.exe /x"}) {
    SCOPED_TRACE(command);
    world.Shell.AddToPath("tool.exe");
    // The shell takes its time to find out that it cannot open the second one.
    world.Shell.WhileAsked([this](const Launch&) { world.Desktop.Jump(10); });
    world.Desktop.Jump(1);
    LaunchItem(program.Launch, command);
    for (const Launch& launch : Launches()) EXPECT_NE(launch.File, "C:\\Tools\\second.exe");
  }
  world.Desktop.DoEvents();
  world.Desktop.StopTimer(timer);
  EXPECT_EQ(Launches().back().File, "C:\\Tools\\second.exe");
}

TEST_F(OpenWithItemTest, ADroppedFileIsTheProgramsParameter) {
  OpenWithItem(program.Launch, " C:\\Docs\\plan.txt ", " C:\\Tools\\tool.exe ");
  Launch expected = Opened("C:\\Tools\\tool.exe");
  expected.Parameters = "\"C:\\Docs\\plan.txt\"";
  EXPECT_EQ(Launches(), std::vector{expected});
}

TEST_F(OpenWithItemTest, AChoiceThatWaitsIsStartedAfterThisOne) {
  const forms::TimerId timer = world.Desktop.StartTimer(1, [this, once = true]() mutable {
    if (std::exchange(once, false)) LaunchItem(program.Launch, "C:\\Tools\\tool.exe");
  });
  world.Desktop.Jump(1);
  OpenWithItem(program.Launch, "C:\\Docs\\plan.txt", "C:\\Tools\\tool.exe");
  Launch expected = Opened("C:\\Tools\\tool.exe");
  expected.Parameters = "\"C:\\Docs\\plan.txt\"";
  EXPECT_EQ(Launches(), std::vector{expected});
  world.Desktop.DoEvents();
  world.Desktop.StopTimer(timer);
  EXPECT_EQ(Launches().size(), 2U);
}

TEST_F(OpenWithItemTest, ASpecialFolderTakesTheDroppedFile) {
  AddServices();
  OpenWithItem(program.Launch, "C:\\Docs\\plan.txt", "csidl_bitbucket");
  EXPECT_EQ(log, CallLog{"OpenSpecialFolder csidl_bitbucket with \"C:\\Docs\\plan.txt\""});
  EXPECT_TRUE(Launches().empty());
}

TEST_F(OpenWithItemTest, AFailureIsTriedAsACommandLine) {
  OpenWithItem(program.Launch, "C:\\Docs\\plan.txt", "explorer.exe /e");
  ASSERT_EQ(Launches().size(), 2U);
  EXPECT_EQ(Launches().back(), Ran("explorer.exe /e \"C:\\Docs\\plan.txt\""));
}

TEST_F(OpenWithItemTest, AFailingLinkIsTriedByItsTarget) {
  AddServices();
  links.Set("C:\\Links\\tool.lnk", "C:\\Tools\\tool.exe");
  world.Shell.Fail("C:\\Links\\tool.lnk");
  OpenWithItem(program.Launch, "C:\\Docs\\plan.txt", "C:\\Links\\tool.LNK");
  ASSERT_EQ(Launches().size(), 2U);
  EXPECT_EQ(Launches().back(), Ran("C:\\Tools\\tool.exe \"C:\\Docs\\plan.txt\""));
}

TEST_F(OpenWithItemTest, ALinkThatLeadsNowhereIsUnavailableAndTheDroppedFileIsNotRunInItsPlace) {
  AddServices();
  ExpectUnavailable();
  world.Links.Put("C:\\Links\\tool.lnk", {.Item = {"item"}});
  world.Shell.Fail("C:\\Links\\tool.lnk");
  OpenWithItem(program.Launch, "C:\\Tools\\tool.exe", "C:\\Links\\tool.lnk");
  EXPECT_EQ(world.Shell.Started(), std::vector<std::string>());
  EXPECT_EQ(Boxes(), 1U);
}

TEST_F(OpenWithItemTest, WithoutAReaderOfLinksAFailingLinkIsTriedItself) {
  world.Shell.Fail("C:\\Links\\tool.lnk");
  OpenWithItem(program.Launch, "C:\\Docs\\plan.txt", "C:\\Links\\tool.lnk");
  ASSERT_FALSE(Launches().empty());
  EXPECT_EQ(Launches()[1].File, "C:\\Links\\tool.lnk \"C:\\Docs\\plan.txt\"");
}

TEST_F(OpenWithItemTest, AMissingProgramIsUnavailable) {
  ExpectUnavailable();
  OpenWithItem(program.Launch, "C:\\Docs\\plan.txt", "C:\\Tools\\gone.exe");
  EXPECT_EQ(world.Shell.Started(), std::vector<std::string>());
  EXPECT_EQ(Boxes(), 1U);
}

TEST_F(OpenWithItemTest, ADocumentWithoutAProgramBringsTheOpenWithDialog) {
  OpenWithItem(program.Launch, "C:\\Docs\\plan.txt", "C:\\Docs\\odd.xyz");
  ASSERT_EQ(Launches().size(), 3U);
  EXPECT_EQ(Launches().back(), Ran("rundll32.exe shell32.dll,OpenAs_RunDLL C:\\Docs\\odd.xyz"));
}

TEST_F(OpenWithItemTest, ThePointerIsNormalAgainHoweverItEnds) {
  AddServices();
  const char* targets[] = {"C:\\Tools\\tool.exe", "CSIDL_DRIVES", "explorer.exe /e",
                           "C:\\Tools\\gone.exe"};
  ExpectUnavailable();
  for (const char* target : targets) {
    world.Desktop.SetMousePointer(forms::MousePointer::Hourglass);
    OpenWithItem(program.Launch, "C:\\Docs\\plan.txt", target);
    EXPECT_EQ(world.Desktop.CurrentMousePointer(), forms::MousePointer::Default) << target;
  }
}

TEST_F(LaunchItemTest, WhatIsSlowToStartLetsTheNextBeStartedAndIsNotStartedTwice) {
  world.Starts.Hang();
  LaunchItem(program.Launch, "C:\\Tools\\tool.exe");
  LaunchItem(program.Launch, " C:\\Tools\\tool.exe ");
  LaunchItem(program.Launch, "C:\\Docs\\plan.txt");
  EXPECT_EQ(Launches(), std::vector<Launch>{});
  EXPECT_EQ(world.Starts.UnderWay(), 2);
  world.Starts.Resume();
  EXPECT_EQ(Launches(), (std::vector{Opened("C:\\Tools\\tool.exe", "C:\\Tools\\"),
                                     Opened("C:\\Docs\\plan.txt", "C:\\Docs\\")}));
  LaunchItem(program.Launch, "C:\\Tools\\tool.exe");
  EXPECT_EQ(Launches().size(), 3U) << "a press after the start is a start of its own";
}

// The user sees the program already; the event that tells of its start waits behind what the hand
// does.
TEST_F(LaunchItemTest, WhatIsChosenAgainAsSoonAsItHasStartedStartsAgain) {
  world.Starts.HoldEnds();
  for (int i = 0; i < 3; ++i) LaunchItem(program.Launch, "C:\\Tools\\tool.exe");
  EXPECT_EQ(Launches().size(), 3U);
  for (int i = 0; i < 2; ++i)
    OpenWithItem(program.Launch, "C:\\Docs\\plan.txt", "C:\\Tools\\tool.exe");
  EXPECT_EQ(Launches().size(), 5U);
  world.Starts.TellEnds();
  EXPECT_EQ(Boxes(), 0U);
}

// Its address is not started before the file has been read.
TEST_F(LaunchItemTest, AUrlFileIsNotOpenedTwiceWhileWhatItHoldsWaits) {
  AddServices();
  world.Files.Put("C:\\Links\\site.url", "[InternetShortcut]\r\nURL=http://one.example/\r\n");
  world.Starts.HoldEnds();
  for (int i = 0; i < 2; ++i) LaunchItem(program.Launch, "C:\\Links\\site.url");
  world.Starts.TellEnds();
  EXPECT_EQ(log, CallLog{"OpenUrl http://one.example/"});
  LaunchItem(program.Launch, "C:\\Links\\site.url");
  EXPECT_EQ(log.size(), 2U);
}

TEST_F(LaunchItemTest, ALateFailureIsToldWhenItIsKnown) {
  world.Starts.Hang();
  for (const char* command : {"C:\\Tools\\gone.exe", "C:\\Links\\gone.lnk"})
    LaunchItem(program.Launch, command);
  EXPECT_EQ(Boxes(), 0U);
  ExpectUnavailable();
  ExpectUnavailable();
  world.Starts.Resume();
  EXPECT_EQ(Boxes(), 2U);
}

TEST_F(LaunchItemTest, AUrlFileThatIsSlowToReadOpensItsAddressOnce) {
  AddServices();
  world.Files.Put("C:\\Links\\site.url", "[InternetShortcut]\r\nURL=http://one.example/\r\n");
  world.Starts.Hang();
  LaunchItem(program.Launch, "C:\\Links\\site.url");
  LaunchItem(program.Launch, "C:\\Links\\site.url");
  EXPECT_TRUE(log.empty());
  world.Starts.Resume();
  EXPECT_EQ(log, CallLog{"OpenUrl http://one.example/"});
}

TEST_F(OpenWithItemTest, TheSameDropIsNotStartedTwiceWhileItIsSlow) {
  world.Starts.Hang();
  for (int i = 0; i < 2; ++i)
    OpenWithItem(program.Launch, "C:\\Docs\\plan.txt", "C:\\Tools\\tool.exe");
  OpenWithItem(program.Launch, "C:\\Docs\\odd.xyz", "C:\\Tools\\tool.exe");
  world.Starts.Resume();
  EXPECT_EQ(Launches().size(), 2U);
}

TEST_F(LaunchItemTest, AProgramThatEndedIsToldNothingOfItsStarts) {
  world.Starts.Hang();
  {
    Program ending(world.Services(), world.Windows());
    LaunchItem(ending.Launch, "C:\\Tools\\gone.exe");
  }
  world.Starts.Resume();
  EXPECT_EQ(Boxes(), 0U);
}

TEST_F(LaunchItemTest, ReadUrlFileGivesThePathWhereThereIsNoAddress) {
  world.Files.Put("C:\\a.url", "URL=http://a.example");
  world.Files.Put("C:\\b.url", "");
  EXPECT_EQ(ReadUrlFile(program.Services.Files, program.Services.Ansi, "C:\\a.url"),
            "http://a.example");
  EXPECT_EQ(ReadUrlFile(program.Services.Files, program.Services.Ansi, "C:\\b.url"), "C:\\b.url");
  EXPECT_EQ(ReadUrlFile(program.Services.Files, program.Services.Ansi, "C:\\gone.url"),
            "C:\\gone.url");
  world.Files.FailCall(1);
  EXPECT_EQ(ReadUrlFile(program.Services.Files, program.Services.Ansi, "C:\\a.url"), "C:\\a.url");
}

TEST_F(LaunchItemTest, ReadUrlFileFindsTheAddressBehindAnyNumberOfOtherLines) {
  std::string content;
  for (int i = 0; i < 2000; ++i) content += "Modified=00000000000000000000\r\n";
  world.Files.Put("C:\\a.url", content + "URL=http://a.example\r\n");
  EXPECT_EQ(ReadUrlFile(program.Services.Files, program.Services.Ansi, "C:\\a.url"),
            "http://a.example");
}

TEST_F(LaunchItemTest, GetLinkWorkDirGivesTargetAndFolder) {
  AddServices();
  links.Set("C:\\a.lnk", "C:\\Tools\\tool.exe");
  std::string target = "before";
  EXPECT_EQ(GetLinkWorkDir(program.Ports.ShellLinks, "C:\\a.lnk", target), "C:\\Tools\\");
  EXPECT_EQ(target, "C:\\Tools\\tool.exe");
  EXPECT_EQ(GetLinkWorkDir(program.Ports.ShellLinks, "C:\\damaged.lnk", target), "");
  EXPECT_EQ(target, "");
}

}  // namespace corvelle
