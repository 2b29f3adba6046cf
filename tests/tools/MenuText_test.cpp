#include "menutext/MenuText.h"

#include <gtest/gtest.h>

#include <random>

#include "base/CodePage.h"
#include "core/MenuRecord.h"

namespace corvelle {
namespace {

const Windows1252 kAnsi;

std::string Packed(std::string_view text) { return PackMenu(text, kAnsi).ValueOr("(error)"); }

std::string Bytes(const MenuRecord& record) { return FormatRecord(record, kAnsi); }

TEST(MenuText, WritesABlockForEachRecord) {
  const std::string bytes = Bytes({"Notes & more", "C:\\n.ico", "C:\\n.exe /x"}) +
                            Bytes({"", "MenuLineSeparator", ""}) +
                            Bytes({"\xC3\x84pfel", "", "C:\\\xD0\x96.exe"});
  const std::string text =
      "title: Notes & more\n"
      "icon: C:\\\\n.ico\n"
      "command: C:\\\\n.exe /x\n"
      "\n"
      "title:\n"
      "icon: MenuLineSeparator\n"
      "command:\n"
      "\n"
      "title: \xC3\x84pfel\n"
      "icon:\n"
      "command: C:\\\\\xD0\x96.exe\n";
  EXPECT_EQ(UnpackMenu(bytes, kAnsi), text);
  EXPECT_EQ(Packed(text), bytes);
}

TEST(MenuText, TakesWhatPeopleWrite) {
  const std::string expected = Bytes({"One", "", "c1"}) + Bytes({"Two", "", "c2"});
  EXPECT_EQ(Packed("# a menu\r\ncommand: c1\r\ntitle: One\r\n\r\n\r\ntitle:Two\r\ncommand:c2"),
            expected);
  EXPECT_EQ(Packed("\xEF\xBB\xBFtitle: One\ncommand: c1\n \ntitle: Two\nicon: \ncommand: c2\n"),
            expected);
  EXPECT_EQ(Packed(""), "");
  EXPECT_EQ(Packed("\n\n# nothing\n"), "");
}

TEST(MenuText, EscapesWhatALineCannotHold) {
  const std::string bytes = Bytes({std::string("Title\00017", 8), "a\nb", "a\\b\tc\rd"});
  const std::string text =
      "title: Title\\x0017\n"
      "icon: a\\nb\n"
      "command: a\\\\b\\x09c\\x0Dd\n";
  EXPECT_EQ(UnpackMenu(bytes, kAnsi), text);
  EXPECT_EQ(Packed(text), bytes);
}

TEST(MenuText, WritesBytesThatAreNoTextAsTheyAre) {
  // UTF-8 that the code page could hold as well: the program would store it in other bytes.
  std::string bytes = Bytes({"\xC3\xA4", "", ""});
  bytes.replace(0, 2, "\xC3\xA4");
  EXPECT_EQ(UnpackMenu(bytes, kAnsi), "title: \\xC3\\xA4\nicon:\ncommand:\n");
  EXPECT_EQ(Packed("title: \\xc3\\xA4\n"), bytes);
}

TEST(MenuText, KeepsBlanksInFrontOfAField) {
  const std::string bytes = "  x" + std::string(567, ' ');
  EXPECT_EQ(UnpackMenu(bytes, kAnsi), "title:   x\nicon:\ncommand:\n");
  EXPECT_EQ(Packed("title:   x\n"), bytes);
}

TEST(MenuText, KeepsATailThatIsNoWholeRecord) {
  const std::string record = Bytes({"One", "", ""});
  for (const std::string& tail :
       {std::string("x"), std::string("a \xE4  "), std::string(569, ' ')}) {
    EXPECT_EQ(Packed(UnpackMenu(record + tail, kAnsi)), record + tail);
    EXPECT_EQ(Packed(UnpackMenu(tail, kAnsi)), tail);
  }
}

TEST(MenuText, SaysWhatIsWrongAndWhere) {
  struct Row {
    const char* name;
    std::string text;
    MenuTextError expected;
  };
  const Row rows[] = {
      {"unknown line", "title: a\nname: b\n", {2, "neither title:, icon:, command: nor tail:"}},
      {"a line twice", "title: a\n\ntitle: b\ntitle: c\n", {4, "the record has that line already"}},
      {"a lone backslash", "icon: C:\\Windows\n", {1, "a backslash that begins no escape"}},
      {"half an escape", "icon: \\x4\n", {1, "a backslash that begins no escape"}},
      {"no digits", "icon: \\xGG\n", {1, "a backslash that begins no escape"}},
      {"too long a title", "title: " + std::string(51, 'x'), {1, "longer than 50 bytes"}},
      {"too long a command", "command: " + std::string(261, 'x'), {1, "longer than 260 bytes"}},
      {"too many bytes", "title: \\xFF" + std::string(50, 'x'), {1, "longer than 50 bytes"}},
      {"no text", "title: \xFF\n", {1, "not in UTF-8"}},
      {"after the tail", "tail: x\n\ntitle: a\n", {3, "nothing may follow the tail"}},
      {"too long a tail", "tail: " + std::string(570, 'x'), {1, "as long as a record"}},
  };
  for (const Row& row : rows) {
    const auto bytes = PackMenu(row.text, kAnsi);
    ASSERT_FALSE(bytes) << row.name;
    EXPECT_EQ(bytes.Error(), row.expected) << row.name << ": " << bytes.Error().What;
  }
}

TEST(MenuText, FieldsThatJustFitAreTaken) {
  const MenuRecord full{std::string(50, 't'), std::string(260, 'i'), std::string(260, 'n')};
  EXPECT_EQ(Packed(UnpackMenu(Bytes(full), kAnsi)), Bytes(full));
}

TEST(MenuText, EveryByteOfEveryFieldComesBack) {
  for (int value = 0; value < 256; ++value) {
    for (const std::size_t place : {0U, 49U, 50U, 309U, 310U, 569U}) {
      std::string bytes(570, ' ');
      bytes[place] = static_cast<char>(value);
      EXPECT_EQ(Packed(UnpackMenu(bytes, kAnsi)), bytes) << value << " at " << place;
    }
  }
}

TEST(MenuText, RandomBytesComeBack) {
  std::mt19937 random(20);
  for (int round = 0; round < 2000; ++round) {
    std::string bytes(random() % 2000, ' ');
    for (char& c : bytes) {
      c = random() % 4 == 0 ? static_cast<char>(random() % 256)
                            : "a \\\xC3\xA4\xD0\x96"[random() % 7];
    }
    ASSERT_EQ(Packed(UnpackMenu(bytes, kAnsi)), bytes) << "round " << round;
  }
}

}  // namespace
}  // namespace corvelle
