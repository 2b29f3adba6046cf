// Entries in the hand: picked up in a menu, carried, put down.

#include "core/Carry.h"

#include <gtest/gtest.h>

#include "core/MenuFile.h"
#include "menus/folders/FolderMenusPort.h"
#include "toolbar/CarryDesk.h"
#include "toolbar/StripDesk.h"

namespace corvelle {
namespace {

using forms::MouseButton;
using forms::MousePointer;

// ---- picking up ----

TEST(Carry, StartsWithCtrlAndTheLeftButtonOnASelectedItem) {
  CarryDesk desk;
  desk.Start();
  desk.PickUp(2);
  const EntryEdit& entry = desk.TheProgram.Entry;
  EXPECT_TRUE(entry.ItemDragging);
  EXPECT_EQ(entry.CurTitle, "B");
  EXPECT_EQ(entry.CurIcon, "C:\\Tools\\tool.exe");
  EXPECT_EQ(entry.CurCommand, "C:\\Tools\\tool.exe B");
  EXPECT_EQ(entry.CurMenuTag, "F2");
  EXPECT_EQ(entry.CurFile, desk.FileOf(1));
  EXPECT_EQ(entry.CurRecord, 3);
  EXPECT_EQ(desk.Pointer(), MousePointer::Custom);
  EXPECT_TRUE(desk.Picture.Timer1.Enabled());
}

TEST(Carry, DoesNotStartOtherwise) {
  struct Row {
    const char* name;
    bool ctrl;
    MouseButton button;
    bool disabled;
    bool building;
  };
  const Row rows[] = {
      {"without Ctrl", false, MouseButton::Left, false, false},
      {"with the right button", true, MouseButton::Right, false, false},
      {"on a disabled item", true, MouseButton::Left, true, false},
      {"while a menu is built", true, MouseButton::Left, false, true},
  };
  for (const Row& row : rows) {
    CarryDesk desk;
    desk.Start();
    desk.Open(2);
    if (row.disabled) desk.Menu.DisableLabel(2);
    desk.PointAt(desk.ItemPoint(2));
    desk.TheProgram.Guards.MenuBuilding = row.building;
    if (row.ctrl) desk.World.Desktop.KeyDown(17);
    desk.World.Desktop.Press(row.button);
    EXPECT_FALSE(desk.Carries()) << row.name;
    EXPECT_EQ(desk.Pointer(), MousePointer::Default) << row.name;
    desk.TheProgram.Guards.MenuBuilding = false;
  }
}

TEST(Carry, DoesNotStartWhereTheKeysHaveSelectedAnotherItem) {
  CarryDesk desk;
  desk.Start();
  desk.Open(2);
  desk.PointAt(desk.ItemPoint(2));
  desk.World.Desktop.PressKey(forms::key::Down);
  ASSERT_EQ(desk.TheProgram.Menu.SelectedItem, 3);
  desk.World.Desktop.KeyDown(17);
  desk.World.Desktop.Press();
  EXPECT_FALSE(desk.Carries());
}

/// The program's own menu, which does nothing here.
struct OwnMenu final : MainMenuPort {
  void xMainMenu(int, std::string_view) override {}
  void CheckLabels() override {}
};

TEST(Carry, NothingIsTakenFromOrPutIntoTheProgramsOwnMenu) {
  OwnMenu own;
  CarryDesk desk;
  desk.TheProgram.Ports.MainMenu = &own;
  desk.Start();
  desk.Open(1);
  ASSERT_EQ(desk.MenuUp(), 1);
  desk.PointAt(desk.ItemPoint(2));
  ASSERT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
  desk.World.Desktop.KeyDown(17);
  desk.World.Desktop.Press();
  EXPECT_FALSE(desk.Carries());
  desk.LetCtrlGo();
  desk.Release();
  desk.Carry(1);
  desk.ToButton(1);
  ASSERT_EQ(desk.MenuUp(), 1);
  desk.To(desk.ItemPoint(3));
  EXPECT_EQ(desk.Pointer(), MousePointer::NoDrop);
  const auto before = desk.World.Files.Get("C:\\Corvelle\\mainmenu.dat");
  desk.Release();
  EXPECT_FALSE(desk.Carries());
  EXPECT_EQ(desk.World.Files.Get("C:\\Corvelle\\mainmenu.dat"), before);
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "B", "C", "D"}));
}

