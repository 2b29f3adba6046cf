// Menus with open folders in the whole program.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "program/ProgramDesk.h"

namespace corvelle {
namespace {

/// Folder items whose comparison lets events through.
struct BusyFolders final : FolderMenusPort {
  explicit BusyFolders(FolderMenusPort& folders) : Folders(folders) {}
  std::optional<ExpandedMenu> Expand(std::string_view key, std::string_view file,
                                     std::string_view stored) override {
    return Folders.Expand(key, file, stored);
  }
  bool WriteGenerated(const ExpandedMenu& menu) override { return Folders.WriteGenerated(menu); }
  bool UpdateMenu(std::string_view key) override {
    if (const auto action = std::exchange(WhileCompared, nullptr)) action();
    return Folders.UpdateMenu(key);
  }
  FolderMenusPort& Folders;
  std::function<void()> WhileCompared;
};

/// A menu of button 2 with an open folder.
struct OpenFolderDesk : ProgramDesk {
  OpenFolderDesk() {
    world.Files.Put("C:\\Docs\\old.txt", "x");
    world.Files.Put(kMenus + MenuFileName(1),
                    FormatRecord({"Menu", "Button", ""}, world.Ansi) +
                        FormatRecord({"Docs", "", "C:\\Docs\\*.*/u"}, world.Ansi));
  }
  [[nodiscard]] std::string FirstCaption() const { return parts->Menu.Lbl[1].Caption(); }
  /// Opens the menu, closes it again, and has the shell show its file by another name from now on.
  void ShowByAnotherName() {
    OpenMenu(2);
    EXPECT_EQ(FirstCaption(), "old.txt");
    world.Desktop.PressKey(forms::key::Escape);
    world.Icons.SetDisplayName("C:\\Docs\\old.txt", "Letter");
    world.Desktop.Advance(1000);
  }
};

TEST(OpenFolders, NamesThatWereAskedForSecondsAgoAreShownAsTheyWere) {
  OpenFolderDesk desk;
  desk.ShowByAnotherName();
  desk.parts->Menu.ForgetMenu("F2");
  desk.OpenMenu(2);
  EXPECT_EQ(desk.FirstCaption(), "old.txt");
}

TEST(OpenFolders, F5AsksForTheNamesThoughTheyAreYoung) {
  OpenFolderDesk desk;
  desk.ShowByAnotherName();
  desk.OpenMenu(2);
  desk.world.Desktop.PressKey(forms::key::F5);
  desk.world.Desktop.Advance(500);
  ASSERT_TRUE(desk.parts->Menu.MenuVisible());
  EXPECT_EQ(desk.FirstCaption(), "Letter");
}

TEST(OpenFolders, RefreshAllAsksForTheNamesThoughTheyAreYoung) {
  OpenFolderDesk desk;
  desk.ShowByAnotherName();
  desk.OpenMenu(1);
  ASSERT_EQ(desk.parts->Menu.Lbl[2].Caption(), "Refresh All");
  desk.PointAt(desk.Item(2));
  desk.world.Desktop.Click();
  desk.world.Desktop.Advance(500);
  desk.OpenMenu(2);
  EXPECT_EQ(desk.FirstCaption(), "Letter");
}

TEST(OpenFolders, TheMenuIsItsButtonsAlsoWhenTheUserHasClickedAndCarriedWhileTheyWereCompared) {
  OpenFolderDesk desk;
  sim::SimDesktop& desktop = desk.world.Desktop;
  Program& program = desk.parts->TheProgram;
  desk.OpenMenu(2);
  const float left = desk.parts->Menu.Left();
  desktop.Click();
  ASSERT_FALSE(desk.parts->Menu.MenuVisible());
  desk.world.Files.Put("C:\\Docs\\new.txt", "x");
  BusyFolders folders(*program.Ports.FolderMenus);
  program.Ports.FolderMenus = &folders;
  folders.WhileCompared = [&] {
    desktop.Release();
    desk.PointAt(desk.Single(1));
    desktop.Click();
    program.Events.DoEvents();
    EXPECT_EQ(desk.parts->Menu.OwnerTag(), "0");
    desktop.Press();
    program.Events.DoEvents();
    EXPECT_TRUE(program.Entry.ItemDragging);
  };
  desk.PointAt(desk.MenuButton(2));
  desktop.Press();
  ASSERT_TRUE(desk.parts->Menu.MenuVisible());
  EXPECT_EQ(desk.parts->Menu.OwnerTag(), "2");
  EXPECT_EQ(desk.parts->Menu.Left(), left);
  desktop.Release();
  program.Ports.FolderMenus = &folders.Folders;
}

// The desk says of a drive that rests only that it does not answer.
TEST(OpenFolders, AMenuThatIsBuiltAgainWhileADriveRestsShowsWhatItHeldBefore) {
  ProgramDesk desk;
  desk.world.Files.AddDrive('D');
  desk.world.Files.Put("D:\\Docs\\one.txt", "x");
  desk.world.Files.Put(kMenus + MenuFileName(1),
                       FormatRecord({"Menu", "Button", ""}, desk.world.Ansi) +
                           FormatRecord({"Docs", "", "D:\\Docs\\*.*/u"}, desk.world.Ansi) +
                           FormatRecord({"A", "", "C:\\Tools\\tool.exe"}, desk.world.Ansi));
  const auto captions = [&desk] {
    std::vector<std::string> titles;
    for (int i = 1; i <= desk.parts->Menu.Items().Count(); ++i)
      titles.push_back(desk.parts->Menu.Lbl[i].Caption());
    return titles;
  };
  desk.OpenMenu(2);
  ASSERT_EQ(captions(), (std::vector<std::string>{"one.txt", "A"}));
  desk.world.Desktop.PressKey(forms::key::Escape);
  desk.world.SlowAnswers.Hang("D:");
  desk.OpenMenu(2);
  desk.world.Desktop.Advance(7000);
  desk.RightClick(desk.Item(2), "Copy Item");
  desk.RightClick(desk.Item(2), "Paste Item");
  EXPECT_EQ(captions(), (std::vector<std::string>{"one.txt", "A", "A"}));
}

/// A menu of button 2 whose second item is a folder on a drive that never answers. Its row says so.
class WaitingRow : public ::testing::Test {
 protected:
  struct Row {
    int Milliseconds;  // after the opening
    const char* Caption;
  };
  static constexpr Row kRows[] = {{200, "Docs (reading...)"}, {7000, "Docs (not available)"}};

