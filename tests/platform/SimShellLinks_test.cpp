#include "sim/SimShellLinks.h"

#include <gtest/gtest.h>

#include "platform/ShellLinksContract.h"
#include "sim/Complain.h"

namespace corvelle {
namespace {

constexpr char kFolder[] = "C:\\Zo\xC3\xAB \xD0\xB6\\";

class SimulatedLinks final : public ContractLinks {
 public:
  SimulatedLinks() {
    files_.MakeFolders(kFolder);
    links_.SetFolder(7, "C:\\Startup");
    links_.SetVirtualFolder(17);
  }
  ShellLinks& Links() override { return links_; }
  FileSystem& Files() override { return files_; }
  std::string Folder() override { return kFolder; }
  int FolderWithPath() override { return 7; }
  int FolderWithoutPath() override { return 17; }

 private:
  sim::SimFiles files_;
  sim::SimShellLinks links_{files_};
};

std::unique_ptr<ContractLinks> MakeSimulatedLinks() { return std::make_unique<SimulatedLinks>(); }

INSTANTIATE_TEST_SUITE_P(Simulated, ShellLinksContract, testing::Values(MakeSimulatedLinks));

struct SimShellLinksTest : testing::Test {
  sim::SimFiles Files;
  sim::SimShellLinks Links{Files};
};

TEST_F(SimShellLinksTest, ALinkMadeByATestReadsBackWhole) {
  const sim::SimLink link{.Path = "C:\\a:1\n.exe",
                          .WorkDir = "C:\\w",
                          .Arguments = "12:x\n",
                          .Description = "words",
                          .Icon = {"C:\\i.ico", -5},
                          .Hotkey = 65535,
                          .ShowCmd = 7,
                          .Item = {"odd"}};
  Links.Put("C:\\a.lnk", link);
  EXPECT_EQ(Links.Get("C:\\a.lnk"), link);
  EXPECT_EQ(Links.Get("C:\\b.lnk"), std::nullopt);
}

TEST_F(SimShellLinksTest, NoPartOfALinkFileIsALink) {
  Links.Put("C:\\a.lnk", {.Path = "C:\\a.exe", .Arguments = "/x", .Icon = {"C:\\i.ico", 2}});
  const std::string whole = Files.Get("C:\\a.lnk").value_or("");
  ASSERT_GT(whole.size(), 40U);
  for (std::size_t length = 0; length < whole.size(); ++length) {
    Files.Put("C:\\part.lnk", whole.substr(0, length));
    EXPECT_EQ(Links.Get("C:\\part.lnk"), std::nullopt) << length;
  }
  Files.Put("C:\\part.lnk", whole + "x");
  EXPECT_EQ(Links.Get("C:\\part.lnk"), std::nullopt);
}

TEST_F(SimShellLinksTest, AMissingTargetDoesNotResolveAndIsComplainedOfWhenNotQuiet) {
  std::vector<std::string> complaints;
  const auto before =
      sim::SetComplaintHandler([&](const std::string& what) { complaints.push_back(what); });
  const auto link = Links.CreateLinkObject();
  EXPECT_TRUE(link->SetPath("C:\\missing.exe"));
  EXPECT_FALSE(link->Resolve(kResolveUpdate | kResolveQuietly));
  EXPECT_TRUE(complaints.empty());
  EXPECT_FALSE(link->Resolve(kResolveUpdate));
  sim::SetComplaintHandler(before);
  EXPECT_EQ(complaints.size(), 1U);
}

TEST_F(SimShellLinksTest, AnOddWayToShowTheWindowIsTheNormalOne) {
  const auto link = Links.CreateLinkObject();
  for (const auto& [set, shown] : {std::pair{0, 1}, {1, 1}, {2, 1}, {3, 3}, {7, 7}, {-1, 1}}) {
    EXPECT_TRUE(link->SetShowCmd(set));
    EXPECT_EQ(link->GetShowCmd(), shown) << set;
  }
}

TEST_F(SimShellLinksTest, AFullDiskSavesNothingWhole) {
  Files.Put("C:\\a.exe", "x");
  Files.FillDisk(10);
  const auto link = Links.CreateLinkObject();
  EXPECT_TRUE(link->SetPath("C:\\a.exe"));
  EXPECT_FALSE(link->Save("C:\\a.lnk"));
  EXPECT_EQ(Links.Get("C:\\a.lnk"), std::nullopt);
}

TEST_F(SimShellLinksTest, TheNthOperationFailsAndAllOthersDoNot) {
  Links.FailCall(2);
  const auto link = Links.CreateLinkObject();
  EXPECT_FALSE(link->SetPath("C:\\a.exe"));
  EXPECT_TRUE(Links.Hit());
  EXPECT_TRUE(link->SetPath("C:\\a.exe"));
  EXPECT_EQ(Links.Log(), (std::vector<std::string>{"CreateLinkObject", "SetPath C:\\a.exe",
                                                   "SetPath C:\\a.exe"}));
}

}  // namespace
}  // namespace corvelle
