#pragma once

// What every home for forms must do with the mouse and the keyboard. A test program includes this
// header once and instantiates the suite with its own homes.

#include <string_view>

#include "forms/ContractHome.h"
#include "platform/Input.h"

namespace corvelle::forms {

/// A home for forms with a user. Each action has been carried out and its events have run when it
/// returns; points are pixels of the screen.
class InputHome : public ContractHome {
 public:
  virtual Input& Pointer() = 0;
  virtual void MovePointer(PixelPoint at) = 0;
  virtual void Press(MouseButton button) = 0;
  virtual void Release(MouseButton button) = 0;
  virtual void DoubleClick() = 0;
  virtual void PressKey(int virtualKey) = 0;
  virtual void KeyDown(int virtualKey) = 0;
  virtual void KeyUp(int virtualKey) = 0;
  /// With a key held down: Ctrl and a letter, Shift and Tab.
  void PressWith(int held, int virtualKey) {
    KeyDown(held);
    PressKey(virtualKey);
    KeyUp(held);
  }
  /// With the left button from one point over others to the last. One point is a click.
  virtual void DragAlong(const std::vector<PixelPoint>& points) {
    MovePointer(points.front());
    Press(MouseButton::Left);
    for (const PixelPoint& point : points) MovePointer(point);
    Release(MouseButton::Left);
  }
  /// Plain characters.
  virtual void Type(std::string_view text) = 0;
  /// 120 is a notch, away from the user.
  virtual void TurnWheel(int delta) = 0;
  /// The tool tip that is up; empty for none.
  [[nodiscard]] virtual std::string ToolTip() const = 0;
};

using InputHomeFactory = std::function<std::unique_ptr<InputHome>()>;

class InputContract : public testing::TestWithParam<InputHomeFactory> {
 protected:
  static constexpr PixelRect kPlace{200, 150, 400, 250};
  static constexpr PixelPoint kInside{210, 160};
  static constexpr PixelPoint kOutside{500, 400};

  std::unique_ptr<InputHome> home_ = GetParam()();
  EventNotes notes_;
  std::unique_ptr<WindowPeer> peer_;

