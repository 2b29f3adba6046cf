// Auto Hide: the strip as a line, and how it comes back.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>

#include "base/Numbers.h"
#include "toolbar/DockDesk.h"

namespace corvelle {
namespace {

constexpr char kTaken[] =
    "A toolbar is already hidden on this side of your screen.\r\n"
    "You can have only one auto-hide toolbar per side.";

struct HidingDesk : DockDesk {
  explicit HidingDesk(const sim::WorldOptions& options = {}) : DockDesk(options) {
    SetOption(Option::AutoHide, true);
  }
  void StartHidden(Edge at) {
    StartAt(at);
    GoElsewhere();
    Poll();
    World.Bars.ClearLog();
  }
};

TEST(AutoHide, AStartShowsTheStripAndClaimsTheSideWithoutKeepingRoom) {
  HidingDesk desk;
  desk.AskFor(Edge::Right);
  desk.Start();
  // Asked once before it is docked and once when it is.
  EXPECT_EQ(desk.World.Bars.Log(),
            (Messages{"new", "getautohide 2", "getautohide 2", "setautohide 0 0", "setautohide 2 1",
                      "querypos 2", "activate"}));
  EXPECT_EQ(desk.World.Bars.HiddenBar(Edge::Right), desk.Strip.hWnd());
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 1024, 768}));
  EXPECT_EQ(desk.Bounds(), kLineRows[3].revealed);
  EXPECT_TRUE(desk.Strip.picToolbar.Visible());
}

TEST(AutoHide, WhoGoesElsewhereLeavesALineAndATouchBringsTheStripBack) {
  for (const float t : kScales) {
    for (const LineRow& row : kLineRows) {
      SCOPED_TRACE(std::string(row.name) + " " + std::to_string(t));
      HidingDesk desk({.TwipsPerPixel = t});
      desk.StartAt(row.at);
      EXPECT_EQ(desk.Bounds(), row.revealed);
      // The strip has the keyboard: it stays.
      desk.PointAt({500, 400});
      desk.Poll();
      EXPECT_EQ(desk.Bounds(), row.revealed);
      desk.GoElsewhere();
      desk.Poll();
      EXPECT_EQ(desk.Bounds(), row.line);
      EXPECT_TRUE(desk.IsLine());
      EXPECT_TRUE(desk.Shown());
      desk.PointAt(row.touch);
      desk.Poll();
      EXPECT_EQ(desk.Bounds(), row.revealed);
      EXPECT_TRUE(desk.Strip.picToolbar.Visible());
      EXPECT_TRUE(desk.Strip.picSingleButton.Visible());
      // A look is no choice: the other program keeps the keyboard, and the strip goes again.
      EXPECT_NE(desk.World.Desktop.ActiveWindow(), desk.Strip.hWnd());
      desk.PointAt({500, 400});
      desk.Poll();
      EXPECT_EQ(desk.Bounds(), row.line);
    }
  }
}

