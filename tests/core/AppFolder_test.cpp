#include "core/AppFolder.h"

#include <gtest/gtest.h>

#include "sim/World.h"

namespace corvelle {
namespace {

constexpr std::string_view kKey = "Software\\Ombrane Fieldworks\\Corvelle";

class FindAppPathTest : public testing::Test {
 protected:
  FindAppPathTest() {
    world.Files.MakeFolders("C:\\Own");
    world.Files.MakeFolders("C:\\Work");
    world.System.Folder = "C:\\Own";
    world.System.WorkFolder = "C:\\Work";
  }
  void Install(std::string_view folder) {
    world.Files.Put(std::string(folder) + "\\Corvelle.exe", "program");
  }

  sim::World world;
};

TEST_F(FindAppPathTest, TheExecutablesFolderComesFirst) {
  Install("C:\\Own");
  Install("C:\\Work");
  EXPECT_EQ(FindAppPath(world.Services()), "C:\\Own\\");
}

TEST_F(FindAppPathTest, ThenTheCurrentFolder) {
  Install("C:\\Work");
  EXPECT_EQ(FindAppPath(world.Services()), "C:\\Work\\");
}

TEST_F(FindAppPathTest, ThenTheFolderThatTheRegistryNotes) {
  Install("C:\\Noted");
  world.Keys.Set(RegistryRoot::LocalMachine, kKey, "Path", "C:\\Noted");
  EXPECT_EQ(FindAppPath(world.Services()), "C:\\Noted\\");
}

TEST_F(FindAppPathTest, WithTheProgramNowhereTheExecutablesFolderStands) {
  world.Keys.Set(RegistryRoot::LocalMachine, kKey, "Path", "C:\\Gone\\");
  EXPECT_EQ(FindAppPath(world.Services()), "C:\\Own\\");
}

TEST_F(FindAppPathTest, AFolderOfTheProgramsNameIsNotTheProgram) {
  world.Files.MakeFolders("C:\\Own\\corvelle.old");
  Install("C:\\Work");
  EXPECT_EQ(FindAppPath(world.Services()), "C:\\Work\\");
}

TEST_F(FindAppPathTest, AnyFileOfTheProgramsNameWillDo) {
  world.Files.Put("C:\\Own\\CORVELLE.HLP", "help");
  Install("C:\\Work");
  EXPECT_EQ(FindAppPath(world.Services()), "C:\\Own\\");
}

TEST(GetRegistryPath, IsEmptyWithoutTheValueAndEndsInABackslashWithIt) {
  sim::World world;
  EXPECT_EQ(GetRegistryPath(world.Services()), "");
  world.Keys.Set(RegistryRoot::LocalMachine, kKey, "Path", "");
  EXPECT_EQ(GetRegistryPath(world.Services()), "");
  world.Keys.Set(RegistryRoot::LocalMachine, kKey, "Path", "D:\\Tools");
  EXPECT_EQ(GetRegistryPath(world.Services()), "D:\\Tools\\");
}

}  // namespace
}  // namespace corvelle
