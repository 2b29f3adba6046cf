#include "menus/FolderDesk.h"

namespace corvelle {
namespace {

class ShellFolderItems : public ::testing::Test {
 protected:
  ShellFolderItems() {
    desk_.World.Folders.Put(0, {{"My Computer", 15}, {"Bin", 31}});
    desk_.World.Folders.Put(17, {{"D: drive", 9}, {"c: Drive", 8}});
    desk_.World.Folders.Put(10, {});
  }
  FolderDesk desk_;
};

TEST_F(ShellFolderItems, ShowWhatTheShellLists) {
  desk_.OpenCommands({"a.exe", "csidl_Drives /U", "b.exe"});
  EXPECT_EQ(desk_.Captions(), (Strings{"Item 2", "c: Drive", "D: drive", "Item 4"}));
  EXPECT_EQ(desk_.Numbers(), (std::vector<int>{2, 5003, 5003, 4}));
  EXPECT_EQ(desk_.Menu.GetExeName(2), "csidl_Drives");
  EXPECT_EQ(desk_.Menu.GetIconName(2), "8");
  const PixelPoint cell = desk_.IconCell(3);
  EXPECT_EQ(desk_.PixelInside(cell.x + 8, cell.y + 8), sim::SimShellIcons::ColourOf(9));
}

TEST_F(ShellFolderItems, AnUnknownNameIsTheDesktop) {
  desk_.OpenCommands({"CSIDL_MNU"});
  EXPECT_EQ(desk_.Captions(), (Strings{"Bin", "My Computer"}));
  EXPECT_EQ(RecordCount(desk_.World.Files.Get("C:\\Corvelle\\Menus\\BMENU001.MNU")->size()), 2);
}

TEST_F(ShellFolderItems, APathThatOnlyBeginsLikeOneIsNone) {
  desk_.OpenCommands({"CSIDL_DRIVES\\x"});
  EXPECT_EQ(desk_.Captions(), Strings{"Item 2"});
}

TEST_F(ShellFolderItems, TheListIsKeptBesideTheMenuFile) {
  desk_.World.Folders.Put(2, {{"mail", 4}, {"\xC3\x84pfel", 5}, {"\xE6\x97\xA5", 6}});
  desk_.OpenCommands({"CSIDL_PROGRAMS"});
  EXPECT_EQ(
      desk_.World.Files.Get("C:\\Corvelle\\Menus\\BMENU001.PROGRAMS"),
      std::string("MAIL|4\0mail|4\r\n\xC4PFEL|5\0\xC4pfel|5\r\n\xE6\x97\xA5|6\0\xE6\x97\xA5|6\r\n",
                  15 + 17 + 13));
}

TEST_F(ShellFolderItems, WithTheOptionAChangeIsShown) {
  desk_.OpenCommands({"CSIDL_DRIVES/u"});
  desk_.World.Files.ClearLog();
  desk_.OpenAgain();
  EXPECT_EQ(desk_.Built(), 0);
  const std::vector<std::vector<ShellFolderEntry>> changes = {
      {{"c: Drive", 8}, {"D: drive", 9}, {"E: drive", 9}},  // one more
      {{"c: Drive", 8}, {"D: drive", 9}},                   // one less
      {{"c: Drive", 8}, {"F: drive", 9}},                   // another
      {{"c: Drive", 8}, {"F: drive", 7}},                   // another icon
      {}};
  for (const auto& entries : changes) {
    desk_.World.Folders.Put(17, entries);
    desk_.World.Files.ClearLog();
    desk_.OpenAgain();
    EXPECT_EQ(desk_.Built(), 2) << entries.size();
    EXPECT_EQ(desk_.Menu.Items().Count(), static_cast<int>(entries.size()));
    desk_.World.Files.ClearLog();
    desk_.OpenAgain();
    EXPECT_EQ(desk_.Built(), 0) << entries.size();
  }
}

TEST_F(ShellFolderItems, WithoutTheOptionNothingIsListedAgain) {
  desk_.OpenCommands({"CSIDL_DRIVES"});
  desk_.World.Folders.Put(17, {});
  desk_.World.Files.ClearLog();
  desk_.OpenAgain();
  EXPECT_EQ(desk_.Menu.Items().Count(), 2);
  EXPECT_TRUE(desk_.World.Files.Log().empty());
}

TEST_F(ShellFolderItems, OneThatCannotBeListedHasNoEntriesAndIsNotBuiltForEver) {
  desk_.OpenCommands({"a.exe", "CSIDL_PRINTERS/u"});
  EXPECT_EQ(desk_.Captions(), Strings{"Item 2"});
  desk_.World.Files.ClearLog();
  desk_.OpenAgain();
  EXPECT_EQ(desk_.Built(), 0);
  desk_.World.Folders.Put(4, {{"Laser", 3}});
  desk_.OpenAgain();
  EXPECT_EQ(desk_.Captions(), (Strings{"Item 2", "Laser"}));
}

TEST_F(ShellFolderItems, AListThatIsGoneIsAChange) {
  desk_.OpenCommands({"CSIDL_DRIVES/u"});
  desk_.World.Files.Vanish("C:\\Corvelle\\Menus\\BMENU001.DRIVES");
  desk_.World.Files.ClearLog();
  desk_.OpenAgain();
  EXPECT_EQ(desk_.Built(), 2);
}

TEST_F(ShellFolderItems, TheDesktopIsBuiltAnewOnlyWhenTheBinsIconChanged) {
  desk_.SetBin("empty.ico");
  desk_.OpenCommands({"CSIDL_DESKTOP"});
  desk_.World.Folders.Put(0, {{"My Computer", 15}, {"Bin", 32}, {"New", 3}});
  for (int look = 0; look < 3; ++look) {
    desk_.OpenAgain();
    EXPECT_EQ(desk_.Menu.Items().Count(), 2) << look;
  }
  desk_.SetBin("full.ico");
  desk_.OpenAgain();
  EXPECT_EQ(desk_.Captions(), (Strings{"Bin", "My Computer", "New"}));
  EXPECT_EQ(desk_.Menu.GetIconName(1), "32");
  EXPECT_FALSE(desk_.TheProgram.Icons.RecycleIconChanged);
  desk_.World.Files.ClearLog();
  desk_.OpenAgain();
  EXPECT_TRUE(desk_.World.Files.Log().empty());
}

TEST_F(ShellFolderItems, TheDesktopFollowsABinThatOnlyTheShellKnowsToBeFull) {
  desk_.World.Folders.SetSelf(10, {"Bin", 31});
  desk_.OpenCommands({"CSIDL_DESKTOP"});
  desk_.World.Folders.Put(0, {{"My Computer", 15}, {"Bin", 32}});
  desk_.OpenAgain();
  EXPECT_EQ(desk_.Menu.GetIconName(1), "31");
  desk_.World.Folders.SetSelf(10, {"Bin", 32});
  desk_.OpenAgain();
  EXPECT_EQ(desk_.Menu.GetIconName(1), "32");
}

TEST_F(ShellFolderItems, AChangeOfTheBinReachesEachMenuOfTheDesktop) {
  desk_.SetBin("empty.ico");
  desk_.OpenCommands({"CSIDL_DESKTOP"}, 1);
  desk_.Menu.HideMenu();
  desk_.OpenCommands({"CSIDL_DESKTOPDIRECTORY"}, 2);
  desk_.Menu.HideMenu();
  desk_.SetBin("full.ico");
  for (const int menu : {1, 2}) {
    desk_.World.Files.ClearLog();
    desk_.OpenAgain(menu);
    EXPECT_GT(desk_.Built(), 0) << menu;
    desk_.World.Files.ClearLog();
    desk_.OpenAgain(menu);
    EXPECT_EQ(desk_.Built(), 0) << menu;
  }
}

TEST_F(ShellFolderItems, AChangeThatWasNotedElsewhereIsTakenUp) {
  desk_.OpenCommands({"CSIDL_DESKTOP"});
  desk_.TheProgram.Icons.RecycleIconChanged = true;
  desk_.World.Files.ClearLog();
  desk_.OpenAgain();
  EXPECT_GT(desk_.Built(), 0);
  EXPECT_FALSE(desk_.TheProgram.Icons.RecycleIconChanged);
}

TEST_F(ShellFolderItems, TheBinIsNotLookedAtForOtherFolders) {
  desk_.SetBin("empty.ico");
  desk_.OpenCommands({"CSIDL_DRIVES"});
  desk_.SetBin("full.ico");
  desk_.TheProgram.Icons.RecycleIconChanged = true;
  desk_.World.Files.ClearLog();
  desk_.OpenAgain();
  EXPECT_EQ(desk_.Built(), 0);
  EXPECT_TRUE(desk_.TheProgram.Icons.RecycleIconChanged);
  EXPECT_EQ(desk_.TheProgram.Icons.RecycleIconPath, "");
}

TEST_F(ShellFolderItems, ARightClickNamesTheEntryByItsTitle) {
  desk_.OpenCommands({"CSIDL_DRIVES/u"});
  desk_.TheProgram.OptionFlags.Set(Option::SystemPopupWithCtrl, '1');
  struct Popup final : PopupPort {
    void ShowToolbarPopup(EntryEdit entry) override { Seen = std::move(entry); }
    EntryEdit Seen;
  } popup;
  desk_.TheProgram.Ports.Popup = &popup;
  desk_.PointAtItem(1);
  desk_.World.Desktop.Click(forms::MouseButton::Right);
  EXPECT_EQ(popup.Seen.CurCommand, "c: Drive\\CSIDL_DRIVES");
  EXPECT_EQ(popup.Seen.CurRecord, 5002);
}

}  // namespace
}  // namespace corvelle
