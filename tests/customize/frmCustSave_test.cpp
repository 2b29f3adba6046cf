// Saving and closing the Customize window, and the draft of what was not saved.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/FileTransaction.h"
#include "customize/CustDesk.h"
#include "customize/MenuFolderDesk.h"

namespace corvelle {
namespace {

namespace key = forms::key;

constexpr const char* kQuestion = "Do you want to save your changes before you exit?";
constexpr int kYes = forms::msgbox::AnswerYes;
constexpr int kNo = forms::msgbox::AnswerNo;
constexpr int kCancel = 2;
constexpr const char* kWithoutAnvil = "Letters(Alpha Beta -) Tools(Hammer) | Clock Paint";

/// A desk with one entry deleted.
struct ChangedDesk : CustDesk {
  ChangedDesk() { DeleteAnvil(); }
  void DeleteAnvil() {
    Expand("Tools");
    ClickNode("Anvil");
    world.Desktop.PressKey(key::Delete);
  }
  void Rename(std::string_view node, std::string_view text) {
    Editor().AfterLabelEdit(RefOf(node), text);
  }
  [[nodiscard]] CustRef RefOf(std::string_view node) const {
    for (const CustRef ref : Editor().Tree.InOrder()) {
      if (Editor().Tree.At(ref).Text == node) return ref;
    }
    return kNoRef;
  }
  void Close() {
    ClickControl(Form().cmdCancel);
    world.Desktop.Pump();
  }
};

TEST(CustomizeSave, WritesTheTreeAndRebuildsTheStrip) {
  ChangedDesk desk;
  desk.ClickNode("Letters");
  desk.Tool("button");
  const int before = desk.parts->Toolbar.Buttons.ButtonCount;
  desk.ClickControl(desk.Form().cmdSave);
  EXPECT_EQ(desk.Stored(),
            "Letters(Alpha Beta -) Tools(Hammer) New Button(New Menu Item) | Clock Paint");
  EXPECT_EQ(desk.parts->Toolbar.Buttons.ButtonCount, before + 1);
  EXPECT_TRUE(desk.Form().IsLoaded()) << "the window stays open";
  EXPECT_TRUE(desk.Form().cmdSave.Enabled());
  EXPECT_FALSE(desk.Editor().TreeChanged);
  EXPECT_TRUE(desk.Editor().SavingNow);
}

TEST(CustomizeSave, TakesWhatStandsInTheBoxes) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.ClickNode("Anvil");
  desk.Fill(desk.Form().txtTitle, "Block");
  desk.ClickControl(desk.Form().cmdSave);
  EXPECT_EQ(desk.Stored(), "Letters(Alpha Beta -) Tools(Hammer Block) | Clock Paint");
}

// A menu bar takes no focus, so that the label is still being typed.
TEST(CustomizeSave, TakesALabelThatIsBeingTyped) {
  CustDesk desk;
  desk.Expand("Tools");
  desk.ClickNode("Anvil");
  desk.world.Desktop.PressKey(key::F2);
  desk.world.Desktop.Type("Block");
  desk.MenuBar("File", "Update Toolbar");
  EXPECT_EQ(desk.Stored(), "Letters(Alpha Beta -) Tools(Hammer Block) | Clock Paint");
}

TEST(CustomizeSave, AfterTheFirstOneAFileThatIsAddedIsAskedAboutAsAFolderIs) {
  ChangedDesk desk;
  desk.ClickControl(desk.Form().cmdSave);
  desk.ClickNode("Hammer");
  desk.world.Desktop.ChooseFiles({"C:\\Tools\\Edit.exe"});
  desk.ClickControl(desk.Form().cmdBrowseFiles);
  desk.world.Desktop.Answer(kQuestion, kNo);
  desk.Close();
  EXPECT_FALSE(desk.Form().IsLoaded());
  ASSERT_EQ(desk.world.Desktop.Boxes().size(), 1U);
}

TEST(CustomizeSave, EndsTheChanceToUndoADeletionInAMenu) {
  for (const bool single : {false, true}) {
    SCOPED_TRACE(single);
    CustDesk desk;
    EntryEdit& entry = desk.parts->TheProgram.Entry;
    entry.UndoTitle = "Gone";
    entry.UndoMenuTag = single ? std::string(kSinglesTag) : "F3";
    entry.UndoRecord = 2;
    desk.ClickNode("Tools");
    desk.Tool("up");
    desk.ClickControl(desk.Form().cmdSave);
    ASSERT_EQ(desk.Stored(), "Tools(Hammer Anvil) Letters(Alpha Beta -) | Clock Paint");
    EXPECT_EQ(entry.UndoMenuTag, single ? kSinglesTag : "");
  }
}

TEST(CustomizeSave, KeepsTheGapAtTheRightOfAFloatingStrip) {
  ChangedDesk desk;
  ASSERT_FALSE(desk.parts->TheProgram.Strip.AppBarDocked);
  const float gap = desk.parts->Toolbar.FreeWidth();
  desk.ClickNode("Letters");
  desk.Tool("button");
  desk.ClickControl(desk.Form().cmdSave);
  EXPECT_FLOAT_EQ(desk.parts->Toolbar.FreeWidth(), gap);
}

TEST(CustomizeSave, WhileADockedStripIsInTheTaskBarLeavesItsFloatingPlace) {
  ChangedDesk desk;
  frmToolbar& strip = desk.parts->Toolbar;
  strip.SetLeft(3000);
  strip.AdjustToolbarPosition();
  desk.parts->Docking.SetAppBar(Edge::Right, true);
  const TwipRect docked = strip.Bounds();
  const int before = strip.Buttons.ButtonCount;
  desk.parts->Companion.MinimizeFor(docked);
  desk.world.Desktop.Advance(300);
  desk.ClickNode("Letters");
  desk.Tool("button");
  desk.ClickControl(desk.Form().cmdSave);
  EXPECT_FALSE(strip.Visible());
  desk.parts->Companion.RestoreWindow();
  desk.world.Desktop.Advance(600);
  EXPECT_EQ(strip.Bounds(), docked);
  EXPECT_EQ(strip.Buttons.ButtonCount, before + 1);
  strip.RestoreToolbar();
  EXPECT_EQ(strip.Left(), 3000);
}

TEST(CustomizeSave, AfterTheFirstOneAConfirmedBoxAsksNothing) {
  ChangedDesk desk;
  desk.ClickControl(desk.Form().cmdSave);
  desk.ClickNode("Hammer");
  desk.Fill(desk.Form().txtTitle, "Mallet");
  desk.world.Desktop.PressKey(key::Enter);
  EXPECT_FALSE(desk.Editor().TreeChanged);
  desk.Close();
  EXPECT_FALSE(desk.Form().IsLoaded());
  desk.Open();
  EXPECT_TRUE(desk.Form().cmdShowDraft.Visible()) << "but it is not lost";
}

TEST(CustomizeSave, AFailureTellsClosesTheWindowAndLeavesTheOldMenus) {
  ChangedDesk desk;
  desk.world.Files.HoldOpen(CustDesk::kMenus + MenuFileName(2), sim::SimFiles::Hold::ForReading);
  desk.world.Desktop.AnswerAnyOther(forms::msgbox::AnswerOk);
  desk.world.Desktop.WhileBoxIsUp(
      [&desk](const sim::MessageBox&) { desk.Put(SingleFileName(3), {CustDesk::Entry("Edit")}); });
  desk.ClickControl(desk.Form().cmdSave);
  desk.world.Desktop.WhileBoxIsUp({});
  EXPECT_FALSE(desk.Form().IsLoaded());
  EXPECT_EQ(desk.parts->Toolbar.Singles.SingleCount, 3) << "the strip reads its files again";
  EXPECT_TRUE(desk.world.Files.Remove(CustDesk::kMenus + SingleFileName(3)));
  EXPECT_EQ(desk.Stored(), kAtFirst);
  ASSERT_FALSE(desk.world.Desktop.Boxes().empty());
  const std::string text = desk.world.Desktop.Boxes().back().Text;
  EXPECT_TRUE(text.starts_with(
      "A critical error has been encountered while Corvelle is saving your changes."))
      << text;
  EXPECT_TRUE(text.ends_with("Now Corvelle will try to resortre your previous data.")) << text;
}

TEST(CustomizeClose, YesSavesNoDropsCancelStays) {
  for (const int answer : {kYes, kNo, kCancel}) {
    ChangedDesk desk;
    desk.world.Desktop.Answer(kQuestion, answer);
    desk.Close();
    EXPECT_EQ(desk.Form().IsLoaded(), answer == kCancel);
    EXPECT_EQ(desk.Stored(), answer == kYes ? kWithoutAnvil : kAtFirst);
    EXPECT_EQ(desk.world.Desktop.Boxes().back().Flags & 0xFF, 35U);
    if (answer == kCancel) continue;
    desk.Open();
    EXPECT_FALSE(desk.Form().cmdShowDraft.Visible()) << "neither leaves a draft";
  }
}

TEST(CustomizeClose, WithoutAChangeAsksNothing) {
  CustDesk desk;
  desk.ClickControl(desk.Form().cmdCancel);
  EXPECT_FALSE(desk.Form().IsLoaded());
}

TEST(CustomizeClose, EscIsExit) {
  CustDesk desk;
  desk.ClickNode("Letters");
  desk.world.Desktop.PressKey(key::Escape);
  EXPECT_FALSE(desk.Form().IsLoaded());
}

TEST(CustomizeDraft, ARenameAloneAsksNothingAndIsOfferedTheNextTime) {
  ChangedDesk desk;
  desk.Editor().Undo();
  desk.Editor().TreeChanged = false;
  desk.Rename("Hammer", "Mallet");
  desk.Close();
  EXPECT_FALSE(desk.Form().IsLoaded());
  EXPECT_EQ(desk.Stored(), kAtFirst);
  desk.Open();
  EXPECT_EQ(desk.Shown(), kAtFirst);
  EXPECT_TRUE(desk.Form().cmdShowDraft.Visible());
  EXPECT_TRUE(desk.Form().cmdForgetDraft.Visible());
  EXPECT_NE(desk.Form().lblMenuTree.Caption(), "Menu Tree");
  desk.ClickFlat(desk.Form().cmdShowDraft, desk.Form());
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Mallet Anvil) | Clock Paint");
  EXPECT_FALSE(desk.Form().cmdShowDraft.Visible());
  EXPECT_EQ(desk.Form().lblMenuTree.Caption(), "Menu Tree");
  desk.ClickControl(desk.Form().cmdSave);
  EXPECT_EQ(desk.Stored(), "Letters(Alpha Beta -) Tools(Mallet Anvil) | Clock Paint");
  desk.Close();
  desk.Open();
  EXPECT_FALSE(desk.Form().cmdShowDraft.Visible());
}

