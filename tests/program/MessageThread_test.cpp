// No disk, no net and no extension of the shell is asked by the thread of the windows: there each
// call costs time, which is measured. The program's own folder is small and local, and is asked.

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/Text.h"
#include "core/Main.h"
#include "core/MenuFile.h"
#include "core/MenuRecord.h"
#include "program/ProgramDesk.h"

namespace corvelle {
namespace {

using Calls = std::vector<std::string>;

constexpr int kPrice = 10;  // milliseconds of each call

/// A strip with a menu of plain items and folders, a menu that has pages, and single buttons, on a
/// machine where each call takes its time.
class MessageThread : public ::testing::Test {
 protected:
  MessageThread() {
    World().Files.AddDrive('D');
    for (int i = 0; i < 12; ++i)
      World().Files.Put("D:\\Docs\\letter " + std::to_string(10 + i) + ".txt", "x");
    World().Folders.Put(3, {{"Mouse", 40}, {"Fonts", 41}});
    desk_.Start();
    World().Desktop.Advance(2000);
    // Only now, so that the start has asked for nothing of them.
    PutMenu(1, {{"Near", "C:\\Tools\\tool.exe", "C:\\Tools\\tool.exe"},
                {"Far", "", "D:\\Docs\\*.*"},
                {"Also far", "D:\\Docs\\letter 10.txt", "D:\\Docs\\letter 10.txt"},
                {"Controls", "", "CSIDL_CONTROLS"}});
    std::vector<MenuRecord> many;
    for (int i = 0; i < 120; ++i)
      many.push_back({"Item " + std::to_string(i), "", "D:\\Docs\\letter 10.txt"});
    PutMenu(2, many);
    World().Costs.SetPrice(
        [](std::string_view, std::string_view about) { return IsOwn(about) ? 0 : kPrice; });
    World().Costs.WhenCharged([this](int milliseconds) { World().Desktop.Jump(milliseconds); });
  }

  static bool IsOwn(std::string_view path) { return StartsWithNoCase(path, "C:\\Corvelle"); }

  sim::World& World() { return desk_.world; }
  void PutMenu(int number, const std::vector<MenuRecord>& items) {
    std::string bytes = FormatRecord({"Menu", "Button", ""}, World().Ansi);
    for (const MenuRecord& item : items) bytes += FormatRecord(item, World().Ansi);
    World().Files.Put(kMenus + MenuFileName(number), bytes);
  }
  /// The calls that cost something while `act` ran, each once, sorted by name.
  template <class Act>
  Calls CostsOf(Act act) {
    World().Costs.Clear();
    act();
    Calls calls = World().Costs.Charged();
    std::sort(calls.begin(), calls.end());
    calls.erase(std::unique(calls.begin(), calls.end()), calls.end());
    return calls;
  }
  void Press(int button) {
    desk_.PointAt(desk_.MenuButton(button));
    World().Desktop.Click();
    ASSERT_TRUE(desk_.parts->Menu.MenuVisible());
  }

