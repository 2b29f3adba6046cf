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

constexpr int kFirst = 5;  // openings after which everything that is kept has been made
constexpr int kRounds = 3;

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
    // By hand once, which makes the strip active; the pointer is then out of the way.
    ASSERT_TRUE(scenario::OpenMenu(desk_, 2));
    desk_.MovePointer(scenario::FarAway(desk_));
    desk_.Key(scenario::kKeyEscape);
    ASSERT_TRUE(scenario::WaitForNoMenu(desk_));
  }

  // The hand is quicker than one at the mouse: it puts messages into the program's windows.

  bool WaitFor(std::string_view window, bool visible = true) {
    return desk_.Wait([&] { return desk_.IsVisible(window) == visible; });
  }
  static bool Send(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    DWORD_PTR ignored = 0;
    return SendMessageTimeoutW(window, message, wParam, lParam, SMTO_NORMAL, 8000, &ignored) != 0;
  }
  /// Where the program's keyboard is.
  [[nodiscard]] HWND Focus() const {
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    const DWORD thread = GetWindowThreadProcessId(strip_, nullptr);
    return GetGUIThreadInfo(thread, &info) != FALSE ? info.hwndFocus : nullptr;
  }
  void PutKey(WPARAM key) const { PostMessageW(Focus(), WM_KEYDOWN, key, 1); }
  bool WaitForKeyboardIn(std::string_view window) {
    return desk_.Wait([&] {
      HWND focus = Focus();
      return focus != nullptr && GetAncestor(focus, GA_ROOT) == desk_.Handle(window);
    });
  }
  bool CloseByEscape(std::string_view window) {
    if (!WaitForKeyboardIn(window)) return false;
    PutKey(VK_ESCAPE);
    return WaitFor(window, false);
  }
  static void PutClick(HWND window, PixelPoint at) {
    const LPARAM place = MAKELPARAM(at.x, at.y);
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, place);
    PostMessageW(window, WM_LBUTTONUP, 0, place);
  }
  bool OpenMenu(int button) {
    const PixelPoint middle = ButtonMiddle(desk_, button);
    const PixelRect box = desk_.BoundsOf("picToolbar");
    HWND strip = desk_.Handle("picToolbar");
    const LPARAM place = MAKELPARAM(middle.x - box.left, middle.y - box.top);
    return Send(strip, WM_LBUTTONDOWN, MK_LBUTTON, place) && Send(strip, WM_LBUTTONUP, 0, place) &&
           WaitFor("frmQMenu");
  }
  /// Selects an item counted from the end of the open menu, and chooses it.
  bool ChooseFromEnd(int item) {
    HWND menu = desk_.Handle("frmQMenu");
    for (int i = 0; i < item; ++i) {
      if (!Send(menu, WM_KEYDOWN, VK_UP, 1)) return false;
    }
    PostMessageW(menu, WM_KEYDOWN, VK_RETURN, 1);
    return true;
  }
  /// The tab of that number, from 0, of the tab strip in a window.
  void ShowTab(std::string_view window, int tab) {
    HWND tabs = FindWindowExW(desk_.Handle(window), nullptr, L"SysTabControl32", nullptr);
    if (tabs == nullptr) tabs = desk_.Handle("TabStrip1");
    // Nothing outside can ask for its rectangle: tabs are wider than high.
    PutClick(tabs, {kTabWidth / 2 + tab * kTabWidth, 8});
  }
  bool OpenProperties() {
    if (!OpenMenu(2)) return false;
    const PixelRect menu = desk_.BoundsOf("frmQMenu");
    const PixelPoint item = ItemMiddle(desk_, 1, 2);
    const LPARAM place = MAKELPARAM(item.x - menu.left, item.y - menu.top);
    HWND window = desk_.Handle("frmQMenu");
    if (!Send(window, WM_MOUSEMOVE, 0, place)) return false;
    PostMessageW(window, WM_RBUTTONDOWN, MK_RBUTTON, place);
    PostMessageW(window, WM_RBUTTONUP, 0, place);
    const auto popup = [] { return FindWindowW(L"#32768", nullptr); };
    if (!desk_.Wait([&] { return popup() != nullptr && IsWindowVisible(popup()) != FALSE; }))
      return false;
    constexpr int kProperties = 13;  // its line
    for (int line = 0; line < kProperties; ++line) desk_.Key(scenario::kKeyDown);
    desk_.Key(scenario::kKeyEnter);
    return WaitFor("frmProperties");
  }
  bool CloseProperties() {
    if (!CloseByEscape("frmProperties")) return false;
    // The menu may have stayed up under it.
    if (desk_.IsVisible("frmQMenu")) PutKey(VK_ESCAPE);
    return WaitFor("frmQMenu", false);
  }

  /// Opens and closes, and expects that so many times hold nothing more at their end than at their
  /// beginning. What the system makes once and keeps may come in an early round; what each opening
  /// loses comes in all of them.
  void ExpectNothingIsLeft(const std::function<bool()>& openAndClose, int often = 20) {
    for (int i = 0; i < kFirst; ++i) ASSERT_TRUE(openAndClose()) << i;
    const int openings = often * Times();
    ProcessCounts before = Settled();
    ProcessCounts after;
    for (int round = 0; round < kRounds; ++round) {
      for (int i = 0; i < openings; ++i) ASSERT_TRUE(openAndClose()) << i;
      after = Settled();
      Say("before", before);
      std::printf("%d openings\n", openings);
      Say("after", after);
      if (after.Gdi == before.Gdi && after.Windows == before.Windows) break;
      if (round + 1 < kRounds) before = after;
    }
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
  static constexpr int kTabWidth = 60;     // pixels, about
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
    ShowTab("frmProperties", 1);
    if (!WaitFor("picButtons")) return false;
    ShowTab("frmProperties", 2);
    return WaitFor("Picture2") && CloseProperties();
  });
}

