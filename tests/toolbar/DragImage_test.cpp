// The picture at the pointer while an entry is carried.

#include "toolbar/companion/DragImage.h"

#include <gtest/gtest.h>

#include "forms/Graphic.h"
#include "icons/Glyphs.h"
#include "toolbar/CarryDesk.h"

namespace corvelle {
namespace {

using forms::MousePointer;

constexpr Rgb kMask = forms::Image::kMask;

Rgb Face(const sim::World& world, forms::OleColor colour) {
  return forms::Resolve(world.Desktop, colour);
}

TEST(DragImage, ShowsTheIconOfTheEntryAroundThePointersPoint) {
  CarryDesk desk;
  desk.World.Icons.SetIndex("C:\\Tools\\tool.exe", 9);
  desk.Picture.SetDragImage("  C:\\Tools\\tool.exe ");
  EXPECT_EQ(desk.Pointer(), MousePointer::Custom);
  const corvelle::Picture picture = desk.World.Desktop.MouseIcon();
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->Size(), (PixelSize{32, 32}));
  for (const PixelPoint at : {PixelPoint{0, 0}, {16, 16}, {31, 31}}) {
    EXPECT_EQ(picture->PixelAt(at), sim::SimShellIcons::ColourOf(9));
  }
  EXPECT_EQ(desk.World.Desktop.MouseIconHotSpot(), (PixelPoint{16, 16}));
  EXPECT_TRUE(desk.Picture.DragCursorOk);
}

TEST(DragImage, AboveTheUsualScaleItIsAsLargeAsTheShellsIcons) {
  // The large icons of 96, 120, 144, 168, 192, 216 and 336 dpi.
  for (const int size : {32, 40, 48, 56, 64, 72, 112}) {
    SCOPED_TRACE(size);
    CarryDesk desk;
    desk.World.Icons.SetLargeSize(size);
    desk.World.Icons.SetIndex("C:\\Tools\\tool.exe", 9);
    desk.Picture.SetDragImage("C:\\Tools\\tool.exe");
    const corvelle::Picture icon = desk.World.Desktop.MouseIcon();
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(icon->Size(), (PixelSize{size, size}));
    EXPECT_EQ(icon->PixelAt({size - 1, size - 1}), sim::SimShellIcons::ColourOf(9));
    EXPECT_EQ(desk.World.Desktop.MouseIconHotSpot(), (PixelPoint{size / 2, size / 2}));
    // The program's own pictures grow by whole pixels.
    const int side = size / 16 * 16;
    desk.Picture.SetDragImage("New");
    const corvelle::Picture glyph = desk.World.Desktop.MouseIcon();
    ASSERT_NE(glyph, nullptr);
    EXPECT_EQ(glyph->Size(), (PixelSize{side, side}));
    EXPECT_EQ(desk.World.Desktop.MouseIconHotSpot(), (PixelPoint{side / 2, side / 2}));
  }
}

TEST(DragImage, WithoutLargeIconsItIsOfTheUsualSize) {
  CarryDesk desk;
  desk.World.Icons.SetLargeSize(0);
  desk.World.Icons.SetIndex("C:\\Tools\\tool.exe", 9);
  desk.Picture.SetDragImage("C:\\Tools\\tool.exe");
  EXPECT_EQ(desk.World.Desktop.MouseIcon()->Size(), (PixelSize{32, 32}));
}

TEST(DragImage, WhatTheIconDoesNotCoverIsSeenThrough) {
  CarryDesk desk;
  desk.World.Icons.SetLargeSize(20);
  desk.World.Icons.SetIndex("C:\\Tools\\tool.exe", 9);
  desk.Picture.SetDragImage("C:\\Tools\\tool.exe");
  const corvelle::Picture picture = desk.World.Desktop.MouseIcon();
  EXPECT_EQ(picture->PixelAt({19, 19}), sim::SimShellIcons::ColourOf(9));
  EXPECT_EQ(picture->PixelAt({20, 19}), kMask);
  EXPECT_EQ(picture->PixelAt({31, 31}), kMask);
}

TEST(DragImage, EveryIconTextGivesAPicture) {
  struct Row {
    const char* name;
    const char* icon;
    const char* glyph;  // or the blank document's icon
  };
  const Row rows[] = {
      {"no icon", "", nullptr},
      {"a missing file", "C:\\nowhere.ico", nullptr},
      {"damaged", "|<>|99999999999", nullptr},
      {"a new item", "New", "new"},
      {"a special folder", "CSIDL_DESKTOP", nullptr},
  };
  for (const Row& row : rows) {
    CarryDesk desk;
    desk.Start();
    desk.World.Icons.SetIndex("C:\\Corvelle\\Icons\\W95MBX02.ICO", 30);
    desk.Picture.SetDragImage(row.icon);
    const corvelle::Picture picture = desk.World.Desktop.MouseIcon();
    ASSERT_NE(picture, nullptr) << row.name;
    if (row.glyph == nullptr) {
      EXPECT_EQ(picture->PixelAt({16, 16}), sim::SimShellIcons::ColourOf(30)) << row.name;
    } else {
      const corvelle::Picture glyph = MakeGlyph(desk.World.Windows(), row.glyph, 2);
      for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x) {
          ASSERT_EQ(picture->PixelAt({x, y}), glyph->PixelAt({x, y})) << row.name;
        }
      }
    }
  }
}

