#include <gtest/gtest.h>

#include "scenario/Strip.h"

// Out of sight and back: the task bar, the tray, Auto Hide and the edges, from the program's own
// menu.

namespace corvelle::scenario {
namespace {

class ModeRoad : public ::testing::Test {
 protected:
  /// Flags: positions that differ from an installed program that floats.
  void Begin(std::vector<int> turned = {}) {
    desk_->WriteFile(kFlagsFile, InstalledFlags(turned));
    for (int menu = 1; menu <= 3; ++menu) {
      WriteMenu(*desk_, menu, "Menu " + std::to_string(menu), {Witness(*desk_, "one")});
    }
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
  }
  /// Chooses in the program's own menu and takes the pointer away.
  void Choose(MainChoice choice) {
    ASSERT_TRUE(ChooseInMainMenu(*desk_, choice));
    ASSERT_TRUE(WaitForNoMenu(*desk_));
    desk_->MovePointer(FarAway(*desk_));
  }
  [[nodiscard]] PixelRect Strip() const { return desk_->BoundsOf("frmToolbar"); }
  [[nodiscard]] bool IsLine() const { return Strip().Width() == 1 || Strip().Height() == 1; }
  bool WaitForStrip(PixelRect at) {
    return desk_->Wait([=, this] { return desk_->IsVisible("frmToolbar") && Strip() == at; });
  }
  bool WaitForFlag(int position, char value) {
    return desk_->Wait([=, this] { return FlagAt(*desk_, position) == value; });
  }

  std::unique_ptr<Desk> desk_ = MakeDesk();
};

TEST_F(ModeRoad, MinimizedItIsAButtonInTheTaskBarAndAClickThereBringsItBack) {
  Begin();
  const PixelRect place = Strip();
  EXPECT_FALSE(desk_->HasTaskBarButton());
  Choose(MainChoice::Minimize);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->IsVisible("frmToolbar"); }));
  ASSERT_TRUE(desk_->Wait([this] { return desk_->HasTaskBarButton(); }));
  desk_->Pause(300);
  desk_->Picture("minimized");
  desk_->OpenOtherWindow({200, 200, 600, 500});
  desk_->ClickTaskBarButton();
  ASSERT_TRUE(WaitForStrip(place));
  EXPECT_TRUE(desk_->Wait([this] { return desk_->ForegroundClass() == "frmToolbar"; }));
  EXPECT_TRUE(desk_->Wait([this] { return !desk_->HasTaskBarButton(); }));
  desk_->Picture("back");
  EXPECT_TRUE(OpenMenu(*desk_, 2));
}

TEST_F(ModeRoad, MinimizedAtAnEdgeItGivesTheEdgeBackAndReturnsToItAlsoByASecondStart) {
  Begin({14, 15, 16});
  const PixelRect place = Strip();
  ASSERT_EQ(place.right, desk_->ScreenSize().width);
  Choose(MainChoice::Minimize);
  ASSERT_TRUE(desk_->Wait([this] { return desk_->HasTaskBarButton(); }));
  // Nothing stands there any more.
  EXPECT_EQ(desk_->OpenOtherBar(Edge::Right, 30).right, desk_->ScreenSize().width);
  desk_->CloseOtherBar();
  desk_->StartCorvelle();
  ASSERT_TRUE(WaitForStrip(place));
  EXPECT_TRUE(desk_->Wait([this] { return desk_->RunningCopies() == 1; }));
  EXPECT_EQ(ButtonCount(*desk_), 4);
  EXPECT_TRUE(OpenMenu(*desk_, 3));
  desk_->Key(kKeyEscape);
  ASSERT_TRUE(WaitForNoMenu(*desk_));
  // An end on the way leaves the edge to the next start.
  Choose(MainChoice::Minimize);
  ASSERT_TRUE(desk_->Wait([this] { return desk_->HasTaskBarButton(); }));
  ASSERT_TRUE(CloseAndWait(*desk_));
  EXPECT_EQ(desk_->ReadFile(kFlagsFile)->substr(13, 3), "111");
}

