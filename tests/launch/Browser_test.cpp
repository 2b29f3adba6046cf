#include "launch/Browser.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/Program.h"
#include "launch/CommandDoubles.h"
#include "launch/LaunchItem.h"
#include "sim/World.h"

namespace corvelle {

namespace {

using sim::DdeCommand;
using sim::Launch;

constexpr char kTopic[] = "WWW_OpenURL";
constexpr char kUrl[] = "http://a.example/";
constexpr char kItem[] = "\"http://a.example/\",,-1,0,,,,";
constexpr char kIniFile[] = "C:\\Corvelle\\openurl.ini";
constexpr char kPageFile[] = "C:\\Corvelle\\temphtml.htm";
constexpr char kUrlFile[] = "C:\\Corvelle\\tempurl.url";
constexpr char kExplorer[] = "C:\\IE\\iexplore.exe";
constexpr char kNetscape[] = "C:\\Netscape\\Program\\netscape.exe";
constexpr char kOther[] = "C:\\Other\\other.exe";
constexpr char kWebKey[] = "http\\shell\\open\\ddeexec\\Application";
constexpr char kHtmlKey[] = "htmlfile\\shell\\open\\ddeexec\\Application";
constexpr char kNetscapeKey[] = "NetscapeMarkup\\shell\\open\\ddeexec\\Application";
constexpr char kChoiceKey[] =
    "Software\\Microsoft\\Windows\\Shell\\Associations\\UrlAssociations\\http\\UserChoice";
constexpr char kBrowserError[] =
    "Unable to communicate with your default browser. \r\n"
    "This program should work with Netscape 4.02 or later and MS Explorer 4.0 or later. \r\n"
    "If you have one of those in your system and installed properly \r\n"
    "but you still cannot use this program with it, then send email to "
    "support@corvelle.example and report this problem.";
constexpr char kMailError[] = "Unable to communicate with your default email program.";
constexpr char kUnsupported[] =
    "Unsupported browser. Corvelle couldn't recognize the Internet browser you have selected.";
constexpr unsigned kErrorFlags = 0x40010;

}  // namespace

class BrowserDesk : public testing::Test {
 protected:
  BrowserDesk() {
    world.Files.MakeFolders("C:\\Corvelle");
    for (const char* path : {kExplorer, kNetscape, kOther}) world.Files.Put(path, "x");
    program.Paths.AppPath = "C:\\Corvelle\\";
  }

  void SetKey(const char* key, const char* value) {
    world.Keys.Set(RegistryRoot::ClassesRoot, key, "", value);
  }
  Launch Opened(std::string file, std::optional<std::string> parameters = {},
                std::optional<std::string> folder = {}, bool started = true) {
    return {.How = Launch::Kind::Open,
            .File = std::move(file),
            .Parameters = std::move(parameters),
            .Folder = std::move(folder),
            .Started = started};
  }
  /// The machine has the browser, which runs when `service` is not empty.
  void HaveBrowser(const char* path, const char* service = "") {
    world.Associations.Set(".htm", path);
    if (*service != '\0') world.Dde.AddServer(service, kTopic);
  }
  void ExpectNoTempFiles() {
    EXPECT_FALSE(world.Files.Has(kPageFile));
    EXPECT_FALSE(world.Files.Has(kUrlFile));
  }

