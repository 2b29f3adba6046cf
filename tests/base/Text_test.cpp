#include "base/Text.h"

#include <gtest/gtest.h>

namespace corvelle {
namespace {

using namespace std::string_literals;

struct TextRow {
  const char* name;
  std::string text;
  std::string expected;
};

TEST(Trim, TakesBlanksAndNothingElseOffBothEnds) {
  const TextRow rows[] = {
      {"empty", "", ""},
      {"blanks only", "   ", ""},
      {"both ends", "  a b  ", "a b"},
      {"tabs stay", "\ta\t", "\ta\t"},
      {"line ends stay", " a\r\n", "a\r\n"},
      {"a NUL stays", " a\0 "s, "a\0"s},
      {"a no-break space stays", " \xC2\xA0", "\xC2\xA0"},
  };
  for (const TextRow& row : rows) EXPECT_EQ(Trim(row.text), row.expected) << row.name;
}

TEST(RemoveBlanks, LeavesNoBlankAnywhere) {
  EXPECT_EQ(RemoveBlanks(" / h "), "/h");
  EXPECT_EQ(RemoveBlanks("a\tb c"), "a\tbc");
  EXPECT_EQ(RemoveBlanks("   "), "");
}

TEST(StripAtNull, KeepsTheTrimmedTextBeforeTheFirstNul) {
  const TextRow rows[] = {
      {"no NUL", "  text ", "text"},
      {"one NUL", " text \0 17"s, "text"},
      {"two NULs", "a\0b\0c"s, "a"},
      {"NUL first", "\0abc"s, ""},
      {"empty", "", ""},
  };
  for (const TextRow& row : rows) EXPECT_EQ(StripAtNull(row.text), row.expected) << row.name;
}

TEST(StripQuotes, GoesOnUntilNeitherEndIsAQuote) {
  const TextRow rows[] = {
      {"none", "C:\\a.exe", "C:\\a.exe"},  {"both ends", "\"C:\\a b.exe\"", "C:\\a b.exe"},
      {"blanks around", "  \"a\"  ", "a"}, {"blanks inside", "\" a \"", "a"},
      {"doubled", "\"\"a\"\"", "a"},       {"quotes after blanks", "\" \" a \" \"", "a"},
      {"only in front", "\"a", "a"},       {"only behind", "a\"", "a"},
      {"in the middle", "a\"b", "a\"b"},   {"one quote", "\"", ""},
      {"two quotes", "\"\"", ""},          {"empty", "", ""},
  };
  for (const TextRow& row : rows) EXPECT_EQ(StripQuotes(row.text), row.expected) << row.name;
}

TEST(EnsureBackslash, EndsAPathInExactlyTheBackslashItNeeds) {
  const TextRow rows[] = {
      {"without", "C:\\a", "C:\\a\\"},
      {"with", "C:\\a\\", "C:\\a\\"},
      {"blanks and a NUL", " C:\\a \0xyz"s, "C:\\a\\"},
      {"a slash is none", "C:/a/", "C:/a/\\"},
      {"empty", "", "\\"},
  };
  for (const TextRow& row : rows) EXPECT_EQ(EnsureBackslash(row.text), row.expected) << row.name;
}

TEST(DropBackslash, TakesOneBackslashOff) {
  const TextRow rows[] = {
      {"with", "C:\\a\\", "C:\\a"},  {"two", "C:\\a\\\\", "C:\\a\\"},
      {"without", "C:\\a", "C:\\a"}, {"blanks and a NUL", " C:\\a\\ \0x"s, "C:\\a"},
      {"only one", "\\", ""},        {"empty", "", ""},
  };
  for (const TextRow& row : rows) EXPECT_EQ(DropBackslash(row.text), row.expected) << row.name;
}

TEST(Ampersands, AreDoubledAndSingled) {
  EXPECT_EQ(DoubleAmpersands("R&D & more"), "R&&D && more");
  EXPECT_EQ(DoubleAmpersands("&&"), "&&&&");
  EXPECT_EQ(DoubleAmpersands(""), "");
  EXPECT_EQ(SingleAmpersands("R&&D"), "R&D");
  EXPECT_EQ(SingleAmpersands("&&&&"), "&&");
  EXPECT_EQ(SingleAmpersands("&&&"), "&&");
  EXPECT_EQ(SingleAmpersands("a&b"), "a&b");
}

TEST(Ampersands, SinglingUndoesDoubling) {
  for (const char* caption : {"", "&", "&&", "a&b&&c", "&&&x&", "plain"}) {
    EXPECT_EQ(SingleAmpersands(DoubleAmpersands(caption)), caption);
  }
}

struct CompareRow {
  const char* name;
  std::string a;
  std::string b;
  int order;
};

TEST(CompareNoCase, OrdersTexts) {
  const CompareRow rows[] = {
      {"equal", "abc", "abc", 0},
      {"case apart", "BMENU001.mnu", "bmenu001.MNU", 0},
      {"before", "a", "b", -1},
      {"capital after small", "B", "a", 1},
      {"shorter first", "ab", "abc", -1},
      {"empty first", "", "a", -1},
      {"both empty", "", "", 0},
      {"point before digit", "BMENU1000.MNU", "BMENU999.MNU", -1},
      {"Latin-1", "\xC3\x84pfel", "\xC3\xA4PFEL", 0},
      {"y with diaeresis", "\xC3\xBF", "\xC5\xB8", 0},
      {"Latin Extended-A", "\xC5\x81\xC3\xB3\x64\xC5\xBA", "\xC5\x82\xC3\x93\x44\xC5\xB9", 0},
      {"Greek", "\xCE\x91\xCE\x94\xCE\x97\xCE\xA3", "\xCE\xB1\xCE\xB4\xCE\xB7\xCF\x82", 0},
      {"Greek with tonos", "\xCE\x86\xCE\x88", "\xCE\xAC\xCE\xAD", 0},
      {"Cyrillic", "\xD0\x96\xD0\x81", "\xD0\xB6\xD1\x91", 0},
      {"Armenian", "\xD4\xB1", "\xD5\xA1", 0},
      {"times and division are no pair", "\xC3\x97", "\xC3\xB7", -1},
      {"invalid bytes by value", "\x80", "\x81", -1},
      {"equal invalid bytes", "a\xFF", "A\xFF", 0},
      {"characters before invalid bytes", "\xF0\x9F\x98\x80", "\x80", -1},
      {"a NUL counts", "a\0b"s, "a", 1},
  };
  for (const CompareRow& row : rows) {
    EXPECT_EQ(CompareNoCase(row.a, row.b), row.order) << row.name;
    EXPECT_EQ(CompareNoCase(row.b, row.a), -row.order) << row.name << ", turned round";
    EXPECT_EQ(EqualNoCase(row.a, row.b), row.order == 0) << row.name;
  }
}

TEST(StartsWithNoCase, LooksAtTheStartOnly) {
  EXPECT_TRUE(StartsWithNoCase("csidl_DESKTOP", "CSIDL_"));
  EXPECT_TRUE(StartsWithNoCase("anything", ""));
  EXPECT_TRUE(StartsWithNoCase("", ""));
  EXPECT_FALSE(StartsWithNoCase("CSIDL", "CSIDL_"));
  EXPECT_FALSE(StartsWithNoCase(" CSIDL_", "CSIDL_"));
  EXPECT_TRUE(StartsWithNoCase("\xC3\xA4x", "\xC3\x84"));
}

TEST(EndsWithNoCase, LooksAtTheEndOnly) {
  EXPECT_TRUE(EndsWithNoCase("BMENU001.MNU", ".mnu"));
  EXPECT_TRUE(EndsWithNoCase(".mnu", ".MNU"));
  EXPECT_TRUE(EndsWithNoCase("x", ""));
  EXPECT_TRUE(EndsWithNoCase("", ""));
  EXPECT_FALSE(EndsWithNoCase("mnu", ".mnu"));
  EXPECT_FALSE(EndsWithNoCase("a.mnux", ".mnu"));
  EXPECT_TRUE(EndsWithNoCase("x\xC3\xA4", "\xC3\x84"));
  EXPECT_FALSE(EndsWithNoCase("x\xC3\xA4", "\xA4"));
}

TEST(FindNoCase, GivesThePlaceInBytes) {
  struct Row {
    const char* name;
    std::string text;
    std::string what;
    std::size_t from;
    std::size_t expected;
  };
  constexpr std::size_t kNone = std::string_view::npos;
  const Row rows[] = {
      {"found", "Microsoft Explorer", "explore", 0, 10},
      {"at the start", "abc", "AB", 0, 0},
      {"not there", "abc", "x", 0, kNone},
      {"from behind the first", "abab", "AB", 1, 2},
      {"from past the end", "ab", "a", 5, kNone},
      {"nothing is everywhere", "ab", "", 1, 1},
      {"nothing at the end", "ab", "", 2, 2},
      {"nothing past the end", "ab", "", 3, kNone},
      {"after a wide character", "\xC3\xA4x", "X", 0, 2},
      {"longer than the text", "ab", "abc", 0, kNone},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(FindNoCase(row.text, row.what, row.from), row.expected) << row.name;
  }
  EXPECT_TRUE(ContainsNoCase("C:\\NETSCAPE.EXE", "Netscape"));
  EXPECT_FALSE(ContainsNoCase("", "Netscape"));
}

TEST(LetterCase, ChangesLettersOnly) {
  EXPECT_EQ(UpperCase("bmenu001.mnu \xC3\xA4\xC3\x9F\xC3\xB7 \xD0\xB6"),
            "BMENU001.MNU \xC3\x84\xC3\x9F\xC3\xB7 \xD0\x96");
  EXPECT_EQ(LowerCase("BMENU001.MNU \xC3\x84\xC3\x97 \xD0\x96"),
            "bmenu001.mnu \xC3\xA4\xC3\x97 \xD0\xB6");
  EXPECT_EQ(UpperCase("a\xFF\0z"s), "A\xFF\0Z"s);
}

TEST(LetterCase, CapitalsAndSmallLettersLeadBackToEachOther) {
  int pairs = 0;
  for (unsigned code = 0; code <= 0x20000; ++code) {
    const char32_t c = code;
    const char32_t upper = UpperCharacter(c);
    const char32_t lower = LowerCharacter(c);
    EXPECT_TRUE(upper == c || lower == c) << code;
    if (lower != c) {
      EXPECT_TRUE(UpperCharacter(lower) == c) << code;
      ++pairs;
    }
    if (upper != c && code != 0x03C2) {
      EXPECT_TRUE(LowerCharacter(upper) == c) << code;
    }
  }
  EXPECT_GT(pairs, 400);
}

TEST(LetterCase, KnowsTheLettersOfEachScript) {
  struct Row {
    const char* name;
    char32_t small;
    char32_t capital;
  };
  const Row rows[] = {
      {"Latin", U'z', U'Z'},
      {"Latin-1", 0xF6, 0xD6},
      {"o with stroke", 0xF8, 0xD8},
      {"y with diaeresis", 0xFF, 0x178},
      {"a with macron", 0x101, 0x100},
      {"l with stroke", 0x142, 0x141},
      {"eng", 0x14B, 0x14A},
      {"z with caron", 0x17E, 0x17D},
      {"s with comma", 0x219, 0x218},
      {"omega", 0x3C9, 0x3A9},
      {"omega with tonos", 0x3CE, 0x38F},
      {"ya", 0x44F, 0x42F},
      {"yo", 0x451, 0x401},
      {"ghe with upturn", 0x491, 0x490},
      {"feh", 0x586, 0x556},
      {"e with circumflex and dot", 0x1EC7, 0x1EC6},
  };
  for (const Row& row : rows) {
    EXPECT_TRUE(UpperCharacter(row.small) == row.capital) << row.name;
    EXPECT_TRUE(LowerCharacter(row.capital) == row.small) << row.name;
  }
  EXPECT_TRUE(UpperCharacter(0x3C2) == 0x3A3);
  for (const unsigned alone : {0xDFU, 0x130U, 0x131U, 0x138U, 0x149U}) {
    EXPECT_TRUE(UpperCharacter(alone) == alone) << alone;
    EXPECT_TRUE(LowerCharacter(alone) == alone) << alone;
  }
}

TEST(ParseNumber, TakesWholeDecimalNumbersOnly) {
  struct Row {
    const char* text;
    std::optional<int> expected;
  };
  const Row rows[] = {
      {"17", 17},
      {" 17 ", 17},
      {"0", 0},
      {"007", 7},
      {"-3", -3},
      {"+3", 3},
      {"2147483647", 2147483647},
      {"-2147483648", -2147483647 - 1},
      {"2147483648", std::nullopt},
      {"-2147483649", std::nullopt},
      {"99999999999999999999999", std::nullopt},
      {"", std::nullopt},
      {" ", std::nullopt},
      {"-", std::nullopt},
      {"1x", std::nullopt},
      {"1 2", std::nullopt},
      {"0x10", std::nullopt},
      {"1.5", std::nullopt},
  };
  for (const Row& row : rows) EXPECT_EQ(ParseNumber(row.text), row.expected) << row.text;
}

TEST(SplitLines, EndsLinesAtAnyKindOfLineEnd) {
  using Lines = std::vector<std::string>;
  EXPECT_EQ(SplitLines(""), Lines{});
  EXPECT_EQ(SplitLines("a"), Lines{"a"});
  EXPECT_EQ(SplitLines("a\r\n"), Lines{"a"});
  EXPECT_EQ(SplitLines("a\r\nb"), (Lines{"a", "b"}));
  EXPECT_EQ(SplitLines("a\nb\rc\r\n\r\nd"), (Lines{"a", "b", "c", "", "d"}));
  EXPECT_EQ(SplitLines("\r\n\n"), (Lines{"", ""}));
}

}  // namespace
}  // namespace corvelle
