// Entries that are carried over the strip, on one that is no more than its controls.

#include "toolbar/strip/StripCarry.h"

#include <gtest/gtest.h>

#include "toolbar/PlainRowDesk.h"

namespace corvelle {
namespace {

using forms::MouseButton;
using Texts = std::vector<std::string>;

struct PlainCarryDesk : PlainRowDesk {
  StripCarry Carried{StripCarryPartsOf(TheProgram), Strip, Row, Menus, Strip.picToolbar, Watch};

  /// An entry of another menu is in the hand.
  void PickUp() {
    const std::string from = PutMenu(9, "Elsewhere");
    TheProgram.Entry.CurTitle = "Item";
    TheProgram.Entry.CurCommand = "C:\\Tools\\tool.exe";
    TheProgram.Entry.CurMenuTag = "F9";
    TheProgram.Entry.CurFile = from;
    TheProgram.Entry.CurRecord = 2;
    TheProgram.Entry.ItemDragging = true;
  }
};

TEST(StripCarry, ACarriedEntryMovesToTheEndOfTheButtonsMenu) {
  PlainCarryDesk desk;
  desk.PickUp();
  desk.Carried.DoButtonDrag(2, MouseButton::Left);
  EXPECT_EQ(desk.Titles(1), (Texts{"One", "Item", "Item"}));
  EXPECT_EQ(desk.Titles(9), Texts{"Elsewhere"});
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
  EXPECT_EQ(desk.TheProgram.Entry.CurFile, "");
}

TEST(StripCarry, TheRightButtonCopiesIt) {
  PlainCarryDesk desk;
  desk.PickUp();
  desk.Carried.DoButtonDrag(2, MouseButton::Right);
  EXPECT_EQ(desk.Titles(1), (Texts{"One", "Item", "Item"}));
  EXPECT_EQ(desk.Titles(9), (Texts{"Elsewhere", "Item"}));
}

TEST(StripCarry, TheProgramsOwnMenuTakesNothing) {
  PlainCarryDesk desk;
  desk.PickUp();
  desk.Carried.DoButtonDrag(1, MouseButton::Left);
  EXPECT_EQ(desk.Titles(9), (Texts{"Elsewhere", "Item"}));
  EXPECT_EQ(desk.Menu.Asked, Texts{}) << "no menu is built again";
  EXPECT_TRUE(desk.TheProgram.Entry.ItemDragging) << "the end of the carry is the caller's";
}

TEST(StripCarry, KnowsTheButtonUnderACarry) {
  PlainCarryDesk desk;
  desk.PickUp();
  desk.PointAtButton(3);
  EXPECT_EQ(desk.Carried.dragCurButton(), 3);
  EXPECT_TRUE(desk.TheProgram.Drag.ButtonDragging);
  desk.World.Desktop.MovePointer(500, 10);
  EXPECT_EQ(desk.Carried.dragCurButton(), 0);
  EXPECT_FALSE(desk.TheProgram.Drag.ButtonDragging);
}

TEST(StripCarry, ACarryWhoseReleaseWentElsewhereIsGivenUpAfterAMoment) {
  PlainCarryDesk desk;
  desk.PickUp();
  desk.Carried.WatchCarry();
  desk.World.Desktop.Advance(100);
  desk.Carried.WatchCarry();
  EXPECT_TRUE(desk.TheProgram.Entry.ItemDragging) << "the release may still come";
  desk.World.Desktop.Advance(100);
  desk.Carried.WatchCarry();
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
}

}  // namespace
}  // namespace corvelle
