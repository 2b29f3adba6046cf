#include <gtest/gtest.h>

#include <cstdlib>

#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

/// A strip that stands 400 pixels from the left of the screen.
class Slide : public ::testing::Test {
 protected:
  void SetUp() override {
    desk_ = MakeDesk();
    desk_->WriteFile(kFlagsFile, InstalledFlags());
    desk_->WriteFile(kPositionFile,
                     PositionBytes(static_cast<float>(400 * desk_->TwipsPerPixel())));
    WriteMenu(*desk_, 1, "One", {{.FTitle = "One", .FIcon = "", .FName = desk_->WitnessProgram()}});
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
    ASSERT_EQ(Left(), 400);
  }

  int Left() const { return desk_->BoundsOf("frmToolbar").left; }

  /// Pulls the strip by its grip, as a hand does: press, several moves, release.
  void Pull(int pixels, int down) {
    PixelPoint at{desk_->BoundsOf("picToolbar").right + 4, 10};
    desk_->MovePointer(at);
    desk_->Press(Button::Left);
    for (int step = 1; step <= 5; ++step) {
      desk_->Pause(60);
      desk_->MovePointer({at.x + pixels * step / 5, at.y + down * step / 5});
    }
    desk_->Pause(60);
    desk_->Release(Button::Left);
    desk_->Pause(200);
  }

  std::unique_ptr<Desk> desk_;
};

TEST_F(Slide, TheStripGoesWithTheHandAndStaysAtTheTop) {
  const PixelRect before = desk_->BoundsOf("frmToolbar");
  Pull(-150, 0);
  const PixelRect after = desk_->BoundsOf("frmToolbar");
  EXPECT_EQ(after.left, before.left - 150);
  EXPECT_EQ(after.top, before.top);
  EXPECT_EQ(after.Width(), before.Width());
}

TEST_F(Slide, TheNewPlaceIsKeptOverARestart) {
  Pull(-150, 0);
  const int left = Left();
  ASSERT_NE(left, 400);
  ASSERT_TRUE(CloseAndWait(*desk_));
  EXPECT_EQ(PositionTwips(desk_->ReadFile(kPositionFile)),
            static_cast<float>(left * desk_->TwipsPerPixel()));
  ASSERT_TRUE(StartAndWait(*desk_));
  EXPECT_EQ(Left(), left);
}

TEST_F(Slide, TheStripNeverLeavesTheScreenOnTheLeft) {
  Pull(-600, 0);
  EXPECT_EQ(Left(), 0);
}

TEST_F(Slide, RoomForTheCaptionButtonsStaysFreeOnTheRight) {
  Pull(desk_->ScreenSize().width, 0);
  const PixelRect strip = desk_->BoundsOf("frmToolbar");
  EXPECT_LT(strip.right, desk_->ScreenSize().width - 40);
  EXPECT_GT(strip.left, 400);
}

TEST_F(Slide, ATremorOfTheHandMovesNothing) {
  Pull(3, 0);
  EXPECT_EQ(Left(), 400);
}

}  // namespace
}  // namespace corvelle::scenario
