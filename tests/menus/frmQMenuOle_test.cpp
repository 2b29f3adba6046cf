// What other programs drag over the items of a menu and drop there.

#include <gtest/gtest.h>

#include "core/MenuFile.h"
#include "core/NotedEdits.h"
#include "menus/MenuDesk.h"

namespace corvelle {
namespace {

using forms::DropEffect;
using forms::MouseButton;
using Names = std::vector<std::string>;

constexpr PixelPoint kSource{900, 700};

struct NotedLinks final : WebLinkPort {
  explicit NotedLinks(Program& program) : TheProgram(program) {}
  Program& TheProgram;
  Names Offered;
  void OfferWebLink(std::string_view url, std::string_view title, std::string_view tag,
                    std::string_view file) override {
    Offered.push_back(std::string(url) + "|" + std::string(title) + "|" + std::string(tag) + "|" +
                      std::string(file) + "|" + std::to_string(TheProgram.Entry.CurRecord));
  }
};

struct NotedCapture final : CapturePort {
  Names Asked;
  bool Captured = false;
  void CaptureMenu() override {
    Asked.emplace_back("capture");
    Captured = true;
  }
  void ReleaseMenu() override {
    Asked.emplace_back("release");
    Captured = false;
  }
  bool MenuCaptured() const override { return Captured; }
  void SetPicture1() override {}
  void ResetPicture1() override {}
  void SetPosition(Edge) override {}
  void ClearBg() override {}
  std::optional<Edge> OutlineEdge() const override { return {}; }
};

struct NotedFolders final : SpecialFoldersPort {
  Names Opened;
  void OpenSpecialFolder(std::string_view name, std::string_view argument) override {
    Opened.push_back(std::string(name) + "|" + std::string(argument));
  }
  bool ShowContextMenu(std::string_view, std::string_view, PixelPoint, WindowId) override {
    return false;
  }
};

/// Expands every menu to the same one.
struct ExpandedMenus final : FolderMenusPort {
  ExpandedMenu Generated;
  std::optional<ExpandedMenu> Expand(std::string_view, std::string_view,
                                     std::string_view) override {
    return Generated;
  }
  bool WriteGenerated(const ExpandedMenu&) override { return true; }
  bool UpdateMenu(std::string_view) override { return false; }
};

/// A menu of three items that is open under another program's drag.
struct DragDesk : MenuDesk {
  explicit DragDesk(const std::vector<MenuRecord>& items = Items(3), ShellExec* shell = nullptr)
      : MenuDesk({}, shell) {
    World.Desktop.LockForeground(true);
    Open(1, items);
    World.Files.Put("C:\\docs\\a.txt", "x");
  }
  ~DragDesk() {
    TheProgram.Ports.WebLink = nullptr;
    TheProgram.Ports.Capture = nullptr;
    TheProgram.Ports.SpecialFolders = nullptr;
  }

  void Take(forms::DragData data, MouseButton button = MouseButton::Left) {
    PointAt(kSource);
    World.Desktop.StartDrag({.Data = std::move(data), .Button = button});
  }
  void TakeFiles(Names files, MouseButton button = MouseButton::Left) {
    Take({.Files = std::move(files)}, button);
  }
  void DragToItem(int item) { PointAtItem(item); }
  /// Below the last item, where no item is selected.
  void DragBelow() {
    const forms::Label& last = Menu.Lbl[Menu.Pages().LastLabel()];
    PointAt(OnScreen(600, last.Top() + last.Height() + 90));
  }
  void Drop(MouseButton button = MouseButton::Left) { World.Desktop.Release(button); }
  DropEffect Effect() const { return World.Desktop.DragEffect(); }