TEST(DragImage, UntilTheIconIsKnownItIsAHand) {
  CarryDesk desk;
  desk.World.Icons.SetIndex("C:\\Tools\\tool.exe", 9);
  desk.World.SlowAnswers.Delay("C:*", 200);
  const std::int64_t began = desk.World.Desktop.Now();
  desk.TheProgram.Entry.ItemDragging = true;
  desk.Picture.SetDragImage("C:\\Tools\\tool.exe");
  EXPECT_EQ(desk.World.Desktop.Now(), began);
  const corvelle::Picture hand = MakeGlyph(desk.World.Windows(), "hand", 2);
  corvelle::Picture shown = desk.World.Desktop.MouseIcon();
  ASSERT_NE(shown, nullptr);
  for (int i = 0; i < 32; ++i) EXPECT_EQ(shown->PixelAt({i, i}), hand->PixelAt({i, i})) << i;
  EXPECT_EQ(desk.Pointer(), MousePointer::Custom);
  desk.World.Desktop.Advance(300);
  shown = desk.World.Desktop.MouseIcon();
  EXPECT_EQ(shown->PixelAt({16, 16}), sim::SimShellIcons::ColourOf(9));
}

TEST(DragImage, AnIconThatComesAfterTheDropIsShownNowhere) {
  CarryDesk desk;
  desk.World.SlowAnswers.Delay("C:*", 200);
  desk.TheProgram.Entry.ItemDragging = true;
  desk.Picture.SetDragImage("C:\\Tools\\tool.exe");
  desk.Picture.RemoveDragImage();
  desk.TheProgram.Entry.ItemDragging = false;
  desk.World.Desktop.Advance(1000);
  EXPECT_EQ(desk.World.Desktop.MouseIcon(), nullptr);
  EXPECT_EQ(desk.Pointer(), MousePointer::Default);
}

TEST(DragImage, WhereNoIconCanBeDrawnItIsAHand) {
  CarryDesk desk;
  desk.Start();
  desk.World.Files.Vanish("C:\\Corvelle\\Icons\\W95MBX02.ICO");
  desk.Picture.SetDragImage("C:\\nowhere.ico");
  const corvelle::Picture picture = desk.World.Desktop.MouseIcon();
  const corvelle::Picture hand = MakeGlyph(desk.World.Windows(), "hand", 2);
  ASSERT_NE(picture, nullptr);
  for (int y = 0; y < 32; ++y) {
    for (int x = 0; x < 32; ++x) ASSERT_EQ(picture->PixelAt({x, y}), hand->PixelAt({x, y}));
  }
  EXPECT_EQ(picture->PixelAt({14, 8}), Face(desk.World, forms::color::Highlight3D));
}

TEST(DragImage, FollowsThePointer) {
  CarryDesk desk;
  desk.Start();
  const WindowId other = desk.World.Desktop.AddOtherWindow({.Bounds = {500, 500, 700, 700}});
  ASSERT_NE(other, kNoWindow);
  desk.Carry(1);
  struct Row {
    const char* name;
    PixelPoint at;
    MousePointer expected;
  };
  const Row rows[] = {
      {"the desktop", CarryDesk::kAway, MousePointer::NoDrop},
      {"a menu button", desk.Middle(3), MousePointer::Custom},
      {"another program", {600, 600}, MousePointer::NoDrop},
      {"the own menu", desk.ItemPoint(2), MousePointer::Custom},
      {"the program's button", desk.Middle(1), MousePointer::NoDrop},
  };
  for (const Row& row : rows) {
    desk.To(row.at);
    EXPECT_EQ(desk.Pointer(), row.expected) << row.name;
    EXPECT_EQ(desk.Picture.DragCursorOk, row.expected == MousePointer::Custom) << row.name;
    EXPECT_TRUE(desk.Carries()) << row.name;
  }
}

TEST(DragImage, SetsThePointerOnlyWhenItChanges) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(1);
  desk.World.Desktop.SetMousePointer(MousePointer::Hourglass);
  desk.World.Desktop.Advance(300);
  EXPECT_EQ(desk.Pointer(), MousePointer::Hourglass);
  desk.To(CarryDesk::kAway);
  EXPECT_EQ(desk.Pointer(), MousePointer::NoDrop);
}

TEST(DragImage, StopsByItselfWhenTheCarryHasEnded) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(1);
  desk.TheProgram.Entry.ItemDragging = false;
  desk.World.Desktop.Advance(110);
  EXPECT_FALSE(desk.Picture.Timer1.Enabled());
  EXPECT_FALSE(desk.Picture.DragCursorOk);
  EXPECT_EQ(desk.Pointer(), MousePointer::Default);
  EXPECT_EQ(desk.World.Desktop.MouseIcon(), nullptr);
}

TEST(DragImage, OverTheButtonsThePointersWatchGoesOn) {
  CarryDesk desk;
  desk.Start();
  desk.Carry(1);
  desk.Strip.Timer2.SetEnabled(false);
  desk.To(desk.ItemPoint(2));
  EXPECT_FALSE(desk.Strip.Timer2.Enabled());
  desk.To(desk.Middle(2));
  EXPECT_TRUE(desk.Strip.Timer2.Enabled());
}

}  // namespace
}  // namespace corvelle
