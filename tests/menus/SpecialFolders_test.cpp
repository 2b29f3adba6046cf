// Folders of the shell: opened, and with the menus of the shell.

#include "menus/folders/SpecialFolders.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "launch/LaunchItem.h"
#include "menus/MenuDesk.h"
#include "menus/folders/FolderMenus.h"

namespace corvelle {
namespace {

using forms::MouseButton;
using sim::OpenedEntry;
using sim::ShownMenu;
using Strings = std::vector<std::string>;

constexpr int kControls = 3;
constexpr int kDrives = 17;
constexpr PixelPoint kAt{40, 50};

/// A program with the folders of the shell, on a machine that has some.
struct FoldersDesk : MenuDesk {
  FoldersDesk() {
    TheProgram.Ports.SpecialFolders = &Folders;
    World.Folders.SetSelf(0, {"Desktop", 30});
    World.Folders.SetPath(0, "C:\\Users\\Ann\\Desktop");
    World.Folders.SetPath(2, "C:\\Users\\Ann\\Programs");
    World.Files.MakeFolders("C:\\Users\\Ann\\Programs");
    World.Files.MakeFolders("C:\\Users\\Ann\\Desktop");
    World.Folders.SetSelf(kControls, {"Control Panel", 31});
    World.Folders.Put(kControls,
                      {{"Mouse", 40}, {"Fonts & Co", 41}, {"\xD0\x96\xD1\x83\xD0\xBA", 42}});
    World.Folders.SetSelf(kDrives, {"My Computer", 32});
    World.Folders.Put(kDrives, {{"Disk (C:)", 50}});
  }

  [[nodiscard]] static OpenedEntry Opened(int folder, std::string name, std::string argument = {}) {
    return {.Folder = folder,
            .Name = std::move(name),
            .Argument = std::move(argument),
            .Owner = kNoWindow};
  }