TEST(AutoHide, ColoursAndFilesThatChangeLeaveALineALineUntilItIsTouched) {
  for (const LineRow& row : kLineRows) {
    SCOPED_TRACE(row.name);
    HidingDesk desk;
    desk.SetOption(Option::ShowDate, true);
    const std::string menus = "C:\\Corvelle\\Menus\\";
    for (int i = 1; i <= 3; ++i) {
      desk.World.Files.Put(menus + SingleFileName(i), Records({Entry("s", "", "C:\\s.exe")}));
    }
    desk.StartHidden(row.at);
    ASSERT_EQ(desk.Bounds(), row.line);
    desk.World.Files.Vanish(menus + MenuFileName(2));
    desk.World.Files.Vanish(menus + SingleFileName(2));
    desk.World.Desktop.SetSystemColor(15, 0x00123456);
    desk.World.Desktop.Send(desk.Strip.hWnd(), forms::message::SysColorChange, 0, 0);
    desk.World.Desktop.Pump();
    EXPECT_TRUE(desk.IsLine());
    EXPECT_EQ(desk.Bounds(), row.line);
    desk.PointAt(row.touch);
    desk.Poll();
    EXPECT_EQ(desk.Bounds(), row.revealed);
    const frmToolbar& strip = desk.Strip;
    EXPECT_EQ(strip.Buttons.ButtonCount, 5);
    EXPECT_EQ(strip.Singles.SingleCount, 2);
    EXPECT_TRUE(strip.picSingleButton.Visible());
    // Both boxes have the places of what is left.
    const ButtonRect& last = strip.Buttons.ToolbarButtons.back();
    if (IsVertical(row.at)) {
      EXPECT_EQ(strip.picToolbar.Height(), last.Bottom() + strip.TwipsY);
      EXPECT_EQ(strip.picSingleButton.Bottom(), strip.Height() - 2 * strip.TwipsY);
    } else {
      EXPECT_EQ(strip.picToolbar.Width(), last.Right() + strip.TwipsX);
      EXPECT_EQ(strip.picSingleButton.Right(), strip.Width() - 2 * strip.TwipsX);
      EXPECT_EQ(strip.lblDate.Right(), strip.picSingleButton.Width() - 50);
    }
    EXPECT_EQ(strip.lblDate.Visible(), !IsVertical(row.at));
  }
}

TEST(AutoHide, TheClaimIsMadeOnceAndMovesWithTheEdge) {
  HidingDesk desk;
  desk.StartHidden(Edge::Right);
  desk.PointAt({1023, 400});
  desk.GoElsewhere();
  desk.Poll();
  EXPECT_EQ(desk.World.Bars.Log(), (Messages{"getautohide 2", "querypos 2"}));
  desk.World.Bars.ClearLog();
  desk.Docking.SetAppBar(Edge::Left, true);
  EXPECT_EQ(desk.World.Bars.Log(),
            (Messages{"getautohide 0", "setautohide 2 0", "setautohide 0 1", "querypos 0"}));
  EXPECT_EQ(desk.World.Bars.HiddenBar(Edge::Right), kNoWindow);
  EXPECT_EQ(desk.World.Bars.HiddenBar(Edge::Left), desk.Strip.hWnd());
}

TEST(AutoHide, SwitchedOnAtAnEdgeTheStripIsALineThereAtOnce) {
  for (const float t : kScales) {
    for (const bool rebuild : {false, true}) {
      for (const LineRow& row : kLineRows) {
        SCOPED_TRACE(std::string(row.name) + (rebuild ? ", rebuilt " : " ") + std::to_string(t));
        DockDesk desk({.TwipsPerPixel = t});
        desk.StartAt(row.at);
        desk.TheProgram.Strip.AutoHide = true;
        desk.Docking.SetAppBar(std::nullopt, rebuild);
        EXPECT_EQ(desk.Bounds(), row.line);
        EXPECT_TRUE(desk.IsLine());
        EXPECT_TRUE(desk.Shown());
        EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 1024, 768}));
        desk.PointAt(row.touch);
        desk.Poll();
        EXPECT_EQ(desk.Bounds(), row.revealed);
        const forms::PictureBox& box = desk.Strip.picSingleButton;
        const bool upright = IsVertical(row.at);
        EXPECT_EQ(RoundToInt((upright ? box.Bottom() : box.Right()) / t),
                  RoundToInt((upright ? desk.Strip.Height() : desk.Strip.Width()) / t) - 2);
      }
    }
  }
}

