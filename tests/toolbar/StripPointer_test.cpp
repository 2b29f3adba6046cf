#include "toolbar/layout/StripPointer.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

/// The main menu's button, one more, a separator, another.
std::vector<ButtonRect> Buttons(const StripScale& scale) {
  const StripEntry files[] = {
      {"b", EntryKind::Button}, {"s", EntryKind::Separator}, {"c", EntryKind::Button}};
  return LayOutStrip({22 * scale.TwipsX, 22 * scale.TwipsY, 4}, files, scale).Buttons;
}

// Top-hugging at 200 pixels, pulled up by 4.
constexpr StripPlace kLying{3000, -60, {}};
// Docked at the left under a bar of 20 pixels.
constexpr StripPlace kUpright{0, 300, {.Vertical = true}};

static_assert(noexcept(ButtonAt({}, kLying, {}, 0, false)));

TEST(GetCurButton, FindsTheButtonUnderThePointer) {
  struct Row {
    const char* name;
    StripPlace place;
    PixelPoint pointer;
    int expected;
  };
  const Row rows[] = {
      {"first pixel of the main menu's button", kLying, {202, 5}, 1},
      {"left of it", kLying, {201, 5}, 0},
      {"its last pixel", kLying, {225, 5}, 1},
      {"first pixel of the next", kLying, {226, 5}, 2},
      {"its last pixel", kLying, {249, 5}, 2},
      {"separator", kLying, {250, 5}, 0},
      {"end of the separator", kLying, {257, 5}, 0},
      {"after the separator", kLying, {258, 5}, 3},
      {"its last pixel", kLying, {281, 5}, 3},
      {"right of all", kLying, {282, 5}, 0},
      {"the screen's upper edge", kLying, {210, 0}, 1},
      {"lowest pixel", kLying, {210, 19}, 1},
      {"below", kLying, {210, 20}, 0},
      {"upright: first pixel", kUpright, {2, 22}, 1},
      {"upright: above", kUpright, {2, 21}, 0},
      {"upright: beside", kUpright, {1, 30}, 0},
      {"upright: rightmost pixel", kUpright, {24, 30}, 1},
      {"upright: right of it", kUpright, {25, 30}, 0},
      {"upright: second", kUpright, {10, 45}, 2},
      {"upright: separator", kUpright, {10, 67}, 0},
      {"upright: after it", kUpright, {10, 74}, 3},
  };
  for (const Row& row : rows) {
    const std::vector<ButtonRect> buttons = Buttons(row.place.Scale);
    EXPECT_EQ(ButtonAt(buttons, row.place, row.pointer, 0, false), row.expected) << row.name;
  }
}

TEST(GetCurButton, WithLargeSystemFonts) {
  const StripPlace place{2400, -48, {.TwipsX = 12, .TwipsY = 12}};
  const std::vector<ButtonRect> buttons = Buttons(place.Scale);
  EXPECT_EQ(ButtonAt(buttons, place, {201, 5}, 0, false), 0);
  EXPECT_EQ(ButtonAt(buttons, place, {202, 5}, 0, false), 1);
  EXPECT_EQ(ButtonAt(buttons, place, {226, 5}, 0, false), 2);
}

TEST(GetCurButton, TheFirstOfTwoThatTouchWins) {
  const std::vector<ButtonRect> buttons = Buttons(kUpright.Scale);
  // Buttons 1 and 2 share the line at 330 twips.
  EXPECT_EQ(ButtonAt(buttons, kUpright, {10, 44}, 0, false), 1);
}

TEST(GetCurButton, AGapKeepsTheButtonOfAnOpenMenu) {
  const std::vector<ButtonRect> buttons = Buttons(kLying.Scale);
  EXPECT_EQ(ButtonAt(buttons, kLying, {252, 5}, 2, true), 2);
  EXPECT_EQ(ButtonAt(buttons, kLying, {252, 5}, 2, false), 0);
  EXPECT_EQ(ButtonAt(buttons, kLying, {252, 500}, 3, true), 3);
  EXPECT_EQ(ButtonAt(buttons, kLying, {210, 5}, 3, true), 1);
}

TEST(GetCurButton, WithoutButtonsThereIsNone) {
  EXPECT_EQ(ButtonAt({}, kLying, {210, 5}, 0, false), 0);
  const std::vector<ButtonRect> templateOnly(1);
  EXPECT_EQ(ButtonAt(templateOnly, kLying, {202, 0}, 0, false), 0);
}

TEST(NextButton, GoesAroundTheEnds) {
  struct Row {
    int current;
    int count;
    int key;
    int expected;
  };
  const Row rows[] = {{2, 3, 37, 1}, {1, 3, 37, 3}, {2, 3, 39, 3}, {3, 3, 39, 1}, {1, 1, 37, 1},
                      {1, 1, 39, 1}, {9, 3, 39, 1}, {2, 3, 38, 2}, {0, 0, 39, 0}, {0, 0, 37, 0}};
  for (const Row& row : rows) {
    EXPECT_EQ(NextButton(row.current, row.count, row.key), row.expected)
        << row.current << " of " << row.count << ", key " << row.key;
  }
}

TEST(ButtonMiddle, GoldenPixels) {
  const std::vector<ButtonRect> lying = Buttons(kLying.Scale);
  EXPECT_EQ(ButtonMiddle(lying[2], kLying), (PixelPoint{238, 8}));
  const std::vector<ButtonRect> upright = Buttons(kUpright.Scale);
  EXPECT_EQ(ButtonMiddle(upright[2], kUpright), (PixelPoint{13, 55}));
}

TEST(ButtonMiddle, IsAlwaysInsideItsButton) {
  for (const float twips : {15.0F, 12.0F}) {
    for (const bool vertical : {false, true}) {
      for (float shift = 0; shift < 40 * twips; shift += twips / 2) {
        const StripPlace place{shift, shift, {vertical, twips, twips}};
        const std::vector<ButtonRect> buttons = Buttons(place.Scale);
        for (int i = 1; i < static_cast<int>(buttons.size()); ++i) {
          const PixelPoint middle = ButtonMiddle(buttons[static_cast<std::size_t>(i)], place);
          EXPECT_EQ(ButtonAt(buttons, place, middle, 0, false), i) << twips << ' ' << shift;
        }
      }
    }
  }
}

}  // namespace
}  // namespace corvelle
