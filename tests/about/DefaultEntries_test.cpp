#include "about/DefaultEntries.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/MenuFile.h"
#include "core/Program.h"
#include "program/Wiring.h"
#include "shell/LinkFiles.h"
#include "sim/World.h"

namespace corvelle {
namespace {

constexpr int kPrograms = 2;
constexpr int kRecent = 8;
constexpr int kCommonPrograms = 23;
constexpr char kChoices[] = "Software\\Microsoft\\Windows\\Shell\\Associations\\UrlAssociations\\";
constexpr char kMailKey[] = "mailto\\shell\\open\\command";

struct SearchWindow final : LoadedWindow {
  void LoadWindow() override {}
  void UnloadWindow() override {}
  bool WindowLoaded() const override { return false; }
};

/// A machine with an empty folder of menus.
class DefaultEntriesTest : public testing::Test {
 protected:
  DefaultEntriesTest() {
    world.Files.Put("C:\\Corvelle\\corvelle.exe", "program");
    program.Paths.AppPath = "C:\\Corvelle\\";
    program.Paths.MenusPath = "C:\\Corvelle\\Menus\\";
    program.Ports.ShellLinks = &links;
    program.Ports.NetSearch = &search;
    world.Files.MakeFolders("C:\\Corvelle\\Menus");
  }

  /// A program on the disk that opens files of a kind.
  void Register(const char* extension, const char* path) {
    world.Files.Put(path, "x");
    world.Associations.Set(extension, path);
  }
  void Link(const char* file, const char* target) { world.Links.Put(file, {.Path = target}); }
  void Fill() { entries.IncludeCommonFiles(); }

  std::vector<MenuRecord> Read(const std::string& name) {
    return ReadAllRecords(world.Files, world.Ansi, program.Paths.MenusPath + name).ValueOr({});
  }
  std::vector<std::string> Names() { return world.Files.Names(program.Paths.MenusPath); }
  /// Titles of the single buttons, in their order.
  std::vector<std::string> Singles() {
    std::vector<std::string> titles;
    for (const std::string& name : Names()) {
      if (name.ends_with(".BTN")) titles.push_back(Read(name).at(0).FTitle);
    }
    return titles;
  }
  std::vector<std::string> Titles(const std::string& name) {
    std::vector<std::string> titles;
    for (const MenuRecord& record : Read(name)) titles.push_back(record.FTitle);
    return titles;
  }

  /// The user's choice in the system's settings for addresses of a kind.
  void Prefer(const std::string& protocol, const char* command) {
    world.Keys.Set(RegistryRoot::CurrentUser, kChoices + protocol + "\\UserChoice", "ProgId",
                   "Chosen." + protocol);
    if (command == nullptr) return;
    world.Keys.Set(RegistryRoot::ClassesRoot, "Chosen." + protocol + "\\shell\\open\\command", "",
                   command);
  }
  void Clear() {
    for (const std::string& name : Names()) world.Files.Vanish(program.Paths.MenusPath + name);
  }