TEST(Carry, AnItemOfAGeneratedMenuComesFromTheStoredFile) {
  struct Generated final : FolderMenusPort {
    std::optional<ExpandedMenu> Expand(std::string_view, std::string_view,
                                       std::string_view) override {
      const auto line = [](const char* title, int record) {
        return ItemOf({title, "C:\\Tools\\tool.exe", "C:\\Tools\\tool.exe " + std::string(title)},
                      record);
      };
      // B is a folder item here: its two files stand in its place.
      return ExpandedMenu{
          .File = "C:\\Corvelle\\Menus\\BMENU001.mfd",
          .Items = {ItemOf({"Menu", "Button", ""}, 1), line("A", 2), line("one", 5003),
                    line("two", 5003), line("C", 4), line("D", 5)}};
    }
    bool WriteGenerated(const ExpandedMenu&) override { return true; }
    bool UpdateMenu(std::string_view) override { return false; }
  };
  CarryDesk desk;
  Generated folders;
  desk.TheProgram.Ports.FolderMenus = &folders;
  desk.Start();
  // A stored item dropped on a generated one comes to stand before its folder.
  desk.Carry(5);
  EXPECT_EQ(desk.TheProgram.Entry.CurFile, desk.FileOf(1));
  desk.To(desk.ItemPoint(3));
  desk.Release();
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "D", "B", "C"}));
  // A generated one cannot be moved away: it is copied, in silence.
  desk.Put(1, {"A", "B", "C", "D"});
  desk.Strip.ResetMenu();
  desk.Strip.RemoveQMenu("F2");
  desk.Carry(2);
  ASSERT_EQ(desk.TheProgram.Entry.CurRecord, 5003);
  desk.To(desk.ItemPoint(5));
  desk.Release();
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "B", "C", "one", "D"}));
}

// ---- putting down in the same menu ----

TEST(Carry, WithinAMenuTheItemComesToStandBeforeTheTarget) {
  struct Row {
    const char* name;
    int from, to;
    Titles expected;
  };
  const Row rows[] = {
      {"down", 1, 3, {"B", "A", "C", "D"}},
      {"down to the last", 1, 4, {"B", "C", "A", "D"}},
      {"up", 3, 1, {"C", "A", "B", "D"}},
      {"from the last to the first", 4, 1, {"D", "A", "B", "C"}},
      {"to the one below, where it stands", 2, 3, {"A", "B", "C", "D"}},
      {"to the one above", 2, 1, {"B", "A", "C", "D"}},
  };
  for (const float twips : {15.0F, 12.0F}) {
    for (const Row& row : rows) {
      CarryDesk desk({.TwipsPerPixel = twips});
      desk.Start();
      desk.Carry(row.from);
      desk.To(desk.ItemPoint(row.to));
      EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, row.to) << row.name;
      desk.Release();
      EXPECT_EQ(desk.ItemsOf(1), row.expected) << row.name;
      EXPECT_EQ(desk.MenuUp(), 2) << row.name;
      EXPECT_EQ(desk.Menu.Lbl[1].Caption(), row.expected[0]) << row.name;
      EXPECT_FALSE(desk.Carries()) << row.name;
      EXPECT_TRUE(desk.TheProgram.Entry.CurFile.empty()) << row.name;
      EXPECT_EQ(desk.Pointer(), MousePointer::Default) << row.name;
      EXPECT_FALSE(desk.Picture.Timer1.Enabled()) << row.name;
      EXPECT_TRUE(desk.World.Shell.Started().empty()) << row.name;
    }
  }
}

