// Icons beside the texts of a menu, as the real system draws them.

#include <gtest/gtest.h>

#include "e2e/WineDesk.h"
#include "scenario/Strip.h"

namespace corvelle::e2e {
namespace {

using scenario::OpenMenu;
using scenario::WriteMenu;

/// The icon cell of a row (from 0) of the open menu of `rows` items, pixels of the window with its
/// border of 3.
PixelRect IconCell(const WineDesk& desk, int row, int rows) {
  const int gap = desk.TwipsPerPixel() < 14 ? 6 : 7;
  const int height = desk.BoundsOf("frmQMenu").Height();
  const int line = (height - 19 - (rows - 1) * gap) / rows;
  const int top = 3 + 6 + row * (line + gap) + line / 2 - 8;
  return {5, top, 21, top + 16};
}

TEST(MenuIconsAtEachScale, StandWholeInTheirCells) {
  WineDesk desk;
  desk.WriteFile(scenario::kFlagsFile, scenario::InstalledFlags());
  desk.MakeProgramsEntry("A tool", "x");
  desk.MakeProgramsEntry("Another tool & more", "x");
  const std::string program = desk.WitnessProgram();
  WriteMenu(desk, 1, "Files",
            {{.FTitle = "File", .FIcon = program, .FName = program},
             {.FTitle = "Icon", .FIcon = "\\icons\\w95mbx02.ico", .FName = program},
             {.FTitle = "None", .FIcon = "", .FName = program}});
  WriteMenu(desk, 2, "Shell",
            {{.FTitle = "Programs", .FIcon = "", .FName = "CSIDL_PROGRAMS"},
             {.FTitle = "", .FIcon = "MenuLineSeparator", .FName = ""},
             {.FTitle = "Desktop", .FIcon = "", .FName = "CSIDL_DESKTOP"}});
  ASSERT_TRUE(scenario::StartAndWait(desk));
  ASSERT_TRUE(OpenMenu(desk, 2));
  desk.MovePointer(scenario::FarAway(desk));
  desk.Pause(200);
  desk.Picture("files");
  for (int row = 0; row < 2; ++row) {
    const PixelRect cell = IconCell(desk, row, 3);
    EXPECT_GT(desk.ColoursIn("frmQMenu", cell), 2) << row;
    // Both pictures end two pixels before their cells do, and so does what is seen of them.
    EXPECT_EQ(desk.ColoursIn("frmQMenu", {19, cell.top, 25, cell.bottom}), 1) << row;
  }
  const PixelRect file = IconCell(desk, 0, 3);
  EXPECT_EQ(desk.ColoursIn("frmQMenu", {5, file.bottom - 1, 21, file.bottom}), 1);
  EXPECT_EQ(desk.ColoursIn("frmQMenu", IconCell(desk, 2, 3)), 1);
  desk.Key(scenario::kKeyEscape);
  ASSERT_TRUE(scenario::WaitForNoMenu(desk));
  ASSERT_TRUE(OpenMenu(desk, 3));
  desk.Picture("folders-of-the-shell");
}

}  // namespace
}  // namespace corvelle::e2e
