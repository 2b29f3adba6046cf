#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "base/CodePage.h"
#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

class CustomizeAtEachScale : public ::testing::Test {
 protected:
  void SetUp() override {
    desk_ = MakeDesk();
    desk_->WriteFile(kFlagsFile, InstalledFlags());
    WriteMenu(*desk_, 1, "One", {Witness(*desk_, "one")});
    WriteMenu(*desk_, 2, "Two", {Witness(*desk_, "two"), Witness(*desk_, "three")});
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
    ASSERT_TRUE(ChooseInMainMenu(*desk_, MainChoice::Customize));
    ASSERT_TRUE(desk_->Wait([this] { return desk_->IsVisible("frmCust"); }));
    ASSERT_TRUE(desk_->Wait([this] { return desk_->ForegroundClass() == "frmCust"; }));
    desk_->Pause(1300);
  }

  void With(int held, int key) {
    desk_->HoldKey(held);
    desk_->Key(key);
    desk_->LetKeyGo(held);
    desk_->Pause(100);
  }
  void Press(int key) {
    desk_->Key(key);
    desk_->Pause(50);
  }
  void Type(std::string_view text) {
    for (const char letter : text) desk_->Type(letter);
    desk_->Pause(50);
  }
  [[nodiscard]] bool HasMenu(int number, std::string_view title,
                             const std::vector<MenuRecord>& items) const {
    return desk_->ReadFile("Menus\\" + MenuFileName(number)) == MenuBytes(title, items);
  }

  std::unique_ptr<Desk> desk_;
};

TEST_F(CustomizeAtEachScale, IsUsedWithTheKeyboardAlone) {
  desk_->Picture("open");
  Press(kKeyDown);
  Press(kKeyDown);
  With(kKeyControl, 'M');
  Press(kKeyTab);
  Type("saw");
  Press(kKeyTab);
  Type("new");
  Press(kKeyTab);
  Type("tool");
  Press(kKeyEnter);
  desk_->Picture("item");
  With(kKeyAlt, 'U');
  const MenuRecord two = Witness(*desk_, "two");
  const MenuRecord three = Witness(*desk_, "three");
  EXPECT_TRUE(desk_->Wait([&] { return HasMenu(2, "Two", {two, three, {"saw", "new", "tool"}}); }));
  EXPECT_TRUE(HasMenu(1, "One", {Witness(*desk_, "one")}));
  EXPECT_TRUE(desk_->Wait([this] { return desk_->ForegroundClass() == "frmCust"; }));
  desk_->Picture("saved");
  With(kKeyAlt, 'X');
  EXPECT_TRUE(desk_->Wait([this] { return !desk_->IsVisible("frmCust"); }));
  EXPECT_EQ(desk_->RunningCopies(), 1);
}

TEST_F(CustomizeAtEachScale, ANewButtonComesToTheStripWhenItIsSaved) {
  const int before = ButtonCount(*desk_);
  With(kKeyControl, 'B');
  desk_->Picture("button");
  With(kKeyAlt, 'U');
  EXPECT_TRUE(desk_->Wait([&] { return ButtonCount(*desk_) == before + 1; }));
  const Windows1252 ansi;
  EXPECT_EQ(desk_->ReadFile("Menus\\" + MenuFileName(3)),
            FormatRecord(NewButtonRecord(), ansi) + FormatRecord(NewItemRecord(), ansi));
  desk_->Picture("strip");
}

class CustomizeRoad : public CustomizeAtEachScale {};

TEST_F(CustomizeRoad, ClosingAsksAndAnswersAreObeyed) {
  const std::vector<MenuRecord> whole = {Witness(*desk_, "two"), Witness(*desk_, "three")};
  Press(kKeyDown);
  Press(kKeyDown);
  With(kKeyControl, 'M');
  constexpr int kButtonCancel = 2;
  desk_->AnswerNext(kButtonCancel);
  desk_->Post("frmCust", kMessageClose, 0, 0);
  ASSERT_TRUE(desk_->Wait([this] { return desk_->Messages().size() == 1; }));
  EXPECT_EQ(desk_->Messages()[0].Text, "Do you want to save your changes before you exit?");
  EXPECT_TRUE(desk_->IsVisible("frmCust"));
  desk_->Pause(300);
  desk_->AnswerNext(kButtonNo);
  desk_->Post("frmCust", kMessageClose, 0, 0);
  EXPECT_TRUE(desk_->Wait([this] { return !desk_->IsVisible("frmCust"); }));
  EXPECT_TRUE(HasMenu(2, "Two", whole));
}

TEST_F(CustomizeRoad, DeletesAndTakesTheDeletionBack) {
  Press(kKeyDown);
  Press(kKeyRight);
  desk_->Pause(1300);
  Press(kKeyDown);
  Press(kKeyDelete);
  With(kKeyControl, 'Z');
  With(kKeyControl, 'Z');
  With(kKeyAlt, 'U');
  const MenuRecord one = Witness(*desk_, "one");
  EXPECT_TRUE(desk_->Wait([&] { return HasMenu(1, "One", {one, one}); })) << "a second copy";
}

TEST_F(CustomizeRoad, TheEndOfTheSessionAsksNothingAndKeepsWhatIsUnsaved) {
  const std::vector<MenuRecord> whole = {Witness(*desk_, "two"), Witness(*desk_, "three")};
  Press(kKeyDown);
  Press(kKeyDown);
  With(kKeyControl, 'M');
  EXPECT_TRUE(desk_->EndSession());
  EXPECT_TRUE(desk_->Wait([this] { return desk_->RunningCopies() == 0; }));
  EXPECT_TRUE(desk_->Messages().empty());
  EXPECT_TRUE(HasMenu(2, "Two", whole));
  EXPECT_NE(desk_->ReadFile("Menus\\unsaved.dft").value_or(""), "");
}

}  // namespace
}  // namespace corvelle::scenario
