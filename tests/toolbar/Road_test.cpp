// The strip and the real menu window together.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "menus/window/frmQMenu.h"
#include "platform/Input.h"
#include "toolbar/StripDesk.h"
#include "toolbar/docking/frmImage.h"
#include "toolbar/notices/frmHelp.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {
namespace {

using forms::MouseButton;

/// Three menus of three programs each, on a desk whose menu window is the program's own.
struct RoadDesk : StripDesk {
  explicit RoadDesk(const sim::WorldOptions& options = {})
      : StripDesk(options), RealMenu(TheProgram) {
    TheProgram.Ports.QMenu = &RealMenu;
    for (int menu = 1; menu <= 3; ++menu) {
      std::vector<MenuRecord> records = {Entry("Menu " + std::to_string(menu), "Button")};
      for (int item = 1; item <= 3; ++item) {
        const std::string program =
            "C:\\Tools\\m" + std::to_string(menu) + "i" + std::to_string(item) + ".exe";
        World.Files.Put(program, "x");
        records.push_back(Entry("Item " + std::to_string(item), program, program));
        if (item == 1) records.push_back(Entry("", "MenuLineSeparator"));
      }
      World.Files.Put("C:\\Corvelle\\Menus\\" + MenuFileName(menu), Records(records));
    }
    Start();
  }
  ~RoadDesk() { Exit(); }

  /// Middle of an item of the open menu.
  [[nodiscard]] PixelPoint Item(int index) const {
    const PixelRect menu = World.Desktop.BoundsOf(RealMenu.hWnd());
    const forms::Label& label = RealMenu.Lbl[index];
    const int top = static_cast<int>((label.Top() + label.Height() / 2) / Strip.TwipsY);
    return {menu.left + 40, menu.top + 3 + top};
  }
  [[nodiscard]] int RealMenuUp() const {
    return RealMenu.MenuVisible() ? std::stoi(RealMenu.OwnerTag()) : 0;
  }

