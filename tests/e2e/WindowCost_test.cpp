// What the windows with controls leave behind in the system when they are opened and closed again
// and again.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>

#include "e2e/ProcessCounts.h"
#include "e2e/Times.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

namespace corvelle::e2e {
namespace {

using scenario::ButtonMiddle;
using scenario::ItemMiddle;
using scenario::MainChoice;

constexpr int kFirst = 5;  // openings after which everything that is kept has been made

/// A strip with one menu: an entry that starts the witness, and the word of Net Search.
class WindowCost : public ::testing::Test {
 protected:
  void SetUp() override {
    desk_.WriteFile(scenario::kFlagsFile, scenario::InstalledFlags({kNoLibraryTip}));
    desk_.WriteFile(scenario::kPositionFile,
                    scenario::PositionBytes(static_cast<float>(300 * desk_.TwipsPerPixel())));
    scenario::WriteMenu(desk_, 1, "Letters",
                        {scenario::Witness(desk_, "alpha"),
                         {.FTitle = "Search", .FIcon = "", .FName = "NetSearch"}});
    desk_.MovePointer(scenario::FarAway(desk_));
    ASSERT_TRUE(scenario::StartAndWait(desk_));
    strip_ = desk_.Handle("frmToolbar");
  }

  bool WaitForFront(std::string_view window) {
    return desk_.Wait([&] { return desk_.IsVisible(window) && desk_.ForegroundClass() == window; });
  }
  bool CloseByEscape(std::string_view window) {
    desk_.Key(scenario::kKeyEscape);
    return desk_.Wait([&] { return !desk_.IsVisible(window); });
  }
  void NextTab() {
    desk_.HoldKey(scenario::kKeyControl);
    desk_.Key(scenario::kKeyTab);
    desk_.LetKeyGo(scenario::kKeyControl);
  }
  bool OpenProperties() {
    if (!scenario::OpenMenu(desk_, 2)) return false;
    const PixelPoint item = ItemMiddle(desk_, 1, 2);
    desk_.MovePointer({item.x + 4, item.y});
    desk_.Pause(50);
    desk_.MovePointer(item);
    desk_.Pause(150);
    desk_.ChooseFromPopup("Properties");
    desk_.Click(item, scenario::Button::Right);
    return WaitForFront("frmProperties");
  }
  bool CloseProperties() {
    if (!CloseByEscape("frmProperties")) return false;
    // The menu may have stayed up under it.
    if (desk_.IsVisible("frmQMenu")) desk_.Key(scenario::kKeyEscape);
    return scenario::WaitForNoMenu(desk_);
  }

  /// Opens and closes, and expects that after so many times nothing more is held than after the
  /// first few.
  void ExpectNothingIsLeft(const std::function<bool()>& openAndClose) {
    for (int i = 0; i < kFirst; ++i) ASSERT_TRUE(openAndClose()) << i;
    const ProcessCounts before = Settled();
    const int openings = 20 * Times();
    for (int i = 0; i < openings; ++i) ASSERT_TRUE(openAndClose()) << i;
    const ProcessCounts after = Settled();
    Say("before", before);
    std::printf("%d openings\n", openings);
    Say("after", after);
    ASSERT_GT(before.Gdi, 0);
    ASSERT_GT(before.User, 0);
    ASSERT_GT(before.Windows, 0);
    EXPECT_EQ(after.Gdi, before.Gdi);
    EXPECT_EQ(after.Windows, before.Windows);
    // Other programs of the desktop have some of them.
    EXPECT_LE(after.User, before.User + std::min(openings / 2, 20));
    EXPECT_LT(after.PrivateBytes, before.PrivateBytes + (2U << 20U));
  }

  static constexpr int kNoLibraryTip = 5;  // options
  WineDesk desk_;
  HWND strip_ = nullptr;

