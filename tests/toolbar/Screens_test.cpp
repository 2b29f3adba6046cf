// More than one screen, other resolutions and scales.

#include <gtest/gtest.h>

#include <string>

#include "toolbar/DockDesk.h"
#include "toolbar/notices/frmHelp.h"
#include "toolbar/strip/StripWiring.h"

namespace corvelle {
namespace {

constexpr Edge kAllEdges[] = {Edge::Top, Edge::Bottom, Edge::Left, Edge::Right};
constexpr PixelRect kPrimary{0, 0, 1024, 768};

bool Within(const PixelRect& inner, const PixelRect& outer) {
  return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
         inner.bottom <= outer.bottom;
}

/// Where the strip stands at an edge of a screen of that size, 41 or 42 pixels across.
PixelRect AtEdgeOf(Edge at, PixelSize screen) {
  switch (at) {
    case Edge::Left:
      return {0, 0, 41, screen.height};
    case Edge::Right:
      return {screen.width - 42, 0, screen.width, screen.height};
    case Edge::Bottom:
      return {0, screen.height - 42, screen.width, screen.height};
    case Edge::Top:
      break;
  }
  return {0, -3, screen.width, 38};
}

// ---- a second screen ----

struct ScreenRow {
  const char* name;
  PixelRect bounds;
};

const ScreenRow kSecondScreens[] = {{"on the right", {1024, 0, 2304, 1024}},
                                    {"on the left", {-1280, 0, 0, 1024}},
                                    {"above", {0, -768, 1024, 0}},
                                    {"below", {0, 768, 1024, 1536}}};

/// A desktop whose second screen another program fills, with its window in front.
struct TwoScreens : DockDesk {
  explicit TwoScreens(const ScreenRow& second) : Second(second.bounds) {}

