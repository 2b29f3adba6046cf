// Where the keyboard is after a command that hides, disables or rebuilds a window.

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "base/CodePage.h"
#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

/// A strip with a menu of "alpha", "beta" and "gamma" at its second button, and another program's
/// window behind it.
class Keyboard : public ::testing::Test {
 protected:
  void Begin(std::vector<int> turned = {}) {
    // Without the tips that some commands show.
    turned.push_back(29);
    desk_->WriteFile(kFlagsFile, InstalledFlags(turned));
    desk_->WriteFile(kPositionFile,
                     PositionBytes(static_cast<float>(300 * desk_->TwipsPerPixel())));
    WriteMenu(*desk_, 1, "Letters",
              {Witness(*desk_, "alpha"), Witness(*desk_, "beta"), Witness(*desk_, "gamma")});
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
    const PixelPoint away = FarAway(*desk_);
    desk_->OpenOtherWindow({away.x - 100, away.y - 50, away.x + 100, away.y + 50});
  }

  [[nodiscard]] bool WaitForForeground(const std::string& name) {
    return desk_->Wait([&] { return desk_->ForegroundClass() == name; });
  }
  [[nodiscard]] int Items() const {
    const std::string bytes = desk_->ReadFile("Menus\\" + MenuFileName(1)).value_or("");
    return static_cast<int>(bytes.size() / kRecordLength) - 1;
  }

  /// The menu is up and has the keyboard, also when its poll has looked: the letter chooses its
  /// item, and Enter starts it.
  void ExpectKeysInMenu(char letter, const std::string& started) {
    ASSERT_TRUE(WaitForMenuAt(*desk_, 2));
    desk_->Pause(400);
    ASSERT_TRUE(WaitForMenuAt(*desk_, 2));
    EXPECT_EQ(desk_->ForegroundClass(), "frmQMenu");
    const std::size_t before = desk_->Launched().size();
    desk_->Type(letter);
    desk_->Pause(200);
    desk_->Key(kKeyEnter);
    EXPECT_TRUE(WaitForNoMenu(*desk_));
    ASSERT_TRUE(desk_->Wait([&] { return desk_->Launched().size() > before; }));
    EXPECT_EQ(desk_->Launched().back().Arguments, started);
  }

  /// A right click on item `item` of `count`, and the choice in the popup that comes up.
  void Choose(int item, int count, std::string_view choice) {
    const PixelPoint at = ItemMiddle(*desk_, item, count);
    desk_->MovePointer({at.x + 4, at.y});
    desk_->Pause(50);
    desk_->MovePointer(at);
    desk_->Pause(200);
    desk_->ChooseFromPopup(choice);
    desk_->Click(at, Button::Right);
  }
  [[nodiscard]] bool WaitForItems(int count) {
    return desk_->Wait([this, count] { return Items() == count; });
  }

  /// The strip has the keyboard: F10 and the right arrow choose its second button, Enter opens the
  /// menu, and an arrow and Enter start its first item.
  void ExpectKeysOnStrip() {
    ASSERT_TRUE(WaitForForeground("frmToolbar"));
    desk_->Pause(400);
    EXPECT_EQ(desk_->ForegroundClass(), "frmToolbar");
    desk_->MovePointer(FarAway(*desk_));
    desk_->Pause(100);
    desk_->Key(kKeyF10);
    ASSERT_TRUE(
        desk_->Wait([this] { return desk_->BoundsOf("picToolbar").Contains(desk_->Pointer()); }));
    desk_->Pause(300);
    desk_->Key(kKeyRight);
    const PixelPoint second = ButtonMiddle(*desk_, 2);
    ASSERT_TRUE(desk_->Wait([&] {
      return std::abs(desk_->Pointer().x - second.x) < 8 &&
             std::abs(desk_->Pointer().y - second.y) < 8;
    })) << "the pointer is at "
        << desk_->Pointer().x << ',' << desk_->Pointer().y << " and not at " << second.x << ','
        << second.y << "; in front is " << desk_->ForegroundClass();
    desk_->Pause(250);
    desk_->Key(kKeyEnter);
    ASSERT_TRUE(WaitForMenuAt(*desk_, 2));
    ASSERT_TRUE(WaitForForeground("frmQMenu"));
    const std::size_t before = desk_->Launched().size();
    desk_->Key(kKeyDown);
    desk_->Pause(200);
    desk_->Key(kKeyEnter);
    EXPECT_TRUE(WaitForNoMenu(*desk_));
    ASSERT_TRUE(desk_->Wait([&] { return desk_->Launched().size() > before; }));
    EXPECT_EQ(desk_->Launched().back().Arguments, "alpha");
  }

  std::unique_ptr<Desk> desk_ = MakeDesk();
};

