#include "launch/FileTitle.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "core/Program.h"
#include "sim/World.h"

namespace corvelle {

using std::string_literals::operator""s;

TEST(FileTitles, ComeFromTheShownName) {
  struct Row {
    const char* name;
    std::string path;
    std::optional<std::string> shown;
    std::string expected;
  };
  const Row rows[] = {
      {"shown name", "c:\\a.exe", "A Program", "A Program"},
      {"up to its NUL", "c:\\a.exe", "A Program\0rest"s, "A Program"},
      {"the path where the shell knows none", "c:\\tools\\a b.exe", std::nullopt, "a b"},
      {"after the last backslash", "c:\\x", "one\\two\\three", "three"},
      {"nothing after the last backslash", "c:\\tools\\", std::nullopt, ""},
      {"a link's long name", "c:\\x.lnk", "Shortcut to Tools", "Tools"},
      {"in any case", "c:\\x.lnk", "SHORTCUT TO tools", "tools"},
      {"twelve characters are too few", "c:\\x.lnk", "Shortcut toX", "Shortcut toX"},
      {"thirteen are enough", "c:\\x.lnk", "Shortcut to X", "X"},
      {"only in front", "c:\\x.lnk", "My Shortcut to X", "My Shortcut to X"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(FileTitle({.Path = row.path, .DisplayName = row.shown}), row.expected) << row.name;
  }
}

TEST(FileTitles, LoseTheUsualExtensions) {
  struct Row {
    const char* name;
    std::string shown;
    std::string expected;
  };
  const Row rows[] = {
      {"three characters", "a.txt", "a"},
      {"three characters of any script", "a.\xC3\xA9\xC3\xA9\xC3\xA9", "a"},
      {"html", "a.html", "a"},
      {"jpeg in capitals", "a.JPEG", "a"},
      {"jfif", "a.jfif", "a"},
      {"mhtml", "a.mhtml", "a"},
      {"mpeg", "a.mpeg", "a"},
      {"aiff", "a.aiff", "a"},
      {"aifc", "a.aifc", "a"},
      {"ht", "a.ht", "a"},
      {"au", "a.au", "a"},
      {"lz", "a.lz", "a"},
      {"only the last one", "a.tar.txt", "a.tar"},
      {"a version is no extension", "Version 2.1a", "Version 2.1a"},
      {"two characters", "a.gz", "a.gz"},
      {"four characters", "a.docx", "a.docx"},
      {"one character", "a.c", "a.c"},
      {"a dot at the end", "a.", "a."},
      {"no dot", "Readme", "Readme"},
      {"nothing before the dot", ".txt", ""},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(FileTitle({.Path = "c:\\x", .DisplayName = row.shown}), row.expected) << row.name;
  }
}

TEST(FileTitles, KeepTheExtensionWhereTheyShould) {
  EXPECT_EQ(FileTitle({.Path = "c:\\a.txt", .DisplayName = "a.txt", .KeepExtension = true}),
            "a.txt");
  EXPECT_EQ(FileTitle({.Path = "c:\\a.txt", .DisplayName = "a.txt", .IsFolder = true}), "a.txt");
  EXPECT_EQ(FileTitle({.Path = "A:\\", .DisplayName = "Floppy.dsk"}), "Floppy.dsk");
}

TEST(FileTitles, OfAKeptExtensionLoseTheShortcutWordsAllTheSame) {
  EXPECT_EQ(
      FileTitle(
          {.Path = "c:\\x.lnk", .DisplayName = "Shortcut to Tools.lnk", .KeepExtension = true}),
      "Tools.lnk");
}

TEST(GetFileTitle, AsksTheShellTheDiskAndTheOptions) {
  sim::World world;
  Program program(world.Services(), world.Windows());
  const FileTitles titles(program.Starts, program.Services.Ansi, program.OptionFlags);
  world.Files.Put("C:\\Docs\\Plan.txt", "x");
  world.Files.MakeFolders("C:\\Docs\\Old.txt");
  EXPECT_EQ(titles.GetFileTitle("C:\\Docs\\Plan.txt"), "Plan");
  EXPECT_EQ(titles.GetFileTitle("C:\\Docs\\Old.txt"), "Old.txt");
  EXPECT_EQ(titles.GetFileTitle("C:\\Docs\\Gone.txt"), "Gone");
  program.OptionFlags.Set(Option::KeepExtension, '1');
  EXPECT_EQ(titles.GetFileTitle("C:\\Docs\\Plan.txt"), "Plan.txt");
}

TEST(GetFileTitle, OfADiskThatDoesNotAnswerIsThatOfThePath) {
  sim::World world;
  Program program(world.Services(), world.Windows());
  const FileTitles titles(program.Starts, program.Services.Ansi, program.OptionFlags);
  world.Files.AddDrive('D');
  world.Files.MakeFolders("D:\\Docs\\Old.txt");
  world.Starts.Hang();
  const auto names = titles.GetDroppedNames({"D:\\Docs\\Plan.txt", "D:\\Docs\\Old.txt"});
  ASSERT_EQ(names.size(), 2U);
  EXPECT_EQ(names[0].Title, "Plan");
  EXPECT_EQ(names[0].Stored, "D:\\Docs\\Plan.txt");
  EXPECT_EQ(names[1].Title, "Old");
  EXPECT_EQ(titles.GetFileTitle("D:\\Docs\\Plan.txt"), "Plan");
  EXPECT_EQ(world.Starts.UnderWay(), 1) << "while it hangs it is not asked again";
  EXPECT_EQ(titles.GetFileTitle("C:\\Docs\\Plan.txt"), "Plan");
  EXPECT_EQ(world.Starts.UnderWay(), 2) << "another disk is";
  world.Starts.Resume();
  EXPECT_EQ(titles.GetFileTitle("D:\\Docs\\Old.txt"), "Old.txt");
}

}  // namespace corvelle