  [[nodiscard]] PixelPoint MiddleOfSecond() const {
    return {(Second.left + Second.right) / 2, (Second.top + Second.bottom) / 2};
  }
  /// The pixel of the second screen that is next to the middle of the first.
  [[nodiscard]] PixelPoint JustBeyond() const {
    if (Second.left >= kPrimary.right) return {kPrimary.right, 400};
    if (Second.right <= 0) return {-1, 400};
    return {500, Second.top >= kPrimary.bottom ? kPrimary.bottom : -1};
  }
  void WorkThere() {
    const WindowId other = World.Desktop.AddOtherWindow({.Title = "There", .Bounds = Second});
    PointAt(MiddleOfSecond());
    World.Desktop.TakeForeground(other);
    World.Desktop.Pump();
  }
  const PixelRect Second;
};

TEST(SecondScreen, TheStripStandsAtTheEdgesOfThePrimaryAndSoDoItsMenus) {
  for (const ScreenRow& second : kSecondScreens) {
    for (const Edge at : kAllEdges) {
      SCOPED_TRACE(std::string(second.name) + ", " + std::string(EdgeText(at)));
      TwoScreens desk(second);
      desk.StartAt(at);
      EXPECT_EQ(desk.Bounds(), AtEdgeOf(at, kPrimary.Size()));
      desk.Click(4);
      ASSERT_EQ(desk.MenuUp(), 4);
      const PixelRect menu = desk.World.Desktop.BoundsOf(desk.Menu.hWnd());
      EXPECT_TRUE(Within(menu, kPrimary));
      // A press on the other screen is one elsewhere.
      desk.WorkThere();
      desk.Wait(500);
      EXPECT_EQ(desk.Bounds(), AtEdgeOf(at, kPrimary.Size()));
    }
  }
}

TEST(SecondScreen, WhoWorksThereLetsTheStripHideAndOnlyThePrimarysEdgeBringsItBack) {
  for (const ScreenRow& second : kSecondScreens) {
    for (const Edge at : kAllEdges) {
      SCOPED_TRACE(std::string(second.name) + ", " + std::string(EdgeText(at)));
      TwoScreens desk(second);
      desk.SetOption(Option::AutoHide, true);
      desk.StartAt(at);
      desk.WorkThere();
      desk.Poll();
      EXPECT_TRUE(desk.IsLine());
      desk.PointAt(desk.JustBeyond());
      desk.Poll();
      EXPECT_TRUE(desk.IsLine());
      const PixelRect line = desk.Bounds();
      EXPECT_TRUE(Within(line, kPrimary));
      desk.PointAt({(line.left + line.right) / 2, (line.top + line.bottom) / 2});
      desk.Poll();
      EXPECT_EQ(desk.Bounds(), AtEdgeOf(at, kPrimary.Size()));
    }
  }
}

TEST(SecondScreen, APullThatGoesThereShowsAndTakesTheNearEdgeOfThePrimary) {
  const Edge near[] = {Edge::Right, Edge::Left, Edge::Top, Edge::Bottom};
  int at = 0;
  for (const ScreenRow& second : kSecondScreens) {
    SCOPED_TRACE(second.name);
    const Edge wanted = near[at++];
    TwoScreens desk(second);
    desk.StartAt(wanted == Edge::Left ? Edge::Right : Edge::Left);
    desk.Pull(desk.JustBeyond());
    EXPECT_EQ(desk.Picture.OutlineEdge(), wanted);
    EXPECT_TRUE(Within(desk.World.Desktop.BoundsOf(desk.Picture.hWnd()), kPrimary));
    desk.World.Desktop.Release();
    EXPECT_EQ(desk.Bounds(), AtEdgeOf(wanted, kPrimary.Size()));
  }
}

TEST(SecondScreen, ASlideThatGoesThereEndsOnThePrimary) {
  for (const ScreenRow& second : {kSecondScreens[0], kSecondScreens[1]}) {
    SCOPED_TRACE(second.name);
    TwoScreens desk(second);
    desk.Start();
    desk.PullAndDrop({desk.MiddleOfSecond().x, 5});
    EXPECT_GE(desk.Bounds().left, 0);
    EXPECT_LE(desk.Bounds().right, kPrimary.right);
    EXPECT_EQ(desk.Bounds().top, -7);
    EXPECT_FALSE(desk.TheProgram.Strip.AppBarDocked);
  }
}

TEST(SecondScreen, APlaceSavedThereIsBroughtBack) {
  for (const float left : {-15000.0F, 20000.0F}) {
    SCOPED_TRACE(left);
    DockDesk desk;
    desk.Strip.SavedLeft = left;
    desk.Start();
    desk.Strip.SavedLeft = left;
    desk.Strip.Move(left, desk.Strip.Top(), desk.Strip.Width(), desk.Strip.Height());
    desk.Strip.UpdateToolbarPosition();
    desk.Strip.SetToolbarPosition();
    EXPECT_TRUE(desk.Bounds().left >= 0 && desk.Bounds().right <= kPrimary.right);
  }
}

TEST(SecondScreen, AHintStaysOnThePrimary) {
  DockDesk desk;
  desk.StartAt(Edge::Right);
  frmHelp hint(HintPartsOf(desk.TheProgram));
  desk.TheProgram.Ports.Hint = &hint;
  desk.PointAt({1022, 766});
  hint.SetHint("A title that is longer than the room beside the pointer");
  EXPECT_TRUE(Within(desk.World.Desktop.BoundsOf(hint.hWnd()), kPrimary));
  desk.TheProgram.Ports.Hint = nullptr;
}

TEST(SecondScreen, AStillPictureShowsThePartOnThePrimaryOnly) {
  DockDesk desk;
  desk.Start();
  desk.SetOption(Option::AboveFullScreen, true);
  // Half of the strip hangs over to the left, as options 13 and 27 let it.
  desk.TheProgram.Guards.RestoreBusy = true;
  desk.Strip.SetLeft(-desk.Strip.Width() / 2);
  desk.TheProgram.Guards.RestoreBusy = false;
  desk.Picture.SetPicture1();
  const PixelRect picture = desk.World.Desktop.BoundsOf(desk.Picture.hWnd());
  EXPECT_EQ(picture.left, 0);
  EXPECT_EQ(picture.right, desk.Bounds().right);
  desk.Picture.ResetPicture1();
}

// ---- another resolution ----

struct SizeRow {
  const char* name;
  PixelSize size;
};

const SizeRow kSizes[] = {{"smaller", {800, 600}},
                          {"larger", {1600, 1200}},
                          {"upright", {768, 1024}},
                          {"only lower", {1024, 700}},
                          {"only narrower", {900, 768}}};

constexpr float kScales[] = {15, 12, 10};

struct Resized : DockDesk {
  explicit Resized(float twips = 15) : DockDesk(sim::WorldOptions{.TwipsPerPixel = twips}) {}
  void Resize(PixelSize size) {
    World.Desktop.SetScreen(size);
    World.Desktop.Pump();
  }
};

TEST(Resolution, AStripAtAnEdgeGoesAlongAtEveryScale) {
  for (const float twips : kScales) {
    for (const SizeRow& row : kSizes) {
      for (const Edge at : kAllEdges) {
        SCOPED_TRACE(std::string(row.name) + ", " + std::string(EdgeText(at)) + ", " +
                     std::to_string(twips));
        Resized desk(twips);
        desk.StartAt(at);
        desk.Resize(row.size);
        EXPECT_EQ(desk.Bounds(), AtEdgeOf(at, row.size));
        const PixelRect work = desk.World.Bars.WorkArea();
        EXPECT_FALSE(work == RectAt({0, 0}, row.size));
        // Its row reaches to the new end, and whoever moves it finds it at the new place again.
        const forms::PictureBox& row2 = desk.Strip.picSingleButton;
        EXPECT_EQ(IsVertical(at) ? row2.Bottom() : row2.Right(),
                  (IsVertical(at) ? desk.Strip.Height() : desk.Strip.Width()) - 2 * twips);
        desk.World.Desktop.MoveOther(desk.Strip.hWnd(), RectAt({20, 30}, desk.Bounds().Size()));
        EXPECT_EQ(desk.Bounds(), AtEdgeOf(at, row.size));
        desk.Resize({1024, 768});
        EXPECT_EQ(desk.Bounds(), AtEdgeOf(at, {1024, 768}));
      }
    }
  }
}

TEST(Resolution, AHiddenStripIsALineAtTheNewEdgeAndComesBackThere) {
  for (const SizeRow& row : kSizes) {
    for (const Edge at : kAllEdges) {
      SCOPED_TRACE(std::string(row.name) + ", " + std::string(EdgeText(at)));
      Resized desk;
      desk.SetOption(Option::AutoHide, true);
      desk.StartAt(at);
      desk.GoElsewhere();
      desk.Poll();
      ASSERT_TRUE(desk.IsLine());
      desk.Resize(row.size);
      EXPECT_TRUE(desk.IsLine());
      const PixelRect line = desk.Bounds();
      EXPECT_TRUE(Within(line, RectAt({0, 0}, row.size)));
      EXPECT_EQ(IsVertical(at) ? line.Width() : line.Height(), 1);
      EXPECT_EQ(IsVertical(at) ? line.Height() : line.Width(),
                IsVertical(at) ? row.size.height : row.size.width);
      EXPECT_EQ(desk.World.Bars.WorkArea(), RectAt({0, 0}, row.size));
      desk.PointAt({(line.left + line.right) / 2, (line.top + line.bottom) / 2});
      desk.Poll();
      EXPECT_EQ(desk.Bounds(), AtEdgeOf(at, row.size));
    }
  }
}

TEST(Resolution, AHiddenStripAtNoEdgeStaysALineAtTheTop) {
  Resized desk;
  desk.SetOption(Option::AutoHide, true);
  desk.Start();
  desk.GoElsewhere();
  desk.Poll();
  ASSERT_TRUE(desk.IsLine());
  desk.Resize({640, 480});
  EXPECT_TRUE(desk.IsLine());
  const PixelRect line = desk.Bounds();
  EXPECT_EQ(line.top, 0);
  EXPECT_EQ(line.bottom, 1);
  EXPECT_TRUE(line.left >= 0 && line.right <= 640);
  desk.PointAt({line.left + 5, 0});
  desk.Poll();
  EXPECT_FALSE(desk.IsLine());
  EXPECT_EQ(desk.Bounds().top, -7);
}

TEST(Resolution, AMenuThatIsUpGoesAndTheNextStandsOnTheNewScreen) {
  for (const SizeRow& row : kSizes) {
    for (const Edge at : kAllEdges) {
      SCOPED_TRACE(std::string(row.name) + ", " + std::string(EdgeText(at)));
      Resized desk;
      desk.StartAt(at);
      desk.Click(4);
      ASSERT_EQ(desk.MenuUp(), 4);
      desk.Resize(row.size);
      EXPECT_EQ(desk.MenuUp(), 0);
      EXPECT_TRUE(desk.AtRest(4));
      desk.Click(4);
      ASSERT_EQ(desk.MenuUp(), 4);
      EXPECT_TRUE(Within(desk.World.Desktop.BoundsOf(desk.Menu.hWnd()), RectAt({0, 0}, row.size)));
    }
  }
}

TEST(Resolution, AStripInTheTaskBarReturnsToTheNewScreen) {
  for (const SizeRow& row : kSizes) {
    for (const Edge at : kAllEdges) {
      for (const bool autoHide : {false, true}) {
        SCOPED_TRACE(std::string(row.name) + ", " + std::string(EdgeText(at)) +
                     (autoHide ? ", hiding" : ""));
        Resized desk;
        desk.SetOption(Option::AutoHide, autoHide);
        desk.StartAt(at);
        desk.Companion.MinimizeFor(desk.Strip.WindowBounds());
        EXPECT_EQ(desk.World.Bars.WorkArea(), (PixelRect{0, 0, 1024, 768}));
        EXPECT_EQ(desk.World.Bars.HiddenBar(at), kNoWindow);
        desk.Resize(row.size);
        EXPECT_FALSE(desk.Shown());
        desk.Companion.RestoreWindow();
        desk.World.Desktop.Pump();
        EXPECT_TRUE(desk.Shown());
        EXPECT_FALSE(desk.Companion.Visible());
        EXPECT_EQ(desk.Bounds(), AtEdgeOf(at, row.size));
        EXPECT_EQ(desk.World.Bars.HiddenBar(at), autoHide ? desk.Strip.hWnd() : kNoWindow);
        EXPECT_TRUE(desk.TheProgram.Guards.ToolbarReady);
        EXPECT_FALSE(desk.TheProgram.Guards.AppBarBusy);
      }
    }
  }
}

TEST(Resolution, AFloatingStripInTheTaskBarReturnsToTheNewScreen) {
  Resized desk;
  desk.Start();
  desk.Companion.MinimizeFor(desk.Strip.WindowBounds());
  desk.Resize({640, 480});
  desk.Companion.RestoreWindow();
  desk.World.Desktop.Pump();
  EXPECT_TRUE(desk.Shown());
  EXPECT_EQ(desk.Bounds().top, -7);
  EXPECT_TRUE(desk.Bounds().left >= 0 && desk.Bounds().right <= 640);
}

}  // namespace
}  // namespace corvelle
