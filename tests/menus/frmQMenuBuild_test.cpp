// Building a menu from its file, and opening it again.

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "base/Text.h"
#include "menus/MenuDesk.h"
#include "menus/folders/FolderMenus.h"

namespace corvelle {
namespace {

std::vector<std::string> Captions(const frmQMenu& menu) {
  std::vector<std::string> captions;
  for (int i = menu.Pages().FirstLabel(); i <= menu.Pages().LastLabel(); ++i)
    captions.push_back(menu.Lbl[i].Caption());
  return captions;
}

TEST(frmQMenuLoad, StandsHiddenTopmostAndEmptyUnderItsOwnClass) {
  MenuDesk desk;
  const WindowId window = desk.World.Desktop.Find("frmQMenu");
  EXPECT_EQ(window, desk.Menu.WindowHandle());
  EXPECT_FALSE(desk.Menu.MenuVisible());
  EXPECT_TRUE(desk.World.Desktop.IsTopmost(window));
  EXPECT_EQ(desk.World.Desktop.Text(window), "");
  EXPECT_FALSE(desk.Menu.Timer1.Enabled());
}

TEST(frmQMenuLoad, MeasuresFollowTheScale) {
  struct Row {
    const char* name;
    float twips;
    float left, top, barHeight, barLeft, gap;
  };
  const Row rows[] = {{"96 dpi", 15, 360, 90, 315, 315, 105},
                      {"120 dpi", 12, 288, 72, 252, 252, 72}};
  for (const Row& row : rows) {
    MenuDesk desk({.TwipsPerPixel = row.twips});
    EXPECT_EQ(desk.Menu.Lbl[0].Left(), row.left) << row.name;
    EXPECT_EQ(desk.Menu.Lbl[0].Top(), row.top) << row.name;
    EXPECT_EQ(desk.Menu.Shape1.Height(), row.barHeight) << row.name;
    EXPECT_EQ(desk.Menu.ShapeLeft, row.barLeft) << row.name;
    EXPECT_EQ(desk.Menu.ItemGap, row.gap) << row.name;
    EXPECT_FALSE(desk.Menu.Lbl[0].Visible()) << row.name;
  }
}

// Wine takes a fifth of a millisecond for each answer.
TEST(frmQMenuShowMenu, AsksForTheSizeOfTheScreenAsOftenForManyItemsAsForFew) {
  std::vector<int> built;
  std::vector<int> fromCache;
  for (const int items : {2, 30}) {
    MenuDesk desk;
    const int before = desk.World.Desktop.ScreenSizesAsked();
    desk.Open(1, Items(items));
    built.push_back(desk.World.Desktop.ScreenSizesAsked() - before);
    desk.Menu.HideMenu();
    const int hidden = desk.World.Desktop.ScreenSizesAsked();
    desk.Reopen(1);
    EXPECT_TRUE(desk.Menu.MenuVisible());
    fromCache.push_back(desk.World.Desktop.ScreenSizesAsked() - hidden);
  }
  EXPECT_EQ(built[0], built[1]);
  EXPECT_EQ(fromCache[0], fromCache[1]);
  EXPECT_LE(built[1], 10);
  EXPECT_LE(fromCache[1], 5);
}

TEST(frmQMenuShowMenu, ShowsTheItemsOfTheFileBesideTheStripInFront) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha"), Item("Beta"), Item("Gamma")});
  EXPECT_TRUE(desk.Menu.MenuVisible());
  EXPECT_EQ(Captions(desk.Menu), (std::vector<std::string>{"Alpha", "Beta", "Gamma"}));
  EXPECT_EQ(desk.Menu.Left(), 3000);
  EXPECT_EQ(desk.Menu.Top(), 450);
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), desk.Menu.WindowHandle());
  EXPECT_TRUE(desk.Menu.Timer1.Enabled());
  EXPECT_EQ(desk.Menu.Timer1.Interval(), 100);
  EXPECT_EQ(desk.Menu.CurrentKey(), "F2");
  for (int i = 1; i <= 3; ++i) EXPECT_TRUE(desk.Menu.Lbl[i].Visible()) << i;
}