  sim::World world;
  Program program{world.Services(), world.Windows()};
  Browser browser{program};
};

// ---- finding the browser ----

struct InitBrowserTest : BrowserDesk {};

TEST_F(InitBrowserTest, TheUsersOwnChoiceComesFirstAndInSmallLetters) {
  world.Files.Put(kIniFile, "Command= C:\\IE\\IExplore.exe \r\nApplication=IExplore\r\n");
  HaveBrowser(kNetscape);
  browser.InitBrowser();
  EXPECT_EQ(browser.BrowserCommand, "c:\\ie\\iexplore.exe");
  EXPECT_EQ(browser.BrowserApplication, "iexplore");
  EXPECT_EQ(browser.BrowserTopic, kTopic);
  EXPECT_TRUE(browser.BrowserUseDde);
  EXPECT_FALSE(browser.BrowserUseShell);
  EXPECT_TRUE(world.Associations.Asked().empty());
}

TEST_F(InitBrowserTest, AnUnknownApplicationOfTheUsersChoiceIsTakenAsItStands) {
  world.Files.Put(kIniFile, "Command=c:\\x.exe\r\nApplication=Whatever\r\n");
  browser.InitBrowser();
  EXPECT_EQ(browser.BrowserApplication, "whatever");
  EXPECT_TRUE(browser.BrowserUseDde);
}

TEST_F(InitBrowserTest, HalfAChoiceIsNone) {
  world.Files.Put(kIniFile, "Command=c:\\x.exe\r\n");
  HaveBrowser(kExplorer);
  browser.InitBrowser();
  EXPECT_EQ(browser.BrowserCommand, kExplorer);
  EXPECT_EQ(browser.BrowserApplication, "IExplore");
}

TEST_F(InitBrowserTest, TheOtherHalfIsNoneEither) {
  world.Files.Put(kIniFile, "Application=Whatever\r\n");
  HaveBrowser(kExplorer);
  browser.InitBrowser();
  EXPECT_EQ(browser.BrowserCommand, kExplorer);
  EXPECT_EQ(browser.BrowserApplication, "IExplore");
}

TEST_F(InitBrowserTest, ANameWithoutAProgramIsTriedAndTheShellGetsTheAddressNoServerTakes) {
  world.Files.Put(kIniFile, "Application=Whatever\r\n");
  browser.InitBrowser();
  EXPECT_EQ(browser.BrowserCommand, "");
  EXPECT_EQ(browser.BrowserApplication, "whatever");
  EXPECT_TRUE(browser.BrowserUseDde);
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Tries(), 1);
  EXPECT_EQ(world.Shell.Log(), (std::vector<Launch>{Opened("", kUrl, {}, false), Opened(kUrl)}));
  EXPECT_FALSE(browser.BrowserUseDde);
}

TEST_F(InitBrowserTest, TheServiceNameComesFromTheRegistry) {
  struct Row {
    const char* name;
    const char* path;
    std::vector<std::pair<const char*, const char*>> keys;
    const char* expected;
  };
  const Row rows[] = {
      {"netscape's own key", kNetscape, {{kNetscapeKey, "NS1"}, {kHtmlKey, "H1"}}, "NS1"},
      {"netscape's pages", kNetscape, {{kWebKey, "W"}, {kHtmlKey, "H1"}}, "H1"},
      {"netscape's empty key", kNetscape, {{kNetscapeKey, ""}, {kHtmlKey, "H1"}}, "H1"},
      {"netscape without keys", kNetscape, {{kWebKey, "W"}}, "NSShell"},
      {"explorer's addresses", kExplorer, {{kWebKey, "W"}, {kHtmlKey, "H"}}, "W"},
      {"explorer's pages", kExplorer, {{kHtmlKey, "H"}, {kNetscapeKey, "N"}}, "H"},
      {"explorer without keys", kExplorer, {}, "IExplore"},
      {"another's addresses", kOther, {{kWebKey, "W"}, {kHtmlKey, "H"}}, "W"},
      {"another's pages", kOther, {{kHtmlKey, "H"}}, "H"},
  };
  for (const Row& row : rows) {
    for (const char* key : {kNetscapeKey, kWebKey, kHtmlKey})
      world.Keys.Remove(RegistryRoot::ClassesRoot, key, "");
    for (const auto& [key, value] : row.keys) SetKey(key, value);
    HaveBrowser(row.path);
    browser.InitBrowser();
    EXPECT_EQ(browser.BrowserCommand, row.path) << row.name;
    EXPECT_EQ(browser.BrowserApplication, row.expected) << row.name;
    EXPECT_TRUE(browser.BrowserUseDde) << row.name;
    EXPECT_FALSE(browser.BrowserUseShell) << row.name;
  }
}

TEST_F(InitBrowserTest, TheProbePagesHoldWhatTheyMustAndGoAtOnce) {
  HaveBrowser(kOther);
  world.Associations.Set(".url", "C:\\opener.exe");
  browser.InitBrowser();
  const auto& asked = world.Associations.Asked();
  ASSERT_EQ(asked.size(), 2U);
  EXPECT_EQ(asked[0].first, kPageFile);
  EXPECT_EQ(asked[0].second, "<HTML> </HTML>\r\n");
  EXPECT_EQ(asked[1].first, kUrlFile);
  EXPECT_EQ(asked[1].second.substr(0, 29), "[InternetShortcut]\r\nURL=http:");
  ExpectNoTempFiles();
}

