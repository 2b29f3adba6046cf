#include "forms/PostedWork.h"

#include <gtest/gtest.h>

namespace corvelle::forms {
namespace {

TEST(PostedWork, WakesTheLoopOnceForWhatComesBeforeItsTurn) {
  PostedWork work;
  int ran = 0;
  const auto count = [&ran] { ++ran; };
  EXPECT_TRUE(work.Add(count));
  EXPECT_FALSE(work.Add(count));
  EXPECT_FALSE(work.Add(count));
  EXPECT_FALSE(work.Run());
  EXPECT_EQ(ran, 3);
  EXPECT_TRUE(work.Add(count));
  work.Close();
  EXPECT_FALSE(work.Add(count));
  EXPECT_FALSE(work.Run());
  EXPECT_EQ(ran, 3);
}

}  // namespace
}  // namespace corvelle::forms