TEST(frmQMenuShowMenu, TheWindowIsAsLargeAsItsItemsAskFor) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha"), Item("A title that is rather long")});
  // 24 pixels to the text, 27 characters of 6, 13 more; two lines of 13 with 7 between, 6 above
  // and 13 below.
  EXPECT_EQ(desk.Menu.Width(), (24 + 27 * 6 + 13) * 15.0F);
  EXPECT_EQ(desk.Menu.Height(), (6 + 13 + 7 + 13 + 13) * 15.0F);
}

TEST(frmQMenuShowMenu, AMenuOfShortTitlesIs1750TwipsWide) {
  MenuDesk desk;
  desk.Open(1, {Item("A")});
  EXPECT_EQ(desk.Menu.Width(), 1750);
}

TEST(frmQMenuShowMenu, AKeyWithoutANumberOrAnEmptyFileShowsNothing) {
  MenuDesk desk;
  const std::string file = desk.PutMenu(1, {Item("A")});
  desk.Menu.ShowMenu("F0", file);
  EXPECT_FALSE(desk.Menu.MenuVisible());
  desk.Menu.ShowMenu("F2", "");
  EXPECT_FALSE(desk.Menu.MenuVisible());
  desk.Menu.ShowMenu("", file);
  EXPECT_FALSE(desk.Menu.MenuVisible());
}

TEST(frmQMenuShowMenu, AnAmpersandIsShownAsItStands) {
  MenuDesk desk;
  desk.Open(1, {Item("Cut & Paste")});
  EXPECT_EQ(desk.Menu.Lbl[1].Caption(), "Cut && Paste");
  EXPECT_EQ(desk.Menu.Lbl[1].Width(), 11 * 6 * 15.0F);
}

TEST(frmQMenuShowMenu, AMissingFileIsCreatedEmptyAndGivesAnEmptyMenu) {
  MenuDesk desk;
  desk.Menu.ShowMenu("F2", "C:\\Corvelle\\Menus\\BMENU007.MNU");
  EXPECT_EQ(desk.World.Files.Get("C:\\Corvelle\\Menus\\BMENU007.MNU"), "");
  EXPECT_TRUE(desk.Menu.MenuVisible());
  EXPECT_EQ(desk.Menu.Items().Count(), 0);
  EXPECT_EQ(desk.Menu.Width(), 1750);
}

TEST(frmQMenuShowMenu, AFileOfSeparatorsOnlyGivesAnEmptyMenuOfTheLeastWidth) {
  MenuDesk desk;
  desk.Open(1, {Separator(), Separator(), Separator()});
  EXPECT_EQ(desk.Menu.Items().Count(), 0);
  EXPECT_EQ(desk.Menu.Width(), 1750);
}

TEST(frmQMenuShowMenu, AFileNameIsCutAtItsNul) {
  MenuDesk desk;
  std::string file = desk.PutMenu(1, {Item("Alpha")});
  desk.Menu.ShowMenu("F2", file + std::string("\0 tail", 6));
  EXPECT_EQ(Captions(desk.Menu), (std::vector<std::string>{"Alpha"}));
  EXPECT_EQ(desk.Menu.MenuFile, file);
}

TEST(frmQMenuShowMenu, ARunOfSeparatorsDrawsOneRuleAndAddsItsGapOnce) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha"), Separator(), Separator(), Separator(), Item("Beta")});
  EXPECT_EQ(desk.Menu.Items().Count(), 2);
  EXPECT_EQ(desk.Menu.Lbl[2].Top(), desk.Menu.Lbl[1].Bottom() + 105 + 180);
  // The rule lies 9 pixels below the first line's end, at 6 + 13.
  EXPECT_EQ(desk.PixelInside(60, 28), desk.SystemColour(forms::color::ButtonShadow));
  EXPECT_EQ(desk.PixelInside(60, 29), desk.SystemColour(forms::color::Highlight3D));
  EXPECT_EQ(desk.PixelInside(5, 28), desk.SystemColour(forms::color::ButtonShadow));
  EXPECT_EQ(desk.PixelInside(60, 27), desk.SystemColour(forms::color::ButtonFace));
  EXPECT_EQ(desk.PixelInside(60, 30), desk.SystemColour(forms::color::ButtonFace));
}

