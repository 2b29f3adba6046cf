#include "core/Main.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/CoreDoubles.h"
#include "core/Instance.h"
#include "core/Program.h"
#include "core/Upgrade.h"
#include "platform/Platform.h"
#include "platform/SystemInfo.h"
#include "sim/World.h"

namespace corvelle {
namespace {

constexpr std::string_view kStartupQuestion =
    "Would you like to set Corvelle as a startup program?\r\n"
    "If you choose No, you can set it later from the Customize window under the Options menu.";
constexpr std::string_view kRunning =
    "Corvelle is already running. If you have minimized it to the taskbar, click its icon on the "
    "taskbar to activate it. If you have set it to Auto Hide, point your mouse to its previous "
    "position.";

/// A look at the icons that takes its time.
class SlowIconRule final : public IconRulePort {
 public:
  explicit SlowIconRule(sim::SimDesktop& desktop) : desktop_(desktop) {}
  void DetectShellIcons() override { desktop_.Jump(10); }

 private:
  sim::SimDesktop& desktop_;
};

/// Another copy that ends after so many questions, or has its window by then.
class OtherCopy {
 public:
  explicit OtherCopy(sim::World& world) : world_(world) {
    world_.System.OtherInstance = true;
    world_.System.OnInstanceAsked = [this] { BeAsked(); };
  }
  OtherCopy(const OtherCopy&) = delete;
  OtherCopy& operator=(const OtherCopy&) = delete;
  ~OtherCopy() { world_.System.OnInstanceAsked = nullptr; }

  int EndsAfter = 1000;
  int ShowsItselfAfter = 1000;
  int Asked = 0;

 private:
  void BeAsked() {
    if (++Asked == ShowsItselfAfter) {
      world_.Desktop.AddOtherWindow(
          {.Title = "Corvelle", .ClassName = "frmMinimize", .Visible = false});
    }
    world_.System.OtherInstance = Asked <= EndsAfter;
  }

  sim::World& world_;
};

/// An installation with windows that only write down what happens to them.
class MainTest : public testing::Test {
 protected:
  MainTest() {
    world.Files.Put("C:\\Corvelle\\corvelle.exe", "program");
    program.Ports.Toolbar = &toolbar;
    program.Ports.Minimize = &companion;
    program.Ports.Startup = &startup;
    program.Ports.IconRule = &iconRule;
    program.Ports.StartupLink = &link;
  }

  std::string Flags() { return world.Files.Get("C:\\Corvelle\\tmenu425.dat").value_or("none"); }
  void PutFlags(std::string_view flags) { world.Files.Put("C:\\Corvelle\\tmenu425.dat", flags); }
  bool Happened(std::string_view what) const {
    return std::find(log.begin(), log.end(), what) != log.end();
  }
  int Dots() const { return static_cast<int>(std::count(log.begin(), log.end(), "dot")); }

