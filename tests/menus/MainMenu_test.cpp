#include "menus/window/MainMenu.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "core/MenuFile.h"
#include "menus/MenuDesk.h"
#include "menus/window/MenuWiring.h"

namespace corvelle {
namespace {

using Texts = std::vector<std::string>;

/// An edge of the screen that notes what is asked of it.
class NotedEdge final : public DockingPort {
 public:
  explicit NotedEdge(Program& program) : program_(program) {}
  Texts Asked;
  bool Free = true;

  void RegisterAppBar() override {}
  void RemoveAppBar() override {}
  void EndAppBar() override { Asked.emplace_back("EndAppBar"); }
  bool AutoHideFree(Edge) override { return Free; }
  void SetAppBar(std::optional<Edge> edge, bool rebuild) override {
    Asked.push_back("SetAppBar " + std::string(edge ? EdgeText(*edge) : "") +
                    (rebuild ? " anew" : ""));
    program_.Strip.AppBarDocked = true;
    if (edge) program_.Strip.ToolbarEdge = *edge;
  }
  void RevealToolbar() override {}
  void HideToolbar() override {}
  void ShowAutoHideTaken() override {}
  void ResizeToEdge() override {}

 private:
  Program& program_;
};

/// A companion that switches "Not On Top" and notes the rest.
class NotedCompanion final : public MinimizePort {
 public:
  explicit NotedCompanion(Program& program) : program_(program) {}
  Texts Asked;
  std::optional<TwipRect> TookPlace;

  void LoadWindow() override {}
  void UnloadWindow() override { Asked.emplace_back("UnloadWindow"); }
  bool WindowLoaded() const override { return true; }
  void ShowInSysTray() override {}
  void ActivateSysTray() override {
    program_.Strip.NotOnTop = true;
    program_.OptionFlags.Set(Option::NotOnTop, true);
  }
  void DeActivateSysTray() override {
    Asked.emplace_back("DeActivateSysTray");
    program_.Strip.NotOnTop = false;
    program_.OptionFlags.Set(Option::NotOnTop, false);
  }
  void MinimizeFor(const TwipRect& strip) override { TookPlace = strip; }

 private:
  Program& program_;
};

class NotedWindow final : public EditingWindow {
 public:
  int Loads = 0;
  std::function<void()> WhileLoading;
  void LoadWindow() override {
    ++Loads;
    if (WhileLoading) WhileLoading();
  }
  void UnloadWindow() override {}
  bool CloseWindow() override { return false; }
  void EndSession() override {}
  bool WindowLoaded() const override { return Loads > 0; }
};

/// Notes the still pictures of the strip among what the strip is asked.
class NotedPicture final : public CapturePort {
 public:
  NotedPicture(const Program& program, Texts& asked) : program_(program), asked_(asked) {}
  void CaptureMenu() override {}
  void ReleaseMenu() override {}
  bool MenuCaptured() const override { return false; }
  // A change of mode that runs already takes none.
  void SetPicture1() override {
    if (!program_.Guards.ChangingMode) asked_.emplace_back("SetPicture1");
  }
  void ResetPicture1() override { asked_.emplace_back("ResetPicture1"); }
  void SetPosition(Edge) override {}
  void ClearBg() override {}
  std::optional<Edge> OutlineEdge() const override { return {}; }

 private:
  const Program& program_;
  Texts& asked_;
};

class MainMenuTest : public testing::Test {
 protected:
  explicit MainMenuTest(const sim::WorldOptions& options = {}) : desk(options) {
    program.Ports.MainMenu = &mainMenu;
    program.Ports.Docking = &edge;
    program.Ports.Minimize = &companion;
    program.Ports.Capture = &still;
    program.OptionFlags.Set(Option::DefaultEntriesOffered, true);
  }