TEST(Carry, WithCtrlHeldAtTheEndItIsACopy) {
  CarryDesk desk;
  desk.Start();
  desk.PickUp(3);
  desk.To(desk.ItemPoint(1));
  desk.Release();
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"C", "A", "B", "C", "D"}));
  EXPECT_EQ(desk.Menu.Items().Count(), 5);
}

TEST(Carry, PutDownOnItselfChangesNothing) {
  for (const bool ctrl : {false, true}) {
    CarryDesk desk;
    desk.Start();
    desk.PickUp(2);
    if (!ctrl) desk.LetCtrlGo();
    desk.To(desk.ItemPoint(4));
    desk.To(desk.ItemPoint(2));
    const auto before = desk.World.Files.Get(desk.FileOf(1));
    desk.World.Files.ClearLog();
    desk.Release();
    EXPECT_EQ(desk.World.Files.Get(desk.FileOf(1)), before) << ctrl;
    EXPECT_EQ(desk.World.Files.Count("Rename"), 0) << ctrl;
    EXPECT_EQ(desk.MenuUp(), 2) << ctrl;
    EXPECT_FALSE(desk.Carries()) << ctrl;
    EXPECT_TRUE(desk.World.Shell.Started().empty()) << ctrl;
  }
}

TEST(Carry, PutDownBelowTheLastItemChangesNothing) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(2);
  const PixelPoint last = desk.ItemPoint(4);
  desk.To({last.x, last.y + 14});
  ASSERT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
  desk.Release();
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "B", "C", "D"}));
  EXPECT_FALSE(desk.Carries());
}

TEST(Carry, AGoneEntryIsPutDownAndNothingElseIsTakenAway) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(2);
  desk.Put(1, {"A", "other", "C", "D"});
  desk.To(desk.ItemPoint(4));
  desk.Release();
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "other", "C", "B", "D"}));
  EXPECT_TRUE(desk.World.Desktop.Boxes().empty());
}

TEST(Carry, APopupCommandAtWorkKeepsTheEntryWhereItIs) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(2);
  desk.TheProgram.Guards.ItemActionBusy = true;
  desk.To(desk.ItemPoint(4));
  desk.Release();
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "B", "C", "D"}));
  EXPECT_FALSE(desk.Carries());
  desk.Strip.ResetMenu();
  desk.Carry(2);
  ASSERT_TRUE(desk.Carries());
  desk.ToButton(3);
  desk.Release();
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "B", "C", "D"}));
  EXPECT_EQ(desk.ItemsOf(2), (Titles{"X", "Y"}));
}

TEST(Carry, ARefusingDiskLeavesTheEntryWhereItWas) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(2);
  desk.To(desk.ItemPoint(4));
  desk.World.Files.FillDisk(0);
  desk.Release();
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "B", "C", "D"}));
  EXPECT_FALSE(desk.Carries());
  EXPECT_EQ(desk.Pointer(), MousePointer::Default);
}

// ---- other menus, buttons and the row ----

TEST(Carry, OpensTheMenusOnItsWayAlongTheStrip) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(2);
  desk.ToButton(3);
  EXPECT_EQ(desk.MenuUp(), 3);
  EXPECT_TRUE(desk.Carries());
  EXPECT_TRUE(desk.TheProgram.Drag.ButtonDragging);
  desk.ToButton(2);
  EXPECT_EQ(desk.MenuUp(), 2);
  EXPECT_EQ(desk.TheProgram.Entry.CurTitle, "B");
  desk.ToButton(3);
  desk.To(desk.ItemPoint(2));
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
  EXPECT_FALSE(desk.TheProgram.Drag.ButtonDragging);
  desk.Release();
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "C", "D"}));
  EXPECT_EQ(desk.ItemsOf(2), (Titles{"X", "B", "Y"}));
  EXPECT_EQ(desk.MenuUp(), 3);
  EXPECT_EQ(desk.Menu.Items().Count(), 3);
  // The menu that it came from is read again as well.
  desk.Open(2);
  EXPECT_EQ(desk.Menu.Items().Count(), 3);
  EXPECT_EQ(desk.Menu.Lbl[2].Caption(), "C");
}

