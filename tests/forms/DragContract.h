#pragma once

// What every home for forms must do with drags of other programs. A test program includes this
// header once and instantiates the suite with its own homes.

#include "forms/ContractHome.h"

namespace corvelle::forms {

/// A home for forms with a user and another program's window at kSource, which drags what it is
/// given when it is pressed. Each action has been carried out and its events have run when it
/// returns; points are pixels of the screen.
class DragHome : public ContractHome {
 public:
  static constexpr PixelPoint kSource{700, 500};

  /// No test of a drag opens one.
  void ClosePopup() override {}

  /// From now on the other program has this to drag.
  virtual void Offer(const DragData& data, DropEffect allowed) = 0;
  virtual void MovePointer(PixelPoint at) = 0;
  virtual void Press(MouseButton button) = 0;
  virtual void Release(MouseButton button) = 0;
  virtual void PressKey(int virtualKey) = 0;
  /// What the last drag did by the other program's account.
  virtual DropEffect DragEffect() = 0;
};

using DragHomeFactory = std::function<std::unique_ptr<DragHome>()>;

/// Notes drags and answers them.
class DragNotes final : public WindowEvents {
 public:
  std::vector<std::string> Seen;  // without what comes again and again
  int Overs = 0;
  DragData LastData;
  DropEffect LastAllowed = DropEffect::None;
  PixelPoint LastPoint;
  DropEffect Answer = DropEffect::Copy;
  std::function<void()> WhenOver;
  std::function<void()> WhenDropped;

  DropEffect OnDragOver(DragData& data, DropEffect allowed, const DragPoint& where) override {
    ++Overs;
    Take("over", data, allowed, where);
    if (WhenOver) WhenOver();
    return Answer;
  }
  void OnDragLeave() override { Seen.emplace_back("leave"); }
  DropEffect OnDrop(DragData& data, DropEffect allowed, const DragPoint& where) override {
    Take("drop", data, allowed, where);
    const DropEffect answer = Answer;
    if (WhenDropped) WhenDropped();
    return answer;
  }

  void OnMouseDown(MouseButton, ShiftState, PixelPoint) override {}
  void OnMouseMove(MouseButton, ShiftState, PixelPoint) override {}
  void OnMouseUp(MouseButton, ShiftState, PixelPoint) override {}
  void OnDoubleClick(PixelPoint) override {}
  void OnKeyDown(int, ShiftState) override {}
  void OnKeyPress(char32_t) override {}
  void OnPaint(Canvas& canvas, const PixelRect& dirty) override { canvas.FillBox(dirty, 0xC0C0C0); }
  void OnMoved(const PixelRect&) override {}
  void OnActivated(bool) override {}
  void OnClose() override {}
  void OnSessionEnd() override {}
  std::optional<std::intptr_t> OnMessage(std::uint32_t, std::uintptr_t, std::intptr_t) override {
    return std::nullopt;
  }

 private:
  void Take(const std::string& what, const DragData& data, DropEffect allowed,
            const DragPoint& where) {
    const std::string line = what + " " + std::to_string(static_cast<unsigned>(where.Down));
    if (Seen.empty() || Seen.back() != line) Seen.push_back(line);
    LastData = data;
    LastAllowed = allowed;
    LastPoint = where.At;
  }
};

class DragContract : public testing::TestWithParam<DragHomeFactory> {
 protected:
  static constexpr PixelRect kPlace{200, 150, 400, 250};
  static constexpr PixelPoint kInside{210, 160};
  static constexpr PixelPoint kElsewhere{500, 400};
  static constexpr DropEffect kAny = DropEffect::Copy | DropEffect::Move | DropEffect::Link;
  using Lines = std::vector<std::string>;

  std::unique_ptr<DragHome> home_ = GetParam()();
  DragNotes notes_;
  std::unique_ptr<WindowPeer> peer_;

  void SetUp() override {
    home_->MovePointer(kElsewhere);
    peer_ = home_->Windows().CreatePeer(
        {.Kind = PeerKind::Form, .ClassName = "CorvelleDrag", .Bounds = kPlace}, notes_);
    ASSERT_NE(peer_, nullptr);
    ASSERT_TRUE(peer_->SetTakesDrops(true));
    peer_->SetWindowPos(InsertAfter::Topmost, swp::KeepActivation);
    peer_->Show(ShowKind::NoActivate);
    home_->Wait(200);
  }
  void TearDown() override {
    home_->MovePointer(kElsewhere);
    home_->Release(MouseButton::Left);
    home_->Release(MouseButton::Right);
    home_->Wait(100);
    peer_.reset();
  }

