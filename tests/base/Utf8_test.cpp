#include "base/Utf8.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

TEST(Utf8, TellsWellFormedTextFromOther) {
  struct Row {
    const char* name;
    std::string text;
    bool valid;
  };
  const Row rows[] = {
      {"empty", "", true},
      {"ASCII", "abc", true},
      {"a NUL", std::string("a\0b", 3), true},
      {"first of two bytes", "\xC2\x80", true},
      {"last of two bytes", "\xDF\xBF", true},
      {"first of three bytes", "\xE0\xA0\x80", true},
      {"last below the surrogates", "\xED\x9F\xBF", true},
      {"first above the surrogates", "\xEE\x80\x80", true},
      {"last of three bytes", "\xEF\xBF\xBF", true},
      {"first of four bytes", "\xF0\x90\x80\x80", true},
      {"last character", "\xF4\x8F\xBF\xBF", true},
      {"above the last character", "\xF4\x90\x80\x80", false},
      {"surrogate", "\xED\xA0\x80", false},
      {"NUL in two bytes", "\xC0\x80", false},
      {"slash in two bytes", "\xC0\xAF", false},
      {"slash in three bytes", "\xE0\x80\xAF", false},
      {"two-byte character in four", "\xF0\x80\x82\x80", false},
      {"lone continuation", "\x80", false},
      {"cut off", "a\xE2\x82", false},
      {"no continuation", "\xC3(", false},
      {"five bytes", "\xF8\x88\x80\x80\x80", false},
      {"byte that never occurs", "\xFF", false},
  };
  for (const Row& row : rows) EXPECT_EQ(IsValidUtf8(row.text), row.valid) << row.name;
}

TEST(Utf8, EveryCharacterSurvivesTheWayThroughWideText) {
  for (unsigned code = 0; code <= 0x10FFFF; ++code) {
    if (code >= 0xD800 && code <= 0xDFFF) continue;
    std::string text;
    AppendUtf8(text, code);
    ASSERT_TRUE(IsValidUtf8(text)) << code;
    const Utf8Step step = NextCharacter(text, 0);
    ASSERT_TRUE(step.Character == code) << code;
    ASSERT_EQ(step.Length, text.size()) << code;
    const std::u16string wide = ToWide(text);
    ASSERT_EQ(wide.size(), code < 0x10000 ? 1U : 2U) << code;
    ASSERT_EQ(FromWide(wide), text) << code;
  }
}

TEST(Utf8, BrokenBytesBecomeTheReplacementCharacter) {
  EXPECT_EQ(ToWide("a\xFF\xC3z"), u"a\xFFFD\xFFFDz");
  EXPECT_EQ(RepairUtf8("a\xFFz"), "a\xEF\xBF\xBDz");
  EXPECT_EQ(RepairUtf8("fine \xC3\xA4"), "fine \xC3\xA4");
}

TEST(Utf8, ASurrogateWithoutItsPartnerBecomesTheReplacementCharacter) {
  const std::string replacement = "\xEF\xBF\xBD";
  EXPECT_EQ(FromWide(std::u16string{u'a', 0xD83D}), "a" + replacement);
  EXPECT_EQ(FromWide(std::u16string{0xDE00, u'a'}), replacement + "a");
  EXPECT_EQ(FromWide(std::u16string{0xD83D, 0xD83D, 0xDE00}), replacement + "\xF0\x9F\x98\x80");
  EXPECT_EQ(FromWide(std::u16string{0xD83D, 0xDE00}), "\xF0\x9F\x98\x80");
}

TEST(Utf8, WhatIsNoCharacterIsAppendedAsReplacement) {
  for (const char32_t c : {0xD800U, 0xDFFFU, 0x110000U, 0xFFFFFFFFU}) {
    std::string text;
    AppendUtf8(text, c);
    EXPECT_EQ(text, "\xEF\xBF\xBD");
  }
}

TEST(CutUtf8, NeverCutsInsideACharacter) {
  struct Row {
    const char* name;
    std::string text;
    std::size_t bytes;
    std::string expected;
  };
  const Row rows[] = {
      {"short enough", "abc", 5, "abc"},
      {"just enough", "abc", 3, "abc"},
      {"ASCII", "abcdef", 4, "abcd"},
      {"nothing", "abc", 0, ""},
      {"before two bytes", "ab\xC3\xA4", 3, "ab"},
      {"after two bytes", "ab\xC3\xA4z", 4, "ab\xC3\xA4"},
      {"before four bytes", "\xF0\x9F\x98\x80", 3, ""},
      {"invalid bytes count as one", "\xFF\xFE\xFD", 2, "\xFF\xFE"},
  };
  for (const Row& row : rows) EXPECT_EQ(CutUtf8(row.text, row.bytes), row.expected) << row.name;
}

TEST(SkipCharacters, CountsCharactersAndNotBytes) {
  EXPECT_EQ(SkipCharacters("abc", 0), "abc");
  EXPECT_EQ(SkipCharacters("a\xC3\xA4z", 2), "z");
  EXPECT_EQ(SkipCharacters("abc", 3), "");
  EXPECT_EQ(SkipCharacters("abc", 9), "");
}

// Looked at eight bytes at a time.
TEST(Utf8, TextIsPlainWhenEachByteIs) {
  EXPECT_TRUE(IsPlain(""));
  for (const std::size_t length : {1U, 7U, 8U, 9U, 16U, 23U}) {
    std::string text(length, '\x7F');
    EXPECT_TRUE(IsPlain(text)) << length;
    for (std::size_t at = 0; at < length; ++at) {
      text[at] = '\x80';
      EXPECT_FALSE(IsPlain(text)) << length << " " << at;
      text[at] = 'a';
    }
  }
}

}  // namespace
}  // namespace corvelle