TEST_F(InitBrowserTest, WithoutAServiceNameTheShellIsTried) {
  HaveBrowser(kOther);
  world.Associations.Set(".url", "C:\\opener.exe");
  browser.InitBrowser();
  EXPECT_EQ(browser.BrowserCommand, "C:\\opener.exe");
  EXPECT_EQ(browser.BrowserApplication, "");
  EXPECT_FALSE(browser.BrowserUseDde);
  EXPECT_TRUE(browser.BrowserUseShell);
}

TEST_F(InitBrowserTest, ABlankServiceNameIsNone) {
  HaveBrowser(kOther);
  SetKey(kWebKey, "  ");
  browser.InitBrowser();
  EXPECT_FALSE(browser.BrowserUseDde);
}

TEST_F(InitBrowserTest, WithoutAnyProgramNothingIsUsed) {
  SetKey(kWebKey, "W");
  browser.InitBrowser();
  EXPECT_EQ(browser.BrowserCommand, "");
  EXPECT_EQ(browser.BrowserApplication, "");
  EXPECT_FALSE(browser.BrowserUseDde);
  EXPECT_FALSE(browser.BrowserUseShell);
}

TEST_F(InitBrowserTest, AFolderThatCannotBeWrittenFindsNoBrowserAndSaysNothing) {
  HaveBrowser(kExplorer);
  world.Files.Protect("C:\\Corvelle");
  browser.InitBrowser();
  EXPECT_FALSE(browser.BrowserUseDde);
  EXPECT_FALSE(browser.BrowserUseShell);
}

TEST_F(InitBrowserTest, NoFailureOfTheDiskLeavesATornChoice) {
  world.Files.Put(kIniFile, "Command=c:\\ie\\iexplore.exe\r\nApplication=IExplore\r\n");
  HaveBrowser(kExplorer);
  for (int n = 1; n < 8; ++n) {
    world.Files.FailCall(n);
    browser.InitBrowser();
    world.Files.StopFailing();
    EXPECT_EQ(browser.BrowserUseDde, !browser.BrowserApplication.empty()) << n;
    EXPECT_EQ(browser.BrowserCommand.empty(), browser.BrowserApplication.empty()) << n;
  }
}

TEST_F(InitBrowserTest, EventsRunWhileTheProbePageIsThere) {
  HaveBrowser(kExplorer);
  bool there = false;
  const forms::TimerId timer =
      world.Desktop.StartTimer(1, [&] { there = world.Files.Has(kPageFile); });
  world.Desktop.Jump(1);
  browser.InitBrowser();
  world.Desktop.StopTimer(timer);
  EXPECT_TRUE(there);
}

// ---- opening an address ----

struct OpenUrlTest : BrowserDesk {};

TEST_F(OpenUrlTest, ASecondAddressWhileTheBrowserIsLookedForGoesTheSameWay) {
  HaveBrowser(kExplorer);
  bool nested = false;
  const forms::TimerId timer = world.Desktop.StartTimer(1, [&] {
    if (std::exchange(nested, true)) return;
    browser.OpenUrl("http://second.example/");
  });
  world.Desktop.Jump(1);
  browser.OpenUrl(kUrl);
  world.Desktop.StopTimer(timer);
  EXPECT_TRUE(nested);
  EXPECT_EQ(world.Shell.Log(),
            (std::vector<Launch>{Opened(kExplorer, "http://second.example/", "C:\\IE\\"),
                                 Opened(kExplorer, kUrl, "C:\\IE\\")}));
  EXPECT_EQ(browser.BrowserCommand, kExplorer);
  EXPECT_TRUE(browser.BrowserUseDde);
  ExpectNoTempFiles();
}

TEST_F(OpenUrlTest, ARunningBrowserGetsTheAddressByDde) {
  HaveBrowser(kExplorer, "IExplore");
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told(), (std::vector<DdeCommand>{{"IExplore", kTopic, kItem}}));
  EXPECT_TRUE(world.Shell.Log().empty());
  ExpectNoTempFiles();
}

