#include "sim/SimCrashReports.h"

#include "platform/CrashReportsContract.h"

namespace corvelle {
namespace {

class SimCrashes final : public ContractCrashes {
 public:
  CrashReports& Reports() override { return reports_; }
  std::string Crash() override {
    reports_.Untold = "C:\\Crashes\\" + std::to_string(++count_) + ".txt";
    return reports_.Untold;
  }

 private:
  sim::SimCrashReports reports_;
  int count_ = 0;
};

std::unique_ptr<ContractCrashes> MakeSimCrashes() { return std::make_unique<SimCrashes>(); }

INSTANTIATE_TEST_SUITE_P(Simulated, CrashReportsContract, testing::Values(MakeSimCrashes));

}  // namespace
}  // namespace corvelle
