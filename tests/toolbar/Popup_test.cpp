// Right clicks: the popup, and what each of its lines does to files and screen.

#include "toolbar/companion/Popup.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "toolbar/PopupDesk.h"

namespace corvelle {
namespace {

constexpr char kMismatch[] = "Cannot delete/cut this item. Record mismatch.";
constexpr char kDeleteQuestion[] =
    "If you delete a button, you cannot Undo Delete. Do you want to continue ?";

// ---- the popup itself ----

TEST(PopupShown, HasAllItsLinesAtThePointerAndBelongsToTheMenuThatIsUp) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  const PixelPoint at = desk.Item(2);
  desk.RightClickItem(2);
  const sim::Popup& popup = desk.LastPopup();
  ASSERT_EQ(popup.Captions().size(), 19U);
  EXPECT_EQ(popup.Captions().front(), "Refresh");
  EXPECT_EQ(popup.Captions().back(), "Folder Properties");
  EXPECT_EQ(popup.At, at);
  EXPECT_EQ(popup.Flags, 2U);
  EXPECT_EQ(popup.Owner, desk.RealMenu.hWnd());
  // The item stays selected and the menu up, also after a while.
  desk.Wait(1000);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
  EXPECT_TRUE(desk.RealMenu.MenuVisible());
}

TEST(PopupShown, BelongsToTheStripWhenNoMenuIsUp) {
  PopupDesk desk;
  desk.RightClickButton(3);
  EXPECT_EQ(desk.LastPopup().Owner, desk.Strip.hWnd());
  EXPECT_EQ(desk.LastPopup().At, desk.Middle(3));
}

TEST(PopupShown, OnTheMainButtonOffersNoEdit) {
  PopupDesk desk;
  desk.TheProgram.Entry.ClipTitle = "Something";
  desk.RightClickButton(1);
  const sim::Popup& popup = desk.LastPopup();
  for (const char* caption : {"Cut Item", "Copy Item", "Paste Item", "Delete Item", "Add Button",
                              "Insert Menu Item", "Insert Separator"}) {
    EXPECT_FALSE(popup.Offers(caption)) << caption;
  }
  EXPECT_TRUE(popup.Offers("Refresh"));
}

TEST(PopupShown, OnTheFrameOffersANewButton) {
  PopupDesk desk;
  desk.RightClickFrame();
  EXPECT_TRUE(desk.LastPopup().Offers("Add Button"));
  EXPECT_FALSE(desk.LastPopup().Offers("Delete Item"));
}

TEST(PopupShown, LeftAloneChangesNothing) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.RightClickItem(1);
  EXPECT_EQ(desk.Titles(1), "Letters|One|Two|Separator|Three|");
  EXPECT_EQ(desk.Shown(), "One|Two|Three|");
  for (const Popup::Element& line : desk.ThePopup.mnuItem) {
    EXPECT_TRUE(line.Caption.empty() && line.Tag.empty() && line.Enabled);
  }
}

TEST(PopupShown, ThePointerOpensNoOtherMenuMeanwhile) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  bool stayed = false;
  desk.World.Desktop.WhilePopupIsUp([&](const sim::Popup&) {
    desk.PointAtButton(3);
    desk.Wait(500);
    stayed = desk.Shown() == "One|Two|Three|";
  });
  desk.RightClickItem(1);
  EXPECT_TRUE(stayed);
  // Afterwards it does again.
  desk.Wait(300);
  EXPECT_EQ(desk.Shown(), "Other|");
}

TEST(PopupShown, AClickInAnotherProgramClosesItAndTheMenu) {
  PopupDesk desk;
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Bounds = {500, 400, 800, 600}});
  desk.OpenMenuOf(2);
  desk.World.Desktop.WhilePopupIsUp(
      [&](const sim::Popup&) { desk.World.Desktop.ClickAt(700, 500); });
  desk.RightClickItem(1);
  desk.Wait(300);
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), other);
  EXPECT_FALSE(desk.RealMenu.MenuVisible());
  EXPECT_EQ(desk.World.Desktop.Find("#32768"), kNoWindow);
}

