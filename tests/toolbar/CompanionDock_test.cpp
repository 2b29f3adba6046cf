// The companion and a strip that stands at an edge: Not On Top, into the task bar and back.

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "toolbar/DockDesk.h"

namespace corvelle {
namespace {

struct CompanionDesk : DockDesk {
  void GoIntoTheTaskBar() {
    Companion.MinimizeFor(Strip.WindowBounds());
    World.Desktop.Pump();
    Menu.Asked.clear();
  }
  void ComeBack() {
    Companion.RestoreWindow();
    World.Desktop.Pump();
  }
};

TEST(CompanionDock, NotOnTopEmptiesTheIconCollectionsOnTheWayInAlone) {
  CompanionDesk desk;
  desk.StartAt(Edge::Right);
  desk.Menu.Asked.clear();
  desk.Companion.ActivateSysTray();
  EXPECT_EQ(desk.Menu.Times("ResetPicIcons"), 1);
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 1024, 768}));
  desk.Companion.DeActivateSysTray();
  EXPECT_EQ(desk.Menu.Times("ResetPicIcons"), 1);
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 982, 768}));
}

TEST(CompanionDock, AReturnToAnEdgeEmptiesTheIconCollections) {
  CompanionDesk desk;
  desk.StartAt(Edge::Right);
  desk.GoIntoTheTaskBar();
  desk.ComeBack();
  EXPECT_EQ(desk.Menu.Times("ResetPicIcons"), 1);
}

TEST(CompanionDock, AnUprightStripThatReturnsElsewhereEmptiesThemOnceMore) {
  CompanionDesk desk;
  desk.World.Bars.AddOtherBar(Edge::Left, 30);
  desk.StartAt(Edge::Right);
  desk.GoIntoTheTaskBar();
  desk.World.Bars.AddTaskBar(Edge::Top, 28);
  desk.ComeBack();
  EXPECT_EQ(desk.Bounds().top, 28);
  EXPECT_EQ(desk.Menu.Times("ResetPicIcons"), 2);
}

TEST(CompanionDock, AHiddenStripThatWentIntoTheTaskBarStaysThereWhateverWouldRevealIt) {
  CompanionDesk desk;
  desk.SetOption(Option::AutoHide, true);
  desk.StartAt(Edge::Right);
  desk.TheProgram.Ports.Docking->HideToolbar();
  desk.GoIntoTheTaskBar();
  desk.TheProgram.Ports.Docking->RevealToolbar();
  EXPECT_FALSE(desk.Strip.Visible()) << "as when Customize saves meanwhile";
  desk.ComeBack();
  EXPECT_TRUE(desk.Strip.Visible());
  EXPECT_TRUE(desk.TheProgram.Guards.ToolbarReady);
}

TEST(CompanionDock, ASecondStartWhileTheMessageOfATakenSideIsUpChangesNothingOfTheReturn) {
  CompanionDesk desk;
  desk.SetOption(Option::AutoHide, true);
  desk.StartAt(Edge::Right);
  desk.GoIntoTheTaskBar();
  desk.World.Bars.ClaimAutoHide(Edge::Right, desk.World.Desktop.AddOtherWindow({.Title = "Bar"}));
  desk.World.Desktop.Answer(forms::msgbox::AnswerOk);
  desk.World.Desktop.WhileBoxIsUp([&](const sim::MessageBox&) {
    desk.World.Desktop.Send(desk.Companion.hWnd(), forms::message::Size, 0, 0);
    desk.World.Desktop.Advance(600);
  });
  desk.ComeBack();
  EXPECT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(desk.Bounds(), (PixelRect{982, 0, 1024, 768}));
  EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 982, 768}));
  EXPECT_TRUE(desk.TheProgram.Guards.ToolbarReady);
  EXPECT_FALSE(desk.Companion.Visible());
  desk.Poll();
  EXPECT_EQ(desk.WakeUps(2000), 0);
}

TEST(CompanionDock, TheEndInTheMidstOfAChangeLeavesNoBarNoIconAndNoFlag) {
  struct Row {
    const char* name;
    std::function<void(CompanionDesk&)> before;
    std::function<void(CompanionDesk&)> change;
  };
  const Row rows[] = {
      {"Not On Top", [](CompanionDesk&) {},
       [](CompanionDesk& d) { d.Companion.ActivateSysTray(); }},
      {"on top again", [](CompanionDesk& d) { d.Companion.ActivateSysTray(); },
       [](CompanionDesk& d) { d.Companion.DeActivateSysTray(); }},
      {"the return", [](CompanionDesk& d) { d.GoIntoTheTaskBar(); },
       [](CompanionDesk& d) { d.ComeBack(); }},
      {"a restore", [](CompanionDesk&) {}, [](CompanionDesk& d) { d.Strip.RestoreToolbar(); }},
  };
  for (const Row& row : rows) {
    for (const bool hides : {false, true}) {
      SCOPED_TRACE(std::string(row.name) + (hides ? ", hiding" : ""));
      CompanionDesk desk;
      desk.SetOption(Option::AutoHide, hides);
      desk.StartAt(Edge::Right);
      row.before(desk);
      const forms::TimerId end = desk.World.Desktop.StartTimer(1, [&desk] { desk.Exit(); });
      desk.World.Desktop.Jump(5);
      row.change(desk);
      desk.World.Desktop.StopTimer(end);
      EXPECT_FALSE(desk.Strip.IsLoaded());
      EXPECT_TRUE(desk.World.Tray.Shown.empty());
      EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 1024, 768}));
      EXPECT_EQ(desk.World.Desktop.Clock().Running(), 0);
      EXPECT_FALSE(desk.TheProgram.Guards.AppBarBusy);
      EXPECT_FALSE(desk.TheProgram.Guards.PosChangeRunning);
      EXPECT_FALSE(desk.TheProgram.Guards.RestoreBusy);
    }
  }
}

}  // namespace
}  // namespace corvelle
