#include "base/FieldText.h"

#include <gtest/gtest.h>

#include <random>

#include "base/CodePage.h"
#include "base/Text.h"
#include "base/Utf8.h"

namespace corvelle {
namespace {

using namespace std::string_literals;

/// A double-byte code page in small: 0x81 and the next byte are one Cyrillic letter.
class DoubleByte final : public CodePage {
 public:
  std::string Decode(std::string_view bytes) const override {
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
      if (bytes[at] == '\x81' && at + 1 < bytes.size()) {
        AppendUtf8(text, 0x400U + static_cast<unsigned char>(bytes[++at]));
      } else {
        AppendUtf8(text, static_cast<unsigned char>(bytes[at]));
      }
    }
    return text;
  }
  std::optional<std::string> Encode(std::string_view text) const override {
    std::string bytes;
    for (std::size_t at = 0; at < text.size();) {
      const Utf8Step step = NextCharacter(text, at);
      at += step.Length;
      if (step.Character < 0x80) {
        bytes.push_back(static_cast<char>(step.Character));
      } else if (step.Character >= 0x400 && step.Character <= 0x4FF) {
        bytes.push_back('\x81');
        bytes.push_back(static_cast<char>(step.Character - 0x400));
      } else {
        return std::nullopt;
      }
    }
    return bytes;
  }
};

const Windows1252 kAnsi;

/// Notes what it is asked for.
class CountingCodePage final : public CodePage {
 public:
  mutable int Asked = 0;

  std::string Decode(std::string_view bytes) const override {
    ++Asked;
    return ansi_.Decode(bytes);
  }
  std::optional<std::string> Encode(std::string_view text) const override {
    ++Asked;
    return ansi_.Encode(text);
  }

