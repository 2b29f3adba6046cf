#include "core/GuardFlags.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

struct GuardRow {
  const char* name;
  bool GuardFlags::*flag;
  bool working;
  bool placing;
  bool settling;
};

constexpr GuardRow kGuardRows[] = {
    {"StartingUp", &GuardFlags::StartingUp, true, false, true},
    {"ToolbarReady", &GuardFlags::ToolbarReady, false, false, false},
    {"AppBarBusy", &GuardFlags::AppBarBusy, true, true, false},
    {"PosChangeRunning", &GuardFlags::PosChangeRunning, true, false, true},
    {"RestoreBusy", &GuardFlags::RestoreBusy, false, true, false},
    {"HideBusy", &GuardFlags::HideBusy, false, false, false},
    {"TellingShell", &GuardFlags::TellingShell, false, false, false},
    {"MenuBuilding", &GuardFlags::MenuBuilding, true, false, false},
    {"ChangingMode", &GuardFlags::ChangingMode, false, false, false},
    {"ItemActionBusy", &GuardFlags::ItemActionBusy, true, false, false},
};

TEST(GuardFlags, EachQuestionAsksItsOwnFlags) {
  for (const GuardRow& row : kGuardRows) {
    GuardFlags guards;
    EXPECT_FALSE(guards.IsWorking() || guards.IsPlacing() || guards.IsSettling());
    EXPECT_TRUE(guards.TakesDrops());
    guards.*row.flag = true;
    EXPECT_EQ(guards.IsWorking(), row.working) << row.name;
    EXPECT_EQ(guards.TakesDrops(), !row.working) << row.name;
    EXPECT_EQ(guards.IsPlacing(), row.placing) << row.name;
    EXPECT_EQ(guards.IsSettling(), row.settling) << row.name;
  }
}

TEST(GuardFlags, NothingIsDroppedWhileAnAnswerIsWaitedFor) {
  GuardFlags guards;
  guards.OpenQuestions = 1;
  EXPECT_FALSE(guards.TakesDrops());
  EXPECT_FALSE(guards.IsWorking());
}

}  // namespace
}  // namespace corvelle
