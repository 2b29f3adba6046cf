#include <gtest/gtest.h>

#include "base/CodePage.h"
#include "base/Text.h"
#include "scenario/Strip.h"

namespace corvelle::scenario {
namespace {

constexpr int kNoLibraryTip = 5;  // options

/// A menu with one entry, whose properties ask for an icon.
class Library : public ::testing::Test {
 protected:
  void Begin() {
    desk_ = MakeDesk();
    desk_->WriteFile(kFlagsFile, InstalledFlags({kNoLibraryTip}));
    desk_->WriteFile(kPositionFile,
                     PositionBytes(static_cast<float>(300 * desk_->TwipsPerPixel())));
    WriteMenu(*desk_, 1, "Letters", {Witness(*desk_, "alpha")});
    desk_->MovePointer(FarAway(*desk_));
    ASSERT_TRUE(StartAndWait(*desk_));
  }
  void SetUp() override {
    Begin();
    ASSERT_TRUE(OpenMenu(*desk_, 2));
    const PixelPoint item = ItemMiddle(*desk_, 1, 1);
    desk_->MovePointer({item.x + 4, item.y});
    desk_->Pause(50);
    desk_->MovePointer(item);
    desk_->Pause(200);
    desk_->ChooseFromPopup("Properties");
    desk_->Click(item, Button::Right);
    ASSERT_TRUE(WaitForFront("frmProperties"));
    // From the title to the icon.
    desk_->Key(kKeyTab);
    desk_->Key(kKeyF3);
    ASSERT_TRUE(WaitForFront("frmLibrary"));
    desk_->Pause(500);
  }

  bool WaitForFront(std::string_view window) {
    return desk_->Wait(
        [&] { return desk_->IsVisible(window) && desk_->ForegroundClass() == window; });
  }
  void KeyWith(int held, int key) {
    desk_->HoldKey(held);
    desk_->Key(key);
    desk_->LetKeyGo(held);
  }
  /// Picks the marked icon and confirms the properties.
  void PickAndConfirm() {
    desk_->Key(kKeyEnter);
    ASSERT_TRUE(desk_->Wait([this] { return !desk_->IsVisible("frmLibrary"); }));
    ASSERT_TRUE(WaitForFront("frmProperties"));
    desk_->Pause(300);
    desk_->Picture("properties-with-the-icon");
    // The command, two buttons, and OK.
    for (int i = 0; i < 4; ++i) desk_->Key(kKeyTab);
    desk_->Key(' ');
    ASSERT_TRUE(desk_->Wait([this] { return !desk_->IsVisible("frmProperties"); }));
  }
  std::string Icon() const {
    const std::string bytes = desk_->ReadFile("Menus\\" + MenuFileName(1)).value_or("");
    if (bytes.size() < 2 * kRecordLength) return "(none)";
    return ParseRecord(std::string_view(bytes).substr(kRecordLength), Windows1252()).FIcon;
  }