// However the window closes.
TEST(CustomizeDraft, ALabelThatIsBeingTypedIsInIt) {
  using Closing = void (*)(CustDesk&);
  const Closing closings[] = {
      [](CustDesk& desk) {
        const PixelRect at = desk.world.Desktop.BoundsOf(desk.Form().hWnd());
        desk.ClickAt({at.right - 16, at.top + 14});
      },
      [](CustDesk& desk) { desk.Form().UnloadWindow(); },
      [](CustDesk& desk) { desk.world.Desktop.EndSession(); },
  };
  for (const Closing& close : closings) {
    SCOPED_TRACE(&close - closings);
    CustDesk desk;
    desk.Expand("Tools");
    desk.ClickNode("Anvil");
    desk.world.Desktop.PressKey(key::F2);
    desk.world.Desktop.Type("Block");
    close(desk);
    EXPECT_FALSE(desk.Form().IsLoaded());
    EXPECT_EQ(desk.Stored(), kAtFirst);
    const auto files = ReadMenuFiles(desk.world.Files, desk.world.Ansi, CustDesk::kMenus);
    ASSERT_TRUE(files);
    const auto draft = OfferDraft(desk.world.Files, CustDesk::kMenus, *files);
    ASSERT_TRUE(draft.has_value());
    EXPECT_EQ((*draft).Menus.at(1).Items.back().FTitle, "Block");
  }
}

