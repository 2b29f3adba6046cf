#include <gtest/gtest.h>

#include <algorithm>

#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

/// A desk with an installed program and two menus: button 2 and button 3.
class Road : public ::testing::Test {
 protected:
  void SetUp() override {
    desk_ = MakeDesk();
    desk_->WriteFile(kFlagsFile, InstalledFlags());
    desk_->WriteFile(kPositionFile,
                     PositionBytes(static_cast<float>(300 * desk_->TwipsPerPixel())));
    WriteMenu(*desk_, 1, "Letters",
              {Witness(*desk_, "alpha"), Witness(*desk_, "beta \"two words\""),
               Witness(*desk_, "gamma")});
    WriteMenu(
        *desk_, 2, "Files",
        {{.FTitle = "Program", .FIcon = "\\icons\\tools.ico", .FName = desk_->WitnessProgram()},
         {.FTitle = "Document",
          .FIcon = desk_->WitnessDocument(),
          .FName = desk_->WitnessDocument()},
         {.FTitle = "Missing", .FIcon = "", .FName = "C:\\nowhere\\nothing.exe"},
         {.FTitle = "Nothing", .FIcon = "", .FName = ""}});
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
    ASSERT_EQ(ButtonCount(*desk_), 3);
  }

  bool WaitForLaunch() {
    return desk_->Wait([this] { return !desk_->Launched().empty(); });
  }

  void Choose(int button, int item, int count) {
    ASSERT_TRUE(OpenMenu(*desk_, button));
    const PixelPoint at = ItemMiddle(*desk_, item, count);
    ClickItem(*desk_, at);
  }

  std::unique_ptr<Desk> desk_;
};

// Runs at each scale of the screen.
using RoadAtEachScale = Road;

TEST_F(RoadAtEachScale, APressOpensTheMenuAndAChoiceClosesItAndStartsTheProgram) {
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  desk_->Picture("menu-open");
  const PixelPoint second = ItemMiddle(*desk_, 2, 3);
  desk_->MovePointer(second);
  desk_->Pause(200);
  desk_->Picture("second-selected");
  desk_->Click(second);
  EXPECT_TRUE(WaitForNoMenu(*desk_));
  ASSERT_TRUE(WaitForLaunch());
  EXPECT_EQ(desk_->Launched()[0].Program, desk_->WitnessProgram());
  EXPECT_EQ(desk_->Launched()[0].Arguments, "beta \"two words\"");
  desk_->Pause(500);
  EXPECT_EQ(desk_->Launched().size(), 1U);
  desk_->Picture("after-the-choice");
}

TEST_F(Road, MovingAlongTheStripChangesTheMenu) {
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  desk_->MovePointer(ButtonMiddle(*desk_, 3));
  EXPECT_TRUE(WaitForMenuAt(*desk_, 3));
  desk_->Picture("menu-of-the-third-button");
  desk_->MovePointer(ButtonMiddle(*desk_, 2));
  EXPECT_TRUE(WaitForMenuAt(*desk_, 2));
  desk_->MovePointer(ButtonMiddle(*desk_, 1));
  EXPECT_TRUE(WaitForMenuAt(*desk_, 1));
}

TEST_F(Road, ASecondPressClosesTheMenuAndAThirdOpensItAgain) {
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  desk_->Click(ButtonMiddle(*desk_, 2));
  EXPECT_TRUE(WaitForNoMenu(*desk_));
  desk_->Pause(300);
  EXPECT_FALSE(desk_->IsVisible("frmQMenu"));
  EXPECT_TRUE(OpenMenu(*desk_, 2));
}

TEST_F(Road, EscClosesTheMenu) {
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  desk_->Key(kKeyEscape);
  EXPECT_TRUE(WaitForNoMenu(*desk_));
  EXPECT_TRUE(desk_->Launched().empty());
}

TEST_F(Road, AClickElsewhereClosesTheMenu) {
  const PixelPoint away = FarAway(*desk_);
  desk_->OpenOtherWindow({away.x - 100, away.y - 50, away.x + 100, away.y + 50});
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  desk_->Click(away);
  EXPECT_TRUE(WaitForNoMenu(*desk_));
  EXPECT_TRUE(desk_->Launched().empty());
}