  SpecialFolders Folders{TheProgram.Services.Folders, TheProgram.Launch, TheProgram.Answers,
                         TheProgram.Services.Pointer};
};

// ---- opening ----

TEST(OpenSpecialFolder, AFolderOfTheDiskOpensByItsPath) {
  FoldersDesk desk;
  LaunchItem(desk.TheProgram.Launch, "CSIDL_PROGRAMS");
  EXPECT_EQ(desk.Started(), Strings{"C:\\Users\\Ann\\Programs"});
  EXPECT_TRUE(desk.World.Folders.Opened().empty());
}

TEST(OpenSpecialFolder, TheDesktopOpensAsTheRootOfAWindow) {
  FoldersDesk desk;
  desk.World.Shell.AddToPath("explorer.exe");
  LaunchItem(desk.TheProgram.Launch, "CSIDL_DESKTOP");
  EXPECT_EQ(desk.Started(), Strings{"explorer.exe /root,C:\\Users\\Ann\\Desktop"});
}

TEST(OpenSpecialFolder, AnUnknownNameIsTheDesktop) {
  FoldersDesk desk;
  desk.World.Shell.AddToPath("explorer.exe");
  LaunchItem(desk.TheProgram.Launch, "CSIDL_NOSUCHTHING");
  EXPECT_EQ(desk.Started(), Strings{"explorer.exe /root,C:\\Users\\Ann\\Desktop"});
}

TEST(OpenSpecialFolder, ADesktopWithoutAPathOpensByTheShell) {
  FoldersDesk desk;
  desk.World.Folders.Remove(0);
  desk.World.Folders.SetSelf(0, {"Desktop", 30});
  LaunchItem(desk.TheProgram.Launch, "CSIDL_DESKTOP");
  EXPECT_EQ(desk.World.Folders.Opened(), std::vector{desk.Opened(0, "")});
}

TEST(OpenSpecialFolder, AFolderOfTheShellOpensByTheShell) {
  FoldersDesk desk;
  LaunchItem(desk.TheProgram.Launch, "csidl_Drives");
  EXPECT_EQ(desk.World.Folders.Opened(), std::vector{desk.Opened(kDrives, "")});
  EXPECT_TRUE(desk.Started().empty());
}

TEST(OpenSpecialFolder, TheControlPanelOpensWithoutALookAtTheDrives) {
  FoldersDesk desk;
  desk.World.Folders.Put(kDrives, {{"Disk (C:)", 50}, {"Control Panel", 31}});
  LaunchItem(desk.TheProgram.Launch, "CSIDL_CONTROLS");
  EXPECT_EQ(desk.World.Folders.Opened(), std::vector{desk.Opened(kControls, "")});
  EXPECT_EQ(desk.World.Folders.Listings(), 0);
}

TEST(OpenSpecialFolder, AnEntryByItsWholeNameIsOpenedWithoutAList) {
  FoldersDesk desk;
  LaunchItem(desk.TheProgram.Launch, "Mouse\\CSIDL_CONTROLS");
  EXPECT_EQ(desk.World.Folders.Opened(), std::vector{desk.Opened(kControls, "Mouse")});
  EXPECT_EQ(desk.World.Folders.Listings(), 0);
}

TEST(OpenSpecialFolder, AnEntryIsOpenedByItsTitleInEitherOrder) {
  FoldersDesk desk;
  LaunchItem(desk.TheProgram.Launch, "Mouse\\CSIDL_CONTROLS");
  LaunchItem(desk.TheProgram.Launch, "CSIDL_CONTROLS\\Mouse");
  LaunchItem(desk.TheProgram.Launch, "\xD0\x96\xD1\x83\xD0\xBA\\CSIDL_CONTROLS");
  EXPECT_EQ(desk.World.Folders.Opened(),
            (std::vector{desk.Opened(kControls, "Mouse"), desk.Opened(kControls, "Mouse"),
                         desk.Opened(kControls, "\xD0\x96\xD1\x83\xD0\xBA")}));
}

TEST(OpenSpecialFolder, ATitleThatARecordHasCutFindsItsEntry) {
  FoldersDesk desk;
  const std::string name(80, 'n');
  desk.World.Folders.Put(kControls, {{"Mouse", 40}, {name, 41}});
  LaunchItem(desk.TheProgram.Launch, "CSIDL_CONTROLS\\" + name.substr(0, 50));
  EXPECT_EQ(desk.World.Folders.Opened(), std::vector{desk.Opened(kControls, name)});
}

TEST(OpenSpecialFolder, ADroppedFileGoesWithTheEntry) {
  FoldersDesk desk;
  OpenWithItem(desk.TheProgram.Launch, "C:\\a b.txt", "CSIDL_CONTROLS\\Mouse");
  EXPECT_EQ(desk.World.Folders.Opened(),
            std::vector{desk.Opened(kControls, "Mouse", "\"C:\\a b.txt\"")});
}

TEST(OpenSpecialFolder, WhatIsGoneIsPassedOverQuietly) {
  FoldersDesk desk;
  desk.World.Folders.Refuse(kControls, "Mouse");
  for (const char* command : {"CSIDL_CONTROLS\\Gone", "CSIDL_CONTROLS\\Mouse", "CSIDL_PRINTERS",
                              "CSIDL_PRINTERS\\x", "CSIDL_FONTS"}) {
    LaunchItem(desk.TheProgram.Launch, command);
  }
  desk.World.Folders.Break(kControls);
  LaunchItem(desk.TheProgram.Launch, "CSIDL_CONTROLS\\Fonts & Co");
  EXPECT_TRUE(desk.World.Folders.Opened().empty());
  EXPECT_TRUE(desk.Started().empty());
  EXPECT_TRUE(desk.World.Desktop.Boxes().empty());
}

TEST(OpenSpecialFolder, WhatTakesItsTimeIsOpenedOnceAndHoldsUpNothing) {
  FoldersDesk desk;
  desk.World.Starts.Hang();
  for (int i = 0; i < 2; ++i) {
    LaunchItem(desk.TheProgram.Launch, "CSIDL_CONTROLS\\Mouse");
    LaunchItem(desk.TheProgram.Launch, "CSIDL_PROGRAMS");
    LaunchItem(desk.TheProgram.Launch, "CSIDL_DRIVES");
  }
  EXPECT_EQ(desk.World.Starts.UnderWay(), 3);
  EXPECT_TRUE(desk.World.Folders.Opened().empty());
  desk.World.Starts.Resume();
  EXPECT_EQ(desk.World.Folders.Opened(),
            (std::vector{desk.Opened(kControls, "Mouse"), desk.Opened(kDrives, "")}));
  EXPECT_EQ(desk.Started(), Strings{"C:\\Users\\Ann\\Programs"});
}

// ---- in a menu ----

TEST(SpecialFolderInAMenu, AClickOpensTheEntryOfTheCaption) {
  FoldersDesk desk;
  bool menuWasUp = true;
  desk.World.Folders.WhenOpened(kControls, "Fonts & Co",
                                [&] { menuWasUp = desk.Menu.MenuVisible(); });
  desk.Open(1, {Item("Mouse", "40", "CSIDL_CONTROLS"), Item("Fonts & Co", "41", "CSIDL_CONTROLS")});
  desk.ClickItem(2);
  EXPECT_EQ(desk.World.Folders.Opened(), std::vector{desk.Opened(kControls, "Fonts & Co")});
  EXPECT_FALSE(menuWasUp);
}

TEST(SpecialFolderInAMenu, AnItemThatIsNotExpandedOpensTheFolder) {
  FoldersDesk desk;
  desk.Open(1, {Item("Mouse", "", "CSIDL_CONTROLS/X")});
  desk.ClickItem(1);
  EXPECT_EQ(desk.World.Folders.Opened(), std::vector{desk.Opened(kControls, "")});
}

/// The menu of a folder of the shell that has not answered yet; see FolderState. Its title is also
/// that of an entry in it.
struct WaitingFolderDesk : FoldersDesk {
  explicit WaitingFolderDesk(int milliseconds) {
    TheProgram.Ports.FolderMenus = &Items;
    World.SlowAnswers.Hang("shell");
    Open(1, {Item("Mouse", "", "CSIDL_CONTROLS/u")});
    World.Desktop.Advance(milliseconds);
  }
  [[nodiscard]] std::string Caption() { return Menu.Lbl[1].Caption(); }