TEST(AutoHide, SwitchedOffItGivesUpTheClaimAndStandsInFullSight) {
  for (const bool rebuild : {false, true}) {
    SCOPED_TRACE(rebuild);
    HidingDesk desk;
    desk.StartHidden(Edge::Right);
    desk.TheProgram.Strip.AutoHide = false;
    desk.Docking.SetAppBar(std::nullopt, rebuild);
    EXPECT_EQ(desk.World.Bars.Log(),
              (Messages{"setautohide 2 0", "querypos 2", "setpos 2 982,0,1024,768"}));
    EXPECT_EQ(desk.Bounds(), kLineRows[3].revealed);
    EXPECT_TRUE(desk.Strip.picToolbar.Visible());
    EXPECT_TRUE(desk.Strip.picSingleButton.Visible());
    EXPECT_EQ(desk.World.Bars.HiddenBar(Edge::Right), kNoWindow);
    desk.Poll();
    EXPECT_EQ(desk.WakeUps(2000), 0);
  }
}

TEST(AutoHide, SwitchedOnAtAnEdgeItGivesUpTheRoomThatItKept) {
  for (const Edge at : {Edge::Top, Edge::Bottom, Edge::Left, Edge::Right}) {
    SCOPED_TRACE(std::string(EdgeText(at)));
    DockDesk desk;
    desk.StartAt(at);
    ASSERT_FALSE(desk.World.Bars.KeptBy(desk.Strip.hWnd()).IsEmpty());
    desk.TheProgram.Strip.AutoHide = true;
    desk.Docking.SetAppBar(std::nullopt, false);
    EXPECT_TRUE(desk.World.Bars.KeptBy(desk.Strip.hWnd()).IsEmpty());
    EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 1024, 768}));
    EXPECT_TRUE(desk.World.Bars.IsRegistered(desk.Strip.hWnd()));
    EXPECT_EQ(desk.World.Bars.HiddenBar(at), desk.Strip.hWnd());
  }
}

TEST(AutoHide, SwitchedOffOnTheWayToAnotherEdgeItGivesUpTheOldSide) {
  HidingDesk desk;
  desk.StartHidden(Edge::Right);
  desk.TheProgram.Strip.AutoHide = false;
  desk.Docking.SetAppBar(Edge::Top, true);
  EXPECT_EQ(desk.World.Bars.Log()[0], "setautohide 2 0");
  EXPECT_EQ(desk.World.Bars.HiddenBar(Edge::Right), kNoWindow);
}

TEST(AutoHide, RestoreGivesUpTheClaimToo) {
  HidingDesk desk;
  desk.StartHidden(Edge::Left);
  desk.Strip.RestoreToolbar();
  const Messages& log = desk.World.Bars.Log();
  ASSERT_GE(log.size(), 3U);
  EXPECT_EQ(log[0], "setautohide 0 0");
  EXPECT_EQ(log[1], "remove");
  EXPECT_EQ(log[2], "new");
  EXPECT_EQ(desk.World.Bars.HiddenBar(Edge::Left), kNoWindow);
}

TEST(AutoHide, ATakenSideAtTheStartIsGivenUpInSilence) {
  HidingDesk desk;
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Title = "Another bar"});
  desk.World.Bars.ClaimAutoHide(Edge::Right, other);
  desk.StartAt(Edge::Right);
  EXPECT_TRUE(desk.World.Desktop.Boxes().empty());
  EXPECT_FALSE(desk.TheProgram.Strip.AutoHide);
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 982, 768}));
}

TEST(AutoHide, ASideTakenByAnotherIsToldOfOnceAndTheStripDocksInFullSight) {
  HidingDesk desk;
  desk.StartAt(Edge::Right);
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Title = "Another bar"});
  desk.World.Bars.ClaimAutoHide(Edge::Left, other);
  desk.World.Desktop.Answer(kTaken, forms::msgbox::AnswerOk);
  desk.PullAndDrop(QuarterOf(Edge::Left));
  ASSERT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(desk.World.Desktop.Boxes()[0].Title, "Corvelle");
  EXPECT_EQ(desk.World.Desktop.Boxes()[0].Flags, 262160U);
  EXPECT_EQ(desk.World.Desktop.Boxes()[0].Owner, desk.Strip.hWnd());
  EXPECT_EQ(desk.Bounds(), (PixelRect{0, 0, 41, 768}));
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{41, 0, 1024, 768}));
  EXPECT_EQ(desk.World.Bars.HiddenBar(Edge::Left), other);
  EXPECT_EQ(desk.World.Bars.HiddenBar(Edge::Right), kNoWindow);
  EXPECT_FALSE(desk.TheProgram.OptionFlags.Is(Option::AutoHide));
  EXPECT_FALSE(desk.TheProgram.Strip.AutoHide);
  EXPECT_TRUE(desk.Strip.picToolbar.Visible());
  EXPECT_TRUE(desk.TheProgram.Guards.ToolbarReady);
  EXPECT_FALSE(desk.TheProgram.Guards.AppBarBusy);
  desk.Poll();
  EXPECT_EQ(desk.WakeUps(2000), 0);
}

