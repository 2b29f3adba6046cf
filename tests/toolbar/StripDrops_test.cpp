// What other programs drop on the strip, on one that is no more than its controls.

#include "toolbar/strip/StripDrops.h"

#include <gtest/gtest.h>

#include <optional>

#include "forms/Timer.h"
#include "toolbar/PlainRowDesk.h"
#include "toolbar/singles/SingleRow.h"
#include "toolbar/strip/RefusedFiles.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {
namespace {

using forms::DragData;
using forms::DropEffect;
using forms::MouseButton;
using Texts = std::vector<std::string>;

constexpr DropEffect kAnyEffect = DropEffect::Copy | DropEffect::Move | DropEffect::Link;

struct DroppedOnRow final : SingleButtonsPort {
  Texts Names;
  void DoItemDrag(MouseButton) override {}
  FileStatus DeleteSingle(std::string_view) override { return Done(); }
  FileStatus PasteSingle(std::string_view) override { return Done(); }
  FileStatus UndoDeleteSB(std::string_view) override { return Done(); }
  void DropFilesOnSingles(std::vector<std::string> names, MouseButton) override {
    Names = std::move(names);
  }
};

struct OfferedLinks final : WebLinkPort {
  Texts Offered;
  void OfferWebLink(std::string_view url, std::string_view, std::string_view tag,
                    std::string_view file) override {
    Offered.push_back(std::string(url) + "|" + std::string(tag) + "|" + std::string(file));
  }
};

/// The same with what other programs drag.
struct PlainDropDesk : PlainRowDesk {
  forms::Timer DragWatch{World.Windows()};
  forms::Timer RefusedSoon{World.Windows()};
  SingleRow Singles{SingleRowPartsOf(TheProgram), DatePartsOf(TheProgram), Strip, Pull,
                    Strip.ForRow()};
  RefusedFiles Refused{TheProgram.Messages, Strip.AsForm(), RefusedSoon};
  StripDrops Drops{
      StripDropPartsOf(TheProgram), Strip, Row,       Menus,  Singles, Strip.picToolbar,
      Strip.picSingleButton,        Watch, DragWatch, Refused};

