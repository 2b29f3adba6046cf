// Auto Hide: what the user changes on a strip that has become a line meanwhile.

#include <gtest/gtest.h>

#include <string>

#include "toolbar/DockDesk.h"
#include "toolbar/companion/Popup.h"

namespace corvelle {
namespace {

constexpr char kDeletesAButton[] =
    "If you delete a button, you cannot Undo Delete. Do you want to continue ?";

/// A strip that hides, with the popup of right clicks.
struct EditDesk : DockDesk {
  EditDesk() {
    TheProgram.Ports.Popup = &ThePopup;
    SetOption(Option::AutoHide, true);
  }
  /// Chooses "Delete Item" for a button, and answers Yes when the strip has gone.
  void DeleteWhenHidden(int button) {
    World.Desktop.WhileBoxIsUp([this](const sim::MessageBox&) {
      PointAt({500, 400});
      Poll();
      EXPECT_TRUE(IsLine());
    });
    World.Desktop.Answer(kDeletesAButton, forms::msgbox::AnswerYes);
    World.Desktop.ChooseFromPopup("Delete Item");
    PointAtButton(button);
    Wait();
    World.Desktop.Click(forms::MouseButton::Right);
  }

  Popup ThePopup{PopupPartsOf(TheProgram)};
};

TEST(AutoHideEdits, AButtonThatIsDeletedWhenTheStripHasGoneLeavesAWholeStrip) {
  for (const LineRow& row : kLineRows) {
    SCOPED_TRACE(row.name);
    EditDesk desk;
    desk.StartAt(row.at);
    desk.DeleteWhenHidden(3);
    EXPECT_EQ(desk.Strip.Buttons.ButtonCount, 5);
    EXPECT_EQ(desk.Bounds(), row.revealed);
    EXPECT_TRUE(desk.Strip.picSingleButton.Visible());
    // It has the keyboard again.
    desk.Poll();
    EXPECT_EQ(desk.Bounds(), row.revealed);
    desk.GoElsewhere();
    desk.Poll();
    EXPECT_TRUE(desk.IsLine());
    EXPECT_EQ(desk.Bounds(), row.line);
    desk.PointAt(row.touch);
    desk.Poll();
    EXPECT_EQ(desk.Bounds(), row.revealed);
    EXPECT_TRUE(desk.Strip.picToolbar.Visible());
    EXPECT_TRUE(desk.Strip.picSingleButton.Visible());
  }
}

TEST(AutoHideEdits, AFloatingStripKeepsItsRightEndWhenAButtonIsDeleted) {
  EditDesk desk;
  desk.Start();
  const PixelRect before = desk.Bounds();
  desk.DeleteWhenHidden(3);
  const PixelRect after = desk.Bounds();
  EXPECT_EQ(after.right, before.right);
  EXPECT_EQ(after.top, before.top);
  EXPECT_EQ(after.bottom, before.bottom);
  EXPECT_GT(after.left, before.left);
  EXPECT_TRUE(desk.Strip.picSingleButton.Visible());
  desk.GoElsewhere();
  desk.Poll();
  EXPECT_TRUE(desk.IsLine());
  EXPECT_EQ(desk.Bounds(), (PixelRect{after.left, 0, after.right, 1}));
  desk.PointAt({after.left + 20, 0});
  desk.Poll();
  EXPECT_EQ(desk.Bounds(), after);
}

TEST(AutoHideEdits, FilesAndOptionsThatChangeLeaveALineBare) {
  for (const bool floats : {true, false}) {
    SCOPED_TRACE(floats);
    EditDesk desk;
    const std::string menus = "C:\\Corvelle\\Menus\\";
    for (int i = 1; i <= 3; ++i) {
      desk.World.Files.Put(menus + SingleFileName(i), Records({Entry("s", "", "C:\\s.exe")}));
    }
    if (floats) {
      desk.Start();
    } else {
      desk.StartAt(Edge::Bottom);
    }
    desk.GoElsewhere();
    desk.Poll();
    ASSERT_TRUE(desk.IsLine());
    desk.World.Files.Vanish(menus + SingleFileName(2));
    desk.World.Desktop.SetSystemColor(15, 0x00123456);
    desk.World.Desktop.Pump();
    EXPECT_EQ(desk.Strip.Singles.SingleCount, 2);
    EXPECT_TRUE(desk.IsLine());
    EXPECT_EQ(desk.Bounds().Height(), 1);
    // As "Auto Adjust" in the options of Customize.
    desk.Strip.AdjustToolbarPosition();
    EXPECT_TRUE(desk.IsLine());
    EXPECT_EQ(desk.Bounds().Height(), 1);
    desk.PointAt({desk.Bounds().left + 20, desk.Bounds().top});
    desk.Poll();
    EXPECT_TRUE(desk.Strip.bLine1.Visible());
    EXPECT_TRUE(desk.Strip.picSingleButton.Visible());
  }
}

}  // namespace
}  // namespace corvelle