  ProgramDesk desk_;
};

TEST_F(MessageThread, AMenuOverFoldersOpensWithoutACall) {
  EXPECT_EQ(CostsOf([this] { Press(2); }), Calls());
}

TEST_F(MessageThread, AndFillsWithoutOne) {
  EXPECT_EQ(CostsOf([this] {
              Press(2);
              World().Desktop.Advance(2000);
            }),
            Calls());
}

TEST_F(MessageThread, PassingOverItsItemsMakesNone) {
  Press(2);
  World().Desktop.Advance(2000);
  EXPECT_EQ(CostsOf([this] {
              for (int item = 1; item <= 4; ++item) {
                desk_.PointAt(desk_.Item(item));
                World().Desktop.Advance(700);
              }
            }),
            Calls());
}

/// The menu of the shell needs its calls made by this thread, which must not wait for a disk.
TEST_F(MessageThread, TheMenuOfTheShellIsMadeOnlyWhereTheDiskAnswers) {
  Press(2);
  World().Desktop.Advance(2000);
  const auto rightClick = [this] {
    desk_.PointAt(desk_.Item(3));
    World().Desktop.KeyDown(forms::key::Ctrl);
    World().Desktop.Click(forms::MouseButton::Right);
    World().Desktop.KeyUp(forms::key::Ctrl);
    World().Desktop.Advance(500);
  };
  World().SlowAnswers.Hang("D:");
  EXPECT_EQ(CostsOf(rightClick), Calls{"waited for an answer"});
  EXPECT_LT(World().Costs.LongestTurn(), 100);
  EXPECT_EQ(World().Desktop.Beeps(), 1);
  // Called back by now, its disk rests.
  World().Desktop.Advance(3000);
  EXPECT_EQ(CostsOf(rightClick), Calls());
  EXPECT_EQ(World().Desktop.Beeps(), 2);
  World().SlowAnswers.Resume("D:");
  desk_.parts->TheProgram.Answers.TryAllAgain();
  World().Folders.Dismiss();
  EXPECT_EQ(CostsOf(rightClick), Calls{"FileMenu D:\\Docs\\letter 11.txt"});
  EXPECT_EQ(World().Folders.Menus().size(), 1U);
  EXPECT_EQ(World().Desktop.Beeps(), 2);
}

TEST_F(MessageThread, PagingMakesNone) {
  Press(3);
  World().Desktop.Advance(2000);
  const int page = desk_.parts->Menu.Pages().CurMenu();
  EXPECT_EQ(CostsOf([this] {
              World().Desktop.PressKey(forms::key::PageDown);
              World().Desktop.Advance(2000);
            }),
            Calls());
  EXPECT_NE(desk_.parts->Menu.Pages().CurMenu(), page);
}

TEST_F(MessageThread, F5MakesNone) {
  Press(2);
  World().Desktop.Advance(2000);
  EXPECT_EQ(CostsOf([this] {
              World().Desktop.PressKey(forms::key::F5);
              World().Desktop.Advance(2000);
            }),
            Calls());
}

TEST_F(MessageThread, TheStartMakesNone) {
  desk_.parts.reset();
  EXPECT_EQ(CostsOf([this] {
              desk_.Start();
              World().Desktop.Advance(2000);
            }),
            // Where the user's data may be. The shell keeps the paths of its folders in memory.
            Calls{"PathOf shell"});
}

TEST_F(MessageThread, CarryingAnEntryMakesNone) {
  World().Files.Put(
      kMenus + SingleFileName(1),
      FormatRecord({"Far", "D:\\Docs\\letter 12.txt", "D:\\Docs\\letter 12.txt"}, World().Ansi));
  desk_.parts->Toolbar.InitNewButtons();
  World().Desktop.Advance(2000);
  EXPECT_EQ(CostsOf([this] {
              desk_.PointAt(desk_.Single(1));
              World().Desktop.Press();
              desk_.PointAt(desk_.MenuButton(2));
              World().Desktop.Advance(2000);
              desk_.PointAt(desk_.Item(2));
              World().Desktop.Release();
              World().Desktop.Advance(2000);
            }),
            Calls());
}

TEST_F(MessageThread, ABuildOfTheStripMakesNone) {
  World().Files.Put(
      kMenus + SingleFileName(1),
      FormatRecord({"Far", "D:\\Docs\\letter 12.txt|1", "D:\\Docs\\letter 12.txt"}, World().Ansi));
  World().Files.Put(kMenus + SingleFileName(2),
                    FormatRecord({"Shell", "CSIDL_DRIVES", "CSIDL_DRIVES"}, World().Ansi));
  EXPECT_EQ(CostsOf([this] {
              desk_.parts->Toolbar.InitNewButtons();
              World().Desktop.Advance(2000);
              desk_.parts->Toolbar.RefreshToolbar();
              World().Desktop.Advance(2000);
            }),
            Calls());
}

TEST_F(MessageThread, ChoosingAnEntryMakesNone) {
  World().Associations.Set(".htm", "C:\\Browser\\browser.exe");
  PutMenu(2, {{"Program", "", "D:\\Docs\\letter 10.txt"},
              {"Page", "", "http://a.example/"},
              {"Mail", "", "mailto:a@b.example"},
              {"Search", "", "FileFind"},
              {"Folder", "", "CSIDL_CONTROLS"},
              {"Link", "", "D:\\a.url"}});
  for (int item = 1; item <= 6; ++item) {
    Press(3);
    World().Desktop.Advance(2000);
    EXPECT_EQ(CostsOf([&] {
                desk_.PointAt(desk_.Item(item));
                World().Desktop.Click();
                World().Desktop.Advance(500);
              }),
              Calls())
        << item;
  }
}

TEST_F(MessageThread, TheTreeOfCustomizeMakesNone) {
  World().Files.Put(kMenus + MenuFileName(2),
                    FormatRecord({"Menu", "D:\\Docs\\letter 11.txt", ""}, World().Ansi));
  EXPECT_EQ(CostsOf([this] {
              desk_.parts->Customize.LoadWindow();
              World().Desktop.Advance(2000);
            }),
            // The start menu's folder. The shell keeps the paths of its folders in memory.
            Calls{"SpecialFolderLocation shell"});
  const forms::TreeView& tree = desk_.parts->Customize.TreeView1;
  EXPECT_EQ(CostsOf([&] {
              World().Desktop.PressKey(forms::key::Down);
              World().Desktop.PressKey(forms::key::Right);
              World().Desktop.Advance(2000);
            }),
            Calls());
  EXPECT_EQ(tree.Nodes().Children(tree.Selected()).size(), 4U);
}

TEST_F(MessageThread, PropertiesMakesNone) {
  PutMenu(1, {{"Near", "C:\\Tools\\tool.exe", "C:\\Tools\\tool.exe"}});
  World().Folders.Put(0, {{"a", 5}});
  World().Files.Put(kMenus + MenuFileName(2),
                    FormatRecord({"Menu", "D:\\Docs\\letter 11.txt", ""}, World().Ansi));
  EXPECT_EQ(CostsOf([this] {
              desk_.parts->Properties.ShowProperties("Far", "D:\\Docs\\letter 10.txt", "x");
              World().Desktop.Advance(2000);
              for (const char* tab : {"buttons", "position"}) {
                desk_.parts->Properties.TabStrip1.Select(tab);
                desk_.parts->Properties.TabStrip1.Click();
                World().Desktop.Advance(2000);
              }
            }),
            // The start menu's folder. The shell keeps the paths of its folders in memory.
            Calls{"SpecialFolderLocation shell"});
  EXPECT_TRUE(desk_.parts->Properties.ButtonsTabLoaded);
  EXPECT_TRUE(desk_.parts->Properties.PositionTabLoaded);
}

TEST_F(MessageThread, TheIconsOfTheLibraryMakeNone) {
  World().Files.MakeFolders("C:\\Corvelle\\Icons");
  World().Files.Put("C:\\Corvelle\\Icons\\others.dat", "D:\\Docs\\far.exe\r\n");
  World().Icons.SetIconCount("D:\\Docs\\far.exe", 3);
  EXPECT_EQ(CostsOf([this] {
              desk_.parts->Library.Show({});
              World().Desktop.Advance(2000);
              desk_.parts->Library.TabStrip1.Select("other");
              desk_.parts->Library.TabStrip1.Click();
              World().Desktop.Advance(2000);
            }),
            Calls());
  EXPECT_EQ(desk_.parts->Library.OtherView.DrawnCount(), 3U);
}

TEST_F(MessageThread, TheFirstListOfOtherFilesMakesNone) {
  World().Files.MakeFolders("C:\\Corvelle\\Icons");
  World().Keys.Set(RegistryRoot::LocalMachine,
                   "Software\\Microsoft\\Windows\\CurrentVersion\\App Paths\\far.exe", "",
                   "D:\\docs\\far.exe");
  World().Icons.SetIconCount("D:\\docs\\far.exe", 3);
  EXPECT_EQ(CostsOf([this] {
              desk_.parts->Library.Show({});
              desk_.parts->Library.TabStrip1.Select("other");
              desk_.parts->Library.TabStrip1.Click();
              World().Desktop.Advance(2000);
            }),
            Calls());
  EXPECT_EQ(desk_.parts->Library.List1Other.Items(), std::vector<std::string>{"far.exe"});
}

TEST_F(MessageThread, AFileThatIsAddedToTheLibraryMakesNone) {
  World().Files.MakeFolders("C:\\Corvelle\\Icons");
  World().Files.Put("C:\\Corvelle\\Icons\\others.dat", "C:\\a.dll\r\n");
  World().Links.Put("D:\\Docs\\far.lnk", {.Path = "D:\\Docs\\far.exe"});
  World().Icons.SetIconCount("D:\\Docs\\far.exe", 3);
  desk_.parts->Library.Show({});
  desk_.parts->Library.TabStrip1.Select("other");
  desk_.parts->Library.TabStrip1.Click();
  World().Desktop.ChooseFiles({"D:\\Docs\\far.lnk"});
  EXPECT_EQ(CostsOf([this] {
              desk_.parts->Library.cmdAdd.Click();
              World().Desktop.Advance(2000);
            }),
            Calls());
  EXPECT_EQ(desk_.parts->Library.List1Other.Items(),
            (std::vector<std::string>{"a.dll", "far.exe"}));
}

TEST_F(MessageThread, ADropMakesNone) {
  World().Files.Put("D:\\new.txt", "x");
  const PixelPoint at = desk_.MenuButton(2);
  World().Desktop.DragFilesOver({"D:\\new.txt", "D:\\Docs\\letter 11.txt"}, at);
  World().Desktop.Advance(500);
  EXPECT_EQ(CostsOf([&] {
              World().Desktop.Release();
              World().Desktop.Advance(2000);
            }),
            Calls());
  EXPECT_EQ(World().Files.Get(kMenus + MenuFileName(1)).value_or("").size(), 7 * kRecordLength);
}

/// A path that no record holds: its folder's name takes 255 bytes, three a character.
std::string WideFolder() {
  std::string folder = "D:\\Wide\\";
  for (int i = 0; i < 85; ++i) folder += "\xE6\x97\xA5";
  return folder + "\\";
}

TEST_F(MessageThread, AFolderOfPathsThatAreTooLongMakesNone) {
  World().Files.Put(WideFolder() + "letter.txt", "x");
  World().Files.GiveShortName(WideFolder(), "6A2F~1");
  PutMenu(1, {{"Wide", "", "D:\\Wide\\*.*/s"}});
  EXPECT_EQ(CostsOf([&] {
              Press(2);
              World().Desktop.Advance(2000);
            }),
            Calls());
  const auto stored =
      ReadAllRecords(World().Files, World().Ansi, std::string(kMenus) + "BMENU001.mfd");
  ASSERT_TRUE(stored);
  EXPECT_EQ(stored->back().FName, "D:\\Wide\\6A2F~1\\letter.txt");
}

TEST_F(MessageThread, ADropOfPathsThatAreTooLongMakesNone) {
  World().Files.Put(WideFolder() + "letter.txt", "x");
  World().Files.GiveShortName(WideFolder(), "6A2F~1");
  World().Desktop.DragFilesOver({WideFolder() + "letter.txt"}, desk_.MenuButton(2));
  World().Desktop.Advance(500);
  EXPECT_EQ(CostsOf([&] {
              World().Desktop.Release();
              World().Desktop.Advance(2000);
            }),
            Calls());
  const auto stored = ReadAllRecords(World().Files, World().Ansi, kMenus + MenuFileName(1));
  ASSERT_TRUE(stored);
  EXPECT_EQ(stored->back().FName, "D:\\Wide\\6A2F~1\\letter.txt");
}

/// A question that is not answered is waited for once in a turn, however many there are.
TEST_F(MessageThread, FoldersThatDoNotAnswerAreWaitedForLessThanATenthOfASecondTogether) {
  PutMenu(1, {{"One", "", "D:\\Docs\\*.*"},
              {"Two", "", "E:\\Docs\\*.*"},
              {"Three", "", "\\\\server\\share\\*.*"}});
  for (const char* lane : {"D:", "E:", "\\\\SERVER"}) World().SlowAnswers.Hang(lane);
  World().Costs.Clear();
  Press(2);
  World().Desktop.Advance(500);
  EXPECT_LT(World().Costs.LongestTurn(), 100);
  EXPECT_GT(World().Costs.LongestTurn(), 0);
}

}  // namespace
}  // namespace corvelle