  /// What a drag over that button would do.
  DropEffect Over(int button, DragData data, MouseButton down = MouseButton::Left) {
    PointAtButton(button);
    DropEffect effect = kAnyEffect;
    Strip.picToolbar.OLEDragOver(data, effect, down, {}, 0, 0);
    return effect;
  }
  DropEffect DropOn(int button, DragData data) {
    PointAtButton(button);
    DropEffect effect = kAnyEffect;
    Strip.picToolbar.OLEDragDrop(data, effect, MouseButton::None, {}, 0, 0);
    return effect;
  }
  DropEffect OverRow(DragData data) {
    World.Desktop.MovePointer(500, 10);
    DropEffect effect = kAnyEffect;
    Strip.picSingleButton.OLEDragOver(data, effect, MouseButton::Left, {}, 0, 0);
    return effect;
  }
  DropEffect DropOnRow(DragData data) {
    DropEffect effect = kAnyEffect;
    Strip.picSingleButton.OLEDragDrop(data, effect, MouseButton::None, {}, 0, 0);
    return effect;
  }
};

DragData FilesOf(Texts names) { return {.Files = std::move(names)}; }
DragData PageAddress() { return {.Text = "https://example.com/page"}; }

TEST(StripDrops, ADragOverAButtonCopiesOrWithTheRightButtonLinks) {
  PlainDropDesk desk;
  EXPECT_EQ(desk.Over(2, FilesOf({"C:\\a.txt"})), DropEffect::Copy);
  EXPECT_TRUE(desk.TheProgram.Drag.DragOverButton);
  EXPECT_TRUE(desk.DragWatch.Enabled());
  EXPECT_EQ(desk.Drops.SavedForeground, desk.Source);
  EXPECT_EQ(desk.Over(2, FilesOf({"C:\\a.txt"}), MouseButton::Right), DropEffect::Link);
}

TEST(StripDrops, TheProgramsOwnButtonAndBarePlacesRefuse) {
  PlainDropDesk desk;
  EXPECT_EQ(desk.Over(1, FilesOf({"C:\\a.txt"})), DropEffect::None);
  DragData data = FilesOf({"C:\\a.txt"});
  DropEffect effect = kAnyEffect;
  desk.World.Desktop.MovePointer(700, 600);
  desk.Strip.picToolbar.OLEDragOver(data, effect, MouseButton::Left, {}, 0, 0);
  EXPECT_EQ(effect, DropEffect::None);
}

TEST(StripDrops, NothingIsTakenWhileTheStripIsNotReady) {
  struct Case {
    const char* name;
    std::function<void(PlainDropDesk&)> make;
  };
  const Case cases[] = {
      {"a strip that is being rebuilt",
       [](PlainDropDesk& desk) { desk.TheProgram.Guards.ToolbarReady = false; }},
      {"a question that waits",
       [](PlainDropDesk& desk) { desk.TheProgram.Guards.OpenQuestions = 1; }},
      {"a file that is rewritten",
       [](PlainDropDesk& desk) { desk.TheProgram.Guards.ItemActionBusy = true; }},
      {"a menu that is built again", [](PlainDropDesk& desk) { desk.Menus.MenuRefreshing = true; }},
  };
  for (const Case& each : cases) {
    PlainDropDesk desk;
    each.make(desk);
    EXPECT_EQ(desk.Over(2, FilesOf({"C:\\a.txt"})), DropEffect::None) << each.name;
    EXPECT_FALSE(desk.TheProgram.Drag.DragEntered) << each.name;
  }
  PlainDropDesk desk;
  EXPECT_EQ(desk.Over(2, {}), DropEffect::None) << "data of no use";
}

TEST(StripDrops, FilesGoToTheEndOfTheButtonsMenu) {
  PlainDropDesk desk;
  desk.World.Files.Put("C:\\Notes\\b.txt", "x");
  desk.World.Files.Put("C:\\Notes\\a.txt", "x");
  static_cast<void>(desk.Over(3, FilesOf({"C:\\Notes\\b.txt", "C:\\Notes\\a.txt"})));
  EXPECT_EQ(desk.DropOn(3, FilesOf({"C:\\Notes\\b.txt", "C:\\Notes\\a.txt"})), DropEffect::Copy);
  const Texts titles = desk.Titles(2);
  ASSERT_EQ(titles.size(), 4U);
  EXPECT_EQ(titles[0], "Two");
  EXPECT_EQ(titles[1], "Item");
  EXPECT_LT(titles[2], titles[3]) << "in the order of their names";
  EXPECT_FALSE(desk.TheProgram.Drag.DragEntered);
  EXPECT_FALSE(desk.TheProgram.Entry.ItemDragging);
}

TEST(StripDrops, ADropOnTheProgramsOwnButtonEndsTheDragAndTakesNothing) {
  PlainDropDesk desk;
  static_cast<void>(desk.Over(2, FilesOf({"C:\\a.txt"})));
  EXPECT_EQ(desk.DropOn(1, FilesOf({"C:\\a.txt"})), DropEffect::None);
  EXPECT_FALSE(desk.DragWatch.Enabled());
  EXPECT_EQ(desk.Titles(1), (Texts{"One", "Item"}));
}

TEST(StripDrops, AnAddressIsOfferedWithItsButtonAndFile) {
  PlainDropDesk desk;
  OfferedLinks links;
  desk.TheProgram.Ports.WebLink = &links;
  static_cast<void>(desk.Over(2, PageAddress()));
  EXPECT_TRUE(desk.TheProgram.Drag.DragIsUrl);
  static_cast<void>(desk.DropOn(2, PageAddress()));
  EXPECT_EQ(links.Offered, Texts{"https://example.com/page|2|C:\\Corvelle\\Menus\\BMENU001.MNU"});
  EXPECT_FALSE(desk.TheProgram.Drag.DragIsUrl);
  desk.TheProgram.Ports.WebLink = nullptr;
}

TEST(StripDrops, ADragThatHasGoneEndsAndTheForegroundGoesBack) {
  PlainDropDesk desk;
  static_cast<void>(desk.Over(2, FilesOf({"C:\\a.txt"})));
  desk.World.Desktop.BringForward(desk.Strip.hWnd());
  desk.World.Desktop.MovePointer(700, 600);
  desk.World.Desktop.Advance(110);
  EXPECT_FALSE(desk.TheProgram.Drag.DragEntered);
  EXPECT_FALSE(desk.DragWatch.Enabled());
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), desk.Source);
}

TEST(StripDrops, ADragThatIsHeardOfNoMoreIsOverAfterFiveLooks) {
  PlainDropDesk desk;
  static_cast<void>(desk.Over(2, FilesOf({"C:\\a.txt"})));
  desk.World.Desktop.Advance(450);
  EXPECT_TRUE(desk.TheProgram.Drag.DragEntered);
  desk.World.Desktop.Advance(100);
  EXPECT_FALSE(desk.TheProgram.Drag.DragEntered);
}

// ---- over the row of single buttons ----

TEST(StripDrops, TheRowTakesFilesAndAddressesWhereSomeoneTakesThem) {
  PlainDropDesk desk;
  EXPECT_EQ(desk.OverRow(FilesOf({"C:\\a.txt"})), DropEffect::None);
  EXPECT_EQ(desk.OverRow(PageAddress()), DropEffect::None);
  DroppedOnRow row;
  OfferedLinks links;
  desk.TheProgram.Ports.SingleButtons = &row;
  desk.TheProgram.Ports.WebLink = &links;
  EXPECT_EQ(desk.OverRow(FilesOf({"C:\\a.txt"})), DropEffect::Copy);
  EXPECT_EQ(desk.DropOnRow(FilesOf({"C:\\a.txt"})), DropEffect::Copy);
  EXPECT_EQ(row.Names, Texts{"C:\\a.txt"});
  EXPECT_EQ(desk.OverRow(PageAddress()), DropEffect::Copy);
  EXPECT_EQ(desk.DropOnRow(PageAddress()), DropEffect::Copy);
  EXPECT_EQ(links.Offered, Texts{"https://example.com/page|SingleButtons|"});
  desk.TheProgram.Ports.SingleButtons = nullptr;
  desk.TheProgram.Ports.WebLink = nullptr;
}

}  // namespace
}  // namespace corvelle
