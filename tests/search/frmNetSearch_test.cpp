#include "search/frmNetSearch.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/Program.h"
#include "launch/Browser.h"
#include "launch/BuiltInCommands.h"
#include "launch/CommandDoubles.h"
#include "launch/LaunchItem.h"
#include "sim/World.h"

namespace corvelle {
namespace {

constexpr char kList[] = "C:\\Corvelle\\netsrch.ini";
constexpr char kFactory[] = "C:\\Corvelle\\anetsrch.org";
constexpr char kPast[] = "C:\\Corvelle\\nsearch.dat";
constexpr char kScratch[] = "C:\\Corvelle\\temphtml.htm";
constexpr char kEngines[] =
    "NAME=One\r\nURL=http://one.example/?q=[x]&n=1\r\n"
    "NAME=Two\r\nURL=https://two.example/?q=[utf8]\r\n"
    "NAME=Turned\r\nURL=http://three.example/]a[b\r\n"
    "NAME=Bare\r\nURL=http://four.example/\r\n"
    "NAME=Cut off";
constexpr char kNoList[] =
    "The file netsrch.ini couldn't be found in your system. No search engine will be available in "
    "the program.";
constexpr char kBadTemplate[] =
    "Error reading the file netsrch.ini for the selected search engine.";
constexpr char kQuestion[] = "Are you sure you want to clear all search items ?";
constexpr int kAlt = 18;
constexpr int kShift = 16;

/// The window with a browser that only notes the addresses, and its user.
class NetSearch : public testing::Test {
 protected:
  NetSearch() {
    world.Files.MakeFolders("C:\\Corvelle");
    world.Files.Put(kList, kEngines);
    program.Paths.AppPath = "C:\\Corvelle\\";
    program.Ports.Browser = &browser;
    program.Ports.BuiltInCommands = &words;
    program.Ports.NetSearch = window.get();
  }

  void Open() {
    window->LoadWindow();
    world.Desktop.Pump();
  }
  void Close() {
    window->UnloadWindow();
    world.Desktop.Pump();
  }
  /// The program ends and another one begins.
  void StartAgain() {
    Close();
    window = std::make_unique<frmNetSearch>(program);
    program.Ports.NetSearch = window.get();
    Open();
  }
  void Type(const std::string& text) { world.Desktop.Type(text); }
  void Key(int key) { world.Desktop.PressKey(key); }
  void PressWith(int modifier, int key) {
    world.Desktop.KeyDown(modifier);
    world.Desktop.PressKey(key);
    world.Desktop.KeyUp(modifier);
  }
  void ClickOn(const char* name) {
    const PixelRect at = world.Desktop.BoundsOf(world.Desktop.Find(name));
    world.Desktop.ClickAt((at.left + at.right) / 2, (at.top + at.bottom) / 2);
  }
  /// Types over what stands in the box and presses Enter; the window is brought back afterwards.
  void Search(const std::string& query) {
    window->cmbText.SetText("");
    window->cmbText.SetFocus();
    Type(query);
    Key(forms::key::Enter);
    Open();
  }
  [[nodiscard]] const std::vector<std::string>& List() const { return window->cmbText.Items(); }
  [[nodiscard]] const char* Focus() const {
    for (const char* name : {"cmbText", "cmbEngine", "cmdFind", "cmdClear"}) {
      if (world.Desktop.FocusWindow() == world.Desktop.Find(name)) return name;
    }
    return "elsewhere";
  }