TEST(CustomizeDraft, IsKeptWithoutAQuestionWhenTheCompanionIsToldOfTheEndFirst) {
  ChangedDesk desk;
  desk.world.Desktop.EndSession(desk.parts->Companion.hWnd());
  EXPECT_TRUE(desk.world.Desktop.Boxes().empty());
  EXPECT_TRUE(desk.world.Desktop.QuitCalled());
  EXPECT_EQ(desk.Stored(), kAtFirst);
  EXPECT_TRUE(OfferDraft(desk.world.Files, CustDesk::kMenus,
                         *ReadMenuFiles(desk.world.Files, desk.world.Ansi, CustDesk::kMenus)));
}

TEST(CustomizeDraft, ForgetDropsIt) {
  ChangedDesk desk;
  desk.world.Desktop.EndSession();
  EXPECT_FALSE(desk.Form().IsLoaded());
  CustDesk& same = desk;
  same.Open();
  ASSERT_TRUE(desk.Form().cmdShowDraft.Visible()) << "the end of the session kept it";
  desk.ClickFlat(desk.Form().cmdForgetDraft, desk.Form());
  EXPECT_FALSE(desk.Form().cmdShowDraft.Visible());
  desk.Close();
  desk.Open();
  EXPECT_FALSE(desk.Form().cmdShowDraft.Visible());
}