  void SetUp() override {
    home_->MovePointer(kOutside);
    peer_ = home_->Windows().CreatePeer(
        {.Kind = PeerKind::Form, .ClassName = "CorvelleInput", .Bounds = kPlace}, notes_);
    ASSERT_NE(peer_, nullptr);
    peer_->SetWindowPos(InsertAfter::Topmost, swp::KeepActivation);
    peer_->Show(ShowKind::Normal);
    home_->Wait(200);
    notes_.Seen.clear();
  }
  void TearDown() override {
    home_->Release(MouseButton::Left);
    home_->Release(MouseButton::Right);
    peer_.reset();
  }
};

TEST_P(InputContract, ThePointerIsWhereItWasPut) {
  home_->MovePointer(kInside);
  EXPECT_EQ(home_->Pointer().PointerPosition(), kInside);
  home_->Pointer().SetPointerPosition({300, 200});
  home_->Wait(50);
  EXPECT_EQ(home_->Pointer().PointerPosition(), (PixelPoint{300, 200}));
}

TEST_P(InputContract, AMoveOverTheWindowIsToldInItsOwnPixels) {
  home_->MovePointer(kInside);
  EXPECT_TRUE(notes_.Saw("move 0 10,10"));
}

TEST_P(InputContract, APointerThatIsSetMovesTheMouseToo) {
  home_->Pointer().SetPointerPosition({230, 170});
  home_->Wait(50);
  EXPECT_TRUE(notes_.Saw("move 0 30,20"));
}

TEST_P(InputContract, PressAndReleaseNameTheirButton) {
  home_->MovePointer(kInside);
  home_->Press(MouseButton::Left);
  EXPECT_TRUE(home_->Pointer().IsKeyDown(1));
  home_->Release(MouseButton::Left);
  EXPECT_FALSE(home_->Pointer().IsKeyDown(1));
  home_->Press(MouseButton::Right);
  home_->Release(MouseButton::Right);
  EXPECT_TRUE(notes_.Saw("down 1 10,10"));
  EXPECT_TRUE(notes_.Saw("up 1 10,10"));
  EXPECT_TRUE(notes_.Saw("down 2 10,10"));
  EXPECT_TRUE(notes_.Saw("up 2 10,10"));
}

TEST_P(InputContract, ThePressedWindowKeepsTheMouseOutsideItself) {
  home_->MovePointer(kInside);
  home_->Press(MouseButton::Left);
  home_->MovePointer(kOutside);
  home_->Release(MouseButton::Left);
  EXPECT_TRUE(notes_.Saw("move 1 300,250"));
  EXPECT_TRUE(notes_.Saw("up 1 300,250"));
  notes_.Seen.clear();
  home_->MovePointer({kOutside.x + 5, kOutside.y});
  EXPECT_EQ(notes_.Seen, std::vector<std::string>{});
}

TEST_P(InputContract, TheMouseIsKeptUntilTheLastButtonIsUp) {
  home_->MovePointer(kInside);
  home_->Press(MouseButton::Left);
  home_->Press(MouseButton::Right);
  home_->Release(MouseButton::Left);
  home_->MovePointer(kOutside);
  EXPECT_TRUE(notes_.Saw("move 2 300,250"));
  home_->Release(MouseButton::Right);
  EXPECT_TRUE(notes_.Saw("up 2 300,250"));
}

TEST_P(InputContract, ADoubleClickIsPressReleaseDoubleRelease) {
  home_->MovePointer(kInside);
  notes_.Seen.clear();
  home_->DoubleClick();
  std::vector<std::string> clicks;
  for (const std::string& seen : notes_.Seen) {
    if (seen.rfind("move", 0) != 0) clicks.push_back(seen);
  }
  EXPECT_EQ(clicks,
            (std::vector<std::string>{"down 1 10,10", "up 1 10,10", "double 10,10", "up 1 10,10"}));
}

TEST_P(InputContract, AKeyThatGoesUpIsToldWithThoseThatAreStillHeld) {
  home_->KeyDown(key::Shift);
  home_->PressKey(key::Down);
  home_->KeyUp(key::Shift);
  home_->Wait(50);
  const std::string shift = std::to_string(key::Shift);
  EXPECT_EQ(notes_.KeysUp, (std::vector<std::string>{"40 shift", shift}));
}

TEST_P(InputContract, KeysReachTheActiveWindow) {
  home_->PressKey(key::Down);
  home_->PressKey(key::Enter);
  home_->PressKey(key::Escape);
  EXPECT_EQ(notes_.Seen,
            (std::vector<std::string>{"key 40", "key 13", "char 13", "key 27", "char 27"}));
}

TEST_P(InputContract, HidingThePressedWindowEndsItsHoldOnTheMouse) {
  home_->MovePointer(kInside);
  home_->Press(MouseButton::Left);
  peer_->Show(ShowKind::Hidden);
  notes_.Seen.clear();
  home_->MovePointer(kOutside);
  home_->Release(MouseButton::Left);
  EXPECT_EQ(notes_.Seen, std::vector<std::string>{});
}

TEST_P(InputContract, AWindowMayBeDestroyedByAPressOnIt) {
  EventNotes closing;
  std::unique_ptr<WindowPeer> peer = home_->Windows().CreatePeer(
      {.Kind = PeerKind::Form, .ClassName = "CorvelleClosing", .Bounds = {450, 350, 550, 450}},
      closing);
  ASSERT_NE(peer, nullptr);
  closing.WhenPressed = [&] { peer.reset(); };
  peer->SetWindowPos(InsertAfter::Topmost, swp::Show);
  home_->Wait(100);
  home_->MovePointer(kOutside);
  home_->Press(MouseButton::Left);
  EXPECT_EQ(peer, nullptr);
}

// Controls that the system works.

class ControlContract : public InputContract {
 protected:
  static constexpr PixelRect kControl{20, 20, 120, 50};  // in the form
  static constexpr PixelPoint kOnControl{250, 185};

