#include "base/Result.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace corvelle {
namespace {

enum class Trouble { Small, Large };

TEST(Result, HoldsAValueOrTheReasonForNone) {
  const Result<std::string, Trouble> good = std::string("value");
  ASSERT_TRUE(good);
  EXPECT_EQ(*good, "value");
  EXPECT_EQ(good->size(), 5U);
  const Result<std::string, Trouble> bad = Trouble::Large;
  ASSERT_FALSE(bad);
  EXPECT_FALSE(bad.HasValue());
  EXPECT_EQ(bad.Error(), Trouble::Large);
}

TEST(Result, ValueOrFallsBack) {
  const Result<int, Trouble> good = 4;
  const Result<int, Trouble> bad = Trouble::Small;
  EXPECT_EQ(good.ValueOr(9), 4);
  EXPECT_EQ(bad.ValueOr(9), 9);
}

TEST(Result, GivesItsValueAway) {
  Result<std::unique_ptr<int>, Trouble> owner = std::make_unique<int>(7);
  const std::unique_ptr<int> taken = *std::move(owner);
  ASSERT_NE(taken, nullptr);
  EXPECT_EQ(*taken, 7);
}

}  // namespace
}  // namespace corvelle
