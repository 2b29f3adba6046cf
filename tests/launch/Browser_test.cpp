#include "launch/Browser.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/Program.h"
#include "launch/CommandDoubles.h"
#include "launch/LaunchItem.h"
#include "launch/LaunchWiring.h"
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
    world.Files.AddDrive('D');
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
  void OpenUrl(std::string_view url) { browser.OpenUrl(url, {}); }
  /// The choice of a browser in the menu; how it ended comes to Chosen.
  void Choose(std::string_view path) {
    browser.UseBrowser(path, kNoWindow, [this](bool taken) { Chosen.push_back(taken); });
  }
  bool IsTaken(std::string_view path) {
    Choose(path);
    return Chosen.back();
  }
  void PutLink(const std::string& link, const std::string& target) {
    world.Links.Put(link, {.Path = target});
    program.Ports.ShellLinks = &links_;
  }
  void ExpectNoTempFiles() {
    EXPECT_FALSE(world.Files.Has(kPageFile));
    EXPECT_FALSE(world.Files.Has(kUrlFile));
  }

  sim::World world;
  Program program{world.Services(), world.Windows()};
  std::vector<bool> Chosen;
  Browser browser{BrowserPartsOf(program)};

 private:
  KnownLinks links_;
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
  OpenUrl(kUrl);
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

TEST_F(InitBrowserTest, ALookThatTakesItsTimeIsMadeOnceAndBesideTheWindows) {
  HaveBrowser(kExplorer);
  world.Starts.Hang();
  browser.InitBrowser();
  browser.InitBrowser();
  EXPECT_TRUE(world.Associations.Asked().empty());
  world.Starts.Resume();
  EXPECT_EQ(world.Associations.Asked().size(), 1U);
  EXPECT_EQ(browser.BrowserCommand, kExplorer);
}

// ---- opening an address ----

struct OpenUrlTest : BrowserDesk {};

TEST_F(OpenUrlTest, ASecondAddressWhileTheBrowserIsLookedForGoesTheSameWay) {
  HaveBrowser(kExplorer);
  world.Starts.Hang();
  OpenUrl(kUrl);
  OpenUrl("http://second.example/");
  world.Starts.Resume();
  EXPECT_EQ(world.Shell.Log(),
            (std::vector<Launch>{Opened(kExplorer, kUrl, "C:\\IE\\"),
                                 Opened(kExplorer, "http://second.example/", "C:\\IE\\")}));
  EXPECT_EQ(browser.BrowserCommand, kExplorer);
  EXPECT_TRUE(browser.BrowserUseDde);
  ExpectNoTempFiles();
}

TEST_F(OpenUrlTest, ARunningBrowserGetsTheAddressByDde) {
  HaveBrowser(kExplorer, "IExplore");
  OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told(), (std::vector<DdeCommand>{{"IExplore", kTopic, kItem}}));
  EXPECT_TRUE(world.Shell.Log().empty());
  ExpectNoTempFiles();
}

TEST_F(OpenUrlTest, AClosedBrowserIsStartedWithTheAddressAsItsArgument) {
  HaveBrowser(kExplorer);
  OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Tries(), 1);
  EXPECT_EQ(world.Shell.Log(), std::vector<Launch>{Opened(kExplorer, kUrl, "C:\\IE\\")});
  EXPECT_TRUE(browser.BrowserUseDde);
}

TEST_F(OpenUrlTest, AnAddressWhoseTextGoesAwayMeanwhileIsOpenedAllTheSame) {
  HaveBrowser(kExplorer);
  std::string text = kUrl;
  world.Starts.Hang();
  OpenUrl(text);
  text.assign(text.size(), 'x');
  world.Starts.Resume();
  EXPECT_EQ(world.Shell.Log(), std::vector{Opened(kExplorer, kUrl, "C:\\IE\\")});
}

TEST_F(OpenUrlTest, ABrowserWithoutADriveInItsPathStartsWithoutAFolder) {
  world.Files.Put(kIniFile, "Command=iexplore.exe\r\nApplication=IExplore\r\n");
  world.Shell.AddToPath("iexplore.exe");
  OpenUrl(kUrl);
  EXPECT_EQ(world.Shell.Log(), std::vector<Launch>{Opened("iexplore.exe", kUrl)});
}

