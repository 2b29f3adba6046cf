#include "icons/LibraryLists.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/Program.h"
#include "icons/IconsWiring.h"
#include "sim/World.h"

namespace corvelle {
namespace {

/// A program with an empty folder of icons.
class ListsDesk : public ::testing::Test {
 protected:
  ListsDesk() {
    program.Paths.AppPath = "C:\\Corvelle\\";
    program.Paths.IconsPath = "C:\\Corvelle\\Icons\\";
    world.Files.MakeFolders(program.Paths.IconsPath);
  }

  LibraryLists Lists() { return LibraryListsOf(program); }
  std::vector<std::string> Unpacked() { return world.Files.Names(program.Paths.IconsPath); }
  std::string Content(const std::string& name) {
    return world.Files.Get(program.Paths.IconsPath + name).value_or("(missing)");
  }

  sim::World world;
  Program program{world.Services(), world.Windows()};
};

TEST_F(ListsDesk, CategoriesAreTheListsInOrder) {
  for (const char* name : {"tools.INI", "Arrows.ini", "people.ini", "x.ico", "note.txt"}) {
    world.Files.Put(program.Paths.IconsPath + name, "a.ico\r\n");
  }
  world.Files.MakeFolders(program.Paths.IconsPath + "folder.ini");
  EXPECT_EQ(Lists().Categories(), (std::vector<std::string>{"Arrows", "people", "tools"}));
}

TEST_F(ListsDesk, ACategoryHoldsTheLinesOfItsListThatAreNotBlank) {
  world.Files.Put(program.Paths.IconsPath + "Tools.ini", "saw.ico\r\n\r\n  \r\nhammer.ico");
  EXPECT_EQ(Lists().IconsOf("tools"), (std::vector<std::string>{"saw.ico", "hammer.ico"}));
}

TEST_F(ListsDesk, ADeletedListTakesItsCategoryAtOnceAndTheIconsStay) {
  world.Files.Put(program.Paths.IconsPath + "Tools.ini", "saw.ico\r\n");
  world.Files.Put(program.Paths.IconsPath + "saw.ico", "x");
  world.Files.Vanish(program.Paths.IconsPath + "Tools.ini");
  EXPECT_TRUE(Lists().Categories().empty());
  EXPECT_TRUE(Lists().IconsOf("Tools").empty());
  EXPECT_EQ(Lists().AllIcons(), std::vector<std::string>{"saw.ico"});
}

TEST_F(ListsDesk, AllIconsComeFromThePreparedListOnceItIsMade) {
  world.Files.Put(program.Paths.IconsPath + "a.ico", "x");
  EXPECT_EQ(Lists().AllIcons(), std::vector<std::string>{"a.ico"});
  EXPECT_EQ(Content("CAT0.ics"), "a.ico\r\n");
  world.Files.Put(program.Paths.IconsPath + "b.ico", "x");
  EXPECT_EQ(Lists().AllIcons(), std::vector<std::string>{"a.ico"});
  Lists().Reset();
  EXPECT_EQ(Lists().AllIcons().size(), 2U);
}

TEST_F(ListsDesk, AllIconsAreFoundWithoutRoomForTheirList) {
  world.Files.Put(program.Paths.IconsPath + "a.ico", "x");
  world.Files.FillDisk(0);
  EXPECT_EQ(Lists().AllIcons(), std::vector<std::string>{"a.ico"});
  EXPECT_EQ(Unpacked(), std::vector<std::string>{"a.ico"});
}

TEST_F(ListsDesk, AResetDropsTheDerivedFilesAndNothingElse) {
  program.Icons.LibraryBuilt = true;
  for (const char* name : {"CAT0.ics", "CAT0.dat", "others.dat", "a.ico", "Tools.ini"}) {
    world.Files.Put(program.Paths.IconsPath + name, "x");
  }
  world.Files.Put("C:\\Corvelle\\clrlib.dat", "x");
  Lists().Reset();
  EXPECT_EQ(Unpacked(), (std::vector<std::string>{"Tools.ini", "a.ico"}));
  EXPECT_TRUE(world.Files.Has("C:\\Corvelle\\clrlib.dat"));
  EXPECT_FALSE(program.Icons.LibraryBuilt);
}

TEST_F(ListsDesk, WithoutBeingAskedTheUsersOwnFilesStayInTheirList) {
  program.Icons.LibraryBuilt = true;
  for (const char* name : {"CAT0.ics", "CAT0.dat", "others.dat", "a.ico"}) {
    world.Files.Put(program.Paths.IconsPath + name, "x");
  }
  Lists().DropPrepared();
  EXPECT_EQ(Unpacked(), (std::vector<std::string>{"a.ico", "others.dat"}));
  EXPECT_FALSE(program.Icons.LibraryBuilt);
  world.System.Depth = 8;
  EXPECT_TRUE(Lists().CheckDisplay());
  EXPECT_TRUE(world.Files.Has(program.Paths.IconsPath + "others.dat"));
}

TEST_F(ListsDesk, AResetPassesOverWhatIsHeldOpen) {
  world.Files.Put(program.Paths.IconsPath + "a.dat", "x");
  world.Files.HoldOpen(program.Paths.IconsPath + "a.dat");
  world.Files.Put(program.Paths.IconsPath + "b.ics", "x");
  Lists().Reset();
  EXPECT_EQ(Unpacked(), std::vector<std::string>{"a.dat"});
}

TEST_F(ListsDesk, AnotherDepthOrColourDropsTheDerivedFiles) {
  EXPECT_TRUE(Lists().CheckDisplay());
  EXPECT_EQ(world.Files.Get("C:\\Corvelle\\clrlib.dat")->size(), 16U);
  world.Files.Put(program.Paths.IconsPath + "CAT0.ics", "x");
  program.Icons.LibraryBuilt = true;
  EXPECT_FALSE(Lists().CheckDisplay());
  EXPECT_TRUE(program.Icons.LibraryBuilt);
  EXPECT_TRUE(world.Files.Has(program.Paths.IconsPath + "CAT0.ics"));
  world.System.Depth = 8;
  EXPECT_TRUE(Lists().CheckDisplay());
  EXPECT_FALSE(program.Icons.LibraryBuilt);
  EXPECT_FALSE(world.Files.Has(program.Paths.IconsPath + "CAT0.ics"));
  EXPECT_FALSE(Lists().CheckDisplay());
}

TEST_F(ListsDesk, ADisplayRecordOfNoLengthCountsAsAnotherDisplay) {
  world.Files.Put("C:\\Corvelle\\clrlib.dat", "");
  EXPECT_TRUE(Lists().CheckDisplay());
  EXPECT_FALSE(Lists().CheckDisplay());
}

}  // namespace
}  // namespace corvelle
