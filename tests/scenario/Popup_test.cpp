// Right clicks and their popup, and a strip that other windows may cover.

#include <gtest/gtest.h>

#include "base/CodePage.h"
#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

/// A desk with two menus: "alpha", "beta" and "gamma" at button 2, "delta" at button 3.
class RightClick : public ::testing::Test {
 protected:
  void SetUp() override { Begin({}); }

  void Begin(const std::vector<int>& turned) {
    desk_ = MakeDesk();
    desk_->WriteFile(kFlagsFile, InstalledFlags(turned));
    desk_->WriteFile(kPositionFile,
                     PositionBytes(static_cast<float>(300 * desk_->TwipsPerPixel())));
    WriteMenu(*desk_, 1, "Letters",
              {Witness(*desk_, "alpha"), Witness(*desk_, "beta"), Witness(*desk_, "gamma")});
    WriteMenu(*desk_, 2, "Others", {Witness(*desk_, "delta")});
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
    ASSERT_EQ(ButtonCount(*desk_), 3);
  }

  /// The titles of a menu file, each followed by a bar.
  [[nodiscard]] std::string Titles(int number) const {
    const Windows1252 ansi;
    const std::string bytes = desk_->ReadFile("Menus\\" + MenuFileName(number)).value_or("");
    std::string titles;
    for (std::size_t at = 0; at < bytes.size(); at += kRecordLength) {
      titles += ParseRecord(std::string_view(bytes).substr(at), ansi).FTitle + "|";
    }
    return titles;
  }
  bool WaitForTitles(int number, const std::string& titles) {
    return desk_->Wait([&] { return Titles(number) == titles; });
  }

  bool WaitForButtons(int count) {
    if (!desk_->Wait([&] { return ButtonCount(*desk_) == count; })) return false;
    desk_->Pause(300);  // The strip gets its place and its icons.
    return ButtonCount(*desk_) == count;
  }

  /// A right click, and the choice in the popup that comes up.
  void ChooseAt(PixelPoint at, std::string_view choice) {
    // A hand moves before it presses, also where it is already.
    desk_->MovePointer({at.x + 4, at.y});
    desk_->Pause(50);
    desk_->MovePointer(at);
    desk_->Pause(200);
    desk_->ChooseFromPopup(choice);
    desk_->Click(at, Button::Right);
  }
  /// The same on item `item` of `count` in the open menu.
  void Choose(int item, int count, std::string_view choice) {
    ChooseAt(ItemMiddle(*desk_, item, count), choice);
  }
  [[nodiscard]] PixelPoint Frame() const {
    const PixelRect strip = desk_->BoundsOf("frmToolbar");
    return {strip.left, strip.bottom - 2};
  }

  std::unique_ptr<Desk> desk_;
};

using RightClickAtEachScale = RightClick;

TEST_F(RightClickAtEachScale, DeleteItemTakesAnItemAwayAndUndoDeleteBringsItBack) {
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  Choose(2, 3, "Delete Item");
  ASSERT_TRUE(WaitForTitles(1, "Letters|alpha|gamma|"));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 2));
  desk_->Picture("after-the-delete");
  Choose(1, 2, "Undo Delete");
  ASSERT_TRUE(WaitForTitles(1, "Letters|alpha|beta|gamma|"));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 2));
  desk_->Picture("after-the-undo");
}

TEST_F(RightClick, ItemsAreDeletedOneAfterTheOtherUnderAStillPointer) {
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  Choose(1, 3, "Delete Item");
  ASSERT_TRUE(WaitForTitles(1, "Letters|beta|gamma|"));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 2));
  desk_->Picture("the-next-one-selected");
  desk_->ChooseFromPopup("Delete Item");
  desk_->Press(Button::Right);
  desk_->Release(Button::Right);
  EXPECT_TRUE(WaitForTitles(1, "Letters|gamma|"));
}

TEST_F(RightClick, CopyItemAndPasteItemCarryItIntoAnotherMenuAndCutItemWithinOne) {
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  Choose(1, 3, "Copy Item");
  desk_->Pause(1500);
  ASSERT_FALSE(desk_->PopupIsUp());
  desk_->MovePointer(ButtonMiddle(*desk_, 3));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 3));
  Choose(1, 1, "Paste Item");
  ASSERT_TRUE(WaitForTitles(2, "Others|alpha|delta|"));
  EXPECT_EQ(Titles(1), "Letters|alpha|beta|gamma|");
  ASSERT_TRUE(WaitForMenuAt(*desk_, 3));
  Choose(2, 2, "Cut Item");
  ASSERT_TRUE(WaitForTitles(2, "Others|alpha|"));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 3));
  Choose(1, 1, "Paste Item");
  EXPECT_TRUE(WaitForTitles(2, "Others|delta|alpha|"));
}

TEST_F(RightClick, ANewItemAndASeparatorComeBeforeTheItemAndDeleteSeparatorTakesTheOneAbove) {
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  Choose(2, 3, "Insert Menu Item");
  ASSERT_TRUE(WaitForTitles(1, "Letters|alpha|New Menu Item|beta|gamma|"));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 2));
  Choose(4, 4, "Insert Separator");
  ASSERT_TRUE(WaitForTitles(1, "Letters|alpha|New Menu Item|beta|Separator|gamma|"));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 2));
  desk_->Picture("with-both");
  const PixelRect menu = desk_->BoundsOf("frmQMenu");
  ChooseAt({menu.left + 40, menu.bottom - 20}, "Delete Separator");
  ASSERT_TRUE(WaitForTitles(1, "Letters|alpha|New Menu Item|beta|gamma|"));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 2));
  Choose(4, 4, "Undo Delete");
  EXPECT_TRUE(WaitForTitles(1, "Letters|alpha|New Menu Item|beta|Separator|gamma|"));
}

