#include "core/HeldButton.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

TEST(AbandonWatch, WaitsForTheReleaseToArrive) {
  AbandonWatch watch;
  EXPECT_FALSE(watch.Look(true, 1000));
  EXPECT_FALSE(watch.Look(false, 1010));
  EXPECT_FALSE(watch.Look(false, 1159));
  EXPECT_TRUE(watch.Look(false, 1160));
}

TEST(AbandonWatch, AButtonThatIsDownAgainBeginsAnew) {
  AbandonWatch watch;
  EXPECT_FALSE(watch.Look(false, 0));
  EXPECT_FALSE(watch.Look(true, 100));
  EXPECT_FALSE(watch.Look(false, 200));
  EXPECT_FALSE(watch.Look(false, 349));
  EXPECT_TRUE(watch.Look(false, 350));
}

TEST(AbandonWatch, AnotherPressBeginsAnew) {
  AbandonWatch watch;
  EXPECT_FALSE(watch.Look(false, 0));
  watch.Reset();
  EXPECT_FALSE(watch.Look(false, 1000));
}

}  // namespace
}  // namespace corvelle
