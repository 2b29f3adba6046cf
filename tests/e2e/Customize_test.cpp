// The Customize window of the real program: its tree under the mouse, its menus, its options.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "base/CodePage.h"
#include "core/MenuRecord.h"
#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

namespace corvelle::e2e {
namespace {

using scenario::Button;
using scenario::ButtonCount;
using scenario::InstalledFlags;
using scenario::MainChoice;
using scenario::MenuBytes;
using scenario::Witness;

constexpr const char* kTree = "SysTreeView32";
constexpr std::uint32_t kItemHeight = 0x111C;  // TVM_GETITEMHEIGHT
constexpr std::uint32_t kIndent = 0x1106;      // TVM_GETINDENT
constexpr std::uint32_t kNodes = 0x1105;       // TVM_GETCOUNT
constexpr int kKeyMenu = 93;                   // of the context menu
constexpr int kKeyF2 = 113;
constexpr int kKeyF8 = 119;
constexpr int kGuard = 1300;  // milliseconds until the tree listens again

/// The lines of the Options menu that can be chosen, from the top.
enum class CustOption {
  KeepOnTop,
  StartupScreen,
  LeaveExtension,
  SingleClick,
  DoubleClick,
  SmallSingles,
  CustomWebIcon,
  DefaultWebIcon,
  WebLinkDialog,
  AlternateBrowser,
  DefaultBrowser,
  AdjustLeft,
  AdjustRight,
  LargeIcons,
  ShowDate,
  DisableHints,
  SystemPopup,
  OwnPopup,
  SetStartup,
  RemoveStartup,
  ResetTips
};

/// The window over a strip with the menus One (one) and Two (two, three) and the single button
/// "clock". The rows of its tree at first: Menu Buttons, One, Two, Single Buttons.
class CustomizeByHand : public testing::Test {
 protected:
  void SetUp() override { Begin(InstalledFlags()); }

  void Begin(const std::string& flags) {
    desk_.WriteFile(scenario::kFlagsFile, flags);
    scenario::WriteMenu(desk_, 1, "One", {one_});
    scenario::WriteMenu(desk_, 2, "Two", {two_, three_});
    desk_.WriteFile("Menus\\" + SingleFileName(1), FormatRecord(clock_, Windows1252()));
    desk_.MovePointer(scenario::FarAway(desk_));
    ASSERT_TRUE(scenario::StartAndWait(desk_));
    Open();
  }
  void Open() {
    ASSERT_TRUE(scenario::ChooseInMainMenu(desk_, MainChoice::Customize));
    ASSERT_TRUE(desk_.Wait([this] { return desk_.ForegroundClass() == "frmCust"; }));
    desk_.Pause(kGuard);
  }

