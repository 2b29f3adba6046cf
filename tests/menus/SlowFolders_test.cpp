// Folders that do not answer at once, while their menu is up.

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "menus/FolderDesk.h"
#include "menus/folders/FolderQuestions.h"
#include "menus/items/UpdateRules.h"

namespace corvelle {
namespace {

using forms::MouseButton;

constexpr int kLeftButtonKey = 1;

// The captions are there without the names that the shell gives.
TEST(FolderQuestions, AboutTheFilesOfAFolderHoldTheMenuUpForAShorterTimeThanTheFolder) {
  struct Row {
    LookupKind kind;
    int files;
    int longest;
  };
  constexpr int kMost = FolderQuestions::kMostWaitedFor;
  const Row rows[] = {{LookupKind::FolderEntries, 1, FolderQuestions::kAtOnce},
                      {LookupKind::FileNames, 1, FolderQuestions::kNamesAtOnce},
                      {LookupKind::FileNames, kMost, FolderQuestions::kNamesAtOnce},
                      {LookupKind::FileNames, kMost + 1, 0},
                      {LookupKind::ShortPaths, kMost, FolderQuestions::kNamesAtOnce},
                      {LookupKind::ShortPaths, kMost + 1, 0}};
  for (const Row& row : rows) {
    sim::World world;
    Program program(world.Services(), world.Windows());
    world.Costs.SetPrice([](std::string_view, std::string_view) { return 0; });
    world.Costs.WhenCharged([&](int milliseconds) { world.Desktop.Jump(milliseconds); });
    for (const char* lane : {"D:", "D:*"}) world.SlowAnswers.Hang(lane);
    FolderQuestions questions(program.Answers, program.Windows, [] {});
    std::string lines;
    for (int i = 0; i < row.files; ++i) lines += "a\n";
    for (const char* folder : {"D:\\One\\", "D:\\Two\\"}) {
      const auto& known = questions.Get({.Kind = row.kind, .Path = folder, .Pattern = lines});
      EXPECT_EQ(known.State, FolderState::Reading) << row.longest;
    }
    EXPECT_EQ(world.Costs.LongestTurn(), row.longest);
  }
}

TEST(UpdateRules, AMenuChangesWhenThePointerLetsIt) {
  struct Row {
    const char* name;
    UpdateScene scene;
    bool expected;
  };
  const Row rows[] = {
      {"away", {}, true},
      {"on its way to a press", {.PointerOver = true, .SinceMove = 99, .Waited = 299}, false},
      {"resting", {.PointerOver = true, .SinceMove = 100}, true},
      {"moving for too long", {.PointerOver = true, .SinceMove = 0, .Waited = 300}, true},
      {"between press and release",
       {.Busy = true, .PointerOver = true, .SinceMove = 5000, .Waited = 5000},
       false},
      {"pressed elsewhere", {.Busy = true, .Waited = 5000}, false},
  };
  for (const Row& row : rows) EXPECT_EQ(MayUpdate(row.scene), row.expected) << row.name;
}

/// A menu with a plain item and a folder on a drive of its own.
class SlowFolder : public ::testing::Test {
 protected:
  SlowFolder() {
    desk_.World.Files.AddDrive('D');
    for (const char* name : {"one.txt", "two.txt"}) {
      desk_.World.Files.Put("D:\\Docs\\" + std::string(name), "x");
    }
  }
  void Open(const std::string& options = {}) {
    desk_.OpenCommands({"C:\\Tools\\tool.exe", "D:\\Docs\\*.*" + options});
  }
  void Advance(int milliseconds) { desk_.World.Desktop.Advance(milliseconds); }
  sim::SimLookups& Slow() { return desk_.World.SlowAnswers; }

