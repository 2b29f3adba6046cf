#include <gtest/gtest.h>

#include "base/CodePage.h"
#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

constexpr int kNoDialog = 18;  // options
constexpr char kPage[] = "http://example.com/page";

/// A strip with one menu and two single buttons, and a program from which an address is dragged.
class WebLink : public ::testing::Test {
 protected:
  void Begin(const std::vector<int>& turned) {
    desk_ = MakeDesk();
    // Large icons are on in an installed program; the roads go along small ones.
    std::vector<int> flags = turned;
    flags.insert(flags.end(), {24, 26});
    desk_->WriteFile(kFlagsFile, InstalledFlags(flags));
    desk_->WriteFile(kPositionFile,
                     PositionBytes(static_cast<float>(300 * desk_->TwipsPerPixel())));
    WriteMenu(*desk_, 1, "Letters", {Witness(*desk_, "alpha"), Witness(*desk_, "beta")});
    for (int i = 1; i <= 2; ++i) {
      desk_->WriteFile("Menus\\" + SingleFileName(i),
                       FormatRecord(Witness(*desk_, "single" + std::to_string(i)), Windows1252()));
    }
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
    const PixelPoint away = FarAway(*desk_);
    desk_->OpenDragSource({away.x - 100, away.y - 60, away.x + 100, away.y + 60}, {}, kPage,
                          "A dragged page");
  }

  std::vector<MenuRecord> Menu() const {
    const std::string bytes = desk_->ReadFile("Menus\\" + MenuFileName(1)).value_or("");
    std::vector<MenuRecord> records;
    for (std::size_t at = 0; at + kRecordLength <= bytes.size(); at += kRecordLength) {
      records.push_back(ParseRecord(std::string_view(bytes).substr(at), Windows1252()));
    }
    return records;
  }
  /// The titles of the menu's items, or of the single buttons, with a "|" between.
  std::string Items() const {
    std::string titles;
    for (const MenuRecord& record : Menu()) titles += "|" + record.FTitle;
    return titles;
  }
  std::string Singles() const {
    std::string titles;
    for (const std::string& file : desk_->Files("Menus")) {
      if (!file.ends_with(".BTN")) continue;
      const std::string bytes = desk_->ReadFile("Menus\\" + file).value_or("");
      titles += "|" + ParseRecord(bytes, Windows1252()).FTitle;
    }
    return titles;
  }
  bool WaitForDialog() {
    return desk_->Wait(
        [this] { return desk_->IsVisible("frmURL") && desk_->ForegroundClass() == "frmURL"; });
  }
  bool WaitForNoDialog() {
    return desk_->Wait([this] { return !desk_->IsVisible("frmURL"); });
  }
  void TypeWord(std::string_view word) {
    for (const char letter : word) desk_->Type(letter);
  }

  std::unique_ptr<Desk> desk_;
};

using WebLinkAtEachScale = WebLink;

TEST_F(WebLinkAtEachScale, AnAddressDroppedOnAButtonIsCorrectedAndStandsInItsMenu) {
  Begin({});
  desk_->DragTo(FarAway(*desk_), ButtonMiddle(*desk_, 2));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 2));
  desk_->Release(Button::Left);
  ASSERT_TRUE(WaitForDialog());
  desk_->Pause(300);
  desk_->Picture("dialog");
  EXPECT_EQ(Items(), "|Letters|alpha|beta");
  EXPECT_EQ(desk_->Window("frmURL")->Title, "Create Web Link");
  TypeWord("mine");  // the title is selected
  desk_->Picture("typed");
  desk_->Key(kKeyEnter);
  ASSERT_TRUE(WaitForNoDialog());
  ASSERT_TRUE(desk_->Wait([this] { return Menu().size() == 4; }));
  const MenuRecord made = Menu()[3];
  EXPECT_EQ(made.FTitle, "mine");
  EXPECT_EQ(made.FIcon, "http");
  EXPECT_EQ(made.FName, kPage);
  EXPECT_TRUE(WaitForNoMenu(*desk_));
  ASSERT_TRUE(OpenMenu(*desk_, 2));
  desk_->Pause(500);
  desk_->Picture("menu-with-the-link");
}

TEST_F(WebLinkAtEachScale, AnAddressDroppedIntoTheMenuStandsBeforeTheItem) {
  Begin({});
  desk_->DragTo(FarAway(*desk_), ButtonMiddle(*desk_, 2));
  ASSERT_TRUE(WaitForMenuAt(*desk_, 2));
  desk_->CarryTo(ItemMiddle(*desk_, 2, 2));
  desk_->Release(Button::Left);
  ASSERT_TRUE(WaitForDialog());
  desk_->Pause(300);
  desk_->Picture("dialog-over-the-menu");
  EXPECT_TRUE(desk_->IsVisible("frmQMenu"));
  desk_->Key(kKeyEnter);
  ASSERT_TRUE(desk_->Wait([this] { return Items() == "|Letters|alpha|A dragged page|beta"; }))
      << Items();
  EXPECT_TRUE(WaitForNoMenu(*desk_));
}

TEST_F(WebLinkAtEachScale, AnAddressDroppedAmongTheSingleButtonsBecomesOneOfThem) {
  Begin({kNoDialog});
  const PixelRect box = desk_->BoundsOf("picSingleButton");
  // The second button of 16 pixels.
  desk_->DragTo(FarAway(*desk_), {box.left + 5 + 18 + 8, (box.top + box.bottom) / 2});
  desk_->Release(Button::Left);
  ASSERT_TRUE(desk_->Wait([this] { return Singles() == "|single1|A dragged page|single2"; }))
      << Singles();
  EXPECT_FALSE(desk_->IsVisible("frmURL"));
  desk_->MovePointer(FarAway(*desk_));
  desk_->Pause(500);
  desk_->Picture("row-with-the-link");
}

TEST_F(WebLink, EscapeMakesNothingAndTheNextDropAsksAgain) {
  Begin({});
  for (int round = 0; round < 2; ++round) {
    desk_->DragTo(FarAway(*desk_), ButtonMiddle(*desk_, 2));
    desk_->Release(Button::Left);
    ASSERT_TRUE(WaitForDialog());
    desk_->Key(kKeyEscape);
    ASSERT_TRUE(WaitForNoDialog());
    desk_->Pause(200);
    EXPECT_EQ(Items(), "|Letters|alpha|beta");
    desk_->BringToFront("DragSource");
    desk_->Pause(200);
  }
  EXPECT_TRUE(OpenMenu(*desk_, 2));
}

TEST_F(WebLink, TheTickedBoxMakesTheNextDropAnEntryAtOnce) {
  Begin({});
  desk_->DragTo(FarAway(*desk_), ButtonMiddle(*desk_, 2));
  desk_->Release(Button::Left);
  ASSERT_TRUE(WaitForDialog());
  desk_->Key(kKeyTab);
  desk_->Key(kKeyTab);
  desk_->Key(' ');
  ASSERT_TRUE(desk_->Wait([this] { return FlagAt(*desk_, kNoDialog) == '1'; }));
  desk_->Picture("ticked");
  desk_->Key(kKeyEscape);
  ASSERT_TRUE(WaitForNoDialog());
  desk_->BringToFront("DragSource");
  desk_->Pause(300);
  desk_->DragTo(FarAway(*desk_), ButtonMiddle(*desk_, 2));
  desk_->Release(Button::Left);
  ASSERT_TRUE(desk_->Wait([this] { return Items() == "|Letters|alpha|beta|A dragged page"; }))
      << Items();
  EXPECT_FALSE(desk_->IsVisible("frmURL"));
}

}  // namespace
}  // namespace corvelle::scenario
