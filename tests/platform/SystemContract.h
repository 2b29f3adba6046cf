#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "platform/SystemInfo.h"

// What every side of the machine's facts must do. One file of each test program includes this
// header and instantiates the suite with makers of the machines that it has.

namespace corvelle {

/// A machine with a fixed drive that is ready.
class ContractMachine {
 public:
  virtual ~ContractMachine() = default;

  virtual SystemInfo& System() = 0;
  /// Root of the drive that is ready, and of a drive that there is not.
  virtual std::string ReadyDrive() = 0;
  virtual std::string NoDrive() = 0;
  /// Root of a drive that is listed and has no disk in it.
  virtual std::string EmptyDrive() = 0;
};

using ContractMachineMaker = std::unique_ptr<ContractMachine> (*)();

class SystemContract : public testing::TestWithParam<ContractMachineMaker> {
 protected:
  std::unique_ptr<ContractMachine> machine_ = GetParam()();
  SystemInfo& system_ = machine_->System();
};

TEST_P(SystemContract, TheVersionIsOneOfWindowsNtFromSevenOn) {
  const auto version = system_.Version();
  ASSERT_TRUE(version);
  EXPECT_EQ(version->Platform, 2U);
  EXPECT_GE(version->Major * 10 + version->Minor, 61U);
  EXPECT_GT(version->Build, 0U);
}

TEST_P(SystemContract, TheProcessorIsNamed) {
  const ProcessorFacts processor = system_.Processor();
  EXPECT_TRUE(processor.Type != 0 || processor.Architecture != 0);
}

TEST_P(SystemContract, TheMemoryIsInBytes) {
  const auto memory = system_.PhysicalMemory();
  ASSERT_TRUE(memory);
  EXPECT_GT(*memory, 64U * 1024U * 1024U);
}

TEST_P(SystemContract, TheDrivesAreListedByTheirRoots) {
  const std::vector<std::string> drives = system_.LogicalDrives();
  EXPECT_EQ(std::count(drives.begin(), drives.end(), machine_->ReadyDrive()), 1);
  EXPECT_EQ(std::count(drives.begin(), drives.end(), machine_->NoDrive()), 0);
  for (const std::string& root : drives) {
    EXPECT_EQ(root.size(), 3U) << root;
    EXPECT_EQ(root.substr(1), ":\\") << root;
  }
}

TEST_P(SystemContract, TheFoldersAreFullPaths) {
  for (const std::string& folder : {system_.WindowsFolder(), system_.TempFolder()}) {
    ASSERT_GT(folder.size(), 3U);
    EXPECT_EQ(folder.substr(1, 2), ":\\") << folder;
  }
}

TEST_P(SystemContract, ADriveThatIsReadyHasAKindAFileSystemAndRoom) {
  const DriveFacts facts = system_.FactsOfDrive(machine_->ReadyDrive());
  EXPECT_EQ(facts.Type, 3U);
  EXPECT_FALSE(facts.FileSystem.empty());
  EXPECT_EQ(facts.FileSystem.find('\0'), std::string::npos);
  EXPECT_EQ(facts.Label.find('\0'), std::string::npos);
  ASSERT_TRUE(facts.Room);
  EXPECT_GT(facts.Room->Total, 0U);
  EXPECT_LE(facts.Room->Free, facts.Room->Total);
}

TEST_P(SystemContract, ADriveThatIsReadyIsAtHandAndOneWithNothingInItIsNot) {
  EXPECT_TRUE(system_.IsDriveAtHand(machine_->ReadyDrive()));
  EXPECT_FALSE(system_.IsDriveAtHand(machine_->EmptyDrive()));
  EXPECT_FALSE(system_.IsDriveAtHand(machine_->NoDrive()));
}

TEST_P(SystemContract, AMissingDriveHasNothingButItsKind) {
  EXPECT_EQ(system_.FactsOfDrive(machine_->NoDrive()), DriveFacts{.Type = 1});
}

TEST_P(SystemContract, ADriveWithNothingInItHasNoTextsAndNoRoom) {
  const std::string root = machine_->EmptyDrive();
  const std::vector<std::string> drives = system_.LogicalDrives();
  EXPECT_EQ(std::count(drives.begin(), drives.end(), root), 1);
  const DriveFacts facts = system_.FactsOfDrive(root);
  EXPECT_EQ(facts.Label, "");
  EXPECT_EQ(facts.FileSystem, "");
  EXPECT_FALSE(facts.Room);
}

}  // namespace corvelle