  const Strings stored_{"Item 2", "Item 3"};
  const Strings filled_{"Item 2", "one.txt", "two.txt"};
  FolderDesk desk_;
};

TEST_F(SlowFolder, AMenuIsUpWithItsStoredRecordsWhileAFolderDoesNotAnswer) {
  Slow().Hang("D:");
  const auto before = desk_.World.Desktop.Now();
  Open();
  EXPECT_EQ(desk_.World.Desktop.Now(), before);
  EXPECT_TRUE(desk_.Menu.MenuVisible());
  EXPECT_EQ(desk_.Captions(), stored_);
  Advance(200);
  EXPECT_EQ(desk_.Captions(), (Strings{"Item 2", "Item 3 (reading...)"}));
  Advance(6000);
  EXPECT_EQ(desk_.Captions(), (Strings{"Item 2", "Item 3 (not available)"}));
  // What is not known is not written for others.
  EXPECT_TRUE(desk_.Generated().empty());
}

TEST_F(SlowFolder, IsSaidToBeReadWhenItHasTakenMoreThanAMoment) {
  Slow().Hang("D:");
  Open();
  Advance(130);
  EXPECT_EQ(desk_.Captions(), stored_);
  Advance(40);
  EXPECT_EQ(desk_.Captions(), (Strings{"Item 2", "Item 3 (reading...)"}));
}

TEST_F(SlowFolder, WhatItHoldsComesIntoTheMenuThatIsUp) {
  Slow().Delay("D:", 120);
  Open();
  EXPECT_EQ(desk_.Captions(), stored_);
  Advance(400);
  EXPECT_EQ(desk_.Captions(), filled_);
  EXPECT_TRUE(desk_.Menu.MenuVisible());
  EXPECT_EQ(desk_.Generated().size(), 4U);
  EXPECT_EQ(desk_.Strip.Times("ResetMenu"), 0);
}

TEST_F(SlowFolder, AMenuThatIsClosedMeanwhileStaysClosedAndOpensWithWhatCame) {
  Slow().Delay("D:", 300);
  Open();
  desk_.Menu.HideMenu();
  Advance(1000);
  EXPECT_FALSE(desk_.Menu.MenuVisible());
  Slow().Hang("D:");
  desk_.Reopen(1);
  EXPECT_EQ(desk_.Captions(), filled_);
}

TEST_F(SlowFolder, AFolderThatIsComparedShowsFirstAndComparesAfterwards) {
  Open("/u");
  EXPECT_EQ(desk_.Captions(), filled_);
  desk_.Menu.HideMenu();
  desk_.World.Files.Put("D:\\Docs\\three.txt", "x");
  Slow().Delay("D:", 300);
  desk_.Reopen(1);
  EXPECT_EQ(desk_.Captions(), filled_);
  Advance(1000);
  EXPECT_EQ(desk_.Captions(), (Strings{"Item 2", "one.txt", "three.txt", "two.txt"}));
}

TEST_F(SlowFolder, ARowThatIsGoneFromTheFolderIsGoneFromTheMenu) {
  Open("/u");
  desk_.Menu.HideMenu();
  desk_.World.Files.Vanish("D:\\Docs\\two.txt");
  Slow().Delay("D:", 300);
  desk_.Reopen(1);
  ASSERT_TRUE(desk_.Menu.Lbl[3].Visible());
  Advance(1000);
  EXPECT_EQ(desk_.Captions(), (Strings{"Item 2", "one.txt"}));
  EXPECT_TRUE(desk_.Menu.Lbl[2].Visible());
  EXPECT_FALSE(desk_.Menu.Lbl[3].Visible());
}

TEST_F(SlowFolder, WhatTheKeysHadSelectedStaysSelected) {
  Open("/u");
  desk_.Menu.HideMenu();
  desk_.World.Files.Put("D:\\Docs\\three.txt", "x");
  Slow().Delay("D:", 300);
  desk_.Reopen(1);
  for (int i = 0; i < 3; ++i) desk_.World.Desktop.PressKey(forms::key::Down);
  ASSERT_EQ(desk_.Menu.Items()[desk_.TheProgram.Menu.SelectedItem].Title, "two.txt");
  Advance(1000);
  EXPECT_EQ(desk_.TheProgram.Menu.SelectedItem, 4);
  EXPECT_EQ(desk_.Menu.Items()[4].Title, "two.txt");
  EXPECT_EQ(desk_.BarredItem(), 4);
}

TEST_F(SlowFolder, NothingMovesBetweenPressAndRelease) {
  Slow().Delay("D:", 120);
  Open();
  desk_.PointAtItem(1);
  desk_.World.Desktop.Press();
  Advance(1000);
  EXPECT_EQ(desk_.Captions(), stored_);
  desk_.World.Desktop.Release();
  EXPECT_EQ(desk_.Started(), Strings{"C:\\Tools\\tool.exe"});
}

TEST_F(SlowFolder, NothingMovesWhileTheRightButtonIsHeld) {
  Slow().Delay("D:", 120);
  Open();
  desk_.PointAtItem(1);
  desk_.World.Desktop.Press(MouseButton::Right);
  Advance(1000);
  EXPECT_EQ(desk_.Captions(), stored_);
  desk_.World.Desktop.Release(MouseButton::Right);
  Advance(200);
  EXPECT_EQ(desk_.Captions(), filled_);
}

// The button is up, and what falls due comes before the event that tells so.
TEST_F(SlowFolder, NothingMovesBeforeAReleaseThatIsOnItsWay) {
  Slow().Delay("D:", 120);
  Open();
  desk_.PointAtItem(2);
  desk_.World.Desktop.Press(MouseButton::Right);
  Advance(1000);
  ASSERT_TRUE(desk_.Menu.UpdateTimer.Enabled());
  const forms::TimerId timer = desk_.World.Desktop.StartTimer(1, [&] {
    desk_.World.Desktop.Release(MouseButton::Right);
    desk_.Menu.UpdateTimer.Tick();
    EXPECT_EQ(desk_.Captions(), stored_);
  });
  Advance(1);
  desk_.World.Desktop.StopTimer(timer);
  Advance(200);
  EXPECT_EQ(desk_.Captions(), filled_);
}

// The pointer has rested long enough, and the button is down.
TEST_F(SlowFolder, NothingMovesBeforeAPressThatIsOnItsWay) {
  Slow().Delay("D:", 120);
  Open();
  Advance(50);
  desk_.PointAtItem(2);
  Advance(90);
  ASSERT_TRUE(desk_.Menu.UpdateTimer.Enabled());
  const forms::TimerId timer = desk_.World.Desktop.StartTimer(20, [&] {
    desk_.World.Desktop.Press();
    desk_.Menu.UpdateTimer.Tick();
    EXPECT_EQ(desk_.Captions(), stored_);
  });
  Advance(20);
  desk_.World.Desktop.StopTimer(timer);
  desk_.World.Desktop.Release();
  EXPECT_EQ(desk_.Started(), Strings{"D:\\Docs\\"});
}

TEST_F(SlowFolder, NothingMovesWhileAnArrowIsHeld) {
  Slow().Delay("D:", 120);
  Strings commands(60, "C:\\Tools\\tool.exe");
  commands.emplace_back("D:\\Docs\\*.*");
  desk_.OpenCommands(commands);
  ASSERT_GT(desk_.Menu.Pages().Slides(), 0);
  desk_.PointAt(desk_.ArrowPoint(1));
  desk_.World.Desktop.Press();
  Advance(1000);
  EXPECT_EQ(desk_.Menu.Items().Count(), 61);
  desk_.World.Desktop.Release();
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 1);
  Advance(200);
  EXPECT_EQ(desk_.Menu.Items().Count(), 62);
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 1);
}