  frmQMenu RealMenu;
  // Windows that a test wires when it wants them. They outlive the end of the program, which a test
  // that fails leaves to the desk.
  frmHelp Hint{HintPartsOf(TheProgram)};
  frmImage Picture{StillPicturePartsOf(TheProgram), Strip};
};

TEST(StripAndMenu, AChoiceClosesTheMenuAndStartsItsProgram) {
  RoadDesk desk;
  desk.Click(2);
  desk.Wait(200);
  ASSERT_EQ(desk.RealMenuUp(), 2);
  desk.PointAt(desk.Item(2));
  desk.Wait(200);
  desk.World.Desktop.Click();
  EXPECT_EQ(desk.World.Shell.Started(), std::vector<std::string>{"C:\\Tools\\m1i2.exe"});
  EXPECT_EQ(desk.RealMenuUp(), 0);
  EXPECT_TRUE(desk.AtRest(2));
}

// ---- more events than the program has dealt with ----

/// Puts what a user does into the queue of events at once, and lets the program come to it.
void AtOnce(RoadDesk& desk, const std::function<void()>& deeds) {
  forms::WindowSystem& windows = desk.World.Desktop;
  forms::TimerId timer{};
  timer = windows.StartTimer(1, [&] {
    windows.StopTimer(timer);
    deeds();
  });
  desk.Wait(1);
}

TEST(QuickHand, PressesThatWaitAreDealtWithOneAfterTheOther) {
  RoadDesk desk;
  desk.PointAtButton(2);
  AtOnce(desk, [&desk] {
    for (int press = 0; press < 100; ++press) {
      desk.World.Desktop.Click();
    }
  });
  EXPECT_LE(desk.World.Desktop.DeepestLoops(), 2);
  desk.Wait(200);
  EXPECT_EQ(desk.RealMenuUp(), 0);
  desk.Click(3);
  EXPECT_EQ(desk.RealMenuUp(), 3);
}

TEST(QuickHand, PressesOnTwoButtonsInTurnRunNoLoopsInsideEachOther) {
  RoadDesk desk;
  AtOnce(desk, [&desk] {
    for (int press = 0; press < 100; ++press) {
      desk.PointAtButton(2 + press / 2 % 2);
      desk.World.Desktop.Click();
    }
  });
  EXPECT_LE(desk.World.Desktop.DeepestLoops(), 2);
}

TEST(QuickHand, AYieldInWhatAYieldLetsRunPaintsAndRunsNothing) {
  RoadDesk desk;
  forms::WindowSystem& windows = desk.World.Desktop;
  std::vector<std::string> order;
  const forms::TimerId outer = windows.StartTimer(1, [&] {
    order.emplace_back("outer");
    desk.Strip.Refresh();
    const int before = desk.World.Desktop.PaintCount();
    desk.Strip.picToolbar.Invalidate({0, 0, 9000, 900});
    desk.TheProgram.Events.DoEvents();
    EXPECT_GT(desk.World.Desktop.PaintCount(), before);
    order.emplace_back("outer is over");
  });
  const forms::TimerId inner = windows.StartTimer(1, [&] { order.emplace_back("inner"); });
  desk.World.Desktop.Jump(1);
  desk.TheProgram.Events.DoEvents();
  windows.StopTimer(outer);
  windows.StopTimer(inner);
  EXPECT_EQ(order, (std::vector<std::string>{"outer", "outer is over", "inner"}));
}

TEST(QuickHand, KeysThatWaitBehindAPressChooseInTheMenuThatItOpens) {
  RoadDesk desk;
  desk.TheProgram.Ports.Hint = &desk.Hint;
  desk.PointAtButton(2);
  desk.Wait(1000);
  desk.Hint.SetHint("Menu 1");  // is up when the press comes
  AtOnce(desk, [&desk] {
    desk.World.Desktop.Click();
    desk.World.Desktop.PressKey(forms::key::Up);
    desk.World.Desktop.PressKey(forms::key::Enter);
  });
  EXPECT_EQ(desk.World.Shell.Started(), std::vector<std::string>{"C:\\Tools\\m1i3.exe"});
  EXPECT_EQ(desk.RealMenuUp(), 0);
}

TEST(QuickHand, EnterChoosesThoughTheStripKeptTheFocus) {
  RoadDesk desk;
  desk.PointAtButton(2);
  desk.World.Desktop.Press();
  desk.World.Desktop.Release();
  desk.Wait(200);
  ASSERT_EQ(desk.RealMenuUp(), 2);
  desk.Strip.SetFocus();
  // The key finds its way to the menu, and the focus stays behind.
  desk.RealMenu.Form_KeyDown(forms::key::Up, {});
  ASSERT_EQ(desk.World.Desktop.ActiveWindow(), desk.Strip.hWnd());
  desk.World.Desktop.PressKey(forms::key::Enter);
  EXPECT_EQ(desk.World.Shell.Started(), std::vector<std::string>{"C:\\Tools\\m1i3.exe"});
  EXPECT_EQ(desk.RealMenuUp(), 0);
}

TEST(QuickHand, AClickOnAnItemIsAChoiceThoughThePointerHasGoneOn) {
  RoadDesk desk;
  desk.Click(2);
  desk.Wait(200);
  ASSERT_EQ(desk.RealMenuUp(), 2);
  const PixelPoint item = desk.Item(3);
  AtOnce(desk, [&] {
    desk.PointAt(item);
    desk.World.Desktop.Click();
    desk.PointAt({900, 700});
  });
  EXPECT_EQ(desk.World.Shell.Started(), std::vector<std::string>{"C:\\Tools\\m1i3.exe"});
  EXPECT_EQ(desk.RealMenuUp(), 0);
}

TEST(QuickHand, AReleaseOnAnItemIsAChoiceThoughThePointerHasGoneOn) {
  RoadDesk desk;
  desk.Press(3);
  desk.Wait(200);
  ASSERT_EQ(desk.RealMenuUp(), 3);
  const PixelPoint item = desk.Item(2);
  AtOnce(desk, [&] {
    desk.PointAt(item);
    desk.World.Desktop.Release();
    desk.PointAt({900, 700});
  });
  EXPECT_EQ(desk.World.Shell.Started(), std::vector<std::string>{"C:\\Tools\\m2i2.exe"});
  EXPECT_EQ(desk.RealMenuUp(), 0);
}

/// The middle of an item in the menu's own twips.
TwipPoint InMenu(const RoadDesk& desk, int index) {
  const forms::Label& label = desk.RealMenu.Lbl[index];
  return {label.Left() + 100, label.Top() + label.Height() / 2};
}

TEST(QuickHand, AClickChoosesThoughTheSelectionWentBetweenPressAndRelease) {
  RoadDesk desk;
  desk.Click(2);
  desk.Wait(200);
  const TwipPoint at = InMenu(desk, 3);
  desk.PointAt(desk.Item(3));
  desk.RealMenu.Form_MouseDown(MouseButton::Left, {}, at.X, at.Y);
  desk.PointAt({900, 700});
  desk.Wait(200);
  ASSERT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
  desk.RealMenu.Form_MouseUp(MouseButton::Left, {}, at.X, at.Y);
  EXPECT_EQ(desk.World.Shell.Started(), std::vector<std::string>{"C:\\Tools\\m1i3.exe"});
  EXPECT_EQ(desk.RealMenuUp(), 0);
}

TEST(QuickHand, AReleaseFromTheStripChoosesThoughTheSelectionWentBeforeIt) {
  RoadDesk desk;
  desk.Press(2);
  desk.PointAt(desk.Item(3));
  const PixelPoint item = desk.Item(3);
  const PixelRect box = desk.World.Desktop.BoundsOf(desk.Strip.picToolbar.hWnd());
  desk.PointAt({900, 700});
  desk.Wait(200);
  ASSERT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
  desk.Strip.picToolbar.MouseUp(MouseButton::Left, {},
                                static_cast<float>(item.x - box.left) * desk.Strip.TwipsX,
                                static_cast<float>(item.y - box.top) * desk.Strip.TwipsY);
  EXPECT_EQ(desk.World.Shell.Started(), std::vector<std::string>{"C:\\Tools\\m1i3.exe"});
  EXPECT_EQ(desk.RealMenuUp(), 0);
}

TEST(StripAndMenu, APressHeldIntoTheMenuChoosesWhereItIsReleased) {
  for (const int milliseconds : {50, 2000}) {
    SCOPED_TRACE(milliseconds);
    RoadDesk desk;
    desk.Press(3);
    desk.PointAt(desk.Item(1));
    desk.Wait(milliseconds);
    desk.PointAt(desk.Item(3));
    desk.World.Desktop.Release();
    EXPECT_EQ(desk.World.Shell.Started(), std::vector<std::string>{"C:\\Tools\\m2i3.exe"});
    EXPECT_EQ(desk.RealMenuUp(), 0);
  }
}

TEST(StripAndMenu, APressHeldForLongChoosesNothingAndTheMenuStays) {
  for (const int milliseconds : {4999, 5000}) {
    SCOPED_TRACE(milliseconds);
    RoadDesk desk;
    desk.Press(3);
    desk.PointAt(desk.Item(1));
    desk.Wait(milliseconds);
    desk.World.Desktop.Release();
    const bool chosen = milliseconds < 5000;
    EXPECT_EQ(desk.World.Shell.Started().size(), chosen ? 1U : 0U);
    EXPECT_EQ(desk.RealMenuUp(), chosen ? 0 : 3);
    if (chosen) continue;
    // A click in the menu that stayed is a choice as ever.
    desk.Wait(100);
    desk.PointAt(desk.Item(2));
    desk.World.Desktop.Click();
    EXPECT_EQ(desk.World.Shell.Started(), std::vector<std::string>{"C:\\Tools\\m2i2.exe"});
  }
}

TEST(StripAndMenu, EachMenuThatOpensUnderAHeldButtonBeginsTheWaitAnew) {
  RoadDesk desk;
  desk.Press(2);
  desk.Wait(4000);
  desk.PointAtButton(3);
  desk.Wait(10);
  EXPECT_EQ(desk.RealMenuUp(), 3);
  desk.PointAt(desk.Item(1));
  desk.Wait(4000);
  desk.PointAt(desk.Item(3));
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.World.Shell.Started(), std::vector<std::string>{"C:\\Tools\\m2i3.exe"});
}