TEST_F(OpenUrlTest, ABrowserThatRefusesOrKeepsSilentIsStarted) {
  for (const DdeOutcome outcome : {DdeOutcome::Refused, DdeOutcome::NoAnswer}) {
    world.Shell.ClearLog();
    HaveBrowser(kExplorer);
    world.Dde.AddServer("IExplore", kTopic, outcome);
    OpenUrl(kUrl);
    EXPECT_EQ(world.Shell.Log(), std::vector<Launch>{Opened(kExplorer, kUrl, "C:\\IE\\")});
  }
}

TEST_F(OpenUrlTest, ASecondAddressDoesNotLookForTheBrowserAgain) {
  HaveBrowser(kExplorer, "IExplore");
  OpenUrl(kUrl);
  const std::size_t asked = world.Associations.Asked().size();
  HaveBrowser(kNetscape, "NSShell");
  OpenUrl(kUrl);
  EXPECT_EQ(world.Associations.Asked().size(), asked);
  EXPECT_EQ(world.Dde.Told().size(), 2U);
  EXPECT_EQ(world.Dde.Told()[1].Service, "IExplore");
}

TEST_F(OpenUrlTest, ASecondAddressOfTheShellDoesNotLookForTheBrowserEither) {
  HaveBrowser(kOther);
  world.Associations.Set(".url", "C:\\opener.exe");
  OpenUrl(kUrl);
  const std::size_t asked = world.Associations.Asked().size();
  HaveBrowser(kExplorer, "IExplore");
  OpenUrl(kUrl);
  EXPECT_EQ(world.Associations.Asked().size(), asked);
  EXPECT_EQ(world.Shell.Log(), (std::vector<Launch>{Opened(kUrl), Opened(kUrl)}));
  EXPECT_TRUE(world.Dde.Told().empty());
}

TEST_F(OpenUrlTest, ABrowserThatDoesNotStartLeavesTheAddressToTheShell) {
  HaveBrowser(kExplorer);
  world.Shell.Fail(kExplorer);
  OpenUrl(kUrl);
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
  OpenUrl(kUrl);
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
  OpenUrl(kUrl);
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
  OpenUrl(kUrl);
  EXPECT_EQ(world.Shell.Log(),
            (std::vector<Launch>{Opened(kUrl, {}, {}, false), Opened(kUrlFile)}));
  EXPECT_EQ(world.Files.Get(kUrlFile), "[InternetShortcut]\r\nURL=http://a.example/\r\n");
  EXPECT_TRUE(browser.BrowserUseShell);
  EXPECT_EQ(world.Dde.Tries(), 0);
}

TEST_F(OpenUrlTest, WithoutAnyProgramTheShellGetsTheAddressBeforeAnyError) {
  OpenUrl(kUrl);
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
    Browser fresh(BrowserPartsOf(program));
    fresh.OpenUrl(kUrl, {});
    EXPECT_EQ(world.Dde.Tries() - tries, row.AsksByDde ? 1 : 0) << row.Name;
    EXPECT_EQ(world.Shell.Log(), row.Expected) << row.Name;
  }
}

TEST_F(OpenUrlTest, AChoiceThatChangesMeanwhileIsFollowed) {
  HaveBrowser(kExplorer, "IExplore");
  OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told().size(), 1U);
  world.Keys.Set(RegistryRoot::CurrentUser, kChoiceKey, "ProgId", "Chosen");
  SetKey("Chosen\\shell\\open\\command", kOther);
  OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told().size(), 1U);
  EXPECT_EQ(world.Shell.Log(), std::vector<Launch>{Opened(kUrl)});
}

TEST_F(OpenUrlTest, ABrowserChosenInThisProgramIsTheUsersChoice) {
  world.Files.Put(kIniFile, "Command=c:\\ie\\iexplore.exe\r\nApplication=IExplore\r\n");
  world.Keys.Set(RegistryRoot::CurrentUser, kChoiceKey, "ProgId", "Chosen");
  SetKey("Chosen\\shell\\open\\command", kOther);
  world.Dde.AddServer("IExplore", kTopic);
  OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told().size(), 1U);
  ASSERT_TRUE(IsTaken(kNetscape));
  world.Dde.AddServer("NSShell", kTopic);
  OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told().size(), 2U);
}