  void Press(int key) {
    desk_.Key(key);
    desk_.Pause(60);
  }
  void With(int held, int key) {
    desk_.HoldKey(held);
    desk_.Key(key);
    desk_.LetKeyGo(held);
    desk_.Pause(100);
  }
  void Type(std::string_view text) {
    for (const char letter : text) desk_.Type(letter);
    desk_.Pause(60);
  }
  /// A point on the label in a row of the tree, from 0, of a node so deep below the roots.
  [[nodiscard]] PixelPoint Row(int row, int depth) {
    const PixelRect tree = desk_.BoundsOf(kTree);
    const int height = static_cast<int>(desk_.Send(kTree, kItemHeight, 0, 0));
    const int indent = static_cast<int>(desk_.Send(kTree, kIndent, 0, 0));
    constexpr int kImage = 16;
    return {tree.left + 2 + indent * (depth + 1) + kImage + 10,
            tree.top + 2 + height * row + height / 2};
  }
  /// Text with any characters, as from a keyboard that has them.
  void TypeText(const std::string& text) {
    for (const wchar_t letter : Wide(text)) {
      INPUT strokes[2] = {};
      for (INPUT& stroke : strokes) {
        stroke.type = INPUT_KEYBOARD;
        stroke.ki.wScan = letter;
        stroke.ki.dwFlags = KEYEVENTF_UNICODE;
      }
      strokes[1].ki.dwFlags |= KEYEVENTF_KEYUP;
      SendInput(2, strokes, sizeof(INPUT));
      desk_.Pause(20);
    }
  }
  void Select(int row, int depth) {
    desk_.Click(Row(row, depth));
    desk_.Pause(200);
  }
  /// Opens One and Two. The rows then: Menu Buttons, One, one, Two, two, three, Single Buttons.
  void OpenBoth() {
    Select(2, 1);
    Press(scenario::kKeyRight);
    Press(scenario::kKeyUp);
    Press(scenario::kKeyRight);
    desk_.Pause(kGuard);
  }
  /// The context menu of what is selected, by its key, and letters or arrows in it.
  void InContextMenu(const std::vector<int>& keys, std::string_view picture = {}) {
    Press(kKeyMenu);
    ASSERT_TRUE(desk_.Wait([this] { return desk_.PopupIsUp(); }));
    for (const int key : keys) {
      if (key == keys.back() && !picture.empty()) desk_.Picture(picture);
      Press(key);
    }
  }
  void ChooseOption(CustOption option) {
    ASSERT_TRUE(desk_.Wait([this] { return desk_.ForegroundClass() == "frmCust"; }));
    With(scenario::kKeyAlt, 'O');
    ASSERT_TRUE(desk_.Wait([this] { return desk_.PopupIsUp(); }));
    for (int line = 0; line < static_cast<int>(option); ++line) Press(scenario::kKeyDown);
    Press(scenario::kKeyEnter);
    desk_.Pause(200);
  }
  void Save() { With(scenario::kKeyAlt, 'U'); }
  [[nodiscard]] std::string Menu(int number) const {
    return desk_.ReadFile("Menus\\" + MenuFileName(number)).value_or("(none)");
  }
  [[nodiscard]] bool WaitForMenu(int number, std::string_view title,
                                 const std::vector<MenuRecord>& items) {
    return desk_.Wait([&] { return Menu(number) == MenuBytes(title, items); });
  }
  [[nodiscard]] std::vector<MenuRecord> Items(int number) const {
    const std::string bytes = Menu(number);
    std::vector<MenuRecord> items;
    for (std::size_t at = kRecordLength; at + kRecordLength <= bytes.size(); at += kRecordLength) {
      items.push_back(ParseRecord(std::string_view(bytes).substr(at), Windows1252()));
    }
    return items;
  }

