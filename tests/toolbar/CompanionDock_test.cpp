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

TEST(CompanionDock, WhatHappensToADockedStripInTheTaskBarLeavesItsFloatingPlace) {
  struct Row {
    const char* name;
    std::function<void(CompanionDesk&)> before;
    std::function<void(CompanionDesk&)> meanwhile;
  };
  const Row rows[] = {
      {"an edit", [](CompanionDesk&) {},
       [](CompanionDesk& d) {
         const float gap = d.Strip.FreeWidth();
         d.World.Files.Put("C:\\Corvelle\\Menus\\" + SingleFileName(1),
                           Records({Entry("s", "", "C:\\s.exe")}));
         d.Strip.DoSingleButtons();
         d.Strip.ResizeAfterEdit(gap);
       }},
      {"an option", [](CompanionDesk&) {},
       [](CompanionDesk& d) { d.Strip.AdjustToolbarPosition(); }},
      {"the end of a pull",
       [](CompanionDesk& d) { d.Pull(QuarterOf(d.TheProgram.Strip.ToolbarEdge)); },
       [](CompanionDesk& d) { d.World.Desktop.Release(); }},
  };
  for (const Row& row : rows) {
    for (const Edge at : {Edge::Top, Edge::Bottom, Edge::Left, Edge::Right}) {
      SCOPED_TRACE(std::string(row.name) + " " + std::string(EdgeText(at)));
      CompanionDesk desk;
      desk.World.Files.Put(kPositionFile, PositionBytes(3000));
      desk.Start();
      const PixelRect floating = desk.Bounds();
      desk.Docking.SetAppBar(at, true);
      desk.World.Desktop.Pump();
      const PixelRect docked = desk.Bounds();
      row.before(desk);
      desk.GoIntoTheTaskBar();
      row.meanwhile(desk);
      EXPECT_EQ(desk.World.Files.Get(kPositionFile), PositionBytes(3000));
      EXPECT_FALSE(desk.Strip.Visible());
      desk.ComeBack();
      EXPECT_EQ(desk.Bounds(), docked);
      const forms::PictureBox& box = desk.Strip.picSingleButton;
      EXPECT_EQ(IsVertical(at) ? box.Bottom() : box.Right(),
                (IsVertical(at) ? desk.Strip.Height() : desk.Strip.Width()) - 30);
      desk.Strip.RestoreToolbar();
      EXPECT_EQ(desk.Bounds().TopLeft(), floating.TopLeft());
      EXPECT_EQ(desk.World.Files.Get(kPositionFile), PositionBytes(3000));
    }
  }
}

TEST(CompanionDock, AnEditOfAFloatingStripInTheTaskBarKeepsItsRightEnd) {
  CompanionDesk desk;
  desk.Start();
  const PixelRect before = desk.Bounds();
  desk.GoIntoTheTaskBar();
  const float gap = desk.Strip.FreeWidth();
  for (int i = 1; i <= 3; ++i) {
    desk.World.Files.Put("C:\\Corvelle\\Menus\\" + SingleFileName(i),
                         Records({Entry("s", "", "C:\\s.exe")}));
  }
  desk.Strip.DoSingleButtons();
  desk.Strip.ResizeAfterEdit(gap);
  desk.ComeBack();
  EXPECT_LT(desk.Bounds().left, before.left);
  EXPECT_EQ(desk.Bounds().right, before.right);
  EXPECT_EQ(desk.Bounds().top, before.top);
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
