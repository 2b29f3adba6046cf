// Icons of the tree that are not known at once.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "customize/CustDesk.h"
#include "icons/Glyphs.h"
#include "sim/SimShellIcons.h"

namespace corvelle {
namespace {

namespace key = forms::key;
using sim::SimShellIcons;

/// Two menus: the first one's entries have their icons on a disk that may take its time.
class CustomizeIcons : public testing::Test {
 protected:
  CustomizeIcons() : desk_({}, false) {
    // The icons of the menus have been fetched by then, and of the following nothing is known.
    desk_.world.Desktop.Advance(3000);
    desk_.world.Files.AddDrive('D');
    std::vector<MenuRecord> far;
    for (int i = 0; i < 4; ++i) {
      const std::string path = "D:\\far" + std::to_string(i) + ".exe";
      desk_.world.Files.Put(path, "x");
      desk_.world.Icons.SetIndex(path, 30 + i);
      far.push_back({"far" + std::to_string(i), path, path});
    }
    desk_.PutMenu(1, {"Far", "Button", ""}, far);
    desk_.PutMenu(2, {"Near", "Button", ""}, {CustDesk::Entry("Edit"), CustDesk::Entry("Paint")});
    desk_.world.Icons.SetIndex("C:\\Tools\\Edit.exe", 50);
    desk_.world.Icons.SetIndex("C:\\Tools\\Paint.exe", 51);
  }

  sim::SimLookups& Slow() { return desk_.world.SlowAnswers; }
  sim::SimDesktop& Desktop() { return desk_.world.Desktop; }
  void Advance(int milliseconds) { Desktop().Advance(milliseconds); }
  void OpenBoth() {
    desk_.Open();
    desk_.Expand("Near");
    desk_.Expand("Far");
  }

  /// The colour at the middle of the picture of a node that is in view.
  Rgb Shown(std::string_view text) { return ShownAround(text).PixelAt({8, 8}); }
  /// True if it is the program's own picture of that kind.
  bool ShowsGlyph(std::string_view text, std::string_view glyph) {
    sim::SimCanvas expected({16, 16});
    expected.FillBox({0, 0, 16, 16}, forms::Resolve(Desktop(), forms::color::WindowGround));
    EXPECT_TRUE(DrawGlyph(expected, Desktop(), glyph, {0, 0}));
    const sim::SimCanvas shown = ShownAround(text);
    for (int i = 0; i < 256; ++i) {
      if (shown.PixelAt({i % 16, i / 16}) != expected.PixelAt({i % 16, i / 16})) return false;
    }
    return true;
  }
  int ImageOf(std::string_view text) { return desk_.Form().TreeView1.Look(desk_.Node(text)).Image; }

  CustDesk desk_;

