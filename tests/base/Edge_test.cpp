#include "base/Edge.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

TEST(EdgeNames, AreThoseOfTheFourSides) {
  struct Row {
    Edge edge;
    const char* text;
    bool vertical;
  };
  const Row rows[] = {
      {Edge::Top, "TOP", false},
      {Edge::Bottom, "BOTTOM", false},
      {Edge::Left, "LEFT", true},
      {Edge::Right, "RIGHT", true},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(EdgeText(row.edge), row.text);
    EXPECT_EQ(IsVertical(row.edge), row.vertical) << row.text;
  }
}

}  // namespace
}  // namespace corvelle