TEST(frmQMenuShowMenu, ASeparatorAtTheTopDrawsNothingButMarksTheFirstItem) {
  MenuDesk desk;
  desk.Open(1, {Separator(), Item("Alpha"), Item("Beta")});
  EXPECT_EQ(desk.Menu.Lbl[1].Top(), 90);
  EXPECT_TRUE(desk.Menu.Items()[1].AfterSeparator);
  EXPECT_FALSE(desk.Menu.Items()[2].AfterSeparator);
  static_cast<void>(desk.Menu.GetExeName(1));
  EXPECT_TRUE(desk.TheProgram.Menu.ItemHasSeparator);
  static_cast<void>(desk.Menu.GetExeName(2));
  EXPECT_FALSE(desk.TheProgram.Menu.ItemHasSeparator);
  for (int y = 0; y < 6; ++y) {
    EXPECT_EQ(desk.PixelInside(60, y), desk.SystemColour(forms::color::ButtonFace)) << y;
  }
}

TEST(frmQMenuShowMenu, AnItemKnowsItsCommandItsIconAndItsRecord) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha", "C:\\Tools\\tool.exe|2", "notepad.exe a.txt")});
  EXPECT_EQ(desk.Menu.GetExeName(1), "notepad.exe a.txt");
  EXPECT_EQ(desk.Menu.GetIconName(1), "C:\\Tools\\tool.exe|2");
  EXPECT_EQ(desk.Menu.GetRecordNum(1), 2);
}

TEST(frmQMenuPages, AMenuOfJustTheHeightHasOnePageAndOneItemMoreHasTwo) {
  MenuDesk desk;
  desk.Open(1, Items(36));
  EXPECT_EQ(desk.Menu.Pages().Slides(), 0);
  EXPECT_EQ(desk.Menu.Items().Count(), 36);
  EXPECT_FALSE(desk.Menu.LblButton[0].Visible());
  desk.Open(2, Items(37));
  EXPECT_EQ(desk.Menu.Pages().Slides(), 1);
  EXPECT_EQ(desk.Menu.Pages().FirstLabel(), 1);
  EXPECT_EQ(desk.Menu.Pages().LastLabel(), 34);
  EXPECT_EQ(desk.Menu.Height(), 768 * 15.0F - 450);
  EXPECT_TRUE(desk.Menu.LblButton[0].Visible());
  EXPECT_FALSE(desk.Menu.LblButton[0].Enabled());
  EXPECT_TRUE(desk.Menu.LblButton[1].Enabled());
  // 36 pixels at the foot; the arrows begin 8 pixels into them.
  EXPECT_EQ(desk.Menu.LblButton[1].Top(), desk.Menu.Height() - 28 * 15.0F);
  EXPECT_TRUE(desk.Menu.Line1.Visible());
  EXPECT_EQ(desk.Menu.Line1.Y1(), desk.Menu.Height() - 33 * 15.0F);
  EXPECT_EQ(desk.Menu.Line1.X2(), desk.Menu.Width());
  EXPECT_EQ(desk.Menu.Line1.BorderColor(), forms::color::ButtonShadow);
  EXPECT_EQ(desk.Menu.Line2.Y1(), desk.Menu.Line1.Y1() + 15);
  EXPECT_EQ(desk.Menu.Line2.BorderColor(), forms::color::Highlight3D);
}

TEST(frmQMenuPages, GapsAndRulesFollowTheScale) {
  struct Row {
    const char* name;
    float twips;
    float gap, gapWithRule;
  };
  for (const Row& row : {Row{"96 dpi", 15, 105, 285}, Row{"120 dpi", 12, 72, 216}}) {
    MenuDesk desk({.TwipsPerPixel = row.twips});
    desk.Open(1, {Item("A"), Item("B"), Separator(), Item("C")});
    EXPECT_EQ(desk.Menu.Lbl[2].Top() - desk.Menu.Lbl[1].Bottom(), row.gap) << row.name;
    EXPECT_EQ(desk.Menu.Lbl[3].Top() - desk.Menu.Lbl[2].Bottom(), row.gapWithRule) << row.name;
  }
}

