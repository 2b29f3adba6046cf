#include <gtest/gtest.h>

#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

class HintsAtEachScale : public ::testing::Test {
 protected:
  void Start(const std::vector<int>& turned) {
    desk_ = MakeDesk();
    desk_->WriteFile(kFlagsFile, InstalledFlags(turned));
    WriteMenu(*desk_, 1, "Letters & Notes", {Witness(*desk_, "one")});
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
  }

  std::unique_ptr<Desk> desk_;
};

using HintsRoad = HintsAtEachScale;

TEST_F(HintsAtEachScale, AHintComesUpBelowTheButtonAndGoesWithThePointer) {
  Start({});
  desk_->MovePointer(ButtonMiddle(*desk_, 2));
  ASSERT_TRUE(desk_->Wait([this] { return desk_->IsVisible("frmHelp"); }));
  desk_->Pause(300);
  desk_->Picture("hint");
  EXPECT_TRUE(desk_->IsVisible("frmHelp"));
  const PixelRect hint = desk_->BoundsOf("frmHelp");
  EXPECT_GE(hint.top, desk_->Pointer().y + 10);
  EXPECT_LE(hint.right, desk_->ScreenSize().width);
  EXPECT_NE(desk_->ForegroundClass(), "frmHelp");
  desk_->MovePointer(FarAway(*desk_));
  EXPECT_TRUE(desk_->Wait([this] { return !desk_->IsVisible("frmHelp"); }));
}

TEST_F(HintsRoad, WithHintsOffNoneComesUp) {
  Start({22});
  desk_->MovePointer(ButtonMiddle(*desk_, 2));
  desk_->Pause(800);
  EXPECT_FALSE(desk_->IsVisible("frmHelp"));
}

TEST_F(HintsRoad, APressTakesTheHintAwayAndOpensTheMenu) {
  Start({});
  desk_->MovePointer(ButtonMiddle(*desk_, 2));
  ASSERT_TRUE(desk_->Wait([this] { return desk_->IsVisible("frmHelp"); }));
  EXPECT_TRUE(OpenMenu(*desk_, 2));
  EXPECT_FALSE(desk_->IsVisible("frmHelp"));
}

}  // namespace
}  // namespace corvelle::scenario