  struct Desk : ProgramDesk {
    explicit Desk(const Row& row) {
      world.Files.AddDrive('D');
      world.SlowAnswers.Hang("D:");
      Records = FormatRecord({"Menu", "Button", ""}, world.Ansi) +
                FormatRecord({"A", "", "C:\\Tools\\tool.exe"}, world.Ansi);
      Folder = FormatRecord({"Docs", "", "D:\\Docs\\*.*"}, world.Ansi);
      world.Files.Put(kMenus + MenuFileName(1), Records + Folder);
      OpenMenu(2);
      world.Desktop.Advance(row.Milliseconds);
      EXPECT_EQ(parts->Menu.Lbl[2].Caption(), row.Caption);
    }
    [[nodiscard]] std::string Menu() const { return Files().at("BMENU001.MNU"); }

    std::string Records;  // before the folder's
    std::string Folder;
  };
};

TEST_F(WaitingRow, ThatIsDeletedComesBackAsItWas) {
  for (const Row& row : kRows) {
    Desk desk(row);
    desk.RightClick(desk.Item(2), "Delete Item");
    ASSERT_EQ(desk.Menu(), desk.Records);
    desk.RightClick(desk.Item(1), "Undo Delete");
    EXPECT_EQ(desk.Menu(), desk.Records + desk.Folder) << row.Caption;
  }
}

TEST_F(WaitingRow, IsPastedAsItIsInTheFile) {
  for (const Row& row : kRows) {
    for (const char* taken : {"Copy Item", "Cut Item"}) {
      Desk desk(row);
      desk.RightClick(desk.Item(2), taken);
      desk.RightClick(desk.Item(1), "Paste Item");
      const std::string bytes = desk.Menu();
      EXPECT_EQ(bytes.substr(kRecordLength, kRecordLength), desk.Folder) << taken << row.Caption;
    }
  }
}

TEST_F(WaitingRow, IsCopiedToTheSingleButtonsAsItIsInTheFile) {
  for (const Row& row : kRows) {
    Desk desk(row);
    desk.PointAt(desk.Item(2));
    desk.world.Desktop.KeyDown(kCtrl);
    desk.world.Desktop.Press();
    desk.world.Desktop.KeyUp(kCtrl);
    ASSERT_TRUE(desk.parts->TheProgram.Entry.ItemDragging);
    desk.PointAt(desk.Single(1));
    desk.world.Desktop.Advance(50);
    desk.world.Desktop.Press(forms::MouseButton::Right);
    desk.world.Desktop.Release(forms::MouseButton::Right);
    desk.world.Desktop.Release();
    desk.world.Desktop.Advance(50);
    EXPECT_EQ(desk.Files().at("BMENU001.BTN"), desk.Folder) << row.Caption;
    EXPECT_EQ(desk.Menu(), desk.Records + desk.Folder);
  }
}

TEST_F(WaitingRow, HasThePropertiesOfItsRecord) {
  for (const Row& row : kRows) {
    Desk desk(row);
    desk.RightClick(desk.Item(2), "Properties");
    ASSERT_TRUE(desk.parts->Properties.IsLoaded());
    EXPECT_EQ(desk.parts->Properties.txtTitle.Text(), "Docs") << row.Caption;
  }
}

/// A menu of button 2 with a tool and a folder that takes its time, over which the strip's button
/// is held.
class HeldOverTheMenu : public ::testing::Test {
 protected:
  HeldOverTheMenu() {
    desk_.world.Files.Put("D:\\Docs\\one.txt", "x");
    desk_.world.Files.Put("D:\\Docs\\two.txt", "x");
    desk_.world.Files.Put(kMenus + MenuFileName(1),
                          FormatRecord({"Menu", "Button", ""}, desk_.world.Ansi) +
                              FormatRecord({"Docs", "", "D:\\Docs\\*.*"}, desk_.world.Ansi) +
                              FormatRecord({"A", "", "C:\\Tools\\tool.exe"}, desk_.world.Ansi));
    desk_.world.SlowAnswers.Delay("D:", 200);
    desk_.PointAt(desk_.MenuButton(2));
    desk_.world.Desktop.Press();
  }
  [[nodiscard]] int Count() const { return desk_.parts->Menu.Items().Count(); }
  void Advance(int milliseconds) { desk_.world.Desktop.Advance(milliseconds); }

