#include "menus/folders/FolderRules.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace corvelle {
namespace {

TEST(ParseFolderItem, TakesTheItemApart) {
  struct Row {
    const char* name;
    FolderItem expected;
  };
  const Row rows[] = {
      {"C:\\Docs\\*.*", {.Folder = "C:\\Docs\\", .Mask = "*.*"}},
      {"C:\\Docs\\*.txt/u", {.Folder = "C:\\Docs\\", .Mask = "*.txt", .UpdateFolder = true}},
      {" C:\\My Docs\\*.t?t / S ",
       {.Folder = "C:\\My Docs\\", .Mask = "*.t?t", .SubFolders = true}},
      {"C:\\*.*/e", {.Folder = "C:\\", .Mask = "*.*", .WithoutExtension = true}},
      {"\\\\server\\share\\*/-", {.Folder = "\\\\server\\share\\", .Mask = "*", .Merged = true}},
      {"C:\\Docs\\*/_", {.Folder = "C:\\Docs\\", .Mask = "*", .Merged = true}},
      {"C:\\Docs\\* /-eSu/x",
       {.Folder = "C:\\Docs\\",
        .Mask = "*",
        .UpdateFolder = true,
        .SubFolders = true,
        .WithoutExtension = true,
        .Merged = true}},
      {"C:\\Docs\\*/QWRT123", {.Folder = "C:\\Docs\\", .Mask = "*"}},
      {"C:\\Docs-s_e\\*u", {.Folder = "C:\\Docs-s_e\\", .Mask = "*u"}},
      {"*.*", {.Folder = "", .Mask = "*.*"}},
      {"http://x/*", {.Folder = "", .Mask = "http:", .WithoutExtension = false}},
      {"", {}},
  };
  for (const Row& row : rows) EXPECT_EQ(ParseFolderItem(row.name), row.expected) << row.name;
}

TEST(ShownFiles, NothingHiddenOfTheSystemTemporaryOrCalledDir) {
  struct Row {
    const char* name;
    FileEntry entry;
    bool file;
    bool folder;
  };
  const Row rows[] = {
      {"plain", {.Name = "a.txt"}, true, false},
      {"read-only", {.Name = "a.txt", .ReadOnly = true}, true, false},
      {"hidden", {.Name = "a.txt", .Hidden = true}, false, false},
      {"system", {.Name = "a.txt", .System = true}, false, false},
      {"temporary", {.Name = "a.txt", .Temporary = true}, false, false},
      {"folder", {.Name = "inner", .IsFolder = true}, false, true},
      {"hidden folder", {.Name = "inner", .IsFolder = true, .Hidden = true}, false, false},
      {"system folder", {.Name = "inner", .IsFolder = true, .System = true}, false, false},
      {"dir file", {.Name = "list.dir"}, false, false},
      {"dir file in capitals", {.Name = "LIST.DIR"}, false, false},
      {"nothing but dir", {.Name = ".Dir"}, false, false},
      {"dir inside", {.Name = "a.dir.txt"}, true, false},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(IsShownFile(row.entry), row.file) << row.name;
    EXPECT_EQ(IsShownFolder(row.entry), row.folder) << row.name;
  }
}

TEST(SortKey, IsTheNameInCapitalsAndItsBaseWhereTheExtensionDoesNotCount) {
  const FolderItem plain;
  FolderItem bare;
  bare.WithoutExtension = true;
  FolderItem merged;
  merged.Merged = true;
  EXPECT_EQ(SortKeyOf("b\xC3\xA4r.txt", plain), "B\xC3\x84R.TXT");
  EXPECT_EQ(SortKeyOf("bear.txt", bare), "BEAR");
  EXPECT_EQ(SortKeyOf("bear.txt", merged), "BEAR");
  EXPECT_EQ(SortKeyOf("bear.txt.lnk", merged), "BEAR");
  EXPECT_EQ(SortKeyOf("bear.lnk", plain), "BEAR.LNK");
}

TEST(FileTitle, FollowsTheShellAndTheOptions) {
  struct Row {
    const char* what;
    std::string display;
    const char* name;
    bool bare;
    const char* expected;
  };
  const Row rows[] = {
      {"as the shell shows it", "Letter", "letter.doc", false, "Letter"},
      {"the shell shows nothing", "", "letter.doc", false, "letter.doc"},
      {"the shell adds a NUL", std::string("Letter\0x", 8), "letter.doc", false, "Letter"},
      {"a link the shell shows whole", "Letter.LNK", "Letter.lnk", false, "Letter"},
      {"a link to a document", "letter.doc", "letter.doc.lnk", false, "letter.doc"},
      {"without extension", "letter.doc", "letter.doc", true, "letter"},
      {"a link, without extension", "letter.doc", "letter.doc.lnk", true, "letter"},
      {"the shell left it out", "release 1.2", "release 1.2.doc", true, "release 1.2"},
      {"only the last point counts", "a.tar.gz", "a.tar.gz", true, "a.tar"},
      {"another case", "LETTER.DOC", "letter.doc", true, "LETTER"},
      {"no extension", "letter", "letter", true, "letter"},
      {"nothing but an extension", ".profile", ".profile", true, ".profile"},
      {"blanks at the ends", " letter ", " letter .doc", false, "letter"},
      {"another script", "\xD0\x9F\xD1\x83\xD1\x82\xD1\x8C.txt",
       "\xD0\x9F\xD1\x83\xD1\x82\xD1\x8C.txt", true, "\xD0\x9F\xD1\x83\xD1\x82\xD1\x8C"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(FileTitleOf(row.display, row.name, row.bare), row.expected) << row.what;
  }
}

TEST(NameWithoutExtension, CutsALinksEndFirst) {
  EXPECT_EQ(NameWithoutExtension("a.b.c"), "a.b");
  EXPECT_EQ(NameWithoutExtension("a.txt.LNK"), "a");
  EXPECT_EQ(NameWithoutExtension("a.lnk"), "a");
  EXPECT_EQ(NameWithoutExtension(".a"), ".a");
  EXPECT_EQ(NameWithoutExtension(".lnk"), "");
}

TEST(GeneratedFileName, ReplacesTheLastThreeLetters) {
  EXPECT_EQ(GeneratedFileName("C:\\Menus\\BMENU012.MNU"), "C:\\Menus\\BMENU012.mfd");
  EXPECT_EQ(GeneratedFileName("mnu"), "mfd");
  EXPECT_EQ(GeneratedFileName(""), "mfd");
}

TEST(ListCacheName, IsTheMenusNameAndTheFolders) {
  const std::string menu = "C:\\Menus\\BMENU012.MNU";
  EXPECT_EQ(ListCacheName(menu, "CSIDL_PROGRAMS"), "C:\\Menus\\BMENU012.PROGRAMS");
  EXPECT_EQ(ListCacheName(menu, "csidl_drives"), "C:\\Menus\\BMENU012.DRIVES");
}

TEST(ListCacheName, AnUnknownFolderNeverTakesTheNameOfAnotherFile) {
  const std::string menu = "C:\\Menus\\BMENU012.MNU";
  for (const char* name :
       {"CSIDL_MNU", "CSIDL_BTN", "CSIDL_mfd", "CSIDL_", "CSIDL_a:b", "CSIDL_NOWHERE"}) {
    EXPECT_EQ(ListCacheName(menu, name), "C:\\Menus\\BMENU012.DESKTOP") << name;
  }
}

TEST(ShellFolderLines, AreSortedCaseApartAndTakenApartAgain) {
  const std::vector<std::string> lines = ShellFolderLines({{"mail", 4},
                                                           {"Fonts", 12},
                                                           {"fonts", 3},
                                                           {"", 9},
                                                           {std::string("Bin\0x", 5), -1},
                                                           {"a|b", 7}});
  EXPECT_EQ(lines, (std::vector<std::string>{"a|b|7", "Bin|-1", "Fonts|12", "fonts|3", "mail|4"}));
  EXPECT_EQ(ParseShellFolderLine("Fonts|12"), (ShellFolderLine{"Fonts", "12"}));
  EXPECT_EQ(ParseShellFolderLine("a|b|7"), (ShellFolderLine{"a|b", "7"}));
  EXPECT_EQ(ParseShellFolderLine(std::string("Mail|4\0x", 8)), (ShellFolderLine{"Mail", "4"}));
  EXPECT_EQ(ParseShellFolderLine("Mail"), (ShellFolderLine{"Mail", ""}));
  EXPECT_EQ(ParseShellFolderLine(""), (ShellFolderLine{}));
}

}  // namespace
}  // namespace corvelle