TEST(CustomizeDraft, IsWrittenEveryFewSecondsWhileSomethingIsUnsaved) {
  ChangedDesk desk;
  EXPECT_FALSE(OfferDraft(desk.world.Files, CustDesk::kMenus,
                          *ReadMenuFiles(desk.world.Files, desk.world.Ansi, CustDesk::kMenus)));
  desk.world.Desktop.Advance(6000);
  EXPECT_TRUE(OfferDraft(desk.world.Files, CustDesk::kMenus,
                         *ReadMenuFiles(desk.world.Files, desk.world.Ansi, CustDesk::kMenus)));
  desk.Keys({key::Ctrl, key::Shift}, 'Z');
  desk.world.Desktop.Advance(6000);
  EXPECT_FALSE(OfferDraft(desk.world.Files, CustDesk::kMenus,
                          *ReadMenuFiles(desk.world.Files, desk.world.Ansi, CustDesk::kMenus)))
      << "nothing is unsaved any more";
}

TEST(CustomizeDraft, OneThatIsOfferedIsNotWrittenOverWhileTheWindowIsOpen) {
  ChangedDesk desk;
  desk.world.Desktop.EndSession();
  desk.Open();
  ASSERT_TRUE(desk.Form().cmdShowDraft.Visible());
  desk.Rename("Clock", "Watch");
  desk.world.Desktop.Advance(12000);
  desk.ClickFlat(desk.Form().cmdShowDraft, desk.Form());
  EXPECT_EQ(desk.Shown(), kWithoutAnvil);
  // What was renamed meanwhile changes places with it.
  ASSERT_TRUE(desk.Form().cmdShowDraft.Visible());
  desk.ClickFlat(desk.Form().cmdShowDraft, desk.Form());
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Hammer Anvil) | Watch Paint");
}

/// Closes the window with the tree unsaved and in no draft, without a question.
struct TwoDraftsDesk : ChangedDesk {
  static constexpr const char* kWatch = "Letters(Alpha Beta -) Tools(Hammer Anvil) | Watch Paint";

  TwoDraftsDesk() {
    world.Desktop.EndSession();
    Open();
    EXPECT_TRUE(Form().cmdShowDraft.Visible());
    Rename("Clock", "Watch");
  }
  /// What the window offers, one after the other.
  std::vector<std::string> Offered() {
    std::vector<std::string> all;
    const std::size_t count = Form().Offers();
    for (std::size_t i = 0; i < count; ++i) {
      ClickFlat(Form().cmdShowDraft, Form());
      all.push_back(Shown());
    }
    return all;
  }
};

TEST(CustomizeDraft, AnOlderOneThatWasNotShownOutlivesAClosingWithNewUnsavedEdits) {
  TwoDraftsDesk desk;
  desk.Close();
  ASSERT_FALSE(desk.Form().IsLoaded());
  desk.Open();
  EXPECT_EQ(desk.Form().lblMenuTree.Caption(), "Unsaved (2):");
  EXPECT_EQ(desk.Offered(), (std::vector<std::string>{TwoDraftsDesk::kWatch, kWithoutAnvil}));
}