TEST_F(ModeRoad, NotOnTopPutsAnIconIntoTheTrayThatBringsAMinimizedStripBackToo) {
  Begin({14, 29});
  const PixelRect place = Strip();
  Choose(MainChoice::NotOnTop);
  ASSERT_TRUE(WaitForFlag(23, '1'));
  desk_->Pause(500);
  EXPECT_EQ(Strip(), place);
  desk_->Picture("not-on-top");
  Choose(MainChoice::Minimize);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->IsVisible("frmToolbar"); }));
  desk_->Pause(300);
  desk_->ClickTrayIcon();
  ASSERT_TRUE(WaitForStrip(place));
  EXPECT_TRUE(desk_->Wait([this] { return !desk_->HasTaskBarButton(); }));
  desk_->MovePointer(FarAway(*desk_));
  Choose(MainChoice::NotOnTop);
  EXPECT_TRUE(WaitForFlag(23, '0'));
  EXPECT_EQ(Strip(), place);
}

TEST_F(ModeRoad, AutoHideFromTheMenuHidesRevealsAndEndsWithTheStripInItsPlace) {
  Begin({14, 15, 16});
  const PixelRect place = Strip();
  const PixelSize screen = desk_->ScreenSize();
  desk_->OpenOtherWindow({200, 200, 600, 500});
  Choose(MainChoice::AutoHide);
  ASSERT_TRUE(WaitForFlag(3, '1'));
  desk_->BringToFront("OtherProgram");
  ASSERT_TRUE(desk_->Wait([this] { return IsLine(); }));
  desk_->Picture("line");
  desk_->MovePointer({screen.width - 1, screen.height / 2});
  ASSERT_TRUE(WaitForStrip(place));
  Choose(MainChoice::AutoHide);
  ASSERT_TRUE(WaitForFlag(3, '0'));
  desk_->BringToFront("OtherProgram");
  desk_->Pause(800);
  EXPECT_EQ(Strip(), place);
  ASSERT_TRUE(CloseAndWait(*desk_));
  EXPECT_EQ(desk_->ReadFile(kFlagsFile), InstalledFlags({14, 15, 16}));
}

TEST_F(ModeRoad, RestoreAndMaximizeGoBetweenTheTopAndTheStoredEdge) {
  for (const std::vector<int>& edge :
       {std::vector<int>{}, std::vector<int>{16}, std::vector<int>{15}}) {
    desk_ = nullptr;
    desk_ = MakeDesk();
    std::vector<int> flags = edge;
    flags.push_back(14);
    flags.push_back(25);
    Begin(flags);
    const PixelRect docked = Strip();
    Choose(MainChoice::Restore);
    ASSERT_TRUE(desk_->Wait([&] { return Strip().top < -3 && Strip().Height() < 60; }));
    ASSERT_TRUE(WaitForFlag(14, '0'));
    EXPECT_LT(Strip().Width(), desk_->ScreenSize().width);
    desk_->Pause(300);
    desk_->Picture("restored");
    Choose(MainChoice::Maximize);
    EXPECT_TRUE(WaitForStrip(docked));
    EXPECT_EQ(ButtonCount(*desk_), 4);
    // It stands there before it is ready: only then is the edge its own.
    EXPECT_TRUE(OpenMenu(*desk_, 2));
    desk_->Key(kKeyEscape);
    EXPECT_TRUE(WaitForNoMenu(*desk_));
    ASSERT_TRUE(CloseAndWait(*desk_));
    EXPECT_EQ(desk_->ReadFile(kFlagsFile), InstalledFlags(flags));
  }
}

TEST_F(ModeRoad, TheEndOfABarThatStoodOutsideLetsTheStripToTheEdge) {
  const PixelRect other = desk_->OpenOtherBar(Edge::Right, 30);
  Begin({14, 15, 16});
  EXPECT_EQ(Strip().right, other.left);
  desk_->CloseOtherBar();
  EXPECT_TRUE(desk_->Wait([this] { return Strip().right == desk_->ScreenSize().width; }));
  EXPECT_EQ(Strip().Height(), desk_->ScreenSize().height);
  desk_->Pause(200);
  EXPECT_TRUE(OpenMenu(*desk_, 2));
}

}  // namespace
}  // namespace corvelle::scenario
