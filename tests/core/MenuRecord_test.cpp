#include "core/MenuRecord.h"

#include <gtest/gtest.h>

#include "base/Text.h"
#include "core/CoreTexts.h"

namespace corvelle {
namespace {

using namespace std::string_literals;

std::string Field(std::string text, std::size_t width) {
  text.resize(width, ' ');
  return text;
}

std::string Bytes(const std::string& title, const std::string& icon, const std::string& name) {
  return Field(title, 50) + Field(icon, 260) + Field(name, 260);
}

TEST(MenuRecord, IsTitleIconAndCommandInFixedPlaces) {
  const MenuRecord record{"Notes", "C:\\n.ico", "C:\\n.exe"};
  const std::string bytes = FormatRecord(record, kAnsi);
  ASSERT_EQ(bytes.size(), 570U);
  EXPECT_EQ(bytes, Bytes("Notes", "C:\\n.ico", "C:\\n.exe"));
  EXPECT_EQ(bytes[50], 'C');
  EXPECT_EQ(bytes[310], 'C');
  EXPECT_EQ(ParseRecord(bytes, kAnsi), record);
}

TEST(MenuRecord, ATextThatFillsItsFieldIsStoredWithoutPadding) {
  const MenuRecord record{std::string(50, 't'), std::string(260, 'i'), std::string(260, 'n')};
  const std::string bytes = FormatRecord(record, kAnsi);
  EXPECT_EQ(bytes.find(' '), std::string::npos);
  EXPECT_EQ(ParseRecord(bytes, kAnsi), record);
}

TEST(MenuRecord, ALongerTextLosesItsTailSilently) {
  const MenuRecord record{std::string(51, 't'), std::string(300, 'i'), std::string(261, 'n')};
  const MenuRecord kept{std::string(50, 't'), std::string(260, 'i'), std::string(260, 'n')};
  EXPECT_EQ(ParseRecord(FormatRecord(record, kAnsi), kAnsi), kept);
}

TEST(MenuRecord, BlanksAtBothEndsOfAFieldAreLostOnReading) {
  const MenuRecord record{"  Notes  ", " icon ", "\ttab\t "};
  EXPECT_EQ(ParseRecord(FormatRecord(record, kAnsi), kAnsi),
            (MenuRecord{"Notes", "icon", "\ttab\t"}));
}

TEST(MenuRecord, ShortInputLeavesTheRestBlank) {
  struct Row {
    const char* name;
    std::size_t length;
    MenuRecord expected;
  };
  const std::string bytes = Bytes("Title", "Icon", "Name");
  const Row rows[] = {
      {"nothing", 0, {"", "", ""}},
      {"in the title", 3, {"Tit", "", ""}},
      {"title only", 50, {"Title", "", ""}},
      {"in the icon", 52, {"Title", "Ic", ""}},
      {"in the name", 311, {"Title", "Icon", "N"}},
      {"one byte short", 569, {"Title", "Icon", "Name"}},
      {"whole", 570, {"Title", "Icon", "Name"}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ParseRecord(bytes.substr(0, row.length), kAnsi), row.expected) << row.name;
  }
  EXPECT_EQ(ParseRecord(bytes + "more", kAnsi), (MenuRecord{"Title", "Icon", "Name"}));
}

TEST(MenuRecord, ANulStaysInItsField) {
  const std::string bytes = Bytes("Title\00017"s, "a\0b"s, "\0"s);
  const MenuRecord record = ParseRecord(bytes, kAnsi);
  EXPECT_EQ(record.FTitle, "Title\00017"s);
  EXPECT_EQ(record.FIcon, "a\0b"s);
  EXPECT_EQ(record.FName, "\0"s);
  EXPECT_EQ(FormatRecord(record, kAnsi), bytes);
}

TEST(MenuRecord, EveryByteValueInEveryFieldIsStoredAsItCame) {
  for (int value = 0; value < 256; ++value) {
    // Between letters that no byte joins to a UTF-8 character, so that the field stays ANSI.
    const std::string text = "\xFF" + std::string(1, static_cast<char>(value)) + "\xFF";
    const std::string bytes = Bytes(text, text, text);
    const MenuRecord record = ParseRecord(bytes, kAnsi);
    EXPECT_EQ(FormatRecord(record, kAnsi), bytes) << value;
    EXPECT_EQ(record.FTitle, record.FIcon) << value;
    EXPECT_EQ(record.FTitle, record.FName) << value;
  }
}

TEST(MenuRecord, PathsInAnyScriptComeBack) {
  const MenuRecord record{"\xD0\x97\xD0\xB0\xD0\xBC\xD0\xB5\xD1\x82\xD0\xBA\xD0\xB8",
                          "C:\\\xC3\x84pfel.ico", "C:\\\xE4\xB8\xAD\xE6\x96\x87\\a.exe"};
  const std::string bytes = FormatRecord(record, kAnsi);
  EXPECT_EQ(bytes.substr(50, 8), "C:\\\xC4pfel");
  EXPECT_EQ(ParseRecord(bytes, kAnsi), record);
}

TEST(MenuRecord, ATitleInAnotherScriptIsCutBetweenCharacters) {
  std::string title;
  for (int i = 0; i < 30; ++i) title += "\xD0\x96";
  const MenuRecord back = ParseRecord(FormatRecord({"x" + title, "", ""}, kAnsi), kAnsi);
  EXPECT_EQ(back.FTitle, "x" + title.substr(0, 48));
}

TEST(RecordCount, RoundsToTheNearestAndHalvesToEven) {
  struct Row {
    const char* name;
    std::uint64_t length;
    int expected;
  };
  const Row rows[] = {
      {"empty", 0, 0},
      {"one byte", 1, 0},
      {"half a record", 285, 0},
      {"more than half", 286, 1},
      {"one byte short", 569, 1},
      {"one", 570, 1},
      {"one byte more", 571, 1},
      {"one and a half", 855, 2},
      {"two and a half", 1425, 2},
      {"three and a half", 1995, 4},
      {"ten thousand", 5'700'000, 10000},
      {"the last number", 570ULL * 32767, 32767},
      {"beyond it", 570ULL * 32768, 32767},
      {"far beyond it", 570ULL << 40U, 32767},
  };
  for (const Row& row : rows) EXPECT_EQ(RecordCount(row.length), row.expected) << row.name;
}

TEST(Markers, IgnoreCase) {
  EXPECT_TRUE(IsSeparatorIcon("MenuLineSeparator"));
  EXPECT_TRUE(IsSeparatorIcon("MENULINESEPARATOR"));
  EXPECT_TRUE(IsSeparatorIcon("menubreaker"));
  EXPECT_FALSE(IsSeparatorIcon("Separator"));
  EXPECT_FALSE(IsSeparatorIcon(""));
  EXPECT_FALSE(IsSeparatorIcon("MenuLineSeparator2"));
}

TEST(HiddenFlag, HoldsWithBlanksAnywhere) {
  for (const char* name : {"/h", "/H", "/ h", " / h ", "  /h"}) {
    EXPECT_TRUE(IsHiddenFlag(name)) << name;
  }
  for (const char* name : {"", "h", "/", "/hh", "x/h", "/h x"}) {
    EXPECT_FALSE(IsHiddenFlag(name)) << name;
  }
}

TEST(FolderItems, AreToldByTheirCommand) {
  struct Row {
    const char* name;
    bool folder;
    bool special;
  };
  const Row rows[] = {
      {"C:\\Docs\\*.*/u", true, false},   {"C:\\Docs\\*.txt", true, false},
      {"CSIDL_DESKTOP", false, true},     {"csidl_controls/U", false, true},
      {"CSIDL_DESKTOP\\x", false, false}, {"C:\\CSIDL_X", false, false},
      {"xCSIDL_DESKTOP", false, false},   {"", false, false},
      {"C:\\a.exe", false, false},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(IsFolderItem(row.name), row.folder) << row.name;
    EXPECT_EQ(IsSpecialFolder(row.name), row.special) << row.name;
  }
}

TEST(FolderItems, HaveTheirOptionsAfterTheFirstSlash) {
  struct Row {
    const char* name;
    const char* options;
    const char* bare;
    bool closed;
  };
  const Row rows[] = {
      {"C:\\d\\*.*", "", "C:\\d\\*.*", false},
      {"C:\\d\\*.*/u", "U", "C:\\d\\*.*", false},
      {"C:\\d\\*.* /x", "X", "C:\\d\\*.*", true},
      {"C:\\d\\*.*/us-e x", "US-E X", "C:\\d\\*.*", true},
      {"C:\\d\\*.*/u/x", "U/X", "C:\\d\\*.*", true},
      {"CSIDL_DESKTOP / X", " X", "CSIDL_DESKTOP", true},
      {"C:\\x\\*.*/u", "U", "C:\\x\\*.*", false},
      {"/", "", "", false},
      {"", "", "", false},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(FolderOptions(row.name), row.options) << row.name;
    EXPECT_EQ(FolderWithoutOptions(row.name), row.bare) << row.name;
    EXPECT_EQ(IsClosedFolder(row.name), row.closed) << row.name;
  }
}

TEST(FolderItems, AreClosedAndOpenedInTheirText) {
  struct Row {
    const char* open;
    const char* closed;
  };
  const Row rows[] = {
      {"C:\\d\\*.*", "C:\\d\\*.* /X"},
      {"C:\\d\\*.*/u", "C:\\d\\*.*/u X"},
      {"C:\\x\\*.*/u-", "C:\\x\\*.*/u- X"},
      {"CSIDL_DESKTOP", "CSIDL_DESKTOP /X"},
      {"CSIDL_CONTROLS /U", "CSIDL_CONTROLS /U X"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(CloseFolderText(row.open), row.closed);
    EXPECT_EQ(OpenFolderText(row.closed), row.open);
  }
}

TEST(FolderItems, OpenWhereverTheXStands) {
  struct Row {
    const char* closed;
    const char* open;
  };
  const Row rows[] = {
      {"C:\\x\\*.*/xu", "C:\\x\\*.*/u"},     {"C:\\x\\*.*/uXs", "C:\\x\\*.*/us"},
      {"C:\\x\\*.*/x", "C:\\x\\*.*"},        {"C:\\x\\*.*/X X", "C:\\x\\*.*/"},
      {"CSIDL_DESKTOP /x", "CSIDL_DESKTOP"}, {"C:\\x\\*.*", "C:\\x\\*.*"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(OpenFolderText(row.closed), row.open) << row.closed;
    EXPECT_FALSE(IsClosedFolder(OpenFolderText(row.closed))) << row.closed;
  }
}

TEST(RecordNumbers, AboveFiveThousandAreGenerated) {
  EXPECT_FALSE(IsGenerated(0));
  EXPECT_FALSE(IsGenerated(5000));
  EXPECT_TRUE(IsGenerated(5001));
  EXPECT_EQ(RealRecord(5000), 5000);
  EXPECT_EQ(RealRecord(5003), 3);
  EXPECT_EQ(RealRecord(7), 7);
}

TEST(NumberedTitles, AreSplitAtTheFirstNul) {
  struct Row {
    const char* name;
    std::string title;
    NumberedTitle expected;
  };
  const Row rows[] = {
      {"no NUL", "Notes", {"Notes", 4}},
      {"stored entry", "Notes\00017"s, {"Notes", 17}},
      {"generated entry", "Notes\0005003"s, {"Notes", 5003}},
      {"blanks", " Notes \0 17 "s, {"Notes", 17}},
      {"no number", "Notes\0"s, {"Notes", 0}},
      {"something else", "Notes\0abc"s, {"Notes", 0}},
      {"two NULs", "Notes\0abc\00017"s, {"Notes", 0}},
      {"no title", "\00017"s, {"", 17}},
      {"nothing", "", {"", 4}},
  };
  for (const Row& row : rows) EXPECT_EQ(SplitTitle(row.title, 4), row.expected) << row.name;
}

TEST(NumberedTitles, AreJoinedSoThatTheNumberFits) {
  EXPECT_EQ(JoinTitle("Notes", 17, kAnsi), "Notes\00017"s);
  const std::string joined = JoinTitle(std::string(50, 't'), 5003, kAnsi);
  EXPECT_EQ(joined, std::string(45, 't') + "\0005003"s);
  for (const char* title : {"", "Notes", "\xC3\x84pfel",
                            "\xD0\x96\xD0\x96\xD0\x96\xD0\x96\xD0\x96"
                            "\xD0\x96\xD0\x96\xD0\x96\xD0\x96\xD0\x96\xD0\x96\xD0\x96\xD0\x96"
                            "\xD0\x96\xD0\x96\xD0\x96\xD0\x96\xD0\x96\xD0\x96\xD0\x96\xD0\x96"
                            "\xD0\x96\xD0\x96\xD0\x96\xD0\x96\xD0\x96\xD0\x96\xD0\x96\xD0\x96"}) {
    const std::string bytes = FormatRecord({JoinTitle(title, 32767, kAnsi), "", ""}, kAnsi);
    const NumberedTitle split = SplitTitle(ParseRecord(bytes, kAnsi).FTitle, 1);
    EXPECT_EQ(split.Record, 32767) << title;
    EXPECT_TRUE(std::string(title).starts_with(split.Title)) << title;
  }
}

TEST(FileNames, HaveThreeDigitsAndGrow) {
  struct Row {
    int number;
    const char* menu;
    const char* single;
  };
  const Row rows[] = {
      {1, "BMENU001.MNU", "BMENU001.BTN"},      {12, "BMENU012.MNU", "BMENU012.BTN"},
      {99, "BMENU099.MNU", "BMENU099.BTN"},     {999, "BMENU999.MNU", "BMENU999.BTN"},
      {1000, "BMENU1000.MNU", "BMENU1000.BTN"}, {32767, "BMENU32767.MNU", "BMENU32767.BTN"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(MenuFileName(row.number), row.menu);
    EXPECT_EQ(SingleFileName(row.number), row.single);
  }
}

TEST(NewEntries, BearTheGivenTexts) {
  EXPECT_EQ(NewButtonRecord(), (MenuRecord{"New Button", "Button", ""}));
  EXPECT_EQ(NewItemRecord(), (MenuRecord{"New Menu Item", "New", ""}));
  EXPECT_EQ(NewSeparatorRecord(), (MenuRecord{"Separator", "MenuLineSeparator", ""}));
}

TEST(MainMenu, HasItsSixteenRows) {
  const std::vector<MenuRecord> expected = {
      {"", "", ""},
      {"Customize...", "imgIcons cust", ""},
      {"Refresh All", "", ""},
      {"Large Icons", "xCircle", ""},
      {"", "MenuLineSeparator", ""},
      {"Auto Hide", "xCircle", ""},
      {"Not On Top", "xCircle", ""},
      {"", "MenuLineSeparator", ""},
      {"Help Topics", "imgIcons help", ""},
      {"About...", "", ""},
      {"", "MenuLineSeparator", ""},
      {"Restore", "", ""},
      {"Maximize", "", ""},
      {"Minimize", "", ""},
      {"", "MenuLineSeparator", ""},
      {"Exit", "", ""},
  };
  EXPECT_EQ(MainMenuRecords(), expected);
}

}  // namespace
}  // namespace corvelle