TEST_F(OpenUrlTest, AClosedBrowserIsStartedWithTheAddressAsItsArgument) {
  HaveBrowser(kExplorer);
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Tries(), 1);
  EXPECT_EQ(world.Shell.Log(), std::vector<Launch>{Opened(kExplorer, kUrl, "C:\\IE\\")});
  EXPECT_TRUE(browser.BrowserUseDde);
}

TEST_F(OpenUrlTest, AnAddressWhoseTextGoesAwayMeanwhileIsOpenedAllTheSame) {
  HaveBrowser(kExplorer);
  std::string text = kUrl;
  const forms::TimerId timer = world.Desktop.StartTimer(1, [&] { text.assign(text.size(), 'x'); });
  world.Desktop.Jump(1);
  browser.OpenUrl(text);
  world.Desktop.StopTimer(timer);
  EXPECT_NE(text, kUrl);
  EXPECT_EQ(world.Shell.Log(), std::vector{Opened(kExplorer, kUrl, "C:\\IE\\")});
}

TEST_F(OpenUrlTest, ABrowserWithoutADriveInItsPathStartsWithoutAFolder) {
  world.Files.Put(kIniFile, "Command=iexplore.exe\r\nApplication=IExplore\r\n");
  world.Shell.AddToPath("iexplore.exe");
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Shell.Log(), std::vector<Launch>{Opened("iexplore.exe", kUrl)});
}

TEST_F(OpenUrlTest, ABrowserThatRefusesOrKeepsSilentIsStarted) {
  for (const DdeOutcome outcome : {DdeOutcome::Refused, DdeOutcome::NoAnswer}) {
    world.Shell.ClearLog();
    HaveBrowser(kExplorer);
    world.Dde.AddServer("IExplore", kTopic, outcome);
    browser.OpenUrl(kUrl);
    EXPECT_EQ(world.Shell.Log(), std::vector<Launch>{Opened(kExplorer, kUrl, "C:\\IE\\")});
  }
}

TEST_F(OpenUrlTest, ASecondAddressDoesNotLookForTheBrowserAgain) {
  HaveBrowser(kExplorer, "IExplore");
  browser.OpenUrl(kUrl);
  const std::size_t asked = world.Associations.Asked().size();
  HaveBrowser(kNetscape, "NSShell");
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Associations.Asked().size(), asked);
  EXPECT_EQ(world.Dde.Told().size(), 2U);
  EXPECT_EQ(world.Dde.Told()[1].Service, "IExplore");
}

TEST_F(OpenUrlTest, ASecondAddressOfTheShellDoesNotLookForTheBrowserEither) {
  HaveBrowser(kOther);
  world.Associations.Set(".url", "C:\\opener.exe");
  browser.OpenUrl(kUrl);
  const std::size_t asked = world.Associations.Asked().size();
  HaveBrowser(kExplorer, "IExplore");
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Associations.Asked().size(), asked);
  EXPECT_EQ(world.Shell.Log(), (std::vector<Launch>{Opened(kUrl), Opened(kUrl)}));
  EXPECT_TRUE(world.Dde.Told().empty());
}

TEST_F(OpenUrlTest, ABrowserThatDoesNotStartLeavesTheAddressToTheShell) {
  HaveBrowser(kExplorer);
  world.Shell.Fail(kExplorer);
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Shell.Log(),
            (std::vector<Launch>{Opened(kExplorer, kUrl, "C:\\IE\\", false), Opened(kUrl)}));
  EXPECT_TRUE(browser.BrowserUseDde);
  EXPECT_FALSE(browser.BrowserUseShell);
  ExpectNoTempFiles();
}

TEST_F(OpenUrlTest, WhenAllFailEveryStepIsTriedInItsOrderAndTheUserIsTold) {
  HaveBrowser(kExplorer);
  world.Shell.Fail(kExplorer);
  world.Shell.Fail(kUrl);
  world.Desktop.Answer(kBrowserError, forms::msgbox::AnswerOk);
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Shell.Log(),
            (std::vector<Launch>{Opened(kExplorer, kUrl, "C:\\IE\\", false),
                                 Opened(kUrl, {}, {}, false), Opened(kExplorer, kUrl, {}, false),
                                 Opened(kUrl, {}, {}, false), Opened(kUrlFile, {}, {}, false)}));
  EXPECT_FALSE(browser.BrowserUseDde);
  EXPECT_FALSE(browser.BrowserUseShell);
  ExpectNoTempFiles();
}

