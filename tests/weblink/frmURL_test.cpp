#include "weblink/frmURL.h"

#include <algorithm>
#include <optional>

#include "weblink/LinkDesk.h"

namespace corvelle {
namespace {

using Names = std::vector<std::string>;

// ---- the window ----

TEST(WebLinkDialog, ComesUpOnTopInTheMiddleWithTheDropsTexts) {
  LinkDesk desk;
  desk.DropOnButton(3);
  EXPECT_TRUE(desk.Pending());
  EXPECT_FALSE(desk.DialogUp());  // the drop has to return first
  desk.WaitForDialog();
  ASSERT_TRUE(desk.DialogUp());
  frmURL& dialog = desk.Dialog();
  EXPECT_EQ(dialog.Caption(), "Create Web Link");
  EXPECT_EQ(dialog.Label2.Caption(), "Title:");
  EXPECT_EQ(dialog.Label3.Caption(), "Address:");
  EXPECT_EQ(dialog.Check1.Caption(), "Don't show this dialog box again");
  EXPECT_EQ(dialog.Check1.Value(), 0);
  EXPECT_EQ(dialog.cmdOK.Caption(), "OK");
  EXPECT_EQ(dialog.cmdCancel.Caption(), "Cancel");
  EXPECT_EQ(dialog.txtTitle.Text(), "A page");
  EXPECT_EQ(dialog.txtAddress.Text(), kPage);
  EXPECT_TRUE(desk.world.Desktop.IsTopmost(dialog.hWnd()));
  EXPECT_EQ(desk.world.Desktop.ForegroundWindow(), dialog.hWnd());
  EXPECT_TRUE(desk.Focused("txtTitle"));
  const PixelRect bounds = desk.world.Desktop.BoundsOf(dialog.hWnd());
  EXPECT_NEAR(bounds.left + bounds.right, 1024, 2);
  EXPECT_NEAR(bounds.top + bounds.bottom, 768, 2);
  EXPECT_LE(dialog.cmdCancel.Right(), dialog.ScaleWidth());
  EXPECT_LE(dialog.cmdOK.Bottom(), dialog.ScaleHeight());
}

TEST(WebLinkDialog, EnterMakesTheEntryAndEscapeGivesItUp) {
  for (const bool enter : {true, false}) {
    LinkDesk desk;
    desk.DropOnButton(3);
    desk.WaitForDialog();
    desk.PressKey(enter ? forms::key::Enter : forms::key::Escape);
    EXPECT_FALSE(desk.DialogUp());
    EXPECT_FALSE(desk.Pending());
    EXPECT_EQ(desk.Titles(2),
              enter ? (Names{"Menu", "X", "Y", "A page"}) : (Names{"Menu", "X", "Y"}));
  }
}

TEST(WebLinkDialog, TheKeyboardAloneCorrectsBothTextsAndTicksTheBox) {
  LinkDesk desk;
  desk.DropOnButton(3);
  desk.WaitForDialog();
  desk.world.Desktop.Type("Mine");  // the title is selected
  desk.PressKey(forms::key::Tab);
  EXPECT_TRUE(desk.Focused("txtAddress"));
  desk.world.Desktop.Type("https://example.org");
  desk.PressKey(forms::key::Tab);
  EXPECT_TRUE(desk.Focused("Check1"));
  desk.PressKey(forms::key::Space);
  desk.PressKey(forms::key::Tab);
  EXPECT_TRUE(desk.Focused("cmdOK"));
  desk.PressKey(forms::key::Space);
  ASSERT_EQ(desk.MenuRecords(2).size(), 4U);
  const MenuRecord made = desk.MenuRecords(2)[3];
  EXPECT_EQ(made.FTitle, "Mine");
  EXPECT_EQ(made.FIcon, "http");
  EXPECT_EQ(made.FName, "https://example.org");
  EXPECT_TRUE(desk.parts->TheProgram.OptionFlags.Is(Option::NoWebLinkDialog));
}

TEST(WebLinkDialog, TheCloseBoxGivesTheEntryUp) {
  LinkDesk desk;
  const Folder before = desk.Files();
  desk.DropOnButton(3);
  desk.WaitForDialog();
  desk.world.Desktop.Post(desk.Dialog().hWnd(), forms::message::Close, 0, 0);
  desk.world.Desktop.Advance(10);
  EXPECT_FALSE(desk.DialogUp());
  EXPECT_FALSE(desk.Pending());
  EXPECT_EQ(desk.Files(), before);
}

TEST(WebLinkDialog, CancelWritesNothingAndEmptiesTheClipboard) {
  LinkDesk desk;
  const Folder before = desk.Files();
  SetClipboard(desk.Entry(), {"kept", "icon", "command"});
  desk.DropOnItem(2);
  desk.WaitForDialog();
  ASSERT_TRUE(desk.DialogUp());
  EXPECT_EQ(desk.Entry().ClipTitle, "kept");
  desk.Click("cmdCancel");
  EXPECT_EQ(desk.Files(), before);
  EXPECT_EQ(desk.Entry().ClipTitle, "");
  EXPECT_EQ(desk.Entry().ClipIcon, "");
  EXPECT_EQ(desk.Entry().ClipCommand, "");
  EXPECT_EQ(desk.Dialog().Tag, "");
  EXPECT_FALSE(desk.Pending());
  EXPECT_FALSE(desk.parts->Menu.MenuVisible());
}

TEST(WebLinkDialog, TheCheckBoxTakesEffectFromTheNextDropOn) {
  LinkDesk desk;
  desk.DropOnButton(3);
  desk.WaitForDialog();
  desk.Click("Check1");
  EXPECT_TRUE(desk.parts->TheProgram.OptionFlags.Is(Option::NoWebLinkDialog));
  EXPECT_TRUE(desk.DialogUp());  // the present one goes on
  desk.Click("Check1");
  EXPECT_FALSE(desk.parts->TheProgram.OptionFlags.Is(Option::NoWebLinkDialog));
  desk.Click("Check1");
  desk.Click("cmdCancel");
  EXPECT_EQ(desk.Titles(2).size(), 3U);
  const auto saved = desk.world.Files.Get("C:\\Corvelle\\tmenu425.dat");
  ASSERT_TRUE(saved);
  EXPECT_EQ((*saved)[17], '1');
  desk.DropOnButton(3);
  desk.WaitForDialog();
  EXPECT_FALSE(desk.DialogUp());
  EXPECT_EQ(desk.Titles(2).size(), 4U);
}

TEST(WebLinkDialog, AnAddressThatNoRecordHoldsIsNotCutOff) {
  LinkDesk desk;
  desk.NoDialog();
  const std::string address = "http://example.com/" + std::string(300, 'a');
  desk.DropOnButton(3, address);
  desk.WaitForDialog();
  // Also with the dialog switched off: somebody has to shorten it.
  ASSERT_TRUE(desk.DialogUp());
  desk.Click("cmdOK");
  ASSERT_FALSE(desk.world.Desktop.Boxes().empty());
  EXPECT_EQ(desk.world.Desktop.Boxes().back().Text,
            "This address is too long to be stored. Please shorten it.");
  EXPECT_TRUE(desk.DialogUp());
  EXPECT_TRUE(desk.Pending());
  EXPECT_EQ(desk.Titles(2).size(), 3U);
  desk.Dialog().txtAddress.SetText(kPage);
  desk.Click("cmdOK");
  EXPECT_EQ(desk.MenuRecords(2).back().FName, kPage);
}

TEST(WebLinkDialog, IsTheSameAfterTwoHundredOpenings) {
  LinkDesk desk;
  std::size_t windows = 0;
  for (int i = 0; i < 200; ++i) {
    desk.DropOnButton(3);
    desk.WaitForDialog();
    ASSERT_TRUE(desk.DialogUp()) << i;
    desk.PressKey(forms::key::Escape);
    if (i == 0) windows = desk.world.Desktop.TopLevel().size();
  }
  EXPECT_EQ(desk.world.Desktop.TopLevel().size(), windows);
}

// ---- the four targets ----

TEST(WebLinkTarget, AnItemUnderTheDropGetsTheEntryBeforeIt) {
  LinkDesk desk;
  desk.DropOnItem(3);
  desk.WaitForDialog();
  ASSERT_TRUE(desk.DialogUp());
  EXPECT_EQ(desk.Dialog().Tag, "F2");
  EXPECT_TRUE(desk.parts->Menu.MenuVisible());  // until the entry is made
  desk.Click("cmdOK");
  EXPECT_EQ(desk.Titles(1), (Names{"Menu", "A", "B", "A page", "C", "D"}));
  EXPECT_FALSE(desk.parts->Menu.MenuVisible());
  EXPECT_EQ(desk.Entry().ClipTitle, "");
}

TEST(WebLinkTarget, ASingleButtonUnderTheDropGetsANeighbourBeforeIt) {
  LinkDesk desk;
  desk.DropOnSingle(2);
  desk.WaitForDialog();
  EXPECT_EQ(desk.Dialog().Tag, "SingleButtons");
  desk.Click("cmdOK");
  EXPECT_EQ(desk.Singles(), (Names{"one", "A page", "two", "three", "four"}));
  EXPECT_EQ(desk.parts->Toolbar.Singles.SingleCount, 5);
}

TEST(WebLinkTarget, AStripThatHidMeanwhileComesBackWithTheNewButtonInItsPlace) {
  struct Row {
    const char* name;
    std::optional<Edge> at;
    PixelPoint touch;
  };
  for (const Row& row : {Row{"floating", std::nullopt, {}}, Row{"top", Edge::Top, {500, 0}},
                         Row{"bottom", Edge::Bottom, {500, 767}}, Row{"left", Edge::Left, {0, 400}},
                         Row{"right", Edge::Right, {1023, 400}}}) {
    SCOPED_TRACE(row.name);
    LinkDesk desk;
    frmToolbar& strip = desk.parts->Toolbar;
    const auto bounds = [&] { return desk.world.Desktop.BoundsOf(strip.hWnd()); };
    desk.parts->TheProgram.OptionFlags.Set(Option::AutoHide, true);
    desk.parts->TheProgram.Strip.AutoHide = true;
    if (row.at) desk.parts->Docking.SetAppBar(*row.at, true);
    desk.parts->Docking.RevealToolbar();
    strip.WatchHiding(true);
    PixelRect whole = bounds();
    desk.DropOnSingle(2);
    desk.WaitForDialog();
    desk.PointAt({500, 600});
    desk.world.Desktop.Advance(300);
    ASSERT_FALSE(strip.picToolbar.Visible());
    desk.PressKey(forms::key::Enter);
    EXPECT_EQ(desk.Singles(), (Names{"one", "A page", "two", "three", "four"}));
    if (!row.at) whole.left -= 18;
    EXPECT_EQ(bounds(), whole);
    EXPECT_TRUE(strip.picToolbar.Visible());
    EXPECT_TRUE(strip.picSingleButton.Visible());
    const SingleRect& last = strip.Singles.SingleButtons.back();
    EXPECT_LE(last.Right(), strip.picSingleButton.Width());
    EXPECT_LE(last.Bottom(), strip.picSingleButton.Height());
    // The pointer is elsewhere: the line is bare, and gives way to the same strip.
    desk.world.Desktop.TakeForeground(
        desk.world.Desktop.AddOtherWindow({.Title = "Work", .Bounds = {300, 200, 700, 650}}));
    desk.world.Desktop.Advance(300);
    EXPECT_FALSE(strip.picToolbar.Visible());
    EXPECT_FALSE(strip.bLine1.Visible());
    EXPECT_EQ(std::min(bounds().Width(), bounds().Height()), 1);
    desk.PointAt(row.at ? row.touch : PixelPoint{whole.left + 20, 0});
    desk.world.Desktop.Advance(300);
    EXPECT_EQ(bounds(), whole);
    EXPECT_TRUE(strip.picSingleButton.Visible());
  }
}

TEST(WebLinkTarget, BehindTheSingleButtonsItBecomesANewOne) {
  LinkDesk desk;
  desk.NoDialog();
  desk.Drag({desk.BehindSingles()});
  desk.Drop();
  EXPECT_TRUE(desk.Dialog().Tag.ends_with("BMENU005.BTN")) << desk.Dialog().Tag;
  desk.WaitForDialog();
  EXPECT_EQ(desk.Singles(), (Names{"one", "two", "three", "four", "A page"}));
}

TEST(WebLinkTarget, AButtonWhoseMenuIsClosedGetsItAtTheEndOfItsFile) {
  LinkDesk desk;
  desk.NoDialog();
  desk.DropOnButton(2);
  desk.WaitForDialog();
  EXPECT_FALSE(desk.DialogUp());
  EXPECT_FALSE(desk.Pending());
  EXPECT_EQ(desk.Titles(1), (Names{"Menu", "A", "B", "C", "D", "A page"}));
  EXPECT_FALSE(desk.parts->Menu.MenuVisible());
  // And the menu shows it.
  desk.OpenMenu(2);
  EXPECT_EQ(desk.parts->Menu.Lbl[5].Caption(), "A page");
}

// The Customize window may be open beside the browser.
TEST(WebLinkTarget, WhatIsAppendedToAMenuIsToldToWhoeverShowsTheMenus) {
  struct NotedEdits : MenuEditsPort {
    int Told = 0;
    void MenusEdited() override { ++Told; }
  };
  LinkDesk desk;
  NotedEdits edits;
  desk.parts->TheProgram.Ports.MenuEdits = &edits;
  desk.NoDialog();
  desk.DropOnButton(2);
  desk.WaitForDialog();
  EXPECT_EQ(edits.Told, 1);
  // A menu that cannot be written has not changed.
  desk.world.Files.HoldOpen(kMenus + MenuFileName(1));
  desk.DropOnButton(2);
  desk.WaitForDialog();
  EXPECT_EQ(edits.Told, 1);
  desk.parts->TheProgram.Ports.MenuEdits = &desk.parts->Customize;
}

TEST(WebLinkTarget, BelowTheLastItemItGoesToTheEnd) {
  LinkDesk desk;
  desk.NoDialog();
  desk.DropOnItem(4);
  desk.WaitForDialog();
  EXPECT_EQ(desk.Titles(1), (Names{"Menu", "A", "B", "C", "A page", "D"}));
}

// ---- titles ----

TEST(WebLinkTitle, WithoutOneInTheDropTheBrowsersWindowTellsIt) {
  LinkDesk desk;
  desk.NoDialog();
  desk.DropOnButton(3, kPage, "");
  desk.WaitForDialog();
  EXPECT_EQ(desk.Titles(2).back(), "Other page");
}

TEST(WebLinkTitle, ABlankOneLeavesTheAddressToBeSeen) {
  LinkDesk desk;
  desk.DropOnButton(3);
  desk.WaitForDialog();
  desk.Dialog().txtTitle.SetText("  ");
  desk.Click("cmdOK");
  EXPECT_EQ(desk.Titles(2).back(), "example.com/page");
}

TEST(WebLinkTitle, SecureAddressesBecomeEntriesToo) {
  LinkDesk desk;
  desk.NoDialog();
  desk.DropOnButton(3, "https://example.com");
  desk.WaitForDialog();
  EXPECT_EQ(desk.MenuRecords(2).back().FName, "https://example.com");
}

// ---- what else happens meanwhile ----

TEST(WebLinkPending, AnotherAddressIsRefusedUntilTheDialogIsDone) {
  LinkDesk desk;
  desk.DropOnButton(3);
  desk.WaitForDialog();
  desk.Drag({desk.MenuButton(2)}, "http://example.com/other", "Other");
  EXPECT_EQ(desk.world.Desktop.DragEffect(), forms::DropEffect::None);
  desk.Drop();
  desk.WaitForDialog();
  EXPECT_EQ(desk.Dialog().txtAddress.Text(), kPage);
  desk.PressKey(forms::key::Escape);
  desk.DropOnButton(3);
  desk.WaitForDialog();
  EXPECT_TRUE(desk.DialogUp());
}

TEST(WebLinkPending, TheStripTakesNoInputAndThenAgain) {
  LinkDesk desk;
  desk.DropOnButton(3);
  desk.WaitForDialog();
  desk.PointAt(desk.MenuButton(2));
  desk.world.Desktop.Click();
  desk.world.Desktop.Advance(300);
  EXPECT_FALSE(desk.parts->Menu.MenuVisible());
  EXPECT_TRUE(desk.DialogUp());
  desk.Click("cmdCancel");
  desk.OpenMenu(2);
  EXPECT_EQ(desk.parts->TheProgram.Guards.OpenQuestions, 0);
}

TEST(WebLinkPending, NoTimerStepRunsTwice) {
  LinkDesk desk;
  desk.DropOnButton(3);
  desk.WaitForDialog();
  desk.world.Desktop.Advance(5000);
  EXPECT_TRUE(desk.DialogUp());
  desk.Click("cmdOK");
  desk.world.Desktop.Advance(5000);
  EXPECT_EQ(desk.Titles(2), (Names{"Menu", "X", "Y", "A page"}));
}

TEST(WebLinkPending, AnEditThatIsUnderWayIsWaitedFor) {
  LinkDesk desk;
  desk.NoDialog();
  desk.DropOnButton(3);
  desk.parts->TheProgram.Guards.ItemActionBusy = true;
  desk.world.Desktop.Advance(500);
  EXPECT_EQ(desk.Titles(2).size(), 3U);
  EXPECT_TRUE(desk.Pending());
  desk.parts->TheProgram.Guards.ItemActionBusy = false;
  desk.WaitForDialog();
  EXPECT_EQ(desk.Titles(2).size(), 4U);
  EXPECT_FALSE(desk.Pending());
}

TEST(WebLinkPending, AMessageThatIsUpIsAnsweredFirst) {
  LinkDesk desk;
  desk.DropOnButton(3);
  ++desk.parts->TheProgram.Guards.OpenQuestions;
  desk.world.Desktop.Advance(500);
  EXPECT_FALSE(desk.DialogUp());
  --desk.parts->TheProgram.Guards.OpenQuestions;
  desk.WaitForDialog();
  EXPECT_TRUE(desk.DialogUp());
}

TEST(WebLinkPending, TheEntryFollowsAnItemThatMovedMeanwhile) {
  LinkDesk desk;
  desk.DropOnItem(3);
  desk.WaitForDialog();
  const std::string path = kMenus + MenuFileName(1);
  const std::string bytes = desk.world.Files.Get(path).value_or("");
  // Another program puts "C" in front of "A".
  const auto record = [&](int n) { return StoredRecord(bytes, n); };
  desk.world.Files.Put(path, record(1) + record(4) + record(2) + record(3) + record(5));
  desk.Click("cmdOK");
  EXPECT_EQ(desk.Titles(1), (Names{"Menu", "A page", "C", "A", "B", "D"}));
}

TEST(WebLinkPending, WithoutItsItemTheEntryGoesToTheEnd) {
  LinkDesk desk;
  desk.DropOnItem(3);
  desk.WaitForDialog();
  const std::string path = kMenus + MenuFileName(1);
  const std::string bytes = desk.world.Files.Get(path).value_or("");
  desk.world.Files.Put(path, bytes.substr(0, 3 * kRecordLength));
  desk.Click("cmdOK");
  EXPECT_EQ(desk.Titles(1), (Names{"Menu", "A", "B", "A page"}));
}

TEST(WebLinkPending, AMenuThatIsGoneIsNotMadeAgain) {
  LinkDesk desk;
  desk.DropOnButton(3);
  desk.WaitForDialog();
  ASSERT_TRUE(desk.world.Files.Remove(kMenus + MenuFileName(2)));
  desk.Click("cmdOK");
  EXPECT_FALSE(desk.Files().contains(MenuFileName(2)));
  EXPECT_FALSE(desk.Pending());
}

TEST(WebLinkPending, WhatBecameTheCurrentEntryMeanwhileIsNotTouched) {
  LinkDesk desk;
  desk.DropOnItem(2);
  desk.WaitForDialog();
  desk.Entry().CurFile = kMenus + MenuFileName(2);
  desk.Entry().CurRecord = 3;
  desk.Click("cmdOK");
  EXPECT_EQ(desk.Titles(1), (Names{"Menu", "A", "A page", "B", "C", "D"}));
  EXPECT_EQ(desk.Titles(2), (Names{"Menu", "X", "Y"}));
}

TEST(WebLinkPending, TheProgramMayEndWhileTheDialogIsUp) {
  LinkDesk desk;
  const Folder before = desk.Files();
  desk.DropOnItem(2);
  desk.WaitForDialog();
  desk.parts->Companion.UnloadWindow();
  desk.world.Desktop.Pump();
  EXPECT_FALSE(desk.DialogUp());
  EXPECT_FALSE(desk.Pending());
  EXPECT_EQ(desk.parts->TheProgram.Guards.OpenQuestions, 0);
  EXPECT_EQ(desk.Files(), before);
}

TEST(WebLinkPending, TheSessionMayEndWhileTheDialogIsUp) {
  LinkDesk desk;
  const Folder before = desk.Files();
  desk.DropOnButton(2);
  desk.WaitForDialog();
  desk.world.Desktop.EndSession();
  EXPECT_FALSE(desk.DialogUp());
  EXPECT_EQ(desk.Files(), before);
}

TEST(WebLinkPending, AWindowThatTheSystemRefusesGivesTheAddressUp) {
  LinkDesk desk;
  desk.DropOnButton(2);
  desk.world.Desktop.RefuseNextWindow();
  desk.WaitForDialog();
  EXPECT_FALSE(desk.DialogUp());
  EXPECT_FALSE(desk.Pending());
  desk.OpenMenu(2);
}

// ---- the disk ----

TEST(WebLinkWrites, AnyOneFailureLeavesTheOldFilesOrTheNew) {
  enum class On { Item, Single, Button };
  for (const On on : {On::Item, On::Single, On::Button}) {
    bool done = false;
    for (int n = 1; !done; ++n) {
      SCOPED_TRACE(std::to_string(static_cast<int>(on)) + " failing call " + std::to_string(n));
      ASSERT_LT(n, 200);
      LinkDesk desk;
      const Folder before = desk.Files();
      if (on == On::Item) desk.DropOnItem(2);
      if (on == On::Single) desk.DropOnSingle(2);
      if (on == On::Button) desk.DropOnButton(2);
      desk.WaitForDialog();
      ASSERT_TRUE(desk.DialogUp());
      desk.world.Files.FailCall(n, FileError::DiskFull);
      desk.Click("cmdOK");
      done = !desk.world.Files.Hit();
      desk.world.Files.StopFailing();
      const Folder after = desk.Files();
      const bool made = desk.Titles(1).size() == 6 || desk.Singles().size() == 5;
      if (!made) {
        EXPECT_EQ(after, before);
      }
      EXPECT_FALSE(desk.Pending());
      if (done) {
        EXPECT_TRUE(made);
      }
    }
  }
}

}  // namespace
}  // namespace corvelle