TEST(CustomizeDraft, ForgetDropsTheOneThatShowWouldShow) {
  TwoDraftsDesk desk;
  desk.Close();
  desk.Open();
  desk.ClickFlat(desk.Form().cmdForgetDraft, desk.Form());
  EXPECT_EQ(desk.Form().lblMenuTree.Caption(), "Unsaved:");
  EXPECT_EQ(desk.Offered(), std::vector<std::string>{kWithoutAnvil});
  EXPECT_FALSE(desk.Form().cmdForgetDraft.Visible());
}

/// The lines of the menu "File" that can be chosen.
std::string FileMenu(const CustDesk& desk) {
  std::string lines;
  for (const forms::PopupItem& line : desk.Form().Menu().front().Items) {
    if (line.Visible && line.Enabled) lines += line.Caption + "|";
  }
  return lines;
}

// The two buttons are for the mouse alone.
TEST(CustomizeDraft, IsShownAndForgottenByTheFileMenuToo) {
  TwoDraftsDesk desk;
  desk.Close();
  desk.Open();
  EXPECT_EQ(FileMenu(desk), "&Update Toolbar|&Show Unsaved Changes|&Forget Unsaved Changes|E&xit|");
  desk.MenuBar("File", "Show Unsaved Changes");
  EXPECT_EQ(desk.Shown(), TwoDraftsDesk::kWatch);
  desk.MenuBar("File", "Forget Unsaved Changes");
  EXPECT_EQ(desk.Form().Offers(), 0U);
  EXPECT_EQ(FileMenu(desk), "&Update Toolbar|E&xit|");
  desk.MenuBar("File", "Update Toolbar");
  EXPECT_EQ(desk.Stored(), TwoDraftsDesk::kWatch);
  desk.MenuBar("File", "Exit");
  EXPECT_FALSE(desk.Form().IsLoaded());
}

TEST(CustomizeDraft, ANoForgetsTheTreesOwnAndNotTheOneThatIsOffered) {
  TwoDraftsDesk desk;
  desk.Expand("Single Buttons");
  desk.ClickNode("Watch");
  desk.world.Desktop.PressKey(key::Delete);
  desk.world.Desktop.Answer(kQuestion, kNo);
  desk.Close();
  desk.Open();
  EXPECT_EQ(desk.Offered(), std::vector<std::string>{kWithoutAnvil});
}

TEST(CustomizeDraft, ASaveOfOtherChangesBringsTheOfferedOneToTheNewFiles) {
  TwoDraftsDesk desk;
  desk.ClickControl(desk.Form().cmdSave);
  EXPECT_EQ(desk.Stored(), TwoDraftsDesk::kWatch);
  const std::vector<std::string> both{"Letters(Alpha Beta -) Tools(Hammer) | Watch Paint"};
  desk.Close();
  desk.Open();
  EXPECT_EQ(desk.Offered(), both);
}

TEST(CustomizeDraft, AnEditElsewhereComesIntoTheOfferedOneToo) {
  TwoDraftsDesk desk;
  desk.Put(SingleFileName(2), {CustDesk::Entry("Edit")});
  desk.parts->TheProgram.Ports.TellMenusEdited();
  desk.world.Desktop.Advance(200);
  const std::vector<std::string> both{"Letters(Alpha Beta -) Tools(Hammer) | Clock Edit",
                                      "Letters(Alpha Beta -) Tools(Hammer Anvil) | Watch Edit"};
  EXPECT_EQ(desk.Shown(), both[1]);
  // The program ends here: what lies on the disk belongs to the files of now.
  const auto now = ReadMenuFiles(desk.world.Files, desk.world.Ansi, CustDesk::kMenus);
  EXPECT_EQ(OfferDrafts(desk.world.Files, CustDesk::kMenus, *now).size(), 2U);
  desk.ClickFlat(desk.Form().cmdShowDraft, desk.Form());
  EXPECT_EQ(desk.Shown(), both[0]);
}