TEST_F(OpenUrlTest, WithoutAnyBrowserTheMessageComesAndTheNextAddressLooksAgain) {
  world.Shell.Fail(kUrl);
  world.Desktop.Answer(kBrowserError, forms::msgbox::AnswerOk);
  OpenUrl(kUrl);
  ASSERT_EQ(world.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(world.Desktop.Boxes()[0].Flags, kErrorFlags);
  EXPECT_EQ(world.Desktop.Boxes()[0].Title, "Corvelle");
  HaveBrowser(kExplorer, "IExplore");
  OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told().size(), 1U);
}

TEST_F(OpenUrlTest, ABrowserThatTheUserRefusesEndsItQuietly) {
  HaveBrowser(kExplorer);
  world.Shell.FailToOpen(kExplorer, OpenError::Cancelled);
  OpenUrl(kUrl);
  EXPECT_EQ(world.Shell.Log().size(), 1U);
  EXPECT_TRUE(browser.BrowserUseDde);
}

TEST_F(OpenUrlTest, AnAddressThatTheUserRefusesToOpenEndsItQuietly) {
  world.Associations.Set(".url", kOther);
  world.Shell.FailToOpen(kUrl, OpenError::Cancelled);
  OpenUrl(kUrl);
  EXPECT_EQ(world.Shell.Log().size(), 1U);
  EXPECT_TRUE(browser.BrowserUseShell);
}

TEST_F(OpenUrlTest, AnAddressCannotEndItsArgument) {
  HaveBrowser(kExplorer);
  OpenUrl("http://a\" -flag");
  ASSERT_EQ(world.Shell.Log().size(), 1U);
  EXPECT_EQ(world.Shell.Log()[0].Parameters, "http://a%22%20-flag");
}

// ---- a browser that does not answer ----

struct SlowBrowserTest : BrowserDesk {};

TEST_F(SlowBrowserTest, AConversationThatIsNotAnsweredHoldsUpNothing) {
  HaveBrowser(kExplorer, "IExplore");
  world.Starts.Hang();
  OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Tries(), 0) << "nothing is asked by the windows themselves";
  EXPECT_TRUE(world.Files.Log().empty());
  LaunchItem(program.Launch, kOther);
  EXPECT_EQ(world.Starts.UnderWay(), 2) << "the next choice is started beside it";
  world.Starts.Resume();
  EXPECT_EQ(world.Dde.Told(), (std::vector<DdeCommand>{{"IExplore", kTopic, kItem}}));
  EXPECT_EQ(world.Shell.Started(), std::vector<std::string>{kOther});
}

TEST_F(SlowBrowserTest, ASecondPressMeanwhileIsNotASecondStart) {
  HaveBrowser(kExplorer, "IExplore");
  world.Starts.Hang();
  OpenUrl(kUrl);
  OpenUrl(kUrl);
  OpenUrl("http://b.example/");
  EXPECT_EQ(world.Starts.UnderWay(), 2);
  world.Starts.Resume();
  EXPECT_EQ(world.Dde.Told().size(), 2U);
  OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told().size(), 3U) << "a press after the end is a start of its own";
}

TEST_F(SlowBrowserTest, ALateFailureIsToldWhenItIsKnown) {
  world.Shell.Fail(kUrl);
  world.Starts.Hang();
  std::vector<bool> told;
  browser.OpenUrl(kUrl, [&told](bool taken) { told.push_back(taken); });
  EXPECT_TRUE(world.Desktop.Boxes().empty());
  world.Desktop.Answer(kBrowserError, forms::msgbox::AnswerOk);
  world.Starts.Resume();
  EXPECT_EQ(world.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(told, std::vector<bool>{false});
}

TEST_F(SlowBrowserTest, ABrowserThatIsChosenMeanwhileStaysChosen) {
  HaveBrowser(kExplorer);
  world.Starts.Hang();
  OpenUrl(kUrl);
  EXPECT_TRUE(IsTaken(kNetscape));
  world.Starts.Resume();
  EXPECT_EQ(browser.BrowserCommand, kNetscape);
  EXPECT_EQ(browser.BrowserApplication, "NSShell");
  EXPECT_TRUE(browser.BrowserUseDde);
}

TEST_F(SlowBrowserTest, ABrowserThatEndedIsToldNothing) {
  world.Shell.Fail(kUrl);
  world.Starts.Hang();
  {
    Browser ending(BrowserPartsOf(program));
    ending.OpenUrl(kUrl, {});
  }
  world.Starts.Resume();
  EXPECT_TRUE(world.Desktop.Boxes().empty());
}

// ---- choosing a browser ----

struct BrowserChoiceTest : BrowserDesk {};

TEST_F(BrowserChoiceTest, TheDefaultBrowserIsLookedForWithTheNextAddress) {
  world.Files.Put(kIniFile, "Command=c:\\ie\\iexplore.exe\r\nApplication=IExplore\r\n");
  world.Dde.AddServer("IExplore", kTopic);
  OpenUrl(kUrl);
  HaveBrowser(kNetscape, "NSShell");
  browser.UseDefaultBrowser();
  EXPECT_FALSE(world.Files.Has(kIniFile));
  EXPECT_EQ(browser.BrowserCommand, "");
  EXPECT_EQ(browser.BrowserApplication, "");
  EXPECT_FALSE(browser.BrowserUseDde);
  OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told().back().Service, "NSShell");
}

