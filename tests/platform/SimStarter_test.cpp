#include <gtest/gtest.h>

#include <memory>

#include "platform/StarterContract.h"
#include "sim/World.h"

namespace corvelle {
namespace {

class SimulatedStarter final : public ContractStarter {
 public:
  Starter& Starts() override { return world_.Starts; }
  forms::WindowSystem& Windows() override { return world_.Desktop; }
  bool RunUntil(const std::function<bool()>& done) override {
    world_.Desktop.Advance(10);
    return done();
  }
  unsigned ThisThread() override { return 1; }

 private:
  sim::World world_;
};

std::unique_ptr<ContractStarter> MakeSimulatedStarter() {
  return std::make_unique<SimulatedStarter>();
}

INSTANTIATE_TEST_SUITE_P(Simulated, StarterContract, testing::Values(MakeSimulatedStarter));

}  // namespace
}  // namespace corvelle
