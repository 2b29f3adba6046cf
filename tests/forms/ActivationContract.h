#pragma once

// What every home for forms must do about the active window: which one follows when it goes away,
// and where the keys go. A test program includes this header once and instantiates the suite with
// its own homes.

#include "forms/Form.h"
#include "forms/InputContract.h"

namespace corvelle::forms {

/// A home for forms with another program beside it.
class ActivationHome : public InputHome {
 public:
  /// Opens another program's visible window and brings it to the foreground. It goes away with the
  /// home.
  virtual WindowId OpenOther() = 0;
  /// The next message box is answered with OK, after `whileUp` has run.
  virtual void AnswerBox(std::function<void()> whileUp) = 0;
};

using ActivationHomeFactory = std::function<std::unique_ptr<ActivationHome>()>;

/// A form of the program with what it was told.
struct ActivationForm {
  EventNotes Notes;
  std::unique_ptr<WindowPeer> Peer;

  WindowPeer* operator->() const noexcept { return Peer.get(); }
};

class ActivationContract : public testing::TestWithParam<ActivationHomeFactory> {
 protected:
  static constexpr int kDownKey = 40;

  std::unique_ptr<ActivationHome> home_ = GetParam()();

  [[nodiscard]] DesktopWindows& Desktop() { return home_->Desktop(); }
  void SetUp() override { home_->MovePointer({700, 600}); }
  void Settle() { home_->Wait(100); }

  [[nodiscard]] std::unique_ptr<ActivationForm> Make(const char* name, PixelRect place) {
    auto form = std::make_unique<ActivationForm>();
    form->Peer = home_->Windows().CreatePeer(
        {.Kind = PeerKind::Form, .ClassName = name, .Bounds = place}, form->Notes);
    EXPECT_NE(form->Peer, nullptr);
    return form;
  }
  /// A form that is visible and active.
  [[nodiscard]] std::unique_ptr<ActivationForm> Open(const char* name,
                                                     PixelRect place = {200, 150, 400, 250}) {
    auto form = Make(name, place);
    form->Peer->Show(ShowKind::Normal);
    Settle();
    EXPECT_EQ(Desktop().ForegroundWindow(), form->Peer->Id());
    form->Notes.Seen.clear();
    return form;
  }

