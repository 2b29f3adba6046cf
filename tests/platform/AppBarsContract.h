#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "forms/WindowSystem.h"
#include "platform/AppBars.h"

// What the shell's service for bars must do for the program, on the simulated desktop and on
// Windows; of the latter only what Wine's shell does too. One file of each test program includes
// this header and instantiates the suite.

namespace corvelle {

/// A desktop with a service for bars and two windows of the test's own.
class ContractBars {
 public:
  virtual ~ContractBars() = default;

  virtual AppBars& Bars() = 0;
  virtual PixelSize Screen() = 0;
  virtual WindowId First() = 0;
  virtual WindowId Second() = 0;
  /// How often the second window was told that bars have moved.
  virtual int NewsOfSecond() = 0;
  virtual void Settle() = 0;
};

using ContractBarsMaker = std::unique_ptr<ContractBars> (*)();

class AppBarsContract : public testing::TestWithParam<ContractBarsMaker> {
 protected:
  static constexpr std::uint32_t kCallback = 1174;

  AppBarRecord Record(WindowId window) {
    return {.hWnd = window, .uCallbackMessage = kCallback, .uEdge = 2};
  }
  std::uintptr_t Say(std::uint32_t message, WindowId window) {
    AppBarRecord record = Record(window);
    return home_->Bars().Message(message, record);
  }
  PixelRect KeepRight(WindowId window, int thickness) {
    AppBarRecord record = Record(window);
    const PixelSize screen = home_->Screen();
    record.rc = {screen.width - thickness, 0, screen.width, screen.height};
    home_->Bars().Message(abm::SetPos, record);
    return record.rc;
  }

  std::unique_ptr<ContractBars> home_ = GetParam()();
};

TEST_P(AppBarsContract, AWindowIsRegisteredOnceAndAgainAfterItsEnd) {
  EXPECT_NE(Say(abm::New, home_->First()), 0U);
  EXPECT_EQ(Say(abm::New, home_->First()), 0U);
  Say(abm::Remove, home_->First());
  EXPECT_NE(Say(abm::New, home_->First()), 0U);
  Say(abm::Remove, home_->First());
}

TEST_P(AppBarsContract, AFreeEdgeIsOfferedInItsWholeLength) {
  Say(abm::New, home_->First());
  AppBarRecord record = Record(home_->First());
  record.rc = {0, 0, home_->Screen().width, home_->Screen().height};
  home_->Bars().Message(abm::QueryPos, record);
  EXPECT_EQ(record.rc.right, home_->Screen().width);
  EXPECT_EQ(record.rc.top, 0);
  Say(abm::Remove, home_->First());
}

TEST_P(AppBarsContract, TheSecondBarAtAnEdgeStandsBesideTheFirst) {
  Say(abm::New, home_->First());
  Say(abm::New, home_->Second());
  EXPECT_EQ(KeepRight(home_->First(), 40).right, home_->Screen().width);
  EXPECT_EQ(KeepRight(home_->Second(), 30).right, home_->Screen().width - 40);
  Say(abm::Remove, home_->First());
  Say(abm::Remove, home_->Second());
}

TEST_P(AppBarsContract, ABarIsToldThatAnotherHasTakenItsPlace) {
  Say(abm::New, home_->First());
  Say(abm::New, home_->Second());
  KeepRight(home_->Second(), 30);
  home_->Settle();
  const int before = home_->NewsOfSecond();
  KeepRight(home_->First(), 40);
  home_->Settle();
  EXPECT_GT(home_->NewsOfSecond(), before);
  Say(abm::Remove, home_->First());
  Say(abm::Remove, home_->Second());
}

TEST_P(AppBarsContract, NobodyHidesAtAnEdgeAtFirstAndAClaimIsGranted) {
  Say(abm::New, home_->First());
  EXPECT_EQ(Say(abm::GetAutoHideBar, home_->First()), 0U);
  AppBarRecord record = Record(home_->First());
  record.lParam = 1;
  EXPECT_NE(home_->Bars().Message(abm::SetAutoHideBar, record), 0U);
  record.lParam = 0;
  home_->Bars().Message(abm::SetAutoHideBar, record);
  EXPECT_EQ(Say(abm::GetAutoHideBar, home_->First()), 0U);
  Say(abm::Remove, home_->First());
}

}  // namespace corvelle
