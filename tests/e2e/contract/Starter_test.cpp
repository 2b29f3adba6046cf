#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <chrono>
#include <memory>

#include "Com.h"
#include "RealHome.h"
#include "platform/StarterContract.h"
#include "win32/UniqueHandle.h"
#include "win32/Win32Starter.h"

namespace corvelle {
namespace {

class RealStarter final : public ContractStarter {
 public:
  Starter& Starts() override { return starts_; }
  forms::WindowSystem& Windows() override { return windows_; }
  bool RunUntil(const std::function<bool()>& done) override {
    const std::int64_t end = windows_.Now() + 8000;
    while (!done() && windows_.Now() < end) corvelle::RunEvents(windows_, 5);
    return done();
  }
  unsigned ThisThread() override { return GetCurrentThreadId(); }

 private:
  Com com_;
  win32::Win32WindowSystem windows_;
  win32::Win32Starter starts_{windows_};
};

std::unique_ptr<ContractStarter> MakeRealStarter() { return std::make_unique<RealStarter>(); }

INSTANTIATE_TEST_SUITE_P(Windows, StarterContract, testing::Values(MakeRealStarter));

TEST(StarterThread, TheWorkRunsOnAnotherAndTheWindowsEndWithoutIt) {
  Com com;
  const auto release =
      std::make_shared<win32::UniqueKernel>(CreateEventW(nullptr, TRUE, FALSE, nullptr));
  const auto worker = std::make_shared<std::atomic<DWORD>>(0);
  bool told = false;
  const auto start = std::chrono::steady_clock::now();
  {
    win32::Win32WindowSystem windows;
    win32::Win32Starter starts(windows);
    starts.Start(
        [release, worker](const StartServices&) {
          *worker = GetCurrentThreadId();
          WaitForSingleObject(release->Get(), 10'000);
        },
        [&told] { told = true; });
    for (int i = 0; i < 400 && *worker == 0; ++i) corvelle::RunEvents(windows, 5);
  }
  EXPECT_NE(*worker, 0U);
  EXPECT_NE(*worker, GetCurrentThreadId());
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  SetEvent(release->Get());
  Sleep(50);
  EXPECT_FALSE(told);
}

}  // namespace
}  // namespace corvelle
