#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "RealHome.h"
#include "forms/ContractHome.h"
#include "forms/Graphic.h"
#include "win32/Win32Canvas.h"

namespace corvelle::forms {
namespace {

HWND HandleOf(const WindowPeer& peer) { return reinterpret_cast<HWND>(peer.Id()); }

struct WindowTest : testing::Test {
  RealHome Home;
  EventNotes Notes;
  EventNotes ChildNotes;

  std::unique_ptr<WindowPeer> Make(bool inTaskbar = false, EventNotes* notes = nullptr) {
    return Home.Windows().CreatePeer(
        {.ClassName = "CorvelleWindow", .Bounds = {200, 150, 400, 250}, .InTaskbar = inTaskbar},
        notes != nullptr ? *notes : Notes);
  }
  std::unique_ptr<WindowPeer> MakeChild(WindowPeer& parent, EventNotes& notes) {
    auto child = Home.Windows().CreatePeer({.Kind = PeerKind::PictureBox,
                                            .ClassName = "CorvelleBox",
                                            .Parent = &parent,
                                            .Bounds = {10, 10, 60, 60}},
                                           notes);
    child->Show(ShowKind::NoActivate);
    return child;
  }
  void ShowAndSettle(WindowPeer& peer) {
    peer.Show(ShowKind::Normal);
    Home.Wait(100);
    Notes.Seen.clear();
  }
};

// What a form is.

TEST_F(WindowTest, AFormHasNoFrameAndStaysOutOfTheTaskBar) {
  for (const bool inTaskbar : {false, true}) {
    const auto peer = Make(inTaskbar);
    RECT inside{};
    GetClientRect(HandleOf(*peer), &inside);
    EXPECT_EQ(inside.right, 200) << inTaskbar;
    EXPECT_EQ(inside.bottom, 100) << inTaskbar;
    const LONG_PTR extended = GetWindowLongPtrW(HandleOf(*peer), GWL_EXSTYLE);
    EXPECT_EQ((extended & WS_EX_TOOLWINDOW) != 0, !inTaskbar);
    EXPECT_EQ((extended & WS_EX_APPWINDOW) != 0, inTaskbar);
  }
}

TEST_F(WindowTest, AFormOfTheTaskBarMayBeSmallerThanACaption) {
  const auto peer = Make(true);
  peer->SetBounds({10, 20, 30, 21});
  EXPECT_EQ(Notes.Moves, (std::vector<PixelRect>{{10, 20, 30, 21}}));
}

TEST_F(WindowTest, AMinimizedFormTellsNoPlaceAndComesBackWhereItWasPutMeanwhile) {
  const auto peer = Make(true);
  ShowAndSettle(*peer);
  peer->Show(ShowKind::Minimized);
  Home.Wait(100);
  EXPECT_TRUE(Notes.Moves.empty());
  peer->SetBounds({50, 60, 250, 160});
  Home.Wait(100);
  EXPECT_TRUE(peer->IsMinimized());
  peer->Show(ShowKind::Restored);
  Home.Wait(100);
  EXPECT_FALSE(peer->IsMinimized());
  ASSERT_FALSE(Notes.Moves.empty());
  EXPECT_EQ(Notes.Moves.back(), (PixelRect{50, 60, 250, 160}));
}

// Keys.

TEST_F(WindowTest, F10IsAKeyAndAltAloneIsNone) {
  const auto peer = Make();
  SendMessageW(HandleOf(*peer), WM_SYSKEYDOWN, VK_F10, 1);
  SendMessageW(HandleOf(*peer), WM_SYSKEYDOWN, VK_MENU, 1);
  SendMessageW(HandleOf(*peer), WM_KEYDOWN, VK_LEFT, 1);
  EXPECT_EQ(Notes.Seen, (std::vector<std::string>{"key 121", "key 37"}));
}

TEST_F(WindowTest, ACharacterAboveTheBasicPlaneComesWhole) {
  const auto peer = Make();
  const HWND handle = HandleOf(*peer);
  SendMessageW(handle, WM_CHAR, 'a', 1);
  SendMessageW(handle, WM_CHAR, 0xD83D, 1);
  SendMessageW(handle, WM_CHAR, 0xDE00, 1);
  // Halves without their other half are no characters.
  SendMessageW(handle, WM_CHAR, 0xDE00, 1);
  SendMessageW(handle, WM_CHAR, 0xD83D, 1);
  SendMessageW(handle, WM_CHAR, 'b', 1);
  EXPECT_EQ(Notes.Seen, (std::vector<std::string>{"char 97", "char 128512", "char 98"}));
}

TEST_F(WindowTest, KeysGoToTheFirstChildOfTheActiveForm) {
  const auto peer = Make();
  EventNotes otherNotes;
  const auto first = MakeChild(*peer, ChildNotes);
  const auto second = MakeChild(*peer, otherNotes);
  ShowAndSettle(*peer);
  EXPECT_EQ(GetFocus(), HandleOf(*first));
  Home.PressKey(key::Down);
  EXPECT_TRUE(ChildNotes.Saw("key 40"));
  EXPECT_TRUE(otherNotes.Seen.empty());
}

TEST_F(WindowTest, TheChildThatHadTheFocusGetsItBackWithTheActivation) {
  const auto peer = Make();
  EventNotes otherNotes;
  const auto first = MakeChild(*peer, ChildNotes);
  const auto second = MakeChild(*peer, otherNotes);
  ShowAndSettle(*peer);
  second->SetFocus();
  EXPECT_EQ(GetFocus(), HandleOf(*second));
  EventNotes strangers;
  const auto stranger = Make(false, &strangers);
  ShowAndSettle(*stranger);
  EXPECT_EQ(GetFocus(), HandleOf(*stranger));
  peer->SetForeground();
  Home.Wait(100);
  EXPECT_EQ(GetFocus(), HandleOf(*second));
}

// Messages.

TEST_F(WindowTest, APointLeftOfTheWindowIsBelowZero) {
  const auto peer = Make();
  SendMessageW(HandleOf(*peer), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(-3, -4));
  EXPECT_EQ(Notes.Seen, std::vector<std::string>{"move 1 -3,-4"});
}

TEST_F(WindowTest, OnlyFormsAreAskedAboutTheirMessages) {
  std::vector<std::uint32_t> form;
  std::vector<std::uint32_t> box;
  Notes.Procedure = [&](std::uint32_t message, std::uintptr_t, std::intptr_t) {
    form.push_back(message);
    return std::optional<std::intptr_t>();
  };
  ChildNotes.Procedure = [&](std::uint32_t message, std::uintptr_t, std::intptr_t) {
    box.push_back(message);
    return std::optional<std::intptr_t>();
  };
  const auto peer = Make();
  const auto child = MakeChild(*peer, ChildNotes);
  EXPECT_TRUE(form.empty());
  SendMessageW(HandleOf(*peer), message::AppBarCallback, 2, 1);
  SendMessageW(HandleOf(*child), message::AppBarCallback, 2, 1);
  EXPECT_EQ(form, std::vector<std::uint32_t>{message::AppBarCallback});
  EXPECT_TRUE(box.empty());
}

TEST_F(WindowTest, TheEndOfTheSessionIsAllowedAndTold) {
  const auto peer = Make();
  EXPECT_NE(SendMessageW(HandleOf(*peer), WM_QUERYENDSESSION, 0, 0), 0);
  SendMessageW(HandleOf(*peer), WM_ENDSESSION, FALSE, 0);
  EXPECT_FALSE(Notes.Saw("session end"));
  SendMessageW(HandleOf(*peer), WM_ENDSESSION, TRUE, 0);
  EXPECT_TRUE(Notes.Saw("session end"));
}

TEST_F(WindowTest, SystemCloseAsksTheFormAndDestroysNothing) {
  const auto peer = Make(true);
  SendMessageW(HandleOf(*peer), WM_SYSCOMMAND, SC_CLOSE, 0);
  Home.Wait(50);
  EXPECT_TRUE(Notes.Saw("close"));
  EXPECT_NE(IsWindow(HandleOf(*peer)), 0);
}

// The mouse.

TEST_F(WindowTest, APressHoldsTheMouseUntilTheLastButtonIsUp) {
  const auto peer = Make();
  ShowAndSettle(*peer);
  const HWND handle = HandleOf(*peer);
  SendMessageW(handle, WM_LBUTTONDOWN, MK_LBUTTON, 0);
  EXPECT_EQ(GetCapture(), handle);
  SendMessageW(handle, WM_RBUTTONDOWN, MK_LBUTTON | MK_RBUTTON, 0);
  SendMessageW(handle, WM_LBUTTONUP, MK_RBUTTON, 0);
  EXPECT_EQ(GetCapture(), handle);
  SendMessageW(handle, WM_RBUTTONUP, 0, 0);
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(WindowTest, OnlyTheLeftButtonKnowsADoubleClick) {
  const auto peer = Make();
  const HWND handle = HandleOf(*peer);
  SendMessageW(handle, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(1, 2));
  SendMessageW(handle, WM_LBUTTONUP, 0, MAKELPARAM(1, 2));
  SendMessageW(handle, WM_RBUTTONDBLCLK, MK_RBUTTON, MAKELPARAM(1, 2));
  SendMessageW(handle, WM_RBUTTONUP, 0, MAKELPARAM(1, 2));
  EXPECT_EQ(Notes.Seen,
            (std::vector<std::string>{"double 1,2", "up 1 1,2", "down 2 1,2", "up 2 1,2"}));
}

TEST_F(WindowTest, HidingAFormReleasesTheMouseOfItsChild) {
  const auto peer = Make();
  const auto child = MakeChild(*peer, ChildNotes);
  ShowAndSettle(*peer);
  SendMessageW(HandleOf(*child), WM_LBUTTONDOWN, MK_LBUTTON, 0);
  ASSERT_EQ(GetCapture(), HandleOf(*child));
  peer->Show(ShowKind::Hidden);
  EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(WindowTest, ThePointersShapeIsShownOverTheWindow) {
  const auto peer = Make();
  ShowAndSettle(*peer);
  Home.MovePointer({250, 200});
  Home.Windows().SetMousePointer(MousePointer::Hourglass);
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
  SetCursor(nullptr);
  EXPECT_NE(SendMessageW(HandleOf(*peer), WM_SETCURSOR, peer->Id(), HTCLIENT), 0);
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_WAIT));
  Home.Windows().SetMousePointer(MousePointer::Default);
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(WindowTest, APictureIsThePointerWithItsHotSpotAndItsHoles) {
  const auto peer = Make();
  ShowAndSettle(*peer);
  Home.MovePointer({250, 200});
  std::shared_ptr<Canvas> picture = Home.Windows().CreateCanvas({32, 32});
  picture->FillBox({0, 0, 32, 32}, Image::kMask);
  picture->FillBox({8, 4, 24, 20}, 0x00112233);
  Home.Windows().SetMouseIcon(picture, {12, 7});
  Home.Windows().SetMousePointer(MousePointer::Custom);
  const HCURSOR cursor = GetCursor();
  ASSERT_NE(cursor, nullptr);
  EXPECT_NE(cursor, LoadCursorW(nullptr, IDC_ARROW));
  ICONINFO info{};
  ASSERT_NE(GetIconInfo(cursor, &info), 0);
  EXPECT_EQ(info.fIcon, FALSE);
  EXPECT_EQ(info.xHotspot, 12U);
  EXPECT_EQ(info.yHotspot, 7U);
  DeleteObject(info.hbmMask);
  DeleteObject(info.hbmColor);
  // Drawn on a ground, it covers what it covers and nothing else.
  const auto ground = Home.Windows().CreateCanvas({32, 32});
  ground->FillBox({0, 0, 32, 32}, 0x00445566);
  {
    const win32::CanvasDc dc(win32::AsWin32(*ground));
    DrawIconEx(dc.Get(), 0, 0, cursor, 32, 32, 0, nullptr, DI_NORMAL);
  }
  EXPECT_EQ(ground->PixelAt({8, 4}), 0x00112233U);
  EXPECT_EQ(ground->PixelAt({23, 19}), 0x00112233U);
  EXPECT_EQ(ground->PixelAt({7, 4}), 0x00445566U);
  EXPECT_EQ(ground->PixelAt({24, 19}), 0x00445566U);
  Home.Windows().SetMouseIcon(nullptr, {});
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
  Home.Windows().SetMousePointer(MousePointer::NoDrop);
  EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_NO));
  Home.Windows().SetMousePointer(MousePointer::Default);
}

// Painting.

TEST_F(WindowTest, OnlyThePartThatIsOwedIsPainted) {
  const auto peer = Make();
  peer->SetWindowPos(InsertAfter::Topmost, swp::KeepActivation);
  ShowAndSettle(*peer);
  peer->ScreenCanvas()->FillBox({0, 0, 200, 100}, 0x000000FF);
  peer->Invalidate({10, 10, 20, 20});
  peer->PaintNow();
  EXPECT_EQ(Notes.LastDirty, (PixelRect{10, 10, 20, 20}));
  EXPECT_EQ(peer->ScreenCanvas()->PixelAt({10, 10}), 0x00C0C0C0U);
  EXPECT_EQ(peer->ScreenCanvas()->PixelAt({9, 9}), 0x000000FFU);
}

// The loop.

TEST_F(WindowTest, ATimerThatIsAlwaysDueDoesNotHoldUpTheProgram) {
  int ticks = 0;
  const TimerId timer = Home.Windows().StartTimer(1, [&] {
    ++ticks;
    Sleep(40);
  });
  Sleep(40);
  Home.Windows().DoEvents();
  EXPECT_GE(ticks, 1);
  EXPECT_LE(ticks, 2);
  Home.Windows().StopTimer(timer);
}

TEST_F(WindowTest, AStoppedTimerWhoseMessageWaitsDoesNotTick) {
  int ticks = 0;
  const TimerId timer = Home.Windows().StartTimer(10, [&] { ++ticks; });
  Sleep(50);
  MSG waiting{};
  PeekMessageW(&waiting, nullptr, WM_TIMER, WM_TIMER, PM_NOREMOVE);
  Home.Windows().StopTimer(timer);
  DispatchMessageW(&waiting);
  Home.Wait(50);
  EXPECT_EQ(ticks, 0);
}

TEST_F(WindowTest, QuitEndsOnlyTheWindowSystemThatWasTold) {
  Home.Windows().Quit();
  Home.Windows().DoEvents();
  Home.Windows().Run();
  RealHome next;
  int ticks = 0;
  TimerId timer = 0;
  timer = next.Windows().StartTimer(10, [&] {
    if (++ticks < 3) return;
    next.Windows().StopTimer(timer);
    next.Windows().Quit();
  });
  next.Windows().Run();
  EXPECT_EQ(ticks, 3);
}

// Message boxes.

struct BoxTest : WindowTest {
  /// Presses a button of the box that comes up next, from a timer; notes what it says.
  void AnswerWith(int button) {
    timer_ = Home.Windows().StartTimer(20, [this, button] {
      const HWND box = FindWindowW(L"#32770", nullptr);
      if (box == nullptr) return;
      Home.Windows().StopTimer(timer_);
      wchar_t text[500];
      GetWindowTextW(box, text, 500);
      Title = text;
      GetDlgItemTextW(box, 0xFFFF, text, 500);
      Text = text;
      SendMessageW(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
    });
  }
  std::wstring Title;
  std::wstring Text;

 private:
  TimerId timer_ = 0;
};

TEST_F(BoxTest, ShowsItsTextAndGivesTheAnswer) {
  AnswerWith(IDNO);
  const unsigned flags = msgbox::YesNo | msgbox::IconQuestion | msgbox::OnTop;
  EXPECT_EQ(Home.Windows().ShowMessage(kNoWindow, "Really \xC3\xA4?", "Corvelle", flags),
            msgbox::AnswerNo);
  EXPECT_EQ(Title, L"Corvelle");
  EXPECT_EQ(Text, L"Really \x00E4?");
}

TEST_F(BoxTest, ItsOwnerIsDisabledWhileItIsUp) {
  const auto peer = Make();
  ShowAndSettle(*peer);
  bool enabled = true;
  const TimerId look = Home.Windows().StartTimer(10, [&] {
    if (FindWindowW(L"#32770", nullptr) != nullptr) enabled = IsWindowEnabled(HandleOf(*peer)) != 0;
  });
  AnswerWith(IDOK);
  EXPECT_EQ(Home.Windows().ShowMessage(peer->Id(), "Text", "Corvelle", msgbox::IconStop),
            msgbox::AnswerOk);
  Home.Windows().StopTimer(look);
  EXPECT_FALSE(enabled);
  EXPECT_NE(IsWindowEnabled(HandleOf(*peer)), 0);
}

TEST_F(BoxTest, QuitClosesIt) {
  const TimerId timer = Home.Windows().StartTimer(50, [&] { Home.Windows().Quit(); });
  Home.Windows().ShowMessage(kNoWindow, "Text", "Corvelle", msgbox::Ok);
  Home.Windows().StopTimer(timer);
  EXPECT_EQ(FindWindowW(L"#32770", nullptr), nullptr);
  Home.Windows().Run();
}

}  // namespace
}  // namespace corvelle::forms