TEST(Carry, IntoAnotherMenuWithCtrlItIsACopy) {
  CarryDesk desk;
  desk.Start();
  desk.PickUp(2);
  desk.ToButton(3);
  desk.To(desk.ItemPoint(1));
  desk.Release();
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "B", "C", "D"}));
  EXPECT_EQ(desk.ItemsOf(2), (Titles{"B", "X", "Y"}));
}

TEST(Carry, ADropOnAButtonMovesToTheEndOfItsMenuAndShowsIt) {
  // The menu window still holds the press, and has lost it to another menu on the way.
  for (const bool throughMenus : {false, true}) {
    CarryDesk desk;
    desk.Start();
    desk.Carry(2);
    if (throughMenus) {
      desk.ToButton(3);
    } else {
      desk.PointAt(desk.Middle(3));
    }
    const PixelPoint middle = desk.Middle(3);
    desk.PointAt({middle.x - 9, middle.y});
    desk.Release();
    EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "C", "D"})) << throughMenus;
    EXPECT_EQ(desk.ItemsOf(2), (Titles{"X", "Y", "B"})) << throughMenus;
    EXPECT_EQ(desk.MenuUp(), 3) << throughMenus;
    EXPECT_EQ(desk.Menu.Lbl[3].Caption(), "B") << throughMenus;
    EXPECT_NEAR(desk.World.Desktop.PointerPosition().x, middle.x, 2) << throughMenus;
    EXPECT_EQ(desk.World.Desktop.ActiveWindow(), desk.Menu.WindowHandle()) << throughMenus;
    EXPECT_FALSE(desk.Carries()) << throughMenus;
    EXPECT_EQ(desk.Pointer(), MousePointer::Default) << throughMenus;
    EXPECT_TRUE(desk.Strip.Timer2.Enabled()) << throughMenus;
    desk.World.Desktop.Advance(300);
    EXPECT_EQ(desk.MenuUp(), 3) << throughMenus;
  }
}

TEST(Carry, ADropOnAButtonOfADockedStripLeavesThePointerWhereItIs) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(2);
  desk.ToButton(3);
  const PixelPoint at{desk.Middle(3).x - 9, desk.Middle(3).y};
  desk.PointAt(at);
  desk.TheProgram.Strip.AppBarDocked = true;
  desk.Release();
  EXPECT_EQ(desk.ItemsOf(2), (Titles{"X", "Y", "B"}));
  EXPECT_EQ(desk.MenuUp(), 3);
  EXPECT_EQ(desk.World.Desktop.PointerPosition(), at);
  desk.TheProgram.Strip.AppBarDocked = false;
}

TEST(Carry, ADropOnItsOwnButtonMovesToTheEnd) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(2);
  desk.ToButton(2);
  desk.Release();
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "C", "D", "B"}));
  EXPECT_EQ(desk.MenuUp(), 2);
}

TEST(Carry, TheRightButtonPutsACopyDownOnAButton) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(2);
  desk.ToButton(3);
  desk.World.Desktop.Press(MouseButton::Right);
  desk.Release(MouseButton::Right);
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "B", "C", "D"}));
  EXPECT_EQ(desk.ItemsOf(2), (Titles{"X", "Y", "B"}));
  EXPECT_FALSE(desk.Carries());
  desk.Release();
  EXPECT_EQ(desk.ItemsOf(2), (Titles{"X", "Y", "B"}));
  EXPECT_EQ(desk.MenuUp(), 3);
}

TEST(Carry, TheRightButtonElsewhereLeavesTheCarryAlone) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(2);
  desk.To(desk.ItemPoint(4));
  desk.World.Desktop.Press(MouseButton::Right);
  desk.Release(MouseButton::Right);
  EXPECT_TRUE(desk.Carries());
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "B", "C", "D"}));
  desk.Release();
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "C", "B", "D"}));
}

