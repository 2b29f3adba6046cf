#include "icons/IconQuestions.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace corvelle {

namespace {

constexpr IconPlaces kFolders{.AppPath = "C:\\Corvelle\\",
                              .IconsPath = "C:\\Corvelle\\Icons\\",
                              .WebLinkIcon = "C:\\Corvelle\\httpicon.htm"};

IconForm FormOf(std::string_view text) { return ClassifyIcon(text, kFolders, IconCaller::Menu); }

std::string Told(const std::vector<Lookup>& questions) {
  std::string told;
  for (const Lookup& question : questions) {
    if (!told.empty()) told += ", ";
    switch (question.Kind) {
      case LookupKind::FileIcon:
        told += "of " + question.Path;
        break;
      case LookupKind::IconInFile:
        told += std::to_string(question.Number) + " in " + question.Path;
        break;
      case LookupKind::ShellIcon:
        told += "of folder " + std::to_string(question.Number) + question.Path;
        break;
      default:
        told += "something else";
    }
    EXPECT_EQ(question.List, IconList::Small) << question.Path;
    EXPECT_EQ(question.Size, kSmallIconSize) << question.Path;
  }
  return told;
}

}  // namespace

TEST(IconQuestions, EachFormOfATextLeadsToItsIcon) {
  struct Row {
    const char* name;
    std::string text;
    std::string expected;
    std::string shellDrawsNone;
  };
  const Row rows[] = {
      {"none", "", "", ""},
      {"a picture of the program", "xCircle", "", ""},
      {"a number of the shell's list", "37", "", ""},
      {"a file", "C:\\a.txt", "of C:\\a.txt", "of C:\\a.txt"},
      {"a folder", "C:\\Docs\\", "of C:\\Docs\\", "of C:\\Docs\\"},
      {"an icon in a file", "C:\\a.exe|-4", "-4 in C:\\a.exe, of C:\\a.exe|-4",
       "-4 in C:\\a.exe, of C:\\a.exe|-4"},
      {"of the program's own folder", "\\icons\\x.ico", "of C:\\Corvelle\\icons\\x.ico",
       "0 in C:\\Corvelle\\icons\\x.ico, of C:\\Corvelle\\icons\\x.ico"},
      {"a web link", "http", "of C:\\Corvelle\\httpicon.htm", "of C:\\Corvelle\\httpicon.htm"},
      {"a folder of the shell", "csidl_drives/x", "of folder 17", "of folder 17"},
      {"an unknown one, which is the desktop", "CSIDL_NOSUCHTHING", "of folder 0", "of folder 0"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Told(IconQuestions(FormOf(row.text), true)), row.expected) << row.name;
    EXPECT_EQ(Told(IconQuestions(FormOf(row.text), false)), row.shellDrawsNone) << row.name;
  }
  EXPECT_EQ(Told(BlankIconQuestions(kFolders.IconsPath, true)),
            "of C:\\Corvelle\\Icons\\W95MBX02.ICO");
  EXPECT_EQ(Told(BlankIconQuestions(kFolders.IconsPath, false)),
            "0 in C:\\Corvelle\\Icons\\W95MBX02.ICO, of C:\\Corvelle\\Icons\\W95MBX02.ICO");
}

TEST(IconQuestions, LargeIconsComeFromTheListOfLargeOnes) {
  for (const char* text : {"C:\\a.exe|3", "\\icons\\x.ico", "CSIDL_DRIVES"}) {
    for (const Lookup& question : IconQuestions(FormOf(text), false, 32)) {
      if (question.Kind == LookupKind::IconInFile) {
        EXPECT_EQ(question.Size, 32) << text;
      } else {
        EXPECT_EQ(question.List, IconList::Large) << text;
      }
    }
  }
  EXPECT_EQ(BlankIconQuestions(kFolders.IconsPath, false, 48)[0].Size, 48);
}

TEST(IconQuestions, UntilTheAnswerComesTheKindOfTheThingIsShown) {
  struct Row {
    const char* text;
    const char* glyph;
    const char* extension;
  };
  const Row rows[] = {
      {"C:\\a.txt", "document", ".TXT"}, {"C:\\a.b\\a.Doc", "document", ".DOC"},
      {"C:\\a.tool.EXE", "program", ""}, {"C:\\run.bat", "program", ".BAT"},
      {"C:\\a.LNK", "link", ""},         {"C:\\a.url", "link", ""},
      {"C:\\x.ico", "document", ""},     {"C:\\a.b\\Docs", "folder", ""},
      {"C:\\Docs.d\\", "folder", ""},    {"CSIDL_DRIVES", "folder", ""},
      {"C:\\a.dll|3", "document", ""},   {"C:\\a.exe|3", "program", ""},
      {"http", "document", ".HTM"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(NeutralGlyph(FormOf(row.text)), row.glyph) << row.text;
    EXPECT_EQ(SharedIconExtension(FormOf(row.text)), row.extension) << row.text;
  }
}

}  // namespace corvelle