// The first click asks again, and the answer comes under the second one.
TEST_F(SlowFolder, NothingMovesUnderTheSecondPressOfAQuickPair) {
  const Strings waiting{"Item 2", "Item 3 (not available)"};
  Slow().Hang("D:");
  Open();
  Advance(6000);
  ASSERT_EQ(desk_.Captions(), waiting);
  Slow().Resume("D:");
  desk_.PointAtItem(2);
  desk_.World.Desktop.DoubleClick({}, [&] {
    Advance(1000);
    EXPECT_EQ(desk_.Captions(), waiting);
  });
  EXPECT_TRUE(desk_.Started().empty());
  Advance(200);
  EXPECT_EQ(desk_.Captions(), filled_);
}

TEST_F(SlowFolder, NothingMovesUnderADragThatComesStraightIntoTheMenu) {
  Slow().Delay("D:", 120);
  Open();
  desk_.World.Desktop.StartDrag({.Data = {.Files = Strings{"C:\\Tools\\tool.exe"}}});
  desk_.PointAtItem(2);
  Advance(1000);
  ASSERT_FALSE(desk_.TheProgram.Drag.DragEntered);
  EXPECT_EQ(desk_.Captions(), stored_);
  desk_.PointAway();
  Advance(200);
  EXPECT_EQ(desk_.Captions(), filled_);
  desk_.World.Desktop.Release();
}