TEST(Carry, TheProgramsOwnButtonTakesNothing) {
  OwnMenu own;
  CarryDesk desk;
  desk.TheProgram.Ports.MainMenu = &own;
  desk.Start();
  desk.Carry(2);
  const PixelPoint middle = desk.Middle(1);
  const PixelPoint beside{middle.x - 8, middle.y};
  desk.To(beside);
  ASSERT_EQ(desk.MenuUp(), 1);
  desk.World.Files.ClearLog();
  desk.Release();
  EXPECT_EQ(desk.World.Files.Count("Rename"), 0);
  EXPECT_EQ(desk.World.Desktop.PointerPosition(), beside);
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "B", "C", "D"}));
  EXPECT_FALSE(desk.Carries());
}

TEST(Carry, AnEntryWithoutAFileIsNotPutDown) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(2);
  desk.TheProgram.Entry.CurFile.clear();
  desk.ToButton(3);
  desk.Release();
  EXPECT_EQ(desk.ItemsOf(2), (Titles{"X", "Y"}));
  EXPECT_FALSE(desk.Carries());
}

TEST(Carry, TheRowOfSingleButtonsTakesItFromTheClipboard) {
  for (const auto released : {MouseButton::Left, MouseButton::Right}) {
    CarryDesk desk;
    desk.Start();
    desk.TheProgram.Entry.ClipTitle = "copied before";
    const PixelPoint row = desk.ShowRow();
    desk.Carry(2);
    desk.To(row);
    EXPECT_EQ(desk.Pointer(), MousePointer::Custom);
    if (released == MouseButton::Right) desk.World.Desktop.Press(released);
    desk.Release(released);
    const bool right = released == MouseButton::Right;
    EXPECT_EQ(desk.Row.Asked, (Titles{right ? "copy B of F2" : "move B of F2"}));
    EXPECT_EQ(desk.TheProgram.Entry.ClipTitle, "copied before");
    EXPECT_FALSE(desk.Carries());
    EXPECT_EQ(desk.Pointer(), MousePointer::Default);
  }
}

TEST(Carry, AnEntryOfTheRowGoesIntoAMenuAndLeavesTheRow) {
  CarryDesk desk;
  desk.Start();
  desk.Open(3);
  desk.PointAt(desk.ItemPoint(2));
  EntryEdit& entry = desk.TheProgram.Entry;
  entry.ItemDragging = true;
  entry.CurTitle = "Single";
  desk.World.Files.Put("C:\\Corvelle\\Menus\\BMENU001.BTN", Records({Entry("Single", "")}));
  entry.CurMenuTag = "SingleButtons";
  entry.CurFile = "C:\\Corvelle\\Menus\\BMENU001.BTN";
  entry.CurRecord = 1;
  desk.Menu.DoItemDrag({});
  EXPECT_EQ(desk.ItemsOf(2), (Titles{"X", "Single", "Y"}));
  EXPECT_FALSE(desk.World.Files.Has("C:\\Corvelle\\Menus\\BMENU001.BTN"));
}

// ---- the still picture ----

/// Notes what is covered and uncovered.
class NotedStill final : public CapturePort {
 public:
  Titles Asked;
  void CaptureMenu() override { Asked.emplace_back("cover"); }
  void ReleaseMenu() override { Asked.emplace_back("uncover"); }
  bool MenuCaptured() const override { return false; }
  void SetPicture1() override {}
  void ResetPicture1() override {}
  void SetPosition(Edge) override {}
  void ClearBg() override {}
  std::optional<Edge> OutlineEdge() const override { return {}; }
};

TEST(MenuStill, CoversTheMenuUntilItsScopeEnds) {
  NotedStill still;
  {
    const MenuStill covered(&still);
    EXPECT_EQ(still.Asked, Titles{"cover"});
  }
  EXPECT_EQ(still.Asked, (Titles{"cover", "uncover"}));
  const MenuStill without(nullptr);
}

