// The frame and the grip, by which the strip is moved.

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>

#include "toolbar/StripDesk.h"

namespace corvelle {
namespace {

using forms::MouseButton;

struct NotedPopup final : PopupPort {
  void ShowToolbarPopup(EntryEdit entry) override {
    Tags.push_back(entry.CurMenuTag);
    Last = std::move(entry);
  }
  EntryEdit Last;
  std::vector<std::string> Tags;
};

/// A strip of four buttons, 114 pixels wide, 200 pixels from the left.
struct Floating : StripDesk {
  explicit Floating(const std::string& position = PositionBytes(3000)) {
    PutButtons(3);
    World.Files.Put(kPositionFile, position);
    Start();
  }
  /// A point of the grip.
  PixelPoint Grip() const {
    const PixelRect strip = World.Desktop.BoundsOf(Strip.hWnd());
    return {strip.left + 1 + 4 * 24 + 4, strip.bottom - 10};
  }
  /// Takes the grip and moves it, without letting go.
  void Pull(int x, int y = 0) {
    const PixelPoint from = Grip();
    PointAt(from);
    World.Desktop.Press();
    PointAt({from.x + x, from.y + y});
  }
  [[nodiscard]] bool LooksDragged() const {
    return Strip.bLine3.BorderColor() == 255U && Strip.bLine3.BorderWidth() == 2;
  }
};

TEST(ToolbarSlide, TheGripMovesTheStripAlongTheTop) {
  Floating desk;
  desk.Pull(100);
  EXPECT_EQ(desk.Strip.Left(), 3000 + 100 * 15);
  EXPECT_EQ(desk.Strip.Top(), -7 * 15);
  EXPECT_TRUE(desk.LooksDragged());
  // Nothing else places the strip while it is held.
  EXPECT_TRUE(desk.TheProgram.Guards.RestoreBusy);
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.Strip.Left(), 4500);
  EXPECT_FALSE(desk.LooksDragged());
  EXPECT_EQ(desk.World.Files.Get(kPositionFile), PositionBytes(4500));
  EXPECT_FALSE(desk.TheProgram.Guards.RestoreBusy);
}

TEST(ToolbarSlide, TheBareBoxOfSingleButtonsIsAHandleToo) {
  Floating desk;
  const PixelRect box = desk.World.Desktop.BoundsOf(desk.Strip.picSingleButton.hWnd());
  desk.PointAt({box.left + 3, box.top + 8});
  desk.World.Desktop.Press();
  desk.PointAt({box.left + 43, box.top + 8});
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.Strip.Left(), 3000 + 40 * 15);
}

TEST(ToolbarSlide, TheSecondPressOfAQuickPairTakesHoldToo) {
  for (const bool byGrip : {true, false}) {
    SCOPED_TRACE(byGrip);
    Floating desk;
    const PixelRect strip = desk.World.Desktop.BoundsOf(desk.Strip.hWnd());
    const PixelPoint from = byGrip ? desk.Grip() : PixelPoint{desk.Grip().x + 12, desk.Grip().y};
    ASSERT_EQ(desk.World.Desktop.WindowAt(from), desk.Strip.hWnd());
    desk.PointAt(from);
    desk.World.Desktop.DoubleClick();
    EXPECT_FALSE(desk.Strip.Pull.FrameHeld);
    EXPECT_EQ(desk.Strip.Left(), 3000);
    // Held this time, and the pointer has gone on when the press is dealt with.
    desk.PointAt({from.x + 30, from.y});
    const std::function<void()>& second =
        byGrip ? desk.Strip.lblSep[0].DblClick : desk.Strip.DblClick;
    ASSERT_TRUE(second);
    second();
    const float x = static_cast<float>(from.x - strip.left + 50) * 15;
    const float y = static_cast<float>(from.y - strip.top) * 15;
    desk.Strip.MouseMove(MouseButton::Left, {}, x, y);
    EXPECT_EQ(desk.Strip.Left(), 3000 + 50 * 15);
    desk.Strip.MouseUp(MouseButton::Left, {}, x, y);
    EXPECT_EQ(desk.World.Files.Get(kPositionFile), PositionBytes(3000 + 50 * 15));
    EXPECT_FALSE(desk.LooksDragged());
  }
}

