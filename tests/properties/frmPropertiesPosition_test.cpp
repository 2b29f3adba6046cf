// The tab of the edges, and what the window does as a whole.

#include <gtest/gtest.h>

#include "properties/PropertiesDesk.h"

namespace corvelle {
namespace {

using Texts = std::vector<std::string>;

class PropertiesPosition : public PropertiesDesk {
 protected:
  PropertiesPosition() { world.Folders.Put(0, {{"a", 5}, {"b", 7}, {"c", 5}}); }
  void OpenPosition() {
    OpenSingle(1);
    OpenTab("position");
  }
  /// The colour at a point of the small picture.
  Rgb PreviewAt(PixelPoint at) {
    const PixelRect box = Desktop().BoundsOf(Window().picScreen.hWnd());
    return Desktop().Picture().PixelAt({box.left + at.x, box.top + at.y});
  }
  PreviewScene Scene() {
    const PixelRect box = Desktop().BoundsOf(Window().picScreen.hWnd());
    return {.Box = box.Size(),
            .StartText = Desktop().MeasureText(kStartText, {{}, forms::kPlainDpi}),
            .ClockText = Desktop().MeasureText(kClockText, {{}, forms::kPlainDpi})};
  }
  Rgb Colour(forms::OleColor colour) { return forms::Resolve(Desktop(), colour); }
};

TEST_F(PropertiesPosition, ThePictureShowsTheTaskBarAndEachIconOnce) {
  OpenPosition();
  const std::vector<PixelPoint> places = IconGrid(Scene(), 3);
  EXPECT_EQ(PreviewAt({places[0].x + 5, places[0].y + 5}), sim::SimShellIcons::ColourOf(5));
  EXPECT_EQ(PreviewAt({places[1].x + 5, places[1].y + 5}), sim::SimShellIcons::ColourOf(7));
  EXPECT_EQ(PreviewAt({places[2].x + 5, places[2].y + 5}), Colour(0x80000001));
  const PixelRect bar = PreviewTaskbar(Scene());
  EXPECT_EQ(PreviewAt({(bar.left + bar.right) / 2, (bar.top + bar.bottom) / 2}),
            Colour(forms::color::ButtonFace));
  EXPECT_EQ(PreviewAt({bar.left + 5, bar.top}), Colour(forms::color::Highlight3D));
  EXPECT_EQ(Desktop().CurrentMousePointer(), forms::MousePointer::Default);
  for (const std::string& name : world.Files.Names(kMenus)) EXPECT_FALSE(name.starts_with("dtf"));
}

TEST_F(PropertiesPosition, AnEmptyDesktopHasATaskBarAndAClock) {
  world.Folders.Put(0, {});
  OpenPosition();
  const PixelRect clock = PreviewClock(Scene());
  EXPECT_EQ(PreviewAt(clock.TopLeft()), Colour(forms::color::ButtonShadow));
  EXPECT_EQ(PreviewAt({10, 10}), Colour(0x80000001));
}

TEST_F(PropertiesPosition, ItIsDrawnOnceAndNeverAgain) {
  OpenPosition();
  EXPECT_TRUE(Window().PositionTabLoaded);
  world.Folders.Put(0, {{"z", 9}});
  OpenTab("item");
  OpenTab("position");
  const std::vector<PixelPoint> places = IconGrid(Scene(), 1);
  EXPECT_EQ(PreviewAt({places[0].x + 5, places[0].y + 5}), sim::SimShellIcons::ColourOf(5));
}

TEST_F(PropertiesPosition, TheStripIsDrawnAtTheEdgeOfTheButtonUnderThePointer) {
  OpenPosition();
  const PixelPoint right{Scene().Box.width - 2, PreviewTaskbar(Scene()).top / 2};
  const Rgb desktop = PreviewAt(right);
  PointAt(MiddleOf(Window().cmdRight));
  Desktop().Advance(200);
  EXPECT_EQ(PreviewAt(right), Colour(forms::color::ButtonShadow));
  PointAt(MiddleOf(Window().cmdTop));
  Desktop().Advance(200);
  EXPECT_EQ(PreviewAt(right), desktop);
  EXPECT_EQ(PreviewAt({50, 0}), Colour(forms::color::Highlight3D));
  PointAt(MiddleOf(Window().cmdOK));
  Desktop().Advance(200);
  EXPECT_EQ(PreviewAt({50, 0}), Colour(0x80000001));
}

TEST_F(PropertiesPosition, TheStripIsDrawnAtTheEdgeOfTheButtonWithTheFocus) {
  OpenPosition();
  Desktop().PressKey(kKeyTab);
  ASSERT_TRUE(Window().cmdTop.HasFocus());
  Desktop().Advance(200);
  EXPECT_EQ(PreviewAt({50, 0}), Colour(forms::color::Highlight3D));
}

TEST_F(PropertiesPosition, ARebuildOfTheStripTakesItOutOfThePicture) {
  OpenPosition();
  PointAt(MiddleOf(Window().cmdTop));
  Desktop().Advance(200);
  parts->Toolbar.InitNewButtons();
  EXPECT_EQ(PreviewAt({50, 0}), Colour(0x80000001));
}

TEST_F(PropertiesPosition, TheEdgeButtonsSendTheStripThere) {
  OpenPosition();
  const std::pair<forms::CommandButton&, Edge> buttons[] = {
      {Window().cmdTop, Edge::Top},
      {Window().cmdBottom, Edge::Bottom},
      {Window().cmdLeft, Edge::Left},
      {Window().cmdRight, Edge::Right},
  };
  for (const auto& [button, edge] : buttons) {
    ClickOn(button);
    Desktop().Advance(300);
    EXPECT_TRUE(TheProgram().Strip.AppBarDocked) << EdgeText(edge);
    EXPECT_EQ(TheProgram().Strip.ToolbarEdge, edge);
    EXPECT_TRUE(parts->Toolbar.Visible()) << EdgeText(edge);
    EXPECT_TRUE(Window().Visible()) << EdgeText(edge);
  }
  const PixelRect strip = Desktop().BoundsOf(parts->Toolbar.hWnd());
  EXPECT_GE(strip.right, 1024);
  EXPECT_GT(strip.left, 900);
}

TEST_F(PropertiesPosition, AnEdgeAtWhichItStandsIsLeftAlone) {
  OpenPosition();
  ClickOn(Window().cmdLeft);
  Desktop().Advance(300);
  Desktop().ClearLog();
  ClickOn(Window().cmdLeft);
  Desktop().Advance(300);
  for (const std::string& line : Desktop().Log()) {
    EXPECT_EQ(line.find("frmToolbar"), std::string::npos) << line;
  }
}

TEST_F(PropertiesPosition, AStripOnItsWayIntoTheTaskBarIsLeftAlone) {
  OpenPosition();
  TheProgram().Strip.ToolbarMinimizing = true;
  ClickOn(Window().cmdLeft);
  EXPECT_FALSE(TheProgram().Strip.AppBarDocked);
  TheProgram().Strip.ToolbarMinimizing = false;
}

TEST_F(PropertiesPosition, AStripThatHidesIsShownAtItsNewEdge) {
  TheProgram().Strip.AutoHide = true;
  OpenPosition();
  ClickOn(Window().cmdLeft);
  EXPECT_EQ(TheProgram().Strip.ToolbarEdge, Edge::Left);
  EXPECT_TRUE(parts->Toolbar.Visible());
  EXPECT_TRUE(parts->Toolbar.picToolbar.Visible());
}

TEST_F(PropertiesPosition, AStripInTheTaskBarStaysThere) {
  OpenItem(1);
  parts->Companion.MinimizeFor(parts->Toolbar.WindowBounds());
  Desktop().Advance(300);
  ASSERT_TRUE(TheProgram().Strip.ToolbarMinimized);
  ASSERT_TRUE(Window().Visible());
  // An edit of an entry, one of the order, and an edge.
  TypeInto(Window().txtTitle, "other");
  ClickOn(Window().cmdApply);
  EXPECT_EQ(RecordAt("BMENU001.MNU", 2).FTitle, "other");
  EXPECT_FALSE(parts->Toolbar.Visible());
  EXPECT_FALSE(parts->Menu.MenuVisible());
  OpenTab("buttons");
  ClickNode(0, forms::TreePart::Check);
  ClickOn(Window().cmdApply);
  EXPECT_EQ(RecordAt("BMENU001.MNU", 1).FName, "/h");
  EXPECT_FALSE(parts->Toolbar.Visible());
  OpenTab("position");
  ClickOn(Window().cmdLeft);
  EXPECT_FALSE(parts->Toolbar.Visible());
  EXPECT_FALSE(TheProgram().Strip.AppBarDocked);
  EXPECT_TRUE(TheProgram().Strip.ToolbarMinimized);
  // It comes back with what was changed.
  Desktop().RestoreMinimized(parts->Companion.hWnd());
  Desktop().Advance(300);
  EXPECT_TRUE(parts->Toolbar.Visible());
  EXPECT_EQ(parts->Toolbar.Buttons.ButtonCount, 2);
}

// ---- the window ----

class PropertiesWindow : public PropertiesDesk {};

/// Another window that edits; it may refuse to go.
struct NotedCustomize final : EditingWindow {
  bool Loaded = true;
  bool Stays = false;
  void LoadWindow() override { Loaded = true; }
  void UnloadWindow() override { Loaded = false; }
  bool CloseWindow() override {
    Loaded = Stays;
    return !Loaded;
  }
  void EndSession() override { Loaded = false; }
  bool WindowLoaded() const override { return Loaded; }
};

TEST_F(PropertiesWindow, OnlyOneOfTheTwoWindowsThatEditIsOpen) {
  NotedCustomize customize;
  TheProgram().Ports.Customize = &customize;
  OpenSingle(1);
  EXPECT_FALSE(customize.Loaded);
  EXPECT_EQ(Window().txtTitle.Text(), "one");
  ClickOn(Window().cmdCancel);
  customize.Loaded = customize.Stays = true;
  RightClick(Single(1), "Properties");
  EXPECT_FALSE(Window().IsLoaded());
  TheProgram().Ports.Customize = nullptr;
}

TEST_F(PropertiesWindow, AllOfItCanBeReachedByTheKeyboard) {
  OpenSingle(1);
  ASSERT_TRUE(Window().txtTitle.HasFocus());
  const std::vector<const forms::Window*> item = {
      &Window().txtIcon, &Window().txtCommand, &Window().cmdFile,  &Window().cmdFolder,
      &Window().cmdOK,   &Window().cmdCancel,  &Window().cmdApply, &Window().TabStrip1};
  for (const forms::Window* const next : item) {
    Desktop().PressKey(kKeyTab);
    EXPECT_TRUE(next->HasFocus()) << next->Name();
  }
  NextTab();
  EXPECT_EQ(Window().TabStrip1.Selected(), "buttons");
  for (const forms::Window* const next : {static_cast<const forms::Window*>(&Window().TreeView1),
                                          static_cast<const forms::Window*>(&Window().cmdUp),
                                          static_cast<const forms::Window*>(&Window().cmdDown)}) {
    Desktop().PressKey(kKeyTab);
    EXPECT_TRUE(next->HasFocus()) << next->Name();
  }
  Desktop().PressKey(kKeySpace);
  EXPECT_EQ(Window().TreeView1.Selected(), Node(1));
  NextTab();
  EXPECT_EQ(Window().TabStrip1.Selected(), "position");
  EXPECT_TRUE(Window().Picture2.Visible());
  EXPECT_FALSE(Window().picButtons.Visible());
}

TEST_F(PropertiesWindow, TheFocusLeavesAPageThatGoes) {
  OpenSingle(1);
  NextTab();
  EXPECT_TRUE(Window().TreeView1.HasFocus());
  NextTab();
  EXPECT_TRUE(Window().cmdTop.HasFocus());
  NextTab();
  EXPECT_TRUE(Window().txtTitle.HasFocus());
}

TEST_F(PropertiesWindow, EnterOnAButtonPressesItAndLettersOfABoxAreText) {
  OpenSingle(1);
  Desktop().Type("oca");
  EXPECT_EQ(Window().txtTitle.Text(), "oca");
  for (int i = 0; i < 6; ++i) Desktop().PressKey(kKeyTab);
  ASSERT_TRUE(Window().cmdCancel.HasFocus());
  Desktop().PressKey(forms::key::Enter);
  EXPECT_FALSE(Window().IsLoaded());
}

TEST_F(PropertiesWindow, LeavesNothingBehindWhenItCloses) {
  std::size_t images = 0;
  for (int i = 0; i < 20; ++i) {
    OpenSingle(1);
    OpenTab("buttons");
    OpenTab("position");
    ClickOn(Window().cmdCancel);
    ASSERT_FALSE(Window().IsLoaded());
    EXPECT_EQ(Window().TreeView1.Nodes().Count(), 0U);
    if (i == 0) images = Window().TreeView1.ImageCount();
    EXPECT_EQ(Window().TreeView1.ImageCount(), images);
    EXPECT_EQ(Window().TabStrip1.Selected(), "item");
  }
  EXPECT_GT(images, 0U);
}

TEST_F(PropertiesWindow, GoesWithTheProgram) {
  OpenSingle(1);
  OpenTab("position");
  parts->Companion.UnloadWindow();
  EXPECT_FALSE(Window().IsLoaded());
  EXPECT_TRUE(Desktop().QuitCalled());
}

TEST_F(PropertiesWindow, ASystemThatRefusesItLeavesTheProgramRunning) {
  Desktop().MovePointer(Single(1).x, Single(1).y);
  Desktop().Advance(50);
  Desktop().ChooseFromPopup("Properties");
  Desktop().WhilePopupIsUp([this](const sim::Popup&) { Desktop().RefuseNextWindow(); });
  Desktop().Click(forms::MouseButton::Right);
  EXPECT_FALSE(Window().IsLoaded());
  EXPECT_FALSE(Desktop().QuitCalled());
}

}  // namespace
}  // namespace corvelle
