#include "forms/DropFiles.h"

#include <gtest/gtest.h>

namespace corvelle::forms {
namespace {

using Names = std::vector<std::string>;

const Windows1252 kAnsi;

std::string Number(unsigned value) {
  std::string bytes;
  for (unsigned shift = 0; shift < 32; shift += 8) {
    bytes += static_cast<char>((value >> shift) & 0xFF);
  }
  return bytes;
}

/// The header of a list: where it starts, no point, no flag, and its kind of characters.
std::string Header(unsigned start, bool wide) {
  return Number(start) + std::string(12, '\0') + Number(wide ? 1 : 0);
}

std::string WideBytes(std::u16string_view text) {
  std::string bytes;
  for (const char16_t unit : text) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return bytes;
}

TEST(ParseDropFiles, ReadsListsOfBothKinds) {
  using namespace std::string_literals;
  const std::string narrow = Header(20, false) + "C:\\a.txt\0C:\\\xEB.txt\0\0"s;
  EXPECT_EQ(ParseDropFiles(narrow, kAnsi), (Names{"C:\\a.txt", "C:\\\xC3\xAB.txt"}));
  const std::string wide = Header(20, true) + WideBytes(u"C:\\\u043f\0C:\\b\0\0"s);
  EXPECT_EQ(ParseDropFiles(wide, kAnsi), (Names{"C:\\\xD0\xBF", "C:\\b"}));
  const std::string later = Header(24, true) + "xxxx" + WideBytes(u"C:\\b\0\0"s);
  EXPECT_EQ(ParseDropFiles(later, kAnsi), Names{"C:\\b"});
}

TEST(ParseDropFiles, WhatStandsBehindTheEndIsNotRead) {
  using namespace std::string_literals;
  EXPECT_EQ(ParseDropFiles(Header(20, false) + "a\0\0b\0\0"s, kAnsi), Names{"a"});
}

TEST(ParseDropFiles, DamagedBlocksGiveWhatTheyHold) {
  using namespace std::string_literals;
  struct Row {
    const char* name;
    std::string block;
    Names expected;
  };
  const Row rows[] = {
      {"nothing", "", {}},
      {"half a header", Header(20, true).substr(0, 19), {}},
      {"a header alone", Header(20, true), {}},
      {"a list inside the header", Header(4, false) + "a\0\0"s, {}},
      {"a list behind the block", Header(400, false) + "a\0\0"s, {}},
      {"a start near the largest number", Header(0xFFFFFFFF, true) + "a\0\0"s, {}},
      {"a list at the very end", Header(23, false) + "a\0\0"s, {}},
      {"no end of the list", Header(20, false) + "a\0b"s, {"a", "b"}},
      {"an odd byte at the end", Header(20, true) + WideBytes(u"a") + "b", {"a"}},
      {"an empty list", Header(20, true) + std::string(4, '\0'), {}},
      {"half of a pair", Header(20, true) + WideBytes(u"\xD83D\0\0"s), {"\xEF\xBF\xBD"}},
  };
  for (const Row& row : rows) EXPECT_EQ(ParseDropFiles(row.block, kAnsi), row.expected) << row.name;
}

TEST(ParseText, EndsAtItsNulOrWithTheBlock) {
  using namespace std::string_literals;
  EXPECT_EQ(ParseWideText(WideBytes(u"http://\u043f\0rest"s)), "http://\xD0\xBF");
  EXPECT_EQ(ParseWideText(WideBytes(u"ab") + "c"), "ab");
  EXPECT_EQ(ParseWideText(""), "");
  EXPECT_EQ(ParseNarrowText("a\xEB\0rest"s, kAnsi), "a\xC3\xAB");
  EXPECT_EQ(ParseNarrowText("ab", kAnsi), "ab");
}

TEST(ParseLink, TheSecondLineIsTheTitle) {
  EXPECT_EQ(ParseLink("http://example.com"), (DraggedLink{"http://example.com", ""}));
  EXPECT_EQ(ParseLink("http://example.com\nA page"), (DraggedLink{"http://example.com", "A page"}));
  EXPECT_EQ(ParseLink(" http://a \r\n A page \r\nmore"), (DraggedLink{"http://a", "A page"}));
  EXPECT_EQ(ParseLink(""), DraggedLink{});
}

/// A block for one file, of the class and sizes that any source may leave out.
std::string FileGroup(std::string_view name, bool wide, char count = 1) {
  std::string block(76, '\0');
  block[0] = count;
  std::string field =
      wide ? WideBytes(std::u16string(name.begin(), name.end())) : std::string(name);
  field.resize(wide ? 520 : 260, '\0');
  return block + field;
}

TEST(ParseLinkFileTitle, IsTheNameOfTheFileThatALinkWouldBecome) {
  EXPECT_EQ(ParseLinkFileTitle(FileGroup("A page.url", true), true, kAnsi), "A page");
  EXPECT_EQ(ParseLinkFileTitle(FileGroup("A page.URL", false), false, kAnsi), "A page");
  EXPECT_EQ(ParseLinkFileTitle(FileGroup("picture.png", true), true, kAnsi), "");
  EXPECT_EQ(ParseLinkFileTitle(FileGroup("A page.url", true, 0), true, kAnsi), "");
  // Of several files the first one.
  EXPECT_EQ(ParseLinkFileTitle(FileGroup("A.url", true, 2) + std::string(592, 'x'), true, kAnsi),
            "A");
  // A name without an end is as long as its field.
  EXPECT_EQ(
      ParseLinkFileTitle(FileGroup(std::string(256, 'a') + ".url", false) + "more", false, kAnsi),
      std::string(256, 'a'));
}

TEST(ParseLinkFileTitle, DamagedBlocksGiveNothing) {
  const std::string whole = FileGroup("A page.url", true);
  for (const std::size_t length : {0U, 3U, 4U, 75U, 76U, 80U}) {
    EXPECT_EQ(ParseLinkFileTitle(whole.substr(0, length), true, kAnsi), "") << length;
  }
}

}  // namespace
}  // namespace corvelle::forms