TEST(ToolbarSlide, AStripThatHidesOnTheWayOutOfTheScreenStaysWhereItMay) {
  Floating desk;
  desk.Pull(-1000);
  ASSERT_LT(desk.Strip.Left() + desk.Strip.Width(), 0);
  desk.Strip.HideContents();
  EXPECT_EQ(desk.Strip.Left(), 0);
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.Strip.Left(), 0);
}

TEST(ToolbarSlide, ThreePixelsAreNoMove) {
  Floating desk;
  desk.Pull(3);
  EXPECT_EQ(desk.Strip.Left(), 3000);
  EXPECT_FALSE(desk.LooksDragged());
  desk.World.Files.ClearLog();
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.World.Files.Count("Replace"), 0);
}

TEST(ToolbarSlide, AwayFromTheTopTheStripStaysAndIsSavedWhereItIs) {
  Floating desk;
  desk.Pull(100);
  desk.PointAt({400, 300});
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.Strip.Left(), 4500);
  EXPECT_EQ(desk.Strip.Top(), -7 * 15);
  EXPECT_FALSE(desk.LooksDragged());
}

TEST(ToolbarSlide, EndsWithinTheScreenUnlessTheOptionsLetItPass) {
  struct Row {
    const char* name;
    int pull;
    std::optional<Option> option;
    float left;
  };
  // 1750 twips stay free at the right of a strip without single buttons.
  const Row rows[] = {{"past the right", 750, {}, 15360 - 96 * 15 - 1750},
                      {"past the right, allowed", 750, Option::MayPassRight, 3000 + 750 * 15},
                      {"past the left", -250, {}, 0},
                      {"past the left, allowed", -250, Option::MayPassLeft, 3000 - 250 * 15}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    Floating desk;
    if (row.option) desk.SetOption(*row.option, true);
    desk.Pull(row.pull);
    desk.World.Desktop.Release();
    EXPECT_EQ(desk.Strip.Left(), row.left);
    EXPECT_EQ(desk.Strip.SavedLeft, row.left);
  }
}

TEST(ToolbarSlide, AFullDiskKeepsTheOldPositionFile) {
  Floating desk;
  desk.World.Files.FillDisk(0);
  desk.Pull(100);
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.Strip.Left(), 4500);
  EXPECT_EQ(desk.World.Files.Get(kPositionFile), PositionBytes(3000));
}

TEST(ToolbarSlide, APlaceThatTheDiskRefusedIsKeptThroughARebuild) {
  Floating desk;
  desk.World.Files.FillDisk(0);
  desk.Pull(100);
  desk.World.Desktop.Release();
  desk.Strip.InitNewButtons();
  EXPECT_EQ(desk.Strip.Left(), 4500);
  desk.World.Files.FreeDisk();
  desk.Exit();
  EXPECT_EQ(desk.World.Files.Get(kPositionFile), PositionBytes(4500));
}

TEST(ToolbarSlide, TheLeftEndOfTheScreenIsAPlaceToComeBackTo) {
  for (const bool refused : {false, true}) {
    SCOPED_TRACE(refused ? "the disk is full" : "it is stored");
    Floating desk;
    if (refused) desk.World.Files.FillDisk(0);
    desk.Pull(-250);
    desk.World.Desktop.Release();
    ASSERT_EQ(desk.Strip.Left(), 0);
    for (int rebuild = 1; rebuild <= 2; ++rebuild) {
      desk.Strip.InitNewButtons();
      EXPECT_EQ(desk.World.Desktop.BoundsOf(desk.Strip.hWnd()).left, 0) << rebuild;
    }
    if (refused) desk.World.Files.FreeDisk();
    desk.Exit();
    Floating later(*desk.World.Files.Get(kPositionFile));
    EXPECT_EQ(later.World.Desktop.BoundsOf(later.Strip.hWnd()).left, 0);
  }
}