TEST_F(SlowFolder, NothingMovesBeforeADropThatIsOnItsWay) {
  Slow().Delay("D:", 120);
  Open();
  desk_.World.Desktop.StartDrag({.Data = {.Files = Strings{"C:\\Tools\\tool.exe"}}});
  desk_.PointAtItem(2);
  Advance(1000);
  const forms::TimerId timer = desk_.World.Desktop.StartTimer(1, [&] {
    desk_.World.Desktop.Release();
    desk_.Menu.UpdateTimer.Tick();
    EXPECT_EQ(desk_.Captions(), stored_);
  });
  Advance(1);
  desk_.World.Desktop.StopTimer(timer);
  EXPECT_EQ(desk_.Strip.Times("RefreshMenu F2"), 1) << "it was dropped";
}

TEST_F(SlowFolder, ADragWhoseSourceDiedHoldsNothingUp) {
  Slow().Delay("D:", 120);
  Open();
  desk_.World.Desktop.StartDrag({.Data = {.Files = Strings{"C:\\Tools\\tool.exe"}}});
  desk_.PointAtItem(2);
  Advance(50);
  desk_.World.Desktop.KillDragSource();
  desk_.World.Desktop.KeyUp(kLeftButtonKey);
  ASSERT_TRUE(desk_.TheProgram.Drag.DragOverButton);
  Advance(1000);
  EXPECT_EQ(desk_.Captions(), filled_);
}

TEST_F(SlowFolder, APressThatEndsWithoutAReleaseHoldsNothingUp) {
  Slow().Delay("D:", 400);
  Open();
  desk_.PointAtItem(1);
  desk_.World.Desktop.Press();
  Advance(200);
  desk_.World.Desktop.TakeCapture();
  desk_.PointAway();
  desk_.World.Desktop.Release();
  Advance(1000);
  EXPECT_EQ(desk_.Captions(), filled_);
}

TEST_F(SlowFolder, ThatAnswersAfterACarryThatWasPutDownInVainComesIntoTheMenu) {
  constexpr int kCtrl = 17;
  Slow().Delay("D:", 400);
  Open();
  desk_.PointAtItem(1);
  desk_.World.Desktop.KeyDown(kCtrl);
  desk_.World.Desktop.Press();
  desk_.World.Desktop.KeyUp(kCtrl);
  ASSERT_TRUE(desk_.TheProgram.Entry.ItemDragging);
  Advance(200);
  desk_.PointAway();
  desk_.World.Desktop.Release();
  ASSERT_FALSE(desk_.TheProgram.Entry.ItemDragging);
  Advance(1000);
  EXPECT_EQ(desk_.Captions(), filled_);
}

