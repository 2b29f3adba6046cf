// What an opening costs the user in time and the system in objects and memory.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

#include "core/MenuRecord.h"
#include "e2e/Heartbeat.h"
#include "e2e/MenuLook.h"
#include "e2e/ProcessCounts.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

namespace corvelle::e2e {
namespace {

using scenario::ButtonMiddle;
using scenario::InstalledFlags;
using scenario::kFlagsFile;
using scenario::StartAndWait;
using scenario::Witness;
using scenario::WriteMenu;

// ---- what is seen of a menu, and when ----

constexpr int kRows = 24;
constexpr double kNever = std::numeric_limits<double>::max();

/// When what was first seen, in milliseconds after the press.
struct Opening {
  double Captions = kNever;  // of the last row: all of them stand then
  double FirstIcon = kNever;
  double LastIcon = kNever;
  bool CaptionsAlone = false;  // all captions stood, and the last icon did not yet
};

/// Presses a button whose menu has kRows items, and looks until all is there.
Opening OpenAndWatch(WineDesk& desk, int button) {
  Opening opening;
  desk.MovePointer(ButtonMiddle(desk, button));
  desk.Pause(50);
  HWND menu = desk.Handle("frmQMenu");
  const int gap = desk.TwipsPerPixel() < 14 ? 6 : 7;
  const double pressed = NowInMilliseconds();
  desk.Press(scenario::Button::Left);
  desk.Release(scenario::Button::Left);
  while (NowInMilliseconds() < pressed + 8000 && opening.LastIcon == kNever) {
    if (menu == nullptr) menu = desk.Handle("frmQMenu");
    if (menu == nullptr || IsWindowVisible(menu) == FALSE) {
      Sleep(1);
      continue;
    }
    const MenuLook look(menu);
    const double now = NowInMilliseconds() - pressed;
    // The first label stands 6 pixels below the border; 13 are left below the last with the
    // borders.
    const int line = (look.Height() - 19 - (kRows - 1) * gap) / kRows;
    if (!look.IsRead() || line < 8) continue;
    const auto middle = [&](int row) { return 3 + 6 + row * (line + gap) + line / 2; };
    const bool captions = look.Colours(middle(kRows - 1), 29, 70) > 1;
    const bool first = look.Colours(middle(0), 6, 20) > 1;
    const bool last = look.Colours(middle(kRows - 1), 6, 20) > 1;
    if (captions) opening.Captions = std::min(opening.Captions, now);
    if (first) opening.FirstIcon = std::min(opening.FirstIcon, now);
    if (last) opening.LastIcon = std::min(opening.LastIcon, now);
    opening.CaptionsAlone = opening.CaptionsAlone || (captions && !last);
  }
  return opening;
}

/// Programs of their own, so that each icon has to be fetched.
void PutPrograms(const WineDesk& desk, const std::wstring& folder) {
  CreateDirectoryW(folder.c_str(), nullptr);
  for (int i = 0; i < kRows; ++i) {
    const std::wstring name = folder + L"\\tool " + std::to_wstring(100 + i) + L".exe";
    CopyFileW(Wide(desk.WitnessProgram()).c_str(), name.c_str(), TRUE);
  }
}

TEST(MenuCost, CaptionsStandSoonAndBeforeTheIcons) {
  constexpr int kMenus = 3;
  WineDesk desk;
  desk.WriteFile(kFlagsFile, InstalledFlags());
  for (int menu = 1; menu <= kMenus; ++menu) {
    const std::string folder = "C:\\tools" + std::to_string(menu);
    WriteMenu(desk, menu, "Tools", {{.FTitle = "Tools", .FIcon = "", .FName = folder + "\\*.*"}});
  }
  ASSERT_TRUE(StartAndWait(desk));
  // Only now, so that the start has not fetched their icons.
  double soonest = kNever;
  bool alone = false;
  for (int menu = 1; menu <= kMenus; ++menu) {
    PutPrograms(desk, L"C:\\tools" + std::to_wstring(menu));
    const Opening opening = OpenAndWatch(desk, menu + 1);
    std::printf("opening %d: captions after %.0f ms, first icon %.0f ms, last icon %.0f ms\n", menu,
                opening.Captions, opening.FirstIcon, opening.LastIcon);
    ASSERT_LT(opening.LastIcon, kNever) << menu;
    EXPECT_LE(opening.Captions, opening.LastIcon) << menu;
    soonest = std::min(soonest, opening.Captions);
    alone = alone || opening.CaptionsAlone;
    desk.Picture("folder-" + std::to_string(menu));
    desk.Key(scenario::kKeyEscape);
    ASSERT_TRUE(scenario::WaitForNoMenu(desk)) << menu;
  }
  EXPECT_LT(soonest, 1000);
  EXPECT_TRUE(alone);
  // From the cache all is there at once.
  const Opening again = OpenAndWatch(desk, 2);
  std::printf("again: captions after %.0f ms, last icon %.0f ms\n", again.Captions, again.LastIcon);
  EXPECT_LT(again.LastIcon, kNever);
}

// ---- what stays behind ----

/// Opens menus by the messages that a press and a release send, each answered when the menu stands.
class Opener {
 public:
  explicit Opener(const WineDesk& desk)
      : box_(desk.Handle("picToolbar")), menu_(desk.Handle("frmQMenu")) {
    RECT bounds = {};
    GetWindowRect(box_, &bounds);
    pitch_ = static_cast<int>(bounds.bottom - bounds.top) + 2;
  }

