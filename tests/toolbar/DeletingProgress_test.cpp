// The small window that counts dots, while files are deleted.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "core/Program.h"
#include "launch/BuiltInTempFiles.h"
#include "sim/World.h"
#include "toolbar/notices/frmStartup.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {
namespace {

struct DeletingProgress : testing::Test {
  DeletingProgress() {
    program.Paths.AppPath = "C:\\Corvelle\\";
    program.Paths.IconsPath = "C:\\Corvelle\\Icons\\";
    program.Ports.Startup = &window;
    world.Files.Put(kPicture, "x");
    world.Icons.SetIconCount(kPicture, 1);
    world.FileOps.SetTempPath("C:\\Temp");
    world.Files.MakeFolders("C:\\Temp");
  }

  void Clear(int files) {
    for (int i = 0; i < files; ++i) world.Files.Put("C:\\Temp\\" + std::to_string(i), "x");
    world.Desktop.AnswerAnyOther(forms::msgbox::AnswerYes);
    ClearTempFolder(program);
  }

  static constexpr char kPicture[] = "C:\\Corvelle\\Icons\\delfile.ico";
  sim::World world;
  Program program{world.Services(), world.Windows()};
  frmStartup window{StartupPartsOf(program)};
};

TEST_F(DeletingProgress, ShowsItsTextAndItsPictureOnTopAndTakesNoFocus) {
  const WindowId other = world.Desktop.AddOtherWindow({.Title = "Other"});
  world.Desktop.TakeForeground(other);
  window.ShowProgress("Deleting ", kPicture);
  EXPECT_TRUE(window.Visible());
  EXPECT_EQ(window.Label2.Caption(), "Deleting ");
  EXPECT_EQ(window.Label1.Caption(), "");
  ASSERT_TRUE(window.Image1.Source());
  EXPECT_EQ(window.Image1.Source()->PixelAt({16, 16}), sim::SimShellIcons::ColourOf(kPicture, 0));
  EXPECT_TRUE(world.Desktop.IsTopmost(window.hWnd()));
  EXPECT_EQ(world.Desktop.ForegroundWindow(), other);
}

TEST_F(DeletingProgress, ItsDotsFollowItsText) {
  window.ShowProgress("Deleting ", kPicture);
  window.AddDot();
  EXPECT_EQ(window.Label1.Caption(), ".");
  EXPECT_EQ(window.Label1.Left(), window.Label2.Right());
}

TEST_F(DeletingProgress, BeginsWithoutTheDotsOfTheLastTime) {
  window.ShowProgress("Deleting ", kPicture);
  window.AddDot();
  window.Unload();
  window.ShowProgress("Deleting ", kPicture);
  EXPECT_EQ(window.Label1.Caption(), "");
}

TEST_F(DeletingProgress, AMissingPictureShowsNone) {
  window.ShowProgress("Deleting ", "C:\\Corvelle\\Icons\\gone.ico");
  EXPECT_TRUE(window.Visible());
  EXPECT_FALSE(window.Image1.Source());
}

TEST_F(DeletingProgress, ASystemWithoutRoomForTheWindowDeletesAllTheSame) {
  world.Desktop.RefuseNextWindow();
  Clear(10);
  EXPECT_TRUE(world.Files.Names("C:\\Temp").empty());
}

TEST_F(DeletingProgress, TenFilesPaintTheWindowOnceAndEndIt) {
  Clear(10);
  const auto& log = world.Desktop.Log();
  EXPECT_EQ(std::count(log.begin(), log.end(), "create frmStartup"), 1);
  EXPECT_EQ(std::count(log.begin(), log.end(), "show frmStartup NoActivate"), 1);
  EXPECT_EQ(std::count(log.begin(), log.end(), "destroy frmStartup"), 1);
  EXPECT_EQ(world.Desktop.PaintCount(), 1);
  EXPECT_FALSE(window.IsLoaded());
}

TEST_F(DeletingProgress, EachFurtherTenFilesPaintItOnceMore) {
  Clear(45);
  EXPECT_EQ(world.Desktop.PaintCount(), 4);
}

TEST_F(DeletingProgress, NineFilesMakeNoWindow) {
  Clear(9);
  EXPECT_EQ(world.Desktop.Find("frmStartup"), kNoWindow);
  EXPECT_EQ(world.Desktop.PaintCount(), 0);
}

}  // namespace
}  // namespace corvelle
