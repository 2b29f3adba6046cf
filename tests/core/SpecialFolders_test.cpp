#include "core/SpecialFolders.h"

#include <gtest/gtest.h>

#include <string>

#include "base/CodePage.h"

namespace corvelle {
namespace {

TEST(CsidlValue, IsTheShellsNumberOfEachName) {
  struct Row {
    const char* Name;
    int Value;
  };
  const Row rows[] = {
      {"CSIDL_DESKTOP", 0},
      {"CSIDL_PROGRAMS", 2},
      {"CSIDL_CONTROLS", 3},
      {"CSIDL_PRINTERS", 4},
      {"CSIDL_PERSONAL", 5},
      {"CSIDL_FAVORITES", 6},
      {"CSIDL_STARTUP", 7},
      {"CSIDL_RECENT", 8},
      {"CSIDL_SENDTO", 9},
      {"CSIDL_BITBUCKET", 10},
      {"CSIDL_STARTMENU", 11},
      {"CSIDL_DESKTOPDIRECTORY", 16},
      {"CSIDL_DRIVES", 17},
      {"CSIDL_NETWORK", 18},
      {"CSIDL_NETHOOD", 19},
      {"CSIDL_FONTS", 20},
      {"CSIDL_TEMPLATES", 21},
      {"CSIDL_COMMON_STARTMENU", 22},
      {"CSIDL_COMMON_PROGRAMS", 23},
      {"CSIDL_COMMON_STARTUP", 24},
      {"CSIDL_COMMON_DESKTOPDIRECTORY", 25},
      {"CSIDL_APPDATA", 26},
      {"CSIDL_PRINTHOOD", 27},
  };
  for (const Row& row : rows) EXPECT_EQ(CsidlValue(row.Name), row.Value) << row.Name;
}

TEST(CsidlValue, TheCaseOfANameDoesNotCount) {
  EXPECT_EQ(CsidlValue("csidl_drives"), 17);
  EXPECT_EQ(CsidlValue("Csidl_Common_StartMenu"), 22);
}

TEST(CsidlValue, AnyOtherTextIsTheDesktop) {
  for (const char* name : {"", "CSIDL_", "CSIDL_DRIVE", "CSIDL_DRIVES2", "CSIDL_DRIVES/X",
                           " CSIDL_DRIVES", "DRIVES", "17", "CSIDL_\xD0\x96", "CSIDL_DRIVES\\C"}) {
    EXPECT_EQ(CsidlValue(name), 0) << name;
  }
}

TEST(KindOfSpecialFolder, TellsFoldersOfTheDiskFromThoseOfTheShell) {
  using Kind = SpecialFolderKind;
  for (const int value : {2, 5, 6, 7, 8, 9, 11, 16, 19, 20, 21, 22, 23, 24, 25, 26, 27})
    EXPECT_EQ(KindOfSpecialFolder(value), Kind::Disk) << value;
  for (const int value : {3, 4, 10, 17, 18})
    EXPECT_EQ(KindOfSpecialFolder(value), Kind::Shell) << value;
  EXPECT_EQ(KindOfSpecialFolder(0), Kind::Desktop);
  for (const int value : {-1, 1, 12, 15, 28, 100})
    EXPECT_EQ(KindOfSpecialFolder(value), Kind::None) << value;
}

TEST(ParseSpecialFolder, TakesACommandApart) {
  struct Row {
    const char* What;
    const char* Command;
    const char* Title;
    SpecialFolderText Expected;
  };
  const Row rows[] = {
      {"bare", "CSIDL_DRIVES", "", {"CSIDL_DRIVES", "", ""}},
      {"with the caption", "CSIDL_DRIVES", "Disk (C:)", {"CSIDL_DRIVES", "Disk (C:)", ""}},
      {"title behind", "CSIDL_DRIVES\\Disk (C:)", "", {"CSIDL_DRIVES", "Disk (C:)", ""}},
      {"title before", "Disk (C:)\\CSIDL_DRIVES", "", {"CSIDL_DRIVES", "Disk (C:)", ""}},
      {"in any case", "Disk\\csidl_Drives", "", {"csidl_Drives", "Disk", ""}},
      {"its own title comes first", "CSIDL_DRIVES\\C", "D", {"CSIDL_DRIVES", "C", ""}},
      {"so does the one before", "C\\CSIDL_DRIVES", "D", {"CSIDL_DRIVES", "C", ""}},
      {"blanks", " CSIDL_DRIVES \\ C ", "", {"CSIDL_DRIVES", "C", ""}},
      {"options", "CSIDL_DRIVES/u", "C", {"CSIDL_DRIVES", "C", "/U"}},
      {"not expanded", "CSIDL_DRIVES/X", "Drives", {"CSIDL_DRIVES", "", "/X"}},
      {"not expanded, small", "CSIDL_DRIVES /ux", "Drives", {"CSIDL_DRIVES", "", "/UX"}},
      {"a slash in a title", "CSIDL_CONTROLS", "TCP/IP X", {"CSIDL_CONTROLS", "TCP/IP X", ""}},
      {"a slash in a title behind",
       "CSIDL_CONTROLS\\TCP/IP X",
       "",
       {"CSIDL_CONTROLS", "TCP/IP X", ""}},
      {"a slash in a title before",
       "TCP/IP X\\CSIDL_CONTROLS",
       "",
       {"CSIDL_CONTROLS", "TCP/IP X", ""}},
      {"a backslash in a title before", "a\\b\\CSIDL_FONTS", "", {"CSIDL_FONTS", "a\\b", ""}},
      {"a backslash in a title behind", "CSIDL_FONTS\\a\\b", "", {"CSIDL_FONTS", "a\\b", ""}},
      {"any script", "\xD0\x96\\CSIDL_FONTS", "", {"CSIDL_FONTS", "\xD0\x96", ""}},
      {"nothing", "", "", {"", "", ""}},
  };
  for (const Row& row : rows)
    EXPECT_EQ(ParseSpecialFolder(row.Command, row.Title), row.Expected) << row.What;
}

TEST(IsSpecialFolderEntry, WantsATitleAndAKnownFolder) {
  for (const char* command : {"Disk (C:)\\CSIDL_DRIVES", "a\\b\\csidl_fonts",
                              "TCP/IP\\CSIDL_CONTROLS", "\xD0\x96\\CSIDL_FONTS/U"}) {
    EXPECT_TRUE(IsSpecialFolderEntry(command)) << command;
  }
  for (const char* command :
       {"", "CSIDL_DRIVES", "\\CSIDL_DRIVES", "C:\\CSIDL_NOTES.txt", "C:\\CSIDL_DRIVES",
        "\\\\host\\CSIDL_DRIVES", "C:\\CSIDL_DRIVES\\x.txt", "CSIDL_DRIVES\\Disk (C:)"}) {
    EXPECT_FALSE(IsSpecialFolderEntry(command)) << command;
  }
}

TEST(SpecialFolderEntryCommand, ALongFolderLeavesTheNameNoRoom) {
  const CodePage& ansi = Windows1252();
  const std::string mark = SpecialFolderEntryCommand("", "x", ansi).substr(0, 1);
  for (const std::size_t length : {258U, 259U, 260U, 300U}) {
    const std::string folder(length, 'f');
    EXPECT_EQ(SpecialFolderEntryCommand("Name", folder, ansi),
              (length == 258 ? "N" : "") + mark + folder)
        << length;
  }
}

TEST(FindEntryByTitle, TakesTheBestOfTheNames) {
  const std::string stem(46, 'x');
  const std::vector<std::string> names = {
      "mouse", "Mouse",       " Fonts ",      "\xD0\x96\xD1\x83\xD0\xBA",
      stem,    stem + "ycut", stem + "ycut2", "Mouse2"};
  EXPECT_EQ(FindEntryByTitle(names, "Mouse"), 1);
  EXPECT_EQ(FindEntryByTitle(names, "MOUSE"), 0);
  EXPECT_EQ(FindEntryByTitle(names, "fonts"), 2);
  EXPECT_EQ(FindEntryByTitle(names, "\xD0\xB6\xD0\xA3\xD0\x9A"), 3);
  // A title of 42 bytes may be cut, a shorter one is whole.
  EXPECT_EQ(FindEntryByTitle(names, stem + "y"), 5);
  EXPECT_EQ(FindEntryByTitle(names, stem.substr(0, 42)), 4);
  EXPECT_EQ(FindEntryByTitle(names, stem.substr(0, 41)), -1);
  EXPECT_EQ(FindEntryByTitle(names, "Mous"), -1);
  EXPECT_EQ(FindEntryByTitle(names, ""), -1);
  EXPECT_EQ(FindEntryByTitle({}, "Mouse"), -1);
}

}  // namespace
}  // namespace corvelle