// A press with Ctrl that a message ends: no record can hold a copy of the entry.
TEST_F(SlowFolder, ThatAnswersAfterAMessageUnderThePressComesIntoTheMenu) {
  constexpr int kCtrl = 17;
  const std::string folder = "C:\\" + std::string(60, 'f') + "\\";
  std::string name;
  for (int i = 0; i < 70; ++i) name += "\xE6\x97\xA5";
  desk_.World.Files.Put(folder + name + ".txt", "x");
  Slow().Delay("D:", 400);
  desk_.OpenCommands({folder + "*.*", "D:\\Docs\\*.*"});
  desk_.World.Desktop.AnswerAnyOther(forms::msgbox::AnswerOk);
  desk_.PointAtItem(1);
  desk_.World.Desktop.KeyDown(kCtrl);
  desk_.World.Desktop.Press();
  desk_.World.Desktop.KeyUp(kCtrl);
  ASSERT_EQ(desk_.World.Desktop.Boxes().size(), 1U);
  desk_.PointAway();
  desk_.World.Desktop.Release();
  ASSERT_EQ(desk_.Menu.Items().Count(), 2);
  Advance(1000);
  EXPECT_EQ(desk_.Menu.Items().Count(), 3);
}

TEST_F(SlowFolder, TheGeneratedFileIsShownWhereNoAnswerIsKept) {
  Open();
  const std::string name = "C:\\Corvelle\\Menus\\BMENU001.mfd";
  const std::string kept = desk_.World.Files.Get(name).value_or("");
  ASSERT_FALSE(kept.empty());
  FolderDesk next;
  next.World.Files.Put(name, kept);
  next.World.SlowAnswers.Hang("D:");
  next.OpenCommands({"C:\\Tools\\tool.exe", "D:\\Docs\\*.*"});
  EXPECT_EQ(next.Captions(), filled_);
  EXPECT_EQ(next.Numbers(), (std::vector<int>{2, 5003, 5003}));
  // Entries of another folder are none of this one's.
  next.Menu.HideMenu();
  next.World.SlowAnswers.Hang("E:");
  next.OpenCommands({"C:\\Tools\\tool.exe", "E:\\Other\\*.*"});
  EXPECT_EQ(next.Captions(), stored_);
}

TEST_F(SlowFolder, APressOnAFolderThatIsNotAvailableTriesAgain) {
  Slow().Hang("D:");
  Open();
  Advance(6000);
  ASSERT_EQ(desk_.Captions(), (Strings{"Item 2", "Item 3 (not available)"}));
  Slow().Resume("D:");
  desk_.ClickItem(2);
  EXPECT_TRUE(desk_.Menu.MenuVisible());
  EXPECT_TRUE(desk_.Started().empty());
  Advance(1000);
  EXPECT_EQ(desk_.Captions(), filled_);
}

TEST_F(SlowFolder, NamesThatComeLateReplaceThoseOfTheFiles) {
  Slow().Delay("D:*", 300);
  Open();
  EXPECT_EQ(desk_.Captions(), filled_);
  EXPECT_TRUE(desk_.Generated().empty());
  Advance(1000);
  EXPECT_EQ(desk_.Captions(), filled_);
  EXPECT_EQ(desk_.Generated().size(), 4U);
}

TEST_F(SlowFolder, NamesThatTakeLongerLeaveTheMenuAlone) {
  Slow().Delay("D:*", 300);
  Open();
  int told = 0;
  desk_.Items.SetListener([&](const std::string&) { ++told; });
  Advance(250);
  EXPECT_EQ(told, 0);
  Advance(100);
  EXPECT_EQ(told, 1);
}

TEST_F(SlowFolder, NamesThatAreThoseOfTheFilesPaintNothing) {
  Slow().Delay("D:*", 300);
  Open();
  Advance(200);
  const WindowId menu = desk_.World.Desktop.Find("frmQMenu");
  const int painted = desk_.World.Desktop.PaintCount(menu);
  const auto picture = desk_.Menu.PagePicture;
  Advance(200);
  EXPECT_EQ(desk_.Generated().size(), 4U) << "they have come, and no icon yet";
  EXPECT_EQ(desk_.World.Desktop.PaintCount(menu), painted);
  EXPECT_EQ(desk_.Menu.PagePicture, picture);
}