TEST(AutoHide, WhileTheMessageIsUpTheStripIsNotReady) {
  HidingDesk desk;
  desk.StartAt(Edge::Right);
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Title = "Another bar"});
  desk.World.Bars.ClaimAutoHide(Edge::Left, other);
  desk.World.Desktop.Answer(kTaken, forms::msgbox::AnswerOk);
  bool ready = true;
  desk.World.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) {
    ready = desk.TheProgram.Guards.ToolbarReady;
    desk.World.Bars.ClearLog();
    desk.World.Bars.TellBars();
    EXPECT_EQ(desk.World.Bars.Log(), Messages{});
    desk.World.Desktop.Advance(1000);
  });
  desk.Docking.SetAppBar(Edge::Left, true);
  EXPECT_FALSE(ready);
  EXPECT_TRUE(desk.TheProgram.Guards.ToolbarReady);
}

TEST(AutoHide, AStripThatGoesWhileTheMessageIsUpIsNotTouchedAnyMore) {
  HidingDesk desk;
  desk.StartAt(Edge::Right);
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Title = "Another bar"});
  desk.World.Bars.ClaimAutoHide(Edge::Left, other);
  desk.World.Desktop.Answer(kTaken, forms::msgbox::AnswerOk);
  desk.World.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) { desk.Exit(); });
  desk.Docking.SetAppBar(Edge::Left, true);
  EXPECT_FALSE(desk.Strip.IsLoaded());
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 1024, 768}));
}

// At these scales the twips of the line's place and thickness add up to less than those of the
// screen: only pixels tell that the line touches its edge.
TEST(AutoHide, ALineTouchesItsEdgeThoughItsTwipsFallShortOfTheScreen) {
  struct Row {
    int dpi;
    PixelSize screen;
  };
  for (const Row& row : {Row{168, {1680, 900}}, Row{168, {1792, 1800}}, Row{216, {2880, 1200}},
                         Row{336, {1680, 900}}, Row{336, {1792, 1800}}}) {
    SCOPED_TRACE(std::to_string(row.dpi) + ", " + std::to_string(row.screen.width));
    const float t = 1440.0F / static_cast<float>(row.dpi);
    for (const int length : {row.screen.width, row.screen.height}) {
      EXPECT_LT(static_cast<float>(length - 1) * t + t, static_cast<float>(length) * t);
    }
    const auto [w, h] = row.screen;
    for (const Edge at : {Edge::Right, Edge::Bottom}) {
      HidingDesk desk({.TwipsPerPixel = t, .Screen = row.screen});
      desk.StartHidden(at);
      EXPECT_TRUE(desk.Shown());
      EXPECT_TRUE(desk.IsLine());
      EXPECT_EQ(desk.Bounds(),
                (at == Edge::Right ? PixelRect{w - 1, 0, w, h} : PixelRect{0, h - 1, w, h}));
      desk.PointAt(at == Edge::Right ? PixelPoint{w - 1, 400} : PixelPoint{500, h - 1});
      desk.Poll();
      EXPECT_FALSE(desk.IsLine());
      EXPECT_TRUE(desk.Shown());
    }
  }
}

