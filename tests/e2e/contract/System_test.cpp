#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "platform/SystemContract.h"
#include "win32/ErrorMode.h"
#include "win32/Win32SystemInfo.h"

namespace corvelle {
namespace {

constexpr wchar_t kEmptyDrive[] = L"R:";
constexpr wchar_t kNowhere[] = L"C:\\no such folder for a drive";

/// This machine, with a drive letter that leads to no disk for as long as a test runs.
class RealMachine final : public ContractMachine {
 public:
  RealMachine() {
    win32::SuppressCriticalErrorBoxes();
    EXPECT_NE(DefineDosDeviceW(0, kEmptyDrive, kNowhere), 0) << GetLastError();
  }
  RealMachine(const RealMachine&) = delete;
  RealMachine& operator=(const RealMachine&) = delete;
  ~RealMachine() override {
    DefineDosDeviceW(DDD_REMOVE_DEFINITION | DDD_EXACT_MATCH_ON_REMOVE, kEmptyDrive, kNowhere);
  }
  SystemInfo& System() override { return system_; }
  std::string ReadyDrive() override { return "C:\\"; }
  std::string NoDrive() override { return "Q:\\"; }
  std::string EmptyDrive() override { return "R:\\"; }

 private:
  win32::Win32SystemInfo system_;
};

std::unique_ptr<ContractMachine> MakeRealMachine() { return std::make_unique<RealMachine>(); }

INSTANTIATE_TEST_SUITE_P(Windows, SystemContract, testing::Values(MakeRealMachine));

}  // namespace
}  // namespace corvelle
