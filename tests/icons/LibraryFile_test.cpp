#include "icons/LibraryFile.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "base/CodePage.h"

namespace corvelle {
namespace {

using std::string_literals::operator""s;

const Windows1252 kAnsi;

std::string Header(std::string_view name, std::string_view length) {
  std::string field(name);
  field.resize(kLibraryName, ' ');
  return field + std::string(length);
}

TEST(LibraryEntry, IsANameOfTwentyBytesAndTheHighestIndexOfItsData) {
  struct Row {
    const char* name;
    std::string bytes;
    LibraryEntry expected;
    std::uint64_t length;
  };
  const Row rows[] = {
      {"an icon", Header("a.ico", "\x04\x03\0\0"s), {"a.ico", 0x304}, 0x305},
      {"blanks around the name", Header("  a.ico", "\x01\0\0\0"s), {"a.ico", 1}, 2},
      {"a name that fills its field",
       Header("abcdefghijklmnop.ico", "\x01\0\0\0"s),
       {"abcdefghijklmnop.ico", 1},
       2},
      {"an ANSI name", Header("\xE4.ico", "\x01\0\0\0"s), {"\xC3\xA4.ico", 1}, 2},
      {"the end", Header("ignored", "\0\0\0\0"s), {"ignored", 0}, 0},
      {"a length below 0", Header("a.ico", "\xFF\xFF\xFF\xFF"s), {"a.ico", -1}, 0},
      {"the longest", Header("a.ico", "\xFF\xFF\xFF\x7F"s), {"a.ico", 0x7FFFFFFF}, 0x80000000U},
      {"bytes behind the header count for nothing",
       Header("a.ico", "\x02\0\0\0"s) + "data",
       {"a.ico", 2},
       3},
  };
  for (const Row& row : rows) {
    const auto entry = ParseLibraryEntry(row.bytes, kAnsi);
    ASSERT_TRUE(entry.has_value()) << row.name;
    EXPECT_EQ(*entry, row.expected) << row.name;
    EXPECT_EQ(LibraryDataLength(*entry), row.length) << row.name;
  }
}

TEST(LibraryEntry, AHeaderThatIsCutShortIsNone) {
  const std::string whole = Header("a.ico", "\x01\0\0\0"s);
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_FALSE(ParseLibraryEntry(whole.substr(0, size), kAnsi).has_value()) << size;
  }
}

TEST(PlainFileName, IsOneThatStaysInItsFolder) {
  for (const char* name : {"a.ico", "W95MBX02.ICO", "Tools.ini", "a b.ico", "no ending", ".ico",
                           "a.b.ico", "\xC3\xA4.ico", "CONSOLE.ico", "COM.ico", "COM0.ico",
                           "COM10.ico", "LPTX.ico", "NULL.ico", "xNUL", "a.NUL", "(1).ico"}) {
    EXPECT_TRUE(IsPlainFileName(name)) << name;
  }
}

TEST(PlainFileName, RefusesWhatLeadsElsewhere) {
  const std::string names[] = {
      "",
      ".",
      "..",
      "..\\a.ico",
      "a\\b.ico",
      "\\a.ico",
      "a/b.ico",
      "/a.ico",
      "C:a.ico",
      "C:\\a.ico",
      "a.ico:s",
      "a*.ico",
      "a?.ico",
      "a\"b.ico",
      "<a>.ico",
      "a|b.ico",
      "a\0.ico"s,
      "a\nb.ico",
      "\x1F.ico",
      "a.ico.",
      "a.ico ",
      "a.ico. ",
      "...",
      " a.ico",
      "NUL",
      "nul.ico",
      "NUL .ico",
      "CON",
      "Con.ico",
      "PRN.ico",
      "AUX.ini",
      "COM1",
      "com9.ico",
      "LPT1.a.b",
      "CONIN$",
      "conout$.x",
      "LPT\xC2\xB9.ico",
      "COM\xC2\xB3",
  };
  for (const std::string& name : names) EXPECT_FALSE(IsPlainFileName(name)) << name;
}

TEST(LibraryLines, LeavesOutLinesOfBlanks) {
  EXPECT_EQ(LibraryLines("a.ico\r\n\r\n   \r\n b.ico \nc.ico", kAnsi),
            (std::vector<std::string>{"a.ico", "b.ico", "c.ico"}));
  EXPECT_TRUE(LibraryLines("", kAnsi).empty());
  EXPECT_TRUE(LibraryLines(" \r\n\r\n", kAnsi).empty());
}

TEST(LibraryLines, ReadBackAsTheyWereStored) {
  const std::vector<std::string> lines = {"a.ico", "\xC3\xA4.ico", "\xD0\x96.ico"};
  const std::string bytes = FormatLibraryLines(lines, kAnsi);
  EXPECT_EQ(bytes, "a.ico\r\n\xE4.ico\r\n\xD0\x96.ico\r\n");
  EXPECT_EQ(LibraryLines(bytes, kAnsi), lines);
}

TEST(OtherFileRow, IsTheNameABlankABarAndThePath) {
  EXPECT_EQ(OtherFileRow("C:\\Windows\\Explorer.exe"), "Explorer.exe |C:\\Windows\\Explorer.exe");
  EXPECT_EQ(OtherFileRow("bare.dll"), "bare.dll |bare.dll");
  EXPECT_EQ(OtherFileName("Explorer.exe |C:\\Windows\\Explorer.exe"), "Explorer.exe");
  EXPECT_EQ(OtherFilePath("Explorer.exe | C:\\Windows\\Explorer.exe "),
            "C:\\Windows\\Explorer.exe");
  EXPECT_EQ(OtherFilePath("no bar"), "");
  EXPECT_EQ(OtherFileName("no bar"), "no bar");
}

TEST(PlainCase, IsAFirstCapitalAndSmallLetters) {
  EXPECT_EQ(PlainCase("c:\\PROGRAM FILES\\A.EXE"), "C:\\program files\\a.exe");
  EXPECT_EQ(PlainCase("\xC3\xA4\xC3\x84X"), "\xC3\x84\xC3\xA4x");
  EXPECT_EQ(PlainCase("FOLDER"), "Folder");
  EXPECT_EQ(PlainCase(""), "");
}

TEST(DisplayRecord, HoldsBothValuesInSixteenBytes) {
  const DisplayValues values{.WindowColour = 0x00C0B0A0, .BitsPerPixel = 32};
  const std::string record = FormatDisplayRecord(values);
  EXPECT_EQ(record, "\xA0\xB0\xC0\0\x20\0\0\0\0\0\0\0\0\0\0\0"s);
  EXPECT_EQ(ParseDisplayRecord(record), values);
  EXPECT_EQ(ParseDisplayRecord(""), DisplayValues());
  EXPECT_EQ(ParseDisplayRecord(record.substr(0, 4)), (DisplayValues{.WindowColour = 0x00C0B0A0}));
}

}  // namespace
}  // namespace corvelle