TEST_F(RightClick, RefreshReadsTheMenuAnewAndAFolderInItIsClosedAndOpened) {
  const auto command = [this] {
    const std::string bytes = desk_->ReadFile("Menus\\" + MenuFileName(2)).value_or("");
    return bytes.size() < 3 * kRecordLength
               ? std::string()
               : ParseRecord(std::string_view(bytes).substr(2 * kRecordLength), Windows1252())
                     .FName;
  };
  desk_->WriteFile("Work\\one.txt", "x");
  desk_->WriteFile("Work\\two.txt", "x");
  ASSERT_TRUE(OpenMenu(*desk_, 3));
  const int before = desk_->BoundsOf("frmQMenu").Height();
  WriteMenu(*desk_, 2, "Others",
            {Witness(*desk_, "delta"), {.FTitle = "Work", .FName = "C:\\Corvelle\\Work\\*.*"}});
  Choose(1, 1, "Refresh");
  ASSERT_TRUE(desk_->Wait([&] { return desk_->BoundsOf("frmQMenu").Height() > before; }));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 3));
  const int open = desk_->BoundsOf("frmQMenu").Height();
  desk_->Picture("folder-open");
  Choose(2, 3, "Close Folder");
  ASSERT_TRUE(desk_->Wait([&] { return command() == "C:\\Corvelle\\Work\\*.* /X"; }));
  ASSERT_TRUE(desk_->Wait([&] { return desk_->BoundsOf("frmQMenu").Height() < open; }));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 3));
  desk_->Picture("folder-closed");
  Choose(2, 2, "Open Folder");
  ASSERT_TRUE(desk_->Wait([&] { return command() == "C:\\Corvelle\\Work\\*.*"; }));
  EXPECT_TRUE(desk_->Wait([&] { return desk_->BoundsOf("frmQMenu").Height() == open; }));
  EXPECT_EQ(Titles(2), "Others|delta|Work|");
}

TEST_F(RightClick, OnTheFrameAndOnAButtonItAddsButtonsAndReadsThemAnew) {
  ChooseAt(Frame(), "Add Button");
  ASSERT_TRUE(WaitForTitles(3, "New Button|New Menu Item|"));
  ASSERT_TRUE(WaitForButtons(4));
  desk_->Picture("with-a-fourth-button");
  ChooseAt(ButtonMiddle(*desk_, 2), "Add Button");
  ASSERT_TRUE(WaitForTitles(4, "New Button|New Menu Item|"));
  ASSERT_TRUE(WaitForButtons(5));
  WriteMenu(*desk_, 5, "Fifth", {Witness(*desk_, "epsilon")});
  ChooseAt(ButtonMiddle(*desk_, 3), "Refresh");
  ASSERT_TRUE(WaitForButtons(6));
  desk_->Picture("with-a-sixth-button");
  EXPECT_TRUE(OpenMenu(*desk_, 6));
}

TEST_F(RightClick, OnAButtonDeletesItAfterAQuestion) {
  desk_->AnswerNext(kButtonYes);
  desk_->ChooseFromPopup("Delete Item");
  desk_->Click(ButtonMiddle(*desk_, 2), Button::Right);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Messages().empty(); }));
  EXPECT_EQ(desk_->Messages()[0].Text,
            "If you delete a button, you cannot Undo Delete. Do you want to continue ?");
  ASSERT_TRUE(desk_->Wait([this] { return ButtonCount(*desk_) == 2; }));
  EXPECT_EQ(Titles(1), "Others|delta|");
  EXPECT_EQ(Titles(2), "");
}

TEST_F(RightClick, AClickElsewhereClosesThePopupAndTheMenu) {
  const PixelPoint away = FarAway(*desk_);
  desk_->OpenOtherWindow({away.x - 100, away.y - 50, away.x + 100, away.y + 50});
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  const PixelPoint second = ItemMiddle(*desk_, 2, 3);
  desk_->MovePointer(second);
  desk_->Pause(200);
  desk_->Click(second, Button::Right);
  desk_->Pause(500);
  desk_->Picture("popup-up");
  desk_->Click(away);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->PopupIsUp(); }));
  // One click may go to the popup alone.
  if (!desk_->Wait([this] { return !desk_->IsVisible("frmQMenu"); }, 1000)) desk_->Click(away);
  EXPECT_TRUE(WaitForNoMenu(*desk_));
  EXPECT_EQ(Titles(1), "Letters|alpha|beta|gamma|");
}

/// The same with a strip that is not on top.
class NotOnTop : public RightClick {
 protected:
  void SetUp() override { Begin({23}); }
};

TEST_F(NotOnTop, AClickOnTheTrayIconBringsTheStripBeforeTheWindowThatCoversIt) {
  desk_->Picture("tray-icon");
  desk_->OpenOtherWindow({100, 0, 800, 300});
  ASSERT_TRUE(desk_->Wait([this] { return desk_->ForegroundClass() == "OtherProgram"; }));
  desk_->Pause(300);
  desk_->Picture("covered");
  desk_->ClickTrayIcon();
  EXPECT_TRUE(desk_->Wait([this] { return desk_->ForegroundClass() == "frmToolbar"; }));
  desk_->Pause(300);
  desk_->Picture("in-front");
  EXPECT_TRUE(OpenMenu(*desk_, 2));
}

}  // namespace
}  // namespace corvelle::scenario