TEST_F(BrowserChoiceTest, AChosenBrowserIsNotedAndUsedFromThenOn) {
  world.Dde.AddServer("NSShell", kTopic);
  EXPECT_TRUE(IsTaken(kNetscape));
  EXPECT_EQ(world.Files.Get(kIniFile),
            "Command=" + std::string(kNetscape) + "\r\nApplication=NSShell\r\n");
  OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told(), (std::vector<DdeCommand>{{"NSShell", kTopic, kItem}}));
}

TEST_F(BrowserChoiceTest, AChosenLinkStandsForItsTarget) {
  PutLink("C:\\browser.lnk", kExplorer);
  Choose("C:\\browser.LNK");
  world.Desktop.Pump();
  EXPECT_EQ(Chosen, std::vector<bool>{true});
  EXPECT_EQ(browser.BrowserCommand, kExplorer);
  EXPECT_EQ(browser.BrowserApplication, "IExplore");
}

TEST_F(BrowserChoiceTest, WhereAChosenLinkLeadsIsAskedBesideTheWindows) {
  PutLink("D:\\browser.lnk", kExplorer);
  world.Costs.SetPrice(
      [](std::string_view, std::string_view about) { return about.starts_with("D:") ? 1000 : 0; });
  world.SlowAnswers.Delay("D:", 1500);
  Choose("D:\\browser.lnk");
  world.Desktop.Pump();
  EXPECT_TRUE(Chosen.empty());
  EXPECT_FALSE(world.Files.Has(kIniFile));
  world.Desktop.Advance(1500);
  EXPECT_EQ(Chosen, std::vector<bool>{true});
  EXPECT_EQ(browser.BrowserCommand, kExplorer);
  EXPECT_EQ(world.Costs.Charged(), std::vector<std::string>{});
}

TEST_F(BrowserChoiceTest, ALinkOnADeadDriveIsRefusedWhenItIsGivenUp) {
  PutLink("D:\\browser.lnk", kExplorer);
  world.Costs.SetPrice(
      [](std::string_view, std::string_view about) { return about.starts_with("D:") ? 1000 : 0; });
  world.SlowAnswers.HangForGood("D:");
  world.Desktop.Answer(kUnsupported, forms::msgbox::AnswerOk);
  Choose("D:\\browser.lnk");
  world.Desktop.Advance(4900);
  EXPECT_TRUE(world.Desktop.Boxes().empty());
  world.Desktop.Advance(200);
  EXPECT_EQ(Chosen, std::vector<bool>{false});
  EXPECT_EQ(world.Desktop.Boxes().size(), 1U);
  EXPECT_FALSE(world.Files.Has(kIniFile));
  EXPECT_EQ(world.Costs.Charged(), std::vector<std::string>{});
}

TEST_F(BrowserChoiceTest, AnotherChoiceMeanwhileIsTheLast) {
  PutLink("D:\\browser.lnk", kExplorer);
  for (const bool toDefault : {false, true}) {
    world.SlowAnswers.Delay("D:", 1500);
    Chosen.clear();
    Choose("D:\\browser.lnk");
    if (toDefault) {
      browser.UseDefaultBrowser();
    } else {
      EXPECT_TRUE(IsTaken(kNetscape));
    }
    world.Desktop.Advance(3000);
    EXPECT_EQ(Chosen.size(), toDefault ? 0U : 1U);
    EXPECT_EQ(browser.BrowserCommand, toDefault ? "" : kNetscape);
  }
}

