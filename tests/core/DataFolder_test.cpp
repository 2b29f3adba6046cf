#include "core/DataFolder.h"

#include <gtest/gtest.h>

#include "core/CoreDoubles.h"
#include "core/Main.h"
#include "core/Program.h"
#include "sim/World.h"

namespace corvelle {
namespace {

constexpr int kUserDataFolder = 26;
constexpr std::string_view kProgramFolder = "C:\\Programs\\Corvelle\\";
constexpr std::string_view kUserFolder = "C:\\Users\\ann\\AppData\\Corvelle\\";

TEST(ChooseDataFolder, OneTableForAll) {
  constexpr DataChoice kBeside{.BesideProgram = true, .Tell = false};
  constexpr DataChoice kUsers{.BesideProgram = false, .Tell = false};
  constexpr DataChoice kUsersTold{.BesideProgram = false, .Tell = true};
  struct Row {
    const char* name;
    DataFacts facts;
    DataChoice expected;
  };
  const Row rows[] = {
      {"an installed program", {}, kUsers},
      {"a marked folder", {.Marked = true}, kBeside},
      {"a folder with menus", {.HoldsMenus = true}, kBeside},
      {"a marked folder with menus", {.Marked = true, .HoldsMenus = true}, kBeside},
      {"a folder for all users", {.Writable = false}, kUsersTold},
      {"a marked folder on a locked stick", {.Marked = true, .Writable = false}, kUsersTold},
      {"menus on a locked stick", {.HoldsMenus = true, .Writable = false}, kUsersTold},
      {"both on a locked stick",
       {.Marked = true, .HoldsMenus = true, .Writable = false},
       kUsersTold},
      {"a system without a user's folder", {.HasUserFolder = false}, kBeside},
      {"the same, locked", {.Writable = false, .HasUserFolder = false}, kBeside},
  };
  for (const Row& row : rows) EXPECT_EQ(ChooseDataFolder(row.facts), row.expected) << row.name;
}

class FindDataFolderTest : public testing::Test {
 protected:
  FindDataFolderTest() {
    world.Files.Put(std::string(kProgramFolder) + "corvelle.exe", "program");
    world.Files.MakeFolders("C:\\Users\\ann\\AppData");
    world.Folders.SetPath(kUserDataFolder, "C:\\Users\\ann\\AppData");
  }
  DataFolder Find() { return FindDataFolder(world.Services(), kProgramFolder); }

