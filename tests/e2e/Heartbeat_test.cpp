// The strip answers whatever a disk does: it is knocked at from outside while a folder hangs.

#include "e2e/Heartbeat.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "base/CodePage.h"
#include "core/MenuRecord.h"
#include "e2e/Hanging.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

namespace corvelle::e2e {
namespace {

using scenario::Button;
using scenario::ButtonMiddle;
using scenario::ChooseInMainMenu;
using scenario::FarAway;
using scenario::InstalledFlags;
using scenario::kFlagsFile;
using scenario::MainChoice;
using scenario::StartAndWait;
using scenario::WaitForMenuAt;
using scenario::WaitForNoMenu;
using scenario::Witness;
using scenario::WriteMenu;

// What a user notices is a tenth of a second. Beside other work a knock waits for the processor
// too: as long as the window that does nothing, and some more.
constexpr double kLongestGap = 400;
constexpr int kEntries = 20;
constexpr int kDeadSingles = 8;
constexpr int kDeadMenu = 2;  // buttons
constexpr int kQuickMenu = 3;

class StripHeartbeat : public testing::Test {
 protected:
  void SetUp() override {
    desk_.WriteFile(kFlagsFile, InstalledFlags());
    desk_.MovePointer(FarAway(desk_));
    WriteMenu(desk_, 2, "Letters", {Witness(desk_, "alpha"), Witness(desk_, "beta")});
  }

  /// The menu of a folder that will not answer, and a plain item.
  void WriteDeadFolder() {
    WriteMenu(desk_, 1, "Dead",
              {Witness(desk_, "near"),
               {.FTitle = "Far", .FIcon = "", .FName = std::string(HangingFolder::kPath) + "*.*"}});
  }
  /// A menu whose entries are files of a folder that will not answer, with their icons, and single
  /// buttons of some of them.
  void WriteDeadEntries() {
    std::vector<MenuRecord> entries;
    for (int i = 0; i < kEntries; ++i) {
      const std::string file = HangingFolder::File(i);
      entries.push_back({.FTitle = "Entry " + std::to_string(i), .FIcon = file, .FName = file});
    }
    WriteMenu(desk_, 1, "Dead", entries);
    for (int i = 0; i < kDeadSingles; ++i) {
      desk_.WriteFile("Menus\\" + SingleFileName(i + 1),
                      FormatRecord(entries[static_cast<std::size_t>(i)], Windows1252()));
    }
  }
  /// Says what was measured, and judges it.
  void Judge(const char* what) {
    strip_.Stop();
    idle_.Stop();
    work_.Stop();
    std::printf(
        "%s: longest gap %.0f ms in %d knocks; of a window that does nothing %.0f ms; %d ms of "
        "work "
        "took %.0f ms at most\n",
        what, strip_.Longest(), strip_.Answers(), idle_.Longest(), SameWork::kAlone,
        work_.Longest());
    EXPECT_GT(strip_.Answers(), 20);
    EXPECT_LT(strip_.Longest(), kLongestGap + 2 * idle_.Longest());
  }
  void Forget() {
    strip_.Forget();
    idle_.Forget();
    work_.Forget();
  }
  /// Opens the quick menu and starts its first item, as somebody who does not care for the other.
  void UseTheQuickMenu() {
    ASSERT_TRUE(scenario::OpenMenu(desk_, kQuickMenu));
    const std::size_t before = desk_.Launched().size();
    scenario::ClickItem(desk_, scenario::ItemMiddle(desk_, 1, 2));
    EXPECT_TRUE(desk_.Wait([&] { return desk_.Launched().size() > before; }));
    EXPECT_TRUE(WaitForNoMenu(desk_));
  }

