#include "sim/SimDde.h"

#include <gtest/gtest.h>

#include "platform/DdeContract.h"
#include "sim/SimFileAssociations.h"

namespace corvelle {
namespace {

class SimulatedDde final : public ContractDde {
 public:
  DdeClient& Client() override { return client_; }
  void StartServer(DdeOutcome answer) override {
    client_.AddServer("CorvelleContract", "WWW_OpenURL", answer);
  }
  void EndServer() override { client_.RemoveServer("CorvelleContract", "WWW_OpenURL"); }
  std::vector<std::string> Told() override {
    std::vector<std::string> told;
    for (const sim::DdeCommand& command : client_.Told()) told.push_back(command.Command);
    return told;
  }
  bool NoConversationLeft() override { return true; }

 private:
  sim::SimDde client_;
};

std::unique_ptr<ContractDde> MakeSimulatedDde() { return std::make_unique<SimulatedDde>(); }

INSTANTIATE_TEST_SUITE_P(Simulated, DdeContract, testing::Values(MakeSimulatedDde));

TEST(SimFileAssociations, AFileMustBeThereAndBelongToAProgram) {
  sim::SimFiles files;
  sim::SimFileAssociations associations(files);
  associations.Set(".htm", "C:\\browser.exe");
  EXPECT_EQ(associations.ProgramFor("C:\\page.htm"), std::nullopt);
  files.Put("C:\\page.HTM", "x");
  files.Put("C:\\other.txt", "y");
  EXPECT_EQ(associations.ProgramFor("C:\\page.htm"), "C:\\browser.exe");
  EXPECT_EQ(associations.ProgramFor("C:\\other.txt"), std::nullopt);
  associations.Set(".htm", "");
  EXPECT_EQ(associations.ProgramFor("C:\\page.htm"), std::nullopt);
}

}  // namespace
}  // namespace corvelle
