#include "sim/SimShellFiles.h"

#include <vector>

#include "platform/ShellFilesContract.h"
#include "sim/Complain.h"
#include "sim/SimKeySynthesis.h"

namespace corvelle {
namespace {

using Strings = std::vector<std::string>;

class SimulatedShellFiles final : public ContractShellFiles {
 public:
  SimulatedShellFiles() { disk_.MakeFolders(Root()); }

  ShellFiles& Shell() override { return shell_; }
  FileSystem& Files() override { return disk_; }
  std::string Root() override { return "C:\\Contract\\"; }
  void SetTempPath(const std::string& path) override { shell_.SetTempPath(path); }

 private:
  sim::SimFiles disk_;
  sim::SimShellFiles shell_{disk_};
};

std::unique_ptr<ContractShellFiles> MakeSimulatedFiles() {
  return std::make_unique<SimulatedShellFiles>();
}

INSTANTIATE_TEST_SUITE_P(Simulated, ShellFilesContract, testing::Values(MakeSimulatedFiles));

/// Collects what the doubles complain of instead of failing.
class Complaints {
 public:
  Complaints()
      : before_(
            sim::SetComplaintHandler([this](const std::string& what) { All.push_back(what); })) {}
  Complaints(const Complaints&) = delete;
  Complaints& operator=(const Complaints&) = delete;
  ~Complaints() { sim::SetComplaintHandler(before_); }

  Strings All;

 private:
  sim::ComplaintHandler before_;
};

TEST(SimShellFiles, OnlyWhatMayBeUndoneGoesIntoTheBin) {
  sim::SimFiles disk;
  sim::SimShellFiles shell(disk);
  disk.Put("C:\\F\\a", "x");
  EXPECT_EQ(shell.ShFileOperation({.From = "C:\\F\\*.*", .Flags = fileop::FilesOnly}), 0);
  EXPECT_TRUE(shell.RecycleBin().empty());
  disk.Put("C:\\F\\b", "x");
  EXPECT_EQ(
      shell.ShFileOperation({.From = "C:\\F\\*.*", .Flags = fileop::FilesOnly | fileop::AllowUndo}),
      0);
  EXPECT_EQ(shell.RecycleBin(), Strings{"C:\\F\\b"});
}

TEST(SimShellFiles, AFailureHappensOnceAndChangesNothing) {
  sim::SimFiles disk;
  sim::SimShellFiles shell(disk);
  disk.Put("C:\\F\\a", "x");
  shell.FailNext(5);
  const FileOperation all{.From = "C:\\F\\*.*", .Flags = fileop::FilesOnly};
  EXPECT_EQ(shell.ShFileOperation(all), 5);
  EXPECT_TRUE(disk.Has("C:\\F\\a"));
  EXPECT_EQ(shell.ShFileOperation(all), 0);
  EXPECT_FALSE(disk.Has("C:\\F\\a"));
}

TEST(SimShellFiles, AFolderThatIsMissingIsAFailure) {
  sim::SimFiles disk;
  sim::SimShellFiles shell(disk);
  EXPECT_NE(shell.ShFileOperation({.From = "C:\\Gone\\*.*", .Flags = fileop::FilesOnly}), 0);
}

TEST(SimShellFiles, WhatItLacksFailsLoudly) {
  const Complaints complaints;
  sim::SimFiles disk;
  sim::SimShellFiles shell(disk);
  disk.MakeFolders("C:\\F");
  EXPECT_EQ(shell.ShFileOperation({.Function = 1, .From = "C:\\F\\*", .Flags = fileop::FilesOnly}),
            0);
  EXPECT_EQ(shell.ShFileOperation({.From = "C:\\F\\*"}), 0);
  EXPECT_EQ(complaints.All.size(), 2U);
}

TEST(SimKeySynthesis, KeysThatDoNotExistFailLoudly) {
  const Complaints complaints;
  sim::SimKeySynthesis keys;
  keys.KeybdEvent(0, keyevent::Down);
  keys.KeybdEvent(255, keyevent::Up);
  keys.KeybdEvent(17, 1);
  EXPECT_EQ(complaints.All.size(), 3U);
}

TEST(SimFiles, ALinkToAFolderIsAFolderAndCannotBeRemovedAsAFile) {
  sim::SimFiles disk;
  disk.Put("C:\\There\\a", "x");
  disk.MakeFolders("C:\\Here");
  disk.LinkFolder("C:\\Here\\link", "C:\\There");
  EXPECT_TRUE(disk.FolderExists("C:\\Here\\link"));
  EXPECT_TRUE(disk.FileExists("C:\\Here\\link\\a"));
  EXPECT_EQ(disk.Remove("C:\\Here\\link").Error(), FileError::AccessDenied);
  EXPECT_TRUE(disk.Has("C:\\There\\a"));
}

}  // namespace
}  // namespace corvelle
