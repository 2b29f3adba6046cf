#include "icons/ShellIconRule.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "icons/IconDesk.h"

namespace corvelle {

namespace {

class DetectShellIconsTest : public IconDesk {
 protected:
  ShellIconRule rule{program.Answers, program.Paths, program.Icons};
};

}  // namespace

TEST_F(DetectShellIconsTest, TwoIconFilesTellWhateverTheRegistrySays) {
  struct Row {
    const char* name;
    int second;
    bool expected;
  };
  for (const Row& row : {Row{"two pictures", 42, true}, Row{"one for both", 41, false}}) {
    for (const char* value : {"%1", "\"%1\"", "shell32.dll,1"}) {
      world.Keys.Set(RegistryRoot::ClassesRoot, "icofile\\DefaultIcon", "", value);
      Put("C:\\Corvelle\\Icons\\two.ico", row.second, 1);
      program.Icons.ShellDrawsIcons = !row.expected;
      rule.DetectShellIcons();
      EXPECT_EQ(program.Icons.ShellDrawsIcons, row.expected) << row.name << ", " << value;
    }
  }
}

TEST_F(DetectShellIconsTest, AShellThatTakesItsTimeIsNotWaitedFor) {
  Put("C:\\Corvelle\\Icons\\two.ico", 42, 1);
  world.SlowAnswers.Delay("C:", 50);
  world.SlowAnswers.Delay("C:*", 50);
  program.Icons.ShellDrawsIcons = true;
  const std::int64_t began = world.Desktop.Now();
  rule.DetectShellIcons();
  EXPECT_EQ(world.Desktop.Now(), began);
  EXPECT_FALSE(program.Icons.ShellDrawsIcons);
  world.Desktop.Advance(500);
  EXPECT_TRUE(program.Icons.ShellDrawsIcons);
}

TEST_F(DetectShellIconsTest, OneThatTellsNothingOfAFileMeansThatItDoesNot) {
  Put("C:\\Corvelle\\Icons\\a.ico", 42, 1);
  Put("C:\\Corvelle\\Icons\\b.ico", 43, 1);
  world.SlowAnswers.Delay("C:", 50);
  rule.DetectShellIcons();
  world.Desktop.Advance(49);
  world.Files.Vanish("C:\\Corvelle\\Icons\\b.ico");
  world.SlowAnswers.HangForGood("C:*");
  world.Desktop.Advance(20'000);
  EXPECT_FALSE(program.Icons.ShellDrawsIcons);
}

TEST_F(DetectShellIconsTest, NeedsNoMoreThanTheProgramsFolder) {
  // The start looks before the strip has set the other folders.
  program.Paths.IconsPath.clear();
  Put("C:\\Corvelle\\Icons\\two.ico", 42, 1);
  rule.DetectShellIcons();
  EXPECT_TRUE(program.Icons.ShellDrawsIcons);
}

TEST_F(DetectShellIconsTest, LooksAtTwoFilesAndNoMore) {
  for (const char* name : {"a.ico", "b.ico", "c.ico"}) {
    Put(std::string("C:\\Corvelle\\Icons\\") + name, 77, 1);
  }
  world.Files.MakeFolders("C:\\Corvelle\\Icons\\folder.ico");
  rule.DetectShellIcons();
  EXPECT_EQ(world.Icons.Lookups(), 2);
}

TEST_F(DetectShellIconsTest, AFolderIsNoIconFileWhateverItsName) {
  world.Files.MakeFolders("C:\\Corvelle\\Icons\\a.ico");
  rule.DetectShellIcons();
  EXPECT_FALSE(program.Icons.ShellDrawsIcons);
}

TEST_F(DetectShellIconsTest, NeitherFolderNorTwoFilesMeansThatItDoesNot) {
  program.Icons.ShellDrawsIcons = true;
  rule.DetectShellIcons();
  EXPECT_FALSE(program.Icons.ShellDrawsIcons) << "one icon file only";
  program.Icons.ShellDrawsIcons = true;
  world.Files.Vanish("C:\\Corvelle\\Icons");
  rule.DetectShellIcons();
  EXPECT_FALSE(program.Icons.ShellDrawsIcons) << "no folder";
}

TEST_F(DetectShellIconsTest, AFolderThatCannotBeListedMeansThatItDoesNot) {
  Put("C:\\Corvelle\\Icons\\two.ico", 42, 1);
  program.Icons.ShellDrawsIcons = true;
  world.Files.FailCall(1);
  rule.DetectShellIcons();
  EXPECT_FALSE(program.Icons.ShellDrawsIcons);
}

}  // namespace corvelle
