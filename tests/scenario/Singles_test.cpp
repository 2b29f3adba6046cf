#include <gtest/gtest.h>

#include "base/CodePage.h"
#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

constexpr int kRunOnClick = 11;  // options
constexpr int kLargeFloating = 25;

/// A floating strip with one menu and three single buttons: "one", "two", "three", each of which
/// starts the witness with its name.
class Singles : public ::testing::Test {
 protected:
  void Begin(const std::vector<int>& turned) {
    desk_ = MakeDesk();
    // Large icons are on in an installed program; the roads go along small ones.
    std::vector<int> flags = turned;
    flags.insert(flags.end(), {24, 26});
    desk_->WriteFile(kFlagsFile, InstalledFlags(flags));
    desk_->WriteFile(kPositionFile,
                     PositionBytes(static_cast<float>(300 * desk_->TwipsPerPixel())));
    WriteMenu(*desk_, 1, "Letters", {Witness(*desk_, "alpha")});
    const std::vector<std::string> names = {"one", "two", "three"};
    for (std::size_t i = 0; i < names.size(); ++i) Put(static_cast<int>(i) + 1, names[i]);
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
  }

  void Put(int number, const std::string& name) {
    desk_->WriteFile("Menus\\" + SingleFileName(number),
                     FormatRecord(Witness(*desk_, name), Windows1252()));
  }

  /// The names on the disk in the order of the files, with a blank between.
  std::string Names() const {
    std::string names;
    for (const std::string& file : desk_->Files("Menus")) {
      if (!file.ends_with(".BTN")) continue;
      const MenuRecord record =
          ParseRecord(desk_->ReadFile("Menus\\" + file).value_or(""), Windows1252());
      names += (names.empty() ? "" : " ") + record.FTitle;
    }
    return names;
  }
  bool WaitForNames(const std::string& names) {
    return desk_->Wait([&] { return Names() == names; }, 4000);
  }

  /// The middle of a single button of 16 pixels in one row; screen pixels.
  PixelPoint Middle(int single) const {
    const PixelRect box = desk_->BoundsOf("picSingleButton");
    return {box.left + 5 + (single - 1) * 18 + 8, (box.top + box.bottom) / 2};
  }

  bool WaitForLaunches(std::size_t count) {
    return desk_->Wait([&] { return desk_->Launched().size() >= count; });
  }

  /// Presses a button and carries it as a hand does; it stays down.
  void CarryTo(int single, PixelPoint to) {
    const PixelPoint from = Middle(single);
    desk_->MovePointer(from);
    desk_->Pause(100);
    desk_->Press(Button::Left);
    for (int step = 1; step <= 5; ++step) {
      desk_->Pause(60);
      desk_->MovePointer(
          {from.x + (to.x - from.x) * step / 5, from.y + (to.y - from.y) * step / 5});
    }
    desk_->Pause(60);
  }

  std::unique_ptr<Desk> desk_;
};

using SinglesAtEachScale = Singles;

TEST_F(SinglesAtEachScale, AClickRunsTheButton) {
  Begin({kRunOnClick});
  desk_->MovePointer(Middle(2));
  desk_->Pause(200);
  desk_->Picture("singles-hover");
  desk_->Click(Middle(2));
  ASSERT_TRUE(WaitForLaunches(1));
  EXPECT_EQ(desk_->Launched()[0].Arguments, "two");
  desk_->Pause(500);
  EXPECT_EQ(desk_->Launched().size(), 1U);
}

TEST_F(Singles, WithoutTheOptionADoubleClickRunsIt) {
  Begin({});
  desk_->Click(Middle(3));
  desk_->Pause(900);
  EXPECT_TRUE(desk_->Launched().empty());
  desk_->DoubleClick(Middle(3));
  ASSERT_TRUE(WaitForLaunches(1));
  EXPECT_EQ(desk_->Launched()[0].Arguments, "three");
  desk_->Pause(500);
  EXPECT_EQ(desk_->Launched().size(), 1U);
}

TEST_F(Singles, CarriedToAnotherButtonItStandsInFront) {
  Begin({kRunOnClick});
  CarryTo(3, Middle(1));
  desk_->Release(Button::Left);
  EXPECT_TRUE(WaitForNames("three one two")) << Names();
  desk_->Pause(300);
  desk_->Picture("singles-carried");
  EXPECT_TRUE(desk_->Launched().empty());
  // What is seen is what is run.
  desk_->Click(Middle(1));
  ASSERT_TRUE(WaitForLaunches(1));
  EXPECT_EQ(desk_->Launched()[0].Arguments, "three");
}

