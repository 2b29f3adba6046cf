// What is seen of a menu: icons, rules, the bar, pages.

#include <gtest/gtest.h>

#include <optional>
#include <utility>

#include "forms/Scale.h"

#include "menus/MenuDesk.h"

namespace corvelle {
namespace {

using sim::SimShellIcons;

/// A desk whose tools have icons of their own.
class Painted : public ::testing::Test {
 protected:
  Painted() {
    for (int i = 0; i < 120; ++i) {
      desk_.World.Files.Put(Tool(i), "x");
      desk_.World.Icons.SetIndex(Tool(i), 10 + i);
    }
    desk_.World.Icons.SetIndex("C:\\Corvelle\\Icons\\W95MBX02.ICO", 7);
  }
  static std::string Tool(int i) { return "C:\\Tools\\t" + std::to_string(i) + ".exe"; }
  static Rgb ToolColour(int i) { return SimShellIcons::ColourOf(10 + i); }
  std::vector<MenuRecord> Tools(int count) const {
    std::vector<MenuRecord> items;
    for (int i = 0; i < count; ++i) items.push_back(Item("Tool " + std::to_string(i), Tool(i)));
    return items;
  }
  /// The colour in the middle of an item's icon cell.
  Rgb IconColour(int index) const {
    const PixelPoint cell = desk_.IconCell(index);
    return desk_.PixelInside(cell.x + 8, cell.y + 8);
  }
  Rgb Face() { return desk_.SystemColour(forms::color::ButtonFace); }

