#include "base/CodePage.h"

#include <gtest/gtest.h>

#include "base/Utf8.h"

namespace corvelle {
namespace {

TEST(Windows1252, EveryByteComesBack) {
  const Windows1252 ansi;
  for (int i = 0; i < 256; ++i) {
    const std::string byte(1, static_cast<char>(i));
    const std::string text = ansi.Decode(byte);
    EXPECT_TRUE(IsValidUtf8(text)) << i;
    EXPECT_EQ(ansi.Encode(text), byte) << i;
  }
}

TEST(Windows1252, KnowsItsCharacters) {
  const Windows1252 ansi;
  EXPECT_EQ(ansi.Decode("\x80"), "\xE2\x82\xAC");  // euro sign
  EXPECT_EQ(ansi.Decode("\xE4\xFF"), "\xC3\xA4\xC3\xBF");
  EXPECT_EQ(ansi.Decode("\x9F"), "\xC5\xB8");      // Y with diaeresis
  EXPECT_EQ(ansi.Decode("\x96"), "\xE2\x80\x93");  // dash
  EXPECT_EQ(ansi.Decode(std::string_view("a\0b", 3)), std::string("a\0b", 3));
}

TEST(Windows1252, TheFiveBytesWithoutALetterAreControls) {
  const Windows1252 ansi;
  for (const int byte : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
    std::string expected;
    AppendUtf8(expected, static_cast<char32_t>(byte));
    EXPECT_EQ(ansi.Decode(std::string(1, static_cast<char>(byte))), expected) << byte;
  }
}

TEST(Windows1252, RefusesWhatItDoesNotHold) {
  const Windows1252 ansi;
  EXPECT_EQ(ansi.Encode("\xD0\x96"), std::nullopt);          // Cyrillic
  EXPECT_EQ(ansi.Encode("a\xC4\x81z"), std::nullopt);        // a with macron
  EXPECT_EQ(ansi.Encode("\xF0\x9F\x98\x80"), std::nullopt);  // beyond 16 bits
  EXPECT_EQ(ansi.Encode("\xC2\x80"), std::nullopt);  // the control that the euro sign replaced
  EXPECT_EQ(ansi.Encode("\xFF"), std::nullopt);      // no text
  EXPECT_EQ(ansi.Encode(""), "");
}

}  // namespace
}  // namespace corvelle
