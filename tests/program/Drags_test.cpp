// What another program drags over the whole program.

#include "program/ProgramDesk.h"

namespace corvelle {
namespace {

// The drag came straight into the menu, so that no timer of the strip's watches it.
TEST(DragsOverTheProgram, OneWhoseSourceDiedOverTheMenuIsForgottenWhenTheMenuGoes) {
  ProgramDesk desk;
  sim::SimDesktop& desktop = desk.world.Desktop;
  desk.OpenMenu(2);
  desk.PointAt({500, 600});
  desktop.StartDrag({.Data = {.Files = std::vector<std::string>{"C:\\Tools\\tool.exe"}}});
  desk.PointAt(desk.Item(2));
  desktop.Advance(50);
  ASSERT_TRUE(desk.parts->TheProgram.Drag.DragOverButton);
  ASSERT_FALSE(desk.parts->TheProgram.Drag.DragEntered);
  desktop.KillDragSource();
  desktop.Release();
  desk.PointAt(desk.Single(1));
  desktop.Advance(50);
  EXPECT_FALSE(desk.parts->Menu.MenuVisible());
  EXPECT_FALSE(desk.parts->TheProgram.Drag.DragOverButton);
}

TEST(DragsOverTheProgram, APictureOfAMenuGoesWithItWhileItIsAskedWhereAnAddressGoes) {
  ProgramDesk desk;
  sim::SimDesktop& desktop = desk.world.Desktop;
  desk.OpenMenu(2);
  desk.PointAt({500, 600});
  desktop.StartDrag({.Data = {.Text = "http://a.example/page"}});
  desk.PointAt(desk.Item(2));
  desktop.Advance(50);
  desktop.Release();
  desktop.Advance(500);
  ASSERT_TRUE(desk.parts->WebLink.IsLoaded());
  ASSERT_TRUE(desk.parts->StillPicture.MenuCaptured());
  // Another screen takes the menu away.
  desktop.SetScreen({1280, 1024});
  desktop.Advance(50);
  ASSERT_FALSE(desk.parts->Menu.MenuVisible());
  EXPECT_FALSE(desk.parts->StillPicture.IsLoaded());
  EXPECT_FALSE(desk.parts->StillPicture.MenuCaptured());
  EXPECT_TRUE(desk.parts->WebLink.IsLoaded());
  // The address is still written where it was dropped.
  desktop.PressKey(forms::key::Enter);
  desktop.Advance(2000);
  EXPECT_FALSE(desk.parts->WebLink.IsLoaded());
  EXPECT_NE(desk.Files().at("BMENU001.MNU").find("http://a.example/page"), std::string::npos);
}

}  // namespace
}  // namespace corvelle