TEST_F(WindowCost, TheLibraryLeavesNothingBehind) {
  ASSERT_TRUE(OpenProperties());
  ASSERT_TRUE(WaitForKeyboardIn("frmProperties"));
  HWND title = Focus();
  desk_.Key(scenario::kKeyTab);  // to the icon
  ASSERT_TRUE(desk_.Wait([&] { return Focus() != title; }));
  ExpectNothingIsLeft([this] {
    PutKey(VK_F3);
    return WaitForKeyboardIn("frmLibrary") && CloseByEscape("frmLibrary") &&
           WaitForKeyboardIn("frmProperties");
  });
}

TEST_F(WindowCost, TheDialogForWebLinksLeavesNothingBehind) {
  const PixelPoint away = scenario::FarAway(desk_);
  desk_.OpenDragSource({away.x - 100, away.y - 60, away.x + 100, away.y + 60}, {},
                       "http://example.com/page", "A dragged page");
  // A drag takes its time.
  ExpectNothingIsLeft(
      [this] {
        desk_.BringToFront("DragSource");
        desk_.Pause(50);
        const PixelPoint button = ButtonMiddle(desk_, 2);
        desk_.DragTo(scenario::FarAway(desk_), button);
        // The system tells of a drag when the pointer moves, and a hand is never quite still.
        int step = 0;
        const auto menuIsUp = [&] {
          desk_.MovePointer({button.x + step++ % 2, button.y});
          return desk_.IsVisible("frmQMenu");
        };
        if (!desk_.Wait(menuIsUp)) return false;
        desk_.Pause(50);
        desk_.Release(scenario::Button::Left);
        if (!WaitFor("frmURL")) {
          std::printf("the drag ended with %s; the menu is %s\n", desk_.DragEnd().c_str(),
                      desk_.IsVisible("frmQMenu") ? "up" : "not up");
          return false;
        }
        return CloseByEscape("frmURL") && WaitFor("frmQMenu", false);
      },
      8);
}

TEST_F(WindowCost, NetSearchLeavesNothingBehind) {
  ExpectNothingIsLeft([this] {
    return OpenMenu(2) && ChooseFromEnd(1) && WaitFor("frmNetSearch") &&
           CloseByEscape("frmNetSearch");
  });
}

TEST_F(WindowCost, AboutLeavesNothingBehind) {
  ExpectNothingIsLeft([this] {
    if (!OpenMenu(1) || !ChooseFromEnd(5) || !WaitFor("frmAbout")) return false;
    for (int tab = 1; tab <= 2; ++tab) {
      ShowTab("frmAbout", tab);
      desk_.Pause(50);
    }
    return CloseByEscape("frmAbout");
  });
}

TEST_F(WindowCost, CustomizeLeavesNothingBehind) {
  ExpectNothingIsLeft([this] {
    if (!OpenMenu(1) || !ChooseFromEnd(11) || !WaitFor("frmCust")) return false;
    PostMessageW(desk_.Handle("frmCust"), WM_CLOSE, 0, 0);
    return WaitFor("frmCust", false);
  });
}

}  // namespace
}  // namespace corvelle::e2e