  sim::World world;
};

TEST_F(FindDataFolderTest, TheUsersFolderIsMadeAndTheProgramsStaysAsItIs) {
  EXPECT_EQ(Find().Path, kUserFolder);
  EXPECT_TRUE(world.Files.Has(kUserFolder));
  EXPECT_EQ(world.Files.Names(kProgramFolder), std::vector<std::string>{"corvelle.exe"});
  EXPECT_EQ(Find().Path, kUserFolder);
}

TEST_F(FindDataFolderTest, TheMarkKeepsTheDataBesideTheProgram) {
  world.Files.Put(std::string(kProgramFolder) + "Portable", "");
  EXPECT_EQ(Find().Path, kProgramFolder);
  EXPECT_FALSE(world.Files.Has(kUserFolder));
}

TEST_F(FindDataFolderTest, AFolderOfTheMarksNameIsNoMark) {
  world.Files.MakeFolders(std::string(kProgramFolder) + "portable");
  EXPECT_EQ(Find().Path, kUserFolder);
}

TEST_F(FindDataFolderTest, MenusBesideTheProgramAreUsed) {
  world.Files.MakeFolders(std::string(kProgramFolder) + "Menus");
  EXPECT_EQ(Find().Path, kProgramFolder);
}

TEST_F(FindDataFolderTest, AFolderThatCannotBeWrittenIsToldAbout) {
  world.Files.MakeFolders(std::string(kProgramFolder) + "Menus");
  world.Files.Protect(kProgramFolder);
  EXPECT_EQ(Find().Path, kUserFolder);
  EXPECT_TRUE(Find().Tell);
}

TEST_F(FindDataFolderTest, AFullDiskIsNoReasonToLookElsewhere) {
  world.Files.MakeFolders(std::string(kProgramFolder) + "Menus");
  // Questions for the marks and the menus come before.
  world.Files.FailCall(4, FileError::DiskFull);
  EXPECT_EQ(Find().Path, kProgramFolder);
  EXPECT_TRUE(world.Files.Hit());
}

TEST_F(FindDataFolderTest, AGuardedFolderInWhichNewFilesAreNotFoundIsToldAbout) {
  world.Files.MakeFolders(std::string(kProgramFolder) + "Menus");
  world.Files.FailCall(4, FileError::NotFound);
  const DataFolder found = Find();
  EXPECT_TRUE(world.Files.Hit());
  EXPECT_EQ(found.Path, kUserFolder);
  EXPECT_TRUE(found.Tell);
}

TEST_F(FindDataFolderTest, ForAUsersFolderThatCannotBeMadeTheProgramsOwnStandsIn) {
  world.Files.Protect("C:\\Users\\ann\\AppData");
  EXPECT_EQ(Find().Path, kProgramFolder);
  EXPECT_FALSE(Find().Tell);
  EXPECT_TRUE(Find().StandsIn);
}

TEST_F(FindDataFolderTest, ASystemWithoutAUsersFolderIsNotAskedToWrite) {
  world.Folders.Remove(kUserDataFolder);
  EXPECT_EQ(Find().Path, kProgramFolder);
  EXPECT_EQ(world.Files.Count("Write"), 0);
}

TEST_F(FindDataFolderTest, AStandInEndsWithTheStartThatFindsTheUsersFolder) {
  const std::string own = std::string(kUserFolder) + "Menus\\BMENU001.MNU";
  const std::string other = std::string(kProgramFolder) + "Menus\\BMENU001.MNU";
  world.Files.Put(own, "own");
  // A server that is not there yet.
  world.Folders.SetPath(kUserDataFolder, "S:\\ann\\AppData");
  for (int start = 1; start <= 2; ++start) {
    EXPECT_EQ(Find().Path, kProgramFolder) << start;
    EXPECT_TRUE(Find().StandsIn) << start;
    world.Files.Put(other, "other");  // the strip makes the folder
  }
  world.Folders.SetPath(kUserDataFolder, "C:\\Users\\ann\\AppData");
  EXPECT_EQ(Find().Path, kUserFolder);
  EXPECT_FALSE(Find().StandsIn);
  EXPECT_EQ(world.Files.Get(own), "own");
  EXPECT_EQ(world.Files.Get(other), "other");
}

TEST_F(FindDataFolderTest, AUsersFolderInWhichNoFolderCanBeMadeIsUsedAllTheSame) {
  world.Files.MakeFolders(kUserFolder);
  world.Files.Protect("C:\\Users\\ann\\AppData");
  EXPECT_EQ(Find().Path, kUserFolder);
}

TEST_F(FindDataFolderTest, MenusOfAPortableCopyStandInForNothing) {
  world.Files.MakeFolders(std::string(kProgramFolder) + "Menus");
  world.Folders.SetPath(kUserDataFolder, "S:\\ann\\AppData");
  EXPECT_EQ(Find().Path, kProgramFolder);
  EXPECT_FALSE(Find().StandsIn);
  world.Folders.SetPath(kUserDataFolder, "C:\\Users\\ann\\AppData");
  EXPECT_EQ(Find().Path, kProgramFolder);
  EXPECT_EQ(world.Files.Names(kProgramFolder), (std::vector<std::string>{"Menus", "corvelle.exe"}));
}

TEST_F(FindDataFolderTest, EachProgramsFolderIsToldAboutByItself) {
  world.Files.MakeFolders(kUserFolder);
  const std::string data(kUserFolder);
  EXPECT_FALSE(WasToldAbout(world.Services(), data, "D:\\Stick\\"));
  NoteToldAbout(world.Services(), data, "D:\\Stick\\");
  EXPECT_FALSE(WasToldAbout(world.Services(), data, "D:\\Sti"));
  EXPECT_FALSE(WasToldAbout(world.Services(), data, "E:\\Stick\\"));
  NoteToldAbout(world.Services(), data, "E:\\Stick\\");
  EXPECT_TRUE(WasToldAbout(world.Services(), data, "d:\\stick\\"));
  EXPECT_TRUE(WasToldAbout(world.Services(), data, "E:\\Stick\\"));
}

/// Starts of the whole entry routine, on an installed program.
class StartElsewhere : public FindDataFolderTest {
 protected:
  StartElsewhere() { world.System.Folder = "C:\\Programs\\Corvelle"; }

