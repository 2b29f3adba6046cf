#include <set>

#include "menus/FolderDesk.h"

namespace corvelle {
namespace {

TEST(FolderUpdates, WithoutTheOptionTheDiskIsNotLookedAtAgain) {
  FolderDesk desk;
  desk.OpenCommands({"C:\\Docs\\*.*"});
  desk.World.Files.Put("C:\\Docs\\new.txt", "x");
  desk.World.Files.ClearLog();
  desk.World.Icons.ClearCounts();
  desk.OpenAgain();
  EXPECT_EQ(desk.Menu.Items().Count(), 3);
  EXPECT_TRUE(desk.World.Files.Log().empty());
  EXPECT_EQ(desk.World.Icons.Lookups(), 0);
}

TEST(FolderUpdates, WithTheOptionAChangeIsShownAndNothingIsBuiltWithoutOne) {
  FolderDesk desk;
  desk.OpenCommands({"C:\\Docs\\*.*/u"});
  desk.World.Files.ClearLog();
  desk.OpenAgain();
  EXPECT_EQ(desk.Built(), 0);
  EXPECT_EQ(desk.World.Files.Reads(), 0);
  desk.World.Files.Put("C:\\Docs\\new.txt", "x");
  desk.OpenAgain();
  EXPECT_EQ(desk.Captions(), (Strings{"Alpha.txt", "beta.txt", "gamma.doc", "new.txt"}));
  EXPECT_EQ(desk.Strip.Times("RemoveQMenu F2"), 1);
  EXPECT_TRUE(desk.Menu.MenuVisible());
  desk.World.Files.Vanish("C:\\Docs\\Alpha.txt");
  desk.OpenAgain();
  EXPECT_EQ(desk.Captions(), (Strings{"beta.txt", "gamma.doc", "new.txt"}));
  desk.World.Files.ClearLog();
  desk.OpenAgain();
  EXPECT_EQ(desk.Built(), 0);
}

TEST(FolderUpdates, AnotherNameIsAChangeThoughTheNumberStays) {
  FolderDesk desk;
  desk.OpenCommands({"C:\\Docs\\*.*/u"});
  desk.World.Files.Vanish("C:\\Docs\\beta.txt");
  desk.World.Files.Put("C:\\Docs\\delta.txt", "x");
  desk.OpenAgain();
  EXPECT_EQ(desk.Captions(), (Strings{"Alpha.txt", "delta.txt", "gamma.doc"}));
}

TEST(FolderUpdates, WhatIsNotListedIsNoChange) {
  FolderDesk desk;
  desk.OpenCommands({"C:\\Docs\\*.txt/u"});
  desk.World.Files.Put("C:\\Docs\\more.doc", "x");
  desk.World.Files.Put("C:\\Docs\\more.dir", "x");
  desk.World.Files.Put("C:\\Docs\\hidden.txt", "x");
  desk.World.Files.SetHidden("C:\\Docs\\hidden.txt", true);
  desk.World.Files.ClearLog();
  desk.OpenAgain();
  EXPECT_EQ(desk.Built(), 0);
}

TEST(FolderUpdates, EachItemOfAMenuIsComparedWithItsOwnList) {
  FolderDesk desk;
  desk.World.Files.Put("C:\\Other\\x.txt", "x");
  desk.OpenCommands({"C:\\Docs\\*.*/u", "C:\\Docs\\*.txt", "C:\\Other\\*.*/u"});
  desk.World.Files.ClearLog();
  desk.OpenAgain();
  EXPECT_EQ(desk.Built(), 0);
  desk.World.Files.Put("C:\\Other\\y.txt", "x");
  desk.OpenAgain();
  EXPECT_EQ(desk.Menu.Items().Count(), 7);
  EXPECT_EQ(desk.Captions().back(), "y.txt");
}

TEST(FolderUpdates, AFolderThatVanishedLeavesNoEntriesAndIsNotBuiltForEver) {
  FolderDesk desk;
  desk.OpenCommands({"a.exe", "C:\\Docs\\*.*/su"});
  EXPECT_EQ(desk.Menu.Items().Count(), 4);
  desk.World.Files.Vanish("C:\\Docs");
  desk.OpenAgain();
  EXPECT_EQ(desk.Captions(), Strings{"Item 2"});
  desk.World.Files.ClearLog();
  desk.OpenAgain();
  EXPECT_EQ(desk.Built(), 0);
  desk.World.Files.Put("C:\\Docs\\back.txt", "x");
  desk.OpenAgain();
  EXPECT_EQ(desk.Captions(), (Strings{"Item 2", "back.txt"}));
}

TEST(FolderUpdates, AChosenFileThatVanishedIsSaidToBeUnavailable) {
  FolderDesk desk;
  desk.OpenCommands({"C:\\Docs\\*.*"});
  desk.World.Files.Vanish("C:\\Docs");
  desk.OpenAgain();
  EXPECT_EQ(desk.Menu.Items().Count(), 3);
  desk.World.Desktop.Answer("File/Device unavailable.", forms::msgbox::AnswerOk);
  desk.ClickItem(1);
}

TEST(FolderUpdates, AnItemThatWasClosedMeanwhileIsForgotten) {
  FolderDesk desk;
  desk.OpenCommands({"C:\\Docs\\*.*/u"});
  desk.Menu.HideMenu();
  desk.Menu.ForgetMenu("F2");
  desk.OpenCommands({"C:\\Docs\\*.*/u X"});
  EXPECT_EQ(desk.Captions(), Strings{"Item 2"});
  EXPECT_FALSE(desk.Items.UpdateMenu("F2"));
  EXPECT_TRUE(desk.Items.Folders("F2").empty());
}

TEST(FolderUpdates, OneMenusFoldersAreNotAnothers) {
  FolderDesk desk;
  desk.OpenCommands({"C:\\Docs\\*.txt/u"}, 1);
  desk.Menu.HideMenu();
  desk.OpenCommands({"C:\\Docs\\*.doc/u"}, 2);
  desk.Menu.HideMenu();
  desk.World.Files.Put("C:\\Docs\\new.doc", "x");
  EXPECT_FALSE(desk.Items.UpdateMenu("F2"));
  EXPECT_TRUE(desk.Items.UpdateMenu("f3"));
  EXPECT_FALSE(desk.Items.UpdateMenu("F9"));
}

/// How often each folder was listed since the log was cleared.
Strings ListedFolders(FolderDesk& desk) {
  Strings folders;
  for (const auto& call : desk.World.Files.Log()) {
    if (call.Operation == "List") folders.push_back(call.Path);
  }
  return folders;
}

TEST(FolderUpdates, AChangedFolderIsListedOnceForOneOpening) {
  FolderDesk desk;
  for (const char* name : {"C:\\One\\a.txt", "C:\\Two\\b.txt", "C:\\Three\\c.txt"}) {
    desk.World.Files.Put(name, "x");
  }
  desk.OpenCommands({"C:\\One\\*.*/u", "C:\\Two\\*.*/u", "C:\\Three\\*.*/u", "C:\\Docs\\*.txt"});
  desk.World.Files.Put("C:\\Two\\new.txt", "x");
  desk.World.Files.Put("C:\\Three\\new.txt", "x");
  desk.World.Files.ClearLog();
  desk.OpenAgain();
  EXPECT_EQ(ListedFolders(desk), (Strings{"C:\\One\\", "C:\\Two\\", "C:\\Three\\", "C:\\Docs\\"}));
  EXPECT_EQ(desk.Captions(),
            (Strings{"a.txt", "b.txt", "new.txt", "c.txt", "new.txt", "Alpha.txt", "beta.txt"}));
  // What was listed for that opening is not used for a later one.
  desk.World.Files.Put("C:\\One\\later.txt", "x");
  desk.Menu.HideMenu();
  desk.Menu.ForgetMenu("F2");
  desk.World.Files.ClearLog();
  desk.Reopen(1);
  EXPECT_EQ(ListedFolders(desk).size(), 4U);
  EXPECT_EQ(desk.Captions()[1], "later.txt");
}

TEST(FolderUpdates, AListFromAComparisonServesItsOwnMenuOnly) {
  FolderDesk desk;
  desk.OpenCommands({"C:\\Docs\\*.*/u"}, 1);
  desk.Menu.HideMenu();
  desk.OpenCommands({"C:\\Docs\\*.*/u"}, 2);
  desk.Menu.HideMenu();
  desk.World.Files.Put("C:\\Docs\\new.txt", "x");
  EXPECT_TRUE(desk.Items.UpdateMenu("F2"));
  desk.World.Files.Put("C:\\Docs\\newer.txt", "x");
  desk.Menu.ForgetMenu("F3");
  desk.Reopen(2);
  EXPECT_EQ(desk.Captions(),
            (Strings{"Alpha.txt", "beta.txt", "gamma.doc", "new.txt", "newer.txt"}));
  // A comparison that was not followed by its build leaves nothing for a later one.
  desk.World.Files.Vanish("C:\\Docs\\beta.txt");
  desk.Menu.HideMenu();
  desk.Reopen(1);
  EXPECT_EQ(desk.Captions(), (Strings{"Alpha.txt", "gamma.doc", "new.txt", "newer.txt"}));
}

TEST(FolderUpdates, AListOfAnEarlierComparisonIsNotBuiltFrom) {
  FolderDesk desk;
  desk.OpenCommands({"C:\\Docs\\*.*/u"});
  desk.World.Files.Put("C:\\Docs\\new.txt", "x");
  EXPECT_TRUE(desk.Items.UpdateMenu("F2"));
  desk.World.Files.Vanish("C:\\Docs\\new.txt");
  EXPECT_FALSE(desk.Items.UpdateMenu("F2"));
  desk.Menu.HideMenu();
  desk.Menu.ForgetMenu("F2");
  desk.Reopen(1);
  EXPECT_EQ(desk.Captions(), (Strings{"Alpha.txt", "beta.txt", "gamma.doc"}));
}

TEST(FolderUpdates, AFolderOfTheShellThatChangedIsListedOnceForOneOpening) {
  FolderDesk desk;
  desk.World.Folders.Put(17, {{"C:", 8}});
  desk.OpenCommands({"CSIDL_DRIVES/u"});
  desk.World.Folders.Put(17, {{"C:", 8}, {"D:", 9}});
  const int before = desk.World.Folders.Listings();
  desk.OpenAgain();
  EXPECT_EQ(desk.World.Folders.Listings(), before + 1);
  EXPECT_EQ(desk.Captions(), (Strings{"C:", "D:"}));
}

TEST(FolderFailures, AGeneratedFileThatCannotBeWrittenIsMissingAndTheMenuIsWhole) {
  FolderDesk desk;
  desk.PutMenu(1, {Item("Docs", "", "C:\\Docs\\*.*/u"), Item("b")});
  desk.World.Files.FillDisk(1000);
  desk.Reopen(1);
  EXPECT_TRUE(desk.World.Desktop.Boxes().empty());
  EXPECT_EQ(desk.Captions(), (Strings{"Alpha.txt", "beta.txt", "gamma.doc", "b"}));
  EXPECT_EQ(desk.Numbers(), (std::vector<int>{5002, 5002, 5002, 3}));
  EXPECT_TRUE(desk.Generated().empty());
  EXPECT_FALSE(desk.TheProgram.Guards.MenuBuilding);
}

TEST(FolderFailures, AGeneratedFileThatIsHeldOpenStaysAndTheFolderOpens) {
  FolderDesk desk;
  const std::string generated = "C:\\Corvelle\\Menus\\BMENU001.mfd";
  desk.World.Files.Put(generated, "old");
  desk.World.Files.HoldOpen(generated);
  desk.OpenCommands({"C:\\Docs\\*.*"});
  EXPECT_TRUE(desk.World.Desktop.Boxes().empty());
  EXPECT_EQ(desk.Captions(), (Strings{"Alpha.txt", "beta.txt", "gamma.doc"}));
  EXPECT_EQ(desk.World.Files.Get(generated), "old");
  // F5 reads the icons of the menu's own file then, and creates no other.
  EXPECT_EQ(desk.Menu.MenuFile, "C:\\Corvelle\\Menus\\BMENU001.MNU");
  desk.OpenAgain();
  EXPECT_EQ(desk.Menu.MenuFile, "C:\\Corvelle\\Menus\\BMENU001.MNU");
  EXPECT_EQ(desk.Menu.Items().Count(), 3);
}

TEST(FolderFailures, TheMenuIsUpBeforeItsGeneratedFileIsWritten) {
  struct Watched final : FolderMenusPort {
    explicit Watched(FolderDesk& desk) : Desk(desk) {}
    std::optional<ExpandedMenu> Expand(std::string_view key, std::string_view file,
                                       std::string_view stored) override {
      return Desk.Items.Expand(key, file, stored);
    }
    bool WriteGenerated(const ExpandedMenu& menu) override {
      UpThen = Desk.Menu.MenuVisible() && Desk.Menu.Items().Count() == 3;
      return Desk.Items.WriteGenerated(menu);
    }
    bool UpdateMenu(std::string_view key) override { return Desk.Items.UpdateMenu(key); }
    FolderDesk& Desk;
    bool UpThen = false;
  };
  FolderDesk desk;
  Watched watched(desk);
  desk.TheProgram.Ports.FolderMenus = &watched;
  desk.OpenCommands({"C:\\Docs\\*.*"});
  EXPECT_TRUE(watched.UpThen);
  EXPECT_EQ(desk.Generated().size(), 4U);
  desk.TheProgram.Ports.FolderMenus = nullptr;
}

TEST(FolderFailures, AFolderOpensWhereNothingCanBeWritten) {
  FolderDesk desk;
  desk.World.Folders.Put(17, {{"C:", 8}});
  desk.PutMenu(1, {Item("Docs", "", "C:\\Docs\\*.*/u"), Item("Drives", "", "CSIDL_DRIVES/u")});
  desk.World.Files.Protect("C:\\Corvelle\\Menus");
  const Strings expected{"Alpha.txt", "beta.txt", "gamma.doc", "C:"};
  desk.Reopen(1);
  EXPECT_EQ(desk.Captions(), expected);
  desk.OpenAgain();
  EXPECT_EQ(desk.Captions(), expected);
  EXPECT_TRUE(desk.World.Desktop.Boxes().empty());
}

TEST(FolderFailures, AStaleGeneratedFileIsReplaced) {
  FolderDesk desk;
  desk.World.Files.Put("C:\\Corvelle\\Menus\\BMENU001.MFD", std::string(5700, 'x'));
  desk.OpenCommands({"C:\\Docs\\*.doc"});
  EXPECT_EQ(desk.Captions(), Strings{"gamma.doc"});
  EXPECT_EQ(desk.Generated().size(), 2U);
}

TEST(FolderFailures, WhicheverCallFailsTheMenuFileStaysAndTheMenuOpens) {
  for (const FileError error : {FileError::DiskFull, FileError::AccessDenied, FileError::Failed}) {
    int calls = 1;
    for (;; ++calls) {
      FolderDesk desk;
      desk.World.Folders.Put(17, {{"C:", 8}});
      desk.World.Files.Put("C:\\Corvelle\\Menus\\BMENU001.mfd", "stale");
      const std::string file = desk.PutMenu(
          1, {Item("a"), Item("Docs", "", "C:\\Docs\\*.*/us"), Item("D", "", "CSIDL_DRIVES/u")});
      const std::optional<std::string> before = desk.World.Files.Get(file);
      desk.World.Desktop.AnswerAnyOther(forms::msgbox::AnswerOk);
      desk.World.Files.FailCall(calls, error);
      desk.Reopen(1);
      desk.World.Files.StopFailing();
      const bool hit = desk.World.Files.Hit();
      EXPECT_EQ(desk.World.Files.Get(file), before) << "failing call " << calls;
      EXPECT_TRUE(desk.Menu.MenuVisible()) << "failing call " << calls;
      EXPECT_FALSE(desk.TheProgram.Guards.MenuBuilding) << "failing call " << calls;
      for (const int number : desk.Numbers()) {
        EXPECT_TRUE((std::set<int>{2, 3, 4, 5003, 5004}.contains(number))) << number;
      }
      // The next opening after F5 is whole again.
      desk.Menu.HideMenu();
      desk.Menu.ForgetMenu("F2");
      desk.Reopen(1);
      EXPECT_EQ(desk.Captions(), (Strings{"a", "Alpha.txt", "beta.txt", "gamma.doc", "C:"}))
          << "failing call " << calls;
      if (!hit) break;
    }
    EXPECT_GT(calls, 4);
  }
}

}  // namespace
}  // namespace corvelle
