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

// An address was dropped on a menu, which is covered by its picture while the dialog is up.
struct AddressOnAMenu : ProgramDesk {
  AddressOnAMenu() {
    OpenMenu(2);
    PointAt({500, 600});
    world.Desktop.StartDrag({.Data = {.Text = "http://a.example/page"}});
    PointAt(Item(2));
    world.Desktop.Advance(50);
    world.Desktop.Release();
    world.Desktop.Advance(500);
  }
  [[nodiscard]] bool IsCovered() const { return parts->StillPicture.MenuCaptured(); }
  /// The menu is gone with its picture, and the address is still written where it was dropped.
  void ExpectDialogAlone() {
    EXPECT_FALSE(parts->Menu.MenuVisible());
    EXPECT_FALSE(parts->StillPicture.IsLoaded());
    EXPECT_FALSE(IsCovered());
    ASSERT_TRUE(parts->WebLink.IsLoaded());
    world.Desktop.TakeForeground(parts->WebLink.hWnd());
    world.Desktop.PressKey(forms::key::Enter);
    world.Desktop.Advance(2000);
    EXPECT_FALSE(parts->WebLink.IsLoaded());
    EXPECT_NE(Files().at("BMENU001.MNU").find("http://a.example/page"), std::string::npos);
  }
};

TEST(DragsOverTheProgram, APictureOfAMenuGoesWithItWhileItIsAskedWhereAnAddressGoes) {
  AddressOnAMenu desk;
  ASSERT_TRUE(desk.parts->WebLink.IsLoaded());
  ASSERT_TRUE(desk.IsCovered());
  // Another screen takes the menu away.
  desk.world.Desktop.SetScreen({1280, 1024});
  desk.world.Desktop.Advance(50);
  desk.ExpectDialogAlone();
}

TEST(DragsOverTheProgram, APictureOfAMenuGoesWhenAFullScreenProgramIsGone) {
  AddressOnAMenu desk;
  ASSERT_TRUE(desk.parts->WebLink.IsLoaded());
  desk.world.Bars.SetFullScreen(true);
  desk.world.Desktop.Advance(50);
  ASSERT_TRUE(desk.IsCovered());
  ASSERT_TRUE(desk.parts->Menu.MenuVisible());
  // The menu is made topmost again, hidden.
  desk.world.Bars.SetFullScreen(false);
  desk.world.Desktop.Advance(50);
  desk.ExpectDialogAlone();
}

TEST(CarriesOverTheProgram, ASingleButtonThatIsPutIntoAMenuIsACopyWithTheRightButton) {
  for (const forms::MouseButton button : {forms::MouseButton::Left, forms::MouseButton::Right}) {
    const bool copies = button == forms::MouseButton::Right;
    SCOPED_TRACE(copies ? "right" : "left");
    ProgramDesk desk;
    desk.PickUpSingle(2);
    desk.CarryOver(3);
    desk.PointAt(desk.Item(1));
    desk.world.Desktop.Advance(50);
    if (copies) desk.world.Desktop.Press(button);
    desk.world.Desktop.Release(button);
    desk.world.Desktop.Release();
    desk.world.Desktop.Advance(50);
    EXPECT_NE(desk.Files().at("BMENU002.MNU").find("tool.exe two"), std::string::npos);
    std::string singles;
    for (const auto& [name, bytes] : desk.Files()) {
      if (name.ends_with(".BTN")) singles += bytes;
    }
    EXPECT_EQ(singles.find("tool.exe two") != std::string::npos, copies);
  }
}

}  // namespace
}  // namespace corvelle