TEST(Carry, AnItemThatIsPutDownOnItselfChangesNothingAndCoversNothing) {
  CarryDesk desk;
  NotedStill still;
  desk.Start();
  desk.Open(2);
  desk.PointAt(desk.ItemPoint(2));
  EntryEdit& entry = desk.TheProgram.Entry;
  const auto stored = desk.World.Files.Get(desk.FileOf(1));
  entry.ItemDragging = true;
  entry.CurMenuTag = "F2";
  entry.CurFile = desk.FileOf(1);
  entry.CurTitle = "B";
  entry.CurRecord = 3;
  entry.CurStored = stored->substr(2 * kRecordLength, kRecordLength);
  desk.TheProgram.Ports.Capture = &still;
  desk.Menu.DoItemDrag({});
  EXPECT_EQ(still.Asked, Titles{});
  EXPECT_EQ(desk.World.Files.Get(desk.FileOf(1)), stored);
  EXPECT_TRUE(desk.Menu.MenuVisible());
  // On another one it is covered while the files are rewritten, and seen again then.
  desk.PointAt(desk.ItemPoint(4));
  desk.Menu.DoItemDrag({});
  EXPECT_GE(still.Asked.size(), 2U);
  EXPECT_EQ(still.Asked.front(), "cover");
  EXPECT_EQ(still.Asked.back(), "uncover");
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "C", "B", "D"}));
  desk.TheProgram.Ports.Capture = nullptr;
}

// ---- elsewhere ----

TEST(Carry, PutDownElsewhereNothingHappens) {
  CarryDesk desk;
  desk.Start();
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Bounds = {500, 500, 700, 700}});
  ASSERT_NE(other, kNoWindow);
  for (const PixelPoint at : {CarryDesk::kAway, PixelPoint{600, 600}}) {
    desk.Carry(2);
    desk.To(at);
    EXPECT_EQ(desk.Pointer(), MousePointer::NoDrop);
    desk.Release();
    EXPECT_FALSE(desk.Carries());
    EXPECT_EQ(desk.Pointer(), MousePointer::Default);
    EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "B", "C", "D"}));
    desk.Strip.ResetMenu();
  }
}

TEST(Carry, WhoseReleaseAnotherProgramGotIsAbandoned) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(2);
  // The menu that held the press has gone on the way.
  desk.ToButton(3);
  desk.To(CarryDesk::kAway);
  EXPECT_TRUE(desk.Carries());
  desk.Release();
  desk.Strip.Menus.GetCurButton();
  EXPECT_TRUE(desk.Carries()) << "the release may still be on its way";
  desk.World.Desktop.Advance(400);
  EXPECT_FALSE(desk.Carries());
  EXPECT_EQ(desk.Pointer(), MousePointer::Default);
  EXPECT_TRUE(desk.TheProgram.Entry.CurTitle.empty());
  EXPECT_FALSE(desk.Picture.Timer1.Enabled());
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "B", "C", "D"}));
  EXPECT_EQ(desk.ItemsOf(2), (Titles{"X", "Y"}));
}

TEST(Carry, NoKeyDoesAnythingMeanwhile) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(2);
  const PixelPoint pointer = desk.World.Desktop.PointerPosition();
  for (const int key : {forms::key::Escape, forms::key::Enter, forms::key::F5, forms::key::F10,
                        forms::key::Left, forms::key::Right, forms::key::Up, forms::key::Down,
                        forms::key::PageDown, forms::key::End}) {
    desk.World.Desktop.PressKey(key);
    EXPECT_TRUE(desk.Carries()) << key;
    EXPECT_EQ(desk.MenuUp(), 2) << key;
    EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2) << key;
    EXPECT_EQ(desk.World.Desktop.PointerPosition(), pointer) << key;
  }
  desk.World.Desktop.Type("c");
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
  EXPECT_TRUE(desk.World.Shell.Started().empty());
  // Nor on the strip, when that is the one that hears the keys.
  desk.Strip.SetFocus();
  desk.Strip.Form_KeyDown(forms::key::Escape, {});
  desk.Strip.Form_KeyDown(forms::key::Right, {});
  EXPECT_EQ(desk.MenuUp(), 2);
  EXPECT_EQ(desk.World.Desktop.PointerPosition(), pointer);
}