TEST(ToolbarSlide, NothingMovesWhileTheStripIsPlacedAnew) {
  Floating desk;
  desk.TheProgram.Guards.AppBarBusy = true;
  desk.Pull(100);
  EXPECT_EQ(desk.Strip.Left(), 3000);
  desk.TheProgram.Guards.AppBarBusy = false;
  desk.World.Desktop.Release();
}

TEST(ToolbarSlide, APressDuringACarryTakesNoHold) {
  Floating desk;
  desk.Strip.Pull.DownX = -1;
  desk.TheProgram.Entry.ItemDragging = true;
  desk.Strip.MouseDown(MouseButton::Left, {}, 100, 100);
  EXPECT_EQ(desk.Strip.Pull.DownX, -1);
}

TEST(ToolbarFrame, APointerWithoutAButtonDrawsTheRestingBorder) {
  Floating desk;
  desk.Pull(100);
  desk.World.Desktop.Release();
  EXPECT_EQ(desk.Strip.bLine1.BorderColor(), forms::color::Highlight3D);
  EXPECT_EQ(desk.Strip.bLine2.BorderColor(), forms::color::DarkShadow3D);
  EXPECT_EQ(desk.Strip.bLine3.BorderColor(), forms::color::DarkShadow3D);
  EXPECT_EQ(desk.Strip.bLine4.BorderColor(), forms::color::DarkShadow3D);
  EXPECT_EQ(desk.Strip.bLine1.BorderWidth(), 1);
}

TEST(ToolbarFrame, TheBorderLinesStandAtTheWindowsSides) {
  struct Row {
    const char* name;
    float t;
  };
  for (const Row& row : {Row{"15 twips", 15}, Row{"12 twips", 12}}) {
    SCOPED_TRACE(row.name);
    StripDesk desk({.TwipsPerPixel = row.t});
    desk.PutButtons(3);
    desk.Start();
    const frmToolbar& strip = desk.Strip;
    // Four buttons: 114 by 25 pixels.
    const float w = 114 * row.t;
    const float h = 25 * row.t;
    const float t = row.t;
    ASSERT_EQ(strip.Width(), w);
    ASSERT_EQ(strip.Height(), h);
    const auto expect = [&](const forms::Line& line, float x1, float y1, float x2, float y2) {
      EXPECT_EQ(line.X1(), x1) << line.Name();
      EXPECT_EQ(line.Y1(), y1) << line.Name();
      EXPECT_EQ(line.X2(), x2) << line.Name();
      EXPECT_EQ(line.Y2(), y2) << line.Name();
      EXPECT_TRUE(line.Visible()) << line.Name();
    };
    expect(strip.bLine1, t, 0, w - t, 0);
    expect(strip.bLine2, 0, 0, 0, h - t);
    expect(strip.bLine3, 0, h - t, w, h - t);
    expect(strip.bLine4, w - t, t, w - t, h);
    EXPECT_FALSE(strip.bLineXY.Visible());
  }
}

TEST(ToolbarFrame, RightClicksNameTheStripAndTheGripNamesTheMainButton) {
  Floating desk;
  NotedPopup popup;
  desk.TheProgram.Ports.Popup = &popup;
  EntryEdit& entry = desk.TheProgram.Entry;
  entry.CurTitle = entry.CurIcon = entry.CurCommand = entry.CurFile = "of another entry";
  entry.CurRecord = 3;
  desk.PointAt(desk.Grip());
  desk.World.Desktop.Click(MouseButton::Right);
  EXPECT_EQ(popup.Last, (EntryEdit{.CurMenuTag = "B1"}));
  const PixelRect strip = desk.World.Desktop.BoundsOf(desk.Strip.hWnd());
  desk.PointAt({strip.left, strip.bottom - 2});
  desk.World.Desktop.Click(MouseButton::Right);
  const std::vector<std::string> expected = {"B1", "Toolbar"};
  EXPECT_EQ(popup.Tags, expected);
}