/// How often a file was read since the log was cleared.
int Reads(const MenuDesk& desk, const std::string& file) {
  int reads = 0;
  for (const auto& call : desk.World.Files.Log()) {
    if (call.Operation == "Read" && EqualNoCase(call.Path, file)) ++reads;
  }
  return reads;
}

TEST(frmQMenuBuild, ReadsTheMenuFileOnceAndIsPlacedOnce) {
  for (const bool folders : {false, true}) {
    MenuDesk desk;
    FolderMenus items(desk.TheProgram.Services, desk.TheProgram.Windows, desk.TheProgram.Answers,
                      desk.TheProgram.Icons);
    desk.TheProgram.Ports.FolderMenus = &items;
    desk.World.Files.Put("C:\\Docs\\a.txt", "x");
    const std::string file =
        desk.PutMenu(1, {Item("Alpha", "", folders ? "C:\\Docs\\*.*" : "a.exe")});
    desk.World.Files.ClearLog();
    desk.Reopen(1);
    EXPECT_EQ(Captions(desk.Menu), std::vector<std::string>{folders ? "a.txt" : "Alpha"});
    EXPECT_EQ(Reads(desk, file), 1) << folders;
    EXPECT_EQ(Reads(desk, "C:\\Corvelle\\Menus\\BMENU001.mfd"), 0) << folders;
    EXPECT_EQ(desk.Strip.Times("SetMenuPosition"), 1) << folders;
    desk.Menu.HideMenu();
    desk.Strip.Asked.clear();
    desk.Reopen(1);
    EXPECT_EQ(desk.Strip.Times("SetMenuPosition"), 1) << folders;
    desk.TheProgram.Ports.FolderMenus = nullptr;
  }
}

TEST(frmQMenuCache, ReopeningDoesNotTouchTheDisk) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha"), Separator(), Item("Beta")});
  desk.Menu.HideMenu();
  desk.Open(2, {Item("Gamma")});
  desk.Menu.HideMenu();
  desk.World.Files.ClearLog();
  desk.World.Icons.ClearCounts();
  desk.Reopen(1);
  EXPECT_TRUE(desk.World.Files.Log().empty());
  EXPECT_EQ(desk.World.Icons.Lookups(), 0);
  EXPECT_EQ(desk.World.Icons.Draws(), 0);
  EXPECT_EQ(Captions(desk.Menu), (std::vector<std::string>{"Alpha", "Beta"}));
  EXPECT_EQ(desk.Menu.GetExeName(1), "C:\\Tools\\tool.exe");
  EXPECT_TRUE(desk.Menu.MenuVisible());
}

TEST(frmQMenuCache, AReopenedMenuLooksAsItDidTheFirstTime) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha", "C:\\Tools\\tool.exe"), Separator(), Item("Beta", "New")});
  const sim::SimCanvas first = desk.World.Desktop.Picture();
  desk.Menu.HideMenu();
  desk.Open(2, {Item("Gamma"), Item("Delta"), Item("Epsilon")});
  desk.Menu.HideMenu();
  desk.Reopen(1);
  const sim::SimCanvas again = desk.World.Desktop.Picture();
  for (int y = 0; y < 768; ++y) {
    for (int x = 0; x < 1024; ++x) {
      ASSERT_EQ(again.PixelAt({x, y}), first.PixelAt({x, y})) << x << ", " << y;
    }
  }
}

TEST(frmQMenuCache, ADroppedMenuIsReadAgain) {
  MenuDesk desk;
  desk.Open(1, {Item("Alpha")});
  EXPECT_TRUE(desk.Menu.HasBuiltMenu("F2"));
  desk.Menu.HideMenu();
  desk.Menu.ForgetMenu("F2");
  EXPECT_FALSE(desk.Menu.HasBuiltMenu("F2"));
  desk.Open(1, {Item("Changed")});
  EXPECT_EQ(Captions(desk.Menu), (std::vector<std::string>{"Changed"}));
}