// Against the edge of the screen the pointer is stopped, and one pixel is enough. Here it passes.
TEST(AutoHide, BesideAnotherBarTheLineIsSeenAndThickEnoughToBeHit) {
  struct Row {
    const char* name;
    Edge at;
    PixelRect line;
    PixelRect revealed;
    PixelPoint overBar;
  };
  const Row rows[] = {
      {"top", Edge::Top, {0, 30, 1024, 34}, {0, 30, 1024, 71}, {500, 29}},
      {"bottom", Edge::Bottom, {0, 734, 1024, 738}, {0, 696, 1024, 738}, {500, 738}},
      {"left", Edge::Left, {30, 0, 34, 768}, {30, 0, 71, 768}, {29, 400}},
      {"right", Edge::Right, {990, 0, 994, 768}, {952, 0, 994, 768}, {994, 400}}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    HidingDesk desk;
    desk.World.Bars.AddOtherBar(row.at, 30);
    desk.StartHidden(row.at);
    for (int depth = 0; depth < 4; ++depth) {
      SCOPED_TRACE(depth);
      EXPECT_TRUE(desk.Shown());
      EXPECT_TRUE(desk.IsLine());
      EXPECT_EQ(desk.Bounds(), row.line);
      const PixelPoint touch = IsVertical(row.at) ? PixelPoint{row.line.left + depth, 400}
                                                  : PixelPoint{500, row.line.top + depth};
      EXPECT_EQ(desk.World.Desktop.WindowAt(touch), desk.Strip.hWnd());
      desk.PointAt(touch);
      desk.Poll();
      EXPECT_FALSE(desk.IsLine());
      EXPECT_EQ(desk.Bounds(), row.revealed);
      // Who goes on to the other bar has done with the strip, and no line lies there.
      desk.PointAt(row.overBar);
      desk.Poll();
      EXPECT_TRUE(desk.IsLine());
      desk.Poll();
      EXPECT_EQ(desk.Bounds(), row.line);
    }
  }
}

TEST(AutoHide, TheTaskBarAtTheSameEdgeIsNoLineEither) {
  HidingDesk desk;
  desk.World.Bars.AddTaskBar(Edge::Bottom, 40);
  desk.StartHidden(Edge::Bottom);
  EXPECT_TRUE(desk.Shown());
  for (const int y : {767, 748, 728, 723}) {
    desk.PointAt({500, y});
    desk.Poll();
    EXPECT_TRUE(desk.IsLine()) << y;
  }
  desk.PointAt({500, 724});
  desk.Poll();
  EXPECT_FALSE(desk.IsLine());
  EXPECT_EQ(desk.Bounds(), (PixelRect{0, 686, 1024, 728}));
}

TEST(AutoHide, ABarThatComesOutsideMovesTheLineAndItsEndLetsItBack) {
  HidingDesk desk;
  desk.StartHidden(Edge::Left);
  const WindowId other = desk.World.Bars.AddOtherBar(Edge::Left, 30);
  EXPECT_TRUE(desk.Shown());
  EXPECT_EQ(desk.Bounds(), (PixelRect{30, 0, 34, 768}));
  EXPECT_EQ(desk.World.Bars.KeptBy(desk.Strip.hWnd()), PixelRect{});
  desk.World.Bars.RemoveOtherBar(other);
  EXPECT_TRUE(desk.Shown());
  EXPECT_EQ(desk.Bounds(), (PixelRect{0, 0, 1, 768}));
}

TEST(AutoHide, ASideThatAnotherTookMeanwhileIsGivenUpWithTheNextNews) {
  HidingDesk desk;
  desk.StartHidden(Edge::Left);
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Title = "Another bar"});
  desk.World.Bars.ClaimAutoHide(Edge::Left, other);
  desk.World.Bars.TellBars();
  EXPECT_FALSE(desk.TheProgram.Strip.AutoHide);
  EXPECT_FALSE(desk.TheProgram.OptionFlags.Is(Option::AutoHide));
  EXPECT_EQ(desk.Bounds(), (PixelRect{0, 0, 41, 768}));
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{41, 0, 1024, 768}));
  EXPECT_TRUE(desk.Strip.picToolbar.Visible());
  EXPECT_TRUE(desk.Strip.bLine4.Visible());
}