TEST(ToolbarFrame, ARightPressOnTheGripThatIsLetGoBesideItMeansTheStrip) {
  Floating desk;
  NotedPopup popup;
  desk.TheProgram.Ports.Popup = &popup;
  desk.PointAt(desk.Grip());
  desk.World.Desktop.Press(MouseButton::Right);
  desk.PointAt({desk.Grip().x + 60, desk.Grip().y});
  desk.World.Desktop.Release(MouseButton::Right);
  EXPECT_EQ(popup.Tags, std::vector<std::string>{"Toolbar"});
  EXPECT_EQ(desk.Strip.Left(), 3000);
}

TEST(ToolbarFrame, ARightClickDuringACarryBringsNoPopupAndKeepsWhatIsCarried) {
  Floating desk;
  NotedPopup popup;
  desk.TheProgram.Ports.Popup = &popup;
  desk.TheProgram.Entry.CurTitle = "Carried";
  desk.TheProgram.Entry.ItemDragging = true;
  const PixelRect strip = desk.World.Desktop.BoundsOf(desk.Strip.hWnd());
  for (const PixelPoint at : {desk.Grip(), PixelPoint{strip.left, strip.bottom - 2}}) {
    desk.PointAt(at);
    desk.World.Desktop.Click(MouseButton::Right);
    EXPECT_TRUE(popup.Tags.empty());
    EXPECT_EQ(desk.TheProgram.Entry.CurTitle, "Carried");
  }
  desk.TheProgram.Entry.ItemDragging = false;
}

TEST(ToolbarFrame, AMoveOverItWithTheMenuUpLeavesMenuAndStripAlone) {
  Floating desk;
  desk.Click(2);
  ASSERT_EQ(desk.MenuUp(), 2);
  desk.Strip.Pull.FrameHeld = true;
  desk.Strip.MouseMove(MouseButton::Left, {}, desk.Strip.Pull.DownX + 900, desk.Strip.Pull.DownY);
  EXPECT_TRUE(desk.Strip.Pull.FrameDragging);
  EXPECT_FALSE(desk.Strip.Pull.FrameMoved);
  EXPECT_EQ(desk.MenuUp(), 2);
  EXPECT_EQ(desk.Strip.Left(), 3000);
}

TEST(ToolbarFrame, TheBareFrameMovesNothingWhileTheStripIsPlacedAnew) {
  for (bool GuardFlags::*const flag : {&GuardFlags::RestoreBusy, &GuardFlags::AppBarBusy}) {
    Floating desk;
    desk.Strip.MouseDown(MouseButton::Left, {}, 30, 30);
    desk.TheProgram.Guards.*flag = true;
    desk.Strip.MouseMove(MouseButton::Left, {}, 930, 30);
    EXPECT_EQ(desk.Strip.Left(), 3000);
    desk.TheProgram.Guards.*flag = false;
    desk.Strip.MouseMove(MouseButton::Left, {}, 930, 30);
    EXPECT_EQ(desk.Strip.Left(), 3900);
  }
}

TEST(ToolbarFrame, AfterThePopupOfTheGripNobodyHoldsTheStrip) {
  Floating desk;
  NotedPopup popup;
  desk.TheProgram.Ports.Popup = &popup;
  desk.PointAt(desk.Grip());
  desk.World.Desktop.Click(MouseButton::Right);
  ASSERT_EQ(popup.Tags.size(), 1U);
  const float left = desk.Strip.Left();
  // Another program's press that comes over the grip without its keeping the mouse.
  desk.Strip.lblSep[0].MouseMove(MouseButton::Left, {}, 900, 60);
  EXPECT_EQ(desk.Strip.Left(), left);
  EXPECT_FALSE(desk.Strip.Pull.FrameMoved);
  EXPECT_FALSE(desk.TheProgram.Guards.RestoreBusy);
  desk.TheProgram.Ports.Popup = nullptr;
}

}  // namespace
}  // namespace corvelle