// ---- what arrives meanwhile ----

TEST(CarryGuards, AReleaseWhileAMenuIsBuiltPutsNothingDown) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(2);
  desk.To(desk.ItemPoint(4));
  desk.TheProgram.Guards.MenuBuilding = true;
  desk.Release();
  desk.TheProgram.Guards.MenuBuilding = false;
  EXPECT_FALSE(desk.Carries());
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "B", "C", "D"}));
  EXPECT_EQ(desk.Pointer(), MousePointer::Default);
}

TEST(CarryGuards, ASecondReleaseAClickAndTheTimersInsideADropDoNothing) {
  CarryDesk desk;
  desk.Start();
  const PixelPoint row = desk.ShowRow();
  bool dropping = false;
  desk.Row.WhileDropping = [&] {
    dropping = desk.TheProgram.Drag.ItemDropping;
    desk.Menu.Form_MouseUp(MouseButton::Left, {}, 600, 600);
    desk.Strip.picToolbar.MouseUp(MouseButton::Left, {}, 0, 0);
    desk.Menu.Form_MouseDown(MouseButton::Left, {.Ctrl = true}, 600, 600);
    desk.Strip.Menus.GetCurButton();
    desk.World.Desktop.Jump(1000);
    desk.Strip.Menus.GetCurButton();
    desk.World.Desktop.SetPointerPosition(CarryDesk::kAway);
    desk.Picture.Timer1.Tick();
    EXPECT_EQ(desk.Pointer(), MousePointer::Hourglass);
    desk.Strip.Menus.Timer2_Timer();
    EXPECT_TRUE(desk.Carries());
    EXPECT_EQ(desk.TheProgram.Entry.CurTitle, "B");
  };
  desk.Carry(2);
  desk.To(row);
  desk.Release();
  EXPECT_TRUE(dropping);
  EXPECT_EQ(desk.Row.Asked.size(), 1U);
  EXPECT_FALSE(desk.TheProgram.Drag.ItemDropping);
  EXPECT_FALSE(desk.Carries());
}

TEST(CarryGuards, TheStripCanBeRebuiltAndTheColoursChangeMeanwhile) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(2);
  desk.World.Desktop.SetSystemColor(15, 0x00A0A0A0);
  desk.Strip.InitNewButtons();
  desk.To(desk.Middle(3));
  desk.Release();
  desk.World.Desktop.Advance(400);
  EXPECT_FALSE(desk.Carries());
  EXPECT_EQ(desk.Pointer(), MousePointer::Default);
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "B", "C", "D"}));
  EXPECT_EQ(desk.ItemsOf(2), (Titles{"X", "Y"}));
}

TEST(CarryGuards, TheProgramCanEndMeanwhile) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(2);
  desk.Exit();
  desk.Release();
  desk.World.Desktop.Advance(400);
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"A", "B", "C", "D"}));
}

TEST(CarryGuards, TheProgramCanEndInsideADrop) {
  CarryDesk desk;
  desk.Start();
  const PixelPoint row = desk.ShowRow();
  desk.Row.WhileDropping = [&] { desk.Exit(); };
  desk.Carry(2);
  desk.To(row);
  desk.Release();
  EXPECT_EQ(desk.Row.Asked.size(), 1U);
  EXPECT_FALSE(desk.TheProgram.Drag.ItemDropping);
  EXPECT_FALSE(desk.Carries());
}

TEST(CarryGuards, ABuildWithoutTheOtherPartsCarriesWithinAMenu) {
  CarryDesk desk;
  desk.TheProgram.Ports.DragImage = nullptr;
  desk.TheProgram.Ports.SingleButtons = nullptr;
  desk.Start();
  desk.Carry(1);
  desk.To(desk.ItemPoint(3));
  desk.Release();
  EXPECT_EQ(desk.ItemsOf(1), (Titles{"B", "A", "C", "D"}));
}

}  // namespace
}  // namespace corvelle