  EventNotes controlNotes_;
  std::unique_ptr<ButtonPeer> control_;

  void MakeControl(ButtonLook look) {
    control_ = home_->Windows().Controls().CreateButton(
        {.ClassName = "CorvelleControl", .Parent = peer_.get(), .Bounds = kControl}, look,
        controlNotes_, controlNotes_);
    ASSERT_NE(control_, nullptr);
    control_->SetCaption("&Caption");
    control_->Show(ShowKind::NoActivate);
    home_->Wait(100);
  }
  void TearDown() override {
    control_.reset();
    InputContract::TearDown();
  }
};

TEST_P(ControlContract, AClickIsAPressAndNoMouseEventIsTold) {
  for (const ButtonLook kind : {ButtonLook::Command, ButtonLook::Check, ButtonLook::Option}) {
    MakeControl(kind);
    EXPECT_EQ(home_->Desktop().Text(control_->Id()), "&Caption");
    EXPECT_EQ(home_->Desktop().WindowAt(kOnControl), control_->Id());
    home_->MovePointer(kOnControl);
    home_->Press(MouseButton::Left);
    EXPECT_EQ(controlNotes_.Seen, std::vector<std::string>{});
    home_->Release(MouseButton::Left);
    EXPECT_EQ(controlNotes_.Seen, std::vector<std::string>{"press"});
    controlNotes_.Seen.clear();
    control_.reset();
  }
}

TEST_P(ControlContract, AReleaseElsewhereIsNoPress) {
  MakeControl(ButtonLook::Command);
  home_->MovePointer(kOnControl);
  home_->Press(MouseButton::Left);
  home_->MovePointer({kOnControl.x, kOnControl.y + 50});
  home_->Release(MouseButton::Left);
  EXPECT_FALSE(controlNotes_.Saw("press"));
}

TEST_P(ControlContract, ADisabledOneIsNotPressed) {
  MakeControl(ButtonLook::Check);
  control_->SetEnabled(false);
  home_->MovePointer(kOnControl);
  home_->Press(MouseButton::Left);
  home_->Release(MouseButton::Left);
  EXPECT_FALSE(controlNotes_.Saw("press"));
  control_->SetEnabled(true);
  home_->Press(MouseButton::Left);
  home_->Release(MouseButton::Left);
  EXPECT_TRUE(controlNotes_.Saw("press"));
}

TEST_P(ControlContract, SpacePressesTheOneWithTheFocusUnlessItIsUsedUpAndAllKeysAreTold) {
  constexpr int kTab = 9;
  constexpr int kSpace = 32;
  for (const ButtonLook kind : {ButtonLook::Command, ButtonLook::Check, ButtonLook::Option}) {
    MakeControl(kind);
    control_->SetFocus();
    home_->Wait(50);
    controlNotes_.KeysUp.clear();
    controlNotes_.UsesKeys = true;
    home_->PressKey(kSpace);
    EXPECT_FALSE(controlNotes_.Saw("press")) << "used up";
    controlNotes_.UsesKeys = false;
    home_->PressKey(kSpace);
    EXPECT_TRUE(controlNotes_.Saw("press"));
    EXPECT_EQ(controlNotes_.KeysUp, (std::vector<std::string>{"32", "32"}));
    for (const int key : {kTab, key::Enter, key::Escape}) home_->PressKey(key);
    EXPECT_TRUE(controlNotes_.Saw("key 9"));
    EXPECT_TRUE(controlNotes_.Saw("key 13"));
    EXPECT_TRUE(controlNotes_.Saw("key 27"));
    controlNotes_.Seen.clear();
    control_.reset();
  }
}

TEST_P(ControlContract, OneMayEndItselfAndItsFormByItsPress) {
  MakeControl(ButtonLook::Command);
  controlNotes_.WhenPressed = [this] {
    control_.reset();
    peer_.reset();
  };
  home_->MovePointer(kOnControl);
  home_->Press(MouseButton::Left);
  home_->Release(MouseButton::Left);
  home_->Wait(50);
  EXPECT_EQ(peer_, nullptr);
}

// The focus, the wheel, the context menu and a press that gets no release.

TEST_P(ControlContract, TheFocusIsToldToWhoLosesItFirst) {
  MakeControl(ButtonLook::Command);
  EventNotes otherNotes;
  const auto other = home_->Windows().Controls().CreateButton(
      {.ClassName = "CorvelleOther", .Parent = peer_.get(), .Bounds = {20, 60, 120, 90}},
      ButtonLook::Command, otherNotes, otherNotes);
  other->Show(ShowKind::NoActivate);
  control_->SetFocus();
  home_->Wait(50);
  controlNotes_.Focus.clear();
  other->SetFocus();
  home_->Wait(50);
  EXPECT_EQ(controlNotes_.Focus, std::vector<std::string>{"lost"});
  EXPECT_EQ(otherNotes.Focus, std::vector<std::string>{"gained"});
}

TEST_P(ControlContract, TheFocusGoesWithTheActivationAndComesBack) {
  MakeControl(ButtonLook::Command);
  control_->SetFocus();
  home_->Wait(50);
  controlNotes_.Focus.clear();
  EventNotes others;
  const auto other = home_->Windows().CreatePeer(
      {.ClassName = "CorvelleInput2", .Bounds = {450, 150, 550, 250}}, others);
  other->Show(ShowKind::Normal);
  home_->Wait(100);
  EXPECT_EQ(controlNotes_.Focus, std::vector<std::string>{"lost"});
  peer_->SetForeground();
  home_->Wait(100);
  EXPECT_EQ(controlNotes_.Focus, (std::vector<std::string>{"lost", "gained"}));
}

TEST_P(ControlContract, TheWheelGoesToTheFocusAndOutwardsUntilItIsUsed) {
  MakeControl(ButtonLook::Command);
  control_->SetFocus();
  home_->MovePointer(kOnControl);
  notes_.UsesKeys = true;
  home_->TurnWheel(-120);
  EXPECT_TRUE(controlNotes_.Saw("wheel -120"));
  EXPECT_TRUE(notes_.Saw("wheel -120"));
  notes_.Seen.clear();
  controlNotes_.UsesKeys = true;
  home_->TurnWheel(120);
  EXPECT_FALSE(notes_.Saw("wheel 120"));
}

TEST_P(ControlContract, TheRightButtonAsksForTheContextMenuOnceAfterTheRelease) {
  MakeControl(ButtonLook::Check);
  home_->MovePointer(kOnControl);
  home_->Press(MouseButton::Right);
  EXPECT_FALSE(controlNotes_.Saw("menu 30,15"));
  home_->Release(MouseButton::Right);
  EXPECT_EQ(std::count(controlNotes_.Seen.begin(), controlNotes_.Seen.end(), "menu 30,15"), 1);
}

TEST_P(InputContract, HidingThePressedWindowTellsThatThePressIsLost) {
  home_->MovePointer(kInside);
  home_->Press(MouseButton::Left);
  EXPECT_FALSE(notes_.Saw("capture lost"));
  peer_->Show(ShowKind::Hidden);
  home_->Wait(50);
  EXPECT_TRUE(notes_.Saw("capture lost"));
}

TEST_P(InputContract, APressThatIsReleasedIsNotLost) {
  home_->MovePointer(kInside);
  home_->Press(MouseButton::Left);
  home_->Release(MouseButton::Left);
  EXPECT_FALSE(notes_.Saw("capture lost"));
}

}  // namespace corvelle::forms