  void Open() {
    const auto file = WriteMainMenuFile(desk.World.Files, desk.World.Ansi, program.Paths.AppPath);
    ASSERT_TRUE(file);
    desk.Menu.ShowMenu("Q1", *file);
    desk.World.Desktop.Pump();
    desk.Strip.Asked.clear();
    ASSERT_TRUE(desk.Menu.MenuVisible());
  }
  void Choose(std::string_view text) { mainMenu.xMainMenu(0, text); }
  bool Marked(int label) const { return desk.Menu.GetIconName(label) == "xCircle"; }
  bool Enabled(int label) { return desk.Menu.Lbl[label].Enabled(); }
  /// Pixels of the item's icon cell that are not the ground's.
  int Ink(int label) {
    const PixelRect menu = desk.World.Desktop.BoundsOf(desk.Menu.hWnd());
    const PixelPoint cell = desk.IconCell(label);
    const sim::SimCanvas picture = desk.World.Desktop.Picture();
    const Rgb ground = desk.SystemColour(forms::color::ButtonFace);
    int count = 0;
    for (int y = 0; y < 16; ++y) {
      for (int x = 0; x < 16; ++x) {
        // The menu's frame has three pixels.
        const PixelPoint at{menu.left + 3 + cell.x + x, menu.top + 3 + cell.y + y};
        if (picture.PixelAt(at) != ground) ++count;
      }
    }
    return count;
  }
  std::string SavedFlags() {
    return desk.World.Files.Get(program.Paths.AppPath + "tmenu425.dat").value_or("none");
  }

  MenuDesk desk;
  Program& program = desk.TheProgram;
  NotedEdge edge{program};
  NotedCompanion companion{program};
  NotedPicture still{program, desk.Strip.Asked};
  MainMenu mainMenu{MainMenuPartsOf(program), desk.Menu};