TEST_F(Singles, TheRightButtonDropsACopy) {
  Begin({kRunOnClick});
  const int width = desk_->BoundsOf("frmToolbar").Width();
  CarryTo(3, Middle(1));
  desk_->Press(Button::Right);
  desk_->Release(Button::Right);
  EXPECT_TRUE(WaitForNames("three one two three")) << Names();
  desk_->Release(Button::Left);
  desk_->Pause(300);
  EXPECT_EQ(desk_->BoundsOf("frmToolbar").Width(), width + 18);
  EXPECT_TRUE(desk_->Launched().empty());
}

TEST_F(Singles, RightClicksCutPasteDeleteAndBringBack) {
  Begin({kRunOnClick});
  const auto choose = [this](PixelPoint at, std::string_view choice) {
    desk_->MovePointer(at);
    desk_->Pause(200);
    desk_->ChooseFromPopup(choice);
    desk_->Click(at, Button::Right);
  };
  const auto becomes = [this](const std::string& names) {
    const bool came = WaitForNames(names);
    desk_->Pause(300);  // The strip gets its place.
    return came;
  };
  choose(Middle(2), "Cut Item");
  ASSERT_TRUE(becomes("one three")) << Names();
  choose(Middle(1), "Paste Item");
  ASSERT_TRUE(becomes("two one three")) << Names();
  choose(Middle(3), "Delete Item");
  ASSERT_TRUE(becomes("two one")) << Names();
  choose(Middle(1), "Undo Delete");
  ASSERT_TRUE(becomes("two one three")) << Names();
  choose(Middle(2), "Copy Item");
  desk_->Pause(1500);
  ASSERT_FALSE(desk_->PopupIsUp());
  // Behind the last button the row is bare.
  const PixelRect box = desk_->BoundsOf("picSingleButton");
  choose({box.right - 3, (box.top + box.bottom) / 2}, "Paste Item");
  ASSERT_TRUE(becomes("two one three one")) << Names();
  desk_->Picture("singles-pasted");
  EXPECT_TRUE(desk_->Launched().empty());
  desk_->Click(Middle(4));
  ASSERT_TRUE(WaitForLaunches(1));
  EXPECT_EQ(desk_->Launched()[0].Arguments, "one");
}

TEST_F(Singles, ADropOnAnotherProgramChangesNothing) {
  Begin({kRunOnClick});
  CarryTo(2, FarAway(*desk_));
  desk_->Release(Button::Left);
  desk_->Pause(400);
  EXPECT_EQ(Names(), "one two three");
  EXPECT_TRUE(desk_->Launched().empty());
}

TEST_F(Singles, TheMiddleFileOfThreeMayGo) {
  Begin({kRunOnClick});
  ASSERT_TRUE(CloseAndWait(*desk_));
  desk_->RemoveFile("Menus\\BMENU002.BTN");
  ASSERT_TRUE(StartAndWait(*desk_));
  desk_->Picture("singles-two-left");
  desk_->Click(Middle(2));
  ASSERT_TRUE(WaitForLaunches(1));
  EXPECT_EQ(desk_->Launched()[0].Arguments, "three");
  // Not the second press of a double click.
  desk_->Pause(900);
  // The next change closes the numbers.
  CarryTo(2, Middle(1));
  desk_->Release(Button::Left);
  EXPECT_TRUE(WaitForNames("three one"));
  EXPECT_TRUE(desk_->ReadFile("Menus\\BMENU002.BTN").has_value());
  EXPECT_FALSE(desk_->ReadFile("Menus\\BMENU003.BTN").has_value());
}

TEST_F(SinglesAtEachScale, TwoRowsStandInATallStrip) {
  // The flags turned twice are as an installed program has them: large icons, small single buttons.
  Begin({kRunOnClick, kLargeFloating, 24, 26});
  desk_->MovePointer(FarAway(*desk_));
  desk_->Pause(300);
  desk_->Picture("singles-two-rows");
  const PixelRect box = desk_->BoundsOf("picSingleButton");
  ASSERT_GE(box.Height(), 38);
  // The second stands below the first, the third beside it.
  desk_->Click({box.left + 5 + 8, box.top + box.Height() * 3 / 4});
  ASSERT_TRUE(WaitForLaunches(1));
  EXPECT_EQ(desk_->Launched()[0].Arguments, "two");
  desk_->Click({box.left + 5 + 18 + 8, box.top + box.Height() / 4 + 1});
  ASSERT_TRUE(WaitForLaunches(2));
  EXPECT_EQ(desk_->Launched()[1].Arguments, "three");
}

}  // namespace
}  // namespace corvelle::scenario