TEST_F(OpenUrlTest, WithoutAProgramForPagesAnyMoreTheShellGetsTheAddress) {
  HaveBrowser(kExplorer);
  browser.InitBrowser();
  world.Associations.Set(".htm", "");
  world.Shell.Fail(kExplorer);
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Shell.Log(),
            (std::vector<Launch>{Opened(kExplorer, kUrl, "C:\\IE\\", false), Opened(kUrl)}));
  EXPECT_FALSE(browser.BrowserUseDde);
  EXPECT_TRUE(browser.BrowserUseShell);
}

TEST_F(OpenUrlTest, TheShellThatRefusesTheAddressGetsAFileOfIt) {
  HaveBrowser(kOther);
  world.Associations.Set(".url", "C:\\opener.exe");
  world.Shell.Associate(".url", "C:\\opener.exe");
  world.Shell.Fail(kUrl);
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Shell.Log(),
            (std::vector<Launch>{Opened(kUrl, {}, {}, false), Opened(kUrlFile)}));
  EXPECT_EQ(world.Files.Get(kUrlFile), "[InternetShortcut]\r\nURL=http://a.example/\r\n");
  EXPECT_TRUE(browser.BrowserUseShell);
  EXPECT_EQ(world.Dde.Tries(), 0);
}

TEST_F(OpenUrlTest, WithoutAnyProgramTheShellGetsTheAddressBeforeAnyError) {
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Shell.Log(), std::vector<Launch>{Opened(kUrl)});
  EXPECT_TRUE(world.Desktop.Boxes().empty());
}

TEST_F(OpenUrlTest, TheUsersChoiceComesBeforeAnotherProgramForPages) {
  struct Row {
    const char* Name;
    const char* Chosen;   // the class that the user has chosen; null for none
    const char* Command;  // of that class; null for none
    bool AsksByDde;
    std::vector<Launch> Expected;
  };
  const std::vector<Launch> byShell = {Opened(kUrl)};
  const std::vector<Launch> started = {Opened(kExplorer, kUrl, "C:\\IE\\")};
  const Row rows[] = {
      {"no choice", nullptr, nullptr, true, started},
      {"a blank choice", " ", nullptr, true, started},
      {"the class of all addresses", "HTTP", nullptr, true, started},
      {"the same", "Chosen", "\"C:\\ie\\IExplore.exe\" %1", true, started},
      {"another program", "Chosen", "\"C:\\Other\\other.exe\" -url \"%1\"", false, byShell},
      {"a program that no command starts", "Chosen", nullptr, false, byShell},
  };
  for (const Row& row : rows) {
    world.Shell.ClearLog();
    world.Keys.Remove(RegistryRoot::CurrentUser, kChoiceKey, "ProgId");
    world.Keys.Remove(RegistryRoot::ClassesRoot, "Chosen\\shell\\open\\command", "");
    if (row.Chosen != nullptr)
      world.Keys.Set(RegistryRoot::CurrentUser, kChoiceKey, "ProgId", row.Chosen);
    if (row.Command != nullptr) SetKey("Chosen\\shell\\open\\command", row.Command);
    // Left behind by the browser that opens pages, and does not run.
    SetKey(kWebKey, "IExplore");
    HaveBrowser(kExplorer);
    const int tries = world.Dde.Tries();
    Browser fresh(program);
    fresh.OpenUrl(kUrl);
    EXPECT_EQ(world.Dde.Tries() - tries, row.AsksByDde ? 1 : 0) << row.Name;
    EXPECT_EQ(world.Shell.Log(), row.Expected) << row.Name;
  }
}

TEST_F(OpenUrlTest, AChoiceThatChangesMeanwhileIsFollowed) {
  HaveBrowser(kExplorer, "IExplore");
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told().size(), 1U);
  world.Keys.Set(RegistryRoot::CurrentUser, kChoiceKey, "ProgId", "Chosen");
  SetKey("Chosen\\shell\\open\\command", kOther);
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told().size(), 1U);
  EXPECT_EQ(world.Shell.Log(), std::vector<Launch>{Opened(kUrl)});
}

