#include <gtest/gtest.h>

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/TestForm.h"
#include "sim/SimButton.h"
#include "sim/World.h"

namespace corvelle::forms {
namespace {

constexpr int kAltKey = 18;
constexpr int kShiftKey = 16;

class Sheet final : public TestForm {
 public:
  explicit Sheet(WindowSystem& windows) : TestForm(windows) {
    Box.SetEnabled(false);
    float top = 0;
    for (Window* control :
         {static_cast<Window*>(&First), static_cast<Window*>(&Tick), static_cast<Window*>(&Last)}) {
      control->Move(0, top, 1500, 300);
      top += 300;
    }
    First.SetCaption("&First");
    Tick.SetCaption("Tick && &more");
    Last.SetCaption("Last");
    First.Click = [this] { Events.emplace_back("first"); };
    Tick.Click = [this] { Events.emplace_back("tick"); };
    Last.Click = [this] { Events.emplace_back("last"); };
  }

  CommandButton First{*this, "First"};
  CheckBox Tick{*this, "Tick"};
  CommandButton Last{*this, "Last"};
};

class Controls : public testing::Test {
 protected:
  Controls() {
    sheet.Show();
    world.Desktop.Pump();
    sheet.Events.clear();
  }
  WindowId Focus() { return world.Desktop.FocusWindow(); }
  bool Shown(const CheckBox& box) {
    return dynamic_cast<sim::SimButton*>(world.Desktop.Look(box.hWnd())->Control)->Checked();
  }
  void Press(int key) { world.Desktop.PressKey(key); }

  sim::World world;
  Sheet sheet{world.Windows()};
};

TEST(AccessKey, IsTheLetterAfterASingleAmpersand) {
  EXPECT_EQ(AccessKey("&Don't"), U'D');
  EXPECT_EQ(AccessKey("a && &b"), U'B');
  EXPECT_EQ(AccessKey("&\u00e9"), U'\u00c9');
  EXPECT_EQ(AccessKey("none &&"), 0U);
  EXPECT_EQ(AccessKey("at the end &"), 0U);
  EXPECT_EQ(AccessKey(""), 0U);
}

TEST_F(Controls, TabGoesRoundAndPassesWhatCannotBeReached) {
  EXPECT_EQ(Focus(), sheet.First.hWnd());
  Press(key::Tab);
  EXPECT_EQ(Focus(), sheet.Tick.hWnd());
  Press(key::Tab);
  EXPECT_EQ(Focus(), sheet.Last.hWnd());
  Press(key::Tab);
  EXPECT_EQ(Focus(), sheet.First.hWnd());
  world.Desktop.KeyDown(kShiftKey);
  Press(key::Tab);
  EXPECT_EQ(Focus(), sheet.Last.hWnd());
  world.Desktop.KeyUp(kShiftKey);
  sheet.First.SetEnabled(false);
  Press(key::Tab);
  EXPECT_EQ(Focus(), sheet.Tick.hWnd());
  sheet.Last.SetVisible(false);
  Press(key::Tab);
  EXPECT_EQ(Focus(), sheet.Tick.hWnd());
}

TEST_F(Controls, EnterPressesTheButtonInFocusOrElseTheDefaultOne) {
  Press(key::Enter);
  Press(key::Tab);
  Press(key::Enter);
  EXPECT_EQ(sheet.Events, Texts{"first"});
  sheet.Last.SetDefault(true);
  Press(key::Enter);
  EXPECT_EQ(sheet.Events, (Texts{"first", "last"}));
  EXPECT_EQ(sheet.Tick.Value(), 0);
  // The cancel button has a key of its own.
  sheet.First.SetCancel(true);
  Press(key::Enter);
  EXPECT_EQ(sheet.Events, (Texts{"first", "last", "last"}));
}

TEST_F(Controls, EscPressesTheCancelButton) {
  Press(key::Escape);
  sheet.Last.SetCancel(true);
  Press(key::Escape);
  EXPECT_EQ(sheet.Events, Texts{"last"});
}

TEST_F(Controls, AnAccessKeyTakesTheFocusAndPresses) {
  world.Desktop.KeyDown(kAltKey);
  Press('M');
  world.Desktop.KeyUp(kAltKey);
  EXPECT_EQ(sheet.Events, (Texts{"key 18 alt", "tick"}));
  EXPECT_EQ(sheet.Tick.Value(), 1);
  EXPECT_EQ(Focus(), sheet.Tick.hWnd());
  EXPECT_TRUE(Shown(sheet.Tick));
  sheet.First.SetEnabled(false);
  sheet.Events.clear();
  world.Desktop.KeyDown(kAltKey);
  Press('F');
  world.Desktop.KeyUp(kAltKey);
  EXPECT_EQ(sheet.Events, (Texts{"key 18 alt", "key 70 alt"}));
}

TEST_F(Controls, OtherKeysAreTheForms) {
  Press(key::Home);
  world.Desktop.Type("x");
  EXPECT_EQ(sheet.Events, (Texts{"key 36", "key 88", "char 120"}));
}

TEST_F(Controls, ATickSetBeforeTheWindowStandsIsShown) {
  Sheet other(world.Windows());
  other.Tick.SetValue(7);
  EXPECT_EQ(other.Tick.Value(), 1);
  other.Show();
  EXPECT_TRUE(Shown(other.Tick));
  other.Tick.SetValue(0);
  EXPECT_FALSE(Shown(other.Tick));
}

TEST_F(Controls, AButtonMayUnloadItsForm) {
  sheet.First.Click = [this] { sheet.Unload(); };
  Press(key::Enter);
  EXPECT_FALSE(sheet.IsLoaded());
}

}  // namespace
}  // namespace corvelle::forms