  std::string File() const { return TheProgram.Paths.MenusPath + "BMENU001.MNU"; }
  Names Titles() {
    Names titles;
    for (const MenuRecord& record : ReadAllRecords(World.Files, World.Ansi, File()).ValueOr({})) {
      titles.push_back(record.FTitle);
    }
    return titles;
  }
  Names Started() { return World.Shell.Started(); }
};

TEST(MenuOLEDragOver, MovesTheSelectionWithTheDrag) {
  DragDesk desk;
  desk.TakeFiles({"C:\\docs\\a.txt"});
  desk.DragToItem(2);
  EXPECT_EQ(desk.BarredItem(), 2);
  EXPECT_EQ(desk.Effect(), DropEffect::Copy);
  desk.DragToItem(3);
  EXPECT_EQ(desk.BarredItem(), 3);
}

TEST(MenuOLEDragOver, KeepsTheButtonOfTheDrag) {
  DragDesk desk;
  desk.TakeFiles({"C:\\docs\\a.txt"}, MouseButton::Right);
  desk.DragToItem(2);
  EXPECT_EQ(desk.Effect(), DropEffect::Link);
  EXPECT_EQ(desk.TheProgram.Drag.DragButtons, MouseButton::Right);
}

TEST(MenuOLEDragOver, TheGapOfASeparatorBelongsToTheItemBelow) {
  DragDesk desk({Item("One"), Separator(), Item("Two")});
  const forms::Label& one = desk.Menu.Lbl[1];
  const float gap = one.Top() + one.Height() + 45;
  desk.PointAt(desk.OnScreen(600, gap));
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
  desk.TakeFiles({"C:\\docs\\a.txt"});
  desk.PointAt(desk.OnScreen(600, gap));
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 2);
}

TEST(MenuOLEDragOver, ADragThatLeavesDropsTheSelection) {
  DragDesk desk;
  desk.TakeFiles({"C:\\docs\\a.txt"});
  desk.DragToItem(2);
  desk.PointAway();
  EXPECT_EQ(desk.BarredItem(), 0);
  EXPECT_FALSE(desk.TheProgram.Drag.DragOverButton);
}

TEST(MenuOLEDragOver, TheProgramsOwnMenuAndDataOfNoUseAreRefused) {
  DragDesk desk;
  desk.Menu.MenuKey = "Q1";
  desk.TakeFiles({"C:\\docs\\a.txt"});
  desk.DragToItem(2);
  EXPECT_EQ(desk.Effect(), DropEffect::None);
  desk.Drop();
  EXPECT_EQ(desk.Titles().size(), 4U);
  desk.Menu.MenuKey = "F2";
  desk.Take({});
  desk.DragToItem(2);
  EXPECT_EQ(desk.Effect(), DropEffect::None);
}

// ---- files that are stored ----

TEST(MenuOLEDragDrop, FilesGoBeforeTheItemUnderTheDropInAscendingOrder) {
  DragDesk desk;
  desk.TakeFiles({"C:\\docs\\b.txt", "C:\\docs\\a.txt"});
  desk.DragToItem(2);
  desk.Drop();
  EXPECT_EQ(desk.Titles(), (Names{"Button", "Item 1", "a", "b", "Item 2", "Item 3"}));
  const MenuRecord stored =
      ReadRecord(desk.World.Files, desk.World.Ansi, desk.File(), 3).ValueOr({});
  EXPECT_EQ(stored, (MenuRecord{"a", "C:\\docs\\a.txt", "C:\\docs\\a.txt"}));
  EXPECT_EQ(desk.Strip.Times("RefreshMenu F2"), 1);
  EXPECT_FALSE(desk.World.Files.Has(desk.TheProgram.Paths.MenusPath + "tFile.tmp"));
  EXPECT_TRUE(desk.Menu.Timer1.Enabled());
}

TEST(MenuOLEDragDrop, WithNothingSelectedFilesGoToTheEnd) {
  DragDesk desk;
  desk.TakeFiles({"C:\\docs\\b.txt"});
  desk.DragBelow();
  ASSERT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
  EXPECT_EQ(desk.Effect(), DropEffect::Copy);
  desk.Drop();
  EXPECT_EQ(desk.Titles(), (Names{"Button", "Item 1", "Item 2", "Item 3", "b"}));
}

TEST(MenuOLEDragDrop, WhatNoRecordHoldsIsRefusedAndTheOthersAreTaken) {
  DragDesk desk;
  const std::string refused = "C:\\docs\\" + std::string(280, 'n') + ".txt";
  desk.TakeFiles({refused, "C:\\docs\\a.txt"});
  desk.DragToItem(2);
  desk.Drop();
  EXPECT_EQ(desk.Titles(), (Names{"Button", "Item 1", "a", "Item 2", "Item 3"}));
  EXPECT_EQ(desk.Strip.Refused, Names{refused});
}

TEST(MenuOLEDragDrop, AnEntryOfAFolderItemStandsForTheItemInTheStoredFile) {
  DragDesk desk;
  // An expanded copy: the record behind "Item 1" is a folder item, which gave two entries.
  const std::string generated = desk.TheProgram.Paths.MenusPath + "BMENU001.mfd";
  desk.World.Files.Put(generated, "for others");
  ExpandedMenus folders;
  folders.Generated = {.File = generated,
                       .Items = {ItemOf(Item("Button", "Button", ""), 1), ItemOf(Item("Item 1"), 2),
                                 ItemOf(Item("First"), 5003), ItemOf(Item("Second"), 5003)}};
  desk.TheProgram.Ports.FolderMenus = &folders;
  desk.Menu.ForgetMenu("F2");
  desk.Reopen(1);
  ASSERT_EQ(desk.Menu.GetRecordNum(3), 5003);
  desk.TakeFiles({"C:\\docs\\b.txt"});
  desk.DragToItem(3);
  desk.Drop();
  EXPECT_EQ(desk.Titles(), (Names{"Button", "Item 1", "b", "Item 2", "Item 3"}));
  EXPECT_EQ(desk.World.Files.Get(generated), "for others");
  desk.TheProgram.Ports.FolderMenus = nullptr;
}

TEST(MenuOLEDragDrop, TheMenuIsCapturedWhileItsFileChanges) {
  DragDesk desk;
  NotedCapture capture;
  desk.TheProgram.Ports.Capture = &capture;
  desk.TakeFiles({"C:\\docs\\b.txt"});
  desk.DragToItem(2);
  desk.Drop();
  EXPECT_EQ(capture.Asked, (Names{"capture", "release"}));
}

TEST(MenuOLEDragDrop, AFailureLeavesTheFileAndTheMenuAsTheyAre) {
  struct Row {
    const char* name;
    std::function<void(DragDesk&)> harm;
    std::size_t left;
  };
  const Row rows[] = {
      {"a full disk", [](DragDesk& desk) { desk.World.Files.FillDisk(0); }, 4},
      {"a file held open", [](DragDesk& desk) { desk.World.Files.HoldOpen(desk.File()); }, 4},
      {"a vanished file", [](DragDesk& desk) { desk.World.Files.Vanish(desk.File()); }, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    DragDesk desk;
    desk.TakeFiles({"C:\\docs\\b.txt"});
    desk.DragToItem(2);
    row.harm(desk);
    desk.Drop();
    desk.World.Files.FreeDisk();
    desk.World.Files.LetGo(desk.File());
    EXPECT_EQ(desk.World.Files.Has(desk.File()), row.left > 0);
    if (row.left > 0) {
      EXPECT_EQ(desk.Titles().size(), row.left);
    }
    EXPECT_EQ(desk.Strip.Times("RefreshMenu F2"), 0);
    EXPECT_TRUE(desk.Menu.Visible());
    EXPECT_FALSE(desk.TheProgram.Guards.ItemActionBusy);
  }
}

TEST(MenuOLEDragDrop, WhileAFileIsRewrittenADropIsRefused) {
  DragDesk desk;
  desk.TakeFiles({"C:\\docs\\b.txt"});
  desk.DragToItem(2);
  desk.TheProgram.Guards.ItemActionBusy = true;
  desk.World.Desktop.Release();
  desk.TheProgram.Guards.ItemActionBusy = false;
  EXPECT_EQ(desk.Titles().size(), 4U);
  EXPECT_EQ(desk.Effect(), DropEffect::None);
}

TEST(MenuOLEDragDrop, AMenuThatClosedUnderTheDragTakesNothing) {
  DragDesk desk;
  desk.TakeFiles({"C:\\docs\\b.txt"});
  desk.DragToItem(2);
  forms::DragData data{.Files = Names{"C:\\docs\\b.txt"}};
  auto effect = DropEffect::Copy;
  desk.Menu.HideMenu();
  desk.Menu.Form_OLEDragDrop(data, effect, MouseButton::None, {}, 0, 0);
  EXPECT_EQ(effect, DropEffect::None);
  EXPECT_EQ(desk.Titles().size(), 4U);
  EXPECT_FALSE(desk.Menu.Timer1.Enabled());
  desk.Drop();
}

// ---- files that are opened ----

TEST(MenuOLEDragDrop, TheRightButtonOpensTheFirstFileWithTheItem) {
  DragDesk desk;
  desk.TakeFiles({"C:\\docs\\a.txt", "C:\\docs\\b.txt"}, MouseButton::Right);
  desk.DragToItem(2);
  desk.Drop(MouseButton::Right);
  EXPECT_EQ(desk.Started(), Names{"C:\\Tools\\tool.exe"});
  ASSERT_EQ(desk.World.Shell.Log().size(), 1U);
  EXPECT_EQ(desk.World.Shell.Log()[0].Parameters, "\"C:\\docs\\a.txt\"");
  EXPECT_FALSE(desk.Menu.Visible());
  EXPECT_EQ(desk.Strip.Times("ResetMenu"), 1);
  EXPECT_EQ(desk.Titles().size(), 4U);
}

TEST(MenuOLEDragDrop, TheRightButtonStoresWhereNoItemIs) {
  DragDesk desk;
  desk.TakeFiles({"C:\\docs\\b.txt"}, MouseButton::Right);
  desk.DragBelow();
  desk.Drop(MouseButton::Right);
  EXPECT_EQ(desk.Titles().back(), "b");
  EXPECT_EQ(desk.Started(), Names{});
}

TEST(MenuOLEDragDrop, AnEntryOfAShellFolderGoesWithItsTitle) {
  DragDesk desk({Item("Printer && fax", "7", "CSIDL_PRINTERS")});
  NotedFolders folders;
  desk.TheProgram.Ports.SpecialFolders = &folders;
  desk.TakeFiles({"C:\\docs\\a.txt"}, MouseButton::Right);
  desk.DragToItem(1);
  desk.Drop(MouseButton::Right);
  ASSERT_EQ(folders.Opened.size(), 1U);
  EXPECT_TRUE(folders.Opened[0].starts_with("CSIDL_PRINTERS\\Printer &"));
  EXPECT_TRUE(folders.Opened[0].ends_with("|\"C:\\docs\\a.txt\""));
}

TEST(MenuOLEDragDrop, AnItemWithoutACommandOpensNothing) {
  DragDesk desk({Item("Nothing", "", "")});
  desk.TakeFiles({"C:\\docs\\a.txt"}, MouseButton::Right);
  desk.DragToItem(1);
  desk.Drop(MouseButton::Right);
  EXPECT_TRUE(desk.World.Shell.Log().empty());
  EXPECT_FALSE(desk.Menu.Visible());
}

TEST(MenuOLEDragDrop, AFileThatVanishedIsSaidToBeUnavailableByItsProgramAlone) {
  DragDesk desk({Item("Gone", "", "C:\\Tools\\gone.exe")});
  desk.World.Desktop.Answer("File/Device unavailable.", forms::msgbox::AnswerOk);
  desk.TakeFiles({"C:\\docs\\a.txt"}, MouseButton::Right);
  desk.DragToItem(1);
  desk.Drop(MouseButton::Right);
  EXPECT_EQ(desk.World.Desktop.Boxes().size(), 1U);
}

// ---- addresses ----

TEST(MenuOLEDragDrop, AnAddressIsOfferedForTheItemOrTheEnd) {
  DragDesk desk;
  NotedLinks links(desk.TheProgram);
  NotedCapture capture;
  desk.TheProgram.Ports.WebLink = &links;
  desk.TheProgram.Ports.Capture = &capture;
  desk.Take({.Text = "http://example.com"});
  desk.DragToItem(2);
  desk.Drop();
  EXPECT_EQ(links.Offered, Names{"http://example.com||F2|" + desk.File() + "|3"});
  EXPECT_EQ(capture.Asked, Names{"capture"});
  desk.Take({.Text = "http://example.com"});
  desk.DragBelow();
  desk.Drop();
  EXPECT_TRUE(links.Offered.back().starts_with("http://example.com||2|" + desk.File()));
}

TEST(MenuOLEDragDrop, OtherTextIsIgnored) {
  DragDesk desk;
  NotedLinks links(desk.TheProgram);
  desk.TheProgram.Ports.WebLink = &links;
  desk.Take({.Text = "Http://example.com"});
  desk.DragToItem(2);
  desk.Drop();
  EXPECT_EQ(links.Offered, Names{});
  EXPECT_EQ(desk.Titles().size(), 4U);
  EXPECT_TRUE(desk.Menu.Timer1.Enabled());
}

// ---- the poll ----

TEST(MenuPoll, LeavesTheMenuToADragThatGoesOn) {
  DragDesk desk;
  desk.PointAway();
  desk.TheProgram.Drag.DragEntered = true;
  desk.World.Desktop.TakeForeground(desk.World.Desktop.DesktopWindow());
  desk.World.Desktop.Press();
  desk.Poll();
  desk.Poll();
  EXPECT_TRUE(desk.Menu.Visible());
  desk.World.Desktop.Release();
  desk.Poll();
  EXPECT_FALSE(desk.Menu.Visible());
}

TEST(MenuPoll, ClosesAMenuThatIsHiddenUnderADrag) {
  DragDesk desk;
  desk.PointAway();
  desk.TheProgram.Drag.DragEntered = true;
  desk.World.Desktop.Press();
  // As when a full-screen program goes.
  desk.Menu.SetWindowPos(forms::InsertAfter::Topmost, forms::swp::Hide);
  desk.Poll();
  EXPECT_EQ(desk.Strip.Times("ResetMenu"), 1);
  EXPECT_FALSE(desk.Menu.Timer1.Enabled());
  desk.World.Desktop.Release();
}

// ---- who is told of an edit ----

TEST(MenuOLEDragDrop, FilesThatAreStoredAreTold) {
  DragDesk desk;
  NotedEdits edits([&desk] { return std::to_string(desk.Titles().size()); });
  desk.TheProgram.Ports.MenuEdits = &edits;
  desk.TakeFiles({"C:\\docs\\b.txt", "C:\\docs\\a.txt"});
  desk.DragToItem(2);
  desk.Drop();
  EXPECT_EQ(edits.Seen, Names{"6"});
  desk.TheProgram.Ports.MenuEdits = nullptr;
}

}  // namespace
}  // namespace corvelle
