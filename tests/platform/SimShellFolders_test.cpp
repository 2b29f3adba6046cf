#include "sim/SimShellFolders.h"

#include <gtest/gtest.h>

#include "platform/ShellFoldersContract.h"
#include "sim/Complain.h"

namespace corvelle {
namespace {

class SimulatedFolders final : public ContractFolders {
 public:
  SimulatedFolders() {
    files_.Put(File(), "x");
    folders_.Put(2, {{"Contract \xD0\xB6", 1}, {"Contract two", 2}});
    folders_.SetPath(2, "C:\\Programs");
    folders_.Put(17, {{"Disk (C:)", 3}});
    folders_.WhenOpened(2, "Contract two", [this] { started_ = "two"; });
  }
  ShellFolders& Folders() override { return folders_; }
  std::string File() override { return "C:\\file.txt"; }
  std::string MissingFile() override { return "C:\\missing.txt"; }
  std::string Started() override { return started_; }
  void DismissNextMenu() override { folders_.Dismiss(); }
  void CopyInNextMenu() override { folders_.Choose("Copy"); }
  int Menus() override { return static_cast<int>(folders_.Menus().size()); }

 private:
  sim::SimFiles files_;
  sim::SimShellFolders folders_{files_};
  std::string started_;
};

std::unique_ptr<ContractFolders> MakeSimulatedFolders() {
  return std::make_unique<SimulatedFolders>();
}

INSTANTIATE_TEST_SUITE_P(Simulated, ShellFoldersContract, testing::Values(MakeSimulatedFolders));

TEST(SimShellFolders, AMenuThatNobodyExpectedIsComplainedOf) {
  sim::SimFiles files;
  sim::SimShellFolders folders(files);
  folders.Put(2, {});
  int complaints = 0;
  const auto before = sim::SetComplaintHandler([&](const std::string&) { ++complaints; });
  EXPECT_FALSE(folders.FolderMenu(2, {1, 2}, kNoWindow));
  sim::SetComplaintHandler(before);
  EXPECT_EQ(complaints, 1);
}

TEST(SimShellFolders, ABrokenFolderIsThereButHoldsNothing) {
  sim::SimFiles files;
  sim::SimShellFolders folders(files);
  folders.Put(2, {{"x", 1}});
  folders.Break(2);
  EXPECT_EQ(folders.List(2), std::nullopt);
  EXPECT_FALSE(folders.OpenEntry(2, "x", {}, kNoWindow));
  EXPECT_TRUE(folders.Folder(2).has_value());
  folders.Put(2, {{"x", 1}});
  EXPECT_TRUE(folders.List(2).has_value());
}

}  // namespace
}  // namespace corvelle
