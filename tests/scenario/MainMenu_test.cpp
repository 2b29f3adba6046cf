#include <gtest/gtest.h>

#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

// Its items, and how many lines stand above each.
constexpr int kItems = 11;
constexpr int kLargeIcons = 3;
constexpr int kHelpTopics = 6;
constexpr int kExit = 11;

int LinesAbove(int item) {
  int lines = 0;
  for (const int last : {3, 5, 7, 10}) lines += item > last ? 1 : 0;
  return lines;
}

PixelPoint MainItem(const Desk& desk, int item) {
  constexpr int kLine = 12;  // pixels that a line takes
  const PixelRect menu = desk.BoundsOf("frmQMenu");
  const int gap = desk.TwipsPerPixel() < 14 ? 6 : 7;
  const int text = (menu.Height() - 19 - LinesAbove(kItems) * kLine - (kItems - 1) * gap) / kItems;
  return {menu.left + 60,
          menu.top + 6 + (item - 1) * (text + gap) + LinesAbove(item) * kLine + text / 2};
}

class MainMenuAtEachScale : public ::testing::Test {
 protected:
  void SetUp() override {
    desk_ = MakeDesk();
    desk_->WriteFile(kFlagsFile, InstalledFlags());
    WriteMenu(*desk_, 1, "One", {Witness(*desk_, "one")});
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
  }

  void Choose(int item) {
    ASSERT_TRUE(OpenMenu(*desk_, 1));
    const PixelPoint at = MainItem(*desk_, item);
    desk_->MovePointer(at);
    desk_->Pause(200);
    desk_->Picture("choice-" + std::to_string(item));
    desk_->Click(at);
  }
  char Flag(int position) {
    const auto flags = desk_->ReadFile(kFlagsFile);
    return flags && flags->size() == 32 ? (*flags)[static_cast<std::size_t>(position) - 1] : '?';
  }

  std::unique_ptr<Desk> desk_;
};

using MainMenuRoad = MainMenuAtEachScale;

TEST_F(MainMenuAtEachScale, LargeIconsTurnSmallAndLargeAgain) {
  const int large = desk_->BoundsOf("picToolbar").Height();
  Choose(kLargeIcons);
  ASSERT_TRUE(desk_->Wait([&] { return desk_->BoundsOf("picToolbar").Height() < large; }));
  EXPECT_TRUE(desk_->Wait([&] { return Flag(26) == '0'; }));
  EXPECT_FALSE(desk_->IsVisible("frmQMenu"));
  desk_->MovePointer(FarAway(*desk_));
  desk_->Pause(300);
  Choose(kLargeIcons);
  EXPECT_TRUE(desk_->Wait([&] { return desk_->BoundsOf("picToolbar").Height() == large; }));
  EXPECT_TRUE(desk_->Wait([&] { return Flag(26) == '1'; }));
}

TEST_F(MainMenuRoad, HelpTopicsWithoutTheHelpFileSaysSo) {
  desk_->AnswerNext(kButtonOk);
  Choose(kHelpTopics);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Messages().empty(); }));
  EXPECT_EQ(desk_->Messages()[0].Title, "Corvelle");
  EXPECT_EQ(desk_->Messages()[0].Text, "Corvelle help file could not be found in Corvelle folder.");
  EXPECT_TRUE(desk_->Launched().empty());
  EXPECT_TRUE(desk_->IsVisible("frmToolbar"));
}

TEST_F(MainMenuRoad, ExitEndsTheProgramWithItsFlagsSaved) {
  desk_->WriteFile(kFlagsFile, "");
  Choose(kExit);
  EXPECT_TRUE(desk_->Wait([this] { return desk_->RunningCopies() == 0; }));
  EXPECT_EQ(desk_->ReadFile(kFlagsFile), InstalledFlags());
}

}  // namespace
}  // namespace corvelle::scenario
