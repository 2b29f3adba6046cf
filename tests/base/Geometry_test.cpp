#include "base/Geometry.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

TEST(PixelRect, LeavesItsRightAndBottomSideOut) {
  constexpr PixelRect rect{10, 20, 30, 50};
  EXPECT_EQ(rect.Width(), 20);
  EXPECT_EQ(rect.Height(), 30);
  EXPECT_EQ(rect.Size(), (PixelSize{20, 30}));
  EXPECT_EQ(rect.TopLeft(), (PixelPoint{10, 20}));
  EXPECT_TRUE(rect.Contains({10, 20}));
  EXPECT_TRUE(rect.Contains({29, 49}));
  EXPECT_FALSE(rect.Contains({30, 49}));
  EXPECT_FALSE(rect.Contains({29, 50}));
  EXPECT_FALSE(rect.Contains({9, 20}));
  EXPECT_EQ(RectAt({10, 20}, {20, 30}), rect);
}

TEST(PixelRect, IsEmptyWithoutWidthOrHeight) {
  EXPECT_TRUE(PixelRect{}.IsEmpty());
  EXPECT_TRUE((PixelRect{5, 0, 5, 9}).IsEmpty());
  EXPECT_TRUE((PixelRect{5, 9, 6, 3}).IsEmpty());
  EXPECT_FALSE((PixelRect{5, 9, 6, 10}).IsEmpty());
}

TEST(PixelRect, IntersectGivesTheCommonPart) {
  struct Row {
    const char* name;
    PixelRect a;
    PixelRect b;
    PixelRect expected;
  };
  const Row rows[] = {
      {"overlap", {0, 0, 10, 10}, {5, 6, 20, 20}, {5, 6, 10, 10}},
      {"inside", {0, 0, 10, 10}, {2, 2, 3, 3}, {2, 2, 3, 3}},
      {"side by side", {0, 0, 10, 10}, {10, 0, 20, 10}, {}},
      {"far apart", {0, 0, 1, 1}, {50, 50, 60, 60}, {}},
      {"with nothing", {0, 0, 10, 10}, {}, {}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Intersect(row.a, row.b), row.expected) << row.name;
    EXPECT_EQ(Intersect(row.b, row.a), row.expected) << row.name;
  }
}

TEST(PixelRect, UnionGoesAroundBoth) {
  EXPECT_EQ(Union({0, 0, 1, 1}, {5, 6, 7, 8}), (PixelRect{0, 0, 7, 8}));
  EXPECT_EQ(Union({3, 3, 4, 4}, {}), (PixelRect{3, 3, 4, 4}));
  EXPECT_EQ(Union({}, {3, 3, 4, 4}), (PixelRect{3, 3, 4, 4}));
  EXPECT_EQ(Union({9, 9, 9, 12}, {}), PixelRect{});
}

}  // namespace
}  // namespace corvelle
