#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "platform/DesktopWindows.h"

// What every view of the windows on the desktop must do. One file of each test program includes
// this header and instantiates the suite with makers of the desktops that it has.

namespace corvelle {

/// A desktop on which stands a visible window that is not one of the program's thread: its caption
/// is "Contract other", and its bounds are (100, 100) to (300, 250).
class ContractDesktop {
 public:
  virtual ~ContractDesktop() = default;

  virtual DesktopWindows& Windows() = 0;
  /// The other window.
  virtual WindowId Other() = 0;
  /// Takes the other window away, as its program would.
  virtual void CloseOther() = 0;
  virtual void MinimizeOther() = 0;
  /// A window that belongs to the other one, as a dialog does.
  virtual WindowId OpenOwned() = 0;
  /// Lets events run for a while.
  virtual void Settle() = 0;
};

using ContractDesktopMaker = std::unique_ptr<ContractDesktop> (*)();

class DesktopContract : public testing::TestWithParam<ContractDesktopMaker> {
 protected:
  std::unique_ptr<ContractDesktop> desktop_ = GetParam()();

  [[nodiscard]] DesktopWindows& Windows() { return desktop_->Windows(); }
  [[nodiscard]] WindowId Other() { return desktop_->Other(); }
};

TEST_P(DesktopContract, ListsTheOtherWindowWithItsText) {
  const std::vector<WindowId> all = Windows().TopLevel();
  EXPECT_EQ(std::count(all.begin(), all.end(), Other()), 1);
  EXPECT_EQ(Windows().Text(Other()), "Contract other");
  EXPECT_NE(Windows().ClassName(Other()), "");
  EXPECT_TRUE(Windows().IsVisible(Other()));
  EXPECT_FALSE(Windows().IsMinimized(Other()));
}

TEST_P(DesktopContract, BringsTheOtherWindowForward) {
  Windows().BringForward(Other());
  desktop_->Settle();
  EXPECT_EQ(Windows().ForegroundWindow(), Other());
  EXPECT_EQ(Windows().ActiveWindow(), kNoWindow);
  EXPECT_EQ(Windows().WindowAt({200, 200}), Other());
}

TEST_P(DesktopContract, RestoresAMinimizedWindow) {
  desktop_->MinimizeOther();
  EXPECT_TRUE(Windows().IsMinimized(Other()));
  EXPECT_FALSE(Windows().RestoresMaximized(Other()));
  Windows().RestoreMinimized(Other());
  desktop_->Settle();
  EXPECT_FALSE(Windows().IsMinimized(Other()));
}

TEST_P(DesktopContract, RemembersThatAMinimizedWindowWasMaximized) {
  Windows().ShowMaximized(Other());
  desktop_->Settle();
  desktop_->MinimizeOther();
  EXPECT_TRUE(Windows().RestoresMaximized(Other()));
}

TEST_P(DesktopContract, TellsAWindowThatBelongsToAnotherFromOneThatStandsAlone) {
  EXPECT_TRUE(Windows().HasOwner(desktop_->OpenOwned()));
  EXPECT_FALSE(Windows().HasOwner(Other()));
  EXPECT_FALSE(Windows().HasOwner(kNoWindow));
  const WindowId gone = Other();
  desktop_->CloseOther();
  EXPECT_FALSE(Windows().HasOwner(gone));
}

TEST_P(DesktopContract, AMessageWithoutAMeaningIsAnsweredWithZero) {
  EXPECT_EQ(Windows().Send(Other(), 0x8123, 1, 2), 0);
}

TEST_P(DesktopContract, AWindowThatIsGoneHasNoTextAndNoEffect) {
  const WindowId gone = Other();
  desktop_->CloseOther();
  EXPECT_EQ(Windows().Text(gone), "");
  EXPECT_EQ(Windows().ClassName(gone), "");
  EXPECT_FALSE(Windows().IsVisible(gone));
  EXPECT_FALSE(Windows().IsMinimized(gone));
  EXPECT_FALSE(Windows().RestoresMaximized(gone));
  EXPECT_EQ(Windows().Send(gone, 16, 0, 0), std::nullopt);
  Windows().RestoreMinimized(gone);
  Windows().ShowMaximized(gone);
  Windows().BringForward(gone);
  EXPECT_NE(Windows().ForegroundWindow(), gone);
  const std::vector<WindowId> all = Windows().TopLevel();
  EXPECT_EQ(std::count(all.begin(), all.end(), gone), 0);
}

TEST_P(DesktopContract, NoWindowIsNoWindow) {
  EXPECT_EQ(Windows().Text(kNoWindow), "");
  EXPECT_EQ(Windows().ClassName(kNoWindow), "");
  EXPECT_FALSE(Windows().IsVisible(kNoWindow));
  EXPECT_EQ(Windows().Send(kNoWindow, 16, 0, 0), std::nullopt);
}

TEST_P(DesktopContract, NothingStandsOutsideTheScreen) {
  EXPECT_EQ(Windows().WindowAt({-5000, -5000}), kNoWindow);
}

}  // namespace corvelle
