#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "platform/TrayIcons.h"

// What every notification area must do. One file of each test program includes this header and
// instantiates the suite with makers of the areas that it has.

namespace corvelle {

/// A notification area, and a window of the program that icons may belong to.
class ContractTray {
 public:
  virtual ~ContractTray() = default;
  virtual TrayIcons& Tray() = 0;
  virtual WindowId Window() = 0;
};

using ContractTrayMaker = std::unique_ptr<ContractTray> (*)();

class TrayContract : public testing::TestWithParam<ContractTrayMaker> {
 protected:
  std::unique_ptr<ContractTray> home_ = GetParam()();
  [[nodiscard]] TrayIcon Icon() {
    return {.Window = home_->Window(), .Id = 1, .CallbackMessage = 512, .Tip = "Contract"};
  }
};

TEST_P(TrayContract, AnIconComesOnceAndGoesAndComesAgain) {
  EXPECT_TRUE(home_->Tray().Add(Icon()));
  EXPECT_FALSE(home_->Tray().Add(Icon())) << "it is there already";
  home_->Tray().Remove(home_->Window(), 1);
  EXPECT_TRUE(home_->Tray().Add(Icon()));
  home_->Tray().Remove(home_->Window(), 1);
}

TEST_P(TrayContract, AFileWithoutIconsIsNoHindrance) {
  TrayIcon icon = Icon();
  icon.IconFile = "C:\\nowhere\\nothing.exe";
  EXPECT_TRUE(home_->Tray().Add(icon));
  home_->Tray().Remove(home_->Window(), 1);
}

TEST_P(TrayContract, RemovingWhatIsNotThereDoesNothing) {
  home_->Tray().Remove(home_->Window(), 7);
  EXPECT_TRUE(home_->Tray().Add(Icon()));
  home_->Tray().Remove(home_->Window(), 7);
  EXPECT_FALSE(home_->Tray().Add(Icon()));
  home_->Tray().Remove(home_->Window(), 1);
}

TEST_P(TrayContract, AnIconNeedsAWindow) {
  TrayIcon icon = Icon();
  icon.Window = kNoWindow;
  EXPECT_FALSE(home_->Tray().Add(icon));
}

TEST_P(TrayContract, TheTaskbarsMessageIsAlwaysTheSameAndNoneOfTheFixedOnes) {
  EXPECT_GE(home_->Tray().TaskbarCreatedMessage(), 0xC000U);
  EXPECT_EQ(home_->Tray().TaskbarCreatedMessage(), home_->Tray().TaskbarCreatedMessage());
}

}  // namespace corvelle