TEST(frmQMenuCache, AMenuThatNoLongerFitsItsPlaceIsLaidOutAnew) {
  MenuDesk desk;
  desk.Open(1, Items(36));
  EXPECT_EQ(desk.Menu.Pages().Slides(), 0);
  desk.Menu.HideMenu();
  desk.Strip.MenuTop = 900;
  desk.Reopen(1);
  EXPECT_EQ(desk.Menu.Pages().Slides(), 1);
}

TEST(frmQMenuCache, NoLabelOfTheMenuBeforeStaysOnTheScreen) {
  MenuDesk desk;
  desk.Open(1, Items(5));
  desk.Menu.HideMenu();
  desk.Open(2, Items(2));
  for (int i = 3; i <= 5; ++i) EXPECT_FALSE(desk.Menu.Lbl[i].Visible()) << i;
}

TEST(frmQMenuResetQMenu, EmptiesTheWindow) {
  MenuDesk desk;
  desk.Open(1, Items(100));
  desk.PointAtItem(3);
  desk.Menu.ResetQMenu();
  EXPECT_FALSE(desk.Menu.MenuVisible());
  EXPECT_FALSE(desk.Menu.MenuReady);
  EXPECT_FALSE(desk.Menu.Timer1.Enabled());
  EXPECT_EQ(desk.Menu.Items().Count(), 0);
  EXPECT_EQ(desk.Menu.Pages().Slides(), 0);
  EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
  for (const forms::Graphic* graphic : desk.Menu.Graphics()) {
    EXPECT_FALSE(graphic->Visible()) << graphic->Name();
  }
}

TEST(frmQMenuBuildGuard, TheFlagIsClearedHoweverTheBuildEnds) {
  struct Row {
    const char* name;
    FileError error;
  };
  for (const Row& row : {Row{"no right", FileError::AccessDenied}, Row{"in use", FileError::InUse},
                         Row{"failed", FileError::Failed}}) {
    MenuDesk desk;
    desk.PutMenu(1, Items(3));
    desk.World.Files.FailFrom(1, row.error);
    desk.Reopen(1);
    EXPECT_FALSE(desk.TheProgram.Guards.MenuBuilding) << row.name;
    EXPECT_EQ(desk.Menu.Items().Count(), 0) << row.name;
    EXPECT_EQ(desk.World.Desktop.CurrentMousePointer(), forms::MousePointer::Default) << row.name;
  }
}

/// Folder items whose listing lets events through.
class SlowFolders final : public FolderMenusPort {
 public:
  explicit SlowFolders(MenuDesk& desk) : desk_(desk) {}
  std::optional<ExpandedMenu> Expand(std::string_view, std::string_view,
                                     std::string_view) override {
    ++Expanded;
    if (While) While();
    desk_.TheProgram.Events.DoEvents();
    return std::nullopt;
  }
  bool WriteGenerated(const ExpandedMenu&) override { return true; }
  bool UpdateMenu(std::string_view) override { return Changed; }

  std::function<void()> While;
  int Expanded = 0;
  bool Changed = false;

 private:
  MenuDesk& desk_;
};

TEST(frmQMenuBuildGuard, AMoveInsideTheBuildSelectsNothing) {
  MenuDesk desk;
  desk.Open(1, Items(5));
  SlowFolders folders(desk);
  desk.TheProgram.Ports.FolderMenus = &folders;
  const PixelPoint second = desk.ItemPoint(2);
  folders.While = [&] {
    EXPECT_TRUE(desk.TheProgram.Guards.MenuBuilding);
    desk.Menu.Form_MouseMove(forms::MouseButton::None, {}, 400, 400);
    desk.PointAt(second);
    EXPECT_EQ(desk.TheProgram.Menu.SelectedItem, 0);
  };
  desk.Menu.HideMenu();
  desk.Menu.ForgetMenu("F2");
  desk.Reopen(1);
  EXPECT_EQ(folders.Expanded, 1);
  EXPECT_FALSE(desk.TheProgram.Guards.MenuBuilding);
  EXPECT_EQ(desk.Menu.Items().Count(), 5);
}

TEST(frmQMenuBuildGuard, ThePollInsideTheBuildClosesNothing) {
  MenuDesk desk;
  SlowFolders folders(desk);
  desk.TheProgram.Ports.FolderMenus = &folders;
  folders.While = [&] {
    desk.Menu.SetPoll(true);
    desk.World.Desktop.Jump(200);
  };
  desk.Open(1, Items(3));
  EXPECT_EQ(desk.Strip.Times("ResetMenu"), 0);
  EXPECT_TRUE(desk.Menu.MenuVisible());
}