TEST_F(BrowserChoiceTest, AProgramThatEndsMeanwhileIsToldNothing) {
  PutLink("D:\\browser.lnk", kExplorer);
  world.SlowAnswers.Delay("D:", 1500);
  {
    Browser ending(BrowserPartsOf(program));
    ending.UseBrowser("D:\\browser.lnk", kNoWindow,
                      [this](bool taken) { Chosen.push_back(taken); });
  }
  world.Desktop.Advance(3000);
  EXPECT_TRUE(Chosen.empty());
}

TEST_F(BrowserChoiceTest, AnUnknownBrowserIsRefusedAndNothingIsWritten) {
  HaveBrowser(kExplorer, "IExplore");
  browser.InitBrowser();
  world.Desktop.Answer(kUnsupported, forms::msgbox::AnswerOk);
  EXPECT_FALSE(IsTaken(kOther));
  EXPECT_EQ(world.Desktop.Beeps(), 0);
  EXPECT_FALSE(world.Files.Has(kIniFile));
  EXPECT_EQ(browser.BrowserCommand, kExplorer);
}

TEST_F(BrowserChoiceTest, AChoiceThatCannotBeSavedLeavesTheOldBrowserInForce) {
  HaveBrowser(kExplorer, "IExplore");
  world.Files.FailFrom(1, FileError::DiskFull);
  EXPECT_FALSE(IsTaken(kNetscape));
  EXPECT_EQ(world.Desktop.Beeps(), 1);
  world.Files.StopFailing();
  OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told(), (std::vector<DdeCommand>{{"IExplore", kTopic, kItem}}));
}

TEST_F(BrowserChoiceTest, AChoiceThatCannotBeRemovedStaysInForceAndABeepSaysSo) {
  world.Files.Put(kIniFile, "Command=c:\\ie\\iexplore.exe\r\nApplication=IExplore\r\n");
  world.Dde.AddServer("IExplore", kTopic);
  world.Files.SetReadOnly(kIniFile, true);
  browser.UseDefaultBrowser();
  EXPECT_EQ(world.Desktop.Beeps(), 1);
  OpenUrl(kUrl);
  EXPECT_EQ(world.Dde.Told(), (std::vector<DdeCommand>{{"iexplore", kTopic, kItem}}));
  world.Files.SetReadOnly(kIniFile, false);
  browser.UseDefaultBrowser();
  EXPECT_FALSE(world.Files.Has(kIniFile));
  EXPECT_EQ(world.Desktop.Beeps(), 1);
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

TEST_F(OpenMailTest, AMailProgramThatTakesItsTimeIsStartedOnceAndHoldsUpNothing) {
  world.Shell.Fail("mailto:x");
  world.Starts.Hang();
  browser.OpenMail("mailto:x");
  browser.OpenMail("mailto:x");
  EXPECT_EQ(world.Starts.UnderWay(), 1);
  EXPECT_TRUE(world.Shell.Log().empty());
  world.Desktop.Answer(kMailError, forms::msgbox::AnswerOk);
  world.Starts.Resume();
  EXPECT_EQ(world.Desktop.Boxes().size(), 1U);
}

// ---- from an entry ----

struct LinkEntryTest : BrowserDesk {
  LinkEntryTest() { program.Ports.Browser = &browser; }
};

TEST_F(LinkEntryTest, AUrlFileLeadsToTheBrowser) {
  HaveBrowser(kExplorer, "IExplore");
  world.Files.Put("C:\\a.url", "[InternetShortcut]\r\nURL=http://a.example/\r\n");
  LaunchItem(program.Launch, "C:\\a.url");
  EXPECT_EQ(world.Dde.Told(), (std::vector<DdeCommand>{{"IExplore", kTopic, kItem}}));
}

TEST_F(LinkEntryTest, AMailEntryWithoutAMailProgramGivesTheMailMessage) {
  world.Shell.Fail("MAILTO:x");
  world.Desktop.Answer(kMailError, forms::msgbox::AnswerOk);
  LaunchItem(program.Launch, " MAILTO:x ");
  EXPECT_EQ(world.Desktop.Boxes().size(), 1U);
}

}  // namespace corvelle