 private:
  /// The counts once they no longer change: what a closed window held goes a moment later.
  ProcessCounts Settled() {
    desk_.MovePointer(scenario::FarAway(desk_));
    ProcessCounts counts = CountsOf(strip_);
    for (int i = 0; i < 10; ++i) {
      desk_.Pause(400);
      const ProcessCounts next = CountsOf(strip_);
      const bool same = next.Gdi == counts.Gdi && next.Windows == counts.Windows;
      counts = next;
      if (same) break;
    }
    return counts;
  }
  static void Say(const char* when, const ProcessCounts& counts) {
    std::printf("%s: %d GDI, %d USER, %d windows, %zu KB private\n", when, counts.Gdi, counts.User,
                counts.Windows, counts.PrivateBytes / 1024);
  }
};

TEST_F(WindowCost, PropertiesLeaveNothingBehind) {
  ExpectNothingIsLeft([this] { return OpenProperties() && CloseProperties(); });
}

TEST_F(WindowCost, ThePreviewLeavesNothingBehind) {
  ExpectNothingIsLeft([this] {
    if (!OpenProperties()) return false;
    NextTab();
    if (!desk_.Wait([this] { return desk_.IsVisible("picButtons"); })) return false;
    NextTab();
    if (!desk_.Wait([this] { return desk_.IsVisible("Picture2"); })) return false;
    return CloseProperties();
  });
}

TEST_F(WindowCost, TheLibraryLeavesNothingBehind) {
  ASSERT_TRUE(OpenProperties());
  desk_.Key(scenario::kKeyTab);
  ExpectNothingIsLeft([this] {
    desk_.Key(scenario::kKeyF3);
    if (!WaitForFront("frmLibrary")) return false;
    desk_.Pause(100);
    return CloseByEscape("frmLibrary") && WaitForFront("frmProperties");
  });
}

TEST_F(WindowCost, TheDialogForWebLinksLeavesNothingBehind) {
  const PixelPoint away = scenario::FarAway(desk_);
  desk_.OpenDragSource({away.x - 100, away.y - 60, away.x + 100, away.y + 60}, {},
                       "http://example.com/page", "A dragged page");
  ExpectNothingIsLeft([this] {
    desk_.BringToFront("DragSource");
    desk_.Pause(100);
    desk_.DragTo(scenario::FarAway(desk_), ButtonMiddle(desk_, 2));
    desk_.Release(scenario::Button::Left);
    return WaitForFront("frmURL") && CloseByEscape("frmURL") && scenario::WaitForNoMenu(desk_);
  });
}

TEST_F(WindowCost, NetSearchLeavesNothingBehind) {
  ExpectNothingIsLeft([this] {
    if (!scenario::OpenMenu(desk_, 2)) return false;
    scenario::ClickItem(desk_, ItemMiddle(desk_, 2, 2));
    return WaitForFront("frmNetSearch") && CloseByEscape("frmNetSearch");
  });
}

TEST_F(WindowCost, AboutLeavesNothingBehind) {
  ExpectNothingIsLeft([this] {
    if (!scenario::ChooseInMainMenu(desk_, MainChoice::About) || !WaitForFront("frmAbout"))
      return false;
    for (int tab = 0; tab < 2; ++tab) {
      NextTab();
      desk_.Pause(100);
    }
    return CloseByEscape("frmAbout");
  });
}

TEST_F(WindowCost, CustomizeLeavesNothingBehind) {
  ExpectNothingIsLeft([this] {
    if (!scenario::ChooseInMainMenu(desk_, MainChoice::Customize) || !WaitForFront("frmCust"))
      return false;
    desk_.Pause(100);
    desk_.HoldKey(scenario::kKeyAlt);
    desk_.Key('X');
    desk_.LetKeyGo(scenario::kKeyAlt);
    return desk_.Wait([this] { return !desk_.IsVisible("frmCust"); });
  });
}

}  // namespace
}  // namespace corvelle::e2e