TEST(PopupShown, TheEndOfTheProgramEndsIt) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.World.Desktop.WhilePopupIsUp([&](const sim::Popup&) { desk.Exit(); });
  desk.RightClickItem(1, "Delete Item");
  EXPECT_FALSE(desk.Strip.IsLoaded());
  EXPECT_EQ(desk.Titles(1), "Letters|One|Two|Separator|Three|");
}

TEST(PopupShown, OneAtATime) {
  PopupDesk desk;
  desk.World.Desktop.WhilePopupIsUp([&](const sim::Popup&) { desk.ThePopup.ShowToolbarPopup({}); });
  desk.RightClickButton(2);
  EXPECT_EQ(desk.World.Desktop.Popups().size(), 1U);
  desk.RightClickButton(2);
  EXPECT_EQ(desk.World.Desktop.Popups().size(), 2U);
}

// ---- copying, cutting, pasting ----

TEST(PopupOnAnItem, CutTakesItAndPastePutsItBeforeAnother) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.RightClickItem(1, "Cut Item");
  EXPECT_EQ(desk.Titles(1), "Letters|Two|Separator|Three|");
  EXPECT_EQ(desk.Shown(), "Two|Three|");
  EXPECT_FALSE(desk.LastPopup().Offers("Paste Item"));
  desk.RightClickItem(2, "Paste Item");
  EXPECT_EQ(desk.Titles(1), "Letters|Two|Separator|One|Three|");
  EXPECT_EQ(desk.Shown(), "Two|One|Three|");
  EXPECT_EQ(desk.RecordOf(1, 4).FName, "C:\\Tools\\tool.exe");
}

TEST(PopupOnAnItem, CopyLeavesItAndPasteGoesIntoAnotherMenuAsOftenAsWanted) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.RightClickItem(2, "Copy Item");
  EXPECT_EQ(desk.Titles(1), "Letters|One|Two|Separator|Three|");
  desk.GoToMenuOf(3);
  desk.RightClickItem(1, "Paste Item");
  desk.RightClickItem(1, "Paste Item");
  EXPECT_EQ(desk.Titles(2), "Others|Two|Two|Other|");
  EXPECT_EQ(desk.Shown(), "Two|Two|Other|");
  EXPECT_EQ(desk.RecordOf(2, 2).FIcon, "two.ico");
}

// ---- deleting ----

TEST(PopupOnAnItem, DeleteAsksNothingAndUndoPutsItBack) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.RightClickItem(1, "Delete Item");
  EXPECT_EQ(desk.Titles(1), "Letters|Two|Separator|Three|");
  EXPECT_EQ(desk.Shown(), "Two|Three|");
  desk.RightClickItem(2, "Undo Delete");
  EXPECT_EQ(desk.Titles(1), "Letters|One|Two|Separator|Three|");
  EXPECT_EQ(desk.Shown(), "One|Two|Three|");
  desk.RightClickItem(1);
  EXPECT_FALSE(desk.LastPopup().Offers("Undo Delete"));
}

TEST(PopupOnAnItem, DeletingTheLastOneAndUndoingPutsItBackAtTheEnd) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.RightClickItem(3, "Delete Item");
  EXPECT_EQ(desk.Titles(1), "Letters|One|Two|Separator|");
  desk.RightClickItem(1, "Undo Delete");
  EXPECT_EQ(desk.Titles(1), "Letters|One|Two|Separator|Three|");
}

TEST(PopupOnAnItem, UndoIsOfferedInTheMenuOfTheDeletedOneAlone) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.RightClickItem(1, "Delete Item");
  desk.GoToMenuOf(3);
  desk.RightClickItem(1);
  EXPECT_EQ(desk.World.Desktop.Popups().size(), 2U);
  EXPECT_FALSE(desk.LastPopup().Offers("Undo Delete"));
  desk.GoToMenuOf(2);
  desk.RightClickItem(1);
  EXPECT_EQ(desk.World.Desktop.Popups().size(), 3U);
  EXPECT_TRUE(desk.LastPopup().Offers("Undo Delete"));
}