  CallLog log;
  sim::World world;
  Program program{world.Services(), world.Windows()};
  LoggingBrowser browser{log};
  BuiltInCommands words{program};
  std::unique_ptr<frmNetSearch> window = std::make_unique<frmNetSearch>(program);
};

TEST_F(NetSearch, ShowsItsCaptionsAndTheFirstEngine) {
  Open();
  EXPECT_EQ(window->Caption(), "Net Search");
  EXPECT_FLOAT_EQ(window->Width(), 5500);
  EXPECT_EQ(window->Label1.Caption(), "Looking for:");
  EXPECT_EQ(window->Label2.Caption(), "Search with:");
  EXPECT_EQ(window->cmbEngine.Items(),
            (std::vector<std::string>{"One", "Two", "Turned", "Bare", "Cut off"}));
  EXPECT_EQ(window->cmbEngine.Text(), "One");
  EXPECT_EQ(window->EngineUrls.size(), 5U);
  EXPECT_TRUE(List().empty());
  EXPECT_STREQ(Focus(), "cmbText");
  EXPECT_EQ(world.Desktop.ForegroundWindow(), window->hWnd());
}

TEST_F(NetSearch, EnterSendsTheQueryAndMinimizesTheWindow) {
  Open();
  Type("a b+c");
  Key(forms::key::Enter);
  EXPECT_EQ(log, CallLog{"OpenUrl http://one.example/?q=a+b%2Bc&n=1"});
  EXPECT_TRUE(window->IsMinimized());
  EXPECT_EQ(List(), std::vector<std::string>{"a b+c"});
  EXPECT_EQ(window->cmbText.Text(), "a b+c");
}

TEST_F(NetSearch, TheButtonSendsItToo) {
  Open();
  Type("tea");
  ClickOn("cmdFind");
  EXPECT_EQ(log, CallLog{"OpenUrl http://one.example/?q=tea&n=1"});
}

TEST_F(NetSearch, AnEngineIsChosenByKeysAndEnterThereSendsTheQuery) {
  Open();
  window->cmbText.SetText("caf\xC3\xA9");
  Key(forms::key::Tab);
  EXPECT_STREQ(Focus(), "cmbEngine");
  Key(forms::key::Down);
  EXPECT_EQ(window->cmbEngine.Text(), "Two");
  Key(forms::key::Enter);
  EXPECT_EQ(log, CallLog{"OpenUrl https://two.example/?q=caf%C3%A9"});
}

TEST_F(NetSearch, LettersBeyondAsciiGoOutUnchangedWhereTheEngineSaysNothing) {
  Open();
  window->cmbText.SetText("caf\xC3\xA9");
  ClickOn("cmdFind");
  EXPECT_EQ(log, CallLog{"OpenUrl http://one.example/?q=caf\xC3\xA9&n=1"});
}

TEST_F(NetSearch, NothingTypedEndsTheOperation) {
  Open();
  Key(forms::key::Enter);
  Type("   ");
  Key(forms::key::Enter);
  EXPECT_TRUE(log.empty());
  EXPECT_FALSE(window->IsMinimized());
  EXPECT_TRUE(List().empty());
}

TEST_F(NetSearch, ABracketThatIsMissingIsTold) {
  Open();
  window->cmbEngine.Select(3);
  world.Desktop.Answer(kBadTemplate, forms::msgbox::AnswerOk);
  Search("tea");
  ASSERT_EQ(world.Desktop.Boxes().size(), 1U);
  const sim::MessageBox& box = world.Desktop.Boxes().back();
  EXPECT_EQ(box.Title, "Corvelle");
  EXPECT_EQ(box.Flags, 0x40010U);
  EXPECT_EQ(box.Owner, window->hWnd());
  EXPECT_TRUE(log.empty());
  // The query is kept all the same.
  EXPECT_EQ(List(), std::vector<std::string>{"tea"});
}

TEST_F(NetSearch, AListThatEndsAfterANameRaisesTheErrorWhenThatEngineIsUsed) {
  Open();
  window->cmbEngine.Select(4);
  world.Desktop.Answer(kBadTemplate, forms::msgbox::AnswerOk);
  Search("tea");
  EXPECT_TRUE(log.empty());
}

TEST_F(NetSearch, BracketsInTheWrongOrderCutTheAddressWithoutAnError) {
  Open();
  window->cmbEngine.Select(2);
  Search("q");
  EXPECT_EQ(log, CallLog{"OpenUrl http://three.example/]aqa[b"});
}

TEST_F(NetSearch, AnEleventhQueryDropsTheOldestAndTheListNeverExceedsTen) {
  Open();
  for (int i = 1; i <= 11; ++i) Search("q" + std::to_string(i));
  ASSERT_EQ(List().size(), 10U);
  EXPECT_EQ(List().front(), "q11");
  EXPECT_EQ(List().back(), "q2");
}

TEST_F(NetSearch, AQueryInOtherCapitalsIsNotAddedTwice) {
  Open();
  Search("Tea");
  Search("coffee");
  Search("TEA");
  EXPECT_EQ(List(), (std::vector<std::string>{"coffee", "Tea"}));
  EXPECT_EQ(log.back(), "OpenUrl http://one.example/?q=TEA&n=1");
}

TEST_F(NetSearch, TheHistoryIsThereAgainAfterARestart) {
  Open();
  Search("one");
  Search("two");
  EXPECT_FALSE(world.Files.Get(kPast)) << "written on closing";
  StartAgain();
  EXPECT_EQ(world.Files.Get(kPast), "one\r\ntwo\r\n");
  EXPECT_EQ(List(), (std::vector<std::string>{"two", "one"}));
  EXPECT_EQ(window->cmbText.Text(), "");
}

TEST_F(NetSearch, APastQueryIsChosenFromTheListAndSentAgain) {
  world.Files.Put(kPast, "old\r\nnew\r\n");
  Open();
  Key(forms::key::Down);
  Key(forms::key::Down);
  EXPECT_EQ(window->cmbText.Text(), "old");
  Key(forms::key::Enter);
  EXPECT_EQ(log, CallLog{"OpenUrl http://one.example/?q=old&n=1"});
}

TEST_F(NetSearch, AnEmptyHistoryWritesNothing) {
  Open();
  Close();
  EXPECT_FALSE(world.Files.Get(kPast));
}

TEST_F(NetSearch, ADiskThatRefusesKeepsTheHistoryOfBefore) {
  world.Files.Put(kPast, "old\r\n");
  Open();
  Search("new");
  world.Files.HoldOpen(kPast);
  Close();
  EXPECT_FALSE(window->IsLoaded());
  EXPECT_EQ(world.Files.Get(kPast), "old\r\n");
}

TEST_F(NetSearch, ClearForgetsTheHistoryAndItsFile) {
  world.Files.Put(kPast, "old\r\n");
  Open();
  Type("typed");
  world.Desktop.Answer(kQuestion, forms::msgbox::AnswerYes);
  ClickOn("cmdClear");
  EXPECT_EQ(world.Desktop.Boxes().back().Title, "Corvelle - Net Search");
  EXPECT_EQ(world.Desktop.Boxes().back().Flags, forms::msgbox::YesNo);
  EXPECT_TRUE(List().empty());
  EXPECT_EQ(window->cmbText.Text(), "");
  EXPECT_FALSE(world.Files.Get(kPast));
  Close();
  EXPECT_FALSE(world.Files.Get(kPast));
}

TEST_F(NetSearch, ClearAnsweredWithNoChangesNothing) {
  world.Files.Put(kPast, "old\r\n");
  Open();
  world.Desktop.Answer(kQuestion, forms::msgbox::AnswerNo);
  ClickOn("cmdClear");
  EXPECT_EQ(List(), std::vector<std::string>{"old"});
  EXPECT_EQ(world.Files.Get(kPast), "old\r\n");
}

TEST_F(NetSearch, TheProgramMayEndWhileTheQuestionIsUp) {
  world.Files.Put(kPast, "old\r\n");
  Open();
  world.Desktop.Answer(kQuestion, forms::msgbox::AnswerYes);
  world.Desktop.WhileBoxIsUp([this](const sim::MessageBox&) { window->UnloadWindow(); });
  ClickOn("cmdClear");
  EXPECT_FALSE(window->IsLoaded());
}

TEST_F(NetSearch, WithoutItsListTheFactoryListIsCopied) {
  ASSERT_TRUE(world.Files.Remove(kList));
  world.Files.Put(kFactory, "NAME=Made\r\nURL=http://made.example/[]\r\n");
  Open();
  EXPECT_EQ(world.Files.Get(kList), world.Files.Get(kFactory));
  EXPECT_EQ(window->cmbEngine.Text(), "Made");
}

TEST_F(NetSearch, TheListOfAnInstalledProgramComesFromWhereTheProgramLies) {
  world.Files.Put("C:\\Programs\\Corvelle\\anetsrch.org",
                  "NAME=Made\r\nURL=http://made.example/[]\r\n");
  program.Paths.ShippedPath = "C:\\Programs\\Corvelle\\";
  world.Files.Vanish(kList);
  Open();
  EXPECT_EQ(world.Files.Get(kList), "NAME=Made\r\nURL=http://made.example/[]\r\n");
}

TEST_F(NetSearch, AListThatIsThereIsNotReplacedByTheFactoryList) {
  world.Files.Put(kFactory, "NAME=Made\r\nURL=http://made.example/[]\r\n");
  Open();
  EXPECT_EQ(world.Files.Get(kList), kEngines);
}

TEST_F(NetSearch, WithNeitherListItSaysSoAndOpensWithoutEngines) {
  ASSERT_TRUE(world.Files.Remove(kList));
  world.Desktop.Answer(kNoList, forms::msgbox::AnswerOk);
  Open();
  EXPECT_EQ(world.Desktop.Boxes().back().Flags, 262208U);
  EXPECT_TRUE(window->Visible());
  EXPECT_EQ(window->cmbEngine.Count(), 0);
  world.Desktop.Answer(kBadTemplate, forms::msgbox::AnswerOk);
  Search("tea");
  EXPECT_TRUE(log.empty());
}

TEST_F(NetSearch, TheProgramMayEndWhileTheMissingListIsTold) {
  ASSERT_TRUE(world.Files.Remove(kList));
  world.Desktop.Answer(kNoList, forms::msgbox::AnswerOk);
  world.Desktop.WhileBoxIsUp([this](const sim::MessageBox&) { window->UnloadWindow(); });
  Open();
  EXPECT_FALSE(window->IsLoaded());
}

TEST_F(NetSearch, ADamagedListOpensWithWhatCanBeRead) {
  std::string damaged = "\xFF\xFFNAME=no\r\nURL\r\n";
  damaged += std::string(3000, '\0') + "\r\nNAME=Good\nURL=http://good.example/[]\r\n\xC3";
  world.Files.Put(kList, damaged);
  Open();
  EXPECT_EQ(window->cmbEngine.Items(), std::vector<std::string>{"Good"});
  Search("tea");
  EXPECT_EQ(log, CallLog{"OpenUrl http://good.example/tea"});
}

TEST_F(NetSearch, ClosingDeletesTheScratchPage) {
  Open();
  world.Files.Put(kScratch, "<HTML> </HTML>");
  Close();
  EXPECT_FALSE(world.Files.Get(kScratch));
}

TEST_F(NetSearch, WithoutABrowserTheWindowComesBack) {
  browser.Takes = false;
  Open();
  Type("tea");
  Key(forms::key::Enter);
  EXPECT_EQ(log, CallLog{"OpenUrl http://one.example/?q=tea&n=1"});
  EXPECT_FALSE(window->IsMinimized());
  EXPECT_TRUE(window->Visible());
}

TEST_F(NetSearch, ItsWordInAnEntryOpensItAndBringsItBackFromTheTaskBar) {
  LaunchItem(program.Launch, "NETSEARCH");
  world.Desktop.Pump();
  ASSERT_TRUE(window->IsLoaded());
  Type("tea");
  Key(forms::key::Enter);
  ASSERT_TRUE(window->IsMinimized());
  LaunchItem(program.Launch, "?netsearch");
  world.Desktop.Pump();
  EXPECT_FALSE(window->IsMinimized());
  EXPECT_EQ(world.Desktop.ForegroundWindow(), window->hWnd());
  EXPECT_EQ(window->cmbText.Text(), "tea");
}

TEST_F(NetSearch, TheTabKeyGoesThroughAllItsControls) {
  Open();
  for (const char* next : {"cmbEngine", "cmdFind", "cmdClear", "cmbText"}) {
    Key(forms::key::Tab);
    EXPECT_STREQ(Focus(), next);
  }
  PressWith(kShift, forms::key::Tab);
  EXPECT_STREQ(Focus(), "cmdClear");
}

TEST_F(NetSearch, AccessKeysPressTheButtons) {
  Open();
  Type("tea");
  PressWith(kAlt, 'F');
  EXPECT_EQ(log, CallLog{"OpenUrl http://one.example/?q=tea&n=1"});
  Open();
  world.Desktop.Answer(kQuestion, forms::msgbox::AnswerYes);
  PressWith(kAlt, 'C');
  EXPECT_TRUE(List().empty());
}

TEST_F(NetSearch, EscClosesAnOpenListFirstAndThenTheWindow) {
  world.Files.Put(kPast, "old\r\n");
  Open();
  Key(forms::key::F4);
  ASSERT_TRUE(window->cmbText.IsDropped());
  Key(forms::key::Escape);
  EXPECT_FALSE(window->cmbText.IsDropped());
  ASSERT_TRUE(window->IsLoaded());
  Key(forms::key::Escape);
  EXPECT_FALSE(window->IsLoaded());
}

TEST_F(NetSearch, TheRealBrowserGetsTheAddress) {
  Browser real(program);
  program.Ports.Browser = &real;
  world.Shell.ClearLog();
  Open();
  window->cmbEngine.Select(1);
  Search("\xE6\x97\xA5 x");
  ASSERT_FALSE(world.Shell.Log().empty());
  EXPECT_EQ(world.Shell.Log().back().File, "https://two.example/?q=%E6%97%A5+x");
  EXPECT_TRUE(world.Shell.Log().back().Started);
}

}  // namespace
}  // namespace corvelle
