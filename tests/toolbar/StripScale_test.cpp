// The strip lays itself out by the scale of its own window, and gives it to what comes up at it.

#include <gtest/gtest.h>

#include "toolbar/StripDesk.h"
#include "toolbar/notices/frmHelp.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {
namespace {

TEST(StripScale, AStripOf144DotsIsThatOfADesktopOf144Dots) {
  StripDesk large({.TwipsPerPixel = 10});
  large.PutButtons(3);
  large.Start();
  StripDesk desk({.CaptionHeight = 19 * 96 / 144, .CaptionButtonWidth = 18 * 96 / 144});
  desk.PutButtons(3);
  desk.Strip.SetDpi(144);
  desk.Start();
  EXPECT_EQ(desk.Strip.WindowDpi(), 144);
  EXPECT_EQ(desk.Strip.TwipsX, 10);
  EXPECT_EQ(desk.Strip.picToolbar.Bounds(), large.Strip.picToolbar.Bounds());
  EXPECT_EQ(desk.Strip.Bounds(), large.Strip.Bounds());
  EXPECT_EQ(desk.World.Desktop.BoundsOf(desk.Strip.hWnd()),
            large.World.Desktop.BoundsOf(large.Strip.hWnd()));
}

TEST(StripScale, AHintHasTheScaleOfTheStrip) {
  StripDesk desk;
  desk.PutButtons(1);
  desk.Strip.SetDpi(144);
  desk.Start();
  frmHelp hint(HintPartsOf(desk.TheProgram));
  desk.PointAtButton(1);
  hint.SetHint("Letters");
  EXPECT_EQ(hint.Dpi(), 144);
  EXPECT_EQ(hint.Label1.Width(), 9 * 9 * 10) << "nine characters of nine pixels";
  EXPECT_EQ(hint.Label1.Left(), 10) << "one pixel";
  hint.ReleaseHint();
}

}  // namespace
}  // namespace corvelle