TEST_F(OpenUrlTest, ABrowserChosenInThisProgramIsTheUsersChoice) {
  world.Files.Put(kIniFile, "Command=c:\\ie\\iexplore.exe\r\nApplication=IExplore\r\n");
  world.Keys.Set(RegistryRoot::CurrentUser, kChoiceKey, "ProgId", "Chosen");
  SetKey("Chosen\\shell\\open\\command", kOther);
  world.Dde.AddServer("IExplore", kTopic);
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told().size(), 1U);
  ASSERT_TRUE(browser.UseBrowser(kNetscape));
  world.Dde.AddServer("NSShell", kTopic);
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told().size(), 2U);
}

TEST_F(OpenUrlTest, WithoutAnyBrowserTheMessageComesAndTheNextAddressLooksAgain) {
  world.Shell.Fail(kUrl);
  world.Desktop.Answer(kBrowserError, forms::msgbox::AnswerOk);
  browser.OpenUrl(kUrl);
  ASSERT_EQ(world.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(world.Desktop.Boxes()[0].Flags, kErrorFlags);
  EXPECT_EQ(world.Desktop.Boxes()[0].Title, "Corvelle");
  HaveBrowser(kExplorer, "IExplore");
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told().size(), 1U);
}

TEST_F(OpenUrlTest, ABrowserThatTheUserRefusesEndsItQuietly) {
  HaveBrowser(kExplorer);
  world.Shell.FailToOpen(kExplorer, OpenError::Cancelled);
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Shell.Log().size(), 1U);
  EXPECT_TRUE(browser.BrowserUseDde);
}

TEST_F(OpenUrlTest, AnAddressThatTheUserRefusesToOpenEndsItQuietly) {
  world.Associations.Set(".url", kOther);
  world.Shell.FailToOpen(kUrl, OpenError::Cancelled);
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Shell.Log().size(), 1U);
  EXPECT_TRUE(browser.BrowserUseShell);
}

TEST_F(OpenUrlTest, AnAddressCannotEndItsArgument) {
  HaveBrowser(kExplorer);
  browser.OpenUrl("http://a\" -flag");
  ASSERT_EQ(world.Shell.Log().size(), 1U);
  EXPECT_EQ(world.Shell.Log()[0].Parameters, "http://a%22%20-flag");
}

// ---- choosing a browser ----

struct BrowserChoiceTest : BrowserDesk {};

TEST_F(BrowserChoiceTest, TheDefaultBrowserIsLookedForWithTheNextAddress) {
  world.Files.Put(kIniFile, "Command=c:\\ie\\iexplore.exe\r\nApplication=IExplore\r\n");
  world.Dde.AddServer("IExplore", kTopic);
  browser.OpenUrl(kUrl);
  HaveBrowser(kNetscape, "NSShell");
  browser.UseDefaultBrowser();
  EXPECT_FALSE(world.Files.Has(kIniFile));
  EXPECT_EQ(browser.BrowserCommand, "");
  EXPECT_EQ(browser.BrowserApplication, "");
  EXPECT_FALSE(browser.BrowserUseDde);
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told().back().Service, "NSShell");
}

TEST_F(BrowserChoiceTest, AChosenBrowserIsNotedAndUsedFromThenOn) {
  world.Dde.AddServer("NSShell", kTopic);
  EXPECT_TRUE(browser.UseBrowser(kNetscape));
  EXPECT_EQ(world.Files.Get(kIniFile),
            "Command=" + std::string(kNetscape) + "\r\nApplication=NSShell\r\n");
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told(), (std::vector<DdeCommand>{{"NSShell", kTopic, kItem}}));
}

TEST_F(BrowserChoiceTest, AChosenLinkStandsForItsTarget) {
  KnownLinks links;
  links.Set("C:\\browser.lnk", kExplorer);
  program.Ports.ShellLinks = &links;
  EXPECT_TRUE(browser.UseBrowser("C:\\browser.LNK"));
  EXPECT_EQ(browser.BrowserCommand, kExplorer);
  EXPECT_EQ(browser.BrowserApplication, "IExplore");
}

