// Icons of the Properties window that are not known at once.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "icons/Glyphs.h"
#include "properties/PropertiesDesk.h"
#include "sim/SimShellIcons.h"

namespace corvelle {
namespace {

using sim::SimShellIcons;

/// A menu whose entry has its icon on a disk that may take its time, and three menu buttons, two of
/// which have theirs there.
class PropertiesIcons : public PropertiesDesk {
 protected:
  PropertiesIcons() {
    world.Files.AddDrive('D');
    for (const char* path : {"D:\\far.exe", "D:\\further.txt", "D:\\other.txt"})
      world.Files.Put(path, "x");
    world.Icons.SetIndex("D:\\far.exe", 30);
    world.Icons.SetIndex("D:\\further.txt", 31);
    world.Icons.SetIndex("D:\\other.txt", 32);
    world.Icons.SetIndex("C:\\Tools\\tool.exe", 33);
    Desktop().Advance(3000);  // of the following nothing has been asked
    PutHead(1, "Far", "D:\\far.exe");
    PutHead(2, "Near", "C:\\Tools\\tool.exe");
    PutHead(3, "Further", "D:\\further.txt");
    world.Costs.SetPrice([](std::string_view, std::string_view) { return 0; });
    world.Costs.WhenCharged([this](int waited) { Desktop().Jump(waited); });
  }

