#include "platform/TrayContract.h"
#include "sim/World.h"

namespace corvelle {
namespace {

class SimulatedTray final : public ContractTray {
 public:
  TrayIcons& Tray() override { return world_.Tray; }
  WindowId Window() override { return 77; }

 private:
  sim::World world_;
};

std::unique_ptr<ContractTray> MakeTray() { return std::make_unique<SimulatedTray>(); }

INSTANTIATE_TEST_SUITE_P(Simulated, TrayContract, testing::Values(MakeTray));

}  // namespace
}  // namespace corvelle
