#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace corvelle {
namespace {

TEST(RoundHalfEven, RoundsHalvesToTheEvenNumber) {
  struct Row {
    double value;
    long long expected;
  };
  const Row rows[] = {
      {0.0, 0},
      {0.49, 0},
      {0.5, 0},
      {0.51, 1},
      {1.5, 2},
      {2.5, 2},
      {3.5, 4},
      {-0.5, 0},
      {-1.5, -2},
      {-2.5, -2},
      {-0.51, -1},
      {7.0, 7},
      {1e15 + 0.5, 1000000000000000},
      {4503599627370497.5, 4503599627370498},
  };
  for (const Row& row : rows) EXPECT_EQ(RoundHalfEven(row.value), row.expected) << row.value;
}

TEST(RoundHalfEven, StaysWithinBounds) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(RoundHalfEven(std::numeric_limits<double>::quiet_NaN()), 0);
  EXPECT_EQ(RoundHalfEven(kInfinity), std::numeric_limits<long long>::max());
  EXPECT_EQ(RoundHalfEven(-kInfinity), std::numeric_limits<long long>::min());
  EXPECT_EQ(RoundHalfEven(1e300), std::numeric_limits<long long>::max());
  EXPECT_EQ(RoundHalfEven(-9223372036854775808.0), std::numeric_limits<long long>::min());
  EXPECT_EQ(RoundToInt(3e9), std::numeric_limits<int>::max());
  EXPECT_EQ(RoundToInt(-3e9), std::numeric_limits<int>::min());
  EXPECT_EQ(RoundToInt(2.5), 2);
  EXPECT_EQ(RoundToInt(-7.6), -8);
}

TEST(FormatNumber, FillsWithZerosAndCutsNothing) {
  struct Row {
    long long value;
    int digits;
    const char* expected;
  };
  const Row rows[] = {
      {1, 3, "001"},       {42, 3, "042"},  {999, 3, "999"}, {1000, 3, "1000"},
      {32767, 3, "32767"}, {7, 2, "07"},    {0, 3, "000"},   {0, 1, "0"},
      {5, 0, "5"},         {-1, 3, "-001"}, {12, -4, "12"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(FormatNumber(row.value, row.digits), row.expected) << row.value;
  }
}

}  // namespace
}  // namespace corvelle