  WineDesk desk_;
  MenuRecord one_ = Witness(desk_, "one");
  MenuRecord two_ = Witness(desk_, "two");
  MenuRecord three_ = Witness(desk_, "three");
  MenuRecord clock_ = Witness(desk_, "clock");
};

TEST_F(CustomizeByHand, ALabelIsEditedInTheTreeByKeyAndByASecondClick) {
  Select(1, 1);
  Press(kKeyF2);
  desk_.Picture("edit");
  Type("uno");
  Press(scenario::kKeyEnter);
  Select(2, 1);
  desk_.Pause(900);  // not a double click
  desk_.Click(Row(2, 1));
  desk_.Pause(1200);
  desk_.Picture("second-click");
  Type("due");
  Press(scenario::kKeyEnter);
  Save();
  EXPECT_TRUE(WaitForMenu(1, "uno", {one_}));
  EXPECT_TRUE(WaitForMenu(2, "due", {two_, three_}));
  desk_.Picture("saved");
}

TEST_F(CustomizeByHand, AnItemIsDraggedToAnotherMenu) {
  OpenBoth();
  desk_.Picture("open");
  desk_.DragTo(Row(2, 2), Row(3, 1));
  desk_.Picture("over-two");
  desk_.Release(Button::Left);
  desk_.Pause(300);
  Save();
  EXPECT_TRUE(WaitForMenu(2, "Two", {two_, three_, one_}));
  EXPECT_TRUE(WaitForMenu(1, "One", {}));
  desk_.Picture("saved");
}

TEST_F(CustomizeByHand, AnItemIsDraggedBeforeAnotherOneAndCtrlCopiesIt) {
  OpenBoth();
  desk_.DragTo(Row(2, 2), Row(5, 2));
  desk_.Picture("line-before-three");
  desk_.HoldKey(scenario::kKeyControl);
  desk_.Pause(100);
  desk_.Release(Button::Left);
  desk_.Pause(100);
  desk_.LetKeyGo(scenario::kKeyControl);
  desk_.Pause(300);
  Save();
  EXPECT_TRUE(WaitForMenu(2, "Two", {two_, one_, three_}));
  EXPECT_TRUE(WaitForMenu(1, "One", {one_}));
}

TEST_F(CustomizeByHand, ADragEndsWithEscAndMovesNothingButTheSelection) {
  OpenBoth();
  desk_.DragTo(Row(2, 2), Row(3, 1));
  Press(scenario::kKeyEscape);
  desk_.Release(Button::Left);
  desk_.Pause(300);
  ASSERT_TRUE(desk_.IsVisible("frmCust"));
  desk_.Picture("given-up");
  // What was dragged is what is selected.
  Press(scenario::kKeyDelete);
  Save();
  EXPECT_TRUE(WaitForMenu(1, "One", {}));
  EXPECT_EQ(Menu(2), MenuBytes("Two", {two_, three_}));
}

TEST_F(CustomizeByHand, TwoFilesOfAnotherProgramComeSortedInPlaceOfTheItem) {
  OpenBoth();
  Select(2, 2);
  const PixelSize screen = desk_.ScreenSize();
  const PixelRect source{10, screen.height - 160, 200, screen.height - 60};
  desk_.OpenDragSource(source, {desk_.WitnessProgram(), desk_.WitnessDocument()}, {}, {});
  desk_.DragTo({(source.left + source.right) / 2, (source.top + source.bottom) / 2}, Row(4, 2));
  desk_.Picture("over-the-tree");
  desk_.Release(Button::Left);
  desk_.Pause(600);
  desk_.BringToFront("frmCust");
  desk_.Pause(300);
  Save();
  ASSERT_TRUE(desk_.Wait([this] { return Items(1).size() == 2; }));
  EXPECT_EQ(Items(1)[0].FName, desk_.WitnessDocument());
  EXPECT_EQ(Items(1)[1].FName, desk_.WitnessProgram());
  desk_.Picture("saved");
}

TEST_F(CustomizeByHand, CutPasteDeleteAndUndo) {
  OpenBoth();
  Select(4, 2);
  With(scenario::kKeyControl, 'X');
  Select(1, 1);
  With(scenario::kKeyControl, 'V');
  desk_.Picture("pasted");
  Save();
  EXPECT_TRUE(WaitForMenu(1, "One", {one_, two_}));
  EXPECT_TRUE(WaitForMenu(2, "Two", {three_}));
  Select(2, 2);
  Press(scenario::kKeyDelete);
  desk_.HoldKey(scenario::kKeyControl);
  With(scenario::kKeyShift, 'Z');
  desk_.LetKeyGo(scenario::kKeyControl);
  desk_.Picture("undone");
  With(scenario::kKeyControl, 'Y');
  Save();
  EXPECT_TRUE(WaitForMenu(1, "One", {two_}));
}

TEST_F(CustomizeByHand, SortNodeAsksAndSorts) {
  Select(2, 1);
  desk_.AnswerNext(scenario::kButtonYes);
  InContextMenu({scenario::kKeyUp, scenario::kKeyUp, scenario::kKeyEnter}, "context-menu");
  ASSERT_TRUE(desk_.Wait([this] { return !desk_.Messages().empty(); }));
  EXPECT_NE(desk_.Messages()[0].Text.find("once you sort a node"), std::string::npos);
  desk_.Pause(300);
  Save();
  EXPECT_TRUE(WaitForMenu(2, "Two", {three_, two_}));
}

TEST_F(CustomizeByHand, AModuleFillsTheSelectedItem) {
  OpenBoth();
  Select(2, 2);
  using scenario::kKeyDown;
  // Behind the four folders.
  InContextMenu(
      {kKeyDown, scenario::kKeyRight, kKeyDown, kKeyDown, kKeyDown, kKeyDown, scenario::kKeyEnter},
      "modules");
  desk_.Pause(300);
  desk_.Picture("filled");
  Save();
  EXPECT_TRUE(WaitForMenu(1, "One", {{"Net Search", "\\icons\\netsrch.ico", "NetSearch"}}));
}

TEST_F(CustomizeByHand, AHiddenButtonIsDimmedAndLeavesTheStripWithTheSave) {
  const std::vector<int> kHideButton{scenario::kKeyDown, scenario::kKeyDown, scenario::kKeyDown,
                                     scenario::kKeyDown, scenario::kKeyEnter};
  const int before = ButtonCount(desk_);
  Select(1, 1);
  InContextMenu(kHideButton);
  desk_.Pause(300);
  desk_.Picture("dimmed");
  EXPECT_EQ(ButtonCount(desk_), before);
  Save();
  EXPECT_TRUE(desk_.Wait([&] { return ButtonCount(desk_) == before - 1; }));
  desk_.Picture("strip-without-it");
  // The key of the save has brought the focus to its button.
  Select(2, 1);
  Select(1, 1);
  InContextMenu(kHideButton);
  desk_.Pause(300);
  Save();
  EXPECT_TRUE(desk_.Wait([&] { return ButtonCount(desk_) == before; }));
}

TEST_F(CustomizeByHand, ClosingWithYesSaves) {
  Select(1, 1);
  With(scenario::kKeyControl, 'M');
  desk_.AnswerNext(scenario::kButtonYes);
  With(scenario::kKeyAlt, 'X');
  EXPECT_TRUE(WaitForMenu(1, "One", {one_, NewItemRecord()}));
  EXPECT_TRUE(desk_.Wait([this] { return !desk_.IsVisible("frmCust"); }));
  EXPECT_EQ(desk_.Messages().size(), 1U);
}

TEST_F(CustomizeByHand, ARenameAloneAsksNothingAndIsOfferedByTheNextWindow) {
  Select(1, 1);
  Press(kKeyF2);
  Type("uno");
  Press(scenario::kKeyEnter);
  With(scenario::kKeyAlt, 'X');
  EXPECT_TRUE(desk_.Wait([this] { return !desk_.IsVisible("frmCust"); }));
  EXPECT_TRUE(desk_.Messages().empty());
  EXPECT_EQ(Menu(1), MenuBytes("One", {one_}));
  ASSERT_NO_FATAL_FAILURE(Open());
  desk_.Picture("offered");
  // Another rename, and the older one is not lost.
  Select(2, 1);
  Press(kKeyF2);
  Type("due");
  Press(scenario::kKeyEnter);
  With(scenario::kKeyAlt, 'X');
  EXPECT_TRUE(desk_.Wait([this] { return !desk_.IsVisible("frmCust"); }));
  ASSERT_NO_FATAL_FAILURE(Open());
  desk_.Picture("two-offered");
  const std::string kept = desk_.ReadFile("Menus\\unsaved.dft").value_or("");
  EXPECT_NE(kept.find("uno"), std::string::npos);
  EXPECT_NE(kept.find("due"), std::string::npos);
}

// ---- missing targets ----

TEST_F(CustomizeByHand, ItemsWithoutTheirFileBearAMarkAndF8WalksThem) {
  With(scenario::kKeyAlt, 'X');
  ASSERT_TRUE(desk_.Wait([this] { return !desk_.IsVisible("frmCust"); }));
  const MenuRecord gone{"gone", one_.FIcon, "C:\\nowhere\\gone.exe"};
  const MenuRecord server{"far", one_.FIcon, "\\\\nobody\\share\\far.exe"};
  scenario::WriteMenu(desk_, 1, "One", {one_, server, gone});
  ASSERT_NO_FATAL_FAILURE(Open());
  desk_.Pause(1000);
  Press(kKeyF8);
  desk_.Pause(kGuard);
  desk_.Picture("marked");
  // What is selected now is the missing one: it goes, and nothing else does.
  Press(scenario::kKeyDelete);
  Save();
  EXPECT_TRUE(WaitForMenu(1, "One", {one_, server}));
}

// ---- the Options menu ----

TEST_F(CustomizeByHand, TheFlagsOfTheOptionsMenuReachTheDisk) {
  struct Line {
    CustOption Option;
    int Position;
  };
  const Line flips[] = {{CustOption::KeepOnTop, 4},       {CustOption::StartupScreen, 9},
                        {CustOption::LeaveExtension, 10}, {CustOption::WebLinkDialog, 18},
                        {CustOption::ShowDate, 21},       {CustOption::DisableHints, 22}};
  const std::string before = InstalledFlags();
  for (const Line& line : flips) ASSERT_NO_FATAL_FAILURE(ChooseOption(line.Option));
  ASSERT_NO_FATAL_FAILURE(ChooseOption(CustOption::SingleClick));
  ASSERT_NO_FATAL_FAILURE(ChooseOption(CustOption::OwnPopup));
  With(scenario::kKeyAlt, 'O');
  desk_.Pause(300);
  desk_.Picture("checked");
  Press(scenario::kKeyEscape);
  Press(scenario::kKeyEscape);
  With(scenario::kKeyAlt, 'X');
  ASSERT_TRUE(scenario::CloseAndWait(desk_));
  for (const Line& line : flips) {
    const char was = before[static_cast<std::size_t>(line.Position) - 1];
    EXPECT_EQ(scenario::FlagAt(desk_, line.Position), was == '1' ? '0' : '1') << line.Position;
  }
  EXPECT_EQ(scenario::FlagAt(desk_, 11), '1');
  EXPECT_EQ(scenario::FlagAt(desk_, 19), '0');
}

TEST_F(CustomizeByHand, ThePartnersOfThePairsTakeThemBack) {
  for (const CustOption option : {CustOption::SingleClick, CustOption::DoubleClick,
                                  CustOption::OwnPopup, CustOption::SystemPopup}) {
    ASSERT_NO_FATAL_FAILURE(ChooseOption(option));
  }
  ASSERT_NO_FATAL_FAILURE(ChooseOption(CustOption::AdjustLeft));
  ASSERT_NO_FATAL_FAILURE(ChooseOption(CustOption::AdjustRight));
  With(scenario::kKeyAlt, 'X');
  ASSERT_TRUE(scenario::CloseAndWait(desk_));
  EXPECT_EQ(scenario::FlagAt(desk_, 11), '0');
  EXPECT_EQ(scenario::FlagAt(desk_, 19), '1');
  EXPECT_EQ(scenario::FlagAt(desk_, 27), '1');
  EXPECT_EQ(scenario::FlagAt(desk_, 13), '1');
}

TEST_F(CustomizeByHand, LargeIconsChangeTheStripAtOnce) {
  const PixelRect before = desk_.BoundsOf("picToolbar");
  // They are large already: the option and what is in force become the same by the first choice.
  for (const bool large : {true, false, true}) {
    ASSERT_NO_FATAL_FAILURE(ChooseOption(CustOption::LargeIcons));
    EXPECT_TRUE(desk_.Wait([&] {
      const int height = desk_.BoundsOf("picToolbar").Height();
      return large ? height == before.Height() : height < before.Height() - 10;
    })) << large;
    desk_.Picture(large ? "large" : "small");
    desk_.BringToFront("frmCust");
    desk_.Pause(500);
  }
}

TEST_F(CustomizeByHand, SmallSingleButtonsAreTakenBackWithAMessageAndSetAtTheEdge) {
  desk_.AnswerNext(scenario::kButtonOk);
  ASSERT_NO_FATAL_FAILURE(ChooseOption(CustOption::SmallSingles));
  ASSERT_TRUE(desk_.Wait([this] { return !desk_.Messages().empty(); }));
  EXPECT_NE(desk_.Messages()[0].Text.find("next time you switch to large icons toolbar."),
            std::string::npos);
  desk_.Pause(300);
  ASSERT_NO_FATAL_FAILURE(ChooseOption(CustOption::SmallSingles));
  const int right = desk_.ScreenSize().width;
  EXPECT_TRUE(desk_.Wait([&] {
    const PixelRect strip = desk_.BoundsOf("frmToolbar");
    return strip.right == right && strip.Height() > strip.Width();
  }));
  desk_.Picture("at-the-edge");
}

TEST_F(CustomizeByHand, TheStartupFolderGetsALinkAndLosesIt) {
  desk_.AnswerNext(scenario::kButtonOk);
  ASSERT_NO_FATAL_FAILURE(ChooseOption(CustOption::SetStartup));
  EXPECT_TRUE(desk_.Wait([this] { return desk_.StartupLinkTarget().has_value(); }));
  desk_.Pause(500);
  desk_.AnswerNext(scenario::kButtonOk);
  ASSERT_NO_FATAL_FAILURE(ChooseOption(CustOption::RemoveStartup));
  EXPECT_TRUE(desk_.Wait([this] { return !desk_.StartupLinkTarget().has_value(); }));
}

TEST_F(CustomizeByHand, TheWebIconIsChosenInADialogAndCanBeTheDefaultAgain) {
  ASSERT_NO_FATAL_FAILURE(ChooseOption(CustOption::CustomWebIcon));
  desk_.Pause(1000);
  desk_.Picture("dialog");
  TypeText(desk_.WitnessProgram());
  Press(scenario::kKeyEnter);
  ASSERT_TRUE(desk_.Wait([this] { return desk_.ReadFile("httpicon.ini").has_value(); }));
  EXPECT_NE(desk_.ReadFile("httpicon.ini")->find(desk_.WitnessProgram()), std::string::npos);
  desk_.Pause(500);
  ASSERT_NO_FATAL_FAILURE(ChooseOption(CustOption::DefaultWebIcon));
  With(scenario::kKeyAlt, 'X');
  ASSERT_TRUE(scenario::CloseAndWait(desk_));
  EXPECT_EQ(scenario::FlagAt(desk_, 12), '0');
}

TEST_F(CustomizeByHand, ABrowserThatIsNoneIsRefused) {
  desk_.AnswerNext(scenario::kButtonOk);
  ASSERT_NO_FATAL_FAILURE(ChooseOption(CustOption::AlternateBrowser));
  desk_.Pause(1000);
  TypeText(desk_.WitnessProgram());
  Press(scenario::kKeyEnter);
  ASSERT_TRUE(desk_.Wait([this] { return !desk_.Messages().empty(); }));
  EXPECT_TRUE(desk_.Messages()[0].Text.starts_with("Unsupported browser."));
  EXPECT_FALSE(desk_.ReadFile("openurl.ini"));
}

TEST_F(CustomizeByHand, AnotherBrowserIsChosenAndGetsTheNextAddress) {
  // By its name it is one that can be asked; what it is asked is written down.
  std::string browser = desk_.WitnessProgram();
  browser.replace(browser.rfind('\\') + 1, std::string::npos, "iexplore.exe");
  ASSERT_TRUE(CopyFileW(Wide(desk_.WitnessProgram()).c_str(), Wide(browser).c_str(), FALSE));
  ASSERT_NO_FATAL_FAILURE(ChooseOption(CustOption::AlternateBrowser));
  desk_.Pause(1000);
  TypeText(browser);
  desk_.Picture("file");
  Press(scenario::kKeyEnter);
  ASSERT_TRUE(desk_.Wait([this] { return desk_.ReadFile("openurl.ini").has_value(); }));
  With(scenario::kKeyAlt, 'X');
  ASSERT_TRUE(scenario::CloseAndWait(desk_));
  scenario::WriteMenu(desk_, 1, "One", {{"page", "http", "http://a.example/x"}});
  ASSERT_TRUE(scenario::StartAndWait(desk_));
  ASSERT_TRUE(scenario::OpenMenu(desk_, 2));
  desk_.Click(scenario::ItemMiddle(desk_, 1, 1));
  ASSERT_TRUE(desk_.Wait([this] { return !desk_.Launched().empty(); }));
  EXPECT_TRUE(desk_.Launched()[0].Program.ends_with("iexplore.exe")) << desk_.Launched()[0].Program;
  EXPECT_EQ(desk_.Launched()[0].Arguments, "http://a.example/x");
  EXPECT_TRUE(desk_.Messages().empty());
}

TEST_F(CustomizeByHand, ResetHelpTipsSaysSoAndShowsThemAgain) {
  With(scenario::kKeyAlt, 'X');
  ASSERT_TRUE(scenario::CloseAndWait(desk_));
  ASSERT_NO_FATAL_FAILURE(Begin(InstalledFlags({5, 6, 7, 8, 29})));
  desk_.AnswerNext(scenario::kButtonOk);
  ASSERT_NO_FATAL_FAILURE(ChooseOption(CustOption::ResetTips));
  ASSERT_TRUE(desk_.Wait([this] { return !desk_.Messages().empty(); }));
  EXPECT_EQ(desk_.Messages()[0].Text, "Help tip dialog has been reset.");
  With(scenario::kKeyAlt, 'X');
  ASSERT_TRUE(scenario::CloseAndWait(desk_));
  for (const int position : {5, 6, 7, 8, 29}) {
    EXPECT_EQ(scenario::FlagAt(desk_, position), '0') << position;
  }
}

// ---- a user who does what he should not ----

TEST_F(CustomizeByHand, PressesFasterThanTheWindowLikesLoseNothing) {
  Select(1, 1);
  for (int i = 0; i < 10; ++i) {
    desk_.HoldKey(scenario::kKeyControl);
    desk_.Key('M');
    desk_.LetKeyGo(scenario::kKeyControl);
  }
  for (int i = 0; i < 10; ++i) {
    desk_.HoldKey(scenario::kKeyAlt);
    desk_.Key('U');
    desk_.LetKeyGo(scenario::kKeyAlt);
  }
  EXPECT_TRUE(desk_.Wait([this] { return Items(1).size() == 11; }, 20000));
  desk_.Picture("after-ten-saves");
  EXPECT_TRUE(desk_.IsVisible("frmCust"));
  EXPECT_TRUE(desk_.Messages().empty());
}

TEST_F(CustomizeByHand, ChosenASecondTimeItComesToTheFrontAsItIs) {
  Select(1, 1);
  With(scenario::kKeyControl, 'M');
  const auto nodes = desk_.Send(kTree, kNodes, 0, 0);
  ASSERT_TRUE(scenario::ChooseInMainMenu(desk_, MainChoice::Customize));
  EXPECT_TRUE(desk_.Wait([this] { return desk_.ForegroundClass() == "frmCust"; }));
  desk_.Pause(500);
  EXPECT_EQ(desk_.Send(kTree, kNodes, 0, 0), nodes);
  Save();
  EXPECT_TRUE(WaitForMenu(1, "One", {one_, NewItemRecord()}));
}

TEST_F(CustomizeByHand, AFileThatIsDamagedMeanwhileIsAskedAbout) {
  Select(1, 1);
  Press(kKeyF2);
  Type("uno");
  Press(scenario::kKeyEnter);
  const std::string damaged = MenuBytes("Other", {one_}).substr(0, 900);
  desk_.WriteFile("Menus\\" + MenuFileName(1), damaged);
  desk_.AnswerNext(scenario::kButtonYes);
  Save();
  ASSERT_TRUE(desk_.Wait([this] { return !desk_.Messages().empty(); }));
  EXPECT_TRUE(desk_.Messages()[0].Text.starts_with("The menus have been changed outside"));
  desk_.Pause(500);
  desk_.Picture("the-other-version-is-offered");
  EXPECT_TRUE(Menu(1).starts_with(MenuBytes("uno", {}).substr(0, 50)));
  EXPECT_TRUE(desk_.ReadFile("Menus\\unsaved.dft"));
}

TEST_F(CustomizeByHand, WhatWasTypedBeforeTheProcessIsKilledIsOffered) {
  Select(1, 1);
  With(scenario::kKeyControl, 'M');
  ASSERT_TRUE(desk_.Wait([this] { return desk_.ReadFile("Menus\\unsaved.dft").has_value(); }));
  desk_.Kill();
  ASSERT_TRUE(scenario::StartAndWait(desk_));
  ASSERT_NO_FATAL_FAILURE(Open());
  desk_.Picture("offered-after-a-kill");
  EXPECT_EQ(Menu(1), MenuBytes("One", {one_}));
  EXPECT_TRUE(desk_.ReadFile("Menus\\unsaved.dft"));
}

/// The same pictures at both scales.
class CustomizeLooksAtEachScale : public CustomizeByHand {};

TEST_F(CustomizeLooksAtEachScale, WithAnItemInTheBoxesAndTheFindBoxOpen) {
  OpenBoth();
  Select(4, 2);
  desk_.Picture("item");
  With(scenario::kKeyControl, 'F');
  Type("three");
  Press(scenario::kKeyEnter);
  desk_.Picture("found");
  With(scenario::kKeyAlt, 'E');
  desk_.Pause(300);
  desk_.Picture("edit-menu");
  Press(scenario::kKeyEscape);
  Press(scenario::kKeyEscape);
  // The found item is the selected one: it goes.
  desk_.Click(Row(6, 0));
  EXPECT_TRUE(desk_.IsVisible("frmCust"));
  EXPECT_GT(desk_.ColoursIn(kTree, {0, 0, 100, 60}), 3);
}

}  // namespace
}  // namespace corvelle::e2e
