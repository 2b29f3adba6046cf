#pragma once

// What every home for forms must do with the mouse and the keyboard. A test program includes this
// header once and instantiates the suite with its own homes.

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
  std::unique_ptr<WindowPeer> control_;

  void MakeControl(PeerKind kind) {
    control_ = home_->Windows().CreatePeer(
        {.Kind = kind, .ClassName = "CorvelleControl", .Parent = peer_.get(), .Bounds = kControl},
        controlNotes_);
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
  for (const PeerKind kind : {PeerKind::CommandButton, PeerKind::CheckBox}) {
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
  MakeControl(PeerKind::CommandButton);
  home_->MovePointer(kOnControl);
  home_->Press(MouseButton::Left);
  home_->MovePointer({kOnControl.x, kOnControl.y + 50});
  home_->Release(MouseButton::Left);
  EXPECT_FALSE(controlNotes_.Saw("press"));
}

TEST_P(ControlContract, ADisabledOneIsNotPressed) {
  MakeControl(PeerKind::CheckBox);
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

TEST_P(ControlContract, SpacePressesTheOneWithTheFocusAndOtherKeysAreTold) {
  constexpr int kTab = 9;
  constexpr int kSpace = 32;
  for (const PeerKind kind : {PeerKind::CommandButton, PeerKind::CheckBox}) {
    MakeControl(kind);
    control_->SetFocus();
    home_->Wait(50);
    home_->PressKey(kSpace);
    EXPECT_TRUE(controlNotes_.Saw("press"));
    EXPECT_FALSE(controlNotes_.Saw("key 32"));
    for (const int key : {kTab, key::Enter, key::Escape}) home_->PressKey(key);
    EXPECT_TRUE(controlNotes_.Saw("key 9"));
    EXPECT_TRUE(controlNotes_.Saw("key 13"));
    EXPECT_TRUE(controlNotes_.Saw("key 27"));
    controlNotes_.Seen.clear();
    control_.reset();
  }
}

TEST_P(ControlContract, OneMayEndItselfAndItsFormByItsPress) {
  MakeControl(PeerKind::CommandButton);
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

}  // namespace corvelle::forms