 private:
  Windows1252 ansi_;
};

// A menu over a folder of 10,000 files writes each title and path.
TEST(FieldText, OfPlainLettersAsksTheCodePageNothing) {
  const CountingCodePage ansi;
  EXPECT_EQ(EncodeText("C:\\Docs\\a.txt", ansi), "C:\\Docs\\a.txt");
  EXPECT_EQ(EncodeField("title", 7, ansi), "title  ");
  EXPECT_EQ(EncodeField("a longer title", 7, ansi), "a longe");
  EXPECT_EQ(EncodeField("", 2, ansi), "  ");
  EXPECT_EQ(ansi.Asked, 0);
  EXPECT_EQ(EncodeText("\xC3\xA4", ansi), "\xE4");
  EXPECT_GT(ansi.Asked, 0);
}

TEST(DecodeField, ReadsAnsiAndUtf8AndTrimsBlanks) {
  struct Row {
    const char* name;
    std::string bytes;
    std::string expected;
  };
  const Row rows[] = {
      {"plain", "Desktop   ", "Desktop"},
      {"blanks in front", "  Desktop", "Desktop"},
      {"blanks only", "     ", ""},
      {"ANSI letter", "\xC4pfel  ", "\xC3\x84pfel"},
      {"UTF-8 letter", "\xD0\x96  ", "\xD0\x96"},
      {"ANSI that is no UTF-8", "\xC3 x", "\xC3\x83 x"},
      {"cut UTF-8 is ANSI", "\xE2\x82", "\xC3\xA2\xE2\x80\x9A"},
      {"a NUL stays", "Title\0 17 "s, "Title\0 17"s},
      {"tabs stay", "\tx\t ", "\tx\t"},
  };
  for (const Row& row : rows) EXPECT_EQ(DecodeField(row.bytes, kAnsi), row.expected) << row.name;
}

TEST(EncodeField, PicksTheFormThatReadsBackAsTheSameText) {
  struct Row {
    const char* name;
    std::string text;
    std::size_t width;
    std::string expected;
  };
  const Row rows[] = {
      {"padded", "abc", 5, "abc  "},
      {"exactly full", "abcde", 5, "abcde"},
      {"cut", "abcdefgh", 5, "abcde"},
      {"empty", "", 3, "   "},
      {"ANSI where it can", "\xC3\x84pfel", 6, "\xC4pfel "},
      {"UTF-8 where it must", "\xD0\x96", 4, "\xD0\x96  "},
      {"ANSI that would read as UTF-8", "\xC3\x83\xC2\xA4", 6, "\xC3\x83\xC2\xA4  "},
      {"UTF-8 cut before a character", "abc\xD0\x96", 4, "abc "},
      {"ANSI letters that just fit", "\xC3\xA4\xC3\xB6\xC3\xBC", 3, "\xE4\xF6\xFC"},
      {"ANSI after a cut of what it cannot hold", "ab\xD0\x96", 2, "ab"},
      {"a NUL stays", "a\0b"s, 5, "a\0b  "s},
      {"no text is repaired", "a\xFF", 6, "a\xEF\xBF\xBD  "},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(EncodeField(row.text, row.width, kAnsi), row.expected) << row.name;
  }
}

TEST(EncodeField, ACutThatWouldReadAsUtf8IsTakenInUtf8) {
  // In ANSI the first two bytes are C3 A4, which is UTF-8 for another letter; whole, the text ends
  // in a byte that is none.
  const std::string text = "\xC3\x83\xC2\xA4\xC3\xBF";
  EXPECT_EQ(EncodeField(text, 3, kAnsi), "\xC3\xA4\xFF");
  EXPECT_EQ(EncodeField(text, 2, kAnsi), "\xC3\x83");
  EXPECT_EQ(DecodeField(EncodeField(text, 2, kAnsi), kAnsi), "\xC3\x83");
}

TEST(EncodeField, ADoubleByteCharacterIsNotCut) {
  const DoubleByte ansi;
  EXPECT_EQ(EncodeField("a\xD0\x96", 3, ansi), "a\x81\x16");
  EXPECT_EQ(EncodeField("ab\xD0\x96", 3, ansi), "ab ");
}

TEST(EncodeField, WhatIsKeptReadsBackAsItWas) {
  std::mt19937 random(4711);
  const char32_t pool[] = {U'a',   U' ',  U'z',   0xC4,    0xC3, 0xA4, 0xE2, 0x82, 0xAC,
                           0x20AC, 0x416, 0x4E00, 0x1F600, 0x81, 0x9D, 0x0,  0xFF, 0x178};
  for (int round = 0; round < 20000; ++round) {
    std::string text;
    const auto length = static_cast<int>(random() % 12);
    for (int i = 0; i < length; ++i) AppendUtf8(text, pool[random() % std::size(pool)]);
    const std::string trimmed = Trim(text);
    const std::size_t width = random() % 14;
    const std::string field = EncodeField(trimmed, width, kAnsi);
    ASSERT_EQ(field.size(), width);
    const std::string back = DecodeField(field, kAnsi);
    ASSERT_TRUE(trimmed.starts_with(back)) << "round " << round;
    if (trimmed.size() <= width) {
      ASSERT_EQ(back, trimmed) << "round " << round;
    }
    ASSERT_EQ(DecodeField(EncodeField(back, width, kAnsi), kAnsi), back) << "round " << round;
  }
}

TEST(EncodeText, RoundTripsAnyText) {
  EXPECT_EQ(EncodeText("C:\\\xC3\x84.exe", kAnsi), "C:\\\xC4.exe");
  EXPECT_EQ(EncodeText("C:\\\xD0\x96.exe", kAnsi), "C:\\\xD0\x96.exe");
  for (const char* text : {"", " a ", "\xC3\x83\xC2\xA4", "\xD0\x96", "\xC3\xA4"}) {
    EXPECT_EQ(DecodeText(EncodeText(text, kAnsi), kAnsi), text);
  }
}

}  // namespace
}  // namespace corvelle
