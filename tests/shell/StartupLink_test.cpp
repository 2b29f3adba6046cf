#include "shell/StartupLink.h"

#include "core/Main.h"
#include "shell/ShellDesk.h"
#include "shell/ShellWiring.h"

namespace corvelle {
namespace {

using forms::msgbox::AnswerNo;
using forms::msgbox::AnswerOk;
using forms::msgbox::AnswerYes;

constexpr char kSet[] = "Corvelle has been set as a startup program";
constexpr char kNotSet[] = "Couldn't set Corvelle as a startup program.";
constexpr char kNotThere[] = "Corvelle is not in the Startup folder.";
constexpr char kRemoved[] =
    "Corvelle has been removed from the Startup folder. Next time you start your computer, "
    "Corvelle will not run.";
constexpr char kQuestion[] =
    "Would you like to set Corvelle as a startup program?\r\n"
    "If you choose No, you can set it later from the Customize window under the Options menu.";

class StartupLinkTest : public ShellDesk {
 protected:
  void ExpectNote(const char* text) { world.Desktop.Answer(text, AnswerOk); }
  void CheckNote() const {
    ASSERT_EQ(world.Desktop.Boxes().size(), 1U);
    EXPECT_EQ(world.Desktop.Boxes()[0].Flags, 64U);
    EXPECT_EQ(world.Desktop.Boxes()[0].Title, "Corvelle");
  }