  /// True if a key that is pressed now reaches that form.
  [[nodiscard]] bool GetsKeys(ActivationForm& form) {
    form.Notes.Seen.clear();
    home_->PressKey(kDownKey);
    return form.Notes.Saw("key 40");
  }
};

// A form that is modal to its owner goes.

class OwningForm final : public Form {
 public:
  OwningForm(WindowSystem& windows, const char* name, float left)
      : Form(windows, name, BorderStyle::Fixed) {
    Move(left, 2250, 3000, 1500);
  }
};

TEST_P(ActivationContract, TheOwnerOfAModalFormFollowsItAndNotWhatLiesBetween) {
  OwningForm owner(home_->Windows(), "CorvelleOwner", 1500);
  OwningForm modal(home_->Windows(), "CorvelleModal", 6000);
  owner.Show();
  Settle();
  const auto between = Open("CorvelleBetween", {500, 400, 700, 500});
  modal.ShowModalTo(owner);
  Settle();
  EXPECT_EQ(Desktop().ForegroundWindow(), modal.hWnd());
  modal.Unload();
  Settle();
  EXPECT_EQ(Desktop().ForegroundWindow(), owner.hWnd());
  owner.Unload();
}

TEST_P(ActivationContract, AModalFormThatGoesBehindAnotherProgramLeavesItTheForeground) {
  OwningForm owner(home_->Windows(), "CorvelleOwner", 1500);
  OwningForm modal(home_->Windows(), "CorvelleModal", 6000);
  owner.Show();
  modal.ShowModalTo(owner);
  Settle();
  const WindowId other = home_->OpenOther();
  Settle();
  ASSERT_EQ(Desktop().ForegroundWindow(), other);
  modal.Unload();
  Settle();
  EXPECT_EQ(Desktop().ForegroundWindow(), other);
  EXPECT_TRUE(owner.Enabled());
  owner.Unload();
}

// The active window goes away.

TEST_P(ActivationContract, TheNextWindowBelowTheHiddenOneBecomesActiveAndGetsTheKeys) {
  const WindowId other = home_->OpenOther();
  const auto below = Open("CorvelleBelow");
  const auto top = Open("CorvelleTop");
  top->Peer->Show(ShowKind::Hidden);
  Settle();
  EXPECT_EQ(Desktop().ActiveWindow(), below->Peer->Id());
  EXPECT_EQ(Desktop().ForegroundWindow(), below->Peer->Id());
  EXPECT_TRUE(top->Notes.Saw("inactive"));
  EXPECT_TRUE(below->Notes.Saw("active"));
  EXPECT_TRUE(GetsKeys(*below));
  below->Peer->Show(ShowKind::Hidden);
  Settle();
  EXPECT_EQ(Desktop().ForegroundWindow(), other);
  EXPECT_EQ(Desktop().ActiveWindow(), kNoWindow);
}

TEST_P(ActivationContract, ThatMayBeAnotherProgramsThoughTheProgramHasAWindowFurtherBelow) {
  const auto below = Open("CorvelleBelow");
  const WindowId other = home_->OpenOther();
  const auto top = Open("CorvelleTop");
  top->Peer->Show(ShowKind::Hidden);
  Settle();
  EXPECT_EQ(Desktop().ForegroundWindow(), other);
  EXPECT_FALSE(GetsKeys(*below));
}

TEST_P(ActivationContract, ADisabledWindowIsPassedOver) {
  const WindowId other = home_->OpenOther();
  const auto below = Open("CorvelleBelow");
  const auto top = Open("CorvelleTop");
  below->Peer->SetEnabled(false);
  top->Peer->Show(ShowKind::Hidden);
  Settle();
  EXPECT_EQ(Desktop().ForegroundWindow(), other);
  // Nor does it come back by being enabled.
  below->Peer->SetEnabled(true);
  Settle();
  EXPECT_EQ(Desktop().ForegroundWindow(), other);
  EXPECT_FALSE(below->Notes.Saw("active"));
}

TEST_P(ActivationContract, AHiddenWindowIsPassedOver) {
  const auto last = Open("CorvelleLast");
  const auto below = Open("CorvelleBelow");
  const auto top = Open("CorvelleTop");
  below->Peer->Show(ShowKind::Hidden);
  below->Notes.Seen.clear();
  top->Peer->Show(ShowKind::Hidden);
  Settle();
  EXPECT_EQ(Desktop().ActiveWindow(), last->Peer->Id());
  EXPECT_TRUE(below->Notes.Seen.empty());
}

TEST_P(ActivationContract, TheOrderOnTheScreenCountsAndNotWhoWasActiveLast) {
  const auto first = Open("CorvelleFirst");
  const auto second = Open("CorvelleSecond");
  const auto top = Open("CorvelleTop");
  first->Peer->SetWindowPos(InsertAfter::Topmost, swp::KeepActivation);
  top->Peer->SetWindowPos(InsertAfter::Topmost, swp::KeepActivation);
  top->Peer->Show(ShowKind::Hidden);
  Settle();
  EXPECT_EQ(Desktop().ActiveWindow(), first->Peer->Id());
}

TEST_P(ActivationContract, WithNothingBelowTheSearchGoesOnFromTheTop) {
  const auto top = Open("CorvelleTop");
  top->Peer->SetWindowPos(InsertAfter::Topmost, swp::KeepActivation);
  const auto bottom = Open("CorvelleBottom");
  bottom->Peer->SetWindowPos(InsertAfter::Bottom, swp::KeepActivation);
  Settle();
  ASSERT_EQ(Desktop().ActiveWindow(), bottom->Peer->Id());
  bottom->Peer->Show(ShowKind::Hidden);
  Settle();
  EXPECT_NE(Desktop().ForegroundWindow(), bottom->Peer->Id());
  EXPECT_FALSE(GetsKeys(*bottom));
}

TEST_P(ActivationContract, HidingBySetWindowPosGivesTheActivationAwayToo) {
  const auto below = Open("CorvelleBelow");
  const auto top = Open("CorvelleTop");
  top->Peer->SetWindowPos(InsertAfter::Top, swp::Hide);
  Settle();
  EXPECT_FALSE(Desktop().IsVisible(top->Peer->Id()));
  EXPECT_EQ(Desktop().ActiveWindow(), below->Peer->Id());
  EXPECT_TRUE(top->Notes.Saw("inactive"));
  EXPECT_TRUE(GetsKeys(*below));
}

TEST_P(ActivationContract, DestroyingTheActiveWindowActivatesTheNext) {
  const WindowId other = home_->OpenOther();
  const auto below = Open("CorvelleBelow");
  auto top = Open("CorvelleTop");
  top->Peer.reset();
  Settle();
  EXPECT_EQ(Desktop().ActiveWindow(), below->Peer->Id());
  EXPECT_TRUE(top->Notes.Seen.empty());
  EXPECT_TRUE(GetsKeys(*below));
  below->Peer->SetEnabled(false);
  below->Peer.reset();
  Settle();
  EXPECT_EQ(Desktop().ForegroundWindow(), other);
}

// A window that is not active goes away.

TEST_P(ActivationContract, WhoHandsTheActivationOnFirstDecidesWhoGetsIt) {
  const auto chosen = Open("CorvelleChosen");
  const WindowId other = home_->OpenOther();
  const auto top = Open("CorvelleTop");
  chosen->Peer->SetFocus();
  EXPECT_EQ(Desktop().ActiveWindow(), chosen->Peer->Id());
  chosen->Notes.Seen.clear();
  top->Peer->Show(ShowKind::Hidden);
  Settle();
  EXPECT_EQ(Desktop().ActiveWindow(), chosen->Peer->Id());
  EXPECT_FALSE(chosen->Notes.Saw("inactive"));
  EXPECT_NE(Desktop().ForegroundWindow(), other);
  EXPECT_TRUE(GetsKeys(*chosen));
}

TEST_P(ActivationContract, WhatHappensToAnInactiveWindowLeavesTheActiveOneAlone) {
  const auto active = Open("CorvelleActive");
  auto other = Make("CorvelleBeside", {450, 150, 600, 250});
  other->Peer->Show(ShowKind::NoActivate);
  Settle();
  other->Peer->SetEnabled(false);
  other->Peer->SetEnabled(true);
  other->Peer->Show(ShowKind::Hidden);
  other->Peer->Show(ShowKind::NoActivate);
  other->Peer.reset();
  Settle();
  EXPECT_EQ(Desktop().ActiveWindow(), active->Peer->Id());
  EXPECT_FALSE(active->Notes.Saw("inactive"));
  EXPECT_TRUE(GetsKeys(*active));
}

TEST_P(ActivationContract, WhatTheProgramDoesBehindAnotherTakesNothingFromIt) {
  const auto first = Open("CorvelleFirst");
  const auto second = Open("CorvelleSecond");
  const WindowId other = home_->OpenOther();
  first->Notes.Seen.clear();
  second->Notes.Seen.clear();
  second->Peer->Show(ShowKind::Hidden);
  second->Peer->Show(ShowKind::NoActivate);
  first->Peer->SetFocus();
  first->Peer->SetEnabled(false);
  second->Peer->Show(ShowKind::Hidden);
  first->Peer->SetEnabled(true);
  Settle();
  EXPECT_EQ(Desktop().ForegroundWindow(), other);
  EXPECT_EQ(Desktop().ActiveWindow(), kNoWindow);
  EXPECT_FALSE(first->Notes.Saw("active"));
  EXPECT_FALSE(second->Notes.Saw("active"));
}

// A window that is disabled.

TEST_P(ActivationContract, ADisabledWindowStaysActiveAndHearsNoKeys) {
  const auto below = Open("CorvelleBelow");
  const auto top = Open("CorvelleTop");
  top->Peer->SetEnabled(false);
  Settle();
  EXPECT_EQ(Desktop().ActiveWindow(), top->Peer->Id());
  EXPECT_FALSE(top->Notes.Saw("inactive"));
  EXPECT_FALSE(GetsKeys(*top));
  EXPECT_FALSE(GetsKeys(*below));
  top->Peer->SetEnabled(true);
  top->Peer->SetFocus();
  Settle();
  EXPECT_EQ(Desktop().ActiveWindow(), top->Peer->Id());
  EXPECT_TRUE(GetsKeys(*top));
}

TEST_P(ActivationContract, APressOnADisabledWindowActivatesNothing) {
  const auto active = Open("CorvelleActive", {200, 150, 400, 250});
  const auto other = Make("CorvelleBeside", {450, 150, 600, 250});
  other->Peer->SetWindowPos(InsertAfter::Topmost, swp::KeepActivation);
  other->Peer->Show(ShowKind::NoActivate);
  other->Peer->SetEnabled(false);
  Settle();
  home_->MovePointer({500, 200});
  home_->Press(MouseButton::Left);
  home_->Release(MouseButton::Left);
  EXPECT_EQ(Desktop().ActiveWindow(), active->Peer->Id());
  EXPECT_EQ(other->Notes.Seen, std::vector<std::string>{});
  other->Peer->SetEnabled(true);
  home_->Press(MouseButton::Left);
  home_->Release(MouseButton::Left);
  EXPECT_EQ(Desktop().ActiveWindow(), other->Peer->Id());
}

TEST_P(ActivationContract, DisablingThePressedWindowEndsItsHoldOnTheMouse) {
  const auto form = Open("CorvelleActive", {200, 150, 400, 250});
  home_->MovePointer({250, 200});
  home_->Press(MouseButton::Left);
  form->Peer->SetEnabled(false);
  form->Notes.Seen.clear();
  home_->MovePointer({300, 200});
  home_->MovePointer({600, 500});
  home_->Release(MouseButton::Left);
  EXPECT_EQ(form->Notes.Seen, std::vector<std::string>{});
}

// Questions.

TEST_P(ActivationContract, AnAnsweredBoxGivesTheActivationBackToItsOwnerWhoeverIsAbove) {
  const auto owner = Open("CorvelleOwner", {200, 150, 400, 250});
  const auto above = Open("CorvelleAbove", {200, 150, 400, 250});
  above->Peer->SetWindowPos(InsertAfter::Topmost, swp::KeepActivation);
  owner->Peer->SetFocus();
  Settle();
  bool ownerActive = true;
  home_->AnswerBox([&] { ownerActive = Desktop().ActiveWindow() == owner->Peer->Id(); });
  home_->Windows().ShowMessage(owner->Peer->Id(), "A question", "Contract", msgbox::Ok);
  Settle();
  EXPECT_FALSE(ownerActive);
  EXPECT_EQ(Desktop().ActiveWindow(), owner->Peer->Id());
  EXPECT_TRUE(GetsKeys(*owner));
}

}  // namespace corvelle::forms
