#include "toolbar/notices/frmTip.h"

#include <gtest/gtest.h>

#include "core/OptionFlags.h"
#include "toolbar/StripDesk.h"
#include "toolbar/notices/TipLayout.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {
namespace {

constexpr Option kField = Option::NotOnTopTipDone;
constexpr int kTabKey = 9;
constexpr int kSpaceKey = 32;
constexpr int kAltKey = 18;

TEST(WrapText, BreaksBetweenWordsAndKeepsItsOwnLineEnds) {
  const auto letters = [](std::string_view text) { return static_cast<float>(text.size()); };
  using Lines = std::vector<std::string>;
  EXPECT_EQ(WrapText("one two three", 7, letters), (Lines{"one two", "three"}));
  EXPECT_EQ(WrapText("one\r\n\r\ntwo", 7, letters), (Lines{"one", "", "two"}));
  EXPECT_EQ(WrapText("a immeasurable b", 5, letters), (Lines{"a", "immeasurable", "b"}));
  EXPECT_EQ(WrapText("", 5, letters), Lines{});
}

class Tip : public testing::Test {
 protected:
  Tip() {
    desk.PutButtons(1);
    desk.Start();
  }

  void Show() {
    tip.ShowTip("Not On Top", "Any window can cover the strip.\r\n\r\nA second paragraph.\r\n\r\n",
                kField);
    desk.World.Desktop.Pump();
  }
  PixelPoint Middle(const char* name) {
    const PixelRect bounds = desk.World.Desktop.BoundsOf(desk.World.Desktop.Find(name));
    return {(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
  }
  void Click(const char* name) {
    const PixelPoint at = Middle(name);
    desk.World.Desktop.ClickAt(at.x, at.y);
  }
  bool Focused(const char* name) {
    return desk.World.Desktop.FocusWindow() == desk.World.Desktop.Find(name);
  }
  std::string Saved() {
    return desk.World.Files.Get("C:\\Corvelle\\tmenu425.dat").value_or("none");
  }

  StripDesk desk;
  frmTip tip{TipPartsOf(desk.TheProgram)};
};

TEST_F(Tip, StandsInTheMiddleOnTopWithItsTexts) {
  Show();
  ASSERT_TRUE(tip.IsLoaded());
  EXPECT_TRUE(desk.World.Desktop.IsTopmost(tip.hWnd()));
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), tip.hWnd());
  const PixelRect bounds = desk.World.Desktop.BoundsOf(tip.hWnd());
  EXPECT_NEAR(bounds.left + bounds.right, 1024, 1);
  EXPECT_NEAR(bounds.top + bounds.bottom, 768, 1);
  EXPECT_EQ(tip.lblTitle.Caption(), "Not On Top");
  EXPECT_EQ(tip.Check1.Caption(), "&Don't show this message again");
  EXPECT_EQ(tip.cmdOK.Caption(), "OK");
  EXPECT_TRUE(Focused("cmdOK"));
  EXPECT_EQ(tip.Picture1.Left(), tip.lblTitle.Top());
  EXPECT_EQ(tip.Picture1.Top(), tip.lblTitle.Top());
  // Nothing reaches over another or over the window's side.
  EXPECT_LE(tip.lblTip.back()->Bottom(), tip.Check1.Top());
  EXPECT_EQ(tip.lblTip.back()->Caption(), "A second paragraph.");
  EXPECT_LE(tip.Check1.Bottom(), tip.cmdOK.Top());
  EXPECT_LE(tip.cmdOK.Right(), tip.ScaleWidth());
  EXPECT_LE(tip.cmdOK.Bottom(), tip.ScaleHeight());
}

TEST_F(Tip, OfAShortTextIsAsWideAsTheLinesOfALongOneMayBe) {
  tip.ShowTip("Tip", "Short.", kField);
  desk.World.Desktop.Pump();
  EXPECT_EQ(tip.Check1.Width(), 330 * 15.0F);
}

TEST_F(Tip, WithTheBoxTickedItDoesNotComeAgainAlsoAfterARestart) {
  Show();
  Click("Check1");
  EXPECT_EQ(tip.Check1.Value(), 1);
  Click("cmdOK");
  EXPECT_FALSE(tip.IsLoaded());
  EXPECT_TRUE(desk.TheProgram.OptionFlags.Is(kField));
  Show();
  EXPECT_FALSE(tip.IsLoaded());
  const OptionFlags restarted = OptionFlags::Clean(Saved());
  EXPECT_TRUE(restarted.Is(kField));
  desk.TheProgram.OptionFlags = restarted;
  Show();
  EXPECT_FALSE(tip.IsLoaded());
}

TEST_F(Tip, WithoutTheTickItComesAgainWithAnEmptyBox) {
  Show();
  Click("Check1");
  Click("Check1");
  EXPECT_EQ(tip.Check1.Value(), 0);
  Click("cmdOK");
  EXPECT_EQ(Saved()[PositionOf(kField) - 1], '0');
  Show();
  EXPECT_TRUE(tip.IsLoaded());
  EXPECT_EQ(tip.Check1.Value(), 0);
}

TEST_F(Tip, WithoutAFieldTheBoxDoesNothing) {
  const OptionFlags before = desk.TheProgram.OptionFlags;
  tip.ShowTip("Title", "Text", std::nullopt);
  desk.World.Desktop.Pump();
  Click("Check1");
  Click("cmdOK");
  EXPECT_FALSE(tip.IsLoaded());
  EXPECT_EQ(desk.TheProgram.OptionFlags, before);
}

TEST_F(Tip, TheKeyboardAloneTicksTheBoxAndCloses) {
  Show();
  desk.World.Desktop.PressKey(kTabKey);
  EXPECT_TRUE(Focused("Check1"));
  desk.World.Desktop.PressKey(kSpaceKey);
  EXPECT_EQ(tip.Check1.Value(), 1);
  desk.World.Desktop.PressKey(forms::key::Enter);
  EXPECT_FALSE(tip.IsLoaded());
  EXPECT_TRUE(desk.TheProgram.OptionFlags.Is(kField));
}

TEST_F(Tip, TheBoxHasItsAccessKeyAndEscIsOK) {
  Show();
  desk.World.Desktop.KeyDown(kAltKey);
  desk.World.Desktop.PressKey('D');
  desk.World.Desktop.KeyUp(kAltKey);
  EXPECT_EQ(tip.Check1.Value(), 1);
  EXPECT_TRUE(Focused("Check1"));
  desk.World.Desktop.Type("d");
  EXPECT_EQ(tip.Check1.Value(), 0);
  desk.World.Desktop.PressKey(forms::key::Escape);
  EXPECT_FALSE(tip.IsLoaded());
}

TEST_F(Tip, AReleaseBesideTheButtonIsNoPress) {
  Show();
  const PixelPoint at = Middle("cmdOK");
  desk.World.Desktop.MovePointer(at.x, at.y);
  desk.World.Desktop.Press();
  desk.World.Desktop.MovePointer(at.x, at.y + 200);
  desk.World.Desktop.Release();
  EXPECT_TRUE(tip.IsLoaded());
}

TEST_F(Tip, AnotherOneInItsPlaceComesWithAnEmptyBoxInTheMiddle) {
  Show();
  Click("Check1");
  tip.Move(0, 0, tip.Width(), tip.Height());
  tip.ShowTip("Another", "Text", Option::UpgradeDone);
  desk.World.Desktop.Pump();
  EXPECT_EQ(tip.lblTitle.Caption(), "Another");
  EXPECT_EQ(tip.Check1.Value(), 0);
  const PixelRect bounds = desk.World.Desktop.BoundsOf(tip.hWnd());
  EXPECT_NEAR(bounds.left + bounds.right, 1024, 1);
}

TEST_F(Tip, ShowsTheProgramsIconWhole) {
  desk.World.Icons.SetIconCount("C:\\Corvelle\\corvelle.exe", 1);
  Show();
  const corvelle::Picture picture = tip.Picture1.Image();
  const Rgb icon = sim::SimShellIcons::ColourOf("C:\\Corvelle\\corvelle.exe", 0);
  EXPECT_EQ(picture->PixelAt({0, 0}), icon);
  EXPECT_EQ(picture->PixelAt({31, 31}), icon);
}

}  // namespace
}  // namespace corvelle
