#include <gtest/gtest.h>

#include "base/CodePage.h"
#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

using Titles = std::vector<std::string>;

/// A desk with two menus, whose items can be carried from one place to another.
class CarryRoad : public ::testing::Test {
 protected:
  void SetUp() override {
    desk_ = MakeDesk();
    desk_->WriteFile(kFlagsFile, InstalledFlags());
    desk_->WriteFile(kPositionFile,
                     PositionBytes(static_cast<float>(300 * desk_->TwipsPerPixel())));
    WriteMenu(*desk_, 1, "Letters",
              {Witness(*desk_, "alpha"), Witness(*desk_, "beta"), Witness(*desk_, "gamma"),
               Witness(*desk_, "delta")});
    WriteMenu(*desk_, 2, "Numbers", {Witness(*desk_, "one"), Witness(*desk_, "two")});
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
    ASSERT_EQ(ButtonCount(*desk_), 3);
  }
  void TearDown() override { desk_->LetKeyGo(kKeyControl); }

  /// Picks item `item` of the first menu up; Ctrl stays down.
  void PickUp(int item) {
    ASSERT_TRUE(OpenMenu(*desk_, 2));
    const PixelPoint at = ItemMiddle(*desk_, item, 4);
    desk_->MovePointer(at);
    desk_->Pause(150);
    desk_->HoldKey(kKeyControl);
    desk_->Pause(50);
    desk_->Press(Button::Left);
    desk_->Pause(150);
  }
  /// Carries on as a hand does, by way of a point in between.
  void CarryTo(PixelPoint at) {
    const PixelPoint from = desk_->Pointer();
    desk_->MovePointer({(from.x + at.x) / 2, (from.y + at.y) / 2});
    desk_->Pause(60);
    desk_->MovePointer(at);
    desk_->Pause(250);
  }
  void PutDown() {
    desk_->Release(Button::Left);
    desk_->Pause(300);
  }
  void LetCtrlGo() {
    desk_->LetKeyGo(kKeyControl);
    desk_->Pause(50);
  }
  /// Titles of a menu file's items.
  [[nodiscard]] Titles ItemsOf(int number) const {
    const Windows1252 ansi;
    Titles titles;
    const std::string bytes = desk_->ReadFile("Menus\\" + MenuFileName(number)).value_or("");
    for (std::size_t at = kRecordLength; at < bytes.size(); at += kRecordLength) {
      titles.push_back(ParseRecord(std::string_view(bytes).substr(at, kRecordLength), ansi).FTitle);
    }
    return titles;
  }
  bool WaitForItems(int number, const Titles& expected) {
    return desk_->Wait([&] { return ItemsOf(number) == expected; }, 4000);
  }

  std::unique_ptr<Desk> desk_;
};

// Runs at each scale of the screen.
using CarryRoadAtEachScale = CarryRoad;

TEST_F(CarryRoadAtEachScale, AnItemIsCarriedDownWithinItsMenu) {
  PickUp(1);
  LetCtrlGo();
  CarryTo(ItemMiddle(*desk_, 3, 4));
  desk_->Picture("over-the-third");
  PutDown();
  EXPECT_TRUE(WaitForItems(1, {"beta", "alpha", "gamma", "delta"}));
  EXPECT_TRUE(WaitForMenuAt(*desk_, 2));
  desk_->Picture("put-down");
  EXPECT_TRUE(desk_->Launched().empty());
  // The menu works as before: its first item is the one that was the second.
  ClickItem(*desk_, ItemMiddle(*desk_, 1, 4));
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Launched().empty(); }));
  EXPECT_EQ(desk_->Launched()[0].Arguments, "beta");
}

TEST_F(CarryRoad, AnItemIsCarriedUpWithinItsMenu) {
  PickUp(4);
  LetCtrlGo();
  CarryTo(ItemMiddle(*desk_, 1, 4));
  PutDown();
  EXPECT_TRUE(WaitForItems(1, {"delta", "alpha", "beta", "gamma"}));
  desk_->Picture("put-down-at-the-top");
}

TEST_F(CarryRoad, WithCtrlHeldItIsCopied) {
  PickUp(4);
  CarryTo(ItemMiddle(*desk_, 1, 4));
  // A key that is held repeats itself.
  desk_->HoldKey(kKeyControl);
  PutDown();
  EXPECT_TRUE(WaitForItems(1, {"delta", "alpha", "beta", "gamma", "delta"}));
  desk_->Picture("five-items");
}