  MenuDesk desk_;
};

TEST_F(Painted, AnIconFillsItsCellBesideTheText) {
  desk_.Open(1, Tools(2));
  const PixelPoint cell = desk_.IconCell(2);
  EXPECT_EQ(cell.x, 2);
  const Rgb colour = ToolColour(1);
  EXPECT_EQ(desk_.PixelInside(cell.x, cell.y), colour);
  EXPECT_EQ(desk_.PixelInside(cell.x + 15, cell.y + 15), colour);
  EXPECT_EQ(desk_.PixelInside(cell.x - 1, cell.y + 8), Face());
  EXPECT_EQ(desk_.PixelInside(cell.x + 16, cell.y + 8), Face());
  EXPECT_EQ(desk_.PixelInside(cell.x + 8, cell.y - 1), Face());
  EXPECT_EQ(desk_.PixelInside(cell.x + 8, cell.y + 16), Face());
}

TEST_F(Painted, EachFormOfAnIconTextShowsItsIcon) {
  desk_.World.Icons.SetIconCount("C:\\Tools\\t5.exe", 3);
  desk_.World.Files.Put("C:\\Corvelle\\icons\\x.ico", "x");
  desk_.World.Icons.SetIndex("C:\\Corvelle\\icons\\x.ico", 77);
  desk_.TheProgram.Icons.WebLinkIcon = Tool(9);
  desk_.TheProgram.Icons.ShellDrawsIcons = true;
  struct Row {
    const char* name;
    std::string text;
    Rgb colour;
  };
  const Row rows[] = {
      {"a file", Tool(1), ToolColour(1)},
      {"in capitals", "C:\\TOOLS\\T1.EXE", ToolColour(1)},
      {"an icon in a file", "C:\\Tools\\t5.exe|2", SimShellIcons::ColourOf("C:\\Tools\\t5.exe", 2)},
      {"an icon that the file lacks", "C:\\Tools\\t5.exe|9", SimShellIcons::ColourOf(7)},
      {"no number behind the bar", "C:\\Tools\\t5.exe|x", SimShellIcons::ColourOf(7)},
      {"a number", "37", SimShellIcons::ColourOf(37)},
      {"below the program's folder", "\\icons\\x.ico", SimShellIcons::ColourOf(77)},
      {"a web link", "http", ToolColour(9)},
      {"a missing file", "C:\\nowhere.exe", SimShellIcons::ColourOf(7)},
      {"an unknown folder of the shell", "CSIDL_NOWHERE", SimShellIcons::ColourOf(7)},
      {"none", "", Face()},
      {"an unknown picture", "imgIcons what", Face()},
  };
  std::vector<MenuRecord> items;
  for (const Row& row : rows) items.push_back(Item("x", row.text));
  desk_.Open(1, items);
  int index = 0;
  for (const Row& row : rows) EXPECT_EQ(IconColour(++index), row.colour) << row.name;
}

TEST_F(Painted, AnUnknownIconIsTheBlankDocumentOfTheIconsFolder) {
  desk_.World.Icons.SetIconCount("C:\\Corvelle\\Icons\\W95MBX02.ICO", 1);
  desk_.Open(1, {Item("Missing", "C:\\nowhere.exe")});
  EXPECT_EQ(IconColour(1), SimShellIcons::ColourOf("C:\\Corvelle\\Icons\\W95MBX02.ICO", 0));
}

TEST_F(Painted, WithoutTheBlankDocumentTheRowStaysEmpty) {
  desk_.World.Files.Vanish("C:\\Corvelle\\Icons\\W95MBX02.ICO");
  desk_.Open(1, {Item("Missing", "C:\\nowhere.exe"), Item("There", Tool(3))});
  EXPECT_EQ(IconColour(1), Face());
  EXPECT_EQ(IconColour(2), ToolColour(3));
}

TEST_F(Painted, BuiltInPicturesAreDrawnInSystemColours) {
  desk_.Open(1, {Item("On", "xCircle"), Item("New", "New")});
  EXPECT_EQ(IconColour(1), desk_.SystemColour(forms::color::ButtonText));
  const PixelPoint cell = desk_.IconCell(2);
  EXPECT_EQ(desk_.PixelInside(cell.x + 7, cell.y + 8), desk_.SystemColour(forms::color::Highlight));
  EXPECT_EQ(desk_.World.Icons.Lookups(), 0);
}

TEST_F(Painted, EachTextIsAskedForOnceOverAllMenus) {
  desk_.Open(1, {Item("A", Tool(1)), Item("B", Tool(1)), Item("C", Tool(2)),
                 Item("D", "C:\\nowhere.exe"), Item("E", "C:\\nowhere.exe")});
  EXPECT_EQ(desk_.World.Icons.Lookups(), 4);  // two tools, the missing file, the blank document
  desk_.Menu.HideMenu();
  desk_.Open(2, {Item("F", Tool(2)), Item("G", "c:\\tools\\T1.exe")});
  EXPECT_EQ(desk_.World.Icons.Lookups(), 4);
  EXPECT_EQ(IconColour(1), ToolColour(2));
  EXPECT_EQ(IconColour(2), ToolColour(1));
}

TEST_F(Painted, FilesOfOneShellIconShareIt) {
  desk_.World.Files.Put("C:\\a.txt", "x");
  desk_.World.Files.Put("C:\\b.txt", "x");
  desk_.Open(1, {Item("A", "C:\\a.txt"), Item("B", "C:\\b.txt")});
  EXPECT_EQ(desk_.World.Icons.Lookups(), 2);
  EXPECT_EQ(IconColour(1), IconColour(2));
  MenuIcons icons(desk_.TheProgram.IconSources);
  icons.WaitUntil(desk_.World.Desktop.Now() + 1);
  EXPECT_EQ(icons.Find("C:\\a.txt").Cell, icons.Find("C:\\b.txt").Cell);
  EXPECT_EQ(icons.Count(), 1);
}

TEST_F(Painted, AnIconOfTheShellsListHasOneCell) {
  MenuIcons icons(desk_.TheProgram.IconSources);
  const int cell = icons.Find("7").Cell;
  EXPECT_EQ(icons.Count(), 1);
  EXPECT_EQ(icons.Find("7").Cell, cell);
  EXPECT_EQ(icons.Count(), 1);
}

TEST_F(Painted, IconsThatWereThereBeforeTheStripGrewAreWhole) {
  MenuIcons icons(desk_.TheProgram.IconSources);
  for (int i = 0; i < 40; ++i) icons.Find(std::to_string(10 + i));
  EXPECT_EQ(icons.Count(), 40);
  for (const int i : {0, 15, 16, 39}) {
    sim::SimCanvas canvas({16, 16});
    icons.Draw(canvas, {0, 0}, icons.Peek(std::to_string(10 + i)));
    for (const PixelPoint at : {PixelPoint{0, 0}, {15, 0}, {0, 15}, {15, 15}})
      EXPECT_EQ(canvas.PixelAt(at), ToolColour(i)) << i << ' ' << at.x << ' ' << at.y;
  }
}

TEST_F(Painted, ForgottenIconsAreAskedForAgain) {
  desk_.Open(1, Tools(2));
  desk_.Menu.HideMenu();
  desk_.Menu.ForgetMenu("F2");
  desk_.Menu.ResetPicIcons();
  desk_.World.Icons.SetIndex(Tool(1), 90);
  desk_.Reopen(1);
  EXPECT_EQ(IconColour(2), SimShellIcons::ColourOf(90));
}

TEST_F(Painted, MoreIconsThanTheStripBeganWithKeepTheirPictures) {
  desk_.Open(1, Tools(36));
  for (int i = 0; i < 36; ++i) EXPECT_EQ(IconColour(i + 1), ToolColour(i)) << i;
}

TEST(frmQMenuProgress, CaptionsStandBeforeTheIconsAndIconsComeOneByOne) {
  sim::World world;
  std::vector<std::string> steps;
  class Icons final : public ShellIcons {
   public:
    Icons(sim::World& world, std::vector<std::string>& steps) : world_(world), steps_(steps) {}
    std::optional<ShellFileInfo> FileInfo(std::string_view path, IconList list) override {
      return world_.Icons.FileInfo(path, list);
    }
    std::optional<std::string> DisplayName(std::string_view path) override {
      return world_.Icons.DisplayName(path);
    }
    std::optional<IconPixels> PixelsOfFile(std::string_view path, IconList list) override {
      const WindowId menu = world_.Desktop.Find("frmQMenu");
      const bool shown = world_.Desktop.IsShown(menu);
      bool text = false;
      int icons = 0;
      if (shown) {
        const sim::SimCanvas screen = world_.Desktop.Picture();
        const PixelRect at = world_.Desktop.BoundsOf(menu);
        const Rgb ink = forms::Resolve(world_.Desktop, forms::color::ButtonText);
        text = screen.Shows(ink, {at.left + 27, at.top + 9, at.left + 60, at.top + 22});
        for (int i = 0; i < 3; ++i) {
          if (screen.PixelAt({at.left + 13, at.top + 3 + 12 + 20 * i}) ==
              sim::SimShellIcons::ColourOf(50 + i)) {
            ++icons;
          }
        }
      }
      steps_.push_back(std::string(shown ? "shown" : "hidden") + (text ? " captions" : "") + " " +
                       std::to_string(icons));
      return world_.Icons.PixelsOfFile(path, list);
    }
    std::optional<IconPixels> PixelsInFile(std::string_view file, int index, int size) override {
      return world_.Icons.PixelsInFile(file, index, size);
    }
    int IconWidth(IconList list) override { return world_.Icons.IconWidth(list); }
    bool DrawSystemIcon(Canvas& canvas, IconList list, int index, PixelPoint at,
                        IconStyle style) override {
      return world_.Icons.DrawSystemIcon(canvas, list, index, at, style);
    }
    int IconCount(std::string_view file) override { return world_.Icons.IconCount(file); }
    bool DrawFileIcon(Canvas& canvas, std::string_view file, int index, PixelPoint at,
                      int size) override {
      return world_.Icons.DrawFileIcon(canvas, file, index, at, size);
    }

   private:
    sim::World& world_;
    std::vector<std::string>& steps_;
  } icons(world, steps);
  Program program(world.Services(nullptr, &icons), world.Windows());
  std::string bytes = FormatRecord(Item("Button"), world.Ansi);
  for (int i = 0; i < 3; ++i) {
    const std::string tool = "C:\\t" + std::to_string(i) + ".exe";
    world.Files.Put(tool, "x");
    world.Icons.SetIndex(tool, 50 + i);
    bytes += FormatRecord(Item("Tool", tool), world.Ansi);
  }
  world.Files.Put("C:\\m.mnu", bytes);
  frmQMenu menu(program);
  menu.LoadWindow();
  menu.ShowMenu("F2", "C:\\m.mnu");
  EXPECT_EQ(steps,
            (std::vector<std::string>{"shown captions 0", "shown captions 1", "shown captions 2"}));
  steps.clear();
  menu.HideMenu();
  menu.ShowMenu("F2", "C:\\m.mnu");
  EXPECT_TRUE(steps.empty());
  menu.UnloadWindow();
}

TEST_F(Painted, APageIsDrawnWhenItIsFirstShownAndStandsAtOnceTheSecondTime) {
  desk_.Open(1, Tools(80));
  ASSERT_EQ(desk_.Menu.Pages().Slides(), 2);
  EXPECT_EQ(desk_.World.Icons.Lookups(), 34);
  desk_.World.Desktop.PressKey(forms::key::PageDown);
  EXPECT_EQ(desk_.World.Icons.Lookups(), 68);
  for (int i = 35; i <= 68; ++i) EXPECT_EQ(IconColour(i), ToolColour(i - 1)) << i;
  desk_.World.Desktop.PressKey(forms::key::PageUp);
  for (int i = 1; i <= 34; ++i) EXPECT_EQ(IconColour(i), ToolColour(i - 1)) << i;
  const WindowId window = desk_.Menu.hWnd();
  const int paints = desk_.World.Desktop.PaintCount(window);
  desk_.World.Desktop.PressKey(forms::key::PageDown);
  EXPECT_EQ(desk_.World.Desktop.PaintCount(window), paints + 1);
  EXPECT_EQ(IconColour(35), ToolColour(34));
  EXPECT_EQ(desk_.World.Icons.Lookups(), 68);
}

// The labels show the captions, in the colours of the selection too.
TEST_F(Painted, ThePictureOfAPageHoldsNoCaption) {
  desk_.Open(1, Tools(3));
  ASSERT_NE(desk_.Menu.PagePicture, nullptr);
  for (int item = 1; item <= 3; ++item) {
    const forms::Label& label = desk_.Menu.Lbl[item];
    const PixelRect row = forms::ToPixels(label.Left(), label.Top(), label.Width(), label.Height(),
                                          desk_.World.Desktop.Screen());
    for (int y = row.top; y < row.bottom; ++y) {
      for (int x = row.left; x < row.right; ++x) {
        ASSERT_EQ(desk_.Menu.PagePicture->PixelAt({x, y}), Face()) << item;
      }
    }
  }
}

TEST_F(Painted, APageThatIsTurnedToShowsAllItsCaptionsAndThenIconAfterIcon) {
  desk_.Open(1, Tools(80));
  const Rgb ink = desk_.SystemColour(forms::color::ButtonText);
  int asked = 0;
  desk_.World.Icons.WhileAsked([&] {
    const forms::Label& last = desk_.Menu.Lbl[68];
    const PixelPoint corner = desk_.OnScreen(last.Left(), last.Top());
    const PixelRect text{corner.x, corner.y, corner.x + 40, corner.y + 13};
    EXPECT_TRUE(desk_.World.Desktop.Picture().Shows(ink, text)) << asked;
    if (asked > 0) {
      EXPECT_EQ(IconColour(34 + asked), ToolColour(33 + asked));
    }
    ++asked;
    EXPECT_EQ(IconColour(34 + asked), Face()) << asked;
  });
  desk_.World.Desktop.PressKey(forms::key::PageDown);
  EXPECT_EQ(asked, 34);
  for (const int key : {forms::key::PageUp, forms::key::PageDown})
    desk_.World.Desktop.PressKey(key);
  EXPECT_EQ(asked, 34);
}

// The shell lets messages in while it is asked for an icon.

TEST_F(Painted, ColoursThatChangeWhileIconsAreFetchedShowInTheWholeMenu) {
  constexpr Rgb kGreen = 0x0080C0A0;
  for (const int at : {0, 1, 17}) {
    SCOPED_TRACE(at);
    MenuDesk desk;
    for (int i = 0; i < 20; ++i) desk.World.Files.Put(Tool(i), "x");
    int asked = 0;
    desk.World.Icons.WhileAsked([&] {
      if (asked++ == at) desk.World.Desktop.SetSystemColor(15, kGreen);
    });
    desk.Open(1, Tools(20));
    for (int i = 1; i <= 20; ++i) {
      const PixelPoint cell = desk.IconCell(i);
      EXPECT_NE(desk.PixelInside(cell.x + 8, cell.y + 8), kGreen) << i;
      EXPECT_EQ(desk.PixelInside(cell.x + 17, cell.y + 8), kGreen) << i;
    }
    EXPECT_TRUE(desk.Menu.MenuReady);
    EXPECT_FALSE(desk.TheProgram.Guards.MenuBuilding);
  }
}

TEST_F(Painted, AReleaseOnAnArrowWhileAPageIsDrawnTurnsToNoOther) {
  int asked = 0;
  desk_.World.Icons.WhileAsked([&] {
    if (++asked == 5) desk_.Menu.LblButton_MouseUp(1, forms::MouseButton::Left, 1, 1);
  });
  desk_.Open(1, Tools(100));
  EXPECT_GE(asked, 5);
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 0);
  EXPECT_EQ(IconColour(1), ToolColour(0));
  desk_.Menu.LblButton_MouseUp(1, forms::MouseButton::Left, 1, 1);
  EXPECT_EQ(desk_.Menu.Pages().CurMenu(), 1);
}

TEST_F(Painted, AnIconWithoutAFaceShowsTheNewColourOfItsGround) {
  constexpr Rgb kGreen = 0x0080C0A0;
  bool changed = false;
  desk_.World.Files.Vanish("C:\\Corvelle\\Icons\\W95MBX02.ICO");
  desk_.World.Icons.WhileAsked([&] {
    if (!std::exchange(changed, true)) desk_.World.Desktop.SetSystemColor(15, kGreen);
  });
  // The shell is asked for it only when the file has no icon of that number.
  desk_.Open(1, {Item("Missing", "C:\\nowhere.exe|3"), Item("There", Tool(3))});
  EXPECT_EQ(IconColour(1), kGreen);
  EXPECT_EQ(IconColour(2), ToolColour(3));
}

TEST_F(Painted, IconsThatAreForgottenWhileOneIsFetchedAreFetchedAgain) {
  int asked = 0;
  desk_.World.Icons.WhileAsked([&] {
    if (asked++ < 3) desk_.Menu.ResetPicIcons();
  });
  std::vector<MenuRecord> items;
  // As above: it is asked while the icon is being drawn.
  for (int i = 0; i < 5; ++i) items.push_back(Item("Tool", Tool(i) + "|9"));
  desk_.Open(1, items);
  // A number that the file lacks shows the blank document.
  for (int i = 1; i <= 5; ++i) EXPECT_EQ(IconColour(i), SimShellIcons::ColourOf(7)) << i;
  EXPECT_GE(asked, 3);
}

// The shell loads its list of icons when it is first drawn from.
TEST_F(Painted, IconsThatAreForgottenWhileOneOfTheShellsListIsDrawnAreDrawnAgain) {
  int drawn = 0;
  desk_.World.Icons.WhileDrawn([&] {
    if (drawn++ < 3) desk_.Menu.ResetPicIcons();
  });
  std::vector<MenuRecord> items = Tools(2);
  for (int i = 0; i < 3; ++i) items.push_back(Item("Of the shell", std::to_string(20 + i)));
  desk_.Open(1, items);
  desk_.World.Desktop.Advance(200);
  for (int i = 0; i < 2; ++i) EXPECT_EQ(IconColour(i + 1), ToolColour(i)) << i;
  for (int i = 0; i < 3; ++i) EXPECT_EQ(IconColour(i + 3), SimShellIcons::ColourOf(20 + i)) << i;
  EXPECT_GE(drawn, 3);
}

TEST_F(Painted, AnotherMenuThatIsAskedForWhileAPageIsDrawnFromTheCacheComesAfterwards) {
  desk_.Open(1, Tools(3));
  desk_.Open(2, {Item("Other", Tool(9))});
  // Both menus are kept, and their pages are to be drawn once more.
  desk_.World.Desktop.SetSystemColor(15, 0x0080C0A0);
  desk_.Menu.HideMenu();
  bool asked = false;
  desk_.World.Icons.WhileAsked([&] {
    if (!std::exchange(asked, true)) desk_.Menu.ShowMenu("F3", "C:\\Corvelle\\Menus\\BMENU002.MNU");
  });
  desk_.Menu.ShowMenu("F2", "C:\\Corvelle\\Menus\\BMENU001.MNU");
  desk_.World.Desktop.Pump();
  EXPECT_TRUE(asked);
  EXPECT_EQ(desk_.Menu.MenuKey, "F2");
  for (int i = 1; i <= 3; ++i) EXPECT_EQ(IconColour(i), ToolColour(i - 1)) << i;
  desk_.Menu.ShowMenu("F3", "C:\\Corvelle\\Menus\\BMENU002.MNU");
  desk_.World.Desktop.Pump();
  EXPECT_EQ(IconColour(1), ToolColour(9));
}

TEST_F(Painted, AProgramThatEndsWhileIconsAreFetchedDrawsNoMore) {
  int asked = 0;
  desk_.World.Icons.WhileAsked([&] {
    if (++asked == 2) desk_.Menu.UnloadWindow();
  });
  desk_.Open(1, Tools(5));
  EXPECT_EQ(asked, 2);
  EXPECT_FALSE(desk_.Menu.IsLoaded());
}

TEST_F(Painted, NoRuleOfAnotherPageIsSeen) {
  std::vector<MenuRecord> items = Items(60);
  items.insert(items.begin() + 5, Separator());
  desk_.Open(1, items);
  ASSERT_GT(desk_.Menu.Pages().Slides(), 0);
  const int rule = 6 + 20 * 4 + 13 + 9;
  EXPECT_EQ(desk_.PixelInside(80, rule), desk_.SystemColour(forms::color::ButtonShadow));
  desk_.World.Desktop.PressKey(forms::key::PageDown);
  desk_.PointAway();
  EXPECT_NE(desk_.PixelInside(80, rule), desk_.SystemColour(forms::color::ButtonShadow));
  EXPECT_NE(desk_.PixelInside(5, rule), desk_.SystemColour(forms::color::ButtonShadow));
  desk_.World.Desktop.PressKey(forms::key::PageUp);
  EXPECT_EQ(desk_.PixelInside(80, rule), desk_.SystemColour(forms::color::ButtonShadow));
}

TEST_F(Painted, CoveringAndUncoveringBringsIconsAndRulesBackAndNoOldBar) {
  std::vector<MenuRecord> items = Tools(4);
  items.insert(items.begin() + 2, Separator());
  desk_.Open(1, items);
  desk_.PointAtItem(1);
  desk_.PointAtItem(3);
  const sim::SimCanvas before = desk_.World.Desktop.Picture();
  // The whole window is painted afresh, as after something that covered it.
  desk_.Menu.InvalidateAll();
  desk_.World.Desktop.Pump();
  const sim::SimCanvas after = desk_.World.Desktop.Picture();
  const PixelRect at = desk_.World.Desktop.BoundsOf(desk_.Menu.hWnd());
  for (int y = at.top; y < at.bottom; ++y) {
    for (int x = at.left; x < at.right; ++x) {
      ASSERT_EQ(after.PixelAt({x, y}), before.PixelAt({x, y})) << x << ", " << y;
    }
  }
  EXPECT_EQ(IconColour(1), ToolColour(0));
  EXPECT_EQ(IconColour(4), ToolColour(3));
  EXPECT_EQ(desk_.PixelInside(100, 6 + 33 + 9), desk_.SystemColour(forms::color::ButtonShadow));
}

TEST_F(Painted, TheOldBarIsGoneWhenTheSelectionMoves) {
  desk_.Open(1, Items(4));
  const Rgb bar = desk_.SystemColour(forms::color::Highlight);
  const auto barSeen = [&](int index) {
    const float top = desk_.Menu.Lbl[index].Top() - 45;
    const PixelPoint corner = desk_.OnScreen(0, top);
    const PixelRect row{corner.x + 21, corner.y, corner.x + 100, corner.y + 21};
    return desk_.World.Desktop.Picture().Shows(bar, row);
  };
  desk_.PointAtItem(2);
  EXPECT_TRUE(barSeen(2));
  desk_.PointAtItem(4);
  EXPECT_FALSE(barSeen(2));
  EXPECT_TRUE(barSeen(4));
  desk_.PointAway();
  desk_.Poll();
  EXPECT_FALSE(barSeen(4));
}

TEST_F(Painted, ACaptionHasItsColourBackWhenTheSelectionGoes) {
  desk_.Open(1, Items(4));
  desk_.PointAtItem(4);
  EXPECT_EQ(desk_.Menu.Lbl[4].ForeColor(), forms::color::HighlightText);
  desk_.PointAway();
  desk_.Poll();
  EXPECT_EQ(desk_.TheProgram.Menu.SelectedItem, 0);
  EXPECT_EQ(desk_.Menu.Lbl[4].ForeColor(), forms::color::ButtonText);
}

TEST_F(Painted, AMoveInsideOneItemPaintsNothing) {
  desk_.Open(1, Items(4));
  desk_.PointAtItem(2);
  const int paints = desk_.World.Desktop.PaintCount(desk_.Menu.hWnd());
  PixelPoint at = desk_.ItemPoint(2);
  for (int i = 0; i < 10; ++i) desk_.PointAt({at.x + i, at.y});
  EXPECT_EQ(desk_.World.Desktop.PaintCount(desk_.Menu.hWnd()), paints);
}

TEST_F(Painted, TheArrowsShowWhereThereIsMore) {
  desk_.Open(1, Items(100));
  const auto glyphInk = [&](int index, forms::OleColor colour) {
    const forms::Image& image = desk_.Menu.imgButton[index];
    const PixelPoint corner = desk_.OnScreen(image.Left(), image.Top());
    return desk_.World.Desktop.Picture().Shows(desk_.SystemColour(colour),
                                               {corner.x, corner.y, corner.x + 10, corner.y + 6});
  };
  EXPECT_TRUE(glyphInk(0, forms::color::GrayText));
  EXPECT_FALSE(glyphInk(0, forms::color::ButtonText));
  EXPECT_TRUE(glyphInk(1, forms::color::ButtonText));
  desk_.World.Desktop.PressKey(forms::key::End);
  EXPECT_TRUE(glyphInk(0, forms::color::ButtonText));
  EXPECT_TRUE(glyphInk(1, forms::color::GrayText));
}

TEST_F(Painted, AGlyphStandsInTheMiddleOfItsButton) {
  desk_.Open(1, Items(100));
  for (int i = 0; i <= 1; ++i) {
    const forms::Label& button = desk_.Menu.LblButton[i];
    const forms::Image& image = desk_.Menu.imgButton[i];
    EXPECT_EQ(image.Left(), button.Left() + (button.Width() - image.Width()) / 2) << i;
    EXPECT_EQ(image.Top(), button.Top() + (button.Height() - image.Height()) / 2) << i;
  }
}

TEST_F(Painted, OtherSystemColoursShowInOpenAndInKeptMenus) {
  desk_.Open(1, Tools(3));
  desk_.Menu.HideMenu();
  desk_.Open(2, Tools(100));
  const Rgb green = 0x0030A030;
  desk_.World.Desktop.SetSystemColor(15, green);
  desk_.World.Desktop.Pump();
  EXPECT_EQ(desk_.PixelInside(1, 1), green);
  EXPECT_EQ(IconColour(1), ToolColour(0));
  const PixelPoint cell = desk_.IconCell(1);
  EXPECT_EQ(desk_.PixelInside(cell.x + 17, cell.y + 8), green);
  desk_.Menu.HideMenu();
  desk_.Reopen(1);
  EXPECT_EQ(desk_.PixelInside(1, 1), green);
  EXPECT_EQ(IconColour(3), ToolColour(2));
}

TEST(frmQMenuHourglass, ShowsWhileTheMenuIsBuiltUnlessAnItemIsDragged) {
  for (const bool dragging : {false, true}) {
    MenuDesk desk;
    desk.TheProgram.Entry.ItemDragging = dragging;
    class Looking final : public FolderMenusPort {
     public:
      explicit Looking(MenuDesk& desk) : desk_(desk) {}
      std::optional<ExpandedMenu> Expand(std::string_view, std::string_view,
                                         std::string_view) override {
        Then = desk_.World.Desktop.CurrentMousePointer();
        return std::nullopt;
      }
      bool WriteGenerated(const ExpandedMenu&) override { return true; }
      bool UpdateMenu(std::string_view) override { return false; }
      forms::MousePointer Then = forms::MousePointer::Default;

     private:
      MenuDesk& desk_;
    } folders(desk);
    desk.TheProgram.Ports.FolderMenus = &folders;
    desk.Open(1, Items(2));
    EXPECT_EQ(folders.Then,
              dragging ? forms::MousePointer::Default : forms::MousePointer::Hourglass);
    EXPECT_EQ(desk.World.Desktop.CurrentMousePointer(), forms::MousePointer::Default);
  }
}

}  // namespace
}  // namespace corvelle
