// What other programs drop on the strip, and what arrives meanwhile.

#include <gtest/gtest.h>

#include "core/DroppedFiles.h"
#include "core/NotedEdits.h"
#include "toolbar/DragDesk.h"
#include "toolbar/docking/frmImage.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {
namespace {

using forms::DropEffect;
using forms::MouseButton;
using Names = std::vector<std::string>;

// ---- dropped files ----

TEST(ToolbarOLEDragDrop, ThreeFilesBecomeRecordsAtTheEndInAscendingOrder) {
  DragDesk desk;
  desk.World.Files.MakeFolders("C:\\Folder.one");
  desk.TakeFiles({"C:\\c.txt", "C:\\Folder.one", "C:\\B.html"});
  desk.DragToButton(3);
  desk.Drop();
  const auto records = desk.RecordsOf(2);
  ASSERT_EQ(records.size(), 5U);
  EXPECT_EQ(records[0].FTitle, "Menu 2");
  EXPECT_EQ(records[1].FTitle, "Item");
  EXPECT_EQ(records[2], (MenuRecord{"B", "C:\\B.html", "C:\\B.html"}));
  EXPECT_EQ(records[3], (MenuRecord{"c", "C:\\c.txt", "C:\\c.txt"}));
  EXPECT_EQ(records[4], (MenuRecord{"Folder.one", "C:\\Folder.one", "C:\\Folder.one"}));
  EXPECT_TRUE(desk.FileUnchanged(1));
  EXPECT_TRUE(desk.FileUnchanged(3));
}

TEST(ToolbarOLEDragDrop, TheMenuIsReadAnewAndStaysOpenInFront) {
  DragDesk desk;
  desk.TakeFiles({"C:\\c.txt"});
  desk.DragToButton(2);
  EXPECT_EQ(desk.Menu.Times("ShowMenu F2"), 1);
  desk.Drop();
  EXPECT_EQ(desk.Menu.Times("ShowMenu F2"), 2);
  EXPECT_EQ(desk.Menu.Times("GetCurMenu"), 1);
  EXPECT_EQ(desk.MenuUp(), 2);
  desk.Wait(500);
  EXPECT_EQ(desk.MenuUp(), 2);
  EXPECT_EQ(desk.Foreground(), desk.Menu.hWnd());
  EXPECT_FALSE(desk.Strip.tmrDragDrop.Enabled());
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
  EXPECT_FALSE(desk.TheProgram.Guards.ItemActionBusy);
}

TEST(ToolbarOLEDragDrop, TheRightButtonStoresLikewise) {
  DragDesk desk;
  desk.TakeFiles({"C:\\c.txt"}, MouseButton::Right);
  desk.DragToButton(2);
  desk.Drop(MouseButton::Right);
  ASSERT_EQ(desk.RecordsOf(1).size(), 3U);
  EXPECT_EQ(desk.RecordsOf(1)[2].FName, "C:\\c.txt");
  EXPECT_EQ(desk.MenuUp(), 2);
}

TEST(ToolbarOLEDragDrop, TheMenuStaysWhileTheFileIsWrittenUnlessTheRightButtonDropped) {
  for (const MouseButton button : {MouseButton::Left, MouseButton::Right}) {
    const bool left = button == MouseButton::Left;
    SCOPED_TRACE(left ? "left" : "right");
    BusyIcons icons;
    DragDesk desk({}, &icons);
    desk.TakeFiles({"C:\\c.txt"}, button);
    desk.DragToButton(2);
    ASSERT_EQ(desk.MenuUp(), 2);
    int upThen = -1;
    icons.WhileAsked = [&] { upThen = desk.MenuUp(); };
    desk.Drop(button);
    EXPECT_EQ(upThen, left ? 2 : 0);
    EXPECT_EQ(desk.MenuUp(), 2);
  }
}

TEST(ToolbarOLEDragDrop, AThousandFilesComeAndOneThatNoRecordHoldsIsNamedAfterwards) {
  DragDesk desk;
  Names files;
  for (int i = 0; i < 1000; ++i) files.push_back("C:\\f" + std::to_string(20000 - i) + ".txt");
  const std::string refused = "C:\\" + std::string(297, 'z');
  files.push_back(refused);
  desk.TakeFiles(files);
  desk.DragToButton(2);
  desk.World.Desktop.Release(MouseButton::Left);
  // The source has its answer by now.
  EXPECT_TRUE(desk.World.Desktop.Boxes().empty());
  desk.World.Desktop.AnswerAnyOther(forms::msgbox::AnswerOk);
  desk.Wait(100);
  const auto records = desk.RecordsOf(1);
  ASSERT_EQ(records.size(), 1002U);
  EXPECT_EQ(records[2].FName, "C:\\f19001.txt");
  EXPECT_EQ(records[1001].FTitle, "f20000");
  ASSERT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(desk.World.Desktop.Boxes()[0].Text, RefusedFilesText({refused}));
  desk.Wait(1000);
  EXPECT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  EXPECT_FALSE(desk.Strip.tmrRefused.Enabled());
}

TEST(ToolbarOLEDragDrop, MeansTheButtonThatIsUnderThePointerByThen) {
  DragDesk desk;
  desk.PointAtButton(3);
  desk.TheProgram.Menu.CurButton = 2;
  forms::DragData data{.Files = Names{"C:\\c.txt"}};
  DropEffect effect = DropEffect::Copy;
  desk.Strip.picToolbar.OLEDragDrop(data, effect, MouseButton::None, {}, 0, 0);
  EXPECT_TRUE(desk.FileUnchanged(1));
  EXPECT_EQ(desk.RecordsOf(2).size(), 3U);
}

TEST(ToolbarOLEDragDrop, OnTheMainMenuButtonByThenTakesNothingAndClosesTheMenu) {
  DragDesk desk;
  desk.TakeFiles({"C:\\c.txt"});
  desk.DragToButton(2);
  ASSERT_EQ(desk.MenuUp(), 2);
  desk.World.Desktop.SetPointerPosition(desk.Middle(1));
  forms::DragData data{.Files = Names{"C:\\c.txt"}};
  DropEffect effect = DropEffect::Copy;
  desk.Strip.picToolbar.OLEDragDrop(data, effect, MouseButton::None, {}, 0, 0);
  EXPECT_EQ(effect, DropEffect::None);
  EXPECT_TRUE(desk.FileUnchanged(1));
  EXPECT_EQ(desk.MenuUp(), 0);
}

TEST(ToolbarOLEDragDrop, BetweenTheButtonsNothingIsTaken) {
  DragDesk desk;
  desk.PutButton(2, "Separator", "MenuLineSeparator");
  desk.Strip.InitNewButtons();
  ASSERT_EQ(desk.Strip.Buttons.SepCount, 1);
  const PixelRect box = desk.World.Desktop.BoundsOf(desk.Strip.picToolbar.hWnd());
  const forms::Label& gap = desk.Strip.lblSep[1];
  desk.TakeFiles({"C:\\c.txt"});
  desk.PointAt({box.left + static_cast<int>((gap.Left() + gap.Width() / 2) / desk.Strip.TwipsX),
                box.top + 10});
  EXPECT_EQ(desk.TheProgram.Menu.CurButton, 0);
  EXPECT_EQ(desk.Effect(), DropEffect::None);
  desk.Drop();
  EXPECT_TRUE(desk.FileUnchanged(1));
  EXPECT_TRUE(desk.FileUnchanged(3));
  desk.Wait(600);
  EXPECT_FALSE(desk.TheProgram.Menu.MenuOpen);
}

TEST(ToolbarOLEDragDrop, AStillPictureOfTheMenuGoes) {
  DragDesk desk;
  frmImage picture(StillPicturePartsOf(desk.TheProgram), desk.Strip);
  desk.TheProgram.Ports.Capture = &picture;
  desk.TakeText("http://example.com");
  desk.DragToButton(2);
  picture.CaptureMenu();
  ASSERT_TRUE(picture.MenuCaptured());
  desk.Drop();
  EXPECT_FALSE(picture.MenuCaptured());
  EXPECT_FALSE(picture.IsLoaded());
  desk.TheProgram.Ports.Capture = nullptr;
}

TEST(ToolbarOLEDragDrop, AMenuFileThatVanishedIsNotMadeOfTheDrop) {
  DragDesk desk;
  desk.TakeFiles({"C:\\c.txt"});
  desk.DragToButton(2);
  desk.World.Files.Vanish("C:\\Corvelle\\Menus\\BMENU001.MNU");
  desk.Drop();
  EXPECT_FALSE(desk.HasMenuFile("BMENU001.MNU"));
  EXPECT_EQ(desk.MenuUp(), 0);
  EXPECT_EQ(desk.Foreground(), desk.Source);
}

TEST(ToolbarOLEDragDrop, AFullDiskLeavesTheOldMenu) {
  DragDesk desk;
  desk.TakeFiles({"C:\\c.txt"});
  desk.DragToButton(2);
  desk.World.Files.FillDisk(0);
  desk.Drop();
  EXPECT_TRUE(desk.FileUnchanged(1));
  EXPECT_EQ(desk.MenuUp(), 0);
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
}

TEST(ToolbarOLEDragDrop, AnEmptyListOfFilesStoresNothing) {
  DragDesk desk;
  desk.TakeFiles({});
  desk.DragToButton(2);
  desk.Drop();
  EXPECT_TRUE(desk.FileUnchanged(1));
}

// ---- dropped texts ----

TEST(ToolbarOLEDragDrop, AnAddressIsOfferedWithItsPageTitleForTheButton) {
  DragDesk desk;
  NotedLinks links;
  NotedBrowser browser;
  desk.TheProgram.Ports.WebLink = &links;
  desk.TheProgram.Ports.Browser = &browser;
  desk.TakeText("http://example.com/a");
  desk.DragToButton(3);
  desk.Drop();
  EXPECT_EQ(links.Offered,
            Names{"http://example.com/a|A page|3|C:\\Corvelle\\Menus\\BMENU002.MNU"});
  EXPECT_FALSE(desk.TheProgram.Drag.DragIsUrl);
  EXPECT_TRUE(desk.FileUnchanged(2));
  desk.TheProgram.Ports.WebLink = nullptr;
  desk.TheProgram.Ports.Browser = nullptr;
}

TEST(ToolbarOLEDragDrop, ATitleThatComesWithTheAddressIsTakenAndNoBrowserAsked) {
  DragDesk desk;
  NotedLinks links;
  NotedBrowser browser;
  desk.TheProgram.Ports.WebLink = &links;
  desk.TheProgram.Ports.Browser = &browser;
  desk.Take({.Text = "http://example.com/a", .Title = " Its own title "});
  desk.DragToButton(3);
  desk.Drop();
  EXPECT_EQ(links.Offered,
            Names{"http://example.com/a|Its own title|3|C:\\Corvelle\\Menus\\BMENU002.MNU"});
  desk.TheProgram.Ports.WebLink = nullptr;
  desk.TheProgram.Ports.Browser = nullptr;
}

TEST(ToolbarOLEDragDrop, OtherTextAndAnAddressWithoutItsDialogAreIgnored) {
  for (const char* text :
       {"HTTP://EXAMPLE.COM", "some words", "", "http://example.com", "https://example.com"}) {
    SCOPED_TRACE(text);
    DragDesk desk;
    NotedLinks links;
    const bool address = std::string_view(text).starts_with("http");
    if (!address) desk.TheProgram.Ports.WebLink = &links;
    desk.TakeText(text);
    desk.DragToButton(2);
    EXPECT_EQ(desk.MenuUp(), 2);
    desk.Drop();
    EXPECT_EQ(links.Offered, Names{});
    EXPECT_TRUE(desk.FileUnchanged(1));
    EXPECT_EQ(desk.MenuUp(), 0);
    desk.TheProgram.Ports.WebLink = nullptr;
  }
}

TEST(ToolbarOLEDragDrop, FilesComeBeforeText) {
  DragDesk desk;
  NotedLinks links;
  desk.TheProgram.Ports.WebLink = &links;
  desk.Take({.Files = Names{"C:\\c.txt"}, .Text = "http://example.com"});
  desk.DragToButton(2);
  desk.Drop();
  EXPECT_EQ(desk.RecordsOf(1).size(), 3U);
  EXPECT_EQ(links.Offered, Names{});
  desk.TheProgram.Ports.WebLink = nullptr;
}

// ---- what arrives inside ----

struct Guard {
  const char* name;
  bool GuardFlags::*flag;
};

TEST(ToolbarOLE, WhileAFileOrMenuIsBeingWorkedOnADropIsRefused) {
  const Guard guards[] = {{"StartingUp", &GuardFlags::StartingUp},
                          {"MenuBuilding", &GuardFlags::MenuBuilding},
                          {"ItemActionBusy", &GuardFlags::ItemActionBusy},
                          {"AppBarBusy", &GuardFlags::AppBarBusy},
                          {"PosChangeRunning", &GuardFlags::PosChangeRunning}};
  for (const Guard& guard : guards) {
    SCOPED_TRACE(guard.name);
    DragDesk desk;
    desk.TakeFiles({"C:\\c.txt"});
    desk.TheProgram.Guards.*guard.flag = true;
    desk.DragToButton(2);
    EXPECT_EQ(desk.Effect(), DropEffect::None);
    EXPECT_EQ(desk.MenuUp(), 0);
    desk.TheProgram.Guards.*guard.flag = false;
    desk.Wait(60);
    EXPECT_EQ(desk.Effect(), DropEffect::Copy);
    // And one that the guard meets only at the drop.
    desk.TheProgram.Guards.*guard.flag = true;
    desk.World.Desktop.Release();
    desk.TheProgram.Guards.*guard.flag = false;
    EXPECT_TRUE(desk.FileUnchanged(1));
    EXPECT_EQ(desk.Effect(), DropEffect::None);
  }
}

TEST(ToolbarOLE, WhileTheMenuIsReadAnewADropIsRefused) {
  DragDesk desk;
  desk.TakeFiles({"C:\\c.txt"});
  desk.Strip.Menus.MenuRefreshing = true;
  desk.DragToButton(2);
  EXPECT_EQ(desk.Effect(), DropEffect::None);
  desk.Drop();
  desk.Strip.Menus.MenuRefreshing = false;
  EXPECT_TRUE(desk.FileUnchanged(1));
}

TEST(ToolbarOLE, TimersAndClicksInsideTheDropChangeNothing) {
  BusyIcons icons;
  DragDesk desk({}, &icons);
  desk.TakeFiles({"C:\\c.txt", "C:\\d.txt"});
  desk.DragToButton(2);
  bool dragging = false;
  icons.WhileAsked = [&] {
    dragging = desk.TheProgram.Entry.ItemDragging && desk.TheProgram.Guards.ItemActionBusy;
    desk.World.Desktop.Advance(300);
    desk.Click(3);
    desk.World.Desktop.DoEvents();
  };
  desk.Drop();
  EXPECT_TRUE(dragging);
  ASSERT_EQ(desk.RecordsOf(1).size(), 4U);
  EXPECT_EQ(desk.RecordsOf(1)[3].FName, "C:\\d.txt");
  EXPECT_TRUE(desk.FileUnchanged(2));
  EXPECT_FALSE(desk.TheProgram.Guards.ItemActionBusy);
}

TEST(ToolbarOLE, APointerThatGoesOnInsideTheDropChangesNoButton) {
  DragDesk desk;
  NotedHint hint;
  desk.TakeFiles({"C:\\c.txt"});
  desk.DragToButton(2);
  desk.TheProgram.Ports.Hint = &hint;
  hint.WhileItGoes = [&] { desk.World.Desktop.SetPointerPosition(desk.Middle(3)); };
  desk.Drop();
  desk.TheProgram.Ports.Hint = nullptr;
  EXPECT_EQ(desk.RecordsOf(1).size(), 3U);
  EXPECT_TRUE(desk.FileUnchanged(2));
}

TEST(ToolbarOLE, TheProgramMayEndInsideTheDrop) {
  BusyIcons icons;
  DragDesk desk({}, &icons);
  desk.TakeFiles({"C:\\c.txt"});
  desk.DragToButton(2);
  icons.WhileAsked = [&] { desk.Exit(); };
  desk.Drop();
  EXPECT_FALSE(desk.Strip.IsLoaded());
  EXPECT_FALSE(desk.Menu.MenuVisible());
}

TEST(ToolbarOLE, TheProgramMayEndWhileTheMenuOpensUnderTheDrag) {
  DragDesk desk;
  desk.TakeFiles({"C:\\c.txt"});
  desk.Menu.WhileBuilding = [&] { desk.Exit(); };
  desk.DragToButton(2);
  EXPECT_FALSE(desk.Strip.IsLoaded());
  EXPECT_FALSE(desk.Strip.tmrDragDrop.Enabled());
}

TEST(ToolbarOLE, TheTimerInsideAMenuThatIsBeingBuiltLeavesItAlone) {
  DragDesk desk;
  desk.TakeFiles({"C:\\c.txt"});
  desk.Menu.WhileBuilding = [&] { desk.World.Desktop.Advance(300); };
  desk.DragToButton(2);
  EXPECT_EQ(desk.MenuUp(), 2);
}

// ---- the row of single buttons ----

TEST(SingleButtonsOLE, FilesAreHandedOnWithTheirButton) {
  DragDesk desk;
  NotedSingles singles;
  desk.TheProgram.Ports.SingleButtons = &singles;
  desk.Strip.picSingleButton.SetWidth(900);
  const PixelRect row = desk.World.Desktop.BoundsOf(desk.Strip.picSingleButton.hWnd());
  desk.TakeFiles({"C:\\b.txt", "C:\\a.txt"}, MouseButton::Right);
  desk.DragToButton(2);
  desk.PointAt({row.left + 5, row.top + 5});
  EXPECT_EQ(desk.MenuUp(), 0);
  EXPECT_EQ(desk.Effect(), DropEffect::Link);
  desk.Drop(MouseButton::Right);
  EXPECT_EQ(singles.Dropped, (Names{"2 C:\\b.txt", "2 C:\\a.txt"}));
  EXPECT_TRUE(desk.FileUnchanged(1));
  desk.TheProgram.Ports.SingleButtons = nullptr;
}

TEST(SingleButtonsOLE, AnAddressIsOfferedForTheRow) {
  DragDesk desk;
  NotedLinks links;
  desk.TheProgram.Ports.WebLink = &links;
  desk.Strip.picSingleButton.SetWidth(900);
  const PixelRect row = desk.World.Desktop.BoundsOf(desk.Strip.picSingleButton.hWnd());
  desk.TakeText("http://example.com");
  desk.PointAt({row.left + 5, row.top + 5});
  EXPECT_EQ(desk.Effect(), DropEffect::Copy);
  desk.Drop();
  EXPECT_EQ(links.Offered, Names{"http://example.com||SingleButtons|"});
  EXPECT_FALSE(desk.TheProgram.Drag.DragIsUrl);
  desk.TheProgram.Ports.WebLink = nullptr;
}

TEST(SingleButtonsOLE, ClosesTheHintWhenItComesAndWhenItIsDropped) {
  DragDesk desk;
  NotedHint hint;
  desk.TheProgram.Ports.Hint = &hint;
  forms::DragData data{.Text = "a text"};
  DropEffect effect = DropEffect::Copy;
  desk.Strip.picSingleButton.OLEDragOver(data, effect, MouseButton::Left, {}, 5, 5);
  EXPECT_EQ(hint.Closed, 1);
  desk.Strip.picSingleButton.OLEDragDrop(data, effect, MouseButton::None, {}, 5, 5);
  EXPECT_EQ(hint.Closed, 2);
  desk.TheProgram.Ports.Hint = nullptr;
}

TEST(SingleButtonsOLE, AnAddressThatLeavesIsForgottenAndTheNextComesFromItsOwnWindow) {
  DragDesk desk;
  NotedBrowser browser;
  desk.TheProgram.Ports.Browser = &browser;
  desk.Strip.picSingleButton.SetWidth(900);
  const PixelRect row = desk.World.Desktop.BoundsOf(desk.Strip.picSingleButton.hWnd());
  desk.TakeText("http://example.com");
  desk.PointAt({row.left + 5, row.top + 5});
  EXPECT_TRUE(desk.TheProgram.Drag.DragIsUrl);
  desk.PointAt(kDragSource);
  EXPECT_FALSE(desk.TheProgram.Drag.DragIsUrl);
  desk.Drop();
  const WindowId other =
      desk.World.Desktop.AddOtherWindow({.Title = "Mail", .Bounds = {600, 500, 900, 700}});
  desk.World.Desktop.TakeForeground(other);
  desk.World.Desktop.StartDrag({.Data = {.Text = "http://example.org"}, .Window = other});
  desk.DragToButton(2);
  EXPECT_EQ(browser.Sources, (std::vector<WindowId>{desk.Source, other}));
  desk.TheProgram.Ports.Browser = nullptr;
}

TEST(SingleButtonsOLE, WithoutTheRowFilesAreRefused) {
  DragDesk desk;
  desk.TheProgram.Ports.SingleButtons = nullptr;
  desk.Strip.picSingleButton.SetWidth(900);
  const PixelRect row = desk.World.Desktop.BoundsOf(desk.Strip.picSingleButton.hWnd());
  desk.TakeFiles({"C:\\b.txt"});
  desk.PointAt({row.left + 5, row.top + 5});
  EXPECT_EQ(desk.Effect(), DropEffect::None);
}

// ---- who is told of an edit ----

TEST(ToolbarOLEDragDrop, FilesThatAreStoredAreTold) {
  DragDesk desk;
  NotedEdits edits([&desk] { return std::to_string(desk.RecordsOf(2).size()); });
  desk.TheProgram.Ports.MenuEdits = &edits;
  desk.TakeFiles({"C:\\c.txt", "C:\\d.txt"});
  desk.DragToButton(3);
  desk.Drop();
  EXPECT_EQ(edits.Seen, std::vector<std::string>{"4"});
  desk.TheProgram.Ports.MenuEdits = nullptr;
}

}  // namespace
}  // namespace corvelle