  FolderMenus Items{TheProgram.Services, TheProgram.Windows, TheProgram.Answers, TheProgram.Icons};
};

struct WaitingRow {
  int Milliseconds;  // after the opening
  const char* Caption;
};
constexpr WaitingRow kReading[] = {{0, "Mouse"}, {200, "Mouse (reading...)"}};
constexpr WaitingRow kNotAvailable{7000, "Mouse (not available)"};

TEST(SpecialFolderThatWaits, OpensAsItselfByAClick) {
  for (const WaitingRow& row : kReading) {
    WaitingFolderDesk desk(row.Milliseconds);
    ASSERT_EQ(desk.Caption(), row.Caption);
    desk.ClickItem(1);
    EXPECT_EQ(desk.World.Folders.Opened(), std::vector{desk.Opened(kControls, "")}) << row.Caption;
    EXPECT_FALSE(desk.Menu.MenuVisible());
  }
}

TEST(SpecialFolderThatWaits, HasTheMenuOfTheFolder) {
  for (const WaitingRow& row : {kReading[0], kReading[1], kNotAvailable}) {
    WaitingFolderDesk desk(row.Milliseconds);
    ASSERT_EQ(desk.Caption(), row.Caption);
    desk.World.Folders.Dismiss();
    desk.PointAtItem(1);
    desk.World.Desktop.Click(MouseButton::Right);
    EXPECT_EQ(desk.World.Folders.Menus(), std::vector{(ShownMenu{.Folder = kControls,
                                                                 .Name = "",
                                                                 .At = desk.ItemPoint(1),
                                                                 .Owner = desk.Menu.hWnd(),
                                                                 .Chosen = ""})})
        << row.Caption;
  }
}

TEST(SpecialFolderThatWaits, OpensAsItselfForAFileThatIsDroppedOnIt) {
  for (const WaitingRow& row : {kReading[0], kReading[1], kNotAvailable}) {
    WaitingFolderDesk desk(row.Milliseconds);
    ASSERT_EQ(desk.Caption(), row.Caption);
    desk.World.Desktop.StartDrag(
        {.Data = {.Files = Strings{"C:\\Tools\\tool.exe"}}, .Button = MouseButton::Right});
    desk.PointAtItem(1);
    desk.World.Desktop.Release(MouseButton::Right);
    EXPECT_EQ(desk.World.Folders.Opened(), std::vector{desk.Opened(kControls, "")}) << row.Caption;
  }
}

TEST(SpecialFolderInAMenu, WithoutFoldersOfTheShellItIsUnavailable) {
  FoldersDesk desk;
  desk.TheProgram.Ports.SpecialFolders = nullptr;
  desk.World.Desktop.Answer("File/Device unavailable.", forms::msgbox::AnswerOk);
  desk.Open(1, {Item("Mouse", "", "CSIDL_CONTROLS")});
  desk.ClickItem(1);
}

// ---- the menus of the shell ----

/// Counts how often the program's popup comes up.
class CountingPopup final : public PopupPort {
 public:
  int Shown = 0;
  void ShowToolbarPopup(EntryEdit) override { ++Shown; }
};

/// A menu with a file, an entry of a folder of the shell and two folder items.
struct RightClickDesk : FoldersDesk {
  RightClickDesk() {
    TheProgram.Ports.Popup = &Popup;
    World.Files.Put("C:\\Work\\a.txt", "x");
    Open(1, {Item("Alpha"), Item("Fonts & Co", "41", "CSIDL_CONTROLS"),
             Item("Panel", "", "CSIDL_CONTROLS/X"), Item("Work", "", "C:\\Work\\*.*/X"),
             Item("Gone", "", "C:\\gone.exe"), Item("Programs", "", "CSIDL_PROGRAMS/X")});
  }
  void RightClick(int item) {
    PointAtItem(item);
    World.Desktop.Click(MouseButton::Right);
  }
  [[nodiscard]] ShownMenu Menu1(int folder, std::string name, std::string chosen) const {
    return {.Folder = folder,
            .Name = std::move(name),
            .At = World.Desktop.PointerPosition(),
            .Owner = Menu.hWnd(),
            .Chosen = std::move(chosen)};
  }

