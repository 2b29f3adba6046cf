#include <gtest/gtest.h>

#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

class MainMenuAtEachScale : public ::testing::Test {
 protected:
  void SetUp() override {
    desk_ = MakeDesk();
    desk_->WriteFile(kFlagsFile, InstalledFlags());
    WriteMenu(*desk_, 1, "One", {Witness(*desk_, "one")});
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
  }

  void Choose(MainChoice choice) { ASSERT_TRUE(ChooseInMainMenu(*desk_, choice)); }
  [[nodiscard]] char Flag(int position) const { return FlagAt(*desk_, position); }

  std::unique_ptr<Desk> desk_;
};

using MainMenuRoad = MainMenuAtEachScale;

TEST_F(MainMenuAtEachScale, LargeIconsTurnSmallAndLargeAgain) {
  const int large = desk_->BoundsOf("picToolbar").Height();
  Choose(MainChoice::LargeIcons);
  ASSERT_TRUE(desk_->Wait([&] { return desk_->BoundsOf("picToolbar").Height() < large; }));
  EXPECT_TRUE(desk_->Wait([&] { return Flag(26) == '0'; }));
  EXPECT_FALSE(desk_->IsVisible("frmQMenu"));
  desk_->MovePointer(FarAway(*desk_));
  desk_->Pause(300);
  Choose(MainChoice::LargeIcons);
  EXPECT_TRUE(desk_->Wait([&] { return desk_->BoundsOf("picToolbar").Height() == large; }));
  EXPECT_TRUE(desk_->Wait([&] { return Flag(26) == '1'; }));
}

TEST_F(MainMenuRoad, HelpTopicsWithoutAnyHelpSaysSo) {
  desk_->RemoveFile("Help\\index.html");
  desk_->AnswerNext(kButtonOk);
  Choose(MainChoice::HelpTopics);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Messages().empty(); }));
  EXPECT_EQ(desk_->Messages()[0].Title, "Corvelle");
  EXPECT_EQ(desk_->Messages()[0].Text, "Corvelle help file could not be found in Corvelle folder.");
  EXPECT_TRUE(desk_->Launched().empty());
  EXPECT_TRUE(desk_->IsVisible("frmToolbar"));
}

TEST_F(MainMenuRoad, ExitEndsTheProgramWithItsFlagsSaved) {
  desk_->WriteFile(kFlagsFile, "");
  Choose(MainChoice::Exit);
  EXPECT_TRUE(desk_->Wait([this] { return desk_->RunningCopies() == 0; }));
  EXPECT_EQ(desk_->ReadFile(kFlagsFile), InstalledFlags());
}

}  // namespace
}  // namespace corvelle::scenario