  struct Run {
    explicit Run(sim::World& world) : TheProgram(world.Services(), world.Windows()) {
      TheProgram.Ports.Toolbar = &Toolbar;
      TheProgram.Ports.Minimize = &Companion;
      TheProgram.Ports.StartupLink = &Link;
      Link.There = true;
      Started = Main(TheProgram);
    }
    CallLog Log;
    LoggingToolbar Toolbar{Log};
    LoggingMinimize Companion{Log};
    LoggingStartupLink Link{Log};
    Program TheProgram;
    bool Started = false;
  };
};

TEST_F(StartElsewhere, OptionsLieInTheUsersFolderAndTheLinkLeadsToTheProgram) {
  world.Files.Put(std::string(kProgramFolder) + "anetsrch.org", "engines");
  const Run run(world);
  EXPECT_TRUE(run.Started);
  EXPECT_EQ(run.TheProgram.Paths.AppPath, kUserFolder);
  EXPECT_EQ(run.TheProgram.Paths.ShippedFile("icon.lib"), std::string(kProgramFolder) + "icon.lib");
  EXPECT_TRUE(world.Files.Has(std::string(kUserFolder) + "tmenu425.dat"));
  EXPECT_EQ(world.Files.Get(std::string(kUserFolder) + "netsrch.ini"), "engines");
  EXPECT_FALSE(world.Files.Has(std::string(kProgramFolder) + "tmenu425.dat"));
  EXPECT_EQ(run.Log.back(), "link to C:\\Programs\\Corvelle\\corvelle.exe");
  EXPECT_TRUE(world.Desktop.Boxes().empty());
}

TEST_F(StartElsewhere, TheUserIsToldOnce) {
  world.Files.Protect(kProgramFolder);
  world.Desktop.Answer(
      "Corvelle cannot write to its own folder:\r\nC:\\Programs\\Corvelle\\\r\n\r\n"
      "It keeps your menus and options here:\r\nC:\\Users\\ann\\AppData\\Corvelle\\",
      forms::msgbox::AnswerOk);
  EXPECT_TRUE(Run(world).Started);
  EXPECT_EQ(world.Desktop.Boxes().size(), 1U);
  EXPECT_TRUE(Run(world).Started);
  EXPECT_EQ(world.Desktop.Boxes().size(), 1U);
}

TEST_F(StartElsewhere, TheUserIsToldOfEachStartWithoutTheOwnFolder) {
  world.Folders.SetPath(kUserDataFolder, "S:\\ann\\AppData");
  for (std::size_t start = 1; start <= 2; ++start) {
    world.Desktop.Answer(
        "Corvelle cannot reach the folder of your menus and options.\r\n\r\n"
        "Until a start finds it again, this folder is used instead:\r\n"
        "C:\\Programs\\Corvelle\\",
        forms::msgbox::AnswerOk);
    EXPECT_TRUE(Run(world).Started);
    EXPECT_EQ(world.Desktop.Boxes().size(), start);
  }
  world.Folders.SetPath(kUserDataFolder, "C:\\Users\\ann\\AppData");
  EXPECT_EQ(Run(world).TheProgram.Paths.AppPath, kUserFolder);
  EXPECT_EQ(world.Desktop.Boxes().size(), 2U);
}

TEST_F(StartElsewhere, ACompanionClosedWhileTheUserIsToldEndsTheStart) {
  world.Files.Protect(kProgramFolder);
  CallLog log;
  LoggingToolbar toolbar(log);
  LoggingMinimize companion(log);
  Program program(world.Services(), world.Windows());
  program.Ports.Toolbar = &toolbar;
  program.Ports.Minimize = &companion;
  world.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) { companion.UnloadWindow(); });
  world.Desktop.Answer(forms::msgbox::AnswerOk);
  EXPECT_FALSE(Main(program));
}

}  // namespace
}  // namespace corvelle
