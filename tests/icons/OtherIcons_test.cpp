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

  /// A program that is registered with this path.
  void Register(const std::string& name, const std::string& path) {
    world.Keys.Set(RegistryRoot::LocalMachine, kAppPaths + name, "", path);
  }
  /// What is asked about the files of the first list.
  Rows Asked() {
    Rows asked;
    for (const Lookup& question : Others().FirstQuestions()) {
      asked.push_back((question.Kind == LookupKind::IconCount ? "count " : "there ") +
                      question.Path);
    }
    return asked;
  }

  OtherIcons Others() { return OtherIconsOf(program); }
  std::string Stored() { return world.Files.Get(kOthers).value_or("(missing)"); }

  sim::World world;
  Program program{world.Services(), world.Windows()};
};

TEST_F(OthersDesk, WithoutAListTheShellsFilesAndTheRegisteredProgramsAreAskedAbout) {
  Register("paint.exe", "C:\\TOOLS\\PAINT.EXE");
  Register("quoted.exe", "\"C:\\Tools\\Quoted.exe\"");
  EXPECT_FALSE(Others().Read().has_value());
  EXPECT_EQ(Asked(),
            (Rows{"there C:\\Windows\\System32\\Shell32.dll", "there C:\\Windows\\Explorer.exe",
                  "count C:\\tools\\paint.exe", "count C:\\tools\\quoted.exe"}));
}

TEST_F(OthersDesk, KeysWithoutAPathOrWithABarAreLeftOut) {
  world.Keys.Set(RegistryRoot::LocalMachine, std::string(kAppPaths) + "a.exe", "Path", "C:\\Tools");
  Register("b.exe", "");
  Register("c.exe", "C:\\a|b.exe");
  EXPECT_EQ(Asked().size(), 2U);
}

TEST_F(OthersDesk, AStoredListIsReadAndSorted) {
  world.Files.Put(kOthers, "C:\\b.dll\r\n  \r\nC:\\A.exe");
  EXPECT_EQ(Others().Read(), (Rows{"A.exe |C:\\A.exe", "b.dll |C:\\b.dll"}));
  EXPECT_EQ(Stored(), "C:\\b.dll\r\n  \r\nC:\\A.exe");
}

TEST_F(OthersDesk, OnlyThePathBehindTheBarIsStored) {
  Others().Save({"A.exe | C:\\Tools\\A.exe ", "b.dll |C:\\b.dll"});
  EXPECT_EQ(Stored(), "C:\\Tools\\A.exe\r\nC:\\b.dll\r\n");
}

TEST_F(OthersDesk, AnEmptyListRemovesTheFile) {
  world.Files.Put(kOthers, "C:\\b.dll\r\n");
  Others().Save({});
  EXPECT_EQ(Stored(), "(missing)");
  EXPECT_FALSE(Others().Read().has_value());
}

TEST_F(OthersDesk, ErrorsWithTheFileAreQuietAndTheOldListStays) {
  world.Files.Put(kOthers, "C:\\b.dll\r\n");
  world.Files.HoldOpen(kOthers);
  EXPECT_EQ(Others().Read(), Rows());
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
