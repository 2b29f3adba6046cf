#include "forms/Form.h"

#include <gtest/gtest.h>

#include "TestForm.h"
#include "sim/World.h"

namespace corvelle::forms {
namespace {

struct FormTest : testing::Test {
  sim::World World;
  TestForm Form{World.Windows()};

  [[nodiscard]] sim::SimDesktop& Desktop() { return World.Desktop; }
};

TEST_F(FormTest, NothingIsVisibleOrHasAWindowBeforeLoad) {
  EXPECT_FALSE(Form.Visible());
  EXPECT_FALSE(Form.IsLoaded());
  EXPECT_EQ(Form.hWnd(), kNoWindow);
  EXPECT_EQ(Form.Box.hWnd(), kNoWindow);
  EXPECT_EQ(Desktop().Find("TestForm"), kNoWindow);
}

TEST_F(FormTest, LoadMakesHiddenWindowsNamedAsFormAndBoxAndThenCallsFormLoad) {
  bool formStood = false;
  bool boxStood = false;
  Form.OnLoad = [&] {
    formStood = Form.hWnd() != kNoWindow;
    boxStood = Form.Box.hWnd() != kNoWindow;
  };
  EXPECT_TRUE(Form.Load());
  EXPECT_TRUE(formStood);
  EXPECT_TRUE(boxStood);
  EXPECT_EQ(Form.hWnd(), Desktop().Find("TestForm"));
  EXPECT_EQ(Form.Box.hWnd(), Desktop().Find("TestBox"));
  EXPECT_FALSE(Form.Visible());
  EXPECT_FALSE(Desktop().IsShown(Form.hWnd()));
  EXPECT_FALSE(Desktop().IsShown(Form.Box.hWnd()));
}

class BarForm final : public forms::Form {
 public:
  BarForm(WindowSystem& windows, bool inTaskbar)
      : forms::Form(windows, "BarForm", BorderStyle::Fixed, inTaskbar) {}
};

TEST_F(FormTest, HasAButtonInTheTaskBarOnlyIfItWasMadeWithOne) {
  for (const bool wanted : {false, true}) {
    BarForm other(World.Windows(), wanted);
    ASSERT_TRUE(other.Load());
    EXPECT_EQ(Desktop().Look(other.hWnd())->InTaskbar, wanted);
    other.Unload();
  }
}

TEST_F(FormTest, LoadingTwiceCallsFormLoadOnce) {
  Form.Load();
  Form.Load();
  EXPECT_EQ(Form.Events, Texts{"load"});
}

TEST_F(FormTest, LoadIsFalseWhenTheSystemRefusesTheWindow) {
  Desktop().RefuseNextWindow();
  EXPECT_FALSE(Form.Load());
  EXPECT_FALSE(Form.IsLoaded());
  EXPECT_EQ(Form.Events, Texts{});
}

TEST_F(FormTest, AFormThatUnloadsInItsOwnLoadIsNotLoaded) {
  Form.OnLoad = [&] { Form.Unload(); };
  EXPECT_FALSE(Form.Load());
  EXPECT_EQ(Desktop().Find("TestForm"), kNoWindow);
  Form.Show();
  EXPECT_FALSE(Form.Visible());
}

TEST_F(FormTest, WhileItsInputIsHeldItTakesNoneAndChangesOfEnabledWait) {
  const auto takesInput = [this] { return Desktop().Look(Form.hWnd())->Enabled; };
  Form.HoldInput();
  Form.Load();
  EXPECT_FALSE(takesInput());
  Form.HoldInput();
  Form.ReleaseInput();
  Form.SetEnabled(false);
  Form.SetEnabled(true);
  EXPECT_FALSE(takesInput());
  Form.ReleaseInput();
  EXPECT_TRUE(takesInput());
  // A message box disables and enables its owner by itself.
  Form.HoldInputOfOwner();
  EXPECT_TRUE(takesInput());
  Form.SetEnabled(false);
  EXPECT_TRUE(takesInput());
  Form.ReleaseInput();
  EXPECT_FALSE(takesInput());
}

TEST_F(FormTest, PropertiesSetBeforeLoadAreHandedOver) {
  Form.SetCaption("Caption");
  Form.Move(150, 300, 1500, 750);
  Form.SetEnabled(false);
  Form.Load();
  EXPECT_EQ(Desktop().Text(Form.hWnd()), "Caption");
  EXPECT_EQ(Desktop().BoundsOf(Form.hWnd()), (PixelRect{10, 20, 110, 70}));
  EXPECT_FALSE(Desktop().Look(Form.hWnd())->Enabled);
}

TEST_F(FormTest, ABoxMadeInvisibleBeforeLoadStaysSo) {
  Form.Box.SetVisible(false);
  Form.Show();
  EXPECT_TRUE(Desktop().IsShown(Form.hWnd()));
  EXPECT_FALSE(Desktop().IsShown(Form.Box.hWnd()));
}

TEST_F(FormTest, ShowMakesVisibleAndActive) {
  Form.Show();
  EXPECT_TRUE(Form.Visible());
  EXPECT_TRUE(Desktop().IsShown(Form.Box.hWnd()));
  EXPECT_EQ(Desktop().ActiveWindow(), Form.hWnd());
  EXPECT_EQ(Form.Events, (Texts{"load", "activate"}));
}

TEST_F(FormTest, ShowNoActivateLeavesTheActiveWindowAlone) {
  const WindowId other = Desktop().AddOtherWindow({.Title = "Other"});
  Desktop().TakeForeground(other);
  Form.ShowNoActivate();
  EXPECT_TRUE(Desktop().IsShown(Form.hWnd()));
  EXPECT_EQ(Desktop().ForegroundWindow(), other);
}

TEST_F(FormTest, MakingAnUnloadedFormVisibleLoadsIt) {
  Form.SetVisible(true);
  EXPECT_TRUE(Form.IsLoaded());
  EXPECT_TRUE(Form.Visible());
  EXPECT_TRUE(Desktop().IsShown(Form.hWnd()));
}

TEST_F(FormTest, HideHidesAndGivesTheForegroundBack) {
  const WindowId other = Desktop().AddOtherWindow({.Title = "Other"});
  Desktop().TakeForeground(other);
  Form.Show();
  Form.Hide();
  EXPECT_FALSE(Form.Visible());
  EXPECT_FALSE(Desktop().IsShown(Form.hWnd()));
  EXPECT_EQ(Desktop().ForegroundWindow(), other);
  EXPECT_EQ(Form.Events, (Texts{"load", "activate", "deactivate"}));
}

TEST_F(FormTest, UnloadCallsFormUnloadThenDestroysBoxesBeforeTheForm) {
  Form.Show();
  Desktop().ClearLog();
  WindowId duringUnload = kNoWindow;
  Form.OnUnload = [&] { duringUnload = Form.hWnd(); };
  Form.Unload();
  EXPECT_NE(duringUnload, kNoWindow);
  EXPECT_FALSE(Form.Visible());
  EXPECT_FALSE(Form.IsLoaded());
  EXPECT_EQ(Form.hWnd(), kNoWindow);
  EXPECT_EQ(Desktop().Log(), (Texts{"destroy TestBox", "destroy TestForm"}));
}

TEST_F(FormTest, UnloadingTwiceOrInsideUnloadCallsFormUnloadOnce) {
  Form.Load();
  Form.OnUnload = [&] { Form.Unload(); };
  Form.Unload();
  Form.Unload();
  EXPECT_EQ(Form.Events, (Texts{"load", "unload"}));
}

TEST_F(FormTest, CanBeLoadedAgainAfterUnload) {
  Form.Show();
  Form.Unload();
  Form.Load();
  EXPECT_TRUE(Form.IsLoaded());
  EXPECT_FALSE(Form.Visible());
  EXPECT_EQ(Desktop().BoundsOf(Form.hWnd()), (PixelRect{100, 100, 300, 200}));
}

TEST_F(FormTest, ACloseMessageUnloadsUnlessTheFormDecidesOtherwise) {
  Form.Show();
  Form.OnQuery = [] {};
  Desktop().Send(Form.hWnd(), message::Close, 0, 0);
  EXPECT_TRUE(Form.IsLoaded());
  Form.OnQuery = nullptr;
  Desktop().Send(Form.hWnd(), message::Close, 0, 0);
  EXPECT_FALSE(Form.IsLoaded());
}

TEST_F(FormTest, TheEndOfTheSessionUnloads) {
  Form.Show();
  Desktop().EndSession();
  EXPECT_FALSE(Form.IsLoaded());
}

TEST_F(FormTest, TheWindowProcedureSeesMessagesFirstAndMayAnswer) {
  std::vector<std::uint32_t> seen;
  Form.OnProcedure = [&](std::uint32_t message) -> std::optional<std::intptr_t> {
    seen.push_back(message);
    if (message == message::Close || message == message::AppBarCallback) return 42;
    return std::nullopt;
  };
  Form.Load();
  seen.clear();
  EXPECT_EQ(Desktop().Send(Form.hWnd(), message::AppBarCallback, 1, 2), 42);
  EXPECT_EQ(Desktop().Send(Form.hWnd(), message::Close, 0, 0), 42);
  EXPECT_TRUE(Form.IsLoaded());
  EXPECT_EQ(seen, (std::vector<std::uint32_t>{message::AppBarCallback, message::Close}));
}

TEST_F(FormTest, AnotherHandThatMovesTheWindowChangesItsTwips) {
  Form.Load();
  Form.Move(100, 100, 3000, 1500);
  EXPECT_EQ(Form.Left(), 100.0F);  // finer than a pixel, as it was set
  Desktop().MoveOther(Form.hWnd(), {20, 30, 120, 80});
  EXPECT_EQ(Form.Left(), 300.0F);
  EXPECT_EQ(Form.Top(), 450.0F);
  EXPECT_EQ(Form.Width(), 1500.0F);
  EXPECT_EQ(Form.Height(), 750.0F);
}

TEST_F(FormTest, ResizeIsToldOncePerChangeOfSizeAndNotForMoves) {
  Form.Load();
  Form.Events.clear();
  Form.Move(0, 0, 1500, 1500);
  Form.SetLeft(300);
  Form.SetWidth(1500);
  Desktop().MoveOther(Form.hWnd(), {0, 0, 50, 50});
  EXPECT_EQ(Form.Events, (Texts{"resize", "resize"}));
}

TEST_F(FormTest, SetWindowPosShowsAndHidesByItsFlags) {
  Form.Load();
  Form.SetWindowPos(InsertAfter::Topmost, swp::Hide);
  EXPECT_TRUE(Desktop().IsTopmost(Form.hWnd()));
  EXPECT_FALSE(Form.Visible());
  Form.SetWindowPos(InsertAfter::Topmost, swp::Show);
  EXPECT_TRUE(Form.Visible());
  EXPECT_TRUE(Desktop().IsShown(Form.hWnd()));
  Form.SetWindowPos(InsertAfter::NotTopmost, swp::KeepActivation);
  EXPECT_FALSE(Desktop().IsTopmost(Form.hWnd()));
  EXPECT_TRUE(Form.Visible());
  Form.SetWindowPos(InsertAfter::Bottom, swp::Hide);
  EXPECT_FALSE(Form.Visible());
}

TEST_F(FormTest, SetWindowPosBeforeLoadDoesNothing) {
  Form.SetWindowPos(InsertAfter::Topmost, swp::Show);
  EXPECT_FALSE(Form.Visible());
  EXPECT_FALSE(Form.IsLoaded());
  Form.Load();
  EXPECT_FALSE(Desktop().IsTopmost(Form.hWnd()));
}

TEST_F(FormTest, MinimizeAndRestore) {
  Form.Show();
  Form.Minimize();
  EXPECT_TRUE(Form.IsMinimized());
  EXPECT_FALSE(Desktop().IsShown(Form.hWnd()));
  EXPECT_NE(Desktop().ActiveWindow(), Form.hWnd());
  Form.RestoreWindow();
  EXPECT_FALSE(Form.IsMinimized());
  EXPECT_TRUE(Desktop().IsShown(Form.hWnd()));
  EXPECT_EQ(Desktop().ActiveWindow(), Form.hWnd());
}

TEST_F(FormTest, KeysReachTheFormWhetherItOrItsBoxHasTheFocus) {
  Form.Show();
  Form.Events.clear();
  EXPECT_EQ(Desktop().FocusWindow(), Form.Box.hWnd());
  Desktop().PressKey(key::Down);
  Form.SetFocus();
  Desktop().Type("a");
  Desktop().PressKey(key::Enter);
  EXPECT_EQ(Form.Events, (Texts{"key 40", "key 65", "char 97", "key 13", "char 13"}));
}

TEST_F(FormTest, KeysCarryWhatIsHeldDown) {
  Form.Show();
  Form.Events.clear();
  Desktop().KeyDown(17);
  Desktop().PressKey(key::F5);
  Desktop().KeyUp(17);
  Desktop().PressKey(key::F5);
  EXPECT_EQ(Form.Events, (Texts{"key 17 ctrl", "key 116 ctrl", "key 116"}));
}

TEST_F(FormTest, ADestroyedFormTakesItsWindowsWithIt) {
  {
    TestForm other(World.Windows(), BorderStyle::None, "Other");
    other.Show();
    EXPECT_NE(Desktop().Find("Other"), kNoWindow);
  }
  EXPECT_EQ(Desktop().Find("Other"), kNoWindow);
}

// Handlers that take their own window away.

TEST_F(FormTest, MayUnloadInsideAPress) {
  Form.Show();
  Form.Box.MouseDown = [&](MouseButton, ShiftState, float, float) { Form.Unload(); };
  Desktop().ClickAt(110, 110);
  EXPECT_FALSE(Form.IsLoaded());
  EXPECT_EQ(Desktop().CaptureWindow(), kNoWindow);
}

TEST_F(FormTest, MayUnloadInsideAPaint) {
  Form.Paint = [&] { Form.Unload(); };
  Form.Show();
  Desktop().Pump();
  EXPECT_FALSE(Form.IsLoaded());
}

TEST_F(FormTest, MayUnloadInsideAKey) {
  struct Closing : TestForm {
    using TestForm::TestForm;
    void Form_KeyDown(int, ShiftState) override { Unload(); }
  };
  Closing form(World.Windows(), BorderStyle::None, "Closing");
  form.Show();
  Desktop().PressKey(key::Escape);
  EXPECT_FALSE(form.IsLoaded());
}

TEST_F(FormTest, MayUnloadWhenItLosesTheActivation) {
  struct Closing : TestForm {
    using TestForm::TestForm;
    void Form_Deactivate() override { Unload(); }
  };
  Closing form(World.Windows(), BorderStyle::None, "Closing");
  form.Show();
  Form.Show();
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_EQ(Desktop().ActiveWindow(), Form.hWnd());
}

TEST_F(FormTest, AModalOneThatIsDestroyedWhileItIsUpGivesItsOwnerTheInputBack) {
  Form.Show();
  {
    TestForm modal{World.Windows()};
    modal.ShowModalTo(Form);
    EXPECT_FALSE(Form.Enabled());
  }
  EXPECT_TRUE(Form.Enabled());
  EXPECT_TRUE(Desktop().Look(Form.hWnd())->Enabled);
}

TEST_F(FormTest, MayBeDestroyedInsideItsBoxesPress) {
  auto other = std::make_unique<TestForm>(World.Windows(), BorderStyle::None, "Other");
  other->Show();
  other->Box.MouseDown = [&](MouseButton, ShiftState, float, float) { other.reset(); };
  Desktop().ClickAt(110, 110);
  EXPECT_EQ(Desktop().Find("Other"), kNoWindow);
}

TEST_F(FormTest, MayBeDestroyedInsideItsPaint) {
  auto other = std::make_unique<TestForm>(World.Windows(), BorderStyle::None, "Other");
  other->Paint = [&] { other.reset(); };
  other->Show();
  Desktop().Pump();
  EXPECT_EQ(Desktop().Find("Other"), kNoWindow);
}

TEST_F(FormTest, MayBeDestroyedInsideItsUnload) {
  auto other = std::make_unique<TestForm>(World.Windows(), BorderStyle::None, "Other");
  other->Load();
  other->OnUnload = [&] { other.reset(); };
  other->Unload();
  EXPECT_EQ(Desktop().Find("Other"), kNoWindow);
}

TEST_F(FormTest, BoxesOfABorderedFormStandInsideTheBorder) {
  TestForm bordered(World.Windows(), BorderStyle::Raised, "Bordered");
  bordered.Box.Move(15, 30, 150, 150);
  bordered.Load();
  EXPECT_EQ(Desktop().Look(bordered.Box.hWnd())->Bounds, (PixelRect{4, 5, 14, 15}));
  Desktop().MoveOther(bordered.Box.hWnd(), {13, 23, 33, 43});
  EXPECT_EQ(bordered.Box.Left(), 150.0F);
  EXPECT_EQ(bordered.Box.Top(), 300.0F);
}

TEST_F(FormTest, TheInsideIsTheWindowLessItsBorder) {
  TestForm bordered(World.Windows(), BorderStyle::Raised, "Bordered");
  EXPECT_EQ(bordered.ScaleWidth(), 3000.0F - 90.0F);
  EXPECT_EQ(bordered.ScaleHeight(), 1500.0F - 90.0F);
  EXPECT_EQ(Form.ScaleWidth(), 3000.0F);
}

}  // namespace
}  // namespace corvelle::forms