  CountingPopup Popup;
};

TEST(ShellMenu, ComesUpAtThePointerForTheFileOfTheItemAndACommandClosesTheMenu) {
  RightClickDesk desk;
  desk.World.Folders.Choose("Properties");
  desk.RightClick(1);
  EXPECT_EQ(desk.World.Folders.Menus(),
            std::vector{desk.Menu1(-1, "C:\\Tools\\tool.exe", "Properties")});
  EXPECT_FALSE(desk.Menu.MenuVisible());
  EXPECT_EQ(desk.Strip.Times("ResetMenu"), 1);
  EXPECT_EQ(desk.Popup.Shown, 0);
}

TEST(ShellMenu, WithoutAChoiceTheMenuAndItsSelectionStay) {
  RightClickDesk desk;
  desk.World.Folders.Dismiss();
  desk.RightClick(1);
  desk.PointAway();
  desk.Poll();
  EXPECT_TRUE(desk.Menu.MenuVisible());
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 1);
  EXPECT_EQ(desk.TheProgram.Entry.CurTitle, "Alpha");
  EXPECT_EQ(desk.TheProgram.Entry.CurCommand, "C:\\Tools\\tool.exe");
}

TEST(ShellMenu, OfAnEntryAsksForNoIconOfItsFolder) {
  RightClickDesk desk;
  const int before = desk.World.Folders.Listings();
  desk.World.Folders.Dismiss();
  desk.RightClick(2);
  EXPECT_EQ(desk.World.Folders.Menus().size(), 1U);
  EXPECT_EQ(desk.World.Folders.Listings(), before);
}

TEST(ShellMenu, OfAnEntryInAFolderOfTheShellIsThatOfTheEntry) {
  RightClickDesk desk;
  desk.World.Folders.Choose("Open");
  desk.RightClick(2);
  EXPECT_EQ(desk.World.Folders.Menus(), std::vector{desk.Menu1(kControls, "Fonts & Co", "Open")});
  EXPECT_FALSE(desk.Menu.MenuVisible());
}

TEST(ShellMenu, OfAFolderItemIsThatOfTheFolder) {
  RightClickDesk desk;
  for (int i = 0; i < 3; ++i) desk.World.Folders.Dismiss();
  desk.RightClick(3);
  const ShownMenu panel = desk.Menu1(kControls, "", "");
  desk.RightClick(4);
  const ShownMenu work = desk.Menu1(-1, "C:\\Work\\", "");
  desk.RightClick(6);
  const ShownMenu programs = desk.Menu1(-1, "C:\\Users\\Ann\\Programs", "");
  EXPECT_EQ(desk.World.Folders.Menus(), (std::vector{panel, work, programs}));
}

TEST(ShellMenu, OfWhatIsGoneDoesNotComeUp) {
  RightClickDesk desk;
  desk.RightClick(5);
  desk.World.Folders.Put(kControls, {});
  desk.RightClick(2);
  EXPECT_TRUE(desk.World.Folders.Menus().empty());
  EXPECT_TRUE(desk.Menu.MenuVisible());
  EXPECT_EQ(desk.Popup.Shown, 0);
  EXPECT_TRUE(desk.World.Desktop.Boxes().empty());
  EXPECT_EQ(desk.World.Desktop.Beeps(), 0);
}

TEST(ShellMenu, OfWhatTakesLongerThanAClickComesUpWithTheNextOne) {
  RightClickDesk desk;
  desk.World.SlowAnswers.Delay("C:", 300);
  desk.RightClick(1);
  EXPECT_TRUE(desk.World.Folders.Menus().empty());
  EXPECT_EQ(desk.World.Desktop.Beeps(), 1);
  EXPECT_TRUE(desk.Menu.MenuVisible());
  desk.World.Desktop.Advance(500);
  EXPECT_TRUE(desk.World.Folders.Menus().empty()) << "nobody waits for it any more";
  desk.World.Folders.Dismiss();
  desk.RightClick(1);
  EXPECT_EQ(desk.World.Folders.Menus(), std::vector{desk.Menu1(-1, "C:\\Tools\\tool.exe", "")});
  EXPECT_EQ(desk.World.Desktop.Beeps(), 1);
}

TEST(ShellMenu, TheOptionAndCtrlDecideWhichMenuComesUp) {
  constexpr int kCtrl = 17;
  for (const bool popupFirst : {false, true}) {
    for (const bool ctrl : {false, true}) {
      RightClickDesk desk;
      desk.TheProgram.OptionFlags.Set(Option::SystemPopupWithCtrl, popupFirst);
      const bool popup = popupFirst != ctrl;
      if (!popup) desk.World.Folders.Dismiss();
      if (ctrl) desk.World.Desktop.KeyDown(kCtrl);
      desk.RightClick(1);
      EXPECT_EQ(desk.Popup.Shown, popup ? 1 : 0) << popupFirst << ctrl;
      EXPECT_EQ(desk.World.Folders.Menus().size(), popup ? 0U : 1U) << popupFirst << ctrl;
    }
  }
}

TEST(ShellMenu, TheProgramsOwnMenuHasThePopupWhateverTheOptionSays) {
  RightClickDesk desk;
  desk.Menu.MenuKey = "Q1";
  desk.RightClick(1);
  EXPECT_EQ(desk.Popup.Shown, 1);
}

TEST(ShellMenu, WithoutFoldersOfTheShellThePopupComesUp) {
  RightClickDesk desk;
  desk.TheProgram.Ports.SpecialFolders = nullptr;
  desk.RightClick(1);
  EXPECT_EQ(desk.Popup.Shown, 1);
}

TEST(ShellMenu, AMenuThatClosedMeanwhileIsNotClosedAgain) {
  RightClickDesk desk;
  desk.World.Folders.WhileMenuIsUp([&] {
    desk.World.Desktop.TakeForeground(desk.World.Desktop.AddOtherWindow({.Title = "Other"}));
    desk.PointAway();
    desk.Poll();
    EXPECT_FALSE(desk.Menu.MenuVisible());
  });
  desk.World.Folders.Choose("Open");
  desk.RightClick(1);
  EXPECT_EQ(desk.Strip.Times("ResetMenu"), 1);
}

TEST(ShellMenu, AnotherMenuThatCameUpMeanwhileStays) {
  RightClickDesk desk;
  desk.World.Folders.WhileMenuIsUp([&] { desk.Open(2, Items(2)); });
  desk.World.Folders.Choose("Open");
  desk.RightClick(1);
  EXPECT_TRUE(desk.Menu.MenuVisible());
  EXPECT_EQ(desk.Menu.MenuKey, "F3");
}

TEST(ShellMenu, TheProgramMayEndWhileItIsUp) {
  RightClickDesk desk;
  desk.World.Folders.WhileMenuIsUp([&] { desk.Menu.UnloadWindow(); });
  desk.World.Folders.Choose("Open");
  desk.RightClick(1);
  EXPECT_FALSE(desk.Menu.WindowLoaded());
  EXPECT_EQ(desk.Strip.Times("ResetMenu"), 0);
}

}  // namespace
}  // namespace corvelle
