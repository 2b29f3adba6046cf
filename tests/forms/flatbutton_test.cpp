#include <gtest/gtest.h>

#include "forms/FlatButton.h"
#include "forms/TestForm.h"
#include "sim/World.h"

namespace corvelle::forms {
namespace {

class FlatButtons : public testing::Test {
 protected:
  FlatButtons() {
    Flat.Move(1500, 0, 900, 300);
    Flat.SetCaption("File");
    Flat.Click = [this] { ++clicks; };
    form.Show();
    world.Desktop.Pump();
    world.Desktop.MovePointer(210, 105);
  }

  sim::World world;
  TestForm form{world.Windows()};
  FlatButton Flat{form, "Flat"};
  int clicks = 0;
};

TEST_F(FlatButtons, SinksWhileItIsPressedAndClicksOnRelease) {
  world.Desktop.Press();
  EXPECT_TRUE(Flat.IsDown());
  EXPECT_EQ(clicks, 0);
  world.Desktop.Release();
  EXPECT_FALSE(Flat.IsDown());
  EXPECT_EQ(clicks, 1);
}

TEST_F(FlatButtons, RisesWhileThePointerIsElsewhereAndDoesNotClickThere) {
  world.Desktop.Press();
  world.Desktop.MovePointer(210, 160);
  EXPECT_FALSE(Flat.IsDown());
  world.Desktop.MovePointer(215, 106);
  EXPECT_TRUE(Flat.IsDown());
  world.Desktop.MovePointer(210, 160);
  world.Desktop.Release();
  EXPECT_EQ(clicks, 0);
}

TEST_F(FlatButtons, ActsOnTheLeftButtonAloneAndNotWhileDisabled) {
  world.Desktop.Click(MouseButton::Right);
  Flat.SetEnabled(false);
  world.Desktop.Click();
  EXPECT_EQ(clicks, 0);
  Flat.SetEnabled(true);
  world.Desktop.Press();
  Flat.SetEnabled(false);
  EXPECT_FALSE(Flat.IsDown());
  world.Desktop.Release();
  EXPECT_EQ(clicks, 0);
}

TEST_F(FlatButtons, ShowsItsFrameRaisedOrSunken) {
  const auto corner = [this] { return world.Desktop.Picture().PixelAt({200, 100}); };
  EXPECT_EQ(corner(), world.Desktop.SystemColor(20));
  world.Desktop.Press();
  EXPECT_EQ(corner(), world.Desktop.SystemColor(16));
}

TEST_F(FlatButtons, APressThatIsLostIsOver) {
  world.Desktop.Press();
  world.Desktop.Answer(1);
  world.Desktop.ShowMessage(form.hWnd(), "text", "title", 0);
  EXPECT_FALSE(Flat.IsDown());
  world.Desktop.MovePointer(212, 106);
  EXPECT_FALSE(Flat.IsDown());
  world.Desktop.Release();
  EXPECT_EQ(clicks, 0);
}

}  // namespace
}  // namespace corvelle::forms
