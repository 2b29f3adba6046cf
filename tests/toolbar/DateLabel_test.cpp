// The date, on a strip that is no more than its controls.

#include "toolbar/singles/DateLabel.h"

#include <gtest/gtest.h>

#include "toolbar/PlainStrip.h"
#include "toolbar/singles/SingleRow.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {
namespace {

using forms::MouseButton;

/// A strip that lies at the upper edge, with the date switched on.
struct EdgeDate : PlainDesk {
  EdgeDate() {
    TheProgram.OptionFlags.Set(Option::ShowDate, true);
    Strip.Now.Where = Placement::AtEdge;
    Date().DoLabelDate();
    Strip.Asked.clear();
  }

  StripPull Pull{PullPartsOf(TheProgram), Strip};
  SingleRow Row{SingleRowPartsOf(TheProgram), DatePartsOf(TheProgram), Strip, Pull, Strip.ForRow()};

  DateLabel& Date() { return Row.Date; }
  bool Shown() const {
    return Strip.lblDate.Visible() && Strip.Line1[0].Visible() && Strip.Line2[0].Visible();
  }
  bool Hidden() const {
    return !Strip.lblDate.Visible() && !Strip.Line1[0].Visible() && !Strip.Line2[0].Visible();
  }
  void Hover() { Strip.lblDate.MouseMove(MouseButton::None, {}, 10, 10); }
};

TEST(DateLabel, IsHiddenUntilItIsAskedFor) {
  PlainDesk desk;
  StripPull pull(PullPartsOf(desk.TheProgram), desk.Strip);
  SingleRow row(SingleRowPartsOf(desk.TheProgram), DatePartsOf(desk.TheProgram), desk.Strip, pull,
                desk.Strip.ForRow());
  EXPECT_FALSE(desk.Strip.lblDate.Visible());
  EXPECT_FALSE(desk.Strip.Line1[0].Visible());
}

TEST(DateLabel, ShowsTodayBetweenTwoLinesAtTheFarEnd) {
  EdgeDate desk;
  EXPECT_TRUE(desk.Shown());
  EXPECT_EQ(desk.Strip.lblDate.Caption(), desk.World.System.Date);
  EXPECT_EQ(desk.Strip.lblDate.Right(), desk.Strip.picSingleButton.Width() - 50);
  EXPECT_EQ(desk.Strip.Line1[0].X1(), desk.Strip.lblDate.Left() - 100);
}

TEST(DateLabel, IsNotForAnUprightOrFloatingStrip) {
  EdgeDate desk;
  desk.Strip.Now.Scale.Vertical = true;
  desk.Date().DoLabelDate();
  EXPECT_TRUE(desk.Hidden());
  desk.Strip.Now = {.Where = Placement::AtEdge};
  desk.Date().DoLabelDate();
  EXPECT_TRUE(desk.Shown());
  desk.Strip.Now = {.Where = Placement::TopHugging};
  desk.Date().DoLabelDate();
  EXPECT_TRUE(desk.Hidden());
}

TEST(DateLabel, GoesWithItsOption) {
  EdgeDate desk;
  desk.TheProgram.OptionFlags.Set(Option::ShowDate, false);
  desk.Date().DoLabelDate();
  EXPECT_TRUE(desk.Hidden());
}

TEST(DateLabel, WaitsWhileTheStripIsRestored) {
  EdgeDate desk;
  desk.World.System.Date = "3/15/2026";
  desk.TheProgram.Guards.RestoreBusy = true;
  desk.Date().UpdateLabelDate();
  EXPECT_EQ(desk.Strip.lblDate.Caption(), "3/14/2026");
  desk.TheProgram.Guards.RestoreBusy = false;
  desk.Date().UpdateLabelDate();
  EXPECT_EQ(desk.Strip.lblDate.Caption(), "3/15/2026");
}

TEST(DateLabel, ALongerDateKeepsItsEnd) {
  EdgeDate desk;
  desk.World.System.Date = "12/15/2026";
  desk.Date().UpdateLabelDate();
  EXPECT_EQ(desk.Strip.lblDate.Right(), desk.Strip.picSingleButton.Width() - 50);
  EXPECT_EQ(desk.Strip.Line1[0].X1(), desk.Strip.lblDate.Left() - 100);
}

TEST(DateLabel, IsBoldBesideLargeIcons) {
  EdgeDate desk;
  EXPECT_FALSE(desk.Strip.lblDate.Font().Bold);
  desk.TheProgram.OptionFlags.Set(Option::LargeIcons, true);
  desk.Date().DoLabelDate();
  EXPECT_TRUE(desk.Strip.lblDate.Font().Bold);
}

TEST(DateLabel, ItsAreaReachesBeyondItsTextWhileItIsSeen) {
  EdgeDate desk;
  EXPECT_TRUE(desk.Date().IsUnder(desk.Strip.lblDate.Left()));
  EXPECT_TRUE(desk.Date().IsUnder(desk.Strip.picSingleButton.Width()));
  EXPECT_FALSE(desk.Date().IsUnder(0));
  desk.Date().HideDate();
  EXPECT_FALSE(desk.Date().IsUnder(desk.Strip.lblDate.Left()));
}

TEST(DateLabel, TheHintOverItIsTheClock) {
  EdgeDate desk;
  desk.Hover();
  EXPECT_EQ(desk.Hint.Text, desk.World.System.TimeOfDay() + ", " + desk.World.System.LongDate());
  EXPECT_EQ(desk.TheProgram.Menu.CurSingle, MenuState::kDateArea);
}

TEST(DateLabel, AHintThatIsUpIsNotSetAgain) {
  EdgeDate desk;
  const WindowId up = desk.World.Desktop.AddOtherWindow({.Title = "hint"});
  struct UpHint final : HintPort {
    explicit UpHint(WindowId window) : Window(window) {}
    WindowId Window;
    int Set = 0;
    void SetHint(std::string_view) override { ++Set; }
    WindowId WindowHandle() const override { return Window; }
  } hint(up);
  desk.TheProgram.Ports.Hint = &hint;
  desk.Hover();
  desk.Hover();
  EXPECT_EQ(hint.Set, 1);
  // What was hovered before was not the date.
  desk.TheProgram.Menu.CurSingle = 1;
  desk.Hover();
  EXPECT_EQ(hint.Set, 2);
  desk.TheProgram.Ports.Hint = nullptr;
}

TEST(DateLabel, AMoveWithAButtonDownOrSomethingCarriedShowsNoHint) {
  EdgeDate desk;
  desk.Strip.lblDate.MouseMove(MouseButton::Left, {}, 10, 10);
  EXPECT_EQ(desk.Hint.Text, "");
  desk.TheProgram.Entry.ItemDragging = true;
  desk.Hover();
  EXPECT_EQ(desk.Hint.Text, "");
  desk.TheProgram.Entry.ItemDragging = false;
}

TEST(DateLabel, APressClosesTheMenuAndTheHint) {
  EdgeDate desk;
  desk.Hover();
  desk.TheProgram.Menu.MenuOpen = true;
  desk.TheProgram.Menu.CurSingle = 0;
  desk.Strip.lblDate.MouseDown(MouseButton::Left, {}, 10, 10);
  EXPECT_EQ(desk.Strip.Asked, std::vector<std::string>{"ResetMenu"});
  EXPECT_EQ(desk.Hint.Text, "");
  EXPECT_EQ(desk.TheProgram.Menu.CurSingle, MenuState::kDateArea);
}

TEST(DateLabel, ADoubleClickOpensTheClockOfWindows) {
  EdgeDate desk;
  desk.World.Shell.AddToPath("rundll32.exe");
  desk.TheProgram.Entry.ItemDragging = true;
  desk.Strip.lblDate.DblClick();
  desk.World.Desktop.Pump();
  EXPECT_TRUE(desk.World.Shell.Log().empty()) << "not while something is carried";
  desk.TheProgram.Entry.ItemDragging = false;
  desk.Strip.lblDate.DblClick();
  desk.World.Desktop.Advance(100);
  ASSERT_FALSE(desk.World.Shell.Log().empty());
  EXPECT_EQ(desk.World.Shell.Log().back().File,
            "rundll32.exe shell32.dll,Control_RunDLL timedate.cpl,,0");
}

}  // namespace
}  // namespace corvelle