TEST(CustomizeDraft, ARenameThatCannotComeTogetherWithAnEditElsewhereIsOfferedAllTheSame) {
  ChangedDesk desk;
  desk.Editor().Undo();
  desk.Editor().TreeChanged = false;
  desk.Rename("Hammer", "Mallet");
  desk.PutMenu(2, {"Tools", "Button", ""},
               {{"Hammer", "other.ico", "other.exe"}, CustDesk::Entry("Anvil")});
  desk.parts->TheProgram.Ports.TellMenusEdited();
  desk.world.Desktop.Advance(200);
  desk.Close();
  ASSERT_FALSE(desk.Form().IsLoaded());
  desk.Open();
  EXPECT_EQ(desk.Shown(), kAtFirst);
  ASSERT_TRUE(desk.Form().cmdShowDraft.Visible());
  desk.ClickFlat(desk.Form().cmdShowDraft, desk.Form());
  EXPECT_NE(desk.Shown().find("Mallet"), std::string::npos) << desk.Shown();
}

TEST(CustomizeDraft, WhatCannotBeKeptIsAskedAbout) {
  for (const int answer : {kYes, kNo, kCancel}) {
    ChangedDesk desk;
    desk.Editor().Undo();
    desk.Editor().TreeChanged = false;
    desk.Rename("Hammer", "Mallet");
    desk.world.Files.FillDisk(10);
    desk.world.Desktop.Answer(kQuestion, answer);
    desk.world.Desktop.AnswerAnyOther(forms::msgbox::AnswerOk);  // after Yes, of the full disk
    desk.Close();
    EXPECT_EQ(desk.Form().IsLoaded(), answer == kCancel) << answer;
  }
}

/// The program ends before that call of the disk, or that call alone fails.
void BreakAt(sim::SimFiles& files, int call, bool ends) {
  if (ends) {
    files.FailFrom(call);
  } else {
    files.FailCall(call);
  }
}

// Closing writes the drafts of both, and the start that follows reads them.
TEST(CustomizeDraft, AnEndOrAFailureAtAnyCallOfTheClosingLosesNoOlderDraft) {
  for (const bool ends : {false, true}) {
    bool bothSeen = false;
    for (int n = 1;; ++n) {
      ASSERT_LT(n, 60);
      TwoDraftsDesk desk;
      desk.world.Desktop.AnswerAnyOther(kNo);
      BreakAt(desk.world.Files, n, ends);
      desk.Close();
      const bool hit = desk.world.Files.Hit();
      desk.world.Files.StopFailing();
      const auto now = ReadMenuFiles(desk.world.Files, desk.world.Ansi, CustDesk::kMenus);
      const std::size_t kept = OfferDrafts(desk.world.Files, CustDesk::kMenus, *now).size();
      EXPECT_GE(kept, 1U) << "ended before call " << n;
      bothSeen = bothSeen || kept == 2;
      if (!hit) break;
    }
    EXPECT_TRUE(bothSeen);
  }
}

TEST(CustomizeDraft, AnEndOrAFailureAtAnyCallOfASaveLosesNoOlderDraft) {
  for (const bool ends : {false, true}) {
    bool oldSeen = false;
    bool newSeen = false;
    for (int n = 1;; ++n) {
      ASSERT_LT(n, 200);
      TwoDraftsDesk desk;
      desk.world.Desktop.AnswerAnyOther(kNo);
      BreakAt(desk.world.Files, n, ends);
      desk.ClickControl(desk.Form().cmdSave);
      const bool hit = desk.world.Files.Hit();
      desk.world.Files.StopFailing();
      EXPECT_TRUE(RecoverFiles(desk.world.Files, CustDesk::kMenus));
      const auto now = ReadMenuFiles(desk.world.Files, desk.world.Ansi, CustDesk::kMenus);
      const bool saved = desk.Stored() == TwoDraftsDesk::kWatch;
      oldSeen = oldSeen || !saved;
      newSeen = newSeen || saved;
      bool found = false;
      for (const MenuSet& set : OfferDrafts(desk.world.Files, CustDesk::kMenus, *now)) {
        found = found || set.Menus[1].Items.size() == 1;
      }
      EXPECT_TRUE(found) << (ends ? "ended before call " : "failing call ") << n;
      if (!hit) break;
    }
    EXPECT_TRUE(oldSeen && newSeen);
  }
}

TEST(CustomizeSave, TheFocusIsWhereItWasAndNotOnExit) {
  ChangedDesk desk;
  desk.ClickControl(desk.Form().cmdSave);
  EXPECT_TRUE(desk.Form().cmdSave.HasFocus());
  EXPECT_FALSE(desk.Form().cmdCancel.HasFocus());
}