TEST_F(BrowserChoiceTest, AnUnknownBrowserIsRefusedAndNothingIsWritten) {
  HaveBrowser(kExplorer, "IExplore");
  browser.InitBrowser();
  world.Desktop.Answer(kUnsupported, forms::msgbox::AnswerOk);
  EXPECT_FALSE(browser.UseBrowser(kOther));
  EXPECT_FALSE(world.Files.Has(kIniFile));
  EXPECT_EQ(browser.BrowserCommand, kExplorer);
}

TEST_F(BrowserChoiceTest, AChoiceThatCannotBeSavedLeavesTheOldBrowserInForce) {
  HaveBrowser(kExplorer, "IExplore");
  world.Files.FailFrom(1, FileError::DiskFull);
  EXPECT_FALSE(browser.UseBrowser(kNetscape));
  world.Files.StopFailing();
  browser.OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told(), (std::vector<DdeCommand>{{"IExplore", kTopic, kItem}}));
}

// ---- mail ----

struct OpenMailTest : BrowserDesk {};

TEST_F(OpenMailTest, TheShellOpensTheAddress) {
  browser.OpenMail("mailto:ann@a.example");
  EXPECT_EQ(world.Shell.Log(), std::vector<Launch>{Opened("mailto:ann@a.example")});
}

TEST_F(OpenMailTest, ThenTheRegisteredProgramIsTried) {
  world.Shell.Fail("mailto:ann@a.example");
  SetKey("mailto\\shell\\open\\command", kOther);
  browser.OpenMail("mailto:ann@a.example");
  EXPECT_EQ(world.Shell.Log(), (std::vector<Launch>{Opened("mailto:ann@a.example", {}, {}, false),
                                                    Opened(kOther, "mailto:ann@a.example")}));
}

TEST_F(OpenMailTest, AMailProgramThatTheUserRefusesEndsItQuietly) {
  SetKey("mailto\\shell\\open\\command", kOther);
  world.Shell.FailToOpen("mailto:a@b.example", OpenError::Cancelled);
  browser.OpenMail("mailto:a@b.example");
  EXPECT_EQ(world.Shell.Log().size(), 1U);
  world.Shell.FailToOpen("mailto:a@b.example", OpenError::Other);
  world.Shell.FailToOpen(kOther, OpenError::Cancelled);
  browser.OpenMail("mailto:a@b.example");
  EXPECT_EQ(world.Shell.Log().size(), 3U);
}

TEST_F(OpenMailTest, WithoutAMailProgramItIsTheMailMessage) {
  world.Shell.Fail("mailto:x");
  world.Desktop.Answer(kMailError, forms::msgbox::AnswerOk);
  browser.OpenMail("mailto:x");
  ASSERT_EQ(world.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(world.Desktop.Boxes()[0].Flags, 0x40000U);
}

TEST_F(OpenMailTest, AMailProgramThatDoesNotStartGivesTheMailMessage) {
  world.Shell.Fail("mailto:x");
  SetKey("mailto\\shell\\open\\command", "C:\\gone.exe");
  world.Desktop.Answer(kMailError, forms::msgbox::AnswerOk);
  browser.OpenMail("mailto:x");
  EXPECT_EQ(world.Desktop.Boxes().size(), 1U);
}

// ---- from an entry ----

struct LinkEntryTest : BrowserDesk {
  LinkEntryTest() { program.Ports.Browser = &browser; }
};

TEST_F(LinkEntryTest, AUrlFileLeadsToTheBrowser) {
  HaveBrowser(kExplorer, "IExplore");
  world.Files.Put("C:\\a.url", "[InternetShortcut]\r\nURL=http://a.example/\r\n");
  LaunchItem(program, "C:\\a.url");
  EXPECT_EQ(world.Dde.Told(), (std::vector<DdeCommand>{{"IExplore", kTopic, kItem}}));
}

TEST_F(LinkEntryTest, AMailEntryWithoutAMailProgramGivesTheMailMessage) {
  world.Shell.Fail("MAILTO:x");
  world.Desktop.Answer(kMailError, forms::msgbox::AnswerOk);
  LaunchItem(program, " MAILTO:x ");
  EXPECT_EQ(world.Desktop.Boxes().size(), 1U);
}

}  // namespace corvelle