  WineDesk desk_;
  IdleWindow window_;
  Heartbeat strip_{L"frmToolbar"};
  Heartbeat idle_{IdleWindow::kClass};
  SameWork work_;
};

TEST_F(StripHeartbeat, GoesOnWhileAMenuOverADeadFolderIsUp) {
  HangingFolder folder(30);
  WriteDeadFolder();
  ASSERT_TRUE(StartAndWait(desk_));
  ASSERT_TRUE(folder.Hang());
  Forget();
  ASSERT_TRUE(scenario::OpenMenu(desk_, kDeadMenu));
  desk_.Pause(6500);  // it is being read, cancelled, given up
  desk_.Picture("given-up");
  desk_.Key(scenario::kKeyEscape);
  ASSERT_TRUE(WaitForNoMenu(desk_));
  UseTheQuickMenu();
  Judge("a menu over a dead folder");
  folder.Answer();
}

TEST_F(StripHeartbeat, GoesOnWhileF5AsksADeadFolder) {
  HangingFolder folder(30);
  WriteDeadFolder();
  ASSERT_TRUE(StartAndWait(desk_));
  ASSERT_TRUE(scenario::OpenMenu(desk_, kDeadMenu));
  ASSERT_TRUE(desk_.Wait([&] { return desk_.BoundsOf("frmQMenu").Height() > 300; }));
  ASSERT_TRUE(folder.Hang());
  Forget();
  for (int i = 0; i < 3; ++i) {
    desk_.Key(scenario::kKeyF5);
    desk_.Pause(700);
  }
  EXPECT_TRUE(desk_.IsVisible("frmQMenu"));
  desk_.Key(scenario::kKeyEscape);
  ASSERT_TRUE(WaitForNoMenu(desk_));
  UseTheQuickMenu();
  Judge("F5 over a dead folder");
  folder.Answer();
}

TEST_F(StripHeartbeat, GoesOnAtAStartWithTwentyDeadEntries) {
  HangingFolder folder(kEntries);
  WriteDeadEntries();
  ASSERT_TRUE(folder.Hang());
  const double began = NowInMilliseconds();
  ASSERT_TRUE(StartAndWait(desk_));
  std::printf("the strip stood after %.0f ms\n", NowInMilliseconds() - began);
  ASSERT_TRUE(scenario::OpenMenu(desk_, kDeadMenu));
  desk_.Pause(3000);
  desk_.Picture("dead-entries");
  desk_.Key(scenario::kKeyEscape);
  ASSERT_TRUE(WaitForNoMenu(desk_));
  UseTheQuickMenu();
  Judge("a start with twenty dead entries");
  folder.Answer();
}

TEST_F(StripHeartbeat, GoesOnAfterAStartWithDeadIconsOfSingleButtons) {
  WriteMenu(desk_, 1, "Near", {Witness(desk_, "near")});
  HangingFolder folder(kDeadSingles);
  for (int i = 0; i < kDeadSingles; ++i) {
    const std::string file = HangingFolder::File(i);
    desk_.WriteFile("Menus\\" + SingleFileName(i + 1),
                    FormatRecord({.FTitle = "Far", .FIcon = file, .FName = file}, Windows1252()));
  }
  ASSERT_TRUE(folder.Hang());
  const double began = NowInMilliseconds();
  ASSERT_TRUE(StartAndWait(desk_));
  std::printf("the strip stood after %.0f ms\n", NowInMilliseconds() - began);
  Forget();
  desk_.Pause(6500);  // they are being looked for, cancelled, given up
  desk_.Picture("dead-icons");
  UseTheQuickMenu();
  Judge("dead icons of single buttons");
  folder.Answer();
}

TEST_F(StripHeartbeat, GoesOnWhileAllIsRefreshedOverDeadEntries) {
  HangingFolder folder(kEntries);
  WriteDeadEntries();
  ASSERT_TRUE(StartAndWait(desk_));
  desk_.Pause(1000);  // their icons have come
  ASSERT_TRUE(folder.Hang());
  Forget();
  for (int i = 0; i < 2; ++i) {
    ASSERT_TRUE(ChooseInMainMenu(desk_, MainChoice::RefreshAll));
    ASSERT_TRUE(WaitForNoMenu(desk_));
    desk_.Pause(1500);
  }
  ASSERT_TRUE(scenario::OpenMenu(desk_, kDeadMenu));
  desk_.Pause(3000);
  desk_.Picture("refreshed");
  desk_.Key(scenario::kKeyEscape);
  ASSERT_TRUE(WaitForNoMenu(desk_));
  UseTheQuickMenu();
  Judge("Refresh All over dead entries");
  folder.Answer();
}

TEST_F(StripHeartbeat, GoesOnWhileTheProgramIsStartedAgainOverDeadEntries) {
  HangingFolder folder(kEntries);
  WriteDeadEntries();
  ASSERT_TRUE(StartAndWait(desk_));
  desk_.Pause(1000);
  ASSERT_TRUE(folder.Hang());
  Forget();
  for (int i = 0; i < 3; ++i) {
    const double began = NowInMilliseconds();
    desk_.StartCorvelle();
    ASSERT_EQ(desk_.RunningCopies(), 2);
    ASSERT_TRUE(desk_.Wait([&] { return desk_.RunningCopies() == 1; }));
    std::printf("the second start had ended after %.0f ms\n", NowInMilliseconds() - began);
    desk_.Pause(700);
  }
  EXPECT_TRUE(desk_.Messages().empty());
  EXPECT_TRUE(desk_.IsVisible("frmToolbar"));
  UseTheQuickMenu();
  Judge("a second start over dead entries");
  folder.Answer();
}

TEST_F(StripHeartbeat, GoesOnWhileFilesOfADeadFolderAreDropped) {
  HangingFolder folder(3);
  WriteDeadFolder();
  ASSERT_TRUE(StartAndWait(desk_));
  const PixelPoint away = FarAway(desk_);
  desk_.OpenDragSource({away.x - 100, away.y - 60, away.x + 100, away.y + 60},
                       {HangingFolder::File(0), HangingFolder::File(1)}, {}, {});
  ASSERT_TRUE(folder.Hang());
  Forget();
  desk_.DragTo(away, ButtonMiddle(desk_, kDeadMenu));
  ASSERT_TRUE(WaitForMenuAt(desk_, kDeadMenu));
  desk_.Release(Button::Left);
  desk_.Pause(2500);
  desk_.Picture("dropped");
  Judge("a drop of dead files");
  folder.Answer();
}

TEST_F(StripHeartbeat, GoesOnWhileADeadEntryIsStarted) {
  HangingFolder folder(1);
  // On a server: of a drive Wine enters the working folder first, and holds the whole program.
  const std::string program = R"(\\hanging\share\tool.exe)";
  WriteMenu(desk_, 1, "Dead", {{.FTitle = "Far", .FIcon = "", .FName = program}});
  ASSERT_TRUE(StartAndWait(desk_));
  ASSERT_TRUE(folder.Hang());
  Forget();
  ASSERT_TRUE(scenario::OpenMenu(desk_, kDeadMenu));
  scenario::ClickItem(desk_, scenario::ItemMiddle(desk_, 1, 1));
  EXPECT_TRUE(WaitForNoMenu(desk_));
  desk_.Pause(3000);
  Judge("a dead entry is started");
  EXPECT_TRUE(desk_.Messages().empty());
  desk_.AnswerNext(IDOK);
  folder.Answer();
  // It is no program: that is told when it is known.
  EXPECT_TRUE(desk_.Wait([&] { return desk_.Messages().size() == 1; }));
}

}  // namespace
}  // namespace corvelle::e2e
