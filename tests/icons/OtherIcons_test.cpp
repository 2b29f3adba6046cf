#include "icons/OtherIcons.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/Program.h"
#include "icons/IconsWiring.h"
#include "sim/World.h"

namespace corvelle {
namespace {

constexpr char kOthers[] = "C:\\Corvelle\\Icons\\others.dat";
constexpr char kAppPaths[] = "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";

using Rows = std::vector<std::string>;

class OthersDesk : public ::testing::Test {
 protected:
  OthersDesk() {
    program.Paths.AppPath = "C:\\Corvelle\\";
    program.Paths.IconsPath = "C:\\Corvelle\\Icons\\";
    world.Files.MakeFolders(program.Paths.IconsPath);
  }

  /// A program that is registered with this path, and holds so many icons.
  void Register(const std::string& name, const std::string& path, int icons) {
    world.Keys.Set(RegistryRoot::LocalMachine, kAppPaths + name, "", path);
    world.Icons.SetIconCount(path, icons);
  }

  void PutShellFiles() {
    world.Files.Put("C:\\Windows\\System32\\Shell32.dll", "x");
    world.Files.Put("C:\\Windows\\Explorer.exe", "x");
  }

  OtherIcons Others() { return OtherIconsOf(program); }
  std::string Stored() { return world.Files.Get(kOthers).value_or("(missing)"); }

  sim::World world;
  Program program{world.Services(), world.Windows()};
};

TEST_F(OthersDesk, TheFirstListIsTheShellsFilesAndTheRegisteredPrograms) {
  PutShellFiles();
  Register("paint.exe", "C:\\TOOLS\\PAINT.EXE", 3);
  Register("bare.exe", "C:\\Tools\\bare.exe", 0);
  const Rows expected = {"Explorer.exe |C:\\Windows\\Explorer.exe",
                         "paint.exe |C:\\tools\\paint.exe",
                         "Shell32.dll |C:\\Windows\\System32\\Shell32.dll"};
  EXPECT_EQ(Others().InitOthers(), expected);
  EXPECT_EQ(Stored(),
            "C:\\Windows\\Explorer.exe\r\nC:\\tools\\paint.exe\r\n"
            "C:\\Windows\\System32\\Shell32.dll\r\n");
  EXPECT_EQ(Others().Read(), expected);
}

TEST_F(OthersDesk, ShellFilesThatAreNotThereAreLeftOut) {
  world.Files.Put("C:\\Windows\\Explorer.exe", "x");
  EXPECT_EQ(Others().InitOthers(), Rows{"Explorer.exe |C:\\Windows\\Explorer.exe"});
}

TEST_F(OthersDesk, QuotesComeOffAndAProgramIsListedOnce) {
  Register("a.exe", "C:\\Tools\\a.exe", 1);
  world.Keys.Set(RegistryRoot::LocalMachine, std::string(kAppPaths) + "a.exe", "",
                 "\"C:\\Tools\\a.exe\"");
  world.Keys.Set(RegistryRoot::LocalMachine, std::string(kAppPaths) + "b.exe", "",
                 "\"C:\\TOOLS\\A.EXE\"");
  EXPECT_EQ(Others().InitOthers(), Rows{"a.exe |C:\\tools\\a.exe"});
}

TEST_F(OthersDesk, KeysWithoutAPathOrWithABarAreLeftOut) {
  world.Keys.Set(RegistryRoot::LocalMachine, std::string(kAppPaths) + "a.exe", "Path", "C:\\Tools");
  Register("b.exe", "", 1);
  Register("c.exe", "C:\\a|b.exe", 1);
  EXPECT_TRUE(Others().InitOthers().empty());
  EXPECT_EQ(Stored(), "(missing)");
}

TEST_F(OthersDesk, AStoredListIsReadAndSortedWithoutLookingForPrograms) {
  PutShellFiles();
  world.Files.Put(kOthers, "C:\\b.dll\r\n  \r\nC:\\A.exe");
  EXPECT_EQ(Others().Read(), (Rows{"A.exe |C:\\A.exe", "b.dll |C:\\b.dll"}));
  EXPECT_EQ(Stored(), "C:\\b.dll\r\n  \r\nC:\\A.exe");
}

TEST_F(OthersDesk, OnlyThePathBehindTheBarIsStored) {
  Others().Save({"A.exe | C:\\Tools\\A.exe ", "b.dll |C:\\b.dll"});
  EXPECT_EQ(Stored(), "C:\\Tools\\A.exe\r\nC:\\b.dll\r\n");
}

TEST_F(OthersDesk, AnEmptyListRemovesTheFileAndTheNextReadMakesItAnew) {
  PutShellFiles();
  world.Files.Put(kOthers, "C:\\b.dll\r\n");
  Others().Save({});
  EXPECT_EQ(Stored(), "(missing)");
  EXPECT_EQ(Others().Read().size(), 2U);
  EXPECT_NE(Stored(), "(missing)");
}

TEST_F(OthersDesk, ErrorsWithTheFileAreQuietAndTheOldListStays) {
  world.Files.Put(kOthers, "C:\\b.dll\r\n");
  world.Files.HoldOpen(kOthers);
  EXPECT_TRUE(Others().Read().empty());
  Others().Save({"a.exe |C:\\a.exe"});
  Others().Save({});
  world.Files.LetGo(kOthers);
  EXPECT_EQ(Stored(), "C:\\b.dll\r\n");
  world.Files.FillDisk(0);
  Others().Save({"a.exe |C:\\a.exe", "c.exe |C:\\a\\long\\path\\c.exe"});
  EXPECT_EQ(Stored(), "C:\\b.dll\r\n");
}

}  // namespace
}  // namespace corvelle