/// Three menus, of which the second had an item deleted, and where it was deleted from.
struct DeletedDesk : PopupDesk {
  DeletedDesk() {
    PutMenu(2, {Entry("Others", "Button"), Entry("Other"), Entry("More")});
    PutMenu(3, {Entry("Last", "Button"), Entry("End")});
    Strip.RefreshToolbar();
    OpenMenuOf(3);
    RightClickItem(1, "Delete Item");
    Strip.ResetMenu();
    EXPECT_EQ(Titles(2), "Others|More|");
  }
  bool OffersUndoIn(int button) {
    OpenMenuOf(button);
    RightClickItem(1);
    Strip.ResetMenu();
    return LastPopup().Offers("Undo Delete");
  }
};

TEST(PopupOnAnItem, AButtonThatComesToTheDeletedOnesPlaceOffersNoUndo) {
  struct Row {
    const char* name;
    std::function<void(DeletedDesk&)> change;
  };
  const Row rows[] = {
      {"the first is hidden",
       [](DeletedDesk& desk) {
         desk.PutMenu(1, {Entry("Letters", "Button", "/h"), Entry("One")});
         desk.Strip.RefreshToolbarButtons();
       }},
      {"the menu itself is hidden",
       [](DeletedDesk& desk) {
         desk.PutMenu(2, {Entry("Others", "Button", "/h"), Entry("More")});
         desk.Strip.RefreshToolbarButtons();
       }},
      {"another program removes the first",
       [](DeletedDesk& desk) {
         desk.World.Files.Vanish(PopupDesk::FileOf(1));
         desk.Strip.RefreshToolbar();
       }},
      {"the first is deleted",
       [](DeletedDesk& desk) {
         desk.World.Desktop.Answer(kDeleteQuestion, forms::msgbox::AnswerYes);
         desk.RightClickButton(2, "Delete Item");
       }},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    DeletedDesk desk;
    row.change(desk);
    ASSERT_EQ(desk.Strip.Buttons.ButtonCount, 3);
    EXPECT_FALSE(desk.OffersUndoIn(3));
    EXPECT_FALSE(desk.OffersUndoIn(2));
  }
}

TEST(PopupOnAnItem, TheUndoStaysWhereTheButtonsKeepTheirPlaces) {
  struct Row {
    const char* name;
    std::function<void(DeletedDesk&)> change;
  };
  const Row rows[] = {
      {"the buttons are repainted", [](DeletedDesk& desk) { desk.Strip.RefreshToolbar(); }},
      {"the strip is rebuilt", [](DeletedDesk& desk) { desk.Strip.InitNewButtons(); }},
      {"one more button", [](DeletedDesk& desk) { desk.Strip.AddNewButton(); }},
      {"another title",
       [](DeletedDesk& desk) {
         desk.PutMenu(2, {Entry("Renamed", "Button"), Entry("More")});
         desk.Strip.RefreshToolbarButtons();
       }},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    DeletedDesk desk;
    row.change(desk);
    EXPECT_FALSE(desk.OffersUndoIn(4));
    EXPECT_TRUE(desk.OffersUndoIn(3));
    desk.OpenMenuOf(3);
    desk.RightClickItem(1, "Undo Delete");
    EXPECT_EQ(desk.Shown(), "Other|More|");
  }
}

TEST(PopupOnAnItem, APasteEndsTheChanceToUndo) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.RightClickItem(2, "Copy Item");
  desk.RightClickItem(1, "Delete Item");
  desk.RightClickItem(1, "Paste Item");
  desk.RightClickItem(1);
  EXPECT_FALSE(desk.LastPopup().Offers("Undo Delete"));
}

TEST(PopupOnAnItem, OneThatTheFileDoesNotHoldAnyMoreIsNotDeletedAndLeavesNothingToUndo) {
  for (const char* choice : {"Delete Item", "Cut Item"}) {
    SCOPED_TRACE(choice);
    PopupDesk desk;
    desk.OpenMenuOf(2);
    desk.PutMenu(1, {Entry("Letters", "Button"), Entry("Changed")});
    desk.World.Desktop.Answer(kMismatch, forms::msgbox::AnswerOk);
    desk.RightClickItem(1, choice);
    EXPECT_EQ(desk.Titles(1), "Letters|Changed|");
    EXPECT_EQ(desk.World.Desktop.Boxes().back().Flags, 0x40040U);
    EXPECT_TRUE(desk.TheProgram.Entry.UndoMenuTag.empty());
  }
}