  /// True if the menu was up afterwards.
  [[nodiscard]] bool Open(int button) const {
    const int x = (button - 1) * pitch_ + pitch_ / 2;
    const LPARAM place = MAKELPARAM(x, pitch_ / 2);
    DWORD_PTR ignored = 0;
    SendMessageTimeoutW(box_, WM_LBUTTONDOWN, MK_LBUTTON, place, SMTO_NORMAL, 5000, &ignored);
    const bool up = IsWindowVisible(menu_) != FALSE;
    SendMessageTimeoutW(box_, WM_LBUTTONUP, 0, place, SMTO_NORMAL, 5000, &ignored);
    return up;
  }
  /// F5 on the open menu, which reads its file anew.
  void Rebuild() const {
    DWORD_PTR ignored = 0;
    SendMessageTimeoutW(menu_, WM_KEYDOWN, VK_F5, 1, SMTO_NORMAL, 5000, &ignored);
  }

 private:
  HWND box_;
  HWND menu_;
  int pitch_ = 0;
};

void Say(const char* when, const ProcessCounts& counts) {
  std::printf("%s: %d GDI, %d USER, %zu KB private\n", when, counts.Gdi, counts.User,
              counts.PrivateBytes / 1024);
}

TEST(MenuCost, OpeningsAndRebuildsLeaveNothingBehind) {
  constexpr int kMenus = 30;
  constexpr int kSingles = 10;
  constexpr int kRebuiltEach = 50;
  constexpr double kLongest = 35000;  // on a busy machine there are fewer than two thousand
  WineDesk desk;
  desk.WriteFile(kFlagsFile, InstalledFlags({26}));
  for (int menu = 1; menu <= kMenus; ++menu) {
    std::vector<MenuRecord> items;
    for (int item = 1; item <= 10; ++item) items.push_back(Witness(desk, std::to_string(item)));
    WriteMenu(desk, menu, "Menu " + std::to_string(menu), items);
  }
  for (int i = 1; i <= kSingles; ++i) {
    const std::string number = std::to_string(1000 + i).substr(1);
    desk.WriteFile("Menus\\BMENU" + number + ".BTN",
                   scenario::MenuBytes("One", {Witness(desk, "single")}).substr(kRecordLength));
  }
  ASSERT_TRUE(StartAndWait(desk));
  ASSERT_EQ(scenario::ButtonCount(desk), kMenus + 1);
  const HWND strip = desk.Handle("frmToolbar");
  Say("after the start", CountsOf(strip));
  // By hand once, which makes the strip active; the pointer is then out of the way.
  ASSERT_TRUE(scenario::OpenMenu(desk, 2));
  desk.MovePointer(scenario::FarAway(desk));
  desk.Pause(200);
  const Opener opener(desk);
  int opened = 0;
  int missed = 0;
  const double began = NowInMilliseconds();
  const auto openUpTo = [&](int count) {
    // Each press is on another button than the one before, which would close the menu.
    while (opened < count && missed < 100) {
      if (opened >= 500 && NowInMilliseconds() > began + kLongest) break;
      ++(opener.Open(2 + (opened + missed + 1) % kMenus) ? opened : missed);
      if (opened % kRebuiltEach == 0) opener.Rebuild();
    }
    std::printf("%.1f ms for each of %d openings, %d times no menu came\n",
                (NowInMilliseconds() - began) / (opened + missed), opened, missed);
  };
  // What F5 does is seen by a file with more items.
  const int height = desk.BoundsOf("frmQMenu").Height();
  std::vector<MenuRecord> more(20, Witness(desk, "more"));
  WriteMenu(desk, 1, "Menu 1", more);
  opener.Rebuild();
  ASSERT_TRUE(desk.Wait([&] { return desk.BoundsOf("frmQMenu").Height() > height; }, 5000));
  openUpTo(100);
  ASSERT_EQ(opened, 100);
  const ProcessCounts early = CountsOf(strip);
  Say("after 100 openings", early);
  openUpTo(500);
  ASSERT_EQ(opened, 500);
  const ProcessCounts middle = CountsOf(strip);
  Say("after 500 openings", middle);
  openUpTo(2000);
  const ProcessCounts late = CountsOf(strip);
  Say("at the end", late);
  EXPECT_EQ(missed, 0);
  ASSERT_GT(early.Gdi, 0);
  ASSERT_GT(early.User, 0);
  ASSERT_GT(early.PrivateBytes, 0U);
  EXPECT_LE(late.Gdi, early.Gdi + 10);
  EXPECT_LE(late.User, early.User + 250);
  EXPECT_LT(middle.PrivateBytes, early.PrivateBytes + (2U << 20U));
  EXPECT_LT(late.PrivateBytes, early.PrivateBytes + (4U << 20U));
}

}  // namespace
}  // namespace corvelle::e2e