TEST_F(Keyboard, IsInTheMenuAfterF5) {
  Begin();
  for (int round = 0; round < 2; ++round) {
    ASSERT_TRUE(OpenMenu(*desk_, 2));
    desk_->Key(kKeyF5);
    desk_->Pause(300);
    desk_->Key(kKeyF5);
    desk_->Pause(300);
    ExpectKeysInMenu('b', "beta");
  }
}

TEST_F(Keyboard, IsInTheMenuAfterEachCommandOfThePopup) {
  Begin();
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  Choose(1, 3, "Refresh");
  // It leaves no sign in a file: the menu is still the old one, or away for a moment.
  desk_->Pause(1000);
  ExpectKeysInMenu('g', "gamma");

  ASSERT_TRUE(OpenMenu(*desk_, 2));
  Choose(2, 3, "Delete Item");
  ASSERT_TRUE(WaitForItems(2));
  ExpectKeysInMenu('g', "gamma");

  ASSERT_TRUE(OpenMenu(*desk_, 2));
  Choose(1, 2, "Undo Delete");
  ASSERT_TRUE(WaitForItems(3));
  ExpectKeysInMenu('b', "beta");

  ASSERT_TRUE(OpenMenu(*desk_, 2));
  Choose(3, 3, "Cut Item");
  ASSERT_TRUE(WaitForItems(2));
  ExpectKeysInMenu('b', "beta");

  ASSERT_TRUE(OpenMenu(*desk_, 2));
  Choose(1, 2, "Paste Item");
  ASSERT_TRUE(WaitForItems(3));
  ExpectKeysInMenu('g', "gamma");

  ASSERT_TRUE(OpenMenu(*desk_, 2));
  Choose(2, 3, "Insert Menu Item");
  ASSERT_TRUE(WaitForItems(4));
  ExpectKeysInMenu('b', "beta");

  ASSERT_TRUE(OpenMenu(*desk_, 2));
  Choose(4, 4, "Insert Separator");
  ASSERT_TRUE(WaitForItems(5));
  ExpectKeysInMenu('a', "alpha");
}

TEST_F(Keyboard, IsOnTheStripAfterTheMenuIsClosedByEsc) {
  Begin();
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  desk_->Key(kKeyEscape);
  ASSERT_TRUE(WaitForNoMenu(*desk_));
  ExpectKeysOnStrip();
}

TEST_F(Keyboard, IsOnTheStripAfterItWasPulledToAnEdge) {
  Begin();
  const PixelSize screen = desk_->ScreenSize();
  for (const PixelPoint to : {PixelPoint{screen.width / 10, screen.height / 2},
                              PixelPoint{screen.width / 2, screen.height * 8 / 10}}) {
    PullTo(*desk_, to);
    EXPECT_TRUE(desk_->Wait([this] { return desk_->IsVisible("frmImage"); }));
    desk_->Release(Button::Left);
    EXPECT_TRUE(desk_->Wait([this] { return !desk_->Window("frmImage").has_value(); }));
    desk_->Pause(500);
    ExpectKeysOnStrip();
  }
}

TEST_F(Keyboard, OpensCustomizeFromTheMainMenuAndClosesIt) {
  Begin();
  desk_->BringToFront("frmToolbar");
  ASSERT_TRUE(WaitForForeground("frmToolbar"));
  desk_->Pause(400);
  desk_->Key(kKeyF10);
  ASSERT_TRUE(
      desk_->Wait([this] { return desk_->BoundsOf("picToolbar").Contains(desk_->Pointer()); }));
  desk_->Pause(300);
  desk_->Key(kKeyEnter);
  ASSERT_TRUE(WaitForMenuAt(*desk_, 1));
  ASSERT_TRUE(WaitForForeground("frmQMenu"));
  desk_->Type('c');
  desk_->Pause(200);
  desk_->Picture("chosen");
  desk_->Key(kKeyEnter);
  ASSERT_TRUE(WaitForForeground("frmCust"));
  desk_->Pause(1300);
  desk_->Picture("open");
  desk_->HoldKey(kKeyAlt);
  desk_->Key('X');
  desk_->LetKeyGo(kKeyAlt);
  EXPECT_TRUE(desk_->Wait([this] { return !desk_->IsVisible("frmCust"); }));
  EXPECT_EQ(desk_->RunningCopies(), 1);
}

TEST_F(Keyboard, IsOnTheStripAfterRefreshAllAndLargeIcons) {
  for (const bool docked : {false, true}) {
    SCOPED_TRACE(docked);
    desk_ = nullptr;
    desk_ = MakeDesk();
    Begin(docked ? std::vector<int>{14, 16} : std::vector<int>{});
    for (const MainChoice choice : {MainChoice::RefreshAll, MainChoice::LargeIcons}) {
      SCOPED_TRACE(static_cast<int>(choice));
      ASSERT_TRUE(ChooseInMainMenu(*desk_, choice));
      desk_->Pause(1500);
      ExpectKeysOnStrip();
    }
    ASSERT_TRUE(CloseAndWait(*desk_));
  }
}

}  // namespace
}  // namespace corvelle::scenario
