#include "toolbar/strip/HintTimes.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

TEST(HintTimes, AHintIsDueOnceAfterItsDelay) {
  HintTimes hint;
  EXPECT_FALSE(hint.IsWaiting());
  EXPECT_FALSE(hint.TakeDue(1000));
  hint.Announce(1000);
  EXPECT_TRUE(hint.IsWaiting());
  EXPECT_FALSE(hint.TakeDue(1000 + HintTimes::kDelay));
  EXPECT_TRUE(hint.TakeDue(1001 + HintTimes::kDelay));
  EXPECT_FALSE(hint.TakeDue(9000));
  EXPECT_FALSE(hint.IsWaiting());
}

TEST(HintTimes, AHintThatIsUpEndsOnceAfterItsTime) {
  HintTimes hint;
  hint.Shown(1000);
  EXPECT_FALSE(hint.TakeDue(9000));
  EXPECT_FALSE(hint.TakeEnd(1000 + HintTimes::kTime));
  EXPECT_TRUE(hint.TakeEnd(1001 + HintTimes::kTime));
  EXPECT_FALSE(hint.TakeEnd(9000));
}

TEST(HintTimes, WhatIsForgottenNeitherComesNorGoes) {
  HintTimes hint;
  hint.Announce(1000);
  hint.Shown(1000);
  hint.Forget();
  EXPECT_FALSE(hint.IsWaiting());
  EXPECT_FALSE(hint.TakeDue(9000));
  EXPECT_FALSE(hint.TakeEnd(9000));
}

}  // namespace
}  // namespace corvelle