 private:
  sim::SimCanvas ShownAround(std::string_view text) {
    const forms::TreeView& tree = desk_.Form().TreeView1;
    const PixelRect bounds = Desktop().BoundsOf(tree.hWnd());
    const PixelRect row = tree.RowRect(desk_.Node(text));
    EXPECT_GT(row.bottom, row.top) << text << " is not seen";
    const int y = (row.top + row.bottom) / 2;
    int left = row.left;
    while (left < row.right && tree.HitTest({left, y}).Part != forms::TreePart::Image) {
      ++left;
    }
    sim::SimCanvas shown({16, 16});
    shown.DrawCanvas(Desktop().Picture(),
                     RectAt({bounds.left + left, bounds.top + row.top}, {16, 16}), {0, 0});
    return shown;
  }
};

TEST_F(CustomizeIcons, AQuickAnswerIsThereAtOnce) {
  OpenBoth();
  EXPECT_EQ(Shown("far0"), SimShellIcons::ColourOf(30));
  EXPECT_EQ(Shown("Edit"), SimShellIcons::ColourOf(50));
}

TEST_F(CustomizeIcons, UntilTheyAreKnownPicturesOfTheirKindAreInTheirPlaces) {
  Slow().Hang("D:*");
  OpenBoth();
  EXPECT_TRUE(ShowsGlyph("far0", "program"));
  EXPECT_TRUE(ShowsGlyph("far3", "program"));
  EXPECT_EQ(Shown("Edit"), SimShellIcons::ColourOf(50)) << "a disk that answers";
  Slow().Resume("D:*");
  Advance(100);
  EXPECT_EQ(Shown("far0"), SimShellIcons::ColourOf(30));
  EXPECT_EQ(Shown("far3"), SimShellIcons::ColourOf(33));
}

TEST_F(CustomizeIcons, OneComesAfterTheOtherAndNoOtherNodeIsTouched) {
  Slow().Delay("D:*", 2000);
  OpenBoth();
  ASSERT_TRUE(ShowsGlyph("far0", "program"));
  const int near = ImageOf("Edit");
  for (int i = 0; i < 400 && !ShowsGlyph("far1", "program"); ++i) Advance(10);
  for (int i = 0; i < 400 && ShowsGlyph("far0", "program"); ++i) Advance(10);
  EXPECT_EQ(Shown("far0"), SimShellIcons::ColourOf(30));
  EXPECT_TRUE(ShowsGlyph("far1", "program"));
  EXPECT_EQ(ImageOf("Edit"), near);
  for (int i = 0; i < 400 && ShowsGlyph("far1", "program"); ++i) Advance(10);
  EXPECT_EQ(Shown("far1"), SimShellIcons::ColourOf(31));
}

TEST_F(CustomizeIcons, ADiskThatNeverAnswersHoldsUpNothing) {
  desk_.world.Costs.SetPrice([](std::string_view, std::string_view) { return 0; });
  desk_.world.Costs.WhenCharged([this](int waited) { Desktop().Jump(waited); });
  Slow().HangForGood("D:*");
  OpenBoth();
  EXPECT_GT(desk_.world.Costs.LongestTurn(), 0);
  EXPECT_LT(desk_.world.Costs.LongestTurn(), 100);
  Advance(60'000);
  EXPECT_TRUE(ShowsGlyph("far0", "program"));
  EXPECT_EQ(Shown("Paint"), SimShellIcons::ColourOf(51));
  desk_.ClickNode("far2");
  EXPECT_EQ(desk_.Boxes(), "far2;D:\\far2.exe;D:\\far2.exe");
  Desktop().PressKey(key::Down);
  EXPECT_EQ(desk_.Selected(), "far3");
}

TEST_F(CustomizeIcons, AnswersToAWindowThatIsClosedMeanwhileAreNotTaken) {
  Slow().Delay("D:*", 400);
  desk_.Open();
  desk_.Expand("Far");
  ASSERT_GT(Slow().UnderWay(), 0);
  desk_.Form().Unload();
  Advance(5000);
  EXPECT_FALSE(desk_.Form().IsLoaded());
  EXPECT_EQ(desk_.Form().TreeView1.Nodes().Count(), 0U);
  Slow().Delay("D:*", 0);
  OpenBoth();
  EXPECT_EQ(Shown("far3"), SimShellIcons::ColourOf(33));
}

TEST_F(CustomizeIcons, LateOnesGoToTheNodesThatHaveThemThen) {
  Slow().Hang("D:*");
  OpenBoth();
  desk_.ClickNode("far0");
  Desktop().PressKey(key::Delete);
  desk_.ClickNode("far1");
  desk_.Fill(desk_.Form().txtFile, "C:\\Tools\\Paint.exe");
  Desktop().PressKey(key::Enter);
  desk_.Drag("far2", "Paint");
  ASSERT_TRUE(ShowsGlyph("far2", "program"));
  Slow().Resume("D:*");
  Advance(100);
  EXPECT_EQ(desk_.Node("far0"), forms::kNoNode);
  EXPECT_EQ(Shown("far1"), SimShellIcons::ColourOf(51));
  EXPECT_EQ(Shown("far2"), SimShellIcons::ColourOf(32));
  EXPECT_EQ(Shown("far3"), SimShellIcons::ColourOf(33));
  desk_.Ctrl('Z');
  desk_.Ctrl('Z');
  desk_.Ctrl('Z');
  Advance(100);
  EXPECT_EQ(Shown("far0"), SimShellIcons::ColourOf(30)) << "its deletion is taken back";
}

TEST_F(CustomizeIcons, AnotherOpeningShowsTheOnesThatWereKnownLast) {
  OpenBoth();
  desk_.Form().Unload();
  desk_.world.Icons.SetIndex("D:\\far1.exe", 40);
  Slow().Delay("D:*", 2000);
  OpenBoth();
  EXPECT_EQ(Shown("far0"), SimShellIcons::ColourOf(30));
  EXPECT_EQ(Shown("far1"), SimShellIcons::ColourOf(31));
  Advance(8000);
  EXPECT_EQ(Shown("far0"), SimShellIcons::ColourOf(30));
  EXPECT_EQ(Shown("far1"), SimShellIcons::ColourOf(40)) << "it has changed on the disk";
}

TEST_F(CustomizeIcons, OpeningsLeaveNoPicturesBehind) {
  std::size_t images = 0;
  for (int i = 0; i < 5; ++i) {
    OpenBoth();
    if (i == 0) images = desk_.Form().TreeView1.ImageCount();
    EXPECT_EQ(desk_.Form().TreeView1.ImageCount(), images);
    desk_.Form().Unload();
    EXPECT_EQ(desk_.Form().TreeView1.ImageCount(), 0U) << "they go with the window";
  }
  EXPECT_GT(images, 0U);
}

}  // namespace
}  // namespace corvelle
