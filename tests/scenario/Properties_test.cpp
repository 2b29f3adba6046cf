// The Properties window: an entry edited in place, the order of the buttons, the edge of the
// screen.

#include "properties/PropertiesLayout.h"

#include <gtest/gtest.h>

#include "base/CodePage.h"
#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

constexpr const char* kWindow = "frmProperties";

/// A desk with three menus: "alpha", "beta" and "gamma" at button 2, "delta" at button 3, "epsilon"
/// at button 4.
class PropertiesAtEachScale : public ::testing::Test {
 protected:
  void SetUp() override {
    desk_ = MakeDesk();
    desk_->WriteFile(kFlagsFile, InstalledFlags());
    desk_->WriteFile(kPositionFile,
                     PositionBytes(static_cast<float>(300 * desk_->TwipsPerPixel())));
    WriteMenu(*desk_, 1, "Letters",
              {Witness(*desk_, "alpha"), Witness(*desk_, "beta"), Witness(*desk_, "gamma")});
    WriteMenu(*desk_, 2, "Others", {Witness(*desk_, "delta")});
    WriteMenu(*desk_, 3, "More", {Witness(*desk_, "epsilon")});
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
    ASSERT_EQ(ButtonCount(*desk_), 4);
    layout_ =
        LayOutProperties({.Dpi = 1440 / desk_->TwipsPerPixel(), .Screen = desk_->ScreenSize()});
  }

  [[nodiscard]] std::vector<MenuRecord> Records(int number) const {
    const Windows1252 ansi;
    const std::string bytes = desk_->ReadFile("Menus\\" + MenuFileName(number)).value_or("");
    std::vector<MenuRecord> records;
    for (std::size_t at = 0; at < bytes.size(); at += kRecordLength) {
      records.push_back(ParseRecord(std::string_view(bytes).substr(at), ansi));
    }
    return records;
  }
  [[nodiscard]] std::string Titles(int number) const {
    std::string titles;
    for (const MenuRecord& record : Records(number)) titles += record.FTitle + "|";
    return titles;
  }

  /// Opens the window for an item of a menu of `count`, by a right click.
  void OpenFor(int button, int item, int count) {
    ASSERT_TRUE(OpenMenu(*desk_, button));
    const PixelPoint at = ItemMiddle(*desk_, item, count);
    desk_->MovePointer(at);
    desk_->Pause(200);
    desk_->ChooseFromPopup("Properties");
    desk_->Click(at, Button::Right);
    ASSERT_TRUE(desk_->Wait(
        [this] { return desk_->IsVisible(kWindow) && desk_->ForegroundClass() == kWindow; }));
    desk_->Pause(300);
  }
  void NextTab(std::string_view page) {
    desk_->HoldKey(kKeyControl);
    desk_->Key(kKeyTab);
    desk_->LetKeyGo(kKeyControl);
    ASSERT_TRUE(desk_->Wait([&] { return desk_->IsVisible(page); })) << page;
    desk_->Pause(300);
  }
  void TypeText(std::string_view letters) {
    for (const char letter : letters) desk_->Type(letter);
    desk_->Pause(200);
  }
  /// The middle of a control of the form, and of one of a page.
  [[nodiscard]] PixelPoint OnForm(const PixelRect& control) const {
    const PixelRect page = desk_->BoundsOf("Picture1");
    return Middle(control, {page.left - layout_.Page.left, page.top - layout_.Page.top});
  }
  [[nodiscard]] PixelPoint OnPage(std::string_view page, const PixelRect& control) const {
    return Middle(control, desk_->BoundsOf(page).TopLeft());
  }
  [[nodiscard]] static PixelPoint Middle(const PixelRect& control, PixelPoint origin) {
    return {origin.x + (control.left + control.right) / 2,
            origin.y + (control.top + control.bottom) / 2};
  }
  /// As a hand does: it moves before it presses.
  void ClickAt(PixelPoint at) {
    desk_->MovePointer({at.x + 3, at.y});
    desk_->Pause(50);
    desk_->Click(at);
    desk_->Pause(100);
  }

  std::unique_ptr<Desk> desk_;
  PropertiesLayout layout_;
};