TEST(StripAndMenu, MovingAlongTheStripAndBackShowsEachMenuAtItsButton) {
  RoadDesk desk;
  desk.Click(2);
  for (const int button : {3, 4, 3, 2}) {
    desk.PointAtButton(button);
    desk.Wait(250);
    EXPECT_EQ(desk.RealMenuUp(), button);
    EXPECT_EQ(desk.RealMenu.Left(),
              desk.Strip.Left() + static_cast<float>((24 * (button - 1) + 1) * 15));
    EXPECT_EQ(desk.RealMenu.Top(), desk.Strip.Bottom());
  }
}

TEST(StripAndMenu, AMenuThatWasOpenBeforeReadsNoFile) {
  RoadDesk desk;
  desk.Click(2);
  desk.Click(2);
  desk.World.Files.ClearLog();
  desk.Click(2);
  EXPECT_EQ(desk.RealMenuUp(), 2);
  EXPECT_EQ(desk.World.Files.Reads(), 0);
}

TEST(StripAndMenu, ARebuildLetsTheMenuShowTheNewFile) {
  RoadDesk desk;
  desk.Click(2);
  desk.Click(2);
  desk.World.Files.Put("C:\\Corvelle\\Menus\\BMENU001.MNU",
                       Records({Entry("Menu 1"), Entry("Only", "", "C:\\Tools\\m1i1.exe")}));
  desk.Strip.InitNewButtons();
  desk.Click(2);
  EXPECT_EQ(desk.RealMenu.Items().Count(), 1);
}