  std::unique_ptr<Desk> desk_;
};

using LibraryAtEachScale = Library;

TEST_F(LibraryAtEachScale, AnIconOfACategoryIsPickedForAnEntry) {
  desk_->Picture("all-icons");
  EXPECT_EQ(desk_->Window("frmLibrary")->Title, "Icon Library");
  // Over the filter to the categories, to the first one, and back.
  KeyWith(kKeyShift, kKeyTab);
  KeyWith(kKeyShift, kKeyTab);
  desk_->Key(kKeyDown);
  desk_->Pause(500);
  desk_->Picture("one-category");
  desk_->Key(kKeyTab);
  desk_->Key(kKeyTab);
  desk_->Key(kKeyHome);
  desk_->Pause(300);
  desk_->Picture("marked");
  PickAndConfirm();
  ASSERT_TRUE(desk_->Wait([this] { return Icon().starts_with("\\icons\\"); })) << Icon();
  // The menu may have stayed up under the windows.
  desk_->Pause(500);
  if (!desk_->IsVisible("frmQMenu")) {
    ASSERT_TRUE(OpenMenu(*desk_, 2));
  }
  desk_->Pause(500);
  desk_->Picture("menu-with-the-icon");
}

TEST_F(LibraryAtEachScale, AnIconOfAnotherFileIsPickedForAnEntry) {
  desk_->WriteFile("Icons\\others.dat", "C:\\Corvelle\\corvelle.exe\r\n");
  KeyWith(kKeyControl, kKeyTab);
  desk_->Pause(700);
  desk_->Picture("other-file");
  desk_->Key(kKeyHome);
  desk_->Pause(200);
  PickAndConfirm();
  ASSERT_TRUE(desk_->Wait([this] { return Icon() == "C:\\Corvelle\\corvelle.exe |0"; })) << Icon();
}

TEST_F(Library, TheFilterLeavesWhatTheUserTypes) {
  KeyWith(kKeyShift, kKeyTab);
  for (const char letter : std::string_view("folder.")) desk_->Type(letter);
  desk_->Pause(300);
  desk_->Picture("filtered");
  desk_->Key(kKeyDown);
  PickAndConfirm();
  ASSERT_TRUE(desk_->Wait([this] { return EqualNoCase(Icon(), "\\icons\\folder.ico"); })) << Icon();
}

TEST_F(Library, EscapeLeavesTheEntryAsItIs) {
  desk_->Key(kKeyEnd);
  desk_->Key(kKeyEscape);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->IsVisible("frmLibrary"); }));
  ASSERT_TRUE(WaitForFront("frmProperties"));
  desk_->Key(kKeyEscape);
  ASSERT_TRUE(desk_->Wait([this] { return !desk_->IsVisible("frmProperties"); }));
  EXPECT_EQ(Icon(), desk_->WitnessProgram());
}

/// The same, asked for by the entry in Customize.
class CustomizeLibraryAtEachScale : public Library {
 protected:
  void SetUp() override {
    Begin();
    ASSERT_TRUE(ChooseInMainMenu(*desk_, MainChoice::Customize));
    ASSERT_TRUE(WaitForFront("frmCust"));
    desk_->Pause(1300);
    // To the button, which opens, and to its entry.
    desk_->Key(kKeyDown);
    desk_->Pause(100);
    desk_->Key(kKeyRight);
    desk_->Pause(1300);
    desk_->Key(kKeyDown);
    desk_->Pause(200);
    // Over the title to the icon.
    desk_->Key(kKeyTab);
    desk_->Key(kKeyTab);
    desk_->Key(kKeyF3);
    ASSERT_TRUE(WaitForFront("frmLibrary"));
    desk_->Pause(500);
  }

  /// Picks the marked icon, and saves the tree.
  void PickAndSave() {
    desk_->Key(kKeyEnter);
    ASSERT_TRUE(desk_->Wait([this] { return !desk_->IsVisible("frmLibrary"); }));
    ASSERT_TRUE(WaitForFront("frmCust"));
    desk_->Pause(400);
    desk_->Picture("customize-with-the-icon");
    EXPECT_EQ(Icon(), desk_->WitnessProgram());
    KeyWith(kKeyAlt, 'U');
  }
};

TEST_F(CustomizeLibraryAtEachScale, AnIconOfACategoryIsPickedForTheEntryInTheTree) {
  KeyWith(kKeyShift, kKeyTab);
  KeyWith(kKeyShift, kKeyTab);
  desk_->Key(kKeyDown);
  desk_->Pause(500);
  desk_->Key(kKeyTab);
  desk_->Key(kKeyTab);
  desk_->Key(kKeyHome);
  desk_->Pause(300);
  desk_->Picture("marked");
  PickAndSave();
  ASSERT_TRUE(desk_->Wait([this] { return Icon().starts_with("\\icons\\"); })) << Icon();
  ASSERT_TRUE(WaitForFront("frmCust"));
  desk_->Pause(300);
  desk_->Picture("saved");
}

TEST_F(CustomizeLibraryAtEachScale, AnIconOfAnotherFileIsPickedForTheEntryInTheTree) {
  desk_->WriteFile("Icons\\others.dat", "C:\\Corvelle\\corvelle.exe\r\n");
  KeyWith(kKeyControl, kKeyTab);
  desk_->Pause(700);
  desk_->Key(kKeyHome);
  desk_->Pause(200);
  desk_->Picture("other-file");
  PickAndSave();
  ASSERT_TRUE(desk_->Wait([this] { return Icon() == "C:\\Corvelle\\corvelle.exe |0"; })) << Icon();
}

}  // namespace
}  // namespace corvelle::scenario
