#include <gtest/gtest.h>

#include <cstdio>

#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

// A program that stands there all day must cost nothing while nobody uses it.

namespace corvelle::e2e {
namespace {

constexpr int kQuiet = 10'000;  // milliseconds
constexpr int kAllowed = 30;    // of the processor's time

void ExpectQuiet(const std::vector<int>& turned) {
  WineDesk desk;
  desk.WriteFile(scenario::kFlagsFile, scenario::InstalledFlags(turned));
  scenario::WriteMenu(desk, 1, "One", {scenario::Witness(desk, "one")});
  desk.WriteFile("Menus\\BMENU001.BTN",
                 scenario::MenuBytes("Single", {scenario::Witness(desk, "one")}));
  desk.MovePointer(scenario::FarAway(desk));
  ASSERT_TRUE(scenario::StartAndWait(desk));
  // Also after a menu was up.
  ASSERT_TRUE(scenario::OpenMenu(desk, 2));
  desk.Key(scenario::kKeyEscape);
  ASSERT_TRUE(scenario::WaitForNoMenu(desk));
  desk.MovePointer(scenario::FarAway(desk));
  desk.Pause(2000);
  const int before = desk.ProcessorTime();
  // Nobody looks either: to ask for windows wakes their program.
  Sleep(kQuiet);
  const int taken = desk.ProcessorTime() - before;
  std::printf("%d ms of the processor in %d ms\n", taken, kQuiet);
  EXPECT_GT(before, 0);
  EXPECT_LE(taken, kAllowed);
}

TEST(Quiet, AStripAtTheTopTakesNoTimeOfTheProcessor) { ExpectQuiet({}); }

TEST(Quiet, NorDoesOneAtAnEdgeWithTheDate) { ExpectQuiet({14, 21}); }

}  // namespace
}  // namespace corvelle::e2e