TEST_F(CarryRoad, PutDownOnItselfNothingChangesAndNothingStarts) {
  PickUp(2);
  CarryTo(ItemMiddle(*desk_, 4, 4));
  CarryTo(ItemMiddle(*desk_, 2, 4));
  PutDown();
  EXPECT_EQ(ItemsOf(1), (Titles{"alpha", "beta", "gamma", "delta"}));
  EXPECT_TRUE(desk_->IsVisible("frmQMenu"));
  EXPECT_TRUE(desk_->Launched().empty());
}

TEST_F(CarryRoad, OnAnotherButtonItGoesToTheEndOfThatMenu) {
  for (const bool ctrl : {false, true}) {
    const Titles before = ItemsOf(1);
    const std::string second = before[1];
    PickUp(2);
    if (!ctrl) LetCtrlGo();
    CarryTo(ButtonMiddle(*desk_, 3));
    EXPECT_TRUE(WaitForMenuAt(*desk_, 3));
    desk_->Picture(ctrl ? "over-the-button-with-ctrl" : "over-the-button");
    PutDown();
    LetCtrlGo();
    ASSERT_TRUE(desk_->Wait([&] { return ItemsOf(2).back() == second; }, 4000));
    EXPECT_EQ(ItemsOf(1).size(), before.size() - 1);
    EXPECT_TRUE(WaitForMenuAt(*desk_, 3));
    desk_->Picture(ctrl ? "on-the-button-with-ctrl" : "on-the-button");
    desk_->Key(kKeyEscape);
    ASSERT_TRUE(WaitForNoMenu(*desk_));
    if (ctrl) break;
    WriteMenu(*desk_, 1, "Letters",
              {Witness(*desk_, "alpha"), Witness(*desk_, "beta"), Witness(*desk_, "gamma"),
               Witness(*desk_, "delta")});
    ASSERT_TRUE(CloseAndWait(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
  }
}

TEST_F(CarryRoad, IntoAnotherMenuThatOpensOnTheWay) {
  PickUp(2);
  LetCtrlGo();
  CarryTo(ButtonMiddle(*desk_, 3));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 3));
  CarryTo(ItemMiddle(*desk_, 2, 2));
  desk_->Picture("over-the-other-menu");
  PutDown();
  EXPECT_TRUE(WaitForItems(1, {"alpha", "gamma", "delta"}));
  EXPECT_TRUE(WaitForItems(2, {"one", "beta", "two"}));
  EXPECT_TRUE(WaitForMenuAt(*desk_, 3));
  desk_->Picture("in-the-other-menu");
}

TEST_F(CarryRoad, PutDownElsewhereItStaysWhereItWas) {
  PickUp(2);
  LetCtrlGo();
  CarryTo(FarAway(*desk_));
  desk_->Key(kKeyEscape);
  PutDown();
  desk_->Pause(500);
  EXPECT_EQ(ItemsOf(1), (Titles{"alpha", "beta", "gamma", "delta"}));
  EXPECT_EQ(ItemsOf(2), (Titles{"one", "two"}));
  EXPECT_TRUE(desk_->Launched().empty());
  EXPECT_EQ(desk_->RunningCopies(), 1);
}

TEST_F(CarryRoad, AReleaseThatAnotherProgramGotEndsTheCarry) {
  PickUp(2);
  LetCtrlGo();
  CarryTo(ButtonMiddle(*desk_, 3));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 3));
  CarryTo(FarAway(*desk_));
  PutDown();
  desk_->Pause(800);
  EXPECT_EQ(ItemsOf(1), (Titles{"alpha", "beta", "gamma", "delta"}));
  EXPECT_EQ(ItemsOf(2), (Titles{"one", "two"}));
  // The program goes on as if nothing had been carried.
  desk_->Key(kKeyEscape);
  desk_->Pause(300);
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  ClickItem(*desk_, ItemMiddle(*desk_, 3, 4));
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Launched().empty(); }));
  EXPECT_EQ(desk_->Launched()[0].Arguments, "gamma");
}

}  // namespace
}  // namespace corvelle::scenario