  void PutHead(int number, const std::string& title, const std::string& icon) {
    world.Files.Put(kMenus + MenuFileName(number),
                    Bytes({{title, icon, ""}, {title + " 1", "D:\\other.txt", "x"}}));
  }
  sim::SimLookups& Slow() { return world.SlowAnswers; }
  /// The entry's icon: the middle of its picture.
  Rgb Pix() {
    const PixelRect at = Desktop().BoundsOf(Window().Pix.hWnd());
    return Desktop().Picture().PixelAt({(at.left + at.right) / 2, (at.top + at.bottom) / 2});
  }
  /// True if the picture of that kind is to be seen around the point.
  bool ShowsGlyph(PixelPoint corner, std::string_view glyph, int scale, forms::OleColor ground) {
    const int side = 16 * scale;
    sim::SimCanvas expected({side, side});
    expected.FillBox({0, 0, side, side}, forms::Resolve(Desktop(), ground));
    EXPECT_TRUE(DrawGlyph(expected, Desktop(), glyph, {0, 0}, scale));
    for (int i = 0; i < side * side; ++i) {
      if (Desktop().Picture().PixelAt({corner.x + i % side, corner.y + i / side}) !=
          expected.PixelAt({i % side, i / side}))
        return false;
    }
    return true;
  }
  bool PixShowsGlyph(std::string_view glyph) {
    return ShowsGlyph(Desktop().BoundsOf(Window().Pix.hWnd()).TopLeft(), glyph, 2,
                      forms::color::ButtonFace);
  }
  PixelPoint CornerOf(std::size_t index) {
    const PixelPoint in = PointOf(index, forms::TreePart::Image);
    const PixelRect row = Window().TreeView1.RowRect(Node(index));
    return {in.x - 2, Desktop().BoundsOf(Window().TreeView1.hWnd()).top + row.top};
  }
  Rgb NodeIcon(std::size_t index) {
    const PixelPoint corner = CornerOf(index);
    return Desktop().Picture().PixelAt({corner.x + 8, corner.y + 8});
  }
  bool NodeShowsGlyph(std::size_t index, std::string_view glyph) {
    return ShowsGlyph(CornerOf(index), glyph, 1, forms::color::WindowGround);
  }
  void ShowIcon(const std::string& icon) {
    TypeInto(Window().txtIcon, icon);
    Desktop().PressKey(forms::key::Enter);
    Desktop().Advance(10);
  }
};

// ---- the entry ----

TEST_F(PropertiesIcons, UntilItIsKnownAPictureOfItsKindIsInItsPlace) {
  OpenSingle(1);
  Slow().Hang("D:*");
  ShowIcon("D:\\other.txt");
  EXPECT_TRUE(PixShowsGlyph("document"));
  Slow().Resume("D:*");
  Desktop().Advance(10);
  EXPECT_EQ(Pix(), SimShellIcons::ColourOf(32));
}

TEST_F(PropertiesIcons, OneThatComesForAnEarlierTextIsNotShown) {
  OpenSingle(1);
  Slow().Hang("D:*");
  ShowIcon("D:\\other.txt");
  ShowIcon("C:\\Tools\\tool.exe");
  Slow().Resume("D:*");
  Desktop().Advance(1000);
  EXPECT_EQ(Pix(), SimShellIcons::ColourOf(33));
}

TEST_F(PropertiesIcons, OneThatNeverComesHoldsUpNothing) {
  OpenSingle(1);
  Slow().HangForGood("D:*");
  world.Costs.Clear();
  ShowIcon("D:\\other.txt");
  EXPECT_LT(world.Costs.LongestTurn(), 100);
  Desktop().Advance(30'000);
  EXPECT_TRUE(PixShowsGlyph("document"));
  TypeInto(Window().txtTitle, "Another");
  ClickOn(Window().cmdOK);
  EXPECT_FALSE(Window().IsLoaded());
}

TEST_F(PropertiesIcons, TheWindowMayCloseBeforeItComes) {
  OpenSingle(1);
  Slow().Delay("D:*", 500);
  ShowIcon("D:\\other.txt");
  Desktop().PressKey(forms::key::Escape);
  ASSERT_FALSE(Window().IsLoaded());
  Desktop().Advance(5000);
  EXPECT_FALSE(Window().IsLoaded());
}

// ---- the buttons ----

TEST_F(PropertiesIcons, TheTreeShowsWhatIsKnownAndTheRestWhenItComes) {
  OpenSingle(1);
  Slow().Hang("D:*");
  world.Costs.Clear();
  OpenTab("buttons");
  EXPECT_LT(world.Costs.LongestTurn(), 100);
  EXPECT_TRUE(NodeShowsGlyph(0, "program"));
  EXPECT_EQ(NodeIcon(1), SimShellIcons::ColourOf(33));
  EXPECT_TRUE(NodeShowsGlyph(2, "document"));
  Slow().Resume("D:*");
  Desktop().Advance(10);
  EXPECT_EQ(NodeIcon(0), SimShellIcons::ColourOf(30));
  EXPECT_EQ(NodeIcon(2), SimShellIcons::ColourOf(31));
}

TEST_F(PropertiesIcons, ALateOneFollowsItsNodeToAnotherPlace) {
  OpenSingle(1);
  Slow().Hang("D:*");
  OpenTab("buttons");
  ClickNode(0, forms::TreePart::Label);
  ClickOn(Window().cmdDown);
  ASSERT_EQ(Titles(), "Near+Far+Further+");
  Slow().Resume("D:*");
  Desktop().Advance(10);
  EXPECT_EQ(NodeIcon(0), SimShellIcons::ColourOf(33));
  EXPECT_EQ(NodeIcon(1), SimShellIcons::ColourOf(30));
  EXPECT_EQ(NodeIcon(2), SimShellIcons::ColourOf(31));
}

TEST_F(PropertiesIcons, LateOnesLeaveNoPicturesOfTheirKindBehind) {
  constexpr std::size_t kDocuments = 10;
  for (std::size_t i = 0; i < kDocuments; ++i) {
    const std::string path = "D:\\letter " + std::to_string(i) + ".txt";
    world.Files.Put(path, "x");
    world.Icons.SetIndex(path, 40 + static_cast<int>(i));
    PutHead(3 + static_cast<int>(i), "Letter", path);
  }
  OpenSingle(1);
  Slow().Hang("D:*");
  OpenTab("buttons");
  // Of what is not known at all, of a program and of a document, and the icon that is near.
  EXPECT_EQ(Window().TreeView1.ImageCount(), 4U);
  Slow().Resume("D:*");
  Desktop().Advance(1000);
  EXPECT_EQ(NodeIcon(0), SimShellIcons::ColourOf(30));
  EXPECT_EQ(NodeIcon(2), SimShellIcons::ColourOf(40));
  EXPECT_EQ(Window().TreeView1.ImageCount(), 4U + 1 + kDocuments);
}

// ---- the small picture ----

TEST_F(PropertiesIcons, TheSmallDesktopIsShownWithoutIconsUntilTheShellHasListedIt) {
  world.Folders.Put(0, {{"a", 5}});
  OpenSingle(1);
  Slow().Hang("shell");
  world.Costs.Clear();
  OpenTab("position");
  EXPECT_LT(world.Costs.LongestTurn(), 100);
  const PixelRect box = Desktop().BoundsOf(Window().picScreen.hWnd());
  const PreviewScene scene{.Box = box.Size(),
                           .StartText = Desktop().MeasureText(kStartText, {{}, forms::kPlainDpi}),
                           .ClockText = Desktop().MeasureText(kClockText, {{}, forms::kPlainDpi})};
  const PixelPoint place = IconGrid(scene, 1).front();
  const PixelPoint icon{box.left + place.x + 5, box.top + place.y + 5};
  EXPECT_EQ(Desktop().Picture().PixelAt(icon), forms::Resolve(Desktop(), 0x80000001));
  PointAt(MiddleOf(Window().cmdRight));
  Desktop().Advance(200);
  const PixelPoint strip{box.right - 2, box.top + PreviewTaskbar(scene).top / 2};
  const Rgb shadow = forms::Resolve(Desktop(), forms::color::ButtonShadow);
  ASSERT_EQ(Desktop().Picture().PixelAt(strip), shadow);
  Slow().Resume("shell");
  Desktop().Advance(10);
  EXPECT_EQ(Desktop().Picture().PixelAt(icon), SimShellIcons::ColourOf(5));
  EXPECT_EQ(Desktop().Picture().PixelAt(strip), shadow) << "the strip in it stays";
}

TEST_F(PropertiesIcons, AShellThatNeverListsTheDesktopLeavesTheButtonsOfTheEdges) {
  world.Folders.Put(0, {{"a", 5}});
  OpenSingle(1);
  Slow().HangForGood("shell");
  OpenTab("position");
  Desktop().Advance(30'000);
  ClickOn(Window().cmdBottom);
  EXPECT_EQ(TheProgram().Strip.ToolbarEdge, Edge::Bottom);
  Desktop().PressKey(forms::key::Escape);
  EXPECT_FALSE(Window().IsLoaded());
}

}  // namespace
}  // namespace corvelle
