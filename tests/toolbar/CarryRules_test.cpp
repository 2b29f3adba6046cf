#include "toolbar/layout/CarryRules.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

TEST(MayDrop, WhereverSomethingTakesAnEntry) {
  struct Row {
    const char* name;
    CarryScene scene;
    bool expected;
  };
  const Row rows[] = {
      {"a menu", {.Over = CarryOver::Menu}, true},
      {"the program's own menu", {.Over = CarryOver::Menu, .MainMenu = true}, false},
      {"a button", {.Over = CarryOver::Buttons, .Button = 2}, true},
      {"the program's own button", {.Over = CarryOver::Buttons, .Button = 1}, false},
      {"between the buttons", {.Over = CarryOver::Buttons, .Button = 0}, false},
      {"the row of single buttons", {.Over = CarryOver::SingleButtons}, true},
      {"another program", {.Over = CarryOver::Elsewhere, .Button = 2}, false},
  };
  for (const Row& row : rows) EXPECT_EQ(MayDrop(row.scene), row.expected) << row.name;
}

TEST(CutOut, KeepsWhatCoversHalfOfTheGround) {
  constexpr Rgb kMask = 0x00FF00FF;
  struct Row {
    const char* name;
    Rgb onBlack, onWhite, expected;
  };
  const Row rows[] = {
      {"nothing drawn", 0x000000, 0xFFFFFF, kMask},
      {"opaque", 0x102030, 0x102030, 0x102030},
      {"opaque black", 0x000000, 0x000000, 0x000000},
      {"opaque white", 0xFFFFFF, 0xFFFFFF, 0xFFFFFF},
      {"three quarters of red", 0x0000BF, 0x4040FF, 0x0000FF},
      {"a quarter of red", 0x000040, 0xBFBFFF, kMask},
      {"half of the ground shows", 0x000000, 0x808080, kMask},
      {"a little less shows", 0x000080, 0x7F7FFF, 0x0000FF},
      {"brighter than it can be", 0x0000FF, 0x4040FF, 0x0000FF},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(CutOut(row.onBlack, row.onWhite, kMask), row.expected) << row.name;
  }
}

}  // namespace
}  // namespace corvelle