TEST(PopupOnAnItem, DeleteSeparatorTakesTheOneAboveAndUndoBringsItBack) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.RightClickItem(2);
  EXPECT_FALSE(desk.LastPopup().Offers("Delete Separator"));
  EXPECT_TRUE(desk.LastPopup().Offers("Insert Separator"));
  desk.RightClickItem(3, "Delete Separator");
  EXPECT_FALSE(desk.LastPopup().Offers("Insert Separator"));
  EXPECT_EQ(desk.Titles(1), "Letters|One|Two|Three|");
  desk.RightClickItem(3, "Undo Delete");
  EXPECT_EQ(desk.Titles(1), "Letters|One|Two|Separator|Three|");
}

TEST(PopupOnAnItem, ASeparatorThatIsGoneByNowIsSaidToBe) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.PutMenu(1, {Entry("Letters"), Entry("One"), Entry("Two"), Entry("Four"), Entry("Three")});
  desk.World.Desktop.Answer(kMismatch, forms::msgbox::AnswerOk);
  desk.RightClickItem(3, "Delete Separator");
  EXPECT_EQ(desk.Titles(1), "Letters|One|Two|Four|Three|");
  EXPECT_TRUE(desk.TheProgram.Entry.UndoMenuTag.empty());
}

// ---- new entries ----

TEST(PopupOnAnItem, InsertMenuItemPutsANewOneBeforeItAndEmptiesTheClipboard) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.RightClickItem(1, "Copy Item");
  desk.RightClickItem(2, "Insert Menu Item");
  EXPECT_EQ(desk.Titles(1), "Letters|One|New Menu Item|Two|Separator|Three|");
  const MenuRecord made{"New Menu Item", "New", ""};
  EXPECT_EQ(desk.RecordOf(1, 3), made);
  EXPECT_EQ(desk.Shown(), "One|New Menu Item|Two|Three|");
  desk.RightClickItem(1);
  EXPECT_FALSE(desk.LastPopup().Offers("Paste Item"));
}

TEST(PopupOnAnItem, InsertSeparatorPutsOneAboveItButNeverAboveTheFirst) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.RightClickItem(1);
  EXPECT_FALSE(desk.LastPopup().Offers("Insert Separator"));
  desk.RightClickItem(2, "Insert Separator");
  EXPECT_EQ(desk.Titles(1), "Letters|One|Separator|Two|Separator|Three|");
  const MenuRecord made{"Separator", "MenuLineSeparator", ""};
  EXPECT_EQ(desk.RecordOf(1, 3), made);
}

TEST(PopupOnTheStrip, AddButtonMakesAFileWithOneItemAndShowsTheButton) {
  PopupDesk desk;
  const int before = desk.Strip.Buttons.ButtonCount;
  const float left = desk.Strip.Left();
  desk.RightClickFrame("Add Button");
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, before + 1);
  EXPECT_EQ(desk.Titles(3), "New Button|New Menu Item|");
  EXPECT_EQ(desk.RecordOf(3, 1).FIcon, "Button");
  EXPECT_EQ(desk.RecordOf(3, 2).FIcon, "New");
  EXPECT_LE(desk.Strip.Left(), left);
  EXPECT_GE(desk.Strip.Left(), 0.0F);
  EXPECT_TRUE(desk.TheProgram.Guards.ToolbarReady);
  desk.OpenMenuOf(4);
  EXPECT_EQ(desk.Shown(), "New Menu Item|");
}

TEST(PopupOnTheStrip, ADiskThatTakesNoNewButtonSaysSo) {
  PopupDesk desk;
  const int before = desk.Strip.Buttons.ButtonCount;
  desk.World.Desktop.Answer("75 - Path/File access error", forms::msgbox::AnswerOk);
  desk.World.Files.Protect("C:\\Corvelle\\Menus");
  desk.RightClickFrame("Add Button");
  desk.World.Files.Protect("C:\\Corvelle\\Menus", false);
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, before);
  EXPECT_EQ(desk.World.Desktop.Boxes().back().Flags, 0x40040U);
  EXPECT_TRUE(desk.TheProgram.Guards.ToolbarReady);
}

