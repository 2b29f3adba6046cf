#include <gtest/gtest.h>

#include "base/CodePage.h"
#include "core/MenuRecord.h"
#include "e2e/DeskFiles.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

// What only real processes and a real window manager can show.

namespace corvelle::e2e {
namespace {

using scenario::CloseAndWait;
using scenario::InstalledFlags;
using scenario::kButtonOk;
using scenario::kFlagsFile;
using scenario::StartAndWait;
using scenario::WriteMenu;

TEST(Instance, ACopyThatCannotWakeTheFirstSaysSoAndEnds) {
  WineDesk desk;
  // The first copy is there by its mark, but no window of it can be found.
  HANDLE mark = CreateMutexW(nullptr, TRUE, L"Local\\Corvelle");
  ASSERT_NE(mark, nullptr);
  desk.AnswerNext(kButtonOk);
  desk.StartCorvelle();
  ASSERT_TRUE(desk.Wait([&] { return !desk.Messages().empty(); }, 10000));
  EXPECT_EQ(desk.Messages()[0].Title, "Corvelle");
  EXPECT_EQ(
      desk.Messages()[0].Text,
      "Corvelle is already running. If you have minimized it to the taskbar, click its icon on "
      "the taskbar to activate it. If you have set it to Auto Hide, point your mouse to its "
      "previous position.");
  EXPECT_TRUE(desk.Wait([&] { return desk.RunningCopies() == 0; }, 5000));
  EXPECT_FALSE(desk.FolderExists("Menus"));
  EXPECT_FALSE(desk.ReadFile(kFlagsFile).has_value());
  CloseHandle(mark);
}

TEST(Instance, EndsWithExitCodeZero) {
  WineDesk desk;
  desk.WriteFile(kFlagsFile, InstalledFlags());
  WriteMenu(desk, 1, "One", {{.FTitle = "Program", .FIcon = "", .FName = desk.WitnessProgram()}});
  ASSERT_TRUE(StartAndWait(desk));
  desk.StartCorvelle();
  ASSERT_TRUE(desk.Wait([&] { return desk.RunningCopies() == 1; }, 5000));
  ASSERT_TRUE(CloseAndWait(desk));
  EXPECT_EQ(desk.ExitCodes(), (std::vector<DWORD>{0, 0}));
}

TEST(Instance, StartsFromAFolderOfAnotherName) {
  WineDesk desk;
  desk.WriteFile(kFlagsFile, InstalledFlags());
  WriteMenu(desk, 1, "One", {{.FTitle = "Program", .FIcon = "", .FName = desk.WitnessProgram()}});
  SetCurrentDirectoryW(L"C:\\windows");
  ASSERT_TRUE(StartAndWait(desk));
  EXPECT_TRUE(desk.FolderExists("ShellLink"));
  EXPECT_EQ(GetFileAttributesW(L"C:\\windows\\ShellLink"), INVALID_FILE_ATTRIBUTES);
}

TEST(Document, WithoutAProgramIsHandedToTheSystemsOpenWithDialog) {
  WineDesk desk;
  desk.WriteFile(kFlagsFile, InstalledFlags());
  desk.WriteFile("a thing.qzx", "some bytes");
  // The program's own folder is the first in which the system looks for what shows the dialog.
  ASSERT_NE(CopyFileW(L"C:\\witness\\witness.exe", L"C:\\Corvelle\\rundll32.exe", TRUE), FALSE);
  WriteMenu(desk, 1, "One",
            {{.FTitle = "Thing", .FIcon = "", .FName = "C:\\Corvelle\\a thing.qzx"}});
  desk.MovePointer(scenario::FarAway(desk));
  ASSERT_TRUE(StartAndWait(desk));
  ASSERT_TRUE(scenario::OpenMenu(desk, 2));
  scenario::ClickItem(desk, scenario::ItemMiddle(desk, 1, 1));
  std::vector<std::wstring> seen;
  ASSERT_TRUE(desk.Wait(
      [&seen] {
        seen = FilesIn(L"C:\\Corvelle\\", L"*.seen");
        return !seen.empty();
      },
      8000));
  const std::string text = ReadBytes(L"C:\\Corvelle\\" + seen[0]).value_or("");
  EXPECT_NE(text.find("\nshell32.dll,OpenAs_RunDLL C:\\Corvelle\\a thing.qzx\n"), std::string::npos)
      << text;
  EXPECT_TRUE(desk.Messages().empty());
}

TEST(Question, ARightClickElsewhereWhileItIsUpLeavesItTheButtonThatWasAskedFor) {
  WineDesk desk;
  desk.WriteFile(kFlagsFile, InstalledFlags());
  for (int menu = 1; menu <= 3; ++menu) {
    WriteMenu(desk, menu, "Menu " + std::to_string(menu),
              {{.FTitle = "Program", .FIcon = "", .FName = desk.WitnessProgram()}});
  }
  desk.MovePointer(scenario::FarAway(desk));
  ASSERT_TRUE(StartAndWait(desk));
  desk.ChooseFromPopup("Delete Item");
  desk.Click(scenario::ButtonMiddle(desk, 2), scenario::Button::Right);
  HWND box = nullptr;
  ASSERT_TRUE(desk.Wait(
      [&] {
        return (box = FindWindowW(L"#32770", L"Corvelle")) != nullptr && IsWindowVisible(box);
      },
      8000));
  EXPECT_EQ(GetWindow(box, GW_OWNER), desk.Handle("frmToolbar"));
  EXPECT_FALSE(IsWindowEnabled(desk.Handle("frmToolbar")));
  EXPECT_FALSE(IsWindowEnabled(desk.Handle("frmQMenu")));
  for (const int button : {4, 3}) {
    desk.Click(scenario::ButtonMiddle(desk, button), scenario::Button::Right);
    desk.Pause(500);
    EXPECT_FALSE(desk.PopupIsUp()) << button;
  }
  desk.Picture("question");
  desk.AnswerNext(scenario::kButtonYes);
  ASSERT_TRUE(desk.Wait([&] { return scenario::ButtonCount(desk) == 3; }, 8000));
  const Windows1252 ansi;
  std::string titles;
  for (const std::string& name : desk.Files("Menus")) {
    titles += ParseRecord(desk.ReadFile("Menus\\" + name).value_or(""), ansi).FTitle + "|";
  }
  EXPECT_EQ(titles, "Menu 2|Menu 3|");
  EXPECT_TRUE(IsWindowEnabled(desk.Handle("frmToolbar")));
  EXPECT_TRUE(IsWindowEnabled(desk.Handle("frmQMenu")));
}

TEST(Strip, StandsOnTopOfAllWindowsWithoutATaskBarButton) {
  WineDesk desk;
  desk.WriteFile(kFlagsFile, InstalledFlags());
  WriteMenu(desk, 1, "One", {{.FTitle = "Program", .FIcon = "", .FName = desk.WitnessProgram()}});
  ASSERT_TRUE(StartAndWait(desk));
  const LONG_PTR style = GetWindowLongPtrW(desk.Handle("frmToolbar"), GWL_EXSTYLE);
  EXPECT_NE(style & WS_EX_TOPMOST, 0);
  EXPECT_EQ(style & WS_EX_APPWINDOW, 0);
  EXPECT_NE(style & WS_EX_TOOLWINDOW, 0);
  EXPECT_FALSE(desk.IsVisible("frmMinimize"));
  EXPECT_EQ(desk.Window("frmMinimize")->Title, "Corvelle");
}

TEST(Strip, ShowsTheIconsOfItsButtonsAndOfTheMenu) {
  WineDesk desk;
  desk.WriteFile(kFlagsFile, InstalledFlags());
  WriteMenu(desk, 1, "Icons",
            {{.FTitle = "With", .FIcon = "\\icons\\folder.ico", .FName = desk.WitnessProgram()},
             {.FTitle = "Without", .FIcon = "", .FName = desk.WitnessProgram()}});
  desk.MovePointer(scenario::FarAway(desk));
  ASSERT_TRUE(StartAndWait(desk));
  // A button's face has one colour, and its icon many. The strip is up before its icons.
  const PixelRect strip = desk.BoundsOf("picToolbar");
  const int pitch = strip.Height() + 2;
  for (int button = 0; button < 2; ++button) {
    const PixelRect inside{button * pitch + 8, 8, button * pitch + 32, 32};
    EXPECT_TRUE(desk.Wait([&] { return desk.ColoursIn("picToolbar", inside) > 5; })) << button + 1;
  }
  ASSERT_TRUE(scenario::OpenMenu(desk, 2));
  desk.MovePointer(scenario::FarAway(desk));
  ASSERT_TRUE(desk.IsVisible("frmQMenu"));
  // Until the shell has answered, a picture of few colours stands for it.
  EXPECT_TRUE(desk.Wait([&] { return desk.ColoursIn("frmQMenu", {3, 6, 18, 21}) > 5; }));
  EXPECT_EQ(desk.ColoursIn("frmQMenu", {3, 27, 18, 40}), 1);
  desk.Picture("icons");
}

TEST(SmallIconsAtEachScale, OfTwoRowsStandApart) {
  WineDesk desk;
  // Large icons and small single buttons, also in a floating strip.
  desk.WriteFile(kFlagsFile, InstalledFlags({25}));
  desk.WriteFile(scenario::kPositionFile,
                 scenario::PositionBytes(static_cast<float>(300 * desk.TwipsPerPixel())));
  WriteMenu(desk, 1, "One", {{.FTitle = "Program", .FIcon = "", .FName = desk.WitnessProgram()}});
  const Windows1252 ansi;
  for (int single = 1; single <= 4; ++single) {
    desk.WriteFile("Menus\\" + SingleFileName(single),
                   FormatRecord({"Wide", "\\icons\\Explorer.ico", desk.WitnessProgram()}, ansi));
  }
  desk.MovePointer(scenario::FarAway(desk));
  ASSERT_TRUE(StartAndWait(desk));
  desk.Picture("two-rows");
  // The first column of icons, the two pixels behind it, the second; without what is above the
  // screen.
  EXPECT_GT(desk.ColoursIn("picSingleButton", {5, 8, 21, 34}), 5);
  EXPECT_EQ(desk.ColoursIn("picSingleButton", {21, 8, 23, 34}), 1);
  EXPECT_GT(desk.ColoursIn("picSingleButton", {23, 8, 39, 34}), 5);
}

TEST(Strip, GivesWayToAFullScreenProgramAndComesBackOnTop) {
  WineDesk desk;
  desk.WriteFile(kFlagsFile, InstalledFlags());
  WriteMenu(desk, 1, "One", {{.FTitle = "Program", .FIcon = "", .FName = desk.WitnessProgram()}});
  ASSERT_TRUE(StartAndWait(desk));
  const auto isTopmost = [&desk] {
    return (GetWindowLongPtrW(desk.Handle("frmToolbar"), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
  };
  desk.Send("frmToolbar", scenario::kMessageAppBar, 2, 1);
  EXPECT_TRUE(desk.Wait([&] { return !isTopmost(); }, 3000));
  desk.Send("frmToolbar", scenario::kMessageAppBar, 2, 0);
  EXPECT_TRUE(desk.Wait(isTopmost, 3000));
}

}  // namespace
}  // namespace corvelle::e2e
