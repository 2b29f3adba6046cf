// Popup menus on the simulated desktop: what its user can do with them.

#include <gtest/gtest.h>

#include "forms/TestForm.h"
#include "sim/World.h"

namespace corvelle::forms {
namespace {

struct PopupHome {
  PopupHome() { Form.Show(); }
  ~PopupHome() { Form.Unload(); }

  int Show() {
    return World.Windows().ShowPopup(Form.hWnd(),
                                     {{.Caption = "Unseen", .Visible = false},
                                      {.Caption = "First"},
                                      {.Caption = "-"},
                                      {.Caption = "Grey", .Enabled = false},
                                      {.Caption = "Last", .Checked = true}},
                                     {100, 100}, popup::RightButton);
  }

  sim::World World;
  TestForm Form{World.Windows()};
};

TEST(SimPopup, GivesTheIndexOfWhatIsChosen) {
  PopupHome home;
  home.World.Desktop.ChooseFromPopup("Last");
  EXPECT_EQ(home.Show(), 4);
  EXPECT_EQ(home.Show(), popup::kNothing);
  const sim::Popup& seen = home.World.Desktop.Popups().front();
  const std::vector<std::string> captions = {"First", "-", "Grey", "Last"};
  EXPECT_EQ(seen.Captions(), captions);
  EXPECT_TRUE(seen.Offers("First"));
  EXPECT_FALSE(seen.Offers("Grey"));
  EXPECT_FALSE(seen.Offers("-"));
  EXPECT_FALSE(seen.Offers("Unseen"));
}

TEST(SimPopup, ALineMayOpenAMenuOfItsOwnWhoseLinesCountAfterIt) {
  PopupHome home;
  const std::vector<PopupItem> items = {
      {.Caption = "First"},
      {.Caption = "Insert",
       .Items = {{.Caption = "Printers"},
                 {.Caption = "More", .Items = {{.Caption = "Deep"}}},
                 {.Caption = "Last"}}},
      {.Caption = "Gray", .Enabled = false, .Items = {{.Caption = "Inside"}}},
      {.Caption = "End"}};
  sim::SimDesktop& desktop = home.World.Desktop;
  const auto choose = [&](const char* caption) {
    desktop.ChooseFromPopup(caption);
    return home.World.Windows().ShowPopup(home.Form.hWnd(), items, {100, 100}, 0);
  };
  EXPECT_EQ(choose("Insert>Printers"), 2);
  EXPECT_EQ(choose("Insert>More>Deep"), 4);
  EXPECT_EQ(choose("Insert>Last"), 5);
  EXPECT_EQ(choose("End"), 8);
  EXPECT_FALSE(desktop.Popups().front().Offers("Insert")) << "it opens a menu and is no choice";
  EXPECT_FALSE(desktop.Popups().front().Offers("Gray>Inside"));
}

TEST(SimPopup, IsClosedByEscByAPressElsewhereAndByAnotherForegroundWindow) {
  enum class By { Escape, Press, Foreground };
  for (const By by : {By::Escape, By::Press, By::Foreground}) {
    PopupHome home;
    sim::SimDesktop& desktop = home.World.Desktop;
    const WindowId other = desktop.AddOtherWindow({.Bounds = {500, 500, 700, 700}});
    desktop.WhilePopupIsUp([&](const sim::Popup&) {
      if (by == By::Escape) desktop.PressKey(key::Escape);
      if (by == By::Press) desktop.ClickAt(600, 600);
      if (by == By::Foreground) desktop.TakeForeground(other);
    });
    desktop.ChooseFromPopup("First");
    EXPECT_EQ(home.Show(), popup::kNothing);
    EXPECT_EQ(desktop.ForegroundWindow() == other, by != By::Escape);
    EXPECT_EQ(desktop.Find("#32768"), kNoWindow);
  }
}

TEST(SimPopup, IsTheOnlyOne) {
  PopupHome home;
  int inner = 0;
  home.World.Desktop.WhilePopupIsUp([&](const sim::Popup&) {
    home.World.Desktop.WhilePopupIsUp({});
    inner = home.Show();
  });
  home.World.Desktop.ChooseFromPopup("First");
  EXPECT_NE(home.Show(), popup::kNothing);
  EXPECT_EQ(inner, popup::kNothing);
  EXPECT_EQ(home.World.Desktop.Popups().size(), 1U);
}

TEST(SimPopup, TakesTheMouseAndTheKeyboard) {
  PopupHome home;
  sim::SimDesktop& desktop = home.World.Desktop;
  int moves = 0;
  home.Form.MouseMove = [&](MouseButton, ShiftState, float, float) { ++moves; };
  desktop.WhilePopupIsUp([&](const sim::Popup& popup) {
    const PixelRect form = desktop.BoundsOf(popup.Owner);
    desktop.MovePointer(form.left + 100, form.top + 80);
    desktop.Type("x");
  });
  home.Form.Events.clear();
  home.Show();
  EXPECT_EQ(moves, 0);
  EXPECT_TRUE(home.Form.Events.empty());
  // The popup is gone, and the pointer stands over the form.
  desktop.Pump();
  EXPECT_EQ(moves, 1);
}

}  // namespace
}  // namespace corvelle::forms
