#include "base/PlainWidths.h"

#include <gtest/gtest.h>

#include <string>

namespace corvelle {
namespace {

/// Each character as wide as its number.
int SumOf(std::string_view text) {
  int sum = 0;
  for (const char c : text) sum += static_cast<unsigned char>(c);
  return sum;
}

/// A font that sets two characters a pixel closer together.
PlainWidths WidthsOfFontThatCloses(const std::string& pair) {
  return PlainWidths([&](std::string_view text) {
    return SumOf(text) - (text.find(pair) != std::string_view::npos ? 1 : 0);
  });
}

TEST(PlainWidths, AreThoseOfTheCharactersTogether) {
  const PlainWidths widths{&SumOf};
  EXPECT_EQ(widths.WidthOf(""), 0);
  EXPECT_EQ(widths.WidthOf("~"), 126);
  EXPECT_EQ(widths.WidthOf("tool 10001.exe"), SumOf("tool 10001.exe"));
}

TEST(PlainWidths, AreNotKnownOfOtherCharacters) {
  const PlainWidths widths{&SumOf};
  EXPECT_EQ(widths.WidthOf("\xC3\x84pfel"), std::nullopt);
  EXPECT_EQ(widths.WidthOf("a\tb"), std::nullopt);
  EXPECT_EQ(widths.WidthOf("\x7F"), std::nullopt);
  EXPECT_EQ(widths.WidthOf(std::string_view("\0", 1)), std::nullopt);
}

TEST(PlainWidths, AreNotUsedOfAFontThatSetsSomeCloserTogether) {
  for (const std::string pair : {"AV", "To", "fi", "ab", "ba", "~}", " !"}) {
    EXPECT_EQ(WidthsOfFontThatCloses(pair).WidthOf("x"), std::nullopt) << pair;
  }
}

TEST(PlainWidths, AreNotKnownUntilTheyAreMeasured) {
  EXPECT_EQ(PlainWidths().WidthOf("x"), std::nullopt);
}

}  // namespace
}  // namespace corvelle