TEST(AutoHide, AFloatingStripHidesBehindALineAtTheTop) {
  HidingDesk desk;
  desk.Start();
  const PixelRect shown = desk.Bounds();
  ASSERT_EQ(shown.top, -7);
  desk.GoElsewhere();
  desk.Poll();
  EXPECT_EQ(desk.Bounds(), (PixelRect{shown.left, 0, shown.right, 1}));
  EXPECT_TRUE(desk.IsLine());
  EXPECT_TRUE(desk.Shown());
  // Whoever moves it, it keeps its line.
  desk.World.Desktop.MoveOther(desk.Strip.hWnd(), {shown.left, 50, shown.right, 51});
  EXPECT_EQ(desk.Bounds().top, 0);
  // Beside the line nothing happens, on it the strip comes back.
  desk.PointAt({shown.left - 40, 0});
  desk.Poll();
  EXPECT_TRUE(desk.IsLine());
  desk.PointAt({shown.left + 20, 0});
  desk.Poll();
  EXPECT_EQ(desk.Bounds(), shown);
  EXPECT_TRUE(desk.Strip.picToolbar.Visible());
}

TEST(AutoHide, NothingHidesWhileAMenuOrAPictureIsUp) {
  HidingDesk desk;
  desk.StartAt(Edge::Right);
  desk.GoElsewhere();
  desk.Picture.LoadWindow();
  desk.Poll();
  EXPECT_FALSE(desk.IsLine());
  desk.Picture.UnloadWindow();
  desk.Menu.ShowNoActivate();
  desk.Poll();
  EXPECT_FALSE(desk.IsLine());
  desk.Menu.Hide();
  desk.Poll();
  EXPECT_TRUE(desk.IsLine());
}

TEST(AutoHide, ThePointerOverTheStripKeepsIt) {
  HidingDesk desk;
  desk.StartAt(Edge::Right);
  desk.GoElsewhere();
  desk.PointAtButton(2);
  desk.Poll();
  EXPECT_FALSE(desk.IsLine());
}

TEST(AutoHide, ATickInsideAHidingOrARevealStartsNoOther) {
  HidingDesk desk;
  desk.StartHidden(Edge::Right);
  // Under a full-screen program a reveal lets events through, and the pointer has gone on by then.
  desk.TheProgram.Strip.FullScreenApp = true;
  desk.World.Desktop.MoveOther(desk.World.Desktop.ForegroundWindow(), {0, 0, 1024, 768});
  int ticks = 0;
  const forms::TimerId inside = desk.World.Desktop.StartTimer(1, [&desk, &ticks] {
    ++ticks;
    EXPECT_TRUE(desk.TheProgram.Guards.HideBusy);
    // The strip is in full sight already, and the pointer and the foreground are elsewhere: a tick
    // that did its work would hide it.
    EXPECT_EQ(desk.Bounds(), kLineRows[3].revealed);
    desk.World.Bars.ClearLog();
    desk.Strip.Timer1_Timer();
    EXPECT_EQ(desk.World.Bars.Log(), Messages{});
  });
  desk.World.Desktop.Jump(5);
  desk.Strip.MouseMove(forms::MouseButton::None, {}, 0, 0);
  desk.World.Desktop.StopTimer(inside);
  EXPECT_EQ(ticks, 1);
  EXPECT_FALSE(desk.TheProgram.Guards.HideBusy);
  EXPECT_EQ(desk.Bounds(), kLineRows[3].revealed);
  // The same tick outside of the reveal hides the strip again.
  desk.Strip.Timer1_Timer();
  EXPECT_TRUE(desk.IsLine());
}