TEST(CustomizeOthers, WhatIsDoneOnTheStripComesInWhenNothingIsUnsaved) {
  CustDesk desk;
  desk.PutMenu(2, {"Tools", "Button", ""}, {CustDesk::Entry("Saw")});
  desk.world.Desktop.TakeForeground(desk.parts->Toolbar.hWnd());
  desk.world.Desktop.TakeForeground(desk.Form().hWnd());
  desk.world.Desktop.Pump();
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Saw) | Clock Paint");
}

TEST(CustomizeOthers, AnEditOfTheProgramItselfIsSeenAtOnceWithoutALookAway) {
  CustDesk desk;
  desk.PutMenu(2, {"Tools", "Button", ""}, {CustDesk::Entry("Saw")});
  desk.parts->TheProgram.Ports.TellMenusEdited();
  desk.world.Desktop.Advance(200);
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Saw) | Clock Paint");
}

TEST(CustomizeOthers, AnEditElsewhereWaitsForTheEndOfALabelEdit) {
  CustDesk desk;
  desk.Form().TreeView1.BeginEdit(desk.Node("Clock"));
  ASSERT_NE(desk.Form().TreeView1.Edited(), forms::kNoNode);
  desk.PutMenu(2, {"Tools", "Button", ""}, {CustDesk::Entry("Saw")});
  desk.parts->TheProgram.Ports.TellMenusEdited();
  desk.world.Desktop.Advance(200);
  EXPECT_NE(desk.Form().TreeView1.Edited(), forms::kNoNode);
  desk.Form().TreeView1.EndEdit(false);
  desk.world.Desktop.Advance(200);
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Saw) | Clock Paint");
}

TEST(CustomizeOthers, WhatIsUnsavedHereStaysAndWhatIsDoneThereComesIn) {
  ChangedDesk desk;
  desk.PutMenu(1, {"Letters", "Button", ""}, {CustDesk::Entry("Beta"), CustDesk::Entry("Delta")});
  desk.world.Desktop.TakeForeground(desk.parts->Toolbar.hWnd());
  desk.world.Desktop.TakeForeground(desk.Form().hWnd());
  desk.world.Desktop.Pump();
  EXPECT_EQ(desk.Shown(), "Letters(Beta Delta) Tools(Hammer) | Clock Paint");
  EXPECT_TRUE(desk.Form().TreeView1.IsExpanded(desk.Node("Tools"))) << "the nodes are the same";
  desk.ClickControl(desk.Form().cmdSave);
  EXPECT_EQ(desk.Stored(), "Letters(Beta Delta) Tools(Hammer) | Clock Paint");
}

TEST(CustomizeOthers, WhatCameMeanwhileIsSavedTooWithoutAQuestion) {
  ChangedDesk desk;
  desk.Put(SingleFileName(2), {CustDesk::Entry("Edit")});
  desk.ClickControl(desk.Form().cmdSave);
  EXPECT_EQ(desk.Stored(), "Letters(Alpha Beta -) Tools(Hammer) | Clock Edit");
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Hammer) | Clock Edit");
}

TEST(CustomizeOthers, AConflictIsAskedAboutAndTheOtherVersionKept) {
  for (const bool mine : {true, false}) {
    ChangedDesk desk;
    desk.PutMenu(2, {"Tools", "Button", ""},
                 {CustDesk::Entry("Hammer"), {"Anvil", "other.ico", "other.exe"}});
    desk.world.Desktop.Answer(mine ? kYes : kNo);
    desk.ClickControl(desk.Form().cmdSave);
    const char* others = kAtFirst;
    EXPECT_EQ(desk.Stored(), mine ? kWithoutAnvil : others);
    EXPECT_EQ(desk.Shown(), mine ? kWithoutAnvil : others);
    desk.world.Desktop.AnswerAnyOther(kNo);
    if (mine) {
      desk.Form().Unload();
      desk.Open();
    }
    ASSERT_TRUE(desk.Form().cmdShowDraft.Visible()) << mine;
    desk.ClickFlat(desk.Form().cmdShowDraft, desk.Form());
    EXPECT_EQ(desk.Shown(), mine ? others : kWithoutAnvil);
  }
}