TEST_F(Road, TheKeyboardAloneGoesTheWholeRoad) {
  desk_->BringToFront("frmToolbar");
  ASSERT_TRUE(desk_->Wait([this] { return desk_->ForegroundClass() == "frmToolbar"; }));
  desk_->Key(kKeyF10);
  ASSERT_TRUE(
      desk_->Wait([this] { return desk_->BoundsOf("picToolbar").Contains(desk_->Pointer()); }));
  desk_->Key(kKeyRight);
  const PixelPoint second = ButtonMiddle(*desk_, 2);
  ASSERT_TRUE(desk_->Wait([&] { return std::abs(desk_->Pointer().x - second.x) < 8; }));
  desk_->Pause(250);  // As a hand does, and so that the pointer is where it was put for everyone.
  desk_->Key(kKeyEnter);
  ASSERT_TRUE(WaitForMenuAt(*desk_, 2));
  ASSERT_TRUE(desk_->Wait([this] { return desk_->ForegroundClass() == "frmQMenu"; }));
  desk_->Key(kKeyDown);
  desk_->Key(kKeyDown);
  desk_->Key(kKeyDown);
  desk_->Key(kKeyUp);
  desk_->Pause(200);
  desk_->Picture("second-selected-by-key");
  desk_->Key(kKeyEnter);
  EXPECT_TRUE(WaitForNoMenu(*desk_));
  ASSERT_TRUE(WaitForLaunch());
  EXPECT_EQ(desk_->Launched()[0].Program, desk_->WitnessProgram());
  EXPECT_EQ(desk_->Launched()[0].Arguments, "beta \"two words\"");
}

TEST_F(Road, ALetterFindsItsItem) {
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  ASSERT_TRUE(desk_->Wait([this] { return desk_->ForegroundClass() == "frmQMenu"; }));
  desk_->Type('g');
  desk_->Pause(200);
  desk_->Key(kKeyEnter);
  ASSERT_TRUE(WaitForLaunch());
  EXPECT_EQ(desk_->Launched()[0].Arguments, "gamma");
}

TEST_F(Road, AProgramStartsInItsOwnFolder) {
  Choose(3, 1, 4);
  ASSERT_TRUE(WaitForLaunch());
  EXPECT_EQ(desk_->Launched()[0].Program, desk_->WitnessProgram());
  EXPECT_EQ(desk_->Launched()[0].Arguments, "");
  const std::string path = desk_->WitnessProgram();
  EXPECT_EQ(desk_->Launched()[0].Folder, path.substr(0, path.rfind('\\')));
}

TEST_F(Road, ADocumentStartsThroughItsAssociationInItsOwnFolder) {
  Choose(3, 2, 4);
  ASSERT_TRUE(WaitForLaunch());
  const std::string path = desk_->WitnessDocument();
  EXPECT_EQ(desk_->Launched()[0].Program, desk_->WitnessProgram());
  EXPECT_EQ(desk_->Launched()[0].Arguments, "\"" + path + "\"");
  EXPECT_EQ(desk_->Launched()[0].Folder, path.substr(0, path.rfind('\\')));
}

TEST_F(Road, ALinkStartsInItsOwnWorkingFolderWithItsArguments) {
  const std::string link = desk_->MakeWitnessLink("by link", "C:\\documents");
  WriteMenu(*desk_, 2, "Links", {{.FTitle = "Link", .FIcon = "", .FName = link}});
  Choose(3, 1, 1);
  ASSERT_TRUE(WaitForLaunch());
  EXPECT_EQ(desk_->Launched()[0].Program, desk_->WitnessProgram());
  EXPECT_EQ(desk_->Launched()[0].Arguments, "by link");
  EXPECT_EQ(desk_->Launched()[0].Folder, "C:\\documents");
}

TEST_F(Road, ADamagedLinkStartsNothingAndIsSaidToBeUnavailable) {
  const std::string link = desk_->MakeDamagedLink();
  WriteMenu(*desk_, 2, "Links", {{.FTitle = "Link", .FIcon = "", .FName = link}});
  desk_->AnswerNext(kButtonOk);
  Choose(3, 1, 1);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Messages().empty(); }));
  EXPECT_EQ(desk_->Messages()[0].Text, "File/Device unavailable.");
  EXPECT_TRUE(WaitForNoMenu(*desk_));
  EXPECT_TRUE(desk_->Launched().empty());
  EXPECT_EQ(desk_->RunningCopies(), 1);
}

TEST_F(Road, AMissingFileIsSaidToBeUnavailable) {
  desk_->AnswerNext(kButtonOk);
  Choose(3, 3, 4);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Messages().empty(); }));
  EXPECT_EQ(desk_->Messages()[0].Title, "Corvelle");
  EXPECT_EQ(desk_->Messages()[0].Text, "File/Device unavailable.");
  EXPECT_FALSE(desk_->IsVisible("frmQMenu"));
  EXPECT_EQ(desk_->RunningCopies(), 1);
}