TEST(AutoHide, ColoursThatChangeInsideAHidingAreFollowed) {
  /// A shell in whose answers other programs' messages come through.
  struct BusyShell final : AppBars {
    BusyShell(AppBars& shell, const GuardFlags& guards) : Shell(shell), Guards(guards) {}
    std::uintptr_t Message(std::uint32_t message, AppBarRecord& data) override {
      if (Guards.AppBarBusy) {
        if (const auto action = std::exchange(WhilePlacing, nullptr)) action();
      }
      return Shell.Message(message, data);
    }
    AppBars& Shell;
    const GuardFlags& Guards;
    std::function<void()> WhilePlacing;
  };
  HidingDesk desk;
  BusyShell shell(desk.World.Bars, desk.TheProgram.Guards);
  const AppBarParts parts = AppBarPartsOf(desk.TheProgram);
  mAppBar docking({.Bars = shell,
                   .Desktop = parts.Desktop,
                   .Ports = parts.Ports,
                   .Guards = parts.Guards,
                   .Strip = parts.Strip,
                   .Options = parts.Options,
                   .Carry = parts.Carry,
                   .Messages = parts.Messages,
                   .Events = parts.Events},
                  desk.Strip);
  desk.TheProgram.Ports.Docking = &docking;
  desk.StartAt(Edge::Right);
  desk.GoElsewhere();
  bool inside = false;
  shell.WhilePlacing = [&] {
    inside = true;
    desk.World.Desktop.SetSystemColor(15, 0x00123456);
  };
  desk.Poll();
  EXPECT_TRUE(inside);
  ASSERT_TRUE(desk.IsLine());
  EXPECT_EQ(desk.Menu.Times("ResetPicIcons"), 1);
  EXPECT_EQ(desk.Strip.BaseColor, 0x00123456U);
  desk.TheProgram.Ports.Docking = &desk.Docking;
}

TEST(AutoHide, ATickInsideTheTickThatRevealsStartsNoOther) {
  HidingDesk desk;
  desk.StartHidden(Edge::Right);
  desk.TheProgram.Strip.FullScreenApp = true;
  // No move has come to the line yet.
  desk.World.Desktop.SetPointerPosition(kLineRows[3].touch);
  ASSERT_TRUE(desk.IsLine());
  int ticks = 0;
  const forms::TimerId inside = desk.World.Desktop.StartTimer(1, [&desk, &ticks] {
    ++ticks;
    // The pointer has gone on: a tick that did its work would hide the strip.
    desk.World.Desktop.SetPointerPosition({500, 400});
    desk.World.Bars.ClearLog();
    desk.Strip.Timer1_Timer();
    EXPECT_EQ(desk.World.Bars.Log(), Messages{});
    EXPECT_EQ(desk.Bounds(), kLineRows[3].revealed);
  });
  desk.World.Desktop.Jump(5);
  desk.Strip.Timer1_Timer();
  desk.World.Desktop.StopTimer(inside);
  EXPECT_EQ(ticks, 1);
  EXPECT_EQ(desk.Bounds(), kLineRows[3].revealed);
  desk.Strip.Timer1_Timer();
  EXPECT_TRUE(desk.IsLine());
}

TEST(AutoHide, ARevealUnderAFullScreenProgramComesBeforeTheWindowThatCovers) {
  for (const LineRow& row : kLineRows) {
    SCOPED_TRACE(row.name);
    HidingDesk desk;
    desk.StartHidden(row.at);
    desk.World.Bars.SetFullScreen(true);
    const WindowId cover =
        desk.World.Desktop.AddOtherWindow({.Title = "Full screen", .Bounds = {0, 0, 1024, 768}});
    desk.World.Desktop.TakeForeground(cover);
    desk.PointAt(row.touch);
    // The covering window comes to the front again while the strip shows itself.
    desk.Poll();
    const PixelRect now = desk.Bounds();
    EXPECT_EQ(now, row.revealed);
    const PixelPoint middle{(std::max(now.left, 0) + now.right) / 2,
                            (std::max(now.top, 0) + now.bottom) / 2};
    const WindowId seen = desk.World.Desktop.WindowAt(middle);
    EXPECT_TRUE(seen == desk.Strip.hWnd() || seen == desk.Strip.picToolbar.hWnd() ||
                seen == desk.Strip.picSingleButton.hWnd());
  }
}

