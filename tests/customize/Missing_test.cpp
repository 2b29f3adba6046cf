// Entries whose target is missing: their marks in the tree, and the walk from one to the next.

#include <gtest/gtest.h>

#include <string>

#include "customize/CustDesk.h"

namespace corvelle {
namespace {

namespace key = forms::key;

/// The desk of a user some of whose programs are gone: "Alpha", "Beta" and "Hammer", "Anvil" have
/// none; "Clock" and "Paint" are there.
struct MissingDesk : CustDesk {
  explicit MissingDesk(bool open = true) : CustDesk({}, false) {
    PutMenu(2, {"Tools", "Button", ""}, {Entry("Hammer"), Entry("Edit")});
    if (open) OpenAndLook();
  }
  void OpenAndLook() {
    Open();
    world.Desktop.Advance(500);
  }
  /// What the tree shows before the text of a node is with the mark.
  [[nodiscard]] bool Marked(std::string_view text) const {
    const forms::TreeView& tree = Form().TreeView1;
    return tree.Look(Node(text)).Image != PlainImage(text);
  }
  /// The image of the same entry without a mark.
  [[nodiscard]] int PlainImage(std::string_view text) const {
    return Form().Tree().PlainImage(Form().Tree().RefOf(Node(text)));
  }
  [[nodiscard]] std::string AllMarked() const {
    std::string all;
    for (const char* text :
         {"Letters", "Alpha", "Beta", "Tools", "Hammer", "Edit", "Clock", "Paint"}) {
      if (Node(text) != forms::kNoNode && Marked(text)) all += std::string(text) + " ";
    }
    return all;
  }
  void SetCommand(std::string_view node, std::string_view command) {
    ClickNode(node);
    Form().txtCommand.SetFocus();
    Form().txtCommand.SelectAll();
    world.Desktop.PressKey(key::Delete);
    world.Desktop.Type(command);
    world.Desktop.PressKey(key::Enter);
    world.Desktop.Advance(500);
  }
  void PressF8() { world.Desktop.PressKey(kF8); }
  static constexpr int kF8 = 119;
};

TEST(CustomizeMissing, EntriesWithoutTheirFileBearAMark) {
  MissingDesk desk;
  EXPECT_EQ(desk.AllMarked(), "Alpha Beta Hammer ");
}

TEST(CustomizeMissing, NextMissingWalksThemAndBeginsAgain) {
  MissingDesk desk;
  for (const char* expected : {"Alpha", "Beta", "Hammer", "Alpha"}) {
    desk.PressF8();
    EXPECT_EQ(desk.Selected(), expected);
  }
  EXPECT_TRUE(desk.Form().TreeView1.HasFocus());
}

TEST(CustomizeMissing, TheEditMenuHasIt) {
  MissingDesk desk;
  desk.MenuBar("Edit", "Next Missing");
  EXPECT_EQ(desk.Selected(), "Alpha");
}

TEST(CustomizeMissing, BeepsWhereNothingIsMissing) {
  CustDesk desk({}, false);
  desk.PutMenu(1, {"Letters", "Button", ""}, {CustDesk::Entry("Edit")});
  desk.PutMenu(2, {"Tools", "Button", ""}, {});
  desk.Open();
  const std::string before = desk.Selected();
  const int beeps = desk.world.Desktop.Beeps();
  desk.world.Desktop.PressKey(MissingDesk::kF8);
  EXPECT_EQ(desk.world.Desktop.Beeps(), beeps + 1);
  EXPECT_EQ(desk.Selected(), before);
}

TEST(CustomizeMissing, WhatIsNoFileOfADiskIsNotMissing) {
  MissingDesk desk;
  desk.Expand("Tools");
  for (const char* command : {"", "notepad.exe", "http://www.example.com/none", "CSIDL_CONTROLS",
                              "RunDialog", "/h", "?C:\\Gone.exe /x"}) {
    desk.SetCommand("Hammer", command);
    EXPECT_FALSE(desk.Marked("Hammer")) << command;
  }
}

TEST(CustomizeMissing, AnotherCommandIsLookedUpAndUndoBringsTheMarkBack) {
  MissingDesk desk;
  desk.Expand("Tools");
  desk.SetCommand("Hammer", "C:\\Tools\\Edit.exe /new");
  EXPECT_FALSE(desk.Marked("Hammer"));
  desk.Form().TreeView1.SetFocus();
  desk.Keys({key::Ctrl, key::Shift}, 'Z');
  EXPECT_TRUE(desk.Marked("Hammer")) << "at once: its command was asked about before";
  desk.Ctrl('Y');
  EXPECT_FALSE(desk.Marked("Hammer"));
  desk.SetCommand("Edit", "C:\\Tools\\Gone.exe");
  EXPECT_TRUE(desk.Marked("Edit"));
}

TEST(CustomizeMissing, ARenameAMoveAndADeletionKeepTheMarksRight) {
  MissingDesk desk;
  desk.Expand("Tools");
  desk.ClickNode("Hammer");
  desk.world.Desktop.PressKey(key::F2);
  desk.world.Desktop.Type("Mallet");
  desk.world.Desktop.PressKey(key::Enter);
  ASSERT_NE(desk.Node("Mallet"), forms::kNoNode);
  EXPECT_TRUE(desk.Marked("Mallet"));
  desk.Tool("down");
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Edit Mallet) | Clock Paint");
  EXPECT_TRUE(desk.Marked("Mallet"));
  desk.ClickNode("Mallet");
  desk.world.Desktop.PressKey(key::Delete);
  EXPECT_FALSE(desk.Marked("Edit"));
  desk.Keys({key::Ctrl, key::Shift}, 'Z');
  EXPECT_TRUE(desk.Marked("Mallet"));
  desk.Ctrl('D');
  const forms::TreeView& tree = desk.Form().TreeView1;
  for (const forms::NodeId id : tree.Nodes().Children(desk.Node("Tools"))) {
    if (tree.Look(id).Text != "Mallet") continue;
    EXPECT_NE(tree.Look(id).Image, desk.PlainImage("Mallet")) << "its copy bears it too";
  }
}

TEST(CustomizeMissing, WhatIsBackLosesTheMarkWhenTheUserComesBack) {
  MissingDesk desk;
  desk.world.Files.Put("C:\\Tools\\Alpha.exe", "x");
  desk.world.Desktop.TakeForeground(desk.parts->Toolbar.hWnd());
  desk.world.Desktop.TakeForeground(desk.Form().hWnd());
  desk.world.Desktop.Advance(500);
  EXPECT_EQ(desk.AllMarked(), "Beta Hammer ");
}

// ---- what is slow ----

TEST(CustomizeMissing, NothingIsAskedOfServersAndOfDrivesThatAreNotAtHand) {
  MissingDesk desk(false);
  desk.world.System.Drives["N:\\"] = {.Type = 4};
  desk.world.System.Drives["R:\\"] = {.Type = 2};
  desk.world.System.Drives["S:\\"] = {.Type = 3};
  desk.world.System.DrivesAtRest.insert("S:\\");
  desk.PutMenu(1, {"Letters", "Button", ""},
               {{"Alpha", "", "N:\\none.exe"}, {"Beta", "", "\\\\server\\share\\none.exe"}});
  desk.PutMenu(2, {"Tools", "Button", ""},
               {{"Hammer", "", "R:\\none.exe"}, {"Edit", "", "S:\\none.exe"}});
  // The icons of the menus have come by then.
  desk.world.Desktop.Advance(3000);
  const int before = desk.world.SlowAnswers.Asked();
  desk.OpenAndLook();
  EXPECT_EQ(desk.AllMarked(), "");
  // Three drives are asked about, and C: with the two singles' files.
  EXPECT_EQ(desk.world.SlowAnswers.Asked() - before, 3 + 1 + 2);
}

TEST(CustomizeMissing, ADriveThatWakesUpIsAskedTheNextTime) {
  MissingDesk desk(false);
  desk.world.System.DrivesAtRest.insert("C:\\");
  desk.OpenAndLook();
  EXPECT_EQ(desk.AllMarked(), "");
  desk.world.System.DrivesAtRest.clear();
  desk.Form().Unload();
  desk.OpenAndLook();
  EXPECT_EQ(desk.AllMarked(), "Alpha Beta Hammer ");
}

TEST(CustomizeMissing, AnAnswerThatNeverComesMarksNothingAndHoldsUpNothing) {
  MissingDesk desk(false);
  desk.world.System.Drives["D:\\"] = {.Type = 3};
  desk.PutMenu(1, {"Letters", "Button", ""},
               {{"Alpha", "", "D:\\none.exe"}, {"Beta", "", "D:\\none too.exe"}});
  desk.world.SlowAnswers.Hang("D:");
  desk.OpenAndLook();
  EXPECT_EQ(desk.AllMarked(), "Hammer ") << "the other drive answers";
  desk.world.Desktop.Advance(60'000);
  EXPECT_EQ(desk.AllMarked(), "Hammer ");
  desk.PressF8();
  EXPECT_EQ(desk.Selected(), "Hammer");
  desk.world.SlowAnswers.Resume("D:");
  desk.world.Desktop.Advance(500);
  EXPECT_EQ(desk.AllMarked(), "Alpha Beta Hammer ") << "it came after all";
}

TEST(CustomizeMissing, AWindowThatIsClosedMeanwhileHearsNoAnswer) {
  MissingDesk desk(false);
  desk.world.SlowAnswers.Delay("C:", 300);
  desk.Open();
  ASSERT_GT(desk.world.SlowAnswers.UnderWay(), 0);
  desk.Form().Unload();
  desk.world.Desktop.Advance(5'000);
  desk.Open();
  EXPECT_EQ(desk.AllMarked(), "") << "nothing of the earlier window is known";
  desk.world.Desktop.Advance(10'000);
  EXPECT_EQ(desk.AllMarked(), "Alpha Beta Hammer ");
}

TEST(CustomizeMissing, AProgramThatEndsWhileADriveHangsEnds) {
  MissingDesk desk(false);
  desk.world.SlowAnswers.Hang("C:");
  desk.OpenAndLook();
  desk.parts->TheMainMenu.xMainMenu(11, "Exit");
  desk.world.Desktop.Pump();
  EXPECT_FALSE(desk.Form().IsLoaded());
  desk.world.SlowAnswers.Resume("C:");
  desk.world.Desktop.Advance(500);
}

TEST(CustomizeMissing, TheWindowOfAnEntryTakesNoAnswersAwayFromTheOthers) {
  CustDesk desk({}, false);
  int told = 0;
  const auto ask = [&] {
    desk.parts->TheProgram.Slow.Ask({.Path = "C:\\Tools\\Edit.exe", .Lane = "C:"},
                                    [&told](const LookupAnswer&) { ++told; });
    desk.world.Desktop.Advance(500);
  };
  ask();
  desk.parts->TheProgram.Entry = {};
  desk.parts->Properties.LoadWindow();
  ask();
  desk.parts->Properties.UnloadWindow();
  ask();
  EXPECT_EQ(told, 3);
}

}  // namespace
}  // namespace corvelle