  sim::World world;
  SearchWindow search;
  Program program{world.Services(), world.Windows()};
  LinkReader links{program.Services.Links};
  DefaultEntries entries{DefaultEntryPartsOf(program)};
};

using Texts = std::vector<std::string>;

TEST_F(DefaultEntriesTest, ABareMachineGetsFourButtonsAndFiveMenus) {
  Fill();
  EXPECT_EQ(Names(),
            (Texts{"BMENU001.BTN", "BMENU001.MNU", "BMENU002.BTN", "BMENU002.MNU", "BMENU003.BTN",
                   "BMENU003.MNU", "BMENU004.BTN", "BMENU004.MNU", "BMENU005.MNU"}));
  EXPECT_EQ(Singles(), (Texts{"Find Files", "Find Computer", "Windows Explorer", "Net Search"}));
  EXPECT_EQ(Titles("BMENU001.MNU"), (Texts{"Desktop", "Desktop Items"}));
  EXPECT_EQ(Titles("BMENU003.MNU"), Texts{"Documents"});
  EXPECT_EQ(Titles("BMENU004.MNU"), Texts{"Accessories"});
  EXPECT_EQ(Titles("BMENU005.MNU"), (Texts{"Settings", "Control Panel", "Separator", "Printers"}));
}

TEST_F(DefaultEntriesTest, AMissingFolderIsMade) {
  world.Files.Vanish("C:\\Corvelle\\Menus");
  ASSERT_FALSE(world.Files.Has("C:\\Corvelle\\Menus"));
  Fill();
  EXPECT_EQ(Names().size(), 9U);
}

TEST_F(DefaultEntriesTest, WithoutAProgramsFolderItsMenuHasTheButtonOnly) {
  Fill();
  EXPECT_EQ(Titles("BMENU002.MNU"), Texts{"Programs"});
}

TEST_F(DefaultEntriesTest, AnEvenNumberOfProgramsNeedsNoFiller) {
  Register(".htm", "C:\\net\\iexplore.exe");
  Register(".txt", "C:\\w\\editor.exe");
  Register(".bmp", "C:\\w\\paint.exe");
  Fill();
  EXPECT_EQ(Singles(), (Texts{"Find Files", "Find Computer", "Windows Explorer", "Net Search",
                              "Internet Explorer", "Editor"}));
}

TEST_F(DefaultEntriesTest, AnOddNumberTakesTheBitmapProgram) {
  Register(".htm", "C:\\net\\iexplore.exe");
  Register(".bmp", "C:\\w\\paint.exe");
  Fill();
  EXPECT_EQ(Singles().size(), 6U);
  EXPECT_EQ(Singles().back(), "Paint");
}

TEST_F(DefaultEntriesTest, AnOddNumberWithoutABitmapProgramTakesMyComputer) {
  Register(".htm", "C:\\net\\iexplore.exe");
  Fill();
  EXPECT_EQ(Singles().size(), 6U);
  EXPECT_EQ(Singles().back(), "My Computer");
}

TEST_F(DefaultEntriesTest, ProgramsStandInTheOrderOfTheirKinds) {
  for (const auto& [extension, path] :
       {std::pair{".ppt", "C:\\w\\slides.exe"}, std::pair{".xls", "C:\\w\\sheets.exe"},
        std::pair{".doc", "C:\\w\\letters.exe"}, std::pair{".txt", "C:\\w\\editor.exe"}}) {
    Register(extension, path);
  }
  Fill();
  EXPECT_EQ(Singles(), (Texts{"Find Files", "Find Computer", "Windows Explorer", "Net Search",
                              "Editor", "Letters", "Sheets", "Slides"}));
  const MenuRecord editor = Read("BMENU005.BTN").at(0);
  EXPECT_EQ(editor.FIcon, "C:\\w\\editor.exe");
  EXPECT_EQ(editor.FName, "C:\\w\\editor.exe");
}

TEST_F(DefaultEntriesTest, TheMailProgramIsTheRegisteredOneIfItIsThere) {
  world.Keys.Set(RegistryRoot::ClassesRoot, kMailKey, "", "\"C:\\My Mail\\post.exe\" /to %1");
  Fill();
  EXPECT_EQ(Singles().size(), 4U);
  for (const std::string& name : Names()) world.Files.Vanish(program.Paths.MenusPath + name);
  world.Files.Put("C:\\My Mail\\post.exe", "x");
  Fill();
  EXPECT_EQ(Singles().at(4), "Post");
  EXPECT_EQ(Read("BMENU005.BTN").at(0).FName, "C:\\My Mail\\post.exe");
}

TEST_F(DefaultEntriesTest, TheButtonsForBrowserAndMailFollowTheUsersChoice) {
  Register(".htm", "C:\\net\\pages.exe");
  world.Files.Put("C:\\m\\old.exe", "x");
  world.Keys.Set(RegistryRoot::ClassesRoot, kMailKey, "", "C:\\m\\old.exe %1");
  for (const char* path : {"C:\\net\\fox.exe", "C:\\m\\new.exe"}) world.Files.Put(path, "x");
  Fill();
  EXPECT_EQ(Singles(), (Texts{"Find Files", "Find Computer", "Windows Explorer", "Net Search",
                              "pages", "Old"}));
  Clear();
  Prefer("http", "\"C:\\net\\fox.exe\" -url \"%1\"");
  Prefer("mailto", "\"C:\\m\\new.exe\" %1");
  Fill();
  EXPECT_EQ(Read("BMENU005.BTN").at(0).FName, "C:\\net\\fox.exe");
  EXPECT_EQ(Read("BMENU006.BTN").at(0).FName, "C:\\m\\new.exe");
  EXPECT_EQ(Singles().size(), 6U);
}

TEST_F(DefaultEntriesTest, AChoiceThatIsNoProgramGivesNoButtonRatherThanAnother) {
  Register(".htm", "C:\\net\\pages.exe");
  world.Files.Put("C:\\m\\old.exe", "x");
  world.Files.Put("C:\\Windows\\System32\\rundll32.exe", "x");
  world.Keys.Set(RegistryRoot::ClassesRoot, kMailKey, "", "C:\\m\\old.exe %1");
  Prefer("http", nullptr);
  Prefer("mailto", "C:\\Windows\\System32\\rundll32.exe mail.dll,Open %1");
  Fill();
  EXPECT_EQ(Singles(), (Texts{"Find Files", "Find Computer", "Windows Explorer", "Net Search"}));
}

TEST_F(DefaultEntriesTest, WhatIsNoAnswerMakesNoButton) {
  for (const char* extension : {".htm", ".txt", ".doc", ".xls", ".ppt", ".bmp"})
    Register(extension, "C:\\Windows\\System32\\OpenWith.exe");
  world.Files.Put("C:\\Windows\\System32\\rundll32.exe", "x");
  world.Keys.Set(RegistryRoot::ClassesRoot, kMailKey, "",
                 "C:\\Windows\\System32\\rundll32.exe mail.dll,Open %1");
  Fill();
  EXPECT_EQ(Singles(), (Texts{"Find Files", "Find Computer", "Windows Explorer", "Net Search"}));
}

TEST_F(DefaultEntriesTest, WhatCannotWorkIsLeftOutAndTheRowStaysEven) {
  program.Ports.NetSearch = nullptr;
  Fill();
  EXPECT_EQ(Singles(), (Texts{"Find Files", "Find Computer", "Windows Explorer", "My Computer"}));
  Clear();
  world.Keys.Remove(RegistryRoot::ClassesRoot, "search-ms", "URL Protocol");
  Fill();
  EXPECT_EQ(Singles(), (Texts{"Find Computer", "Windows Explorer"}));
}

TEST_F(DefaultEntriesTest, TheProgramsOfAllUsersStandBesideTheUsersOwn) {
  world.Links.SetFolder(kPrograms, "C:\\Me\\Programs");
  world.Links.SetFolder(kCommonPrograms, "C:\\All\\Programs");
  Link("C:\\Me\\Programs\\Writer.lnk", "C:\\w\\mine.exe");
  Link("C:\\All\\Programs\\writer.lnk", "C:\\w\\all.exe");
  Link("C:\\All\\Programs\\Browser.lnk", "C:\\w\\all.exe");
  Link("C:\\All\\Programs\\Corvelle.lnk", "C:\\w\\all.exe");
  Link("C:\\Me\\Programs\\Games\\Yak.lnk", "C:\\w\\mine.exe");
  Link("C:\\All\\Programs\\GAMES\\yak.lnk", "C:\\w\\all.exe");
  Link("C:\\All\\Programs\\Games\\Ant.lnk", "C:\\w\\all.exe");
  Link("C:\\All\\Programs\\Tools\\axe.lnk", "C:\\w\\all.exe");
  Link("C:\\All\\Programs\\Tools\\Page.lnk", "C:\\w\\page.htm");
  Link("C:\\All\\Programs\\StartUp\\Daemon.lnk", "C:\\w\\all.exe");
  Link("C:\\Me\\Programs\\Accessories\\Paint.lnk", "C:\\w\\mine.exe");
  Link("C:\\All\\Programs\\Accessories\\Notes.lnk", "C:\\w\\all.exe");
  Link("C:\\All\\Programs\\Accessories\\System\\Disk.lnk", "C:\\w\\all.exe");
  Fill();
  EXPECT_EQ(Titles("BMENU002.MNU"),
            (Texts{"Programs", "Browser", "Writer", "Separator", "Ant", "axe", "Yak"}));
  EXPECT_EQ(Read("BMENU002.MNU").at(1).FName, "C:\\All\\Programs\\Browser.lnk");
  // Of two of one name the user's own.
  EXPECT_EQ(Read("BMENU002.MNU").at(2).FName, "C:\\Me\\Programs\\Writer.lnk");
  EXPECT_EQ(Read("BMENU002.MNU").at(6).FName, "C:\\Me\\Programs\\Games\\Yak.lnk");
  EXPECT_EQ(Titles("BMENU004.MNU"), (Texts{"Accessories", "Notes", "Paint", "Separator", "Disk"}));
}

TEST_F(DefaultEntriesTest, AMachineWithProgramsOfAllUsersOnlyHasThose) {
  world.Links.SetFolder(kCommonPrograms, "C:\\All\\Programs");
  Link("C:\\All\\Programs\\Browser.lnk", "C:\\w\\all.exe");
  Fill();
  EXPECT_EQ(Titles("BMENU002.MNU"), (Texts{"Programs", "Browser"}));
}

TEST_F(DefaultEntriesTest, EntriesOfAnOlderInstallationStay) {
  const MenuRecord old[] = {{"OpenWith", "x", "C:\\Windows\\System32\\OpenWith.exe"},
                            {"Net Search", "\\icons\\netsrch.ico", "NetSearch"},
                            {"Find Files", "\\icons\\filefind.ico", "FileFind"}};
  world.Keys.Remove(RegistryRoot::ClassesRoot, "search-ms", "URL Protocol");
  program.Ports.NetSearch = nullptr;
  std::vector<std::string> before;
  for (int i = 0; i < 3; ++i) {
    const std::string path = program.Paths.MenusPath + "BMENU00" + std::to_string(i + 1) + ".BTN";
    ASSERT_TRUE(WriteRecords(world.Files, world.Ansi, path, {old[i]}));
    before.push_back(world.Files.Get(path).value_or(""));
  }
  Fill();
  EXPECT_EQ(Names(), (Texts{"BMENU001.BTN", "BMENU002.BTN", "BMENU003.BTN"}));
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(world.Files.Get(program.Paths.MenusPath + Names()[static_cast<std::size_t>(i)]),
              before[static_cast<std::size_t>(i)]);
  }
}

TEST_F(DefaultEntriesTest, TheStartMenuBecomesTheMenuOfPrograms) {
  world.Links.SetFolder(kPrograms, "C:\\Start\\Programs");
  world.Files.Put("C:\\w\\a.exe", "x");
  Link("C:\\Start\\Programs\\Writer.lnk", "C:\\w\\a.exe");
  Link("C:\\Start\\Programs\\Corvelle.lnk", "C:\\Corvelle\\corvelle.exe");
  world.Files.Put("C:\\Start\\Programs\\desktop.ini", "x");
  world.Files.SetHidden("C:\\Start\\Programs\\desktop.ini", true);
  Link("C:\\Start\\Programs\\Games\\Zebra.lnk", "C:\\w\\a.exe");
  Link("C:\\Start\\Programs\\Games\\Game help.lnk", "C:\\w\\a.exe");
  Link("C:\\Start\\Programs\\Games\\Rules.lnk", "C:\\w\\notepad.exe");
  Link("C:\\Start\\Programs\\Games\\Page.lnk", "C:\\w\\page.htm");
  Link("C:\\Start\\Programs\\Tools\\axe.lnk", "C:\\w\\a.exe");
  world.Files.Put("C:\\Start\\Programs\\Tools\\notes.txt", "x");
  Link("C:\\Start\\Programs\\Startup\\Daemon.lnk", "C:\\w\\a.exe");
  Fill();
  EXPECT_EQ(Titles("BMENU002.MNU"),
            (Texts{"Programs", "Writer", "Separator", "axe", "notes", "Zebra"}));
  const MenuRecord zebra = Read("BMENU002.MNU").at(5);
  EXPECT_EQ(zebra.FIcon, "C:\\Start\\Programs\\Games\\Zebra.lnk");
  EXPECT_EQ(zebra.FName, zebra.FIcon);
}

struct DotCounter final : StartupPort {
  int Dots = 0;
  void LoadWindow() override {}
  void UnloadWindow() override {}
  bool WindowLoaded() const override { return true; }
  void AddDot() override { ++Dots; }
  void HideWindow() override {}
  void ShowProgress(std::string_view, std::string_view) override {}
};

TEST_F(DefaultEntriesTest, EachItemOfTheStartMenuTicksTheStartupWindow) {
  DotCounter startup;
  program.Ports.Startup = &startup;
  program.Guards.StartingUp = true;
  Fill();
  const int without = startup.Dots;
  for (const std::string& name : Names()) world.Files.Vanish(program.Paths.MenusPath + name);
  world.Links.SetFolder(kPrograms, "C:\\Start\\Programs");
  Link("C:\\Start\\Programs\\Writer.lnk", "C:\\w\\a.exe");
  Link("C:\\Start\\Programs\\Games\\Zebra.lnk", "C:\\w\\a.exe");
  Link("C:\\Start\\Programs\\Games\\Yak.lnk", "C:\\w\\a.exe");
  startup.Dots = 0;
  Fill();
  EXPECT_EQ(startup.Dots, without + 3);
  program.Ports.Startup = nullptr;
}

TEST_F(DefaultEntriesTest, EachMenuTicksTheStartupWindowBeforeItAndOnceBehindTheLastButOne) {
  DotCounter startup;
  program.Ports.Startup = &startup;
  program.Guards.StartingUp = true;
  // How many ticks come before the first menu, and how many with all of them.
  int before = -1;
  int all = 0;
  for (int n = 1; n < 200; ++n) {
    for (const std::string& name : Names()) world.Files.Vanish(program.Paths.MenusPath + name);
    startup.Dots = 0;
    world.Files.FailFrom(n);
    world.Desktop.AnswerAnyOther(forms::msgbox::AnswerOk);
    Fill();
    const bool hit = world.Files.Hit();
    world.Files.StopFailing();
    const bool menu = world.Files.Has(program.Paths.MenusPath + MenuFileName(1));
    if (!menu) before = startup.Dots;
    all = startup.Dots;
    if (!hit) break;
  }
  ASSERT_GE(before, 0);
  EXPECT_EQ(all, before + 4);
  program.Ports.Startup = nullptr;
}

TEST_F(DefaultEntriesTest, ASeparatorNeedsFilesAboveItAndFoldersBelow) {
  world.Links.SetFolder(kPrograms, "C:\\Start\\Programs");
  Link("C:\\Start\\Programs\\Tools\\axe.lnk", "C:\\w\\a.exe");
  Fill();
  EXPECT_EQ(Titles("BMENU002.MNU"), (Texts{"Programs", "axe"}));
}

TEST_F(DefaultEntriesTest, AccessoriesHoldTheirFolderAndThoseInIt) {
  world.Links.SetFolder(kPrograms, "C:\\Start\\Programs");
  Link("C:\\Start\\Programs\\Accessories\\Paint.lnk", "C:\\w\\a.exe");
  Link("C:\\Start\\Programs\\Accessories\\System\\Disk.lnk", "C:\\w\\a.exe");
  Fill();
  EXPECT_EQ(Titles("BMENU004.MNU"), (Texts{"Accessories", "Paint", "Separator", "Disk"}));
  EXPECT_EQ(Titles("BMENU002.MNU"), Texts{"Programs"});
}

TEST_F(DefaultEntriesTest, AccessoriesBelowTheirFolderOnlyHaveNoSeparatorAtTheTop) {
  world.Links.SetFolder(kPrograms, "C:\\Start\\Programs");
  Link("C:\\Start\\Programs\\Accessories\\System\\Disk.lnk", "C:\\w\\a.exe");
  Fill();
  EXPECT_EQ(Titles("BMENU004.MNU"), (Texts{"Accessories", "Disk"}));
}

TEST_F(DefaultEntriesTest, RecentDocumentsAreAFolderItem) {
  world.Links.SetFolder(kRecent, "C:\\Me\\Recent");
  Fill();
  EXPECT_EQ(Read("BMENU003.MNU").at(1).FName, "C:\\Me\\Recent\\*.*/u");
}

TEST_F(DefaultEntriesTest, AFolderWithEntriesIsLeftAlone) {
  for (const char* name : {"BMENU007.MNU", "BMENU007.BTN"}) {
    world.Files.Put(program.Paths.MenusPath + name, "mine");
    Fill();
    EXPECT_EQ(Names(), Texts{name});
    world.Files.Vanish(program.Paths.MenusPath + name);
  }
}

TEST_F(DefaultEntriesTest, AFolderWithTheNameOfAMenuIsNoEntry) {
  for (const char* name : {"old.mnu", "old.btn"}) {
    world.Files.MakeFolders(program.Paths.MenusPath + name);
    Fill();
    EXPECT_TRUE(world.Files.Has(program.Paths.MenusPath + "BMENU005.MNU")) << name;
    for (const std::string& made : Names()) world.Files.Vanish(program.Paths.MenusPath + made);
  }
}

TEST_F(DefaultEntriesTest, AFirstMenuOfTheInstallationComesBeforeTheOthers) {
  world.Files.Put("C:\\Corvelle\\BMENU001.MNU", "shipped");
  Fill();
  EXPECT_EQ(world.Files.Get(program.Paths.MenusPath + "BMENU001.MNU"), "shipped");
  EXPECT_EQ(Titles("BMENU002.MNU"), (Texts{"Desktop", "Desktop Items"}));
  EXPECT_TRUE(world.Files.Has(program.Paths.MenusPath + "BMENU006.MNU"));
}

TEST_F(DefaultEntriesTest, AnyFailureOfAFileOfOursEndsItWithAMessage) {
  const std::string start =
      "The following error has occured while Corvelle was trying to add sample entries.\r\n";
  int failures = 0;
  for (int n = 1;; ++n) {
    for (const std::string& name : Names()) world.Files.Vanish(program.Paths.MenusPath + name);
    world.Files.FailCall(n, FileError::DiskFull);
    world.Desktop.AnswerAnyOther(forms::msgbox::AnswerOk);
    const std::size_t before = world.Desktop.Boxes().size();
    Fill();
    const bool hit = world.Files.Hit();
    world.Files.StopFailing();
    if (!hit) break;
    ASSERT_LT(n, 400);
    for (std::size_t i = before; i < world.Desktop.Boxes().size(); ++i, ++failures) {
      EXPECT_EQ(world.Desktop.Boxes()[i].Text, start + "Disk full");
    }
    for (const std::string& name : Names()) {
      EXPECT_FALSE(Read(name).empty()) << name << " after failing call " << n;
    }
  }
  EXPECT_GT(failures, 9);
}

TEST_F(DefaultEntriesTest, GetExeAsksWithASampleAndTakesItAwayAgain) {
  Register(".htm", "C:\\net\\browse.exe");
  EXPECT_EQ(entries.GetExe("htm"), "C:\\net\\browse.exe");
  ASSERT_EQ(world.Associations.Asked().size(), 1U);
  EXPECT_EQ(world.Associations.Asked()[0].second, "dummy string\r\n");
  EXPECT_EQ(world.Files.Names("C:\\Corvelle"), (Texts{"Menus", "corvelle.exe"}));
  EXPECT_EQ(entries.GetExe("xyz"), std::nullopt);
  world.Files.Vanish("C:\\net\\browse.exe");
  EXPECT_EQ(entries.GetExe("htm"), std::nullopt);
}

TEST_F(DefaultEntriesTest, WithoutAProgramsFolderNoOtherFolderStandsForIt) {
  Link("C:\\Accessories\\Paint.lnk", "C:\\w\\a.exe");
  Fill();
  EXPECT_EQ(Titles("BMENU004.MNU"), Texts{"Accessories"});
}

}  // namespace
}  // namespace corvelle
