// The tab of the buttons, with a user's gestures.

#include <gtest/gtest.h>

#include "core/FileTransaction.h"
#include "properties/PropertiesDesk.h"

namespace corvelle {
namespace {

using forms::TreePart;
using Texts = std::vector<std::string>;

/// Three menu buttons: one, two (hidden), three with a command of its own.
class PropertiesButtons : public PropertiesDesk {
 protected:
  PropertiesButtons() {
    End();
    world.Files.Put(std::string(kMenus) + "BMENU001.MNU", Menu("one", ""));
    world.Files.Put(std::string(kMenus) + "BMENU002.MNU", Menu("two", "/h"));
    world.Files.Put(std::string(kMenus) + "BMENU003.MNU", Menu("three", "C:\\three.exe"));
    Start();
    firstFiles_ = Files();
  }

  std::string Menu(const std::string& title, const std::string& name) const {
    return Bytes({{title, "Button", name}, {title + " 1", "", "x"}});
  }
  void OpenButtons() {
    OpenItem(1);
    OpenTab("buttons");
  }
  std::string Name(int file) const { return RecordAt(MenuFileName(file), 1).FName; }
  std::string Title(int file) const { return RecordAt(MenuFileName(file), 1).FTitle; }
  /// The strip reads the order when it is built again.
  std::vector<std::string> OnStrip() {
    std::vector<std::string> titles;
    for (int i = 2; i <= parts->Toolbar.Buttons.ButtonCount; ++i) {
      const std::string& path =
          parts->Toolbar.Buttons.ToolbarButtons[static_cast<std::size_t>(i)].Path;
      titles.push_back(RecordAt(path.substr(path.rfind('\\') + 1), 1).FTitle);
    }
    return titles;
  }

