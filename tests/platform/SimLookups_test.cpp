#include "sim/SimLookups.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>

#include "platform/LookupsContract.h"
#include "sim/World.h"

namespace corvelle {
namespace {

class SimulatedLookups final : public ContractLookups {
 public:
  SimulatedLookups() {
    world_.Files.Put("C:\\Contract\\keep.txt~", "");
    world_.Icons.SetIconCount("C:\\Contract\\icons.dll", 1);
    world_.Folders.Put(17, {{.Name = "Local Disk (C:)", .IconIndex = 8}});
  }
  forms::WindowSystem& Windows() override { return world_.Desktop; }
  std::string IconFile() override { return "C:\\Contract\\icons.dll"; }
  Lookups& Questions() override { return *lookups_; }
  FileSystem& Files() override { return world_.Files; }
  std::string Folder() override { return "C:\\Contract\\"; }
  void PutLink(const std::string& file, const std::string& target) override {
    world_.Links.Put(file, {.Path = target});
  }
  std::string HangingLink(const std::string& lane) override {
    lookups_->Hang(lane);
    return "C:\\Contract\\hangs.lnk";
  }
  void LetGo(const std::string& lane) override {
    if (lookups_) lookups_->Resume(lane);
  }
  bool RunUntil(const std::function<bool()>& done) override {
    world_.Desktop.Advance(100);
    return done();
  }
  void RunEvents() override { world_.Desktop.Pump(); }
  int End() override {
    lookups_.reset();
    return 0;
  }

 private:
  sim::World world_;
  std::optional<sim::SimLookups> lookups_{
      std::in_place, world_.Desktop,
      forms::LookupServices{world_.Files, world_.Links, world_.System, world_.Icons,
                            world_.Folders}};
};

std::unique_ptr<ContractLookups> MakeSimulatedLookups() {
  return std::make_unique<SimulatedLookups>();
}

INSTANTIATE_TEST_SUITE_P(Simulated, LookupsContract, testing::Values(MakeSimulatedLookups));

struct SimLookupsTest : testing::Test {
  sim::World World;
  int Told = 0;

  SimLookupsTest() {
    World.Files.Put("C:\\a.txt", "");
    World.SlowAnswers.SetListener(
        [this](const std::vector<LookupAnswer>& ends) { Told += static_cast<int>(ends.size()); });
  }
  void Ask(const std::string& lane) {
    static_cast<void>(World.SlowAnswers.Ask({.Path = "C:\\a.txt", .Lane = lane}));
  }
};

TEST_F(SimLookupsTest, AnAnswerComesWhenTheTestSays) {
  World.SlowAnswers.Delay("d", 300);
  Ask("d");
  Ask("d");
  World.Desktop.Advance(299);
  EXPECT_EQ(Told, 0);
  World.Desktop.Advance(1);
  EXPECT_EQ(Told, 1);
  World.Desktop.Advance(300);
  EXPECT_EQ(Told, 2);
}

TEST_F(SimLookupsTest, AQuickAnswerIsToldByTheNextTurnOfTheLoop) {
  Ask("c");
  EXPECT_EQ(Told, 0);
  World.Desktop.Pump();
  EXPECT_EQ(Told, 1);
}

TEST_F(SimLookupsTest, SeveralAnswersComeAtOnce) {
  int calls = 0;
  World.SlowAnswers.SetListener([&](const std::vector<LookupAnswer>&) { ++calls; });
  for (int i = 0; i < 5; ++i) Ask("c");
  World.Desktop.Pump();
  EXPECT_EQ(calls, 1);
}

TEST_F(SimLookupsTest, ALaneWithThousandsOfQuestionsComesBack) {
  World.SlowAnswers.Hang("d");
  for (int i = 0; i < 20'000; ++i) Ask("d");
  EXPECT_EQ(World.SlowAnswers.Asked(), 1);
  EXPECT_EQ(World.SlowAnswers.UnderWay(), 1);
  World.SlowAnswers.Resume("d");
  World.Desktop.Pump();
  EXPECT_EQ(Told, 20'000);
}

}  // namespace
}  // namespace corvelle