TEST_F(PropertiesAtEachScale, AnItemIsEditedAndSeenInItsMenu) {
  OpenFor(2, 2, 3);
  desk_->Picture("the-entry");
  TypeText("zulu");
  desk_->Key(kKeyEnter);
  desk_->Pause(200);
  EXPECT_EQ(Titles(1), "Letters|alpha|beta|gamma|");
  desk_->Picture("before-it-is-confirmed");
  ClickAt(OnForm(layout_.Ok));
  ASSERT_TRUE(desk_->Wait([this] { return Titles(1) == "Letters|alpha|zulu|gamma|"; }));
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Window(kWindow).has_value(); }));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 2));
  desk_->Picture("the-menu");
  // What it starts is what it was.
  ClickItem(*desk_, ItemMiddle(*desk_, 2, 3));
  ASSERT_TRUE(desk_->Wait([this] { return desk_->Launched().size() == 1; }));
  EXPECT_EQ(desk_->Launched()[0].Arguments, "beta");
}

TEST_F(PropertiesAtEachScale, AFileThatChangedMeanwhileIsAMismatch) {
  OpenFor(2, 2, 3);
  TypeText("zulu");
  WriteMenu(*desk_, 1, "Letters",
            {Witness(*desk_, "alpha"), Witness(*desk_, "theirs"), Witness(*desk_, "gamma")});
  desk_->AnswerNext(kButtonOk);
  ClickAt(OnForm(layout_.Apply));
  ASSERT_TRUE(desk_->Wait([this] { return desk_->Messages().size() == 1; }));
  EXPECT_EQ(desk_->Messages()[0].Text, "Cannot modify this item. Record mismatch.");
  EXPECT_EQ(desk_->Messages()[0].Title, "Corvelle");
  desk_->Pause(300);
  EXPECT_EQ(Titles(1), "Letters|alpha|theirs|gamma|");
  EXPECT_TRUE(desk_->IsVisible(kWindow));
  desk_->Picture("still-open");
}

TEST_F(PropertiesAtEachScale, ButtonsAreOrderedAndHidden) {
  OpenFor(3, 1, 1);
  NextTab("picButtons");
  desk_->Picture("the-buttons");
  // The tree has the focus: the second button goes up, the third one is hidden.
  desk_->Key(kKeyHome);
  desk_->Key(kKeyDown);
  ClickAt(OnPage("picButtons", layout_.Up));
  ClickAt(OnPage("picButtons", layout_.Tree));
  desk_->Pause(100);
  desk_->Key(kKeyEnd);
  desk_->Key(kKeySpace);
  desk_->Pause(200);
  desk_->Picture("ordered");
  ClickAt(OnForm(layout_.Apply));
  ASSERT_TRUE(desk_->Wait([this] { return Titles(1) == "Others|delta|"; }));
  EXPECT_EQ(Titles(2), "Letters|alpha|beta|gamma|");
  EXPECT_EQ(Titles(3), "More|epsilon|");
  EXPECT_EQ(Records(3)[0].FName, "/h");
  ASSERT_TRUE(desk_->Wait([this] { return ButtonCount(*desk_) == 3; }));
  ASSERT_TRUE(desk_->Wait([this] { return desk_->ForegroundClass() == kWindow; }));
  desk_->Pause(300);
  desk_->Picture("applied");
  desk_->Key(kKeyEscape);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->Window(kWindow).has_value(); }));
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  ClickItem(*desk_, ItemMiddle(*desk_, 1, 1));
  ASSERT_TRUE(desk_->Wait([this] { return desk_->Launched().size() == 1; }));
  EXPECT_EQ(desk_->Launched()[0].Arguments, "delta");
}

TEST_F(PropertiesAtEachScale, ThePositionTabSendsTheStripToAnEdge) {
  OpenFor(3, 1, 1);
  NextTab("picButtons");
  NextTab("Picture2");
  desk_->MovePointer(OnForm(layout_.Ok));
  desk_->Pause(400);
  desk_->Picture("the-screen");
  desk_->MovePointer(OnPage("Picture2", layout_.Right));
  desk_->Pause(400);
  desk_->Picture("the-strip-in-it");
  ClickAt(OnPage("Picture2", layout_.Right));
  const auto atRight = [this] {
    const PixelRect strip = desk_->BoundsOf("frmToolbar");
    return strip.Height() > strip.Width() && strip.left > desk_->ScreenSize().width / 2;
  };
  ASSERT_TRUE(desk_->Wait(atRight));
  desk_->Pause(500);
  EXPECT_TRUE(desk_->IsVisible(kWindow));
  desk_->Picture("at-the-right");
  ClickAt(OnPage("Picture2", layout_.Top));
  ASSERT_TRUE(desk_->Wait([this] {
    const PixelRect strip = desk_->BoundsOf("frmToolbar");
    return strip.Width() > strip.Height() && strip.top < 10;
  }));
  for (const std::string& name : desk_->Files("Menus")) EXPECT_FALSE(name.starts_with("DTF"));
}

}  // namespace
}  // namespace corvelle::scenario