TEST(StripAndMenu, F5ShowsTheOldMenuUntilTheNewOneStands) {
  RoadDesk desk;
  desk.TheProgram.Ports.Capture = &desk.Picture;
  desk.TheProgram.Ports.ImageWindow = &desk.Picture;
  desk.Click(2);
  desk.Wait(200);
  ASSERT_EQ(desk.RealMenuUp(), 2);
  const PixelRect menu = desk.World.Desktop.BoundsOf(desk.RealMenu.hWnd());
  const auto seen = [&] {
    std::string pixels;
    const sim::SimCanvas screen = desk.World.Desktop.Picture();
    for (int y = menu.top; y < menu.bottom; y += 2) {
      for (int x = menu.left; x < menu.right; x += 2) {
        pixels += std::to_string(screen.PixelAt({x, y})) + ' ';
      }
    }
    return pixels;
  };
  const std::string before = seen();
  const std::string name = "C:\\Corvelle\\Menus\\BMENU001.MNU";
  desk.World.Files.Put(name, *desk.World.Files.Get(name) + Records({Entry("New", "", "x")}));
  std::vector<std::string> between;
  const forms::TimerId looks = desk.World.Desktop.StartTimer(1, [&] { between.push_back(seen()); });
  desk.World.Desktop.Jump(5);
  desk.World.Desktop.ClearLog();
  desk.World.Desktop.PressKey(forms::key::F5);
  desk.World.Desktop.StopTimer(looks);
  desk.Wait(200);
  ASSERT_EQ(desk.RealMenuUp(), 2);
  EXPECT_GT(desk.World.Desktop.BoundsOf(desk.RealMenu.hWnd()).Height(), menu.Height());
  const std::string after = seen();
  EXPECT_NE(after, before);
  EXPECT_FALSE(between.empty());
  for (const std::string& look : between) EXPECT_TRUE(look == before || look == after);
  // The picture comes before the menu goes, and goes after the menu has come.
  std::vector<std::string> order;
  for (const std::string& line : desk.World.Desktop.Log()) {
    for (const char* of : {"show frmImage", "hide frmQMenu", "show frmQMenu", "hide frmImage"}) {
      if (line.starts_with(of)) order.emplace_back(of);
    }
  }
  const std::vector<std::string> wanted = {"show frmImage", "hide frmQMenu", "show frmQMenu",
                                           "hide frmImage"};
  EXPECT_EQ(order, wanted);
  EXPECT_FALSE(desk.Picture.MenuCaptured());
  EXPECT_FALSE(desk.Picture.WindowLoaded());
}