TEST(CustomizeWindow, DoesNotOpenOverMenusThatCannotBeRead) {
  CustDesk desk({}, false);
  desk.world.Files.HoldOpen(CustDesk::kMenus + MenuFileName(2));
  desk.world.Desktop.AnswerAnyOther(forms::msgbox::AnswerOk);
  desk.parts->Customize.LoadWindow();
  EXPECT_FALSE(desk.Form().IsLoaded());
  EXPECT_FALSE(desk.world.Desktop.Boxes().empty());
}

TEST(CustomizeWindow, ACancelKeepsItOpenThoughPropertiesWereAskedFor) {
  for (const int answer : {kYes, kNo, kCancel}) {
    ChangedDesk desk;
    desk.world.Desktop.Answer(kQuestion, answer);
    desk.world.Desktop.ChooseFromPopup("Properties");
    const SingleRect& button = desk.parts->Toolbar.Singles.SingleButtons[1];
    const PixelRect row = desk.world.Desktop.BoundsOf(desk.parts->Toolbar.picSingleButton.hWnd());
    const float twips = desk.world.Desktop.Screen().TwipsPerPixelX;
    desk.ClickAt({row.left + static_cast<int>((button.Left + button.Width / 2) / twips),
                  row.top + static_cast<int>((button.Top + button.Height / 2) / twips)},
                 forms::MouseButton::Right);
    EXPECT_EQ(desk.Form().IsLoaded(), answer == kCancel);
    EXPECT_EQ(desk.parts->Properties.IsLoaded(), answer != kCancel);
    EXPECT_EQ(desk.Stored(), answer == kYes ? kWithoutAnvil : kAtFirst);
    if (answer != kCancel) continue;
    EXPECT_TRUE(desk.Editor().TreeChanged);
    EXPECT_EQ(desk.Shown(), kWithoutAnvil);
  }
}

TEST(CustomizeWindow, AProgramThatEndsAsksAndGoesEvenIfTheUserCancels) {
  for (const int answer : {kYes, kNo, kCancel}) {
    ChangedDesk desk;
    desk.world.Desktop.Answer(kQuestion, answer);
    desk.parts->TheMainMenu.xMainMenu(11, "Exit");
    desk.world.Desktop.Pump();
    EXPECT_FALSE(desk.Form().IsLoaded());
    EXPECT_EQ(desk.Stored(), answer == kYes ? kWithoutAnvil : kAtFirst);
    const bool kept =
        OfferDraft(desk.world.Files, CustDesk::kMenus,
                   *ReadMenuFiles(desk.world.Files, desk.world.Ansi, CustDesk::kMenus))
            .has_value();
    EXPECT_EQ(kept, answer == kCancel) << answer;
  }
}

TEST(CustomizeKeyboard, FromOpeningToSavingWithoutAMouse) {
  CustDesk desk;
  sim::SimDesktop& user = desk.world.Desktop;
  user.PressKey(key::Down);
  user.PressKey(key::Down);
  EXPECT_EQ(desk.Selected(), "Tools");
  desk.Ctrl('M');
  EXPECT_EQ(desk.Selected(), "New Menu Item");
  user.PressKey(key::Tab);
  while (!desk.Form().txtTitle.HasFocus()) user.PressKey(key::Tab);
  user.Type("Saw");
  user.PressKey(key::Tab);
  user.Type("New");
  user.PressKey(key::Tab);
  user.Type("C:\\Tools\\Edit.exe");
  user.PressKey(key::Enter);
  EXPECT_EQ(desk.Shown(), "Letters(Alpha Beta -) Tools(Hammer Anvil Saw) | Clock Paint");
  desk.Keys({key::Alt}, 'U');
  EXPECT_TRUE(desk.Form().cmdSave.HasFocus()) << "as in every dialog of the system";
  EXPECT_EQ(desk.Stored(), "Letters(Alpha Beta -) Tools(Hammer Anvil Saw) | Clock Paint");
  EXPECT_EQ(desk.Editor().Tree.At(desk.Editor().Selected()).Entry,
            (clsFile{"New", "C:\\Tools\\Edit.exe"}));
  desk.Keys({key::Alt}, 'X');
  EXPECT_FALSE(desk.Form().IsLoaded());
}

}  // namespace
}  // namespace corvelle
