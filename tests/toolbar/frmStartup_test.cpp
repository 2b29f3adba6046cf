// The small window that counts dots while the program starts.

#include <gtest/gtest.h>

#include <string>

#include "core/Program.h"
#include "sim/World.h"
#include "toolbar/notices/frmStartup.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {
namespace {

struct StartupDesk {
  StartupDesk() {
    TheProgram.Paths.AppPath = "C:\\Corvelle\\";
    TheProgram.Ports.Startup = &Window;
    TheProgram.Guards.StartingUp = true;
  }
  sim::World World;
  Program TheProgram{World.Services(), World.Windows()};
  frmStartup Window{StartupPartsOf(TheProgram)};
};

TEST(StartupWindow, ComesWithTheFirstDotAndTakesNoFocus) {
  StartupDesk desk;
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Title = "Other"});
  desk.World.Desktop.TakeForeground(other);
  desk.TheProgram.Progress.ShowStartupProgress();
  EXPECT_TRUE(desk.Window.Visible());
  EXPECT_EQ(desk.Window.Label1.Caption(), ".");
  EXPECT_EQ(desk.Window.Label2.Caption(), "Initializing ");
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), other);
}

TEST(StartupWindow, StandsInTheMiddleOfTheScreensWidth) {
  StartupDesk desk;
  desk.TheProgram.Progress.ShowStartupProgress();
  EXPECT_EQ(desk.Window.Width(), 5000);
  EXPECT_EQ(desk.Window.Left(), (15360 - 5000) / 2);
  EXPECT_EQ(desk.Window.Bottom(), 11520 / 2);
  EXPECT_EQ(desk.Window.Label2.Left(), desk.Window.Image1.Right() + 120);
  EXPECT_EQ(desk.Window.Label2.Bottom(), desk.Window.Image1.Bottom());
}

TEST(StartupWindow, PaintsEachDotAtOnce) {
  StartupDesk desk;
  desk.TheProgram.Progress.ShowStartupProgress();
  const int painted = desk.World.Desktop.PaintCount(desk.Window.hWnd());
  desk.TheProgram.Progress.ShowStartupProgress();
  EXPECT_EQ(desk.World.Desktop.PaintCount(desk.Window.hWnd()), painted + 1);
}

TEST(StartupWindow, StartsAgainAfterFiftyDots) {
  StartupDesk desk;
  for (int i = 0; i < 50; ++i) desk.TheProgram.Progress.ShowStartupProgress();
  EXPECT_EQ(desk.Window.Label1.Caption(), std::string(50, '.'));
  desk.TheProgram.Progress.ShowStartupProgress();
  EXPECT_EQ(desk.Window.Label1.Caption(), ".");
}

TEST(StartupWindow, StaysAwayWithOption9AndAfterTheStart) {
  StartupDesk desk;
  desk.TheProgram.OptionFlags.Set(Option::NoStartupScreen, true);
  desk.TheProgram.Progress.ShowStartupProgress();
  EXPECT_FALSE(desk.Window.IsLoaded());
  desk.TheProgram.OptionFlags.Set(Option::NoStartupScreen, false);
  desk.TheProgram.Guards.StartingUp = false;
  desk.TheProgram.Progress.ShowStartupProgress();
  EXPECT_FALSE(desk.Window.IsLoaded());
}

TEST(StartupWindow, ShowsTheProgramsIconWhereItHasOne) {
  StartupDesk desk;
  desk.World.Icons.SetIconCount("C:\\Corvelle\\corvelle.exe", 1);
  desk.TheProgram.Progress.ShowStartupProgress();
  ASSERT_NE(desk.Window.Image1.Source(), nullptr);
  EXPECT_EQ(desk.Window.Image1.Source()->Size(), (PixelSize{32, 32}));
  EXPECT_EQ(desk.Window.Image1.Top(),
            (desk.Window.ScaleHeight() - desk.Window.Image1.Height()) / 2);
  StartupDesk bare;
  bare.TheProgram.Progress.ShowStartupProgress();
  EXPECT_EQ(bare.Window.Image1.Source(), nullptr);
  EXPECT_TRUE(bare.Window.Visible());
}

}  // namespace
}  // namespace corvelle