TEST(AutoHide, RevealedUnderAFullScreenProgramTheStripIsTopmostUntilItHides) {
  for (const LineRow& row : kLineRows) {
    for (const bool topmost : {false, true}) {
      SCOPED_TRACE(std::string(row.name) + (topmost ? " under a topmost one" : ""));
      HidingDesk desk;
      desk.StartHidden(row.at);
      desk.World.Bars.SetFullScreen(true);
      const WindowId cover = desk.World.Desktop.AddOtherWindow(
          {.Title = "Full screen", .Bounds = {0, 0, 1024, 768}, .Topmost = topmost});
      desk.World.Desktop.TakeForeground(cover);
      EXPECT_FALSE(desk.World.Desktop.IsTopmost(desk.Strip.hWnd()));
      for (int round = 0; round < 2; ++round) {
        desk.PointAt(row.touch);
        desk.Poll();
        EXPECT_EQ(desk.Bounds(), row.revealed);
        EXPECT_TRUE(desk.World.Desktop.IsTopmost(desk.Strip.hWnd()));
        const PixelPoint middle{(std::max(row.revealed.left, 0) + row.revealed.right) / 2,
                                (std::max(row.revealed.top, 0) + row.revealed.bottom) / 2};
        EXPECT_NE(desk.World.Desktop.WindowAt(middle), cover);
        // The program in front keeps the keyboard, and the screen when the strip has gone.
        EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), cover);
        desk.PointAt({500, 400});
        desk.Poll();
        EXPECT_TRUE(desk.IsLine());
        EXPECT_FALSE(desk.World.Desktop.IsTopmost(desk.Strip.hWnd()));
        EXPECT_EQ(desk.World.Desktop.WindowAt(row.touch), cover);
      }
      desk.World.Bars.SetFullScreen(false);
      EXPECT_TRUE(desk.World.Desktop.IsTopmost(desk.Strip.hWnd()));
    }
  }
}

TEST(AutoHide, ACoveredStripIsPutBeforeTheOtherOnlyUnderAFullScreenProgram) {
  for (const bool fullScreen : {true, false}) {
    for (const bool option4 : {false, true}) {
      SCOPED_TRACE(std::to_string(fullScreen) + std::to_string(option4));
      DockDesk desk;
      desk.StartAt(Edge::Top);
      desk.World.Bars.SetFullScreen(true);
      desk.TheProgram.Strip.FullScreenApp = fullScreen;
      desk.SetOption(Option::AboveFullScreen, option4);
      const WindowId cover =
          desk.World.Desktop.AddOtherWindow({.Title = "Full screen", .Bounds = {0, 0, 1024, 768}});
      desk.World.Desktop.TakeForeground(cover);
      desk.Strip.Hiding.EnsureToolbarVisible();
      const bool before = desk.World.Desktop.WindowAt({50, 20}) != cover;
      EXPECT_EQ(before, fullScreen && !option4);
    }
  }
}

TEST(AutoHide, TheTimerDoesNoFileWork) {
  HidingDesk desk;
  desk.StartHidden(Edge::Right);
  desk.World.Files.ClearLog();
  desk.World.Desktop.ClearLog();
  desk.Wait(10000);
  EXPECT_TRUE(desk.World.Files.Log().empty());
  EXPECT_TRUE(desk.World.Desktop.Log().empty());
  EXPECT_TRUE(desk.World.Bars.Log().empty());
}

}  // namespace
}  // namespace corvelle