TEST(frmQMenuBuildGuard, AnotherMenuAskedForInsideTheBuildWaitsForItsOwnTurn) {
  MenuDesk desk;
  desk.PutMenu(2, Items(9));
  SlowFolders folders(desk);
  desk.TheProgram.Ports.FolderMenus = &folders;
  folders.While = [&] {
    folders.While = nullptr;
    desk.Reopen(2);
    desk.Menu.ResetQMenu();
  };
  desk.Open(1, Items(3));
  EXPECT_EQ(desk.Menu.CurrentKey(), "F2");
  EXPECT_EQ(desk.Menu.Items().Count(), 3);
  EXPECT_TRUE(desk.Menu.MenuVisible());
}

TEST(frmQMenuFolders, AMenuWhoseFoldersChangedIsBuiltAnew) {
  MenuDesk desk;
  SlowFolders folders(desk);
  desk.TheProgram.Ports.FolderMenus = &folders;
  desk.Open(1, Items(3));
  desk.Menu.HideMenu();
  desk.Reopen(1);
  EXPECT_EQ(folders.Expanded, 1);
  folders.Changed = true;
  desk.Menu.HideMenu();
  desk.Reopen(1);
  EXPECT_EQ(folders.Expanded, 2);
  EXPECT_EQ(desk.Strip.Times("RemoveQMenu F2"), 1);
  EXPECT_TRUE(desk.Menu.MenuVisible());
}

TEST(frmQMenuFolders, WithoutTheirServiceAFolderItemIsAPlainItem) {
  MenuDesk desk;
  desk.Open(1, {Item("Tools", "", "C:\\Tools\\*.*/u")});
  EXPECT_EQ(desk.Menu.Items().Count(), 1);
  EXPECT_EQ(desk.Menu.Lbl[1].Caption(), "Tools");
}

TEST(frmQMenuFolders, AnExpandedMenuTellsWhatItsEntriesStandFor) {
  MenuDesk desk;
  const std::string expanded = "C:\\Corvelle\\Menus\\BMENU001.mfd";
  class Expander final : public FolderMenusPort {
   public:
    std::optional<ExpandedMenu> Expand(std::string_view, std::string_view,
                                       std::string_view) override {
      MenuItem found = ItemOf(Item("Found"), 5003);
      found.Origin.Name = "Found in a folder";
      return ExpandedMenu{.File = "C:\\Corvelle\\Menus\\BMENU001.mfd",
                          .Items = {ItemOf(Item("Button"), 1), ItemOf(Item("Plain"), 2), found}};
    }
    bool WriteGenerated(const ExpandedMenu&) override { return true; }
    bool UpdateMenu(std::string_view) override { return false; }
  } expander;
  desk.TheProgram.Ports.FolderMenus = &expander;
  desk.Open(1, {Item("Plain"), Item("Folder", "", "C:\\Tools\\*.*")});
  EXPECT_EQ(Captions(desk.Menu), (std::vector<std::string>{"Plain", "Found"}));
  EXPECT_EQ(desk.Menu.GetRecordNum(1), 2);
  EXPECT_EQ(desk.Menu.GetRecordNum(2), 5003);
  EXPECT_EQ(desk.Menu.Items().NameOf(1), "Plain");
  EXPECT_EQ(desk.Menu.Items().NameOf(2), "Found in a folder");
  EXPECT_EQ(desk.Menu.MenuFile, expanded);
}

TEST(frmQMenuDamage, DamagedFilesOpenAsWhatCanBeReadOfThem) {
  struct Row {
    const char* name;
    std::size_t length;
    int labels;
  };
  const Row rows[] = {{"empty", 0, 0},
                      {"one byte", 1, 0},
                      {"a record short of one", 569, 0},
                      {"a record and one", 571, 0},
                      {"nearly half of a second record", 570 + 284, 0},
                      {"most of a second record", 570 + 400, 1}};
  for (const Row& row : rows) {
    MenuDesk desk;
    desk.World.Files.Put("C:\\Corvelle\\Menus\\BMENU001.MNU", std::string(row.length, 'x'));
    desk.Reopen(1);
    EXPECT_TRUE(desk.Menu.MenuVisible()) << row.name;
    EXPECT_EQ(desk.Menu.Items().Count(), row.labels) << row.name;
    EXPECT_FALSE(desk.TheProgram.Guards.MenuBuilding) << row.name;
  }
}