TEST(StripAndMenu, TheKeyboardWalksFromMenuToMenu) {
  RoadDesk desk;
  desk.PointAway();
  desk.World.Desktop.PressKey(forms::key::F10);
  desk.World.Desktop.PressKey(forms::key::Right);
  desk.World.Desktop.PressKey(forms::key::Enter);
  desk.Wait(200);
  ASSERT_EQ(desk.RealMenuUp(), 2);
  desk.World.Desktop.PressKey(forms::key::Right);
  desk.Wait(200);
  EXPECT_EQ(desk.RealMenuUp(), 3);
  desk.World.Desktop.PressKey(forms::key::Down);
  desk.World.Desktop.PressKey(forms::key::Right);
  desk.Wait(200);
  EXPECT_EQ(desk.RealMenuUp(), 4);
  desk.World.Desktop.PressKey(forms::key::Down);
  desk.World.Desktop.PressKey(forms::key::Down);
  desk.World.Desktop.PressKey(forms::key::Enter);
  EXPECT_EQ(desk.World.Shell.Started(), std::vector<std::string>{"C:\\Tools\\m3i2.exe"});
  EXPECT_EQ(desk.RealMenuUp(), 0);
}

TEST(StripAndMenu, TheKeyboardComesRoundOverTheMainButton) {
  RoadDesk desk;
  desk.Click(4);
  desk.Wait(200);
  desk.World.Desktop.PressKey(forms::key::Right);
  desk.Wait(200);
  EXPECT_EQ(desk.TheProgram.Menu.CurButton, 1);
  EXPECT_EQ(desk.RealMenuUp(), 0);
  desk.World.Desktop.PressKey(forms::key::Right);
  desk.Wait(200);
  EXPECT_EQ(desk.RealMenuUp(), 2);
}

