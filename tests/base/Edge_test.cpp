#include "base/Edge.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

TEST(EdgeNames, AreReadBackAsTheyAreWritten) {
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
    EXPECT_EQ(EdgeFromText(row.text), row.edge) << row.text;
    EXPECT_EQ(IsVertical(row.edge), row.vertical) << row.text;
  }
}

TEST(EdgeNames, AreReadWithoutRegardToCaseAndBlanksAround) {
  EXPECT_EQ(EdgeFromText(" left "), Edge::Left);
  EXPECT_EQ(EdgeFromText("Bottom"), Edge::Bottom);
}

TEST(EdgeNames, OtherTextsAreNoEdge) {
  EXPECT_EQ(EdgeFromText(""), std::nullopt);
  EXPECT_EQ(EdgeFromText("MIDDLE"), std::nullopt);
  EXPECT_EQ(EdgeFromText("TOPS"), std::nullopt);
}

}  // namespace
}  // namespace corvelle