// ---- a menu button ----

TEST(PopupOnAButton, DeleteAsksAndTakesTheButtonWithItsMenu) {
  PopupDesk desk;
  desk.World.Desktop.Answer(kDeleteQuestion, forms::msgbox::AnswerYes);
  desk.RightClickButton(2, "Delete Item");
  EXPECT_EQ(desk.World.Desktop.Boxes().back().Flags & 0xFU, forms::msgbox::YesNo);
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 2);
  EXPECT_EQ(desk.Titles(1), "Others|Other|");
  EXPECT_EQ(desk.Titles(2), "");
  EXPECT_TRUE(desk.TheProgram.Entry.UndoMenuTag.empty());
}

TEST(PopupOnAButton, DeleteWithANoChangesNothing) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.RightClickItem(1, "Delete Item");
  desk.World.Desktop.Answer(kDeleteQuestion, forms::msgbox::AnswerNo);
  desk.RightClickButton(3, "Delete Item");
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 3);
  EXPECT_EQ(desk.Titles(2), "Others|Other|");
  // What was deleted before can still be brought back.
  EXPECT_EQ(desk.TheProgram.Entry.UndoMenuTag, "F2");
}

TEST(PopupOnAButton, OffersNoCutCopyOrPaste) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.RightClickItem(1, "Copy Item");
  desk.RightClickButton(3);
  for (const char* caption : {"Cut Item", "Copy Item", "Paste Item", "Insert Menu Item"}) {
    EXPECT_FALSE(desk.LastPopup().Offers(caption)) << caption;
  }
  EXPECT_TRUE(desk.LastPopup().Offers("Delete Item"));
  EXPECT_TRUE(desk.LastPopup().Offers("Add Button"));
}

// ---- Refresh ----

TEST(PopupRefresh, ReadsTheMenuAnew) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.PutMenu(1, {Entry("Letters", "Button"), Entry("Newly written")});
  desk.RightClickItem(1, "Refresh");
  EXPECT_EQ(desk.Shown(), "Newly written|");
}

TEST(PopupRefresh, ReadsTheButtonsAnew) {
  for (const bool onFrame : {true, false}) {
    PopupDesk desk;
    desk.PutMenu(3, {Entry("Third", "Button"), Entry("Newest")});
    if (onFrame) {
      desk.RightClickFrame("Refresh");
    } else {
      desk.RightClickButton(2, "Refresh");
    }
    EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 4);
    // The new one has its place on the strip.
    desk.OpenMenuOf(4);
    EXPECT_EQ(desk.Shown(), "Newest|");
  }
}

TEST(PopupRefresh, MovesTheStripForOtherButtonsAlone) {
  PopupDesk desk;
  const PixelRect strip = desk.World.Desktop.BoundsOf(desk.Strip.hWnd());
  const PixelRect box = desk.World.Desktop.BoundsOf(desk.Strip.picToolbar.hWnd());
  desk.RightClickFrame("Refresh");
  EXPECT_EQ(desk.World.Desktop.BoundsOf(desk.Strip.hWnd()), strip);
  EXPECT_EQ(desk.World.Desktop.BoundsOf(desk.Strip.picToolbar.hWnd()), box);
  // A button less takes its width from the left, as the edit of a button does.
  desk.World.Files.Vanish(PopupDesk::FileOf(2));
  desk.RightClickFrame("Refresh");
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 2);
  EXPECT_LT(desk.World.Desktop.BoundsOf(desk.Strip.hWnd()).Width(), strip.Width());
  EXPECT_EQ(desk.World.Desktop.BoundsOf(desk.Strip.hWnd()).right, strip.right);
}

TEST(PopupRefresh, OnAnItemOfTheMainMenuClosesItAndNothingElse) {
  PopupDesk desk;
  desk.OpenMenuOf(2);
  desk.PutMenu(3, {Entry("Third", "Button")});
  desk.ChooseFor({.CurTitle = "About...", .CurMenuTag = "Q1", .CurRecord = 9}, "Refresh");
  EXPECT_FALSE(desk.RealMenu.MenuVisible());
  EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 3);
}

}  // namespace
}  // namespace corvelle