  /// Takes the offer by `button` and brings it to a point in steps, as a hand does.
  void DragTo(PixelPoint at, MouseButton button = MouseButton::Left) {
    home_->MovePointer(DragHome::kSource);
    home_->Press(button);
    home_->Wait(100);
    for (int step = 1; step <= 4; ++step) {
      home_->MovePointer({DragHome::kSource.x + (at.x - DragHome::kSource.x) * step / 4,
                          DragHome::kSource.y + (at.y - DragHome::kSource.y) * step / 4});
      home_->Wait(60);
    }
    home_->Wait(100);
  }
  void Drop(MouseButton button = MouseButton::Left) {
    home_->Release(button);
    home_->Wait(200);
  }
  /// What was seen, without a drag that left and came back at once: under Wine the pointer's last
  /// place can come back for a moment.
  [[nodiscard]] Lines Seen() const {
    Lines steady;
    for (const std::string& line : notes_.Seen) {
      const std::size_t count = steady.size();
      if (count >= 2 && steady[count - 1] == "leave" && steady[count - 2] == line) {
        steady.pop_back();
      } else {
        steady.push_back(line);
      }
    }
    return steady;
  }
  /// Waits until the window was last told of a place.
  void WaitForPlace(PixelPoint at) {
    for (int i = 0; i < 20 && notes_.LastPoint != at; ++i) home_->Wait(100);
  }
  void WaitForLeave() {
    for (int i = 0; i < 20 && (Seen().empty() || Seen().back() != "leave"); ++i) home_->Wait(100);
  }
  static DragData Files() {
    return {.Files = std::vector<std::string>{"C:\\b\\Zo\xC3\xAB.txt",
                                              "C:\\a\\\xD0\xBF\xD0\xB8\xD1\x81\xD1\x8C.txt"}};
  }
};

TEST_P(DragContract, ADragOverTheWindowIsToldWithItsDataAndPlaceAndAgainAndAgain) {
  home_->Offer(Files(), kAny);
  DragTo(kInside);
  WaitForPlace({10, 10});
  ASSERT_EQ(Seen(), Lines{"over 1"});
  EXPECT_EQ(notes_.LastData, Files());
  EXPECT_EQ(notes_.LastAllowed, kAny);
  EXPECT_EQ(notes_.LastPoint, (PixelPoint{10, 10}));
  const int before = notes_.Overs;
  home_->Wait(300);
  EXPECT_GE(notes_.Overs, before + 2);
}

TEST_P(DragContract, ADropBringsTheDataWithTheButtonUpAndTellsTheSourceWhatWasDone) {
  home_->Offer(Files(), kAny);
  DragTo(kInside);
  Drop();
  EXPECT_EQ(Seen(), (Lines{"over 1", "drop 0"}));
  EXPECT_EQ(notes_.LastData, Files());
  EXPECT_EQ(home_->DragEffect(), DropEffect::Copy);
}

TEST_P(DragContract, TextOfAnyScriptComesToo) {
  const DragData text{.Text = "http://example.com/\xD0\xBF\xF0\x9F\x98\x80"};
  home_->Offer(text, kAny);
  DragTo(kInside);
  EXPECT_EQ(notes_.LastData, text);
}

TEST_P(DragContract, TheTitleOfAWebAddressComesWithIt) {
  const DragData link{.Text = "http://example.com/", .Title = "A page \xD0\xBF"};
  home_->Offer(link, kAny);
  DragTo(kInside);
  Drop();
  EXPECT_EQ(notes_.LastData, link);
}

TEST_P(DragContract, TheRightButtonDragsLikewise) {
  home_->Offer(Files(), kAny);
  notes_.Answer = DropEffect::Link;
  DragTo(kInside, MouseButton::Right);
  Drop(MouseButton::Right);
  EXPECT_EQ(Seen(), (Lines{"over 2", "drop 0"}));
  EXPECT_EQ(home_->DragEffect(), DropEffect::Link);
}

TEST_P(DragContract, ADragThatGoesOnLeaves) {
  home_->Offer(Files(), kAny);
  DragTo(kInside);
  home_->MovePointer(kElsewhere);
  home_->Wait(200);
  WaitForLeave();
  EXPECT_EQ(Seen(), (Lines{"over 1", "leave"}));
  Drop();
  EXPECT_EQ(Seen(), (Lines{"over 1", "leave"}));
}

TEST_P(DragContract, EscLeavesAndTheReleaseDropsNothing) {
  home_->Offer(Files(), kAny);
  DragTo(kInside);
  home_->PressKey(key::Escape);
  home_->Wait(200);
  EXPECT_EQ(Seen(), (Lines{"over 1", "leave"}));
  Drop();
  EXPECT_EQ(Seen(), (Lines{"over 1", "leave"}));
  EXPECT_EQ(home_->DragEffect(), DropEffect::None);
}

TEST_P(DragContract, AWindowThatRefusesIsLeftAndNotDroppedOn) {
  home_->Offer(Files(), kAny);
  notes_.Answer = DropEffect::None;
  DragTo(kInside);
  Drop();
  EXPECT_EQ(Seen(), (Lines{"over 1", "leave"}));
}

TEST_P(DragContract, AnEffectThatTheSourceDoesNotAllowIsARefusal) {
  home_->Offer(Files(), DropEffect::Move);
  notes_.Answer = DropEffect::Copy;
  DragTo(kInside);
  EXPECT_EQ(notes_.LastAllowed, DropEffect::Move);
  Drop();
  EXPECT_EQ(Seen(), (Lines{"over 1", "leave"}));
}

TEST_P(DragContract, AWindowThatTakesNoDropsLeavesThemToTheOneAroundIt) {
  DragNotes childNotes;
  const auto child = home_->Windows().CreatePeer({.Kind = PeerKind::PictureBox,
                                                  .ClassName = "CorvelleDragBox",
                                                  .Parent = peer_.get(),
                                                  .Bounds = {5, 5, 105, 55}},
                                                 childNotes);
  child->Show(ShowKind::NoActivate);
  home_->Offer(Files(), kAny);
  DragTo(kInside);
  EXPECT_EQ(Seen(), Lines{"over 1"});
  EXPECT_TRUE(childNotes.Seen.empty());
  // Whom a drag is for is looked up when it comes to another window.
  home_->MovePointer(kElsewhere);
  home_->Wait(300);
  ASSERT_TRUE(child->SetTakesDrops(true));
  notes_.Seen.clear();
  home_->MovePointer(kInside);
  home_->Wait(400);
  ASSERT_FALSE(childNotes.Seen.empty());
  EXPECT_EQ(childNotes.Seen.back(), "over 1");
  EXPECT_EQ(childNotes.LastPoint, (PixelPoint{5, 5}));
  EXPECT_TRUE(notes_.Seen.empty());
}

TEST_P(DragContract, AWindowMayVanishUnderTheDrag) {
  home_->Offer(Files(), kAny);
  notes_.WhenOver = [this] {
    notes_.WhenOver = nullptr;
    peer_.reset();
  };
  DragTo(kInside);
  EXPECT_EQ(Seen(), Lines{"over 1"});
  Drop();
  EXPECT_EQ(Seen(), Lines{"over 1"});
}

TEST_P(DragContract, AWindowMayVanishInTheDrop) {
  home_->Offer(Files(), kAny);
  notes_.WhenDropped = [this] { peer_.reset(); };
  DragTo(kInside);
  Drop();
  EXPECT_EQ(Seen(), (Lines{"over 1", "drop 0"}));
  EXPECT_EQ(peer_, nullptr);
}

TEST_P(DragContract, EventsThatADropLetsThroughDoNotDisturbIt) {
  home_->Offer(Files(), kAny);
  int ticks = 0;
  const TimerId timer = home_->Windows().StartTimer(1, [&ticks] { ++ticks; });
  notes_.WhenDropped = [this, &ticks] {
    ticks = 0;
    home_->Windows().DoEvents();
    home_->Wait(20);
  };
  DragTo(kInside);
  Drop();
  home_->Windows().StopTimer(timer);
  EXPECT_EQ(Seen(), (Lines{"over 1", "drop 0"}));
  EXPECT_GT(ticks, 0);
}

}  // namespace corvelle::forms