TEST(StripAndMenu, NothingWakesTheProgramAfterAMenu) {
  RoadDesk desk;
  desk.Click(2);
  desk.Wait(300);
  desk.World.Desktop.PressKey(forms::key::Escape);
  desk.PointAway();
  desk.Wait(1000);
  EXPECT_EQ(desk.RealMenuUp(), 0);
  EXPECT_EQ(desk.WakeUps(10'000), 0);
}

TEST(StripAndMenu, ADamagedMenuFileOpensAndTheNextOneToo) {
  struct Row {
    const char* name;
    std::string bytes;
  };
  const Row rows[] = {{"empty", ""},
                      {"one byte", "x"},
                      {"a short record", std::string(569, 'a')},
                      {"a byte too many", std::string(571, 'b')},
                      {"NULs", std::string(5700, '\0')}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    RoadDesk desk;
    desk.World.Files.Put("C:\\Corvelle\\Menus\\BMENU001.MNU", row.bytes);
    desk.Strip.InitNewButtons();
    desk.Click(2);
    desk.Wait(200);
    desk.PointAtButton(3);
    desk.Wait(200);
    EXPECT_EQ(desk.RealMenuUp(), 3);
    EXPECT_EQ(desk.World.Files.Get("C:\\Corvelle\\Menus\\BMENU001.MNU"), row.bytes);
  }
}

TEST(StripAndMenu, AFileHeldByAnotherProgramOpensAnEmptyMenuOrNoneAndTheNextOneComes) {
  RoadDesk desk;
  desk.World.Files.HoldOpen("C:\\Corvelle\\Menus\\BMENU001.MNU");
  desk.Click(2);
  desk.Wait(200);
  EXPECT_EQ(desk.RealMenu.Items().Count(), 0);
  desk.PointAtButton(3);
  desk.Wait(200);
  EXPECT_EQ(desk.RealMenuUp(), 3);
}

TEST(StripAndMenu, TheProgramEndsWithItsMenuOpen) {
  RoadDesk desk;
  desk.Click(2);
  desk.Wait(200);
  desk.World.Desktop.Send(desk.World.Desktop.Find("frmMinimize"), forms::message::Close, 0, 0);
  EXPECT_FALSE(desk.Strip.IsLoaded());
  EXPECT_FALSE(desk.RealMenu.IsLoaded());
  EXPECT_EQ(desk.World.Desktop.Clock().Running(), 0);
  EXPECT_TRUE(desk.World.Files.Has("C:\\Corvelle\\toolbarp.dat"));
}

TEST(StripAndMenu, TheSelectedItemsBarIsSeenOnTheScreen) {
  RoadDesk desk;
  desk.Click(3);
  desk.Wait(200);
  desk.PointAt(desk.Item(2));
  desk.Wait(200);
  const sim::SimCanvas screen = desk.World.Desktop.Picture();
  // The selected item's bar, in the system's colour.
  const PixelPoint item = desk.Item(2);
  EXPECT_EQ(screen.PixelAt({item.x + 60, item.y - 9}), desk.World.Desktop.SystemColor(13));
}

// ---- the screen changes while the shell is asked for icons ----

/// What a menu of the road's desk shows on a screen of that size, its place aside.
std::string MenuPixels(const RoadDesk& desk) {
  std::string pixels;
  const PixelRect menu = desk.World.Desktop.BoundsOf(desk.RealMenu.hWnd());
  const sim::SimCanvas screen = desk.World.Desktop.Picture();
  for (int y = menu.top; y < menu.bottom; ++y) {
    for (int x = menu.left; x < menu.right; ++x) {
      pixels += std::to_string(screen.PixelAt({x, y})) + ' ';
    }
    pixels += '\n';
  }
  return pixels;
}

/// A desk whose second menu has an icon of each kind for which the shell is asked, none of them
/// fetched yet: a program's; one of the program's own folder, and one of a library without such an
/// icon, which are asked for while they are drawn.
struct IconDesk : RoadDesk {
  IconDesk() {
    TheProgram.Paths.IconsPath = "C:\\Corvelle\\Icons\\";
    World.Icons.SetIndex("C:\\Tools\\m1i1.exe", 21);
    World.Files.Put("C:\\Corvelle\\Icons\\own.ico", "x");
    World.Icons.SetIconCount("C:\\Corvelle\\Icons\\own.ico", 1);
    World.Files.Put("C:\\Tools\\some.dll", "x");
    World.Icons.SetIndex("C:\\Tools\\some.dll", 23);
    World.Files.Put("C:\\Corvelle\\Menus\\" + MenuFileName(1),
                    Records({Entry("Menu 1", "Button"),
                             Entry("Program", "C:\\Tools\\m1i1.exe", "C:\\Tools\\m1i1.exe"),
                             Entry("Own", "\\Icons\\own.ico", "C:\\Tools\\m1i2.exe"),
                             Entry("Library", "C:\\Tools\\some.dll|7", "C:\\Tools\\m1i3.exe")}));
    RealMenu.ResetPicIcons();
  }
  void OpenSecond() {
    Click(2);
    PointAway();
    Wait(300);
  }
};

/// What the system tells all windows at once, by messages that are sent: they come in the middle of
/// the shell's answer.
struct ScreenNews {
  const char* Name;
  void (*Tell)(RoadDesk&);
  bool ClosesMenu = false;  // the strip may move
};

constexpr ScreenNews kScreenNews[] = {
    {"other colours", [](RoadDesk& desk) { desk.World.Desktop.SetSystemColor(15, 0x00123456); }},
    {"another depth",
     [](RoadDesk& desk) {
       desk.World.Desktop.SetScreen({1024, 768}, 16);
     }},
    {"another size",
     [](RoadDesk& desk) {
       desk.World.Desktop.SetScreen({800, 600}, 32);
     },
     true},
};

class NewsWhileIconsAreFetched : public testing::TestWithParam<ScreenNews> {
 protected:
  /// The menu of a desk that has heard the news before.
  [[nodiscard]] static std::string Expected() {
    IconDesk desk;
    GetParam().Tell(desk);
    desk.Wait(300);
    desk.OpenSecond();
    EXPECT_EQ(desk.RealMenuUp(), 2);
    return MenuPixels(desk);
  }
  /// How often the shell is asked while the menu comes up.
  [[nodiscard]] static int Questions() {
    IconDesk desk;
    int asked = 0;
    desk.World.Icons.WhileAsked([&asked] { ++asked; });
    desk.OpenSecond();
    return asked;
  }
};

TEST_P(NewsWhileIconsAreFetched, LeavesNoMenuWithoutItsIconsOrInOldColours) {
  const std::string expected = Expected();
  const int questions = Questions();
  EXPECT_GE(questions, 3);
  for (int at = 0; at < questions; ++at) {
    SCOPED_TRACE(at);
    IconDesk desk;
    int asked = 0;
    desk.World.Icons.WhileAsked([&] {
      if (asked++ == at) GetParam().Tell(desk);
    });
    desk.OpenSecond();
    EXPECT_GT(asked, at);
    EXPECT_EQ(desk.RealMenuUp(), GetParam().ClosesMenu ? 0 : 2);
    if (desk.RealMenuUp() == 2) {
      EXPECT_TRUE(MenuPixels(desk) == expected);
    }
    desk.Strip.ResetMenu();
    desk.Wait(300);
    desk.OpenSecond();
    ASSERT_EQ(desk.RealMenuUp(), 2);
    EXPECT_TRUE(MenuPixels(desk) == expected);
    EXPECT_LE(desk.World.Desktop.BoundsOf(desk.Strip.hWnd()).right,
              desk.World.Desktop.Picture().Size().width);
  }
}

// A hand that waits for a slow menu has not looked around in it.
TEST(OneGesture, TheTimeThatTheMenuTookToComeUpDoesNotCount) {
  IconDesk desk;
  bool pressing = true;
  int asked = 0;
  desk.World.Icons.WhileAsked([&] {
    if (pressing && desk.TheProgram.Guards.MenuBuilding) desk.World.Desktop.Jump(6000);
    asked += pressing ? 1 : 0;
  });
  desk.Press(2);
  pressing = false;
  ASSERT_GT(asked, 0);
  ASSERT_EQ(desk.RealMenuUp(), 2);
  desk.PointAt(desk.Item(1));
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.World.Shell.Started(), std::vector<std::string>{"C:\\Tools\\m1i1.exe"});
}

INSTANTIATE_TEST_SUITE_P(Screen, NewsWhileIconsAreFetched, testing::ValuesIn(kScreenNews),
                         [](const auto& row) {
                           std::string name = row.param.Name;
                           std::replace(name.begin(), name.end(), ' ', '_');
                           return name;
                         });

}  // namespace
}  // namespace corvelle
