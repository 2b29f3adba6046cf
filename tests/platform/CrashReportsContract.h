#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "platform/CrashReports.h"

// What the reports of crashes must do for the program, on either side.

namespace corvelle {

/// Reports of one test's own, and crashes for it.
class ContractCrashes {
 public:
  virtual ~ContractCrashes() = default;
  virtual CrashReports& Reports() = 0;
  /// Leaves a report, as a crash would; its path.
  virtual std::string Crash() = 0;
};

using ContractCrashesMaker = std::unique_ptr<ContractCrashes> (*)();

class CrashReportsContract : public testing::TestWithParam<ContractCrashesMaker> {
 protected:
  std::unique_ptr<ContractCrashes> crashes = GetParam()();
};

TEST_P(CrashReportsContract, WithoutACrashThereIsNothingToTell) {
  EXPECT_EQ(crashes->Reports().TakeUntold(), "");
}

TEST_P(CrashReportsContract, ACrashIsToldOnce) {
  const std::string report = crashes->Crash();
  EXPECT_EQ(crashes->Reports().TakeUntold(), report);
  EXPECT_EQ(crashes->Reports().TakeUntold(), "");
}

TEST_P(CrashReportsContract, OfTwoCrashesTheLastIsTold) {
  static_cast<void>(crashes->Crash());
  const std::string report = crashes->Crash();
  EXPECT_EQ(crashes->Reports().TakeUntold(), report);
  EXPECT_EQ(crashes->Reports().TakeUntold(), "");
}

}  // namespace corvelle
