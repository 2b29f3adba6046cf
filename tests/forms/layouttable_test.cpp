#include <gtest/gtest.h>

#include "forms/LayoutTable.h"

namespace corvelle::forms {
namespace {

// Two buttons at the bottom right of 6000 by 3000 twips, a pixel apart.
LayoutBoxes TwoButtons(float twipsPerPixel) {
  return {{"cmdOK", {3600, 2550, 1200 - twipsPerPixel, 375}},
          {"cmdCancel", {4800, 2550, 1200, 375}}};
}

TEST(LayoutTables, HoldPixelsAtEachScale) {
  EXPECT_EQ(LayoutTable(TwoButtons),
            "96 cmdOK 240,170 79x25\n"
            "96 cmdCancel 320,170 80x25\n"
            "120 cmdOK 300,212 99x32\n"
            "120 cmdCancel 400,212 100x32\n"
            "144 cmdOK 360,255 119x37\n"
            "144 cmdCancel 480,255 120x37\n"
            "192 cmdOK 480,340 159x50\n"
            "192 cmdCancel 640,340 160x50\n");
}

TEST(LayoutTables, ASoundLayoutHasNoFaults) {
  EXPECT_EQ(LayoutFaults(TwoButtons, {6000, 3000}), std::vector<std::string>{});
}

TEST(LayoutTables, AnOverlapALeavingAndAnEmptyBoxAreFound) {
  const auto wrong = [](float) {
    return LayoutBoxes{
        {"one", {0, 0, 1500, 300}}, {"two", {1470, 0, 300, 330}}, {"line", {0, 0, 900, 1}}};
  };
  const std::vector<std::string> faults = LayoutFaults(wrong, {1770, 300});
  ASSERT_EQ(faults.size(), 12U);
  EXPECT_EQ(faults[0], "96 two leaves the inside");
  EXPECT_EQ(faults[1], "96 two overlaps one");
  EXPECT_EQ(faults[2], "96 line is empty");
}

}  // namespace
}  // namespace corvelle::forms