TEST_F(Road, AnEntryWithoutACommandSaysSo) {
  desk_->AnswerNext(kButtonOk);
  Choose(3, 4, 4);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Messages().empty(); }));
  EXPECT_EQ(desk_->Messages()[0].Title, "Corvelle");
  EXPECT_EQ(desk_->Messages()[0].Text,
            "Empty string in the File Field. Check your entries in the Customize window.");
}

TEST_F(Road, TheMenuOpensAgainAfterAChoice) {
  Choose(2, 1, 3);
  ASSERT_TRUE(WaitForLaunch());
  ASSERT_TRUE(WaitForNoMenu(*desk_));
  Choose(2, 3, 3);
  ASSERT_TRUE(desk_->Wait([this] { return desk_->Launched().size() == 2; }));
  EXPECT_EQ(desk_->Launched()[1].Arguments, "gamma");
}

/// A menu of 200 items, which no screen holds at once.
class PagedMenu : public ::testing::Test {
 protected:
  void SetUp() override {
    desk_ = MakeDesk();
    desk_->WriteFile(kFlagsFile, InstalledFlags());
    std::vector<MenuRecord> items;
    for (int i = 1; i <= 200; ++i) items.push_back(Witness(*desk_, std::to_string(i)));
    WriteMenu(*desk_, 1, "Long", items);
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
    ASSERT_TRUE(OpenMenu(*desk_, 2));
    ASSERT_TRUE(desk_->Wait([this] { return desk_->ForegroundClass() == "frmQMenu"; }));
  }

  /// Starts the item that the keys lead to, and gives back its number.
  int StartByKeys(const std::vector<int>& keys) {
    const std::size_t before = desk_->Launched().size();
    for (const int key : keys) {
      desk_->Key(key);
      desk_->Pause(150);
    }
    desk_->Key(kKeyEnter);
    if (!desk_->Wait([&] { return desk_->Launched().size() > before; })) return 0;
    return std::stoi(desk_->Launched()[before].Arguments);
  }

  std::unique_ptr<Desk> desk_;
};

using PagedMenuAtEachScale = PagedMenu;

TEST_F(PagedMenuAtEachScale, StaysOnTheScreenAndTurnsItsPages) {
  EXPECT_LE(desk_->BoundsOf("frmQMenu").bottom, desk_->ScreenSize().height);
  EXPECT_GT(desk_->BoundsOf("frmQMenu").Height(), desk_->ScreenSize().height / 2);
  desk_->Picture("first-page");
  desk_->Key(kKeyPageDown);
  desk_->Pause(300);
  desk_->Picture("second-page");
  desk_->Key(kKeyEnd);
  desk_->Pause(300);
  desk_->Picture("last-page");
}

TEST_F(PagedMenu, TheFirstItemOfTheSecondPageFollowsTheLastOfTheFirst) {
  const int last = StartByKeys({kKeyUp});
  ASSERT_GT(last, 10);
  ASSERT_LT(last, 100);
  ASSERT_TRUE(WaitForNoMenu(*desk_));
  desk_->MovePointer(FarAway(*desk_));
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  EXPECT_EQ(StartByKeys({kKeyPageDown, kKeyDown}), last + 1);
}

TEST_F(PagedMenu, EndShowsTheLastItem) { EXPECT_EQ(StartByKeys({kKeyEnd, kKeyUp}), 200); }

TEST_F(PagedMenu, ReopensOnThePageOnWhichItWasLeft) {
  ASSERT_EQ(StartByKeys({kKeyEnd, kKeyUp}), 200);
  ASSERT_TRUE(WaitForNoMenu(*desk_));
  desk_->MovePointer(FarAway(*desk_));
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  EXPECT_EQ(StartByKeys({kKeyUp}), 200);
}

TEST_F(PagedMenu, ALetterTurnsToItsPage) {
  EXPECT_GE(StartByKeys({'2'}), 2);
  ASSERT_TRUE(WaitForNoMenu(*desk_));
  desk_->MovePointer(FarAway(*desk_));
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  // The items that begin with 9 are 9 and those from 90 on.
  EXPECT_EQ(StartByKeys({'9', '9'}), 90);
}

}  // namespace
}  // namespace corvelle::scenario
