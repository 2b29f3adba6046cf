// A hand that opens and closes menus faster than the program lets events run dry.

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <iterator>
#include <string>

#include "e2e/ProcessCounts.h"
#include "e2e/StackUse.h"
#include "e2e/Times.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

namespace corvelle::e2e {
namespace {

using scenario::ButtonMiddle;

/// How long the hand goes on at most, where others take the processor: 500 openings take 5 s of a
/// machine of its own and a minute of one that twelve others want. Milliseconds.
constexpr ULONGLONG kLongEnough = 40000;

constexpr int kButtons[] = {2, 2, 3, 3};  // opens one menu, closes it, and then the other

/// Puts a press and a release at a point into the queue of input.
void PutClick(const WineDesk& desk, PixelPoint at) {
  const PixelSize screen = desk.ScreenSize();
  std::array<INPUT, 2> events = {};
  constexpr DWORD kThere = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
  constexpr std::array<DWORD, 2> kFlags = {kThere | MOUSEEVENTF_LEFTDOWN,
                                           kThere | MOUSEEVENTF_LEFTUP};
  for (std::size_t i = 0; i < events.size(); ++i) {
    events[i].type = INPUT_MOUSE;
    events[i].mi.dx = (at.x * 65536 + screen.width / 2) / screen.width;
    events[i].mi.dy = (at.y * 65536 + screen.height / 2) / screen.height;
    events[i].mi.dwFlags = kFlags[i];
  }
  SendInput(static_cast<UINT>(events.size()), events.data(), sizeof(INPUT));
}

/// The strip with two menus besides its own.
bool StartWithTwoMenus(WineDesk& desk) {
  desk.WriteFile(scenario::kFlagsFile, scenario::InstalledFlags());
  for (int menu = 1; menu <= 2; ++menu) {
    const std::string name = "of menu " + std::to_string(menu);
    scenario::WriteMenu(desk, menu, "Menu " + std::to_string(menu),
                        {scenario::Witness(desk, "first"), scenario::Witness(desk, name),
                         scenario::Witness(desk, "last")});
  }
  return scenario::StartAndWait(desk);
}

TEST(QuickMenus, OpeningsAndClosingsInARowUseNoMoreStackAndMemoryThanAFew) {
  constexpr int kFew = 100;
  const int openings = 500 * Times();
  WineDesk desk;
  ASSERT_TRUE(StartWithTwoMenus(desk));
  ASSERT_TRUE(scenario::OpenMenu(desk, 2));
  desk.Key(scenario::kKeyEscape);
  ASSERT_TRUE(scenario::WaitForNoMenu(desk));
  const HWND strip = desk.Handle("frmToolbar");
  std::size_t stack = 0;
  std::size_t memory = 0;
  const ULONGLONG began = GetTickCount64();
  for (int done = 0; done < openings; ++done) {
    for (int i = 0; i < 2; ++i) {
      PutClick(desk, ButtonMiddle(desk, kButtons[(2 * done + i) % std::size(kButtons)]));
      // Answered as soon as the program asks for its next event: the next click is there before it
      // has dealt with this one, and the queue never runs dry.
      DWORD_PTR ignored = 0;
      ASSERT_NE(SendMessageTimeoutW(strip, WM_NULL, 0, 0, SMTO_NORMAL, 20000, &ignored), 0)
          << "after " << done << " openings";
    }
    if ((done + 1) % kFew != 0) continue;
    const std::size_t stackNow = DeepestStackOf(strip);
    const std::size_t memoryNow = CountsOf(strip).PrivateBytes;
    std::printf("after %d openings: %zu KB of the stack, %zu KB private, %llu ms\n", done + 1,
                stackNow / 1024, memoryNow / 1024, GetTickCount64() - began);
    ASSERT_GT(stackNow, 0U);
    if (stack == 0) {
      stack = stackNow;
      memory = memoryNow;
    }
    EXPECT_LT(stackNow, stack + (64U << 10U));
    EXPECT_LT(memoryNow, memory + (1U << 20U));
    if (done > kFew && Times() == 1 && GetTickCount64() - began > kLongEnough) break;
  }
  EXPECT_LT(stack, 512U << 10U);
  // The strip still does what it is there for.
  desk.MovePointer(scenario::FarAway(desk));
  bool opened = false;
  // On a slow machine clicks are still waiting, which close what is opened.
  for (int tries = 0; tries < 5 && !opened; ++tries) {
    desk.Pause(500);
    desk.Key(scenario::kKeyEscape);
    if (!scenario::WaitForNoMenu(desk)) continue;
    desk.Pause(600);  // Or the next press counts as the second of a quick pair.
    opened = scenario::OpenMenu(desk, 3);
  }
  ASSERT_TRUE(opened);
  scenario::ClickItem(desk, scenario::ItemMiddle(desk, 2, 3));
  ASSERT_TRUE(desk.Wait([&] { return desk.Launched().size() == 1; }, 8000));
  EXPECT_EQ(desk.Launched()[0].Arguments, "of menu 2");
}

}  // namespace
}  // namespace corvelle::e2e
