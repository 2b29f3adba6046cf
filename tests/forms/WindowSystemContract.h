#pragma once

// What every home for forms must do, the simulated desktop and Windows alike. A test program
// includes this header once and instantiates the suite with makers of its own homes.

#include <chrono>
#include <thread>

#include "forms/ContractHome.h"
#include "forms/Graphic.h"
#include "forms/Scopes.h"

namespace corvelle::forms {

class WindowSystemContract : public testing::TestWithParam<ContractHomeFactory> {
 protected:
  static constexpr PixelRect kPlace{200, 150, 400, 250};

  std::unique_ptr<ContractHome> home_ = GetParam()();
  EventNotes notes_;
  EventNotes childNotes_;

  [[nodiscard]] WindowSystem& Windows() { return home_->Windows(); }
  [[nodiscard]] DesktopWindows& Desktop() { return home_->Desktop(); }
  std::unique_ptr<WindowPeer> Make(WindowEvents& events, const char* name = "CorvelleContract") {
    return Windows().CreatePeer({.Kind = PeerKind::Form, .ClassName = name, .Bounds = kPlace},
                                events);
  }
  std::unique_ptr<WindowPeer> MakeChild(WindowPeer& parent, const PixelRect& bounds) {
    return Windows().CreatePeer({.Kind = PeerKind::PictureBox,
                                 .ClassName = "CorvelleContractBox",
                                 .Parent = &parent,
                                 .Bounds = bounds},
                                childNotes_);
  }
  /// Until all that comes of a change has come.
  void Settle() { home_->Wait(100); }
  void ShowAndSettle(WindowPeer& peer) {
    peer.Show(ShowKind::Normal);
    Settle();
  }
};

// Popup menus. What the user chooses in them is tested where there is a user.

TEST_P(WindowSystemContract, APopupWithoutAChoiceGivesNothingAndItsOwnerIsInTheForeground) {
  const auto peer = Make(notes_);
  ShowAndSettle(*peer);
  bool up = false;
  bool active = false;
  const TimerId timer = Windows().StartTimer(100, [&] {
    up = true;
    active = Desktop().ActiveWindow() == peer->Id();
    home_->ClosePopup();
  });
  home_->WhilePopupIsUp([&] { home_->Wait(300); });
  const int chosen = Windows().ShowPopup(
      peer->Id(), {{.Caption = "One"}, {.Caption = "-"}, {.Caption = "Two", .Enabled = false}},
      {300, 300}, popup::RightButton);
  Windows().StopTimer(timer);
  EXPECT_EQ(chosen, popup::kNothing);
  EXPECT_TRUE(up) << "events run while it is up";
  EXPECT_TRUE(active);
}

TEST_P(WindowSystemContract, TheEndOfItsOwnerClosesAPopup) {
  auto peer = Make(notes_);
  ShowAndSettle(*peer);
  const TimerId timer = Windows().StartTimer(100, [&] { peer.reset(); });
  home_->WhilePopupIsUp([&] { home_->Wait(300); });
  EXPECT_EQ(Windows().ShowPopup(peer->Id(), {{.Caption = "One"}}, {300, 300}, 0), popup::kNothing);
  Windows().StopTimer(timer);
  EXPECT_EQ(peer, nullptr);
}

TEST_P(WindowSystemContract, QuitClosesAPopup) {
  const auto peer = Make(notes_);
  ShowAndSettle(*peer);
  const TimerId timer = Windows().StartTimer(100, [&] { Windows().Quit(); });
  home_->WhilePopupIsUp([&] { home_->Wait(300); });
  EXPECT_EQ(Windows().ShowPopup(peer->Id(), {{.Caption = "One"}}, {300, 300}, 0), popup::kNothing);
  Windows().StopTimer(timer);
}

// Windows.

TEST_P(WindowSystemContract, AWindowIsMadeHiddenWithItsClassAndTellsNothing) {
  const auto peer = Make(notes_);
  ASSERT_NE(peer, nullptr);
  Settle();
  EXPECT_NE(peer->Id(), kNoWindow);
  EXPECT_EQ(Desktop().ClassName(peer->Id()), "CorvelleContract");
  EXPECT_FALSE(Desktop().IsVisible(peer->Id()));
  EXPECT_FALSE(peer->IsMinimized());
  EXPECT_EQ(notes_.Paints, 0);
  EXPECT_FALSE(notes_.Saw("active"));
}

TEST_P(WindowSystemContract, TheCaptionIsTheWindowsText) {
  const auto peer = Make(notes_);
  peer->SetCaption("Caption \xC3\xA4");
  EXPECT_EQ(Desktop().Text(peer->Id()), "Caption \xC3\xA4");
}

TEST_P(WindowSystemContract, ShowMakesVisibleActiveAndPaintedAndHideUndoesIt) {
  const auto peer = Make(notes_);
  ShowAndSettle(*peer);
  EXPECT_TRUE(Desktop().IsVisible(peer->Id()));
  EXPECT_TRUE(notes_.Saw("active"));
  EXPECT_EQ(Desktop().ActiveWindow(), peer->Id());
  EXPECT_GE(notes_.Paints, 1);
  peer->Show(ShowKind::Hidden);
  Settle();
  EXPECT_FALSE(Desktop().IsVisible(peer->Id()));
  EXPECT_NE(Desktop().ActiveWindow(), peer->Id());
}

TEST_P(WindowSystemContract, ShowNoActivateLeavesTheActiveWindow) {
  const auto first = Make(notes_);
  ShowAndSettle(*first);
  EventNotes others;
  const auto second = Make(others, "CorvelleContract2");
  second->Show(ShowKind::NoActivate);
  Settle();
  EXPECT_TRUE(Desktop().IsVisible(second->Id()));
  EXPECT_EQ(Desktop().ActiveWindow(), first->Id());
  EXPECT_FALSE(others.Saw("active"));
}

TEST_P(WindowSystemContract, AnotherFormThatBecomesActiveMakesTheFirstInactive) {
  const auto first = Make(notes_);
  ShowAndSettle(*first);
  EventNotes others;
  const auto second = Make(others, "CorvelleContract2");
  ShowAndSettle(*second);
  EXPECT_TRUE(notes_.Saw("inactive"));
  EXPECT_TRUE(others.Saw("active"));
  first->SetForeground();
  Settle();
  EXPECT_EQ(Desktop().ActiveWindow(), first->Id());
}

TEST_P(WindowSystemContract, SetBoundsTellsTheNewBoundsBeforeItReturnsAndOnlyOnce) {
  const auto peer = Make(notes_);
  const PixelRect wanted{50, 60, 350, 180};
  peer->SetBounds(wanted);
  EXPECT_EQ(notes_.Moves, std::vector<PixelRect>{wanted});
  peer->SetBounds(wanted);
  Settle();
  EXPECT_EQ(notes_.Moves.size(), 1U);
}

TEST_P(WindowSystemContract, AWindowMayBeAsSmallAsOnePixel) {
  const auto peer = Make(notes_);
  ShowAndSettle(*peer);
  const PixelRect line{10, 10, 310, 11};
  peer->SetBounds(line);
  EXPECT_EQ(notes_.Moves.back(), line);
  const PixelRect dot{10, 10, 11, 11};
  peer->SetBounds(dot);
  EXPECT_EQ(notes_.Moves.back(), dot);
}

TEST_P(WindowSystemContract, AWindowMayStandOutsideTheScreen) {
  const auto peer = Make(notes_);
  const PixelRect above{-40, -7, 160, 20};
  peer->SetBounds(above);
  EXPECT_EQ(notes_.Moves.back(), above);
}

TEST_P(WindowSystemContract, TheBoundsOfAChildAreRelativeToItsParent) {
  const auto peer = Make(notes_);
  const auto child = MakeChild(*peer, {10, 10, 60, 60});
  ASSERT_NE(child, nullptr);
  child->Show(ShowKind::NoActivate);
  peer->SetWindowPos(InsertAfter::Topmost, swp::KeepActivation);
  ShowAndSettle(*peer);
  EXPECT_TRUE(Desktop().IsVisible(child->Id()));
  EXPECT_EQ(Desktop().WindowAt({kPlace.left + 15, kPlace.top + 15}), child->Id());
  EXPECT_EQ(Desktop().WindowAt({kPlace.left + 5, kPlace.top + 5}), peer->Id());
  child->SetBounds({100, 20, 150, 70});
  EXPECT_EQ(childNotes_.Moves, (std::vector<PixelRect>{{100, 20, 150, 70}}));
  Settle();
  EXPECT_EQ(Desktop().WindowAt({kPlace.left + 110, kPlace.top + 30}), child->Id());
}

TEST_P(WindowSystemContract, AChildIsNotVisibleWhileItsParentIsHidden) {
  const auto peer = Make(notes_);
  const auto child = MakeChild(*peer, {10, 10, 60, 60});
  child->Show(ShowKind::NoActivate);
  Settle();
  EXPECT_FALSE(Desktop().IsVisible(child->Id()));
  EXPECT_EQ(childNotes_.Paints, 0);
}

TEST_P(WindowSystemContract, MinimizeAndRestore) {
  const auto peer = Make(notes_);
  ShowAndSettle(*peer);
  peer->Show(ShowKind::Minimized);
  Settle();
  EXPECT_TRUE(peer->IsMinimized());
  EXPECT_TRUE(Desktop().IsMinimized(peer->Id()));
  peer->Show(ShowKind::Restored);
  Settle();
  EXPECT_FALSE(peer->IsMinimized());
}

TEST_P(WindowSystemContract, SetWindowPosShowsAndHides) {
  const auto peer = Make(notes_);
  peer->SetWindowPos(InsertAfter::Topmost, swp::Show);
  Settle();
  EXPECT_TRUE(Desktop().IsVisible(peer->Id()));
  peer->SetWindowPos(InsertAfter::Topmost, swp::Hide);
  Settle();
  EXPECT_FALSE(Desktop().IsVisible(peer->Id()));
  EXPECT_EQ(notes_.Moves, std::vector<PixelRect>{});
}

TEST_P(WindowSystemContract, WhatGoesOutOfSightOrStaysThereTakesNoActivation) {
  const auto first = Make(notes_);
  ShowAndSettle(*first);
  EventNotes others;
  const auto second = Make(others, "CorvelleContract2");
  second->SetWindowPos(InsertAfter::Topmost, swp::Hide);
  Settle();
  EXPECT_EQ(Desktop().ActiveWindow(), first->Id());
  EXPECT_EQ(Desktop().ForegroundWindow(), first->Id());
  EXPECT_FALSE(others.Saw("active"));
  // Nor does a hidden window take the focus.
  second->SetFocus();
  Settle();
  EXPECT_EQ(Desktop().ActiveWindow(), first->Id());
  second->Show(ShowKind::NoActivate);
  second->SetWindowPos(InsertAfter::Topmost, swp::Hide);
  Settle();
  EXPECT_FALSE(others.Saw("active"));
}

TEST_P(WindowSystemContract, TheFocusBringsItsFormToTheForeground) {
  const auto first = Make(notes_);
  ShowAndSettle(*first);
  EventNotes others;
  const auto second = Make(others, "CorvelleContract2");
  second->Show(ShowKind::NoActivate);
  second->SetFocus();
  Settle();
  EXPECT_EQ(Desktop().ActiveWindow(), second->Id());
  EXPECT_EQ(Desktop().ForegroundWindow(), second->Id());
  EXPECT_TRUE(notes_.Saw("inactive"));
}

TEST_P(WindowSystemContract, TheScreenHasASizeAndColours) {
  EXPECT_GE(Windows().ScreenSize().width, 640);
  EXPECT_GE(Windows().ScreenSize().height, 480);
  EXPECT_GE(Windows().ScreenBits(), 8);
}

TEST_P(WindowSystemContract, ATopmostWindowComesBeforeOthersInTheList) {
  const auto first = Make(notes_);
  EventNotes others;
  const auto second = Make(others, "CorvelleContract2");
  first->SetWindowPos(InsertAfter::Topmost, swp::KeepActivation);
  first->Show(ShowKind::NoActivate);
  ShowAndSettle(*second);
  const auto place = [&](WindowId id) {
    const std::vector<WindowId> all = Desktop().TopLevel();
    return std::find(all.begin(), all.end(), id) - all.begin();
  };
  EXPECT_LT(place(first->Id()), place(second->Id()));
  first->SetWindowPos(InsertAfter::NotTopmost, swp::KeepActivation);
  second->SetWindowPos(InsertAfter::Top, swp::KeepActivation);
  Settle();
  EXPECT_GT(place(first->Id()), place(second->Id()));
}

TEST_P(WindowSystemContract, ADestroyedWindowIsGoneAndTellsNothingMore) {
  auto peer = Make(notes_);
  ShowAndSettle(*peer);
  const WindowId id = peer->Id();
  notes_.Seen.clear();
  peer.reset();
  Settle();
  EXPECT_EQ(notes_.Seen, std::vector<std::string>{});
  EXPECT_EQ(Desktop().ClassName(id), "");
  EXPECT_FALSE(Desktop().IsVisible(id));
  const std::vector<WindowId> all = Desktop().TopLevel();
  EXPECT_EQ(std::count(all.begin(), all.end(), id), 0);
}

TEST_P(WindowSystemContract, TwoWindowsMayHaveOneClass) {
  const auto first = Make(notes_);
  EventNotes others;
  const auto second = Make(others);
  ASSERT_NE(second, nullptr);
  EXPECT_NE(first->Id(), second->Id());
  EXPECT_EQ(Desktop().ClassName(second->Id()), "CorvelleContract");
}

// Painting.

TEST_P(WindowSystemContract, WhatIsInvalidIsPaintedOnceWhenEventsAreLetThrough) {
  const auto peer = Make(notes_);
  ShowAndSettle(*peer);
  notes_.Paints = 0;
  peer->Invalidate({10, 10, 20, 20});
  peer->Invalidate({30, 15, 40, 30});
  EXPECT_EQ(notes_.Paints, 0);
  Settle();
  EXPECT_EQ(notes_.Paints, 1);
  EXPECT_EQ(notes_.LastDirty, (PixelRect{10, 10, 40, 30}));
}

TEST_P(WindowSystemContract, PaintNowPaintsAtOnceWhatIsOwed) {
  const auto peer = Make(notes_);
  ShowAndSettle(*peer);
  notes_.Paints = 0;
  peer->PaintNow();
  EXPECT_EQ(notes_.Paints, 0);
  peer->Invalidate({0, 0, 5, 5});
  peer->PaintNow();
  EXPECT_EQ(notes_.Paints, 1);
  Settle();
  EXPECT_EQ(notes_.Paints, 1);
}

TEST_P(WindowSystemContract, AHiddenWindowOwesNothing) {
  const auto peer = Make(notes_);
  peer->Invalidate({0, 0, 50, 50});
  peer->PaintNow();
  Settle();
  EXPECT_EQ(notes_.Paints, 0);
  EXPECT_EQ(peer->ScreenCanvas(), nullptr);
}

TEST_P(WindowSystemContract, ThePaintersCanvasHasTheWindowsOwnCoordinates) {
  const auto peer = Make(notes_);
  peer->SetWindowPos(InsertAfter::Topmost, swp::KeepActivation);
  ShowAndSettle(*peer);
  notes_.WhenPainted = [](Canvas& canvas) { canvas.FillBox({50, 40, 52, 42}, 0x000000FF); };
  peer->Invalidate({45, 35, 60, 50});
  peer->PaintNow();
  const auto screen = peer->ScreenCanvas();
  ASSERT_NE(screen, nullptr);
  EXPECT_EQ(screen->PixelAt({50, 40}), 0x000000FFU);
  EXPECT_EQ(screen->PixelAt({51, 41}), 0x000000FFU);
  EXPECT_EQ(screen->PixelAt({49, 40}), 0x00C0C0C0U);
  EXPECT_EQ(screen->PixelAt({52, 42}), 0x00C0C0C0U);
}

TEST_P(WindowSystemContract, DrawingOnTheScreenIsSeenWithoutAPaint) {
  const auto peer = Make(notes_);
  peer->SetWindowPos(InsertAfter::Topmost, swp::KeepActivation);
  ShowAndSettle(*peer);
  notes_.Paints = 0;
  peer->ScreenCanvas()->FillBox({5, 5, 15, 15}, 0x0000FF00);
  Settle();
  EXPECT_EQ(notes_.Paints, 0);
  EXPECT_EQ(peer->ScreenCanvas()->PixelAt({6, 6}), 0x0000FF00U);
  peer->Invalidate({0, 0, 20, 20});
  peer->PaintNow();
  EXPECT_EQ(peer->ScreenCanvas()->PixelAt({6, 6}), 0x00C0C0C0U);
}

TEST_P(WindowSystemContract, PaintVisibleWindowsSettlesWhatIsOwed) {
  const auto peer = Make(notes_);
  ShowAndSettle(*peer);
  notes_.Paints = 0;
  peer->Invalidate({0, 0, 5, 5});
  Desktop().PaintVisibleWindows();
  EXPECT_EQ(notes_.Paints, 1);
}

// Windows that go away inside what they are told.

TEST_P(WindowSystemContract, AWindowMayBeDestroyedInItsPainting) {
  auto peer = Make(notes_);
  notes_.WhenPainted = [&](Canvas& canvas) {
    peer.reset();
    canvas.FillBox({0, 0, 5, 5}, 0);
  };
  peer->Show(ShowKind::Normal);
  Settle();
  EXPECT_EQ(peer, nullptr);
  EXPECT_EQ(notes_.Paints, 1);
}

TEST_P(WindowSystemContract, AWindowMayBeDestroyedWhenItIsMoved) {
  auto peer = Make(notes_);
  const auto child = MakeChild(*peer, {0, 0, 10, 10});
  notes_.WhenMoved = [&] { peer.reset(); };
  peer->SetBounds({0, 0, 10, 10});
  Settle();
  EXPECT_EQ(peer, nullptr);
}

TEST_P(WindowSystemContract, AWindowMayBeDestroyedByAMessage) {
  auto peer = Make(notes_);
  const WindowId id = peer->Id();
  notes_.WhenClosed = [&] { peer.reset(); };
  Desktop().Send(id, message::Close, 0, 0);
  Settle();
  EXPECT_EQ(peer, nullptr);
}

TEST_P(WindowSystemContract, AWindowMayBeDestroyedInItsWindowProcedure) {
  auto peer = Make(notes_);
  const WindowId id = peer->Id();
  notes_.Procedure = [&](std::uint32_t message, std::uintptr_t,
                         std::intptr_t) -> std::optional<std::intptr_t> {
    if (message == message::AppBarCallback) peer.reset();
    return std::nullopt;
  };
  Desktop().Send(id, message::AppBarCallback, 0, 0);
  Settle();
  EXPECT_EQ(peer, nullptr);
}

// Messages.

TEST_P(WindowSystemContract, AMessageIsAnsweredByTheWindowProcedure) {
  const auto peer = Make(notes_);
  notes_.Procedure = [](std::uint32_t message, std::uintptr_t wParam,
                        std::intptr_t lParam) -> std::optional<std::intptr_t> {
    if (message != message::AppBarCallback) return std::nullopt;
    return static_cast<std::intptr_t>(wParam) + lParam;
  };
  EXPECT_EQ(Desktop().Send(peer->Id(), message::AppBarCallback, 40, 2), 42);
}

TEST_P(WindowSystemContract, ACloseMessageAsksTheForm) {
  const auto peer = Make(notes_);
  Desktop().Send(peer->Id(), message::Close, 0, 0);
  EXPECT_TRUE(notes_.Saw("close"));
  EXPECT_EQ(Desktop().ClassName(peer->Id()), "CorvelleContract");
}

TEST_P(WindowSystemContract, ACloseMessageThatWasAnsweredAsksNobody) {
  const auto peer = Make(notes_);
  notes_.Procedure = [](std::uint32_t message, std::uintptr_t,
                        std::intptr_t) -> std::optional<std::intptr_t> {
    if (message == message::Close) return 1;
    return std::nullopt;
  };
  EXPECT_EQ(Desktop().Send(peer->Id(), message::Close, 0, 0), 1);
  EXPECT_FALSE(notes_.Saw("close"));
}

TEST_P(WindowSystemContract, AMouseMessageFromOutsideIsAMoveAtItsPoint) {
  const auto peer = Make(notes_);
  Desktop().Send(peer->Id(), message::MouseMove, 0, (7 << 16) | 513);
  EXPECT_TRUE(notes_.Saw("move 0 513,7"));
}

// Time.

TEST_P(WindowSystemContract, ATimerTicksUntilItIsStopped) {
  int ticks = 0;
  const TimerId timer = Windows().StartTimer(20, [&] { ++ticks; });
  home_->Wait(300);
  EXPECT_GE(ticks, 3);
  EXPECT_LE(ticks, 15);
  Windows().StopTimer(timer);
  const int before = ticks;
  home_->Wait(100);
  EXPECT_EQ(ticks, before);
}

TEST_P(WindowSystemContract, ATimerMayStopItselfInItsTick) {
  int ticks = 0;
  TimerId timer = 0;
  const auto held = std::make_shared<int>(7);
  timer = Windows().StartTimer(10, [&, held] {
    Windows().StopTimer(timer);
    ticks += *held;
  });
  home_->Wait(200);
  EXPECT_EQ(ticks, 7);
  EXPECT_EQ(held.use_count(), 1);
}

TEST_P(WindowSystemContract, TimersOfOneMillisecondTick) {
  int ticks = 0;
  const TimerId timer = Windows().StartTimer(1, [&] { ++ticks; });
  home_->Wait(200);
  Windows().StopTimer(timer);
  EXPECT_GE(ticks, 5);
}

TEST_P(WindowSystemContract, ATimerTicksWhileEventsAreLetThroughInAnother) {
  int inner = 0;
  int outer = 0;
  const TimerId second = Windows().StartTimer(10, [&] { ++inner; });
  TimerId first = 0;
  first = Windows().StartTimer(15, [&] {
    Windows().StopTimer(first);
    inner = 0;
    home_->Wait(100);
    outer = inner;
  });
  home_->Wait(300);
  Windows().StopTimer(second);
  EXPECT_GE(outer, 2);
}

TEST_P(WindowSystemContract, WhatIsOwedIsPaintedAndNothingElseRuns) {
  const auto peer = Make(notes_);
  ShowAndSettle(*peer);
  int ticks = 0;
  const TimerId timer = Windows().StartTimer(1, [&] { ++ticks; });
  std::this_thread::sleep_for(std::chrono::milliseconds(50));  // by then a tick waits
  const int before = notes_.Paints;
  peer->Invalidate({0, 0, 5, 5});
  Windows().PaintWaiting();
  EXPECT_EQ(notes_.Paints, before + 1);
  EXPECT_EQ(ticks, 0);
  Windows().PaintWaiting();
  EXPECT_EQ(notes_.Paints, before + 1);
  Windows().StopTimer(timer);
}

TEST_P(WindowSystemContract, TheClockGoesOnWithTime) {
  const std::int64_t before = Windows().Now();
  home_->Wait(50);
  EXPECT_GE(Windows().Now() - before, 45);
}

TEST_P(WindowSystemContract, RunReturnsWhenATimerQuits) {
  TimerId timer = 0;
  timer = Windows().StartTimer(10, [&] {
    Windows().StopTimer(timer);
    Windows().Quit();
  });
  Windows().Run();
  Windows().Run();  // once it was told to end, it returns at once
  EXPECT_GT(timer, 0U);
}

// Facts.

TEST_P(WindowSystemContract, ThePointersShapeIsWhatWasSet) {
  EXPECT_EQ(Windows().CurrentMousePointer(), MousePointer::Default);
  Windows().SetMousePointer(MousePointer::Hourglass);
  EXPECT_EQ(Windows().CurrentMousePointer(), MousePointer::Hourglass);
  Windows().SetMousePointer(MousePointer::NoDrop);
  EXPECT_EQ(Windows().CurrentMousePointer(), MousePointer::NoDrop);
  Windows().SetMousePointer(MousePointer::Default);
}

TEST_P(WindowSystemContract, ThePointerCanBeAPictureOrNone) {
  const auto peer = Make(notes_);
  ShowAndSettle(*peer);
  std::shared_ptr<Canvas> picture = Windows().CreateCanvas({32, 32});
  picture->FillBox({0, 0, 32, 32}, Image::kMask);
  picture->FillBox({8, 8, 24, 24}, 0x000000FF);
  Windows().SetMouseIcon(picture, {16, 16});
  EXPECT_EQ(Windows().CurrentMousePointer(), MousePointer::Default);
  Windows().SetMousePointer(MousePointer::Custom);
  {
    const HourglassScope hourglass(Windows());
    EXPECT_EQ(Windows().CurrentMousePointer(), MousePointer::Hourglass);
  }
  EXPECT_EQ(Windows().CurrentMousePointer(), MousePointer::Custom);
  // Without its picture it is a pointer all the same, and taking it twice does no harm.
  Windows().SetMouseIcon(nullptr, {});
  Windows().SetMouseIcon(nullptr, {});
  Settle();
  EXPECT_EQ(Windows().CurrentMousePointer(), MousePointer::Custom);
  Windows().SetMousePointer(MousePointer::Default);
}

TEST_P(WindowSystemContract, EveryPlaceHasAScale) {
  const int dpi = Windows().DpiAt({});
  EXPECT_GE(dpi, 96);
  EXPECT_LE(dpi, 288);
  EXPECT_EQ(Windows().DpiAt({10, 10, 200, 100}), dpi) << "of the same screen";
  // Where there is no monitor the nearest one counts.
  EXPECT_EQ(Windows().DpiAt({-32000, -32000, -31999, -31999}), dpi);
}

TEST_P(WindowSystemContract, TheFirstMonitorIsThePrimaryOneAndIsThereOnce) {
  const std::vector<PixelRect> monitors = Windows().Monitors();
  ASSERT_FALSE(monitors.empty());
  EXPECT_EQ(monitors.front(), RectAt({0, 0}, Windows().ScreenSize()));
  for (std::size_t i = 1; i < monitors.size(); ++i) {
    EXPECT_FALSE(monitors[i].IsEmpty()) << i;
    EXPECT_FALSE(monitors[i].Contains({0, 0})) << i;
  }
}

TEST_P(WindowSystemContract, SystemColoursAreColours) {
  for (const int index : {13, 14, 15, 16, 17, 18, 20, 21, 22, 24}) {
    EXPECT_EQ(Windows().SystemColor(index) & 0xFF000000U, 0U) << index;
  }
  EXPECT_NE(Windows().SystemColor(15), Windows().SystemColor(18));
}

TEST_P(WindowSystemContract, TextIsWiderWithMoreCharactersAndAlwaysAsHigh) {
  const ScaledFont font{{}, kPlainDpi};
  const PixelSize none = Windows().MeasureText("", font);
  const PixelSize one = Windows().MeasureText("W", font);
  const PixelSize five = Windows().MeasureText("WWWWW", font);
  EXPECT_EQ(none.width, 0);
  EXPECT_GT(one.width, 0);
  EXPECT_GT(five.width, 3 * one.width);
  EXPECT_GT(none.height, 5);
  EXPECT_EQ(one.height, none.height);
  EXPECT_EQ(five.height, none.height);
  EXPECT_GT(Windows().MeasureText("W", {{.Points = 24}, kPlainDpi}).height, none.height);
}

TEST_P(WindowSystemContract, TextIsAsLargeAsTheScaleWants) {
  const PixelSize plain = Windows().MeasureText("WWWWW", {{.Points = 12}, 96});
  const PixelSize twice = Windows().MeasureText("WWWWW", {{.Points = 12}, 192});
  EXPECT_NEAR(twice.width, 2 * plain.width, plain.width / 4);
  EXPECT_NEAR(twice.height, 2 * plain.height, plain.height / 4);
}

// Pictures.

TEST_P(WindowSystemContract, AWindowsPictureShowsItWithItsChildrenAndTellsItsPlace) {
  const auto peer = Make(notes_);
  const auto child = MakeChild(*peer, {10, 10, 60, 40});
  childNotes_.WhenPainted = [](Canvas& canvas) { canvas.FillBox({0, 0, 50, 30}, 0x00112233); };
  child->Show(ShowKind::NoActivate);
  EXPECT_EQ(Windows().PictureOfWindow(peer->Id()).Pixels, nullptr) << "not visible yet";
  ShowAndSettle(*peer);
  const WindowPicture seen = Windows().PictureOfWindow(peer->Id());
  ASSERT_NE(seen.Pixels, nullptr);
  EXPECT_EQ(seen.Bounds, kPlace);
  EXPECT_EQ(seen.Pixels->Size(), kPlace.Size());
  EXPECT_EQ(seen.Pixels->PixelAt({5, 5}), 0x00C0C0C0U);
  EXPECT_EQ(seen.Pixels->PixelAt({30, 20}), 0x00112233U);
  EXPECT_EQ(Windows().PictureOfWindow(kNoWindow).Pixels, nullptr);
}

TEST_P(WindowSystemContract, APartOfTheScreenIsShownAsItStands) {
  const auto peer = Make(notes_);
  ShowAndSettle(*peer);
  const auto part = Windows().PictureOfScreen(
      {kPlace.left + 5, kPlace.top + 5, kPlace.left + 25, kPlace.top + 15});
  ASSERT_NE(part, nullptr);
  EXPECT_EQ(part->Size(), (PixelSize{20, 10}));
  EXPECT_EQ(part->PixelAt({3, 3}), 0x00C0C0C0U);
  EXPECT_EQ(Windows().PictureOfScreen({10, 10, 10, 20}), nullptr);
  const auto outside = Windows().PictureOfScreen({-20, -20, 10, 10});
  ASSERT_NE(outside, nullptr);
  EXPECT_EQ(outside->PixelAt({2, 2}), 0U);
}

}  // namespace corvelle::forms