  sim::SimLink toThisCopy{.Path = "C:\\Corvelle\\corvelle.exe",
                          .WorkDir = "C:\\Corvelle",
                          .Item = sim::SimShellLinks::ItemOf("C:\\Corvelle\\corvelle.exe")};
  StartupLink link{StartupLinkPartsOf(program)};
};

TEST_F(StartupLinkTest, StandsInTheStartupFolder) {
  EXPECT_EQ(StartupLinkPath(StartupLinkPartsOf(program)), kStartupLink);
  EXPECT_FALSE(link.Exists());
  link.Create("C:\\Corvelle\\corvelle.exe");
  EXPECT_TRUE(link.Exists());
  EXPECT_EQ(world.Links.Get(kStartupLink), toThisCopy);
  link.Remove();
  EXPECT_FALSE(link.Exists());
  EXPECT_FALSE(world.Files.Has(kStartupLink));
}

TEST_F(StartupLinkTest, WithoutAStartupFolderThereIsNoneAndNoneIsMadeElsewhere) {
  world.Links.SetVirtualFolder(7);
  const std::vector<std::string> before = world.Files.Names("C:\\");
  EXPECT_EQ(StartupLinkPath(StartupLinkPartsOf(program)), "");
  EXPECT_FALSE(link.Exists());
  link.Create("C:\\Corvelle\\corvelle.exe");
  world.Files.ClearLog();
  link.Remove();
  EXPECT_EQ(world.Files.Count("Remove"), 0);
  EXPECT_EQ(world.Files.Names("C:\\"), before);
}

TEST_F(StartupLinkTest, AFolderInItsPlaceIsNoLink) {
  world.Files.MakeFolders(kStartupLink);
  EXPECT_FALSE(link.Exists());
}

// The first run.

class FirstRun : public StartupLinkTest {
 protected:
  FirstRun() { program.Ports.StartupLink = &link; }
};

TEST_F(FirstRun, YesMakesALinkToThisCopy) {
  world.Desktop.Answer(kQuestion, AnswerYes);
  EXPECT_TRUE(Main(program));
  ASSERT_EQ(world.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(world.Desktop.Boxes()[0].Flags, 262180U);
  EXPECT_EQ(world.Desktop.Boxes()[0].Owner, toolbar.WindowHandle());
  EXPECT_EQ(world.Links.Get(kStartupLink), toThisCopy);
  EXPECT_TRUE(program.OptionFlags.Is(Option::FirstRunDone));
}

TEST_F(FirstRun, NoMakesNone) {
  world.Desktop.Answer(kQuestion, AnswerNo);
  EXPECT_TRUE(Main(program));
  EXPECT_FALSE(world.Files.Has(kStartupLink));
  EXPECT_TRUE(program.OptionFlags.Is(Option::FirstRunDone));
}

TEST_F(FirstRun, OfACopyDeletesAndRewritesTheLinkOfTheOldPlace) {
  world.Files.Put("C:\\Old\\corvelle.exe", "program");
  world.Links.Put(kStartupLink,
                  {.Path = "C:\\Old\\corvelle.exe", .WorkDir = "C:\\Old", .Hotkey = 5});
  world.Files.ClearLog();
  EXPECT_TRUE(Main(program));
  EXPECT_TRUE(world.Desktop.Boxes().empty());
  EXPECT_EQ(world.Links.Get(kStartupLink), toThisCopy);
  EXPECT_EQ(world.Files.Count("Remove"), 1) << "deleted first";
}

TEST_F(FirstRun, ALinkThatCannotBeDeletedStaysAndTheStartGoesOn) {
  world.Links.Put(kStartupLink, {.Path = "C:\\Old\\corvelle.exe"});
  world.Files.HoldOpen(kStartupLink);
  EXPECT_TRUE(Main(program));
  world.Files.LetGo(kStartupLink);
  EXPECT_EQ(world.Links.Get(kStartupLink)->Path, "C:\\Old\\corvelle.exe");
  EXPECT_TRUE(program.OptionFlags.Is(Option::FirstRunDone));
}

TEST_F(FirstRun, ALaterRunLeavesTheLinkAlone) {
  world.Files.Put("C:\\Corvelle\\tmenu425.dat", "11000000000000000010000100000001");
  world.Links.Put(kStartupLink, {.Path = "C:\\Old\\corvelle.exe"});
  EXPECT_TRUE(Main(program));
  EXPECT_TRUE(world.Desktop.Boxes().empty());
  EXPECT_EQ(world.Links.Get(kStartupLink)->Path, "C:\\Old\\corvelle.exe");
}

// The Options menu.

TEST_F(StartupLinkTest, SettingSaysSo) {
  ExpectNote(kSet);
  SetAsStartupProgram(StartupLinkPartsOf(program));
  CheckNote();
  EXPECT_EQ(world.Links.Get(kStartupLink), toThisCopy);
}

TEST_F(StartupLinkTest, SettingThatFailsSaysSo) {
  ExpectNote(kNotSet);
  world.Files.Protect("C:\\Start\\Startup");
  SetAsStartupProgram(StartupLinkPartsOf(program));
  CheckNote();
}

TEST_F(StartupLinkTest, SettingWithoutAStartupFolderFails) {
  ExpectNote(kNotSet);
  world.Links.SetVirtualFolder(7);
  SetAsStartupProgram(StartupLinkPartsOf(program));
  CheckNote();
}

TEST_F(StartupLinkTest, RemovingSaysSo) {
  world.Links.Put(kStartupLink, toThisCopy);
  ExpectNote(kRemoved);
  RemoveFromStartup(StartupLinkPartsOf(program));
  CheckNote();
  EXPECT_FALSE(world.Files.Has(kStartupLink));
}

TEST_F(StartupLinkTest, RemovingWhatIsNotThereSaysSo) {
  ExpectNote(kNotThere);
  RemoveFromStartup(StartupLinkPartsOf(program));
  CheckNote();
}

TEST_F(StartupLinkTest, RemovingThatFailsGivesTheErrorsNumberAndDescription) {
  struct Row {
    FileError Error;
    const char* Text;
  };
  const Row rows[] = {
      {FileError::NotFound, "Error: 53 - File not found"},
      {FileError::AlreadyExists, "Error: 58 - File already exists"},
      {FileError::AccessDenied, "Error: 75 - Path/File access error"},
      {FileError::InUse, "Error: 70 - Permission denied"},
      {FileError::DiskFull, "Error: 61 - Disk full"},
      {FileError::BadName, "Error: 52 - Bad file name or number"},
      {FileError::Failed, "Error: 57 - Device I/O error"},
  };
  world.Links.Put(kStartupLink, toThisCopy);
  for (const Row& row : rows) {
    ExpectNote(row.Text);
    world.Files.FailCall(2, row.Error);
    RemoveFromStartup(StartupLinkPartsOf(program));
    EXPECT_EQ(world.Desktop.Boxes().back().Flags, 64U) << row.Text;
    EXPECT_TRUE(world.Files.Has(kStartupLink)) << row.Text;
  }
}

}  // namespace
}  // namespace corvelle
