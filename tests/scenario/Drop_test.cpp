#include <gtest/gtest.h>

#include "base/CodePage.h"
#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

/// A desk with two menus and another program's window, from which things are dragged.
class Drop : public ::testing::Test {
 protected:
  void SetUp() override {
    desk_ = MakeDesk();
    desk_->WriteFile(kFlagsFile, InstalledFlags());
    desk_->WriteFile(kPositionFile,
                     PositionBytes(static_cast<float>(300 * desk_->TwipsPerPixel())));
    WriteMenu(*desk_, 1, "Letters", {Witness(*desk_, "alpha"), Witness(*desk_, "beta")});
    WriteMenu(*desk_, 2, "Files", {Witness(*desk_, "gamma")});
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
    before_ = {ReadMenu(1), ReadMenu(2)};
  }

  void OpenSource(const std::vector<std::string>& files, std::string_view text = {}) {
    const PixelPoint away = FarAway(*desk_);
    desk_->OpenDragSource({away.x - 100, away.y - 60, away.x + 100, away.y + 60}, files, text);
  }
  std::vector<std::string> TwoFiles() const {
    return {desk_->WitnessProgram(), desk_->WitnessDocument()};
  }
  std::string ReadMenu(int number) const {
    return desk_->ReadFile("Menus\\" + MenuFileName(number)).value_or("(none)");
  }
  /// The file's records' commands, but the button's own.
  std::vector<std::string> Commands(int number) const {
    const std::string bytes = ReadMenu(number);
    std::vector<std::string> commands;
    for (std::size_t at = kRecordLength; at + kRecordLength <= bytes.size(); at += kRecordLength) {
      commands.push_back(ParseRecord(std::string_view(bytes).substr(at), Windows1252()).FName);
    }
    return commands;
  }
  bool Unchanged() const { return ReadMenu(1) == before_[0] && ReadMenu(2) == before_[1]; }

  std::unique_ptr<Desk> desk_;
  std::vector<std::string> before_;
};

using DropAtEachScale = Drop;

TEST_F(DropAtEachScale, TwoFilesDroppedOnAButtonStandAtTheEndOfItsMenu) {
  OpenSource(TwoFiles());
  desk_->DragTo(FarAway(*desk_), ButtonMiddle(*desk_, 2));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 2));
  desk_->Picture("menu-under-the-drag");
  desk_->Release(Button::Left);
  ASSERT_TRUE(desk_->Wait([this] { return Commands(1).size() == 4; }));
  EXPECT_EQ(Commands(1), (std::vector<std::string>{
                             desk_->WitnessProgram() + " alpha", desk_->WitnessProgram() + " beta",
                             desk_->WitnessDocument(), desk_->WitnessProgram()}));
  EXPECT_EQ(ReadMenu(2), before_[1]);
  EXPECT_TRUE(WaitForMenuAt(*desk_, 2));
  desk_->Pause(500);
  EXPECT_TRUE(desk_->IsVisible("frmQMenu"));
  desk_->Picture("after-the-drop");
  // And they start.
  const PixelPoint last = ItemMiddle(*desk_, 4, 4);
  desk_->MovePointer(last);
  desk_->Pause(200);
  desk_->Click(last);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Launched().empty(); }));
  EXPECT_EQ(desk_->Launched()[0].Program, desk_->WitnessProgram());
}

TEST_F(DropAtEachScale, TwoFilesDroppedIntoTheMenuThatOpenedStandBeforeTheItem) {
  OpenSource(TwoFiles());
  desk_->DragTo(FarAway(*desk_), ButtonMiddle(*desk_, 2));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 2));
  desk_->CarryTo(ItemMiddle(*desk_, 2, 2));
  desk_->Picture("over-the-second-item");
  desk_->Release(Button::Left);
  ASSERT_TRUE(desk_->Wait([this] { return Commands(1).size() == 4; }));
  EXPECT_EQ(Commands(1),
            (std::vector<std::string>{desk_->WitnessProgram() + " alpha", desk_->WitnessDocument(),
                                      desk_->WitnessProgram(), desk_->WitnessProgram() + " beta"}));
  EXPECT_TRUE(WaitForMenuAt(*desk_, 2));
  desk_->Picture("after-the-drop");
}

TEST_F(Drop, AFileDraggedWithTheRightButtonIsOpenedWithTheItem) {
  WriteMenu(*desk_, 2, "Files",
            {{.FTitle = "Witness", .FIcon = "", .FName = desk_->WitnessProgram()}});
  OpenSource({desk_->WitnessDocument()});
  desk_->DragTo(FarAway(*desk_), ButtonMiddle(*desk_, 3), Button::Right);
  ASSERT_TRUE(WaitForMenuAt(*desk_, 3));
  desk_->CarryTo(ItemMiddle(*desk_, 1, 1));
  desk_->Release(Button::Right);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Launched().empty(); }));
  EXPECT_EQ(desk_->Launched()[0].Program, desk_->WitnessProgram());
  EXPECT_EQ(desk_->Launched()[0].Arguments, "\"" + desk_->WitnessDocument() + "\"");
  EXPECT_TRUE(WaitForNoMenu(*desk_));
  EXPECT_EQ(Commands(2).size(), 1U);
}

TEST_F(Drop, ADragThatGoesOnClosesTheMenuAndChangesNothing) {
  OpenSource(TwoFiles());
  desk_->DragTo(FarAway(*desk_), ButtonMiddle(*desk_, 2));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 2));
  desk_->CarryTo(ButtonMiddle(*desk_, 3));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 3));
  desk_->CarryTo(FarAway(*desk_));
  EXPECT_TRUE(desk_->Wait([this] { return !desk_->IsVisible("frmQMenu"); }, 1000));
  desk_->Release(Button::Left);
  desk_->Pause(300);
  EXPECT_TRUE(Unchanged());
  EXPECT_EQ(desk_->ForegroundClass(), "DragSource");
}

TEST_F(Drop, TheMainMenuButtonTakesNothing) {
  OpenSource(TwoFiles());
  desk_->DragTo(FarAway(*desk_), ButtonMiddle(*desk_, 1));
  desk_->Pause(300);
  EXPECT_FALSE(desk_->IsVisible("frmQMenu"));
  desk_->Release(Button::Left);
  desk_->Pause(300);
  EXPECT_TRUE(Unchanged());
}

}  // namespace
}  // namespace corvelle::scenario