  /// Stands between its two still pictures, after the one and before the other.
  bool IsBehindAPicture(const std::string& call) const {
    const Texts& asked = desk.Strip.Asked;
    const auto at = std::find(asked.begin(), asked.end(), call);
    return at != asked.end() && std::count(asked.begin(), at, "SetPicture1") == 1 &&
           std::count(asked.begin(), at, "ResetPicture1") == 0 &&
           std::count(at, asked.end(), "ResetPicture1") == 1;
  }
};

TEST_F(MainMenuTest, MarksFollowTheOptionsAtEachOpening) {
  Open();
  for (const int label : kMarkedLabels) {
    EXPECT_FALSE(Marked(label)) << label;
    EXPECT_EQ(Ink(label), 0) << label;
  }
  program.OptionFlags.Set(Option::LargeIcons, true);
  program.Strip.AutoHide = true;
  program.Strip.NotOnTop = true;
  desk.Menu.HideMenu();
  Open();
  for (const int label : kMarkedLabels) {
    EXPECT_TRUE(Marked(label)) << label;
    EXPECT_GT(Ink(label), 20) << label;
  }
  program.OptionFlags.Set(Option::LargeIcons, false);
  desk.Menu.HideMenu();
  Open();
  EXPECT_EQ(Ink(kLargeIconsLabel), 0);
  EXPECT_GT(Ink(kAutoHideLabel), 20);
}

TEST_F(MainMenuTest, AFloatingStripHasNoUseForRestoreAndADockedOneNoneForMaximize) {
  Open();
  EXPECT_FALSE(Enabled(kRestoreLabel));
  EXPECT_TRUE(Enabled(kMaximizeLabel));
  EXPECT_TRUE(Enabled(kMinimizeLabel));
  desk.Menu.HideMenu();
  program.Strip.AppBarDocked = true;
  Open();
  EXPECT_TRUE(Enabled(kRestoreLabel));
  EXPECT_FALSE(Enabled(kMaximizeLabel));
  EXPECT_TRUE(Enabled(kMinimizeLabel));
  EXPECT_EQ(desk.Menu.ShadowCount, 1);
}

TEST_F(MainMenuTest, AMenuThatIsCheckedAgainEnablesWhatIsOfUseNow) {
  Open();
  program.Strip.AppBarDocked = true;
  mainMenu.CheckLabels();
  EXPECT_TRUE(Enabled(kRestoreLabel));
  EXPECT_FALSE(Enabled(kMaximizeLabel));
  program.Strip.AppBarDocked = false;
  mainMenu.CheckLabels();
  EXPECT_FALSE(Enabled(kRestoreLabel));
  EXPECT_TRUE(Enabled(kMaximizeLabel));
}

TEST_F(MainMenuTest, AMenuThatIsCheckedAgainIsPaintedAtOnce) {
  Open();
  const int paints = desk.World.Desktop.PaintCount(desk.Menu.hWnd());
  program.Strip.AppBarDocked = true;
  mainMenu.CheckLabels();
  EXPECT_GT(desk.World.Desktop.PaintCount(desk.Menu.hWnd()), paints);
}

TEST_F(MainMenuTest, TheMenuIsGoneAndEventsHaveRunBeforeAChoiceIsCarriedOut) {
  NotedWindow about;
  program.Ports.About = &about;
  Open();
  int ticks = 0;
  const forms::TimerId timer = desk.World.Desktop.StartTimer(1, [&ticks] { ++ticks; });
  desk.World.Desktop.Jump(5);
  ASSERT_EQ(ticks, 0);
  about.WhileLoading = [&] {
    EXPECT_FALSE(desk.Menu.MenuVisible());
    EXPECT_GT(ticks, 0);
  };
  Choose("About...");
  EXPECT_EQ(about.Loads, 1);
  // The strip's state of the menu ends with the choice.
  EXPECT_EQ(desk.Strip.Times("ResetMenu"), 1);
  desk.World.Desktop.StopTimer(timer);
}

TEST_F(MainMenuTest, ADisabledChoiceDoesNothing) {
  Choose("Restore");
  program.Strip.AppBarDocked = true;
  Choose("Maximize");
  EXPECT_EQ(desk.Strip.Times("RestoreToolbar"), 0);
  EXPECT_EQ(edge.Asked, Texts{});
}

TEST_F(MainMenuTest, ANameStandsForTheItemsCaptionAndAnUnknownOneForNothing) {
  NotedWindow about;
  program.Ports.About = &about;
  Open();
  desk.ClickItem(7);
  EXPECT_EQ(about.Loads, 1);
  Choose("  about...  ");
  EXPECT_EQ(about.Loads, 2);
  Choose("Something else");
  // Without a text it is the selected item, and there is none.
  mainMenu.xMainMenu(7, "");
  EXPECT_EQ(about.Loads, 2);
  program.Menu.SelectedItem = 7;
  mainMenu.xMainMenu(7, "");
  EXPECT_EQ(about.Loads, 3);
  EXPECT_EQ(program.Menu.SelectedItem, 0);
  EXPECT_FALSE(desk.Menu.MenuVisible());
}

TEST_F(MainMenuTest, CustomizeAndAboutAreQuietWhereThereAreNone) {
  Choose("Customize...");
  Choose("About...");
  NotedWindow customize;
  program.Ports.Customize = &customize;
  Choose("Customize...");
  EXPECT_EQ(customize.Loads, 1);
}

TEST_F(MainMenuTest, LargeIconsOnAVerticalStripRebuildsTheButtonsAtOnce) {
  for (const Edge at : {Edge::Left, Edge::Right}) {
    SCOPED_TRACE(at == Edge::Left ? "left" : "right");
    program.Strip.AppBarDocked = true;
    program.Strip.ToolbarVertical = true;
    program.Strip.ToolbarEdge = at;
    desk.Strip.Asked.clear();
    Choose("Large Icons");
    EXPECT_TRUE(program.OptionFlags.Is(Option::LargeIcons));
    EXPECT_EQ(SavedFlags()[25], '1');
    EXPECT_EQ(desk.Strip.Times("InitNewButtons"), 1);
    EXPECT_EQ(desk.Strip.Times("UnloadItems"), 0);
    EXPECT_EQ(desk.Strip.Times("RemoveQMenu Q1"), 1);
    desk.Strip.WhileRebuilding = [this] { EXPECT_TRUE(program.Guards.ChangingMode); };
    Choose("Large Icons");
    EXPECT_EQ(desk.Strip.Times("InitNewButtons"), 2);
    EXPECT_EQ(SavedFlags()[25], '0');
    EXPECT_FALSE(program.Guards.ChangingMode);
  }
}

TEST_F(MainMenuTest, LargeIconsElsewhereUnloadsAndBuildsAnewAndTakesTheEdgeAgain) {
  Choose("Large Icons");
  EXPECT_TRUE(program.OptionFlags.Is(Option::LargeIcons));
  EXPECT_EQ(desk.Strip.Times("UnloadItems"), 1);
  EXPECT_EQ(desk.Strip.Times("InitButtons"), 1);
  EXPECT_EQ(desk.Strip.Times("InitNewButtons"), 0);
  EXPECT_TRUE(IsBehindAPicture("UnloadItems"));
  EXPECT_TRUE(IsBehindAPicture("InitButtons"));
  EXPECT_EQ(desk.Strip.Times("RemoveQMenu Q1"), 1);
  EXPECT_EQ(edge.Asked, Texts{});
  program.Strip.AppBarDocked = true;
  program.Strip.ToolbarEdge = Edge::Bottom;
  Choose("Large Icons");
  EXPECT_EQ(edge.Asked, Texts{"SetAppBar BOTTOM"});
  EXPECT_EQ(SavedFlags()[25], '0');
}

TEST_F(MainMenuTest, AutoHideDocksAFloatingStripAndPutsItOnTop) {
  program.Strip.NotOnTop = true;
  program.OptionFlags.Set(Option::NotOnTop, true);
  Choose("Auto Hide");
  EXPECT_TRUE(program.Strip.AutoHide);
  EXPECT_FALSE(program.Strip.NotOnTop);
  EXPECT_EQ(edge.Asked, Texts{"SetAppBar TOP anew"});
  EXPECT_EQ(SavedFlags()[2], '1');
  EXPECT_EQ(SavedFlags()[22], '0');
  EXPECT_EQ(companion.Asked, Texts{"DeActivateSysTray"});
  EXPECT_TRUE(IsBehindAPicture("RemoveQMenu Q1"));
  EXPECT_EQ(desk.Strip.Times("RemoveQMenu Q1"), 1);
  EXPECT_EQ(desk.Strip.Watches, (std::vector<bool>{false, true}));
  Choose("Auto Hide");
  EXPECT_FALSE(program.Strip.AutoHide);
  EXPECT_EQ(SavedFlags()[2], '0');
  EXPECT_FALSE(program.Guards.ChangingMode);
}

TEST_F(MainMenuTest, AutoHideAtATakenEdgeChangesNothing) {
  edge.Free = false;
  Choose("Auto Hide");
  EXPECT_FALSE(program.Strip.AutoHide);
  EXPECT_FALSE(program.OptionFlags.Is(Option::AutoHide));
  EXPECT_EQ(edge.Asked, Texts{});
  EXPECT_EQ(SavedFlags(), "none");
}

TEST_F(MainMenuTest, NotOnTopIsSwitchedByTheCompanionAndSaved) {
  Choose("Not On Top");
  EXPECT_TRUE(program.Strip.NotOnTop);
  EXPECT_EQ(SavedFlags()[22], '1');
  EXPECT_EQ(desk.Strip.Times("RemoveQMenu Q1"), 2);
  Choose("Not On Top");
  EXPECT_FALSE(program.Strip.NotOnTop);
  EXPECT_EQ(SavedFlags()[22], '0');
}

TEST_F(MainMenuTest, NoChangeOfModeBeginsInsideAnother) {
  const forms::TimerId timer = desk.World.Desktop.StartTimer(1, [this] { Choose("Large Icons"); });
  program.Guards.ChangingMode = true;
  desk.World.Desktop.Advance(20);
  EXPECT_FALSE(program.OptionFlags.Is(Option::LargeIcons));
  EXPECT_EQ(desk.Strip.Times("InitButtons"), 0);
  Choose("Refresh All");
  EXPECT_EQ(desk.Strip.Times("InitNewButtons"), 0);
  program.Guards.ChangingMode = false;
  desk.World.Desktop.Advance(1);
  EXPECT_EQ(desk.Strip.Times("InitButtons"), 1);
  desk.World.Desktop.StopTimer(timer);
}

TEST_F(MainMenuTest, RefreshAllReadsTheStripAnew) {
  desk.Strip.WhileRebuilding = [this] {
    EXPECT_EQ(desk.World.Desktop.CurrentMousePointer(), forms::MousePointer::Hourglass);
  };
  Choose("Refresh All");
  EXPECT_EQ(desk.Strip.Times("InitNewButtons"), 1);
  EXPECT_TRUE(IsBehindAPicture("InitNewButtons"));
  EXPECT_EQ(desk.World.Desktop.CurrentMousePointer(), forms::MousePointer::Default);
}

TEST_F(MainMenuTest, RestoreClearsTheEdgeAndTheLargeIconsThatTheTopIsNotToHave) {
  program.Strip.AppBarDocked = true;
  for (const Option option : {Option::AtEdge, Option::LargeIcons})
    program.OptionFlags.Set(option, true);
  Choose("Restore");
  EXPECT_FALSE(program.OptionFlags.Is(Option::AtEdge));
  EXPECT_FALSE(program.OptionFlags.Is(Option::LargeIcons));
  EXPECT_EQ(desk.Strip.Times("RestoreToolbar"), 1);
  EXPECT_EQ(desk.Strip.Times("RemoveQMenu Q1"), 1);
  for (const Option option : {Option::LargeInRestoreMode, Option::LargeIcons})
    program.OptionFlags.Set(option, true);
  Choose("Restore");
  EXPECT_TRUE(program.OptionFlags.Is(Option::LargeIcons));
}

TEST_F(MainMenuTest, MaximizeTakesTheStoredEdge) {
  program.OptionFlags.Set(Option::EdgeCodeFirst, true);
  program.OptionFlags.Set(Option::EdgeCodeSecond, true);
  Choose("Maximize");
  EXPECT_EQ(edge.Asked, Texts{"SetAppBar RIGHT anew"});
  EXPECT_EQ(desk.Strip.Times("RemoveQMenu Q1"), 1);
}

TEST_F(MainMenuTest, MinimizeHandsThePlaceOfTheStripToTheCompanion) {
  Choose("Minimize");
  EXPECT_EQ(companion.TookPlace, (TwipRect{0, 0, 6000, 450}));
}

TEST_F(MainMenuTest, HelpTopicsWithoutTheFileSaysSoAndStartsNothing) {
  desk.World.Desktop.Answer("Corvelle help file could not be found in Corvelle folder.",
                            forms::msgbox::AnswerOk);
  Choose("Help Topics");
  EXPECT_EQ(desk.Started(), Texts{});
  ASSERT_EQ(desk.World.Desktop.Boxes().size(), 1U);
  EXPECT_EQ(desk.World.Desktop.Boxes()[0].Flags, 0x40010U);
  EXPECT_EQ(desk.World.Desktop.Boxes()[0].Title, "Corvelle");
}

TEST_F(MainMenuTest, HelpTopicsStartsTheFileUnlessItsWindowIsOpen) {
  const std::string help = program.Paths.AppPath + "corvelle.hlp";
  desk.World.Files.Put(help, "x");
  desk.World.Shell.Associate(".hlp", "C:\\Windows\\winhlp32.exe");
  const WindowId window = desk.World.Desktop.AddOtherWindow({.Title = "Corvelle Help"});
  Choose("Help Topics");
  EXPECT_EQ(desk.World.Desktop.ForegroundWindow(), window);
  EXPECT_TRUE(desk.World.Shell.Log().empty());
  desk.World.Desktop.CloseOther(window);
  Choose("Help Topics");
  ASSERT_FALSE(desk.World.Shell.Log().empty());
  EXPECT_EQ(desk.World.Shell.Log()[0].File, help);
}

TEST_F(MainMenuTest, ExitUnloadsTheStripAndThenTheCompanion) {
  Open();
  desk.ClickItem(11);
  EXPECT_FALSE(desk.Strip.WindowLoaded());
  EXPECT_EQ(desk.Strip.Times("HideWindow"), 1);
  EXPECT_FALSE(desk.Strip.Watches.empty() || desk.Strip.Watches.back());
  EXPECT_EQ(companion.Asked, Texts{"UnloadWindow"});
}

TEST_F(MainMenuTest, WithoutEdgeAndCompanionTheirChoicesDoNothing) {
  program.Ports.Docking = nullptr;
  program.Ports.Minimize = nullptr;
  for (const char* text : {"Auto Hide", "Not On Top", "Maximize", "Minimize"}) Choose(text);
  EXPECT_EQ(SavedFlags(), "none");
  EXPECT_FALSE(program.Strip.ToolbarMinimized);
  EXPECT_EQ(desk.Strip.Times("HideWindow"), 0);
}

}  // namespace
}  // namespace corvelle
