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

/// The notice that comes with the change to a strip that is not on top.
class TipAtEachScale : public HintsAtEachScale {
 protected:
  static constexpr int kNotOnTop = 23;  // options
  static constexpr int kNoNotice = 29;

  [[nodiscard]] bool FlagIs(int position, char value) const {
    const auto flags = desk_->ReadFile(kFlagsFile);
    return flags && flags->size() == 32 &&
           (*flags)[static_cast<std::size_t>(position) - 1] == value;
  }
  /// Chooses "Not On Top" in the program's own menu, and waits until it is on or off.
  bool Switch(bool on) {
    if (!OpenMenu(*desk_, 1)) return false;
    desk_->Pause(250);
    for (int item = 1; item <= 5; ++item) {
      desk_->Key(kKeyDown);
      desk_->Pause(100);
    }
    desk_->Pause(150);
    desk_->Key(kKeyEnter);
    const bool switched =
        desk_->Wait([&] { return FlagIs(kNotOnTop, on ? '1' : '0'); }) && WaitForNoMenu(*desk_);
    desk_->MovePointer(FarAway(*desk_));
    return switched;
  }
};

TEST_F(TipAtEachScale, TheNoticeIsReadTickedAndClosedByKeysAndDoesNotComeAgain) {
  Start({});
  ASSERT_TRUE(Switch(true));
  ASSERT_TRUE(desk_->Wait([this] { return desk_->ForegroundClass() == "frmTip"; }));
  desk_->Pause(300);
  desk_->Picture("tip");
  const PixelRect tip = desk_->BoundsOf("frmTip");
  EXPECT_NEAR(tip.left + tip.right, desk_->ScreenSize().width, 2);
  EXPECT_NEAR(tip.top + tip.bottom, desk_->ScreenSize().height, 2);
  desk_->Key(kKeyTab);
  desk_->Pause(100);
  desk_->Key(kKeySpace);
  desk_->Pause(300);
  desk_->Picture("tip-ticked");
  desk_->Key(kKeyEnter);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->IsVisible("frmTip"); }));
  EXPECT_TRUE(desk_->Wait([this] { return FlagIs(kNoNotice, '1'); }));
  ASSERT_TRUE(Switch(false));
  ASSERT_TRUE(Switch(true));
  desk_->Pause(600);
  EXPECT_FALSE(desk_->IsVisible("frmTip"));
}

}  // namespace
}  // namespace corvelle::scenario
