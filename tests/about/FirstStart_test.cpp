// The first start of the whole program on a machine that has nothing but the system itself.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/Numbers.h"
#include "core/Main.h"
#include "icons/LibraryBytes.h"
#include "program/Parts.h"
#include "sim/World.h"

namespace corvelle {
namespace {

class FirstStart : public testing::Test {
 protected:
  FirstStart() {
    world.Files.Put("C:\\Corvelle\\corvelle.exe", "program");
    world.Files.Put("C:\\Corvelle\\icon.lib", Entry("W95MBX02.ICO", "icon") + End());
    world.System.WorkFolder = "C:\\Corvelle\\";
    world.Shell.AddToPath("explorer.exe");
    world.Desktop.Answer(forms::msgbox::AnswerNo);  // to the question for a link at each login
    started = Main(parts.TheProgram);
    world.Desktop.Pump();
  }
  ~FirstStart() override { parts.Companion.UnloadWindow(); }

  frmToolbar& Strip() { return parts.Toolbar; }
  PixelPoint InBox(const forms::PictureBox& box, float left, float top) {
    const PixelRect bounds = world.Desktop.BoundsOf(box.hWnd());
    return {bounds.left + RoundToInt(left / Strip().TwipsX),
            bounds.top + RoundToInt(top / Strip().TwipsY)};
  }
  PixelPoint MiddleOfButton(int index) {
    const ButtonRect& button = Strip().Buttons.ToolbarButtons[static_cast<std::size_t>(index)];
    return InBox(Strip().picToolbar, button.Left + button.Width / 2,
                 button.Top + button.Height / 2);
  }
  PixelPoint MiddleOfSingle(int index) {
    const SingleRect& single = Strip().Singles.SingleButtons[static_cast<std::size_t>(index)];
    return InBox(Strip().picSingleButton, single.Left + single.Width / 2,
                 single.Top + single.Height / 2);
  }
  void StartSingle(int index) {
    const PixelPoint at = MiddleOfSingle(index);
    world.Desktop.MovePointer(at.x, at.y);
    world.Desktop.DoubleClick();
    world.Desktop.Advance(300);
  }

  sim::World world;
  Parts parts{world.Services(), world.Windows()};
  bool started = false;
};

TEST(InstalledFirstStart, AllThatIsWrittenLiesInTheUsersFolder) {
  constexpr int kUserDataFolder = 26;
  const std::string programs = "C:\\Programs\\Corvelle\\";
  const std::string data = "C:\\Users\\ann\\AppData\\Corvelle\\";
  sim::World world;
  world.Files.Put(programs + "corvelle.exe", "program");
  world.Files.Put(programs + "icon.lib", Entry("W95MBX02.ICO", "icon") + End());
  world.Files.Put(programs + "anetsrch.org", "engines");
  world.Files.MakeFolders("C:\\Users\\ann\\AppData");
  world.Folders.SetPath(kUserDataFolder, "C:\\Users\\ann\\AppData");
  world.System.Folder = "C:\\Programs\\Corvelle";
  world.System.WorkFolder = "C:\\";
  world.Shell.AddToPath("explorer.exe");
  world.Desktop.Answer(forms::msgbox::AnswerNo);
  Parts parts(world.Services(), world.Windows());
  ASSERT_TRUE(Main(parts.TheProgram));
  world.Desktop.Pump();
  EXPECT_EQ(parts.Toolbar.Buttons.ButtonCount, 6);
  EXPECT_TRUE(world.Files.Has(data + "Menus\\BMENU001.MNU"));
  EXPECT_TRUE(world.Files.Has(data + "Icons\\W95MBX02.ICO"));
  EXPECT_TRUE(world.Files.Has(data + "ShellLink"));
  EXPECT_EQ(world.Files.Get(data + "netsrch.ini"), "engines");
  parts.Companion.UnloadWindow();
  EXPECT_TRUE(world.Files.Has(data + "tmenu425.dat"));
  const std::vector<std::string> brought = {"anetsrch.org", "corvelle.exe", "icon.lib"};
  EXPECT_EQ(world.Files.Names(programs), brought);
}

TEST_F(FirstStart, TheStripStandsWholeAtTheRightEdge) {
  ASSERT_TRUE(started);
  EXPECT_EQ(parts.TheProgram.Strip.ToolbarEdge, Edge::Right);
  EXPECT_EQ(Strip().Buttons.ButtonCount, 6);
  ASSERT_EQ(Strip().Singles.SingleCount, 4);
  const PixelRect strip = world.Desktop.BoundsOf(Strip().hWnd());
  EXPECT_EQ(strip.right, 1024);
  EXPECT_EQ(strip.Height(), 768);
  // Two rows, and both full.
  const std::vector<SingleRect>& row = Strip().Singles.SingleButtons;
  EXPECT_EQ(row[1].Top, row[2].Top);
  EXPECT_EQ(row[3].Top, row[4].Top);
  for (int single = 1; single <= 4; ++single) {
    const PixelPoint at = MiddleOfSingle(single);
    EXPECT_TRUE(at.x > strip.left && at.x < strip.right && at.y < strip.bottom) << single;
    EXPECT_EQ(world.Desktop.WindowAt(at), Strip().picSingleButton.hWnd()) << single;
  }
}

TEST_F(FirstStart, EachMenuOpensBesideItsButtonAlsoAnEmptyOne) {
  for (int button = 1; button <= 6; ++button) {
    const PixelPoint at = MiddleOfButton(button);
    world.Desktop.ClickAt(at.x, at.y);
    world.Desktop.Advance(300);
    ASSERT_TRUE(parts.Menu.MenuVisible()) << button;
    EXPECT_EQ(parts.Menu.OwnerTag(), std::to_string(button));
    const PixelRect menu = world.Desktop.BoundsOf(parts.Menu.hWnd());
    EXPECT_TRUE(menu.left >= 0 && menu.right <= 1024 && menu.top >= 0 && menu.bottom <= 768)
        << button;
    world.Desktop.ClickAt(at.x, at.y);
    world.Desktop.Advance(1000);
    ASSERT_FALSE(parts.Menu.MenuVisible()) << button;
  }
}

TEST_F(FirstStart, TheSearchesComeUpAndTheExplorerStarts) {
  world.Keyboard.ClearLog();
  StartSingle(1);
  EXPECT_TRUE(world.Keyboard.Log().empty());
  EXPECT_EQ(world.Shell.Started(), std::vector<std::string>{"search-ms:query=&"});
  StartSingle(2);
  EXPECT_EQ(world.Keyboard.Log(),
            (std::vector<std::string>{"+17", "+91", "+70", "-17", "-91", "-70"}));
  world.Shell.ClearLog();
  StartSingle(3);
  ASSERT_FALSE(world.Shell.Log().empty());
  EXPECT_NE(world.Shell.Log().back().File.find("explorer.exe /e,/root,,::{20D04FE0"),
            std::string::npos);
  // None of them leaves a box behind.
  EXPECT_EQ(world.Desktop.Boxes().size(), 1U);
}

}  // namespace
}  // namespace corvelle