/// Folder items that let events through while a menu is built.
struct FoldersWithEvents final : FolderMenusPort {
  explicit FoldersWithEvents(FolderMenusPort& folders) : Folders(folders) {}
  std::optional<ExpandedMenu> Expand(std::string_view key, std::string_view file,
                                     std::string_view stored) override {
    if (const auto action = std::exchange(WhileBuilt, nullptr)) action();
    return Folders.Expand(key, file, stored);
  }
  bool WriteGenerated(const ExpandedMenu& menu) override { return Folders.WriteGenerated(menu); }
  bool UpdateMenu(std::string_view key) override { return Folders.UpdateMenu(key); }
  void SetListener(std::function<void(const std::string&)> listener) override {
    Folders.SetListener(std::move(listener));
  }
  void Leave() override { Folders.Leave(); }
  void TryAgain() override { Folders.TryAgain(); }
  FolderMenusPort& Folders;
  std::function<void()> WhileBuilt;
};

TEST_F(SlowFolder, AKeyThatIsPressedWhileNamesThatChangeNothingComeActsAfterThem) {
  Slow().Delay("D:*", 300);
  FoldersWithEvents folders(desk_.Items);
  desk_.TheProgram.Ports.FolderMenus = &folders;
  Open();
  bool pressed = false;
  folders.WhileBuilt = [&] {
    pressed = true;
    desk_.World.Desktop.PressKey(forms::key::Down);
    desk_.TheProgram.Events.DoEvents();
    EXPECT_EQ(desk_.TheProgram.Menu.SelectedItem, 0);
  };
  Advance(400);
  EXPECT_TRUE(pressed);
  EXPECT_EQ(desk_.TheProgram.Menu.SelectedItem, 1);
  desk_.TheProgram.Ports.FolderMenus = &desk_.Items;
}

TEST_F(SlowFolder, NamesThatAreOthersArePainted) {
  Slow().Delay("D:*", 300);
  desk_.World.Icons.SetDisplayName("D:\\Docs\\two.txt", "Second");
  Open();
  EXPECT_EQ(desk_.Captions(), filled_);
  const auto picture = desk_.Menu.PagePicture;
  Advance(1000);
  EXPECT_EQ(desk_.Captions(), (Strings{"Item 2", "one.txt", "Second"}));
  EXPECT_NE(desk_.Menu.PagePicture, picture);
}

TEST_F(SlowFolder, NamesThatCameForAMenuThatWasClosedAreNotAskedForAgain) {
  Slow().Delay("D:*", 300);
  Open();
  desk_.Menu.HideMenu();
  Advance(1000);
  EXPECT_TRUE(desk_.Generated().empty());
  const int asked = Slow().Asked();
  desk_.Reopen(1);
  // It is known as a whole, and only the folder was read again.
  EXPECT_EQ(desk_.Generated().size(), 4U);
  EXPECT_EQ(Slow().Asked() - asked, 1);
  Advance(1000);
  EXPECT_EQ(desk_.Captions(), filled_);
}

TEST_F(SlowFolder, OldNamesAreShownAndAskedForAgain) {
  Slow().Delay("D:*", 300);
  Open();
  desk_.Menu.HideMenu();
  Advance(FolderQuestions::kNamesAge + 1000);
  const int asked = Slow().Asked();
  desk_.Reopen(1);
  EXPECT_EQ(desk_.Captions(), filled_);
  EXPECT_TRUE(desk_.Generated().empty());
  EXPECT_EQ(Slow().Asked() - asked, 2);
  Advance(1000);
  EXPECT_EQ(desk_.Generated().size(), 4U);
}

}  // namespace
}  // namespace corvelle