  Folder firstFiles_;
};

TEST_F(PropertiesButtons, TheTreeListsTheButtonsAndChecksThoseThatAreShown) {
  OpenButtons();
  EXPECT_EQ(Titles(), "one+two-three+");
  EXPECT_TRUE(Window().TreeView1.Look(Node(1)).Dimmed);
  EXPECT_FALSE(Window().TreeView1.Look(Node(0)).Dimmed);
  EXPECT_TRUE(Window().ButtonsTabLoaded);
  EXPECT_TRUE(Window().ButtonsTabShown);
  OpenTab("item");
  EXPECT_FALSE(Window().ButtonsTabShown);
}

TEST_F(PropertiesButtons, UpAndDownMoveTheSelectedOneAndBeepAtTheEnds) {
  OpenButtons();
  ClickNode(0, TreePart::Label);
  ClickOn(Window().cmdUp);
  EXPECT_EQ(Desktop().Beeps(), 1);
  ClickOn(Window().cmdDown);
  EXPECT_EQ(Titles(), "two-one+three+");
  EXPECT_EQ(Window().TreeView1.Selected(), Node(1));
  ClickOn(Window().cmdDown);
  EXPECT_EQ(Titles(), "two-three+one+");
  ClickOn(Window().cmdDown);
  EXPECT_EQ(Desktop().Beeps(), 2);
  ClickOn(Window().cmdUp);
  EXPECT_EQ(Titles(), "two-one+three+");
  EXPECT_EQ(Files(), firstFiles_) << "nothing is written before Apply";
}

TEST_F(PropertiesButtons, ADraggedNodeTakesThePlaceOfItsTarget) {
  OpenButtons();
  const auto drag = [this](std::size_t from, std::size_t to, bool givenUp) {
    const PixelPoint start = PointOf(from, TreePart::Label);
    const PixelPoint end = PointOf(to, TreePart::Label);
    Desktop().MovePointer(start.x, start.y);
    Desktop().Press();
    Desktop().MovePointer(start.x + 10, start.y + 5);
    Desktop().MovePointer(end.x, end.y);
    if (givenUp) Desktop().PressKey(forms::key::Escape);
    Desktop().Release();
    Desktop().Advance(10);
  };
  drag(0, 2, false);
  EXPECT_EQ(Titles(), "two-three+one+");
  drag(2, 0, false);
  EXPECT_EQ(Titles(), "one+two-three+");
  drag(0, 2, true);
  EXPECT_EQ(Titles(), "one+two-three+");
  EXPECT_TRUE(Window().Visible()) << "Esc ends the drag, not the window";
}

TEST_F(PropertiesButtons, ADoubleClickAClickOnTheBoxAndSpaceChangeIt) {
  OpenButtons();
  const PixelPoint label = PointOf(0, TreePart::Label);
  Desktop().MovePointer(label.x, label.y);
  Desktop().DoubleClick();
  Desktop().Advance(10);
  EXPECT_EQ(Titles(), "one-two-three+");
  EXPECT_TRUE(Window().TreeView1.Look(Node(0)).Dimmed);
  ClickNode(1, TreePart::Check);
  EXPECT_EQ(Titles(), "one-two+three+");
  Desktop().PressKey(kKeySpace);
  EXPECT_EQ(Titles(), "one-two-three+");
}

TEST_F(PropertiesButtons, ApplyGivesTheFilesTheirNewNamesAndTheStripItsNewOrder) {
  OpenButtons();
  ClickNode(2, TreePart::Label);
  ClickOn(Window().cmdUp);
  ClickOn(Window().cmdUp);
  ClickNode(2, TreePart::Check);
  EXPECT_EQ(Titles(), "three+one+two+");
  ClickOn(Window().cmdApply);
  EXPECT_EQ(Title(1) + Title(2) + Title(3), "threeonetwo");
  EXPECT_EQ(Name(1), "C:\\three.exe");
  EXPECT_EQ(Name(3), "");
  EXPECT_EQ(OnStrip(), (Texts{"three", "one", "two"}));
  EXPECT_TRUE(Window().Visible());
  EXPECT_EQ(Desktop().ForegroundWindow(), Window().hWnd());
  EXPECT_TRUE(Window().OrderApplied);
  EXPECT_FALSE(world.Files.Has(std::string(kMenus) + std::string(kJournalFileName)));
}

TEST_F(PropertiesButtons, ADeletedItemComesBackInItsOwnMenuWhereverThatWasMoved) {
  world.Files.Put(std::string(kMenus) + "BMENU003.MNU",
                  Bytes({{"three", "Button", ""}, {"gone", "", "x"}, {"left", "", "x"}}));
  OpenMenu(3);
  RightClick(Item(1), "Delete Item");
  CloseMenu();
  OpenButtons();
  ClickNode(2, TreePart::Label);
  for (int step = 1; step <= 2; ++step) {
    // Past the hidden one, then to the front.
    ClickOn(Window().cmdUp);
    ClickOn(Window().cmdApply);
  }
  ClickOn(Window().cmdOK);
  ASSERT_EQ(OnStrip(), (Texts{"three", "one"}));
  OpenMenu(3);
  RightClick(Item(1), "Refresh");
  EXPECT_FALSE(Desktop().Popups().back().Offers("Undo Delete"));
  CloseMenu();
  OpenMenu(2);
  RightClick(Item(1), "Undo Delete");
  EXPECT_EQ(RecordAt("BMENU001.MNU", 2).FTitle, "gone");
  EXPECT_EQ(RecordAt("BMENU001.MNU", 3).FTitle, "left");
}

TEST_F(PropertiesButtons, ADeletedItemComesBackInItsOwnMenuWhenAnotherOneIsShown) {
  world.Files.Put(std::string(kMenus) + "BMENU003.MNU",
                  Bytes({{"three", "Button", ""}, {"three 1", "", "x"}, {"left", "", "x"}}));
  OpenMenu(3);
  RightClick(Item(1), "Delete Item");
  CloseMenu();
  OpenButtons();
  ClickNode(1, TreePart::Check);
  ClickOn(Window().cmdOK);
  ASSERT_EQ(OnStrip(), (Texts{"one", "two", "three"}));
  OpenMenu(3);
  RightClick(Item(1), "Refresh");
  EXPECT_FALSE(Desktop().Popups().back().Offers("Undo Delete"));
  CloseMenu();
  OpenMenu(4);
  RightClick(Item(1), "Undo Delete");
  EXPECT_EQ(RecordAt("BMENU003.MNU", 2).FTitle, "three 1");
}

TEST_F(PropertiesButtons, AHiddenButtonLeavesTheStripAndComesBackEmpty) {
  OpenButtons();
  ClickNode(2, TreePart::Check);
  EXPECT_EQ(Window().lblHint.Caption(), "Apply hides \"three\" and removes its command:");
  EXPECT_EQ(Window().lblHintCommand.Caption(), "C:\\three.exe");
  EXPECT_EQ(Name(3), "C:\\three.exe") << "only Apply writes";
  ClickOn(Window().cmdApply);
  EXPECT_EQ(Name(3), "/h");
  EXPECT_EQ(OnStrip(), Texts{"one"});
  EXPECT_EQ(Window().lblHint.Caption(), "");
  ClickNode(2, TreePart::Check);
  ClickOn(Window().cmdApply);
  EXPECT_EQ(Name(3), "");
  EXPECT_EQ(OnStrip(), (Texts{"one", "three"}));
}

TEST_F(PropertiesButtons, TheHintGoesWhenTheBoxIsCheckedAgain) {
  OpenButtons();
  ClickNode(2, TreePart::Check);
  EXPECT_NE(Window().lblHint.Caption(), "");
  ClickNode(0, TreePart::Label);
  EXPECT_NE(Window().lblHint.Caption(), "") << "whichever button is selected";
  ClickNode(2, TreePart::Check);
  EXPECT_EQ(Window().lblHint.Caption(), "");
  ClickNode(0, TreePart::Check);
  EXPECT_EQ(Window().lblHint.Caption(), "") << "a button without a command loses nothing";
}

TEST_F(PropertiesButtons, WithoutMenusTheTabIsEmptyAndApplyChangesNothing) {
  OpenSingle(1);
  for (const auto& [name, bytes] : firstFiles_) {
    if (name.ends_with(".MNU")) world.Files.Vanish(kMenus + name);
  }
  OpenTab("buttons");
  EXPECT_EQ(Titles(), "");
  const Folder before = Files();
  ClickOn(Window().cmdUp);
  EXPECT_EQ(Desktop().Beeps(), 1);
  ClickOn(Window().cmdApply);
  EXPECT_EQ(Files(), before);
  EXPECT_EQ(BoxTexts(), Texts{});
}

TEST_F(PropertiesButtons, AFolderThatChangedMeanwhileIsToldAndReadAgain) {
  OpenButtons();
  ClickNode(0, TreePart::Label);
  ClickOn(Window().cmdDown);
  world.Files.Put(std::string(kMenus) + "BMENU004.MNU", Menu("four", ""));
  const Folder before = Files();
  ClickOn(Window().cmdOK);
  EXPECT_EQ(BoxTexts(), Texts{"Cannot modify this item. Record mismatch."});
  EXPECT_EQ(Files(), before);
  EXPECT_TRUE(Window().Visible());
  EXPECT_EQ(Titles(), "one+two-three+four+");
}

TEST_F(PropertiesButtons, ADiskThatRefusesIsToldAndNothingIsHalfDone) {
  OpenButtons();
  ClickNode(0, TreePart::Label);
  ClickOn(Window().cmdDown);
  world.Files.HoldOpen(std::string(kMenus) + "BMENU002.MNU", sim::SimFiles::Hold::ForReading);
  ClickOn(Window().cmdApply);
  EXPECT_EQ(BoxTexts().size(), 1U);
  EXPECT_EQ(Files(), firstFiles_);
  world.Files.LetGo(std::string(kMenus) + "BMENU002.MNU");
  ClickOn(Window().cmdApply);
  EXPECT_EQ(Title(1) + Title(2), "twoone");
}

TEST_F(PropertiesButtons, AnEndInTheMiddleLeavesTheOldOrderOrTheNew) {
  for (int n = 1; n < 200; ++n) {
    End();
    for (const auto& [name, bytes] : firstFiles_) world.Files.Put(kMenus + name, bytes);
    Start();
    OpenButtons();
    ClickNode(2, TreePart::Label);
    ClickOn(Window().cmdUp);
    world.Files.FailFrom(n * 3);
    const PixelPoint at = MiddleOf(Window().cmdApply);
    Desktop().ClickAt(at.x, at.y);
    const bool hit = world.Files.Hit();
    End();
    Start();
    const std::string titles = Title(1) + Title(2) + Title(3);
    EXPECT_TRUE(titles == "onetwothree" || titles == "onethreetwo") << n << titles;
    EXPECT_EQ(Files().size(), firstFiles_.size()) << n;
    if (!hit || n * 3 > 40) break;
  }
}

// ---- both tabs ----

TEST_F(PropertiesButtons, AChangeOnTheOtherTabIsAppliedToo) {
  OpenItem(1);
  TypeInto(Window().txtTitle, "changed");
  OpenTab("buttons");
  ClickNode(0, TreePart::Label);
  ClickOn(Window().cmdDown);
  ClickOn(Window().cmdOK);
  EXPECT_FALSE(Window().IsLoaded());
  EXPECT_EQ(Title(1) + Title(2), "twoone");
  EXPECT_EQ(RecordAt("BMENU002.MNU", 2).FTitle, "changed");
}

TEST_F(PropertiesButtons, AChangedOrderAndAChangedBoxAreAppliedFromTheOtherTab) {
  OpenButtons();
  ClickNode(0, TreePart::Label);
  ClickOn(Window().cmdDown);
  OpenTab("item");
  ClickOn(Window().cmdOK);
  EXPECT_EQ(Title(1) + Title(2), "twoone");
  CloseMenu();
  OpenButtons();
  ClickNode(2, TreePart::Check);
  OpenTab("position");
  ClickOn(Window().cmdOK);
  EXPECT_EQ(Name(3), "/h");
}

TEST_F(PropertiesButtons, TheEntryIsFoundInItsFileAfterTheOrderChanged) {
  OpenItem(1);
  OpenTab("buttons");
  ClickNode(0, TreePart::Label);
  ClickOn(Window().cmdDown);
  ClickOn(Window().cmdDown);
  ClickOn(Window().cmdApply);
  EXPECT_EQ(Title(3), "one");
  OpenTab("item");
  TypeInto(Window().txtTitle, "changed");
  ClickOn(Window().cmdApply);
  EXPECT_EQ(BoxTexts(), Texts{});
  EXPECT_EQ(RecordAt("BMENU003.MNU", 2).FTitle, "changed");
  EXPECT_TRUE(parts->Menu.MenuVisible());
  EXPECT_EQ(parts->Menu.Lbl[1].Caption(), "changed") << "the menu of the button's new place";
}

TEST_F(PropertiesButtons, AButtonThatWasHiddenKeepsItsMarkWhenItsTitleChanges) {
  OpenButton(3);
  ASSERT_EQ(Window().txtTitle.Text(), "three");
  OpenTab("buttons");
  ClickNode(2, TreePart::Check);
  ClickOn(Window().cmdApply);
  OpenTab("item");
  TypeInto(Window().txtTitle, "third");
  ClickOn(Window().cmdApply);
  EXPECT_EQ(RecordAt("BMENU003.MNU", 1), (MenuRecord{"third", "Button", "/h"}));
  OpenTab("buttons");
  EXPECT_EQ(Titles(), "one+two-third-");
  ClickOn(Window().cmdUp);
  ClickOn(Window().cmdApply);
  EXPECT_EQ(BoxTexts(), Texts{});
}

}  // namespace
}  // namespace corvelle