  sim::World world;
  CallLog log;
  LoggingToolbar toolbar{log};
  LoggingMinimize companion{log};
  LoggingStartup startup{log};
  LoggingIconRule iconRule{log};
  LoggingStartupLink link{log};
  Program program{world.Services(), world.Windows()};
};

// Flags by position:          12345678901234567890123456789012
constexpr char kInstalled[] = "11000000000000000010000100000001";

TEST_F(MainTest, StartsInItsGivenOrder) {
  PutFlags(kInstalled);
  EXPECT_TRUE(Main(program));
  EXPECT_EQ(log, (CallLog{"dot", "icons detected", "toolbar loads", "companion loads",
                          "startup window hides", "startup window unloads"}));
  EXPECT_FALSE(program.Guards.StartingUp);
  EXPECT_EQ(program.Title, "Corvelle");
}

TEST_F(MainTest, OptionNineKeepsTheStartupWindowAway) {
  std::string flags = kInstalled;
  flags[8] = '1';
  PutFlags(flags);
  EXPECT_TRUE(Main(program));
  EXPECT_EQ(Dots(), 0);
  EXPECT_FALSE(Happened("startup window hides"));
}

TEST_F(MainTest, NotOnTopPutsTheIconIntoTheTray) {
  std::string flags = kInstalled;
  flags[22] = '1';
  PutFlags(flags);
  EXPECT_TRUE(Main(program));
  EXPECT_TRUE(program.Strip.NotOnTop);
  EXPECT_EQ(log.back(), "into the tray");
}

TEST_F(MainTest, AFreshInstallationEndsWithTheDefaultFlagsButForTheEntries) {
  world.Desktop.Answer(std::string(kStartupQuestion), forms::msgbox::AnswerNo);
  EXPECT_TRUE(Main(program));
  // Position 2 is set where the default entries are made.
  EXPECT_EQ(Flags(), "10000000000001110010000101000001");
}

TEST_F(MainTest, YesMakesTheStartupLinkAndNoDoesNot) {
  world.Desktop.Answer(std::string(kStartupQuestion), forms::msgbox::AnswerYes);
  EXPECT_TRUE(Main(program));
  EXPECT_TRUE(Happened("link to C:\\Corvelle\\corvelle.exe"));
  ASSERT_EQ(world.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(world.Desktop.Boxes()[0].Flags, 36U + 262144U);
  EXPECT_EQ(world.Desktop.Boxes()[0].Owner, toolbar.WindowHandle());
  EXPECT_EQ(world.Desktop.Boxes()[0].Title, "Corvelle");
}

TEST_F(MainTest, NoLeavesTheStartupFolderAlone) {
  world.Desktop.Answer(forms::msgbox::AnswerNo);
  EXPECT_TRUE(Main(program));
  EXPECT_FALSE(link.There);
  EXPECT_EQ(Flags()[0], '1');
}

TEST_F(MainTest, AnEarlierCopysLinkIsMadeAnewWithoutAQuestion) {
  link.There = true;
  EXPECT_TRUE(Main(program));
  EXPECT_TRUE(Happened("link removed"));
  EXPECT_TRUE(Happened("link to C:\\Corvelle\\corvelle.exe"));
  EXPECT_TRUE(world.Desktop.Boxes().empty());
}

TEST_F(MainTest, WithPositionOneSetNothingIsAskedAndTheLinkStays) {
  PutFlags(kInstalled);
  link.There = true;
  EXPECT_TRUE(Main(program));
  EXPECT_TRUE(world.Desktop.Boxes().empty());
  EXPECT_FALSE(Happened("link removed"));
}

TEST_F(MainTest, WithoutShellLinksTheQuestionWaits) {
  program.Ports.StartupLink = nullptr;
  EXPECT_TRUE(Main(program));
  EXPECT_EQ(Flags()[0], '0');
}

TEST_F(MainTest, TheFirstRunOpensTheHelpOnTheDesktop) {
  world.Files.Put("C:\\Corvelle\\corvelle.hlp", "help");
  world.Desktop.Answer(forms::msgbox::AnswerNo);
  EXPECT_TRUE(Main(program));
  using Calls = std::vector<sim::SimSystemInfo::HelpCall>;
  EXPECT_EQ(world.System.HelpCalls, (Calls{{kNoWindow, "C:\\Corvelle\\corvelle.hlp", 1002}}));
}

TEST_F(MainTest, WithoutAHelpFileTheFirstRunOpensNone) {
  world.Desktop.Answer(forms::msgbox::AnswerNo);
  EXPECT_TRUE(Main(program));
  EXPECT_TRUE(world.System.HelpCalls.empty());
}

TEST_F(MainTest, HelpThatTheDesktopCannotShowIsTriedOnceMoreOnTheStrip) {
  world.Files.Put("C:\\Corvelle\\corvelle.hlp", "help");
  world.System.HasHelpViewer = false;
  world.Desktop.Answer(forms::msgbox::AnswerNo);
  EXPECT_TRUE(Main(program));
  using Calls = std::vector<sim::SimSystemInfo::HelpCall>;
  EXPECT_EQ(world.System.HelpCalls, (Calls{{kNoWindow, "C:\\Corvelle\\corvelle.hlp", 1002},
                                           {WindowId{77}, "C:\\Corvelle\\corvelle.hlp", 1002}}));
}

TEST_F(MainTest, ADamagedFlagFileReadsAsZeroWhereItIsNotOne) {
  PutFlags("1x 2" + std::string(27, '\xFF') + "1");
  EXPECT_TRUE(Main(program));
  EXPECT_EQ(program.OptionFlags.Text(), "1" + std::string(30, '0') + "1");
}

TEST_F(MainTest, FlagsOfAnOlderVersionStayButAskForTheFirstRunAgain) {
  world.Files.Put("C:\\Corvelle\\tmenu421.dat", "11100000100000000000000000000001");
  world.Desktop.Answer(forms::msgbox::AnswerNo);
  EXPECT_TRUE(Main(program));
  EXPECT_FALSE(world.Files.Has("C:\\Corvelle\\tmenu421.dat"));
  // Position 1 was cleared, the question came, and it is set again; position 2 stays clear.
  EXPECT_EQ(program.OptionFlags.Text(), "10100000100000000000000000000001");
  EXPECT_EQ(world.Desktop.Boxes().size(), 1U);
}

TEST_F(MainTest, FlagsOfAnOlderVersionAreNeverNowhere) {
  const std::string older = "C:\\Corvelle\\tmenu421.dat";
  for (int n = 1;; ++n) {
    sim::SimFiles disk;
    disk.Put(older, "11100000100000000000000000000001");
    disk.FailFrom(n, FileError::DiskFull);
    static_cast<void>(ReadFlagsAtStart(disk, "C:\\Corvelle\\"));
    const bool ended = disk.Hit();
    disk.StopFailing();
    const auto flags = ReadFlagsAtStart(disk, "C:\\Corvelle\\");
    ASSERT_TRUE(flags);
    EXPECT_EQ(flags->Text(), "00100000100000000000000000000001") << "ended at call " << n;
    if (!ended) break;
  }
}

TEST_F(MainTest, FlagsOfAnOlderVersionWithoutTheUpgradeMarkAreReset) {
  world.Files.Put("C:\\Corvelle\\tmenu421.dat", "11111111111111111111111111111110");
  world.Desktop.Answer(forms::msgbox::AnswerNo);
  EXPECT_TRUE(Main(program));
  EXPECT_EQ(program.OptionFlags.Text(), "10000000000001110010000101000001");
}

TEST_F(MainTest, TheUpgradeCleansDataFilesAndNothingElse) {
  PutFlags(std::string(32, '0'));
  for (const char* name : {"toolbarp.dat", "OTHERS.DAT", "netsrch.ini", "notes.txt"}) {
    world.Files.Put(std::string("C:\\Corvelle\\") + name, "x");
  }
  world.Files.Put("C:\\Corvelle\\Icons\\Others.dat", "x");
  world.Files.Put("C:\\Corvelle\\Icons\\keep.ico", "x");
  world.Files.Put("C:\\Corvelle\\Menus\\BMENU001.MNU", "x");
  world.Files.HoldOpen("C:\\Corvelle\\OTHERS.DAT");
  world.Desktop.Answer(forms::msgbox::AnswerNo);
  EXPECT_TRUE(Main(program));
  EXPECT_FALSE(world.Files.Has("C:\\Corvelle\\toolbarp.dat"));
  EXPECT_TRUE(world.Files.Has("C:\\Corvelle\\OTHERS.DAT")) << "a locked file is skipped";
  EXPECT_FALSE(world.Files.Has("C:\\Corvelle\\Icons\\Others.dat"));
  for (const char* name : {"notes.txt", "netsrch.ini", "Icons\\keep.ico", "Menus\\BMENU001.MNU"}) {
    EXPECT_TRUE(world.Files.Has(std::string("C:\\Corvelle\\") + name)) << name;
  }
}

TEST_F(MainTest, TheUpgradeTouchesNoDataFileOfOthersWhereverItIsUnpacked) {
  const std::string others[] = {"ntuser.dat",       "photos.dat",       "tmenu4.dat",
                                "tmenu4 notes.dat", "tmenu425.dat.dat", "mytoolbarp.dat",
                                "mainmenu.dat.dat", "Icons\\cache.dat", "Icons\\tmenu4x.dat",
                                "photos12.dat"};
  const std::string own[] = {"tmenu418.dat", "mainmenu.dat", "SFDATA.dat",
                             "nsearch.dat",  "clrlib.dat",   "Icons\\clrlib.dat"};
  for (const bool first : {true, false}) {
    if (!first) PutFlags(std::string(32, '0'));
    for (const std::string& name : others) world.Files.Put("C:\\Corvelle\\" + name, "x");
    for (const std::string& name : own) world.Files.Put("C:\\Corvelle\\" + name, "x");
    world.Desktop.Answer(forms::msgbox::AnswerNo);
    EXPECT_TRUE(Main(program));
    for (const std::string& name : others) {
      EXPECT_EQ(world.Files.Get("C:\\Corvelle\\" + name), "x") << name;
    }
    for (const std::string& name : own) {
      EXPECT_FALSE(world.Files.Has("C:\\Corvelle\\" + name)) << name;
    }
  }
}

TEST_F(MainTest, TheUpgradeCopiesTheFactoryListOfEnginesWhenThereIsNone) {
  world.Files.Put("C:\\Corvelle\\anetsrch.org", "engines");
  world.Desktop.Answer(forms::msgbox::AnswerNo);
  EXPECT_TRUE(Main(program));
  EXPECT_EQ(world.Files.Get("C:\\Corvelle\\netsrch.ini"), "engines");
}

TEST_F(MainTest, TheUpgradeKeepsAListOfEnginesThatIsThere) {
  world.Files.Put("C:\\Corvelle\\anetsrch.org", "engines");
  world.Files.Put("C:\\Corvelle\\netsrch.ini", "mine");
  world.Desktop.Answer(forms::msgbox::AnswerNo);
  EXPECT_TRUE(Main(program));
  EXPECT_EQ(world.Files.Get("C:\\Corvelle\\netsrch.ini"), "mine");
}

TEST_F(MainTest, AFlagFileThatIsHeldForTheMomentCleansNothingAway) {
  PutFlags(kInstalled);
  world.Files.Put("C:\\Corvelle\\toolbarp.dat", "1234");
  world.Files.HoldOpen("C:\\Corvelle\\tmenu425.dat");
  EXPECT_TRUE(Main(program));
  EXPECT_TRUE(world.Files.Has("C:\\Corvelle\\toolbarp.dat"));
  EXPECT_TRUE(world.Desktop.Boxes().empty());
}

TEST_F(MainTest, AFlagFileThatCannotBeReachedIsNoNewInstallation) {
  // A folder stands where the file should be.
  world.Files.MakeFolders("C:\\Corvelle\\tmenu425.dat");
  world.Files.Put("C:\\Corvelle\\toolbarp.dat", "1234");
  EXPECT_TRUE(Main(program));
  EXPECT_TRUE(world.Files.Has("C:\\Corvelle\\toolbarp.dat"));
  EXPECT_TRUE(world.Desktop.Boxes().empty());
  // An installed version: its entries are there, and its questions have been asked.
  EXPECT_TRUE(program.OptionFlags.Is(Option::FirstRunDone));
  EXPECT_TRUE(program.OptionFlags.Is(Option::DefaultEntriesOffered));
  EXPECT_FALSE(program.OptionFlags.Is(Option::AutoHide));
}

TEST_F(MainTest, WhereTheFlagsCannotBeKeptTheQuestionIsNotAskedAtEachStart) {
  world.Files.Put("C:\\Corvelle\\corvelle.hlp", "help");
  world.Files.Protect("C:\\Corvelle");
  link.There = true;
  EXPECT_TRUE(Main(program));
  EXPECT_TRUE(world.Desktop.Boxes().empty());
  EXPECT_FALSE(Happened("link removed"));
  EXPECT_EQ(Flags(), "none");
}

TEST_F(MainTest, AFullDiskDoesNotStopTheStart) {
  world.Files.FillDisk(0);
  EXPECT_TRUE(Main(program));
  EXPECT_TRUE(program.OptionFlags.Is(Option::UpgradeDone));
  EXPECT_TRUE(toolbar.WindowLoaded());
}

TEST_F(MainTest, ASecondInstanceWakesTheFirstAndEnds) {
  world.System.OtherInstance = true;
  const WindowId first = world.Desktop.AddOtherWindow(
      {.Title = "CORVELLE", .ClassName = "frmMinimize", .Visible = false});
  EXPECT_FALSE(Main(program));
  using Sent = std::vector<sim::SentMessage>;
  EXPECT_EQ(world.Desktop.Sent(), (Sent{{first, forms::message::Size, 0, 0}}));
  EXPECT_TRUE(log.empty());
  EXPECT_FALSE(world.Files.Has("C:\\Corvelle\\tmenu425.dat"));
}

TEST_F(MainTest, AMinimizedFirstInstanceIsBroughtBack) {
  world.System.OtherInstance = true;
  const WindowId first = world.Desktop.AddOtherWindow(
      {.Title = "Corvelle", .ClassName = "frmMinimize", .Minimized = true});
  EXPECT_FALSE(Main(program));
  EXPECT_FALSE(world.Desktop.IsMinimized(first));
  // It is only asked for an answer.
  using Sent = std::vector<sim::SentMessage>;
  EXPECT_EQ(world.Desktop.Sent(), (Sent{{first, 0, 0, 0}}));
  EXPECT_TRUE(world.Desktop.Boxes().empty());
}

TEST_F(MainTest, AFirstInstanceThatHangsIsToldOf) {
  world.System.OtherInstance = true;
  for (const bool minimized : {false, true}) {
    SCOPED_TRACE(minimized);
    const WindowId first = world.Desktop.AddOtherWindow(
        {.Title = "Corvelle", .ClassName = "frmMinimize", .Minimized = minimized, .Hangs = true});
    world.Desktop.Answer(std::string(kRunning), forms::msgbox::AnswerOk);
    EXPECT_FALSE(Main(program));
    EXPECT_EQ(world.Desktop.Boxes().size(), minimized ? 2U : 1U);
    EXPECT_EQ(world.Desktop.IsMinimized(first), minimized);
    world.Desktop.CloseOther(first);
  }
}

TEST_F(MainTest, AFirstInstanceThatGoesWhileItIsWokenLetsTheNextOneStart) {
  PutFlags(kInstalled);
  world.System.OtherInstance = true;
  const WindowId first = world.Desktop.AddOtherWindow(
      {.Title = "Corvelle", .ClassName = "frmMinimize", .Visible = false});
  world.Desktop.SetAnswer(first, [&](std::uint32_t, std::uintptr_t, std::intptr_t) {
    world.Desktop.CloseOther(first);
    world.System.OtherInstance = false;
    return std::intptr_t{0};
  });
  EXPECT_TRUE(Main(program));
  EXPECT_TRUE(world.Desktop.Boxes().empty());
}

TEST_F(MainTest, AFolderWindowOfTheSameNameIsNotTheFirstInstance) {
  world.System.OtherInstance = true;
  world.Desktop.AddOtherWindow({.Title = "Corvelle", .ClassName = "CabinetWClass"});
  world.Desktop.Answer(std::string(kRunning), forms::msgbox::AnswerOk);
  EXPECT_FALSE(Main(program));
  EXPECT_TRUE(world.Desktop.Sent().empty());
}

TEST_F(MainTest, AFirstInstanceThatCannotBeWokenIsToldOf) {
  world.System.OtherInstance = true;
  world.Desktop.Answer(std::string(kRunning), forms::msgbox::AnswerOk);
  EXPECT_FALSE(Main(program));
  ASSERT_EQ(world.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(world.Desktop.Boxes()[0].Owner, kNoWindow);
  EXPECT_EQ(world.Desktop.Boxes()[0].Flags, 262208U);
  EXPECT_EQ(world.Desktop.Boxes()[0].Title, "Corvelle");
}

TEST_F(MainTest, AFirstInstanceThatIsJustEndingLetsTheNextOneStart) {
  PutFlags(kInstalled);
  OtherCopy other(world);
  other.EndsAfter = 3;
  Program next(world.Services(), world.Windows());
  EXPECT_TRUE(ClaimSession(next.Title, next.Services.System, next.Services.Desktop, next.Messages));
  EXPECT_EQ(other.Asked, 4);
  EXPECT_TRUE(world.Desktop.Boxes().empty());
}

TEST_F(MainTest, AFirstInstanceThatIsJustStartingIsWokenWhenItIsThere) {
  OtherCopy other(world);
  other.ShowsItselfAfter = 3;
  Program next(world.Services(), world.Windows());
  EXPECT_FALSE(
      ClaimSession(next.Title, next.Services.System, next.Services.Desktop, next.Messages));
  EXPECT_EQ(world.Desktop.Sent().size(), 1U);
  EXPECT_TRUE(world.Desktop.Boxes().empty());
}

TEST_F(MainTest, ACompanionClosedWhileTheQuestionIsUpEndsTheStart) {
  world.Files.Put("C:\\Corvelle\\corvelle.hlp", "help");
  world.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) { companion.UnloadWindow(); });
  world.Desktop.Answer(forms::msgbox::AnswerNo);
  EXPECT_FALSE(Main(program));
  EXPECT_TRUE(world.System.HelpCalls.empty());
}

TEST_F(MainTest, ACrashIsToldOnceByTheNextStart) {
  PutFlags(kInstalled);
  world.Crashes.Untold = "C:\\Crashes\\corvelle-1.txt";
  world.Desktop.Answer(
      "Corvelle ended unexpectedly the last time. A report about it is on this computer:\r\n"
      "C:\\Crashes\\corvelle-1.txt\r\n\r\nNothing has been sent to anyone.",
      forms::msgbox::AnswerOk);
  EXPECT_TRUE(Main(program));
  EXPECT_EQ(world.Desktop.Boxes().size(), 1U);
  EXPECT_TRUE(Main(program));
  EXPECT_EQ(world.Desktop.Boxes().size(), 1U);
}

TEST_F(MainTest, ACompanionClosedWhileACrashIsToldEndsTheStart) {
  PutFlags(kInstalled);
  world.Crashes.Untold = "C:\\Crashes\\corvelle-1.txt";
  world.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) { companion.UnloadWindow(); });
  world.Desktop.Answer(forms::msgbox::AnswerOk);
  EXPECT_FALSE(Main(program));
}

TEST_F(MainTest, ACompanionClosedBeforeTheQuestionLeavesItForTheNextStart) {
  // The last events before the question are the only ones after the windows are loaded.
  PutFlags("00000000100000000010000100000001");
  SlowIconRule slow(world.Desktop);
  program.Ports.IconRule = &slow;
  const forms::TimerId timer = world.Desktop.StartTimer(10, [this] { companion.UnloadWindow(); });
  EXPECT_FALSE(Main(program));
  world.Desktop.StopTimer(timer);
  EXPECT_TRUE(world.Desktop.Boxes().empty());
  EXPECT_EQ(Flags()[0], '0');
}

TEST_F(MainTest, ACompanionClosedWithTheStartupWindowEndsTheStartBeforeTheQuestion) {
  SlowIconRule slow(world.Desktop);
  program.Ports.IconRule = &slow;
  const forms::TimerId timer = world.Desktop.StartTimer(10, [this] { companion.UnloadWindow(); });
  EXPECT_FALSE(Main(program));
  world.Desktop.StopTimer(timer);
  ASSERT_TRUE(Happened("startup window hides"));
  EXPECT_TRUE(world.Desktop.Boxes().empty());
}

}  // namespace
}  // namespace corvelle