  struct Desk : ProgramDesk {
    Desk() { world.Files.AddDrive('D'); }
  };
  Desk desk_;
};

TEST_F(HeldOverTheMenu, NothingMovesBeforeTheRelease) {
  Advance(20);
  ASSERT_EQ(Count(), 2);
  desk_.PointAt(desk_.Item(2));
  Advance(1000);
  EXPECT_EQ(Count(), 2);
  desk_.world.Desktop.Release();
  EXPECT_EQ(desk_.world.Shell.Started(), std::vector<std::string>{"C:\\Tools\\tool.exe"});
}

TEST_F(HeldOverTheMenu, ThePointerThatIsStillOnTheButtonHoldsNothingUp) {
  Advance(20);
  ASSERT_EQ(Count(), 2);
  Advance(1000);
  EXPECT_EQ(Count(), 3);
}

// The button is up, and what falls due comes before the event that tells so.
TEST_F(HeldOverTheMenu, NothingMovesBeforeAReleaseThatIsOnItsWay) {
  Advance(20);
  ASSERT_EQ(Count(), 2);
  desk_.PointAt(desk_.Item(2));
  Advance(1000);
  const forms::TimerId timer = desk_.world.Desktop.StartTimer(1, [&] {
    desk_.world.Desktop.Release();
    desk_.parts->Menu.UpdateTimer.Tick();
    EXPECT_EQ(Count(), 2);
  });
  Advance(1);
  desk_.world.Desktop.StopTimer(timer);
  EXPECT_EQ(desk_.world.Shell.Started(), std::vector<std::string>{"C:\\Tools\\tool.exe"});
}

/// A carry whose release another program got.
TEST(CarriesOverTheMenu, OneThatWasGivenUpHoldsUpNoUpdate) {
  ProgramDesk desk;
  desk.world.Files.AddDrive('D');
  desk.world.Files.Put("D:\\Docs\\one.txt", "x");
  desk.world.Files.Put("D:\\Docs\\two.txt", "x");
  desk.world.Files.Put(kMenus + MenuFileName(1),
                       FormatRecord({"Menu", "Button", ""}, desk.world.Ansi) +
                           FormatRecord({"A", "", "C:\\Tools\\tool.exe"}, desk.world.Ansi) +
                           FormatRecord({"Docs", "", "D:\\Docs\\*.*"}, desk.world.Ansi));
  desk.world.SlowAnswers.Delay("D:", 1500);
  desk.PickUpItem(1);
  desk.world.Desktop.KeyUp(1);
  desk.world.Desktop.Advance(1000);
  ASSERT_FALSE(desk.parts->TheProgram.Entry.ItemDragging);
  ASSERT_TRUE(desk.parts->Menu.MenuVisible());
  desk.world.Desktop.Advance(2000);
  EXPECT_EQ(desk.parts->Menu.Items().Count(), 3);
}

}  // namespace
}  // namespace corvelle