TEST(frmQMenuDamage, RandomBytesOpenMoveAndTurnWithoutHarm) {
  std::mt19937 random(4711);
  for (int round = 0; round < 10; ++round) {
    MenuDesk desk;
    std::string bytes;
    const std::size_t length = 570 * (1 + random() % 120) + random() % 570;
    for (std::size_t i = 0; i < length; ++i) bytes += static_cast<char>(random() & 0xFFU);
    desk.World.Files.Put("C:\\Corvelle\\Menus\\BMENU001.MNU", bytes);
    desk.Reopen(1);
    ASSERT_TRUE(desk.Menu.MenuVisible());
    for (int key : {forms::key::Down, forms::key::PageDown, forms::key::Up, forms::key::End,
                    forms::key::Home}) {
      desk.World.Desktop.PressKey(key);
    }
    EXPECT_EQ(desk.World.Files.Get("C:\\Corvelle\\Menus\\BMENU001.MNU"), bytes);
  }
}

TEST(frmQMenuDamage, EveryByteValueInATitleIsShownAsText) {
  MenuDesk desk;
  std::string bytes = FormatRecord(Item("Button"), desk.World.Ansi);
  for (int start = 0; start < 256; start += 32) {
    std::string title;
    for (int i = 0; i < 32; ++i) title += static_cast<char>(start + i);
    title.resize(50, ' ');
    bytes += title + std::string(520, ' ');
  }
  desk.World.Files.Put("C:\\Corvelle\\Menus\\BMENU001.MNU", bytes);
  desk.Reopen(1);
  EXPECT_EQ(desk.Menu.Items().Count(), 8);
  EXPECT_TRUE(desk.Menu.MenuVisible());
}

TEST(frmQMenuSize, TenThousandItemsOpenAndTurnToTheEnd) {
  MenuDesk desk;
  desk.Open(1, Items(10000));
  EXPECT_EQ(desk.Menu.Items().Count(), 10000);
  EXPECT_EQ(desk.Menu.Pages().Slides(), 294);  // 34 to a page
  desk.World.Desktop.PressKey(forms::key::End);
  EXPECT_EQ(desk.Menu.Pages().CurMenu(), 294);
  EXPECT_EQ(desk.Menu.Pages().LastLabel(), 10000);
  EXPECT_EQ(desk.Menu.Lbl[10000].Caption(), "Item 10000");
  desk.Menu.HideMenu();
  desk.Reopen(1);
  EXPECT_EQ(desk.Menu.Pages().CurMenu(), 294);
}

TEST(frmQMenuSize, AKeptPictureIsNoLargerThanTheInsideOfItsWindow) {
  MenuDesk desk;
  desk.Open(1, Items(100));
  // 1750 twips are 117 pixels; 3 pixels of border on each side.
  const PixelSize inside{117 - 6, 738 - 6};
  EXPECT_EQ(desk.Menu.PagePicture->Size(), inside);
  desk.World.Desktop.PressKey(forms::key::PageDown);
  EXPECT_EQ(desk.Menu.PagePicture->Size(), inside);
}

TEST(frmQMenuSize, NoMoreRecordsAreReadThanTheirNumbersCanCount) {
  MenuDesk desk;
  const std::string record = FormatRecord(Item("x", "", ""), desk.World.Ansi);
  std::string bytes;
  bytes.reserve(record.size() * 33000);
  for (int i = 0; i < 33000; ++i) bytes += record;
  desk.World.Files.Put("C:\\Corvelle\\Menus\\BMENU001.MNU", bytes);
  desk.Reopen(1);
  EXPECT_EQ(desk.Menu.Items().Count(), 32766);
}

}  // namespace
}  // namespace corvelle
